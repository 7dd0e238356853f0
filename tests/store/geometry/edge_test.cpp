#include "store/geometry/edge.h"

#include <gtest/gtest.h>

#include <cmath>

namespace Tarvex::Data {
namespace {

using V2 = Vec2<double>;

bool CrossAt(CEdge const& a, CEdge const& b, int mode, V2 expected) {
  V2 point{7, 8};
  if (!a.Intersect(b, point, mode)) {
    EXPECT_EQ(point, (V2{7, 8}));
    return false;
  }
  EXPECT_NEAR(point.x, expected.x, 1e-12);
  EXPECT_NEAR(point.y, expected.y, 1e-12);
  return true;
}

TEST(Edge, HasEndsLengthAndPoints) {
  CEdge const edge({1, 1}, {4, 5});
  EXPECT_EQ(edge.Start(), (V2{1, 1}));
  EXPECT_EQ(edge.End(), (V2{4, 5}));
  EXPECT_DOUBLE_EQ(edge.Length(), 5);
  EXPECT_EQ(edge.Point(0.5), (V2{2.5, 3}));
  CEdge const odd({0.1, 0.7}, {0.3, -0.1});
  EXPECT_EQ(odd.Point(1), odd.End());
  EXPECT_EQ(odd.Point(0), odd.Start());
}

TEST(Edge, CrossesAnotherWithinBoth) {
  EXPECT_TRUE(CrossAt({{0, 0}, {4, 0}}, {{1, -1}, {3, 3}}, 1, {1.5, 0}));
  EXPECT_TRUE(CrossAt({{0, 0}, {4, 0}}, {{3, 3}, {1, -1}}, 1, {1.5, 0}));
}

TEST(Edge, MeetsAnotherAtAnEnd) {
  EXPECT_TRUE(CrossAt({{0, 0}, {4, 0}}, {{4, 0}, {4, 3}}, 1, {4, 0}));
  EXPECT_TRUE(CrossAt({{0, 0}, {4, 0}}, {{1, 0}, {1, 3}}, 1, {1, 0}));
  EXPECT_TRUE(CrossAt({{0, 0}, {4, 0}}, {{0, -2}, {0, 0}}, 1, {0, 0}));
  // Within a zero length behind the end, and then at the end.
  V2 point;
  EXPECT_TRUE(CEdge({0, 0}, {4, 0}).Intersect(CEdge({4 + 9e-11, -1}, {4 + 9e-11, 1}), point, 1));
  EXPECT_EQ(point, (V2{4, 0}));
  EXPECT_FALSE(CrossAt({{0, 0}, {4, 0}}, {{4 + 2e-10, -1}, {4 + 2e-10, 1}}, 1, {}));
  EXPECT_FALSE(CrossAt({{0, 0}, {4, 0}}, {{-2e-10, -1}, {-2e-10, 1}}, 1, {}));
}

TEST(Edge, MissesAnotherThatEndsBefore) {
  EXPECT_FALSE(CrossAt({{0, 0}, {4, 0}}, {{1, 3}, {1, 1}}, 1, {}));
  EXPECT_FALSE(CrossAt({{0, 0}, {4, 0}}, {{5, -1}, {5, 1}}, 1, {}));
  EXPECT_FALSE(CrossAt({{0, 0}, {4, 0}}, {{-1, -1}, {-1, 1}}, 1, {}));
}

TEST(Edge, CrossesBeyondItsEndsInTheOtherMode) {
  EXPECT_TRUE(CrossAt({{0, 0}, {4, 0}}, {{1, 3}, {1, 1}}, 0, {1, 0}));
  EXPECT_TRUE(CrossAt({{0, 0}, {4, 0}}, {{8, 1}, {8, 3}}, 0, {8, 0}));
}

TEST(Edge, DoesNotCrossAParallelOneNorOneWithoutLength) {
  for (int const mode : {0, 1}) {
    EXPECT_FALSE(CrossAt({{0, 0}, {4, 0}}, {{0, 1}, {4, 1}}, mode, {}));
    EXPECT_FALSE(CrossAt({{0, 0}, {4, 0}}, {{3, 0}, {1, 0}}, mode, {}));
    EXPECT_FALSE(CrossAt({{0, 0}, {4, 0}}, {{1, 0}, {1, 0}}, mode, {}));
    EXPECT_FALSE(CrossAt({{1, 0}, {1, 0}}, {{0, 0}, {4, 0}}, mode, {}));
    EXPECT_FALSE(CrossAt({{1, std::nan("")}, {1, 0}}, {{0, 0}, {4, 0}}, mode, {}));
  }
}

TEST(Edge, TellsTheDistanceOfAPoint) {
  CEdge const edge({0, 0}, {4, 0});
  double t = -1;
  EXPECT_DOUBLE_EQ(edge.Distance({1, 3}, t), 3);
  EXPECT_DOUBLE_EQ(t, 0.25);
  EXPECT_DOUBLE_EQ(edge.Distance({7, 4}, t), 5);  // 3 and 4 from the end
  EXPECT_EQ(t, 1);
  EXPECT_DOUBLE_EQ(edge.Distance({-3, -4}, t), 5);
  EXPECT_EQ(t, 0);
  EXPECT_DOUBLE_EQ(CEdge({1, 1}, {1, 1}).Distance({4, 5}, t), 5);
  EXPECT_EQ(t, 0);
}

}  // namespace
}  // namespace Tarvex::Data
