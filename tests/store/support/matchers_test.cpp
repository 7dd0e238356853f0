// The matchers that other tests rely on: that they fail, and what they say then.
#include "tests/support/matchers.h"

#include <gtest/gtest.h>

#include "store/record/node.h"
#include "tests/support/builders.h"

namespace Tarvex::Testing {
namespace {

/// A plate of two squares with an orientation node and a panel.
CZelData Model() {
  CZelData model;
  Grid(model, 2, 1);
  model.SetElemOrientNode(1, 3);
  PanelAt(model, {{0, 0, 1}, {1, 0, 1}, {1, 1, 1}});  // nodes 7 to 9
  return model;
}

TEST(IsUnchanged, SaysWhatDiffers) {
  auto const before = Model();
  auto model = before;
  EXPECT_TRUE(IsUnchanged(model, before));
  model.SetNode(20, Data::CNode());
  model.BlankNode(1, 1);
  model.SetElemProperty(2, 5);
  model.SetElemOffset(2, {0, 0, 0, 1});
  Data::CUnit unit;
  unit.SetConversion(Data::CUnit::kLength, 1000);
  Data::CSpec spec;
  spec.SetUnit(unit);
  model.SetSpec(spec);
  auto const result = IsUnchanged(model, before);
  EXPECT_FALSE(result);
  EXPECT_STREQ(result.message(),
               "the model differs from its former state\n  Spec: unit\n  Node 1: went\n"
               "  Node 20: came\n  Elem 2: property, offset");
}

TEST(IsUnchanged, NamesFortyDifferencesAndCountsTheRest) {
  CZelData const before;
  CZelData model;
  for (int n = 1; n <= 45; ++n) model.SetNode(n, Data::CNode());
  std::string const text = IsUnchanged(model, before).message();
  EXPECT_NE(text.find("Node 40: came\n  and 5 more"), std::string::npos) << text;
  EXPECT_EQ(text.find("Node 41"), std::string::npos);
}

TEST(References, ComparesTheTopologyInItsOrder) {
  auto const model = Model();
  EXPECT_TRUE(References(model, 1, {1, 2, 5, 4}));
  EXPECT_TRUE(References(model, 3, {7, 8, 9}));
  EXPECT_FALSE(References(model, 1, {2, 5, 4, 1}));
  EXPECT_FALSE(References(model, 1, {1, 2, 5}));
  EXPECT_FALSE(References(model, 9, {}));
  EXPECT_STREQ(References(model, 3, {7, 8}).message(),
               "element or panel 3 refers to 7 8 9, not to 7 8");
}

TEST(NoDanglingReference, ListsMissingNodesOfTopologyAndOrientation) {
  auto model = Model();
  EXPECT_TRUE(NoDanglingReference(model));
  model.SetElemTopo(2, 0, 0);  // none
  EXPECT_TRUE(NoDanglingReference(model));
  model.BlankNode(3, 1);
  model.BlankNode(9, 1);
  EXPECT_STREQ(NoDanglingReference(model).message(),
               "references to nodes that do not exist\n  Elem 1: orientationNode names node 3\n"
               "  Elem 2: topology names node 3\n  LoadPanel 3: topology names node 9");
}

TEST(AttachmentsFollowTopology, FailsWhileAHoldLeavesThemBehind) {
  auto model = Model();
  EXPECT_TRUE(AttachmentsFollowTopology(model));
  model.rebuildHold = true;
  model.SetElemTopo(1, 0, 3);
  EXPECT_STREQ(AttachmentsFollowTopology(model).message(),
               "attachments that do not follow topology\n  node 1 has 1, not\n"
               "  node 3 has 2, not 1 2");
}

TEST(IsNear, ComparesEachComponentWithTheTolerance) {
  EXPECT_TRUE(IsNear({1, 2, 3}, {1, 2, 3}));
  EXPECT_TRUE(IsNear({1, 2, 3}, {1.5, 1.5, 3.5}, 0.5));
  EXPECT_FALSE(IsNear({1, 2, 3}, {1.6, 2, 3}, 0.5));
  EXPECT_FALSE(IsNear({1, 2, 3}, {1, 2.6, 3}, 0.5));
  EXPECT_FALSE(IsNear({1, 2, 3}, {1, 2, 2.4}, 0.5));
  EXPECT_FALSE(IsNear({std::nan(""), 2, 3}, {1, 2, 3}));
}

TEST(OutOfRangeText, IsEmptyWhereNothingIsThrown) {
  EXPECT_EQ(OutOfRangeText([] {}), "");
  EXPECT_EQ(OutOfRangeText([] { throw std::out_of_range("text"); }), "text");
  EXPECT_THROW(OutOfRangeText([] { throw std::invalid_argument("other"); }), std::invalid_argument);
}

}  // namespace
}  // namespace Tarvex::Testing
