#include "workbench/cli/program.h"

#include <filesystem>
#include <iostream>

#include "store/model/undo_step.h"
#include "workbench/cli/colour.h"
#include "workbench/commands/errors.h"
#include "workbench/file/atomic_file.h"
#include "workbench/file/model_reader.h"
#include "workbench/file/model_writer.h"
#include "workbench/file/references.h"
#include "workbench/report/new_faults.h"
#include "workbench/report/text.h"

namespace Tarvex::Workbench {
namespace {

constexpr char const* kStandardStream = "-";

/// Name of the file that a run writes; empty for a dry run.
std::string OutputOf(Invocation const& invocation) {
  return invocation.inPlace ? invocation.model : invocation.output;
}

/// Whether an option names a file that is read.
bool NamesInput(Option const& option) {
  return option.kind == ValueKind::FileBefore || option.kind == ValueKind::FileBehind ||
         option.value == "FILE";
}

void CheckOutput(Invocation const& invocation) {
  namespace fs = std::filesystem;
  auto const& output = invocation.output;
  if (output.empty() || output == kStandardStream) return;
  std::error_code ignored;
  if (!fs::exists(fs::symlink_status(output, ignored))) return;
  if (invocation.model != kStandardStream && fs::equivalent(output, invocation.model, ignored))
    throw UsageError(invocation.command->kind == CommandKind::Changes
                         ? "the output is the input: use --in-place"
                         : "the output is the input");
  for (auto const& option : invocation.command->options) {
    if (!NamesInput(option)) continue;
    auto const& input = invocation.arguments.Text(option.name);
    if (!input.empty() && input != kStandardStream && fs::equivalent(output, input, ignored))
      throw UsageError("the output is an input: " + input);
  }
  if (!invocation.force) throw UsageError(output + " exists: use --force to replace it");
}

void CheckReferences(Invocation const& invocation, CZelData const& model, CommandResult& result) {
  auto const dangling = FindDanglingReferences(model);
  if (dangling.empty()) return;
  auto const text = Counted(dangling.size(), "reference") + " to missing records, see check";
  if (invocation.strict) throw FileError({invocation.model, 0, 0, ""}, text);
  result.warnings.push_back({"dangling-references", "", 0, text});
}

void RunCommand(Invocation const& invocation, CZelData& model, Report& report) {
  try {
    invocation.command->run(model, invocation.arguments, report.result);
  } catch (CommandError const&) {
    throw;
  } catch (FileError const&) {
    throw;
  } catch (std::exception const& fault) {
    throw Refusal(fault.what());  // an exception of the tool: nothing is written
  }
}

/// Reads, runs and writes; fills the report.
void Run(Invocation const& invocation, Report& report) {
  auto const& command = *invocation.command;
  report.command = command.name;
  report.changesModel = command.kind == CommandKind::Changes;
  report.input = invocation.model;
  report.output = OutputOf(invocation);
  report.dryRun = invocation.dryRun;

  CZelData model;
  if (command.kind != CommandKind::Alone) {
    CheckOutput(invocation);
    ReadModel(invocation.model, model);
    CheckReferences(invocation, model, report.result);
  }
  CZelData const before(model);
  CUndoStep step(model);
  RunCommand(invocation, model, report);
  step.Accept();
  if (report.changesModel) {
    report.changes = FindChanges(before, model);
    if (!report.changes.empty()) {
      report.totals = FindTotalChanges(before, model);
      WarnOfNotFinite(report.totals, report.result);
      // Each step of a recipe has told its own.
      if (command.name != kRecipeCommand) WarnOfNewFaults(before, model, report.result);
    }
    if (invocation.inPlace)
      ReplaceModel(model, invocation.model);
    else if (!invocation.dryRun)
      WriteModel(model, invocation.output);
  }
  if (command.kind == CommandKind::Draws)
    WriteFileAtomically(invocation.output, report.result.file);
  report.exit = report.result.Exit();
}

/// Acts and turns every way to fail into the report's failure and exit code.
template <class Action>
void Reported(Report& report, Action&& action) {
  auto const fail = [&](ExitCode exit, Failure failure) {
    report.exit = exit;
    report.failure = std::move(failure);
  };
  std::string const program = "tarvex: ";
  try {
    action();
  } catch (UsageError const& fault) {
    fail(ExitCode::Usage, {fault.Text(), fault.Place(), program + fault.what()});
  } catch (Refusal const& fault) {
    fail(ExitCode::Refused, {fault.Text(), fault.Place(), program + fault.what()});
  } catch (FileError const& fault) {
    bool const hasPlace = !fault.Place().file.empty();
    fail(ExitCode::File,
         {fault.Text(), fault.Place(), hasPlace ? fault.what() : program + fault.Text()});
  } catch (std::exception const& fault) {
    auto const text = std::string("a fault of the program: ") + fault.what();
    fail(ExitCode::Fault, {text, {}, program + text});
  }
}

void PrintMessages(Invocation const& invocation, Report const& report, bool coloured,
                   std::ostream& err) {
  if (report.failure) {
    err << InColour(report.failure->line, Colour::Red, coloured) << "\n";
    return;
  }
  if (invocation.quiet) return;
  for (auto const& warning : report.result.warnings) {
    err << InColour("warning:", Colour::Yellow, coloured) << " " << warning.text;
    if (invocation.verbose) err << " [" << warning.code << "]";
    err << "\n";
  }
}

/// The exit code of a run whose report went to a stream: a report that can't be written is a fault
/// of its own.
int ExitBehind(std::ostream const& stream, ExitCode exit, std::ostream& err) {
  if (stream) return static_cast<int>(exit);
  err << "tarvex: the report cannot be written\n";
  return static_cast<int>(ExitCode::File);
}

}  // namespace

Report RunInvocation(Invocation const& invocation) {
  Report report;
  Reported(report, [&] { Run(invocation, report); });
  return report;
}

int RunProgram(std::vector<std::string> const& words, std::ostream& out, std::ostream& err,
               bool errIsTerminal) {
  Invocation invocation;
  Report report;
  Reported(report, [&] { invocation = ParseCommandLine(words); });
  if (report.failure) report.command = NamedCommand(words);
  if (!report.failure && invocation.command != nullptr && invocation.print.empty())
    report = RunInvocation(invocation);
  if (!invocation.print.empty()) {
    out << invocation.print << std::flush;
    return ExitBehind(out, ExitCode::Done, err);
  }
  PrintMessages(invocation, report, IsColoured(ColourAskedFor(words), errIsTerminal), err);
  bool const json = invocation.json || (report.failure && AsksForJson(words));
  // A model on standard output is alone there.
  auto& reportStream = invocation.output == kStandardStream ? err : out;
  if (json)
    reportStream << ReportJson(report) << std::flush;
  else if (!report.failure && !invocation.quiet)
    reportStream << ReportText(report, invocation.verbose) << std::flush;
  return ExitBehind(reportStream, report.exit, err);
}

}  // namespace Tarvex::Workbench
