// Areas of plane figures and their moments.
#pragma once

#include <span>

#include "store/export.h"
#include "store/numeric/vec.h"

namespace Tarvex::Util {

/// Area of a plane figure with its first and second moments, all about the origin of its plane, so
/// that those of figures put together are the sums.
struct TARVEX_STORE_EXPORT AreaMoments {
  double area = 0;
  Vec2<double> first;  ///< integrals of x and of y
  double xx = 0;       ///< integral of x squared
  double yy = 0;       ///< integral of y squared
  double xy = 0;       ///< integral of x y

  AreaMoments& operator+=(AreaMoments const& other);
  friend AreaMoments operator*(AreaMoments const& moments, double factor) {
    return {moments.area * factor, moments.first * factor, moments.xx * factor, moments.yy * factor,
            moments.xy * factor};
  }

  /// The origin where there is no area.
  Vec2<double> Centroid() const;
};

/// Moments of a polygon, above 0 for one that runs anticlockwise (Green's theorem).
TARVEX_STORE_EXPORT AreaMoments MomentsOfPolygon(std::span<Vec2<double> const> corners);
/// Moments of a disc about its centre.
TARVEX_STORE_EXPORT AreaMoments MomentsOfDisc(double radius);
/// Moments of what a quarter of a circle leaves of the square around it, about the corner of the
/// square that the circle does not reach; the square lies in the quadrant of positive x and y. It
/// is what a root fillet adds to a corner and what rounding takes from one.
TARVEX_STORE_EXPORT AreaMoments MomentsOfFillet(double radius);
/// The moments of a figure turned about the origin by an angle in radians, then moved.
TARVEX_STORE_EXPORT AreaMoments Placed(AreaMoments const& moments, double angle,
                                       Vec2<double> shift);
/// The moments of a figure mirrored so that x and y have these signs.
TARVEX_STORE_EXPORT AreaMoments Mirrored(AreaMoments const& moments, double signX, double signY);
/// The moments about the figure's centroid.
TARVEX_STORE_EXPORT AreaMoments AboutCentroid(AreaMoments const& moments);

}  // namespace Tarvex::Util
