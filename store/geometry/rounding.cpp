#include "store/geometry/rounding.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>

namespace Tarvex {
namespace {

/// Powers of ten up to this are doubles without an error.
constexpr int kExactPower = 22;
/// From here on doubles are even numbers, and all scaled values are their own rounding.
constexpr double kAllWhole = 9007199254740992.0;  // 2^53
/// Digits that tell any two doubles apart.
constexpr int kAllDigits = 17;
/// Decimals behind which no double has a digit.
constexpr int kAllDecimals = 1074;

constexpr auto kPowers = [] {
  std::array<double, kExactPower + 1> powers{1};
  for (std::size_t i = 1; i < powers.size(); ++i) powers[i] = powers[i - 1] * 10;
  return powers;
}();

double ExactPower(int exponent) { return kPowers[static_cast<std::size_t>(exponent)]; }

/// Rounds a value above 0 by 0 to 22 decimals. The product with the power of ten and its rounding
/// error make the exact product, and a quotient of two exact numbers is the nearest double.
double RoundScaled(double value, double power) {
  double const scaled = value * power;
  if (!(scaled < kAllWhole)) return value;
  double const error = std::fma(value, power, -scaled);
  double const whole = std::floor(scaled);
  double const part = scaled - whole;
  bool const up = part > 0.5 || (part == 0.5 && error >= 0) || error >= 0.5;
  return (up ? whole + 1 : whole) / power;
}

/// By way of text, which is exact for every double.
double RoundAsText(double value, std::chars_format format, int decimals) {
  std::array<char, kAllDecimals + 400> text;
  auto const end =
      std::to_chars(text.data(), text.data() + text.size(), value, format, decimals).ptr;
  double rounded = value;
  auto const read = std::from_chars(text.data(), end, rounded);
  return read.ec == std::errc() ? rounded : value;  // above the highest double there is none
}

double RoundDigits(double value, int digits) {
  if (value == 0 || !std::isfinite(value) || digits >= kAllDigits) return value;
  double const size = std::abs(value);
  int decimals = std::max(digits, 1) - 1 - static_cast<int>(std::floor(std::log10(size)));
  // The logarithm may round up to the next whole number or down from it.
  if (decimals >= 0 && decimals <= kExactPower && digits < kAllDigits - 1) {
    double const limit = ExactPower(std::max(digits, 1));
    double const scaled = size * ExactPower(decimals);
    if (scaled >= limit) --decimals;
    if (scaled * 10 < limit) ++decimals;
    if (decimals >= 0 && decimals <= kExactPower)
      return std::copysign(RoundScaled(size, ExactPower(decimals)), value);
  }
  return RoundAsText(value, std::chars_format::scientific, std::max(digits, 1) - 1);
}

}  // namespace

double Round(double value, int decimals) {
  if (!std::isfinite(value) || decimals > kAllDecimals) return value;
  if (decimals > kExactPower) return RoundAsText(value, std::chars_format::fixed, decimals);
  return std::copysign(RoundScaled(std::abs(value), ExactPower(std::max(decimals, 0))), value);
}

Vec3<double> Round(Vec3<double> const& v, int digits) {
  return {RoundDigits(v.x, digits), RoundDigits(v.y, digits), RoundDigits(v.z, digits)};
}

}  // namespace Tarvex
