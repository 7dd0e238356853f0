#include "workbench/file/json_number.h"

#include <gtest/gtest.h>

#include <bit>
#include <cstdint>
#include <limits>
#include <random>
#include <string>

namespace Tarvex::Workbench::JsonNumberTest {
namespace {

std::string Shortest(double value) {
  std::string text;
  AppendJsonNumber(text, value);
  return text;
}

double ValueOf(std::string const& text) {
  return JsonNumberValue(text.data(), text.data() + text.size());
}

/// Number of characters at the start of a text that are a number, -1 for none.
std::ptrdiff_t NumberSize(std::string const& text) {
  auto const* end = EndOfJsonNumber(text.c_str());
  return end == nullptr ? -1 : end - text.c_str();
}

TEST(EndOfJsonNumber, TakesTheStrictGrammar) {
  for (auto const* text : {"0", "-0", "7", "120", "-1.5", "0.25", "1e5", "1E+05", "2.5e-300"})
    EXPECT_EQ(NumberSize(text), static_cast<std::ptrdiff_t>(std::string(text).size())) << text;
}

TEST(EndOfJsonNumber, StopsBehindTheNumber) {
  EXPECT_EQ(NumberSize("12,"), 2);
  EXPECT_EQ(NumberSize("012"), 1);  // a leading zero is a number of its own
  EXPECT_EQ(NumberSize("1.5.5"), 3);
}

TEST(EndOfJsonNumber, RefusesWhatOtherLanguagesTake) {
  for (auto const* text : {"", "-", "+1", ".5", "5.", "1e", "1e+", "-.5", "x", "Infinity"})
    EXPECT_EQ(NumberSize(text), -1) << text;
}

TEST(JsonNumberValue, TellsTooLargeFromTooSmall) {
  double const infinite = std::numeric_limits<double>::infinity();
  EXPECT_EQ(ValueOf("1e400"), infinite);
  EXPECT_EQ(ValueOf("-1e400"), -infinite);
  EXPECT_EQ(ValueOf("1" + std::string(400, '0')), infinite);
  EXPECT_EQ(ValueOf("0.001e999999999999999999999"), infinite);
  EXPECT_EQ(ValueOf("1e-400"), 0);
  EXPECT_TRUE(std::signbit(ValueOf("-1e-400")));
  EXPECT_EQ(ValueOf("0." + std::string(400, '0') + "1"), 0);
  EXPECT_EQ(ValueOf("1" + std::string(400, '0') + "e-800"), 0);  // 1e400 times 1e-800
  EXPECT_EQ(ValueOf("0." + std::string(400, '0') + "1e800"), infinite);
  EXPECT_EQ(ValueOf("0e999"), 0);
}

TEST(JsonNumberValue, KeepsTheLastBitOfSmallNumbers) {
  EXPECT_EQ(ValueOf("5e-324"), std::numeric_limits<double>::denorm_min());
  EXPECT_EQ(ValueOf("1.7976931348623157e308"), std::numeric_limits<double>::max());
}

TEST(AppendJsonNumber, IsTheShortestText) {
  EXPECT_EQ(Shortest(0), "0");
  EXPECT_EQ(Shortest(-0.0), "-0");
  EXPECT_EQ(Shortest(3.2), "3.2");
  EXPECT_EQ(Shortest(99999), "99999");
  EXPECT_EQ(Shortest(-99999), "-99999");
  EXPECT_EQ(Shortest(100000), "1e+05");  // five characters against six
  EXPECT_EQ(Shortest(123456), "123456");
  EXPECT_EQ(Shortest(1.0 / 3.0), "0.3333333333333333");
  EXPECT_EQ(Shortest(1e-7), "1e-07");
}

TEST(AppendJsonNumber, ReadsBackTheSameBits) {
  std::mt19937_64 engine(20);  // any seed
  for (int i = 0; i < 20000; ++i) {
    auto const value = std::bit_cast<double>(engine());
    if (!std::isfinite(value)) continue;
    auto const text = Shortest(value);
    EXPECT_EQ(NumberSize(text), static_cast<std::ptrdiff_t>(text.size())) << text;
    EXPECT_EQ(std::bit_cast<std::uint64_t>(ValueOf(text)), std::bit_cast<std::uint64_t>(value))
        << text;
  }
}

TEST(AppendJsonNumber, WritesWholeNumbersToTheirEnds) {
  std::string text;
  AppendJsonNumber(text, std::numeric_limits<int>::min());
  AppendJsonNumber(text, std::numeric_limits<int>::max());
  EXPECT_EQ(text, "-21474836482147483647");
}

}  // namespace
}  // namespace Tarvex::Workbench::JsonNumberTest
