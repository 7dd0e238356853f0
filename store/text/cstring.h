// Wide text of the model: names, identifiers and messages.
//
// All text inside the model is wide; UTF-8 stands at the border of files and terminal only.
// Positions count characters from 0. Formatting knows no locale: a number has a point everywhere.
#pragma once

#include <compare>
#include <string>
#include <string_view>
#include <type_traits>
#include <utility>
#include <variant>
#include <vector>

#include "store/export.h"

namespace Tarvex {

class CString;

namespace Text {

/// One argument of CString::Format, by kind.
using FormatArg = std::variant<int, unsigned int, long long, unsigned long long, double, wchar_t,
                               std::wstring_view>;

/// Formats in the manner of printf; throws std::invalid_argument when an argument does not fit its
/// place in the format or is missing.
TARVEX_STORE_EXPORT std::wstring FormatText(std::wstring_view format,
                                            std::vector<FormatArg> const& args);

}  // namespace Text

/// A wide string with the operations that the tools use.
class CString {
 public:
  CString() = default;
  CString(wchar_t const* text) : m_text(text) {}  // NOLINT: text literals convert by intent
  CString(std::wstring text) : m_text(std::move(text)) {}  // NOLINT: a wide string is a text
  explicit CString(std::wstring_view text) : m_text(text) {}

  /// The text as UTF-8 reads it; bytes that are no UTF-8 become U+FFFD each.
  TARVEX_STORE_EXPORT static CString FromUtf8(std::string_view utf8);
  /// The text as UTF-8; a code that is no character becomes U+FFFD.
  TARVEX_STORE_EXPORT std::string ToUtf8() const;

  std::wstring const& Str() const { return m_text; }
  operator std::wstring_view() const { return m_text; }  // NOLINT: reading view of the same text
  wchar_t const* c_str() const { return m_text.c_str(); }
  int GetLength() const { return static_cast<int>(m_text.size()); }
  bool IsEmpty() const { return m_text.empty(); }

  /// Replaces the text by the formatted one: %i %d %u %s %g %f %c as printf has them, with width
  /// and precision; %s takes any text. Throws std::invalid_argument when an argument does not fit.
  template <class... Args>
  void Format(std::wstring_view format, Args const&... args) {
    m_text = Text::FormatText(format, {ToArg(args)...});
  }

  /// Position of the first occurrence at or behind start, -1 when there is none.
  TARVEX_STORE_EXPORT int Find(std::wstring_view sub, int start = 0) const;
  /// The first count characters; all when there are fewer, none for a negative count.
  TARVEX_STORE_EXPORT CString Left(int count) const;
  /// The characters from first on (count of them at most); a negative first counts as 0.
  TARVEX_STORE_EXPORT CString Mid(int first) const;
  TARVEX_STORE_EXPORT CString Mid(int first, int count) const;
  /// The last count characters; all when there are fewer, none for a negative count.
  TARVEX_STORE_EXPORT CString Right(int count) const;

  /// Below, at or above 0 as this text sorts before, with or behind the other by character code.
  int Compare(std::wstring_view other) const { return std::wstring_view(m_text).compare(other); }
  /// As Compare, with the letters A to Z taken as a to z.
  TARVEX_STORE_EXPORT int CompareNoCase(std::wstring_view other) const;

  /// Takes the given characters off one end; blanks and line ends unless told otherwise.
  TARVEX_STORE_EXPORT CString& TrimRight(std::wstring_view characters = L" \t\r\n");
  TARVEX_STORE_EXPORT CString& TrimLeft(std::wstring_view characters = L" \t\r\n");

  CString& operator+=(std::wstring_view other) {
    m_text += other;
    return *this;
  }
  friend CString operator+(CString left, std::wstring_view right) { return left += right; }
  friend bool operator==(CString const&, CString const&) = default;
  friend bool operator==(CString const& a, wchar_t const* b) { return a.m_text == b; }
  friend std::strong_ordering operator<=>(CString const&, CString const&) = default;

 private:
  template <class T>
  static Text::FormatArg ToArg(T const& value) {
    if constexpr (std::is_enum_v<T>) {
      return static_cast<int>(value);
    } else if constexpr (std::is_same_v<T, wchar_t> || std::is_same_v<T, char>) {
      return static_cast<wchar_t>(value);
    } else if constexpr (std::is_floating_point_v<T>) {
      return static_cast<double>(value);
    } else if constexpr (std::is_integral_v<T>) {
      using Wide = std::conditional_t<std::is_signed_v<T>, long long, unsigned long long>;
      using Narrow = std::conditional_t<std::is_signed_v<T>, int, unsigned int>;
      return static_cast<std::conditional_t<(sizeof(T) > sizeof(int)), Wide, Narrow>>(value);
    } else {
      return std::wstring_view(value);
    }
  }

  std::wstring m_text;
};

}  // namespace Tarvex
