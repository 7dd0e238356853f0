#include "store/numeric/vec.h"

#include <gtest/gtest.h>

#include "tests/support/print.h"

namespace Tarvex::VecTest {
namespace {

using V = Vec3<double>;

TEST(Vec3, IsTheZeroVectorAtFirst) { EXPECT_EQ(V(), (V{0, 0, 0})); }

TEST(Vec3, AddsSubtractsAndScales) {
  V const a{1, 2, 3};
  V const b{4, -5, 6};
  EXPECT_EQ(a + b, (V{5, -3, 9}));
  EXPECT_EQ(a - b, (V{-3, 7, -3}));
  EXPECT_EQ(-a, (V{-1, -2, -3}));
  EXPECT_EQ(a * 2.0, (V{2, 4, 6}));
  EXPECT_EQ(2.0 * a, (V{2, 4, 6}));
  EXPECT_EQ(b / 2.0, (V{2, -2.5, 3}));
  V sum = a;
  sum += b;
  EXPECT_EQ(sum, a + b);
}

TEST(Vec3, HasDotAndCrossProductAndLength) {
  EXPECT_EQ(Dot(V{1, 2, 3}, V{4, -5, 6}), 12);  // 4 - 10 + 18
  // (2 * 6 - 3 * -5, 3 * 4 - 1 * 6, 1 * -5 - 2 * 4)
  EXPECT_EQ(Cross(V{1, 2, 3}, V{4, -5, 6}), (V{27, 6, -13}));
  EXPECT_EQ(Cross(V{1, 0, 0}, V{0, 1, 0}), (V{0, 0, 1}));
  EXPECT_EQ(Length(V{2, -3, 6}), 7);  // 4 + 9 + 36 = 49
}

TEST(Vec3, ComparesItsComponents) {
  EXPECT_NE((V{1, 2, 3}), (V{0, 2, 3}));
  EXPECT_NE((V{1, 2, 3}), (V{1, 0, 3}));
  EXPECT_NE((V{1, 2, 3}), (V{1, 2, 0}));
}

TEST(Vec2, AddsSubtractsAndScales) {
  using W = Vec2<double>;
  EXPECT_EQ((W{1, 2} + W{3, -5}), (W{4, -3}));
  EXPECT_EQ((W{1, 2} - W{3, -5}), (W{-2, 7}));
  EXPECT_EQ((W{1, 2} * 3.0), (W{3, 6}));
  EXPECT_EQ((3.0 * W{1, 2}), (W{3, 6}));
  EXPECT_EQ(Dot(W{1, 2}, W{3, -5}), -7);
  EXPECT_EQ(Length(W{3, -4}), 5);
}

TEST(Unit, HasLengthOne) {
  EXPECT_EQ(Unit({0, -5, 0}), (V{0, -1, 0}));
  EXPECT_EQ(Unit({3, 0, 4}), (V{0.6, 0, 0.8}));
}

TEST(Unit, IsTheZeroVectorBelowItsBound) {
  EXPECT_EQ(Unit({}), V());
  EXPECT_EQ(Unit({1e-16, 0, 0}), V());
  EXPECT_EQ(Unit({1e-15, 0, 0}), (V{1, 0, 0}));
  EXPECT_EQ(Unit({0.5, 0, 0}, 0.6), V());
  EXPECT_EQ(Unit({0.5, 0, 0}, 0.5), (V{1, 0, 0}));
}

}  // namespace
}  // namespace Tarvex::VecTest
