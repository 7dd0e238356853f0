// The command that refines meshes.
#pragma once

#include <span>

#include "workbench/commands/command.h"

namespace Tarvex::Workbench {

std::span<Command const> RefinementCommands();

}  // namespace Tarvex::Workbench
