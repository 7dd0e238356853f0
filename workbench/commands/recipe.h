// Recipes: several commands in one run.
#pragma once

#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "workbench/commands/command.h"

namespace Tarvex::Workbench {

/// One line of a recipe that holds a command.
struct RecipeLine {
  int number = 0;  ///< from 1
  std::vector<std::string> words;
};

/// Splits a recipe into lines and words as a POSIX shell does: blanks part words, '...' is literal,
/// in "..." a backslash escapes " \\ $ and `, outside it escapes any character, # at the start of a
/// word begins a comment. Lines without words are left out. Throws UsageError "NAME:LINE: ..." for
/// a quotation without its end.
std::vector<RecipeLine> SplitRecipe(std::string_view text, std::string const& name);

std::span<Command const> RecipeCommands();

}  // namespace Tarvex::Workbench
