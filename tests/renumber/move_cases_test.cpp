// Load cases, tasks and cases on the move.
#include <gtest/gtest.h>

#include "store/model/analysis_case_table.h"
#include "store/record/beam_loads.h"
#include "store/record/body_loads.h"
#include "store/record/cases.h"
#include "store/record/face_loads.h"
#include "store/record/grid_loads.h"
#include "store/record/load_case_title.h"
#include "store/record/node_load.h"
#include "store/record/tasks.h"
#include "store/text/number_text.h"
#include "tests/renumber/renumber_support.h"

namespace Tarvex::MoveCasesTest {
namespace {

using Testing::Apply;
using Testing::Numbers;
using Testing::Scheme;

// Loads.

/// Runs a test on each load table: a name, how a load of a case with a list is added, and the load
/// cases that the table holds.
struct LoadTable {
  std::string stem;
  std::function<void(CZelData&, int loadCase)> add;
  std::function<std::vector<int>(CZelData const&)> cases;
};

std::vector<LoadTable> AllLoadTables() {
  std::vector<LoadTable> tables;
  Registry::kPositionalTables.ForEach([&](auto const& row) {
    using Record = typename std::remove_cvref_t<decltype(row)>::Record;
    if constexpr (requires(Record r) { r.SetLoadCase(1); })
      tables.push_back({std::string(row.stem),
                        [=](CZelData& model, int loadCase) {
                          Record record;
                          record.SetLoadCase(loadCase);
                          if constexpr (requires { record.SetLoadedEntities(Data::CEntList()); }) {
                            bool const nodes = record.LoadedEntities().TypeOf() == SelNode;
                            record.SetLoadedEntities(
                                Data::CEntList(nodes ? SelNode : SelElement, L"all"));
                          }
                          (model.*row.set)((model.*row.highest)() + 1, record, SidMode::Keep);
                        },
                        [=](CZelData const& model) {
                          std::vector<int> cases;
                          for (auto const& record : (model.*row.all)())
                            cases.push_back(record.LoadCase());
                          return cases;
                        }});
  });
  return tables;
}

bool IsLoadOnSolids(std::string const& stem) {
  return stem == "BodyFaceLoad" || stem == "BodyThermalLoad";
}

TEST(MoveLoads, TakesLoadsToTheirNewCasesAndDropsThoseOfDeletedOnes) {
  auto const tables = AllLoadTables();
  EXPECT_EQ(tables.size(), 17u);
  for (auto const& table : tables) {
    SCOPED_TRACE(table.stem);
    CZelData model;
    for (int const loadCase : {3, 1, 2, 1}) table.add(model, loadCase);
    EXPECT_TRUE(Apply(model, CModule::LoadCaseTitle, {{1, 3}, {3, 1}}));
    if (IsLoadOnSolids(table.stem))  // they keep their load cases
      EXPECT_EQ(table.cases(model), (std::vector<int>{3, 1, 2, 1}));
    else
      EXPECT_EQ(table.cases(model), (std::vector<int>{1, 3, 3}));
  }
}

TEST(MoveLoads, KeepsLoadsOfNoCase) {
  for (auto const& table : AllLoadTables()) {
    SCOPED_TRACE(table.stem);
    CZelData model;
    for (int const loadCase : {0, 1}) table.add(model, loadCase);
    EXPECT_TRUE(Apply(model, CModule::LoadCaseTitle, {{1, 4}}));
    EXPECT_EQ(table.cases(model)[0], 0);
  }
}

TEST(MoveLoads, TellsWhetherAnyLoadWasStored) {
  CZelData model;
  Testing::OpenRenumber renumber(&model);
  renumber.Index(CModule::LoadCaseTitle, {{1, 2}});
  EXPECT_FALSE(renumber.GoCases());
  Data::CNodeLoad load;
  load.SetLoadCase(1);
  model.SetNodeLoad(1, load);
  EXPECT_TRUE(renumber.GoCases());
  EXPECT_EQ(model.NodeLoad(1).LoadCase(), 2);
}

TEST(MoveLoadCases, CompressesCasesThatHaveLoadsAndNoTitle) {
  CZelData model;
  model.SetLoadCaseTitle(3, Data::CLoadCaseTitle());
  Data::CNodeLoad load({SelNode, L"all"}, 7, 0, Direction::X, 1, CModule::NodeLoad);
  model.SetNodeLoad(1, load);
  CRenumber renumber(&model);
  renumber.Index(CModule::LoadCaseTitle);
  EXPECT_TRUE(renumber.Go(false));
  EXPECT_EQ(Numbers(model.LoadCaseTitle()), std::vector<int>{1});
  EXPECT_EQ(model.NodeLoad(1).LoadCase(), 2);
}

// Tasks, cases and combinations.

TEST(MoveTasks, GoInAChainWithTheirCases) {
  CZelData model;
  for (int const n : {1, 2}) {
    Zel::CAnalysisTask task(L"", AnalSoln::Static);
    task.SetCases({n});
    model.SetAnalysisTask(n, task);
    model.SetAnalysisCase(n, {L"", L"L1", n});
  }
  CRenumber renumber(&model);
  renumber.Index(CModule::AnalysisTask, {{1, 2}, {2, 3}});
  renumber.Index(CModule::AnalysisCase, {{1, 2}, {2, 3}});
  EXPECT_TRUE(renumber.Go(false));
  EXPECT_EQ(Numbers(model.AnalysisTask()), (std::vector<int>{2, 3}));
  EXPECT_EQ(model.AnalysisTask(2).Cases(), std::set<int>{2});
  EXPECT_EQ(model.AnalysisTask(3).Cases(), std::set<int>{3});
  EXPECT_EQ(Numbers(model.AnalysisCases()), (std::vector<int>{2, 3}));
  EXPECT_EQ(model.AnalysisCase(2).Task(), 2);
  EXPECT_EQ(model.AnalysisCase(3).Task(), 3);
}

TEST(MoveTasks, CountAsChangedAndKeepTheirClass) {
  CZelData model;
  CZssTask task(L"mine", AnalSoln::Modal);
  task.SetStatus(TaskStatus::Done);
  model.SetAnalysisTask(1, task);
  EXPECT_TRUE(Apply(model, CModule::AnalysisTask, {{1, 4}}));
  EXPECT_EQ(model.AnalysisTask(4).Status(), TaskStatus::Changed);
  EXPECT_NE(dynamic_cast<CZssTask const*>(&model.AnalysisTask(4)), nullptr);
}

TEST(MoveTasks, LoseTheirCasesWhereNoSchemeSaysWhatBecomesOfThem) {
  CZelData model;
  Zel::CAnalysisTask task(L"", AnalSoln::Static);
  task.SetCases({1});
  model.SetAnalysisTask(1, task);
  model.SetAnalysisCase(1, {L"", L"L1", 1});
  EXPECT_TRUE(Apply(model, CModule::LoadCaseTitle, {{1, 1}}));
  EXPECT_TRUE(model.AnalysisTask(1).Cases().empty());
}

TEST(MoveCases, TakeTheNewNumberOfTheirTask) {
  CZelData model;
  model.SetAnalysisCase(1, {L"", L"L1", 5});
  CRenumber renumber(&model);
  renumber.Index(CModule::AnalysisCase, {{1, 2}});
  renumber.Index(CModule::AnalysisTask, {{5, 6}});
  EXPECT_TRUE(renumber.Go(false));
  EXPECT_EQ(model.AnalysisCase(2).Task(), 6);
}

TEST(MoveCases, LeaveTheOtherTableAlone) {
  CZelData model;
  model.SetAnalysisTask(5, Zel::CAnalysisTask());
  model.SetAnalysisCase(3, {L"", L"L1", 5});
  EXPECT_TRUE(Apply(model, CModule::AnalysisCase, {{3, 1}}));
  EXPECT_EQ(Numbers(model.AnalysisTask()), std::vector<int>{5});
  EXPECT_EQ(Numbers(model.AnalysisCases()), std::vector<int>{1});
}

/// The names that become of "Analysis Task 1", "own" and the default name of another number.
template <class Store, class NameOf>
void ExpectRenamed(CModule::ModuleId module, wchar_t const* word, Store&& store, NameOf&& nameOf) {
  CZelData model;
  auto const name = [&](int n) { return MakeNumString(word, n); };
  store(model, 1, name(1));
  store(model, 2, CString(L"own"));
  store(model, 3, name(9));
  EXPECT_TRUE(Apply(model, module, {{1, 11}, {2, 12}, {3, 13}}));
  EXPECT_EQ(nameOf(model, 11), name(11));
  EXPECT_EQ(nameOf(model, 12), L"own");
  EXPECT_EQ(nameOf(model, 13), name(9));
}

TEST(MoveCases, RenameTasksWhoseNameIsTheDefaultOfTheirNumber) {
  ExpectRenamed(
      CModule::AnalysisTask, L"Analysis Task",
      [](CZelData& model, int n, CString const& name) {
        model.SetAnalysisTask(n, Zel::CAnalysisTask(name, AnalSoln::Static));
      },
      [](CZelData const& model, int n) { return model.AnalysisTask(n).Name(); });
}

TEST(MoveCases, RenameAnalysisCasesWhoseNameIsTheDefaultOfTheirNumber) {
  ExpectRenamed(
      CModule::AnalysisCase, L"Analysis Case",
      [](CZelData& model, int n, CString const& name) {
        model.SetAnalysisCase(n, {name, L"L1", 0});
      },
      [](CZelData const& model, int n) { return model.AnalysisCase(n).Name(); });
}

TEST(MoveCases, RenameCombinationsWhoseNameIsTheDefaultOfTheirNumber) {
  ExpectRenamed(
      CModule::CombinationCase, L"Combination Case",
      [](CZelData& model, int n, CString const& name) {
        Data::CCombinationCase combination;
        combination.SetName(name);
        model.SetCombinationCase(n, combination);
      },
      [](CZelData const& model, int n) { return model.CombinationCase(n).Name(); });
}

TEST(MoveCases, GoByTheDefaultNamesOfTheModel) {
  CZelData model;
  auto defaults = model.Defaults();
  defaults.SetAnalysisTaskName(L"Task no. #/#");
  model.SetDefaults(defaults);
  model.SetAnalysisTask(3, Zel::CAnalysisTask(L"Task no. 3/3", AnalSoln::Static));
  EXPECT_TRUE(Apply(model, CModule::AnalysisTask, {{3, 5}}));
  EXPECT_EQ(model.AnalysisTask(5).Name(), L"Task no. 5/5");
}

TEST(MoveCases, RewriteDescriptionsUnlessToldToKeepThem) {
  for (bool const keep : {false, true}) {
    CZelData model;
    model.SetAnalysisCase(1, {L"", L"L1 + L2", 0});
    Data::CCombinationCase combination;
    combination.SetDescription(Data::CCombCaseDesc(L"L1"));
    model.SetCombinationCase(1, combination);
    EXPECT_TRUE(Apply(model, CModule::LoadCaseTitle, {{1, 4}}, keep));
    EXPECT_EQ(model.AnalysisCase(1).Description(), keep ? L"L1 + L2" : L"L4 + L<deleted case>");
    EXPECT_EQ(model.CombinationCase(1).Description().Text(), L"L4");
  }
}

}  // namespace
}  // namespace Tarvex::MoveCasesTest
