// The commands of disconnection, edges, chains and blocks.
#pragma once

#include <span>

#include "workbench/commands/command.h"

namespace Tarvex::Workbench {

std::span<Command const> DisconnectCommands();

}  // namespace Tarvex::Workbench
