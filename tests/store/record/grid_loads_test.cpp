#include "store/record/grid_loads.h"

#include <gtest/gtest.h>

#include "tests/support/stored_fields.h"

namespace Tarvex::Data::GridLoadsTest {
namespace {

CPolygon Square() {
  CPolygon square;
  for (auto const& point : std::vector<Vec2<double>>{{0, 0}, {3, 0}, {3, 2}, {0, 2}})
    square.AddPoint(point);
  return square;
}

TEST(GridLineLoad, IsGivenBySurfacePolylineCaseAxisProjectionDirectionAndValues) {
  CGridLineLoad const load(1, 2, 3, 4, true, Direction::Y, 5, 6);
  EXPECT_EQ(load.Surface(), 1);
  EXPECT_EQ(load.PolyRef(), 2);
  EXPECT_EQ(load.Line(), GridLoadShape::Polyline);
  EXPECT_EQ(load.LoadCase(), 3);
  EXPECT_EQ(load.Axis(), 4);
  EXPECT_TRUE(load.IsProjected());
  EXPECT_EQ(load.GetDirection(), Direction::Y);
  EXPECT_EQ(load.Value(0), 5);
  EXPECT_EQ(load.Value(1), 6);
  EXPECT_EQ(CGridLineLoad(1, 0, 3, 4, true, Direction::Y, 5, 6).Line(), GridLoadShape::None);
}

TEST(GridAreaLoad, IsGivenBySurfaceShapePolylineCaseAxisProjectionDirectionAndValue) {
  CGridAreaLoad const load(1, CGridAreaLoad::Shape::Polyline, 2, 3, 4, true, Direction::Y, 5);
  EXPECT_EQ(load.Surface(), 1);
  EXPECT_EQ(load.Area(), GridLoadShape::Polyline);
  EXPECT_EQ(load.PolyRef(), 2);
  EXPECT_EQ(load.LoadCase(), 3);
  EXPECT_EQ(load.Axis(), 4);
  EXPECT_TRUE(load.IsProjected());
  EXPECT_EQ(load.GetDirection(), Direction::Y);
  EXPECT_EQ(load.Value(), 5);
}

TEST(GridShapeLoad, GoesByThePolygonOrPolylineThatItIsToldToUse) {
  CGridLineLoad line;
  EXPECT_EQ(line.Line(), GridLoadShape::None);
  line.SetPolygon(Square(), true);
  EXPECT_EQ(static_cast<int>(line.Line()), 3);
  EXPECT_EQ(line.Polygon().Points(), Square().Points());
  line.SetPolyRef(7, true);
  EXPECT_EQ(static_cast<int>(line.Line()), 2);
  EXPECT_EQ(line.PolyRef(), 7);
  EXPECT_EQ(line.Polygon().NumPoint(), 4);
  CGridAreaLoad area;
  area.SetPolygon(Square(), true);
  EXPECT_EQ(area.Area(), GridLoadShape::Polygon);
}

TEST(GridPointLoad, TellsWhatItWasTold) {
  CGridPointLoad r;
  r.SetSid(L"s");
  EXPECT_EQ(r.Sid(), L"s");
  r.SetLoadCase(2);
  EXPECT_EQ(r.LoadCase(), 2);
  r.SetSurface(4);
  EXPECT_EQ(r.Surface(), 4);
  r.SetAxis(3);
  EXPECT_EQ(r.Axis(), 3);
  r.SetDirection(Direction::XX);
  EXPECT_EQ(r.GetDirection(), Direction::XX);
  r.SetIsProjected(true);
  EXPECT_EQ(r.IsProjected(), true);
  r.SetGridCoor({1, 2.5});
  EXPECT_EQ(r.GridCoor().y, 2.5);
  r.SetValue(2.5);
  EXPECT_EQ(r.Value(), 2.5);
}

TEST(GridPointLoad, ComparesEveryField) {
  Testing::ExpectStoredFields<CGridPointLoad>(
      {{"sid", [](CGridPointLoad& r) { r.SetSid(L"s"); }},
       {"loadCase", [](CGridPointLoad& r) { r.SetLoadCase(2); }},
       {"surface", [](CGridPointLoad& r) { r.SetSurface(4); }},
       {"axis", [](CGridPointLoad& r) { r.SetAxis(3); }},
       {"direction", [](CGridPointLoad& r) { r.SetDirection(Direction::XX); }},
       {"projected", [](CGridPointLoad& r) { r.SetIsProjected(true); }},
       {"gridCoor",
        [](CGridPointLoad& r) {
          r.SetGridCoor({1, 2.5});
        }},
       {"value", [](CGridPointLoad& r) { r.SetValue(2.5); }}});
}

TEST(GridLineLoad, TellsWhatItWasTold) {
  CGridLineLoad r;
  r.SetSid(L"s");
  EXPECT_EQ(r.Sid(), L"s");
  r.SetLoadCase(2);
  EXPECT_EQ(r.LoadCase(), 2);
  r.SetSurface(4);
  EXPECT_EQ(r.Surface(), 4);
  r.SetAxis(3);
  EXPECT_EQ(r.Axis(), 3);
  r.SetDirection(Direction::XX);
  EXPECT_EQ(r.GetDirection(), Direction::XX);
  r.SetIsProjected(true);
  EXPECT_EQ(r.IsProjected(), true);
  r.SetLine(GridLoadShape::Polygon);
  EXPECT_EQ(r.Line(), GridLoadShape::Polygon);
  r.SetPolygon(Square(), false);
  EXPECT_EQ(r.Polygon().NumPoint(), 4);
  r.SetPolyRef(6, false);
  EXPECT_EQ(r.PolyRef(), 6);
  r.SetValue(0, 0.5);
  EXPECT_EQ(r.Value(0), 0.5);
  r.SetValue(1, 1.5);
  EXPECT_EQ(r.Value(1), 1.5);
}

TEST(GridLineLoad, KeepsItsValuesApartAndRefusesOthers) {
  CGridLineLoad r;
  for (int i = 0; i < 2; ++i) r.SetValue(i, 10 + i);
  for (int i = 0; i < 2; ++i) EXPECT_EQ(r.Value(i), 10 + i);
  for (int const i : {-1, 2}) {
    EXPECT_THROW(r.Value(i), std::out_of_range);
    EXPECT_THROW(r.SetValue(i, 1), std::out_of_range);
  }
}

TEST(GridLineLoad, ComparesEveryField) {
  Testing::ExpectStoredFields<CGridLineLoad>(
      {{"sid", [](CGridLineLoad& r) { r.SetSid(L"s"); }},
       {"loadCase", [](CGridLineLoad& r) { r.SetLoadCase(2); }},
       {"surface", [](CGridLineLoad& r) { r.SetSurface(4); }},
       {"axis", [](CGridLineLoad& r) { r.SetAxis(3); }},
       {"direction", [](CGridLineLoad& r) { r.SetDirection(Direction::XX); }},
       {"projected", [](CGridLineLoad& r) { r.SetIsProjected(true); }},
       {"line", [](CGridLineLoad& r) { r.SetLine(GridLoadShape::Polygon); }},
       {"polygon", [](CGridLineLoad& r) { r.SetPolygon(Square(), false); }},
       {"polyRef", [](CGridLineLoad& r) { r.SetPolyRef(6, false); }},
       {"value", [](CGridLineLoad& r) { r.SetValue(0, 1.5); }},
       {"value", [](CGridLineLoad& r) { r.SetValue(1, 1.5); }}});
}

TEST(GridAreaLoad, TellsWhatItWasTold) {
  CGridAreaLoad r;
  r.SetSid(L"s");
  EXPECT_EQ(r.Sid(), L"s");
  r.SetLoadCase(2);
  EXPECT_EQ(r.LoadCase(), 2);
  r.SetSurface(4);
  EXPECT_EQ(r.Surface(), 4);
  r.SetAxis(3);
  EXPECT_EQ(r.Axis(), 3);
  r.SetDirection(Direction::XX);
  EXPECT_EQ(r.GetDirection(), Direction::XX);
  r.SetIsProjected(true);
  EXPECT_EQ(r.IsProjected(), true);
  r.SetArea(GridLoadShape::Polyline);
  EXPECT_EQ(r.Area(), GridLoadShape::Polyline);
  r.SetPolygon(Square(), false);
  EXPECT_EQ(r.Polygon().NumPoint(), 4);
  r.SetPolyRef(6, false);
  EXPECT_EQ(r.PolyRef(), 6);
  r.SetValue(2.5);
  EXPECT_EQ(r.Value(), 2.5);
}

TEST(GridAreaLoad, ComparesEveryField) {
  Testing::ExpectStoredFields<CGridAreaLoad>(
      {{"sid", [](CGridAreaLoad& r) { r.SetSid(L"s"); }},
       {"loadCase", [](CGridAreaLoad& r) { r.SetLoadCase(2); }},
       {"surface", [](CGridAreaLoad& r) { r.SetSurface(4); }},
       {"axis", [](CGridAreaLoad& r) { r.SetAxis(3); }},
       {"direction", [](CGridAreaLoad& r) { r.SetDirection(Direction::XX); }},
       {"projected", [](CGridAreaLoad& r) { r.SetIsProjected(true); }},
       {"area", [](CGridAreaLoad& r) { r.SetArea(GridLoadShape::Polyline); }},
       {"polygon", [](CGridAreaLoad& r) { r.SetPolygon(Square(), false); }},
       {"polyRef", [](CGridAreaLoad& r) { r.SetPolyRef(6, false); }},
       {"value", [](CGridAreaLoad& r) { r.SetValue(2.5); }}});
}

}  // namespace
}  // namespace Tarvex::Data::GridLoadsTest
