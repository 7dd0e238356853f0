#include "store/model/get_node_at.h"

#include <gtest/gtest.h>

#include <cmath>

#include "store/model/zel_data.h"
#include "store/record/node.h"
#include "tests/support/builders.h"

namespace Tarvex::GetNodeAtTest {
namespace {

using ZelUtil::GetNodeAt;

TEST(GetNodeAt, TakesTheNearestNodeWithinTheTolerance) {
  CZelData model;
  model.CreateNode(3, {0, 0, 0}, 0, Vbool6());
  model.CreateNode(5, {0.4, 0, 0}, 0, Vbool6());
  EXPECT_EQ(GetNodeAt(model, {0.25, 0, 0}, 0.3, L""), 5);
  EXPECT_EQ(GetNodeAt(model, {0.1, 0, 0}, 0.3, L""), 3);
  EXPECT_EQ(model.HighestNode(), 5);
}

TEST(GetNodeAt, CountsADistanceEqualToTheTolerance) {
  CZelData model;
  model.CreateNode(1, {3, 4, 0}, 0, Vbool6());
  EXPECT_EQ(GetNodeAt(model, {0, 0, 0}, 5, L""), 1);
  EXPECT_EQ(GetNodeAt(model, {0, 0, 0}, std::nextafter(5, 0), L""), 2);
}

TEST(GetNodeAt, TakesTheLowestOnATie) {
  CZelData model;
  model.CreateNode(8, {1, 0, 0}, 0, Vbool6());
  model.CreateNode(2, {-1, 0, 0}, 0, Vbool6());
  EXPECT_EQ(GetNodeAt(model, {0, 0, 0}, 1, L""), 2);
}

TEST(GetNodeAt, AsksForEqualCoordinatesAtToleranceZero) {
  CZelData model;
  model.CreateNode(1, {0.1, 0, 0}, 0, Vbool6());
  EXPECT_EQ(GetNodeAt(model, {0.1, 0, 0}, 0, L""), 1);
  EXPECT_EQ(GetNodeAt(model, {0.1 + 1e-18, 0, 0}, 0, L""), 1);  // the same double
  EXPECT_EQ(GetNodeAt(model, {0.1 + 2e-17, 0, 0}, 0, L""), 2);
}

TEST(GetNodeAt, CreatesANodeUnderTheNextNumberWithTheTextAsNameAndIdentifier) {
  CZelData model;
  model.CreateNode(41, {9, 9, 9}, 0, Vbool6());
  EXPECT_EQ(GetNodeAt(model, {1, 2, 3}, 0.001, L"split"), 42);
  auto const& node = model.Node(42);
  EXPECT_EQ(node.Position(), (Vec3<double>{1, 2, 3}));
  EXPECT_EQ(node.Name(), L"split");
  EXPECT_EQ(node.Sid(), L"split");
  EXPECT_TRUE(node.Restraint().IsNone());
  EXPECT_EQ(GetNodeAt(model, {1, 2, 3}, 0.001, L"again"), 42);
  EXPECT_EQ(model.Node(42).Name(), L"split");
}

TEST(NodesAroundPoint, IsExactStraightAfterEveryStoreAlsoInAHold) {
  CZelData model;
  Testing::Grid(model, 2, 2);  // nodes 1 to 9 at whole co-ordinates
  EXPECT_EQ(model.NodesAroundPoint({0, 0, 0}, 1), (std::vector{1, 2, 4}));
  model.rebuildHold = true;
  model.SetNodeCoor(9, {0, 0, 0.5});
  EXPECT_EQ(model.NodesAroundPoint({0, 0, 0}, 1), (std::vector{1, 2, 4, 9}));
  model.BlankNode(2, 1);
  EXPECT_EQ(model.NodesAroundPoint({0, 0, 0}, 1), (std::vector{1, 4, 9}));
  model.CreateNode(30, {0.5, 0, 0}, 0, Vbool6());
  std::vector<int> nodes{99};
  model.NodesAroundPoint({0, 0, 0}, nodes, 1);
  EXPECT_EQ(nodes, (std::vector{1, 4, 9, 30}));
  model._SetNode(30, Data::CNode({5, 5, 5}, 0, Vbool6()));
  EXPECT_EQ(model.NodesAroundPoint({0, 0, 0}, 1), (std::vector{1, 4, 9}));
  model.RemoveModule(CModule::Node);
  EXPECT_TRUE(model.NodesAroundPoint({0, 0, 0}, 100).empty());
}

TEST(NodesAroundPoint, FollowsAnAssignedModel) {
  CZelData model;
  Testing::Grid(model, 1, 1);
  CZelData other;
  other.CreateNode(7, {0, 0, 0}, 0, Vbool6());
  EXPECT_EQ(model.NodesAroundPoint({0, 0, 0}, 0), (std::vector{1}));
  model = other;
  EXPECT_EQ(model.NodesAroundPoint({0, 0, 0}, 0), (std::vector{7}));
  EXPECT_TRUE(model.NodesAroundPoint({1, 1, 0}, 0).empty());
}

}  // namespace
}  // namespace Tarvex::GetNodeAtTest
