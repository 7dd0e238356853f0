// One renumbering of a model with all that a user should know of it.
#pragma once

#include <map>

#include "tarvex/renumber.h"
#include "workbench/commands/command.h"

namespace Tarvex::Workbench {

/// Schemes by table: old number to new one, without those that go.
using SchemeMaps = std::map<CModule::ModuleId, std::map<int, int>>;

/// Applies schemes to a model. Tables whose references are rewritten only when they have a scheme
/// get one that keeps their numbers. Reports what moved, and every record that the run emptied, cut
/// or dropped. Throws Refusal where the run can't go through.
void RunRenumbering(CZelData& model, SchemeMaps const& schemes, bool keepDescriptions,
                    CommandResult& result);

/// A finished run: the model before and behind it, and its schemes with those that keep numbers.
struct FinishedRun {
  CZelData const& before;
  CZelData const& after;
  CRenumber const& renumber;
  SchemeMaps const& schemes;
  bool keepDescriptions;
};

/// Reports what a renumbering did beside moving records: loads and constraints that went, lists
/// that became empty or lost a number behind a word, references that nothing followed.
void ReportLosses(FinishedRun const& run, CommandResult& result);

/// Name of the table of a module.
std::string StemOf(CModule::ModuleId module);
/// The module of a table; throws UsageError for a table that can't be renumbered.
CModule::ModuleId ModuleOf(std::string const& stem);
/// The numbers in use in the table of a module, ascending.
std::vector<int> NumbersInUse(CZelData const& model, CModule::ModuleId module);

}  // namespace Tarvex::Workbench
