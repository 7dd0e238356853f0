// How schemes are built and asked.
#include <gtest/gtest.h>

#include <stdexcept>

#include "store/record/axis.h"
#include "store/record/cases.h"
#include "store/record/load_case_title.h"
#include "store/record/member.h"
#include "store/record/node.h"
#include "store/record/node_load.h"
#include "store/record/other_props.h"
#include "store/record/stages.h"
#include "store/record/tasks.h"
#include "tests/renumber/renumber_support.h"

namespace Tarvex::SchemeTest {
namespace {

using Testing::OpenRenumber;
using Testing::Scheme;
using Testing::SchemeOf;

/// A model with one record under each number in the table of a module.
CZelData ModelWith(CModule::ModuleId module, std::vector<int> const& numbers) {
  CZelData model;
  Registry::kTables.ForEach([&](auto const& row) {
    if (row.module != module || row.stem == "LoadPanel") return;
    using Record = typename std::remove_cvref_t<decltype(row)>::Record;
    for (int const n : numbers) (model.*row.set)(n, Record(), SidMode::Keep);
  });
  return model;
}

TEST(SchemeMapItem, GivesNumbersBelowOneBack) {
  CRenumber renumber;
  for (auto const module : {CModule::Node, CModule::Section}) {
    renumber.Index(module, {{1, 2}});
    EXPECT_EQ(renumber.MapItem(module, 0), 0);
    EXPECT_EQ(renumber.MapItem(module, -1), -1);
  }
  EXPECT_EQ(renumber.MapItem(CModule::Elem, -1), -1);
}

TEST(SchemeMapItem, GivesAnyNumberOfATableWithoutSchemeBack) {
  CZelData model;
  CRenumber const renumber(&model);
  EXPECT_EQ(renumber.MapItem(CModule::Node, 77), 77);
}

TEST(SchemeMapItem, GivesZeroForANumberThatTheSchemeLacks) {
  CRenumber renumber;
  renumber.Index(CModule::Node, {{1, 5}});
  EXPECT_EQ(renumber.MapItem(CModule::Node, 1), 5);
  EXPECT_EQ(renumber.MapItem(CModule::Node, 2), 0);
}

TEST(SchemeIsModule, IsTrueForAnEmptySchemeToo) {
  OpenRenumber renumber;
  EXPECT_FALSE(renumber.IsModule(CModule::Node));
  renumber.Index(CModule::Node, Scheme());
  EXPECT_TRUE(renumber.IsModule(CModule::Node));
}

TEST(SchemeCompress, ClosesHolesAndKeepsTheOrder) {
  CZelData model;
  Testing::NodesAt(model, {1, 4, 9});
  CRenumber renumber(&model);
  renumber.Index(CModule::Node);
  EXPECT_EQ(SchemeOf(renumber, CModule::Node), (Scheme{{1, 1}, {4, 2}, {9, 3}}));
}

TEST(SchemeCompress, CountsElementsAndLoadPanelsTogether) {
  CZelData model;
  model.SetElem(2, Testing::Element(ElementType::Beam, {1, 2}));
  model.SetLoadPanel(5, Testing::Panel({1, 2, 3}));
  model.SetElem(7, Testing::Element(ElementType::Beam, {1, 2}));
  model.SetLoadPanel(9, Testing::Panel({1, 2, 3}));  // above the highest element
  CRenumber renumber(&model);
  renumber.Index(CModule::Elem);
  EXPECT_EQ(SchemeOf(renumber, CModule::Elem), (Scheme{{2, 1}, {5, 2}, {7, 3}, {9, 4}}));
}

TEST(SchemeCompress, CountsLoadCasesThatHaveLoadsAndNoTitle) {
  CZelData model;
  model.SetLoadCaseTitle(3, Data::CLoadCaseTitle());
  Data::CNodeLoad load;
  load.SetLoadCase(7);
  model.SetNodeLoad(1, load);
  CRenumber renumber(&model);
  renumber.Index(CModule::LoadCaseTitle);
  EXPECT_EQ(SchemeOf(renumber, CModule::LoadCaseTitle), (Scheme{{3, 1}, {7, 2}}));
}

TEST(SchemeCompress, ReplacesTheSchemeThatTheTableHad) {
  CZelData model;
  Testing::NodesAt(model, {2});
  CRenumber renumber(&model);
  renumber.Index(CModule::Node, {{8, 9}});
  renumber.Index(CModule::Node);
  EXPECT_EQ(SchemeOf(renumber, CModule::Node), (Scheme{{2, 1}}));
}

TEST(SchemeCompress, TakesAnyTableWithANumber) {
  auto model = ModelWith(CModule::DesignTask, {4, 6});
  CRenumber renumber(&model);
  renumber.Index(CModule::DesignTask);
  EXPECT_EQ(SchemeOf(renumber, CModule::DesignTask), (Scheme{{4, 1}, {6, 2}}));
}

TEST(SchemeShift, LeavesNumbersBelowTheFirstAndMovesTheRest) {
  CZelData model;
  Testing::NodesAt(model, {9, 10, 15});
  CRenumber renumber(&model);
  renumber.Index(CModule::Node, 10u, 100);
  EXPECT_EQ(SchemeOf(renumber, CModule::Node), (Scheme{{9, 9}, {10, 110}, {15, 115}}));
}

TEST(SchemeShift, ComparesWithoutSign) {
  CZelData model;
  Testing::NodesAt(model, {5});
  CRenumber renumber(&model);
  renumber.Index(CModule::Node, static_cast<unsigned int>(-1), 100);  // above every number
  EXPECT_EQ(SchemeOf(renumber, CModule::Node), (Scheme{{5, 5}}));
}

TEST(SchemeShift, MovesDownByANegativeShift) {
  CZelData model;
  Testing::NodesAt(model, {10, 20});
  CRenumber renumber(&model);
  renumber.Index(CModule::Node, 15u, -5);
  EXPECT_EQ(SchemeOf(renumber, CModule::Node), (Scheme{{10, 10}, {20, 15}}));
}

TEST(SchemeShift, TakesTheNumbersOfThePlatesForMasses) {
  auto model = ModelWith(CModule::MassProp, {2, 4});
  model.SetProp2D(3, Data::CProp2D());
  CRenumber renumber(&model);
  renumber.Index(CModule::MassProp, 1u, 10);
  EXPECT_EQ(SchemeOf(renumber, CModule::MassProp), (Scheme{{3, 13}}));
}

TEST(SchemeShift, WalksElementsThenLoadPanels) {
  CZelData model;
  model.SetElem(4, Testing::Element(ElementType::Beam, {1, 2}));
  model.SetLoadPanel(2, Testing::Panel({1, 2, 3}));
  CRenumber renumber(&model);
  renumber.Index(CModule::Elem, 3u, 10);
  EXPECT_EQ(SchemeOf(renumber, CModule::Elem), (Scheme{{2, 2}, {4, 14}}));
}

TEST(SchemeShift, WalksLoadCasesThatAreUsedAndTitles) {
  CZelData model;
  model.SetLoadCaseTitle(3, Data::CLoadCaseTitle());
  Data::CNodeLoad load;
  load.SetLoadCase(7);
  model.SetNodeLoad(1, load);
  CRenumber renumber(&model);
  renumber.Index(CModule::LoadCaseTitle, 1u, 10);
  EXPECT_EQ(SchemeOf(renumber, CModule::LoadCaseTitle), (Scheme{{3, 13}, {7, 17}}));
}

TEST(SchemeShift, WalksTheTableOfEachModule) {
  // 53 goes by the plates, 110 and 130 have tests of their own.
  for (int const module :
       {20, 23, 24, 25, 30, 31, 32, 33, 34, 35, 36, 37, 38,  39,  40,  50,  52,
        54, 55, 56, 57, 58, 59, 62, 63, 64, 65, 75, 80, 100, 230, 235, 236, 274}) {
    SCOPED_TRACE(module);
    auto const id = static_cast<CModule::ModuleId>(module);
    auto model = ModelWith(id, {3, 8});
    CRenumber renumber(&model);
    renumber.Index(id, 5u, 10);
    EXPECT_EQ(SchemeOf(renumber, id), (Scheme{{3, 3}, {8, 18}}));
  }
}

TEST(SchemeShift, LeavesAnEmptySchemeForATableThatCannotBeShifted) {
  for (auto const module : {CModule::DesignTask, CModule::NodeLoad}) {
    auto model = ModelWith(module, {1});
    OpenRenumber renumber(&model);
    renumber.Index(module, 1u, 10);
    EXPECT_TRUE(renumber.IsModule(module));
    EXPECT_EQ(SchemeOf(renumber, module), Scheme());
  }
}

TEST(SchemeDirection, OrdersNodesAndKeepsTheNumbersInUse) {
  CZelData model;
  model.CreateNode(2, {3, 0, 0}, 0, Vbool6());
  model.CreateNode(5, {1, 0, 0}, 0, Vbool6());
  model.CreateNode(9, {2, 0, 0}, 0, Vbool6());
  CRenumber renumber(&model);
  renumber.Index(SelNode, {1, 0, 0});
  // along x: 5, 9, 2 become 2, 5, 9
  EXPECT_EQ(SchemeOf(renumber, CModule::Node), (Scheme{{5, 2}, {9, 5}, {2, 9}}));
}

TEST(SchemeDirection, OrdersElementsWithLoadPanelsByTheirCentres) {
  CZelData model;
  Testing::BeamAt(model, {0, 0, 8}, {0, 0, 10});               // 1, centre at 9
  Testing::PanelAt(model, {{0, 0, 3}, {1, 0, 3}, {0, 1, 3}});  // 2, centre at 3
  CRenumber renumber(&model);
  renumber.Index(SelElement, {0, 0, 1});
  EXPECT_EQ(SchemeOf(renumber, CModule::Elem), (Scheme{{1, 2}, {2, 1}}));
}

TEST(SchemeDirection, OrdersMembers) {
  CZelData model;
  Testing::NodesAt(model, {1, 2, 3, 4});
  Testing::MemberAt(model, MembType::Generic, L"3 4");
  Testing::MemberAt(model, MembType::Generic, L"1 2");
  CRenumber renumber(&model);
  renumber.Index(SelMember, {1, 0, 0});
  EXPECT_EQ(SchemeOf(renumber, CModule::Member), (Scheme{{1, 2}, {2, 1}}));
}

TEST(SchemeDirection, LeavesEqualProjectionsInTheirOrder) {
  CZelData model;
  Testing::NodesAt(model, {1, 2, 3});
  CRenumber renumber(&model);
  renumber.Index(SelNode, {0, 0, 1});
  EXPECT_EQ(SchemeOf(renumber, CModule::Node), (Scheme{{1, 1}, {2, 2}, {3, 3}}));
}

TEST(SchemeDirection, RefusesAnyOtherKind) {
  CZelData model;
  CRenumber renumber(&model);
  for (auto const kind : {SelNone, SelCase, SelOther})
    EXPECT_EQ(Testing::OutOfRangeText([&] { renumber.Index(kind, {1, 0, 0}); }), "bad entity type");
}

TEST(SchemeList, DeletesTheNodesOfAList) {
  CZelData model;
  Testing::NodesAt(model, {1, 2, 3, 4});
  CRenumber renumber(&model);
  renumber.Index(Data::CEntList(SelNode, L"2 to 3"), CModule::None);
  EXPECT_EQ(SchemeOf(renumber, CModule::Node), (Scheme{{1, 1}, {4, 4}}));
}

TEST(SchemeList, DeletesElementsAndLoadPanelsOfAList) {
  CZelData model;
  for (int const n : {1, 2}) model.SetElem(n, Testing::Element(ElementType::Beam, {1, 2}));
  for (int const n : {3, 4}) model.SetLoadPanel(n, Testing::Panel({1, 2, 3}));
  CRenumber renumber(&model);
  renumber.Index(Data::CEntList(SelElement, L"2 3"), CModule::None);
  EXPECT_EQ(SchemeOf(renumber, CModule::Elem), (Scheme{{1, 1}, {4, 4}}));
}

TEST(SchemeList, DeletesMembersOfAList) {
  CZelData model;
  for (int const n : {1, 2}) model.SetMember(n, Data::CMember());
  CRenumber renumber(&model);
  renumber.Index(Data::CEntList(SelMember, L"1"), CModule::None);
  EXPECT_EQ(SchemeOf(renumber, CModule::Member), (Scheme{{2, 2}}));
}

TEST(SchemeList, OfNothingKeepsAll) {
  CZelData model;
  Testing::NodesAt(model, {1, 7});
  CRenumber renumber(&model);
  renumber.Index(Data::CEntList(SelNode, L""), CModule::None);
  EXPECT_EQ(SchemeOf(renumber, CModule::Node), (Scheme{{1, 1}, {7, 7}}));
}

TEST(SchemeList, OfCasesIsForAllFourTablesOfCases) {
  CZelData model;
  model.SetLoadCaseTitle(1, Data::CLoadCaseTitle());
  Data::CNodeLoad load;
  load.SetLoadCase(2);
  model.SetNodeLoad(1, load);
  for (int const n : {1, 2}) {
    model.SetAnalysisTask(n, Zel::CAnalysisTask());
    model.SetAnalysisCase(n, Zel::CAnalysisCase());
    model.SetCombinationCase(n, Data::CCombinationCase());
  }
  CRenumber renumber(&model);
  renumber.Index(Data::CEntList(SelCase, L"L2 A1 C1 T2"), CModule::None);
  EXPECT_EQ(SchemeOf(renumber, CModule::LoadCaseTitle), (Scheme{{1, 1}}));
  EXPECT_EQ(SchemeOf(renumber, CModule::AnalysisCase), (Scheme{{2, 2}}));
  EXPECT_EQ(SchemeOf(renumber, CModule::CombinationCase), (Scheme{{2, 2}}));
  EXPECT_EQ(SchemeOf(renumber, CModule::AnalysisTask), (Scheme{{1, 1}}));
}

TEST(SchemeList, WithoutAKindIsForTheGivenTable) {
  for (int const module :
       {20, 23, 24, 25, 30, 31, 32, 33, 34, 35, 36, 37, 38,  39,  40,  50,  52,  53,
        54, 55, 56, 57, 58, 59, 62, 63, 64, 65, 75, 80, 100, 130, 230, 235, 236, 274}) {
    SCOPED_TRACE(module);
    auto const id = static_cast<CModule::ModuleId>(module);
    auto model = ModelWith(id, {2, 3, 6});
    CRenumber renumber(&model);
    renumber.Index(Data::CEntList(SelNone, L"3"), id);
    EXPECT_EQ(SchemeOf(renumber, id), (Scheme{{2, 2}, {6, 6}}));
  }
}

TEST(SchemeList, WithoutAKindTakesAllUpToTheHighestOfTheTable) {
  auto model = ModelWith(CModule::Section, {2, 6});
  CRenumber renumber(&model);
  renumber.Index(Data::CEntList(SelNone, L"3 to *"), CModule::Section);
  EXPECT_EQ(SchemeOf(renumber, CModule::Section), (Scheme{{2, 2}}));
  renumber.Index(Data::CEntList(SelNone, L"all"), CModule::Section);
  EXPECT_EQ(SchemeOf(renumber, CModule::Section), Scheme());
}

TEST(SchemeMap, IsTakenAsItIs) {
  CRenumber renumber;
  renumber.Index(CModule::Node, {{1, 1}, {2, 1}, {5, 9}});
  EXPECT_EQ(SchemeOf(renumber, CModule::Node), (Scheme{{1, 1}, {2, 1}, {5, 9}}));
}

TEST(SchemeModel, IsTakenAnewWithSetDataWithoutSchemes) {
  CZelData first;
  Testing::NodesAt(first, {4});
  CZelData second;
  Testing::NodesAt(second, {9});
  OpenRenumber renumber(&first);
  renumber.Index(CModule::Node);
  renumber.SetData(&second);
  EXPECT_FALSE(renumber.IsModule(CModule::Node));
  renumber.Index(CModule::Node);
  EXPECT_EQ(SchemeOf(renumber, CModule::Node), (Scheme{{9, 1}}));
}

/// A renumbering in which 1 and 9 were brought to 8, one of them by IndexItem.
OpenRenumber Merged(CZelData& model) {
  OpenRenumber renumber(&model);
  renumber.Index(CModule::Node, {{1, 6}, {9, 8}});
  renumber.IndexItem(CModule::Node, 6, 8);
  return renumber;
}

TEST(SchemeList, OfAKindKeepsWhatMergesOfThatTableFound) {
  CZelData model;
  Testing::NodesAt(model, {1, 4});
  auto renumber = Merged(model);
  // The groups that go are those of the given table, here of none.
  renumber.Index(Data::CEntList(SelNode, L""), CModule::None);
  renumber.IndexItem(CModule::Node, 8, 3);
  EXPECT_EQ(SchemeOf(renumber, CModule::Node), (Scheme{{1, 3}, {4, 4}, {9, 3}}));
}

TEST(SchemeList, ForgetsWhatMergesOfTheGivenTableFound) {
  CZelData model;
  Testing::NodesAt(model, {1, 4});
  auto renumber = Merged(model);
  renumber.Index(Data::CEntList(SelNode, L""), CModule::Node);
  renumber.IndexItem(CModule::Node, 8, 3);
  EXPECT_EQ(SchemeOf(renumber, CModule::Node), (Scheme{{1, 1}, {4, 4}}));
}

TEST(SchemeModel, IsTakenAnewWithSetDataAndKeepsWhatMergesFound) {
  CZelData first;
  auto renumber = Merged(first);
  CZelData second;
  Testing::NodesAt(second, {1, 4});
  renumber.SetData(&second);
  renumber.Index(CModule::Node);  // 1 stays, 4 becomes 2
  renumber.IndexItem(CModule::Node, 8, 3);
  EXPECT_EQ(SchemeOf(renumber, CModule::Node), (Scheme{{1, 3}, {4, 2}, {9, 3}}));
}

TEST(SchemeModel, IsNeededToBuildOne) {
  CRenumber renumber;
  EXPECT_THROW(renumber.Index(CModule::Node), std::logic_error);
}

TEST(SchemeCopy, HasSchemesFlagAndModels) {
  CZelData model;
  Testing::NodesAt(model, {4});
  model.SetElem(1, Testing::Element(ElementType::Beam, {4, 4}));
  CRenumber renumber(&model);
  renumber.Index(CModule::Node);
  renumber.SetRefOnly(true);
  CRenumber copy(renumber);
  CRenumber assigned;
  assigned = renumber;
  renumber.Index(CModule::Node, {{4, 40}});
  for (auto* other : {&copy, &assigned}) {
    EXPECT_EQ(SchemeOf(*other, CModule::Node), (Scheme{{4, 1}}));
    CZelData const before(model);
    EXPECT_TRUE(other->Go(false));  // references alone, of which a topology is none
    EXPECT_TRUE(Testing::IsUnchanged(model, before));
  }
}

TEST(SchemeSnapshot, AnswersForNumbersAsTheyWereBeforeTheRun) {
  CZelData model;
  Testing::NodesAt(model, {1, 4});
  OpenRenumber renumber(&model);
  EXPECT_EQ(renumber.HighestItem(SelNode), 4);
  renumber.Index(CModule::Node);
  ASSERT_TRUE(renumber.Go(false));
  EXPECT_EQ(model.HighestNode(), 2);
  EXPECT_EQ(renumber.HighestItem(SelNode), 4);
  OpenRenumber const copy(renumber);
  OpenRenumber assigned;
  assigned = renumber;
  EXPECT_EQ(copy.HighestItem(SelNode), 4);
  EXPECT_EQ(assigned.HighestItem(SelNode), 4);
  EXPECT_TRUE(renumber.ItemExist(SelNode, 4));
  EXPECT_FALSE(renumber.ItemExist(SelNode, 2));
  renumber.Index(CModule::Node);
  ASSERT_TRUE(renumber.Go(false));  // the next run replaces what the first had kept
  EXPECT_EQ(renumber.HighestItem(SelNode), 2);
}

}  // namespace
}  // namespace Tarvex::SchemeTest
