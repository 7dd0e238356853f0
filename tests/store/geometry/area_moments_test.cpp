#include "store/geometry/area_moments.h"

#include <gtest/gtest.h>

#include <cmath>
#include <vector>

namespace Tarvex::Util::AreaMomentsTest {
namespace {

using Corners = std::vector<Vec2<double>>;

constexpr double kTiny = 1e-12;

void ExpectNear(AreaMoments const& got, AreaMoments const& wanted, double tolerance = kTiny) {
  EXPECT_NEAR(got.area, wanted.area, tolerance);
  EXPECT_NEAR(got.first.x, wanted.first.x, tolerance);
  EXPECT_NEAR(got.first.y, wanted.first.y, tolerance);
  EXPECT_NEAR(got.xx, wanted.xx, tolerance);
  EXPECT_NEAR(got.yy, wanted.yy, tolerance);
  EXPECT_NEAR(got.xy, wanted.xy, tolerance);
}

/// Sums over a fine grid of the figure that a test tells.
template <class IsInside>
AreaMoments Counted(double x0, double y0, double size, IsInside&& isInside) {
  constexpr int kCells = 1000;
  double const step = size / kCells;
  AreaMoments sum;
  for (int i = 0; i < kCells; ++i)
    for (int j = 0; j < kCells; ++j) {
      double const x = x0 + (i + 0.5) * step;
      double const y = y0 + (j + 0.5) * step;
      if (!isInside(x, y)) continue;
      double const a = step * step;
      sum += {a, {a * x, a * y}, a * x * x, a * y * y, a * x * y};
    }
  return sum;
}

TEST(AreaMoments, OfARectangleAreThoseOfTheClosedFormulas) {
  // From (1, 2) to (4, 7): area 15; 15 * 2.5, 15 * 4.5; (4^3 - 1) / 3 * 5, (7^3 - 2^3) / 3 * 3;
  // (4^2 - 1) / 2 * (7^2 - 2^2) / 2.
  ExpectNear(MomentsOfPolygon(Corners{{1, 2}, {4, 2}, {4, 7}, {1, 7}}),
             {15, {37.5, 67.5}, 105, 335, 168.75});
}

TEST(AreaMoments, OfATriangleAreThoseOfTheClosedFormulas) {
  // Legs 3 and 6 at the origin: b h / 2 = 9; b^2 h / 6, b h^2 / 6; b^3 h / 12, b h^3 / 12;
  // b^2 h^2 / 24.
  ExpectNear(MomentsOfPolygon(Corners{{0, 0}, {3, 0}, {0, 6}}), {9, {9, 18}, 13.5, 54, 13.5});
}

TEST(AreaMoments, OfAPolygonThatRunsTheOtherWayAreBelowZero) {
  ExpectNear(MomentsOfPolygon(Corners{{0, 6}, {3, 0}, {0, 0}}), {-9, {-9, -18}, -13.5, -54, -13.5});
}

TEST(AreaMoments, OfNoPointsAreNone) { ExpectNear(MomentsOfPolygon({}), {}); }

TEST(AreaMoments, OfADiscAreThoseOfTheClosedFormulas) {
  // pi r^2 and pi r^4 / 4 for r = 2.
  ExpectNear(MomentsOfDisc(2), {4 * kPi, {}, 4 * kPi, 4 * kPi, 0});
}

TEST(AreaMoments, OfAFilletAreWhatAQuarterCircleLeavesOfItsSquare) {
  auto const counted =
      Counted(0, 0, 2, [](double x, double y) { return std::hypot(2 - x, 2 - y) > 2; });
  ExpectNear(MomentsOfFillet(2), counted, 2e-3);
  // Its centroid lies at 0.2234 r from both sides (tables of plane figures).
  EXPECT_NEAR(MomentsOfFillet(1).Centroid().x, 0.2234, 5e-5);
  EXPECT_NEAR(MomentsOfFillet(1).Centroid().y, 0.2234, 5e-5);
  // Its own second moment is 0.00755 r^4.
  EXPECT_NEAR(AboutCentroid(MomentsOfFillet(1)).xx, 0.00755, 5e-6);
}

TEST(AreaMoments, OfATurnedAndMovedFigureAreThoseOfItsCorners) {
  Corners const corners{{0, 0}, {3, 0}, {1, 2}};
  double const angle = 0.7;
  Corners placed;
  for (auto const& p : corners)
    placed.push_back({std::cos(angle) * p.x - std::sin(angle) * p.y + 5,
                      std::sin(angle) * p.x + std::cos(angle) * p.y - 2});
  ExpectNear(Placed(MomentsOfPolygon(corners), angle, {5, -2}), MomentsOfPolygon(placed), 1e-11);
}

TEST(AreaMoments, OfAMirroredFigureAreThoseOfItsCorners) {
  Corners const corners{{0, 0}, {3, 0}, {1, 2}};
  Corners const mirrored{{-1, 2}, {-3, 0}, {0, 0}};
  ExpectNear(Mirrored(MomentsOfPolygon(corners), -1, 1), MomentsOfPolygon(mirrored));
  Corners const both{{0, 0}, {-3, 0}, {-1, -2}};
  ExpectNear(Mirrored(MomentsOfPolygon(corners), -1, -1), MomentsOfPolygon(both));
}

TEST(AreaMoments, AboutTheCentroidHaveNoFirstMoments) {
  // The rectangle above: 5 * 3^3 / 12 and 3 * 5^3 / 12.
  ExpectNear(AboutCentroid(MomentsOfPolygon(Corners{{1, 2}, {4, 2}, {4, 7}, {1, 7}})),
             {15, {0, 0}, 11.25, 31.25, 0});
  EXPECT_EQ(AreaMoments().Centroid(), (Vec2<double>{0, 0}));
}

}  // namespace
}  // namespace Tarvex::Util::AreaMomentsTest
