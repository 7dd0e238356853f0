// The materials, properties, soil and spectra of random models.
#pragma once

#include "tests/support/random_model.h"

namespace Tarvex::Testing {

/// Adds one to three of each material and property, soil zones with profiles and spectra to a model
/// that has axes. Materials, curves, matrices, axes and profiles that they name exist. Nodes,
/// elements and members name property numbers of which some exist.
void AddRandomProperties(CZelData& model, Random& random);

}  // namespace Tarvex::Testing
