// Coincident nodes merged or joined.
#include "tests/topology/coincidence_support.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>

#include "store/record/stages.h"

namespace Tarvex::MergeNodesTest {
namespace {

using Option = CReduceCoinc::Option;
using Testing::AllOf;
using Testing::DoAll;
using Testing::NodesOnX;
using Testing::OutOfRangeText;
using Testing::Pairs;
using Testing::Search;
using Testing::SearchAlongX;
using Testing::SearchOver;
using Testing::SetOf;

std::vector<int> NodesIn(CZelData const& model) {
  std::vector<int> nodes;
  for (int const n : AllOf(model, SelNode)) nodes.push_back(n);
  return nodes;
}

TEST(ReduceCoinc, StartsWithTheTolerancesAndOptionThatItWasGiven) {
  CZelData model;
  NodesOnX(model, {{1, 0}, {2, 0}});
  CReduceCoinc tool(model, 0.25, 0);
  EXPECT_EQ(tool.CoincidenceTol(), 0.25);
  tool.SetCoincidenceTol(0.5);
  EXPECT_EQ(tool.CoincidenceTol(), 0.5);
  model.SetNodeRestraint(2, Vbool6(L"pin"));
  tool.SetSearchSet(AllOf(model, SelNode), 7);
  DoAll(model, tool);
  // The option at first unites restraints.
  EXPECT_EQ(model.Node(1).Restraint(), Vbool6(L"pin"));
}

TEST(ReduceCoinc, KeepsTheLowerNumberAndRewritesReferences) {
  CZelData model;
  int const first = Testing::BeamAt(model, {0, 0, 0}, {1, 0, 0});   // nodes 1, 2
  int const second = Testing::BeamAt(model, {1, 0, 0}, {2, 0, 0});  // nodes 3, 4
  auto tool = Search(model, SelNode, 0.001);
  EXPECT_EQ(DoAll(model, tool), (Pairs{{3, 2}}));
  EXPECT_EQ(NodesIn(model), (std::vector{1, 2, 4}));
  EXPECT_TRUE(Testing::References(model, first, {1, 2}));
  EXPECT_TRUE(Testing::References(model, second, {2, 4}));
  EXPECT_TRUE(Testing::AttachmentsFollowTopology(model));
}

TEST(ReduceCoinc, SaysWhetherAnythingWasDone) {
  CZelData model;
  NodesOnX(model, {{1, 0}, {2, 1}});
  auto tool = Search(model, SelNode, 0.001);
  Pairs pairs;
  EXPECT_FALSE(tool.Do(AllOf(model, SelNode), pairs));
  EXPECT_TRUE(pairs.empty());
  model.SetNodeCoor(2, {0, 0, 0});
  tool.SetSearchSet(AllOf(model, SelNode), 7);
  EXPECT_TRUE(tool.Do(AllOf(model, SelNode), pairs));
  EXPECT_EQ(pairs, (Pairs{{2, 1}}));
}

TEST(ReduceCoinc, TheDistanceMustBeBelowTheTolerance) {
  CZelData model;
  NodesOnX(model, {{1, 0}, {2, 0.25}});
  auto tool = SearchAlongX(model, SelNode, 0.25);
  EXPECT_EQ(DoAll(model, tool), Pairs());
  auto wider = SearchAlongX(model, SelNode, 0.2500001);
  EXPECT_EQ(DoAll(model, wider), (Pairs{{2, 1}}));
}

TEST(ReduceCoinc, OfThreeNodesTheHighestMergesWithItsNearestAndTheLowestIsLeft) {
  CZelData model;
  NodesOnX(model, {{3, 0}, {7, 0.4}, {9, 0.5}});
  auto tool = SearchAlongX(model, SelNode, 1);
  EXPECT_EQ(DoAll(model, tool), (Pairs{{9, 7}, {7, 3}}));
  EXPECT_EQ(NodesIn(model), (std::vector{3}));
  EXPECT_EQ(model.NodeCoor(3).x, 0);
}

TEST(ReduceCoinc, AChainLongerThanTheToleranceMergesLinkByLink) {
  // Each is within 1 of the next, the ends are 1.8 apart.
  CZelData model;
  NodesOnX(model, {{1, 0}, {2, 0.9}, {3, 1.8}});
  auto tool = SearchAlongX(model, SelNode, 1);
  EXPECT_EQ(DoAll(model, tool), (Pairs{{3, 2}, {2, 1}}));
  EXPECT_EQ(NodesIn(model), (std::vector{1}));
}

TEST(ReduceCoinc, AChainWhoseMiddleHasTheHighestNumberLeavesItsEnds) {
  // 3 goes to its nearest, 1; then 2 is 1.7 from 1.
  CZelData model;
  NodesOnX(model, {{1, 0}, {3, 0.8}, {2, 1.7}});
  auto tool = SearchAlongX(model, SelNode, 1);
  EXPECT_EQ(DoAll(model, tool), (Pairs{{3, 1}}));
  EXPECT_EQ(NodesIn(model), (std::vector{1, 2}));
}

TEST(ReduceCoinc, AListThatIsNotSortedIsSweptAsItStands) {
  // The list goes by number: 3 does not meet 1 behind 2, which is too far off, and stays; 1 meets 3
  // beyond 2, which has merged into it.
  CZelData model;
  Testing::NodesOnX(model, {{1, 0.0}, {2, 0.8}, {3, -0.5}});
  CReduceCoinc tool(model, 1, 0);
  tool.SetOrderVector({1, 0, 0});
  tool.SetSearchSet(Testing::AllOf(model, SelNode), CReduceCoinc::kTakeSet);
  EXPECT_EQ(Testing::DoAll(model, tool), (Testing::Pairs{{2, 1}, {3, 1}}));
}

TEST(ReduceCoinc, OfEquallyNearNodesTheOneThatTheUpwardSweepMeetsIsTaken) {
  CZelData model;
  NodesOnX(model, {{1, -0.5}, {3, 0}, {2, 0.5}});
  auto tool = SearchAlongX(model, SelNode, 0.75);
  EXPECT_EQ(tool.FindCoinc(3, false), 2);
  EXPECT_EQ(DoAll(model, tool), (Pairs{{3, 2}}));
}

TEST(ReduceCoinc, OfNodesAtOnePlaceTheLowerIsNearerUpwardsInTheList) {
  // Equal projections are ordered by number: 1, 2, 4 at one place; from 2 the sweep meets 4 first.
  CZelData model;
  NodesOnX(model, {{1, 0}, {2, 0}, {4, 0}});
  auto tool = SearchAlongX(model, SelNode, 0.1);
  EXPECT_EQ(tool.FindCoinc(1, false), 2);
  EXPECT_EQ(tool.FindCoinc(2, false), 4);
  EXPECT_EQ(tool.FindCoinc(4, false), 2);
  EXPECT_EQ(DoAll(model, tool), (Pairs{{4, 2}, {2, 1}}));
}

TEST(ReduceCoinc, WorksOnItemsOutsideOfTheSearchSetToo) {
  CZelData model;
  NodesOnX(model, {{1, 0}, {2, 0}, {3, 0}, {4, 0}});
  auto tool = SearchOver(model, SetOf(SelNode, {1, 2, 3}), 0.1);
  Pairs pairs;
  EXPECT_TRUE(tool.Do(SetOf(SelNode, {2, 4}), pairs));
  // 4 goes to the closest, the lowest of equal ones. 2 goes to 3, which the list has next: 3 is the
  // one that goes.
  EXPECT_EQ(pairs, (Pairs{{4, 1}, {3, 2}}));
  EXPECT_EQ(NodesIn(model), (std::vector{1, 2}));
}

TEST(ReduceCoinc, WalksTheItemsWhateverTheNumbersOfTheSearchSet) {
  for (int const outside : {2, 4, 9}) {
    CZelData model;
    NodesOnX(model, {{3, 0}, {5, 7}, {outside, 0}});
    auto tool = SearchOver(model, SetOf(SelNode, {3, 5}), 0.1);
    Pairs pairs;
    EXPECT_TRUE(tool.Do(SetOf(SelNode, {outside}), pairs));
    EXPECT_EQ(pairs, (Pairs{{std::max(outside, 3), std::min(outside, 3)}}));
  }
}

TEST(ReduceCoinc, APairIsAppendedToWhatThePairsHeld) {
  CZelData model;
  NodesOnX(model, {{1, 0}, {2, 0}});
  auto tool = Search(model, SelNode, 0.1);
  Pairs pairs{{8, 9}};
  tool.Do(AllOf(model, SelNode), pairs);
  EXPECT_EQ(pairs, (Pairs{{8, 9}, {2, 1}}));
}

TEST(ReduceCoinc, ARangeIsWalkedFromItsEndDown) {
  CZelData model;
  NodesOnX(model, {{1, 0}, {2, 0.9}, {3, 1.8}, {4, 9}});
  auto tool = SearchAlongX(model, SelNode, 1);
  EXPECT_TRUE(tool.Do(2, 2));
  EXPECT_EQ(NodesIn(model), (std::vector{1, 4}));
  auto none = SearchAlongX(model, SelNode, 1);
  EXPECT_FALSE(none.Do(1, 4));
  EXPECT_FALSE(none.Do(1, 0));
  EXPECT_FALSE(none.Do(1, -3));
}

TEST(ReduceCoinc, ARangeNeedsNoPlaceInTheSearchSet) {
  // 5 is in neither set nor list: its closest item is asked for.
  CZelData model;
  NodesOnX(model, {{1, 0}, {2, 0.5}, {5, 0.6}});
  auto tool = SearchOver(model, SetOf(SelNode, {1, 2}), 0.25);
  EXPECT_TRUE(tool.Do(5, 1));
  EXPECT_EQ(NodesIn(model), (std::vector{1, 2}));
}

TEST(ReduceCoinc, AnItemOutsideIsComparedWithItsClosestStrictlyBelowTheTolerance) {
  CZelData model;
  NodesOnX(model, {{1, 0}, {5, 0.25}});
  auto const tool = SearchOver(model, SetOf(SelNode, {1}), 0.25);
  EXPECT_EQ(tool.ClosestItem({0.25, 0, 0}, 5), 1);  // the radius included
  EXPECT_EQ(tool.FindCoinc(5, false), 0);
}

TEST(ReduceCoinc, AToleranceBelowTheLastDigitOfTheCoordinatesStillMergesEqualOnes) {
  // The next double to 1000 is 1.1e-13 away.
  CZelData model;
  constexpr int kCopies = 40;
  for (int n = 1; n <= kCopies; ++n) model.CreateNode(n, {1000, 1000, 1000}, 0, Vbool6());
  model.CreateNode(kCopies + 1, {1000, 1000, std::nextafter(1000, 0)}, 0, Vbool6());
  auto tool = Search(model, SelNode, 1e-14);
  EXPECT_EQ(DoAll(model, tool).size(), kCopies - 1);
  EXPECT_EQ(NodesIn(model), (std::vector{1, kCopies + 1}));
}

TEST(ReduceCoinc, NodesThatMovedTowardsOneAnotherBehindTheListingAreMetInTheWholeTolerance) {
  // Listed at 0, 0.1 and 0.75, now at 0.3, 0.1 and 0.35: of 1 the distance to 2 is 0.2, to 3 0.05,
  // though 3 is 0.75 along the list.
  CZelData model;
  NodesOnX(model, {{1, 0}, {2, 0.1}, {3, 0.75}});
  auto tool = SearchAlongX(model, SelNode, 1);
  model.SetNodeCoor(1, {0.3, 0, 0});
  model.SetNodeCoor(3, {0.35, 0, 0});
  EXPECT_EQ(tool.FindCoinc(1, false), 3);
  Pairs pairs;
  tool.Do(SetOf(SelNode, {1}), pairs);
  EXPECT_EQ(pairs, (Pairs{{3, 1}}));
}

// What the node that stays is given.

struct Kept {
  Option option;
  Vbool6 restraint;
  int spring;
  int mass;
  int damper;
  double meshSize;
};

class MergeRow : public ::testing::TestWithParam<Kept> {};

/// Node 1 and node 2 at one place, each the greater in some fields.
CZelData TwoNodes(int axis1, int axis2) {
  CZelData model;
  Data::CNode one({0, 0, 0}, axis1, Vbool6(true, true, false, false, false, false));
  one.SetSpringProperty(2);
  one.SetMassProperty(7);
  one.SetDamperProperty(0);
  one.SetMeshSize(0.5);
  one.SetName(L"kept");
  Data::CNode two({0, 0, 0}, axis2, Vbool6(false, true, true, false, false, true));
  two.SetSpringProperty(5);
  two.SetMassProperty(3);
  two.SetDamperProperty(4);
  two.SetMeshSize(0.25);
  two.SetName(L"removed");
  model.SetNode(1, one);
  model.SetNode(2, two);
  return model;
}

TEST_P(MergeRow, GivesTheKeptNodeItsFields) {
  auto const& row = GetParam();
  auto model = TwoNodes(0, 0);
  auto tool = Search(model, SelNode, 0.1);
  tool.SetOption(row.option);
  EXPECT_EQ(DoAll(model, tool), (Pairs{{2, 1}}));
  auto const& node = model.Node(1);
  EXPECT_EQ(node.Restraint(), row.restraint);
  EXPECT_EQ(node.SpringProperty(), row.spring);
  EXPECT_EQ(node.MassProperty(), row.mass);
  EXPECT_EQ(node.DamperProperty(), row.damper);
  EXPECT_EQ(node.MeshSize(), row.meshSize);
  EXPECT_EQ(node.Name(), L"kept");
}

TEST_P(MergeRow, LeavesTheRestraintWhenTheAxesDiffer) {
  auto const& row = GetParam();
  auto model = TwoNodes(0, 3);
  auto tool = Search(model, SelNode, 0.1);
  tool.SetOption(row.option);
  DoAll(model, tool);
  auto const& node = model.Node(1);
  EXPECT_EQ(node.Restraint(), Vbool6(true, true, false, false, false, false));
  EXPECT_EQ(node.Axis(), 0);
  EXPECT_EQ(node.SpringProperty(), row.spring);
}

INSTANTIATE_TEST_SUITE_P(
    Options, MergeRow,
    ::testing::Values(Kept{Option::OptionMergeMax, Vbool6(true, true, true, false, false, true), 5,
                           7, 4, 0.5},
                      Kept{Option::OptionMergeMin, Vbool6(false, true, false, false, false, false),
                           2, 3, 0, 0.25},
                      Kept{Option::OptionMergeKeep, Vbool6(true, true, false, false, false, false),
                           2, 7, 0, 0.5}));

TEST(ReduceCoinc, FindingChangesNothingAndCountsAsDone) {
  CZelData model;
  NodesOnX(model, {{1, 0}, {2, 0}, {3, 5}});
  CZelData const before(model);
  for (auto const option : {Option::OptionFind, static_cast<Option>(5), static_cast<Option>(-1)}) {
    auto tool = Search(model, SelNode, 0.1);
    tool.SetOption(option);
    Pairs pairs;
    EXPECT_TRUE(tool.Do(AllOf(model, SelNode), pairs));
    EXPECT_TRUE(pairs.empty());
    EXPECT_TRUE(Testing::IsUnchanged(model, before));
    EXPECT_FALSE(tool.Do(SetOf(SelNode, {3}), pairs));
  }
}

TEST(ReduceCoinc, AMergeOfWhatIsNoNodeIsRefused) {
  CZelData model;
  int const nodes[] = {1, 2};
  NodesOnX(model, {{1, 0}, {2, 1}});
  for (int n = 1; n <= 2; ++n) {
    auto beam = Testing::Element(ElementType::Beam, {nodes[0], nodes[1]});
    model.SetElem(n, beam);
  }
  CZelData const before(model);
  for (auto const option : {Option::OptionMergeMax, Option::OptionMergeMin, Option::OptionMergeKeep,
                            Option::OptionJoint}) {
    auto tool = Search(model, SelElement, 0.1);
    tool.SetOption(option);
    Pairs pairs;
    EXPECT_EQ(OutOfRangeText([&] { tool.Do(AllOf(model, SelElement), pairs); }), "bad entity type");
    EXPECT_TRUE(Testing::IsUnchanged(model, before));
  }
  auto finds = Search(model, SelElement, 0.1);
  finds.SetOption(Option::OptionFind);
  Pairs pairs;
  EXPECT_TRUE(finds.Do(AllOf(model, SelElement), pairs));
}

TEST(ReduceCoinc, ASearchOfAnotherKindIsRefused) {
  CZelData model;
  CReduceCoinc tool(model, 0.1, 0);
  for (auto const kind : {SelNone, SelCase, SelOther}) {
    tool.SetSearchSet(SetOf(kind, {1}), CReduceCoinc::kTakeSet | CReduceCoinc::kSortList);
    EXPECT_EQ(OutOfRangeText([&] { tool.FindCoinc(1, false); }), "bad entity type");
    EXPECT_EQ(OutOfRangeText([&] { tool.FindCross(1); }), "bad entity type");
    EXPECT_EQ(OutOfRangeText([&] { tool.ClosestItem({0, 0, 0}, 0); }), "bad entity type");
    EXPECT_EQ(OutOfRangeText([&] { tool.IsTopoCoinc(kind, 1, 1); }), "bad entity type");
    EXPECT_EQ(tool.FindUnconnect(1), 0);
  }
  EXPECT_EQ(OutOfRangeText([&] { tool.IsTopoCoinc(SelNode, 1, 1); }), "bad entity type");
  tool.SetSearchSet(SetOf(SelNode, {1}), CReduceCoinc::kTakeSet);
  EXPECT_EQ(OutOfRangeText([&] { tool.FindCross(1); }), "bad entity type");
}

// Joints.

TEST(ReduceCoincJoint, PlacesAJointOfAllDirectionsOtherFirstItemSecond) {
  CZelData model;
  NodesOnX(model, {{1, 0}, {2, 0}});
  auto tool = Search(model, SelNode, 0.1, 4);
  tool.SetOption(Option::OptionJoint);
  Pairs pairs;
  EXPECT_TRUE(tool.Do(SetOf(SelNode, {2}), pairs));
  EXPECT_TRUE(pairs.empty());
  ASSERT_EQ(model.HighestJoint(), 1);
  auto const& joint = model.Joint(1);
  EXPECT_EQ(joint.PrimaryNode(), 1);
  EXPECT_EQ(joint.ConstrainedNode(), 2);
  EXPECT_EQ(joint.GetDirection(), Vbool6(L"fix"));
  EXPECT_EQ(joint.Stage().TypeOf(), SelNone);
  EXPECT_EQ(joint.Stage().String(), L"4");
  EXPECT_EQ(joint.Name(), L"");
  EXPECT_EQ(NodesIn(model), (std::vector{1, 2}));
}

TEST(ReduceCoincJoint, ForTheModelWithoutStagesNamesStageZero) {
  CZelData model;
  NodesOnX(model, {{1, 0}, {2, 0}});
  auto tool = Search(model, SelNode, 0.1, 0);
  tool.SetOption(Option::OptionJoint);
  DoAll(model, tool);
  ASSERT_EQ(model.HighestJoint(), 1);
  EXPECT_EQ(model.Joint(1).Stage().String(), L"0");
  EXPECT_TRUE(model.NodeIsInConstraint(1, 0));
  EXPECT_FALSE(model.NodeIsInConstraint(1, 1));
}

TEST(ReduceCoincJoint, GivesTheOtherNodeTheRestraintOfBoth) {
  CZelData model;
  NodesOnX(model, {{1, 0}, {2, 0}});
  model.SetNodeRestraint(1, Vbool6(true, false, false, false, false, false));
  model.SetNodeRestraint(2, Vbool6(false, true, false, false, false, false));
  auto tool = Search(model, SelNode, 0.1);
  tool.SetOption(Option::OptionJoint);
  DoAll(model, tool);
  EXPECT_EQ(model.Node(1).Restraint(), Vbool6(true, true, false, false, false, false));
  EXPECT_EQ(model.Node(2).Restraint(), Vbool6(false, true, false, false, false, false));
}

TEST(ReduceCoincJoint, LeavesTheRestraintWhenTheAxesDiffer) {
  CZelData model;
  NodesOnX(model, {{1, 0}, {2, 0}});
  model.SetNodeRestraint(2, Vbool6(L"pin"));
  model.SetNodeAxis(2, 3);
  auto tool = Search(model, SelNode, 0.1);
  tool.SetOption(Option::OptionJoint);
  DoAll(model, tool);
  EXPECT_EQ(model.HighestJoint(), 1);
  EXPECT_TRUE(model.Node(1).Restraint().IsNone());
}

TEST(ReduceCoincJoint, OfThreeNodesAtOnePlaceTheThirdIsLeftSinceBothOthersAreConstrained) {
  CZelData model;
  NodesOnX(model, {{1, 0}, {2, 0}, {3, 0}});
  auto tool = SearchAlongX(model, SelNode, 0.1);
  tool.SetOption(Option::OptionJoint);
  Pairs pairs;
  EXPECT_TRUE(tool.Do(AllOf(model, SelNode), pairs));
  // 3 is joined to 2, the nearer place in the list; 2 then finds 1, but is constrained; so does 1.
  ASSERT_EQ(model.HighestJoint(), 1);
  EXPECT_EQ(model.Joint(1).PrimaryNode(), 2);
  EXPECT_EQ(model.Joint(1).ConstrainedNode(), 3);
  EXPECT_FALSE(tool.Do(AllOf(model, SelNode), pairs));
}

TEST(ReduceCoincJoint, IsNotPlacedWhereANodeIsInAConstraintOfTheStage) {
  for (int const held : {1, 2}) {
    CZelData model;
    NodesOnX(model, {{1, 0}, {2, 0}, {3, 9}});
    model.SetAnalStage(1, Data::CAnalStage());
    Testing::JoinIn(model, held, 3, L"1");
    auto tool = Search(model, SelNode, 0.1, 1);
    tool.SetOption(Option::OptionJoint);
    Pairs pairs;
    EXPECT_FALSE(tool.Do(AllOf(model, SelNode), pairs));
    EXPECT_EQ(model.HighestJoint(), 1);
    tool.SetStage(0);
    EXPECT_TRUE(tool.Do(AllOf(model, SelNode), pairs));
    EXPECT_EQ(model.HighestJoint(), 2);
  }
}

// Joints that are there.

TEST(ReduceCoincTies, NodesThatAJointOfTheStageTiesAreNotMerged) {
  for (bool const backwards : {false, true}) {
    CZelData model;
    NodesOnX(model, {{1, 0}, {2, 0}});
    model.SetAnalStage(1, Data::CAnalStage());
    model.SetAnalStage(2, Data::CAnalStage());
    Testing::JoinIn(model, backwards ? 2 : 1, backwards ? 1 : 2, L"2");
    auto tool = Search(model, SelNode, 0.1, 2);
    EXPECT_EQ(tool.FindCoinc(1, false), 0);
    EXPECT_EQ(DoAll(model, tool), Pairs());
    auto other = Search(model, SelNode, 0.1, 1);
    EXPECT_EQ(other.FindCoinc(1, false), 2);
    EXPECT_EQ(DoAll(model, other), (Pairs{{2, 1}}));
  }
}

TEST(ReduceCoincTies, AJointOfAllStagesActsInTheModelWithoutStages) {
  CZelData model;
  NodesOnX(model, {{1, 0}, {2, 0}});
  Testing::JoinIn(model, 1, 2, L"all");
  auto tool = Search(model, SelNode, 0.1, 0);
  EXPECT_EQ(tool.FindCoinc(2, false), 0);
  EXPECT_EQ(DoAll(model, tool), Pairs());
}

TEST(ReduceCoincTies, ANodeTiedToTheNearestMergesWithTheNextNearest) {
  CZelData model;
  NodesOnX(model, {{1, 0}, {2, 0.1}, {3, 0.3}});
  Testing::JoinIn(model, 1, 2, L"all");
  auto tool = SearchAlongX(model, SelNode, 1);
  EXPECT_EQ(tool.FindCoinc(1, false), 3);
  EXPECT_EQ(tool.FindCoinc(3, false), 2);
}

TEST(ReduceCoincTies, ANodeOutsideOfTheListIsNotKeptFromItsTiedNode) {
  CZelData model;
  NodesOnX(model, {{1, 0}, {2, 0}});
  Testing::JoinIn(model, 1, 2, L"all");
  auto tool = SearchOver(model, SetOf(SelNode, {1}), 0.1);
  EXPECT_EQ(tool.FindCoinc(2, false), 1);
}

// The steps of the search set.

TEST(SetSearchSet, FailsWhenThereIsNoItemToFindADirectionFor) {
  CZelData model;
  CReduceCoinc tool(model, 0.1, 0);
  EXPECT_FALSE(tool.SetSearchSet(Util::CSet(SelNode), 7));
  EXPECT_TRUE(tool.SetSearchSet(Util::CSet(SelNode), 5));
  EXPECT_TRUE(tool.SetSearchSet(Util::CSet(SelNode), 0));
}

TEST(SetSearchSet, TakesTheSetAndListsItByTheFirstBit) {
  CZelData model;
  NodesOnX(model, {{1, 0}, {2, 0}});
  CReduceCoinc tool(model, 0.1, 0);
  tool.SetOrderVector({2, 0, 0});
  EXPECT_FALSE(tool.SetSearchSet(AllOf(model, SelNode), 6));  // nothing to find a direction for
  EXPECT_EQ(OutOfRangeText([&] { tool.FindCoinc(1, false); }), "bad entity type");
  EXPECT_TRUE(tool.SetSearchSet(AllOf(model, SelNode), 1));
  EXPECT_EQ(tool.FindCoinc(1, false), 2);
}

TEST(SetSearchSet, WithoutTheSecondBitKeepsTheCallersVector) {
  // Along x the list is 1, 3, 2: from 3 the upward sweep meets 2 first.
  CZelData model;
  NodesOnX(model, {{1, -0.5}, {3, 0}, {2, 0.5}});
  CReduceCoinc tool(model, 0.75, 0);
  tool.SetOrderVector({1, 0, 0});
  tool.SetSearchSet(AllOf(model, SelNode), 5);
  EXPECT_EQ(tool.FindCoinc(3, false), 2);
  tool.SetOrderVector({-1, 0, 0});
  tool.SetSearchSet(AllOf(model, SelNode), 5);
  EXPECT_EQ(tool.FindCoinc(3, false), 1);
}

TEST(SetSearchSet, WithoutTheThirdBitLeavesTheListAscendingByNumber) {
  // The sweep ends at 2, too far along; 3 stands behind it in the list.
  CZelData model;
  NodesOnX(model, {{1, 0}, {2, 9}, {3, 0}});
  CReduceCoinc tool(model, 0.1, 0);
  tool.SetOrderVector({1, 0, 0});
  tool.SetSearchSet(AllOf(model, SelNode), 1);
  EXPECT_EQ(tool.FindCoinc(1, false), 0);
  EXPECT_EQ(DoAll(model, tool), Pairs());
  tool.SetSearchSet(AllOf(model, SelNode), 5);
  EXPECT_EQ(tool.FindCoinc(1, false), 3);
}

TEST(SetSearchSet, WithOverlapTheWholeListIsLookedAtForNodesToo) {
  CZelData model;
  NodesOnX(model, {{1, 0}, {2, 9}, {3, 0}});
  CReduceCoinc tool(model, 0.1, 0);
  tool.SetOrderVector({1, 0, 0});
  tool.SetSearchSet(AllOf(model, SelNode), 1);
  EXPECT_EQ(tool.FindCoinc(1, false), 0);
  EXPECT_EQ(tool.FindCoinc(1, true), 3);
}

TEST(SearchSet, GainsAndLosesNumbers) {
  CZelData model;
  NodesOnX(model, {{1, 0}, {2, 0}, {3, 0.05}});
  auto tool = SearchOver(model, SetOf(SelNode, {1, 2}), 0.1);
  EXPECT_TRUE(tool.AddToSearchSet(3));
  EXPECT_FALSE(tool.AddToSearchSet(4));
  EXPECT_EQ(tool.FindCoinc(1, false), 2);
  EXPECT_TRUE(tool.RemoveFromSearchSet(2));
  EXPECT_FALSE(tool.RemoveFromSearchSet(2));
  EXPECT_EQ(tool.FindCoinc(1, false), 3);
  // 2 has left the set, not the list: it still finds.
  EXPECT_EQ(tool.FindCoinc(2, false), 1);
}

TEST(ReduceCoinc, ACopyGoesOnByItself) {
  CZelData model;
  NodesOnX(model, {{1, 0}, {2, 0}});
  auto tool = Search(model, SelNode, 0.1);
  tool.SetOption(Option::OptionFind);
  CReduceCoinc copy(tool);
  copy.RemoveFromSearchSet(1);
  EXPECT_EQ(copy.FindCoinc(2, false), 0);
  EXPECT_EQ(tool.FindCoinc(2, false), 1);
  Pairs pairs;
  EXPECT_TRUE(tool.Do(AllOf(model, SelNode), pairs));
  EXPECT_EQ(NodesIn(model), (std::vector{1, 2}));  // the option went along
  CReduceCoinc const moved(std::move(tool));
  EXPECT_EQ(moved.FindCoinc(2, false), 1);
}

TEST(ReduceCoinc, AMissingOrLostItemFindsNothing) {
  CZelData model;
  NodesOnX(model, {{1, 0}, {2, 0}, {3, 0}});
  auto tool = SearchAlongX(model, SelNode, 0.1);
  EXPECT_EQ(tool.FindCoinc(4, false), 0);
  EXPECT_EQ(tool.FindCoinc(0, false), 0);
  EXPECT_EQ(tool.FindCoinc(-1, false), 0);
  model.BlankNode(2, 1);
  EXPECT_EQ(tool.FindCoinc(1, false), 3);
  EXPECT_EQ(DoAll(model, tool), (Pairs{{3, 1}}));
}

}  // namespace
}  // namespace Tarvex::MergeNodesTest
