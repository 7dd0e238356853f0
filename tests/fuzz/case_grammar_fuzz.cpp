// Any text as a description of cases: it is refused with a place inside it, or counted and
// evaluated the same way twice.
#include <cstdint>

#include "store/select/case_permutations.h"
#include "tests/fuzz/require.h"

namespace Tarvex::Data {
namespace {

void Check(CString const& text) {
  CaseFault fault{-1, {}};
  auto const tree = ReadCases(text, &fault);
  if (!tree) {
    Testing::Require(fault.position >= 0 && fault.position <= text.GetLength(),
                     "a fault is inside the text or at its end");
    return Testing::Require(!fault.reason.IsEmpty(), "a fault has a reason");
  }
  CasesAsWritten const meaning;
  auto const cases = CountCases(*tree, meaning);
  int const total = cases.Total();
  Testing::Require(total >= 0, "a description has some alternatives or none");
  for (int const index : {0, total / 2, total - 1}) {
    auto const factors = CaseFactors(cases, tree->whole, index, meaning);
    Testing::Require(factors == CaseFactors(cases, tree->whole, index, meaning),
                     "an alternative is the same each time");
  }
  Testing::Require(CaseFactors(cases, tree->whole, total, meaning).empty(),
                   "there is no alternative behind the last");
}

}  // namespace
}  // namespace Tarvex::Data

extern "C" int LLVMFuzzerTestOneInput(std::uint8_t const* data, std::size_t size) {
  Tarvex::Data::Check(Tarvex::CString::FromUtf8({reinterpret_cast<char const*>(data), size}));
  return 0;
}
