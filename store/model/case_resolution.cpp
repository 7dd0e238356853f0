#include "store/model/case_resolution.h"

#include <algorithm>

#include "store/model/model_core.h"
#include "store/select/reached.h"

namespace Tarvex::Data {
namespace {

/// A description without cases: of what is not there, with one alternative; of what is faulty,
/// none.
CountedCases Without(int count) { return {CaseExpression{{CasePart{}}, 0, {}}, {count}}; }

template <class Table>
std::vector<int> NumbersOf(Table const& table) {
  std::vector<int> numbers;
  for (int n = table.Next(0); n != 0; n = table.Next(n)) numbers.push_back(n);
  return numbers;
}

std::array<std::uint64_t, 2> RevisionsOf(CZelData const& model) {
  return {model.CombinationCase().Revision(), model.AnalysisCases().ExistenceRevision()};
}

CaseExpression TreeOf(CString const& text) {
  return ReadCases(text).value_or(CaseExpression{{CasePart{}}, 0, {}});
}

/// The factors of an alternative, by a resolution or, without one, by the text alone.
std::map<SCaseRef, double> FactorsOf(CString const& text, CaseResolution const* resolution,
                                     int permutation) {
  int const index = permutation - 1;
  if (resolution != nullptr) {
    auto const& cases = resolution->cases;
    return CaseFactors(cases, cases.tree.whole, index, resolution->meaning);
  }
  auto tree = ReadCases(text);
  if (!tree) return {};
  CasesAsWritten const meaning;
  auto const cases = CountCases(std::move(*tree), meaning);
  return CaseFactors(cases, cases.tree.whole, index, meaning);
}

}  // namespace

CombinationsOfModel::CombinationsOfModel(CZelData const& model, CaseExpression const& from)
    : m_analysis(NumbersOf(model.AnalysisCases())),
      m_combinations(NumbersOf(model.CombinationCase())) {
  AddReached(model, from);
}

void CombinationsOfModel::AddReached(CZelData const& model, CaseExpression const& from) {
  std::map<int, std::optional<CaseExpression>> trees;
  auto const treeOf = [&](int n) -> std::optional<CaseExpression>& {
    auto const [entry, isNew] = trees.try_emplace(n);
    if (isNew) entry->second = ReadCases(model.CombinationCase(n).Description().Text());
    return entry->second;
  };
  auto const reached = FollowReferences(
      [&](int n) {
        auto const& tree = treeOf(n);
        return tree ? ReferredBy(*tree) : std::vector<int>();
      },
      ReferredBy(from));
  m_endless = reached.endless;
  for (int const n : m_endless) {
    m_reached[n] = Without(0);
    m_endlessTexts.push_back(model.CombinationCase(n).Description().Text());
  }
  for (int const n : reached.order) {
    if (reached.endless.contains(n)) continue;
    auto& tree = treeOf(n);
    m_reached[n] = tree ? CountCases(std::move(*tree), *this) : Without(0);
  }
}

std::vector<int> CombinationsOfModel::ReferredBy(CaseExpression const& tree) const {
  std::vector<int> numbers;
  for (auto const& part : tree.parts) {
    if (part.first.type != CaseOp::Combination) continue;
    auto at = std::lower_bound(m_combinations.begin(), m_combinations.end(), part.first.num);
    for (; at != m_combinations.end() && *at <= part.last; ++at) numbers.push_back(*at);
  }
  return numbers;
}

CountedCases const* CombinationsOfModel::Description(SCaseRef const& ref) const {
  static CountedCases const kMissing = Without(1);
  if (ref.type != CaseOp::Combination) return nullptr;
  auto const found = m_reached.find(ref.num);
  return found == m_reached.end() ? &kMissing : &found->second;
}

int CombinationsOfModel::Next(SCaseRef const& ref) const {
  if (ref.type != CaseOp::Analysis && ref.type != CaseOp::Combination) return ref.num + 1;
  auto const& numbers = ref.type == CaseOp::Analysis ? m_analysis : m_combinations;
  auto const next = std::upper_bound(numbers.begin(), numbers.end(), ref.num);
  return next == numbers.end() ? 0 : *next;
}

bool CombinationsOfModel::IsEndless(CString const& description) const {
  return std::find(m_endlessTexts.begin(), m_endlessTexts.end(), description) !=
         m_endlessTexts.end();
}

std::vector<int> CombinationsThatReachThemselves(CZelData const& model) {
  SCaseRef const first(CaseOp::Combination, 1);
  CasePart const all{CasePart::Kind::Range, first, model.HighestCombinationCase(), {}, {}};
  CombinationsOfModel const reached(model, CaseExpression{{all}, 0, {}});
  return {reached.Endless().begin(), reached.Endless().end()};
}

CaseResolution::CaseResolution(CZelData const& of, CString const& text)
    : model(&ModelAccess::Core(of)),
      revisions(RevisionsOf(of)),
      meaning(of, TreeOf(text)),
      cases(meaning.IsEndless(text) ? Without(0) : CountCases(TreeOf(text), meaning)) {}

bool CaseResolution::IsOf(CZelData const& of) const {
  return model == &ModelAccess::Core(of) && revisions == RevisionsOf(of);
}

int CCombCaseDesc::NumPermutation(CZelData const& model) const {
  auto kept = m_resolution.Get();
  if (kept == nullptr || !kept->IsOf(model)) {
    m_alternative.Clear();
    m_resolution.Set(CaseResolution(model, Text()));
    kept = m_resolution.Get();
  }
  return kept->cases.Total();
}

double CCombCaseDesc::CaseFactor(int permutation, SCaseRef const& ref) const {
  auto last = m_alternative.Get();
  if (last == nullptr || last->permutation != permutation) {
    m_alternative.Set({permutation, FactorsOf(Text(), m_resolution.Get().get(), permutation)});
    last = m_alternative.Get();
  }
  auto const found = last->factors.find(SCaseRef(ref.type, ref.num));
  return found == last->factors.end() ? 0 : found->second;
}

}  // namespace Tarvex::Data
