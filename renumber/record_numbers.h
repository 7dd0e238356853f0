// The numbers of the records of a table.
#pragma once

#include <vector>

#include "store/model/zel_data.h"

namespace Tarvex {

/// The existing numbers of a table in ascending order: for 110 those of elements and load panels,
/// for 130 those of load cases with or without a title, for a positional table all up to the last.
std::vector<int> RecordNumbers(CZelData const& model, CModule::ModuleId module);

/// Whether the numbers of a table may be shifted or kept by a list without a kind.
bool IsRenumbered(CModule::ModuleId module);

/// As RecordNumbers, but for 53 those of the 2D properties, and none for a table that is not
/// renumbered.
std::vector<int> ShiftedNumbers(CZelData const& model, CModule::ModuleId module);

}  // namespace Tarvex
