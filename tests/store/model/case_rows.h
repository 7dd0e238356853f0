// The tables of load cases, stages, tasks and cases, written out by hand: the registry must have
// the same.
#pragma once

#include "store/model/analysis_case_table.h"
#include "store/record/load_case_title.h"
#include "store/record/results.h"
#include "store/record/row_pack.h"
#include "store/record/stages.h"
#include "tests/store/model/table_row.h"

namespace Tarvex::RegistryTest {

/// Load cases, stages, tasks and cases.
inline auto CaseRows() {
  using Data::CEntList;
  using Zel::CAnalysisCase;
  using Zel::TaskSlot;
  return MakeRows(
      TARVEX_ROW_OF(LoadCaseTitle, 130, Data::CLoadCaseTitle, (L"a", CaseType::Wind),
                    (L"b", CaseType::Snow)),
      TARVEX_ROW_OF(AnalStage, 230, Data::CAnalStage, (L"a", CEntList(SelElement, L"1")),
                    (L"b", CEntList(SelElement, L"2"))),
      TARVEX_ROW_OF(AnalStageProp, -1, Data::CAnalStageProp, (1, PropertyType::Section, 2, 3),
                    (1, PropertyType::Spring, 2, 3)),
      TARVEX_ROW_OF(AnalStageMat, -1, Data::CAnalStageMat, (1, 2, 3), (1, 2, 4)),
      Row<TaskSlot>{
          "AnalysisTask", 235, WithSid(TaskSlot(CZssTask(L"a", AnalSoln::Modal))),
          TaskSlot(CEnvelopeTask(L"b")),
          [](CZelData const& m, int n) { return m.AnalysisTaskExist(n); },
          [](CZelData const& m, int n) -> TaskSlot const& { return m.AnalysisTaskSlot(n); },
          [](CZelData const& m) -> WholeTable<TaskSlot> const& { return m.AnalysisTask(); },
          [](CZelData const& m) { return m.HighestAnalysisTask(); },
          [](CZelData& m, int n, TaskSlot const& r, SidMode s) {
            m.SetAnalysisTask(n, r.Get(), s);
          },
          [](CZelData& m, int first, int count) { m.BlankAnalysisTask(first, count); }},
      Row<CAnalysisCase>{
          "AnalysisCase", 274, WithSid(CAnalysisCase(L"a", L"L1", 1)), CAnalysisCase(L"b", L"", 0),
          [](CZelData const& m, int n) { return m.AnalysisCaseExist(n); },
          [](CZelData const& m, int n) -> CAnalysisCase const& { return m.AnalysisCase(n); },
          [](CZelData const& m) -> WholeTable<CAnalysisCase> const& { return m.AnalysisCases(); },
          [](CZelData const& m) { return m.HighestAnalysisCase(); },
          [](CZelData& m, int n, CAnalysisCase const& r, SidMode s) { m.SetAnalysisCase(n, r, s); },
          [](CZelData& m, int first, int count) { m.BlankAnalysisCase(first, count); }},
      TARVEX_ROW_OF(CombinationCase, 236, Data::CCombinationCase, (true), (false)),
      TARVEX_ROW_OF(CaseDescription, -1, Data::CCaseDescription, (L"a"), (L"b")),
      TARVEX_ROW_OF(DesignTask, 239, CDesignTask, (L"a"), (L"b")));
}

/// Results.
inline auto ResultRows() {
  using Data::CCaseResult;
  using Data::CElemResult;
  return MakeRows(TARVEX_ROW_OF(ElemResult, -1, CElemResult, (), ()),
                  TARVEX_ROW_OF(CaseResult, -1, CCaseResult, (SCaseRef(CaseOp::Analysis, 1)),
                                (SCaseRef(CaseOp::Combination, 2))));
}

}  // namespace Tarvex::RegistryTest
