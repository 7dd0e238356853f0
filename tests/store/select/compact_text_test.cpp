#include "store/select/compact_text.h"

#include <gtest/gtest.h>

#include <vector>

#include "tests/support/print.h"

namespace Tarvex::CompactTextTest {
namespace {

CString Of(std::vector<int> const& numbers) { return CompactText(numbers); }

TEST(CompactText, WritesRunsOfThreeOrMoreAsRanges) {
  EXPECT_EQ(Of({}), L"");
  EXPECT_EQ(Of({4}), L"4");
  EXPECT_EQ(Of({4, 5}), L"4 5");
  EXPECT_EQ(Of({4, 5, 6}), L"4 to 6");
  EXPECT_EQ(Of({1, 2, 3, 4, 5, 8}), L"1 to 5 8");
  EXPECT_EQ(Of({1, 2, 4, 5, 6, 99999999, 100000000}), L"1 2 4 to 6 99999999 100000000");
}

TEST(CompactText, WritesRunsAsTheirNumbers) {
  EXPECT_EQ(CompactText(Intervals{{1, 5}, {8, 8}, {10, 11}}), L"1 to 5 8 10 11");
}

}  // namespace
}  // namespace Tarvex::CompactTextTest
