// The command line: words to an invocation.
#pragma once

#include <string>
#include <vector>

#include "workbench/commands/command.h"

namespace Tarvex::Workbench {

/// What one command line asks for.
struct Invocation {
  /// Text to print instead of running anything: help or the version.
  std::string print;

  Command const* command = nullptr;
  Arguments arguments;
  std::string model;
  std::string output;  ///< -o
  bool inPlace = false;
  bool dryRun = false;
  bool force = false;
  bool strict = false;
  bool json = false;
  bool quiet = false;
  bool verbose = false;
};

/// One line of a recipe: a command with its own options.
struct RecipeStep {
  Command const* command = nullptr;
  Arguments arguments;
};

/// Reads the words of one line of a recipe. Throws UsageError, also for a command that a recipe
/// can't hold: one that takes no model or draws, or a recipe.
RecipeStep ParseRecipeLine(std::vector<std::string> const& words);

/// Reads the words behind the program's name. Throws UsageError with one line of text.
Invocation ParseCommandLine(std::vector<std::string> const& words);

/// The name of the command among the words; empty where they name none that there is.
std::string NamedCommand(std::vector<std::string> const& words);

/// Whether the words ask for JSON, so that a fault in them can be told as JSON.
bool AsksForJson(std::vector<std::string> const& words);

}  // namespace Tarvex::Workbench
