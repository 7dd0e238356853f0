// First edges of 2D entities turned towards a direction.
#include <gtest/gtest.h>

#include "frame/rebuild_hold.h"
#include "tarvex/orientation.h"
#include "tests/frame/orientation_support.h"

namespace Tarvex::AlignElem2dEdgesTest {
namespace {

using Testing::AxisAlong;
using Testing::IsUnchanged;
using Testing::Numbers;
using Testing::PanelAt;
using Testing::Points;
using Testing::References;
using Testing::Ring;

constexpr int kOwnX = -1;

/// Runs the tool once.
bool AlignEdges(CZelData& model, Util::CSet const& set, int axis) {
  CAlignElem2DEdges tool(model);
  tool.SetSet(set);
  tool.SetAxis(axis);
  return tool.Do();
}

/// The ring of an element of a type, or of a panel for type None, on new nodes 1, 2, 3 and so on
/// after a run; also whether the run says that it turned it.
std::vector<int> Aligned(ElementType type, Points const& points, int axis = 0,
                         Vec3<double> const& x = {1, 0, 0}, Vec3<double> const& xy = {0, 1, 0}) {
  CZelData model;
  if (axis > 0) AxisAlong(model, x, xy);
  if (type == ElementType::None)
    PanelAt(model, points);
  else
    Testing::ElementAt(model, type, points);
  CZelData const before(model);
  bool const turned = AlignEdges(model, Numbers({1}), axis);
  EXPECT_EQ(turned, !IsUnchanged(model, before));
  return Ring(model, 1);
}

/// A unit square with its first corner at the origin, beginning with the edge along +x, +y, -x, -y.
Points SquareFrom(int start) {
  Points const square{{0, 0, 0}, {1, 0, 0}, {1, 1, 0}, {0, 1, 0}};
  Points points;
  for (int i = 0; i < 4; ++i) points.push_back(square[static_cast<std::size_t>((start + i) % 4)]);
  return points;
}

// Which edge is chosen.

TEST(CAlignElem2DEdges, MakesTheEdgeAlongTheDirectionTheFirst) {
  EXPECT_EQ(Aligned(ElementType::Quad4, SquareFrom(0)), (std::vector{1, 2, 3, 4}));
  EXPECT_EQ(Aligned(ElementType::Quad4, SquareFrom(1)), (std::vector{4, 1, 2, 3}));
  EXPECT_EQ(Aligned(ElementType::Quad4, SquareFrom(2)), (std::vector{3, 4, 1, 2}));
  EXPECT_EQ(Aligned(ElementType::Quad4, SquareFrom(3)), (std::vector{2, 3, 4, 1}));
  EXPECT_EQ(Aligned(ElementType::Tri3, {{0, 1, 0}, {0, 0, 0}, {1, 0, 0}}), (std::vector{2, 3, 1}));
}

TEST(CAlignElem2DEdges, TakesTheXDirectionOfAUserAxis) {
  // x is the global y.
  EXPECT_EQ(Aligned(ElementType::Quad4, SquareFrom(0), 1, {0, 1, 0}, {-1, 0, 0}),
            (std::vector{2, 3, 4, 1}));
  // x is the global -x.
  EXPECT_EQ(Aligned(ElementType::Quad4, SquareFrom(0), 1, {-1, 0, 0}, {0, 1, 0}),
            (std::vector{3, 4, 1, 2}));
}

TEST(CAlignElem2DEdges, DoesNotNormaliseSoThatALongEdgeWins) {
  // Edges (1, 0), (3, 4), (-4, 0), (0, -4): products with x 1, 3, -4, 0. The short first edge lies
  // along x and the longer second one at 53 degrees to it.
  EXPECT_EQ(Aligned(ElementType::Quad4, {{0, 0, 0}, {1, 0, 0}, {4, 4, 0}, {0, 4, 0}}),
            (std::vector{2, 3, 4, 1}));
}

TEST(CAlignElem2DEdges, KeepsTheFirstOfEqualEdges) {
  // A square on its corner: edges (1, -1), (1, 1), (-1, 1), (-1, -1), products 1, 1, -1, -1.
  Points const diamond{{0, 0, 0}, {1, -1, 0}, {2, 0, 0}, {1, 1, 0}};
  EXPECT_EQ(Aligned(ElementType::Quad4, diamond), (std::vector{1, 2, 3, 4}));
  // Beginning one corner earlier the products are -1, 1, 1, -1.
  EXPECT_EQ(Aligned(ElementType::Quad4, {diamond[3], diamond[0], diamond[1], diamond[2]}),
            (std::vector{2, 3, 4, 1}));
}

TEST(CAlignElem2DEdges, LeavesAnElementWithoutAPositiveProduct) {
  // In the plane x = 0 all products are 0.
  EXPECT_EQ(Aligned(ElementType::Quad4, {{0, 0, 0}, {0, 1, 0}, {0, 1, 1}, {0, 0, 1}}),
            (std::vector{1, 2, 3, 4}));
  EXPECT_EQ(Aligned(ElementType::Tri3, {{0, 0, 0}, {0, 0, 0}, {0, 0, 0}}), (std::vector{1, 2, 3}));
}

TEST(CAlignElem2DEdges, NeverChoosesAnEdgeWithANegativeProduct) {
  // The walk ends behind the edge from node 2 to 3, before the edge back along +x: products 0, -1.
  CZelData model;
  Testing::QuadAt(model, {1, 0, 0}, {1, 1, 0}, {0, 1, 0}, {0, 0, 0});
  model.BlankNode(4, 1);
  CZelData const before(model);
  EXPECT_FALSE(AlignEdges(model, Numbers({1}), 0));
  EXPECT_TRUE(IsUnchanged(model, before));
}

// Quadratic elements: the last corner is paired with the first mid-side node.

/// Mid-side nodes behind corners.
Points WithMidSides(Points corners) {
  auto const count = corners.size();
  for (std::size_t i = 0; i < count; ++i)
    corners.push_back((corners[i] + corners[(i + 1) % count]) * 0.5);
  return corners;
}

TEST(CAlignElem2DEdges, CarriesTheSideNodesOfAQuad8Along) {
  EXPECT_EQ(Aligned(ElementType::Quad8, WithMidSides(SquareFrom(3))),
            (std::vector{2, 3, 4, 1, 6, 7, 8, 5}));
}

TEST(CAlignElem2DEdges, PairsTheLastCornerOfAQuad8WithItsFirstSideNodeWhichChangesTheChoice) {
  // Width 1.5, height 1, direction (0.6, -0.8). Edges and products:
  //   0-1 (0, 1) -0.8; 1-2 (-1.5, 0) -0.9; 2-3 (0, -1) 0.8; 3-0 (1.5, 0) 0.9;
  //   3 to the side node of 0-1 (1.5, 0.5) 0.9 - 0.4 = 0.5.
  // Closed to the first corner the ring would begin with 3-0; as it is, it begins with 2-3.
  Points const corners{{1.5, 0, 0}, {1.5, 1, 0}, {0, 1, 0}, {0, 0, 0}};
  Vec3<double> const x{0.6, -0.8, 0};
  Vec3<double> const xy{0.8, 0.6, 0};
  EXPECT_EQ(Aligned(ElementType::Quad4, corners, 1, x, xy), (std::vector{4, 1, 2, 3}));
  EXPECT_EQ(Aligned(ElementType::Quad8, WithMidSides(corners), 1, x, xy),
            (std::vector{3, 4, 1, 2, 7, 8, 5, 6}));
}

TEST(CAlignElem2DEdges, MayTurnAQuad8ToAndFroForEver) {
  // The element of the test above. Whichever edge comes first, the last corner is paired with its
  // side node:
  //   from 2-3: 0.8, then 3-0 with 0.9, the greatest, comes first;
  //   from 3-0: 0.9, but 2 to the side node of 3-0 is (0.75, -1), 0.45 + 0.8 = 1.25: 2-3 comes
  //   first.
  CZelData model;
  Testing::ElementAt(model, ElementType::Quad8,
                     WithMidSides({{1.5, 0, 0}, {1.5, 1, 0}, {0, 1, 0}, {0, 0, 0}}));
  AxisAlong(model, {0.6, -0.8, 0}, {0.8, 0.6, 0});
  for (int run = 0; run < 3; ++run) {
    EXPECT_TRUE(AlignEdges(model, Numbers({1}), 1));
    EXPECT_TRUE(References(model, 1, {3, 4, 1, 2, 7, 8, 5, 6}));
    EXPECT_TRUE(AlignEdges(model, Numbers({1}), 1));
    EXPECT_TRUE(References(model, 1, {4, 1, 2, 3, 8, 5, 6, 7}));
  }
}

TEST(CAlignElem2DEdges, PairsTheLastCornerOfATri6WithItsFirstSideNodeWhichChangesTheChoice) {
  // Corners (2, 0), (0, 2), (0, 0). Products with x: 0-1 -2, 1-2 0, 2-0 2 and, as it is, 2 to the
  // side node of 0-1. Bulged to x = -1 that node gives -1, so no product is positive.
  Points points = WithMidSides({{2, 0, 0}, {0, 2, 0}, {0, 0, 0}});
  EXPECT_EQ(Aligned(ElementType::Tri6, points), (std::vector{3, 1, 2, 6, 4, 5}));
  points[3] = {-1, 1, 0};
  EXPECT_EQ(Aligned(ElementType::Tri6, points), (std::vector{1, 2, 3, 4, 5, 6}));
}

TEST(CAlignElem2DEdges, LooksAtNoPairOfSideNodes) {
  // The way from side node 5 to 6 is by far the longest along x, and no edge.
  auto points = WithMidSides(SquareFrom(1));
  points[5] = {1000, 1, 0};
  EXPECT_EQ(Aligned(ElementType::Quad8, points), (std::vector{4, 1, 2, 3, 8, 5, 6, 7}));
}

// Load panels: all nodes are corners, and the last is paired with the first.

TEST(CAlignElem2DEdges, LooksAtAllNodesOfAPanelOfFive) {
  Points const five{{2, 0, 0}, {2, 1, 0}, {1, 2, 0}, {0, 1, 0}, {0, 0, 0}};  // closes along +x
  EXPECT_EQ(Aligned(ElementType::None, five), (std::vector{5, 1, 2, 3, 4}));
}

TEST(CAlignElem2DEdges, LooksAtAllNodesOfAPanelOfEight) {
  // Products with x, from node 1: 0, -1, -1, -1, 0, 1, 2, 0.
  Points const eight{{3, 1, 0}, {3, 2, 0}, {2, 3, 0}, {1, 3, 0},
                     {0, 2, 0}, {0, 1, 0}, {1, 0, 0}, {3, 0, 0}};
  EXPECT_EQ(Aligned(ElementType::None, eight), (std::vector{7, 8, 1, 2, 3, 4, 5, 6}));
}

TEST(CAlignElem2DEdges, ClosesTheRingOfAnElementOfFewerThanFiveNodes) {
  EXPECT_EQ(Aligned(ElementType::Quad4, SquareFrom(1)), (std::vector{4, 1, 2, 3}));
  EXPECT_EQ(Aligned(ElementType::Tri3, {{2, 0, 0}, {0, 2, 0}, {0, 0, 0}}), (std::vector{3, 1, 2}));
  EXPECT_EQ(Aligned(ElementType::None, SquareFrom(1)), (std::vector{4, 1, 2, 3}));
}

// Axis -1: the own x axis of each element.

/// The ring of the unit square, from its edge along +x, with an orientation angle, after a run.
std::vector<int> AlignedToOwnX(double degrees) {
  CZelData model;
  Testing::ElementAt(model, ElementType::Quad4, SquareFrom(0));
  model.SetElemBeta(1, degrees);
  CZelData const before(model);
  bool const turned = AlignEdges(model, Numbers({1}), kOwnX);
  EXPECT_EQ(turned, !IsUnchanged(model, before));
  return Ring(model, 1);
}

TEST(CAlignElem2DEdges, TakesTheOwnXAxisWithItsOrientationAngleForAxisMinusOne) {
  EXPECT_EQ(AlignedToOwnX(0), (std::vector{1, 2, 3, 4}));
  EXPECT_EQ(AlignedToOwnX(90), (std::vector{2, 3, 4, 1}));
  EXPECT_EQ(AlignedToOwnX(180), (std::vector{3, 4, 1, 2}));
  EXPECT_EQ(AlignedToOwnX(-90), (std::vector{4, 1, 2, 3}));
}

TEST(CAlignElem2DEdges, TakesTheOwnXAxisOfEachElementInTurn) {
  CZelData model;
  for (double const angle : {90.0, 0.0, 180.0}) {
    int const n = Testing::ElementAt(model, ElementType::Quad4, SquareFrom(0));
    model.SetElemBeta(n, angle);
  }
  EXPECT_TRUE(AlignEdges(model, Numbers({1, 2, 3}), kOwnX));
  EXPECT_TRUE(References(model, 1, {2, 3, 4, 1}));
  EXPECT_TRUE(References(model, 2, {5, 6, 7, 8}));
  EXPECT_TRUE(References(model, 3, {11, 12, 9, 10}));
}

TEST(CAlignElem2DEdges, LetsALongEdgeWinOverTheFirstForTheOwnXAxisToo) {
  // Edges (1, 0), (3, 4), (-4, 0), (0, -4) as above; the own x is the first edge.
  EXPECT_EQ(Aligned(ElementType::Quad4, {{0, 0, 0}, {1, 0, 0}, {4, 4, 0}, {0, 4, 0}}, kOwnX),
            (std::vector{2, 3, 4, 1}));
}

TEST(CAlignElem2DEdges, TakesTheOwnXAxisOfAPanel) {
  CZelData model;
  PanelAt(model, SquareFrom(0));
  auto panel = model.LoadPanel(1);
  panel.SetOrientationAngle(90);
  model.SetLoadPanel(1, panel);
  EXPECT_TRUE(AlignEdges(model, Numbers({1}), kOwnX));
  EXPECT_TRUE(References(model, 1, {2, 3, 4, 1}));
}

TEST(CAlignElem2DEdges, TurnsAtEveryRunWhatHasItsOwnXAxisAcrossItsFirstEdge) {
  // The own x follows the first edge, so the edge that came first is again across it.
  CZelData model;
  Testing::ElementAt(model, ElementType::Quad4, SquareFrom(0));
  model.SetElemBeta(1, 90);
  for (int const first : {2, 3, 4, 1}) {
    EXPECT_TRUE(AlignEdges(model, Numbers({1}), kOwnX));
    EXPECT_EQ(model.Elem(1).Topo(0), first);
  }
}

// Missing nodes.

TEST(CAlignElem2DEdges, EndsAtAMissingNodeForThatElementOnly) {
  CZelData model;
  for (int i = 0; i < 3; ++i) Testing::ElementAt(model, ElementType::Quad4, SquareFrom(1));
  model.BlankNode(7, 1);  // third corner of element 2, whose edge along +x is the fourth
  EXPECT_TRUE(AlignEdges(model, Numbers({1, 2, 3}), 0));
  EXPECT_TRUE(References(model, 1, {4, 1, 2, 3}));
  EXPECT_TRUE(References(model, 2, {5, 6, 7, 8}));
  EXPECT_TRUE(References(model, 3, {12, 9, 10, 11}));
}

TEST(CAlignElem2DEdges, GoesByTheEdgesBeforeAMissingNode) {
  // Products 0 and 1, then a missing node; the edge behind it would give 2.
  CZelData model;
  PanelAt(model, {{0, 1, 0}, {0, 0, 0}, {1, 0, 0}, {1, -1, 0}, {3, -1, 0}});
  Testing::ElementAt(model, ElementType::Quad4, {{0, 1, 0}, {0, 0, 0}, {1, 0, 0}, {5, 5, 5}});
  model.BlankNode(4, 1);
  model.BlankNode(9, 1);
  EXPECT_TRUE(AlignEdges(model, Numbers({1, 2}), 0));
  EXPECT_TRUE(References(model, 1, {2, 3, 4, 5, 1}));
  EXPECT_TRUE(References(model, 2, {7, 8, 9, 6}));
}

TEST(CAlignElem2DEdges, EndsAtAMissingFirstNode) {
  CZelData model;
  Testing::ElementAt(model, ElementType::Quad4, SquareFrom(1));
  model.BlankNode(1, 1);
  EXPECT_FALSE(AlignEdges(model, Numbers({1}), 0));
}

// What else.

TEST(CAlignElem2DEdges, ChangesTheSignOfTheZOffsetOfAQuad4WithAnOddNumberOfSteps) {
  for (int const start : {1, 2, 3}) {
    CZelData model;
    Testing::ElementAt(model, ElementType::Quad4, SquareFrom(start));
    model.SetElem(1, Testing::Dressed(model.Elem(1)));
    EXPECT_TRUE(AlignEdges(model, Numbers({1}), 0));
    EXPECT_EQ(model.Elem(1).Offset().Z(), start == 2 ? 4 : -4);  // 4 - start steps
    EXPECT_TRUE(Testing::ReleasesAreWithTheirNodes(model, 1));
  }
}

TEST(CAlignElem2DEdges, SaysWhetherAnythingWasTurned) {
  CZelData model;
  Testing::ElementAt(model, ElementType::Quad4, SquareFrom(0));
  Testing::ElementAt(model, ElementType::Quad4, SquareFrom(1));
  Testing::ElementAt(model, ElementType::Quad4, SquareFrom(0));
  CZelData const before(model);
  EXPECT_FALSE(AlignEdges(model, Numbers({}), 0));
  EXPECT_FALSE(AlignEdges(model, Numbers({1, 3}), 0));
  EXPECT_TRUE(IsUnchanged(model, before));
  EXPECT_TRUE(AlignEdges(model, Numbers({1, 2, 3}), 0));  // the last one is not turned
  EXPECT_EQ(Testing::Differences(model, before),
            std::vector<std::string>{"Elem 2: topology, longPosition"});
}

TEST(CAlignElem2DEdges, SkipsWhatIsNotTwoDimensionalAndNumbersThatNothingBears) {
  CZelData model;
  Testing::BeamAt(model, {1, 0, 0}, {0, 0, 0});
  Testing::Brick(model, 1, -1, 1);
  CZelData const before(model);
  for (int const axis : {kOwnX, 0})
    EXPECT_FALSE(AlignEdges(model, Numbers({1, 2, 3, 100000000}), axis));
  EXPECT_TRUE(IsUnchanged(model, before));
}

TEST(CAlignElem2DEdges, TakesEntitiesWithoutTopology) {
  CZelData model;
  model.SetElem(1, Testing::Element(ElementType::Quad4, {}));
  model.SetLoadPanel(2, Testing::Panel({}));
  CZelData const before(model);
  for (int const axis : {kOwnX, 0}) EXPECT_FALSE(AlignEdges(model, Numbers({1, 2}), axis));
  EXPECT_TRUE(IsUnchanged(model, before));
}

TEST(CAlignElem2DEdges, LeavesAnElementThatCannotBeSpun) {
  // Five nodes: two edges are looked at, the second of which lies along +x, but a spin has no place
  // for the last side nodes.
  CZelData model;
  Testing::ElementAt(model, ElementType::Quad4,
                     {{0, 1, 0}, {0, 0, 0}, {1, 0, 0}, {1, 1, 0}, {0, 0.5, 0}});
  EXPECT_FALSE(AlignEdges(model, Numbers({1}), 0));
  EXPECT_TRUE(References(model, 1, {1, 2, 3, 4, 5}));
}

TEST(CAlignElem2DEdges, RefusesSetsOfOtherKinds) {
  CZelData model;
  Testing::ElementAt(model, ElementType::Quad4, SquareFrom(1));
  CZelData const before(model);
  for (auto const kind : {SelNone, SelNode, SelMember, SelCase, SelOther})
    EXPECT_FALSE(AlignEdges(model, Numbers({1}, kind), 0));
  EXPECT_TRUE(IsUnchanged(model, before));
}

TEST(CAlignElem2DEdges, RefusesAnAxisBelowMinusOneOrNotInTheModel) {
  CZelData model;
  Testing::ElementAt(model, ElementType::Quad4, SquareFrom(1));
  AxisAlong(model, {1, 0, 0}, {0, 1, 0});
  CZelData const before(model);
  for (int const axis : {-2, -100, 2, 100}) EXPECT_FALSE(AlignEdges(model, Numbers({1}), axis));
  EXPECT_TRUE(IsUnchanged(model, before));
  EXPECT_TRUE(AlignEdges(model, Numbers({1}), 1));
}

// The rebuild hold.

TEST(CAlignElem2DEdges, RunsInAScopeOfTheRebuildHoldAndClearsItsFlag) {
  CZelData model;
  Testing::ElementAt(model, ElementType::Quad4, SquareFrom(1));
  model.rebuildHold = true;  // no scope is open, so the scope of the run is the outermost
  AlignEdges(model, Numbers({1}), 0);
  EXPECT_FALSE(model.rebuildHold);
  EXPECT_EQ(model.rebuildHoldDepth, 0);
}

TEST(CAlignElem2DEdges, LeavesAnOuterScopeOfTheRebuildHoldOpen) {
  CZelData model;
  Testing::ElementAt(model, ElementType::Quad4, SquareFrom(1));
  {
    RebuildHold const outer(model);
    EXPECT_TRUE(AlignEdges(model, Numbers({1}), 0));
    EXPECT_TRUE(model.rebuildHold);
    EXPECT_EQ(model.rebuildHoldDepth, 1);
  }
  EXPECT_FALSE(model.rebuildHold);
}

TEST(CAlignElem2DEdges, FlagsARebuildAtItsStart) {
  CZelData model;
  Testing::ElementAt(model, ElementType::Quad4, SquareFrom(0));
  Testing::NodeAt(model, 9, 9, 9);  // node 5
  RebuildHold const outer(model);
  auto const uses = [&] { return model.Node(5).NumEntAttached(SelElement); };
  EXPECT_EQ(uses(), 0);
  model.SetElemTopo(1, 3, 5);
  EXPECT_EQ(uses(), 0);  // held
  AlignEdges(model, Numbers({}), 0);
  EXPECT_EQ(uses(), 1);
}

TEST(CAlignElem2DEdges, LeavesTheRebuildHoldAloneWhenItRefuses) {
  CZelData model;
  model.rebuildHold = true;
  EXPECT_FALSE(AlignEdges(model, Numbers({1}), -2));
  EXPECT_FALSE(AlignEdges(model, Numbers({1}, SelNode), 0));
  EXPECT_TRUE(model.rebuildHold);
}

}  // namespace
}  // namespace Tarvex::AlignElem2dEdgesTest
