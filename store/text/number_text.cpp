#include "store/text/number_text.h"

#include <charconv>
#include <system_error>

namespace Tarvex {
namespace {

/// Room for any number in its shortest form.
constexpr std::size_t kLongestNumber = 40;

template <class Number>
CString TextOf(Number value) {
  char digits[kLongestNumber];
  auto const end = std::to_chars(digits, digits + kLongestNumber, value).ptr;
  return CString(std::wstring(digits, end));
}

}  // namespace

bool StringTo(CString const& text, int& value) {
  auto const utf8 = text.ToUtf8();
  auto const* first = utf8.data();
  auto const* const last = first + utf8.size();
  bool const plus = utf8.size() > 1 && utf8[0] == '+' && utf8[1] != '-';
  int number = 0;
  auto const read = std::from_chars(first + (plus ? 1 : 0), last, number);
  if (read.ec != std::errc() || read.ptr != last) return false;
  value = number;
  return true;
}

CString StringFrom(int value) { return TextOf(value); }
CString StringFrom(double value) { return TextOf(value); }

CString MakeNumString(CString const& word, int number) { return word + L" " + StringFrom(number); }

namespace Util {

CString ReplaceHash(CString const& text, int number) {
  std::wstring replaced;
  auto const digits = StringFrom(number);
  for (wchar_t const character : text.Str()) {
    if (character == L'#')
      replaced += digits.Str();
    else
      replaced += character;
  }
  return CString(std::move(replaced));
}

CString ColString(int column) {
  constexpr int kLetters = 26;
  std::wstring text;
  for (; column > 0; column = (column - 1) / kLetters)
    text.insert(text.begin(), static_cast<wchar_t>(L'A' + (column - 1) % kLetters));
  return text;
}

}  // namespace Util
}  // namespace Tarvex
