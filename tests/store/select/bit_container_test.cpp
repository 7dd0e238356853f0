#include "store/select/bit_container.h"

#include <gtest/gtest.h>

#include <set>

#include "tests/support/matchers.h"
#include "tests/support/plain_list.h"

namespace Tarvex::BitContainerTest {
namespace {

using MyIterator = CBitContainer::MyIterator;

CBitContainer Some() { return CBitContainer({{2, 4}, {9, 9}, {100, 101}}); }

std::vector<int> Walk(CBitContainer const& container, int start) {
  std::vector<int> numbers;
  for (MyIterator at(container, start); at != MyIterator(container, 0x7FFFFFFF); ++at)
    numbers.push_back(*at);
  return numbers;
}

TEST(BitContainer, IsWalkedFromItsLowestNumberUpwards) {
  auto const container = Some();
  EXPECT_EQ(container.Lowest(), 2);
  EXPECT_EQ(Walk(container, container.Lowest()), (std::vector{2, 3, 4, 9, 100, 101}));
  EXPECT_EQ(std::vector<int>(container.begin(), container.end()),
            (std::vector{2, 3, 4, 9, 100, 101}));
  EXPECT_EQ(Walk(container, 3), (std::vector{3, 4, 9, 100, 101}));
  auto at = container.begin();
  EXPECT_EQ(*at++, 2);
  EXPECT_EQ(*at, 3);
}

TEST(BitContainer, FindsANumberOrTheEnd) {
  auto const container = Some();
  EXPECT_EQ(*container.find(4), 4);
  EXPECT_EQ(*++container.find(4), 9);
  for (int const number : {-1, 0, 1, 5, 8, 10, 102}) {
    EXPECT_EQ(container.find(number), container.end()) << number;
    EXPECT_FALSE(container.IsItemIncluded(number)) << number;
  }
  EXPECT_TRUE(container.IsItemIncluded(101));
}

TEST(BitContainer, IsEmptyAtFirst) {
  CBitContainer const container;
  EXPECT_TRUE(container.IsEmpty());
  EXPECT_EQ(container.Lowest(), 0x7FFFFFFF);
  EXPECT_EQ(container.Highest(), 0);
  EXPECT_EQ(container.NumItem(), 0);
  EXPECT_EQ(Walk(container, container.Lowest()), std::vector<int>());
  EXPECT_EQ(container.find(1), container.end());
}

TEST(BitContainer, GivesItsNumbersByTheirPlace) {
  auto const container = Some();
  EXPECT_EQ(container.NumItem(), 6);
  EXPECT_EQ(container.Highest(), 101);
  std::vector<int> numbers;
  for (int i = 0; i < 6; ++i) numbers.push_back(container.Item(i));
  EXPECT_EQ(numbers, (std::vector{2, 3, 4, 9, 100, 101}));
  for (int const i : {-1, 6})
    EXPECT_EQ(Testing::OutOfRangeText([&] { container.Item(i); }), "invalid vector subscript");
}

TEST(BitContainer, IsCopied) {
  auto const container = Some();
  auto copy = container;
  EXPECT_EQ(copy, container);
  copy = CBitContainer({{1, 1}});
  EXPECT_FALSE(copy == container);
  EXPECT_EQ(container.NumItem(), 6);
}

TEST(BitContainer, HoldsWhatASetHolds) {
  Testing::Random random(9);
  for (int i = 0; i < 300; ++i) {
    std::set<int> set;
    for (int count = random.Int(0, 60); count > 0; --count) set.insert(random.Int(1, 90));
    CBitContainer const container(Testing::RunsOf(set));
    EXPECT_EQ(std::set<int>(container.begin(), container.end()), set);
    EXPECT_EQ(container.NumItem(), static_cast<int>(set.size()));
    EXPECT_EQ(Testing::NumbersOf(container.Numbers()), set);
    int place = 0;
    for (int const number : set) {
      EXPECT_EQ(container.Item(place++), number);
      EXPECT_EQ(*container.find(number), number);
    }
  }
}

}  // namespace
}  // namespace Tarvex::BitContainerTest
