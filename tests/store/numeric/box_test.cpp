#include "store/numeric/box.h"

#include <gtest/gtest.h>

#include "tests/support/print.h"

namespace Tarvex::Util::BoxTest {
namespace {

CBox3D Box() {
  CBox3D box;
  box.AddPoint({1, 8, -2});
  box.AddPoint({5, 2, -6});
  box.AddPoint({3, 3, -3});
  return box;
}

TEST(Box3D, IsEmptyAtFirst) {
  CBox3D const box;
  EXPECT_TRUE(box.IsEmpty());
  EXPECT_FALSE(box.PointInside({}));
  EXPECT_EQ(box.Centre(), Vec3<double>());
}

TEST(Box3D, HoldsAPointAwayFromTheOriginAlone) {
  CBox3D box;
  box.AddPoint({1, 2, -3});
  EXPECT_FALSE(box.IsEmpty());
  EXPECT_EQ(box.Min(), (Vec3<double>{1, 2, -3}));
  EXPECT_EQ(box.Max(), (Vec3<double>{1, 2, -3}));
  EXPECT_TRUE(box.PointInside({1, 2, -3}));
}

TEST(Box3D, HasLimitsByDirection) {
  auto const box = Box();
  EXPECT_EQ(box.Min(), (Vec3<double>{1, 2, -6}));
  EXPECT_EQ(box.Max(), (Vec3<double>{5, 8, -2}));
  EXPECT_EQ(box.Left(), 1);
  EXPECT_EQ(box.Right(), 5);
  EXPECT_EQ(box.Front(), 2);
  EXPECT_EQ(box.Back(), 8);
  EXPECT_EQ(box.Centre(), (Vec3<double>{3, 5, -4}));
}

TEST(Box3D, HoldsItsBoundaryAndNothingBeyond) {
  auto const box = Box();
  EXPECT_TRUE(box.PointInside({3, 5, -4}));
  EXPECT_TRUE(box.PointInside({1, 2, -6}));
  EXPECT_TRUE(box.PointInside({5, 8, -2}));
  for (double const sign : {-1.0, 1.0}) {
    EXPECT_FALSE(box.PointInside({3 + sign * 2.001, 5, -4}));
    EXPECT_FALSE(box.PointInside({3, 5 + sign * 3.001, -4}));
    EXPECT_FALSE(box.PointInside({3, 5, -4 + sign * 2.001}));
  }
}

}  // namespace
}  // namespace Tarvex::Util::BoxTest
