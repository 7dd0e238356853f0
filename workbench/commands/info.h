// The command that tells what a model holds.
#pragma once

#include <span>

#include "workbench/commands/command.h"

namespace Tarvex::Workbench {

std::span<Command const> InfoCommands();

}  // namespace Tarvex::Workbench
