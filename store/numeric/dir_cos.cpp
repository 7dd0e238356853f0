#include "store/numeric/dir_cos.h"

namespace Tarvex::Util {

bool CDirCos::Assign(Vec3<double> const& x, Vec3<double> const& xy) {
  m_axes = CDirCos().m_axes;
  if (Length(x) < kZeroLength || Length(xy) < kZeroLength) return false;
  auto const ex = x / Length(x);
  auto const z = Cross(ex, xy / Length(xy));
  if (Length(z) < kZeroLength) return false;
  auto const ez = z / Length(z);
  m_axes = {ex, Cross(ez, ex), ez};
  return true;
}

bool CDirCos::AssignNormal(Vec3<double> const& z, Vec3<double> const& xz) {
  m_axes = CDirCos().m_axes;
  auto const ez = Unit(z);
  auto x = xz - ez * Dot(xz, ez);
  if (ez == Vec3<double>{} || Length(x) < kZeroLength) return false;
  x = x / Length(x);
  x = x -
      ez * Dot(x, ez);  // once more: the first remainder may be small against what was taken off
  auto const ex = Unit(x);
  m_axes = {ex, Cross(ez, ex), ez};
  return true;
}

Vec3<double> CDirCos::AxisVec(Direction axis, bool positive) const {
  auto const& v = m_axes[static_cast<std::size_t>(axis - Direction::X) % 3];
  return positive ? v : -v;
}

Vec3<double> CDirCos::GtoL(Vec3<double> const& global) const {
  return {Dot(m_axes[0], global), Dot(m_axes[1], global), Dot(m_axes[2], global)};
}

Vec3<double> CDirCos::LtoG(Vec3<double> const& local) const {
  return m_axes[0] * local.x + m_axes[1] * local.y + m_axes[2] * local.z;
}

void CDirCos::Rotate(Direction axis, double angle) {
  auto const k = static_cast<std::size_t>(axis - Direction::X) % 3;
  auto const a = m_axes[(k + 1) % 3];
  auto const b = m_axes[(k + 2) % 3];
  double const c = std::cos(angle);
  double const s = std::sin(angle);
  m_axes[(k + 1) % 3] = a * c + b * s;
  m_axes[(k + 2) % 3] = b * c - a * s;
}

}  // namespace Tarvex::Util
