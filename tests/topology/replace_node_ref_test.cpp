// New nodes in the place of old ones: each table, in its own way.
#include "tests/topology/topology_support.h"

namespace Tarvex::ReplaceNodeRefTest {
namespace {

using namespace Testing;

/// Node 5 becomes 7 and 9: a list takes both, a single reference 9.
NumberLists const kFive{{5, {7, 9}}};

bool Replace(CZelData& model, NumberLists const& numbers, bool entities = true) {
  return CDataMgr(model).ReplaceNodeRef(numbers, entities);
}

TEST(ReplaceNodeRef, PutsTheLastOfTheNewNodesIntoTheTopologyOfElements) {
  auto model = ModelWithNodes(9);
  model.SetElem(1, Element(ElementType::Beam, {4, 5}));
  model.SetElem(2, Element(ElementType::Beam, {1, 2}));
  EXPECT_TRUE(Replace(model, kFive));
  EXPECT_TRUE(References(model, 1, {4, 9}));
  EXPECT_TRUE(References(model, 2, {1, 2}));
}

TEST(ReplaceNodeRef, ReplacesEveryPlaceOfAnElementAndItsOrientationNode) {
  auto model = ModelWithNodes(9);
  auto plate = Element(ElementType::Quad4, {5, 2, 5, 6});
  plate.SetOrientationNode(5);
  model.SetElem(1, plate);
  EXPECT_TRUE(Replace(model, {{5, {9}}, {6, {8}}}));
  EXPECT_TRUE(References(model, 1, {9, 2, 9, 8}));
  EXPECT_EQ(model.Elem(1).OrientationNode(), 9);
}

TEST(ReplaceNodeRef, ReadsEachPlaceAnewSoThatAChainIsFollowedOnePlaceAtATimeOnly) {
  auto model = ModelWithNodes(9);
  model.SetElem(1, Element(ElementType::Beam, {5, 6}));
  EXPECT_TRUE(Replace(model, {{5, {6}}, {6, {7}}}));
  EXPECT_TRUE(References(model, 1, {6, 7}));
}

TEST(ReplaceNodeRef, LeavesLoadPanelsAlone) {
  auto model = ModelWithNodes(9);
  model.SetLoadPanel(1, Panel({4, 5, 6}));
  EXPECT_FALSE(Replace(model, kFive));
  EXPECT_TRUE(References(model, 1, {4, 5, 6}));
}

TEST(ReplaceNodeRef, KeepsAttachmentsTrue) {
  auto model = ModelWithNodes(9);
  model.SetElem(1, Element(ElementType::Beam, {4, 5}));
  Replace(model, kFive);
  EXPECT_TRUE(AttachmentsFollowTopology(model));
}

TEST(ReplaceNodeRef, ReplacesInTheTopologyAndOrientationOfMembers) {
  auto model = ModelWithNodes(9);
  Testing::MemberAt(model, MembType::Beam, L"1 arc 5 3");
  auto member = model.Member(1);
  member.SetOrientationNode(5);
  model.SetMember(1, member);
  EXPECT_TRUE(Replace(model, kFive));
  EXPECT_EQ(model.Member(1).Topo().String().Str(), L"1 arc 9 3");
  EXPECT_EQ(model.Member(1).OrientationNode(), 9);
}

TEST(ReplaceNodeRef, ReplacesTheOrientationNodeOfAMemberWhoseTopologyStays) {
  auto model = ModelWithNodes(9);
  Testing::MemberAt(model, MembType::Beam, L"1 2");
  auto member = model.Member(1);
  member.SetOrientationNode(5);
  model.SetMember(1, member);
  EXPECT_TRUE(Replace(model, kFive));
  EXPECT_EQ(model.Member(1).Topo().String().Str(), L"1 2");
  EXPECT_EQ(model.Member(1).OrientationNode(), 9);
}

TEST(ReplaceNodeRef, ReplacesInMembersPairByPairSoThatAChainIsFollowedToItsEnd) {
  auto model = ModelWithNodes(9);
  Testing::MemberAt(model, MembType::Beam, L"5 6");
  EXPECT_TRUE(Replace(model, {{5, {6}}, {6, {7}}}));
  EXPECT_EQ(model.Member(1).Topo().String().Str(), L"7 7");
}

// Copies of a model share records until one is stored: so storing is seen where it changes nothing.
// A page holds 64 records, so members 1, 65 and 129 are on pages of their own.
TEST(ReplaceNodeRef, StoresEachMemberBehindTheFirstChangedOneAgainAsItIs) {
  auto model = ModelWithNodes(9);
  for (int const n : {1, 65, 129}) {
    Data::CMember member(1, 1);
    member.SetTopo(CString(n == 65 ? L"4 5" : L"1 2"));
    model.SetMember(n, member);
  }
  CZelData const before(model);
  EXPECT_TRUE(Replace(model, kFive));
  EXPECT_EQ(Differences(model, before), std::vector<std::string>{"Member 65: topology"});
  EXPECT_EQ(&model.Member(1), &before.Member(1));
  EXPECT_NE(&model.Member(129), &before.Member(129));
}

TEST(ReplaceNodeRef, StoresNoLaterMemberAgainWhereOnlyAnOrientationNodeChanged) {
  auto model = ModelWithNodes(9);
  for (int const n : {1, 65}) {
    Data::CMember member(1, 1);
    member.SetTopo(CString(L"1 2"));
    if (n == 1) member.SetOrientationNode(5);
    model.SetMember(n, member);
  }
  CZelData const before(model);
  EXPECT_TRUE(Replace(model, kFive));
  EXPECT_EQ(model.Member(1).OrientationNode(), 9);
  EXPECT_EQ(&model.Member(65), &before.Member(65));
}

TEST(ReplaceNodeRef, LeavesElementsAndMembersAloneWithoutTheFlagButNothingElse) {
  auto model = ModelWithNodes(9);
  auto beam = Element(ElementType::Beam, {4, 5});
  beam.SetOrientationNode(5);
  model.SetElem(1, beam);
  Testing::MemberAt(model, MembType::Beam, L"5 6");
  model.SetList(1, Nodes(L"5"));
  model.SetJoint(1, {L"", Vbool6(), 5, 4, List(SelNone, L"all")});
  CZelData const before(model);
  EXPECT_TRUE(Replace(model, kFive, false));
  EXPECT_EQ(Differences(model, before),
            (std::vector<std::string>{"List 1: text", "Joint 1: primaryNode"}));
}

// Lists.

std::vector<ListTable> NodeTables() {
  return {{"GenRest",
           [](CZelData& model, Data::CEntList const& list) {
             Data::CGenRest rest;
             rest.SetNodes(list);
             model.SetGenRest(model.HighestGenRest() + 1, rest);
           },
           [](CZelData const& model, int n) { return Data::CEntList(model.GenRest(n).Nodes()); },
           [](CZelData const& model) { return model.HighestGenRest(); }},
          {"Rigid",
           [](CZelData& model, Data::CEntList const& list) {
             Data::CRigid rigid;
             rigid.SetPrimaryNode(1);
             rigid.SetConstrainedNodes(list);
             model.SetRigid(model.HighestRigid() + 1, rigid);
           },
           [](CZelData const& model, int n) {
             return Data::CEntList(model.Rigid(n).ConstrainedNodes());
           },
           [](CZelData const& model) { return model.HighestRigid(); }},
          LoadRow<Data::CNodeLoad>("NodeLoad", &CZelData::NodeLoad, &CZelData::HighestNodeLoad,
                                   &CZelData::SetNodeLoad),
          LoadRow<Data::CNodeLoad>("AppliedDisplacement", &CZelData::AppliedDisplacement,
                                   &CZelData::HighestAppliedDisplacement,
                                   &CZelData::SetAppliedDisplacement),
          LoadRow<Data::CNodeLoad>("Settlement", &CZelData::Settlement,
                                   &CZelData::HighestSettlement, &CZelData::SetSettlement),
          {"GravityLoad",
           [](CZelData& model, Data::CEntList const& list) {
             Data::CGravityLoad load;
             load.SetLoadedEntities(Elements(L"all"));
             load.SetLoadedNodes(list);
             model.SetGravityLoad(model.HighestGravityLoad() + 1, load);
           },
           [](CZelData const& model, int n) {
             return Data::CEntList(model.GravityLoad(n).LoadedNodes());
           },
           [](CZelData const& model) { return model.HighestGravityLoad(); }}};
}

TEST(ReplaceNodeRef, PutsAllNewNodesIntoListsOfNodes) {
  auto tables = NodeTables();
  tables.push_back(SavedListRow());
  for (auto const& table : tables)
    for (bool const entities : {false, true}) {
      SCOPED_TRACE(table.name);
      auto model = ModelWithNodes(9);
      table.add(model, Nodes(L"4 5 6"));
      table.add(model, Nodes(L"1 2"));
      EXPECT_TRUE(Replace(model, kFive, entities));
      EXPECT_EQ(TextOf(table.list(model, 1)), L"4 7 9 6");
      EXPECT_EQ(TextOf(table.list(model, 2)), L"1 2");
    }
}

TEST(ReplaceNodeRef, RemovesTheRecordWhoseListBecomesEmpty) {
  auto const tables = NodeTables();
  for (auto const& table : tables) {
    SCOPED_TRACE(table.name);
    auto model = ModelWithNodes(9);
    for (auto const* text : {L"5", L"1", L"5"}) table.add(model, Nodes(text));
    EXPECT_TRUE(Replace(model, {{5, {}}}));
    ASSERT_EQ(table.highest(model), 1);
    EXPECT_EQ(TextOf(table.list(model, 1)), L"1");
  }
}

TEST(ReplaceNodeRef, BlanksTheSavedListThatBecomesEmptyAndKeepsTheNumbersOfTheOthers) {
  auto model = ModelWithNodes(9);
  model.SetList(1, Nodes(L"5"));
  model.SetList(2, Nodes(L"1"));
  EXPECT_TRUE(Replace(model, {{5, {}}}));
  EXPECT_FALSE(model.ListExist(1));
  EXPECT_TRUE(model.ListExist(2));
}

TEST(ReplaceNodeRef, TakesSavedListsOfNodesOnly) {
  for (auto const kind : {SelNone, SelElement, SelMember}) {
    auto model = ModelWithNodes(9);
    model.SetList(1, List(kind, L"5"));
    EXPECT_FALSE(Replace(model, kFive));
    EXPECT_EQ(TextOf(model.List(1)), L"5");
  }
}

TEST(ReplaceNodeRef, LeavesListsOfAllAndOfWordsAlone) {
  auto model = ModelWithNodes(9);
  model.SetList(1, Nodes(L"all"));
  model.SetList(2, Nodes(L"X5"));
  EXPECT_FALSE(Replace(model, kFive));
}

TEST(ReplaceNodeRef, LeavesSingleReferencesAloneWhereNoNewNodeIsGiven) {
  auto model = ModelWithNodes(9);
  model.SetElem(1, Element(ElementType::Beam, {4, 5}));
  model.SetJoint(1, {L"", Vbool6(), 5, 4, List(SelNone, L"all")});
  EXPECT_FALSE(Replace(model, {{5, {}}}));
  EXPECT_TRUE(References(model, 1, {4, 5}));
  EXPECT_EQ(model.Joint(1).PrimaryNode(), 5);
}

// Constraints.

TEST(ReplaceNodeRef, ReplacesBothNodesOfAJoint) {
  auto model = ModelWithNodes(9);
  model.SetJoint(1, {L"", Vbool6(), 5, 6, List(SelNone, L"all")});
  model.SetJoint(2, {L"", Vbool6(), 1, 2, List(SelNone, L"all")});
  EXPECT_TRUE(Replace(model, {{5, {7, 9}}, {6, {8}}}));
  EXPECT_EQ(model.Joint(1).PrimaryNode(), 9);
  EXPECT_EQ(model.Joint(1).ConstrainedNode(), 8);
  EXPECT_EQ(model.Joint(2).PrimaryNode(), 1);
  EXPECT_EQ(model.Joint(2).ConstrainedNode(), 2);
}

TEST(ReplaceNodeRef, ReplacesOneNodeOfAJointAloneAndSaysSo) {
  for (auto const& [old, primary, constrained] :
       std::vector<std::tuple<int, int, int>>{{5, 9, 6}, {6, 5, 9}}) {
    auto model = ModelWithNodes(9);
    model.SetJoint(1, {L"", Vbool6(), 5, 6, List(SelNone, L"all")});
    EXPECT_TRUE(Replace(model, {{old, {7, 9}}}));
    EXPECT_EQ(model.Joint(1).PrimaryNode(), primary);
    EXPECT_EQ(model.Joint(1).ConstrainedNode(), constrained);
  }
}

Data::CRigid Rigid(int primary, wchar_t const* constrained) {
  return {L"", Data::LinkType::All, primary, Nodes(constrained), List(SelNone, L"all")};
}

TEST(ReplaceNodeRef, ReplacesThePrimaryNodeOfARigidWhoseConstrainedNodesChange) {
  auto model = ModelWithNodes(9);
  model.SetRigid(1, Rigid(6, L"4 5"));
  EXPECT_TRUE(Replace(model, {{5, {7, 9}}, {6, {8}}}));
  EXPECT_EQ(model.Rigid(1).PrimaryNode(), 8);
  EXPECT_EQ(TextOf(model.Rigid(1).ConstrainedNodes()), L"4 7 9");
}

TEST(ReplaceNodeRef, KeepsThePrimaryNodeOfARigidWhoseConstrainedNodesStay) {
  auto model = ModelWithNodes(9);
  model.SetRigid(1, Rigid(5, L"3 4"));
  EXPECT_FALSE(Replace(model, kFive));
  EXPECT_EQ(model.Rigid(1).PrimaryNode(), 5);
}

TEST(ReplaceNodeRef, ReplacesTheNodesOfAnEquationAndKeepsDirectionsAndFactors) {
  auto model = ModelWithNodes(9);
  Data::CConstraintEqn equation;
  equation.SetConstrainedNode(5);
  equation.SetRhsTerm(-1, 4, Direction::Y, 0.5);
  equation.SetRhsTerm(-1, 5, Direction::ZZ, -2.0);
  model.SetConstraintEqn(1, equation);
  EXPECT_TRUE(Replace(model, kFive));
  auto const& changed = model.ConstraintEqn(1);
  EXPECT_EQ(changed.ConstrainedNode(), 9);
  EXPECT_EQ(changed.PrimaryNode(0), 4);
  EXPECT_EQ(changed.PrimaryNode(1), 9);
  EXPECT_EQ(changed.Dir(1), Direction::ZZ);
  EXPECT_EQ(changed.Factor(1), -2.0);
}

TEST(ReplaceNodeRef, ReplacesTheConstrainedNodeOrOneTermOfAnEquationAloneAndSaysSo) {
  for (auto const& [old, constrained, term] :
       std::vector<std::tuple<int, int, int>>{{5, 9, 6}, {6, 5, 9}}) {
    auto model = ModelWithNodes(9);
    Data::CConstraintEqn equation;
    equation.SetConstrainedNode(5);
    equation.SetRhsTerm(-1, 6, Direction::Y, 0.5);
    model.SetConstraintEqn(1, equation);
    EXPECT_TRUE(Replace(model, {{old, {7, 9}}}));
    EXPECT_EQ(model.ConstraintEqn(1).ConstrainedNode(), constrained);
    EXPECT_EQ(model.ConstraintEqn(1).PrimaryNode(0), term);
  }
}

// The result and the step.

TEST(ReplaceNodeRef, LeavesTheModelAloneForAnEmptyMapAndSaysSo) {
  auto model = ModelWithNodes(9);
  model.SetList(1, Nodes(L"5"));
  CZelData const before(model);
  EXPECT_FALSE(Replace(model, {}));
  EXPECT_TRUE(IsUnchanged(model, before));
  EXPECT_EQ(model.NumUndo(), 1);  // the step is opened and accepted all the same
}

TEST(ReplaceNodeRef, HasNoEffectForANumberThatNothingNames) {
  auto model = ModelWithNodes(9);
  model.SetElem(1, Element(ElementType::Beam, {4, 5}));
  EXPECT_FALSE(Replace(model, {{3, {7}}}));
}

TEST(ReplaceNodeRef, IsOneStepThatCanBeUndone) {
  auto model = ModelWithNodes(9);
  model.SetElem(1, Element(ElementType::Beam, {4, 5}));
  model.SetList(1, Nodes(L"5"));
  CZelData const before(model);
  EXPECT_TRUE(Replace(model, kFive));
  EXPECT_TRUE(model.Undo());
  EXPECT_TRUE(IsUnchanged(model, before));
}

}  // namespace
}  // namespace Tarvex::ReplaceNodeRefTest
