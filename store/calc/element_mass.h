// Masses of elements from their properties and materials.
#pragma once

#include <optional>

#include "store/export.h"
#include "store/numeric/vec.h"

namespace Tarvex {

class CZelData;

/// Standard gravity, in m/s2 (3rd General Conference on Weights and Measures, 1901): what turns a
/// mass into a weight.
inline constexpr double kGravity = 9.80665;

/// A mass and where it is; model units.
struct PointMass {
  double mass = 0;
  Vec3<double> centre;
};

/// The mass of an element or load panel in a stage and its centre: of a 1D element with a section
/// area times density and the additional mass along its length, offsets applied; of a cable its own
/// mass by length; of a plate density times the thickness for volume, and the additional mass, over
/// its area; of a solid density times volume. Springs, links, spacers, dampers, load panels and
/// plates that are load panels by their property have none, and neither have dummies. @return empty
/// where it is not known: the element, a node, its property or its material is missing
TARVEX_STORE_EXPORT std::optional<PointMass> MassOfElement(CZelData const& model, int element,
                                                           int stage);

/// The sum over all elements that act in a stage.
struct ModelMass {
  PointMass total;
  int unknown = 0;  ///< number of elements whose mass is not known
};
TARVEX_STORE_EXPORT ModelMass MassOfModel(CZelData const& model, int stage);

}  // namespace Tarvex
