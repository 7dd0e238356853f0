#include "loads/picks.h"

#include <gtest/gtest.h>

namespace Tarvex::PicksTest {
namespace {

using Picks = std::vector<std::vector<int>>;

Picks AllPicks(Picks const& groups) {
  Picks picks;
  ForEachPick(groups, [&](std::vector<int const*> const& pick) {
    std::vector<int> values;
    for (auto const* value : pick) values.push_back(*value);
    picks.push_back(values);
  });
  return picks;
}

TEST(ForEachPick, ChangesTheLastGroupFastest) {
  EXPECT_EQ(AllPicks({{1, 2}, {3}, {4, 5, 6}}),
            (Picks{{1, 3, 4}, {1, 3, 5}, {1, 3, 6}, {2, 3, 4}, {2, 3, 5}, {2, 3, 6}}));
}

TEST(ForEachPick, OfNoGroupsIsOnePickOfNothing) { EXPECT_EQ(AllPicks({}), Picks{{}}); }

TEST(ForEachPick, WithAnEmptyGroupIsNone) { EXPECT_EQ(AllPicks({{1, 2}, {}}), Picks()); }

TEST(ForEachPick, OfManyGroupsCostsNoRecursion) {
  Picks const groups(100000, {7});
  EXPECT_EQ(AllPicks(groups).size(), 1u);
}

}  // namespace
}  // namespace Tarvex::PicksTest
