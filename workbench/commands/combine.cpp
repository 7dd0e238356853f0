#include "workbench/commands/combine.h"

#include <algorithm>
#include <nlohmann/json.hpp>

#include "store/model/list_expansion.h"
#include "store/record/task_slot.h"
#include "store/select/numbers.h"
#include "workbench/commands/combine_report.h"
#include "workbench/commands/errors.h"
#include "workbench/commands/selection.h"

namespace Tarvex::Workbench {
namespace {

using Json = nlohmann::ordered_json;

constexpr long long kMostCombinations = 10'000;  // without --yes

constexpr std::array kCombineOptions{
    Option{"--tasks", "TEXT", ValueKind::Text, "all",
           "the analysis tasks whose cases are combined, as a list text"},
    Option{"--families", "TEXT", ValueKind::Text, "persistent,characteristic",
           "what to write, with commas between: persistent, accidental, seismic, characteristic, "
           "frequent, quasi-permanent, or all"},
    Option{
        "--psi", "0|1|2", ValueKind::Choice, "1",
        "which psi the leading variable action has beside an accidental one: psi0, psi1 or psi2"},
    Option{"--seismic", "srss|30", ValueKind::Choice, "srss",
           "directions of an earthquake by the root of the squares, or in full with 30 per cent of "
           "the others"},
    Option{"--uk", "", ValueKind::Flag, "false", "the factors of the United Kingdom"},
    Option{"--yes", "", ValueKind::Flag, "false", "write more than 10000 combinations"}};

constexpr std::array<std::string_view, kNumCombTypes> kFamilyWords{
    "persistent", "accidental", "seismic", "characteristic", "frequent", "quasi-permanent"};

std::string_view WithoutBlanks(std::string_view word) {
  while (word.starts_with(' ')) word.remove_prefix(1);
  while (word.ends_with(' ')) word.remove_suffix(1);
  return word;
}

std::array<bool, kNumCombTypes> FamiliesOf(std::string_view text) {
  std::array<bool, kNumCombTypes> families{};
  for (std::size_t at = 0; at <= text.size();) {
    auto const end = std::min(text.find(',', at), text.size());
    auto const word = WithoutBlanks(text.substr(at, end - at));
    at = end + 1;
    if (word == "all") {
      families.fill(true);
      continue;
    }
    auto const found = std::find(kFamilyWords.begin(), kFamilyWords.end(), word);
    if (found == kFamilyWords.end())
      throw UsageError("--families: '" + std::string(word) + "' is no family");
    families[static_cast<std::size_t>(found - kFamilyWords.begin())] = true;
  }
  return families;
}

std::vector<int> TasksOf(CZelData const& model, std::string const& text, CommandResult& result) {
  auto const list = ListOf(SelNone, text, "--tasks");
  // Up to 0, "all" and "*" are nothing: this is what the text itself names.
  for (int const n : Util::Item(list, model, 0))
    if (!model.AnalysisTaskExist(n))
      result.warnings.push_back({"missing-task", "AnalysisTask", n,
                                 "analysis task " + std::to_string(n) + " does not exist"});
  std::vector<int> tasks;
  for (int const n : Util::Item(list, model, model.HighestAnalysisTask()))
    if (model.AnalysisTaskExist(n)) tasks.push_back(n);
  if (tasks.empty())
    result.warnings.push_back(
        {"empty-selection", "", 0, "'" + text + "' selects no analysis task"});
  return tasks;
}

void SetUp(CLoadCombinationGeneratorEuro& generator, CombineChoice const& choice) {
  generator.SetUlsPersistent(choice.families[CombUlsPersistent]);
  generator.SetUlsAccidental(choice.families[CombUlsAccidental]);
  generator.SetUlsSeismic(choice.families[CombUlsSeismic]);
  generator.SetSlsCharacteristic(choice.families[CombSlsCharacteristic]);
  generator.SetSlsFrequent(choice.families[CombSlsFrequent]);
  generator.SetSlsQuasiPerm(choice.families[CombSlsQuasiPermanent]);
  generator.SetPsiAccidental(choice.psiAccidental);
  generator.SetSeismic(choice.seismicRule);
}

CombineChoice ChoiceOf(Arguments const& arguments) {
  CombineChoice choice;
  choice.families = FamiliesOf(arguments.Text("--families"));
  choice.psiAccidental = arguments.Text("--psi").front() - '0';
  choice.seismicRule = arguments.Text("--seismic") == "srss" ? Data::RespComb::SquareRoot
                                                             : Data::RespComb::ThirtyPercent;
  choice.isUk = arguments.Flag("--uk");
  return choice;
}

/// The names that the generator gives its families.
struct FamilyNames : CLoadCombinationGeneratorEuro {
  static std::string Of(std::size_t type) {
    return CombTypeDesc(static_cast<CombType>(type)).ToUtf8();
  }
};

/// "10005 combinations would be written (2001 basic, ULS Persistent 8004)".
std::string CountsText(CombinationPlan const& plan) {
  auto const numberText = [](long long count) {
    auto const text = std::to_string(count);
    return count == CombinationPlan::kMost ? "at least " + text : text;
  };
  auto text = numberText(plan.Total()) + " combinations would be written (" +
              std::to_string(plan.actions.size()) + " basic";
  for (std::size_t type = 0; type < kNumCombTypes; ++type)
    if (auto const count = plan.families[type]; count > 0)
      text += ", " + FamilyNames::Of(type) + " " + numberText(count);
  return text + ")";
}

/// Refuses a family that the model has no cases for, and more combinations than are asked for or
/// than have a number.
void RequirePossible(CZelData const& model, CombineRun const& run, bool yes) {
  if (run.plan.actions.empty()) return;
  if (run.choice.families[CombUlsAccidental] && run.plan.families[CombUlsAccidental] == 0)
    throw Refusal(FamilyNames::Of(CombUlsAccidental) + ": no accidental cases");
  if (run.choice.families[CombUlsSeismic] && run.plan.families[CombUlsSeismic] == 0)
    throw Refusal(FamilyNames::Of(CombUlsSeismic) + ": no seismic cases");
  if (int const room = kHighestNumber - model.HighestCombinationCase(); run.plan.Total() > room)
    throw Refusal(CountsText(run.plan) + ": numbers are left for " + std::to_string(room));
  if (run.plan.Total() > kMostCombinations && !yes)
    throw Refusal(CountsText(run.plan) + ": more than " + std::to_string(kMostCombinations) +
                  " only with --yes");
}

void RunCombine(CZelData& model, CLoadCombinationGeneratorEuro& generator,
                Arguments const& arguments, CommandResult& result) {
  CombineRun run;
  run.choice = ChoiceOf(arguments);
  generator.SetData(&model);
  generator.SetTasks(TasksOf(model, arguments.Text("--tasks"), result));
  SetUp(generator, run.choice);
  run.plan = generator.Plan();
  for (auto const& leftOut : run.plan.leftOut)
    result.undone.push_back({"AnalysisCase", leftOut.analysisCase, LeftOutText(leftOut)});
  RequirePossible(model, run, arguments.Flag("--yes"));
  result.did = generator.Combine();
  run.families = ReadFamilies(model, run.plan);
  result.text = CombineText(model, run);
  result.result = std::make_shared<Json>(CombineJson(model, run));
  if (!result.did) {
    result.warnings.push_back({"no-actions", "", 0, "no analysis case stands for an action"});
    return;
  }
  for (auto& warning : CompareWithEn1990(model, run)) {
    result.warnings.push_back(std::move(warning));
    result.lookAt = true;
  }
}

void Combine(CZelData& model, Arguments const& arguments, CommandResult& result) {
  if (arguments.Flag("--uk")) {
    CLoadCombinationGeneratorEuroUK generator;
    return RunCombine(model, generator, arguments, result);
  }
  CLoadCombinationGeneratorEuro generator;
  RunCombine(model, generator, arguments, result);
}

constexpr std::array kCombineCommands{Command{"combine",
                                              "write load combinations by the scheme of EN 1990",
                                              kCombineOptions, CommandKind::Changes, &Combine}};

}  // namespace

std::span<Command const> CombineCommands() { return kCombineCommands; }

}  // namespace Tarvex::Workbench
