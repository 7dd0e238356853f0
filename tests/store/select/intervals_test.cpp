#include "store/select/intervals.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <climits>
#include <set>

#include "tests/support/plain_list.h"

namespace Tarvex::IntervalsTest {
namespace {

using Testing::NumbersOf;
using Testing::Random;
using Testing::RunsOf;
using Set = std::set<int>;

std::vector<Interval> Runs(Intervals const& set) { return {set.Runs().begin(), set.Runs().end()}; }

TEST(Intervals, JoinRunsThatMeetOrOverlap) {
  EXPECT_EQ(Runs({{1, 3}, {4, 6}}), (std::vector<Interval>{{1, 6}}));
  EXPECT_EQ(Runs({{1, 3}, {5, 6}}), (std::vector<Interval>{{1, 3}, {5, 6}}));
  EXPECT_EQ(Runs({{1, 9}, {2, 4}, {9, 9}}), (std::vector<Interval>{{1, 9}}));
}

TEST(Intervals, PassOverEmptyRuns) {
  EXPECT_TRUE(Intervals({{3, 2}}).IsEmpty());
  EXPECT_TRUE(Interval().IsEmpty());
  EXPECT_EQ(Runs({{1, 1}, {9, 0}, {2, 2}}), (std::vector<Interval>{{1, 2}}));
}

TEST(Intervals, HoldTheHighestNumbers) {
  Intervals set{{0, INT_MAX - 2}, {INT_MAX, INT_MAX}};
  EXPECT_EQ(set.Runs().size(), 2U);
  EXPECT_TRUE(set.Contains(INT_MAX));
  EXPECT_FALSE(set.Contains(INT_MAX - 1));
  set.Append({INT_MAX, INT_MAX});
  EXPECT_EQ(set.Runs().size(), 2U);
  EXPECT_EQ(Runs(Difference({{0, INT_MAX}}, set)),
            (std::vector<Interval>{{INT_MAX - 1, INT_MAX - 1}}));
}

TEST(Intervals, AnswerForEachNumber) {
  Intervals const set{{2, 4}, {8, 8}};
  std::vector<int> held;
  for (int number = -1; number <= 10; ++number)
    if (set.Contains(number)) held.push_back(number);
  EXPECT_EQ(held, (std::vector{2, 3, 4, 8}));
  EXPECT_FALSE(Intervals().Contains(1));
}

Set RandomSet(Random& random) {
  Set set;
  for (int runs = random.Int(0, 6); runs > 0; --runs) {
    int const first = random.Int(0, 40);
    for (int number = first; number <= first + random.Int(0, 6); ++number) set.insert(number);
  }
  return set;
}

TEST(Intervals, CombineAsSetsOfNumbersDo) {
  Random random(11);
  for (int i = 0; i < 2000; ++i) {
    auto const a = RandomSet(random);
    auto const b = RandomSet(random);
    Set sum;
    Set common;
    Set rest;
    std::set_union(a.begin(), a.end(), b.begin(), b.end(), std::inserter(sum, sum.end()));
    std::set_intersection(a.begin(), a.end(), b.begin(), b.end(),
                          std::inserter(common, common.end()));
    std::set_difference(a.begin(), a.end(), b.begin(), b.end(), std::inserter(rest, rest.end()));
    // Equal as runs: what meets is joined in the results too.
    EXPECT_EQ(Union(RunsOf(a), RunsOf(b)), RunsOf(sum));
    EXPECT_EQ(Intersection(RunsOf(a), RunsOf(b)), RunsOf(common));
    EXPECT_EQ(Difference(RunsOf(a), RunsOf(b)), RunsOf(rest));
    EXPECT_EQ(NumbersOf(RunsOf(a)), a);
  }
}

}  // namespace
}  // namespace Tarvex::IntervalsTest
