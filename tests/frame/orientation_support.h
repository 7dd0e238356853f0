// What the tests of the orientation tools have in common.
#pragma once

#include <gtest/gtest.h>

#include <array>
#include <map>
#include <vector>

#include "store/model/zel_data.h"
#include "store/record/axis.h"
#include "store/record/node.h"
#include "store/select/set.h"
#include "tests/support/builders.h"
#include "tests/support/matchers.h"
#include "tests/support/random_model.h"

namespace Tarvex::Testing {

/// A set of the given numbers.
inline Util::CSet Numbers(std::vector<int> const& numbers, SelType kind = SelElement) {
  Util::CSet set(kind);
  for (int const n : numbers) set.AddTo(n);
  return set;
}

/// Topology of an element or load panel.
inline std::vector<int> Ring(CZelData const& model, int n) {
  auto const& nodes = model.VariantElement(n)->Topology();
  return {nodes.begin(), nodes.end()};
}

/// Adds an axis at the origin. @return its number.
inline int AxisAlong(CZelData& model, Vec3<double> const& x, Vec3<double> const& xy) {
  int const n = model.HighestAxis() + 1;
  model.SetAxis(n, Data::CAxis(L"", AxisType::Cartesian, {0, 0, 0}, x, xy));
  return n;
}

/// Unit normal of an element or load panel, as its own z axis.
inline Vec3<double> NormalAt(CZelData const& model, int n) {
  return model.ElemDC(n, EntAt::Ends, -1).AxisVec(Direction::Z, true);
}

/// x1, x2, y and z of an offset.
using OffsetValues = std::array<double, 4>;
inline OffsetValues OffsetOf(CZelData const& model, int n) {
  auto const& offset = model.Elem(n).Offset();
  return {offset.X1(), offset.X2(), offset.Y(), offset.Z()};
}

/// Start and end of an element along its member.
using LongPositions = std::array<double, 2>;
inline LongPositions LongPositionsOf(CZelData const& model, int n) {
  return {model.Elem(n).LongPosition(true), model.Elem(n).LongPosition(false)};
}

/// A release that can be told from that of any other node.
inline CElemConnect ReleaseFor(int node) {
  CElemConnect connect(Vbool6(node % 2 == 0, true, false, node % 3 == 0, false, false));
  connect.SetStiffness(Direction::X, node);
  return connect;
}

/// An element with the offset (1, 2, 3, 4), the long positions 0.25 and 0.75, and at each place the
/// release of its node.
inline Data::CElement Dressed(Data::CElement element) {
  element.SetOffset(Data::COffset(1, 2, 3, 4));
  element.SetLongPosition(true, 0.25);
  element.SetLongPosition(false, 0.75);
  for (int i = 0; i < element.NumTopo(); ++i) element.SetConnect(i, ReleaseFor(element.Topo(i)));
  return element;
}

/// Whether each place of a dressed element has the release of the node that is there now.
inline ::testing::AssertionResult ReleasesAreWithTheirNodes(CZelData const& model, int n) {
  auto const& element = model.Elem(n);
  for (int i = 0; i < element.NumTopo(); ++i)
    if (!(element.Connect(i) == ReleaseFor(element.Topo(i))))
      return ::testing::AssertionFailure() << "not so at place " << i << " of element " << n;
  return ::testing::AssertionSuccess();
}

/// Nodes that an element of a type with a shape has.
inline int NodeCountOf(int type) {
  static std::map<int, int> const kCounts{{5, 4},  {6, 8},  {7, 3},  {8, 6},
                                          {12, 8}, {14, 6}, {16, 4}, {26, 5}};
  auto const found = kCounts.find(type);
  return found == kCounts.end() ? 2 : found->second;
}

/// About three quarters of a model's elements and panels, and a few numbers that nothing bears.
inline Util::CSet AnySelection(CZelData const& model, Random& random) {
  Util::CSet set(SelElement);
  for (int n = 1; n <= model.HighestElem() + 5; ++n)
    if (random.Percent(75)) set.AddTo(n);
  return set;
}

/// Takes about one node in fifty out of a model.
inline void LoseNodes(CZelData& model, Random& random) {
  for (int n = 1; n <= model.HighestNode(); ++n)
    if (random.Percent(2)) model.BlankNode(n, 1);
}

/// Number of the first user axis of a model.
inline int FirstAxis(CZelData const& model) {
  return static_cast<int>((*model.Axis().begin()).first);
}

}  // namespace Tarvex::Testing
