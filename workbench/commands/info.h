// What a model holds.
#pragma once

#include "workbench/commands/command.h"

namespace Tarvex::Workbench {

/// Reports the number of records by table, elements by type, and the box of the nodes.
void Info(CZelData& model, Arguments const& arguments, CommandResult& result);

}  // namespace Tarvex::Workbench
