#include <algorithm>
#include <map>
#include <set>

#include "store/text/cstring.h"
#include "tarvex/refinement.h"
#include "tests/members/plate_support.h"

namespace Tarvex::RefineMeshTest {
namespace {

using namespace Testing;
using Pieces = std::map<int, std::vector<int>>;

CString const kNone(L"");

bool Refine(CZelData& model, int node, Pieces& pieces, wchar_t const* sid = L"") {
  return ZelUtil::RefineMeshAtNode(model, node, 0.5, 0.001, pieces, CString(sid));
}

/// Whether nothing happens at a node.
void ExpectNothing(CZelData model, int node, wchar_t const* sid = L"") {
  CZelData const before(model);
  Pieces pieces;
  EXPECT_FALSE(Refine(model, node, pieces, sid));
  EXPECT_TRUE(pieces.empty());
  EXPECT_TRUE(IsUnchanged(model, before));
}

TEST(RefineMeshAtNode, CutsEachElementThatHasTheNodeAsACornerAndTellsItsPieces) {
  CZelData model;
  Grid(model, 2, 2);  // 9 nodes, 5 in the middle
  Pieces pieces{{99, {7}}};
  EXPECT_TRUE(Refine(model, 5, pieces));
  EXPECT_EQ(
      pieces,
      (Pieces{{1, {5, 6, 7}}, {2, {8, 9, 10}}, {3, {11, 12, 13}}, {4, {14, 15, 16}}, {99, {7}}}));
  EXPECT_EQ(model.HighestElem(), 16);
  for (int n = 1; n <= 4; ++n) EXPECT_TRUE(model.ElemExist(n));  // removing them is the caller's
}

TEST(RefineMeshAtNode, SharesTheNodesOfSharedSidesAndNoInnerOnes) {
  CZelData model;
  Grid(model, 2, 2);
  Pieces pieces;
  EXPECT_TRUE(Refine(model, 5, pieces));
  // Four inner points and four middles of sides that meet in node 5.
  EXPECT_EQ(model.HighestNode(), 9 + 4 + 4);
}

TEST(RefineMeshAtNode, AppendsToThePiecesThatAreThere) {
  CZelData model;
  Grid(model, 1, 1);
  Pieces pieces{{1, {42}}};
  EXPECT_TRUE(Refine(model, 1, pieces));
  EXPECT_EQ(pieces, (Pieces{{1, {42, 2, 3, 4}}}));
}

TEST(RefineMeshAtNode, FindsTheCornerInEveryShape) {
  CZelData model;
  ElementAt(model, ElementType::Quad4, kSquare);
  QuadraticAt(model, kSquare);
  ElementAt(model, ElementType::Tri3, kTriangle);
  QuadraticAt(model, kTriangle);
  Brick(model, 1, 1, 1);
  // One corner node for all: each element's third corner, the brick's eighth.
  int const hub = model.Elem(1).Topo(2);
  for (int n = 2; n <= 4; ++n) model.SetElemTopo(n, 2, hub);
  model.SetElemTopo(5, 7, hub);
  Pieces pieces;
  EXPECT_TRUE(Refine(model, hub, pieces));
  EXPECT_EQ(
      pieces,
      (Pieces{
          {1, {6, 7, 8}}, {2, {9, 10, 11}}, {3, {12, 13}}, {4, {14, 15}}, {5, {16, 17, 18, 19}}}));
  for (int const n : {6, 9, 12, 14}) EXPECT_EQ(model.Elem(n).Topo(0), hub) << n;
  EXPECT_EQ(model.Elem(16).Topo(7), hub);
}

TEST(RefineMeshAtNode, LeavesDummiesOtherShapesAndOtherDimensionsOutOfTheMap) {
  CZelData model;
  Grid(model, 1, 1);  // nodes 1 2 3 4
  auto dummy = Element(ElementType::Quad4, {1, 2, 4, 3});
  dummy.SetIsDummy(true);
  model.SetElem(1, dummy);
  model.SetElem(2, Element(ElementType::Beam, {1, 2}));
  model.SetElem(3, Element(ElementType::Wedge6, {1, 2, 3, 1, 2, 4}));
  model.SetElem(4, Element(ElementType::Tetra4, {1, 2, 3, 4}));
  model.SetElem(5, Element(ElementType::Pyramid5, {1, 2, 4, 3, 1}));
  model.SetLoadPanel(6, Panel({1, 2, 4}));
  ExpectNothing(model, 1);
}

TEST(RefineMeshAtNode, SkipsElementsOfAMidSideNode) {
  CZelData model;
  QuadraticAt(model, kSquare);
  QuadraticAt(model, kTriangle);
  ExpectNothing(model, 5);
  ExpectNothing(model, 12);
}

TEST(RefineMeshAtNode, SkipsElementsWithAMissingNode) {
  CZelData model;
  Grid(model, 2, 1);
  model.SetElemTopo(1, 3, 99);
  Pieces pieces;
  EXPECT_TRUE(Refine(model, 2, pieces));
  EXPECT_EQ(pieces, (Pieces{{2, {3, 4, 5}}}));
  model.SetElem(2, Element(ElementType::Quad8, {2, 3, 6, 5}));  // its mid-side nodes are not there
  model.BlankElem(3, 3);
  ExpectNothing(model, 2);
}

TEST(RefineMeshAtNode, TakesElementsOfTheIdentifierOnlyWhenOneIsGiven) {
  CZelData model;
  Grid(model, 2, 1);
  model.SetElemSid(2, CString(L"fine"));
  ExpectNothing(model, 2, L"finer");
  ExpectNothing(model, 2, L"Fine");
  Pieces pieces;
  EXPECT_TRUE(Refine(model, 2, pieces, L"fine"));
  EXPECT_EQ(pieces, (Pieces{{2, {3, 4, 5}}}));
}

TEST(RefineMeshAtNode, DoesNothingAtANodeThatNothingUsesAndThrowsForAMissingOne) {
  CZelData model;
  Grid(model, 1, 1);
  int const loose = NodeAt(model, 9, 9, 9);
  ExpectNothing(model, loose);
  Pieces pieces;
  EXPECT_NE(OutOfRangeText([&] { Refine(model, 77, pieces); }), "");
}

TEST(RefineMeshAtNode, LeavesOldMidSideNodesInUseAsCorners) {
  CZelData model;
  QuadraticAt(model, kSquare);
  Pieces pieces;
  EXPECT_TRUE(Refine(model, 1, pieces));
  model.BlankElem(1, 1);
  for (int const node : {5, 6, 7, 8}) EXPECT_TRUE(model.NodeIsUsed(node)) << node;
  EXPECT_EQ(model.Elem(2).Topo(1), 5);
  EXPECT_EQ(model.Elem(2).Topo(3), 8);
}

/// Sides of elements by how many elements have them.
std::map<std::set<int>, int> Sides(CZelData const& model) {
  std::map<std::set<int>, int> sides;
  for (int const n : ElementNumbers(model)) {
    auto const& element = model.Elem(n);
    int const corners = element.Shape().corners;
    for (int i = 0; i < corners; ++i) {
      std::set<int> side{element.Topo(i), element.Topo((i + 1) % corners)};
      if (element.NumTopo() > corners) side.insert(element.Topo(corners + i));
      ++sides[side];
    }
  }
  return sides;
}

TEST(RefineMeshAtNode, LeavesNoHangingNodeInsideARefinedElement) {
  for (bool const quadratic : {false, true})
    for (bool const triangle : {false, true}) {
      SCOPED_TRACE(std::string(quadratic ? "quadratic" : "linear") + (triangle ? " tri" : " quad"));
      CZelData model;
      auto const& corners = triangle ? kTriangle : kSquare;
      if (quadratic)
        QuadraticAt(model, corners);
      else
        ElementAt(model, triangle ? ElementType::Tri3 : ElementType::Quad4, corners);
      Pieces pieces;
      EXPECT_TRUE(Refine(model, 1, pieces));
      model.BlankElem(1, 1);
      // Each side of a piece is shared by two, or lies on the outline: x = 0, y = 0, x = 1, y = 1
      // or x + y = 1.
      for (auto const& [side, count] : Sides(model)) {
        ASSERT_LE(count, 2);
        if (count == 2) continue;
        auto const all = [&](auto&& on) {
          return std::all_of(side.begin(), side.end(),
                             [&](int node) { return on(model.NodeCoor(node)); });
        };
        EXPECT_TRUE(all([](auto const& p) { return p.x == 0; }) ||
                    all([](auto const& p) { return p.y == 0; }) ||
                    all([](auto const& p) { return p.x == 1; }) ||
                    all([](auto const& p) { return p.y == 1; }) ||
                    all([](auto const& p) { return p.x + p.y == 1; }));
      }
    }
}

}  // namespace
}  // namespace Tarvex::RefineMeshTest
