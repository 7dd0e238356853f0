// Pages made from the table of commands.
#pragma once

#include <span>
#include <string>

#include "workbench/commands/command.h"

namespace Tarvex::Workbench {

/// The reference of all commands, as Markdown.
std::string ReferencePage();

/// Commands that need no model: they print what the program knows of itself.
std::span<Command const> ReferenceCommands();

}  // namespace Tarvex::Workbench
