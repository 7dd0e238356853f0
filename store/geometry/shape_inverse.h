// The natural co-ordinates of a point of a surface or solid: Newton's method on the shape
// functions.
#pragma once

#include <span>

#include "store/geometry/shape_functions.h"

namespace Tarvex::Util {

/// See CShape::FindRS. @param natural is set when the result is true.
bool FindNatural(SpaceType space, std::span<Vec3<double> const> nodes, Vec3<double> const& point,
                 double tol, Vec3<double>& natural) noexcept;

/// See CShape::HoldsRS.
bool HoldsNatural(SpaceType space, std::span<Vec3<double> const> nodes, Vec3<double> const& natural,
                  double tol) noexcept;

}  // namespace Tarvex::Util
