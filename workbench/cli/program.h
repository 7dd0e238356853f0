// One run of the program.
#pragma once

#include <iosfwd>
#include <string>
#include <vector>

#include "workbench/cli/command_line.h"
#include "workbench/report/report.h"

namespace Tarvex::Workbench {

/// Reads, runs and writes as an invocation says; every way to fail is in the report.
Report RunInvocation(Invocation const& invocation);

/// Runs the words behind the program's name. Results go to out, messages to err; a model that is
/// written to standard output goes there whatever out is.
/// @param errIsTerminal whether err is a terminal, so that colours go there unless told otherwise
/// @return the exit code.
int RunProgram(std::vector<std::string> const& words, std::ostream& out, std::ostream& err,
               bool errIsTerminal = false);

}  // namespace Tarvex::Workbench
