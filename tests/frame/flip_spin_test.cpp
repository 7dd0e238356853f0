// Turning the topology of one 2D entity.
#include <gtest/gtest.h>

#include <limits>

#include "tarvex/orientation.h"
#include "tests/frame/orientation_support.h"

namespace Tarvex::FlipSpinTest {
namespace {

using Testing::IsUnchanged;
using Testing::OffsetOf;
using Testing::OffsetValues;
using Testing::References;
using Testing::Ring;

constexpr OffsetValues kAsSet{1, 2, 3, 4};
constexpr OffsetValues kAfterAnOddNumberOfSwaps{2, 1, 3, -4};

/// A model with a dressed element 1 of a type on the nodes 1, 2, 3 and so on.
CZelData ModelToSpin(ElementType type, int count) {
  CZelData model;
  std::vector<int> nodes;
  for (int n = 1; n <= count; ++n) nodes.push_back(n);
  model.SetElem(1, Testing::Dressed(Testing::Element(type, nodes)));
  return model;
}

/// Expects what becomes of such an element.
void ExpectSpin(ElementType type, int count, int steps, std::vector<int> const& after,
                OffsetValues const& offset) {
  SCOPED_TRACE(steps);
  auto model = ModelToSpin(type, count);
  EXPECT_TRUE(SpinElement(model, 1, steps));
  EXPECT_TRUE(References(model, 1, after));
  EXPECT_TRUE(Testing::ReleasesAreWithTheirNodes(model, 1));
  EXPECT_EQ(OffsetOf(model, 1), offset);
  Testing::LongPositions const positions{offset == kAsSet ? 0.25 : 0.75,
                                         offset == kAsSet ? 0.75 : 0.25};
  EXPECT_EQ(Testing::LongPositionsOf(model, 1), positions);
}

TEST(SpinElement, ChangesTheZOffsetOfAQuad4OnceAStepByThreeSwaps) {
  auto const type = ElementType::Quad4;
  ExpectSpin(type, 4, 1, {2, 3, 4, 1}, kAfterAnOddNumberOfSwaps);  // 3 swaps
  ExpectSpin(type, 4, 2, {3, 4, 1, 2}, kAsSet);                    // 6
  ExpectSpin(type, 4, 3, {4, 1, 2, 3}, kAfterAnOddNumberOfSwaps);  // 9
  ExpectSpin(type, 4, 4, {1, 2, 3, 4}, kAsSet);                    // 12
  ExpectSpin(type, 4, 5, {2, 3, 4, 1}, kAfterAnOddNumberOfSwaps);  // 15
  ExpectSpin(type, 4, 7, {4, 1, 2, 3}, kAfterAnOddNumberOfSwaps);  // 21
  ExpectSpin(type, 4, 8, {1, 2, 3, 4}, kAsSet);                    // 24
}

TEST(SpinElement, KeepsTheZOffsetOfATri3ByTwoSwapsAStep) {
  auto const type = ElementType::Tri3;
  ExpectSpin(type, 3, 1, {2, 3, 1}, kAsSet);
  ExpectSpin(type, 3, 2, {3, 1, 2}, kAsSet);
  ExpectSpin(type, 3, 3, {1, 2, 3}, kAsSet);
  ExpectSpin(type, 3, 4, {2, 3, 1}, kAsSet);
}

TEST(SpinElement, CarriesTheSideNodesOfAQuad8AlongBySixSwapsAStep) {
  auto const type = ElementType::Quad8;
  ExpectSpin(type, 8, 1, {2, 3, 4, 1, 6, 7, 8, 5}, kAsSet);
  ExpectSpin(type, 8, 2, {3, 4, 1, 2, 7, 8, 5, 6}, kAsSet);
  ExpectSpin(type, 8, 3, {4, 1, 2, 3, 8, 5, 6, 7}, kAsSet);
  ExpectSpin(type, 8, 4, {1, 2, 3, 4, 5, 6, 7, 8}, kAsSet);
  ExpectSpin(type, 8, 6, {3, 4, 1, 2, 7, 8, 5, 6}, kAsSet);
}

TEST(SpinElement, CarriesTheSideNodesOfATri6AlongByFourSwapsAStep) {
  auto const type = ElementType::Tri6;
  ExpectSpin(type, 6, 1, {2, 3, 1, 5, 6, 4}, kAsSet);
  ExpectSpin(type, 6, 2, {3, 1, 2, 6, 4, 5}, kAsSet);
  ExpectSpin(type, 6, 3, {1, 2, 3, 4, 5, 6}, kAsSet);
  ExpectSpin(type, 6, 5, {3, 1, 2, 6, 4, 5}, kAsSet);
}

TEST(SpinElement, TakesAnyNumberOfStepsAtOnce) {
  constexpr int kBillion = 1000000000;  // 8 * 125000000, and 3 * 333333333 + 1
  ExpectSpin(ElementType::Quad4, 4, kBillion, {1, 2, 3, 4}, kAsSet);
  ExpectSpin(ElementType::Quad4, 4, kBillion + 1, {2, 3, 4, 1}, kAfterAnOddNumberOfSwaps);
  ExpectSpin(ElementType::Tri3, 3, kBillion, {2, 3, 1}, kAsSet);
  ExpectSpin(ElementType::Quad8, 8, kBillion, {1, 2, 3, 4, 5, 6, 7, 8}, kAsSet);
  ExpectSpin(ElementType::Tri6, 6, kBillion, {2, 3, 1, 5, 6, 4}, kAsSet);
  // 2147483647 = 8 * 268435455 + 7
  ExpectSpin(ElementType::Quad4, 4, std::numeric_limits<int>::max(), {4, 1, 2, 3},
             kAfterAnOddNumberOfSwaps);
}

TEST(SpinElement, InManyStepsIsTheSameAsOneStepManyTimes) {
  for (int const type : {5, 6, 7, 8})
    for (int steps = 1; steps <= 17; ++steps) {
      auto const shape = static_cast<ElementType>(type);
      auto once = ModelToSpin(shape, Testing::NodeCountOf(type));
      auto often = once;
      EXPECT_TRUE(SpinElement(once, 1, steps));
      for (int i = 0; i < steps; ++i) EXPECT_TRUE(SpinElement(often, 1, 1));
      EXPECT_TRUE(IsUnchanged(once, often));
    }
}

TEST(SpinElement, RefusesStepsBelowOne) {
  for (int const type : {5, 6, 7, 8}) {
    auto model = ModelToSpin(static_cast<ElementType>(type), Testing::NodeCountOf(type));
    model.SetLoadPanel(2, Testing::Panel({1, 2, 3}));
    CZelData const before(model);
    for (int const steps : {0, -1, -4, std::numeric_limits<int>::min()}) {
      EXPECT_FALSE(SpinElement(model, 1, steps));
      EXPECT_FALSE(SpinElement(model, 2, steps));
    }
    EXPECT_TRUE(IsUnchanged(model, before));
  }
}

TEST(SpinElement, RefusesWhatIsNotTwoDimensional) {
  for (int const type : {1, 2, 3, 9, 10, 19, 20, 21, 23, 24, 12, 14, 16, 26, 0, 4, 11, 25}) {
    SCOPED_TRACE(type);
    auto model = ModelToSpin(static_cast<ElementType>(type), Testing::NodeCountOf(type));
    CZelData const before(model);
    EXPECT_FALSE(SpinElement(model, 1, 1));
    EXPECT_TRUE(IsUnchanged(model, before));
  }
}

TEST(SpinElement, RefusesANumberThatNothingBears) {
  auto model = ModelToSpin(ElementType::Quad4, 4);
  CZelData const before(model);
  for (int const n : {-1, 0, 2, 100000000}) EXPECT_FALSE(SpinElement(model, n, 1));
  EXPECT_TRUE(IsUnchanged(model, before));
}

TEST(SpinElement, SpinsTheCornersOfAQuadraticTypeThatHasNoSideNodes) {
  ExpectSpin(ElementType::Quad8, 4, 1, {2, 3, 4, 1}, kAfterAnOddNumberOfSwaps);
  ExpectSpin(ElementType::Tri6, 3, 1, {2, 3, 1}, kAsSet);
}

TEST(SpinElement, CarriesSideNodesThatALinearTypeHas) {
  ExpectSpin(ElementType::Quad4, 8, 1, {2, 3, 4, 1, 6, 7, 8, 5}, kAsSet);
  ExpectSpin(ElementType::Tri3, 6, 1, {2, 3, 1, 5, 6, 4}, kAsSet);
}

TEST(SpinElement, RefusesWithoutErrorATopologyThatHasNoPlaceForEverySwap) {
  struct Row {
    ElementType type;
    std::vector<int> counts;
  };
  for (auto const& [type, counts] :
       {Row{ElementType::Quad4, {0, 1, 2, 3, 5, 6, 7}}, Row{ElementType::Quad8, {0, 3, 5, 6, 7}},
        Row{ElementType::Tri3, {0, 1, 2, 4, 5}}, Row{ElementType::Tri6, {0, 2, 4, 5}}})
    for (int const count : counts) {
      SCOPED_TRACE(count);
      auto model = ModelToSpin(type, count);
      CZelData const before(model);
      EXPECT_FALSE(SpinElement(model, 1, 1));
      EXPECT_TRUE(IsUnchanged(model, before));
    }
}

// Load panels.

/// Topology of a panel after it was spun.
std::vector<int> SpunPanel(std::vector<int> const& nodes, int steps) {
  CZelData model;
  model.SetLoadPanel(4, Testing::Panel(nodes));
  EXPECT_TRUE(SpinElement(model, 4, steps));
  return Ring(model, 4);
}

TEST(SpinElement, RotatesAPanelModuloItsNumberOfNodes) {
  EXPECT_EQ(SpunPanel({1, 2, 3, 4, 5}, 1), (std::vector{2, 3, 4, 5, 1}));
  EXPECT_EQ(SpunPanel({1, 2, 3, 4, 5}, 4), (std::vector{5, 1, 2, 3, 4}));
  EXPECT_EQ(SpunPanel({1, 2, 3, 4, 5}, 5), (std::vector{1, 2, 3, 4, 5}));
  EXPECT_EQ(SpunPanel({1, 2, 3, 4, 5}, 7), (std::vector{3, 4, 5, 1, 2}));
  // All nodes of a panel are corners: an 8-noded one turns as a whole.
  EXPECT_EQ(SpunPanel({1, 2, 3, 4, 5, 6, 7, 8}, 1), (std::vector{2, 3, 4, 5, 6, 7, 8, 1}));
  // 10^9 = 7 * 142857142 + 6
  EXPECT_EQ(SpunPanel({1, 2, 3, 4, 5, 6, 7}, 1000000000), (std::vector{7, 1, 2, 3, 4, 5, 6}));
}

TEST(SpinElement, TakesAPanelWithoutNodes) {
  EXPECT_EQ(SpunPanel({}, 1), (std::vector<int>{}));
  EXPECT_EQ(SpunPanel({7}, 3), (std::vector{7}));
}

TEST(SpinElement, ChangesTheTopologyOfAPanelOnly) {
  CZelData model;
  auto panel = Testing::Panel({1, 2, 3, 4});
  panel.SetName(L"roof");
  panel.SetOrientationAngle(45);
  model.SetLoadPanel(1, panel);
  CZelData const before(model);
  EXPECT_TRUE(SpinElement(model, 1, 2));
  EXPECT_EQ(Testing::Differences(model, before), std::vector<std::string>{"LoadPanel 1: topology"});
}

}  // namespace
}  // namespace Tarvex::FlipSpinTest
