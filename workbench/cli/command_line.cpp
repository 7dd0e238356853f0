// The one source that includes the command line library: it takes seconds to compile.
#include "workbench/cli/command_line.h"

#include <CLI/CLI.hpp>
#include <algorithm>
#include <array>
#include <list>

#include "workbench/cli/colour.h"
#include "workbench/commands/errors.h"

namespace Tarvex::Workbench {
namespace {

/// Where the parser puts the values of one command's options until they are checked.
struct Values {
  std::list<std::string> texts;  // a list: the parser keeps references
  std::vector<std::pair<CLI::Option*, std::string>> given;
};

bool IsFile(ValueKind kind) {
  return kind == ValueKind::FileBefore || kind == ValueKind::FileBehind;
}

/// Adds the options of a command that pass a test.
template <class Test>
void AddOwnOptions(CLI::App& app, Command const& command, Values& values, Test&& test) {
  for (auto const& option : command.options) {
    if (!test(option.kind)) continue;
    std::string const name(option.name);
    std::string const help(option.help);
    if (option.kind == ValueKind::Flag) {
      values.texts.emplace_back("true");
      // A value such as "false" would count as given.
      values.given.emplace_back(app.add_flag(name, help)->disable_flag_override(), name);
      continue;
    }
    auto& text = values.texts.emplace_back();
    auto* added = app.add_option(name, text, help)->expected(1);
    added->type_name(std::string(option.value));
    if (!option.preset.empty()) added->default_str(std::string(option.preset));
    if (IsFile(option.kind)) added->required();
    values.given.emplace_back(added, name);
  }
}

void AddModel(CLI::App& app, CommandKind kind, Invocation& invocation) {
  if (kind == CommandKind::Alone) return;
  app.add_option("MODEL", invocation.model, "the model file, - for standard input")
      ->required()
      ->type_name("");
}

/// Refuses a word that is none of the modes of colour.
void CheckColour(std::string const& word) {
  constexpr std::array kColour{Option{"--color", kColourWords, ValueKind::Choice, "", ""}};
  Arguments(kColour, {{"--color", word}});
}

void AddCommonOptions(CLI::App& app, CommandKind kind, Invocation& invocation) {
  if (kind != CommandKind::Alone)
    app.add_flag("--strict", invocation.strict, "refuse references to missing records");
  if (kind == CommandKind::Changes || kind == CommandKind::Draws) {
    app.add_option("-o,--output", invocation.output, "the file to write, - for standard output")
        ->type_name("OUT");
    app.add_flag("--force", invocation.force, "replace an existing output");
  }
  if (kind == CommandKind::Changes) {
    app.add_flag("--in-place", invocation.inPlace,
                 "replace the model file; the old one stays as MODEL.bak");
    app.add_flag("--dry-run", invocation.dryRun, "report only, write nothing");
  }
  app.add_flag("--json", invocation.json, "print the report as JSON");
  app.add_flag("-q,--quiet", invocation.quiet,
               "print no warnings, and no report but that of --json");
  app.add_flag("-v,--verbose", invocation.verbose,
               "print every number of long lists, old numbers with new ones, codes of warnings");
  app.add_option_function<std::string>("--color", &CheckColour,
                                       "colour of messages: auto, always or never; unless given "
                                       "auto, which is on a terminal without NO_COLOR")
      ->type_name("WHEN");
}

/// One line for a fault of the command line.
std::string Explain(CLI::ParseError const& fault) {
  std::string const what = fault.what();
  if (fault.get_name() == "RequiredError")
    return what.starts_with("MODEL") ? "the model file is missing"
                                     : "the file " + what.substr(0, what.find(' ')) + " is missing";
  if (what.ends_with("flag override"))
    return "--" + what.substr(0, what.find(' ')) + " takes no value";
  return what.substr(0, what.find('\n'));
}

/// Refuses files without a name, and standard input for two of them.
void CheckInputs(Invocation const& invocation) {
  auto const& command = *invocation.command;
  if (command.kind != CommandKind::Alone && invocation.model.empty())
    throw UsageError("the name of the model file is empty");
  for (auto const& option : command.options) {
    if (!IsFile(option.kind)) continue;
    auto const& file = invocation.arguments.Text(option.name);
    if (file.empty())
      throw UsageError("the name of the file " + std::string(option.name) + " is empty");
    if (file == "-" && invocation.model == "-")
      throw UsageError(std::string(option.name) + ": the model is on standard input, name a file");
  }
}

void CheckDestination(Invocation const& invocation) {
  auto const kind = invocation.command->kind;
  if (kind == CommandKind::Draws && invocation.output.empty())
    throw UsageError("give the file to write: -o OUT");
  if (kind != CommandKind::Changes) return;
  int const count = !invocation.output.empty() + invocation.inPlace + invocation.dryRun;
  if (count != 1) throw UsageError("give one of -o OUT, --in-place and --dry-run");
  if (invocation.inPlace && invocation.model == "-")
    throw UsageError("--in-place needs a model file, not standard input");
}

/// The first word that is no option: the name of the command.
std::string CommandWord(std::vector<std::string> const& words) {
  for (auto const& word : words)
    if (!word.starts_with('-')) return word;
  return {};
}

/// The library takes any word behind an option for its value, other options too.
Arguments TakeArguments(CLI::App const& app, Command const& command, Values const& values) {
  std::map<std::string, std::string> given;
  auto text = values.texts.begin();
  for (auto const& [option, name] : values.given) {
    if (option->count() > 0) {
      if (text->starts_with("--") && app.get_option_no_throw(*text) != nullptr)
        throw UsageError(name + ": a value is missing before " + *text);
      given[name] = *text;
    }
    ++text;
  }
  return {command.options, given};
}

}  // namespace

Invocation ParseCommandLine(std::vector<std::string> const& words) {
  Invocation invocation;
  CLI::App app("Tools that change a structural finite-element model as a whole.", "tarvex");
  app.set_version_flag("--version", "tarvex " TARVEX_VERSION);
  app.require_subcommand(1);
  app.footer(
      "Exit codes: 0 done, 1 something to look at, 2 bad command line, 3 refused,\n"
      "4 faulty file, 5 fault of the program, 130 interrupted.");
  auto const word = CommandWord(words);
  Values values;
  CLI::App* chosen = nullptr;
  for (auto const& command : Commands()) {
    auto* sub = app.add_subcommand(std::string(command.name), std::string(command.help));
    if (command.name != word) continue;
    chosen = sub;
    invocation.command = &command;
    // Files without an option word are read in the order in which they are added here.
    AddOwnOptions(*sub, command, values, [](auto kind) { return kind == ValueKind::FileBefore; });
    AddModel(*sub, command.kind, invocation);
    AddOwnOptions(*sub, command, values, [](auto kind) { return kind != ValueKind::FileBefore; });
    AddCommonOptions(*sub, command.kind, invocation);
  }
  if (!word.empty() && chosen == nullptr) FindCommand(word);
  try {
    // The library takes the words from the last to the first.
    app.parse(std::vector<std::string>(words.rbegin(), words.rend()));
  } catch (CLI::CallForVersion const& call) {
    invocation.print = std::string(call.what()) + "\n";
    return invocation;
  } catch (CLI::CallForHelp const&) {
    invocation.print = chosen == nullptr ? app.help() : chosen->help(app.get_name());
    return invocation;
  } catch (CLI::ParseError const& fault) {
    throw UsageError(word.empty() ? "give a command, see tarvex --help" : Explain(fault));
  }
  invocation.arguments = TakeArguments(*chosen, *invocation.command, values);
  invocation.arguments.SetModelFile(invocation.model);
  CheckInputs(invocation);
  CheckDestination(invocation);
  return invocation;
}

RecipeStep ParseRecipeLine(std::vector<std::string> const& words) {
  auto const& command = FindCommand(words.at(0));
  auto const kind = command.kind;
  if (kind == CommandKind::Alone || kind == CommandKind::Draws || command.name == kRecipeCommand)
    throw UsageError("a recipe can't hold '" + words[0] + "'");
  CLI::App app("", words[0]);
  app.set_help_flag();
  Values values;
  AddOwnOptions(app, command, values, [](auto) { return true; });
  try {
    app.parse(std::vector<std::string>(words.rbegin(), words.rend() - 1));
  } catch (CLI::ParseError const& fault) {
    throw UsageError(Explain(fault));
  }
  return {&command, TakeArguments(app, command, values)};
}

std::string NamedCommand(std::vector<std::string> const& words) {
  auto const word = CommandWord(words);
  auto const all = Commands();
  bool const known = std::any_of(all.begin(), all.end(),
                                 [&](Command const& command) { return command.name == word; });
  return known ? word : std::string();
}

bool AsksForJson(std::vector<std::string> const& words) {
  for (auto const& word : words) {
    if (word == "--") return false;
    if (word == "--json") return true;
  }
  return false;
}

}  // namespace Tarvex::Workbench
