#include "workbench/view/member_outline.h"

#include <gtest/gtest.h>

#include "store/record/member.h"
#include "tests/support/builders.h"

namespace Tarvex::MemberOutlineTest {
namespace {

using Testing::MemberAt;
using Testing::NodeAt;
using Workbench::MemberLines;

/// Edges as pairs of nodes.
std::vector<std::vector<int>> Edges(CZelData const& model, int member) {
  std::vector<std::vector<int>> edges;
  for (auto const& line : MemberLines(model, member)) edges.push_back(line.nodes);
  return edges;
}

TEST(MemberLines, ALineRunsFromNodeToNode) {
  CZelData model;
  NodeAt(model, 0, 0, 0);
  NodeAt(model, 2, 0, 0);
  NodeAt(model, 2, 0, 3);
  auto const lines = MemberLines(model, MemberAt(model, MembType::Beam, L"3 2 1"));
  ASSERT_EQ(lines.size(), 1u);
  EXPECT_TRUE(lines[0].main);
  EXPECT_EQ(lines[0].nodes, (std::vector{3, 1}));
  EXPECT_EQ(lines[0].points, (std::vector<Vec3<double>>{{2, 0, 3}, {2, 0, 0}, {0, 0, 0}}));
}

/// Expects the points of a line on the circle of radius 1 about the origin in the plane z = 0.
void ExpectOnCircle(Workbench::MemberLine const& line) {
  for (auto const& p : line.points) {
    EXPECT_NEAR(std::hypot(p.x, p.y), 1, 1e-9);
    EXPECT_NEAR(p.z, 0, 1e-12);
  }
}

TEST(MemberLines, AnArcThroughANodeTakesTheWayThroughIt) {
  CZelData model;
  NodeAt(model, 1, 0, 0);
  NodeAt(model, 0, -1, 0);
  NodeAt(model, 0, 1, 0);
  // From angle 0 through 90 to 270 degrees: 270 / 7.5 = 36 chords.
  auto const lines = MemberLines(model, MemberAt(model, MembType::Beam, L"1 arc 3 2"));
  ASSERT_EQ(lines.size(), 1u);
  ASSERT_EQ(lines[0].points.size(), 37u);
  ExpectOnCircle(lines[0]);
  EXPECT_NEAR(lines[0].points[12].y, 1, 1e-9);  // 12 x 7.5 = 90 degrees
  EXPECT_EQ(lines[0].points.back(), (Vec3<double>{0, -1, 0}));
}

TEST(MemberLines, AnArcAboutANodeTakesTheShorterWay) {
  CZelData model;
  NodeAt(model, 1, 0, 0);
  NodeAt(model, 0, -1, 0);
  int const centre = NodeAt(model, 0, 0, 0);
  int const n = MemberAt(model, MembType::Beam, L"1 about 2");
  auto member = model.Member(n);
  member.SetOrientationNode(centre);
  model.SetMember(n, member);
  // 90 degrees: 12 chords, the middle of which is at -45 degrees, y = -sin 45.
  auto const lines = MemberLines(model, n);
  ASSERT_EQ(lines.size(), 1u);
  ASSERT_EQ(lines[0].points.size(), 13u);
  ExpectOnCircle(lines[0]);
  EXPECT_NEAR(lines[0].points[6].y, -0.7071067811865476, 1e-9);
}

TEST(MemberLines, AnAreaHasItsOutlineItsHolesAndItsLinesButNoPoints) {
  CZelData model;
  for (int i = 1; i <= 10; ++i) NodeAt(model, i, i * i, 0);
  auto const n = MemberAt(model, MembType::Slab, L"1 2 3 hole( 4 5 6 ) line( 7 8 ) points( 9 10 )");
  EXPECT_EQ(Edges(model, n), (std::vector<std::vector<int>>{
                                 {1, 2}, {2, 3}, {3, 1}, {4, 5}, {5, 6}, {6, 4}, {7, 8}}));
  for (auto const& line : MemberLines(model, n)) EXPECT_FALSE(line.main);
}

TEST(MemberLines, ASolidHasNoEdgesWithinAPlane) {
  CZelData model;
  // The square 1 2 3 4 at z = 0 as two triangles, and a triangle that stands on the edge 1 2.
  NodeAt(model, 0, 0, 0);
  NodeAt(model, 1, 0, 0);
  NodeAt(model, 1, 1, 0);
  NodeAt(model, 0, 1, 0);
  NodeAt(model, 0, 0, 1);
  auto const n = MemberAt(model, MembType::Solid, L"1 2 4 3 ; 1 2 5");
  // Without 2 4, the diagonal of the square.
  EXPECT_EQ(Edges(model, n),
            (std::vector<std::vector<int>>{{1, 2}, {1, 4}, {1, 5}, {2, 3}, {2, 5}, {3, 4}}));
}

TEST(MemberLines, AreNoneWhereANodeIsMissing) {
  CZelData model;
  NodeAt(model, 0, 0, 0);
  EXPECT_TRUE(MemberLines(model, MemberAt(model, MembType::Beam, L"1 2")).empty());
  EXPECT_TRUE(MemberLines(model, MemberAt(model, MembType::Beam, L"1")).empty());
}

}  // namespace
}  // namespace Tarvex::MemberOutlineTest
