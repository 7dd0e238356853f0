// The wiring of the tables is held by registry_test.cpp; here is what is particular to one.
#include "store/model/grid_tables.h"

#include <gtest/gtest.h>

#include "store/model/zel_data.h"
#include "store/record/grid_surface.h"
#include "tests/support/matchers.h"

namespace Tarvex::GridTablesTest {
namespace {

using Data::CEntList;
using Data::CGridSurface;
using Testing::OutOfRangeText;

CGridSurface Floor() {
  CGridSurface surface(L"floor", 2, CEntList(SelElement, L"1 to 4"), GridElementType::Plates);
  surface.SetSid(L"id");
  return surface;
}

TEST(SetGridSurface, StoresTheSameWhateverItsFlag) {
  for (bool const flag : {false, true}) {
    CZelData model;
    model.SetGridSurface(3, Floor(), flag);
    EXPECT_EQ(model.GridSurface(3), Floor());
    EXPECT_EQ(model.GridSurface(3).Number(), 3u);
    model.SetGridSurface(3, Floor(), flag, SidMode::Drop);
    EXPECT_EQ(model.GridSurface(3).Sid(), L"");
    EXPECT_EQ(model.HighestGridSurface(), 3);
  }
}

TEST(SetGridSurface, KeepsPanelsThatTheRecordBringsAndACopyOfTheModelHasThemToo) {
  CZelData model;
  auto surface = Floor();
  Data::PanelAccess::Set(surface, {Data::CPanel({1, 2, 3})});
  model.SetGridSurface(1, surface, true);
  EXPECT_EQ(model.GridSurface(1)._NumPanel(), 1);
  CZelData const copy(model);
  EXPECT_EQ(copy.GridSurface(1).Panel(0).NumEdge(), 3);
  EXPECT_TRUE(copy == model);
}

TEST(GridTables, NameTableAndNumberOfWhatIsMissing) {
  CZelData const model;
  EXPECT_EQ(OutOfRangeText([&] { model.GridPlane(0); }), "GridPlane 0 does not exist");
  EXPECT_EQ(OutOfRangeText([&] { model.GridSurface(4); }), "GridSurface 4 does not exist");
  EXPECT_EQ(OutOfRangeText([&] { model.GridLine(1); }), "GridLine 1 does not exist");
  EXPECT_EQ(OutOfRangeText([&] { model.Polyline(1); }), "Polyline 1 does not exist");
  EXPECT_EQ(OutOfRangeText([&] { model.Alignment(1); }), "Alignment 1 does not exist");
  EXPECT_EQ(OutOfRangeText([&] { model.Block(1); }), "Block 1 does not exist");
  EXPECT_EQ(OutOfRangeText([&] { model.Assembly(1); }), "Assembly 1 does not exist");
  EXPECT_EQ(OutOfRangeText([&] { model.GrView(1); }), "GrView 1 does not exist");
  EXPECT_EQ(OutOfRangeText([&] { model.OpView(-1); }), "OpView -1 does not exist");
}

}  // namespace
}  // namespace Tarvex::GridTablesTest
