#include "store/geometry/integration.h"

#include <gtest/gtest.h>

#include <vector>

namespace Tarvex::Util::IntegrationTest {
namespace {

using V = Vec3<double>;
using Nodes = std::vector<V>;

double AreaOf(Nodes const& nodes) { return ExtentOf(SpaceType::Surface, nodes).size; }

void ExpectExtent(SpaceType space, Nodes const& nodes, double size, V const& centre) {
  auto const extent = ExtentOf(space, nodes);
  EXPECT_NEAR(extent.size, size, 1e-13);
  EXPECT_NEAR(Length(extent.Centre() - centre), 0, 1e-13);
}

TEST(ExtentOf, PlaneStraightSurfacesIsThatOfTheirPolygon) {
  EXPECT_NEAR(AreaOf({{0, 0, 1}, {2, 0, 1}, {0, 3, 1}}), 3, 1e-14);
  // A trapezium 4 and 2 wide, 2 high.
  EXPECT_NEAR(AreaOf({{0, 5, 0}, {4, 5, 0}, {3, 5, 2}, {1, 5, 2}}), 6, 1e-14);
  EXPECT_NEAR(AreaOf({{0, 0, 0}, {2, 0, 0}, {0, 2, 0}, {1, 0, 0}, {1, 1, 0}, {0, 1, 0}}), 2, 1e-14);
  // Centroid of the trapezium: 2 / 3 * (4 + 2 * 2) / (4 + 2) = 8 / 9 above its base.
  ExpectExtent(SpaceType::Surface, {{0, 5, 0}, {4, 5, 0}, {3, 5, 2}, {1, 5, 2}}, 6,
               {2, 5, 8.0 / 9});
}

TEST(ExtentOf, SurfacesWithCurvedEdgesCountsThem) {
  // An edge bowed out by 0.5 as a parabola over a length of 2: 2 / 3 * 2 * 0.5 more.
  EXPECT_NEAR(AreaOf({{0, 0, 0},
                      {2, 0, 0},
                      {2, 2, 0},
                      {0, 2, 0},
                      {1, -0.5, 0},
                      {2, 1, 0},
                      {1, 2, 0},
                      {0, 1, 0}}),
              4 + 2.0 / 3, 1e-13);
  EXPECT_NEAR(AreaOf({{0, 0, 0}, {2, 0, 0}, {0, 2, 0}, {1, -0.5, 0}, {1, 1, 0}, {0, 1, 0}}),
              2 + 2.0 / 3, 1e-13);
}

TEST(ExtentOf, ALineIsItsLengthAndMiddle) {
  ExpectExtent(SpaceType::Line, {{1, 0, 0}, {1, 3, 4}}, 5, {1, 1.5, 2});
}

TEST(ExtentOf, SolidsIsTheirVolumeAndCentroid) {
  ExpectExtent(SpaceType::Solid, {{0, 0, 0}, {3, 0, 0}, {0, 2, 0}, {0, 0, 1}}, 1,
               {0.75, 0.5, 0.25});
  // A pyramid 2 by 2, 3 high: 4 * 3 / 3, centroid a quarter up.
  ExpectExtent(SpaceType::Solid, {{0, 0, 0}, {2, 0, 0}, {2, 2, 0}, {0, 2, 0}, {1, 1, 3}}, 4,
               {1, 1, 0.75});
  // A wedge on a right-angled triangle of legs 3 and 2, 5 high.
  ExpectExtent(SpaceType::Solid, {{0, 0, 0}, {3, 0, 0}, {0, 2, 0}, {0, 0, 5}, {3, 0, 5}, {0, 2, 5}},
               15, {1, 2.0 / 3, 2.5});
  // A frustum 2 by 2 below and 1 by 1 above, 3 high: 3 / 3 * (4 + 1 + 2); centroid at
  // 3 / 4 * (4 + 2 * 2 + 3) / (4 + 2 + 1).
  ExpectExtent(SpaceType::Solid,
               {{-1, -1, 0},
                {1, -1, 0},
                {1, 1, 0},
                {-1, 1, 0},
                {-0.5, -0.5, 3},
                {0.5, -0.5, 3},
                {0.5, 0.5, 3},
                {-0.5, 0.5, 3}},
               7, {0, 0, 3.0 / 4 * 11 / 7});
}

TEST(ExtentOf, AnotherNumberOfNodesIsZero) {
  EXPECT_EQ(AreaOf({}), 0);
  EXPECT_EQ(AreaOf(Nodes(5, V{1, 2, 3})), 0);
  EXPECT_EQ(ExtentOf(SpaceType::Solid, Nodes(7)).Centre(), V{});
}

TEST(RuleOf, WeighsTheNaturalSizeOfEachShape) {
  struct Row {
    SpaceType space;
    int nodes;
    double size;
  };
  for (auto const& row : {Row{SpaceType::Line, 2, 2}, Row{SpaceType::Line, 3, 2},
                          Row{SpaceType::Surface, 3, 0.5}, Row{SpaceType::Surface, 6, 0.5},
                          Row{SpaceType::Surface, 4, 4}, Row{SpaceType::Surface, 8, 4},
                          Row{SpaceType::Solid, 4, 1.0 / 6}, Row{SpaceType::Solid, 5, 4.0 / 3},
                          Row{SpaceType::Solid, 6, 1}, Row{SpaceType::Solid, 8, 8}}) {
    double sum = 0;
    for (auto const& point : RuleOf(ShapeKindOf(row.space, row.nodes))) sum += point.weight;
    EXPECT_NEAR(sum, row.size, 1e-14) << row.nodes;
  }
}

TEST(RuleOf, IntegratesTheFifthDegreeOnATriangleExactly) {
  // The integral of r^3 s^2 over the natural triangle: 3! 2! / 7!.
  double sum = 0;
  for (auto const& point : RuleOf(ShapeKindOf(SpaceType::Surface, 3)))
    sum += point.weight * std::pow(point.natural.x, 3) * std::pow(point.natural.y, 2);
  EXPECT_NEAR(sum, 12.0 / 5040, 1e-16);
}

}  // namespace
}  // namespace Tarvex::Util::IntegrationTest
