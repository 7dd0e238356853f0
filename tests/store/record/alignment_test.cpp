#include "store/record/alignment.h"

#include <gtest/gtest.h>

#include <limits>
#include <numbers>

#include "tests/support/stored_fields.h"

namespace Tarvex::Data::AlignmentTest {
namespace {

constexpr double kTolerance = 1e-12;
constexpr double kQuarter = std::numbers::pi / 2;

void ExpectPlace(CAlignment const& alignment, double chainage, double x, double y, double heading) {
  SCOPED_TRACE(chainage);
  auto const place = alignment.At(chainage);
  EXPECT_NEAR(place.point.x, x, kTolerance * 100);
  EXPECT_NEAR(place.point.y, y, kTolerance * 100);
  EXPECT_NEAR(place.heading, heading, kTolerance);
}

TEST(Alignment, IsTheXDirectionWithoutItems) {
  CAlignment const alignment;
  ExpectPlace(alignment, 0, 0, 0, 0);
  ExpectPlace(alignment, 12.5, 12.5, 0, 0);
  ExpectPlace(alignment, -3, -3, 0, 0);
  EXPECT_EQ(alignment.LastChainage(), 0);
}

TEST(Alignment, BeginsAtTheOriginWhateverItsFirstChainage) {
  CAlignment const alignment(L"road", 0, {{100, 0}, {150, 0}});
  ExpectPlace(alignment, 100, 0, 0, 0);
  ExpectPlace(alignment, 130, 30, 0, 0);
  ExpectPlace(alignment, 90, -10, 0, 0);
  EXPECT_EQ(alignment.LastChainage(), 150);
}

TEST(Alignment, TurnsLeftWithPositiveCurvature) {
  // Radius 10, centre (0, 10): a quarter of the circle leads to (10, 10), northwards; a half to
  // (0, 20), westwards.
  CAlignment const alignment(L"", 0, {{0, 0.1}});
  ExpectPlace(alignment, 10 * kQuarter, 10, 10, kQuarter);
  ExpectPlace(alignment, 20 * kQuarter, 0, 20, 2 * kQuarter);
  // A third of a quarter: 30 degrees, (10 sin 30, 10 - 10 cos 30) = (5, 10 - 5 sqrt 3).
  ExpectPlace(alignment, 10 * kQuarter / 3, 5, 10 - 5 * std::sqrt(3), kQuarter / 3);
}

TEST(Alignment, TurnsRightWithNegativeCurvature) {
  CAlignment const alignment(L"", 0, {{0, -0.1}});
  ExpectPlace(alignment, 10 * kQuarter, 10, -10, -kQuarter);
}

TEST(Alignment, JoinsStraightsAndArcsOfBothHands) {
  // 20 straight to (20, 0); a quarter to the left of radius 10 to (30, 10), northwards; 5 straight
  // to (30, 15); a quarter to the right of radius 4 about (34, 15) to (34, 19), eastwards; then
  // straight on.
  double const a = 20;
  double const b = a + 10 * kQuarter;
  double const c = b + 5;
  double const d = c + 4 * kQuarter;
  CAlignment const alignment(L"", 0, {{0, 0}, {a, 0.1}, {b, 0}, {c, -0.25}, {d, 0}});
  ExpectPlace(alignment, 19, 19, 0, 0);
  ExpectPlace(alignment, a, 20, 0, 0);
  ExpectPlace(alignment, b, 30, 10, kQuarter);
  ExpectPlace(alignment, b + 2, 30, 12, kQuarter);
  ExpectPlace(alignment, c, 30, 15, kQuarter);
  ExpectPlace(alignment, d, 34, 19, 0);
  ExpectPlace(alignment, d + 7, 41, 19, 0);
  EXPECT_EQ(alignment.LastChainage(), d);
}

TEST(Alignment, GoesOnBeyondItsEndsWithTheCurvatureThere) {
  CAlignment const alignment(L"", 0, {{0, 0.1}, {10 * kQuarter, -0.1}});
  // Beyond the end: from (10, 10), northwards, a quarter to the right about (20, 10) to (20, 20).
  ExpectPlace(alignment, 20 * kQuarter, 20, 20, 0);
  // Before the start: back along the first circle about (0, 10) to (-10, 10), southwards.
  ExpectPlace(alignment, -10 * kQuarter, -10, 10, -kQuarter);
}

TEST(Alignment, IsExactOnArcsThatHardlyTurn) {
  // Turn 1e-9 * 100 = 1e-7: y = 100 * 1e-7 / 2 to the first order.
  CAlignment const alignment(L"", 0, {{0, 1e-9}});
  auto const place = alignment.At(100);
  EXPECT_NEAR(place.point.x, 100, 1e-11);
  EXPECT_NEAR(place.point.y, 5e-6, 1e-17);
}

TEST(Alignment, AsksForAscendingChainages) {
  CAlignment alignment(L"", 0, {{0, 0.5}});
  double const nan = std::numeric_limits<double>::quiet_NaN();
  for (double const second : {-1.0, 0.0, nan})
    EXPECT_THROW(alignment.SetItems({{0, 0}, {second, 0}}), std::invalid_argument) << second;
  EXPECT_THROW(CAlignment(L"", 0, {{1, 0}, {0, 0}}), std::invalid_argument);
  EXPECT_EQ(alignment.Items(), (std::vector<AlignmentItem>{{0, 0.5}}));
  EXPECT_EQ(alignment.Fault(), L"");
}

TEST(Alignment, ComparesEveryField) {
  Testing::ExpectStoredFields<CAlignment>({{"name", [](CAlignment& a) { a.SetName(L"n"); }},
                                           {"sid", [](CAlignment& a) { a.SetSid(L"s"); }},
                                           {"colour", [](CAlignment& a) { a.SetColour(1); }},
                                           {"surface", [](CAlignment& a) { a.SetSurface(2); }},
                                           {"items", [](CAlignment& a) {
                                              a.SetItems({{1, 2}});
                                            }}});
  Testing::ExpectFields<AlignmentItem>({{"chainage", [](AlignmentItem& i) { i.chainage = 1; }},
                                        {"curvature", [](AlignmentItem& i) { i.curvature = 1; }}});
}

}  // namespace
}  // namespace Tarvex::Data::AlignmentTest
