#include "store/numeric/cell_size.h"

#include <gtest/gtest.h>

#include <cmath>
#include <set>
#include <tuple>
#include <vector>

namespace Tarvex::Util::CellSizeTest {
namespace {

using Points = std::vector<Vec3<double>>;

/// Mean number of points in an occupied cell of a size.
double Crowd(Points const& points, double size) {
  std::set<std::tuple<double, double, double>> cells;
  for (auto const& p : points)
    cells.emplace(std::floor(p.x / size), std::floor(p.y / size), std::floor(p.z / size));
  return static_cast<double>(points.size()) / static_cast<double>(cells.size());
}

Points Line(int count, double spacing) {
  Points points;
  for (int i = 0; i < count; ++i) points.push_back({i * spacing, 0, 0});
  return points;
}

TEST(SuitableCellSize, LeavesFewPointsInACellAndNoMoreCellsThanNeeded) {
  auto const points = Line(1000, 0.25);
  double const size = SuitableCellSize(points, 4);
  EXPECT_LE(Crowd(points, size), 4.5);
  EXPECT_GT(Crowd(points, 2 * size), 4);
}

TEST(SuitableCellSize, FollowsTheUnitOfTheModel) {
  EXPECT_DOUBLE_EQ(SuitableCellSize(Line(1000, 250), 4),
                   1000 * SuitableCellSize(Line(1000, 0.25), 4));
}

TEST(SuitableCellSize, IsNotMovedByOnePointFarAway) {
  auto points = Line(1000, 0.25);
  double const before = SuitableCellSize(points, 4);
  points.push_back({1e6, 1e6, 1e6});
  double const after = SuitableCellSize(points, 4);
  EXPECT_GT(after, before / 4);
  EXPECT_LT(after, before * 4);
}

TEST(SuitableCellSize, TellsStacksOfCoincidentPointsApart) {
  Points points;
  for (auto const& p : Line(50, 1.0)) points.insert(points.end(), 20, p);
  double const size = SuitableCellSize(points, 4);
  EXPECT_LE(size, 1.5);
  EXPECT_NEAR(Crowd(points, size), 20, 3);
}

TEST(SuitableCellSize, IsAnyPositiveSizeWithoutExtent) {
  EXPECT_GT(SuitableCellSize({}, 4), 0);
  EXPECT_GT(SuitableCellSize(Points{{1, 2, 3}}, 4), 0);
  EXPECT_GT(SuitableCellSize(Points(100, {1, 2, 3}), 4), 0);
  EXPECT_GT(SuitableCellSize(Points{{-1e308, 0, 0}, {1e308, 0, 0}}, 1), 0);
}

}  // namespace
}  // namespace Tarvex::Util::CellSizeTest
