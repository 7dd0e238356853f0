// Records on the move.
#include <gtest/gtest.h>

#include "store/record/axis.h"
#include "store/record/cases.h"
#include "store/record/load_case_title.h"
#include "store/record/member.h"
#include "store/record/node.h"
#include "store/record/other_props.h"
#include "store/record/spring_prop.h"
#include "store/record/stages.h"
#include "store/record/tasks.h"
#include "store/text/number_text.h"
#include "tests/renumber/renumber_support.h"

namespace Tarvex::MoveRecordsTest {
namespace {

using Testing::Apply;
using Testing::Numbers;
using Testing::Scheme;

/// A record that tells the number it was made for by its identifier.
template <class Record>
Record MadeFor(int n) {
  Record record;
  record.SetSid(StringFrom(n));
  return record;
}

/// What the numbers of a table hold: the identifiers by number.
template <class Row>
std::map<int, std::wstring> SidsOf(CZelData const& model, Row const& row) {
  std::map<int, std::wstring> sids;
  ForEachRecord((model.*row.all)(), [&](int n, auto const& r) { sids[n] = r.Sid().Str(); });
  return sids;
}

/// Runs a test on the table of each module.
template <class Test>
void ForModules(std::vector<int> const& modules, Test&& test) {
  int met = 0;
  Registry::kTables.ForEach([&](auto const& row) {
    using Record = typename std::remove_cvref_t<decltype(row)>::Record;
    if constexpr (!std::is_same_v<Record, Zel::TaskSlot>)
      if (std::find(modules.begin(), modules.end(), row.module) != modules.end() &&
          row.stem != "LoadPanel") {
        SCOPED_TRACE(row.stem);
        ++met;
        test(row);
      }
  });
  EXPECT_EQ(met, static_cast<int>(modules.size()));
}

std::vector<int> const kPlainModules{20, 23, 24, 25, 80, 100, 110, 38,  39,  30, 31, 32,
                                     33, 35, 34, 36, 50, 52,  40,  53,  54,  56, 58, 59,
                                     55, 62, 63, 64, 65, 37,  75,  230, 130, 274};

TEST(MoveRecords, MovesExchangesAndDeletesTheRecordsOfEachTable) {
  ForModules(kPlainModules, [](auto const& row) {
    using Record = typename std::remove_cvref_t<decltype(row)>::Record;
    CZelData model;
    for (int const n : {2, 4, 5, 9}) (model.*row.set)(n, MadeFor<Record>(n), SidMode::Keep);
    // an element of no type would end a run over properties; there is none here
    EXPECT_TRUE(Apply(model, row.module, {{2, 4}, {4, 2}, {9, 1}}));
    EXPECT_EQ(SidsOf(model, row), (std::map<int, std::wstring>{{1, L"9"}, {2, L"4"}, {4, L"2"}}));
  });
}

TEST(MoveRecords, KeepsTheLastOfTwoRecordsThatBecomeOneInEachTableButThatOfNodes) {
  auto modules = kPlainModules;
  std::erase(modules, CModule::Node);
  ForModules(modules, [](auto const& row) {
    using Record = typename std::remove_cvref_t<decltype(row)>::Record;
    CZelData model;
    for (int const n : {2, 4}) (model.*row.set)(n, MadeFor<Record>(n), SidMode::Keep);
    EXPECT_TRUE(Apply(model, row.module, {{2, 2}, {4, 2}}));
    EXPECT_EQ(SidsOf(model, row), (std::map<int, std::wstring>{{2, L"4"}}));
  });
}

TEST(MoveRecords, KeepsTheNodeThatHasTheNumberOfNodesThatBecomeOne) {
  CZelData model;
  Testing::NodesAt(model, {2, 4, 6});
  EXPECT_TRUE(Apply(model, CModule::Node, {{2, 4}, {4, 4}, {6, 4}}));
  EXPECT_EQ(Numbers(model.Node()), std::vector<int>{4});
  EXPECT_EQ(model.NodeCoor(4).x, 4);
}

TEST(MoveRecords, KeepsTheLastNodeWhereNoneHasTheNumber) {
  CZelData model;
  Testing::NodesAt(model, {2, 4});
  EXPECT_TRUE(Apply(model, CModule::Node, {{2, 7}, {4, 7}}));
  EXPECT_EQ(model.NodeCoor(7).x, 4);
}

TEST(MoveRecords, ClearsATableWhoseSchemeIsEmpty) {
  ForModules(kPlainModules, [](auto const& row) {
    using Record = typename std::remove_cvref_t<decltype(row)>::Record;
    CZelData model;
    (model.*row.set)(3, MadeFor<Record>(3), SidMode::Keep);
    EXPECT_TRUE(Apply(model, row.module, Scheme()));
    EXPECT_EQ((model.*row.highest)(), 0);
  });
}

TEST(MoveRecords, PassesOverNumbersWithoutARecord) {
  CZelData model;
  Testing::NodesAt(model, {2});
  EXPECT_TRUE(Apply(model, CModule::Node, {{1, 1}, {2, 3}}));
  EXPECT_EQ(Numbers(model.Node()), std::vector<int>{3});
}

TEST(MoveRecords, TakesZeroForARecordThatGoes) {
  CZelData model;
  Testing::NodesAt(model, {2, 3});
  EXPECT_TRUE(Apply(model, CModule::Node, {{2, 0}, {3, 3}}));
  EXPECT_EQ(Numbers(model.Node()), std::vector<int>{3});
}

TEST(MoveRecords, RefusesNumbersThatNoRecordCanHaveBeforeAnythingChanges) {
  CZelData model;
  Testing::NodesAt(model, {2, 3});
  CZelData const before(model);
  for (int const number : {-1, 100000001})
    EXPECT_THROW(Apply(model, CModule::Node, {{2, 1}, {3, number}}), std::out_of_range);
  EXPECT_TRUE(Testing::IsUnchanged(model, before));
}

TEST(MoveRecords, MovesLoadPanelsAmongElements) {
  CZelData model;
  Testing::NodesAt(model, {1, 2, 3});
  model.SetElem(2, Testing::Element(ElementType::Beam, {1, 2}));
  model.SetLoadPanel(7, Testing::Panel({1, 2, 3}));
  CRenumber renumber(&model);
  renumber.Index(CModule::Elem);
  EXPECT_TRUE(renumber.Go(false));
  EXPECT_EQ(Numbers(model.Elem()), std::vector<int>{1});
  EXPECT_EQ(Numbers(model.LoadPanels()), std::vector<int>{2});
  // what is added now takes the number behind the panel
  model.SetElem(model.HighestElem() + 1, Testing::Element(ElementType::Beam, {2, 3}));
  EXPECT_TRUE(model.LoadPanelExist(2));
  EXPECT_EQ(Numbers(model.Elem()), (std::vector<int>{1, 3}));
}

TEST(MoveRecords, LeavesAttachmentsAndPositionsOfNodesTrue) {
  CZelData model;
  Testing::Grid(model, 2, 2);
  CRenumber renumber(&model);
  renumber.Index(SelNode, {-1, -2, 0});
  renumber.Index(SelElement, {-1, -2, 0});
  EXPECT_TRUE(renumber.Go(false));
  EXPECT_FALSE(model.rebuildHold);
  EXPECT_EQ(model.bulkCounter, 0);
  EXPECT_TRUE(Testing::AttachmentsFollowTopology(model));
  EXPECT_EQ(model.NodesAroundPoint({0, 0, 0}, 0), std::vector<int>{9});  // it was node 1
}

TEST(MoveRecords, ErasesSpringsInThePlaceOfDampersAndLeavesOldDampers) {
  CZelData model;
  for (int const n : {1, 2, 3}) model.SetSpringProp(n, Data::CSpringProp());
  for (int const n : {1, 2}) model.SetDamperProp(n, MadeFor<Data::CDamperProp>(n));
  EXPECT_TRUE(Apply(model, CModule::DamperProp, {{1, 5}}));
  EXPECT_EQ(Numbers(model.DamperProp()), (std::vector<int>{1, 2, 5}));
  EXPECT_EQ(model.DamperProp(5).Sid(), L"1");
  // cleared from 1 to 2, the highest damper
  EXPECT_EQ(Numbers(model.SpringProp()), std::vector<int>{3});
}

TEST(MoveRecords, ErasesSpringsThatTheStepBeforeHasMoved) {
  CZelData model;
  model.SetSpringProp(8, Data::CSpringProp());
  model.SetDamperProp(1, Data::CDamperProp());
  CRenumber renumber(&model);
  renumber.Index(CModule::SpringProp);
  renumber.Index(CModule::DamperProp);
  EXPECT_TRUE(renumber.Go(false));
  EXPECT_EQ(model.HighestSpringProp(), 0);
}

TEST(MoveRecords, ErasesStagesInThePlaceOfDesignTasksAndLeavesOldOnes) {
  CZelData model;
  for (int const n : {1, 2, 3}) model.SetAnalStage(n, Data::CAnalStage());
  for (int const n : {1, 2}) model.SetDesignTask(n, MadeFor<CDesignTask>(n));
  EXPECT_TRUE(Apply(model, CModule::DesignTask, {{1, 4}}));
  EXPECT_EQ(Numbers(model.DesignTask()), (std::vector<int>{1, 2, 4}));
  EXPECT_EQ(model.DesignTask(4).Sid(), L"1");
  EXPECT_EQ(Numbers(model.AnalStage()), std::vector<int>{3});
}

TEST(MoveRecords, ErasesStagesThatAStepBeforeHasMoved) {
  CZelData model;
  model.SetAnalStage(8, Data::CAnalStage());
  model.SetDesignTask(1, CDesignTask());
  CRenumber renumber(&model);
  renumber.Index(CModule::AnalStage);  // 8 becomes 1, and 1 is cleared with the design tasks
  renumber.Index(CModule::DesignTask);
  EXPECT_TRUE(renumber.Go(false));
  EXPECT_EQ(model.HighestAnalStage(), 0);
}

TEST(MoveRecords, LeavesOldCombinations) {
  CZelData model;
  for (int const n : {1, 2}) model.SetCombinationCase(n, MadeFor<Data::CCombinationCase>(n));
  EXPECT_TRUE(Apply(model, CModule::CombinationCase, {{1, 2}}));
  EXPECT_EQ(Numbers(model.CombinationCase()), (std::vector<int>{1, 2}));
  EXPECT_EQ(model.CombinationCase(1).Sid(), L"1");
  EXPECT_EQ(model.CombinationCase(2).Sid(), L"1");
}

TEST(MoveRecords, MovesMassesByTheNumbersOfPlatesInAShift) {
  CZelData model;
  model.SetMassProp(1, MadeFor<Data::CMassProp>(1));
  model.SetMassProp(2, MadeFor<Data::CMassProp>(2));
  model.SetProp2D(2, Data::CProp2D());
  CRenumber renumber(&model);
  renumber.Index(CModule::MassProp, 1u, 10);
  EXPECT_TRUE(renumber.Go(false));
  // mass 1 is no number of a plate and goes
  EXPECT_EQ(Numbers(model.MassProp()), std::vector<int>{12});
  EXPECT_EQ(Numbers(model.Prop2D()), std::vector<int>{2});
}

TEST(MoveRecords, StaysOutOfARunOnReferencesAlone) {
  CZelData model;
  Testing::NodesAt(model, {2});
  CRenumber renumber(&model);
  renumber.SetRefOnly(true);
  renumber.Index(CModule::Node);
  EXPECT_TRUE(renumber.Go(false));
  EXPECT_EQ(Numbers(model.Node()), std::vector<int>{2});
}

// Children of members.

using Children = std::map<int, std::vector<int>>;

/// Elements 1 to 6, and a member under each number with a child list.
CZelData ModelWithChildren(std::map<int, Children> const& members) {
  CZelData model;
  Testing::NodesAt(model, {1, 2});
  for (int n = 1; n <= 6; ++n) model.SetElem(n, Testing::Element(ElementType::Beam, {1, 2}));
  for (auto const& [number, replicas] : members) {
    Data::CMember member;
    for (auto const& [replica, children] : replicas)
      for (int const child : children) member.AddChildElement(child, replica);
    model.SetMember(number, member);
  }
  return model;
}

TEST(MoveChildren, FollowsElements) {
  auto model = ModelWithChildren({{1, {{0, {3, 1}}, {2, {5}}}}});
  EXPECT_TRUE(Apply(model, CModule::Elem, {{1, 10}, {3, 2}, {5, 5}}));
  EXPECT_EQ(model.Member(1).ChildElements(), (Children{{0, {2, 10}}, {2, {5}}}));
}

TEST(MoveChildren, DropsElementsThatGo) {
  auto model = ModelWithChildren({{1, {{0, {3, 1}}, {2, {5}}}}});
  EXPECT_TRUE(Apply(model, CModule::Elem, {{1, 1}}));
  EXPECT_EQ(model.Member(1).ChildElements(), (Children{{0, {1}}}));
}

TEST(MoveChildren, ListsElementsThatBecomeOneOnce) {
  auto model = ModelWithChildren({{1, {{0, {3, 1, 2}}}}});
  EXPECT_TRUE(Apply(model, CModule::Elem, {{1, 1}, {2, 2}, {3, 1}}));
  EXPECT_EQ(model.Member(1).ChildElements(), (Children{{0, {1, 2}}}));
}

TEST(MoveChildren, GoesWithMembers) {
  auto model = ModelWithChildren({{1, {{0, {1}}}}, {2, {{0, {2}}}}});
  EXPECT_TRUE(Apply(model, CModule::Member, {{1, 2}, {2, 1}}));
  EXPECT_EQ(model.Member(1).ChildElements(), (Children{{0, {2}}}));
  EXPECT_EQ(model.Member(2).ChildElements(), (Children{{0, {1}}}));
}

TEST(MoveChildren, JoinsThoseOfMembersThatBecomeOne) {
  auto model = ModelWithChildren({{1, {{0, {4}}}}, {3, {{0, {2}}, {1, {5}}}}});
  EXPECT_TRUE(Apply(model, CModule::Member, {{1, 3}, {3, 3}}));
  EXPECT_EQ(model.Member(3).ChildElements(), (Children{{0, {4, 2}}, {1, {5}}}));
}

TEST(MoveChildren, FollowsMembersAndElementsAtOnce) {
  auto model = ModelWithChildren({{2, {{0, {6, 3}}}}});
  CRenumber renumber(&model);
  renumber.Index(CModule::Member);
  renumber.Index(CModule::Elem, {{3, 1}, {6, 2}});
  EXPECT_TRUE(renumber.Go(false));
  EXPECT_EQ(model.Member(1).ChildElements(), (Children{{0, {2, 1}}}));
}

TEST(MoveChildren, IsDoneInARunOnReferencesAlone) {
  auto model = ModelWithChildren({{1, {{0, {3, 1}}}}});
  CRenumber renumber(&model);
  renumber.SetRefOnly(true);
  renumber.Index(CModule::Elem, {{1, 4}});
  EXPECT_TRUE(renumber.Go(false));
  EXPECT_EQ(model.Member(1).ChildElements(), (Children{{0, {4}}}));
}

// Meshes of members.

/// A mesh with that many nodes.
ZEL::ReplicatedMesh MeshOf(std::size_t nodes) {
  auto mesh = std::make_shared<MemberMesh>();
  mesh->nodes.resize(nodes);
  return {{{0, mesh}}, false};
}

std::size_t NodesOfMesh(CZelData const& model, int member) {
  auto const mesh = model.Member(member).AnalysisMesh();
  return mesh.Replicas().empty() ? 0 : mesh.Replicas().at(0)->Nodes().size();
}

TEST(MoveMeshes, GoWithMembers) {
  CZelData model;
  for (int const n : {1, 2, 3}) {
    Data::CMember member;
    if (n != 3) member.SetAnalysisMesh(MeshOf(static_cast<std::size_t>(n) * 10));
    model.SetMember(n, member);
  }
  EXPECT_TRUE(Apply(model, CModule::Member, {{1, 2}, {2, 1}, {3, 3}}));
  EXPECT_EQ(NodesOfMesh(model, 1), 20u);
  EXPECT_EQ(NodesOfMesh(model, 2), 10u);
  EXPECT_EQ(NodesOfMesh(model, 3), 0u);
}

TEST(MoveMeshes, OfMembersThatBecomeOneIsThatOfTheRecordThatStays) {
  CZelData model;
  for (int const n : {1, 2}) {
    Data::CMember member;
    if (n == 1) member.SetAnalysisMesh(MeshOf(10));
    model.SetMember(n, member);
  }
  EXPECT_TRUE(Apply(model, CModule::Member, {{1, 3}, {2, 3}}));
  EXPECT_EQ(NodesOfMesh(model, 3), 0u);
}

}  // namespace
}  // namespace Tarvex::MoveRecordsTest
