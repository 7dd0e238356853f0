// Load combinations by the scheme of EN 1990.
//
//   Tarvex::CLoadCombinationGeneratorEuro generator;
//   generator.SetData(&model);
//   generator.SetTasks({1, 2});
//   generator.SetUlsPersistent(true);
//   generator.SetSlsCharacteristic(true);
//   bool done = generator.Combine();
//
// The load-case titles behind each analysis case of the tasks tell the action that it stands for.
// Each source of an action gets a basic combination; the families of limit states build on those
// and end each in one combination that stands for all its alternatives. docs/combinations.md tells
// what is written and where it differs from the standard.
#pragma once

#include <array>
#include <map>
#include <set>
#include <utility>
#include <vector>

#include "store/record/load_case_title.h"
#include "store/record/resp_comb.h"
#include "store/text/cstring.h"
#include "tarvex/export.h"

namespace Tarvex {

class CZelData;

/// The families of combinations (EN 1990, 6.4.3 and 6.5.3).
enum CombType : int {
  CombUlsPersistent = 0,
  CombUlsAccidental = 1,
  CombUlsSeismic = 2,
  CombSlsCharacteristic = 3,
  CombSlsFrequent = 4,
  CombSlsQuasiPermanent = 5,
};
inline constexpr std::size_t kNumCombTypes = 6;

/// Why an analysis case takes part in no combination.
enum class LeftOutReason {
  NoTask,              ///< its task does not exist
  SolutionNotTaken,    ///< its task solves neither load cases nor a response spectrum
  NoLoadCase,          ///< its description names no load case
  UntitledLoadCase,    ///< a load case of it has no title
  TitlesDiffer,        ///< its load cases are of different actions
  KindNotTaken,        ///< an action of this type is not combined
  NoCategory,          ///< an imposed action outside the categories 1 to 8
  NoDirection,         ///< a seismic action outside the directions that its type has
  NoBasicCombination,  ///< a thermal action, or one that is equivalent to variable ones
};

/// An analysis case that takes part in no combination.
struct LeftOutCase {
  int analysisCase = 0;
  LeftOutReason reason = LeftOutReason::NoTask;
  Data::CLoadCaseTitle title;  ///< as far as it is known
};

/// What a run of the generator would write.
struct TARVEX_EXPORT CombinationPlan {
  /// Counts stop here.
  static constexpr long long kMost = 1'000'000'000'000'000'000;

  /// The title behind each basic combination, by the number that it would have.
  std::map<int, Data::CLoadCaseTitle> actions;
  /// In the order of the tasks, then of the cases.
  std::vector<LeftOutCase> leftOut;
  /// Combinations of each family beside the basic ones; 0 for one that is off or can't be written.
  std::array<long long, kNumCombTypes> families{};

  /// All of them with the basic ones, at most kMost.
  long long Total() const;
};

/// Writes the combinations of analysis tasks with the recommended factors of EN 1990.
///
/// An instance serves one run: a second Combine adds to what the first one found. There is no
/// limit to what is written; Plan tells before how much it is.
class TARVEX_EXPORT CLoadCombinationGeneratorEuro {
 public:
  CLoadCombinationGeneratorEuro();
  CLoadCombinationGeneratorEuro(CLoadCombinationGeneratorEuro const&);
  CLoadCombinationGeneratorEuro(CLoadCombinationGeneratorEuro&&) noexcept;
  CLoadCombinationGeneratorEuro& operator=(CLoadCombinationGeneratorEuro const&);
  CLoadCombinationGeneratorEuro& operator=(CLoadCombinationGeneratorEuro&&) noexcept;
  virtual ~CLoadCombinationGeneratorEuro();

 protected:
  // Factors. Unless said otherwise those of the persistent family; 1 in any other.
  /// Permanent actions: 1.35 unfavourable, 1 favourable (EN 1990, Table A1.2(B)).
  virtual double GammaG(CombType type, bool isUnfavourable) const;
  /// Prestress: 1.3 unfavourable, 1 favourable. The rules take GammaG for prestress.
  virtual double GammaP(CombType type, bool isUnfavourable) const;
  /// Variable actions: 1.5 unfavourable, 0 favourable.
  virtual double GammaQ(CombType type, bool isUnfavourable) const;
  /// Accidental actions, in every family: 1.
  virtual double GammaA() const;
  /// Importance of the structure in an earthquake: 1.
  virtual double GammaI() const;
  /// Psi0, Psi1 or Psi2 by index; 1, no reduction, for any other index.
  virtual double Psi(int index, Data::CLoadCaseTitle const& title) const;
  // EN 1990, Table A1.1; 0 for what has no row there.
  virtual double Psi0(Data::CLoadCaseTitle const& title) const;
  virtual double Psi1(Data::CLoadCaseTitle const& title) const;
  virtual double Psi2(Data::CLoadCaseTitle const& title) const;

 public:
  void SetData(CZelData* model) { m_model = model; }
  /// The analysis tasks whose cases are combined.
  void SetTasks(std::vector<int> const& tasks) { m_tasks = tasks; }
  // The families to write; none unless told.
  void SetUlsPersistent(bool on) { m_families[CombUlsPersistent] = on; }
  void SetUlsAccidental(bool on) { m_families[CombUlsAccidental] = on; }
  void SetUlsSeismic(bool on) { m_families[CombUlsSeismic] = on; }
  void SetSlsCharacteristic(bool on) { m_families[CombSlsCharacteristic] = on; }
  void SetSlsFrequent(bool on) { m_families[CombSlsFrequent] = on; }
  void SetSlsQuasiPerm(bool on) { m_families[CombSlsQuasiPermanent] = on; }
  /// Which of Psi0, Psi1, Psi2 the leading variable action has beside an accidental one: 0, 1 (at
  /// first) or 2.
  void SetPsiAccidental(int index) { m_psiAccidental = index; }
  /// How the directions of an earthquake come together: by the root of the squares at first, by 30
  /// per cent for every other value than RespComb::SquareRoot.
  void SetSeismic(Data::RespComb rule) { m_seismicRule = rule; }

  /// Writes the basic combinations and the families behind the highest combination of the model.
  /// @return false, with nothing written, when no case of the tasks stands for an action; false
  /// with all else written for an accidental or a seismic family without such cases.
  bool Combine();
  /// What the last Combine has to say.
  CString Report() const { return m_report; }
  /// What Combine would write now; changes nothing. Costs the titles and not the combinations.
  CombinationPlan Plan() const;

 protected:
  /// Of one source of an action: its combination, and its source with its category.
  using VariableGroup = std::map<int, std::pair<int, int>>;

  // Texts and colours.
  /// Name of a family, which its final combination bears; empty for any other value.
  static CString CombTypeDesc(CombType type);
  /// The kind of an action, as names of combinations have it.
  static CString CaseTypeDesc(CaseType type);
  /// "(a or b)Cn" for factors that differ, "Cn" for 1, else "aCn"; factors within 1e-6 are equal.
  static CString CombDesc(double a, double b, int n);
  /// Red-first colour of a combination: deeper with each step from 1 to 3, white for what has none.
  static unsigned long Colour(CaseType type, int step);

  // Analysis cases and what they stand for.
  /// Empties the group ranges, reads the cases of all tasks and where combinations end.
  void MapTasks();
  void MapCases(int task);
  /// The title that all load cases of an analysis case agree on, or one of type 0.
  Data::CLoadCaseTitle AnalysisCase(int n) const;
  /// The title of the first case of a text such as "A12 + A13".
  Data::CLoadCaseTitle CaseDefn(CString const& text) const;
  /// Number of sources of a type; of imposed ones over all categories, with the roof where told.
  /// For the type of static seismic actions, which has no cases itself, it gathers the sources of
  /// all other seismic types.
  int NumSource(CaseType type, bool withRoof);
  /// Takes blanks and plus signs off the end of each text.
  static void TrimMap(std::map<int, CString>& texts);

  // Combinations.
  void ClearCombinations();
  void AddComb(CString const& name, CString description, CaseType type, int step);
  /// Writes the combination of the last ones of each group.
  void FinalCombination(CombType type);
  void BasicComb();

  // The families.
  bool CombineUlsPersistent();
  bool CombineUlsAccidental();
  bool CombineUlsSeismic();
  bool CombineSlsCharacter();
  bool CombineSlsFrequent();
  bool CombineSlsQuasiPerm();

  // The rules that families are made of.
  void PersistentComb(CombType type);
  void PrestressComb(CombType type);
  /// Variable actions with one factor each.
  void VariableCombA(CombType type);
  /// Variable actions of which one kind leads at a time.
  void VariableCombB(CombType type);
  void AccidentalComb();
  void SeismicComb();
  /// Of the entries of a group with one source every second one becomes a companion of the one
  /// before: its source is negated.
  static void SortVariable(std::vector<VariableGroup>& groups);
  /// An entry with its companions, "C4 + C6 + ", or with what stands behind each of them when it is
  /// not leading; nothing for a companion. Throws std::out_of_range for a number not in the group.
  static CString AllVariable(VariableGroup const& group, int n, bool leading);
  /// Indices of Psi for a leading and an accompanying action.
  void SetPsiType(CombType type, int out[2]) const;
  /// Whether the site is in a country, or above the height, of the higher factors of snow.
  bool IsSnowSevere() const;

 private:
  enum Group { kPersistent, kPrestress, kVariable, kAccidental, kSeismic, kNumGroups };
  static constexpr std::size_t kNumSourceMaps = 23;
  using Factors = std::pair<double, double>;
  using WrittenAction = std::pair<CaseType, int>;  // its combination

  void MapCase(int n);
  template <class Visit>
  void ForEachSource(Visit&& visit) const;
  template <class FactorsOf>
  std::vector<WrittenAction> WriteActions(int tens, FactorsOf&& factorsOf);
  template <class FactorsOf>
  void WriteSingly(Group group, int tens, CaseType type, FactorsOf&& factorsOf);
  void WriteEnvelope(wchar_t const* name, int first, CaseType type);
  void SetRange(Group group, int start);
  Factors PermanentFactors(CombType type, Data::CLoadCaseTitle const& title) const;
  void WriteLeadingWays(std::vector<VariableGroup> const& groups);
  void WriteBySquares(std::array<int, 3> const& directions);
  void WriteByThirtyPercent(std::array<int, 3> const& directions);
  void PlanActions();
  long long PlannedFamily(CombType type) const;

  CZelData* m_model = nullptr;
  CString m_report;
  std::vector<int> m_tasks;
  Data::RespComb m_seismicRule = Data::RespComb::SquareRoot;
  int m_highest = 0;
  int m_psiAccidental = 1;
  std::array<std::map<int, CString>, kNumSourceMaps> m_sources;
  std::set<int> m_seismicSources;
  std::map<int, Data::CLoadCaseTitle> m_titles;
  std::array<std::pair<int, int>, kNumGroups> m_ranges{};
  std::array<bool, kNumCombTypes> m_families{};
};

/// The same with the factors of the United Kingdom for prestress (GammaP, which no rule takes) and
/// for the accompanying value of wind and of imposed loads on roofs.
class TARVEX_EXPORT CLoadCombinationGeneratorEuroUK : public CLoadCombinationGeneratorEuro {
 public:
  CLoadCombinationGeneratorEuroUK();
  CLoadCombinationGeneratorEuroUK(CLoadCombinationGeneratorEuroUK const&);
  CLoadCombinationGeneratorEuroUK(CLoadCombinationGeneratorEuroUK&&) noexcept;
  CLoadCombinationGeneratorEuroUK& operator=(CLoadCombinationGeneratorEuroUK const&);
  CLoadCombinationGeneratorEuroUK& operator=(CLoadCombinationGeneratorEuroUK&&) noexcept;
  ~CLoadCombinationGeneratorEuroUK() override;

 protected:
  double GammaP(CombType type, bool isUnfavourable) const override;
  double Psi0(Data::CLoadCaseTitle const& title) const override;
};

}  // namespace Tarvex
