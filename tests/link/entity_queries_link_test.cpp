// Geometry of entities, as an application links it.
#include <gtest/gtest.h>

#include "store/model/zel_data.h"
#include "store/record/member.h"
#include "tests/link/linked.h"
#include "tests/support/builders.h"

namespace Tarvex::EntityQueriesLinkTest {
namespace {

using Testing::AreLinked;
using Q = EntityQueries;

TEST(EntityQueriesLink, QueriesOfElements) {
  EXPECT_TRUE(AreLinked(&Q::ElemDC, &Q::Normal, &Q::ElemLen, &Q::ElemArea, &Q::ElemExtents,
                        &Q::ElemMember, &Q::Coor, &Q::Centre, &Q::ElemIsVertical,
                        &Q::ElemIsHorizontal));
  CZelData model;
  Testing::BeamAt(model, {0, 0, 0}, {0, 0, 4});
  Testing::Grid(model, 1, 1);
  EXPECT_EQ(model.ElemLen(1), 4);
  EXPECT_EQ(model.ElemArea(2), 2);  // a triangle of 1 by 4: the square takes nodes 1 and 2
  EXPECT_TRUE(model.ElemIsVertical(1));
  EXPECT_EQ(model.Coor(1, 1).z, 4);
  EXPECT_EQ(model.Centre(1).z, 2);
  EXPECT_EQ(model.ElemExtents(1).Max().z, 4);
  EXPECT_EQ(model.ElemMember(1), 0);
  EXPECT_EQ(model.ElemDC(1).AxisVec(Direction::X).z, 1);
  EXPECT_FALSE(model.ElemIsHorizontal(1));
}

TEST(EntityQueriesLink, QueriesOfReferences) {
  EXPECT_TRUE(AreLinked(&Q::EntNumTopo, &Q::EntTopo, &Q::EntIs1D, &Q::EntIs2D, &Q::EntIsSection,
                        &Q::EntIsOffset, &Q::EntIsVertical, &Q::EntCentre, &Q::EntCoor, &Q::EntDC,
                        &Q::EntLen, &Q::EntExtents, &Q::EntProperty));
  CZelData model;
  Testing::QuadAt(model, {0, 0, 0}, {2, 0, 0}, {2, 2, 0}, {0, 2, 0});
  SEntRef const quad(SelElement, 1);
  EXPECT_EQ(model.EntNumTopo(quad), 4);
  EXPECT_EQ(model.EntTopo(quad, 2), 3);
  EXPECT_TRUE(model.EntIs2D(quad) && !model.EntIs1D(quad) && !model.EntIsSection(quad));
  EXPECT_EQ(model.EntCentre(quad).x, 1);
  EXPECT_EQ(model.EntCoor(quad, 1).x, 2);
  EXPECT_EQ(model.EntOffset(quad, 0).z, 0);
  EXPECT_EQ(model.EntOffset(quad), Data::COffset());
  model.SetElemProperty(1, 4);
  EXPECT_EQ(model.EntProperty(quad, 0), 4);
  EXPECT_EQ(model.Normal(1).z, 1);
}

TEST(EntityQueriesLink, QueriesOfMembers) {
  EXPECT_TRUE(AreLinked(&Q::MemberDC, &Q::MemberLen, &Q::MemberIsVertical, &Q::MemberIsHorizontal,
                        &Q::IsMemberTopoValid));
  CZelData model;
  Testing::BeamAt(model, {0, 0, 0}, {0, 0, 4});
  int const n = Testing::MemberAt(model, MembType::Column, L"1 2");
  EXPECT_EQ(model.MemberLen(n), 4);
  EXPECT_EQ(model.MemberDC(n).AxisVec(Direction::X).z, 1);
  EXPECT_TRUE(model.MemberIsVertical(n) && !model.MemberIsHorizontal(n));
  EXPECT_TRUE(model.IsMemberTopoValid(model.Member(n)));
}

}  // namespace
}  // namespace Tarvex::EntityQueriesLinkTest
