// Geometry of members, with figures worked by hand; the rules that they share with elements stand
// in entity_queries_test.cpp.
#include <gtest/gtest.h>

#include "store/model/zel_data.h"
#include "store/record/axis.h"
#include "store/record/member.h"
#include "store/record/node.h"
#include "tests/support/builders.h"
#include "tests/support/matchers.h"

namespace Tarvex::MemberQueriesTest {
namespace {

using Data::CMember;
using Testing::IsNear;
using Testing::MemberAt;
using Testing::NodeAt;
using V = Vec3<double>;

double const kRoot2 = std::sqrt(2.0);

void ExpectFrame(Util::CDirCos const& frame, V const& x, V const& y) {
  EXPECT_TRUE(IsNear(frame.AxisVec(Direction::X), x));
  EXPECT_TRUE(IsNear(frame.AxisVec(Direction::Y), y));
  EXPECT_TRUE(IsNear(frame.AxisVec(Direction::Z), Cross(x, y)));
}

/// Nodes 1 to 6 on a circle of radius 2 about the origin in the plane z = 0, at 0, 45, 90, 180, 270
/// and 300 degrees, and node 7 at its centre.
class Circle : public ::testing::Test {
 protected:
  Circle() {
    for (double const degrees : {0.0, 45.0, 90.0, 180.0, 270.0, 300.0}) {
      double const angle = degrees * kPi / 180;
      NodeAt(model, 2 * std::cos(angle), 2 * std::sin(angle), 0);
    }
    NodeAt(model, 0, 0, 0);
  }
  int About(wchar_t const* topology, int centre) {
    int const n = MemberAt(model, MembType::Beam, topology);
    auto member = model.Member(n);
    member.SetOrientationNode(centre);
    model.SetMember(n, member);
    return n;
  }
  CZelData model;
};

TEST(MemberDC, OfALineRunsFromItsFirstToItsLastNode) {
  CZelData model;
  for (auto const& p : {V{0, 0, 0}, V{1, 1, 0}, V{4, 0, 0}, V{4, 0, 5}, V{0, 3, 3}})
    NodeAt(model, p.x, p.y, p.z);
  int const path = MemberAt(model, MembType::Beam, L"1 2 3");
  int const column = MemberAt(model, MembType::Column, L"3 4");
  ExpectFrame(model.MemberDC(path), {1, 0, 0}, {0, 1, 0});
  ExpectFrame(model.MemberDC(column), {0, 0, 1}, {0, 1, 0});
  ExpectFrame(model.EntDC({SelMember, column}), {0, 0, 1}, {0, 1, 0});
  auto member = model.Member(path);
  member.SetOrientationNode(5);  // 0 3 3: y along (0, 1, 1)
  model.SetMember(path, member);
  ExpectFrame(model.MemberDC(path), {1, 0, 0}, {0, 1 / kRoot2, 1 / kRoot2});
  member.SetOrientationAngle(45);  // y turns from (0, 1, 1) to (0, 0, 1)
  model.SetMember(path, member);
  ExpectFrame(model.MemberDC(path), {1, 0, 0}, {0, 0, 1});
}

TEST(MemberDC, TakesDisplacementsOfTheEnds) {
  CZelData model;
  NodeAt(model, 0, 0, 0);
  NodeAt(model, 3, 0, 0);
  int const n = MemberAt(model, MembType::Beam, L"1 2");
  // From (0, 0, -4) to (3, 0, 0): x = (3, 0, 4) / 5.
  ExpectFrame(model.MemberDC(n, EntAt::Ends, {0, 0, -4}, {}), {0.6, 0, 0.8}, {0, 1, 0});
  ExpectFrame(model.EntDC({SelMember, n}, {}, {0, 0, 4}), {0.6, 0, 0.8}, {0, 1, 0});
  ExpectFrame(model.MemberDC(n, EntAt::Ends, {}, {}), {1, 0, 0}, {0, 1, 0});
}

TEST_F(Circle, AnArcHasYTowardsItsCentre) {
  int const through = MemberAt(model, MembType::Beam, L"1 arc 2 3");
  int const about = About(L"1 about 3", 7);
  // The chord runs along (-1, 1, 0), the centre lies to its left.
  for (int const n : {through, about})
    ExpectFrame(model.MemberDC(n), V{-1, 1, 0} / kRoot2, V{-1, -1, 0} / kRoot2);
  // Past half a circle the centre lies on the side of the middle node.
  int const most = MemberAt(model, MembType::Beam, L"1 arc 4 5");
  ExpectFrame(model.MemberDC(most), V{-1, -1, 0} / kRoot2, V{-1, 1, 0} / kRoot2);
}

TEST_F(Circle, HalfACircleHasYAwayFromItsMiddle) {
  int const half = MemberAt(model, MembType::Beam, L"1 arc 3 4");
  ExpectFrame(model.MemberDC(half), {-1, 0, 0}, {0, -1, 0});
}

TEST_F(Circle, AnArcIsAsLongAsItsAngle) {
  EXPECT_NEAR(model.MemberLen(MemberAt(model, MembType::Beam, L"1 arc 2 3")), kPi, 1e-12);
  EXPECT_NEAR(model.MemberLen(MemberAt(model, MembType::Beam, L"1 arc 3 4")), 2 * kPi, 1e-12);
  EXPECT_NEAR(model.MemberLen(MemberAt(model, MembType::Beam, L"1 arc 4 5")), 3 * kPi, 1e-12);
  EXPECT_NEAR(model.MemberLen(MemberAt(model, MembType::Beam, L"1 arc 2 5")), 3 * kPi, 1e-12);
  EXPECT_NEAR(model.MemberLen(MemberAt(model, MembType::Beam, L"3 arc 2 1")), kPi, 1e-12);
  EXPECT_NEAR(model.MemberLen(About(L"1 about 3", 7)), kPi, 1e-12);
  EXPECT_NEAR(model.MemberLen(About(L"1 about 5", 7)), kPi, 1e-12);  // the shorter way round
}

TEST_F(Circle, TellsTheCentreOfAnArc) {
  V centre{9, 9, 9};
  auto const centreOf = [&](int n) { return model.Member(n).ArcCentre(model, centre); };
  EXPECT_TRUE(centreOf(MemberAt(model, MembType::Beam, L"1 arc 2 4")));
  EXPECT_TRUE(IsNear(centre, {0, 0, 0}));
  centre = {9, 9, 9};
  EXPECT_TRUE(centreOf(About(L"1 about 3", 7)));
  EXPECT_EQ(centre, (V{0, 0, 0}));
  centre = {9, 9, 9};
  EXPECT_FALSE(centreOf(MemberAt(model, MembType::Beam, L"1 2")));
  EXPECT_FALSE(centreOf(MemberAt(model, MembType::Beam, L"1 arc 7 4")));   // on a line
  EXPECT_FALSE(centreOf(MemberAt(model, MembType::Beam, L"1 arc 99 4")));  // no such node
  EXPECT_FALSE(centreOf(About(L"1 about 4", 7)));                          // no plane
  EXPECT_FALSE(centreOf(About(L"1 about 3", 0)));
  EXPECT_EQ(centre, (V{9, 9, 9}));
}

TEST_F(Circle, GeneratesAnOrientationNodeAtTheCentreOnce) {
  model.BlankNode(7, 1);
  NodeAt(model, 5, 5, 5);  // takes number 7
  int const arc = MemberAt(model, MembType::Beam, L"1 arc 2 3");
  EXPECT_EQ(model.Member(arc).GenerateOrientNode(model, 4), 8);
  EXPECT_TRUE(IsNear(model.NodeCoor(8), {0, 0, 0}));
  EXPECT_TRUE(model.Node(8).Name().IsEmpty());
  EXPECT_EQ(model.Member(arc).GenerateOrientNode(model, 4), 8);
  model.SetNodeCoor(8, {0.0009, 0, 0});  // within the tolerance of 0.001
  EXPECT_EQ(model.Member(arc).GenerateOrientNode(model, 4), 8);
  int const line = MemberAt(model, MembType::Beam, L"1 2");
  EXPECT_EQ(model.Member(line).GenerateOrientNode(model, 4), 4);
  EXPECT_EQ(model.HighestNode(), 8);
}

/// A beam from the origin to (3, 0, 4) by way of (1, 0, 2), offset, as member 1; a level slab of 2
/// by 2 at height 1, offset by 0.5, as member 2.
class Offsets : public ::testing::Test {
 protected:
  Offsets() {
    for (auto const& p :
         {V{0, 0, 0}, V{1, 0, 2}, V{3, 0, 4}, V{0, 0, 1}, V{2, 0, 1}, V{2, 2, 1}, V{0, 2, 1}})
      NodeAt(model, p.x, p.y, p.z);
    MemberAt(model, MembType::Beam, L"1 2 3");
    MemberAt(model, MembType::Slab, L"4 5 6 7");
    model.SetEntOffset({SelMember, 1}, {0.5, 0.25, 2, 1});
    model.SetEntOffset({SelMember, 2}, {0.1, 0.1, 0.1, 0.5});
  }
  CZelData model;
};

TEST_F(Offsets, AreGlobalVectorsAtTheEnds) {
  // x = (0.6, 0, 0.8), y = (0, 1, 0), z = (-0.8, 0, 0.6)
  // 0.5 x + 2 y + 1 z = (0.3 - 0.8, 2, 0.4 + 0.6); -0.25 x + 2 y + 1 z = (-0.15 - 0.8, 2, -0.2 +
  // 0.6)
  EXPECT_TRUE(IsNear(model.EntOffset({SelMember, 1}, 0), {-0.5, 2, 1}));
  EXPECT_TRUE(IsNear(model.EntOffset({SelMember, 1}, 1), {-0.95, 2, 0.4}));
  EXPECT_TRUE(IsNear(model.EntOffset({SelMember, 2}, 0), {0, 0, 0.5}));
  EXPECT_EQ(model.EntOffset({SelMember, 9}, 0), (V{0, 0, 0}));
  EXPECT_TRUE(model.EntIsOffset({SelMember, 1}));
  EXPECT_FALSE(model.EntIsOffset({SelMember, 9}));
}

TEST_F(Offsets, MoveThePlaces) {
  SEntRef const beam{SelMember, 1};
  EXPECT_TRUE(IsNear(model.EntCoor(beam, 0), {-0.5, 2, 1}));
  EXPECT_TRUE(IsNear(model.EntCoor(beam, 1), {0.2, 2, 2.6}));  // (1, 0, 2) + 2 y + z
  EXPECT_TRUE(IsNear(model.EntCoor(beam, 2), {2.05, 2, 4.4}));
  EXPECT_EQ(model.EntCoor(beam, 2, EntAt::Nodes), (V{3, 0, 4}));
  EXPECT_EQ(model.EntCoor(beam, 3), (V{0, 0, 0}));
  EXPECT_TRUE(IsNear(model.EntCoor({SelMember, 2}, 2), {2, 2, 1.5}));
}

TEST_F(Offsets, ShortenTheLength) {
  double const path = std::sqrt(5.0) + std::sqrt(8.0);
  EXPECT_NEAR(model.MemberLen(1), path - 0.75, 1e-12);
  EXPECT_NEAR(model.MemberLen(1, EntAt::Nodes), path, 1e-12);
  EXPECT_EQ(model.MemberLen(2), 0);
  EXPECT_EQ(model.MemberLen(9), 0);
}

TEST_F(Offsets, MoveTheExtents) {
  auto const slab = model.EntExtents({SelMember, 2});
  EXPECT_TRUE(IsNear(slab.Min(), {0, 0, 1.5}));
  EXPECT_TRUE(IsNear(slab.Max(), {2, 2, 1.5}));
  EXPECT_EQ(model.EntExtents({SelMember, 2}, EntAt::Nodes).Max(), (V{2, 2, 1}));
  EXPECT_TRUE(model.EntExtents({SelMember, 9}).IsEmpty());
  EXPECT_EQ(model.EntExtents({SelNode, 6}).Max(), (V{2, 2, 1}));
}

TEST_F(Offsets, LeaveTheCentreAlone) {
  EXPECT_TRUE(IsNear(model.EntCentre({SelMember, 1}), {4.0 / 3, 0, 2}));
  EXPECT_TRUE(IsNear(model.EntCentre({SelMember, 2}), {1, 1, 1}));
}

TEST_F(Offsets, LocalAxesStandAtTheFirstNode) {
  auto const slab = model.Member(2).LocalAxis(model);
  EXPECT_EQ(slab.Origin(), (V{0, 0, 1}));
  EXPECT_TRUE(IsNear(slab.XAxis(), {1, 0, 0}));
  EXPECT_TRUE(IsNear(slab.ZAxis(), {0, 0, 1}));
  auto const beam = model.Member(1).LocalAxis(model);
  EXPECT_TRUE(IsNear(beam.XAxis(), {0.6, 0, 0.8}));
  EXPECT_TRUE(IsNear(beam.YAxis(), {0, 1, 0}));
  CMember const none(1, 1);
  EXPECT_EQ(none.LocalAxis(model), Data::CAxis());
}

TEST(MemberQueries, TellUprightAndLevelMembers) {
  CZelData model;
  for (auto const& p : {V{0, 0, 0}, V{0, 0, 3}, V{4, 0, 0}, V{4, 0, 3}, V{0, 4, 0}})
    NodeAt(model, p.x, p.y, p.z);
  int const column = MemberAt(model, MembType::Column, L"1 2");
  int const beam = MemberAt(model, MembType::Beam, L"1 3");
  int const brace = MemberAt(model, MembType::Brace, L"1 4");
  int const wall = MemberAt(model, MembType::Wall, L"1 3 4 2");
  int const slab = MemberAt(model, MembType::Slab, L"1 3 5");
  int const solid = MemberAt(model, MembType::Solid, L"1 3 5 2 1 3");
  struct Row {
    int member;
    bool vertical;
    bool horizontal;
  };
  for (auto const& [n, vertical, horizontal] :
       {Row{column, true, false}, Row{beam, false, true}, Row{brace, false, false},
        Row{wall, false, false}, Row{slab, false, true}, Row{solid, false, false},
        Row{99, false, false}}) {
    EXPECT_EQ(model.MemberIsVertical(n), vertical) << n;
    EXPECT_EQ(model.MemberIsVertical(n, EntAt::Nodes), vertical) << n;
    EXPECT_EQ(model.EntIsVertical({SelMember, n}), vertical) << n;
    EXPECT_EQ(model.MemberIsHorizontal(n), horizontal) << n;
  }
}

TEST(MemberQueries, TellKindTopologyAndProperty) {
  CZelData model;
  for (int i = 0; i < 4; ++i) NodeAt(model, i, i * i, 0);
  int const arc = MemberAt(model, MembType::Beam, L"1 arc 2 3");
  int const slab = MemberAt(model, MembType::Slab, L"1 2 4");
  SEntRef const arcRef{SelMember, arc};
  SEntRef const slabRef{SelMember, slab};
  EXPECT_EQ(model.EntNumTopo(arcRef), 3);
  EXPECT_EQ(model.EntTopo(arcRef, 0), 1);
  EXPECT_EQ(model.EntTopo(arcRef, 1), 2);
  EXPECT_EQ(model.EntTopo(arcRef, 2), 3);
  EXPECT_EQ(model.EntTopo(arcRef, 3), 0);
  EXPECT_TRUE(model.EntIs1D(arcRef));
  EXPECT_TRUE(model.EntIsSection(arcRef));
  EXPECT_FALSE(model.EntIs2D(arcRef));
  EXPECT_TRUE(model.EntIs2D(slabRef));
  EXPECT_FALSE(model.EntIsSection(slabRef));
  EXPECT_FALSE(model.EntIs1D({SelMember, 99}));
  auto member = model.Member(arc);
  member.SetProperty(7);
  model.SetMember(arc, member);
  EXPECT_EQ(model.EntProperty(arcRef, 0), 7);
  EXPECT_EQ(model.EntProperty({SelMember, 99}, 0), 0);
  EXPECT_EQ(model.ElemMember(99), 0);
}

TEST_F(Circle, AMemberTopologyIsValidWhenItCanBeMeshed) {
  NodeAt(model, 2, 0, 0.0005);  // node 8, at node 1 within the tolerance
  NodeAt(model, 0, 0, 3);       // node 9
  struct Row {
    MembType type;
    wchar_t const* topology;
    int orientationNode;
    bool valid;
  };
  using enum MembType;
  for (auto const& [type, topology, orientationNode, valid] :
       {Row{Beam, L"1 3", 0, true},
        Row{Beam, L"1 3 4 5", 0, true},
        Row{Beam, L"1", 0, false},
        Row{Beam, L"", 0, false},
        Row{Beam, L"1 99", 0, false},
        Row{Beam, L"1 0", 0, false},
        Row{Beam, L"1 1", 0, false},
        Row{Beam, L"1 8", 0, false},
        Row{Beam, L"1 3 3", 0, false},
        Row{Beam, L"1 arc 2 3", 0, true},
        Row{Beam, L"1 arc 7 4", 0, false},
        Row{Beam, L"1 arc 2 3 4", 0, false},
        Row{Beam, L"1 about 3", 7, true},
        Row{Beam, L"1 about 3", 0, false},
        Row{Beam, L"1 about 3", 9, true},
        Row{Beam, L"1 about 7", 3, false},  // radii 2.83 and 2
        Row{Slab, L"1 3 4", 0, true},
        Row{Slab, L"1 3", 0, false},
        Row{Slab, L"1 7 4", 0, false},
        Row{Slab, L"1 3 99", 0, false},
        Row{Slab, L"1 arc 2 3 4", 0, true},
        Row{Slab, L"1 3 4 arc 5", 0, true},
        Row{Slab, L"1 3 4 arc", 0, false},
        Row{Slab, L"1 3 arc arc 4 5", 0, false},
        Row{Slab, L"1 3 about 4", 7, false},
        Row{Slab, L"1 3 4 5 hole(2 3 7) line(7 2) points(7)", 0, true},
        Row{Slab, L"1 3 4 hole(2 7)", 0, false},
        Row{Slab, L"1 3 4 hole(2 3 7", 0, false},
        Row{Slab, L"1 3 4 line(7)", 0, false},
        Row{Slab, L"1 3 4 points()", 0, false},
        Row{Slab, L"1 3 4 )", 0, false},
        Row{Slab, L"1 3 4 hole(2 3 7) 5", 0, false},
        Row{Slab, L"1 3 4 hole(2 3 7 line(1 2))", 0, false},
        Row{Slab, L"1 3 4 ; 5", 0, false},
        Row{Solid, L"1 3 4 9 1 3", 0, true},
        Row{Solid, L"1 3 4 9", 0, false},
        Row{Solid, L"1 3 4 9 1", 0, false},
        Row{Solid, L"1 3 4 ; 1 3 9", 0, false},
        Row{Solid, L"1 3 4 99 1 3", 0, false},
        Row{Solid, L"", 0, false}}) {
    CMember member(type, 1, 1);
    ASSERT_TRUE(member.SetTopo(CString(topology)));
    member.SetOrientationNode(orientationNode);
    EXPECT_EQ(model.IsMemberTopoValid(member), valid) << CString(topology).ToUtf8();
  }
}

// A box of strips: once round the sides, then top and bottom.
TEST(MemberTopology, OfABoxOfStripsIsValid) {
  CZelData model;
  for (double const z : {3.0, 0.0})
    for (auto const& p : {V{0, 0, z}, V{2, 0, z}, V{2, 2, z}, V{0, 2, z}})
      NodeAt(model, p.x, p.y, p.z);
  CMember member(MembType::Solid, 1, 1);
  ASSERT_TRUE(member.SetTopo(CString(L"1 5 2 6 3 7 4 8 1 5;1 4 2 3;5 6 8 7")));
  EXPECT_TRUE(model.IsMemberTopoValid(member));
  ASSERT_TRUE(member.SetTopo(CString(L"1 5 2 6 3 7 4 8 1 5;1 4 2 3")));
  EXPECT_FALSE(model.IsMemberTopoValid(member));
}

}  // namespace
}  // namespace Tarvex::MemberQueriesTest
