#include "store/select/compact_text.h"

#include "store/select/list_rewrite.h"

namespace Tarvex {

CString CompactText(Intervals const& numbers) {
  return Data::WriteListTokens({Data::CompactWords(numbers), {}});
}

CString CompactText(std::span<int const> numbers) {
  Intervals runs;
  for (int const number : numbers) runs.Append({number, number});
  return CompactText(runs);
}

}  // namespace Tarvex
