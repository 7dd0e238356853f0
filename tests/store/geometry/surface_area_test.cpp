#include "store/geometry/surface_area.h"

#include <gtest/gtest.h>

#include <vector>

namespace Tarvex::Util::SurfaceAreaTest {
namespace {

using V = Vec3<double>;

TEST(SurfaceArea, OfPlaneStraightElementsIsThatOfTheirPolygon) {
  EXPECT_NEAR(SurfaceArea(std::vector<V>{{0, 0, 1}, {2, 0, 1}, {0, 3, 1}}), 3, 1e-14);
  // A trapezium of height 2 between sides of 4 and 2, standing upright.
  EXPECT_NEAR(SurfaceArea(std::vector<V>{{0, 5, 0}, {4, 5, 0}, {3, 5, 2}, {1, 5, 2}}), 6, 1e-14);
  EXPECT_NEAR(
      SurfaceArea(std::vector<V>{{0, 0, 0}, {2, 0, 0}, {0, 2, 0}, {1, 0, 0}, {1, 1, 0}, {0, 1, 0}}),
      2, 1e-14);
}

// A mid-side node that stands out by h makes its edge a parabola, whose segment over a chord of 2
// holds 2 / 3 * 2 * h (Archimedes).
TEST(SurfaceArea, CountsCurvedEdges) {
  double const segment = 2.0 / 3 * 2 * 0.3;
  EXPECT_NEAR(SurfaceArea(std::vector<V>{{0, 0, 0},
                                         {2, 0, 0},
                                         {2, 2, 0},
                                         {0, 2, 0},
                                         {1, -0.3, 0},
                                         {2, 1, 0},
                                         {1, 2, 0},
                                         {0, 1, 0}}),
              4 + segment, 1e-13);
  EXPECT_NEAR(SurfaceArea(std::vector<V>{
                  {0, 0, 0}, {2, 0, 0}, {0, 2, 0}, {1, -0.3, 0}, {1, 1, 0}, {0, 1, 0}}),
              2 + segment, 1e-13);
}

TEST(SurfaceArea, OfAnotherNumberOfNodesIsZero) {
  EXPECT_EQ(SurfaceArea({}), 0);
  EXPECT_EQ(SurfaceArea(std::vector<V>(5, V{1, 2, 3})), 0);
}

}  // namespace
}  // namespace Tarvex::Util::SurfaceAreaTest
