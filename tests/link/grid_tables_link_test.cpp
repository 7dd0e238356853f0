// Tables of grids, groups and views, as an application links them.
#include <gtest/gtest.h>

#include "store/model/zel_data.h"
#include "store/record/alignment.h"
#include "store/record/assembly.h"
#include "store/record/block.h"
#include "store/record/grid_line.h"
#include "store/record/grid_plane.h"
#include "store/record/grid_surface.h"
#include "store/record/polyline.h"
#include "store/record/views.h"
#include "tests/link/linked.h"

namespace Tarvex::GridTablesLinkTest {
namespace {

using Testing::AreLinked;
using Testing::Member;
using T = GridTables;
template <class Record>
using Table = tarvex_unordered_map<unsigned int, Record>;

TEST(GridTablesLink, GridPlaneOperations) {
  EXPECT_TRUE(AreLinked(&T::GridPlaneExist,
                        Member<Data::CGridPlane const&(int) const>(&T::GridPlane),
                        Member<Table<Data::CGridPlane> const&() const>(&T::GridPlane),
                        &T::HighestGridPlane, &T::SetGridPlane, &T::BlankGridPlane));
  CZelData model;
  model.SetGridPlane(2, Data::CGridPlane(L"a", 0, 3, true));
  EXPECT_EQ(model.HighestGridPlane(), 2);
  EXPECT_EQ(model.GridPlane(2).Elevation(), 3);
  EXPECT_EQ(model.GridPlane().size(), 1u);
  model.BlankGridPlane(2, 1);
  EXPECT_FALSE(model.GridPlaneExist(2));
}

TEST(GridTablesLink, GridSurfaceOperations) {
  EXPECT_TRUE(AreLinked(
      &T::GridSurfaceExist, Member<Data::CGridSurface const&(int) const>(&T::GridSurface),
      Member<Table<Data::CGridSurface> const&() const>(&T::GridSurface), &T::HighestGridSurface,
      Member<void(int, Data::CGridSurface const&, SidMode)>(&T::SetGridSurface),
      Member<void(int, Data::CGridSurface const&, bool, SidMode)>(&T::SetGridSurface),
      &T::BlankGridSurface));
  CZelData model;
  model.SetGridSurface(2, Data::CGridSurface());
  EXPECT_EQ(model.HighestGridSurface(), 2);
  EXPECT_TRUE(model.GridSurface(2).Elements().IsAll());
  EXPECT_EQ(model.GridSurface().size(), 1u);
  model.BlankGridSurface(2, 1);
  EXPECT_FALSE(model.GridSurfaceExist(2));
}

TEST(GridTablesLink, GridLineOperations) {
  EXPECT_TRUE(AreLinked(&T::GridLineExist, Member<Data::CGridLine const&(int) const>(&T::GridLine),
                        Member<Table<Data::CGridLine> const&() const>(&T::GridLine),
                        &T::HighestGridLine, &T::SetGridLine, &T::BlankGridLine));
  CZelData model;
  model.SetGridLine(2, Data::CGridLine(L"A", {0, 0}, 5, 0, 0));
  EXPECT_EQ(model.HighestGridLine(), 2);
  EXPECT_EQ(model.GridLine(2).Length(), 5);
  EXPECT_EQ(model.GridLine().size(), 1u);
  model.BlankGridLine(2, 1);
  EXPECT_FALSE(model.GridLineExist(2));
}

TEST(GridTablesLink, PolylineOperations) {
  EXPECT_TRUE(AreLinked(&T::PolylineExist, Member<Data::CPolyline const&(int) const>(&T::Polyline),
                        Member<Table<Data::CPolyline> const&() const>(&T::Polyline),
                        &T::HighestPolyline, &T::SetPolyline, &T::BlankPolyline));
  CZelData model;
  model.SetPolyline(2, Data::CPolyline(L"a", 0, {{1, 2}}));
  EXPECT_EQ(model.HighestPolyline(), 2);
  EXPECT_EQ(model.Polyline(2).Polygon().NumPoint(), 1);
  EXPECT_EQ(model.Polyline().size(), 1u);
  model.BlankPolyline(2, 1);
  EXPECT_FALSE(model.PolylineExist(2));
}

TEST(GridTablesLink, AlignmentOperations) {
  EXPECT_TRUE(AreLinked(&T::AlignmentExist,
                        Member<Data::CAlignment const&(int) const>(&T::Alignment),
                        Member<Table<Data::CAlignment> const&() const>(&T::Alignment),
                        &T::HighestAlignment, &T::SetAlignment, &T::BlankAlignment));
  CZelData model;
  model.SetAlignment(2, Data::CAlignment(L"a", 0, {{5, 0}}));
  EXPECT_EQ(model.HighestAlignment(), 2);
  EXPECT_EQ(model.Alignment(2).LastChainage(), 5);
  EXPECT_EQ(model.Alignment().size(), 1u);
  model.BlankAlignment(2, 1);
  EXPECT_FALSE(model.AlignmentExist(2));
}

TEST(GridTablesLink, BlockOperations) {
  EXPECT_TRUE(AreLinked(&T::BlockExist, Member<Data::CBlock const&(int) const>(&T::Block),
                        Member<Table<Data::CBlock> const&() const>(&T::Block), &T::HighestBlock,
                        &T::SetBlock, &T::BlankBlock));
  CZelData model;
  model.SetBlock(2, Data::CBlock(L"a", {7}, Data::CReplica()));
  EXPECT_EQ(model.HighestBlock(), 2);
  EXPECT_EQ(model.Block(2).Members().size(), 1u);
  EXPECT_EQ(model.Block().size(), 1u);
  model.BlankBlock(2, 1);
  EXPECT_FALSE(model.BlockExist(2));
}

TEST(GridTablesLink, AssemblyOperations) {
  EXPECT_TRUE(AreLinked(&T::AssemblyExist, Member<Data::CAssembly const&(int) const>(&T::Assembly),
                        Member<Table<Data::CAssembly> const&() const>(&T::Assembly),
                        &T::HighestAssembly, &T::SetAssembly, &T::BlankAssembly));
  CZelData model;
  model.SetAssembly(2, Data::CAssembly(L"a"));
  EXPECT_EQ(model.HighestAssembly(), 2);
  EXPECT_EQ(model.Assembly(2).Topo(0), 0);
  EXPECT_EQ(model.Assembly().size(), 1u);
  model.BlankAssembly(2, 1);
  EXPECT_FALSE(model.AssemblyExist(2));
}

TEST(GridTablesLink, GrViewOperations) {
  EXPECT_TRUE(AreLinked(&T::GrViewExist, Member<Data::CGrView const&(int) const>(&T::GrView),
                        Member<Table<Data::CGrView> const&() const>(&T::GrView), &T::HighestGrView,
                        &T::SetGrView, &T::BlankGrView));
  CZelData model;
  model.SetGrView(2, Data::CGrView(L"a"));
  EXPECT_EQ(model.HighestGrView(), 2);
  EXPECT_EQ(model.GrView(2).NumGrData(), 0);
  EXPECT_EQ(model.GrView().size(), 1u);
  model.BlankGrView(2, 1);
  EXPECT_FALSE(model.GrViewExist(2));
}

TEST(GridTablesLink, OpViewOperations) {
  EXPECT_TRUE(AreLinked(&T::OpViewExist, Member<Data::COpView const&(int) const>(&T::OpView),
                        Member<Table<Data::COpView> const&() const>(&T::OpView), &T::HighestOpView,
                        &T::SetOpView, &T::BlankOpView));
  CZelData model;
  model.SetOpView(2, Data::COpView(L"a"));
  EXPECT_EQ(model.HighestOpView(), 2);
  EXPECT_EQ(model.OpView(2).NumOpData(), 0);
  EXPECT_EQ(model.OpView().size(), 1u);
  model.BlankOpView(2, 1);
  EXPECT_FALSE(model.OpViewExist(2));
}

}  // namespace
}  // namespace Tarvex::GridTablesLinkTest
