// Local frames of lines, plates and solids: points in, frame out.
#pragma once

#include <optional>
#include <span>

#include "store/export.h"
#include "store/numeric/dir_cos.h"

namespace Tarvex {

/// Whether the sine of the angle between a direction and the global Z axis is at most the
/// tolerance; false for the zero vector.
TARVEX_STORE_EXPORT bool IsVertical(Vec3<double> const& direction, double sineTolerance);
/// Whether the sine of the angle between a direction and the level plane is at most the tolerance;
/// false for the zero vector.
TARVEX_STORE_EXPORT bool IsHorizontal(Vec3<double> const& direction, double sineTolerance);

namespace Util {

/// Frame of a line; see EntityQueries::ElemDC. @param angle degrees. @param verticalTolerance sine
/// of the angle within which a line is vertical. The global frame for a line without length.
TARVEX_STORE_EXPORT CDirCos LineFrame(Vec3<double> const& start, Vec3<double> const& end,
                                      std::optional<Vec3<double>> const& orientation, double angle,
                                      double verticalTolerance);

/// Twice the area of a closed polygon times its normal, by M. E. Newell's sum over its edges. Right
/// for polygons that are not plane, where it is the normal of the mean plane.
TARVEX_STORE_EXPORT Vec3<double> PolygonNormal(std::span<Vec3<double> const> points);

/// Frame of a plate by its corners; see EntityQueries::ElemDC. @param angle degrees. The global
/// frame for a plate without area.
TARVEX_STORE_EXPORT CDirCos PlateFrame(std::span<Vec3<double> const> corners, double angle);

}  // namespace Util
}  // namespace Tarvex
