// One renumbering of a model with all that a user should know of it.
#pragma once

#include <map>

#include "tarvex/renumber.h"
#include "workbench/commands/command.h"

namespace Tarvex::Workbench {

/// Schemes by table: old number to new one, without those that go.
using SchemeMaps = std::map<CModule::ModuleId, std::map<int, int>>;

/// Applies schemes to a model. Tables whose references are rewritten only when they have a scheme
/// get one that keeps their numbers; combinations whose number none takes over go. Reports what
/// moved, and every record that the run emptied, cut, dropped or left. Throws Refusal where the run
/// can't go through.
void RunRenumbering(CZelData& model, SchemeMaps const& schemes, bool keepDescriptions,
                    CommandResult& result);

/// A finished run of a renumbering or tidying: the model before and behind it, and its schemes with
/// those that keep numbers.
struct FinishedRun {
  CZelData const& before;
  CZelData const& after;
  CRenumber const& renumber;
  SchemeMaps const& schemes;
  bool keepDescriptions;
};

/// Reports the records that have another number now or went.
void ReportMoves(CZelData const& before, SchemeMaps const& schemes, CommandResult& result);
/// Reports what a run did beside moving records: loads and constraints that went, lists that became
/// empty, select others or lost a number behind a word, references that name another record or
/// none.
void ReportLosses(FinishedRun const& run, CommandResult& result);

/// Name of the table of a module.
std::string StemOf(CModule::ModuleId module);
/// The module of a table; throws UsageError for a table that can't be renumbered.
CModule::ModuleId ModuleOf(std::string const& stem);
/// The numbers in use in the table of a module, ascending.
std::vector<int> NumbersInUse(CZelData const& model, CModule::ModuleId module);

}  // namespace Tarvex::Workbench
