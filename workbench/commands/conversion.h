// Commands that change the shape of plates.
#pragma once

#include <span>

#include "workbench/commands/command.h"

namespace Tarvex::Workbench {

std::span<Command const> ConversionCommands();

}  // namespace Tarvex::Workbench
