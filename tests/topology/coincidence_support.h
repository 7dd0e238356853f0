// What the tests of coincidence share.
#pragma once

#include <string>
#include <utility>
#include <vector>

#include "store/record/element.h"
#include "store/record/joint.h"
#include "store/record/member.h"
#include "store/record/node.h"
#include "tarvex/coincidence.h"
#include "tests/support/builders.h"
#include "tests/support/matchers.h"
#include "tests/support/random_model.h"

namespace Tarvex::Testing {

using Pairs = std::vector<std::pair<int, int>>;

inline Util::CSet SetOf(SelType kind, std::vector<int> const& numbers) {
  Util::CSet set(kind);
  for (int const n : numbers) set.AddTo(n);
  return set;
}

/// All entities of a kind, load panels among them.
inline Util::CSet AllOf(CZelData const& model, SelType kind) {
  Util::CSet set(kind);
  for (int n = 1; n <= model.HighestEnt(kind); ++n)
    if (model.EntExist({kind, n})) set.AddTo(n);
  return set;
}

/// A search over a set.
inline CReduceCoinc SearchOver(CZelData& model, Util::CSet const& set, double tolerance,
                               int stage = 0) {
  CReduceCoinc tool(model, tolerance, stage);
  tool.SetSearchSet(set, CReduceCoinc::kWholeSearch);
  return tool;
}

/// A search over all entities of a kind.
inline CReduceCoinc Search(CZelData& model, SelType kind, double tolerance, int stage = 0) {
  return SearchOver(model, AllOf(model, kind), tolerance, stage);
}

/// A search over nodes along x, so that a test knows the order of the list.
inline CReduceCoinc SearchAlongX(CZelData& model, SelType kind, double tolerance, int stage = 0) {
  CReduceCoinc tool(model, tolerance, stage);
  tool.SetOrderVector({1, 0, 0});
  tool.SetSearchSet(AllOf(model, kind), CReduceCoinc::kTakeSet | CReduceCoinc::kSortList);
  return tool;
}

/// Lets a tool deal with all nodes.
inline Pairs DoAll(CZelData const& model, CReduceCoinc& tool) {
  Pairs pairs;
  tool.Do(AllOf(model, SelNode), pairs);
  return pairs;
}

/// Adds nodes on the x axis under the numbers.
inline void NodesOnX(CZelData& model, std::vector<std::pair<int, double>> const& nodes) {
  for (auto const& [n, x] : nodes) model.CreateNode(n, {x, 0, 0}, 0, Vbool6());
}

/// Adds a joint of all directions.
inline void JoinIn(CZelData& model, int primary, int constrained, wchar_t const* stages) {
  model.SetJoint(model.HighestJoint() + 1, Data::CJoint(L"", Vbool6(L"fix"), primary, constrained,
                                                        Data::CEntList(SelNone, stages)));
}

}  // namespace Tarvex::Testing
