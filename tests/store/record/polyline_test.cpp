#include "store/record/polyline.h"

#include <gtest/gtest.h>

#include "tests/support/stored_fields.h"

namespace Tarvex::Data::PolylineTest {
namespace {

TEST(Polyline, GivesItsPointsAsAnOutlineWithATolerance) {
  CPolyline const polyline(L"path", 4, {{0, 0}, {3, 0}, {3, 4}});
  EXPECT_EQ(polyline.Name(), L"path");
  EXPECT_EQ(polyline.Plane(), 4);
  auto const polygon = polyline.Polygon();
  ASSERT_EQ(polygon.NumPoint(), 3);
  EXPECT_EQ(polygon.Point(2), (Vec2<double>{3, 4}));
  EXPECT_EQ(polygon.Tolerance(), 0.001);
  EXPECT_EQ(polygon.Area(), 6);    // 3 x 4 / 2
  EXPECT_EQ(polygon.Length(), 7);  // 3 + 4, not closed
}

TEST(Polyline, HasNoPointsAtFirst) {
  EXPECT_EQ(CPolyline().Polygon().NumPoint(), 0);
  EXPECT_EQ(CPolyline().Plane(), 0);
}

TEST(Polyline, ComparesEveryField) {
  Testing::ExpectStoredFields<CPolyline>({{"name", [](CPolyline& p) { p.SetName(L"n"); }},
                                          {"sid", [](CPolyline& p) { p.SetSid(L"s"); }},
                                          {"colour", [](CPolyline& p) { p.SetColour(1); }},
                                          {"plane", [](CPolyline& p) { p.SetPlane(2); }},
                                          {"points", [](CPolyline& p) {
                                             p.SetPoints({{1, 2}});
                                           }}});
}

TEST(Polyline, ComparesPointsToTheBit) {
  EXPECT_FALSE(CPolyline(L"", 0, {{0, 0}}) == CPolyline(L"", 0, {{0, -0.0}}));
}

}  // namespace
}  // namespace Tarvex::Data::PolylineTest
