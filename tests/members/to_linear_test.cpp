#include "store/record/joint.h"
#include "tests/members/plate_support.h"

namespace Tarvex::ToLinearTest {
namespace {

using namespace Testing;

void ToLinear(CZelData& model, std::vector<int> const& numbers) {
  Convert<CMod2DToLinear>(model, numbers);
}

/// Two 8-noded squares side by side on shared nodes: corners 1 to 6, mid-side nodes 7 to 13; 9 is
/// that of the side they share.
///
///     4--11--5--13--6
///     |      |      |
///    10      9     12      1 at the origin, sides of 1
///     |      |      |
///     1---7--2---8--3
CZelData TwoSquares() {
  CZelData model;
  for (double const y : {0.0, 1.0})
    for (double const x : {0.0, 1.0, 2.0}) NodeAt(model, x, y, 0);
  for (auto const& p : Points{{0.5, 0, 0},
                              {1.5, 0, 0},
                              {1, 0.5, 0},
                              {0, 0.5, 0},
                              {0.5, 1, 0},
                              {2, 0.5, 0},
                              {1.5, 1, 0}})
    NodeAt(model, p.x, p.y, p.z);
  model.SetElem(1, Element(ElementType::Quad8, {1, 2, 5, 4, 7, 9, 11, 10}));
  model.SetElem(2, Element(ElementType::Quad8, {2, 3, 6, 5, 8, 12, 13, 9}));
  return model;
}

TEST(CMod2DToLinear, MakesAnEightNodedQuadrilateralFourNodedAndRemovesItsMidSideNodes) {
  CZelData model;
  int const n = QuadraticAt(model, kSquare);
  ToLinear(model, {n});
  EXPECT_EQ(model.Elem(n).Type(), ElementType::Quad4);
  EXPECT_TRUE(References(model, n, {1, 2, 3, 4}));
  EXPECT_EQ(NodeNumbers(model), (std::vector{1, 2, 3, 4}));
}

TEST(CMod2DToLinear, MakesASixNodedTriangleThreeNodedAndRemovesItsMidSideNodes) {
  CZelData model;
  int const n = QuadraticAt(model, kTriangle);
  ToLinear(model, {n});
  EXPECT_EQ(model.Elem(n).Type(), ElementType::Tri3);
  EXPECT_TRUE(References(model, n, {1, 2, 3}));
  EXPECT_EQ(NodeNumbers(model), (std::vector{1, 2, 3}));
}

TEST(CMod2DToLinear, KeepsTheMidSideNodeOfANeighbourThatStaysQuadratic) {
  auto model = TwoSquares();
  ToLinear(model, {1});
  EXPECT_EQ(NodeNumbers(model), (std::vector{1, 2, 3, 4, 5, 6, 8, 9, 12, 13}));
  EXPECT_TRUE(References(model, 2, {2, 3, 6, 5, 8, 12, 13, 9}));
  EXPECT_TRUE(AttachmentsFollowTopology(model));
}

TEST(CMod2DToLinear, RemovesASharedMidSideNodeWithTheSecondOfItsElements) {
  auto model = TwoSquares();
  ToLinear(model, {1, 2});
  EXPECT_EQ(NodeNumbers(model), (std::vector{1, 2, 3, 4, 5, 6}));
}

TEST(CMod2DToLinear, KeepsMidSideNodesThatAnythingElseUses) {
  auto model = TwoSquares();
  model.SetElem(3, Element(ElementType::Beam, {7, 1}));  // topology
  auto beam = Element(ElementType::Beam, {1, 2});
  beam.SetOrientationNode(11);
  model.SetElem(4, beam);
  AddRigid(model, 8, L"1 9");
  model.SetJoint(1, Data::CJoint(CString(L""), kHeldX, 12, 1, Data::CEntList()));
  ToLinear(model, {1, 2});
  EXPECT_EQ(NodeNumbers(model), (std::vector{1, 2, 3, 4, 5, 6, 7, 8, 9, 11, 12}));
}

TEST(CMod2DToLinear, DropsTheReleasesOfMidSideNodesAndKeepsThoseOfCorners) {
  CZelData model;
  int const n = QuadraticAt(model, kSquare);
  model.SetElemConnect(n, 1, CElemConnect(kHeldX));
  model.SetElemConnect(n, 5, CElemConnect(kHeldY));
  ToLinear(model, {n});
  EXPECT_EQ(model.Elem(n).Connect(1).Release(), kHeldX);
  EXPECT_TRUE(model.Elem(n).Connect(5).IsNone());
  model.SetElemType(n, ElementType::Quad8);
  EXPECT_TRUE(model.Elem(n).Connect(5).IsNone());
}

TEST(CMod2DToLinear, PassesOtherElementsPanelsAndMissingNumbersOver) {
  CZelData model;
  Grid(model, 1, 1);
  ElementAt(model, ElementType::Tri3, kTriangle);
  BeamAt(model, {0, 0, 0}, {1, 0, 0});
  Brick(model, 1, 1, 1);
  PanelAt(model, kSquare);
  CZelData const before(model);
  ToLinear(model, {1, 2, 3, 4, 5, 6, 99});
  EXPECT_TRUE(IsUnchanged(model, before));
}

TEST(CMod2DToLinear, ChangesNothingForAnEmptySet) {
  auto model = TwoSquares();
  CZelData const before(model);
  ToLinear(model, {});
  EXPECT_TRUE(IsUnchanged(model, before));
}

TEST(CMod2DToLinear, DoesNotReadItsTolerance) {
  auto model = TwoSquares();
  auto expected = model;
  CMod2DToLinear tool(model);
  tool.SetCoincidenceTol(10);
  tool.SetSet(SetOf({1, 2}));
  EXPECT_TRUE(tool.Do());
  ToLinear(expected, {1, 2});
  EXPECT_TRUE(IsUnchanged(model, expected));
}

TEST(CMod2DToLinear, TakesNumbersWhateverTheKindOfTheSet) {
  auto model = TwoSquares();
  Convert<CMod2DToLinear>(model, SetOf({1}, SelNone));
  EXPECT_EQ(model.Elem(1).Type(), ElementType::Quad4);
}

TEST(CMod2DToLinear, PutsStraightSidesInThePlaceOfCurvedOnes) {
  CZelData model;
  auto points = WithMiddles(kSquare);
  points[4].y = -0.3;  // the first side bulges outward
  int const n = ElementAt(model, ElementType::Quad8, points);
  // A parabola of chord 1 and rise 0.3 encloses 2/3 * 1 * 0.3 = 0.2 beside the square of 1.
  EXPECT_NEAR(SizeOf(model, n), 1.2, 1e-12);
  ToLinear(model, {n});
  EXPECT_NEAR(SizeOf(model, n), 1.0, 1e-12);
}

}  // namespace
}  // namespace Tarvex::ToLinearTest
