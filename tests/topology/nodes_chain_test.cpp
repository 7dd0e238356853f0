// Nodes of 1D elements that run end to end.
#include <gtest/gtest.h>

#include <numeric>

#include "store/model/zel_data.h"
#include "store/record/element.h"
#include "tarvex/disconnect.h"
#include "tests/support/builders.h"
#include "tests/support/random_model.h"

namespace Tarvex::NodesChainTest {
namespace {

using Chain = std::deque<int>;
using Numbers = std::vector<int>;

/// Elements numbered from 1 with the given ends. No node exists.
CZelData Lines(std::vector<std::pair<int, int>> const& ends) {
  CZelData model;
  int n = 0;
  for (auto const& [from, to] : ends)
    model.SetElem(++n, Testing::Element(ElementType::Beam, {from, to}));
  return model;
}

TEST(NodesChain, IsEmptyWithoutElements) { EXPECT_EQ(NodesChain(CZelData(), {}), Chain()); }

TEST(NodesChain, OrdersTheNodesOfAnUnsortedRun) {
  auto const model = Lines({{1, 2}, {2, 3}, {3, 4}, {4, 5}});
  for (Numbers const& order : {Numbers{1, 2, 3, 4}, Numbers{3, 1, 4, 2}, Numbers{4, 3, 2, 1}})
    EXPECT_EQ(NodesChain(model, order), (Chain{1, 2, 3, 4, 5}));
}

TEST(NodesChain, RepeatsTheStartOfAClosedOne) {
  auto const model = Lines({{1, 2}, {2, 3}, {3, 1}});
  EXPECT_EQ(NodesChain(model, {1, 2, 3}), (Chain{1, 2, 3, 1}));
  EXPECT_EQ(NodesChain(model, {2, 1, 3}), (Chain{2, 3, 1, 2}));
}

TEST(NodesChain, LeavesAnElementOutThatDoesNotJoinOn) {
  auto const model = Lines({{1, 2}, {8, 9}, {2, 3}});
  EXPECT_EQ(NodesChain(model, {1, 2, 3}), (Chain{1, 2, 3}));
  EXPECT_EQ(NodesChain(model, {2, 1, 3}), (Chain{8, 9}));
}

TEST(NodesChain, DoesNotTurnElementsRound) {
  auto const model = Lines({{1, 2}, {3, 2}});
  EXPECT_EQ(NodesChain(model, {1, 2}), (Chain{1, 2}));
}

TEST(NodesChain, TakesTheFirstGivenElementOfABranch) {
  auto const model = Lines({{1, 2}, {2, 3}, {2, 4}, {0, 1}, {7, 1}});
  EXPECT_EQ(NodesChain(model, {1, 3, 2, 5, 4}), (Chain{7, 1, 2, 4}));
  EXPECT_EQ(NodesChain(model, {1, 2, 3, 4, 5}), (Chain{0, 1, 2, 3}));
}

TEST(NodesChain, StopsAtOneNodeMoreThanElements) {
  // From 1 into a circle of 2 and 3, which would go on for ever: three elements, four nodes.
  auto const model = Lines({{1, 2}, {2, 3}, {3, 2}});
  EXPECT_EQ(NodesChain(model, {1, 2, 3}), (Chain{1, 2, 3, 2}));
  // Backward: 9 is reached from a circle, and the limit is met going back.
  auto const back = Lines({{1, 9}, {2, 1}, {1, 2}});
  EXPECT_EQ(NodesChain(back, {1, 2, 3}), (Chain{1, 2, 1, 9}));
}

TEST(NodesChain, GivesAnElementFromANodeToItselfTwoNodes) {
  EXPECT_EQ(NodesChain(Lines({{4, 4}}), {1}), (Chain{4, 4}));
}

TEST(NodesChain, OrdersARandomRunFromAnyOrder) {
  Testing::Random random(7);
  for (int run = 0; run < 50; ++run) {
    int const count = random.Int(1, 60);
    auto const nodes = random.Numbers(count + 1);
    std::vector<std::pair<int, int>> ends;
    for (std::size_t i = 0; i + 1 < nodes.size(); ++i) ends.emplace_back(nodes[i], nodes[i + 1]);
    Numbers order(ends.size());
    std::iota(order.begin(), order.end(), 1);
    random.Shuffle(order);
    EXPECT_EQ(NodesChain(Lines(ends), order), Chain(nodes.begin(), nodes.end()));
  }
}

TEST(NodesChain, ThrowsForAnElementThatDoesNotExist) {
  EXPECT_THROW(NodesChain(CZelData(), {1}), std::out_of_range);
}

}  // namespace
}  // namespace Tarvex::NodesChainTest
