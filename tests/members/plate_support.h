// What tests of conversion and refinement have in common.
#pragma once

#include <gtest/gtest.h>

#include <vector>

#include "store/geometry/integration.h"
#include "store/model/zel_data.h"
#include "store/record/ent_list.h"
#include "store/record/face_loads.h"
#include "store/record/node.h"
#include "store/record/prop_2d.h"
#include "store/record/rigid.h"
#include "tarvex/conversion.h"
#include "tests/support/builders.h"
#include "tests/support/matchers.h"

namespace Tarvex::Testing {

inline Util::CSet SetOf(std::vector<int> const& numbers, SelType kind = SelElement) {
  Util::CSet set(kind);
  for (int const n : numbers) set.AddTo(n);
  return set;
}

inline Util::CSet AllElements(CZelData const& model) {
  Util::CSet set(SelElement);
  for (int n = 1; n <= model.HighestElem(); ++n) set.AddTo(n);
  return set;
}

/// Runs a conversion on elements; it must say true and leave no hold.
template <class Tool>
void Convert(CZelData& model, Util::CSet const& set) {
  Tool tool(model);
  tool.SetSet(set);
  EXPECT_TRUE(tool.Do());
  EXPECT_FALSE(model.rebuildHold);
  EXPECT_EQ(model.rebuildHoldDepth, 0);
}
template <class Tool>
void Convert(CZelData& model, std::vector<int> const& numbers) {
  Convert<Tool>(model, SetOf(numbers));
}

/// Corners of a plate with a node in the middle of each side behind them.
inline Points WithMiddles(Points corners) {
  auto const count = corners.size();
  for (std::size_t i = 0; i < count; ++i)
    corners.push_back((corners[i] + corners[(i + 1) % count]) * 0.5);
  return corners;
}

/// Adds an 8-noded quadrilateral or 6-noded triangle with straight sides on new nodes.
inline int QuadraticAt(CZelData& model, Points const& corners) {
  return ElementAt(model, corners.size() == 3 ? ElementType::Tri6 : ElementType::Quad8,
                   WithMiddles(corners));
}

inline Points const kSquare{{0, 0, 0}, {1, 0, 0}, {1, 1, 0}, {0, 1, 0}};
inline Points const kTriangle{{0, 0, 0}, {1, 0, 0}, {0, 1, 0}};

inline std::vector<int> TopologyOf(CZelData const& model, int n) {
  auto const& nodes = model.Elem(n).Topology();
  return {nodes.begin(), nodes.end()};
}

/// Numbers of all elements, or of all nodes.
inline std::vector<int> ElementNumbers(CZelData const& model) {
  std::vector<int> numbers;
  for (auto const& [n, element] : model.Elem()) numbers.push_back(static_cast<int>(n));
  return numbers;
}
inline std::vector<int> NodeNumbers(CZelData const& model) {
  std::vector<int> numbers;
  for (auto const& [n, node] : model.Node()) numbers.push_back(static_cast<int>(n));
  return numbers;
}

/// Area or volume of an element by its shape.
inline double SizeOf(CZelData const& model, int n) {
  auto const& element = model.Elem(n);
  Points points;
  for (int const node : element.Topology()) points.push_back(model.NodeCoor(node));
  return Util::ExtentOf(static_cast<SpaceType>(element.Shape().dimension), points).size;
}

/// Sum of the areas of all 2D elements, or of the volumes of all solids.
inline double TotalSize(CZelData const& model, int dimension) {
  double sum = 0;
  for (int const n : ElementNumbers(model))
    if (model.Elem(n).Shape().dimension == dimension) sum += SizeOf(model, n);
  return sum;
}

inline std::wstring TextOf(Data::CEntList const& list) { return list.String().Str(); }

/// A rigid constraint of a primary node and a list of nodes.
inline void AddRigid(CZelData& model, int primary, wchar_t const* nodes) {
  model.SetRigid(model.HighestRigid() + 1,
                 Data::CRigid(CString(L""), Data::LinkType::All, primary,
                              Data::CEntList(SelNode, CString(nodes)), Data::CEntList()));
}
inline std::wstring FollowersOf(CZelData const& model, int rigid) {
  return TextOf(model.Rigid(rigid).ConstrainedNodes());
}

inline Vbool6 const kHeldX(true, false, false, false, false, false);
inline Vbool6 const kHeldXY(true, true, false, false, false, false);
inline Vbool6 const kHeldYZ(false, true, true, false, false, false);
inline Vbool6 const kHeldY(false, true, false, false, false, false);

}  // namespace Tarvex::Testing
