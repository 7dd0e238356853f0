#include "store/geometry/rounding.h"

#include <gtest/gtest.h>

#include <cmath>
#include <cstdio>
#include <limits>

#include "tests/support/random_model.h"

namespace Tarvex {
namespace {

double RoundedTo(double value, int digits) { return Round(Vec3<double>{0, value, 0}, digits).y; }

TEST(Round, TakesDecimals) {
  EXPECT_EQ(Round(12.3456, 2), 12.35);
  EXPECT_EQ(Round(-12.3456, 2), -12.35);
  EXPECT_EQ(Round(12.3456, 0), 12);
  EXPECT_EQ(Round(0.004, 2), 0);
  EXPECT_EQ(Round(57.29577951308232, 2), 57.3);
  EXPECT_EQ(Round(1e-20, 22), 1e-20);
  EXPECT_EQ(Round(1.26e-25, 26), 1.3e-25);
  EXPECT_EQ(Round(1.26e-25, 2), 0);
  EXPECT_EQ(Round(17.6, -3), 18);
}

TEST(Round, TakesTheValueAsItIs) {
  // 1.005 is 1.00499999999999989..., 1.115 is 1.11499999999999999..., 2.675 is 2.67499999...
  EXPECT_EQ(Round(1.005, 2), 1.0);
  EXPECT_EQ(Round(1.115, 2), 1.11);
  EXPECT_EQ(Round(2.675, 2), 2.67);
  // These are halves to the last bit, and go away from 0.
  EXPECT_EQ(Round(0.125, 2), 0.13);
  EXPECT_EQ(Round(-0.375, 2), -0.38);
  EXPECT_EQ(Round(2.5, 0), 3);
  EXPECT_EQ(Round(std::nextafter(0.5, 0), 0), 0);
  EXPECT_EQ(RoundedTo(1.25, 2), 1.3);
}

TEST(Round, LeavesHugeAndStrangeNumbers) {
  double const highest = std::numeric_limits<double>::max();
  double const inf = std::numeric_limits<double>::infinity();
  EXPECT_EQ(Round(1e300, 2), 1e300);
  EXPECT_EQ(Round(-highest, 22), -highest);
  EXPECT_EQ(Round(9007199254740993.0, 0), 9007199254740993.0);
  EXPECT_EQ(Round(4503599627370495.5, 0), 4503599627370496.0);
  EXPECT_EQ(Round(inf, 2), inf);
  EXPECT_EQ(Round(-inf, 30), -inf);
  EXPECT_TRUE(std::isnan(Round(std::nan(""), 2)));
  EXPECT_EQ(Round(1.5, 2000), 1.5);
  EXPECT_EQ(Round(4.9406564584124654e-324, 1074), 4.9406564584124654e-324);
  EXPECT_EQ(Round(0.0, 5), 0.0);
  EXPECT_TRUE(std::signbit(Round(-0.0, 5)));
}

TEST(Round, TakesSignificantDigitsOfEachComponent) {
  auto const rounded = Round(Vec3<double>{123456.789, -0.000123456789, 9.9996}, 4);
  EXPECT_EQ(rounded.x, 123500);
  EXPECT_EQ(rounded.y, -0.0001235);
  EXPECT_EQ(rounded.z, 10);
}

TEST(Round, TakesRoundingAwayAtFifteenDigits) {
  EXPECT_EQ(RoundedTo(0.1 + 0.2, 15), 0.3);
  EXPECT_EQ(RoundedTo(1.1 * 3, 15), 3.3);
  EXPECT_EQ(RoundedTo(999.9999999999999, 15), 1000);
  EXPECT_EQ(RoundedTo(-0.30000000000000004, 15), -0.3);
  EXPECT_EQ(RoundedTo(1e22 / 3, 15), 3.33333333333333e21);
  EXPECT_EQ(RoundedTo(1e-22 / 3, 15), 3.33333333333333e-23);
}

TEST(Round, TakesDigitsOfHugeTinyAndStrangeNumbers) {
  double const inf = std::numeric_limits<double>::infinity();
  EXPECT_EQ(RoundedTo(1.23456e300, 3), 1.23e300);
  EXPECT_EQ(RoundedTo(1.23456e-300, 3), 1.23e-300);
  EXPECT_EQ(RoundedTo(1.7976931348623157e308, 2), 1.7976931348623157e308);  // 1.8e308 is none
  EXPECT_EQ(RoundedTo(4.9406564584124654e-324, 15), 4.9406564584124654e-324);
  EXPECT_EQ(RoundedTo(0, 15), 0);
  EXPECT_EQ(RoundedTo(inf, 15), inf);
  EXPECT_EQ(RoundedTo(-inf, 3), -inf);
  EXPECT_TRUE(std::isnan(RoundedTo(std::nan(""), 15)));
  EXPECT_EQ(RoundedTo(0.1 + 0.2, 17), 0.1 + 0.2);
  EXPECT_EQ(RoundedTo(0.1 + 0.2, 99), 0.1 + 0.2);
  EXPECT_EQ(RoundedTo(66, 0), 70);
  EXPECT_EQ(RoundedTo(1000, 1), 1000);
  EXPECT_EQ(RoundedTo(0.001, 1), 0.001);
}

// The C library prints the digits of the exact value; only halves could differ, and random numbers
// of 53 bits are none.
TEST(Round, AgreesWithPrintedNumbers) {
  Testing::Random random(5);
  char text[512];
  for (int i = 0; i < 20000; ++i) {
    double const value =
        random.Real(-1, 1) * std::pow(10, random.Int(-30, 30)) * (1 + random.Real(0, 1e-9));
    int const digits = random.Int(1, 17);
    std::snprintf(text, sizeof text, "%.*e", digits - 1, value);
    ASSERT_EQ(RoundedTo(value, digits), std::strtod(text, nullptr)) << text;
    int const decimals = random.Int(0, 25);
    std::snprintf(text, sizeof text, "%.*f", decimals, value);
    ASSERT_EQ(Round(value, decimals), std::strtod(text, nullptr)) << text;
  }
}

}  // namespace
}  // namespace Tarvex
