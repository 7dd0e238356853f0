// The commands that renumber and delete records.
#pragma once

#include <span>

#include "workbench/commands/command.h"

namespace Tarvex::Workbench {

std::span<Command const> RenumberCommands();

}  // namespace Tarvex::Workbench
