#include "store/numeric/dir_cos.h"

#include <gtest/gtest.h>

#include "tests/support/matchers.h"
#include "tests/support/random_model.h"

namespace Tarvex::Util::DirCosTest {
namespace {

using Testing::IsNear;
using V = Vec3<double>;

void ExpectAxes(CDirCos const& frame, V const& x, V const& y, V const& z) {
  EXPECT_TRUE(IsNear(frame.AxisVec(Direction::X), x));
  EXPECT_TRUE(IsNear(frame.AxisVec(Direction::Y), y));
  EXPECT_TRUE(IsNear(frame.AxisVec(Direction::Z), z));
}

TEST(DirCos, IsTheGlobalFrameAtFirst) { ExpectAxes(CDirCos(), {1, 0, 0}, {0, 1, 0}, {0, 0, 1}); }

TEST(DirCos, IsAssignedFromXAndAVectorInThePositiveXYPlane) {
  CDirCos frame;
  // x up; the other leans towards -X: y is its part at a right angle to x, z = x cross y.
  EXPECT_TRUE(frame.Assign({0, 0, 7}, {-2, 0, 100}));
  ExpectAxes(frame, {0, 0, 1}, {-1, 0, 0}, {0, -1, 0});
}

TEST(DirCos, TakesVectorsOfAnyLength) {
  CDirCos frame;
  EXPECT_TRUE(frame.Assign({3e-9, 0, 4e-9}, {0, 1e12, 0}));
  // z = x cross y = (0.6, 0, 0.8) cross (0, 1, 0) = (-0.8, 0, 0.6)
  ExpectAxes(frame, {0.6, 0, 0.8}, {0, 1, 0}, {-0.8, 0, 0.6});
}

TEST(DirCos, BecomesTheGlobalFrameWhereTheTwoHaveNoPlane) {
  CDirCos const global;
  CDirCos const turned({0, 1, 0}, {0, 0, 1});
  std::pair<V, V> const pairs[] = {{{0, 0, 0}, {0, 1, 0}},       {{1, 0, 0}, {0, 0, 0}},
                                   {{1, 2, 3}, {2, 4, 6}},       {{1, 2, 3}, {-1, -2, -3}},
                                   {{0.9e-10, 0, 0}, {0, 1, 0}}, {{1, 0, 0}, {0, 0.9e-10, 0}},
                                   {{1, 0, 0}, {1, 0.9e-10, 0}}};
  for (auto const& [x, xy] : pairs) {
    auto frame = turned;
    EXPECT_FALSE(frame.Assign(x, xy));
    EXPECT_EQ(frame, global);
    EXPECT_EQ(CDirCos(x, xy), global);
  }
}

TEST(DirCos, TakesVectorsDownToTheBoundOfALength) {
  CDirCos frame;
  EXPECT_TRUE(frame.Assign({1.1e-10, 0, 0}, {0, 0, 1.1e-10}));
  EXPECT_TRUE(frame.Assign({1, 0, 0}, {1, 1.1e-10, 0}));
}

TEST(DirCos, IsAssignedFromZAndAVectorInThePositiveXZPlane) {
  CDirCos frame;
  // z along Y; the other leans towards it: x is its part at a right angle to z, y = z cross x.
  EXPECT_TRUE(frame.AssignNormal({0, 7, 0}, {-2, 100, 0}));
  ExpectAxes(frame, {-1, 0, 0}, {0, 0, 1}, {0, 1, 0});
}

TEST(DirCos, OfANormalBecomesTheGlobalFrameWhereTheTwoHaveNoPlane) {
  std::pair<V, V> const pairs[] = {
      {{0, 0, 0}, {0, 1, 0}}, {{1, 0, 0}, {0, 0, 0}}, {{0, 0, 3}, {0, 0, -6}}};
  for (auto const& [z, xz] : pairs) {
    CDirCos frame({0, 1, 0}, {0, 0, 1});
    EXPECT_FALSE(frame.AssignNormal(z, xz));
    EXPECT_EQ(frame, CDirCos());
  }
}

TEST(DirCos, OfANormalIsOrthonormalWhereTheOtherVectorIsNearlyParallel) {
  V const z{0.6, 0.48, 0.64};
  CDirCos frame;
  ASSERT_TRUE(frame.AssignNormal(z, z * 1000.0 + V{1e-6, 0, 0}));
  EXPECT_NEAR(Dot(frame.AxisVec(Direction::X), z), 0, 1e-15);
  EXPECT_NEAR(Length(frame.AxisVec(Direction::X)), 1, 1e-15);
  EXPECT_NEAR(Length(frame.AxisVec(Direction::Y)), 1, 1e-15);
}

TEST(DirCos, GivesOppositeAxisVectors) {
  CDirCos const frame({0, 0, 1}, {0, 1, 0});
  EXPECT_EQ(frame.AxisVec(Direction::X, false), (V{-0.0, -0.0, -1}));
  EXPECT_EQ(frame.AxisVec(Direction::Y, false), (V{-0.0, -1, -0.0}));
}

TEST(DirCos, TurnsComponentsToItselfAndBack) {
  CDirCos const frame({0, 0, 7}, {-2, 0, 100});  // x = Z, y = -X, z = -Y
  EXPECT_EQ(frame.GtoL({1, 2, 3}), (V{3, -1, -2}));
  EXPECT_EQ(frame.LtoG({3, -1, -2}), (V{1, 2, 3}));
}

TEST(DirCos, RotatesRightHandedAboutEachOfItsAxes) {
  double const c = std::sqrt(3.0) / 2;  // cos 30 degrees
  double const s = 0.5;                 // sin 30 degrees
  CDirCos x;
  x.Rotate(Direction::X, kPi / 6);
  ExpectAxes(x, {1, 0, 0}, {0, c, s}, {0, -s, c});
  CDirCos y;
  y.Rotate(Direction::Y, kPi / 6);
  ExpectAxes(y, {c, 0, -s}, {0, 1, 0}, {s, 0, c});
  CDirCos z;
  z.Rotate(Direction::Z, kPi / 6);
  ExpectAxes(z, {c, s, 0}, {-s, c, 0}, {0, 0, 1});
}

TEST(DirCos, RotatesAboutItsOwnAxisNotTheGlobalOne) {
  CDirCos frame({0, 0, 1}, {0, 1, 0});  // x = Z, y = Y, z = -X
  frame.Rotate(Direction::X, kPi / 2);  // y becomes z, z becomes -y
  ExpectAxes(frame, {0, 0, 1}, {-1, 0, 0}, {0, -1, 0});
}

TEST(DirCos, IsOrthonormalAndKeepsVectorsThroughARoundTrip) {
  Testing::Random random(7);
  auto const any = [&](double size) {
    return V{random.Real(-size, size), random.Real(-size, size), random.Real(-size, size)};
  };
  for (int i = 0; i < 200; ++i) {
    CDirCos frame(any(5), any(5));
    frame.Rotate(static_cast<Direction>(random.Int(1, 3)), random.Real(-7, 7));
    V const x = frame.AxisVec(Direction::X);
    V const y = frame.AxisVec(Direction::Y);
    EXPECT_NEAR(Length(x), 1, 1e-14);
    EXPECT_NEAR(Length(y), 1, 1e-14);
    EXPECT_NEAR(Dot(x, y), 0, 1e-14);
    EXPECT_TRUE(IsNear(frame.AxisVec(Direction::Z), Cross(x, y), 1e-14));
    V const v = any(100);
    EXPECT_TRUE(IsNear(frame.LtoG(frame.GtoL(v)), v, 1e-12));
    EXPECT_NEAR(Length(frame.GtoL(v)), Length(v), 1e-12);
    EXPECT_NEAR(frame.GtoL(v).x, Dot(v, x), 1e-12);
  }
}

}  // namespace
}  // namespace Tarvex::Util::DirCosTest
