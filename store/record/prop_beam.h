// What a beam is to an analysis at one place along it.
#pragma once

#include <limits>

namespace Tarvex::Data {

/// Section and material of a beam put together; model units. Second moments are about the centroid.
struct CPropBeam {
  double area = 0;
  double iyy = 0;
  double izz = 0;
  double iyz = 0;
  double youngsModulus = 0;   ///< of the first component
  double additionalMass = 0;  ///< by length, beside that of the components
  double density = 0;         ///< of the first component
  /// Mean density by area where components are of unlike density, else not a number. Times the
  /// geometric area it is the mass by length.
  double meanDensity = std::numeric_limits<double>::quiet_NaN();
};

}  // namespace Tarvex::Data
