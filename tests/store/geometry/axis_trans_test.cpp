#include "store/geometry/axis_trans.h"

#include <gtest/gtest.h>

#include <cmath>

#include "tests/support/matchers.h"
#include "tests/support/random_model.h"

namespace Tarvex::Util {
namespace {

using Data::CAxis;
using Testing::IsNear;
using V = Vec3<double>;

/// Origin (1, 2, 3), x along Y, y along -X, z along Z.
CAxis TurnedAxis(AxisType type) { return CAxis(L"", type, {1, 2, 3}, {0, 2, 0}, {-5, 1, 0}); }
CAxis GlobalAxis(AxisType type) { return CAxis(L"", type, {}, {1, 0, 0}, {0, 1, 0}); }

TEST(AxisTrans, IsTheGlobalAxesAtFirst) {
  CAxisTrans const trans;
  EXPECT_EQ(trans.Global2User({1, 2, 3}), (V{1, 2, 3}));
  EXPECT_EQ(trans.User2Global({1, 2, 3}), (V{1, 2, 3}));
  EXPECT_EQ(trans.Origin(), V());
}

TEST(AxisTrans, TurnsToACartesianAxis) {
  CAxisTrans const trans(TurnedAxis(AxisType::Cartesian));
  // (5, 9, 4) is (4, 7, 1) from the origin: 7 along x, -4 along y.
  EXPECT_TRUE(IsNear(trans.Global2User({5, 9, 4}), {7, -4, 1}));
  EXPECT_TRUE(IsNear(trans.User2Global({7, -4, 1}), {5, 9, 4}));
  EXPECT_EQ(trans.Origin(), (V{1, 2, 3}));
  EXPECT_TRUE(IsNear(trans.DirCos().AxisVec(Direction::X), {0, 1, 0}));
  EXPECT_EQ(trans.DirCos({5, 9, 4}), trans.DirCos());
}

TEST(AxisTrans, TurnsToACylindricalAxis) {
  CAxisTrans const trans(TurnedAxis(AxisType::Cylindrical));
  // (-2, 2, 8) is (-3, 0, 5) from the origin: 3 along y, a quarter turn from x.
  EXPECT_TRUE(IsNear(trans.Global2User({-2, 2, 8}), {3, kPi / 2, 5}));
  // (4, 2, 8): -3 along y, three quarters.
  EXPECT_TRUE(IsNear(trans.Global2User({4, 2, 8}), {3, 3 * kPi / 2, 5}));
  EXPECT_TRUE(IsNear(trans.User2Global({2, kPi, -1}), {1, 0, 2}));
}

TEST(AxisTrans, TurnsToASphericalAxis) {
  CAxisTrans const trans(TurnedAxis(AxisType::Spherical));
  // (1, 6, 6) is 4 along x and 3 along z: 5 away, the polar angle has the sine 4 / 5.
  EXPECT_TRUE(IsNear(trans.Global2User({1, 6, 6}), {5, 0, std::asin(0.8)}));
  // (5, 2, 0): -4 along y and -3 along z.
  EXPECT_TRUE(IsNear(trans.Global2User({5, 2, 0}), {5, 3 * kPi / 2, kPi - std::asin(0.8)}));
  EXPECT_TRUE(IsNear(trans.User2Global({5, kPi / 2, std::asin(0.8)}), {-3, 2, 6}));
}

TEST(AxisTrans, CountsAnglesFromZeroToBelowAFullTurn) {
  for (auto const type : {AxisType::Cylindrical, AxisType::Spherical}) {
    CAxisTrans const trans(GlobalAxis(type));
    EXPECT_EQ(trans.Global2User({2, 0, 1}).y, 0);
    EXPECT_NEAR(trans.Global2User({-2, 1e-9, 1}).y, kPi - 5e-10, 1e-15);
    EXPECT_NEAR(trans.Global2User({-2, -1e-9, 1}).y, kPi + 5e-10, 1e-15);
    EXPECT_NEAR(trans.Global2User({2, -1e-9, 1}).y, 2 * kPi - 5e-10, 1e-15);
    // Less below 0 than a full turn can show.
    EXPECT_EQ(trans.Global2User({2, -1e-20, 1}).y, 0);
    EXPECT_EQ(trans.Global2User({2, -0.0, 1}).y, 0);
    EXPECT_NEAR(trans.Global2User({-2, -0.0, 1}).y, kPi, 1e-15);
  }
}

TEST(AxisTrans, CountsThePolarAngleFromZ) {
  CAxisTrans const trans(GlobalAxis(AxisType::Spherical));
  EXPECT_EQ(trans.Global2User({0, 0, 4}), (V{4, 0, 0}));
  EXPECT_TRUE(IsNear(trans.Global2User({0, 0, -4}), {4, 0, kPi}));
  EXPECT_TRUE(IsNear(trans.Global2User({3, 0, 0}), {3, 0, kPi / 2}));
  EXPECT_EQ(trans.Global2User({0, 0, 0}), V());
  EXPECT_LE(trans.Global2User({1e-12, 0, -4}).z, kPi);
}

TEST(AxisTrans, HasTheAngleZeroOnTheAxis) {
  CAxisTrans const straight(GlobalAxis(AxisType::Cylindrical));
  EXPECT_EQ(straight.Global2User({0, 0, 7}), (V{0, 0, 7}));
  EXPECT_EQ(straight.Global2User({-0.0, 0, 7}).y, 0);
  // A skew axis away from the origin: points on it are on it but for rounding.
  for (auto const type : {AxisType::Cylindrical, AxisType::Spherical}) {
    CAxis const axis(L"", type, {1e5, -3e4, 77.7}, {1, 2, 3}, {-3, 1, 1});
    CAxisTrans const skew(axis);
    for (double const z : {-1e4, -1.0, 0.3, 12345.678}) {
      auto const point = axis.Origin() + axis.ZAxis() * z;
      EXPECT_EQ(skew.Global2User(point).y, 0) << z;
      EXPECT_TRUE(IsNear(skew.User2Global(skew.Global2User(point)), point, 1e-10));
    }
    auto const beside = axis.Origin() + axis.ZAxis() * 3.0 + axis.YAxis() * 1e-6;
    EXPECT_NEAR(skew.Global2User(beside).y, kPi / 2, 1e-3);
  }
}

TEST(AxisTrans, GivesEveryPointBack) {
  Testing::Random random(11);
  auto const vector = [&random](double most) {
    return V{random.Real(-most, most), random.Real(-most, most), random.Real(-most, most)};
  };
  for (auto const type : {AxisType::Cartesian, AxisType::Cylindrical, AxisType::Spherical}) {
    for (int i = 0; i < 500; ++i) {
      CAxisTrans const trans(CAxis(L"", type, vector(100), vector(1), vector(1)));
      auto const point = vector(100);
      auto const user = trans.Global2User(point);
      ASSERT_TRUE(IsNear(trans.User2Global(user), point, 2e-13));
      if (type == AxisType::Cartesian) continue;
      ASSERT_GE(user.y, 0);
      ASSERT_LT(user.y, 2 * kPi);
    }
  }
}

TEST(AxisTrans, TakesOriginAndVectors) {
  CAxisTrans trans(GlobalAxis(AxisType::Spherical));
  EXPECT_TRUE(trans.Assign({1, 2, 3}, {0, 2, 0}, {-5, 1, 0}));
  EXPECT_TRUE(IsNear(trans.Global2User({5, 9, 4}), {7, -4, 1}));
  EXPECT_FALSE(trans.Assign({1, 2, 3}, {0, 2, 0}, {0, 4, 0}));
  EXPECT_EQ(trans.Global2User({5, 9, 4}), (V{4, 7, 1}));
}

TEST(AxisTrans, TakesAFrameAndAnOrigin) {
  CAxisTrans trans(GlobalAxis(AxisType::Cylindrical));
  trans.Assign(CDirCos({0, 0, 1}, {1, 0, 0}), {0, 0, 5});
  // x along Z, y along X, z along Y
  EXPECT_TRUE(IsNear(trans.Global2User({2, 3, 9}), {4, 2, 3}));
  trans.Assign(TurnedAxis(AxisType::Cylindrical));
  EXPECT_TRUE(IsNear(trans.Global2User({-2, 2, 8}), {3, kPi / 2, 5}));
}

}  // namespace
}  // namespace Tarvex::Util
