// The commands that cut and connect 1D elements and members.
#pragma once

#include <span>

#include "workbench/commands/command.h"

namespace Tarvex::Workbench {

std::span<Command const> SplitConnectCommands();

}  // namespace Tarvex::Workbench
