// Rigid constraints merged for the life of a guard.
#include "tarvex/merge_rigid.h"

#include <gtest/gtest.h>

#include <stdexcept>

#include "store/model/zel_data.h"
#include "store/record/joint.h"
#include "store/record/node.h"
#include "store/record/restraints.h"
#include "store/record/spec.h"
#include "store/record/stages.h"
#include "tests/support/builders.h"
#include "tests/support/matchers.h"

namespace Tarvex::MergeRigidTest {
namespace {

using Data::CEntList;
using Data::CRigid;
using Data::LinkType;
using Testing::IsUnchanged;

CEntList NodeList(wchar_t const* text) { return {SelNode, CString(text)}; }
CEntList StageList(wchar_t const* text) { return {SelNone, CString(text)}; }

CRigid Rigid(int primary, wchar_t const* nodes, LinkType type = LinkType::All,
             wchar_t const* stages = L"all") {
  return {L"", type, primary, NodeList(nodes), StageList(stages)};
}

/// A model of twenty nodes and the constraints.
CZelData ModelOf(std::vector<CRigid> const& rigids) {
  CZelData model;
  for (int n = 1; n <= 20; ++n) Testing::NodeAt(model, n, 0, 0);
  int number = 0;
  for (auto const& rigid : rigids) model.SetRigid(++number, rigid);
  return model;
}

std::wstring NodesOf(CRigid const& rigid) { return rigid.ConstrainedNodes().String().Str(); }

// Which constraints may be merged.

TEST(CheckRigid, TakesActiveConstraintsOfNamedTypesButPins) {
  auto const model = ModelOf({});
  auto copy = model;
  MergeRigid const tool(copy);
  struct Row {
    int type;
    bool expected;
  };
  for (auto const& [type, expected] :
       {Row{0, false}, Row{53, true}, Row{344, true}, Row{387, true}, Row{511, false},
        Row{4095, true}, Row{1, false}, Row{54, false}, Row{4094, false}})
    EXPECT_EQ(tool.CheckRigid(Rigid(1, L"2", static_cast<LinkType>(type)), 0), expected) << type;
}

TEST(CheckRigid, NeedsNodesThatExist) {
  auto model = ModelOf({});
  MergeRigid const tool(model);
  EXPECT_FALSE(tool.CheckRigid(Rigid(21, L"2"), 0));
  EXPECT_FALSE(tool.CheckRigid(Rigid(1, L"21"), 0));
  EXPECT_FALSE(tool.CheckRigid(Rigid(1, L""), 0));
}

TEST(CheckRigid, NeedsTheStageInItsList) {
  auto model = ModelOf({});
  for (int const n : {1, 3}) model.SetAnalStage(n, Data::CAnalStage(L"", {SelElement, L"all"}));
  MergeRigid const tool(model);
  auto const acts = [&](wchar_t const* stages, int stage) {
    return tool.CheckRigid(Rigid(1, L"2", LinkType::All, stages), stage);
  };
  EXPECT_TRUE(acts(L"all", 0));
  EXPECT_TRUE(acts(L"all", 1));
  EXPECT_TRUE(acts(L"all", 3));
  EXPECT_FALSE(acts(L"1", 0));
  EXPECT_TRUE(acts(L"1", 1));
  EXPECT_FALSE(acts(L"1", 3));
  EXPECT_TRUE(acts(L"0 3", 0));
  EXPECT_FALSE(acts(L"", 0));
}

TEST(CheckRigid, CountsStagesInAllUpToTheHighestOne) {
  auto model = ModelOf({});
  for (int const n : {1, 3}) model.SetAnalStage(n, Data::CAnalStage(L"", {SelElement, L"all"}));
  MergeRigid const tool(model);
  auto const rigid = Rigid(1, L"2");
  // "all" is 0 to 3: a constraint that acts in stage 4 or -1 is not in its list.
  for (int const stage : {-1, 4}) {
    ASSERT_TRUE(model.RigidIsActive(rigid, stage)) << stage;
    EXPECT_FALSE(tool.CheckRigid(rigid, stage)) << stage;
  }
}

TEST(CheckRigid, CountsStageZeroInAllOfAModelWithoutStages) {
  auto model = ModelOf({});
  ASSERT_EQ(model.HighestAnalStage(), 0);
  EXPECT_TRUE(MergeRigid(model).CheckRigid(Rigid(1, L"2"), 0));
}

TEST(ListsOverlap, IsFalseForListsOfTwoKinds) {
  auto model = ModelOf({});
  MergeRigid const tool(model);
  EXPECT_FALSE(tool.ListsOverlap(NodeList(L"1 2"), {SelElement, L"1 2"}));
  EXPECT_FALSE(tool.ListsOverlap({SelNone, L"1 2"}, NodeList(L"1 2")));
}

TEST(ListsOverlap, FindsANodeOfTheSecondInTheFirst) {
  auto model = ModelOf({});
  MergeRigid const tool(model);
  EXPECT_TRUE(tool.ListsOverlap(NodeList(L"1 to 5"), NodeList(L"5 to 9")));
  EXPECT_FALSE(tool.ListsOverlap(NodeList(L"1 to 5"), NodeList(L"6 to 9")));
  EXPECT_FALSE(tool.ListsOverlap(NodeList(L"1 to 5 not 5"), NodeList(L"5")));
  EXPECT_TRUE(tool.ListsOverlap(NodeList(L"all"), NodeList(L"20")));
  EXPECT_FALSE(tool.ListsOverlap(NodeList(L"21"), NodeList(L"21")));  // there is no such node
  EXPECT_FALSE(tool.ListsOverlap(NodeList(L""), NodeList(L"1")));
}

// Two constraints made one.

TEST(DoMerge, AppendsTheNodesOfTheSecondAndItsPrimaryNodeAndLeavesItInert) {
  auto model = ModelOf({});
  auto first = Rigid(1, L"2 3");
  auto second = Rigid(6, L"3 to 5");
  MergeRigid(model).DoMerge(first, second);
  EXPECT_EQ(first.PrimaryNode(), 1);
  EXPECT_EQ(NodesOf(first), L"2 3 3 4 5 6");
  EXPECT_EQ(first.TypeOf(), LinkType::All);
  EXPECT_EQ(static_cast<int>(second.TypeOf()), 0);
  EXPECT_EQ(second.PrimaryNode(), 6);
  EXPECT_EQ(NodesOf(second), L"3 to 5");
}

TEST(DoMerge, LetsARestrainedPrimaryNodeOfTheSecondLead) {
  auto model = ModelOf({});
  model.SetNodeRestraint(6, Vbool6(false, false, false, false, false, true));
  auto first = Rigid(1, L"2 3");
  auto second = Rigid(6, L"3");
  MergeRigid(model).DoMerge(first, second);
  EXPECT_EQ(first.PrimaryNode(), 6);
  EXPECT_EQ(NodesOf(first), L"2 3 3 6");  // the former primary node is not in it
}

TEST(DoMerge, AsksForADirectionThatIsBothRestrainedAndConstrained) {
  // A diaphragm constrains X and Y.
  struct Row {
    Vbool6 restraint;
    bool leads;
  };
  for (auto const& [restraint, leads] :
       {Row{Vbool6(true, false, false, false, false, false), true},
        Row{Vbool6(false, true, false, false, false, false), true},
        Row{Vbool6(false, false, true, true, true, true), false}}) {
    auto model = ModelOf({});
    model.SetNodeRestraint(6, restraint);
    auto first = Rigid(1, L"2 3", LinkType::Diaphragm);
    auto second = Rigid(6, L"3", LinkType::Diaphragm);
    MergeRigid(model).DoMerge(first, second);
    EXPECT_EQ(first.PrimaryNode(), leads ? 6 : 1);
  }
}

TEST(DoMerge, DoesNotAskForTheRestraintOfTheFirst) {
  auto model = ModelOf({});
  for (int const n : {1, 6}) model.SetNodeRestraint(n, Vbool6(L"pin"));
  auto first = Rigid(1, L"2 3");
  auto second = Rigid(6, L"3");
  MergeRigid(model).DoMerge(first, second);
  EXPECT_EQ(first.PrimaryNode(), 6);
}

TEST(DoMerge, CountsRestraintsOfListsInTheModelWithoutStages) {
  for (auto const& [stages, primary] : {std::pair(L"all", 6), std::pair(L"1", 1)}) {
    auto model = ModelOf({});
    model.SetAnalStage(1, Data::CAnalStage(L"", {SelElement, L"all"}));
    model.SetGenRest(1, Data::CGenRest(L"", NodeList(L"6"), Vbool6(L"pin"), StageList(stages)));
    auto first = Rigid(1, L"2 3");
    auto second = Rigid(6, L"3");
    MergeRigid(model).DoMerge(first, second);
    EXPECT_EQ(first.PrimaryNode(), primary);
  }
}

TEST(DoMerge, CountsWhatTheKindOfStructureRestrains) {
  auto model = ModelOf({});
  Data::CSpec spec;
  spec.SetStructType(StrType::PlaneXZ);  // nodes do not move in Y, XX and ZZ
  model.SetSpec(spec);
  auto first = Rigid(1, L"2");
  auto second = Rigid(3, L"2 4");
  MergeRigid(model).DoMerge(first, second);
  EXPECT_EQ(first.PrimaryNode(), 3);
  EXPECT_EQ(NodesOf(first), L"2 2 4 3");
}

// The table exchanged.

TEST(UpdateRigids, PutsTheGivenOnesFromOneOnAndTheEarlierOnesBackAtTheEnd) {
  auto model = ModelOf({Rigid(1, L"2"), Rigid(3, L"4"), Rigid(5, L"6")});
  auto const before = model;
  {
    MergeRigid tool(model);
    tool.UpdateRigids({Rigid(7, L"8"), Rigid(9, L"10")});
    EXPECT_EQ(model.HighestRigid(), 2);
    EXPECT_EQ(model.Rigid(1).PrimaryNode(), 7);
    EXPECT_EQ(model.Rigid(2).PrimaryNode(), 9);
  }
  EXPECT_TRUE(IsUnchanged(model, before));
}

TEST(UpdateRigids, TakesTheModelsOwnVector) {
  auto model = ModelOf({Rigid(1, L"2"), Rigid(3, L"4")});
  auto const before = model;
  MergeRigid tool(model);
  tool.UpdateRigids(model.Rigid());
  EXPECT_TRUE(IsUnchanged(model, before));
}

TEST(UpdateRigids, LeavesWhatIsAboveTheEarlierCountAtTheEnd) {
  auto model = ModelOf({Rigid(1, L"2")});
  {
    MergeRigid tool(model);
    tool.UpdateRigids({Rigid(7, L"8"), Rigid(9, L"10")});
  }
  ASSERT_EQ(model.HighestRigid(), 2);
  EXPECT_EQ(model.Rigid(1).PrimaryNode(), 1);
  EXPECT_EQ(model.Rigid(2).PrimaryNode(), 9);
}

// The merge.

TEST(Merge, LeavesFewerThanTwoAlone) {
  auto model = ModelOf({Rigid(1, L"2")});
  auto const before = model;
  {
    MergeRigid tool(model);
    tool.Merge(0);
    EXPECT_TRUE(IsUnchanged(model, before));
    // Nothing was kept, so nothing is put back.
    model.DeleteRigid(1, 1);
  }
  EXPECT_EQ(model.HighestRigid(), 0);
}

TEST(Merge, MergesTwoThatShareANodeIntoTheFirst) {
  auto model = ModelOf({Rigid(1, L"2 3"), Rigid(5, L"3 4")});
  MergeRigid tool(model);
  tool.Merge(0);
  ASSERT_EQ(model.HighestRigid(), 2);
  EXPECT_EQ(model.Rigid(1).PrimaryNode(), 1);
  EXPECT_EQ(NodesOf(model.Rigid(1)), L"2 3 3 4 5");
  EXPECT_EQ(model.Rigid(2).TypeOf(), LinkType::Inert);
  EXPECT_EQ(NodesOf(model.Rigid(2)), L"3 4");
  EXPECT_EQ(model.Rigid(2).PrimaryNode(), 5);
}

TEST(Merge, LeavesThoseApartThatShareNone) {
  auto model = ModelOf({Rigid(1, L"2 3"), Rigid(4, L"5 6")});
  auto const before = model;
  MergeRigid tool(model);
  tool.Merge(0);
  EXPECT_TRUE(IsUnchanged(model, before));
}

TEST(Merge, FindsAPrimaryNodeOfOneAmongTheNodesOfTheOther) {
  auto model = ModelOf({Rigid(1, L"2 3"), Rigid(3, L"4")});
  MergeRigid tool(model);
  tool.Merge(0);
  EXPECT_EQ(NodesOf(model.Rigid(1)), L"2 3 4 3");
  auto other = ModelOf({Rigid(1, L"2 3"), Rigid(4, L"1")});
  MergeRigid otherTool(other);
  otherTool.Merge(0);
  EXPECT_EQ(NodesOf(other.Rigid(1)), L"2 3 1 4");
}

TEST(Merge, GoesOnByWhatTheFirstHasTakenIn) {
  auto model = ModelOf({Rigid(1, L"2"), Rigid(3, L"2 4"), Rigid(5, L"4 6"), Rigid(7, L"6")});
  MergeRigid tool(model);
  tool.Merge(0);
  EXPECT_EQ(NodesOf(model.Rigid(1)), L"2 2 4 3 4 6 5 6 7");
  for (int const n : {2, 3, 4}) EXPECT_EQ(model.Rigid(n).TypeOf(), LinkType::Inert);
}

TEST(Merge, DoesNotLookAgainAtOneThatWasPassedBy) {
  // 2 shares node 6 with 3, which joins 1 after 2 was looked at; then 3 is inert.
  auto model = ModelOf({Rigid(1, L"2"), Rigid(5, L"6"), Rigid(7, L"2 6")});
  MergeRigid tool(model);
  tool.Merge(0);
  EXPECT_EQ(NodesOf(model.Rigid(1)), L"2 2 6 7");
  EXPECT_EQ(NodesOf(model.Rigid(2)), L"6");
  EXPECT_EQ(model.Rigid(2).TypeOf(), LinkType::All);
  EXPECT_EQ(model.Rigid(3).TypeOf(), LinkType::Inert);
}

TEST(Merge, FindsOneThatHasGrownByItsConstrainedNodesOnly) {
  // 3 names node 1 alone, the primary node of 1: found while 1 has taken nothing in.
  auto model = ModelOf({Rigid(1, L"2"), Rigid(3, L"2"), Rigid(4, L"1")});
  {
    MergeRigid tool(model);
    tool.Merge(0);
    EXPECT_EQ(NodesOf(model.Rigid(1)), L"2 2 3");
    EXPECT_EQ(model.Rigid(3).TypeOf(), LinkType::All);
  }
  model.DeleteRigid(2, 1);
  {
    MergeRigid tool(model);
    tool.Merge(0);
    EXPECT_EQ(NodesOf(model.Rigid(1)), L"2 1 4");
  }
  // Where the list names its primary node too, it is found.
  auto own = ModelOf({Rigid(1, L"1 2"), Rigid(3, L"2"), Rigid(4, L"1")});
  MergeRigid tool(own);
  tool.Merge(0);
  EXPECT_EQ(NodesOf(own.Rigid(1)), L"1 2 2 3 1 4");
}

TEST(Merge, KeepsThoseWithOnePrimaryNodeApart) {
  auto model = ModelOf({Rigid(1, L"2 3"), Rigid(1, L"3 4")});
  auto const before = model;
  MergeRigid tool(model);
  tool.Merge(0);
  EXPECT_TRUE(IsUnchanged(model, before));
}

TEST(Merge, ComparesThePrimaryNodeThatTheFirstHasByThen) {
  // 1 is led by 5 after it took 2 in, so 3, led by 5 as well, stays; 4, led by 1, joins.
  auto model = ModelOf({Rigid(1, L"2 3"), Rigid(5, L"3 4"), Rigid(5, L"4"), Rigid(1, L"4 6")});
  model.SetNodeRestraint(5, Vbool6(L"pin"));
  MergeRigid tool(model);
  tool.Merge(0);
  EXPECT_EQ(model.Rigid(1).PrimaryNode(), 5);
  EXPECT_EQ(NodesOf(model.Rigid(1)), L"2 3 3 4 5 4 6 1");
  EXPECT_EQ(model.Rigid(3).TypeOf(), LinkType::All);
  EXPECT_EQ(model.Rigid(4).TypeOf(), LinkType::Inert);
}

TEST(Merge, KeepsThoseOfTwoTypesApart) {
  auto model = ModelOf({Rigid(1, L"2 3"), Rigid(5, L"3 4", LinkType::Diaphragm),
                        Rigid(6, L"3 7", LinkType::Diaphragm)});
  MergeRigid tool(model);
  tool.Merge(0);
  EXPECT_EQ(NodesOf(model.Rigid(1)), L"2 3");
  EXPECT_EQ(NodesOf(model.Rigid(2)), L"3 4 3 7 6");
  EXPECT_EQ(model.Rigid(2).TypeOf(), LinkType::Diaphragm);
}

TEST(Merge, NeverTakesPinsAndCustomTypes) {
  for (int const type : {511, 4094, 7}) {
    auto const link = static_cast<LinkType>(type);
    auto model = ModelOf({Rigid(1, L"2 3", link), Rigid(5, L"3 4", link)});
    auto const before = model;
    MergeRigid tool(model);
    tool.Merge(0);
    EXPECT_TRUE(IsUnchanged(model, before)) << type;
  }
}

TEST(Merge, TakesThoseOfItsStageOnly) {
  auto model = ModelOf({Rigid(1, L"2 3"), Rigid(5, L"3 4", LinkType::All, L"2"),
                        Rigid(6, L"3 7", LinkType::All, L"1")});
  for (int const n : {1, 2}) model.SetAnalStage(n, Data::CAnalStage(L"", {SelElement, L"all"}));
  MergeRigid tool(model);
  tool.Merge(1);
  EXPECT_EQ(NodesOf(model.Rigid(1)), L"2 3 3 7 6");
  EXPECT_EQ(model.Rigid(2).TypeOf(), LinkType::All);
  EXPECT_EQ(model.Rigid(3).TypeOf(), LinkType::Inert);
}

TEST(Merge, WorksAtStageZeroOfAModelWithoutStages) {
  auto model = ModelOf({Rigid(1, L"2 3"), Rigid(5, L"3 4")});
  ASSERT_EQ(model.HighestAnalStage(), 0);
  MergeRigid tool(model);
  tool.Merge(0);
  EXPECT_EQ(model.Rigid(2).TypeOf(), LinkType::Inert);
}

TEST(Merge, LeavesWhatIsMergedAwayInertInTheModel) {
  auto model = ModelOf({Rigid(1, L"2 3"), Rigid(5, L"3 4")});
  MergeRigid tool(model);
  tool.Merge(0);
  EXPECT_FALSE(model.RigidIsActive(model.Rigid(2), 0));
  EXPECT_TRUE(model.RigidIsActive(model.Rigid(1), 0));
}

// The end of the guard.

TEST(MergeRigid, PutsTheEarlierConstraintsBack) {
  auto model = ModelOf({Rigid(1, L"2 3"), Rigid(5, L"3 4"), Rigid(6, L"7")});
  model.SetNodeRestraint(5, Vbool6(L"pin"));
  auto const before = model;
  {
    MergeRigid tool(model);
    tool.Merge(0);
    EXPECT_FALSE(model == before);
  }
  EXPECT_TRUE(IsUnchanged(model, before));
}

TEST(MergeRigid, PutsThemBackWhenAnExceptionPasses) {
  auto model = ModelOf({Rigid(1, L"2 3"), Rigid(5, L"3 4")});
  auto const before = model;
  try {
    MergeRigid tool(model);
    tool.Merge(0);
    ASSERT_FALSE(model == before);
    throw std::runtime_error("passes");
  } catch (std::runtime_error const&) {
  }
  EXPECT_TRUE(IsUnchanged(model, before));
}

TEST(MergeRigid, LeavesConstraintsThatCameAboveThem) {
  auto model = ModelOf({Rigid(1, L"2 3"), Rigid(5, L"3 4")});
  auto before = model;
  {
    MergeRigid tool(model);
    tool.Merge(0);
    model.SetRigid(3, Rigid(8, L"9"));
    model.SetJoint(1, Data::CJoint());
  }
  before.SetRigid(3, Rigid(8, L"9"));
  before.SetJoint(1, Data::CJoint());
  EXPECT_TRUE(IsUnchanged(model, before));
}

TEST(MergeRigid, PutsThemBackWhereSomeWentMeanwhile) {
  auto model = ModelOf({Rigid(1, L"2 3"), Rigid(5, L"3 4"), Rigid(6, L"7")});
  auto const before = model;
  {
    MergeRigid tool(model);
    tool.Merge(0);
    model.DeleteRigid(1, 3);
  }
  EXPECT_TRUE(IsUnchanged(model, before));
}

TEST(MergeRigid, DoesNothingWithoutAMerge) {
  auto model = ModelOf({Rigid(1, L"2 3"), Rigid(5, L"3 4")});
  auto const before = model;
  { MergeRigid const tool(model); }
  EXPECT_TRUE(IsUnchanged(model, before));
  static_assert(!std::is_copy_constructible_v<MergeRigid>);
}

}  // namespace
}  // namespace Tarvex::MergeRigidTest
