// The loads and constraints of random models.
#pragma once

#include "tests/support/random_model.h"

namespace Tarvex::Testing {

/// Adds one to four loads and constraints of each table to a model that has nodes, elements,
/// members, axes and grids. All that they name exists, but for load cases, stages and numbers in
/// lists. Lists have every kind that their field takes and every form: numbers, ranges, operators,
/// gaps and words.
void AddRandomLoads(CZelData& model, Random& random);

}  // namespace Tarvex::Testing
