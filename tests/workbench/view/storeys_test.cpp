#include "workbench/view/storeys.h"

#include <gtest/gtest.h>

#include "store/record/axis.h"
#include "store/record/grid_plane.h"

namespace Tarvex::StoreysTest {
namespace {

TEST(Levels, AreTheStoreysByHeightWithTheirNames) {
  CZelData model;
  model.SetAxis(1, Data::CAxis(L"", AxisType::Cartesian, {0, 0, 10}, {1, 0, 0}, {0, 1, 0}));
  model.SetAxis(2, Data::CAxis(L"", AxisType::Cartesian, {}, {1, 0, 0}, {0, 0, 1}));  // upright
  model.SetGridPlane(1, Data::CGridPlane(L"", 1, 3, true));                           // z = 10 + 3
  model.SetGridPlane(2, Data::CGridPlane(L"Ground", 0, -0.5, true));
  model.SetGridPlane(3, Data::CGridPlane(L"Mezzanine", 0, 1, false));  // no storey
  model.SetGridPlane(4, Data::CGridPlane(L"Wall", 2, 1, true));
  auto const levels = Workbench::LevelsOf(model);
  ASSERT_EQ(levels.size(), 2u);
  EXPECT_EQ(levels[0].name, "Ground");
  EXPECT_EQ(levels[0].height, -0.5);
  EXPECT_TRUE(levels[1].name.starts_with("Storey ")) << levels[1].name;
  EXPECT_EQ(levels[1].height, 13);
}

TEST(Levels, HeightsAreToldToAThousandth) {
  EXPECT_EQ(Workbench::HeightText({"", 3.12349}), "3.123");
  EXPECT_EQ(Workbench::HeightText({"", -0.5}), "-0.5");
  EXPECT_EQ(Workbench::HeightText({"", 1e300}), "1e+300");
}

}  // namespace
}  // namespace Tarvex::StoreysTest
