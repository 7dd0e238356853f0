#include <stdexcept>

#include "store/text/cstring.h"
#include "tarvex/refinement.h"
#include "tests/members/plate_support.h"

namespace Tarvex::RefinePlatesTest {
namespace {

using namespace Testing;
using ZelUtil::RefineQuadAtCorner;
using ZelUtil::RefineTriAtCorner;

CString const kNone(L"");

/// A square of side 4 about the origin, its corners 1 to 4, so that places are twice the natural
/// co-ordinates.
Points const kBigSquare{{-2, -2, 0}, {2, -2, 0}, {2, 2, 0}, {-2, 2, 0}};

CZelData OneQuad() {
  CZelData model;
  ElementAt(model, ElementType::Quad4, kBigSquare);
  return model;
}

void ExpectNodes(CZelData const& model, int first, Points const& places) {
  EXPECT_EQ(model.HighestNode(), first + static_cast<int>(places.size()) - 1);
  for (std::size_t i = 0; i < places.size(); ++i)
    EXPECT_TRUE(IsNear(model.NodeCoor(first + static_cast<int>(i)), places[i]))
        << first << "+" << i;
}

TEST(RefineQuadAtCorner, PutsTheInnerPointByTheRatioAtEachCorner) {
  struct Row {
    int corner;
    double x, y;
  };
  // The ratio 0.5 in natural co-ordinates is 1 here.
  for (auto const& row : {Row{0, -1, -1}, Row{1, 1, -1}, Row{2, 1, 1}, Row{3, -1, 1}}) {
    auto model = OneQuad();
    EXPECT_TRUE(RefineQuadAtCorner(model, 1, row.corner, 0.5, 0.001, kNone));
    EXPECT_TRUE(IsNear(model.NodeCoor(5), {row.x, row.y, 0}));
  }
}

TEST(RefineQuadAtCorner, WithRatioZeroTakesTheCentre) {
  auto model = OneQuad();
  EXPECT_TRUE(RefineQuadAtCorner(model, 1, 2, 0, 0.001, kNone));
  EXPECT_TRUE(IsNear(model.NodeCoor(5), {0, 0, 0}));
}

TEST(RefineQuadAtCorner, CutsAFourNodedQuadrilateralIntoThree) {
  auto model = OneQuad();
  EXPECT_TRUE(RefineQuadAtCorner(model, 1, 0, 0.5, 0.001, kNone));
  ExpectNodes(model, 5, {{-1, -1, 0}, {0, -2, 0}, {-2, 0, 0}});  // m, s1, s3
  EXPECT_EQ(ElementNumbers(model), (std::vector{1, 2, 3, 4}));
  EXPECT_TRUE(References(model, 1, {1, 2, 3, 4}));
  EXPECT_TRUE(References(model, 2, {1, 6, 5, 7}));
  EXPECT_TRUE(References(model, 3, {6, 2, 3, 5}));
  EXPECT_TRUE(References(model, 4, {7, 5, 3, 4}));
  for (int const n : {2, 3, 4}) EXPECT_EQ(model.Elem(n).Type(), ElementType::Quad4);
}

TEST(RefineQuadAtCorner, CountsCornersRoundTheRing) {
  auto model = OneQuad();
  EXPECT_TRUE(RefineQuadAtCorner(model, 1, 2, 0.5, 0.001, kNone));
  ExpectNodes(model, 5, {{1, 1, 0}, {0, 2, 0}, {2, 0, 0}});  // m, s1 between 3 and 4, s3
  EXPECT_TRUE(References(model, 2, {3, 6, 5, 7}));
  EXPECT_TRUE(References(model, 3, {6, 4, 1, 5}));
  EXPECT_TRUE(References(model, 4, {7, 5, 1, 2}));
}

TEST(RefineQuadAtCorner, CutsAnEightNodedQuadrilateralIntoThreeOnItsMidSideNodes) {
  CZelData model;
  QuadraticAt(model, kBigSquare);  // mid-side nodes 5 (0,-2), 6 (2,0), 7 (0,2), 8 (-2,0)
  EXPECT_TRUE(RefineQuadAtCorner(model, 1, 0, 0.5, 0.001, kNone));
  ExpectNodes(model, 9,
              {{-1, -1, 0},      // 9 m
               {-1, -2, 0},      // 10 a
               {-2, -1, 0},      // 11 b
               {1, -2, 0},       // 12 d
               {-2, 1, 0},       // 13 e
               {-0.5, -1.5, 0},  // 14 f, halfway from (0,-2) to m
               {-1.5, -0.5, 0},  // 15 g, halfway from (-2,0) to m
               {0.5, 0.5, 0}});  // 16 h, halfway from m to (2,2)
  EXPECT_TRUE(References(model, 2, {1, 5, 9, 8, 10, 14, 15, 11}));
  EXPECT_TRUE(References(model, 3, {5, 2, 3, 9, 12, 6, 16, 14}));
  EXPECT_TRUE(References(model, 4, {8, 9, 3, 4, 15, 16, 7, 13}));
  for (int const n : {2, 3, 4}) EXPECT_EQ(model.Elem(n).Type(), ElementType::Quad8);
}

TEST(RefineQuadAtCorner, CountsMidSideNodesRoundTheRing) {
  CZelData model;
  QuadraticAt(model, kBigSquare);
  EXPECT_TRUE(RefineQuadAtCorner(model, 1, 3, 0.5, 0.001, kNone));
  // Corner 4 (-2,2): next 1, 2, 3; s1 = 8, s3 = 7, k1 = 5, k2 = 6.
  EXPECT_TRUE(References(model, 2, {4, 8, 9, 7, 10, 14, 15, 11}));
  EXPECT_TRUE(References(model, 3, {8, 1, 2, 9, 12, 5, 16, 14}));
  EXPECT_TRUE(References(model, 4, {7, 9, 2, 3, 15, 16, 6, 13}));
  EXPECT_TRUE(IsNear(model.NodeCoor(10), {-2, 1, 0}));
  EXPECT_TRUE(IsNear(model.NodeCoor(11), {-1, 2, 0}));
}

TEST(RefineQuadAtCorner, MapsByTheShapeOfAllNodes) {
  // The side 1-2 bulges to (0,-3): on it y = -2 - (1 - r^2). At the quarter, r = -1/2: -2.75.
  CZelData model;
  auto points = WithMiddles(kBigSquare);
  points[4] = {0, -3, 0};
  ElementAt(model, ElementType::Quad8, points);
  EXPECT_TRUE(RefineQuadAtCorner(model, 1, 0, 0.5, 0.001, kNone));
  EXPECT_TRUE(IsNear(model.NodeCoor(10), {-1, -2.75, 0}));
}

TEST(RefineQuadAtCorner, TakesNodesOfTheOutlineWithinTheToleranceAndInnerOnesAtTheVeryPlaceOnly) {
  auto model = OneQuad();
  NodeAt(model, 0, -2, 0.01);    // 5 near s1
  NodeAt(model, -1, -1, 0.001);  // 6 near the inner point
  EXPECT_TRUE(RefineQuadAtCorner(model, 1, 0, 0.5, 0.02, kNone));
  EXPECT_TRUE(References(model, 2, {1, 5, 7, 8}));
  auto exact = OneQuad();
  NodeAt(exact, -1, -1, 0);
  EXPECT_TRUE(RefineQuadAtCorner(exact, 1, 0, 0.5, 0.02, kNone));
  EXPECT_TRUE(References(exact, 2, {1, 6, 5, 7}));
}

TEST(RefineQuadAtCorner, TakesNodesWithinTheToleranceOnBothSidesOfTheCorner) {
  auto model = OneQuad();
  NodeAt(model, 0, -2, 0.01);  // 5 near s1
  NodeAt(model, -2, 0, 0.01);  // 6 near s3
  EXPECT_TRUE(RefineQuadAtCorner(model, 1, 0, 0.5, 0.02, kNone));
  EXPECT_TRUE(References(model, 2, {1, 5, 7, 6}));
  EXPECT_EQ(model.HighestNode(), 7);
}

TEST(RefineQuadAtCorner, MapsTheInnerPointByTheShapeAndNotAlongTheDiagonal) {
  // Natural (-0.5, -0.5): 1.5 1.5 / 4 = 0.5625, 0.1875, 0.0625, 0.1875 of the corners.
  // x = 0.1875 4 + 0.0625 8 = 1.25, y alike. Halfway from the centre (3, 3) it would be 1.5.
  CZelData model;
  ElementAt(model, ElementType::Quad4, {{0, 0, 0}, {4, 0, 0}, {8, 8, 0}, {0, 4, 0}});
  EXPECT_TRUE(RefineQuadAtCorner(model, 1, 0, 0.5, 0.001, kNone));
  EXPECT_TRUE(IsNear(model.NodeCoor(5), {1.25, 1.25, 0}));
}

TEST(RefineQuadAtCorner, TakesNoInnerNodesOfQuadraticPiecesWithinTheTolerance) {
  CZelData model;
  QuadraticAt(model, kBigSquare);
  for (auto const& p : Points{{-0.5, -1.5, 0}, {-1.5, -0.5, 0}, {0.5, 0.5, 0}})
    NodeAt(model, p.x, p.y, 0.001);  // 9 to 11, near f, g, h
  for (auto const& p : Points{{-1, -2, 0}, {-2, -1, 0}, {1, -2, 0}, {-2, 1, 0}})
    NodeAt(model, p.x, p.y, 0.001);  // 12 to 15, near a, b, d, e
  EXPECT_TRUE(RefineQuadAtCorner(model, 1, 0, 0.5, 0.02, kNone));
  EXPECT_TRUE(References(model, 2, {1, 5, 16, 8, 12, 17, 18, 13}));
  EXPECT_TRUE(References(model, 3, {5, 2, 3, 16, 14, 6, 19, 17}));
  EXPECT_TRUE(References(model, 4, {8, 16, 3, 4, 18, 19, 7, 15}));
}

TEST(RefineQuadAtCorner, GivesNewNodesTheIdentifierAndPiecesWhatTheCopyHolds) {
  auto model = OneQuad();
  auto element = model.Elem(1);
  element.SetSid(L"old");
  element.SetGroup(3);
  element.SetConnect(2, CElemConnect(kHeldX));
  model.SetElem(1, element);
  EXPECT_TRUE(RefineQuadAtCorner(model, 1, 0, 0.5, 0.001, CString(L"r1")));
  for (int const n : {5, 6, 7}) {
    EXPECT_EQ(model.Node(n).Sid(), CString(L"r1"));
    EXPECT_EQ(model.Node(n).Name(), CString(L"r1"));
  }
  element.SetTopo(std::vector<int>{6, 2, 3, 5});
  EXPECT_TRUE(model.Elem(3) == element);
}

// Triangles: (0,0) (4,0) (0,4), so that places are four times the natural co-ordinates.

Points const kBigTriangle{{0, 0, 0}, {4, 0, 0}, {0, 4, 0}};

TEST(RefineTriAtCorner, CutsAThreeNodedTriangleIntoATriangleAndAQuadrilateral) {
  CZelData model;
  ElementAt(model, ElementType::Tri3, kBigTriangle);
  EXPECT_TRUE(RefineTriAtCorner(model, 1, 0, 0.001, kNone));
  ExpectNodes(model, 4, {{2, 0, 0}, {0, 2, 0}});
  EXPECT_EQ(ElementNumbers(model), (std::vector{1, 2, 3}));
  EXPECT_TRUE(References(model, 2, {1, 4, 5}));
  EXPECT_TRUE(References(model, 3, {4, 2, 3, 5}));
  EXPECT_EQ(model.Elem(2).Type(), ElementType::Tri3);
  EXPECT_EQ(model.Elem(3).Type(), ElementType::Quad4);
}

TEST(RefineTriAtCorner, CutsASixNodedTriangleOnItsMidSideNodes) {
  CZelData model;
  QuadraticAt(model, kBigTriangle);  // 4 (2,0), 5 (2,2), 6 (0,2)
  EXPECT_TRUE(RefineTriAtCorner(model, 1, 0, 0.001, kNone));
  ExpectNodes(model, 7,
              {{1, 0, 0},    // 7 a
               {0, 1, 0},    // 8 b
               {3, 0, 0},    // 9 d
               {0, 3, 0},    // 10 e
               {1, 1, 0}});  // 11 m, natural (0.25, 0.25)
  EXPECT_TRUE(References(model, 2, {1, 4, 6, 7, 11, 8}));
  EXPECT_TRUE(References(model, 3, {4, 2, 3, 6, 9, 5, 10, 11}));
  EXPECT_EQ(model.Elem(2).Type(), ElementType::Tri6);
  EXPECT_EQ(model.Elem(3).Type(), ElementType::Quad8);
}

TEST(RefineTriAtCorner, CountsCornersRoundTheRing) {
  struct Row {
    int corner;
    std::vector<int> triangle, quad;
    Vec3<double> middle;
  };
  // By corner: p = c + 3, q = c2 + 3, k = c1 + 3 in positions from 0; middles at natural (0.5,
  // 0.25) and (0.25, 0.5).
  for (auto const& row : {Row{1, {2, 5, 4, 7, 11, 8}, {5, 3, 1, 4, 9, 6, 10, 11}, {2, 1, 0}},
                          Row{2, {3, 6, 5, 7, 11, 8}, {6, 1, 2, 5, 9, 4, 10, 11}, {1, 2, 0}}}) {
    CZelData model;
    QuadraticAt(model, kBigTriangle);
    EXPECT_TRUE(RefineTriAtCorner(model, 1, row.corner, 0.001, kNone));
    EXPECT_TRUE(References(model, 2, row.triangle));
    EXPECT_TRUE(References(model, 3, row.quad));
    EXPECT_TRUE(IsNear(model.NodeCoor(11), row.middle));
  }
}

TEST(RefineTriAtCorner, TakesAllNodesWithinTheTolerance) {
  CZelData model;
  QuadraticAt(model, kBigTriangle);
  for (auto const& p : Points{{1, 0, 0}, {0, 1, 0}, {3, 0, 0}, {0, 3, 0}, {1, 1, 0}})
    NodeAt(model, p.x, p.y, 0.01);  // 7 to 11, near a, b, d, e, m
  EXPECT_TRUE(RefineTriAtCorner(model, 1, 0, 0.02, kNone));
  EXPECT_TRUE(References(model, 2, {1, 4, 6, 7, 11, 8}));
  EXPECT_TRUE(References(model, 3, {4, 2, 3, 6, 9, 5, 10, 11}));
  EXPECT_EQ(model.HighestNode(), 11);
}

TEST(RefineTriAtCorner, TakesNodesWithinTheToleranceOnBothSidesOfTheCorner) {
  CZelData model;
  ElementAt(model, ElementType::Tri3, kBigTriangle);
  for (auto const& p : Points{{2, 0, 0}, {0, 2, 0}}) NodeAt(model, p.x, p.y, 0.01);  // 4, 5
  EXPECT_TRUE(RefineTriAtCorner(model, 1, 0, 0.02, kNone));
  EXPECT_TRUE(References(model, 2, {1, 4, 5}));
  EXPECT_TRUE(References(model, 3, {4, 2, 3, 5}));
  EXPECT_EQ(model.HighestNode(), 5);
}

TEST(RefineTriAtCorner, MapsByTheShapeOfAllNodes) {
  // The side 1-2 bulges by 1 in its middle: places go down by 4 r (1 - r - s).
  CZelData model;
  auto points = WithMiddles(kBigTriangle);
  points[3] = {2, -1, 0};
  ElementAt(model, ElementType::Tri6, points);
  EXPECT_TRUE(RefineTriAtCorner(model, 1, 0, 0.001, kNone));
  ExpectNodes(model, 7,
              {{1, -0.75, 0},  // a at (1/4, 0): 4 1/4 3/4
               {0, 1, 0},      // b at (0, 1/4)
               {3, -0.75, 0},  // d at (3/4, 0): 4 3/4 1/4
               {0, 3, 0},      // e at (0, 3/4)
               {1, 0.5, 0}});  // m at (1/4, 1/4): 4 1/4 1/2
}

TEST(RefineTriAtCorner, KeepsReleasesOfTheCopyByPlaceAndTheIdentifier) {
  CZelData model;
  ElementAt(model, ElementType::Tri3, kBigTriangle);
  model.SetElemConnect(1, 1, CElemConnect(kHeldX));
  model.SetElemSid(1, CString(L"old"));
  EXPECT_TRUE(RefineTriAtCorner(model, 1, 0, 0.001, CString(L"new")));
  for (int const n : {2, 3}) {
    EXPECT_EQ(model.Elem(n).Connect(1).Release(), kHeldX);
    EXPECT_EQ(model.Elem(n).Sid(), CString(L"old"));
  }
}

// Faults of the caller.

TEST(RefinePlates, ThrowForATopologyThatIsNotThatOfTheType) {
  CZelData model;
  ElementAt(model, ElementType::Quad4, kBigSquare);
  auto short8 = Element(ElementType::Quad8, {1, 2, 3, 4, 1});
  model.SetElem(2, short8);
  Brick(model, 1, 1, 1);
  ElementAt(model, ElementType::Tri3, kBigTriangle);
  for (int const n : {2, 3, 4}) {
    std::string text;
    try {
      RefineQuadAtCorner(model, n, 0, 0.5, 0.001, kNone);
    } catch (std::invalid_argument const& fault) {
      text = fault.what();
    }
    EXPECT_EQ(text, "invalid number of values for 2D element");
  }
  EXPECT_EQ(OutOfRangeText([&] { RefineQuadAtCorner(model, 77, 0, 0.5, 0.001, kNone); }).empty(),
            false);
}

}  // namespace
}  // namespace Tarvex::RefinePlatesTest
