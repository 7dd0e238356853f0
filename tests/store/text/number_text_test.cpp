#include "store/text/number_text.h"

#include <gtest/gtest.h>
#include <rapidcheck.h>

#include <bit>
#include <climits>
#include <cstdint>
#include <cstdlib>
#include <limits>

namespace Tarvex::NumberTextTest {
namespace {

TEST(StringTo, ReadsAWholeNumberThatIsAllOfTheText) {
  struct Row {
    wchar_t const* text;
    int value;
  };
  for (auto const& [text, value] :
       {Row{L"0", 0}, Row{L"17", 17}, Row{L"-5", -5}, Row{L"+5", 5}, Row{L"007", 7},
        Row{L"2147483647", INT_MAX}, Row{L"-2147483648", INT_MIN}}) {
    int read = 99;
    EXPECT_TRUE(StringTo(text, read)) << CString(text).ToUtf8();
    EXPECT_EQ(read, value);
  }
}

TEST(StringTo, RefusesAnyOtherTextAndKeepsTheValue) {
  for (auto const* text : {L"", L" ", L"a", L"5a", L" 5", L"5 ", L"1.5", L"+", L"-", L"+-5", L"--5",
                           L"2147483648", L"99999999999", L"\u0663"}) {
    int read = 99;
    EXPECT_FALSE(StringTo(text, read)) << CString(text).ToUtf8();
    EXPECT_EQ(read, 99);
  }
}

TEST(StringFrom, WritesWholeNumbers) {
  EXPECT_EQ(StringFrom(0), L"0");
  EXPECT_EQ(StringFrom(-12), L"-12");
  EXPECT_EQ(StringFrom(INT_MIN), L"-2147483648");
}

TEST(StringFrom, WritesTheShortestTextThatReadsBack) {
  EXPECT_EQ(StringFrom(0.5), L"0.5");
  EXPECT_EQ(StringFrom(0.1), L"0.1");
  EXPECT_EQ(StringFrom(-2.0), L"-2");
  EXPECT_EQ(StringFrom(1e100), L"1e+100");
  EXPECT_EQ(StringFrom(0.0125), L"0.0125");
  rc::check("reads back to the bit", [](std::uint64_t bits) {
    auto const value = std::bit_cast<double>(bits);
    RC_PRE(value == value);
    auto const read = std::strtod(StringFrom(value).ToUtf8().c_str(), nullptr);
    RC_ASSERT(std::bit_cast<std::uint64_t>(read) == bits);
  });
}

TEST(MakeNumString, PutsABlankBetween) {
  EXPECT_EQ(MakeNumString(L"Analysis Case", 5), L"Analysis Case 5");
  EXPECT_EQ(MakeNumString(L"", 5), L" 5");
}

TEST(ReplaceHash, PutsTheNumberInThePlaceOfEachHash) {
  EXPECT_EQ(Util::ReplaceHash(L"Analysis Task #", 12), L"Analysis Task 12");
  EXPECT_EQ(Util::ReplaceHash(L"#: case #", 3), L"3: case 3");
  EXPECT_EQ(Util::ReplaceHash(L"plain", 3), L"plain");
  EXPECT_EQ(Util::ReplaceHash(L"", 3), L"");
}

TEST(ColString, NamesColumnsAsSpreadsheetsDo) {
  EXPECT_EQ(Util::ColString(1), L"A");
  EXPECT_EQ(Util::ColString(26), L"Z");
  EXPECT_EQ(Util::ColString(27), L"AA");
  EXPECT_EQ(Util::ColString(52), L"AZ");
  EXPECT_EQ(Util::ColString(53), L"BA");
  EXPECT_EQ(Util::ColString(702), L"ZZ");
  EXPECT_EQ(Util::ColString(703), L"AAA");
  EXPECT_EQ(Util::ColString(0), L"");
  EXPECT_EQ(Util::ColString(-1), L"");
}

}  // namespace
}  // namespace Tarvex::NumberTextTest
