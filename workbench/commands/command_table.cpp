#include <array>

#include "workbench/commands/coincidence.h"
#include "workbench/commands/combine.h"
#include "workbench/commands/command.h"
#include "workbench/commands/conversion.h"
#include "workbench/commands/disconnect.h"
#include "workbench/commands/errors.h"
#include "workbench/commands/inspect.h"
#include "workbench/commands/orientation.h"
#include "workbench/commands/picture.h"
#include "workbench/commands/recipe.h"
#include "workbench/commands/reference.h"
#include "workbench/commands/references.h"
#include "workbench/commands/refinement.h"
#include "workbench/commands/renumber.h"
#include "workbench/commands/selection.h"
#include "workbench/commands/slabs.h"
#include "workbench/commands/split_connect.h"
#include "workbench/commands/tidy.h"
#include "workbench/commands/totals.h"

namespace Tarvex::Workbench {
namespace {

/// The commands of each family, in the order of help.
constexpr std::array kFamilies{
    &InspectCommands,         &TotalsCommands,       &SelectionCommands, &PictureCommands,
    &OrientationCommands,     &RenumberCommands,     &TidyCommands,      &CoincidenceCommands,
    &ReferenceUpdateCommands, &SplitConnectCommands, &SlabCommands,      &DisconnectCommands,
    &ConversionCommands,      &RefinementCommands,   &CombineCommands,   &RecipeCommands,
    &ReferenceCommands,
};

std::vector<Command> MakeTable() {
  std::vector<Command> table;
  for (auto const& commands : kFamilies) {
    auto const family = commands();
    table.insert(table.end(), family.begin(), family.end());
  }
  return table;
}

}  // namespace

std::span<Command const> Commands() {
  static std::vector<Command> const kTable = MakeTable();
  return kTable;
}

Command const& FindCommand(std::string_view name) {
  for (auto const& command : Commands())
    if (command.name == name) return command;
  throw UsageError("unknown command '" + std::string(name) + "', see tarvex --help");
}

}  // namespace Tarvex::Workbench
