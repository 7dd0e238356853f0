#include "store/record/grid_plane.h"

#include <gtest/gtest.h>

#include "tests/support/stored_fields.h"

namespace Tarvex::Data::GridPlaneTest {
namespace {

TEST(GridPlane, IsTheGlobalXyPlaneAtFirst) {
  CGridPlane const plane;
  EXPECT_EQ(plane.Name(), L"");
  EXPECT_EQ(plane.Axis(), 0);
  EXPECT_EQ(plane.Elevation(), 0);
  EXPECT_FALSE(plane.IsStorey());
}

TEST(GridPlane, IsGivenByNameAxisElevationAndWhetherItIsAStorey) {
  CGridPlane const plane(L"roof", 3, 10.5, true);
  EXPECT_EQ(plane.Name(), L"roof");
  EXPECT_EQ(plane.Axis(), 3);
  EXPECT_EQ(plane.Elevation(), 10.5);
  EXPECT_TRUE(plane.IsStorey());
}

TEST(GridPlane, ComparesEveryField) {
  Testing::ExpectStoredFields<CGridPlane>(
      {{"name", [](CGridPlane& p) { p.SetName(L"n"); }},
       {"sid", [](CGridPlane& p) { p.SetSid(L"s"); }},
       {"colour", [](CGridPlane& p) { p.SetColour(1); }},
       {"axis", [](CGridPlane& p) { p.SetAxis(2); }},
       {"elevation", [](CGridPlane& p) { p.SetElevation(-0.0); }},
       {"storey", [](CGridPlane& p) { p.SetStorey(true); }}});
}

}  // namespace
}  // namespace Tarvex::Data::GridPlaneTest
