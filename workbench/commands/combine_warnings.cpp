// Where combinations differ from the expressions of EN 1990.
#include <algorithm>

#include "store/record/cases.h"
#include "store/select/case_expression.h"
#include "workbench/commands/combine_report.h"
#include "workbench/report/text.h"

namespace Tarvex::Workbench {
namespace {

constexpr char const* kStandard = "EN 1990, ";
constexpr std::array<char const*, kNumCombTypes> kExpressions{"6.4.3.2 (6.10)",  "6.4.3.3 (6.11b)",
                                                              "6.4.3.4 (6.12b)", "6.5.3 (6.14b)",
                                                              "6.5.3 (6.15b)",   "6.5.3 (6.16b)"};

int TensOf(CaseType type) { return static_cast<int>(type) / 10; }
constexpr int kPermanentActions = 1;
constexpr int kPrestressActions = 2;
constexpr int kVariableActions = 3;
constexpr int kAccidentalActions = 4;
constexpr int kSeismicActions = 5;

/// Whether a family has the factors of its own limit state.
bool HasOwnFactors(CombType type) {
  return type != CombSlsFrequent && type != CombSlsQuasiPermanent;
}

/// Whether a family lets one variable action lead.
bool HasLeadingAction(CombType type) {
  return type != CombUlsSeismic && type != CombSlsQuasiPermanent;
}

/// The factors psi of a generator, and what it takes analysis cases for.
template <class Generator>
class KnownFactors : public Generator {
 public:
  explicit KnownFactors(CZelData& model) { Generator::SetData(&model); }
  using Generator::AnalysisCase;
  using Generator::Psi;
};

/// The factors psi of the standard.
class StandardFactors : public KnownFactors<CLoadCombinationGeneratorEuro> {
 public:
  using KnownFactors::KnownFactors;

  /// Whether a family has a variable action with a factor other than 0.
  bool Has(CombType family, Data::CLoadCaseTitle const& title, int psiAccidental) const {
    switch (family) {
      case CombUlsPersistent:
      case CombSlsCharacteristic:
        return true;
      case CombUlsAccidental:
        return Psi(std::max(psiAccidental, 1), title) != 0;
      case CombSlsFrequent:
        return Psi1(title) != 0;
      case CombUlsSeismic:
      case CombSlsQuasiPermanent:
        break;
    }
    return Psi2(title) != 0;
  }
};

/// Index of the psi that an accompanying variable action has in a family.
int AccompanyingPsi(CombType family) {
  return family == CombUlsPersistent || family == CombSlsCharacteristic ? 0 : 2;
}

/// The comparison of one run.
class Comparison {
 public:
  Comparison(CZelData& model, CombineRun const& run)
      : m_model(model), m_run(run), m_standard(model), m_uk(model) {}

  std::vector<Warning> Compare() {
    CompareLeftOutSources();
    CompareModes();
    CompareModesOfCases();
    CompareAlternatives();
    ComparePrestress();
    CompareRain();
    for (auto const& family : m_run.families) CompareFamily(family);
    return std::move(m_warnings);
  }

 private:
  /// Whether the standard has an action with a factor other than 0 in a family.
  bool HasFactor(CombType family, Data::CLoadCaseTitle const& title) const {
    int const tens = TensOf(title.TypeOf());
    if (tens == kAccidentalActions) return family == CombUlsAccidental;
    if (tens == kSeismicActions) return family == CombUlsSeismic;
    return tens != kVariableActions || m_standard.Has(family, title, m_run.choice.psiAccidental);
  }
  bool IsInAnyFamily(Data::CLoadCaseTitle const& title) const {
    return std::any_of(m_run.families.begin(), m_run.families.end(),
                       [&](auto const& family) { return HasFactor(family.type, title); });
  }
  double AccompanyingFactor(CombType family, Data::CLoadCaseTitle const& title) const {
    int const index = AccompanyingPsi(family);
    return m_run.choice.isUk ? m_uk.Psi(index, title) : m_standard.Psi(index, title);
  }
  bool IsOn(CombType type) const {
    return std::any_of(m_run.families.begin(), m_run.families.end(),
                       [&](auto const& family) { return family.type == type; });
  }
  void Warn(char const* code, char const* table, int number, std::string const& what,
            std::string const& clause) {
    m_warnings.push_back({code, table, number, what + "; " + kStandard + clause});
  }
  void WarnOf(char const* code, int combination, std::string const& what,
              std::string const& clause) {
    Warn(code, "CombinationCase", combination, CombinationText(m_model, combination) + what,
         clause);
  }
  bool HasVariable() const {
    auto const& actions = m_run.plan.actions;
    return std::any_of(actions.begin(), actions.end(), [](auto const& entry) {
      return TensOf(entry.second.TypeOf()) == kVariableActions;
    });
  }
  int CountActions(CaseType type) const {
    auto const& actions = m_run.plan.actions;
    return static_cast<int>(std::count_if(actions.begin(), actions.end(), [&](auto const& entry) {
      return entry.second.TypeOf() == type;
    }));
  }

  /// Analysis cases of actions that the standard combines and the generator does not.
  void CompareLeftOutSources() {
    for (auto const& leftOut : m_run.plan.leftOut) {
      if (!IsInAnyFamily(leftOut.title)) continue;
      auto const type = leftOut.title.TypeOf();
      std::string const number = "A" + std::to_string(leftOut.analysisCase);
      if (leftOut.reason == LeftOutReason::NoBasicCombination)
        Warn("no-basic-combination", "AnalysisCase", leftOut.analysisCase,
             number +
                 (type == CaseType::Thermal ? " is a thermal action" : " is a variable action") +
                 " that is in no combination",
             "6.4.3.2 (6.10) and 6.5.3, has all variable actions, thermal ones by Table A1.1");
      if (type == CaseType::SeismicStatic)
        Warn("no-basic-combination", "AnalysisCase", leftOut.analysisCase,
             number + " is a static seismic action that is in no combination",
             "6.4.3.4 (6.12b), has the seismic action");
    }
  }

  void CompareModes() {
    for (auto const& [n, title] : m_run.plan.actions) {
      int const tens = TensOf(title.TypeOf());
      int const mode = title.PermanentMode();
      if ((tens != kPermanentActions && tens != kPrestressActions) || (mode != 1 && mode != 2))
        continue;
      WarnOf("permanent-factor-zero", n, " is offered with factor 0 too by its permanent mode",
             "6.4.3 and 6.5.3, leaves no permanent action or prestress out");
    }
  }

  /// The first case of a source gives its mode to all others.
  void CompareModesOfCases() {
    for (auto const& [n, title] : m_run.plan.actions) {
      int const tens = TensOf(title.TypeOf());
      if (tens != kPermanentActions && tens != kPrestressActions) continue;
      auto const tree = Data::ReadCases(m_model.CombinationCase(n).Description().Text());
      if (!tree) continue;
      for (auto const& part : tree->parts) {
        if (part.kind != Data::CasePart::Kind::Case) continue;
        if (m_standard.AnalysisCase(part.first.Case()).PermanentMode() == title.PermanentMode())
          continue;
        WarnOf("permanent-modes-differ", n,
               " has the permanent mode of its first case, and A" +
                   std::to_string(part.first.Case()) + " has another",
               "Table A1.2(B), note 3, has one factor for all permanent actions of one source");
        break;
      }
    }
  }

  /// Sources that act together by the standard and are taken one at a time.
  void CompareAlternatives() {
    for (auto const type :
         {CaseType::SelfWeight, CaseType::Soil, CaseType::PermanentEquivalent, CaseType::Prestress})
      if (int const count = CountActions(type); count > 1) WarnOfAlternatives(type, count);
    if (int const count = CountImposedLeaders(); count > 1)
      WarnOfAlternatives(CaseType::Imposed, count);
  }
  /// Of imposed actions of one source every second one goes with the one before.
  int CountImposedLeaders() const {
    std::map<int, int> entries;  // by source
    for (auto const& entry : m_run.plan.actions)
      if (entry.second.TypeOf() == CaseType::Imposed) ++entries[entry.second.Source()];
    int leaders = 0;
    for (auto const& entry : entries) leaders += (entry.second + 1) / 2;
    return leaders;
  }
  void WarnOfAlternatives(CaseType type, int count) {
    auto const first =
        std::find_if(m_run.plan.actions.begin(), m_run.plan.actions.end(),
                     [&](auto const& entry) { return entry.second.TypeOf() == type; });
    WarnOf("taken-one-at-a-time", first->first,
           " is one of " + std::to_string(count) +
               " of its kind that are taken one at a time, never together",
           "6.4.3 and 6.5.3, adds all that act at the same time");
  }

  void ComparePrestress() {
    if (!IsOn(CombUlsPersistent)) return;
    for (auto const& [n, title] : m_run.plan.actions)
      if (TensOf(title.TypeOf()) == kPrestressActions)
        WarnOf("prestress-factor", n, " has the factors of permanent actions in ULS Persistent",
               "6.4.3.2 (6.10), has its own partial factor for prestress");
  }

  void CompareRain() {
    for (auto const& [n, title] : m_run.plan.actions)
      if (title.TypeOf() == CaseType::Rain)
        WarnOf("rain-accompanying", n, " has 0 as its accompanying value",
               "Table A1.1, has no row for rain: the factor is the engineer's to set");
  }

  bool HasOnlyImposedVariable() const {
    auto const& actions = m_run.plan.actions;
    return std::none_of(actions.begin(), actions.end(), [](auto const& entry) {
      auto const type = entry.second.TypeOf();
      return TensOf(type) == kVariableActions && type != CaseType::Imposed &&
             type != CaseType::ImposedRoof;
    });
  }
  /// Roofs are taken with the imposed action of their source only, both leading. Without variable
  /// actions of other kinds that action never accompanies either.
  void CompareRoofs(WrittenFamily const& family, std::string const& clause) {
    bool const onlyImposed = CountActions(CaseType::ImposedRoof) > 0 && HasOnlyImposedVariable();
    for (auto const& [n, title] : m_run.plan.actions) {
      bool const leadsOnly = title.TypeOf() == CaseType::ImposedRoof ||
                             (title.TypeOf() == CaseType::Imposed && onlyImposed);
      if (!leadsOnly || !family.offered.contains(n)) continue;
      double const factor = AccompanyingFactor(family.type, title);
      if (factor == 0) continue;
      auto const psi = "psi" + std::to_string(AccompanyingPsi(family.type));
      WarnOf("roof-accompanying", n,
             " is in no alternative of " + CombinationText(m_model, family.last) +
                 " beside a leading action with its " + psi + ", " + NumberText(factor),
             clause + ", has it there" +
                 (m_run.choice.isUk ? ", with the factors of the national annex" : ""));
    }
  }

  void CompareFamily(WrittenFamily const& family) {
    std::string const clause = kExpressions[static_cast<std::size_t>(family.type)];
    bool const isEmpty = m_model.CombinationCase(family.last).Description().Text().IsEmpty();
    bool const hasEmptyEnvelope = family.permutations == 0 && !isEmpty;
    if (isEmpty)
      WarnOf("empty-combination", family.last, " names nothing, for want of actions that it takes",
             clause + ", has those of the model");
    if (hasEmptyEnvelope)
      WarnOf("no-alternative", family.last,
             " stands for nothing: its variable actions are all of one kind, and none can lead "
             "beside another",
             clause + ", has each of them as the leading action");
    if (family.type == CombSlsFrequent && !isEmpty)
      WarnOf("persistent-factors", family.last, " has the factors of ULS Persistent",
             clause +
                 ", has 1 for permanent actions, psi1 for the leading variable action and psi2 "
                 "for the others");
    if (family.type == CombSlsQuasiPermanent && !isEmpty)
      WarnOf("persistent-factors", family.last,
             " has the factors of ULS Persistent, without reduction for any variable action",
             clause + ", has 1 for permanent actions and psi2 for variable ones");
    if (family.type == CombUlsAccidental && m_run.choice.psiAccidental == 0 && HasVariable())
      WarnOf("leading-factor", family.last, " has psi0 for the leading variable action",
             clause + " and Table A1.3, has psi1 or psi2");
    if (HasLeadingAction(family.type)) CompareSingleAction(family, clause);
    if (HasOwnFactors(family.type) && HasLeadingAction(family.type)) CompareRoofs(family, clause);
    CompareImposedActions(family, clause);
    if (!hasEmptyEnvelope) CompareMissingActions(family, clause);
  }

  /// A variable action that is alone is not combined with itself leading.
  void CompareSingleAction(WrittenFamily const& family, std::string const& clause) {
    std::vector<int> variable;
    int counted = 0;  // actions on roofs do not count
    for (auto const& [n, title] : m_run.plan.actions) {
      if (TensOf(title.TypeOf()) != kVariableActions) continue;
      variable.push_back(n);
      if (title.TypeOf() != CaseType::ImposedRoof) ++counted;
    }
    if (counted != 1) return;
    auto const offered = family.offered.find(variable.back());
    auto const leading = LeadingFactors(family, variable.back());
    if (offered == family.offered.end() || offered->second.values == leading) return;
    WarnOf("single-variable-action", family.last,
           " has the accompanying value of its only variable action, " +
               CombinationText(m_model, variable.back()),
           clause + ", has the value of a leading action");
  }
  /// The factors that the leading combination of an action offers.
  std::set<double> LeadingFactors(WrittenFamily const& family, int action) const {
    FactorOffers offers(m_model, {action});
    for (int n = family.first; n <= family.last; ++n) {
      bool const leads = m_model.CombinationCase(n).Name().Find(L" (Leading)") >= 0;
      if (!leads) continue;
      auto const offered = offers.Of(n);
      if (auto const found = offered.find(action); found != offered.end())
        return found->second.values;
    }
    return {};
  }

  /// Alternatives with a companion in the place of its imposed action, or with a roof, are without
  /// that action; where none leads roofs take turns with the others too. Where the favourable
  /// factor, or the accompanying one, is 0 they give nothing else.
  void CompareImposedActions(WrittenFamily const& family, std::string const& clause) {
    if (!HasOwnFactors(family.type) || family.type == CombUlsPersistent) return;
    bool const floorsTakeTurns = CountImposedLeaders() > 1;  // which is told
    for (auto const& [n, title] : m_run.plan.actions) {
      bool const counts = title.TypeOf() == CaseType::ImposedRoof
                              ? !HasLeadingAction(family.type)
                              : title.TypeOf() == CaseType::Imposed && !floorsTakeTurns;
      auto const offered = family.offered.find(n);
      if (!counts || offered == family.offered.end()) continue;
      if (AccompanyingFactor(family.type, title) == 0) continue;
      auto const& values = offered->second.values;
      if (values.size() > 1 && values.contains(0))
        WarnOf("absent-from-some", n,
               " is in some alternatives of " + CombinationText(m_model, family.last) + " only",
               clause + ", has it in all");
    }
  }

  void CompareMissingActions(WrittenFamily const& family, std::string const& clause) {
    for (auto const& [n, title] : m_run.plan.actions)
      if (HasFactor(family.type, title) && !family.offered.contains(n))
        WarnOf("action-left-out", n,
               " is in no alternative of " + CombinationText(m_model, family.last),
               clause + ", has it");
  }

  CZelData const& m_model;
  CombineRun const& m_run;
  StandardFactors m_standard;
  KnownFactors<CLoadCombinationGeneratorEuroUK> m_uk;
  std::vector<Warning> m_warnings;
};

}  // namespace

std::vector<Warning> CompareWithEn1990(CZelData& model, CombineRun const& run) {
  return Comparison(model, run).Compare();
}

}  // namespace Tarvex::Workbench
