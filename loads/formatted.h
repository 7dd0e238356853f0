// Texts in one expression.
#pragma once

#include "store/text/cstring.h"

namespace Tarvex {

/// The text that CString::Format makes.
template <class... Args>
CString Formatted(std::wstring_view format, Args const&... args) {
  CString text;
  text.Format(format, args...);
  return text;
}

/// Takes blanks, then plus signs, then blanks off the end of a text.
inline void TrimSum(CString& text) { text.TrimRight().TrimRight(L"+").TrimRight(); }

}  // namespace Tarvex
