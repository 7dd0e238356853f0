// The records of grids, groups and views, as an application links them.
#include <gtest/gtest.h>

#include "store/record/alignment.h"
#include "store/record/assembly.h"
#include "store/record/block.h"
#include "store/record/grid_line.h"
#include "store/record/grid_plane.h"
#include "store/record/grid_surface.h"
#include "store/record/polyline.h"
#include "store/record/views.h"
#include "tests/link/linked.h"

namespace Tarvex::GridRecordsLinkTest {
namespace {

using Testing::AreLinked;
using namespace Data;  // NOLINT: the records under test
using Steps = std::vector<ReplicaStep>;

TEST(GridRecordsLink, GridsAndLines) {
  EXPECT_TRUE(AreLinked(&CPanel::EdgeNode, &CGridSurface::_NumPanel, &CGridSurface::Panel,
                        &CPolyline::Polygon, &CAlignment::SetItems, &CAlignment::At,
                        &CAlignment::Fault));
  EXPECT_EQ(CPanel({1, 2}).EdgeNode(1, 1), 1);
  EXPECT_EQ(CGridSurface()._NumPanel(), 0);
  EXPECT_EQ(CGridPlane(L"a", 1, 2, true).Elevation(), 2);
  EXPECT_EQ(CGridLine(L"A", {1, 2}, 3, 4, 5).Label(), L"A");
  EXPECT_EQ(CPolyline(L"", 0, {{1, 2}}).Polygon().NumPoint(), 1);
  EXPECT_EQ(CAlignment(L"", 0, {{0, 0}}).At(4).point.x, 4);
}

TEST(GridRecordsLink, GroupsAndViews) {
  EXPECT_TRUE(AreLinked(&CReplica::SetSteps, &CReplica::ExpandedOffsets, &CReplica::Fault,
                        &CAssembly::SetTopo, &CGrView::GrData, &CGrView::SetGrData,
                        &COpView::OpData, &COpView::SetOpData));
  EXPECT_EQ(CReplica(Steps{{2, {1, 0, 0}}}).ExpandedOffsets().size(), 2u);
  CAssembly assembly;
  assembly.SetTopo(0, 4);
  EXPECT_EQ(assembly.Topo(0), 4);
  CGrView graphic;
  graphic.SetGrData(0, CGrData());
  EXPECT_EQ(graphic.GrData(0).Axis(), 0);
  COpView output;
  output.SetOpData(0, COpData());
  EXPECT_EQ(output.OpData(0).Axis(), 0);
}

}  // namespace
}  // namespace Tarvex::GridRecordsLinkTest
