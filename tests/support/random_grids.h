// The grids, groups and views of random models.
#pragma once

#include "tests/support/random_model.h"

namespace Tarvex::Testing {

/// A text with characters of one to four UTF-8 bytes.
CString RandomText(Random& random);
/// True in three of ten draws: whether a record has a field changed.
bool Changes(Random& random);
/// Changes name, identifier and colour of a record.
void FillNamed(NamedEntity& record, Random& random);

/// Adds grids, alignments, blocks, assemblies and views to a model that has nodes and axes. All
/// nodes, axes, grid planes and grid surfaces that they name exist, but for numbers in lists.
void AddRandomGrids(CZelData& model, Random& random);

}  // namespace Tarvex::Testing
