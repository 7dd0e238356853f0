// Copies of nodes beside the nodes: which table gains what, under which flag.
#include "tests/topology/topology_support.h"

namespace Tarvex::CopyNodeRefTest {
namespace {

using namespace Testing;

/// Nodes 4 and 5 have the copies 14 and 15.
NumberMap const kCopies{{4, 14}, {5, 15}};

/// The four flags.
struct Flags {
  bool lists = false;
  bool restraints = false;
  bool constraints = false;
  bool loads = false;
};
constexpr Flags kAllFlags{true, true, true, true};

bool Copy(CZelData& model, Flags flags, NumberMap const& copies = kCopies) {
  return CDataMgr(model).CopyNodeRef(copies, flags.lists, flags.restraints, flags.constraints,
                                     flags.loads);
}

/// A table and the flag that admits it, by hand.
struct Row {
  ListTable table;
  Flags flags;
};

std::vector<Row> AllRows() {
  using Z = CZelData;
  return {
      {SavedListRow(), {.lists = true}},
      {{"GenRest",
        [](CZelData& model, Data::CEntList const& list) {
          Data::CGenRest rest;
          rest.SetNodes(list);
          model.SetGenRest(model.HighestGenRest() + 1, rest);
        },
        [](CZelData const& model, int n) { return Data::CEntList(model.GenRest(n).Nodes()); },
        [](CZelData const& model) { return model.HighestGenRest(); }},
       {.restraints = true}},
      {LoadRow<Data::CNodeLoad>("NodeLoad", &Z::NodeLoad, &Z::HighestNodeLoad, &Z::SetNodeLoad),
       {.loads = true}},
      {LoadRow<Data::CNodeLoad>("AppliedDisplacement", &Z::AppliedDisplacement,
                                &Z::HighestAppliedDisplacement, &Z::SetAppliedDisplacement),
       {.loads = true}},
      {LoadRow<Data::CNodeLoad>("Settlement", &Z::Settlement, &Z::HighestSettlement,
                                &Z::SetSettlement),
       {.loads = true}},
      {{"GravityLoad",
        [](CZelData& model, Data::CEntList const& list) {
          Data::CGravityLoad load;
          load.SetLoadedNodes(list);
          model.SetGravityLoad(model.HighestGravityLoad() + 1, load);
        },
        [](CZelData const& model, int n) {
          return Data::CEntList(model.GravityLoad(n).LoadedNodes());
        },
        [](CZelData const& model) { return model.HighestGravityLoad(); }},
       {}},
  };
}

TEST(CopyNodeRef, AddsTheCopiesToTheListsThatTheFlagAdmits) {
  for (auto const& row : AllRows()) {
    SCOPED_TRACE(row.table.name);
    auto model = ModelWithNodes(20);
    row.table.add(model, Nodes(L"3 4 5"));
    row.table.add(model, Nodes(L"1 2"));
    EXPECT_TRUE(Copy(model, row.flags));
    EXPECT_EQ(TextOf(row.table.list(model, 1)), L"3 4 5 14 15");
    EXPECT_EQ(TextOf(row.table.list(model, 2)), L"1 2");
  }
}

TEST(CopyNodeRef, LeavesTheListsOfAFlagThatIsNotSetButThoseOfGravityLoads) {
  for (auto const& row : AllRows()) {
    SCOPED_TRACE(row.table.name);
    auto model = ModelWithNodes(20);
    row.table.add(model, Nodes(L"3 4 5"));
    bool const gravity = row.table.name == "GravityLoad";
    Flags const others{!row.flags.lists, !row.flags.restraints, true, !row.flags.loads};
    EXPECT_EQ(Copy(model, others), gravity);
    EXPECT_EQ(TextOf(row.table.list(model, 1)), gravity ? L"3 4 5 14 15" : L"3 4 5");
  }
}

TEST(CopyNodeRef, ExtendsGravityLoadsWithAllFlagsOff) {
  auto model = ModelWithNodes(20);
  Data::CGravityLoad load;
  load.SetLoadedNodes(Nodes(L"5"));
  model.SetGravityLoad(1, load);
  EXPECT_TRUE(Copy(model, {}));
  EXPECT_EQ(TextOf(model.GravityLoad(1).LoadedNodes()), L"5 15");
}

TEST(CopyNodeRef, LeavesAListThatHoldsTheCopyAndSaysThatNothingChanged) {
  for (auto const& row : AllRows()) {
    SCOPED_TRACE(row.table.name);
    auto model = ModelWithNodes(20);
    row.table.add(model, Nodes(L"4 5 14 15"));
    CZelData const before(model);
    EXPECT_FALSE(Copy(model, kAllFlags));
    EXPECT_TRUE(IsUnchanged(model, before));
  }
}

TEST(CopyNodeRef, TakesSavedListsOfNodesOnly) {
  for (auto const kind : {SelNone, SelElement, SelMember}) {
    auto model = ModelWithNodes(20);
    model.SetList(1, List(kind, L"4 5"));
    EXPECT_FALSE(Copy(model, kAllFlags));
  }
}

TEST(CopyNodeRef, FollowsAChainInListsButNotInNodeLoadsThatGoByWhatTheySelectedBefore) {
  NumberMap const chain{{4, 5}, {5, 6}};
  auto model = ModelWithNodes(20);
  Data::CNodeLoad load;
  load.SetLoadedEntities(Nodes(L"4"));
  model.SetNodeLoad(1, load);
  model.SetSettlement(1, load);
  EXPECT_TRUE(Copy(model, kAllFlags, chain));
  EXPECT_EQ(TextOf(model.Settlement(1).LoadedEntities()), L"4 5 6");
  EXPECT_EQ(TextOf(model.NodeLoad(1).LoadedEntities()), L"4 5");
}

TEST(CopyNodeRef, AddsBehindRangesAndWords) {
  auto model = ModelWithNodes(20);
  model.SetList(1, Nodes(L"3 to 5"));
  model.SetList(2, Nodes(L"1 to 9 not 5"));
  EXPECT_TRUE(Copy(model, kAllFlags));
  EXPECT_EQ(TextOf(model.List(1)), L"3 to 5 14 15");
  EXPECT_EQ(TextOf(model.List(2)), L"1 to 9 not 5 14");
}

// Constraints.

Data::CJoint Joint(int primary, int constrained) {
  return {L"hinge", Vbool6(L"pin"), primary, constrained, List(SelNone, L"2")};
}

TEST(CopyNodeRef, MakesAJointForTheCopiesOfBothItsNodes) {
  auto model = ModelWithNodes(20);
  model.SetJoint(1, Joint(4, 5));
  EXPECT_TRUE(Copy(model, {.constraints = true}));
  ASSERT_EQ(model.HighestJoint(), 2);
  EXPECT_TRUE(model.Joint(1) == Joint(4, 5));
  EXPECT_TRUE(model.Joint(2) == Joint(14, 15));
}

TEST(CopyNodeRef, MakesNoJointForTheCopyOfOneNode) {
  auto model = ModelWithNodes(20);
  model.SetJoint(1, Joint(4, 6));
  model.SetJoint(2, Joint(6, 5));
  EXPECT_FALSE(Copy(model, kAllFlags));
  EXPECT_EQ(model.HighestJoint(), 2);
}

TEST(CopyNodeRef, MakesTheCopiesFromTheHighestDownAndNeverCopiesACopy) {
  auto model = ModelWithNodes(20);
  model.SetJoint(1, Joint(4, 5));
  model.SetJoint(2, Joint(5, 4));
  EXPECT_TRUE(Copy(model, kAllFlags, {{4, 5}, {5, 4}}));
  ASSERT_EQ(model.HighestJoint(), 4);
  EXPECT_TRUE(model.Joint(3) == Joint(4, 5));  // of 2
  EXPECT_TRUE(model.Joint(4) == Joint(5, 4));  // of 1
}

TEST(CopyNodeRef, MakesNoConstraintWithoutTheFlag) {
  auto model = ModelWithNodes(20);
  model.SetJoint(1, Joint(4, 5));
  EXPECT_FALSE(Copy(model, {true, true, false, true}));
}

Data::CRigid Rigid(int primary, wchar_t const* constrained) {
  return {L"slab", Data::LinkType::All, primary, Nodes(constrained), List(SelNone, L"2")};
}

TEST(CopyNodeRef, CopiesARigidOnTheCopyOfItsPrimaryNode) {
  auto model = ModelWithNodes(20);
  model.SetRigid(1, Rigid(4, L"5 6"));
  EXPECT_TRUE(Copy(model, {.constraints = true}));
  ASSERT_EQ(model.HighestRigid(), 2);
  EXPECT_TRUE(model.Rigid(1) == Rigid(4, L"5 6"));
  EXPECT_TRUE(model.Rigid(2) == Rigid(14, L"15"));
}

TEST(CopyNodeRef, MakesTheLastCopyPrimaryWhereThePrimaryNodeHasNoneAndLeavesItInTheList) {
  auto model = ModelWithNodes(20);
  model.SetRigid(1, Rigid(1, L"4 5 6"));
  EXPECT_TRUE(Copy(model, kAllFlags));
  ASSERT_EQ(model.HighestRigid(), 2);
  EXPECT_TRUE(model.Rigid(2) == Rigid(15, L"14 15"));
}

TEST(CopyNodeRef, TakesForTheLastCopyThatOfTheHighestNodeAndNotTheHighestCopy) {
  auto model = ModelWithNodes(20);
  model.SetRigid(1, Rigid(1, L"4 5 6"));
  EXPECT_TRUE(Copy(model, kAllFlags, {{4, 15}, {5, 14}}));
  ASSERT_EQ(model.HighestRigid(), 2);
  EXPECT_TRUE(model.Rigid(2) == Rigid(14, L"15 14"));
}

TEST(CopyNodeRef, DoesNotCountACopyThatDoesNotExist) {
  auto model = ModelWithNodes(20);
  model.SetRigid(1, Rigid(1, L"4 5"));
  EXPECT_FALSE(Copy(model, kAllFlags, {{4, 14}, {5, 99}}));
  EXPECT_EQ(model.HighestRigid(), 1);
}

TEST(CopyNodeRef, MakesNoRigidOfOneMappedNodeOrNone) {
  auto model = ModelWithNodes(20);
  model.SetRigid(1, Rigid(1, L"5 6"));
  model.SetRigid(2, Rigid(4, L"6 7"));
  model.SetRigid(3, Rigid(1, L"6 7"));
  EXPECT_FALSE(Copy(model, kAllFlags));
  EXPECT_EQ(model.HighestRigid(), 3);
}

TEST(CopyNodeRef, DoesNotCountACopyThatIsAmongTheConstrainedNodes) {
  auto model = ModelWithNodes(20);
  model.SetRigid(1, Rigid(1, L"4 5 14"));
  EXPECT_FALSE(Copy(model, kAllFlags));  // 15 alone is new
}

Data::CConstraintEqn Equation(int constrained, int first, int second) {
  Data::CConstraintEqn equation;
  equation.SetConstrainedNode(constrained);
  equation.SetDir(Direction::Y);
  equation.SetRhsTerm(-1, first, Direction::X, 0.5);
  equation.SetRhsTerm(-1, second, Direction::ZZ, -2.0);
  return equation;
}

TEST(CopyNodeRef, CopiesAnEquationThatHasAnyMappedNode) {
  auto model = ModelWithNodes(20);
  model.SetConstraintEqn(1, Equation(4, 1, 2));
  model.SetConstraintEqn(2, Equation(1, 2, 5));
  model.SetConstraintEqn(3, Equation(1, 2, 3));
  EXPECT_TRUE(Copy(model, {.constraints = true}));
  ASSERT_EQ(model.HighestConstraintEqn(), 5);
  EXPECT_TRUE(model.ConstraintEqn(1) == Equation(4, 1, 2));
  EXPECT_TRUE(model.ConstraintEqn(4) == Equation(1, 2, 15));
  EXPECT_TRUE(model.ConstraintEqn(5) == Equation(14, 1, 2));
}

TEST(CopyNodeRef, LeavesTheModelAloneForAnEmptyMapSaysSoAndIsAStepAllTheSame) {
  auto model = ModelWithNodes(20);
  model.SetList(1, Nodes(L"4 5"));
  CZelData const before(model);
  EXPECT_FALSE(Copy(model, kAllFlags, {}));
  EXPECT_TRUE(IsUnchanged(model, before));
  EXPECT_EQ(model.NumUndo(), 1);
}

TEST(CopyNodeRef, IsOneStepThatCanBeUndone) {
  auto model = ModelWithNodes(20);
  for (auto const& row : AllRows()) row.table.add(model, Nodes(L"4 5"));
  model.SetRigid(1, Rigid(4, L"5 6"));
  CZelData const before(model);
  EXPECT_TRUE(Copy(model, kAllFlags));
  EXPECT_TRUE(model.Undo());
  EXPECT_TRUE(IsUnchanged(model, before));
}

}  // namespace
}  // namespace Tarvex::CopyNodeRefTest
