#include "store/select/interval_builder.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <climits>
#include <set>

#include "tests/support/plain_list.h"

namespace Tarvex::IntervalBuilderTest {
namespace {

using Testing::Random;
using Testing::RunsOf;
using Set = std::set<int>;

TEST(IntervalBuilder, LetsTheLastStepDecide) {
  IntervalBuilder builder;
  builder.Add({1, 10});
  builder.Remove({3, 5});
  builder.Add({4, 4});
  EXPECT_EQ(builder.Take(), (Intervals{{1, 2}, {4, 4}, {6, 10}}));
}

TEST(IntervalBuilder, IsEmptyOnceTaken) {
  IntervalBuilder builder({1, 3});
  EXPECT_EQ(builder.Take(), Intervals({{1, 3}}));
  EXPECT_TRUE(builder.Take().IsEmpty());
  builder.Remove({1, 3});
  EXPECT_TRUE(builder.Take().IsEmpty());
}

TEST(IntervalBuilder, KnowsNoNumberBelowZero) {
  IntervalBuilder builder({INT_MIN, 2});
  builder.Add({-5, -1});
  EXPECT_EQ(builder.Take(), (Intervals{{0, 2}}));
}

TEST(IntervalBuilder, ReachesTheHighestNumber) {
  IntervalBuilder builder({0, INT_MAX});
  builder.Remove({7, INT_MAX - 1});
  EXPECT_EQ(builder.Take(), (Intervals{{0, 6}, {INT_MAX, INT_MAX}}));
}

/// A builder with the same set worked out plainly.
struct Pair {
  IntervalBuilder builder;
  Set set;
};

void Step(Pair& pair, Random& random) {
  int const first = random.Int(0, 60);
  Interval const run{first, first + random.Int(-1, 8)};
  bool const add = random.Percent(60);
  add ? pair.builder.Add(run) : pair.builder.Remove(run);
  for (int number = run.first; number <= run.last; ++number)
    if (add)
      pair.set.insert(number);
    else
      pair.set.erase(number);
}

/// Joins b to a in a random way.
void Join(Pair& a, Pair b, Random& random) {
  Set result;
  auto const into = std::inserter(result, result.end());
  switch (random.Int(1, 3)) {
    case 1:
      a.builder.Unite(std::move(b.builder));
      std::set_union(a.set.begin(), a.set.end(), b.set.begin(), b.set.end(), into);
      break;
    case 2:
      a.builder.Intersect(std::move(b.builder));
      std::set_intersection(a.set.begin(), a.set.end(), b.set.begin(), b.set.end(), into);
      break;
    default:
      a.builder.Subtract(std::move(b.builder));
      std::set_difference(a.set.begin(), a.set.end(), b.set.begin(), b.set.end(), into);
  }
  a.set = result;
}

TEST(IntervalBuilder, GivesWhatSetsOfNumbersGive) {
  Random random(5);
  for (int i = 0; i < 300; ++i) {
    std::vector<Pair> pairs(4);
    for (int steps = random.Int(1, 120); steps > 0; --steps) {
      auto& pair = pairs[static_cast<std::size_t>(random.Int(0, 3))];
      if (random.Percent(75)) {
        Step(pair, random);
      } else {  // with another one, which starts again
        auto& other = pairs[static_cast<std::size_t>(random.Int(0, 3))];
        if (&other != &pair) Join(pair, std::exchange(other, Pair()), random);
      }
    }
    for (auto& pair : pairs) EXPECT_EQ(pair.builder.Take(), RunsOf(pair.set));
  }
}

// Whichever side is the larger one, each of the next goes on with a set of 10^5 runs 10^5 times;
// were the large one gone through each time, a test would take minutes.
constexpr int kMany = 100000;

/// The even numbers up to 2 * kMany.
IntervalBuilder Evens() {
  IntervalBuilder builder;
  for (int i = 1; i <= kMany; ++i) builder.Add({2 * i, 2 * i});
  return builder;
}

TEST(IntervalBuilder, TakesManySmallSetsIntoALargeOne) {
  auto builder = Evens();
  for (int i = 1; i <= kMany; ++i) builder.Unite(IntervalBuilder({2 * i + 1, 2 * i + 1}));
  EXPECT_EQ(builder.Take(), (Intervals{{2, 2 * kMany + 1}}));
}

TEST(IntervalBuilder, TakesALargeSetIntoManySmallOnes) {
  auto builder = Evens();
  for (int i = 1; i <= kMany; ++i) {
    IntervalBuilder odd({2 * i + 1, 2 * i + 1});
    odd.Unite(std::move(builder));
    builder = std::move(odd);
  }
  EXPECT_EQ(builder.Take(), (Intervals{{2, 2 * kMany + 1}}));
}

TEST(IntervalBuilder, SubtractsALargeSetFromSmallOnes) {
  auto builder = Evens();
  for (int i = 1; i <= kMany; ++i) {  // all up to there but the set, which is what is missing in it
    IntervalBuilder all({1, 3 * kMany});
    all.Subtract(std::move(builder));
    builder = std::move(all);
  }
  auto const rest = builder.Take();
  EXPECT_EQ(rest.Runs().size(), static_cast<std::size_t>(kMany));
}

TEST(IntervalBuilder, CutsALargeSetByMany) {
  auto builder = Evens();
  for (int i = 1; i <= kMany / 2; ++i) {
    builder.Intersect(IntervalBuilder({2 * i + 1, 2 * kMany - 2 * i}));
    builder.Subtract(IntervalBuilder({2 * i, 2 * i}));
  }
  // The last cut leaves the numbers from kMany + 1 to kMany.
  EXPECT_TRUE(builder.Take().IsEmpty());
}

}  // namespace
}  // namespace Tarvex::IntervalBuilderTest
