// Geometry of entities, as an application links it.
#include <gtest/gtest.h>

#include "store/model/zel_data.h"
#include "tests/link/linked.h"
#include "tests/support/builders.h"

namespace Tarvex::EntityQueriesLinkTest {
namespace {

using Testing::AreLinked;
using Q = EntityQueries;

TEST(EntityQueriesLink, QueriesOfElements) {
  EXPECT_TRUE(AreLinked(&Q::ElemDC, &Q::Normal, &Q::ElemLen, &Q::Coor, &Q::ElemIsVertical,
                        &Q::ElemIsHorizontal));
  CZelData model;
  Testing::BeamAt(model, {0, 0, 0}, {0, 0, 4});
  Testing::Grid(model, 1, 1);
  EXPECT_EQ(model.ElemLen(1), 4);
  EXPECT_TRUE(model.ElemIsVertical(1));
  EXPECT_EQ(model.Coor(1, 1).z, 4);
  EXPECT_EQ(model.ElemDC(1).AxisVec(Direction::X).z, 1);
  EXPECT_FALSE(model.ElemIsHorizontal(1));
}

TEST(EntityQueriesLink, QueriesOfReferences) {
  EXPECT_TRUE(AreLinked(&Q::EntNumTopo, &Q::EntTopo, &Q::EntIs1D, &Q::EntIs2D, &Q::EntCentre));
  CZelData model;
  Testing::QuadAt(model, {0, 0, 0}, {2, 0, 0}, {2, 2, 0}, {0, 2, 0});
  SEntRef const quad(SelElement, 1);
  EXPECT_EQ(model.EntNumTopo(quad), 4);
  EXPECT_EQ(model.EntTopo(quad, 2), 3);
  EXPECT_TRUE(model.EntIs2D(quad) && !model.EntIs1D(quad));
  EXPECT_EQ(model.EntCentre(quad).x, 1);
  EXPECT_EQ(model.Normal(1).z, 1);
}

}  // namespace
}  // namespace Tarvex::EntityQueriesLinkTest
