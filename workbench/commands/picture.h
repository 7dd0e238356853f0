// The command that draws a model.
#pragma once

#include "workbench/commands/command.h"

namespace Tarvex::Workbench {

std::span<Command const> PictureCommands();

}  // namespace Tarvex::Workbench
