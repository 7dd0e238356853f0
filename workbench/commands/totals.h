// The command totals.
#pragma once

#include <span>

#include "workbench/commands/command.h"

namespace Tarvex::Workbench {

std::span<Command const> TotalsCommands();

}  // namespace Tarvex::Workbench
