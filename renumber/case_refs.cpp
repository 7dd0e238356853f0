// References to cases in tasks and descriptions.
#include "store/record/case_refs.h"
#include "renumber/renumber_parts.h"
#include "store/model/analysis_case_table.h"
#include "store/model/zel_data.h"
#include "store/record/cases.h"
#include "store/record/task_slot.h"
#include "store/select/case_expression.h"
#include "store/select/case_tokens.h"
#include "store/text/number_text.h"

namespace Tarvex {
namespace {

using NewCaseNumbers = std::map<SCaseRef, int>;

constexpr std::wstring_view kDelimiters = L" ,()P:";
constexpr std::wstring_view kCaseLetters = L"LACMT";
constexpr std::wstring_view kDigits = L"0123456789";

/// Appends one piece of a description, without delimiters. In "C5+" and "1.2L1+1.5L2" a case has
/// something behind it that is looked at again.
void AppendPiece(std::wstring& text, std::wstring_view piece, Schemes const& schemes,
                 NewCaseNumbers const& cases) {
  while (true) {
    auto const letter = piece.find_first_of(kCaseLetters);
    if (letter == std::wstring_view::npos) break;
    auto const behind = std::min(piece.find_first_not_of(kDigits, letter + 1), piece.size());
    auto const digits = piece.substr(letter + 1, behind - letter - 1);
    auto const op = Data::CaseOfLetter(piece[letter]);
    int number = 0;
    if (digits.empty() || !StringTo(CString(digits), number)) break;
    if (op == CaseOp::None || !schemes.Has(CaseModule(op))) {
      text += piece.substr(0, behind);
    } else {
      text += piece.substr(0, letter + 1);
      auto const found = cases.find(SCaseRef(op, number, 0));
      text += found == cases.end() ? Data::kDeletedCase
                                   : std::wstring_view(std::to_wstring(found->second));
    }
    piece.remove_prefix(behind);
  }
  text += piece;
}

CString OrNone(CString const& description) {
  return description.IsEmpty() ? CString(L"none") : description;
}

std::set<int> MapCases(std::set<int> const& numbers, NewCaseNumbers const& cases) {
  std::set<int> mapped;
  for (int const n : numbers)
    if (auto const found = cases.find(SCaseRef(CaseOp::Analysis, n, 0)); found != cases.end())
      mapped.insert(found->second);
  return mapped;
}

/// Rewrites the descriptions that tasks of a class have.
template <class Map>
class TaskTexts {
 public:
  TaskTexts(CZelData const& model, NewCaseNumbers const& cases, Map const& map)
      : m_model(model), m_cases(cases), m_map(map) {}

  void Rewrite(Zel::CAnalysisTask& task) const {
    if (task.Solver() == TaskSolver::Static) As<CZssTask>(task);
    if (task.Solver() == TaskSolver::Spectrum) As<CZdSpecTask>(task);
    if (task.Solver() == TaskSolver::Envelope) As<CEnvelopeTask>(task);
  }

 private:
  template <class Task>
  void As(Zel::CAnalysisTask& task) const {
    if (auto* const own = dynamic_cast<Task*>(&task)) Change(*own);
  }
  void Change(CZssTask& task) const {
    task.SetPDelta(m_map(OrNone(task.PDelta())));
    task.SetPrestress(m_map(OrNone(task.Prestress())));
    task.SetMassCase(m_map(OrNone(task.MassCase())));
  }
  void Change(CZdSpecTask& task) const {
    auto const found = m_cases.find(SCaseRef(CaseOp::Task, task.Task(), 0));
    if (found != m_cases.end()) task.SetTask(found->second);
    task.SetLoad(m_map(task.Load()));
  }
  void Change(CEnvelopeTask& task) const { task.SetDesc(m_map(task.Desc()), &m_model); }

  CZelData const& m_model;
  NewCaseNumbers const& m_cases;
  Map const& m_map;
};

}  // namespace

CString CRenumber::MapCaseDesc(CString description, NewCaseNumbers const& cases) const {
  std::wstring_view rest = description;
  std::wstring text;
  while (!rest.empty()) {
    auto const end = std::min(rest.find_first_of(kDelimiters), rest.size());
    AppendPiece(text, rest.substr(0, end), m_parts->schemes, cases);
    text += rest.substr(end, 1);
    rest.remove_prefix(std::min(end + 1, rest.size()));
  }
  return text;
}

void CRenumber::AdjustCaseRefs(CZelData* model, NewCaseNumbers const& cases,
                               bool keepDescriptions) const {
  auto const map = [&](CString const& text) { return MapCaseDesc(text, cases); };
  auto const tasks = model->AnalysisTask();
  TaskTexts const texts(*model, cases, map);
  for (auto const& [number, slot] : tasks) {
    auto const task = slot.Get().Clone();
    if (!task->Cases().empty()) task->SetCases(MapCases(task->Cases(), cases));
    if (!keepDescriptions) texts.Rewrite(*task);
    model->SetAnalysisTask(static_cast<int>(number), *task);
  }
  if (!keepDescriptions)
    for (auto const& [number, record] : PagedTable(model->AnalysisCases())) {
      auto copy = record;
      copy.SetDescription(map(OrNone(record.Description())));
      model->SetAnalysisCaseData(static_cast<int>(number), copy);
    }
  for (auto const& [number, record] : PagedTable(model->CombinationCase())) {
    auto copy = record;
    copy.SetDescription(Data::CCombCaseDesc(map(record.Description().Text())));
    model->SetCombinationCase(static_cast<int>(number), copy);
  }
  for (auto const& [number, record] : PagedTable(model->CaseDescription())) {
    auto copy = record;
    copy.SetDescription(map(record.Description()));
    model->SetCaseDescription(static_cast<int>(number), copy);
  }
}

}  // namespace Tarvex
