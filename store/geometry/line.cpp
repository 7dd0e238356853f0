#include "store/geometry/line.h"

#include <limits>

namespace Tarvex {

LineDistance DistanceBetweenLines(Vec3<double> const& a0, Vec3<double> const& a1,
                                  Vec3<double> const& b0, Vec3<double> const& b1) {
  constexpr double kNone = std::numeric_limits<double>::quiet_NaN();
  constexpr double kParallel = 1e-10;  // sine of the angle
  auto const a = Unit(a1 - a0, kZeroLength);
  auto const b = Unit(b1 - b0, kZeroLength);
  auto const between = b0 - a0;
  auto const normal = Cross(a, b);
  double const sine = Length(normal);
  if (!(sine >= kParallel)) {
    // A line without length has no direction, the other one gives it then.
    auto const along = a == Vec3<double>{} ? b : a;
    return {kNone, kNone, Length(between - along * Dot(between, along))};
  }
  auto const n = normal / sine;
  return {Dot(Cross(between, b), n) / sine / Length(a1 - a0),
          Dot(Cross(between, a), n) / sine / Length(b1 - b0), std::abs(Dot(between, n))};
}

}  // namespace Tarvex
