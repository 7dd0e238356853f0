#include "store/geometry/polygon.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <stdexcept>

#include "tests/support/random_model.h"

namespace Tarvex::Data {
namespace {

using V2 = Vec2<double>;

CPolygon PolygonOf(std::vector<V2> const& points, double tolerance = 0.001) {
  CPolygon polygon(tolerance);
  for (auto const& point : points) polygon.AddPoint(point);
  return polygon;
}

/// An L of two strips, 1 wide: 4 along x and 3 along y.
std::vector<V2> const kAngle{{0, 0}, {4, 0}, {4, 1}, {1, 1}, {1, 3}, {0, 3}};

std::vector<V2> Reversed(std::vector<V2> points) {
  std::reverse(points.begin(), points.end());
  return points;
}

TEST(Polygon, KeepsItsPoints) {
  CPolygon polygon;
  EXPECT_EQ(polygon.NumPoint(), 0);
  EXPECT_EQ(polygon.Tolerance(), 0.001);
  polygon.AddPoint(V2{1, 2});
  polygon.AddPoint(Vec3<double>{3, 4, 5});
  EXPECT_EQ(polygon.NumPoint(), 2);
  EXPECT_EQ(polygon.Point(1), (V2{3, 4}));
  polygon.SetPoint(0, {7, 8});
  EXPECT_EQ(polygon.Point(0), (V2{7, 8}));
  EXPECT_EQ(polygon.Points().size(), 2u);
  for (int const index : {-1, 2}) {
    EXPECT_THROW(polygon.Point(index), std::out_of_range);
    EXPECT_THROW(polygon.SetPoint(index, {}), std::out_of_range);
    EXPECT_THROW(polygon.Length(index), std::out_of_range);
  }
}

TEST(Polygon, FindsTheNearestVertexWithinItsTolerance) {
  auto const polygon = PolygonOf({{0, 0}, {4, 0}, {4.0005, 0}, {4, 3}});
  int vertex = 9;
  EXPECT_TRUE(polygon.PointExist({4, 2.9991}, vertex));
  EXPECT_EQ(vertex, 3);
  EXPECT_TRUE(polygon.PointExist({4.0004, 0}, vertex));
  EXPECT_EQ(vertex, 2);
  EXPECT_TRUE(polygon.PointExist({0, 0}, vertex));
  EXPECT_EQ(vertex, 0);
  vertex = 9;
  EXPECT_FALSE(polygon.PointExist({0.0008, 0.0008}, vertex));
  EXPECT_FALSE(polygon.PointExist({std::nan(""), 0}, vertex));
  EXPECT_EQ(vertex, 9);
  EXPECT_TRUE(PolygonOf({{1, 1}, {1, 1}}, 0).PointExist({1, 1}, vertex));
  EXPECT_EQ(vertex, 0);
}

TEST(Polygon, FindsTheNearestEdgeWithinItsTolerance) {
  auto const polygon = PolygonOf(kAngle);
  int edge = 9;
  double t = 9;
  EXPECT_TRUE(polygon.PointOnEdge({3, 0.0009}, edge, t));
  EXPECT_EQ(edge, 0);
  EXPECT_DOUBLE_EQ(t, 0.75);
  EXPECT_TRUE(polygon.PointOnEdge({0, 0.75}, edge, t));
  EXPECT_EQ(edge, 5);  // from the last vertex to the first
  EXPECT_DOUBLE_EQ(t, 0.75);
  EXPECT_TRUE(polygon.PointOnEdge({4, 0}, edge, t));
  EXPECT_EQ(edge, 0);
  EXPECT_EQ(t, 1);
  edge = 9;
  t = 9;
  EXPECT_FALSE(polygon.PointOnEdge({3, 0.0011}, edge, t));
  EXPECT_FALSE(polygon.PointOnEdge({3, std::nan("")}, edge, t));
  EXPECT_FALSE(CPolygon().PointOnEdge({0, 0}, edge, t));
  EXPECT_EQ(edge, 9);
  EXPECT_EQ(t, 9);
}

TEST(Polygon, TellsWhatLiesInside) {
  for (auto const& points : {kAngle, Reversed(kAngle)}) {
    auto const polygon = PolygonOf(points);
    for (V2 const p : {V2{0.5, 0.5}, V2{3.5, 0.5}, V2{0.5, 2.5}, V2{0.002, 2.998}})
      EXPECT_TRUE(polygon.PointInside(p, false));
    for (V2 const p :
         {V2{2, 2}, V2{1.5, 1.5}, V2{-1, 1}, V2{5, 1}, V2{5, 0}, V2{2, 3}, V2{-1, 0}, V2{2, 1.002}})
      EXPECT_FALSE(polygon.PointInside(p, true));
  }
}

TEST(Polygon, CountsItsBoundaryAsItIsAsked) {
  auto const polygon = PolygonOf(kAngle);
  for (V2 const p :
       {V2{0, 0}, V2{1, 1}, V2{2, 0}, V2{4, 0.5}, V2{2, 1.0005}, V2{2, 0.9995}, V2{0, 3.0005}}) {
    EXPECT_TRUE(polygon.PointInside(p, true));
    EXPECT_FALSE(polygon.PointInside(p, false));
  }
}

TEST(Polygon, CountsPointsAtTheLevelOfAVertexOnce) {
  // A diamond and a saw: the ray from the point passes through vertices.
  auto const diamond = PolygonOf({{0, -1}, {1, 0}, {0, 1}, {-1, 0}}, 0);
  EXPECT_TRUE(diamond.PointInside({0, 0}, false));
  EXPECT_FALSE(diamond.PointInside({-2, 0}, true));
  EXPECT_FALSE(diamond.PointInside({-1, 1}, true));
  EXPECT_FALSE(diamond.PointInside({-1, -1}, true));
  auto const saw =
      PolygonOf({{0, 0}, {6, 0}, {6, 2}, {5, 1}, {4, 2}, {3, 1}, {2, 2}, {1, 1}, {0, 2}}, 0);
  EXPECT_TRUE(saw.PointInside({0.5, 1}, false));
  EXPECT_TRUE(saw.PointInside({2, 1}, false));
  EXPECT_FALSE(saw.PointInside({-1, 1}, false));
  EXPECT_FALSE(saw.PointInside({-1, 2}, false));
  EXPECT_FALSE(saw.PointInside({3, 2}, false));
}

TEST(Polygon, HoldsNoPointWithoutArea) {
  EXPECT_FALSE(CPolygon().PointInside({0, 0}, true));
  EXPECT_FALSE(PolygonOf({{0, 0}, {4, 0}}).PointInside({1, 1}, true));
  EXPECT_TRUE(PolygonOf({{0, 0}, {4, 0}}).PointInside({1, 0}, true));
  EXPECT_FALSE(PolygonOf(kAngle).PointInside({std::nan(""), 1}, true));
}

TEST(Polygon, AgreesWithTheAnglesUnderWhichItsEdgesAreSeen) {
  Testing::Random random(41);
  for (int round = 0; round < 200; ++round) {
    // Star-shaped about the origin, with deep notches.
    std::vector<V2> points;
    int const count = random.Int(3, 12);
    for (int i = 0; i < count; ++i) {
      double const angle = 2 * kPi * i / count;
      double const radius = random.Real(0.5, 5);
      points.push_back({radius * std::cos(angle), radius * std::sin(angle)});
    }
    auto const polygon = PolygonOf(points, 1e-9);
    V2 const p{random.Real(-5, 5), random.Real(-5, 5)};
    double turn = 0;
    for (std::size_t i = 0; i < points.size(); ++i) {
      auto const a = points[i] - p;
      auto const b = points[(i + 1) % points.size()] - p;
      turn += std::atan2(a.x * b.y - a.y * b.x, Dot(a, b));
    }
    EXPECT_EQ(polygon.PointInside(p, false), std::abs(turn) > kPi);
  }
}

TEST(Polygon, HasAnAreaEitherWayRound) {
  EXPECT_DOUBLE_EQ(PolygonOf(kAngle).Area(), 6);  // 4 * 1 + 1 * 2
  EXPECT_DOUBLE_EQ(PolygonOf(Reversed(kAngle)).Area(), 6);
  EXPECT_EQ(PolygonOf({{0, 0}, {4, 0}}).Area(), 0);
  EXPECT_EQ(CPolygon().Area(), 0);
  // Far from the origin no digits are lost.
  EXPECT_DOUBLE_EQ(PolygonOf({{1e8, 1e8}, {1e8 + 1, 1e8}, {1e8 + 1, 1e8 + 1}}).Area(), 0.5);
}

TEST(Polygon, HasACentroid) {
  // 4 by 1 about (2, 0.5) and 1 by 2 about (0.5, 2): (8 + 1) / 6 and (2 + 4) / 6
  for (auto const& points : {kAngle, Reversed(kAngle)}) {
    EXPECT_NEAR(PolygonOf(points).Centroid().x, 1.5, 1e-14);
    EXPECT_NEAR(PolygonOf(points).Centroid().y, 1, 1e-14);
  }
}

TEST(Polygon, HasTheCentroidOfItsOutlineWithoutArea) {
  EXPECT_EQ(CPolygon().Centroid(), V2());
  EXPECT_EQ(PolygonOf({{3, 4}}).Centroid(), (V2{3, 4}));
  EXPECT_EQ(PolygonOf({{3, 4}, {3, 4}, {3, 4}}).Centroid(), (V2{3, 4}));
  EXPECT_EQ(PolygonOf({{0, 0}, {4, 2}}).Centroid(), (V2{2, 1}));
  // There and back: the middle of the line, though its points are uneven.
  auto const line = PolygonOf({{0, 0}, {0.1, 0.3}, {0.2, 0.6}, {1, 3}}).Centroid();
  EXPECT_NEAR(line.x, 0.5, 1e-12);
  EXPECT_NEAR(line.y, 1.5, 1e-12);
}

TEST(Polygon, HasALengthThatDoesNotClose) {
  auto const line = PolygonOf({{0, 0}, {3, 4}, {3, 10}});
  EXPECT_DOUBLE_EQ(line.Length(), 11);
  EXPECT_DOUBLE_EQ(line.Length(0), 0);
  EXPECT_DOUBLE_EQ(line.Length(1), 5);
  EXPECT_DOUBLE_EQ(line.Length(2), 11);
  EXPECT_EQ(CPolygon().Length(), 0);
  EXPECT_EQ(PolygonOf({{5, 5}}).Length(), 0);
}

TEST(Polygon, HasACornerAtEveryVertexUnlessItIsStraight) {
  std::vector<V2> const points{{2, 0}, {4, 0}, {4, 3}, {0, 3}, {0, 1}, {0, 0}, {1, 0.0005}};
  auto polygon = PolygonOf(points);
  EXPECT_FALSE(polygon.Straight());
  EXPECT_EQ(polygon.Corners(), (std::vector{0, 1, 2, 3, 4, 5, 6}));
  polygon.SetStraight(true);
  EXPECT_TRUE(polygon.Straight());
  EXPECT_EQ(polygon.Corners(), (std::vector{1, 2, 3, 5}));
  EXPECT_EQ(polygon.NumPoint(), 7);
  EXPECT_EQ(polygon.Point(6), (V2{1, 0.0005}));
}

TEST(Polygon, KeepsTheShapeOfAFineCurveInItsCorners) {
  // Each vertex of a circle of 1000 points is within the tolerance of its neighbours' line; between
  // corners that far apart the outline still never leaves it.
  CPolygon circle(0.01);
  for (int i = 0; i < 1000; ++i)
    circle.AddPoint(V2{std::cos(2 * kPi * i / 1000), std::sin(2 * kPi * i / 1000)});
  circle.SetStraight(true);
  auto const corners = circle.Corners();
  // The arc that 0.01 spans is 2 acos(0.99) = 0.2831 rad: 23 corners and the rest to close.
  EXPECT_GE(corners.size(), 22u);
  EXPECT_LE(corners.size(), 25u);
}

TEST(Polygon, KeepsRepeatedPointsAndSpikesOutOfTrouble) {
  auto polygon = PolygonOf({{0, 0}, {0, 0}, {4, 0}, {6, 0}, {4, 0}, {4, 3}});
  polygon.SetStraight(true);
  auto const corners = polygon.Corners();
  // One of the two at the origin, the tip of the spike, where it starts again, and (4, 3).
  EXPECT_EQ(corners, (std::vector{0, 3, 4, 5}));
  auto point = PolygonOf({{1, 1}, {1, 1}, {1, 1}});
  point.SetStraight(true);
  EXPECT_EQ(point.Corners(), (std::vector{0}));
  auto line = PolygonOf({{0, 0}, {1, 0}});
  line.SetStraight(true);
  EXPECT_EQ(line.Corners(), (std::vector{0, 1}));
}

TEST(Polygon, IsClonedAsItIs) {
  auto polygon = PolygonOf(kAngle, 0.25);
  polygon.SetStraight(true);
  auto const clone = polygon.Clone();
  EXPECT_EQ(*clone, polygon);
  EXPECT_EQ(clone->Tolerance(), 0.25);
  clone->AddPoint(V2{9, 9});
  EXPECT_EQ(polygon.NumPoint(), 6);
  EXPECT_NE(*clone, polygon);
}

}  // namespace
}  // namespace Tarvex::Data
