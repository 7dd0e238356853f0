// Warnings of pieces that do not take all loads of their parents.
#pragma once

#include "store/model/zel_data.h"
#include "workbench/commands/command.h"
#include "workbench/commands/number_map.h"

namespace Tarvex::Workbench {

/// Warns before loads of elements are mapped: of pressures by corner on solids, whose pieces get
/// other forces; of pieces that run against a parent with point loads or distortions; of load
/// panels among the old numbers, and of loads that would be on load panels alone.
void WarnOfShapes(CZelData const& model, NumberLists const& pieces, CommandResult& result);

}  // namespace Tarvex::Workbench
