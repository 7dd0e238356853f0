// Boxes along the global axes.
#pragma once

#include <algorithm>

#include "store/numeric/vec.h"

namespace Tarvex::Util {

/// The smallest box along the axes that holds all points added to it; empty at first.
class CBox3D {
 public:
  void AddPoint(Vec3<double> const& p) {
    m_min = m_empty ? p
                    : Vec3<double>{std::min(m_min.x, p.x), std::min(m_min.y, p.y),
                                   std::min(m_min.z, p.z)};
    m_max = m_empty ? p
                    : Vec3<double>{std::max(m_max.x, p.x), std::max(m_max.y, p.y),
                                   std::max(m_max.z, p.z)};
    m_empty = false;
  }

  bool IsEmpty() const { return m_empty; }
  /// Lowest and highest corner; the origin while the box is empty.
  Vec3<double> const& Min() const { return m_min; }
  Vec3<double> const& Max() const { return m_max; }
  Vec3<double> Centre() const { return (m_min + m_max) * 0.5; }
  double Left() const { return m_min.x; }
  double Right() const { return m_max.x; }
  double Front() const { return m_min.y; }
  double Back() const { return m_max.y; }
  /// True for a point in the box or on its boundary; an empty box holds none.
  bool PointInside(Vec3<double> const& p) const {
    return !m_empty && p.x >= m_min.x && p.x <= m_max.x && p.y >= m_min.y && p.y <= m_max.y &&
           p.z >= m_min.z && p.z <= m_max.z;
  }

 private:
  bool m_empty = true;
  Vec3<double> m_min;
  Vec3<double> m_max;
};

}  // namespace Tarvex::Util
