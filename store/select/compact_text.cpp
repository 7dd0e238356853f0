#include "store/select/compact_text.h"

namespace Tarvex {

CString CompactText(std::span<int const> numbers) {
  constexpr std::size_t kShortestRun = 3;
  std::wstring text;
  for (std::size_t i = 0; i < numbers.size();) {
    auto end = i + 1;
    while (end < numbers.size() && numbers[end] == numbers[end - 1] + 1) ++end;
    if (end - i < kShortestRun) end = i + 1;
    if (!text.empty()) text += L' ';
    text += std::to_wstring(numbers[i]);
    if (end - i > 1) text += L" to " + std::to_wstring(numbers[end - 1]);
    i = end;
  }
  return text;
}

}  // namespace Tarvex
