// Why a command ends without a result. Files have FileError beside these.
#pragma once

#include <stdexcept>

namespace Tarvex::Workbench {

/// Exit codes of the program.
enum class ExitCode : int {
  Done = 0,
  LookAt = 1,  ///< done, and there is something to look at
  Usage = 2,
  Refused = 3,
  File = 4,
  Fault = 5,
  Interrupted = 130,
};

/// A command line that makes no sense, whatever the model: ends with ExitCode::Usage.
class UsageError : public std::runtime_error {
 public:
  using std::runtime_error::runtime_error;
};

/// The tool or the model refuses: ends with ExitCode::Refused.
class Refusal : public std::runtime_error {
 public:
  using std::runtime_error::runtime_error;
};

}  // namespace Tarvex::Workbench
