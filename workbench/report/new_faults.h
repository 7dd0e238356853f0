// Faults that a run brings into a model.
#pragma once

#include "workbench/commands/command.h"

namespace Tarvex::Workbench {

/// Warns of the faults of a model (see FindFaults) that it had not before a run, up to twenty of a
/// code, table and field, and makes the run one with something to look at. Records may have other
/// numbers behind it: so of the faults of one code, table and field those count that are more than
/// there were. Records that the run told of itself are passed over.
void WarnOfNewFaults(CZelData const& before, CZelData const& after, CommandResult& result);

}  // namespace Tarvex::Workbench
