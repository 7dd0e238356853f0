#include "workbench/view/split.h"

#include <gtest/gtest.h>

namespace Tarvex::SplitTest {
namespace {

using Workbench::Scene;
using Workbench::ThingKind;
using Nodes = std::vector<int>;

TEST(SplitAtNodes, PartsLinesAtTheNodesOnThemInTheirOrder) {
  Scene scene;
  scene.things.push_back({ThingKind::MemberOutline, {{4, 0, 0}, {0, 0, 0}}, {1, 2}});
  // Two nodes on the line, one beside it, one behind its end and one that is its end.
  scene.things.push_back({ThingKind::Line, {{1, 0, 0}, {3, 0, 0}}, {11, 13}});
  scene.things.push_back({ThingKind::Line, {{2, 0.1, 0}, {5, 0, 0}}, {12, 15}});
  scene.things.push_back({ThingKind::Line, {{0, 0, 0}, {0, 0, 2}}, {2, 16}});
  SplitAtNodes(scene);
  ASSERT_EQ(scene.things.size(), 6u);
  EXPECT_EQ(scene.things[0].nodes, (Nodes{1, 13}));
  EXPECT_EQ(scene.things[1].nodes, (Nodes{13, 11}));
  EXPECT_EQ(scene.things[2].nodes, (Nodes{11, 2}));
  EXPECT_EQ(scene.things[2].points[0], (Vec3<double>{1, 0, 0}));
  EXPECT_EQ(scene.things[3].nodes, (Nodes{11, 13}));  // elements stay whole
}

TEST(SplitAtNodes, LeavesArcsAndLinesWithoutLength) {
  Scene scene;
  scene.things.push_back({ThingKind::Member, {{0, 0, 0}, {1, 1, 0}, {2, 0, 0}}, {1, 2}});
  scene.things.push_back({ThingKind::Member, {{0, 0, 0}, {0, 0, 0}}, {1, 3}});
  scene.things.push_back({ThingKind::Line, {{0, 0, 0}, {1, 1, 0}}, {1, 4}});
  SplitAtNodes(scene);
  EXPECT_EQ(scene.things.size(), 3u);
}

}  // namespace
}  // namespace Tarvex::SplitTest
