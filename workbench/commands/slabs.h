// The commands of slabs and rigid constraints.
#pragma once

#include <span>

#include "workbench/commands/command.h"

namespace Tarvex::Workbench {

std::span<Command const> SlabCommands();

}  // namespace Tarvex::Workbench
