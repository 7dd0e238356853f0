#include "store/numeric/element_frame.h"

#include <gtest/gtest.h>

#include "tests/support/matchers.h"

namespace Tarvex::Util::ElementFrameTest {
namespace {

using Testing::IsNear;
using V = Vec3<double>;

constexpr double kTolerance = 0.001;  // sine of the angle within which a line is vertical

struct Axes {
  V x;
  V y;
  V z;
};

void ExpectAxes(CDirCos const& frame, Axes const& axes) {
  EXPECT_TRUE(IsNear(frame.AxisVec(Direction::X), axes.x));
  EXPECT_TRUE(IsNear(frame.AxisVec(Direction::Y), axes.y));
  EXPECT_TRUE(IsNear(frame.AxisVec(Direction::Z), axes.z));
}

Axes const kGlobal{{1, 0, 0}, {0, 1, 0}, {0, 0, 1}};

CDirCos Line(V const& end, std::optional<V> const& orientation = {}, double angle = 0) {
  V const start{10, 20, 30};  // a frame does not depend on the place
  if (!orientation) return LineFrame(start, start + end, {}, angle, kTolerance);
  return LineFrame(start, start + end, start + *orientation, angle, kTolerance);
}

TEST(LineFrame, OfALevelLineHasYLevelAndZUp) {
  ExpectAxes(Line({5, 0, 0}), kGlobal);
  ExpectAxes(Line({-5, 0, 0}), {{-1, 0, 0}, {0, -1, 0}, {0, 0, 1}});
  ExpectAxes(Line({0, 2, 0}), {{0, 1, 0}, {-1, 0, 0}, {0, 0, 1}});
}

TEST(LineFrame, OfAVerticalLineHasYAlongGlobalY) {
  // z = x cross y: (0, 0, 1) cross (0, 1, 0) = (-1, 0, 0), and the opposite downward.
  ExpectAxes(Line({0, 0, 3}), {{0, 0, 1}, {0, 1, 0}, {-1, 0, 0}});
  ExpectAxes(Line({0, 0, -3}), {{0, 0, -1}, {0, 1, 0}, {1, 0, 0}});
}

TEST(LineFrame, OfASkewLineHasYLevelAndZUpward) {
  // x = (3, 0, 4) / 5; y = up cross x = (0, 1, 0); z = x cross y = (-0.8, 0, 0.6)
  ExpectAxes(Line({3, 0, 4}), {{0.6, 0, 0.8}, {0, 1, 0}, {-0.8, 0, 0.6}});
  // x = (2, 2, 1) / 3; up cross x is along (-2, 2, 0); x cross y = (-1, -1, 4) / (3 root 2)
  double const r = std::sqrt(2.0);
  ExpectAxes(Line({2, 2, 1}), {V{2, 2, 1} / 3.0, V{-1, 1, 0} / r, V{-1, -1, 4} / (3 * r)});
  // Downward: x = (3, 0, -4) / 5, z = x cross (0, 1, 0) = (0.8, 0, 0.6)
  ExpectAxes(Line({3, 0, -4}), {{0.6, 0, -0.8}, {0, 1, 0}, {0.8, 0, 0.6}});
}

TEST(LineFrame, ChangesItsRuleAtTheVerticalTolerance) {
  V const start{};
  V const towardsY{0, 3, 4};  // sine of its angle from the vertical 3 / 5
  auto const inside = LineFrame(start, towardsY, {}, 0, 0.6);
  ExpectAxes(inside, {{0, 0.6, 0.8}, {0, 0.8, -0.6}, {-1, 0, 0}});
  auto const outside = LineFrame(start, towardsY, {}, 0, std::nextafter(0.6, 0));
  ExpectAxes(outside, {{0, 0.6, 0.8}, {-1, 0, 0}, {0, -0.8, 0.6}});
}

TEST(LineFrame, PutsItsXYPlaneThroughTheOrientationNode) {
  ExpectAxes(Line({5, 0, 0}, V{1, 0, 9}), {{1, 0, 0}, {0, 0, 1}, {0, -1, 0}});
  ExpectAxes(Line({5, 0, 0}, V{-4, -2, 0}), {{1, 0, 0}, {0, -1, 0}, {0, 0, -1}});
  ExpectAxes(Line({0, 0, 3}, V{2, 0, 0}), {{0, 0, 1}, {1, 0, 0}, {0, 1, 0}});
}

TEST(LineFrame, PassesOverAnOrientationNodeOnItsAxis) {
  for (V const& node : {V{7, 0, 0}, V{-7, 0, 0}, V{0, 0, 0}, V{5, 0, 0}})
    ExpectAxes(Line({5, 0, 0}, node), kGlobal);
}

TEST(LineFrame, TurnsYAndZByTheOrientationAngle) {
  double const c = std::sqrt(3.0) / 2;  // cos 30 degrees
  ExpectAxes(Line({5, 0, 0}, {}, 30), {{1, 0, 0}, {0, c, 0.5}, {0, -0.5, c}});
  ExpectAxes(Line({5, 0, 0}, {}, -90), {{1, 0, 0}, {0, 0, -1}, {0, 1, 0}});
  // On top of the orientation node: from y = Z, z = -Y by a quarter turn to y = -Y, z = -Z.
  ExpectAxes(Line({5, 0, 0}, V{0, 0, 1}, 90), {{1, 0, 0}, {0, -1, 0}, {0, 0, -1}});
}

TEST(LineFrame, WithoutLengthIsTheGlobalFrame) {
  ExpectAxes(Line({0, 0, 0}), kGlobal);
  ExpectAxes(Line({0, 0, 0}, V{0, 0, 1}, 30), kGlobal);
}

TEST(LineFrame, OfALineThatLeansByNoLengthIsThatOfAVerticalOneAtToleranceZero) {
  ExpectAxes(LineFrame({}, {1e-12, 0, 3}, {}, 0, 0), {{0, 0, 1}, {0, 1, 0}, {-1, 0, 0}});
}

TEST(PlateFrame, OfATriangleHasXAlongTheFirstEdge) {
  ExpectAxes(PlateFrame(std::vector<V>{{0, 0, 5}, {4, 0, 5}, {0, 3, 5}}, 0), kGlobal);
  ExpectAxes(PlateFrame(std::vector<V>{{4, 0, 5}, {0, 3, 5}, {0, 0, 5}}, 0),
             {{-0.8, 0.6, 0}, {-0.6, -0.8, 0}, {0, 0, 1}});
}

TEST(PlateFrame, HasZWhereTheCornersRunRightHanded) {
  ExpectAxes(PlateFrame(std::vector<V>{{0, 0, 0}, {0, 2, 0}, {0, 2, 2}, {0, 0, 2}}, 0),
             {{0, 1, 0}, {0, 0, 1}, {1, 0, 0}});
  ExpectAxes(PlateFrame(std::vector<V>{{0, 0, 0}, {0, 0, 2}, {0, 2, 2}, {0, 2, 0}}, 0),
             {{0, 0, 1}, {0, 1, 0}, {-1, 0, 0}});
}

// A wall whose edges rise exactly stands exactly upright: z without a component, whatever its plan.
TEST(PlateFrame, OfAnUprightWallHasALevelNormalToTheLastBit) {
  for (int i = 1; i < 400; ++i) {
    V const foot{0.1 * i, 7.3, 0};
    V const along{std::cos(0.1 * i) * 3.7, std::sin(0.1 * i) * 3.7, 0};
    V const up{0, 0, 3.1};
    auto const frame =
        PlateFrame(std::vector<V>{foot, foot + along, foot + along + up, foot + up}, 0);
    EXPECT_EQ(frame.AxisVec(Direction::Z).z, 0) << i;
  }
}

TEST(PlateFrame, TurnsXAndYByTheOrientationAngle) {
  std::vector<V> const quad{{0, 0, 0}, {2, 0, 0}, {2, 2, 0}, {0, 2, 0}};
  double const c = std::sqrt(3.0) / 2;  // cos 30 degrees
  ExpectAxes(PlateFrame(quad, 30), {{c, 0.5, 0}, {-0.5, c, 0}, {0, 0, 1}});
}

TEST(PlateFrame, OfAWarpedQuadrilateralLiesInItsMeanPlane) {
  std::vector<V> const quad{{0, 0, 0}, {2, 0, 0}, {2, 2, 1}, {0, 2, 0}};
  // The cross product of the diagonals (2, 2, 1) and (-2, 2, 0).
  EXPECT_EQ(PolygonNormal(quad), (V{-2, -2, 8}));
  V const z = V{-1, -1, 4} / std::sqrt(18.0);
  // (1, 0, 0) less its part along z: (1, 0, 0) + (-1, -1, 4) / 18 = (17, -1, 4) / 18
  V const x = V{17, -1, 4} / std::sqrt(306.0);
  ExpectAxes(PlateFrame(quad, 0), {x, Cross(z, x), z});
}

/// An L: 4 by 1 and, on its left end, 1 by 2 more. Its corner at (1, 1) turns inward.
std::vector<V> LShape() {
  return {{0, 0, 0}, {4, 0, 0}, {4, 1, 0}, {1, 1, 0}, {1, 3, 0}, {0, 3, 0}};
}

TEST(PolygonNormal, IsTwiceTheAreaOfAConcavePolygonFromWhicheverCorner) {
  auto corners = LShape();
  for (std::size_t i = 0; i < corners.size(); ++i) {
    EXPECT_EQ(PolygonNormal(corners), (V{0, 0, 12}));  // 2 * (4 * 1 + 1 * 2)
    std::rotate(corners.begin(), corners.begin() + 1, corners.end());
  }
  std::reverse(corners.begin(), corners.end());
  EXPECT_EQ(PolygonNormal(corners), (V{0, 0, -12}));
}

TEST(PolygonNormal, IsZeroWithoutThreeCorners) {
  EXPECT_EQ(PolygonNormal({}), V());
  EXPECT_EQ(PolygonNormal(std::vector<V>{{1, 2, 3}}), V());
  EXPECT_EQ(PolygonNormal(std::vector<V>{{1, 2, 3}, {4, 5, 6}}), V());
}

TEST(PlateFrame, OfAConcavePolygonHasTheNormalOfItsArea) {
  auto corners = LShape();
  std::rotate(corners.begin(), corners.begin() + 3, corners.end());  // from the inward corner on
  ExpectAxes(PlateFrame(corners, 0), {{0, 1, 0}, {-1, 0, 0}, {0, 0, 1}});
}

TEST(PlateFrame, TakesTheNextEdgeWhereCornersFallTogether) {
  std::vector<V> const corners{{0, 0, 0}, {0, 0, 0}, {1, 1, 0}, {0, 2, 0}};
  double const r = std::sqrt(0.5);
  ExpectAxes(PlateFrame(corners, 0), {{r, r, 0}, {-r, r, 0}, {0, 0, 1}});
}

TEST(PlateFrame, WithoutAreaIsTheGlobalFrame) {
  ExpectAxes(PlateFrame({}, 30), kGlobal);
  ExpectAxes(PlateFrame(std::vector<V>{{0, 1, 0}, {0, 2, 0}}, 30), kGlobal);
  ExpectAxes(PlateFrame(std::vector<V>{{0, 1, 0}, {0, 2, 0}, {0, 9, 0}}, 30), kGlobal);
  // A bow tie: its two halves cancel.
  ExpectAxes(PlateFrame(std::vector<V>{{0, 0, 0}, {1, 1, 0}, {1, 0, 0}, {0, 1, 0}}, 30), kGlobal);
}

TEST(IsVertical, ComparesTheSineWithTheTolerance) {
  double const below = std::nextafter(0.6, 0);
  EXPECT_TRUE(IsVertical({3, 0, 4}, 0.6));
  EXPECT_FALSE(IsVertical({3, 0, 4}, below));
  EXPECT_TRUE(IsVertical({0, -3, -4}, 0.6));
  EXPECT_TRUE(IsVertical({0, 0, 1e-6}, 0));
  EXPECT_FALSE(IsVertical({0, 0, 0}, 1));
}

TEST(IsHorizontal, ComparesTheSineWithTheTolerance) {
  EXPECT_TRUE(IsHorizontal({3, 0, 4}, 0.8));
  EXPECT_FALSE(IsHorizontal({3, 0, 4}, std::nextafter(0.8, 0)));
  EXPECT_TRUE(IsHorizontal({3, 0, -4}, 0.8));
  EXPECT_FALSE(IsHorizontal({3, 0, -4}, std::nextafter(0.8, 0)));
  EXPECT_TRUE(IsHorizontal({-1, 5, 0}, 0));
  EXPECT_FALSE(IsHorizontal({0, 0, 0}, 1));
}

}  // namespace
}  // namespace Tarvex::Util::ElementFrameTest
