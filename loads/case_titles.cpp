#include "loads/case_titles.h"

#include <unordered_map>

#include "loads/source_slots.h"
#include "store/model/zel_data.h"
#include "store/record/cases.h"
#include "store/record/tasks.h"

namespace Tarvex {
namespace {

bool IsPermanentType(CaseType type) {
  int const number = static_cast<int>(type);
  return number >= 10 && number <= 19;
}

/// Whether two titles are of one action.
bool IsSameAction(Data::CLoadCaseTitle const& a, Data::CLoadCaseTitle const& b) {
  if (a.TypeOf() != b.TypeOf() || a.Source() != b.Source()) return false;
  if (IsPermanentType(a.TypeOf())) return a.PermanentMode() == b.PermanentMode();
  return !IsImposed(a.TypeOf()) || a.Category() == b.Category();
}

FoundTitle TitleOfLoadCases(CZelData const& model, CString const& description) {
  std::optional<Data::CLoadCaseTitle> common;
  auto const loadCases = Data::CCaseDesc(description).LoadCases();
  for (auto const& run : loadCases.Runs())
    for (int n = run.first; n <= run.last; ++n) {
      if (!model.LoadCaseTitleExist(n)) return {{}, LeftOutReason::UntitledLoadCase};
      auto const& title = model.LoadCaseTitle(n);
      if (!common) common = title;
      if (!IsSameAction(*common, title)) return {{}, LeftOutReason::TitlesDiffer};
    }
  if (!common) return {{}, LeftOutReason::NoLoadCase};
  return {*common, std::nullopt};
}

FoundTitle TitleOfResponse(CZdSpecTask const& task, Zel::CAnalysisCase const& response) {
  Data::CLoadCaseTitle title(CString(), CaseType::SeismicResponse, task.Source());
  title.SetDirection(response.ModeDirection());
  return {title, std::nullopt};
}

}  // namespace

FoundTitle TitleOfAnalysisCase(CZelData const& model, int n) {
  if (!model.AnalysisCaseExist(n)) return {{}, LeftOutReason::NoTask};
  auto const& analysisCase = model.AnalysisCase(n);
  if (!model.AnalysisTaskExist(analysisCase.Task())) return {{}, LeftOutReason::NoTask};
  auto const& task = model.AnalysisTask(analysisCase.Task());
  if (task.IsStatic()) return TitleOfLoadCases(model, analysisCase.Description());
  auto const* response = dynamic_cast<CZdSpecTask const*>(&task);
  if (response != nullptr && task.Solution(AnalSoln::ResponseSpectrum))
    return TitleOfResponse(*response, analysisCase);
  return {{}, LeftOutReason::SolutionNotTaken};
}

std::vector<int> CasesOfTasks(CZelData const& model, std::vector<int> const& tasks) {
  std::unordered_map<int, std::vector<int>> casesOfTask;
  for (int const task : tasks) casesOfTask.try_emplace(task);
  for (auto const& [number, record] : model.AnalysisCases())
    if (auto const found = casesOfTask.find(record.Task()); found != casesOfTask.end())
      found->second.push_back(static_cast<int>(number));
  std::vector<int> cases;
  for (int const task : tasks) {
    auto const& ofTask = casesOfTask[task];
    cases.insert(cases.end(), ofTask.begin(), ofTask.end());
  }
  return cases;
}

std::optional<LeftOutReason> WhyLeftOut(FoundTitle const& found) {
  if (found.fault) return found.fault;
  if (auto const slot = SlotOf(found.title))
    return kSourceSlots[*slot].hasBasic ? std::nullopt
                                        : std::optional(LeftOutReason::NoBasicCombination);
  switch (found.title.TypeOf()) {
    case CaseType::Imposed:
    case CaseType::ImposedRoof:
      return LeftOutReason::NoCategory;
    case CaseType::SeismicResponse:
    case CaseType::SeismicTorsion:
      return LeftOutReason::NoDirection;
    default:
      return LeftOutReason::KindNotTaken;
  }
}

}  // namespace Tarvex
