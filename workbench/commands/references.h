// The commands that keep references and loads true when nodes and elements are replaced or copied.
#pragma once

#include <span>

#include "workbench/commands/command.h"

namespace Tarvex::Workbench {

std::span<Command const> ReferenceUpdateCommands();

}  // namespace Tarvex::Workbench
