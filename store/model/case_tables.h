// Tables of load cases, stages, tasks and cases. The operations are those of
// store/model/entity_tables.h.
#pragma once

#include <map>
#include <memory>

#include "store/export.h"
#include "store/model/query_types.h"
#include "store/record/case_type.h"
#include "store/table/paged_table.h"

namespace Tarvex {

class AnalysisCaseTable;
class CDesignTask;
class CString;
class ModelCore;
namespace Data {
class CAnalStage;
class CAnalStageMat;
class CAnalStageProp;
class CCaseDescription;
class CCombinationCase;
class CLoadCaseTitle;
}  // namespace Data
namespace Zel {
class CAnalysisCase;
class CAnalysisTask;
class TaskSlot;
}  // namespace Zel

/// Load cases, stages, tasks and cases of a model. Blanking a record changes no other: tasks and
/// cases keep the numbers that they name.
class TARVEX_STORE_EXPORT CaseTables {
 public:
  // Titles of load cases (130).
  bool LoadCaseTitleExist(int n) const;
  Data::CLoadCaseTitle const& LoadCaseTitle(int n) const;
  tarvex_unordered_map<unsigned int, Data::CLoadCaseTitle> const& LoadCaseTitle() const;
  int HighestLoadCaseTitle() const;
  void SetLoadCaseTitle(int n, Data::CLoadCaseTitle const& record, SidMode sid = SidMode::Keep);
  void BlankLoadCaseTitle(int first, int count);
  /// Whether any load or title uses the number. The first question about load cases counts the
  /// loads; later ones cost the logarithm of the number of load cases.
  bool LoadCaseExist(int n) const;
  /// The highest of those numbers, 0 when there is none.
  int HighestLoadCase() const;
  /// The load cases in use with the type of their title, undefined where they have none.
  std::map<int, CaseType> LoadCaseTypes() const;

  // Stages (230), and what properties and materials are in them (no module number).
  bool AnalStageExist(int n) const;
  Data::CAnalStage const& AnalStage(int n) const;
  tarvex_unordered_map<unsigned int, Data::CAnalStage> const& AnalStage() const;
  int HighestAnalStage() const;
  void SetAnalStage(int n, Data::CAnalStage const& record, SidMode sid = SidMode::Keep);
  /// Replaces the text identifier of an existing stage.
  void SetAnalStageSid(int n, CString const& sid);
  void BlankAnalStage(int first, int count);
  bool AnalStagePropExist(int n) const;
  Data::CAnalStageProp const& AnalStageProp(int n) const;
  tarvex_unordered_map<unsigned int, Data::CAnalStageProp> const& AnalStageProp() const;
  int HighestAnalStageProp() const;
  void SetAnalStageProp(int n, Data::CAnalStageProp const& record, SidMode sid = SidMode::Keep);
  void BlankAnalStageProp(int first, int count);
  bool AnalStageMatExist(int n) const;
  Data::CAnalStageMat const& AnalStageMat(int n) const;
  tarvex_unordered_map<unsigned int, Data::CAnalStageMat> const& AnalStageMat() const;
  int HighestAnalStageMat() const;
  void SetAnalStageMat(int n, Data::CAnalStageMat const& record, SidMode sid = SidMode::Keep);
  void BlankAnalStageMat(int first, int count);

  // Analysis tasks (235), of the class that they were stored as.
  bool AnalysisTaskExist(int n) const;
  Zel::CAnalysisTask const& AnalysisTask(int n) const;
  tarvex_unordered_map<unsigned int, Zel::TaskSlot> const& AnalysisTask() const;
  int HighestAnalysisTask() const;
  /// Stores a copy. @return n
  int SetAnalysisTask(int n, Zel::CAnalysisTask const& task, SidMode sid = SidMode::Keep);
  void BlankAnalysisTask(int first, int count);
  /// The task as the table holds it.
  Zel::TaskSlot const& AnalysisTaskSlot(int n) const;
  void SetAnalysisTaskSlot(int n, Zel::TaskSlot const& slot, SidMode sid = SidMode::Keep);

  // Combinations (236).
  bool CombinationCaseExist(int n) const;
  Data::CCombinationCase const& CombinationCase(int n) const;
  tarvex_unordered_map<unsigned int, Data::CCombinationCase> const& CombinationCase() const;
  int HighestCombinationCase() const;
  void SetCombinationCase(int n, Data::CCombinationCase const& record, SidMode sid = SidMode::Keep);
  void BlankCombinationCase(int first, int count);

  // Design tasks (239).
  bool DesignTaskExist(int n) const;
  CDesignTask const& DesignTask(int n) const;
  tarvex_unordered_map<unsigned int, CDesignTask> const& DesignTask() const;
  int HighestDesignTask() const;
  /// @return n
  int SetDesignTask(int n, CDesignTask const& task, SidMode sid = SidMode::Keep);
  void BlankDesignTask(int first, int count);
  /// The same without a result.
  void StoreDesignTask(int n, CDesignTask const& task, SidMode sid = SidMode::Keep);

  // Analysis cases (274).
  bool AnalysisCaseExist(int n) const;
  Zel::CAnalysisCase const& AnalysisCase(int n) const;
  /// A view of all, keyed by their references (store/model/analysis_case_table.h).
  AnalysisCaseTable AnalysisCase() const;
  int HighestAnalysisCase() const;
  /// Stores a copy, its link to a task too. Nothing is set in the task.
  void SetAnalysisCase(int n, Zel::CAnalysisCase const& record, SidMode sid = SidMode::Keep);
  /// Stores a copy, but with the link to a task that the stored case has.
  void SetAnalysisCaseData(int n, Zel::CAnalysisCase const& record, SidMode sid = SidMode::Keep);
  void BlankAnalysisCase(int first, int count);
  /// The stage of the task of a case, 0 where there is none.
  int AnalysisCaseStage(int n) const;
  /// All of them by number.
  tarvex_unordered_map<unsigned int, Zel::CAnalysisCase> const& AnalysisCases() const;

  // Descriptions of cases (no module number).
  bool CaseDescriptionExist(int n) const;
  Data::CCaseDescription const& CaseDescription(int n) const;
  tarvex_unordered_map<unsigned int, Data::CCaseDescription> const& CaseDescription() const;
  int HighestCaseDescription() const;
  void SetCaseDescription(int n, Data::CCaseDescription const& record, SidMode sid = SidMode::Keep);
  void BlankCaseDescription(int first, int count);

 protected:
  explicit CaseTables(ModelCore& core) : m_core(core) {}
  ~CaseTables() = default;
  CaseTables(CaseTables const&) = delete;
  CaseTables& operator=(CaseTables const&) = delete;

 private:
  ModelCore& m_core;
};

}  // namespace Tarvex
