// Orthonormal frames.
#pragma once

#include <array>

#include "store/export.h"
#include "store/numeric/direction.h"
#include "store/numeric/vec.h"

namespace Tarvex::Util {

/// A right-handed orthonormal frame: three unit vectors given in global axes.
class TARVEX_STORE_EXPORT CDirCos {
 public:
  /// The global frame.
  CDirCos() = default;
  /// As Assign.
  CDirCos(Vec3<double> const& x, Vec3<double> const& xy) { Assign(x, xy); }

  /// Sets the frame from its x direction and a vector in the positive half of its xy plane; neither
  /// need be of unit length or at a right angle to the other.
  /// @return false, and the frame becomes the global one, when the two have no plane (one is
  /// shorter than 1e-10 or they are parallel).
  bool Assign(Vec3<double> const& x, Vec3<double> const& xy);

  /// Sets the frame from its z direction, kept to the last bit of its unit vector, and a vector in
  /// the positive half of its xz plane.
  /// @return false, and the frame becomes the global one, when the two have no plane, as Assign.
  bool AssignNormal(Vec3<double> const& z, Vec3<double> const& xz);

  /// Unit vector of an axis. @param positive false gives the opposite vector.
  Vec3<double> AxisVec(Direction axis, bool positive = true) const;

  /// Turns the components of a vector from global axes to this frame, and back.
  Vec3<double> GtoL(Vec3<double> const& global) const;
  Vec3<double> LtoG(Vec3<double> const& local) const;

  /// Turns the frame about one of its own axes. @param angle radians, right-handed.
  void Rotate(Direction axis, double angle);

  friend bool operator==(CDirCos const&, CDirCos const&) = default;

 private:
  std::array<Vec3<double>, 3> m_axes{Vec3<double>{1, 0, 0}, {0, 1, 0}, {0, 0, 1}};
};

}  // namespace Tarvex::Util
