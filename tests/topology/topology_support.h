// What tests of references and loads have in common.
#pragma once

#include <gtest/gtest.h>

#include <functional>
#include <optional>
#include <string>
#include <vector>

#include "store/model/zel_data.h"
#include "store/record/assembly.h"
#include "store/record/beam_loads.h"
#include "store/record/body_loads.h"
#include "store/record/constraint_eqn.h"
#include "store/record/ent_list.h"
#include "store/record/face_loads.h"
#include "store/record/grid_surface.h"
#include "store/record/joint.h"
#include "store/record/member.h"
#include "store/record/node.h"
#include "store/record/node_load.h"
#include "store/record/restraints.h"
#include "store/record/rigid.h"
#include "store/record/stages.h"
#include "tarvex/data_mgr.h"
#include "tests/support/builders.h"
#include "tests/support/matchers.h"

namespace Tarvex::Testing {

using NumberLists = CDataMgr::NumberLists;
using NumberMap = CDataMgr::NumberMap;

inline Data::CEntList List(SelType kind, wchar_t const* text) { return {kind, CString(text)}; }
inline Data::CEntList Nodes(wchar_t const* text) { return List(SelNode, text); }
inline Data::CEntList Elements(wchar_t const* text) { return List(SelElement, text); }
inline Data::CEntList Members(wchar_t const* text) { return List(SelMember, text); }

inline std::wstring TextOf(Data::CEntList const& list) { return list.String().Str(); }

/// One table with a list, by hand: how a record with a list comes into it, and what the list reads.
struct ListTable {
  std::string name;
  std::function<void(CZelData&, Data::CEntList const&)> add;  ///< under the next number
  std::function<Data::CEntList(CZelData const&, int)> list;
  std::function<int(CZelData const&)> highest;
};

/// A table of loads; the records carry load case 3, which must stay.
template <class Load>
ListTable LoadRow(std::string const& name, Load const& (LoadTables::*read)(int) const,
                  int (LoadTables::*highest)() const,
                  void (LoadTables::*set)(int, Load const&, SidMode)) {
  return {name,
          [=](CZelData& model, Data::CEntList const& list) {
            Load load;
            load.SetLoadCase(3);
            load.SetLoadedEntities(list);
            (model.*set)((model.*highest)() + 1, load, SidMode::Keep);
          },
          [=](CZelData const& model, int n) {
            EXPECT_EQ((model.*read)(n).LoadCase(), 3);
            return Data::CEntList((model.*read)(n).LoadedEntities());
          },
          [=](CZelData const& model) { return (model.*highest)(); }};
}

inline ListTable SavedListRow() {
  return {"List",
          [](CZelData& model, Data::CEntList const& list) {
            Data::CEntList named(list);
            named.SetName(L"roof");
            model.SetList(model.HighestList() + 1, named);
          },
          [](CZelData const& model, int n) {
            EXPECT_EQ(model.List(n).Name().Str(), L"roof");
            return model.List(n);
          },
          [](CZelData const& model) { return model.HighestList(); }};
}

/// Nodes 1 to count, a unit apart along x.
inline CZelData ModelWithNodes(int count) {
  CZelData model;
  for (int i = 0; i < count; ++i) NodeAt(model, i, 0, 0);
  return model;
}

/// Beams 1 to count, end to end along x, each a unit long.
inline CZelData ModelWithBeams(int count) {
  auto model = ModelWithNodes(count + 1);
  for (int n = 1; n <= count; ++n) model.SetElem(n, Element(ElementType::Beam, {n, n + 1}));
  return model;
}

}  // namespace Tarvex::Testing
