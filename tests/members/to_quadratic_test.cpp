#include <functional>

#include "tests/members/plate_support.h"

namespace Tarvex::ToQuadraticTest {
namespace {

using namespace Testing;

void ToQuadratic(CZelData& model, std::vector<int> const& numbers) {
  Convert<CMod2DToQuadratic>(model, numbers);
}

TEST(CMod2DToQuadratic, PutsNodesInTheMiddleOfTheSidesInTheirOrder) {
  CZelData model;
  int const n = QuadAt(model, {0, 0, 0}, {4, 0, 0}, {4, 2, 6}, {0, 2, 0});
  ToQuadratic(model, {n});
  EXPECT_EQ(model.Elem(n).Type(), ElementType::Quad8);
  EXPECT_TRUE(References(model, n, {1, 2, 3, 4, 5, 6, 7, 8}));
  EXPECT_EQ(model.NodeCoor(5), (Vec3<double>{2, 0, 0}));
  EXPECT_EQ(model.NodeCoor(6), (Vec3<double>{4, 1, 3}));
  EXPECT_EQ(model.NodeCoor(7), (Vec3<double>{2, 2, 3}));
  EXPECT_EQ(model.NodeCoor(8), (Vec3<double>{0, 1, 0}));
  EXPECT_TRUE(AttachmentsFollowTopology(model));
}

TEST(CMod2DToQuadratic, MakesATriangleSixNoded) {
  CZelData model;
  int const n = ElementAt(model, ElementType::Tri3, kTriangle);
  ToQuadratic(model, {n});
  EXPECT_EQ(model.Elem(n).Type(), ElementType::Tri6);
  EXPECT_TRUE(References(model, n, {1, 2, 3, 4, 5, 6}));
  EXPECT_EQ(model.NodeCoor(4), (Vec3<double>{0.5, 0, 0}));
  EXPECT_EQ(model.NodeCoor(5), (Vec3<double>{0.5, 0.5, 0}));
  EXPECT_EQ(model.NodeCoor(6), (Vec3<double>{0, 0.5, 0}));
}

TEST(CMod2DToQuadratic, SharesTheNodeOfASharedSideWhicheverWayTheNeighbourRuns) {
  CZelData model;
  Grid(model, 2, 1);  // 1 2 3 below, 4 5 6 above; the shared side is 2 5
  ToQuadratic(model, {1, 2});
  EXPECT_TRUE(References(model, 1, {1, 2, 5, 4, 7, 8, 9, 10}));
  EXPECT_TRUE(References(model, 2, {2, 3, 6, 5, 11, 12, 13, 8}));
  CZelData turned;
  Grid(turned, 2, 1);
  turned.SetElem(2, Element(ElementType::Quad4, {2, 5, 6, 3}));  // runs the side as the first does
  ToQuadratic(turned, {1, 2});
  EXPECT_TRUE(References(turned, 2, {2, 5, 6, 3, 8, 11, 12, 13}));
}

TEST(CMod2DToQuadratic, GoesThroughTheElementsInAscendingNumberHoweverTheSetWasFilled) {
  CZelData one;
  Grid(one, 3, 3);
  auto other = one;
  ToQuadratic(one, {1, 2, 3, 4, 5, 6, 7, 8, 9});
  ToQuadratic(other, {9, 4, 7, 1, 2, 8, 3, 6, 5});
  EXPECT_TRUE(IsUnchanged(other, one));
}

TEST(CMod2DToQuadratic, LeavesAQuadraticElementAlone) {
  CZelData model;
  Grid(model, 2, 2);
  ToQuadratic(model, {1, 2, 3, 4});
  CZelData const once(model);
  ToQuadratic(model, {1, 2, 3, 4});
  EXPECT_TRUE(IsUnchanged(model, once));
}

TEST(CMod2DToQuadratic, DoesNotShareNodesWithAnElementThatWasQuadraticBeforeButMergesInThem) {
  // The old mid-side node 8 of the shared side is no corner: the new one folds into it.
  CZelData model;
  Grid(model, 2, 1);
  ToQuadratic(model, {1});
  EXPECT_EQ(model.HighestNode(), 10);
  ToQuadratic(model, {2});
  EXPECT_TRUE(References(model, 2, {2, 3, 6, 5, 11, 12, 13, 8}));
  EXPECT_EQ(model.HighestNode(), 13);
}

TEST(CMod2DToQuadratic, PassesOtherElementsPanelsAndMissingNumbersOver) {
  CZelData model;
  QuadraticAt(model, kSquare);
  QuadraticAt(model, kTriangle);
  BeamAt(model, {0, 0, 0}, {1, 0, 0});
  Brick(model, 1, 1, 1);
  PanelAt(model, kSquare);
  CZelData const before(model);
  ToQuadratic(model, {1, 2, 3, 4, 5, 99});
  EXPECT_TRUE(IsUnchanged(model, before));
}

TEST(CMod2DToQuadratic, ChangesNothingForAnEmptySet) {
  CZelData model;
  Grid(model, 2, 2);
  AddRigid(model, 1, L"2 5");
  CZelData const before(model);
  ToQuadratic(model, {});
  EXPECT_TRUE(IsUnchanged(model, before));
}

TEST(CMod2DToQuadratic, PassesAnElementWithAMissingCornerOverAlsoWhereANewNodeTakesItsNumber) {
  CZelData model;
  Grid(model, 1, 1);
  model.SetElem(2, Element(ElementType::Quad4, {1, 2, 4, 5}));  // 5 is the next number
  model.SetElem(3, Element(ElementType::Tri3, {1, 2, 0}));
  CZelData const before(model);
  ToQuadratic(model, {1, 2, 3});
  EXPECT_TRUE(model.Elem(2) == before.Elem(2));
  EXPECT_TRUE(model.Elem(3) == before.Elem(3));
  EXPECT_TRUE(References(model, 1, {1, 2, 4, 3, 5, 6, 7, 8}));
}

// Axis and restraint.

TEST(CMod2DToQuadratic, GivesTheNodeTheCommonAxisAndTheRestraintsThatBothCornersHave) {
  CZelData model;
  Grid(model, 1, 1);
  for (int const n : {1, 2}) model.SetNodeAxis(n, 7);
  model.SetNodeRestraint(1, kHeldXY);
  model.SetNodeRestraint(2, kHeldYZ);
  ToQuadratic(model, {1});
  EXPECT_EQ(model.Node(5).Axis(), 7);
  EXPECT_EQ(model.Node(5).Restraint(), kHeldY);  // XY and YZ
  EXPECT_EQ(model.Node(7).Axis(), 0);
  EXPECT_TRUE(model.Node(7).Restraint().IsNone());
}

TEST(CMod2DToQuadratic, GivesTheNodeBetweenCornersOfTwoAxesNeitherAxisNorRestraint) {
  CZelData model;
  Grid(model, 1, 1);
  model.SetNodeAxis(1, 7);
  model.SetNodeAxis(2, 8);
  for (int const n : {1, 2}) model.SetNodeRestraint(n, kHeldXY);
  AddRigid(model, 1, L"2");
  ToQuadratic(model, {1});
  EXPECT_EQ(model.Node(5).Axis(), 0);
  EXPECT_TRUE(model.Node(5).Restraint().IsNone());
  EXPECT_EQ(FollowersOf(model, 1), L"2");
}

// Rigid constraints. Sides of the element 1 2 4 3: 1-2 gets 5, 2-4 gets 6, 4-3 gets 7, 3-1 gets 8.

struct RigidRow {
  std::string name;
  int primary;
  wchar_t const* before;
  wchar_t const* after;
};

TEST(CMod2DToQuadratic, EntersTheNodeInRigidConstraintsThatHoldBothCorners) {
  std::vector<RigidRow> const rows{
      {"both constrained", 99, L"1 2", L"1 2 5"},
      {"first primary", 1, L"2", L"2 5"},
      {"second primary", 2, L"1", L"1 5"},
      {"one only", 99, L"1", L"1"},
      {"across", 99, L"1 4", L"1 4"},
      {"three corners", 1, L"2 4", L"2 4 to 6"},
      {"range", 99, L"1 to 4", L"1 to 8"},
      {"all", 99, L"all", L"1 to 8"},
      {"all but one", 99, L"all not 3", L"1 2 4 to 6"},
  };
  for (auto const& row : rows) {
    SCOPED_TRACE(row.name);
    CZelData model;
    Grid(model, 1, 1);
    AddRigid(model, row.primary, row.before);
    ToQuadratic(model, {1});
    EXPECT_EQ(FollowersOf(model, 1), row.after);
  }
}

TEST(CMod2DToQuadratic, EntersASharedNodeOnceInEachConstraint) {
  CZelData model;
  Grid(model, 2, 1);
  AddRigid(model, 2, L"5");
  AddRigid(model, 3, L"6");
  AddRigid(model, 5, L"2 6");
  ToQuadratic(model, {1, 2});
  EXPECT_EQ(FollowersOf(model, 1), L"5 8");
  EXPECT_EQ(FollowersOf(model, 2), L"6 12");
  EXPECT_EQ(FollowersOf(model, 3), L"2 6 8 13");
}

TEST(CMod2DToQuadratic, LeavesTheWordsOfAConstraintThatGainsNothing) {
  CZelData model;
  Grid(model, 1, 1);
  AddRigid(model, 99, L"1 to 1 4");
  auto const before = FollowersOf(model, 1);
  ToQuadratic(model, {1});
  EXPECT_EQ(FollowersOf(model, 1), before);
}

// Releases.

TEST(CMod2DToQuadratic, ReleasesAMidSideNodeWhereBothCornersAreAndGivesItNoStiffness) {
  CZelData model;
  Grid(model, 1, 1);
  CElemConnect soft(kHeldXY);
  soft.SetStiffness(Direction::Y, 40);
  model.SetElemConnect(1, 0, soft);
  model.SetElemConnect(1, 1, CElemConnect(kHeldYZ));
  model.SetElemConnect(1, 3, soft);
  ToQuadratic(model, {1});
  auto const& element = model.Elem(1);
  EXPECT_EQ(element.Connect(4), CElemConnect(kHeldY));   // 0 and 1
  EXPECT_EQ(element.Connect(5), CElemConnect());         // 1 and 2
  EXPECT_EQ(element.Connect(6), CElemConnect());         // 2 and 3
  EXPECT_EQ(element.Connect(7), CElemConnect(kHeldXY));  // 3 and 0
  EXPECT_EQ(element.Connect(0), soft);
}

TEST(CMod2DToQuadratic, ReleasesTheMidSideNodesOfATriangle) {
  CZelData model;
  int const n = ElementAt(model, ElementType::Tri3, kTriangle);
  for (int const place : {0, 2}) model.SetElemConnect(n, place, CElemConnect(kHeldX));
  ToQuadratic(model, {n});
  EXPECT_EQ(model.Elem(n).Connect(3), CElemConnect());
  EXPECT_EQ(model.Elem(n).Connect(4), CElemConnect());
  EXPECT_EQ(model.Elem(n).Connect(5), CElemConnect(kHeldX));
}

TEST(CMod2DToQuadratic, KeepsEverythingElseOfTheElement) {
  CZelData model;
  Grid(model, 1, 1);
  auto element = model.Elem(1);
  element.SetGroup(3);
  element.SetProperty(4);
  element.SetOrientationAngle(30);
  element.SetOffset(Data::COffset(0, 0, 0, 0.2));
  element.SetIsDummy(true);
  element.SetName(L"slab");
  element.SetSid(L"s1");
  element.SetParentMember({2, 1});
  model.SetElem(1, element);
  ToQuadratic(model, {1});
  element.SetType(ElementType::Quad8);
  element.SetTopo(std::vector<int>{1, 2, 4, 3, 5, 6, 7, 8});
  EXPECT_TRUE(model.Elem(1) == element);
}

// New nodes fold into nodes that stand there.

TEST(CMod2DToQuadratic, FoldsANewNodeIntoANodeThatStandsThereAndUnitesTheRestraints) {
  CZelData model;
  Grid(model, 1, 1);
  for (int const n : {1, 2}) model.SetNodeRestraint(n, kHeldX);
  int const post = NodeAt(model, 0.5, 0, 0);
  model.SetNodeRestraint(post, kHeldY);
  model.SetElem(2, Element(ElementType::Beam, {post, 4}));
  ToQuadratic(model, {1});
  EXPECT_TRUE(References(model, 1, {1, 2, 4, 3, post, 7, 8, 9}));
  EXPECT_EQ(model.Node(post).Restraint(), kHeldXY);
  EXPECT_FALSE(model.NodeExist(6));
  EXPECT_TRUE(NoDanglingReference(model));
  EXPECT_TRUE(AttachmentsFollowTopology(model));
}

TEST(CMod2DToQuadratic, FoldsWithinAHundredThousandthWhateverItsTolerance) {
  struct Row {
    double distance;
    bool folds;
  };
  for (auto const& row : {Row{0.9e-5, true}, Row{1.1e-5, false}, Row{0.005, false}}) {
    SCOPED_TRACE(row.distance);
    CZelData model;
    Grid(model, 1, 1);
    NodeAt(model, 0.5, 0, row.distance);
    CMod2DToQuadratic tool(model);
    tool.SetCoincidenceTol(1);
    tool.SetSet(SetOf({1}));
    EXPECT_TRUE(tool.Do());
    EXPECT_EQ(model.Elem(1).Topo(4), row.folds ? 5 : 6);
    EXPECT_EQ(model.NodeCoor(5).z, row.distance);  // the node that was there stays where it is
  }
}

TEST(CMod2DToQuadratic, TakesTheNearestOfTheNodesThatStandThere) {
  CZelData model;
  Grid(model, 1, 1);
  NodeAt(model, 0.5, 0, 8e-6);
  int const nearest = NodeAt(model, 0.5, 0, 2e-6);
  ToQuadratic(model, {1});
  EXPECT_EQ(model.Elem(1).Topo(4), nearest);
}

TEST(CMod2DToQuadratic, DoesNotFoldIntoACornerOfTheElementsOfTheRun) {
  // Corner 5 of the triangle stands in the middle of the side 1-2 of the square.
  CZelData model;
  Grid(model, 1, 1);
  int const hanging = NodeAt(model, 0.5, 0, 0);
  NodeAt(model, 0, -1, 0);
  NodeAt(model, 1, -1, 0);
  model.SetElem(2, Element(ElementType::Tri3, {hanging, 6, 7}));
  auto alone = model;
  ToQuadratic(model, {1, 2});
  EXPECT_EQ(model.Elem(1).Topo(4), 8);
  EXPECT_EQ(model.NodeCoor(8), model.NodeCoor(hanging));
  // It is no corner of the run when the triangle is not in the set.
  ToQuadratic(alone, {1});
  EXPECT_EQ(alone.Elem(1).Topo(4), hanging);
}

TEST(CMod2DToQuadratic, DoesNotFoldNewNodesIntoOneAnother) {
  // Two squares on nodes of their own, one upon the other.
  CZelData model;
  for (int i = 0; i < 2; ++i) ElementAt(model, ElementType::Quad4, kSquare);
  NodeAt(model, 9, 9, 9);  // somewhere else
  ToQuadratic(model, {1, 2});
  EXPECT_EQ(model.HighestNode(), 9 + 8);
  EXPECT_TRUE(References(model, 2, {5, 6, 7, 8, 14, 15, 16, 17}));
}

TEST(CMod2DToQuadratic, TakesAFoldedNodeIntoTheRigidConstraintUnderItsOldNumber) {
  CZelData model;
  Grid(model, 1, 1);
  int const post = NodeAt(model, 0.5, 0, 0);
  AddRigid(model, 1, L"2");
  ToQuadratic(model, {1});
  EXPECT_EQ(FollowersOf(model, 1), L"2 5");
  EXPECT_EQ(model.Elem(1).Topo(4), post);
}

// There and back.

TEST(CMod2DToQuadratic, ThenLinearRestoresTheModel) {
  CZelData model;
  Grid(model, 3, 2);
  model.SetElem(7, Element(ElementType::Tri3, {1, 2, 5}));
  model.SetElemConnect(2, 1, CElemConnect(kHeldX));
  CZelData const before(model);
  ToQuadratic(model, {1, 2, 3, 4, 5, 6, 7});
  EXPECT_EQ(model.HighestNode(), 12 + 17 + 1);  // 3 * 3 + 4 * 2 sides of the grid, the side 2-5
  Convert<CMod2DToLinear>(model, {1, 2, 3, 4, 5, 6, 7});
  EXPECT_TRUE(IsUnchanged(model, before));
}

TEST(CMod2DToQuadratic, ThenLinearLeavesTheNodesThatRigidConstraintsHaveGained) {
  CZelData model;
  Grid(model, 1, 1);
  AddRigid(model, 1, L"2");
  ToQuadratic(model, {1});
  Convert<CMod2DToLinear>(model, {1});
  EXPECT_EQ(NodeNumbers(model), (std::vector{1, 2, 3, 4, 5}));
  EXPECT_EQ(FollowersOf(model, 1), L"2 5");
}

TEST(CMod2DToQuadratic, ThenLinearRemovesANodeInTheMiddleOfASideThatNothingElseUses) {
  CZelData model;
  Grid(model, 1, 1);
  int const loose = NodeAt(model, 0.5, 0, 0);
  ToQuadratic(model, {1});
  EXPECT_EQ(model.Elem(1).Topo(4), loose);
  Convert<CMod2DToLinear>(model, {1});
  EXPECT_EQ(NodeNumbers(model), (std::vector{1, 2, 3, 4}));
}

TEST(CMod2DToQuadratic, KeepsTheAreaOfAWarpedElementByItsFourCorners) {
  // Mid-side nodes in the middle of straight sides make the 8-noded surface the bilinear one.
  CZelData model;
  int const n = QuadAt(model, {0, 0, 0}, {1, 0, 0}, {1, 1, 1}, {0, 1, 0});  // z = x y
  // Area: the integral of sqrt(1 + x^2 + y^2) over the unit square, 1.280789 by the midpoint rule
  // with 2000 steps a direction.
  EXPECT_NEAR(SizeOf(model, n), 1.28079, 2e-5);
  double const before = SizeOf(model, n);
  ToQuadratic(model, {n});
  EXPECT_NEAR(SizeOf(model, n), before, 1e-12);
}

}  // namespace
}  // namespace Tarvex::ToQuadraticTest
