// The cells of points against the distances themselves.
#include "topology/node_cells.h"

#include <gtest/gtest.h>

#include <cmath>
#include <set>

#include "tests/support/random_model.h"

namespace Tarvex::NodeCellsTest {
namespace {

using Testing::Random;

std::set<int> NearTo(NodeCells const& cells, Vec3<double> const& point) {
  std::set<int> near;
  cells.ForEachNear(point, [&](int place) { near.insert(place); });
  return near;
}

TEST(NodeCells, LeaveOutNoPointWithinTheWidth) {
  // Points about a place at the distance of the width, a little less and more, and of the last
  // digit of the co-ordinates; widths from far below that digit to far above.
  for (double const at : {0.0, 1.0, 1000.0, -5e6, 1e15, 1e200})
    for (double const width : {1e-300, 1e-14, 1e-10, 1e-3, 0.25, 1e3, 1e9}) {
      Random random(7);
      std::vector<Vec3<double>> points;
      auto const near = [&](double c) {
        double const step = random.Of<double>({0, 0.3, 0.5, 0.9999999, 1, 1.0000001});
        double const moved = c + (random.Percent(50) ? step : -step) * width;
        return random.Percent(20) ? std::nextafter(moved, 1e300) : moved;
      };
      for (int i = 0; i < 60; ++i) {
        auto const from =
            points.empty() || random.Percent(20) ? Vec3<double>{at, -at, at} : random.Of(points);
        points.push_back(random.Percent(70) ? Vec3<double>{near(from.x), from.y, from.z}
                                            : Vec3<double>{near(from.x), near(from.y), from.z});
      }
      NodeCells const cells(points, width);
      for (auto const& p : points) {
        auto const found = NearTo(cells, p);
        for (std::size_t i = 0; i < points.size(); ++i)
          if (Length(points[i] - p) <= width) {
            ASSERT_TRUE(found.contains(static_cast<int>(i))) << at << ", width " << width;
          }
      }
    }
}

TEST(NodeCells, TellPointsApartWhereverAnotherOneStands) {
  // A row of 4096 points a metre apart, and one at the end of the world: a question for 0.001 meets
  // a few that share a place of the hash.
  std::vector<Vec3<double>> points{{1e300, 0, 0}};
  for (int i = 0; i < 4096; ++i) points.push_back({5e6 + i, 0, 0});
  NodeCells const cells(points, 0.001);
  std::size_t met = 0;
  for (auto const& p : points) met += NearTo(cells, p).size();
  EXPECT_LT(met, 100 * points.size());
}

TEST(NodeCells, PassOverPointsThatAreNoNumbers) {
  std::vector<Vec3<double>> const points{{std::nan(""), 0, 0}, {0, 0, 0}};
  NodeCells const cells(points, 1);
  EXPECT_EQ(NearTo(cells, {0, 0, 0}), (std::set{1}));
  EXPECT_EQ(NearTo(cells, points.front()), std::set<int>());
}

}  // namespace
}  // namespace Tarvex::NodeCellsTest
