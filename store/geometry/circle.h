// Circles through three points.
#pragma once

#include "store/export.h"
#include "store/numeric/vec.h"

namespace Tarvex {

/// Centre of the circle through three points in space, in their plane.
/// @return false, and the centre is untouched, when there is none: two points are closer than 1e-10
/// or the three lie on a line (the sine of the angle at the first is below 1e-10), or one is not
/// finite.
TARVEX_STORE_EXPORT bool ArcCentre(Vec3<double> const& p0, Vec3<double> const& pL,
                                   Vec3<double> const& v, Vec3<double>& centre);

/// The same in the plane, for the circle of an arc from p0 to pL by way of v.
TARVEX_STORE_EXPORT bool CircleCentre(Vec2<double> p0, Vec2<double> pL, Vec2<double> v,
                                      Vec2<double>& centre);

}  // namespace Tarvex
