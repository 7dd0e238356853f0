#include "store/model/stage_queries.h"

#include <gtest/gtest.h>

#include "store/model/zel_data.h"
#include "store/record/mat_anal.h"
#include "store/record/member.h"
#include "store/record/node.h"
#include "store/record/prop_2d.h"
#include "store/record/restraints.h"
#include "store/record/stages.h"
#include "tests/support/builders.h"

namespace Tarvex::StageQueriesTest {
namespace {

using Data::CEntList;

constexpr Vbool6 kX(true, false, false, false, false, false);
constexpr Vbool6 kY(false, true, false, false, false, false);
constexpr Vbool6 kZ(false, false, true, false, false, false);

/// Nodes 1 to 6, elements 1 (1 2 5 4) and 2 (2 3 6 5), panel 3 on 1 2 5; stage 2 has element 1 and
/// the panel.
CZelData Staged() {
  CZelData model;
  Testing::Grid(model, 2, 1);
  model.SetLoadPanel(3, Testing::Panel({1, 2, 5}));
  model.SetAnalStage(2, Data::CAnalStage(L"", CEntList(SelElement, L"1 3")));
  return model;
}

TEST(ElemIsActive, IsTrueForAllWithoutStageAndInAStageForItsList) {
  auto const model = Staged();
  EXPECT_TRUE(model.ElemIsActive(1, 0));
  EXPECT_TRUE(model.ElemIsActive(2, 0));
  EXPECT_TRUE(model.ElemIsActive(1, 2));
  EXPECT_FALSE(model.ElemIsActive(2, 2));
}

TEST(ElemIsActive, IsFalseForWhatDoesNotExist) {
  auto const model = Staged();
  EXPECT_FALSE(model.ElemIsActive(9, 0));
  EXPECT_FALSE(model.ElemIsActive(3, 0));  // a panel
  EXPECT_FALSE(model.ElemIsActive(1, 7));  // no such stage
  EXPECT_FALSE(model.ElemIsActive(1, -1));
}

TEST(ElemIsActive, TakesTheWordsOfTheList) {
  CZelData model;
  Testing::Grid(model, 2, 2);
  model.SetMatAnal(4, Data::CMatAnal());
  Data::CProp2D slab;
  slab.SetMaterialAnalysis(4);
  model.SetProp2D(7, slab);
  model.SetElemProperty(2, 7);
  model.SetElemProperty(3, 8);
  model.SetElemGroup(4, 5);
  model.SetList(6, CEntList(SelElement, L"1 4"));
  struct Row {
    wchar_t const* text;
    std::vector<int> active;
  };
  for (auto const& [text, active] :
       {Row{L"PA7", {2}}, Row{L"P8", {3}}, Row{L"M4", {2}}, Row{L"G5", {4}}, Row{L"#6", {1, 4}},
        Row{L"all not PA7", {1, 3, 4}}, Row{L"2 to *", {2, 3, 4}}, Row{L"", {}}}) {
    SCOPED_TRACE(CString(text).ToUtf8());
    model.SetAnalStage(2, Data::CAnalStage(L"", CEntList(SelElement, CString(text))));
    std::vector<int> found;
    for (int n = 1; n <= 4; ++n)
      if (model.ElemIsActive(n, 2)) found.push_back(n);
    EXPECT_EQ(found, active);
  }
  model.SetElemProperty(1, 7);  // the list follows
  model.SetAnalStage(2, Data::CAnalStage(L"", CEntList(SelElement, L"PA7")));
  EXPECT_TRUE(model.ElemIsActive(1, 2));
}

TEST(IsLoadPanelActive, IsTrueForPanelsOfTheStage) {
  auto model = Staged();
  EXPECT_TRUE(model.IsLoadPanelActive(3, 0));
  EXPECT_TRUE(model.IsLoadPanelActive(3, 2));
  EXPECT_FALSE(model.IsLoadPanelActive(1, 0));
  model.SetAnalStage(2, Data::CAnalStage(L"", CEntList(SelElement, L"1")));
  EXPECT_FALSE(model.IsLoadPanelActive(3, 2));
}

TEST(NodeIsActive, IsTrueWhereSomethingAttachedActs) {
  auto model = Staged();
  EXPECT_TRUE(model.NodeIsActive(3, 0, SelElement));
  EXPECT_FALSE(model.NodeIsActive(3, 2, SelElement));  // of element 2 alone
  EXPECT_TRUE(model.NodeIsActive(4, 2, SelElement));   // of element 1
  EXPECT_TRUE(model.NodeIsActive(2, 2, SelElement));   // of both
  model.SetAnalStage(2, Data::CAnalStage(L"", CEntList(SelElement, L"3")));
  EXPECT_TRUE(model.NodeIsActive(1, 2, SelElement));  // of the panel
  EXPECT_FALSE(model.NodeIsActive(4, 2, SelElement));
  EXPECT_FALSE(model.NodeIsActive(99, 0, SelElement));
  model.CreateNode(50, {}, 0, Vbool6());
  EXPECT_FALSE(model.NodeIsActive(50, 0, SelElement));
}

TEST(NodeIsActive, TakesMembersForActingInAllStages) {
  auto model = Staged();
  EXPECT_FALSE(model.NodeIsActive(1, 0, SelMember));
  Data::CMember member(MembType::Beam, 1, 1);
  member.SetTopo(CString(L"1 3"));
  model.SetMember(1, member);
  EXPECT_TRUE(model.NodeIsActive(1, 0, SelMember));
  EXPECT_TRUE(model.NodeIsActive(3, 2, SelMember));
  EXPECT_FALSE(model.NodeIsActive(3, 7, SelMember));
  EXPECT_FALSE(model.NodeIsActive(1, 0, SelNode));
}

TEST(NodeTotalRestraint, IsOwnGeneralAndGlobalRestraint) {
  auto model = Staged();
  EXPECT_TRUE(model.NodeTotalRestraint(1, 0).IsNone());
  model.SetNodeRestraint(1, kX);
  EXPECT_EQ(model.NodeTotalRestraint(1, 0), kX);
  model.SetGenRest(
      1, Data::CGenRest(L"", CEntList(SelNode, L"1 to 3"), kZ, CEntList(SelNone, CEntList::All())));
  EXPECT_EQ(model.NodeTotalRestraint(1, 0), kX | kZ);
  EXPECT_EQ(model.NodeTotalRestraint(3, 0), kZ);
  EXPECT_TRUE(model.NodeTotalRestraint(4, 0).IsNone());
  auto spec = model.Spec();
  spec.SetStructType(StrType::PlaneXZ);
  model.SetSpec(spec);
  EXPECT_EQ(model.NodeTotalRestraint(4, 0), Vbool6(false, true, false, true, false, true));
  EXPECT_EQ(model.NodeTotalRestraint(1, 0), Vbool6(true, true, true, true, false, true));
  EXPECT_TRUE(model.NodeTotalRestraint(99, 0).IsNone());
}

TEST(NodeTotalRestraint, TakesTheListsThatActInTheStage) {
  auto model = Staged();
  auto const on = [](wchar_t const* stages) { return CEntList(SelNone, CString(stages)); };
  model.SetGenRest(1, Data::CGenRest(L"", CEntList(SelNode, L"1"), kX, on(L"2")));
  model.SetGenRest(2, Data::CGenRest(L"", CEntList(SelNode, L"1"), kY, on(L"3 to 5")));
  model.SetGenRest(3, Data::CGenRest(L"", CEntList(SelNode, L"1"), kZ, on(L"all")));
  EXPECT_EQ(model.NodeTotalRestraint(1, 0), kZ);
  EXPECT_EQ(model.NodeTotalRestraint(1, 2), kX | kZ);
  EXPECT_EQ(model.NodeTotalRestraint(1, 4), kY | kZ);
}

TEST(GlobalRestraint, IsWhatTheKindOfStructureHolds) {
  struct Row {
    int type;
    Vbool6 held;
  };
  for (auto const& [type, held] :
       {Row{0, Vbool6()}, Row{1, Vbool6(false, true, false, true, false, true)},
        Row{2, Vbool6(true, true, false, false, false, true)},
        Row{3, Vbool6(false, false, true, true, true, true)},
        Row{4, Vbool6(false, false, true, true, true, true)},
        Row{5, Vbool6(false, false, true, true, true, true)}}) {
    CZelData model;
    auto spec = model.Spec();
    spec.SetStructType(static_cast<StrType>(type));
    model.SetSpec(spec);
    EXPECT_EQ(static_cast<int>(model.StructType()), type);
    EXPECT_EQ(model.GlobalRestraint(), held);
  }
}

TEST(NamesStage, GoesByNumberRangeAndAllWhetherOrNotTheStageExists) {
  CZelData const model;
  auto const names = [&](wchar_t const* text, int stage) {
    return NamesStage(model, CEntList(SelNone, CString(text)), stage);
  };
  EXPECT_TRUE(names(L"1 4", 4));
  EXPECT_FALSE(names(L"1 4", 3));
  EXPECT_TRUE(names(L"1 to 4", 3));
  EXPECT_TRUE(names(L"all", 0));
  EXPECT_TRUE(names(L"all", 9));
  EXPECT_FALSE(names(L"", 0));
  EXPECT_FALSE(names(L"1", 0));
}

}  // namespace
}  // namespace Tarvex::StageQueriesTest
