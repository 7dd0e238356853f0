// The load cases, stages, tasks and cases of random models.
#pragma once

#include "tests/support/random_model.h"

namespace Tarvex::Testing {

/// Adds titles of load cases, stages 1 to 4 or some of them, tasks of each class, analysis cases,
/// combinations, descriptions and results to a model that has nodes, axes, materials, properties
/// and spectra. All that they name exists, but for numbers in lists and texts.
void AddRandomCases(CZelData& model, Random& random);

}  // namespace Tarvex::Testing
