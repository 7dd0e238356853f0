// The commands that merge, join and find entities which stand on one another.
#pragma once

#include <span>

#include "workbench/commands/command.h"

namespace Tarvex::Workbench {

std::span<Command const> CoincidenceCommands();

}  // namespace Tarvex::Workbench
