#include "store/record/case_desc.h"

#include "store/cases/case_permutations.h"
#include "store/cases/case_resolution.h"
#include "store/select/interval_builder.h"

namespace Tarvex::Data {
namespace {

double FactorOf(std::map<SCaseRef, double> const& factors, SCaseRef const& ref) {
  auto const found = factors.find(SCaseRef(ref.type, ref.num));
  return found == factors.end() ? 0 : found->second;
}

}  // namespace

bool CaseText::SetDescription(CString const& text, CaseFault* fault) {
  if (!ReadCases(text, fault)) return false;
  m_text = text;
  return true;
}

double CCaseDesc::CaseFactor(Part part, int loadCase) const {
  auto tree = ReadCases(Text());
  if (!tree || (part == Part::PDelta && !tree->pDelta)) return 0;
  int const which = part == Part::PDelta ? *tree->pDelta : tree->whole;
  CasesAsWritten const meaning;
  auto const cases = CountCases(std::move(*tree), meaning);
  return FactorOf(CaseFactors(cases, which, 0, meaning), {CaseOp::Load, loadCase});
}

Intervals CCaseDesc::LoadCases() const {
  auto const tree = ReadCases(Text());
  if (!tree) return {};
  IntervalBuilder numbers;
  auto const end = static_cast<std::size_t>(tree->whole) + 1;  // the suffix stands behind
  for (std::size_t i = 0; i < end; ++i) {
    auto const& part = tree->parts[i];
    if (part.first.type == CaseOp::Load) numbers.Add({part.first.num, part.last});
  }
  return numbers.Take();
}

bool CCombCaseDesc::SetDescription(CString const& text, CaseFault* fault) {
  if (!CaseText::SetDescription(text, fault)) return false;
  m_resolution.Clear();
  return true;
}

int CCombCaseDesc::NumPermutation(CZelData const& model) const {
  auto kept = m_resolution.Get();
  if (kept == nullptr || !kept->IsOf(model)) {
    m_resolution.Set(CaseResolution(model, Text()));
    kept = m_resolution.Get();
  }
  return kept->cases.Total();
}

double CCombCaseDesc::CaseFactor(int permutation, SCaseRef const& ref) const {
  if (auto const kept = m_resolution.Get())
    return FactorOf(
        CaseFactors(kept->cases, kept->cases.tree.whole, permutation - 1, kept->meaning), ref);
  auto tree = ReadCases(Text());
  if (!tree) return 0;
  CasesAsWritten const meaning;
  auto const cases = CountCases(std::move(*tree), meaning);
  return FactorOf(CaseFactors(cases, cases.tree.whole, permutation - 1, meaning), ref);
}

}  // namespace Tarvex::Data
