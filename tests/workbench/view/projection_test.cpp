#include "workbench/view/projection.h"

#include <gtest/gtest.h>

namespace Tarvex::ProjectionTest {
namespace {

using Workbench::Project;
using Workbench::View;

void ExpectSeen(View view, Vec3<double> const& point, double right, double up, double depth) {
  auto const seen = Project(view, point);
  EXPECT_NEAR(seen.right, right, 1e-12);
  EXPECT_NEAR(seen.up, up, 1e-12);
  EXPECT_NEAR(seen.depth, depth, 1e-12);
}

TEST(Projection, IsometricAxesStandAt30DegreesAndKeepTheirLength) {
  // cos 30 = 0.866025403784, sin 30 = 0.5; the viewer stands towards (1, -1, 1), so that a step of
  // 1 along x or z comes nearer by 1/sqrt(3) = 0.577350269190 and one along y goes away by it.
  ExpectSeen(View::Iso, {1, 0, 0}, 0.866025403784439, -0.5, -0.577350269189626);
  ExpectSeen(View::Iso, {0, 1, 0}, 0.866025403784439, 0.5, 0.577350269189626);
  ExpectSeen(View::Iso, {0, 0, 1}, 0, 1, -0.577350269189626);
}

TEST(Projection, APlanIsSeenFromAboveWithYUpThePage) {
  ExpectSeen(View::Plan, {2, 3, 5}, 2, 3, -5);
}

TEST(Projection, TheElevationXIsSeenFromPlusXWithYToTheRight) {
  ExpectSeen(View::X, {2, 3, 5}, 3, 5, -2);
}

TEST(Projection, TheElevationYIsSeenFromMinusYWithXToTheRight) {
  ExpectSeen(View::Y, {2, 3, 5}, 2, 5, 3);
}

TEST(Projection, NoViewIsAMirrorImage) {
  for (auto const view : {View::Iso, View::Plan, View::X, View::Y}) {
    auto const& row = Workbench::ViewOf(view);
    EXPECT_LT(Dot(Cross(row.right, row.up), row.away), 0);  // towards the viewer is right x up
  }
}

TEST(Projection, ViewsHaveWords) {
  EXPECT_EQ(Workbench::ViewNamed("iso"), View::Iso);
  EXPECT_EQ(Workbench::ViewNamed("plan"), View::Plan);
  EXPECT_EQ(Workbench::ViewNamed("x"), View::X);
  EXPECT_EQ(Workbench::ViewNamed("y"), View::Y);
  EXPECT_TRUE(Workbench::IsElevation(View::X));
  EXPECT_TRUE(Workbench::IsElevation(View::Y));
  EXPECT_FALSE(Workbench::IsElevation(View::Iso));
  EXPECT_FALSE(Workbench::IsElevation(View::Plan));
}

}  // namespace
}  // namespace Tarvex::ProjectionTest
