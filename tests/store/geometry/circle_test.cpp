#include "store/geometry/circle.h"

#include <gtest/gtest.h>

#include <cmath>

#include "tests/support/matchers.h"
#include "tests/support/random_model.h"

namespace Tarvex {
namespace {

using V = Vec3<double>;
using Testing::IsNear;

TEST(CircleCentre, IsAsFarFromAllThreePoints) {
  // A chord of 8 and a height of 2: radius (16 + 4) / 4 = 5, centre 3 below the chord.
  Vec2<double> centre;
  EXPECT_TRUE(CircleCentre({0, 0}, {8, 0}, {4, 2}, centre));
  EXPECT_NEAR(centre.x, 4, 1e-14);
  EXPECT_NEAR(centre.y, -3, 1e-14);
  // The third point past the half circle: the centre is on its side.
  EXPECT_TRUE(CircleCentre({0, 0}, {8, 0}, {4, 8}, centre));
  EXPECT_NEAR(centre.y, 3, 1e-14);
}

TEST(CircleCentre, DoesNotDependOnTheSense) {
  Vec2<double> centre;
  EXPECT_TRUE(CircleCentre({1, 0}, {-1, 0}, {0, -1}, centre));
  EXPECT_NEAR(centre.x, 0, 1e-15);
  EXPECT_NEAR(centre.y, 0, 1e-15);
}

TEST(CircleCentre, IsMissingForPointsOnALine) {
  Vec2<double> centre{7, 8};
  EXPECT_FALSE(CircleCentre({0, 0}, {2, 2}, {1, 1}, centre));
  EXPECT_FALSE(CircleCentre({0, 0}, {2, 2}, {5, 5}, centre));
  EXPECT_FALSE(CircleCentre({0, 0}, {2, 0}, {1, 9e-11}, centre));
  EXPECT_TRUE(CircleCentre({0, 0}, {2, 0}, {1, 2e-10}, centre));
  // Far from the origin the centre of a flat arc: radius about 1 / (2 * 2e-10).
  EXPECT_NEAR(centre.y * -4e-10, 1, 1e-9);
}

TEST(CircleCentre, IsMissingForPointsThatCoincideOrAreNotFinite) {
  Vec2<double> centre{7, 8};
  EXPECT_FALSE(CircleCentre({1, 1}, {1, 1}, {2, 3}, centre));
  EXPECT_FALSE(CircleCentre({1, 1}, {2, 3}, {1, 1}, centre));
  EXPECT_FALSE(CircleCentre({1, 1}, {2, 3}, {2, 3}, centre));
  EXPECT_FALSE(CircleCentre({1, 1}, {2, 3}, {std::nan(""), 0}, centre));
  EXPECT_EQ(centre.x, 7);
  EXPECT_EQ(centre.y, 8);
}

TEST(ArcCentre, LiesInThePlaneOfThePoints) {
  // The circle of radius 5 about (1, 2, 3) in the plane of (1, 0, 0) and (0, 0.6, 0.8).
  auto const at = [](double angle) {
    return V{1, 2, 3} + V{1, 0, 0} * (5 * std::cos(angle)) + V{0, 0.6, 0.8} * (5 * std::sin(angle));
  };
  V centre;
  EXPECT_TRUE(ArcCentre(at(0.3), at(2), at(1), centre));
  EXPECT_TRUE(IsNear(centre, {1, 2, 3}, 1e-13));
}

TEST(ArcCentre, IsAsFarFromAllThreePointsOfAnyTriangle) {
  Testing::Random random(9);
  auto const point = [&random] {
    return V{random.Real(-9, 9), random.Real(-9, 9), random.Real(-9, 9)};
  };
  for (int i = 0; i < 200; ++i) {
    auto const a = point();
    auto const b = point();
    auto const c = point();
    V centre;
    ASSERT_TRUE(ArcCentre(a, b, c, centre));
    double const radius = Length(centre - a);
    EXPECT_NEAR(Length(centre - b) / radius, 1, 1e-9);
    EXPECT_NEAR(Length(centre - c) / radius, 1, 1e-9);
    EXPECT_NEAR(Dot(centre - a, Unit(Cross(b - a, c - a))) / radius, 0, 1e-9);
  }
}

TEST(ArcCentre, IsMissingForPointsOnALine) {
  V centre{7, 8, 9};
  EXPECT_FALSE(ArcCentre({0, 0, 0}, {2, 4, 6}, {1, 2, 3}, centre));
  EXPECT_EQ(centre, (V{7, 8, 9}));
}

}  // namespace
}  // namespace Tarvex
