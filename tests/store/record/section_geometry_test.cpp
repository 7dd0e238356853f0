#include "store/record/section_geometry.h"

#include <gtest/gtest.h>

#include <cmath>

#include "store/record/section.h"

namespace Tarvex::Data::SectionGeometryTest {
namespace {

using Util::AreaMoments;

SectionProperties Of(CString const& description, double position = 0) {
  return PropertiesOf(CSecGeom(description).Moments(position));
}

/// Closed formulas hold to 1e-12 of the value.
void ExpectClosed(double got, double wanted) { EXPECT_NEAR(got, wanted, 1e-12 * std::abs(wanted)); }

struct Closed {
  double area;
  double iyy;
  double izz;
};
void ExpectClosed(CString const& description, Closed const& wanted) {
  SCOPED_TRACE(description.ToUtf8());
  auto const got = Of(description);
  ExpectClosed(got.area, wanted.area);
  ExpectClosed(got.iyy, wanted.iyy);
  ExpectClosed(got.izz, wanted.izz);
  EXPECT_NEAR(got.iyz, 0, 1e-14);
}

double Cube(double x) { return x * x * x; }
double Fourth(double x) { return x * x * x * x; }

TEST(SectionGeometry, OfSimpleShapesFollowsTheClosedFormulas) {
  ExpectClosed(L"rectangle 0.5 0.3", {0.15, 0.3 * Cube(0.5) / 12, 0.5 * Cube(0.3) / 12});
  ExpectClosed(L"circle 0.6", {kPi * 0.09, kPi * Fourth(0.3) / 4, kPi * Fourth(0.3) / 4});
  double const ring = kPi * (Fourth(0.1) - Fourth(0.09)) / 4;
  ExpectClosed(L"tube 0.2 0.01", {kPi * (0.01 - 0.0081), ring, ring});
  // h (a + b) / 2; h^3 (a^2 + 4 a b + b^2) / (36 (a + b)); h (a + b) (a^2 + b^2) / 48.
  ExpectClosed(L"trapezoid 0.5 0.4 0.2",
               {0.15, Cube(0.5) * (0.16 + 0.32 + 0.04) / (36 * 0.6), 0.5 * 0.6 * 0.2 / 48});
}

TEST(SectionGeometry, OfBuiltUpShapesFollowsTheClosedFormulas) {
  ExpectClosed(L"box 0.3 0.2 0.01 0.02",
               {0.3 * 0.2 - 0.26 * 0.18, (0.2 * Cube(0.3) - 0.18 * Cube(0.26)) / 12,
                (0.3 * Cube(0.2) - 0.26 * Cube(0.18)) / 12});
  ExpectClosed(L"I 0.4 0.2 0.01 0.02",
               {2 * 0.2 * 0.02 + 0.36 * 0.01, (0.2 * Cube(0.4) - 0.19 * Cube(0.36)) / 12,
                (2 * 0.02 * Cube(0.2) + 0.36 * Cube(0.01)) / 12});
}

TEST(SectionGeometry, OfUnequalFlangesFollowsTheParallelAxes) {
  // Flanges 300 x 20 above and 200 x 10 below, web 370 x 10; z from the bottom.
  double const areas[] = {0.3 * 0.02, 0.37 * 0.01, 0.2 * 0.01};
  double const heights[] = {0.39, 0.195, 0.005};
  double const own[] = {0.3 * Cube(0.02) / 12, 0.01 * Cube(0.37) / 12, 0.2 * Cube(0.01) / 12};
  double area = 0, first = 0;
  for (int i = 0; i < 3; ++i) {
    area += areas[i];
    first += areas[i] * heights[i];
  }
  double second = 0;
  for (int i = 0; i < 3; ++i)
    second += own[i] + areas[i] * (heights[i] - first / area) * (heights[i] - first / area);
  auto const got = Of(L"unequal-I 0.4 0.3 0.2 0.01 0.02 0.01");
  ExpectClosed(got.area, area);
  ExpectClosed(got.centroid.y, first / area - 0.2);  // from the middle of the depth
  ExpectClosed(got.iyy, second);
  ExpectClosed(got.izz, (0.02 * Cube(0.3) + 0.37 * Cube(0.01) + 0.01 * Cube(0.2)) / 12);
}

TEST(SectionGeometry, OfAnUnequalBoxIsItsBoxLessTheHole) {
  // Webs 10 left and 30 right, flanges 20 above and 40 below: the hole is 160 wide from y = -0.07
  // to 0.09 and 240 high from z = -0.11 to 0.13.
  auto const got = CSecGeom(L"unequal-box 0.3 0.2 0.01 0.03 0.02 0.04").Moments(0);
  ExpectClosed(got.area, 0.3 * 0.2 - 0.16 * 0.24);
  ExpectClosed(got.first.x, -0.16 * 0.24 * 0.01);
  ExpectClosed(got.first.y, -0.16 * 0.24 * 0.01);
  ExpectClosed(got.yy, 0.2 * Cube(0.3) / 12 - 0.16 * (Cube(0.13) + Cube(0.11)) / 3);
  ExpectClosed(got.xx, 0.3 * Cube(0.2) / 12 - 0.24 * (Cube(0.09) + Cube(0.07)) / 3);
}

TEST(SectionGeometry, OfAChannelHasItsWebOnTheRight) {
  // Web 200 x 10 at y -0.04 to -0.03, flanges 70 x 20 from there to 0.04.
  auto const got = CSecGeom(L"channel 0.2 0.08 0.01 0.02").Moments(0);
  ExpectClosed(got.area, 0.2 * 0.01 + 2 * 0.07 * 0.02);
  ExpectClosed(got.first.x, 0.002 * -0.035 + 0.0028 * 0.005);
  EXPECT_NEAR(got.first.y, 0, 1e-17);
  ExpectClosed(got.yy, (0.08 * Cube(0.2) - 0.07 * Cube(0.16)) / 12);
}

TEST(SectionGeometry, OfTeesHasTheFlangeAbove) {
  // Flange 400 x 100 at z 0.15 to 0.25, web 400 x 200 below.
  auto const got = CSecGeom(L"tee 0.5 0.4 0.2 0.1").Moments(0);
  ExpectClosed(got.area, 0.04 + 0.08);
  ExpectClosed(got.first.y, 0.04 * 0.2 + 0.08 * -0.05);
  // The web of a tapered one is a trapezium 200 and 100 wide.
  auto const tapered = CSecGeom(L"tapered-tee 0.5 0.4 0.2 0.1 0.1").Moments(0);
  ExpectClosed(tapered.area, 0.04 + 0.4 * 0.15);
  ExpectClosed(tapered.first.y,
               0.04 * 0.2 + 0.06 * (-0.25 + 0.4 / 3 * (0.1 + 2 * 0.2) / (0.1 + 0.2)));
}

TEST(SectionGeometry, OfATaperedIHasATaperedWeb) {
  // Flanges 300 x 30 and 300 x 20, web 350 high, 20 wide above and 10 below.
  auto const got = CSecGeom(L"tapered-I 0.4 0.3 0.02 0.01 0.03 0.02").Moments(0);
  ExpectClosed(got.area, 0.3 * 0.05 + 0.35 * 0.015);
  double const web = -0.18 + 0.35 / 3 * (0.01 + 2 * 0.02) / (0.01 + 0.02);
  ExpectClosed(got.first.y, 0.009 * 0.185 - 0.006 * 0.19 + 0.35 * 0.015 * web);
}

/// A rolled section of a table: millimetres, cm2 and cm4.
struct Rolled {
  wchar_t const* name;
  wchar_t const* description;
  double area;
  double iyy;
  double izz;
};

void ExpectTable(std::initializer_list<Rolled> rows) {
  constexpr double kArea = 1e-4;
  constexpr double kSecond = 1e-8;
  for (auto const& row : rows) {
    SCOPED_TRACE(CString(row.name).ToUtf8());
    auto const got = Of(row.description);
    EXPECT_NEAR(got.area, row.area * kArea, 0.005 * row.area * kArea);
    EXPECT_NEAR(got.iyy, row.iyy * kSecond, 0.01 * row.iyy * kSecond);
    EXPECT_NEAR(got.izz, row.izz * kSecond, 0.01 * row.izz * kSecond);
  }
}

TEST(SectionGeometry, OfRolledISectionsMeetsTheirTable) {
  // DIN 1025-5:1994-03 (IPE), DIN 1025-3:1994-03 (HEA), DIN 1025-2:1995-11 (HEB).
  ExpectTable({{L"IPE 200", L"I(mm) 200 100 5.6 8.5 12", 28.5, 1943, 142},
               {L"IPE 300", L"I(mm) 300 150 7.1 10.7 15", 53.8, 8356, 604},
               {L"IPE 400", L"I(mm) 400 180 8.6 13.5 21", 84.5, 23130, 1318},
               {L"IPE 500", L"I(mm) 500 200 10.2 16 21", 116, 48200, 2142},
               {L"HEA 200", L"I(mm) 190 200 6.5 10 18", 53.8, 3692, 1336},
               {L"HEB 200", L"I(mm) 200 200 9 15 18", 78.1, 5696, 2003},
               {L"HEB 300", L"I(mm) 300 300 11 19 27", 149, 25170, 8563}});
}

TEST(SectionGeometry, OfRolledChannelsMeetsTheirTable) {
  // DIN 1026-2:2002-10 (UPE, parallel flanges).
  ExpectTable({{L"UPE 100", L"channel(mm) 100 55 4.5 7.5 10", 12.5, 207, 38.3},
               {L"UPE 140", L"channel(mm) 140 65 5 9 12", 18.4, 600, 78.8},
               {L"UPE 160", L"channel(mm) 160 70 5.5 9.5 12", 21.7, 911, 107},
               {L"UPE 200", L"channel(mm) 200 80 6 11 13", 29.0, 1910, 187},
               {L"UPE 240", L"channel(mm) 240 90 7 12.5 15", 38.5, 3600, 311},
               {L"UPE 300", L"channel(mm) 300 100 9.5 15 15", 56.6, 7820, 538}});
}

TEST(SectionGeometry, OfHollowSectionsMeetsTheirTable) {
  // EN 10210-2:2006, tables of sectional properties: outer corners 1.5 T, inner ones 1.0 T.
  ExpectTable({{L"SHS 100 x 5", L"box(mm) 100 100 5 5 7.5 5", 18.7, 279, 279},
               {L"SHS 150 x 8", L"box(mm) 150 150 8 8 12 8", 44.8, 1491, 1491},
               {L"SHS 200 x 10", L"box(mm) 200 200 10 10 15 10", 74.9, 4471, 4471},
               {L"RHS 150 x 100 x 5", L"box(mm) 150 100 5 5 7.5 5", 23.7, 739, 392},
               {L"RHS 300 x 200 x 10", L"box(mm) 300 200 10 10 15 10", 94.9, 11819, 6278},
               {L"CHS 168.3 x 5", L"tube(mm) 168.3 5", 25.7, 856, 856},
               {L"CHS 219.1 x 8", L"tube(mm) 219.1 8", 53.1, 2960, 2960}});
}

TEST(SectionGeometry, ChangesEvenlyAlongTheElement) {
  CSecGeom const beam(L"rectangle 0.4 0.2 to 0.8 0.3");
  EXPECT_EQ(beam.Dimension(0, SectionProp::Depth), 0.4);
  EXPECT_EQ(beam.Dimension(1, SectionProp::Depth), 0.8);
  EXPECT_NEAR(beam.Dimension(0.25, SectionProp::Depth), 0.5, 1e-15);
  EXPECT_NEAR(beam.Dimension(0.5, SectionProp::Width), 0.25, 1e-15);
  EXPECT_NEAR(beam.Moments(0.5).area, 0.6 * 0.25, 1e-15);
}

TEST(SectionGeometry, HasZeroForADimensionThatTheShapeHasNot) {
  CSecGeom const bar(L"rectangle 0.4 0.2");
  EXPECT_EQ(bar.Dimension(0, SectionProp::WebThickness), 0);
  EXPECT_EQ(bar.Dimension(0, static_cast<SectionProp>(9)), 0);
  EXPECT_EQ(bar.Dimension(0, static_cast<SectionProp>(-1)), 0);
}

TEST(SectionGeometry, HasABoxAroundEachShape) {
  for (auto const* text :
       {L"rectangle 0.4 0.2", L"box 0.4 0.2 0.01 0.01", L"box 0.4 0.2 0.02 0.02 0.03 0.02",
        L"unequal-box 0.4 0.2 0.01 0.02 0.01 0.02", L"I 0.4 0.2 0.01 0.02 0.02",
        L"unequal-I 0.4 0.2 0.1 0.01 0.02 0.02", L"tapered-I 0.4 0.2 0.02 0.01 0.02 0.02",
        L"channel 0.4 0.2 0.01 0.02 0.01", L"tee 0.4 0.2 0.02 0.02",
        L"tapered-tee 0.4 0.2 0.02 0.01 0.02", L"trapezoid 0.4 0.2 0.1"}) {
    SCOPED_TRACE(CString(text).ToUtf8());
    auto const box = CSecGeom(text).Box(0, 0);
    EXPECT_NEAR(box.left, 0.1, 1e-15);
    EXPECT_NEAR(box.right, -0.1, 1e-15);
    EXPECT_NEAR(box.top, 0.2, 1e-15);
    EXPECT_NEAR(box.bottom, -0.2, 1e-15);
  }
  EXPECT_EQ(CSecGeom().Box(0, 0), CSecBox());
}

TEST(SectionGeometry, TurnsItsBox) {
  double const quarter = kPi / 2;
  auto const turned = CSecGeom(L"rectangle 0.4 0.2").Box(0, quarter);
  EXPECT_NEAR(turned.Width(), 0.4, 1e-15);
  EXPECT_NEAR(turned.Height(), 0.2, 1e-15);
  // At 45 degrees a square of 1 is as wide as its diagonal, one with corners of radius 0.2 less
  // twice 0.2 (sqrt 2 - 1).
  double const eighth = kPi / 4;
  EXPECT_NEAR(CSecGeom(L"rectangle 1 1").Box(0, eighth).Width(), std::sqrt(2.0), 1e-15);
  EXPECT_NEAR(CSecGeom(L"box 1 1 0.1 0.1 0.2").Box(0, eighth).Width(),
              std::sqrt(2.0) - 0.4 * (std::sqrt(2.0) - 1), 1e-15);
  EXPECT_NEAR(CSecGeom(L"circle 1").Box(0, eighth).Width(), 1, 1e-15);
  // The wide flange of a tee sticks out with its lower corners: from (0.5, 0) and (-0.1, -1).
  auto const tee = CSecGeom(L"tee 2 1 0.2 1").Box(0, eighth);
  EXPECT_NEAR(tee.bottom, (-1 - 0.1) / std::sqrt(2.0), 1e-15);
  EXPECT_NEAR(tee.right, (-0.5 - 1) / std::sqrt(2.0), 1e-15);
}

TEST(SectionGeometry, KeepsATextThatItCannotRead) {
  CSecGeom geometry(L"no shape");
  EXPECT_FALSE(geometry.IsReadable());
  EXPECT_EQ(geometry.Text(), L"no shape");
  EXPECT_EQ(geometry.Description(true), L"no shape");
  EXPECT_EQ(geometry.Type(), SectionShape::None);
  EXPECT_EQ(geometry.Moments(0).area, 0);
  EXPECT_TRUE(geometry.SetDescription(L"circle 1"));
  EXPECT_TRUE(geometry.IsReadable());
  SectionFault fault;
  EXPECT_FALSE(geometry.SetDescription(L"circle", &fault));
  EXPECT_EQ(fault.position, 6);
  EXPECT_EQ(geometry.Text(), L"circle 1");
  EXPECT_EQ(geometry.Type(), SectionShape::Circle);
}

TEST(SectionGeometry, DescribesEqualShapesAlike) {
  CSecGeom const given(L"rectangle(mm) 500 300");
  EXPECT_EQ(given.Description(false), L"rectangle(mm) 500 300");
  EXPECT_EQ(given.Description(true), L"rectangle 0.5 0.3");
  EXPECT_EQ(CSecGeom(L"rectangle  0.50 0.3").Description(true), L"rectangle 0.5 0.3");
  EXPECT_EQ(CSecGeom().Description(true), L"");
}

}  // namespace
}  // namespace Tarvex::Data::SectionGeometryTest
