#include "members/edge_middles.h"

#include <gtest/gtest.h>

#include <map>
#include <utility>

#include "tests/support/random_model.h"

namespace Tarvex::EdgeMiddlesTest {
namespace {

TEST(EdgeMiddles, FindsANodeByItsCornersInEitherOrder) {
  EdgeMiddles edges;
  edges.Add(7, 3, 11);
  edges.Add(3, 8, 12);
  EXPECT_EQ(edges.Find(3, 7), 11);
  EXPECT_EQ(edges.Find(7, 3), 11);
  EXPECT_EQ(edges.Find(8, 3), 12);
  EXPECT_EQ(edges.Find(7, 8), 0);
  EXPECT_EQ(edges.Find(3, 3), 0);
}

TEST(EdgeMiddles, HoldsTheSameAsAMapWhileItGrows) {
  Testing::Random random(5);
  EdgeMiddles edges;
  std::map<std::pair<int, int>, int> expected;
  for (int node = 1; node <= 20000; ++node) {
    int const a = random.Int(0, 300);  // hubs of many sides
    int const b = random.Int(0, 100000);
    if (expected.emplace(std::minmax(a, b), node).second) edges.Add(a, b, node);
  }
  EXPECT_GT(expected.size(), 19000u);
  for (auto const& [ends, node] : expected) {
    EXPECT_EQ(edges.Find(ends.second, ends.first), node);
    EXPECT_EQ(edges.Find(ends.first, ends.second + 1),
              expected.contains({ends.first, ends.second + 1})
                  ? expected.at({ends.first, ends.second + 1})
                  : 0);
  }
}

}  // namespace
}  // namespace Tarvex::EdgeMiddlesTest
