#include "store/select/set.h"

#include <gtest/gtest.h>

#include <climits>
#include <set>

#include "tests/support/matchers.h"
#include "tests/support/random_model.h"

namespace Tarvex::Util::SetTest {
namespace {

CSet Of(std::vector<int> const& numbers) {
  CSet set(SelElement);
  for (int const n : numbers) set.AddTo(n);
  return set;
}

std::vector<int> Walk(CSet const& set) {
  std::vector<int> numbers;
  for (auto at = set.begin(); at != set.end(); ++at) numbers.push_back(*at);
  return numbers;
}

TEST(Set, IsEmptyAtFirst) {
  CSet const set(SelMember);
  EXPECT_EQ(set.TypeOf(), SelMember);
  EXPECT_TRUE(set.IsEmpty());
  EXPECT_EQ(set.NumItem(), 0);
  EXPECT_EQ(set.LowestItem(), 0);
  EXPECT_EQ(set.HighestItem(), 0);
  EXPECT_EQ(Walk(set), std::vector<int>());
  EXPECT_EQ(CSet().TypeOf(), SelNone);
}

TEST(Set, WalksInAscendingOrderAndHoldsANumberOnce) {
  auto const set = Of({64, 1, 63, 65, 1000, 1, 128});
  EXPECT_EQ(Walk(set), (std::vector{1, 63, 64, 65, 128, 1000}));
  EXPECT_EQ(set.NumItem(), 6);
  EXPECT_EQ(set.LowestItem(), 1);
  EXPECT_EQ(set.HighestItem(), 1000);
}

TEST(Set, StepsPastANumberAndGivesItBack) {
  auto const set = Of({3, 9});
  auto at = set.begin();
  EXPECT_EQ(*at++, 3);
  EXPECT_EQ(*at, 9);
  EXPECT_EQ(++at, set.end());
}

TEST(Set, AnswersForAnyNumber) {
  auto const set = Of({5});
  EXPECT_TRUE(set.IsItemIncluded(5));
  for (int const n : {4, 6, 0, -5, INT_MIN, INT_MAX, 100000001})
    EXPECT_FALSE(set.IsItemIncluded(n)) << n;
}

TEST(Set, TakesNumbersOut) {
  auto set = Of({5, 9});
  for (int const n : {9, 7, 0, -1, INT_MIN, INT_MAX}) set.RemoveFrom(n);
  EXPECT_EQ(Walk(set), std::vector{5});
  EXPECT_EQ(set.HighestItem(), 5);
  set.RemoveFrom(5);
  EXPECT_TRUE(set.IsEmpty());
  EXPECT_EQ(set.HighestItem(), 0);
}

TEST(Set, RefusesWhatIsNoRecordNumber) {
  auto set = Of({5});
  for (int const n : {0, -1, INT_MIN, 100000001, INT_MAX})
    EXPECT_EQ(Testing::OutOfRangeText([&] { set.AddTo(n); }),
              "set: number " + std::to_string(n) + " is not a record number");
  EXPECT_EQ(Walk(set), std::vector{5});
  set.AddTo(100000000);
  EXPECT_EQ(set.HighestItem(), 100000000);
}

TEST(Set, IsEqualByKindAndNumbersWhateverItHeldBefore) {
  auto wide = Of({2, 90000});
  wide.RemoveFrom(90000);
  EXPECT_EQ(wide, Of({2}));
  EXPECT_FALSE(wide == Of({3}));
  EXPECT_FALSE(wide == Of({2, 3}));
  CSet nodes(SelNode);
  nodes.AddTo(2);
  EXPECT_FALSE(wide == nodes);
}

TEST(Set, CopiesAndMoves) {
  auto set = Of({2, 70});
  CSet const copy(set);
  set.AddTo(3);
  EXPECT_EQ(copy, Of({2, 70}));
  CSet moved(std::move(set));
  EXPECT_EQ(moved, Of({2, 3, 70}));
  CSet assigned(SelNode);
  assigned = copy;
  EXPECT_EQ(assigned, copy);
  assigned = std::move(moved);
  EXPECT_EQ(assigned, Of({2, 3, 70}));
}

TEST(Set, CanBeUsedAgainAfterAMove) {
  auto set = Of({2, 70});
  CSet const moved(std::move(set));
  set.AddTo(5);  // NOLINT: moved from
  EXPECT_TRUE(set.IsItemIncluded(5));
  EXPECT_FALSE(set.IsItemIncluded(2));
  CSet target;
  target = std::move(set);
  set.AddTo(6);  // NOLINT: moved from
  EXPECT_TRUE(set.IsItemIncluded(6));
  EXPECT_FALSE(set.IsItemIncluded(5));
}

/// A set whose membership test is another one.
class EvenNumbers : public CSet {
 public:
  bool IsItemIncluded(int number) const override { return number % 2 == 0; }
};

TEST(Set, HasAMembershipTestThatCanBeReplaced) {
  EvenNumbers const even;
  CSet const& set = even;
  EXPECT_TRUE(set.IsItemIncluded(4));
  EXPECT_FALSE(set.IsItemIncluded(5));
}

TEST(Set, AgreesWithAStandardSetUnderRandomOperations) {
  Testing::Random random(11);
  CSet set(SelNode);
  std::set<int> plain;
  for (int i = 0; i < 5000; ++i) {
    int const n = random.Int(1, random.Percent(95) ? 300 : 5000);
    if (random.Percent(60)) {
      set.AddTo(n);
      plain.insert(n);
    } else {
      set.RemoveFrom(n);
      plain.erase(n);
    }
    ASSERT_EQ(set.NumItem(), static_cast<int>(plain.size()));
    ASSERT_EQ(set.HighestItem(), plain.empty() ? 0 : *plain.rbegin());
    ASSERT_EQ(set.LowestItem(), plain.empty() ? 0 : *plain.begin());
    ASSERT_EQ(set.IsEmpty(), plain.empty());
    if (i % 100 != 0) continue;
    ASSERT_EQ(Walk(set), std::vector<int>(plain.begin(), plain.end()));
  }
}

TEST(Set, IsMadeOfRuns) {
  EXPECT_EQ(CSet(SelElement, Intervals{{-3, 2}, {63, 66}, {1000, 1000}}),
            Of({1, 2, 63, 64, 65, 66, 1000}));
  EXPECT_EQ(CSet(SelElement, Intervals()), Of({}));
  EXPECT_NE(Testing::OutOfRangeText([] { CSet(SelElement, Intervals{{1, 100000001}}); }), "");
}

TEST(Set, GivesItsRuns) {
  EXPECT_EQ(Of({1, 2, 63, 64, 65, 66, 1000}).Runs(), (Intervals{{1, 2}, {63, 66}, {1000, 1000}}));
  EXPECT_TRUE(Of({}).Runs().IsEmpty());
}

TEST(Set, TurnsWhatIsInsideBoundsAround) {
  auto set = Of({2, 5, 6, 90});
  set.Invert(4, 8);
  EXPECT_EQ(set, Of({2, 4, 7, 8, 90}));
  set.Invert(4, 8);
  EXPECT_EQ(set, Of({2, 5, 6, 90}));
  set.Invert(8, 4);
  EXPECT_EQ(set, Of({2, 5, 6, 90}));
  set.Invert(0, 3);
  EXPECT_EQ(set, Of({1, 3, 5, 6, 90}));
  set.Invert(89, 200);
  EXPECT_EQ(set.NumItem(), 4 + 111);  // 89 and 91 to 200 come, 90 goes
}

TEST(Set, WritesItsNumbersCompactly) {
  auto const set = Of({1, 2, 3, 4, 5, 8, 10, 11});
  EXPECT_EQ(set.String(-1, L""), L"1 to 5 8 10 11");
  EXPECT_EQ(set.String(), L"1 to 5 8 10 11");
  EXPECT_EQ(set.String(-1, L"nodes "), L"nodes 1 to 5 8 10 11");
  EXPECT_EQ(set.String(4, L""), L"1 to 4 ...");
  EXPECT_EQ(set.String(8, L""), L"1 to 5 8 10 11");
  EXPECT_EQ(set.String(0, L""), L" ...");
  EXPECT_EQ(Of({}).String(-1, L""), L"");
}

}  // namespace
}  // namespace Tarvex::Util::SetTest
