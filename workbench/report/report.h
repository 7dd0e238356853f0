// The report of one run of a command, for readers and as JSON.
#pragma once

#include <nlohmann/json_fwd.hpp>
#include <optional>
#include <string>
#include <vector>

#include "workbench/commands/command.h"
#include "workbench/commands/errors.h"
#include "workbench/file/file_error.h"
#include "workbench/report/model_changes.h"
#include "workbench/report/totals.h"

namespace Tarvex::Workbench {

/// Why a run failed.
struct Failure {
  std::string text;  ///< without the place
  FilePlace place;   ///< file empty where there is none
  std::string line;  ///< what a reader is told
};

/// All that is known about one run of a command.
struct Report {
  std::string command;
  bool changesModel = false;
  std::string input;
  std::string output;  ///< empty for a dry run
  bool dryRun = false;
  ExitCode exit = ExitCode::Done;
  CommandResult result;
  std::vector<TableChange> changes;
  TotalChanges totals;
  std::optional<Failure> failure;
};

/// Changes by table, as lines and as JSON.
std::string ChangesText(std::vector<TableChange> const& changes, bool verbose);
nlohmann::ordered_json ChangesJson(std::vector<TableChange> const& changes);

/// The data of a report: for a command that changes the model what it changed, else its own.
nlohmann::ordered_json DataJson(Report const& report);

/// What a user reads; `verbose` lists every number, otherwise long lists are cut, and what number
/// each record got that moved.
std::string ReportText(Report const& report, bool verbose);

/// One JSON object with the schema "tarvex-result-1", on success and on failure.
std::string ReportJson(Report const& report);

}  // namespace Tarvex::Workbench
