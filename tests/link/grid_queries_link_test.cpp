// Queries about grids, as an application links them.
#include <gtest/gtest.h>

#include "store/model/zel_data.h"
#include "store/record/alignment.h"
#include "store/record/grid_plane.h"
#include "store/record/grid_surface.h"
#include "tests/link/linked.h"
#include "tests/support/builders.h"

namespace Tarvex::GridQueriesLinkTest {
namespace {

using Testing::AreLinked;
using Q = GridQueries;

TEST(GridQueriesLink, StoreysAndPlanes) {
  EXPECT_TRUE(AreLinked(&Q::NumStorey, &Q::GridPlaneStorey, &Q::Storey, &Q::StoreyName,
                        &Q::ConsGridRef, &Q::GridPlaneGridAxis));
  CZelData model;
  model.SetGridPlane(4, Data::CGridPlane(L"", 0, 3, true));
  EXPECT_EQ(model.NumStorey(), 1);
  EXPECT_EQ(model.GridPlaneStorey(1), 4);
  EXPECT_EQ(model.Storey(1).Elevation(), 3);
  EXPECT_EQ(model.StoreyName(1), L"Storey 1");
  EXPECT_EQ(model.ConsGridRef(), 0);
  EXPECT_EQ(model.GridPlaneGridAxis(4, 0).Origin().z, 3);
}

TEST(GridQueriesLink, Membership) {
  EXPECT_TRUE(AreLinked(&Q::EntIsInGridPlane, &Q::ElemIsInGridPlane, &Q::EntIsInGridSurface,
                        &Q::NodeIsInGridSurface, &Q::PanelNormal));
  CZelData model;
  Testing::Grid(model, 1, 1);
  model.SetGridPlane(1, Data::CGridPlane());
  Data::CGridSurface surface;
  surface.SetPlane(1);
  Data::PanelAccess::Set(surface, {Data::CPanel({1, 2, 4})});
  model.SetGridSurface(1, surface, true);
  EXPECT_TRUE(model.ElemIsInGridPlane(1, 1));
  EXPECT_TRUE(model.EntIsInGridPlane({SelNode, 1}, 1));
  EXPECT_TRUE(model.EntIsInGridSurface({SelElement, 1}, 1));
  EXPECT_TRUE(model.NodeIsInGridSurface(1, 1));
  EXPECT_EQ(model.PanelNormal(model.GridSurface(1), 0).z, 1);
}

TEST(GridQueriesLink, Alignments) {
  EXPECT_TRUE(AreLinked(&Q::AlignmentDC, &Q::AlignmentPoint));
  CZelData model;
  model.SetAlignment(1, Data::CAlignment());
  EXPECT_EQ(model.AlignmentPoint(1, 5).x, 5);
  EXPECT_EQ(model.AlignmentDC(1, 5).AxisVec(Direction::Y).y, 1);
}

}  // namespace
}  // namespace Tarvex::GridQueriesLinkTest
