#include "store/numeric/scalar.h"

#include <algorithm>
#include <cmath>
#include <stdexcept>

#include "store/numeric/vec.h"

namespace Tarvex {

double ArcCos(double cosine) {
  constexpr double kHighest = 1.000001;
  if (!(std::abs(cosine) <= kHighest))
    throw std::runtime_error("ArcCos: function value out of range");
  if (cosine >= 1) return 0;
  return cosine <= -1 ? kPi : std::acos(cosine);
}

bool IsAboutEqual(double a, double b) {
  constexpr double kLeast = 1e-6;
  constexpr double kShare = 0.01 / 200.0;  // of the sum of the sizes
  return a == b || std::max(kLeast, (std::abs(a) + std::abs(b)) * kShare) > std::abs(a - b);
}

}  // namespace Tarvex
