#include "store/model/case_tables.h"

#include "store/model/analysis_case_table.h"
#include "store/model/model_core.h"
#include "store/model/table_ops.h"

namespace Tarvex {

// The operations of a table but storing: its stem, its record and its place in the state.
#define TARVEX_DEFINE_READING(Stem, Record, table)                                  \
  bool CaseTables::Stem##Exist(int n) const { return m_core.state.table.Exist(n); } \
  Record const& CaseTables::Stem(int n) const {                                     \
    return TableOps::Get(m_core.state.table, #Stem, n);                             \
  }                                                                                 \
  int CaseTables::Highest##Stem() const { return m_core.state.table.Highest(); }    \
  void CaseTables::Blank##Stem(int first, int count) { m_core.state.table.Remove(first, count); }

#define TARVEX_DEFINE_WHOLE(Name, Record, table)                               \
  tarvex_unordered_map<unsigned int, Record> const& CaseTables::Name() const { \
    return m_core.state.table;                                                 \
  }

#define TARVEX_DEFINE_STORING(Name, Record, table)                  \
  void CaseTables::Name(int n, Record const& record, SidMode sid) { \
    TableOps::Store(m_core.state.table, n, record, sid);            \
  }

#define TARVEX_DEFINE_TABLE(Stem, Record, table) \
  TARVEX_DEFINE_READING(Stem, Record, table)     \
  TARVEX_DEFINE_WHOLE(Stem, Record, table)       \
  TARVEX_DEFINE_STORING(Set##Stem, Record, table)

TARVEX_DEFINE_TABLE(LoadCaseTitle, Data::CLoadCaseTitle, loadCaseTitle)
TARVEX_DEFINE_TABLE(AnalStage, Data::CAnalStage, analStage)
TARVEX_DEFINE_TABLE(AnalStageProp, Data::CAnalStageProp, analStageProp)
TARVEX_DEFINE_TABLE(AnalStageMat, Data::CAnalStageMat, analStageMat)
TARVEX_DEFINE_TABLE(CombinationCase, Data::CCombinationCase, combinationCase)
TARVEX_DEFINE_TABLE(CaseDescription, Data::CCaseDescription, caseDescription)
TARVEX_DEFINE_READING(DesignTask, CDesignTask, designTask)
TARVEX_DEFINE_WHOLE(DesignTask, CDesignTask, designTask)
TARVEX_DEFINE_STORING(StoreDesignTask, CDesignTask, designTask)
TARVEX_DEFINE_READING(AnalysisCase, Zel::CAnalysisCase, analysisCase)
TARVEX_DEFINE_WHOLE(AnalysisCases, Zel::CAnalysisCase, analysisCase)
TARVEX_DEFINE_STORING(SetAnalysisCase, Zel::CAnalysisCase, analysisCase)

#undef TARVEX_DEFINE_TABLE
#undef TARVEX_DEFINE_STORING
#undef TARVEX_DEFINE_WHOLE
#undef TARVEX_DEFINE_READING

bool CaseTables::LoadCaseExist(int n) const {
  return LoadCaseTitleExist(n) || m_core.loadCases.Counts(m_core.state).contains(n);
}

int CaseTables::HighestLoadCase() const {
  auto const& counts = m_core.loadCases.Counts(m_core.state);
  int const loaded = counts.empty() ? 0 : counts.rbegin()->first;
  return std::max(loaded, HighestLoadCaseTitle());
}

std::map<int, CaseType> CaseTables::LoadCaseTypes() const {
  std::map<int, CaseType> types;
  for (auto const& [n, title] : LoadCaseTitle()) types[static_cast<int>(n)] = title.TypeOf();
  for (auto const& [n, count] : m_core.loadCases.Counts(m_core.state))
    types.try_emplace(n, CaseType::Undefined);
  return types;
}

void CaseTables::SetAnalStageSid(int n, CString const& sid) {
  TableOps::Edit(m_core.state.analStage, "AnalStage", n).SetSid(sid);
}

int CaseTables::SetDesignTask(int n, CDesignTask const& task, SidMode sid) {
  StoreDesignTask(n, task, sid);
  return n;
}

AnalysisCaseTable CaseTables::AnalysisCase() const { return AnalysisCaseTable(AnalysisCases()); }

void CaseTables::SetAnalysisCaseData(int n, Zel::CAnalysisCase const& record, SidMode sid) {
  auto data = record;
  if (AnalysisCaseExist(n)) data.SetTask(AnalysisCase(n).Task());
  SetAnalysisCase(n, data, sid);
}

int CaseTables::AnalysisCaseStage(int n) const {
  if (!AnalysisCaseExist(n)) return 0;
  int const task = AnalysisCase(n).Task();
  return AnalysisTaskExist(task) ? AnalysisTask(task).Stage() : 0;
}

bool CaseTables::AnalysisTaskExist(int n) const { return m_core.state.analysisTask.Exist(n); }

Zel::CAnalysisTask const& CaseTables::AnalysisTask(int n) const {
  return AnalysisTaskSlot(n).Get();
}

tarvex_unordered_map<unsigned int, Zel::TaskSlot> const& CaseTables::AnalysisTask() const {
  return m_core.state.analysisTask;
}

int CaseTables::HighestAnalysisTask() const { return m_core.state.analysisTask.Highest(); }

int CaseTables::SetAnalysisTask(int n, Zel::CAnalysisTask const& task, SidMode sid) {
  m_core.state.analysisTask.Set(n, Zel::TaskSlot(task, n, sid == SidMode::Drop));
  return n;
}

void CaseTables::BlankAnalysisTask(int first, int count) {
  m_core.state.analysisTask.Remove(first, count);
}

Zel::TaskSlot const& CaseTables::AnalysisTaskSlot(int n) const {
  return TableOps::Get(m_core.state.analysisTask, "AnalysisTask", n);
}

void CaseTables::SetAnalysisTaskSlot(int n, Zel::TaskSlot const& slot, SidMode sid) {
  SetAnalysisTask(n, slot.Get(), sid);
}

}  // namespace Tarvex
