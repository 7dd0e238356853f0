#include "store/record/case_refs.h"

#include "store/select/case_tokens.h"

namespace Tarvex::Data {
namespace {

bool IsCaseDigit(wchar_t character) { return character >= L'0' && character <= L'9'; }

bool IsCaseLetter(wchar_t character) {
  return (character >= L'A' && character <= L'Z') || (character >= L'a' && character <= L'z');
}

}  // namespace

std::vector<SCaseRef> CasesIn(CString const& description) {
  std::vector<SCaseRef> cases;
  auto const& text = description.Str();
  for (std::size_t i = 0; i + 1 < text.size(); ++i) {
    auto const kind = CaseOfLetter(text[i]);
    bool const alone = i == 0 || !IsCaseLetter(text[i - 1]);
    if (kind == CaseOp::None || !alone || !IsCaseDigit(text[i + 1])) continue;
    long long number = 0;
    for (++i; i < text.size() && IsCaseDigit(text[i]); ++i)
      if (number <= kHighestNumber) number = number * 10 + (text[i] - L'0');
    --i;
    if (number >= 1 && number <= kHighestNumber) cases.emplace_back(kind, static_cast<int>(number));
  }
  return cases;
}

}  // namespace Tarvex::Data
