#include "store/geometry/line.h"

#include <gtest/gtest.h>

#include <cmath>

#include "tests/support/random_model.h"

namespace Tarvex {
namespace {

using Data::CLine3;
using V = Vec3<double>;

TEST(DistanceBetweenLines, GivesFractionsAndTheShortestDistance) {
  // Along x at z = 0 and along y at x = 3, z = 2: closest at (3, 0), which is 3 of 4 and 1 of 5.
  auto const closest = DistanceBetweenLines({0, 0, 0}, {4, 0, 0}, {3, -1, 2}, {3, 4, 2});
  EXPECT_DOUBLE_EQ(closest.ra, 0.75);
  EXPECT_DOUBLE_EQ(closest.rb, 0.2);
  EXPECT_DOUBLE_EQ(closest.distance, 2);
}

TEST(DistanceBetweenLines, ReachesBeyondTheEnds) {
  auto const closest = DistanceBetweenLines({0, 0, 0}, {1, 0, 0}, {-2, 3, 0}, {-2, 1, 0});
  EXPECT_DOUBLE_EQ(closest.ra, -2);
  EXPECT_DOUBLE_EQ(closest.rb, 1.5);
  EXPECT_DOUBLE_EQ(closest.distance, 0);
}

TEST(DistanceBetweenLines, JoinsTheLinesAtARightAngle) {
  Testing::Random random(3);
  auto const point = [&random] {
    return V{random.Real(-9, 9), random.Real(-9, 9), random.Real(-9, 9)};
  };
  for (int i = 0; i < 200; ++i) {
    auto const a0 = point();
    auto const a1 = point();
    auto const b0 = point();
    auto const b1 = point();
    auto const closest = DistanceBetweenLines(a0, a1, b0, b1);
    auto const join = (b0 + (b1 - b0) * closest.rb) - (a0 + (a1 - a0) * closest.ra);
    EXPECT_NEAR(Length(join), closest.distance, 1e-9);
    EXPECT_NEAR(Dot(join, Unit(a1 - a0)), 0, 1e-9);
    EXPECT_NEAR(Dot(join, Unit(b1 - b0)), 0, 1e-9);
  }
}

TEST(DistanceBetweenLines, HasNoFractionsOnParallelLines) {
  for (double const sign : {1.0, -1.0}) {
    auto const closest = DistanceBetweenLines({0, 0, 0}, {4, 0, 0}, {9, 3, 4}, {9 + sign, 3, 4});
    EXPECT_TRUE(std::isnan(closest.ra));
    EXPECT_TRUE(std::isnan(closest.rb));
    EXPECT_DOUBLE_EQ(closest.distance, 5);  // 3 and 4 across
  }
  EXPECT_TRUE(
      std::isnan(DistanceBetweenLines({0, 0, 0}, {1, 0, 0}, {0, 1, 0}, {1, 1 + 9e-11, 0}).ra));
  // A slope of 2e-10 up from -1 meets the axis after 5e9.
  EXPECT_NEAR(DistanceBetweenLines({0, 0, 0}, {1, 0, 0}, {0, -1, 0}, {1, -1 + 2e-10, 0}).ra / 5e9,
              1, 1e-5);
}

TEST(DistanceBetweenLines, TakesALineWithoutLengthAsAPoint) {
  auto const first = DistanceBetweenLines({1, 3, 0}, {1, 3, 0}, {0, 0, 0}, {7, 0, 0});
  EXPECT_TRUE(std::isnan(first.ra));
  EXPECT_TRUE(std::isnan(first.rb));
  EXPECT_DOUBLE_EQ(first.distance, 3);
  EXPECT_DOUBLE_EQ(DistanceBetweenLines({0, 0, 0}, {7, 0, 0}, {1, 3, 0}, {1, 3, 9e-11}).distance,
                   3);
  EXPECT_DOUBLE_EQ(DistanceBetweenLines({0, 0, 0}, {0, 0, 0}, {3, 4, 0}, {3, 4, 0}).distance, 5);
}

TEST(DistanceBetweenLines, GivesNothingForPointsThatAreNotFinite) {
  auto const closest = DistanceBetweenLines({0, 0, 0}, {std::nan(""), 0, 0}, {0, 1, 0}, {0, 2, 1});
  EXPECT_TRUE(std::isnan(closest.ra));
  EXPECT_TRUE(std::isnan(closest.distance));
}

TEST(Line3, HasALengthAndPoints) {
  CLine3 const line({1, 1, 1}, {3, 3, 2});
  EXPECT_DOUBLE_EQ(line.Length(), 3);  // sqrt(4 + 4 + 1)
  EXPECT_EQ(line.Start(), (V{1, 1, 1}));
  EXPECT_EQ(line.End(), (V{3, 3, 2}));
  EXPECT_EQ(line.Point(0.5), (V{2, 2, 1.5}));
}

TEST(Line3, IntersectsAnother) {
  double r1 = 0;
  double r2 = 0;
  double distance = 0;
  CLine3 const line({0, 0, 0}, {4, 0, 0});
  EXPECT_TRUE(line.Intersect(CLine3({3, -1, 2}, {3, 4, 2}), r1, r2, distance));
  EXPECT_DOUBLE_EQ(r1, 0.75);
  EXPECT_DOUBLE_EQ(r2, 0.2);
  EXPECT_DOUBLE_EQ(distance, 2);
}

TEST(Line3, DoesNotIntersectAParallelOneNorOneWithoutLength) {
  double r1 = 7;
  double r2 = 8;
  double distance = 0;
  CLine3 const line({0, 0, 0}, {4, 0, 0});
  EXPECT_FALSE(line.Intersect(CLine3({0, 6, 0}, {1, 6, 0}), r1, r2, distance));
  EXPECT_DOUBLE_EQ(distance, 6);
  EXPECT_FALSE(line.Intersect(CLine3({0, 5, 0}, {0, 5, 0}), r1, r2, distance));
  EXPECT_FALSE(CLine3({0, 5, 0}, {0, 5, 0}).Intersect(line, r1, r2, distance));
  EXPECT_EQ(r1, 7);
  EXPECT_EQ(r2, 8);
}

}  // namespace
}  // namespace Tarvex
