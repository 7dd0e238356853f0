// The commands of the orientation tools.
#pragma once

#include <span>

#include "workbench/commands/command.h"

namespace Tarvex::Workbench {

std::span<Command const> OrientationCommands();

}  // namespace Tarvex::Workbench
