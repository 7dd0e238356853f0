// Points found in elements again; see CShape::FindRS.
#include "store/geometry/shape_inverse.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>

#include "store/geometry/shape.h"
#include "tests/support/matchers.h"
#include "tests/support/random_model.h"

namespace Tarvex::Util {
namespace {

using V = Vec3<double>;
using Testing::IsNear;
using Testing::Random;

constexpr double kNaN = std::numeric_limits<double>::quiet_NaN();
constexpr double kInf = std::numeric_limits<double>::infinity();

std::vector<V> const kSkewQuad{{0, 0, 0}, {5, 1, 0}, {4, 4, 0}, {-1, 2, 0}};
std::vector<V> const kSquare{{0, 0, 0}, {2, 0, 0}, {2, 2, 0}, {0, 2, 0}};

/// The natural nodes of a shape moved at random, then stretched, turned and moved away.
std::vector<V> DistortedShape(ShapeKind const& kind, Random& random, double much, double away) {
  std::vector<V> nodes;
  CDirCos const frame({random.Real(0.1, 1), random.Real(-1, 1), random.Real(-1, 1)}, {0, -1, 1});
  bool const flat = kind.space == SpaceType::Surface;
  V const stretch{random.Real(0.1, 10), random.Real(0.1, 10), random.Real(0.1, 10)};
  for (auto const& natural : kind.natural) {
    V const moved = natural + V{random.Real(-much, much), random.Real(-much, much),
                                random.Real(-much, much) * (flat ? 0.3 : 1)};
    nodes.push_back(frame.LtoG({moved.x * stretch.x, moved.y * stretch.y, moved.z * stretch.z}) +
                    V{away, -away, away / 3});
  }
  return nodes;
}

V RandomInside(ShapeKind const& kind, Random& random) {
  for (;;) {
    V const at{random.Real(-1, 1), random.Real(-1, 1),
               kind.space == SpaceType::Solid ? random.Real(-1, 1) : 0};
    if (kind.overrun(at) < 0) return at;
  }
}

bool FindIn(SpaceType space, std::vector<V> const& nodes, V const& point, V& natural) {
  CShape const shape(space, nodes);
  if (space == SpaceType::Solid) return shape.FindRST(point, natural, 1e-9);
  Vec2<double> rs;
  bool const found = shape.FindRS(point, rs, 1e-9);
  natural = {rs.x, rs.y, 0};
  return found;
}

struct ShapeSize {
  SpaceType space;
  int nodes;
};
class EveryShape : public ::testing::TestWithParam<ShapeSize> {};

INSTANTIATE_TEST_SUITE_P(
    ShapeInverse, EveryShape,
    ::testing::Values(ShapeSize{SpaceType::Surface, 3}, ShapeSize{SpaceType::Surface, 4},
                      ShapeSize{SpaceType::Surface, 6}, ShapeSize{SpaceType::Surface, 8},
                      ShapeSize{SpaceType::Solid, 4}, ShapeSize{SpaceType::Solid, 5},
                      ShapeSize{SpaceType::Solid, 6}, ShapeSize{SpaceType::Solid, 8}));

TEST_P(EveryShape, FindsInnerPointsOfDistortedElements) {
  auto const [space, nodes] = GetParam();
  auto const& kind = ShapeKindOf(space, nodes);
  Random random(17);
  // Mid-side nodes may move less than corners before the element folds.
  double const much = kind.nodes > kind.corners ? 0.06 : nodes == 3 ? 0.2 : 0.15;
  for (int i = 0; i < 300; ++i) {
    auto const element = DistortedShape(kind, random, much, 0);
    auto const at = RandomInside(kind, random);
    V found;
    ASSERT_TRUE(FindIn(space, element, Interpolate(space, element, at), found)) << i;
    ASSERT_TRUE(IsNear(found, at, 1e-12)) << i;
  }
}

TEST_P(EveryShape, FindsItsNodes) {
  auto const [space, nodes] = GetParam();
  auto const& kind = ShapeKindOf(space, nodes);
  Random random(23);
  for (int i = 0; i < 20; ++i) {
    auto const element = DistortedShape(kind, random, 0.05, 0);
    for (std::size_t n = 0; n < element.size(); ++n) {
      V found;
      ASSERT_TRUE(FindIn(space, element, element[n], found)) << i << ' ' << n;
      ASSERT_TRUE(IsNear(found, kind.natural[n], 1e-11)) << i << ' ' << n;
    }
  }
}

TEST_P(EveryShape, FindsPointsFarFromTheOrigin) {
  auto const [space, nodes] = GetParam();
  auto const& kind = ShapeKindOf(space, nodes);
  Random random(29);
  for (int i = 0; i < 50; ++i) {
    auto const element = DistortedShape(kind, random, 0.05, 1e6);
    auto const at = RandomInside(kind, random);
    V found;
    // Co-ordinates of a million are rounded to 1.2e-10, elements are 0.1 to 10 across.
    ASSERT_TRUE(FindIn(space, element, Interpolate(space, element, at), found)) << i;
    ASSERT_TRUE(IsNear(found, at, 1e-7)) << i;
  }
}

/// Distance of a point of the plane to the nearest side of a polygon.
double DistanceToSides(std::vector<V> const& corners, V const& at) {
  double least = kInf;
  for (std::size_t i = 0; i < corners.size(); ++i) {
    auto const& a = corners[i];
    auto const side = corners[(i + 1) % corners.size()] - a;
    double const t = std::clamp(Dot(at - a, side) / Dot(side, side), 0.0, 1.0);
    least = std::min(least, Length(at - a - side * t));
  }
  return least;
}

TEST_P(EveryShape, HoldsNoPointBeyondItsTolerance) {
  auto const [space, nodes] = GetParam();
  auto const& kind = ShapeKindOf(space, nodes);
  // The natural shape itself, so that natural co-ordinates are the point.
  std::vector<V> const element(kind.natural.begin(), kind.natural.end());
  CShape const shape(space, element);
  Random random(31);
  for (int i = 0; i < 300; ++i) {
    V const at{random.Real(-1.5, 1.5), random.Real(-1.5, 1.5),
               space == SpaceType::Solid ? random.Real(-1.5, 1.5) : 0};
    bool const solid = space == SpaceType::Solid;
    double overrun = kind.overrun(at);
    if (!solid && overrun > 0)
      overrun = DistanceToSides({element.begin(), element.begin() + kind.corners}, at);
    if (std::abs(overrun) < 1e-6 || std::abs(overrun - 0.1) < 1e-6) continue;
    Vec2<double> rs;
    V rst;
    EXPECT_EQ(solid ? shape.FindRST(at, rst, 0) : shape.FindRS(at, rs, 0), overrun < 0);
    EXPECT_EQ(solid ? shape.FindRST(at, rst, 0.1) : shape.FindRS(at, rs, 0.1), overrun < 0.1);
  }
}

TEST_P(EveryShape, WithoutAreaOrVolumeHoldsNoPoint) {
  auto const [space, nodes] = GetParam();
  auto const& kind = ShapeKindOf(space, nodes);
  std::vector<V> flat;
  std::vector<V> const point(static_cast<std::size_t>(nodes), V{1, 2, 3});
  for (auto const& node : kind.natural)  // a solid becomes a plate, a surface a line
    flat.push_back(space == SpaceType::Solid ? V{node.x, node.y, node.x + 2 * node.y}
                                             : V{node.x, 2 * node.x, 0});
  V found;
  for (auto const& at : flat) EXPECT_FALSE(FindIn(space, flat, at, found));
  EXPECT_FALSE(FindIn(space, flat, {0.1, 0.2, 0}, found));
  EXPECT_FALSE(FindIn(space, point, {1, 2, 3}, found));
}

TEST_P(EveryShape, TakesCoordinatesThatAreNotFinite) {
  auto const [space, nodes] = GetParam();
  auto const& kind = ShapeKindOf(space, nodes);
  std::vector<V> const good(kind.natural.begin(), kind.natural.end());
  V found;
  for (double const bad : {kNaN, kInf, -kInf}) {
    for (V const& at : {V{bad, 0, 0}, V{0.1, bad, 0}, V{0.1, 0.1, bad}}) {
      EXPECT_FALSE(FindIn(space, good, at, found));
      for (std::size_t i = 0; i < good.size(); ++i) {
        auto nodesWith = good;
        nodesWith[i] = at;
        EXPECT_FALSE(FindIn(space, nodesWith, {0.1, 0.1, 0.1}, found));
      }
    }
  }
  Vec2<double> rs;
  CShape const shape(space, good);
  EXPECT_FALSE(space == SpaceType::Solid ? shape.FindRST({0.2, 0.2, 0.2}, found, kNaN)
                                         : shape.FindRS({0.2, 0.2, 0}, rs, kNaN));
}

TEST(ShapeInverse, LeavesTheResultAloneWhenThePointIsOutside) {
  Vec2<double> rs{7, 8};
  EXPECT_FALSE(CShape(SpaceType::Surface, kSkewQuad).FindRS({20, 0, 0}, rs, 0.001));
  EXPECT_EQ(rs.x, 7);
  EXPECT_EQ(rs.y, 8);
}

TEST(ShapeInverse, LetsAPointLieOffASurfaceByTheTolerance) {
  CShape const plate(SpaceType::Surface, kSquare);
  Vec2<double> rs;
  EXPECT_TRUE(plate.FindRS({1.5, 0.5, 0.0009}, rs, 0.001));
  EXPECT_NEAR(rs.x, 0.5, 1e-14);  // 1.5 - 1
  EXPECT_NEAR(rs.y, -0.5, 1e-14);
  EXPECT_FALSE(plate.FindRS({1.5, 0.5, 0.0011}, rs, 0.001));
  EXPECT_FALSE(plate.FindRS({1.5, 0.5, -0.0011}, rs, 0.001));
  EXPECT_FALSE(plate.FindRS({1.5, 0.5, 1e-9}, rs, 0));
}

TEST(ShapeInverse, LetsAPointLieOverAnEdgeByTheToleranceInModelUnits) {
  CShape const large(SpaceType::Surface, {{0, 0, 0}, {20, 0, 0}, {20, 20, 0}, {0, 20, 0}});
  Vec2<double> rs;
  EXPECT_TRUE(large.FindRS({20.0009, 10, 0}, rs, 0.001));
  EXPECT_NEAR(rs.x, 1.00009, 1e-14);  // 10.0009 / 10
  EXPECT_FALSE(large.FindRS({20.0011, 10, 0}, rs, 0.001));
  // Beyond a corner: 0.0008 in both directions are 0.0011 from it.
  EXPECT_TRUE(large.FindRS({20.0007, 20.0007, 0}, rs, 0.001));
  EXPECT_FALSE(large.FindRS({20.0008, 20.0008, 0}, rs, 0.001));

  CShape const plate(SpaceType::Surface, kSquare);  // half a side is 1, as in natural co-ordinates
  EXPECT_TRUE(plate.FindRS({2.0009, 1, 0}, rs, 0.001));
  EXPECT_NEAR(rs.x, 1.0009, 1e-14);
  EXPECT_FALSE(plate.FindRS({2.0011, 1, 0}, rs, 0.001));
  EXPECT_TRUE(plate.FindRS({2, 1, 0}, rs, 0));
  EXPECT_FALSE(plate.FindRS({2.000001, 1, 0}, rs, 0));
}

TEST(ShapeInverse, MeasuresFromTheCurveOfACurvedSide) {
  CShape const plate(SpaceType::Surface, {{-1, -1, 0},
                                          {1, -1, 0},
                                          {1, 1, 0},
                                          {-1, 1, 0},
                                          {0, -1.5, 0},  // half below the straight side
                                          {1, 0, 0},
                                          {0, 1, 0},
                                          {-1, 0, 0}});
  Vec2<double> rs;
  EXPECT_TRUE(plate.FindRS({0, -1.5009, 0}, rs, 0.001));
  EXPECT_LT(rs.y, -1);
  EXPECT_FALSE(plate.FindRS({0, -1.5011, 0}, rs, 0.001));
}

TEST(ShapeInverse, HoldsTheNaturalCoordinatesThatItFinds) {
  CShape const plate(SpaceType::Surface, kSkewQuad);
  CShape const solid(SpaceType::Solid, {{0, 0, 0}, {1, 0, 0}, {0, 1, 0}, {0, 0, 1}});
  Random random(7);
  int outside = 0;
  for (int i = 0; i < 2000; ++i) {
    Vec2<double> const at{random.Real(-1.3, 1.3), random.Real(-1.3, 1.3)};
    Vec2<double> rs;
    if (!plate.FindRS(plate.CoorAtRS(at), rs, 0.05)) continue;
    if (std::max(std::abs(rs.x), std::abs(rs.y)) > 1.001) ++outside;
    ASSERT_TRUE(plate.HoldsRS(rs, 0.05)) << rs.x << " " << rs.y;
  }
  EXPECT_GT(outside, 20);
  EXPECT_FALSE(plate.HoldsRS({2, 0}, 0.05));
  EXPECT_FALSE(plate.HoldsRS({kNaN, 0}, 0.05));
  EXPECT_FALSE(plate.HoldsRS({0, kNaN}, 0.05));
  EXPECT_FALSE(solid.HoldsRS({0.1, 0.1}, 1));
}

TEST(ShapeInverse, FindsThePointBelowOnAWarpedSurface) {
  // z = r s over the square: at r = s = 0.5 it is 0.25, its normal (-0.5, -0.5, 1) / sqrt(1.5).
  CShape const saddle(SpaceType::Surface, {{-1, -1, 1}, {1, -1, -1}, {1, 1, 1}, {-1, 1, -1}});
  double const off = 0.01 / std::sqrt(1.5);
  Vec2<double> rs;
  V const above = V{0.5, 0.5, 0.25} + V{-0.5, -0.5, 1} * off;
  ASSERT_TRUE(saddle.FindRS(above, rs, 0.0101));
  EXPECT_NEAR(rs.x, 0.5, 1e-12);
  EXPECT_NEAR(rs.y, 0.5, 1e-12);
  EXPECT_FALSE(saddle.FindRS(above, rs, 0.0099));
}

TEST(ShapeInverse, FindsPointsOfNeedles) {
  // A brick a thousand times as long as it is wide, sheared by as much as it is long.
  std::vector<V> nodes;
  for (auto const& n : ShapeKindOf(SpaceType::Solid, 8).natural)
    nodes.push_back({1000 * n.x + 1000 * n.y, n.y, n.z});
  V found;
  ASSERT_TRUE(
      CShape(SpaceType::Solid, nodes).FindRST({1000 * 0.3 - 1000 * 0.6, -0.6, 0.9}, found, 0));
  EXPECT_TRUE(IsNear(found, {0.3, -0.6, 0.9}, 1e-12));
}

TEST(ShapeInverse, FindsPointsOfAQuadrilateralWithACornerAlmostStraight) {
  // Corner 2 stands just outside the line from 1 to 3: natural lines crowd there.
  CShape const plate(SpaceType::Surface, {{0, 0, 0}, {1, 0, 0}, {0.51, 0.51, 0}, {0, 1, 0}});
  for (double const r : {-0.999, 0.0, 0.9, 0.999}) {
    for (double const s : {-0.9, 0.3, 0.99}) {
      Vec2<double> rs;
      ASSERT_TRUE(plate.FindRS(plate.CoorAtRS({r, s}), rs, 0));
      EXPECT_NEAR(rs.x, r, 1e-12);
      EXPECT_NEAR(rs.y, s, 1e-12);
    }
  }
}

TEST(ShapeInverse, FindsPointsOfABrickWhoseFarFaceShrankToAPoint) {
  CShape const brick(
      SpaceType::Solid,
      {{-1, -1, 0}, {1, -1, 0}, {1, 1, 0}, {-1, 1, 0}, {0, 0, 1}, {0, 0, 1}, {0, 0, 1}, {0, 0, 1}});
  V found;
  ASSERT_TRUE(brick.FindRST({0.25, 0.1, 0.5}, found, 1e-9));
  // The width at t is (1 - t) / 2, the height (1 + t) / 2.
  EXPECT_TRUE(IsNear(found, {0.5, 0.2, 0}, 1e-12));
  EXPECT_TRUE(brick.FindRST({0, 0, 1}, found, 1e-9));
  EXPECT_NEAR(found.z, 1, 1e-12);
  EXPECT_FALSE(brick.FindRST({0, 0, 1.1}, found, 1e-9));
}

TEST(ShapeInverse, FindsTheApexOfAPyramid) {
  CShape const pyramid(SpaceType::Solid, {{0, 0, 0}, {3, 0, 0}, {2, 2, 0}, {0, 1, 0.2}, {1, 1, 4}});
  V found;
  ASSERT_TRUE(pyramid.FindRST({1, 1, 4}, found, 1e-9));
  EXPECT_TRUE(IsNear(found, {0, 0, 1}, 1e-9));
  EXPECT_FALSE(pyramid.FindRST({1, 1, 4.01}, found, 1e-9));
}

}  // namespace
}  // namespace Tarvex::Util
