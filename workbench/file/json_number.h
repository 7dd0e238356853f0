// The text of JSON numbers.
#pragma once

#include <charconv>
#include <cmath>
#include <string>

namespace Tarvex::Workbench {

/// Offset behind the number that begins at a place, in the strict grammar of JSON (no leading zero
/// or plus sign, digits on both sides of a point); null when no number does.
/// @param at is followed by a character that is part of no number, such as a zero byte.
char const* EndOfJsonNumber(char const* at);

/// Whether a character may follow a number or another word of JSON.
inline bool EndsJsonWord(char c) {
  return c == ',' || c == ']' || c == '}' || c == ' ' || c == '\n' || c == '\t' || c == '\r';
}

/// The double nearest to the number that stands from one place to another; infinite when it is
/// above the range of doubles, zero when it is too small.
double JsonNumberValue(char const* begin, char const* end);

/// Appends the shortest text that reads back the same bits. The value must be finite.
inline void AppendJsonNumber(std::string& json, double value) {
  char text[32];
  constexpr double kFixedIsShortest = 100000;  // up to here whole numbers need no exponent
  auto const whole = static_cast<int>(std::abs(value) < kFixedIsShortest ? value : 0);
  bool const isWhole = static_cast<double>(whole) == value && (whole != 0 || !std::signbit(value));
  auto* const end = std::end(text);
  auto const result = isWhole ? std::to_chars(text, end, whole) : std::to_chars(text, end, value);
  json.append(text, result.ptr);
}

inline void AppendJsonNumber(std::string& json, int value) {
  char text[16];
  json.append(text, std::to_chars(text, std::end(text), value).ptr);
}

}  // namespace Tarvex::Workbench
