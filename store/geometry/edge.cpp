#include "store/geometry/edge.h"

#include <algorithm>
#include <cmath>

#include "store/geometry/line.h"

namespace Tarvex::Data {
namespace {

Vec3<double> OnPlane(Vec2<double> p) { return {p.x, p.y, 0}; }

/// Whether a fraction of a length lies within it, or behind its ends by no more than a zero length.
bool IsWithinLength(double fraction, double length) {
  return fraction * length >= -kZeroLength && (fraction - 1) * length <= kZeroLength;
}

}  // namespace

Vec2<double> CEdge::Point(double fraction) const {
  return fraction == 1 ? m_end : m_start + (m_end - m_start) * fraction;
}

bool CEdge::Intersect(CEdge const& other, Vec2<double>& point, int mode) const {
  auto const crossing = DistanceBetweenLines(OnPlane(m_start), OnPlane(m_end),
                                             OnPlane(other.m_start), OnPlane(other.m_end));
  if (std::isnan(crossing.ra)) return false;
  bool const within = mode == kWithin;
  if (within &&
      !(IsWithinLength(crossing.ra, Length()) && IsWithinLength(crossing.rb, other.Length())))
    return false;
  point = Point(within ? std::clamp(crossing.ra, 0.0, 1.0) : crossing.ra);
  return true;
}

double CEdge::Distance(Vec2<double> point, double& fraction) const {
  auto const along = m_end - m_start;
  double const square = Dot(along, along);
  double const t = square > 0 ? Dot(point - m_start, along) / square : 0;
  fraction = std::clamp(t, 0.0, 1.0);
  return Tarvex::Length(point - Point(fraction));
}

}  // namespace Tarvex::Data
