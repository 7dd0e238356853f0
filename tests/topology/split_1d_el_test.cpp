// Cutting and extending one 1D element or member.
#include <cmath>
#include <limits>

#include "tarvex/split_connect.h"
#include "tests/topology/topology_support.h"

namespace Tarvex::Split1dElTest {
namespace {

using namespace Testing;
using Numbers = std::vector<int>;

/// Element 7 from node 1 at the origin to node 2 at (10, 0, 0), released at both ends.
CZelData BeamModel() {
  CZelData model;
  NodeAt(model, 0, 0, 0);
  NodeAt(model, 10, 0, 0);
  auto beam = Element(ElementType::Beam, {1, 2});
  beam.SetGroup(4);
  beam.SetProperty(3);
  beam.SetName(L"girder");
  beam.SetConnect(0, CElemConnect(Vbool6(L"pin")));
  beam.SetConnect(1, CElemConnect(Vbool6(false, false, false, false, true, true)));
  model.SetElem(7, beam);
  return model;
}

SEntRef const kBeam{SelElement, 7};

TEST(CSplit1dEl, CutsABeamInTwoThatShareANewNodeAndRemovesIt) {
  auto model = BeamModel();
  auto const old = model.Elem(7);
  CSplit1dEl tool(model);
  Numbers created{99};
  EXPECT_TRUE(tool.Do(kBeam, 4, false, created));
  EXPECT_EQ(created, (Numbers{9, 8}));
  EXPECT_EQ(tool.SplitNode(), 3);
  EXPECT_TRUE(IsNear(model.NodeCoor(3), {4, 0, 0}));
  EXPECT_FALSE(model.ElemExist(7));
  EXPECT_TRUE(References(model, 8, {1, 3}));
  EXPECT_TRUE(References(model, 9, {3, 2}));
  EXPECT_TRUE(tool.IsAllLoadsMapped());
  EXPECT_FALSE(tool.IsSomeSplitsSkipped());
  // All else is as it was, but that the new ends carry no release.
  for (int const n : {8, 9}) {
    auto expected = old;
    expected.SetTopo(n == 8 ? 1 : 0, 3);
    expected.SetConnect(n == 8 ? 1 : 0, CElemConnect());
    EXPECT_TRUE(model.Elem(n) == expected);
  }
}

TEST(CSplit1dEl, ReportsTheNodeOfAnEndThatIsNearerThanATenthOfAThousandMillionth) {
  for (auto const& [position, node] : std::vector<std::pair<double, int>>{
           {0, 1}, {1e-11, 1}, {-1e-11, 1}, {10, 2}, {10 - 1e-11, 2}, {10 + 1e-11, 2}}) {
    auto model = BeamModel();
    CZelData const before(model);
    CSplit1dEl tool(model);
    Numbers created;
    EXPECT_TRUE(tool.Do(kBeam, position, true, created));
    EXPECT_EQ(tool.SplitNode(), node);
    EXPECT_TRUE(created.empty());
    EXPECT_TRUE(IsUnchanged(model, before));
  }
}

TEST(CSplit1dEl, CutsAtTwiceThatDistance) {
  auto model = BeamModel();
  CSplit1dEl tool(model);
  Numbers created;
  EXPECT_TRUE(tool.Do(kBeam, 2e-10, false, created));
  EXPECT_EQ(created.size(), 2);
}

TEST(CSplit1dEl, TakesANodeWithinTheCoincidenceToleranceAndWithoutItOneAtTheVeryPlace) {
  for (auto const& [tolerance, node] : std::vector<std::pair<double, int>>{{0.02, 3}, {0.005, 4}}) {
    auto model = BeamModel();
    NodeAt(model, 4, 0.01, 0);
    CSplit1dEl tool(model);
    tool.SetCoincidenceTol(tolerance);
    Numbers created;
    EXPECT_TRUE(tool.Do(kBeam, 4, false, created));
    EXPECT_EQ(tool.SplitNode(), node);
  }
  auto model = BeamModel();
  NodeAt(model, 4, 0, 0);
  CSplit1dEl tool(model);
  Numbers created;
  EXPECT_TRUE(tool.Do(kBeam, 4, false, created));
  EXPECT_EQ(tool.SplitNode(), 3);
}

TEST(CSplit1dEl, GivesANodeAndNothingElseOutsideWithoutExtension) {
  for (double const position : {-2.0, 12.0}) {
    auto model = BeamModel();
    CZelData const before(model);
    CSplit1dEl tool(model);
    Numbers created;
    EXPECT_TRUE(tool.Do(kBeam, position, false, created));
    EXPECT_TRUE(created.empty());
    EXPECT_TRUE(IsNear(model.NodeCoor(tool.SplitNode()), {position, 0, 0}));
    EXPECT_EQ(Differences(model, before), std::vector<std::string>{"Node 3: came"});
  }
}

TEST(CSplit1dEl, ExtendsBeyondTheStartByAnElementWithBothEndsOnTheSplitNode) {
  auto model = BeamModel();
  CSplit1dEl tool(model);
  Numbers created;
  EXPECT_TRUE(tool.Do(kBeam, -2, true, created));
  EXPECT_EQ(created, (Numbers{7, 8}));
  EXPECT_TRUE(References(model, 7, {1, 2}));
  EXPECT_TRUE(References(model, 8, {3, 3}));
  EXPECT_TRUE(IsNear(model.NodeCoor(3), {-2, 0, 0}));
}

TEST(CSplit1dEl, ExtendsBeyondTheEndFromTheOldEndToTheSplitNode) {
  auto model = BeamModel();
  CSplit1dEl tool(model);
  Numbers created;
  EXPECT_TRUE(tool.Do(kBeam, 12, true, created));
  EXPECT_EQ(created, (Numbers{7, 8}));
  EXPECT_TRUE(References(model, 8, {2, 3}));
  EXPECT_EQ(model.Elem(8).Group(), 4);
}

TEST(CSplit1dEl, TakesTheLockOffThePieces) {
  auto model = BeamModel();
  auto locked = model.Elem(7);
  locked.Lock(true);
  model.SetElem(7, locked);
  Numbers created;
  CSplit1dEl(model).Do(kBeam, 4, false, created);
  model.RemoveModule(CModule::Elem);  // keeps what is locked
  EXPECT_FALSE(model.ElemExist(8));
  EXPECT_FALSE(model.ElemExist(9));
}

TEST(CSplit1dEl, TakesTheLockOffExtensions) {
  for (double const position : {-2.0, 12.0}) {
    auto model = BeamModel();
    auto locked = model.Elem(7);
    locked.Lock(true);
    model.SetElem(7, locked);
    MemberAt(model, MembType::Beam, L"1 2");
    model.LockMember(1, true);
    Numbers created;
    EXPECT_TRUE(CSplit1dEl(model).Do(kBeam, position, true, created));
    EXPECT_TRUE(CSplit1dEl(model).Do({SelMember, 1}, position, true, created));
    model.RemoveModule(CModule::Elem);
    model.RemoveModule(CModule::Member);
    EXPECT_TRUE(model.ElemExist(7));
    EXPECT_FALSE(model.ElemExist(8));
    EXPECT_TRUE(model.MemberExist(1));
    EXPECT_FALSE(model.MemberExist(2));
  }
}

TEST(CSplit1dEl, ClearsTheVectorAlsoWhereItMakesNothing) {
  for (double const position : {0.0, 12.0}) {
    auto model = BeamModel();
    Numbers created{99};
    EXPECT_TRUE(CSplit1dEl(model).Do(kBeam, position, false, created));
    EXPECT_TRUE(created.empty());
  }
  auto model = BeamModel();
  model.SetElemOffset(7, {1, 2, 0, 0});
  Numbers created{99};
  EXPECT_FALSE(CSplit1dEl(model).Do(kBeam, 0.5, false, created));
  EXPECT_TRUE(created.empty());
}

// Loads and references.

CZelData LoadedBeam(wchar_t const* list) {
  auto model = BeamModel();
  Data::CBeamLoad load;
  load.SetLoadedEntities(Elements(list));
  load.SetValue(0, 5);
  model.SetBeamLoad(1, load);
  model.SetList(1, Elements(L"3 7"));
  return model;
}

TEST(CSplit1dEl, LeavesLoadsAndReferencesOnTheOldNumberUnlessToldOtherwise) {
  auto model = LoadedBeam(L"7");
  Numbers created;
  CSplit1dEl tool(model);
  EXPECT_TRUE(tool.Do(kBeam, 4, false, created));
  EXPECT_EQ(TextOf(model.BeamLoad(1).LoadedEntities()), L"7");
  EXPECT_EQ(TextOf(model.List(1)), L"3 7");
}

TEST(CSplit1dEl, TakesLoadsAndReferencesToThePieces) {
  auto model = LoadedBeam(L"7");
  Numbers created;
  CSplit1dEl tool(model);
  tool.SetReplaceElemRef(true);
  EXPECT_TRUE(tool.Do(kBeam, 4, false, created));
  EXPECT_EQ(TextOf(model.BeamLoad(1).LoadedEntities()), L"8 9");
  EXPECT_EQ(TextOf(model.List(1)), L"3 8 9");
  EXPECT_TRUE(tool.IsAllLoadsMapped());
}

TEST(CSplit1dEl, LeavesMappedLoadsOnARangeAndTakesAxialOnesAlong) {
  auto model = LoadedBeam(L"6 to 7");
  Data::CAxialLoad axial;
  axial.SetLoadedEntities(Elements(L"6 to 7"));
  model.SetAxialLoad(1, axial);
  CSplit1dEl tool(model);
  tool.SetReplaceElemRef(true);
  Numbers created;
  EXPECT_TRUE(tool.Do(kBeam, 4, false, created));
  EXPECT_FALSE(tool.IsAllLoadsMapped());
  EXPECT_EQ(TextOf(model.BeamLoad(1).LoadedEntities()), L"6 to 7");
  EXPECT_EQ(TextOf(model.AxialLoad(1).LoadedEntities()), L"6 8 9");
}

TEST(CSplit1dEl, SaysWhenALoadCouldNotBeMappedAndCutsAllTheSame) {
  auto model = LoadedBeam(L"all");
  Numbers created;
  CSplit1dEl tool(model);
  tool.SetReplaceElemRef(true);
  EXPECT_TRUE(tool.Do(kBeam, 4, false, created));
  EXPECT_FALSE(tool.IsAllLoadsMapped());
  EXPECT_EQ(created.size(), 2);
  EXPECT_TRUE(tool.Do({SelElement, 8}, 1, false, created));
  EXPECT_FALSE(tool.IsAllLoadsMapped());
  model.DeleteBeamLoad(1, 1);
  EXPECT_TRUE(tool.Do({SelElement, created[0]}, 1, false, created));
  EXPECT_TRUE(tool.IsAllLoadsMapped());  // told anew at each run
}

// Offsets. The line is 10 long, rigid for 1 at its start and 2 at its end.

CZelData OffsetBeam(Data::COffset const& offset) {
  auto model = BeamModel();
  model.SetElemOffset(7, offset);
  return model;
}

TEST(CSplit1dEl, CutsAnOffsetBeamBetweenItsRigidEndsAndKeepsAllOffsetsOnBothPieces) {
  Data::COffset const offset(1, 2, 0.3, 0.4);
  auto model = OffsetBeam(offset);
  CSplit1dEl tool(model);
  Numbers created;
  EXPECT_TRUE(tool.Do(kBeam, 4, false, created));
  for (int const n : {8, 9}) EXPECT_TRUE(model.Elem(n).Offset() == offset);
}

TEST(CSplit1dEl, SkipsACutWithinARigidEndAndLeavesTheOffsetsCleared) {
  for (double const position : {0.5, 0.999, 8.001, 9.5, -1.0, 11.0}) {
    auto model = OffsetBeam({1, 2, 0.3, 0.4});
    CSplit1dEl tool(model);
    Numbers created;
    EXPECT_FALSE(tool.Do(kBeam, position, true, created));
    EXPECT_TRUE(tool.IsSomeSplitsSkipped());
    EXPECT_TRUE(created.empty());
    EXPECT_TRUE(References(model, 7, {1, 2}));
    EXPECT_TRUE(model.Elem(7).Offset() == Data::COffset(0, 0, 0, 0));
  }
}

TEST(CSplit1dEl, TellsAnewAtEachRunWhetherItSkipped) {
  auto model = OffsetBeam({1, 2, 0, 0});
  CSplit1dEl tool(model);
  Numbers created;
  EXPECT_FALSE(tool.Do(kBeam, 0.5, false, created));
  EXPECT_TRUE(tool.IsSomeSplitsSkipped());
  EXPECT_TRUE(tool.Do(kBeam, 4, false, created));
  EXPECT_FALSE(tool.IsSomeSplitsSkipped());
}

TEST(CSplit1dEl, CutsAtTheVeryEndOfARigidEnd) {
  for (double const position : {1.0, 8.0}) {
    auto model = OffsetBeam({1, 2, 0, 0});
    CSplit1dEl tool(model);
    Numbers created;
    EXPECT_TRUE(tool.Do(kBeam, position, false, created));
    EXPECT_FALSE(tool.IsSomeSplitsSkipped());
  }
}

TEST(CSplit1dEl, KeepsTheCoincidenceToleranceClearOfARigidEnd) {
  for (double const position : {1.05, 7.95}) {
    auto model = OffsetBeam({1, 2, 0, 0});
    CSplit1dEl tool(model);
    tool.SetCoincidenceTol(0.1);
    Numbers created;
    EXPECT_FALSE(tool.Do(kBeam, position, false, created));
    EXPECT_TRUE(tool.IsSomeSplitsSkipped());
  }
}

TEST(CSplit1dEl, MeasuresOffsetsAlongASkewBeam) {
  // From (1, 1, 1) along (2, 3, 6) / 7, 14 long; rigid for 3 and 4 of it, and off it by y and z.
  for (auto const& [position, cut] : std::vector<std::pair<double, bool>>{
           {2.9, false}, {3.1, true}, {9.9, true}, {10.1, false}}) {
    CZelData model;
    NodeAt(model, 1, 1, 1);
    NodeAt(model, 5, 7, 13);
    auto beam = Element(ElementType::Beam, {1, 2});
    beam.SetOffset({3, 4, 0.5, -0.7});
    beam.SetOrientationAngle(30);
    model.SetElem(7, beam);
    CSplit1dEl tool(model);
    Numbers created;
    EXPECT_EQ(tool.Do(kBeam, position, false, created), cut);
    EXPECT_EQ(tool.IsSomeSplitsSkipped(), !cut);
    EXPECT_TRUE(IsNear(model.NodeCoor(tool.SplitNode()),
                       Vec3<double>{1, 1, 1} + Vec3<double>{2, 3, 6} * (position / 7), 1e-12));
  }
}

TEST(CSplit1dEl, MapsLoadsOfAnAxiallyOffsetBeamByThePiecesAsTheyStand) {
  // Both pieces keep the offsets 1 and 2: 8 reaches from 1 to 4 - 2 = 2, 9 from 4 + 1 = 5 to 8 of
  // the parent, which has lost its own and counts as 10 long.
  auto model = OffsetBeam({1, 2, 0, 0});
  Data::CBeamLoad load;
  load.SetType(Data::CBeamLoad::LoadType::Linear);
  load.SetValue(1, 10);
  load.SetLoadedEntities(Elements(L"7"));
  model.SetBeamLoad(1, load);
  CSplit1dEl tool(model);
  tool.SetReplaceElemRef(true);
  Numbers created;
  EXPECT_TRUE(tool.Do(kBeam, 4, false, created));
  ASSERT_EQ(model.HighestBeamLoad(), 2);
  EXPECT_NEAR(model.BeamLoad(1).Value(0), 1, 1e-12);
  EXPECT_NEAR(model.BeamLoad(1).Value(1), 2, 1e-12);
  EXPECT_NEAR(model.BeamLoad(2).Value(0), 5, 1e-12);
  EXPECT_NEAR(model.BeamLoad(2).Value(1), 8, 1e-12);
}

// What can't be cut.

TEST(CSplit1dEl, LeavesAnElementWithoutLengthAndAPlateAlone) {
  auto model = BeamModel();
  model.SetElem(8, Element(ElementType::Beam, {1, 1}));
  model.SetElem(9, Element(ElementType::Tri3, {1, 2, 1}));
  CZelData const before(model);
  CSplit1dEl tool(model);
  Numbers created;
  EXPECT_FALSE(tool.Do({SelElement, 8}, 1, true, created));
  EXPECT_FALSE(tool.Do({SelElement, 9}, 1, true, created));
  EXPECT_FALSE(tool.IsSomeSplitsSkipped());
  EXPECT_TRUE(IsUnchanged(model, before));
}

TEST(CSplit1dEl, LeavesTheModelAloneForAPlaceThatIsNotFinite) {
  for (double const position :
       {std::numeric_limits<double>::quiet_NaN(), std::numeric_limits<double>::infinity()}) {
    auto model = BeamModel();
    CZelData const before(model);
    Numbers created;
    EXPECT_FALSE(CSplit1dEl(model).Do(kBeam, position, true, created));
    EXPECT_TRUE(IsUnchanged(model, before));
  }
}

TEST(CSplit1dEl, RefusesAnythingButElementsAndMembers) {
  auto model = BeamModel();
  CSplit1dEl tool(model);
  Numbers created;
  for (auto const kind : {SelNone, SelNode, SelCase, SelOther})
    EXPECT_EQ(OutOfRangeText([&] { tool.Do({kind, 1}, 1, false, created); }), "bad entity type");
  EXPECT_NE(OutOfRangeText([&] { tool.Do({SelElement, 6}, 1, false, created); }), "");
}

// Members.

CZelData MemberModel() {
  CZelData model;
  NodeAt(model, 0, 0, 0);
  NodeAt(model, 10, 0, 0);
  MemberAt(model, MembType::Beam, L"1 2");
  return model;
}
SEntRef const kMember{SelMember, 1};

TEST(CSplit1dEl, GivesANodeAndNoCutWithinAMember) {
  for (bool const extend : {false, true}) {
    auto model = MemberModel();
    CZelData const before(model);
    CSplit1dEl tool(model);
    Numbers created;
    EXPECT_TRUE(tool.Do(kMember, 4, extend, created));
    EXPECT_TRUE(created.empty());
    EXPECT_TRUE(IsNear(model.NodeCoor(tool.SplitNode()), {4, 0, 0}));
    EXPECT_EQ(Differences(model, before), std::vector<std::string>{"Node 3: came"});
  }
}

TEST(CSplit1dEl, ReportsTheEndNodesOfAMember) {
  auto model = MemberModel();
  CSplit1dEl tool(model);
  Numbers created;
  EXPECT_TRUE(tool.Do(kMember, 1e-11, true, created));
  EXPECT_EQ(tool.SplitNode(), 1);
  EXPECT_TRUE(tool.Do(kMember, 10 + 1e-11, true, created));
  EXPECT_EQ(tool.SplitNode(), 2);
}

TEST(CSplit1dEl, ExtendsAMemberByACopyWhoseOneEndIsMoved) {
  for (auto const& [position, text] :
       std::vector<std::pair<double, wchar_t const*>>{{-2, L"3 2"}, {12, L"1 3"}}) {
    auto model = MemberModel();
    CSplit1dEl tool(model);
    Numbers created;
    EXPECT_TRUE(tool.Do(kMember, position, true, created));
    EXPECT_EQ(created, (Numbers{1, 2}));
    EXPECT_EQ(model.Member(1).Topo().String().Str(), L"1 2");
    EXPECT_EQ(model.Member(2).Topo().String().Str(), text);
    EXPECT_TRUE(IsNear(model.NodeCoor(3), {position, 0, 0}));
  }
}

TEST(CSplit1dEl, DoesNotExtendAMemberUnlessTold) {
  auto model = MemberModel();
  CSplit1dEl tool(model);
  Numbers created;
  EXPECT_TRUE(tool.Do(kMember, 12, false, created));
  EXPECT_EQ(model.HighestMember(), 1);
  EXPECT_TRUE(model.NodeExist(tool.SplitNode()));
}

TEST(CSplit1dEl, MeasuresAMemberFromNodeToNodeAndKeepsItsOffsets) {
  Data::COffset const offset(1, 2, 0.3, 0);
  // 9 lies beyond the 7 between its rigid ends, and 0.5 within one of them: both are places within.
  for (double const position : {9.0, 0.5}) {
    auto model = MemberModel();
    auto member = model.Member(1);
    member.SetOffset(offset);
    model.SetMember(1, member);
    CSplit1dEl tool(model);
    Numbers created;
    EXPECT_TRUE(tool.Do(kMember, position, true, created));
    EXPECT_TRUE(created.empty());
    EXPECT_FALSE(tool.IsSomeSplitsSkipped());
    EXPECT_TRUE(model.Member(1).Offset() == offset);
    EXPECT_TRUE(IsNear(model.NodeCoor(tool.SplitNode()), {position, 0, 0}));
  }
}

TEST(CSplit1dEl, TakesTheSecondNodeOfAMemberForItsEnd) {
  auto model = MemberModel();
  int const passed = NodeAt(model, 4, 0, 0);
  MemberAt(model, MembType::Beam, L"1 3 2");
  CSplit1dEl tool(model);
  Numbers created;
  EXPECT_TRUE(tool.Do({SelMember, 2}, 10, true, created));  // its whole length
  EXPECT_EQ(tool.SplitNode(), passed);
  EXPECT_TRUE(created.empty());
}

TEST(CSplit1dEl, LeavesAMemberWithoutLengthAlone) {
  auto model = MemberModel();
  MemberAt(model, MembType::Beam, L"1 1");
  Numbers created;
  EXPECT_FALSE(CSplit1dEl(model).Do({SelMember, 2}, 1, true, created));
}

}  // namespace
}  // namespace Tarvex::Split1dElTest
