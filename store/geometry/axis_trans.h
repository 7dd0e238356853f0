// Co-ordinates in a user axis and in the global axes.
#pragma once

#include "store/export.h"
#include "store/numeric/dir_cos.h"
#include "store/record/axis.h"

namespace Tarvex::Util {

/// Turns points from the global axes to the co-ordinates of an axis and back. At first the global
/// axes.
///
/// Co-ordinates of a user axis with the directions x, y, z:
///   cartesian    x, y, z
///   cylindrical  distance from the z axis; angle from x towards y; z
///   spherical    distance from the origin; azimuth, as the angle before; polar angle from z
/// Angles are radians. The angle and the azimuth run from 0 to below 2 pi and are 0 for a point on
/// the z axis, or as near to it as rounding of the co-ordinates goes; the polar angle runs from 0
/// to pi.
class TARVEX_STORE_EXPORT CAxisTrans {
 public:
  CAxisTrans() = default;
  explicit CAxisTrans(Data::CAxis const& axis) { Assign(axis); }

  /// Takes an axis with its type.
  void Assign(Data::CAxis const& axis);
  /// Takes a cartesian axis by its origin, its x direction and a vector in its xy plane; both are
  /// relative to the origin. @return false, and the directions become the global ones, when the two
  /// have no plane; see CDirCos::Assign.
  bool Assign(Vec3<double> const& origin, Vec3<double> const& x, Vec3<double> const& xy);
  /// Takes a cartesian axis by its frame and origin.
  void Assign(CDirCos const& frame, Vec3<double> const& origin);

  Vec3<double> Global2User(Vec3<double> const& global) const;
  Vec3<double> User2Global(Vec3<double> const& user) const;

  Vec3<double> const& Origin() const { return m_origin; }
  /// The frame of x, y and z.
  CDirCos const& DirCos() const { return m_frame; }
  /// The frame of the co-ordinates at a point in global axes; see Data::CAxis::DirCos.
  CDirCos DirCos(Vec3<double> const& global) const;

 private:
  Vec3<double> ToCylindrical(Vec3<double> const& local) const;

  AxisType m_type = AxisType::Cartesian;
  Vec3<double> m_origin;
  CDirCos m_frame;
};

}  // namespace Tarvex::Util
