// The commands that tell and tidy the materials and properties in use.
#pragma once

#include <span>

#include "workbench/commands/command.h"

namespace Tarvex::Workbench {

std::span<Command const> TidyCommands();

}  // namespace Tarvex::Workbench
