#include "store/geometry/intersect.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <limits>
#include <stdexcept>

#include "tests/support/random_model.h"

namespace Tarvex::Util {
namespace {

using Data::CPolygon;
using V2 = Vec2<double>;

CPolygon Outline(std::vector<V2> const& points) {
  CPolygon polygon;
  for (auto const& point : points) polygon.AddPoint(point);
  return polygon;
}

CPolygon BoxAt(double x, double y, double width, double height) {
  return Outline({{x, y}, {x + width, y}, {x + width, y + height}, {x, y + height}});
}

/// Twice the area, above 0 when the polygon runs counter-clockwise.
double SignedArea(CPolygon const& polygon) {
  double twice = 0;
  int const count = polygon.NumPoint();
  for (int i = 0; i < count; ++i) {
    auto const a = polygon.Point(i);
    auto const b = polygon.Point((i + 1) % count);
    twice += a.x * b.y - a.y * b.x;
  }
  return twice / 2;
}

double TotalArea(CIntersect const& common) {
  double area = 0;
  for (int i = 0; i < common.NumIntersect(); ++i) area += common.Intersect(i).Area();
  return area;
}

TEST(Intersect, GivesTheCommonPieceOfTwoBoxes) {
  CIntersect common(0.001);
  ASSERT_EQ(common.NumPoly(BoxAt(0, 0, 4, 3), BoxAt(3, 1, 9, 9)), 1);
  EXPECT_EQ(common.NumIntersect(), 1);
  auto const& piece = common.Intersect(0);
  EXPECT_EQ(piece.NumPoint(), 4);
  for (V2 const corner : {V2{3, 1}, V2{4, 1}, V2{4, 3}, V2{3, 3}}) {
    int vertex = 0;
    EXPECT_TRUE(piece.PointExist(corner, vertex));
  }
  EXPECT_DOUBLE_EQ(piece.Area(), 2);
  EXPECT_EQ(piece.Tolerance(), 0.001);
}

TEST(Intersect, TakesPolygonsEitherWayRoundAndGivesThemCounterClockwise) {
  auto const box = BoxAt(0, 0, 4, 3);
  auto const clockwise = Outline({{3, 1}, {3, 9}, {9, 9}, {9, 1}});
  CIntersect common(0.001);
  for (auto const& [a, b] : {std::pair{box, clockwise}, std::pair{clockwise, box}}) {
    ASSERT_EQ(common.NumPoly(a, b), 1);
    EXPECT_NEAR(SignedArea(common.Intersect(0)), 2, 1e-12);
  }
}

TEST(Intersect, GivesSeveralPieces) {
  // The teeth of a comb: three of width 1 and height 2 reach into the strip by 1.
  auto const comb = Outline({{0, 0},
                             {5, 0},
                             {5, 3},
                             {4, 3},
                             {4, 1},
                             {3, 1},
                             {3, 3},
                             {2, 3},
                             {2, 1},
                             {1, 1},
                             {1, 3},
                             {0, 3}});
  CIntersect common(0.001);
  ASSERT_EQ(common.NumPoly(comb, BoxAt(-1, 2, 9, 9)), 3);
  for (int i = 0; i < 3; ++i) EXPECT_DOUBLE_EQ(common.Intersect(i).Area(), 1);
  EXPECT_THROW(common.Intersect(3), std::out_of_range);
  EXPECT_THROW(common.Intersect(-1), std::out_of_range);
}

TEST(Intersect, GivesThePolygonItselfInsideTheOther) {
  CIntersect common(0.001);
  ASSERT_EQ(common.NumPoly(BoxAt(-9, -9, 30, 30), BoxAt(1, 2, 3, 4)), 1);
  EXPECT_DOUBLE_EQ(TotalArea(common), 12);
  ASSERT_EQ(common.NumPoly(BoxAt(1, 2, 3, 4), BoxAt(1, 2, 3, 4)), 1);
  EXPECT_DOUBLE_EQ(TotalArea(common), 12);
}

TEST(Intersect, GivesNothingWhereTheyOnlyTouch) {
  CIntersect common(0.001);
  ASSERT_EQ(common.NumPoly(BoxAt(0, 0, 2, 2), BoxAt(1, 1, 2, 2)), 1);
  EXPECT_EQ(common.NumPoly(BoxAt(0, 0, 2, 2), BoxAt(2, 0, 2, 2)), 0);
  EXPECT_EQ(common.NumIntersect(), 0);  // what was found before is gone
  EXPECT_EQ(common.NumPoly(BoxAt(0, 0, 2, 2), BoxAt(2, 2, 2, 2)), 0);
  EXPECT_EQ(common.NumPoly(BoxAt(0, 0, 2, 2), BoxAt(5, 5, 2, 2)), 0);
}

TEST(Intersect, LeavesOutPiecesNarrowerThanTheTolerance) {
  CIntersect common(0.001);
  EXPECT_EQ(common.NumPoly(BoxAt(0, 0, 2, 2), BoxAt(1.9991, 0, 2, 2)), 0);
  EXPECT_EQ(common.NumPoly(BoxAt(0, 0, 2, 2), BoxAt(1.9989, 0, 2, 2)), 1);
  CIntersect exact(0);
  EXPECT_EQ(exact.NumPoly(BoxAt(0, 0, 2, 2), BoxAt(1.9991, 0, 2, 2)), 1);
}

TEST(Intersect, GivesNothingForPolygonsWithoutAreaOrThatCrossThemselves) {
  CIntersect common(0.001);
  auto const box = BoxAt(0, 0, 4, 4);
  double const nan = std::numeric_limits<double>::quiet_NaN();
  for (auto const& bad :
       {CPolygon(), Outline({{1, 1}, {2, 2}}), Outline({{1, 1}, {2, 2}, {3, 3}}),
        Outline({{1, 1}, {1, 1}, {1, 1}}), Outline({{0, 0}, {3, 3}, {3, 0}, {0, 3}}),
        Outline({{0, 0}, {nan, 3}, {3, 0}}),
        Outline({{0, 0}, {std::numeric_limits<double>::infinity(), 3}, {3, 0}})}) {
    EXPECT_EQ(common.NumPoly(box, bad), 0);
    EXPECT_EQ(common.NumPoly(bad, box), 0);
  }
}

TEST(Intersect, PassesOverRepeatedPointsAndSpikes) {
  CIntersect common(0.001);
  auto const spiked = Outline({{0, 0}, {2, 0}, {2, 0}, {5, 0}, {2, 0}, {2, 2}, {0, 2}, {0, 0}});
  ASSERT_EQ(common.NumPoly(spiked, BoxAt(1, 1, 9, 9)), 1);
  EXPECT_DOUBLE_EQ(TotalArea(common), 1);
}

TEST(Intersect, SharesOutAnOutlineOverPanelsWhoseEdgesDifferByRounding) {
  // An angle of 4 by 4 less 2 by 2 on a turned grid of unit panels: 12 whole panels.
  Testing::Random random(59);
  for (int round = 0; round < 200; ++round) {
    double const off = round % 2 == 0 ? 0 : 1000;
    double const turn = round % 4 < 2 ? 0 : 0.7;
    double const jitter = std::pow(10, random.Int(-17, -9));
    auto const at = [&](double x, double y) {
      return V2{off + x * std::cos(turn) - y * std::sin(turn) + random.Real(-jitter, jitter),
                off + x * std::sin(turn) + y * std::cos(turn) + random.Real(-jitter, jitter)};
    };
    auto const angle = Outline({at(0, 0), at(4, 0), at(4, 2), at(2, 2), at(2, 4), at(0, 4)});
    CIntersect common(0.001);
    int pieces = 0;
    for (int i = -1; i < 5; ++i) {
      for (int j = -1; j < 5; ++j) {
        auto const panel = Outline({at(i, j), at(i + 1, j), at(i + 1, j + 1), at(i, j + 1)});
        bool const inside = i >= 0 && j >= 0 && i < 4 && j < 4 && (i < 2 || j < 2);
        ASSERT_EQ(common.NumPoly(angle, panel), inside ? 1 : 0) << i << ' ' << j;
        pieces += common.NumIntersect();
        ASSERT_NEAR(TotalArea(common), inside ? 1 : 0, 1e-6);
      }
    }
    ASSERT_EQ(pieces, 12);
  }
}

TEST(Intersect, PassesOverSpikesThatAreARoundingWide) {
  CIntersect common(0.001);
  auto const spiked = Outline({{0, 0}, {2, 0}, {2, 1}, {5, 1.3}, {2, 1 + 1e-9}, {2, 2}, {0, 2}});
  ASSERT_EQ(common.NumPoly(spiked, BoxAt(-1, -1, 9, 9)), 1);
  EXPECT_NEAR(TotalArea(common), 4, 1e-8);
  EXPECT_EQ(common.NumPoly(spiked, BoxAt(3, 0, 4, 4)), 0);
}

TEST(Intersect, KeepsItsDigitsFarFromTheOrigin) {
  CIntersect common(0.001);
  ASSERT_EQ(common.NumPoly(BoxAt(1e7, -1e7, 4, 3), BoxAt(1e7 + 3, -1e7 + 1, 9, 9)), 1);
  EXPECT_NEAR(TotalArea(common), 2, 1e-6);
  EXPECT_NEAR(common.Intersect(0).Centroid().x - 1e7, 3.5, 1e-7);
}

TEST(Intersect, CutsASheetIntoTheWhole) {
  // The cells of a skew grid share out any star-shaped outline that lies in it.
  Testing::Random random(53);
  for (int round = 0; round < 20; ++round) {
    std::vector<V2> points;
    int const count = random.Int(3, 9);
    for (int i = 0; i < count; ++i) {
      double const angle = 2 * kPi * i / count;
      double const radius = random.Real(0.5, 3.4);
      points.push_back({radius * std::cos(angle), radius * std::sin(angle)});
    }
    auto const outline = Outline(points);
    CIntersect common(0);
    double sum = 0;
    for (int i = -8; i < 8; ++i) {
      for (int j = -8; j < 8; ++j) {
        auto const corner = [](double x, double y) {
          return V2{0.9 * x + 0.3 * y, 0.7 * y - 0.2 * x};
        };
        auto const cell =
            Outline({corner(i, j), corner(i + 1, j), corner(i + 1, j + 1), corner(i, j + 1)});
        common.NumPoly(outline, cell);
        sum += TotalArea(common);
      }
    }
    EXPECT_NEAR(sum, outline.Area(), 1e-6 * outline.Area());
  }
}

}  // namespace
}  // namespace Tarvex::Util
