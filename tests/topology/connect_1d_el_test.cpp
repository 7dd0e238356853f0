// Connecting lines where they cross, and where corners of plates touch them.
#include <cmath>

#include "tarvex/split_connect.h"
#include "tests/topology/private_access.h"
#include "tests/topology/topology_support.h"

namespace Tarvex::Connect1dElTest {
namespace {

using namespace Testing;

/// A tool on all entities of a kind, connecting within 0.01 and taking ends within 0.1.
CConnect1dEl ToolOn(CZelData& model, SelType kind = SelElement) {
  CConnect1dEl tool(model);
  Util::CSet all(kind);
  for (int n = 1; n <= model.HighestEnt(kind); ++n)
    if (model.EntExist({kind, n})) all.AddTo(n);
  tool.SetEntType(kind);
  tool.SetSet(all);
  tool.SetTol(0.01, 0.1);
  return tool;
}
bool Connect(CZelData& model) { return ToolOn(model).Do(); }

/// Beam 1 along x from -5 to 5, beam 2 along y from -4 to 4, raised by so much.
CZelData CrossModel(double raised = 0) {
  CZelData model;
  BeamAt(model, {-5, 0, 0}, {5, 0, 0});
  BeamAt(model, {0, -4, raised}, {0, 4, raised});
  return model;
}

// Crossing lines.

TEST(CConnect1dEl, CutsTwoCrossingLinesIntoTwoPiecesEachThatShareOneNewNode) {
  auto model = CrossModel();
  EXPECT_TRUE(Connect(model));
  EXPECT_EQ(model.HighestNode(), 5);
  EXPECT_TRUE(IsNear(model.NodeCoor(5), {0, 0, 0}));
  EXPECT_FALSE(model.ElemExist(1));
  EXPECT_FALSE(model.ElemExist(2));
  // The second line goes first. The piece that keeps end 2 comes before the one that keeps end 1.
  EXPECT_TRUE(References(model, 3, {5, 4}));
  EXPECT_TRUE(References(model, 4, {3, 5}));
  EXPECT_TRUE(References(model, 5, {5, 2}));
  EXPECT_TRUE(References(model, 6, {1, 5}));
  EXPECT_EQ(model.HighestElem(), 6);
  EXPECT_TRUE(AttachmentsFollowTopology(model));
}

TEST(CConnect1dEl, DoesNotConnectWithTheTolerancesThatItHasAtFirst) {
  auto model = CrossModel();
  CZelData const before(model);
  CConnect1dEl tool(model);
  Util::CSet set(SelElement);
  for (int const n : {1, 2}) set.AddTo(n);
  tool.SetSet(set);
  EXPECT_FALSE(tool.Do());
  EXPECT_TRUE(IsUnchanged(model, before));
}

TEST(CConnect1dEl, ConnectsLinesThatPassNearerThanTheConnectionToleranceOnTheFirst) {
  auto model = CrossModel(0.009);
  EXPECT_TRUE(Connect(model));
  EXPECT_TRUE(IsNear(model.NodeCoor(5), {0, 0, 0}));
  for (double const raised : {0.01, 0.02}) {
    auto other = CrossModel(raised);
    EXPECT_FALSE(Connect(other));
  }
}

TEST(CConnect1dEl, LeavesParallelLinesAlone) {
  CZelData model;
  BeamAt(model, {0, 0, 0}, {5, 0, 0});
  BeamAt(model, {1, 0.001, 0}, {6, 0.001, 0});
  EXPECT_FALSE(Connect(model));
}

TEST(CConnect1dEl, LeavesLinesThatShareANodeAlone) {
  CZelData model;
  BeamAt(model, {0, 0, 0}, {5, 0, 0});
  NodeAt(model, 0, 5, 0);
  model.SetElem(2, Element(ElementType::Beam, {1, 3}));
  EXPECT_FALSE(Connect(model));
}

TEST(CConnect1dEl, LeavesLinesShorterThanTheEndToleranceAlone) {
  CZelData model;
  BeamAt(model, {-5, 0, 0}, {5, 0, 0});
  BeamAt(model, {0, -0.04, 0}, {0, 0.04, 0});
  EXPECT_FALSE(Connect(model));
}

TEST(CConnect1dEl, LeavesLinesThatMeetBeyondAnEndAlone) {
  CZelData model;
  BeamAt(model, {0, 0, 0}, {5, 0, 0});
  BeamAt(model, {2, 0.2, 0}, {2, 5, 0});
  EXPECT_FALSE(Connect(model));
}

TEST(CConnect1dEl, LeavesEntitiesOutsideTheSetAlone) {
  auto model = CrossModel();
  CConnect1dEl tool(model);
  Util::CSet set(SelElement);
  set.AddTo(1);
  tool.SetSet(set);
  tool.SetTol(0.01, 0.1);
  EXPECT_FALSE(tool.Do());
}

TEST(CConnect1dEl, CutsALineThatIsCrossedSeveralTimesPieceByPiece) {
  CZelData model;
  BeamAt(model, {0, 0, 0}, {10, 0, 0});
  for (double const x : {2.0, 5.0, 8.0}) BeamAt(model, {x, -1, 0}, {x, 1, 0});
  EXPECT_TRUE(Connect(model));
  // Four pieces of the long line and two of each other one; a node at each crossing.
  int count = 0;
  double length = 0;
  for (auto const& [n, element] : model.Elem()) {
    ++count;
    length += model.ElemLen(static_cast<int>(n));
  }
  EXPECT_EQ(count, 4 + 3 * 2);
  EXPECT_NEAR(length, 10 + 3 * 2, 1e-12);
  EXPECT_EQ(model.HighestNode(), 8 + 3);
  for (double const x : {2.0, 5.0, 8.0})
    EXPECT_EQ(model.Node(model.NearestNode({x, 0, 0}, 1e-9)).NumEntAttached(SelElement), 4);
}

TEST(CConnect1dEl, RoundsAMeetingToFifteenDigits) {
  CZelData model;
  BeamAt(model, {0, 0, 0}, {1, 0.1, 0});
  BeamAt(model, {0.3, -1, 0}, {0.3, 1, 0});
  EXPECT_TRUE(Connect(model));
  EXPECT_EQ(model.NodeCoor(5).x, 0.3);
  EXPECT_EQ(model.NodeCoor(5).y, 0.03);
}

TEST(CConnect1dEl, TakesANodeWithinTheCoincidenceTolerance) {
  auto model = CrossModel();
  int const near = NodeAt(model, 0.05, 0, 0);
  auto tool = ToolOn(model);
  tool.SetCoincidenceTol(0.06);
  EXPECT_TRUE(tool.Do());
  EXPECT_TRUE(References(model, 3, {near, 4}));
  EXPECT_EQ(model.HighestNode(), near);
}

// Ends.

TEST(CConnect1dEl, MovesTheEndOfAStemToThePointOnItsOwnLineAndCutsTheBarThere) {
  CZelData model;
  BeamAt(model, {2, 0.05, 0}, {2, 5, 0});  // stem, nodes 1 and 2
  BeamAt(model, {0, 0, 0}, {6, 0, 0});     // bar, nodes 3 and 4
  EXPECT_TRUE(Connect(model));
  EXPECT_TRUE(IsNear(model.NodeCoor(1), {2, 0, 0}));
  EXPECT_TRUE(References(model, 1, {1, 2}));
  EXPECT_TRUE(References(model, 3, {1, 4}));
  EXPECT_TRUE(References(model, 4, {3, 1}));
  EXPECT_EQ(model.HighestNode(), 4);
}

TEST(CConnect1dEl, TakesTheSecondEndOfAStemAndAStemThatComesAsTheSecondLine) {
  CZelData model;
  BeamAt(model, {0, 0, 0}, {6, 0, 0});      // bar
  BeamAt(model, {2, 5, 0}, {2, -0.05, 0});  // stem, over the bar by 0.05
  EXPECT_TRUE(Connect(model));
  EXPECT_TRUE(IsNear(model.NodeCoor(4), {2, 0, 0}));
  EXPECT_TRUE(References(model, 2, {3, 4}));
  EXPECT_TRUE(References(model, 3, {4, 2}));
  EXPECT_TRUE(References(model, 4, {1, 4}));
}

TEST(CConnect1dEl, MovesTheEndOfTheSecondLineToThatOfTheFirst) {
  CZelData model;
  BeamAt(model, {0, 0, 0}, {5, 0, 0});
  BeamAt(model, {5.05, 0.02, 0}, {5.05, 5, 0});
  EXPECT_TRUE(Connect(model));
  // They would meet at (5.05, 0, 0): end 2 of the first goes there, and end 1 of the second to it.
  EXPECT_TRUE(IsNear(model.NodeCoor(2), {5.05, 0, 0}));
  EXPECT_TRUE(References(model, 1, {1, 2}));
  EXPECT_TRUE(References(model, 2, {2, 4}));
}

// Releases and offsets of pieces.

TEST(CConnect1dEl, ClearsReleaseAndAxialOffsetAtTheNewEndsAndKeepsTheRest) {
  auto model = CrossModel();
  auto beam = model.Elem(1);
  CElemConnect const pin(Vbool6(L"pin"));
  beam.SetConnect(0, pin);
  beam.SetConnect(1, pin);
  beam.SetOffset({1, 2, 0.001, 0});
  beam.SetGroup(4);
  model.SetElem(1, beam);
  EXPECT_TRUE(Connect(model));
  EXPECT_TRUE(model.Elem(5).Offset() == Data::COffset(0, 2, 0.001, 0));
  EXPECT_TRUE(model.Elem(6).Offset() == Data::COffset(1, 0, 0.001, 0));
  EXPECT_TRUE(model.Elem(5).Connect(0) == CElemConnect());
  EXPECT_TRUE(model.Elem(5).Connect(1) == pin);
  EXPECT_TRUE(model.Elem(6).Connect(0) == pin);
  EXPECT_TRUE(model.Elem(6).Connect(1) == CElemConnect());
  EXPECT_EQ(model.Elem(6).Group(), 4);
}

TEST(CConnect1dEl, SkipsAMeetingWithinARigidEndOfEitherLine) {
  struct Case {
    int element;
    Data::COffset offset;
    bool skipped;
  };
  // Lines of 10 and 8, met at 5 and 4; the margin is 0.1.
  for (auto const& [element, offset, skipped] :
       {Case{1, {4.95, 0, 0, 0}, true}, Case{1, {4.85, 0, 0, 0}, false},
        Case{1, {0, 4.95, 0, 0}, true}, Case{1, {0, 4.85, 0, 0}, false},
        Case{2, {3.95, 0, 0, 0}, true}, Case{2, {3.85, 0, 0, 0}, false},
        Case{2, {0, 3.95, 0, 0}, true}, Case{2, {0, 3.85, 0, 0}, false},
        Case{1, {-6, -6, 0, 0}, false}}) {
    auto model = CrossModel();
    model.SetElemOffset(element, offset);
    CZelData const before(model);
    auto tool = ToolOn(model);
    EXPECT_EQ(tool.Do(), !skipped);
    EXPECT_EQ(tool.IsSomeSplitsSkipped(), skipped);
    EXPECT_EQ(model == before, skipped);
  }
}

TEST(CConnect1dEl, GoesOnWithTheNextLineBehindAMeetingWithinARigidEnd) {
  CZelData model;
  BeamAt(model, {0, 0, 0}, {10, 0, 0});
  for (double const x : {2.0, 6.0}) BeamAt(model, {x, -1, 0}, {x, 1, 0});
  model.SetElemOffset(1, {3, 0, 0, 0});
  auto tool = ToolOn(model);
  EXPECT_TRUE(tool.Do());
  EXPECT_TRUE(tool.IsSomeSplitsSkipped());
  EXPECT_TRUE(References(model, 2, {3, 4}));  // at 2, within the 3 of the rigid end
  EXPECT_FALSE(model.ElemExist(1));
  EXPECT_TRUE(References(model, 6, {7, 2}));
  EXPECT_TRUE(References(model, 7, {1, 7}));
  EXPECT_TRUE(IsNear(model.NodeCoor(7), {6, 0, 0}));
}

TEST(CConnect1dEl, TakesAMeetingAtTheVeryToleranceForNoEndAndForNoRigidEnd) {
  // Met at 0.5 of 8 with an end tolerance of 0.5; and at 5 of 8 behind a rigid end of 4.5.
  for (auto const& [at, rigid] : std::vector<std::pair<double, double>>{{0.5, 0}, {5, 4.5}}) {
    CZelData model;
    BeamAt(model, {0, 0, 0}, {8, 0, 0});
    BeamAt(model, {at, -4, 0}, {at, 4, 0});
    model.SetElemOffset(1, {rigid, 0, 0, 0});
    auto tool = ToolOn(model);
    tool.SetTol(0.01, 0.5);
    EXPECT_TRUE(tool.Do());
    EXPECT_FALSE(tool.IsSomeSplitsSkipped());
    EXPECT_EQ(model.HighestNode(), 5);
    EXPECT_FALSE(model.ElemExist(1));
    EXPECT_FALSE(model.ElemExist(2));
    EXPECT_TRUE(IsNear(model.NodeCoor(1), {0, 0, 0}));
  }
}

// Loads and references.

TEST(CConnect1dEl, TakesLoadsAndReferencesToThePiecesWhenTold) {
  for (bool const replace : {false, true}) {
    auto model = CrossModel();
    Data::CBeamLoad load;
    load.SetLoadedEntities(Elements(L"1"));
    model.SetBeamLoad(1, load);
    model.SetList(1, Elements(L"2"));
    auto tool = ToolOn(model);
    tool.SetReplaceElemRef(replace);
    EXPECT_TRUE(tool.Do());
    EXPECT_TRUE(tool.IsAllLoadsMapped());
    EXPECT_EQ(TextOf(model.BeamLoad(1).LoadedEntities()), replace ? L"5 6" : L"1");
    EXPECT_EQ(TextOf(model.List(1)), replace ? L"3 4" : L"2");
  }
}

TEST(CConnect1dEl, LeavesMappedLoadsOnARangeAndTakesAxialOnesAlong) {
  auto model = CrossModel();
  Data::CBeamLoad load;
  load.SetLoadedEntities(Elements(L"1 to 2"));
  model.SetBeamLoad(1, load);
  Data::CAxialLoad axial;
  axial.SetLoadedEntities(Elements(L"1 to 2"));
  model.SetAxialLoad(1, axial);
  auto tool = ToolOn(model);
  tool.SetReplaceElemRef(true);
  EXPECT_TRUE(tool.Do());
  EXPECT_FALSE(tool.IsAllLoadsMapped());
  EXPECT_EQ(TextOf(model.BeamLoad(1).LoadedEntities()), L"1 to 2");
  // 2 goes first and becomes 3 and 4, then 1 becomes 5 and 6.
  EXPECT_EQ(TextOf(model.AxialLoad(1).LoadedEntities()), L"5 6 3 4");
}

TEST(CConnect1dEl, SaysWhenALoadCouldNotBeMapped) {
  auto model = CrossModel();
  Data::CBeamLoad load;
  load.SetLoadedEntities(Elements(L"all"));
  model.SetBeamLoad(1, load);
  auto tool = ToolOn(model);
  tool.SetReplaceElemRef(true);
  EXPECT_TRUE(tool.Do());
  EXPECT_FALSE(tool.IsAllLoadsMapped());
}

// Plates.

TEST(CConnect1dEl, CutsALineAtTheCornerOfAPlateThatItPasses) {
  CZelData model;
  BeamAt(model, {-5, 0.005, 0}, {5, 0.005, 0});
  QuadAt(model, {0, 0, 0}, {1, 1, 0}, {0, 2, 0}, {-1, 1, 0});  // nodes 3 to 6
  EXPECT_TRUE(Connect(model));
  EXPECT_FALSE(model.ElemExist(1));
  EXPECT_TRUE(References(model, 2, {3, 4, 5, 6}));
  EXPECT_TRUE(References(model, 3, {3, 2}));
  EXPECT_TRUE(References(model, 4, {1, 3}));
  EXPECT_TRUE(IsNear(model.NodeCoor(3), {0, 0, 0}));
}

TEST(CConnect1dEl, CutsALineAtBothCornersThatItPassesAndNoFurtherWhereItEndsThere) {
  CZelData model;
  QuadAt(model, {0, 0, 0}, {2, 0, 0}, {2, 2, 0}, {0, 2, 0});
  BeamAt(model, {-1, 0, 0}, {3, 0, 0});
  EXPECT_TRUE(Connect(model));
  EXPECT_FALSE(ToolOn(model).Do());
  double length = 0;
  int count = 0;
  for (auto const& [n, element] : model.Elem())
    if (element.Is1D()) {
      length += model.ElemLen(static_cast<int>(n));
      ++count;
    }
  EXPECT_EQ(count, 3);
  EXPECT_NEAR(length, 4, 1e-12);
}

TEST(CConnect1dEl, SkipsACornerWithinAnEndZoneAndCountsTheEndToleranceAsOne) {
  for (double const x : {0.05, 9.95}) {
    CZelData model;
    BeamAt(model, {0, 0, 0}, {10, 0, 0});
    QuadAt(model, {x, 0, 0}, {x + 1, 1, 0}, {x, 2, 0}, {x - 1, 1, 0});
    auto tool = ToolOn(model);
    EXPECT_FALSE(tool.Do());
    EXPECT_TRUE(tool.IsSomeSplitsSkipped());
  }
  CZelData model;
  BeamAt(model, {0, 0, 0}, {10, 0, 0});
  model.SetElemOffset(1, {3, 0, 0, 0});
  QuadAt(model, {2, 0, 0}, {3, 1, 0}, {2, 2, 0}, {1, 1, 0});
  auto tool = ToolOn(model);
  EXPECT_FALSE(tool.Do());
  EXPECT_TRUE(tool.IsSomeSplitsSkipped());
}

/// A line of 10 along x, and a plate with one corner on it.
CZelData CornerModel(double at) {
  CZelData model;
  BeamAt(model, {0, 0, 0}, {10, 0, 0});
  QuadAt(model, {at, 0, 0}, {at + 1, 1, 0}, {at, 2, 0}, {at - 1, 1, 0});
  return model;
}

TEST(CConnect1dEl, SkipsACornerWithinTheRigidEndAtTheSecondNode) {
  // Rigid from 7 on, and 0.1 to keep clear of it.
  for (auto const& [at, cut] : std::vector<std::pair<double, bool>>{{8, false}, {6.5, true}}) {
    auto model = CornerModel(at);
    model.SetElemOffset(1, {0, 3, 0, 0});
    auto tool = ToolOn(model);
    EXPECT_EQ(tool.Do(), cut);
    EXPECT_EQ(tool.IsSomeSplitsSkipped(), !cut);
    EXPECT_EQ(model.ElemExist(1), !cut);
  }
}

TEST(CConnect1dEl, PassesACornerBeyondAnEndOverWithoutAWord) {
  for (double const at : {-0.05, 10.05}) {
    auto model = CornerModel(at);
    auto tool = ToolOn(model);
    EXPECT_FALSE(tool.Do());
    EXPECT_FALSE(tool.IsSomeSplitsSkipped());
  }
}

TEST(CConnect1dEl, PassesTheSideOfAPlateOverThatIsShorterThanTheEndTolerance) {
  // The line passes the first node only, from which a side of 0.05 goes.
  for (double const end : {0.1, 0.04}) {
    CZelData model;
    QuadAt(model, {0, 0, 0}, {0.05, 0, 0}, {2, 2, 0}, {0, 2, 0});
    BeamAt(model, {0, 0, -5}, {0, 0, 5});
    auto tool = ToolOn(model);
    tool.SetTol(0.01, end);
    EXPECT_EQ(tool.Do(), end < 0.05);
    EXPECT_FALSE(tool.IsSomeSplitsSkipped());
  }
}

TEST(CConnect1dEl, LeavesALineThatPassesACornerAtADistance) {
  CZelData model;
  BeamAt(model, {-5, 0, 0}, {5, 0, 0});
  QuadAt(model, {0, 0.02, 0}, {1, 1, 0}, {0, 2, 0}, {-1, 1, 0});
  EXPECT_FALSE(Connect(model));
}

TEST(CConnect1dEl, OffersEveryNodeAlongThePerimeterOfAPlate) {
  // The type, its nodes, and each node that is to be met by a line: all are.
  struct Case {
    ElementType type;
    Points points;
  };
  Points const quad{{0, 0, 0}, {4, 0, 0}, {4, 4, 0}, {0, 4, 0},
                    {2, 0, 0}, {4, 2, 0}, {2, 4, 0}, {0, 2, 0}};
  Points const triangle{{0, 0, 0}, {4, 0, 0}, {0, 4, 0}, {2, 0, 0}, {2, 2, 0}, {0, 2, 0}};
  for (auto const& [type, points] :
       {Case{ElementType::Quad4, {quad.begin(), quad.begin() + 4}}, Case{ElementType::Quad8, quad},
        Case{ElementType::Tri3, {triangle.begin(), triangle.begin() + 3}},
        Case{ElementType::Tri6, triangle}})
    for (auto const& p : points) {
      CZelData model;
      ElementAt(model, type, points);
      int const nodes = model.HighestNode();
      BeamAt(model, p - Vec3<double>{0, 0, 3}, p + Vec3<double>{0, 0, 3});
      EXPECT_TRUE(Connect(model));
      EXPECT_EQ(model.HighestNode(), nodes + 2);
      EXPECT_EQ(model.HighestElem(), 4);
    }
}

TEST(CConnect1dEl, PassesPanelsSolidsAndPlatesAmongTheLinesOver) {
  CZelData model;
  QuadAt(model, {-1, -1, 0}, {1, -1, 0}, {1, 1, 0}, {-1, 1, 0});
  QuadAt(model, {-1, 0, -1}, {1, 0, -1}, {1, 0, 1}, {-1, 0, 1});
  PanelAt(model, {{-1, 0, 0}, {1, 0, 0}, {0, 1, 0}});
  Brick(model, 1, 1, 1);
  CZelData const before(model);
  EXPECT_FALSE(Connect(model));
  EXPECT_TRUE(IsUnchanged(model, before));
}

// Members.

CZelData MemberCross() {
  CZelData model;
  NodeAt(model, -5, 0, 0);
  NodeAt(model, 5, 0, 0);
  NodeAt(model, 0, -4, 0);
  NodeAt(model, 0, 4, 0);
  MemberAt(model, MembType::Beam, L"1 2");
  MemberAt(model, MembType::Beam, L"3 4");
  return model;
}

TEST(CConnect1dEl, CutsMembersAndGivesEachNewEndWhatTheOtherEndHas) {
  auto model = MemberCross();
  auto member = model.Member(1);
  CElemConnect const pin(Vbool6(L"pin"));
  member.SetEndRelease(0, pin);
  member.SetEndRestraint(1, Vbool6(L"pin"));
  member.SetOffset({1, 2, 0.3, 0.4});
  model.SetMember(1, member);
  EXPECT_TRUE(ToolOn(model, SelMember).Do());
  EXPECT_FALSE(model.MemberExist(1));
  EXPECT_FALSE(model.MemberExist(2));
  EXPECT_EQ(model.Member(3).Topo().String().Str(), L"5 4");
  EXPECT_EQ(model.Member(4).Topo().String().Str(), L"3 5");
  auto const& last = model.Member(5);  // keeps end 2 of member 1
  EXPECT_EQ(last.Topo().String().Str(), L"5 2");
  EXPECT_TRUE(last.Offset() == Data::COffset(0, 2, 0.3, 0.4));
  EXPECT_TRUE(last.EndRelease(0) == CElemConnect());
  EXPECT_TRUE(last.EndRelease(1) == CElemConnect());
  EXPECT_TRUE(last.EndRestraint(0) == Vbool6(L"pin"));
  auto const& first = model.Member(6);
  EXPECT_EQ(first.Topo().String().Str(), L"1 5");
  EXPECT_TRUE(first.Offset() == Data::COffset(1, 0, 0.3, 0.4));
  EXPECT_TRUE(first.EndRelease(0) == pin);
  EXPECT_TRUE(first.EndRelease(1) == pin);
  EXPECT_TRUE(first.EndRestraint(1) == Vbool6());
}

TEST(CConnect1dEl, LeavesLoadsAndReferencesOfMembersAsTheyAre) {
  auto model = MemberCross();
  Data::CBeamLoad load;
  load.SetLoadedEntities(Members(L"1"));
  model.SetBeamLoad(1, load);
  auto tool = ToolOn(model, SelMember);
  tool.SetReplaceElemRef(true);
  EXPECT_TRUE(tool.Do());
  EXPECT_EQ(TextOf(model.BeamLoad(1).LoadedEntities()), L"1");
  EXPECT_TRUE(tool.IsAllLoadsMapped());
}

TEST(CConnect1dEl, DoesNotCutAMemberThatPassesANodeOrRunsAsAnArc) {
  for (auto const* topology : {L"3 5 4", L"3 arc 5 4"}) {
    auto model = MemberCross();
    NodeAt(model, 0, 2, 0);
    auto member = model.Member(2);
    member.SetTopo(CString(topology));
    model.SetMember(2, member);
    EXPECT_TRUE(ToolOn(model, SelMember).Do());
    EXPECT_TRUE(model.MemberExist(2));
    EXPECT_FALSE(model.MemberExist(1));
  }
}

TEST(CConnect1dEl, WalksThePerimeterOfAPlateMemberByTheElementOfItsNumber) {
  // Member 1 is a slab of four nodes, member 2 a column through the last of them.
  for (bool const withElement : {false, true}) {
    CZelData model;
    for (auto const& p : Points{{0, 0, 0}, {4, 0, 0}, {4, 4, 0}, {0, 4, 0}, {0, 4, -3}, {0, 4, 3}})
      NodeAt(model, p.x, p.y, p.z);
    MemberAt(model, MembType::Slab, L"1 2 3 4");
    MemberAt(model, MembType::Column, L"5 6");
    // With a triangle of the number 1, index 3 is taken as 0 and node 4 is never offered.
    if (withElement) model.SetElem(1, Element(ElementType::Tri3, {1, 2, 3}));
    EXPECT_EQ(ToolOn(model, SelMember).Do(), !withElement);
    EXPECT_EQ(model.HighestMember(), withElement ? 2 : 4);
  }
}

TEST(CConnect1dEl, LooksForCornersAlongTheAxisOfAMemberThatLeavesItsFirstTwoNodes) {
  // A slab with its first node on the axis of a member from (0,0,0) by (0,3,0) to (6,0,0): that
  // runs along x, and counts as 3 long. The other sides of the slab are away from it.
  for (auto const& [at, skipped] : std::vector<std::pair<double, bool>>{{1, false}, {2.95, true}}) {
    CZelData model;
    for (auto const& p :
         Points{{at, 0, 0}, {at, -5, 0}, {6, -5, 0}, {6, -2, 0}, {0, 0, 0}, {0, 3, 0}, {6, 0, 0}})
      NodeAt(model, p.x, p.y, p.z);
    MemberAt(model, MembType::Slab, L"1 2 3 4");
    MemberAt(model, MembType::Beam, L"5 6 7");
    CZelData const before(model);
    auto tool = ToolOn(model, SelMember);
    EXPECT_EQ(tool.Do(), !skipped);
    EXPECT_EQ(tool.IsSomeSplitsSkipped(), skipped);  // 2.95 is beyond 3 - 0.1
    EXPECT_TRUE(IsUnchanged(model, before));         // members of three nodes are never cut
  }
}

// Nodes.

TEST(CConnect1dEl, MakesANodeWithTheNextNumberWhereTheOneToMoveDoesNotExist) {
  auto model = ModelWithNodes(3);
  CConnect1dEl tool(model);
  EXPECT_EQ((tool.*Reach(NodeMover()))(2, {7, 8, 9}), 2);
  EXPECT_TRUE(IsNear(model.NodeCoor(2), {7, 8, 9}));
  EXPECT_EQ(model.HighestNode(), 3);
  EXPECT_EQ((tool.*Reach(NodeMover()))(99, {4, 5, 6}), 4);
  EXPECT_EQ(model.HighestNode(), 4);
  EXPECT_TRUE(IsNear(model.NodeCoor(4), {4, 5, 6}));
}

// Kind, state, hold.

TEST(CConnect1dEl, RefusesAKindOtherThanElementsAndMembersAndThenLeavesTheHoldUp) {
  auto model = CrossModel();
  auto tool = ToolOn(model);
  tool.SetEntType(SelNode);
  EXPECT_EQ(OutOfRangeText([&] { tool.Do(); }), "bad entity type");
  EXPECT_TRUE(model.rebuildHold);  // it is raised and cleared plainly
}

TEST(CConnect1dEl, ClearsTheHoldAtItsEnd) {
  auto model = CrossModel();
  EXPECT_TRUE(Connect(model));
  EXPECT_FALSE(model.rebuildHold);
}

TEST(CConnect1dEl, TellsItsFlagsAnewAtEachRun) {
  auto model = CrossModel();
  model.SetElemOffset(1, {4.95, 0, 0, 0});
  auto tool = ToolOn(model);
  EXPECT_FALSE(tool.Do());
  EXPECT_TRUE(tool.IsSomeSplitsSkipped());
  model.SetElemOffset(1, {0, 0, 0, 0});
  EXPECT_TRUE(tool.Do());
  EXPECT_FALSE(tool.IsSomeSplitsSkipped());
}

TEST(CConnect1dEl, LeavesAnEmptySetAndLinesWithAMissingNodeAlone) {
  auto model = CrossModel();
  model.BlankNode(3, 1);
  CZelData const before(model);
  EXPECT_FALSE(Connect(model));
  EXPECT_FALSE(CConnect1dEl(model).Do());
  EXPECT_TRUE(IsUnchanged(model, before));
}

}  // namespace
}  // namespace Tarvex::Connect1dElTest
