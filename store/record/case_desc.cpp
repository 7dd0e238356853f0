#include "store/record/case_desc.h"

#include "store/select/case_permutations.h"
#include "store/select/interval_builder.h"

namespace Tarvex::Data {
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
  return FactorOfCase(cases, which, 0, meaning, {CaseOp::Load, loadCase});
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
  m_alternative.Clear();
  return true;
}

}  // namespace Tarvex::Data
