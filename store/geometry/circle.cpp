#include "store/geometry/circle.h"

#include <algorithm>

namespace Tarvex {

bool ArcCentre(Vec3<double> const& p0, Vec3<double> const& pL, Vec3<double> const& v,
               Vec3<double>& centre) {
  constexpr double kOnLine = 1e-10;  // sine of the angle at p0
  auto const a = pL - p0;
  auto const b = v - p0;
  double const la = Length(a);
  double const lb = Length(b);
  if (!(std::min({la, lb, Length(v - pL)}) >= kZeroLength)) return false;
  auto const ea = a / la;
  auto const eb = b / lb;
  auto const normal = Cross(ea, eb);
  double const sine = Length(normal);
  if (!(sine >= kOnLine)) return false;
  auto const n = normal / sine;
  // The bisecting planes of both chords meet in the plane of the points: with c from p0,
  // c . ea = la / 2 and c . eb = lb / 2.
  centre = p0 + (Cross(eb, n) * la + Cross(n, ea) * lb) / (2 * sine);
  return true;
}

bool CircleCentre(Vec2<double> p0, Vec2<double> pL, Vec2<double> v, Vec2<double>& centre) {
  Vec3<double> found;
  if (!ArcCentre({p0.x, p0.y, 0}, {pL.x, pL.y, 0}, {v.x, v.y, 0}, found)) return false;
  centre = {found.x, found.y};
  return true;
}

}  // namespace Tarvex
