#include "store/select/list_scan.h"

#include <gtest/gtest.h>

#include "tests/support/print.h"

namespace Tarvex::Data::ListScanTest {
namespace {

using Part = ListElement::Part;
using Item = ListElement::Item;

std::vector<ListElement> Scan(std::vector<int> const& words) {
  ListTokens const tokens{words, {}};
  ListScanner scanner(tokens);
  std::vector<ListElement> elements;
  ListElement element;
  while (scanner.Next(element)) elements.push_back(element);
  return elements;
}

TEST(ListScan, GroupsTheWordsOfAnItem) {
  // 3 to * step 2, PB4, "...", all
  auto const elements = Scan({3, kTo, kHighest, kStep, 2, -16, 4, kString, kAll, kString});
  ASSERT_EQ(elements.size(), 5U);
  EXPECT_EQ(elements[0].item, Item::Numbers);
  EXPECT_TRUE(elements[0].IsRange());
  EXPECT_EQ(elements[0].first, 3);
  EXPECT_EQ(elements[0].last, kHighest);
  EXPECT_EQ(elements[0].step, 2);
  EXPECT_EQ(elements[1].item, Item::Word);
  EXPECT_EQ(elements[1].token, -16);
  EXPECT_EQ(elements[1].first, 4);
  EXPECT_EQ(elements[1].last, 4);
  EXPECT_FALSE(elements[1].IsRange());
  EXPECT_EQ(elements[2].item, Item::Name);
  EXPECT_EQ(elements[2].name, 0U);
  EXPECT_EQ(elements[3].item, Item::All);
  EXPECT_EQ(elements[4].name, 1U);
  std::size_t const ends[] = {5, 7, 8, 9, 10};
  std::size_t begin = 0;
  for (std::size_t i = 0; i < 5; ++i) {
    EXPECT_EQ(elements[i].begin, begin);
    EXPECT_EQ(elements[i].end, ends[i]);
    begin = ends[i];
  }
}

TEST(ListScan, TellsOperatorsAndParentheses) {
  Part const parts[] = {Part::And, Part::Or, Part::Not, Part::Open, Part::Close};
  int const words[] = {kAnd, kOr, kNot, kOpen, kClose};
  for (std::size_t i = 0; i < 5; ++i) {
    auto const elements = Scan({words[i]});
    ASSERT_EQ(elements.size(), 1U);
    EXPECT_EQ(elements[0].part, parts[i]);
  }
  EXPECT_EQ(Scan({5})[0].part, Part::Item);
}

TEST(ListScan, TakesAWordWithoutItsNumberForNothing) {
  auto const elements = Scan({-16, kOr, kSavedList});
  ASSERT_EQ(elements.size(), 3U);
  for (auto const i : {0U, 2U}) {
    EXPECT_EQ(elements[i].part, Part::Item);
    EXPECT_EQ(elements[i].item, Item::Nothing);
  }
  EXPECT_EQ(Scan({kNone})[0].item, Item::Nothing);
}

TEST(ListScan, TellsTheRangeBehindAWord) {
  auto const elements = Scan({-16, 2, kTo, 5});
  ASSERT_EQ(elements.size(), 1U);
  EXPECT_EQ(elements[0].first, 2);
  EXPECT_EQ(elements[0].last, 5);
  EXPECT_FALSE(elements[0].IsRange());
}

TEST(ListScan, PassesOverWhatMakesNoSenseAndTellsTheFirst) {
  ListTokens const tokens{{kTo, 4, -25, 5, kStep}, {}};
  ListScanner scanner(tokens);
  ListElement element;
  std::vector<int> numbers;
  EXPECT_EQ(scanner.Fault(), nullptr);
  while (scanner.Next(element)) numbers.push_back(element.first);
  EXPECT_EQ(numbers, (std::vector{4, 5}));
  EXPECT_STREQ(scanner.Fault(), "a range without its begin");
  EXPECT_EQ(scanner.FaultWord(), 0U);
}

}  // namespace
}  // namespace Tarvex::Data::ListScanTest
