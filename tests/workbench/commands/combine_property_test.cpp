// On random sets of actions the command warns exactly where its factors are not those of EN 1990.
#include <gtest/gtest.h>

#include <nlohmann/json.hpp>
#include <set>

#include "store/record/cases.h"
#include "store/record/load_case_title.h"
#include "store/record/spec.h"
#include "store/record/tasks.h"
#include "tests/support/random_model.h"
#include "workbench/commands/command.h"

namespace Tarvex::CombinePropertyTest {
namespace {

using Testing::Random;
using Json = nlohmann::ordered_json;
using Factors = std::set<double>;
using Title = Data::CLoadCaseTitle;

constexpr int kModels = 150;
constexpr double kSame = 1e-9;

enum Family { kPersistent, kAccidental, kSeismic, kCharacteristic, kFrequent, kQuasiPermanent };
constexpr std::array<char const*, 6> kWords{"persistent",     "accidental", "seismic",
                                            "characteristic", "frequent",   "quasi-permanent"};

// Actions: load case and analysis case of the same number.

int AddAction(CZelData& model, CaseType type, int source, int detail) {
  Title title(L"", type, source);
  title.SetCategory(detail);
  int const n = model.HighestLoadCaseTitle() + 1;
  model.SetLoadCaseTitle(n, title);
  CString text;
  text.Format(L"L%i", n);
  model.SetAnalysisCase(n, Zel::CAnalysisCase(L"", text, 1));
  return n;
}

/// Whether there is a floor that a roof of this source and category would be one action with.
bool HasFloor(CZelData const& model, int source, int category) {
  for (auto const& [n, title] : model.LoadCaseTitle())
    if (title.TypeOf() == CaseType::Imposed && title.Source() == source &&
        title.Category() == category)
      return true;
  return false;
}

/// Each combination of kinds comes up, most of them with one source of each.
CZelData RandomActions(Random& random) {
  CZelData model;
  model.SetAnalysisTask(1, CZssTask(L"", AnalSoln::Static));
  bool const hasSelfWeight = random.Percent(90);
  if (hasSelfWeight) AddAction(model, CaseType::SelfWeight, 1, 0);
  if (random.Percent(20)) AddAction(model, CaseType::SelfWeight, 2, 0);
  if (random.Percent(20)) AddAction(model, CaseType::Prestress, 1, 0);
  // Of the factors of floors of category 8 none but the leading ones are more than 0: without self
  // weight a family with persistent factors might differ in nothing.
  for (int category = 1; category <= (hasSelfWeight ? 8 : 7); ++category)
    if (random.Percent(15))
      AddAction(model, CaseType::Imposed, random.Percent(85) ? 1 : 2, category);
  for (int source = 1; source <= 2; ++source)
    if (int const category = random.Percent(50) ? 8 : random.Int(1, 7);
        random.Percent(25) && !HasFloor(model, source, category))
      AddAction(model, CaseType::ImposedRoof, source, category);
  for (auto const type : {CaseType::Wind, CaseType::Snow})
    for (int source = 1; source <= 2; ++source)
      if (random.Percent(source == 1 ? 50 : 15)) AddAction(model, type, source, 0);
  if (random.Percent(10)) AddAction(model, CaseType::Thermal, 1, 0);
  AddAction(model, CaseType::Accidental, 1, 0);
  auto spec = model.Spec();
  spec.SetZElevation(random.Percent(50) ? 1500 : 0);
  model.SetSpec(spec);
  // An earthquake along x, from a response spectrum.
  model.SetAnalysisTask(2, CZdSpecTask());
  Zel::CAnalysisCase response(L"", L"M1", 2);
  response.SetModeDirection(1);
  model.SetAnalysisCase(model.HighestAnalysisCase() + 1, response);
  return model;
}

// The standard, from its tables and expressions.

std::array<double, 3> PsiOfTableA11(Title const& title, bool isHigh) {
  static std::array<std::array<double, 3>, 8> const kImposed{{{0.7, 0.5, 0.3},
                                                              {0.7, 0.5, 0.3},
                                                              {0.7, 0.7, 0.6},
                                                              {0.7, 0.7, 0.6},
                                                              {1.0, 0.9, 0.8},
                                                              {0.7, 0.7, 0.6},
                                                              {0.7, 0.5, 0.3},
                                                              {0, 0, 0}}};
  switch (title.TypeOf()) {
    case CaseType::Imposed:
    case CaseType::ImposedRoof:
      return kImposed[static_cast<std::size_t>(title.Category() - 1)];
    case CaseType::Wind:
      return {0.6, 0.2, 0};
    case CaseType::Snow:
      return isHigh ? std::array<double, 3>{0.7, 0.5, 0.2} : std::array<double, 3>{0.5, 0.2, 0};
    case CaseType::Thermal:
      return {0.6, 0.5, 0};
    default:
      return {0, 0, 0};
  }
}

bool IsVariable(Title const& title) { return static_cast<int>(title.TypeOf()) / 10 == 3; }

bool Has(CZelData const& model, CaseType type) {
  for (auto const& [n, title] : model.LoadCaseTitle())
    if (title.TypeOf() == type) return true;
  return false;
}

/// Whether another variable action may lead while this one accompanies: one of another kind.
bool CanAccompany(CZelData const& model, Title const& title) {
  for (auto const& [n, other] : model.LoadCaseTitle())
    if (IsVariable(other) && other.TypeOf() != title.TypeOf()) return true;
  return false;
}

/// The factors of an action in a family by (6.10), (6.11b) with psi1, (6.12b), (6.14b) to (6.16b),
/// with 0 where Table A1.2 has it as the favourable factor.
Factors OfTheStandard(CZelData const& model, Title const& title, Family family) {
  if (title.TypeOf() == CaseType::Accidental) return {family == kAccidental ? 1.0 : 0.0};
  if (title.TypeOf() == CaseType::Prestress) return {1};
  if (!IsVariable(title)) return family == kPersistent ? Factors{1.35, 1} : Factors{1};
  auto const psi = PsiOfTableA11(title, model.Spec().ZElevation() > 1000);
  bool const accompanies = CanAccompany(model, title);
  switch (family) {
    case kPersistent:
      return accompanies ? Factors{1.5, 1.5 * psi[0], 0} : Factors{1.5, 0};
    case kCharacteristic:
      return accompanies ? Factors{1, psi[0]} : Factors{1};
    case kAccidental:
    case kFrequent:
      return accompanies ? Factors{psi[1], psi[2]} : Factors{psi[1]};
    case kSeismic:
    case kQuasiPermanent:
      break;
  }
  return {psi[2]};
}

/// Whether factors differ. A 0 counts for permanent, imposed and accidental actions; those of
/// category 8 have it as their own accompanying value, and the others are absent where a roof or
/// another source of their kind acts.
bool Differ(Factors ours, Factors standard, Title const& title) {
  bool const zeroCounts =
      !IsVariable(title) || (title.TypeOf() == CaseType::Imposed && title.Category() != 8);
  if (!zeroCounts) {
    ours.erase(0);
    standard.erase(0);
  }
  return !std::equal(ours.begin(), ours.end(), standard.begin(), standard.end(),
                     [](double a, double b) { return std::abs(a - b) < kSame; });
}

/// Whether the standard has a roof beside an action that leads, or a floor beside its roof and
/// nothing else, which the command never has. The factor there may be one that it has elsewhere
/// too.
bool MissesItsPlace(CZelData const& model, Title const& title, Family family) {
  bool const leads = family == kPersistent || family == kAccidental || family == kCharacteristic;
  if (!leads || !CanAccompany(model, title)) return false;
  bool const isFloor = title.TypeOf() == CaseType::Imposed;
  if (isFloor && (Has(model, CaseType::Wind) || Has(model, CaseType::Snow) ||
                  !Has(model, CaseType::ImposedRoof)))
    return false;
  if (!isFloor && title.TypeOf() != CaseType::ImposedRoof) return false;
  return PsiOfTableA11(title, false)[family == kAccidental ? 2 : 0] != 0;
}

/// Imposed actions that never act together: of different sources, or the first and the third of
/// one.
bool HasImposedThatTakeTurns(CZelData const& model) {
  std::map<int, int> entries;
  for (auto const& [n, title] : model.LoadCaseTitle())
    if (title.TypeOf() == CaseType::Imposed) ++entries[title.Source()];
  for (auto const& entry : entries)
    if (entry.second > 2) return true;
  return entries.size() > 1;
}

// The command.

Workbench::CommandResult RunOn(CZelData& model, Family family) {
  auto const& command = Workbench::FindCommand("combine");
  std::map<std::string, std::string> const given{
      {"--families", kWords[static_cast<std::size_t>(family)]}, {"--seismic", "30"}};
  Workbench::CommandResult result;
  command.run(model, Workbench::Arguments(command.options, given), result);
  return result;
}

/// Factors of each analysis case in the final combination, as the report has them.
std::map<int, Factors> ReportedFactors(CZelData const& model, Json const& report) {
  std::map<int, Factors> factors;
  for (auto const& row : report.at("families").at(0).at("factors")) {
    auto const basic = row.at("action").get<int>();
    auto const text = model.CombinationCase(basic).Description().Text();  // "A7"
    factors[std::stoi(text.Mid(1).Str())] = row.at("values").get<Factors>();
  }
  return factors;
}

/// Whether a warning is about an analysis case, its basic combination, or a whole family or kind.
bool IsAbout(CZelData const& model, Workbench::Warning const& warning, int analysisCase) {
  if (warning.code == "taken-one-at-a-time") return true;
  if (warning.table == "AnalysisCase") return warning.number == analysisCase;
  auto const& record = model.CombinationCase(warning.number);
  bool const isFinal = record.GetColour() == 0xa0ff60;
  CString text;
  text.Format(L"A%i", analysisCase);
  return isFinal || record.Description().Text() == text.c_str();
}

TEST(CombineProperty, WarnsExactlyWhereTheFactorsAreNotThoseOfTheStandard) {
  std::map<std::string, int> seen;
  int agreeing = 0;
  Testing::ForEachRandomModel(kModels, [&](CZelData const&, Random& random) {
    auto const before = RandomActions(random);
    for (int f = kPersistent; f <= kQuasiPermanent; ++f) {
      auto const family = static_cast<Family>(f);
      SCOPED_TRACE(kWords[static_cast<std::size_t>(f)]);
      auto model = before;
      auto const result = RunOn(model, family);
      auto const factors = ReportedFactors(model, *result.result);
      bool differs = HasImposedThatTakeTurns(model);
      for (auto const& [n, title] : model.LoadCaseTitle()) {
        int const action = static_cast<int>(n);
        auto const found = factors.find(action);
        auto const ours = found == factors.end() ? Factors{0} : found->second;
        if (!Differ(ours, OfTheStandard(model, title, family), title) &&
            !MissesItsPlace(model, title, family))
          continue;
        differs = true;
        bool const isTold =
            std::any_of(result.warnings.begin(), result.warnings.end(),
                        [&](auto const& warning) { return IsAbout(model, warning, action); });
        ASSERT_TRUE(isTold) << "A" << action << " " << ::testing::PrintToString(ours);
      }
      auto const isEmpty = [](auto const& warning) { return warning.code == "empty-combination"; };
      auto warnings = result.warnings;
      std::erase_if(warnings, isEmpty);  // no action, and so no factor to compare
      ASSERT_EQ(!warnings.empty(), differs) << (warnings.empty() ? "" : warnings.front().text);
      for (auto const& warning : warnings) ++seen[warning.code];
      if (!differs) ++agreeing;
    }
  });
  EXPECT_GT(agreeing, kModels);
  for (auto const* code : {"action-left-out", "absent-from-some", "no-alternative",
                           "no-basic-combination", "persistent-factors", "prestress-factor",
                           "roof-accompanying", "single-variable-action", "taken-one-at-a-time"})
    EXPECT_GT(seen[code], 0) << code;
}

}  // namespace
}  // namespace Tarvex::CombinePropertyTest
