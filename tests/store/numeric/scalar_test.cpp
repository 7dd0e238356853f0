#include "store/numeric/scalar.h"

#include <gtest/gtest.h>

#include <limits>
#include <stdexcept>

#include "store/numeric/vec.h"

namespace Tarvex::ScalarTest {
namespace {

std::string FaultOf(double cosine) {
  try {
    ArcCos(cosine);
  } catch (std::runtime_error const& fault) {
    return fault.what();
  }
  return {};
}

TEST(ArcCos, IsTheAngleOfACosine) {
  EXPECT_NEAR(ArcCos(0.5), kPi / 3, 1e-15);
  EXPECT_NEAR(ArcCos(-0.5), 2 * kPi / 3, 1e-15);
}

TEST(ArcCos, TakesWhatIsBeyondOneByRoundingAsOne) {
  EXPECT_EQ(ArcCos(1), 0);
  EXPECT_EQ(ArcCos(1.000001), 0);
  EXPECT_EQ(ArcCos(-1), kPi);
  EXPECT_EQ(ArcCos(-1.000001), kPi);
}

TEST(ArcCos, RefusesMore) {
  std::string const text = "ArcCos: function value out of range";
  EXPECT_EQ(FaultOf(1.0000011), text);
  EXPECT_EQ(FaultOf(-1.0000011), text);
  EXPECT_EQ(FaultOf(std::numeric_limits<double>::quiet_NaN()), text);
}

TEST(IsAboutEqual, GoesByATenThousandthOfTheMeanSize) {
  // (100 + 100.01) * 0.01 / 200 = 0.0100005, above 0.01 and below 0.0101.
  EXPECT_TRUE(IsAboutEqual(100, 100.01));
  EXPECT_FALSE(IsAboutEqual(100, 100.0101));
  EXPECT_TRUE(IsAboutEqual(-100, -100.01));
  EXPECT_FALSE(IsAboutEqual(100, -100));
}

TEST(IsAboutEqual, LetsSmallNumbersDifferByLessThanAMillionth) {
  EXPECT_TRUE(IsAboutEqual(0, 0.9e-6));
  EXPECT_FALSE(IsAboutEqual(0, 1e-6));
  EXPECT_TRUE(IsAboutEqual(0, 0));
}

TEST(IsAboutEqual, TakesTheSameNumberAsEqualHoweverLarge) {
  double const infinity = std::numeric_limits<double>::infinity();
  EXPECT_TRUE(IsAboutEqual(infinity, infinity));
  EXPECT_FALSE(IsAboutEqual(std::numeric_limits<double>::quiet_NaN(), 1));
}

}  // namespace
}  // namespace Tarvex::ScalarTest
