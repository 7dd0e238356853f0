// Load cases, links of cases to tasks, and the whole table of analysis cases. The plain operations
// of these tables are held by registry_test.cpp.
#include "store/model/case_tables.h"

#include <gtest/gtest.h>

#include "store/model/analysis_case_table.h"
#include "store/model/list_expansion.h"
#include "store/model/undo_step.h"
#include "store/model/zel_data.h"
#include "store/record/beam_loads.h"
#include "store/record/body_loads.h"
#include "store/record/face_loads.h"
#include "store/record/grid_loads.h"
#include "store/record/load_case_title.h"
#include "store/record/node_load.h"
#include "store/record/stages.h"
#include "store/record/task_slot.h"
#include "tests/support/random_model.h"

namespace Tarvex::CaseTablesTest {
namespace {

using Testing::ForEachRandomModel;
using Testing::Random;

Data::CNodeLoad NodeLoadOf(int loadCase) {
  Data::CNodeLoad load;
  load.SetLoadCase(loadCase);
  return load;
}

template <class Load>
void PutLoad(CZelData& model, void (CZelData::*set)(int, Load const&, SidMode), int loadCase) {
  Load load;
  load.SetLoadCase(loadCase);
  (model.*set)(1, load, SidMode::Keep);
}

struct LoadRow {
  char const* table;
  void (*put)(CZelData&, int loadCase);
  void (*remove)(CZelData&);
};

using M = CZelData;

/// Each table of loads.
LoadRow const kLoads[] = {
    {"NodeLoad", [](M& m, int c) { PutLoad<Data::CNodeLoad>(m, &M::SetNodeLoad, c); },
     [](M& m) { m.DeleteNodeLoad(1, 1); }},
    {"AppliedDisplacement",
     [](M& m, int c) { PutLoad<Data::CNodeLoad>(m, &M::SetAppliedDisplacement, c); },
     [](M& m) { m.DeleteAppliedDisplacement(1, 1); }},
    {"Settlement", [](M& m, int c) { PutLoad<Data::CNodeLoad>(m, &M::SetSettlement, c); },
     [](M& m) { m.DeleteSettlement(1, 1); }},
    {"BeamLoad", [](M& m, int c) { PutLoad<Data::CBeamLoad>(m, &M::SetBeamLoad, c); },
     [](M& m) { m.DeleteBeamLoad(1, 1); }},
    {"AxialLoad", [](M& m, int c) { PutLoad<Data::CAxialLoad>(m, &M::SetAxialLoad, c); },
     [](M& m) { m.DeleteAxialLoad(1, 1); }},
    {"BeamDist", [](M& m, int c) { PutLoad<Data::CBeamDist>(m, &M::SetBeamDist, c); },
     [](M& m) { m.DeleteBeamDist(1, 1); }},
    {"BeamThermalLoad",
     [](M& m, int c) { PutLoad<Data::CBeamThermalLoad>(m, &M::SetBeamThermalLoad, c); },
     [](M& m) { m.DeleteBeamThermalLoad(1, 1); }},
    {"FaceLoad", [](M& m, int c) { PutLoad<Data::CFaceLoad>(m, &M::SetFaceLoad, c); },
     [](M& m) { m.DeleteFaceLoad(1, 1); }},
    {"EdgeLoad", [](M& m, int c) { PutLoad<Data::CEdgeLoad>(m, &M::SetEdgeLoad, c); },
     [](M& m) { m.DeleteEdgeLoad(1, 1); }},
    {"InPlaneLoad", [](M& m, int c) { PutLoad<Data::CInPlaneLoad>(m, &M::SetInPlaneLoad, c); },
     [](M& m) { m.DeleteInPlaneLoad(1, 1); }},
    {"FaceThermalLoad",
     [](M& m, int c) { PutLoad<Data::CFaceThermalLoad>(m, &M::SetFaceThermalLoad, c); },
     [](M& m) { m.DeleteFaceThermalLoad(1, 1); }},
    {"BodyFaceLoad", [](M& m, int c) { PutLoad<Data::CBodyFaceLoad>(m, &M::SetBodyFaceLoad, c); },
     [](M& m) { m.DeleteBodyFaceLoad(1, 1); }},
    {"BodyThermalLoad",
     [](M& m, int c) { PutLoad<Data::CBodyThermalLoad>(m, &M::SetBodyThermalLoad, c); },
     [](M& m) { m.DeleteBodyThermalLoad(1, 1); }},
    {"GridPointLoad",
     [](M& m, int c) { PutLoad<Data::CGridPointLoad>(m, &M::SetGridPointLoad, c); },
     [](M& m) { m.DeleteGridPointLoad(1, 1); }},
    {"GridLineLoad", [](M& m, int c) { PutLoad<Data::CGridLineLoad>(m, &M::SetGridLineLoad, c); },
     [](M& m) { m.DeleteGridLineLoad(1, 1); }},
    {"GridAreaLoad", [](M& m, int c) { PutLoad<Data::CGridAreaLoad>(m, &M::SetGridAreaLoad, c); },
     [](M& m) { m.DeleteGridAreaLoad(1, 1); }},
    {"GravityLoad", [](M& m, int c) { PutLoad<Data::CGravityLoad>(m, &M::SetGravityLoad, c); },
     [](M& m) { m.DeleteGravityLoad(1, 1); }},
};

TEST(LoadCaseExist, IsTrueForTheLoadCaseOfALoadOfAnyTable) {
  for (auto const& row : kLoads) {
    SCOPED_TRACE(row.table);
    CZelData model;
    row.put(model, 7);
    EXPECT_TRUE(model.LoadCaseExist(7));
    EXPECT_FALSE(model.LoadCaseTitleExist(7));
    EXPECT_EQ(model.HighestLoadCase(), 7);
    row.put(model, 5);  // follows the change, now that it has been asked
    EXPECT_FALSE(model.LoadCaseExist(7));
    EXPECT_TRUE(model.LoadCaseExist(5));
    row.remove(model);
    EXPECT_FALSE(model.LoadCaseExist(5));
    EXPECT_EQ(model.HighestLoadCase(), 0);
  }
}

TEST(LoadCaseExist, IsTrueForATitleAlone) {
  CZelData model;
  model.SetLoadCaseTitle(9, Data::CLoadCaseTitle(L"a", CaseType::Snow));
  EXPECT_TRUE(model.LoadCaseExist(9));
  EXPECT_EQ(model.HighestLoadCase(), 9);
  model.BlankLoadCaseTitle(9, 1);
  EXPECT_FALSE(model.LoadCaseExist(9));
  EXPECT_FALSE(model.LoadCaseExist(0));
  EXPECT_FALSE(model.LoadCaseExist(-1));
}

TEST(LoadCaseExist, TakesALoadWithoutLoadCaseForNone) {
  CZelData model;
  model.SetNodeLoad(1, NodeLoadOf(0));
  model.SetNodeLoad(2, NodeLoadOf(-3));
  EXPECT_FALSE(model.LoadCaseExist(0));
  EXPECT_FALSE(model.LoadCaseExist(-3));
  EXPECT_EQ(model.HighestLoadCase(), 0);
}

TEST(HighestLoadCase, IsThatOfLoadsAndTitles) {
  CZelData model;
  model.SetNodeLoad(1, NodeLoadOf(4));
  model.SetLoadCaseTitle(2, Data::CLoadCaseTitle());
  EXPECT_EQ(model.HighestLoadCase(), 4);
  model.SetLoadCaseTitle(11, Data::CLoadCaseTitle());
  EXPECT_EQ(model.HighestLoadCase(), 11);
  EXPECT_EQ(model.HighestLoadCaseTitle(), 11);
}

TEST(LoadCaseTypes, HasEachLoadCaseInUseWithTheTypeOfItsTitle) {
  CZelData model;
  EXPECT_TRUE(model.LoadCaseTypes().empty());
  model.SetNodeLoad(1, NodeLoadOf(4));
  model.SetNodeLoad(2, NodeLoadOf(2));
  model.SetLoadCaseTitle(2, Data::CLoadCaseTitle(L"", CaseType::Wind));
  model.SetLoadCaseTitle(6, Data::CLoadCaseTitle(L"", CaseType::Snow));
  EXPECT_EQ(model.LoadCaseTypes(),
            (std::map<int, CaseType>{
                {2, CaseType::Wind}, {4, CaseType::Undefined}, {6, CaseType::Snow}}));
}

TEST(LoadCaseModule, FollowsLoadsAndTitles) {
  CZelData model;
  model.SetNodeLoad(1, NodeLoadOf(4));
  EXPECT_TRUE(model.RecordExist(CModule::LoadCaseTitle, 4));
  EXPECT_FALSE(model.RecordExist(CModule::LoadCaseTitle, 3));
  EXPECT_EQ(model.HighestRecord(CModule::LoadCaseTitle), 4);
  model.SetLoadCaseTitle(3, Data::CLoadCaseTitle());
  model.RemoveModule(CModule::LoadCaseTitle);
  EXPECT_FALSE(model.LoadCaseTitleExist(3));
  EXPECT_TRUE(model.LoadCaseExist(4));  // its load stays
}

TEST(LoadCaseExist, FollowsDeletionsInAllTheirForms) {
  CZelData model;
  for (int i = 1; i <= 6; ++i) model.SetNodeLoad(i, NodeLoadOf(i));
  EXPECT_TRUE(model.LoadCaseExist(3));
  model.DeleteNodeLoad(2, 2);  // 2 and 3; the rest closes up
  EXPECT_FALSE(model.LoadCaseExist(2));
  EXPECT_FALSE(model.LoadCaseExist(3));
  EXPECT_TRUE(model.LoadCaseExist(4));
  model.DeleteNodeLoad(4, 100);  // the last of the four
  EXPECT_FALSE(model.LoadCaseExist(6));
  EXPECT_TRUE(model.LoadCaseExist(5));
  model.DeleteNodeLoad(1, 0);
  model.DeleteNodeLoad(-1, 1);
  EXPECT_TRUE(model.LoadCaseExist(1));
  model.DeleteNodeLoad(0, 1);
  EXPECT_EQ(model.HighestLoadCase(), 0);
}

TEST(LoadCaseExist, FollowsUndoCopiesAndRefusedStores) {
  CZelData model;
  model.SetNodeLoad(1, NodeLoadOf(4));
  EXPECT_TRUE(model.LoadCaseExist(4));
  {
    CUndoStep step(model, false);
    model.SetNodeLoad(1, NodeLoadOf(5));
    EXPECT_TRUE(model.LoadCaseExist(5));
  }
  EXPECT_FALSE(model.LoadCaseExist(5));
  EXPECT_TRUE(model.LoadCaseExist(4));
  CZelData copy(model);
  copy.SetNodeLoad(1, NodeLoadOf(6));
  EXPECT_TRUE(copy.LoadCaseExist(6));
  EXPECT_FALSE(model.LoadCaseExist(6));
  EXPECT_THROW(model.SetNodeLoad(9, NodeLoadOf(8)), std::out_of_range);
  EXPECT_FALSE(model.LoadCaseExist(8));
}

TEST(LoadCaseProperty, IsThatOfAPlainWalkThroughAnyChanges) {
  ForEachRandomModel(30, [](CZelData& model, Random& random) {
    for (int change = 0; change < 40; ++change) {
      int const at = random.Int(1, model.HighestNodeLoad() + 1);
      if (random.Percent(60))
        model.SetNodeLoad(at, NodeLoadOf(random.Int(0, 9)));
      else
        model.DeleteNodeLoad(at, random.Int(0, 3));
      CZelData const fresh(model);  // counts anew
      for (int n = 0; n <= 10; ++n) EXPECT_EQ(model.LoadCaseExist(n), fresh.LoadCaseExist(n));
      EXPECT_EQ(model.HighestLoadCase(), fresh.HighestLoadCase());
    }
  });
}

TEST(AnalysisCaseTable, IsKeyedByReferencesInAscendingNumber) {
  CZelData model;
  for (int const n : {70, 3, 12}) model.SetAnalysisCase(n, Zel::CAnalysisCase(L"", L"", 0));
  std::vector<int> numbers;
  for (auto const& [ref, record] : model.AnalysisCase()) {
    EXPECT_EQ(ref, SCaseRef(CaseOp::Analysis, ref.Case()));
    EXPECT_EQ(&record, &model.AnalysisCase(ref.Case()));
    numbers.push_back(ref.Case());
  }
  EXPECT_EQ(numbers, (std::vector{3, 12, 70}));
  auto const table = model.AnalysisCase();
  EXPECT_EQ(table.size(), 3u);
  EXPECT_EQ((*table.find(SCaseRef(CaseOp::Analysis, 12))).first.Case(), 12);
  EXPECT_TRUE(table.find(SCaseRef(CaseOp::Analysis, 13)) == table.end());
  EXPECT_TRUE(table.find(SCaseRef(CaseOp::Load, 12)) == table.end());
}

TEST(SetAnalysisCase, StoresTheLinkAndSetsNothingInTheTask) {
  CZelData model;
  EXPECT_EQ(model.SetAnalysisTask(5, CZssTask()), 5);
  model.SetAnalysisCase(1, Zel::CAnalysisCase(L"a", L"L1", 5));
  EXPECT_EQ(model.AnalysisCase(1).Task(), 5);
  EXPECT_TRUE(model.AnalysisTask(5).Cases().empty());
  EXPECT_EQ(model.SetDesignTask(2, CDesignTask(L"d")), 2);
  EXPECT_EQ(model.DesignTask(2).Name(), L"d");
}

TEST(SetAnalysisCaseData, LeavesTheLinkAsItWas) {
  CZelData model;
  model.SetAnalysisCase(1, Zel::CAnalysisCase(L"a", L"L1", 5));
  model.SetAnalysisCaseData(1, Zel::CAnalysisCase(L"b", L"L2", 6));
  EXPECT_EQ(model.AnalysisCase(1).Name(), L"b");
  EXPECT_EQ(model.AnalysisCase(1).Description(), L"L2");
  EXPECT_EQ(model.AnalysisCase(1).Task(), 5);
  model.SetAnalysisCaseData(2, Zel::CAnalysisCase(L"c", L"L3", 6));  // a new one has its own
  EXPECT_EQ(model.AnalysisCase(2).Task(), 6);
}

TEST(BlankAnalysisTask, TouchesNoCaseAndBlankAnalysisCaseNoTask) {
  CZelData model;
  CZssTask task;
  task.SetCases({1});
  model.SetAnalysisTask(5, task);
  model.SetAnalysisCase(1, Zel::CAnalysisCase(L"a", L"L1", 5));
  auto other = model;
  model.BlankAnalysisTask(5, 1);
  EXPECT_EQ(model.AnalysisCase(1).Task(), 5);
  other.BlankAnalysisCase(1, 1);
  EXPECT_EQ(other.AnalysisTask(5).Cases(), std::set{1});
}

TEST(AnalysisCaseStage, IsThatOfTheTaskOfTheCase) {
  CZelData model;
  CZssTask task;
  task.SetStage(3);
  model.SetAnalysisTask(5, task);
  model.SetAnalysisCase(1, Zel::CAnalysisCase(L"a", L"L1", 5));
  model.SetAnalysisCase(2, Zel::CAnalysisCase(L"b", L"L1", 6));
  EXPECT_EQ(model.AnalysisCaseStage(1), 3);
  EXPECT_EQ(model.AnalysisCaseStage(2), 0);  // its task is not there
  EXPECT_EQ(model.AnalysisCaseStage(9), 0);
}

TEST(AnalysisTask, IsGivenAsTheClassThatWasStored) {
  CZelData model;
  CZdSpecTask task;
  task.SetSource(7);
  model.SetAnalysisTask(1, task);
  auto const clone = model.AnalysisTask(1).Clone();
  auto* const spectrum = dynamic_cast<CZdSpecTask*>(clone.get());
  ASSERT_NE(spectrum, nullptr);
  EXPECT_EQ(spectrum->Source(), 7);
  spectrum->SetSource(8);
  EXPECT_EQ(dynamic_cast<CZdSpecTask const&>(model.AnalysisTask(1)).Source(), 7);
  model.SetAnalysisTask(1, *clone);
  EXPECT_EQ(dynamic_cast<CZdSpecTask const&>(model.AnalysisTask(1)).Source(), 8);
}

TEST(CaseLists, HoldTheCasesThatTheyNameInTheOrderOfTheirKinds) {
  CZelData model;
  model.SetLoadCaseTitle(2, Data::CLoadCaseTitle());
  model.SetNodeLoad(1, NodeLoadOf(5));
  model.SetAnalysisCase(3, Zel::CAnalysisCase());
  model.SetCombinationCase(4, Data::CCombinationCase());
  model.SetAnalysisTask(1, CZssTask());
  auto const cases = [&](wchar_t const* text) {
    Data::CEntList const list(SelCase, CString(text));
    std::vector<SCaseRef> found;
    int const count = Util::NumItem(list, model);
    for (int i = 0; i < count; ++i) found.push_back(list.Case(i));
    return found;
  };
  using enum CaseOp;
  using Cases = std::vector<SCaseRef>;
  EXPECT_EQ(cases(L"all"),
            (Cases{{Load, 2}, {Load, 5}, {Analysis, 3}, {Combination, 4}, {Task, 1}}));
  EXPECT_EQ(cases(L"all not L5"), (Cases{{Load, 2}, {Analysis, 3}, {Combination, 4}, {Task, 1}}));
  EXPECT_EQ(cases(L"C4 L1 to L3"),
            (Cases{{Load, 1}, {Load, 2}, {Load, 3}, {Combination, 4}}));  // as they are written
  model.DeleteNodeLoad(1, 1);
  model.BlankAnalysisTask(1, 1);
  EXPECT_EQ(cases(L"all"), (Cases{{Load, 2}, {Analysis, 3}, {Combination, 4}}));
}

TEST(SetAnalStageSid, ReplacesTheIdentifierOfAStoredStage) {
  CZelData model;
  model.SetAnalStage(2, Data::CAnalStage());
  model.SetAnalStageSid(2, L"id");
  EXPECT_EQ(model.AnalStage(2).Sid(), L"id");
  EXPECT_THROW(model.SetAnalStageSid(3, L"id"), std::out_of_range);
}

}  // namespace
}  // namespace Tarvex::CaseTablesTest
