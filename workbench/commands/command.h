// What a command is: name, help, options, function. Help, recipes and the reference page are made
// from these rows.
#pragma once

#include <limits>
#include <map>
#include <memory>
#include <nlohmann/json_fwd.hpp>
#include <set>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "store/model/zel_data.h"
#include "workbench/commands/errors.h"

namespace Tarvex::Workbench {

/// What the value of an option is.
enum class ValueKind {
  Flag,
  Text,
  Integer,
  Number,
  Choice,
  FileBefore,  ///< a file named before the model, without an option word
  FileBehind,  ///< a file named behind the model
};

/// One option of a command.
struct Option {
  std::string_view name;   ///< "--axis"
  std::string_view value;  ///< what help shows for the value; the choices, split by '|'
  ValueKind kind = ValueKind::Text;
  std::string_view preset;  ///< value when it is not given
  std::string_view help;
  double lowest = -std::numeric_limits<double>::infinity();
  double highest = std::numeric_limits<double>::infinity();
};

/// The values of a command's options, all valid for their kind.
class Arguments {
 public:
  Arguments() = default;
  /// Takes the presets of the options and what was given over them. Throws UsageError for a value
  /// that its option does not take.
  Arguments(std::span<Option const> options, std::map<std::string, std::string> given);

  std::string const& Text(std::string_view name) const;
  int Integer(std::string_view name) const;
  double Number(std::string_view name) const;
  bool Flag(std::string_view name) const { return Text(name) == "true"; }
  /// Whether the option was on the command line, be it with its preset.
  bool IsGiven(std::string_view name) const { return m_given.contains(name); }

  /// The model file as it was named, "-" for standard input; empty in a recipe.
  std::string const& ModelFile() const { return m_modelFile; }
  void SetModelFile(std::string const& path) { m_modelFile = path; }

 private:
  std::map<std::string, std::string, std::less<>> m_values;
  std::set<std::string, std::less<>> m_given;
  std::string m_modelFile;
};

/// Something that the user should know and that is no failure.
struct Warning {
  std::string code;  ///< stable, such as "empty-selection"
  std::string table;
  int number = 0;  ///< 0 where no record is meant
  std::string text;
};

/// A thing that a command was asked to work on and left as it was.
struct Undone {
  std::string table;
  int number = 0;
  std::string why;
};

/// A tolerance that a command worked with.
struct ToleranceUsed {
  std::string name;
  double value = 0;
  std::string unit;
};

/// What a command reports beside the changes of the model.
struct CommandResult {
  bool did = false;     ///< the tool's own result
  bool lookAt = false;  ///< whether there is something to look at, beside what was left undone
  std::vector<std::string> messages;
  std::vector<Undone> undone;
  std::vector<Warning> warnings;
  std::vector<ToleranceUsed> tolerances;
  /// By table the records that moved: old number and new one, 0 for one that went.
  std::map<std::string, std::vector<std::pair<int, int>>> maps;
  /// What this command alone has; for a command that changes nothing, all of its data.
  std::shared_ptr<nlohmann::ordered_json const> result;
  /// The data of each command that this one ran, for a recipe.
  std::shared_ptr<nlohmann::ordered_json const> steps;
  std::string text;  ///< the result for a reader, whole lines
  std::string file;  ///< of a command that draws, what is to be written to the output

  ExitCode Exit() const { return lookAt || !undone.empty() ? ExitCode::LookAt : ExitCode::Done; }
};

/// What a command does with a model file.
enum class CommandKind {
  Alone,    ///< takes none
  Reads,    ///< reads one
  Changes,  ///< changes one, so that it needs an output
  Draws,    ///< reads one and writes a file that is no model
};

/// One command.
struct Command {
  std::string_view name;
  std::string_view help;
  std::span<Option const> options;
  CommandKind kind;
  void (*run)(CZelData& model, Arguments const& arguments, CommandResult& result);
};

/// Name of the command that runs a recipe.
inline constexpr std::string_view kRecipeCommand = "run";

/// All commands, in the order of help.
std::span<Command const> Commands();
/// The command of a name; throws UsageError when there is none.
Command const& FindCommand(std::string_view name);

}  // namespace Tarvex::Workbench
