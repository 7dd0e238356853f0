#include "workbench/commands/renumber_run.h"

#include <algorithm>
#include <array>
#include <set>

#include "store/model/registry.h"
#include "workbench/commands/errors.h"

namespace Tarvex::Workbench {
namespace {

using Id = CModule::ModuleId;

/// Tables whose references are rewritten only when they have a scheme; one that keeps all numbers
/// does no harm.
constexpr std::array kKept{CModule::Axis, CModule::Node, CModule::Member, CModule::Elem,
                           CModule::AnalStage};
constexpr std::array kCaseTables{CModule::LoadCaseTitle, CModule::AnalysisTask,
                                 CModule::CombinationCase, CModule::AnalysisCase};

/// Tables that a run clears in the place of another.
struct ErasedRow {
  Id moved;
  Id erased;
  char const* why;
};
constexpr std::array kErased{ErasedRow{CModule::DamperProp, CModule::SpringProp,
                                       "springs are erased when dampers are renumbered"},
                             ErasedRow{CModule::DesignTask, CModule::AnalStage,
                                       "stages are erased when design tasks are renumbered"}};

/// Tables that a run does not clear, so that a record stays beside what has its new number.
constexpr std::array kStaying{CModule::DamperProp, CModule::DesignTask};

std::map<int, int> Identity(CZelData const& model, Id module) {
  std::map<int, int> identity;
  for (int const n : NumbersInUse(model, module)) identity[n] = n;
  return identity;
}

SchemeMaps WithKept(CZelData const& model, SchemeMaps schemes) {
  bool const cases = std::any_of(kCaseTables.begin(), kCaseTables.end(),
                                 [&](Id module) { return schemes.contains(module); });
  for (auto const module : kKept) schemes.try_emplace(module, Identity(model, module));
  if (cases)
    for (auto const module : kCaseTables) schemes.try_emplace(module, Identity(model, module));
  return schemes;
}

void ReportErased(CZelData const& before, CZelData const& after, SchemeMaps const& schemes,
                  CommandResult& result) {
  for (auto const& row : kErased) {
    if (!schemes.contains(row.moved)) continue;
    auto const left = NumbersInUse(after, row.erased);
    for (int const n : NumbersInUse(before, row.erased))
      if (!std::binary_search(left.begin(), left.end(), n))
        result.warnings.push_back({"erased-record", StemOf(row.erased), n,
                                   StemOf(row.erased) + " " + std::to_string(n) + ": " + row.why});
  }
}

/// The records of a table behind a run whose number the run gave to none.
std::vector<int> LeftBehind(CZelData const& after, SchemeMaps const& schemes, Id module) {
  auto const scheme = schemes.find(module);
  if (scheme == schemes.end()) return {};
  std::set<int> given;
  for (auto const& [old, number] : scheme->second) given.insert(number);
  auto numbers = NumbersInUse(after, module);
  std::erase_if(numbers, [&](int n) { return given.contains(n); });
  return numbers;
}

void ReportLeft(CZelData const& after, SchemeMaps const& schemes, CommandResult& result) {
  for (auto const module : kStaying)
    for (int const n : LeftBehind(after, schemes, module))
      result.warnings.push_back(
          {"left-record", StemOf(module), n,
           StemOf(module) + " " + std::to_string(n) + ": stays beside what has its new number"});
}

/// Why a run over properties ends at an element.
[[noreturn]] void RefuseElement(CZelData const& before) {
  constexpr std::array kWithout{4, 11, 13, 15, 17, 18, 22, 24, 25};
  std::string which = "an element";
  for (auto const& [n, element] : before.Elem()) {
    int const type = static_cast<int>(element.Type());
    if (std::find(kWithout.begin(), kWithout.end(), type) == kWithout.end()) continue;
    which = "element " + std::to_string(n) + " of type " + std::to_string(type);
    break;
  }
  throw Refusal("properties can't be renumbered: " + which + " has no table of properties");
}

}  // namespace

std::string StemOf(Id module) {
  auto const* const row = FindModule(module);
  return row == nullptr ? std::string() : std::string(row->stem);
}

Id ModuleOf(std::string const& stem) {
  constexpr int kLowest = CModule::Axis;
  constexpr int kHighest = CModule::AnalysisCase;
  std::string known;
  for (auto const& row : Tables()) {
    bool const load = row.module >= CModule::NodeLoad && row.module <= CModule::GravityLoad;
    if (row.module < kLowest || row.module > kHighest || load) continue;
    if (row.stem == stem) return row.module;
    (known += known.empty() ? "" : ", ") += row.stem;
  }
  throw UsageError("--table: '" + stem +
                   "' is no table whose records can be renumbered or deleted; these are: " + known);
}

std::vector<int> NumbersInUse(CZelData const& model, Id module) {
  std::set<int> numbers;
  if (module == CModule::LoadCaseTitle)
    for (auto const& [n, type] : model.LoadCaseTypes()) numbers.insert(n);
  ForEachTable([&](auto const& row) {
    if (row.module != module) return;
    ForEachRecord((model.*row.all)(),
                  [&](int n, auto const&) { numbers.insert(numbers.end(), n); });
  });
  return {numbers.begin(), numbers.end()};
}

void ReportMoves(CZelData const& before, SchemeMaps const& schemes, CommandResult& result) {
  for (auto const& [module, scheme] : schemes) {
    auto const stem = StemOf(module);
    for (int const n : NumbersInUse(before, module)) {
      auto const found = scheme.find(n);
      int const number = found == scheme.end() ? 0 : found->second;
      if (number != n) result.maps[stem].emplace_back(n, number);
    }
  }
}

void RunRenumbering(CZelData& model, SchemeMaps const& schemes, bool keepDescriptions,
                    CommandResult& result) {
  CZelData const before(model);
  auto const all = WithKept(model, schemes);
  CRenumber renumber(&model);
  for (auto const& [module, scheme] : all) renumber.Index(module, scheme);
  result.did = renumber.Go(keepDescriptions);
  if (!result.did) RefuseElement(before);
  ReportMoves(before, schemes, result);
  // Combinations whose number none takes over would stand twice.
  for (int const n : LeftBehind(model, all, CModule::CombinationCase))
    model.BlankCombinationCase(n, 1);
  ReportErased(before, model, schemes, result);
  ReportLeft(model, schemes, result);
  if (model.AnyResults())
    result.warnings.push_back(
        {"stale-results", "", 0, "results still stand under the numbers before the renumbering"});
  ReportLosses({before, model, renumber, all, keepDescriptions}, result);
}

}  // namespace Tarvex::Workbench
