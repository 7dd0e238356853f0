#include <stdexcept>

#include "store/text/cstring.h"
#include "tarvex/refinement.h"
#include "tests/members/plate_support.h"

namespace Tarvex::RefineBrickTest {
namespace {

using namespace Testing;
using ZelUtil::RefineBrickAtCorner;

CString const kNone(L"");

/// A cube of side 4 about the origin: places are twice the natural co-ordinates. Nodes 1 to 4 at
/// z = -2, 5 to 8 at z = 2.
CZelData Cube() {
  CZelData model;
  Points points;
  for (double const z : {-2.0, 2.0})
    for (auto const& p : Points{{-2, -2, z}, {2, -2, z}, {2, 2, z}, {-2, 2, z}})
      points.push_back(p);
  ElementAt(model, ElementType::Brick8, points);
  return model;
}

TEST(RefineBrickAtCorner, CutsABrickIntoFourAtACornerOfItsNearFace) {
  auto model = Cube();
  EXPECT_TRUE(RefineBrickAtCorner(model, 1, 0, 0.5, 0.001, kNone));
  Points const places{{0, -2, -2},   // 9 e1
                      {0, 0, -2},    // 10 fN
                      {-2, 0, -2},   // 11 e3
                      {-2, -2, 0},   // 12 eZ
                      {0, -2, 0},    // 13 f1
                      {-1, -1, -1},  // 14 m
                      {-2, 0, 0}};   // 15 f3
  EXPECT_EQ(model.HighestNode(), 15);
  for (std::size_t i = 0; i < places.size(); ++i)
    EXPECT_TRUE(IsNear(model.NodeCoor(9 + static_cast<int>(i)), places[i])) << i;
  EXPECT_EQ(ElementNumbers(model), (std::vector{1, 2, 3, 4, 5}));
  EXPECT_TRUE(References(model, 1, {1, 2, 3, 4, 5, 6, 7, 8}));
  EXPECT_TRUE(References(model, 2, {1, 9, 10, 11, 12, 13, 14, 15}));
  EXPECT_TRUE(References(model, 3, {9, 2, 3, 10, 13, 6, 7, 14}));
  EXPECT_TRUE(References(model, 4, {11, 10, 3, 4, 15, 14, 7, 8}));
  EXPECT_TRUE(References(model, 5, {12, 13, 14, 15, 5, 6, 7, 8}));
  for (int n = 2; n <= 5; ++n) EXPECT_EQ(model.Elem(n).Type(), ElementType::Brick8);
}

TEST(RefineBrickAtCorner, CountsRoundTheNearFaceAndKeepsThePlacesOfTheTopology) {
  auto model = Cube();
  EXPECT_TRUE(RefineBrickAtCorner(model, 1, 2, 0.5, 0.001, kNone));
  // a0 to a3 are places 2 3 0 1, b0 to b3 places 6 7 4 5: nodes 3 4 1 2 and 7 8 5 6.
  //                       place 0   1   2   3    4   5   6   7
  //                             a2  a3  a0  a1   b2  b3  b0  b1
  EXPECT_TRUE(References(model, 2, {10, 11, 3, 9, 14, 15, 12, 13}));
  EXPECT_TRUE(References(model, 3, {1, 10, 9, 4, 5, 14, 13, 8}));
  EXPECT_TRUE(References(model, 4, {1, 2, 11, 10, 5, 6, 15, 14}));
  EXPECT_TRUE(References(model, 5, {14, 15, 12, 13, 5, 6, 7, 8}));
  EXPECT_TRUE(IsNear(model.NodeCoor(9), {0, 2, -2}));
  EXPECT_TRUE(IsNear(model.NodeCoor(14), {1, 1, -1}));
}

TEST(RefineBrickAtCorner, SwapsNearAndFarFaceForACornerOfTheFarOne) {
  auto model = Cube();
  EXPECT_TRUE(RefineBrickAtCorner(model, 1, 5, 0.5, 0.001, kNone));
  // a0 to a3 are places 5 6 7 4, b0 to b3 places 1 2 3 0: nodes 6 7 8 5 and 2 3 4 1.
  //                       place 0   1   2   3    4   5   6   7
  //                             b3  b0  b1  b2   a3  a0  a1  a2
  EXPECT_TRUE(References(model, 2, {15, 12, 13, 14, 11, 6, 9, 10}));
  EXPECT_TRUE(References(model, 3, {14, 13, 3, 4, 10, 9, 7, 8}));
  EXPECT_TRUE(References(model, 4, {1, 15, 14, 4, 5, 11, 10, 8}));
  EXPECT_TRUE(References(model, 5, {1, 2, 3, 4, 15, 12, 13, 14}));
  EXPECT_TRUE(IsNear(model.NodeCoor(9), {2, 0, 2}));    // between 6 and 7
  EXPECT_TRUE(IsNear(model.NodeCoor(14), {1, -1, 1}));  // towards 6
}

TEST(RefineBrickAtCorner, FillsTheBrickFromEachCornerWhileTheInnerPointIsBelowAThird) {
  // From a third on the inner point of the first piece stands on the near side of the plane through
  // its three neighbours, and the piece folds over.

  for (int corner = 0; corner < 8; ++corner)
    for (double const ratio : {0.0, 0.1, 0.3}) {
      auto model = Cube();
      RefineBrickAtCorner(model, 1, corner, ratio, 0.001, kNone);
      double sum = 0;
      for (int n = 2; n <= 5; ++n) {
        EXPECT_GT(SizeOf(model, n), 0) << corner << " " << ratio << " " << n;
        sum += SizeOf(model, n);
      }
      EXPECT_NEAR(sum, 64, 64e-12);
    }
}

TEST(RefineBrickAtCorner, TakesAllNodesWithinTheToleranceTheInnerOneToo) {
  auto model = Cube();
  NodeAt(model, -1, -1, -1.01);  // 9, near m
  NodeAt(model, 0, -2, -2.01);   // 10, near e1
  EXPECT_TRUE(RefineBrickAtCorner(model, 1, 0, 0.5, 0.02, kNone));
  EXPECT_EQ(model.Elem(2).Topo(6), 9);
  EXPECT_EQ(model.Elem(2).Topo(1), 10);
  EXPECT_EQ(model.HighestNode(), 15);
}

TEST(RefineBrickAtCorner, TakesAPresentNodeInThePlaceOfEachNewOne) {
  auto model = Cube();
  for (auto const& p : Points{{0, -2, -2},   // 9 e1
                              {0, 0, -2},    // 10 fN
                              {-2, 0, -2},   // 11 e3
                              {-2, -2, 0},   // 12 eZ
                              {0, -2, 0},    // 13 f1
                              {-1, -1, -1},  // 14 m
                              {-2, 0, 0}})   // 15 f3
    NodeAt(model, p.x, p.y, p.z - 0.01);
  EXPECT_TRUE(RefineBrickAtCorner(model, 1, 0, 0.5, 0.02, kNone));
  EXPECT_TRUE(References(model, 2, {1, 9, 10, 11, 12, 13, 14, 15}));
  EXPECT_TRUE(References(model, 3, {9, 2, 3, 10, 13, 6, 7, 14}));
  EXPECT_TRUE(References(model, 4, {11, 10, 3, 4, 15, 14, 7, 8}));
  EXPECT_TRUE(References(model, 5, {12, 13, 14, 15, 5, 6, 7, 8}));
  EXPECT_EQ(model.HighestNode(), 15);
}

TEST(RefineBrickAtCorner, MapsTheInnerPointByTheShapeAndNotAlongTheDiagonal) {
  // The corner 7 moves from 2 to 6 in each direction. At natural (-0.5, -0.5, -0.5) it has the part
  // 0.25^3 = 0.015625: -1 + 4 0.015625 = -0.9375. Halfway from the centre, 0.5, it would be -0.75.
  auto model = Cube();
  model.SetNodeCoor(7, {6, 6, 6});
  EXPECT_TRUE(RefineBrickAtCorner(model, 1, 0, 0.5, 0.001, kNone));
  EXPECT_TRUE(IsNear(model.NodeCoor(14), {-0.9375, -0.9375, -0.9375}));
}

TEST(RefineBrickAtCorner, ClearsReleasesAndLockAndGivesTheIdentifierOrNone) {
  for (auto const* sid : {L"", L"r1"}) {
    auto model = Cube();
    auto element = model.Elem(1);
    element.SetSid(L"old");
    element.SetGroup(3);
    element.SetName(L"block");
    for (int i = 0; i < 8; ++i) element.SetConnect(i, CElemConnect(kHeldX));
    model.SetElem(1, element);
    model.LockElem(1, true);
    EXPECT_TRUE(RefineBrickAtCorner(model, 1, 0, 0.5, 0.001, CString(sid)));
    for (int n = 2; n <= 5; ++n) {
      EXPECT_FALSE(model.Elem(n).IsConnect());
      EXPECT_FALSE(model.Elem(n).IsLocked());
      EXPECT_EQ(model.Elem(n).Sid(), CString(sid));
      EXPECT_EQ(model.Elem(n).Group(), 3);
      EXPECT_EQ(model.Elem(n).Name(), CString(L"block"));
    }
    EXPECT_EQ(model.Node(9).Sid(), CString(sid));
    EXPECT_EQ(model.Elem(1).Sid(), CString(L"old"));
  }
}

TEST(RefineBrickAtCorner, ThrowsForWhatIsNoBrick) {
  CZelData model;
  QuadAt(model, kSquare[0], kSquare[1], kSquare[2], kSquare[3]);
  ElementAt(model, ElementType::Wedge6,
            {{0, 0, 0}, {1, 0, 0}, {0, 1, 0}, {0, 0, 1}, {1, 0, 1}, {0, 1, 1}});
  for (int const n : {1, 2}) {
    std::string text;
    try {
      RefineBrickAtCorner(model, n, 0, 0.5, 0.001, kNone);
    } catch (std::invalid_argument const& fault) {
      text = fault.what();
    }
    EXPECT_EQ(text, "invalid number of values for 3D element");
  }
}

}  // namespace
}  // namespace Tarvex::RefineBrickTest
