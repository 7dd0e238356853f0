#include "store/geometry/axis_trans.h"

#include <algorithm>
#include <cmath>

namespace Tarvex::Util {
namespace {

double LargestPart(Vec3<double> const& v) {
  return std::max({std::abs(v.x), std::abs(v.y), std::abs(v.z)});
}

/// The angle from x towards y, from 0 to below 2 pi.
double FullAngle(double x, double y) {
  double const angle = std::atan2(y, x);
  double const full = angle < 0 ? angle + 2 * kPi : angle;
  return full < 2 * kPi ? full : 0;  // an angle just below 0 rounds to 2 pi
}

}  // namespace

void CAxisTrans::Assign(Data::CAxis const& axis) {
  Assign(axis.Frame(), axis.Origin());
  m_type = axis.Type();
}

bool CAxisTrans::Assign(Vec3<double> const& origin, Vec3<double> const& x, Vec3<double> const& xy) {
  CDirCos frame;
  bool const plane = frame.Assign(x, xy);
  Assign(frame, origin);
  return plane;
}

void CAxisTrans::Assign(CDirCos const& frame, Vec3<double> const& origin) {
  m_type = AxisType::Cartesian;
  m_origin = origin;
  m_frame = frame;
}

Vec3<double> CAxisTrans::ToCylindrical(Vec3<double> const& local) const {
  double const radius = std::hypot(local.x, local.y);
  double const rounding = 2 * kZeroVector * (LargestPart(local) + LargestPart(m_origin));
  return {radius, radius <= rounding ? 0 : FullAngle(local.x, local.y), local.z};
}

Vec3<double> CAxisTrans::Global2User(Vec3<double> const& global) const {
  auto const local = m_frame.GtoL(global - m_origin);
  if (m_type != AxisType::Cylindrical && m_type != AxisType::Spherical) return local;
  auto const round = ToCylindrical(local);
  if (m_type == AxisType::Cylindrical) return round;
  return {std::hypot(round.x, round.z), round.y, std::atan2(round.x, round.z)};
}

Vec3<double> CAxisTrans::User2Global(Vec3<double> const& user) const {
  auto local = user;
  if (m_type == AxisType::Spherical)
    local = {user.x * std::sin(user.z), user.y, user.x * std::cos(user.z)};
  if (m_type == AxisType::Cylindrical || m_type == AxisType::Spherical)
    local = {local.x * std::cos(local.y), local.x * std::sin(local.y), local.z};
  return m_origin + m_frame.LtoG(local);
}

CDirCos CAxisTrans::DirCos(Vec3<double> const& global) const {
  auto frame = m_frame;
  if (m_type != AxisType::Cylindrical && m_type != AxisType::Spherical) return frame;
  auto const round = ToCylindrical(m_frame.GtoL(global - m_origin));
  frame.Rotate(Direction::Z, round.y);
  if (m_type == AxisType::Spherical) frame.Rotate(Direction::Y, -std::atan2(round.z, round.x));
  return frame;
}

}  // namespace Tarvex::Util
