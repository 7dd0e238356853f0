// What the tests of the combination generators have in common.
#pragma once

#include <gtest/gtest.h>

#include <array>
#include <string>
#include <vector>

#include "store/model/zel_data.h"
#include "store/record/cases.h"
#include "store/record/spec.h"
#include "store/record/task_slot.h"
#include "store/record/tasks.h"
#include "tarvex/combinations.h"

namespace Tarvex::Testing {

/// Reaches what applications may use by deriving.
template <class Base>
class OpenGenerator : public Base {
 public:
  using Base::AccidentalComb;
  using Base::AddComb;
  using Base::AllVariable;
  using Base::AnalysisCase;
  using Base::BasicComb;
  using Base::CaseDefn;
  using Base::CaseTypeDesc;
  using Base::ClearCombinations;
  using Base::Colour;
  using Base::CombDesc;
  using Base::CombineSlsCharacter;
  using Base::CombineSlsFrequent;
  using Base::CombineSlsQuasiPerm;
  using Base::CombineUlsAccidental;
  using Base::CombineUlsPersistent;
  using Base::CombineUlsSeismic;
  using Base::CombTypeDesc;
  using Base::FinalCombination;
  using Base::GammaA;
  using Base::GammaG;
  using Base::GammaI;
  using Base::GammaP;
  using Base::GammaQ;
  using Base::IsSnowSevere;
  using Base::MapCases;
  using Base::MapTasks;
  using Base::NumSource;
  using Base::PersistentComb;
  using Base::PrestressComb;
  using Base::Psi;
  using Base::Psi0;
  using Base::Psi1;
  using Base::Psi2;
  using Base::SeismicComb;
  using Base::SetPsiType;
  using Base::SortVariable;
  using Base::TrimMap;
  using Base::VariableCombA;
  using Base::VariableCombB;
  using typename Base::VariableGroup;
};
using OpenEuro = OpenGenerator<CLoadCombinationGeneratorEuro>;
using OpenEuroUk = OpenGenerator<CLoadCombinationGeneratorEuroUK>;

inline constexpr int kStaticTask = 1;

/// A title with what counts for the type, under one name for all: category of imposed actions,
/// permanent mode of permanent ones and prestress, direction of seismic ones.
inline Data::CLoadCaseTitle Title(CaseType type, int source = 1, int detail = 0) {
  Data::CLoadCaseTitle title(L"", type, source);
  int const tens = static_cast<int>(type) / 10;
  if (tens < 3) title.SetPermanentMode(detail);
  if (tens == 3) title.SetCategory(detail);
  if (tens == 5) title.SetDirection(detail);
  return title;
}

/// Adds a load case with a title and an analysis case of the static task for it, under the same
/// next number. @return that number.
inline int AddAction(CZelData& model, Data::CLoadCaseTitle const& title) {
  if (!model.AnalysisTaskExist(kStaticTask))
    model.SetAnalysisTask(kStaticTask, CZssTask(L"", AnalSoln::Static));
  int const n = std::max(model.HighestAnalysisCase(), model.HighestLoadCaseTitle()) + 1;
  model.SetLoadCaseTitle(n, title);
  CString text;
  text.Format(L"L%i", n);
  model.SetAnalysisCase(n, Zel::CAnalysisCase(L"", text, kStaticTask));
  return n;
}
inline int AddAction(CZelData& model, CaseType type, int source = 1, int detail = 0) {
  return AddAction(model, Title(type, source, detail));
}

inline int ResponseTask(int source) { return 100 + source; }

/// Adds an analysis case of the response spectrum task of a source, which is 100 plus the source.
inline int AddResponse(CZelData& model, int source, int direction) {
  CZdSpecTask task;
  task.SetSource(source);
  model.SetAnalysisTask(ResponseTask(source), task);
  int const n = std::max(model.HighestAnalysisCase(), model.HighestLoadCaseTitle()) + 1;
  Zel::CAnalysisCase response(L"", L"M1", ResponseTask(source));
  response.SetModeDirection(direction);
  model.SetAnalysisCase(n, response);
  return n;
}

/// All tasks of a model.
inline std::vector<int> AllTasks(CZelData const& model) {
  std::vector<int> tasks;
  for (auto const& [n, task] : model.AnalysisTask()) tasks.push_back(static_cast<int>(n));
  return tasks;
}

inline constexpr std::array<bool, kNumCombTypes> kAllFamilies{true, true, true, true, true, true};

/// A generator on some tasks of a model, with the families that are on.
template <class Generator = OpenEuro>
Generator OnTasks(CZelData& model, std::vector<int> const& tasks,
                  std::array<bool, kNumCombTypes> const& families = {}) {
  Generator generator;
  generator.SetData(&model);
  generator.SetTasks(tasks);
  generator.SetUlsPersistent(families[0]);
  generator.SetUlsAccidental(families[1]);
  generator.SetUlsSeismic(families[2]);
  generator.SetSlsCharacteristic(families[3]);
  generator.SetSlsFrequent(families[4]);
  generator.SetSlsQuasiPerm(families[5]);
  return generator;
}

/// The combinations from a number on: "7 Variable : Wind 1 = A3".
inline std::vector<std::string> Lines(CZelData const& model, int from = 1) {
  std::vector<std::string> lines;
  for (auto const& [n, record] : model.CombinationCase())
    if (static_cast<int>(n) >= from)
      lines.push_back(std::to_string(n) + " " + record.Name().ToUtf8() + " = " +
                      record.Description().Text().ToUtf8());
  return lines;
}

/// Colours of the combinations from a number on.
inline std::vector<unsigned long> Colours(CZelData const& model, int from = 1) {
  std::vector<unsigned long> colours;
  for (auto const& [n, record] : model.CombinationCase())
    if (static_cast<int>(n) >= from) colours.push_back(record.GetColour());
  return colours;
}

/// A generator on all tasks of a model that has read its cases and written basic combinations.
template <class Generator = OpenEuro>
Generator WithBasics(CZelData& model) {
  Generator generator;
  generator.SetData(&model);
  generator.SetTasks(AllTasks(model));
  generator.MapTasks();
  generator.BasicComb();
  return generator;
}

using Texts = std::vector<std::string>;

}  // namespace Tarvex::Testing
