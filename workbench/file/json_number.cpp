#include "workbench/file/json_number.h"

#include <algorithm>
#include <limits>

namespace Tarvex::Workbench {
namespace {

bool IsDigit(char c) { return c >= '0' && c <= '9'; }

char const* SkipDigits(char const* at) {
  while (IsDigit(*at)) ++at;
  return at;
}

/// Behind at least one digit, or null.
char const* SomeDigits(char const* at) { return IsDigit(*at) ? SkipDigits(at) : nullptr; }

/// Power of ten of the first digit that is not 0; numbers of a power above 0 are 10 and more.
long long LeadingPower(char const* at, char const* end) {
  auto const* const exponent = std::find_if(at, end, [](char c) { return c == 'e' || c == 'E'; });
  auto const* const point = std::find(at, exponent, '.');
  auto const* const lead =
      std::find_if(at, exponent, [](char c) { return IsDigit(c) && c != '0'; });
  long long power = lead < point ? point - lead - 1 : point - lead;
  if (exponent == end) return power;
  auto const* digits = exponent + 1;
  bool const negative = *digits == '-';
  if (!IsDigit(*digits)) ++digits;
  constexpr long long kMost = 1'000'000'000'000;  // beyond the length of any file
  long long value = 0;
  for (; digits < end; ++digits) value = std::min(kMost, value * 10 + (*digits - '0'));
  return power + (negative ? -value : value);
}

}  // namespace

char const* EndOfJsonNumber(char const* at) {
  if (*at == '-') ++at;
  at = *at == '0' ? at + 1 : SomeDigits(at);
  if (at != nullptr && *at == '.') at = SomeDigits(at + 1);
  if (at == nullptr || (*at != 'e' && *at != 'E')) return at;
  ++at;
  return SomeDigits(*at == '+' || *at == '-' ? at + 1 : at);
}

double JsonNumberValue(char const* begin, char const* end) {
  double value = 0;
  auto const error = std::from_chars(begin, end, value).ec;
  if (error != std::errc::result_out_of_range) return value;
  double const size = LeadingPower(begin, end) > 0 ? std::numeric_limits<double>::infinity() : 0;
  return *begin == '-' ? -size : size;
}

}  // namespace Tarvex::Workbench
