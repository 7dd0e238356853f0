// Why a command ends without a result. Files have FileError beside these.
#pragma once

#include <stdexcept>
#include <string>
#include <utility>

#include "workbench/file/file_error.h"

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

/// A failure that may come from a line of a recipe; what() has its place before the text.
class CommandError : public std::runtime_error {
 public:
  explicit CommandError(std::string const& text) : std::runtime_error(text), m_text(text) {}
  CommandError(FilePlace place, std::string const& text)
      : std::runtime_error(PlacedText(place, text)), m_place(std::move(place)), m_text(text) {}

  FilePlace const& Place() const { return m_place; }  ///< file empty where there is none
  std::string const& Text() const { return m_text; }

 private:
  FilePlace m_place;
  std::string m_text;
};

/// A command line that makes no sense, whatever the model: ends with ExitCode::Usage.
class UsageError : public CommandError {
 public:
  using CommandError::CommandError;
};

/// The fault of a number that is one, but none that the program can hold.
inline UsageError OutOfRange(std::string const& option, std::string const& text) {
  return UsageError(option + ": '" + text + "' is out of range");
}

/// The tool or the model refuses: ends with ExitCode::Refused.
class Refusal : public CommandError {
 public:
  using CommandError::CommandError;
};

}  // namespace Tarvex::Workbench
