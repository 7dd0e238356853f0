// Commands that look at models: info, check, diff.
#pragma once

#include <span>

#include "workbench/commands/command.h"

namespace Tarvex::Workbench {

std::span<Command const> InspectCommands();

}  // namespace Tarvex::Workbench
