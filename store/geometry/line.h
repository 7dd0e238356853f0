// Straight lines in space: their length and where two of them come closest.
#pragma once

#include "store/export.h"
#include "store/numeric/vec.h"

namespace Tarvex {

/// Where two lines come closest.
struct LineDistance {
  double ra;        ///< along the first line, 0 at its first point, 1 at its second
  double rb;        ///< along the second line
  double distance;  ///< shortest distance, model length units
};

/// Where the endless lines through a0, a1 and b0, b1 come closest. Lines are parallel when the sine
/// of their angle is below 1e-10: their fractions are NaN and the distance is that between them. So
/// it is with a line shorter than 1e-10, which counts as its first point.
TARVEX_STORE_EXPORT LineDistance DistanceBetweenLines(Vec3<double> const& a0,
                                                      Vec3<double> const& a1,
                                                      Vec3<double> const& b0,
                                                      Vec3<double> const& b1);

namespace Data {

/// A line from one point to another.
class CLine3 {
 public:
  CLine3(Vec3<double> const& start, Vec3<double> const& end) : m_start(start), m_end(end) {}

  Vec3<double> const& Start() const { return m_start; }
  Vec3<double> const& End() const { return m_end; }
  double Length() const { return Tarvex::Length(m_end - m_start); }
  /// The point at a fraction of the length.
  Vec3<double> Point(double fraction) const { return m_start + (m_end - m_start) * fraction; }

  /// Where this line and another, both endless, come closest; see DistanceBetweenLines.
  /// @param r1, r2 fractions of the length of this line and of the other.
  /// @param distance the shortest distance.
  /// @return false for parallel lines and lines without length; only the distance is set then.
  bool Intersect(CLine3 const& other, double& r1, double& r2, double& distance) const {
    auto const closest = DistanceBetweenLines(m_start, m_end, other.m_start, other.m_end);
    distance = closest.distance;
    if (std::isnan(closest.ra)) return false;
    r1 = closest.ra;
    r2 = closest.rb;
    return true;
  }

 private:
  Vec3<double> m_start;
  Vec3<double> m_end;
};

}  // namespace Data
}  // namespace Tarvex
