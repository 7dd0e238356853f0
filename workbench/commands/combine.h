// The command that writes load combinations.
#pragma once

#include "workbench/commands/command.h"

namespace Tarvex::Workbench {

std::span<Command const> CombineCommands();

}  // namespace Tarvex::Workbench
