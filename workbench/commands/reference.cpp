#include "workbench/commands/reference.h"

#include <array>
#include <nlohmann/json.hpp>

#include "workbench/file/model_schema.h"

namespace Tarvex::Workbench {
namespace {

std::string Usage(Command const& command) {
  auto text = "    tarvex " + std::string(command.name);
  for (auto const& option : command.options)
    if (option.kind == ValueKind::FileBefore) text += " " + std::string(option.name);
  if (command.kind != CommandKind::Alone) text += " MODEL";
  for (auto const& option : command.options) {
    if (option.kind == ValueKind::FileBefore) continue;
    if (option.kind == ValueKind::FileBehind) {
      text += " " + std::string(option.name);
      continue;
    }
    text += " [" + std::string(option.name);
    if (option.kind != ValueKind::Flag) text += " " + std::string(option.value);
    text += "]";
  }
  if (command.kind == CommandKind::Changes) text += " (-o OUT | --in-place | --dry-run)";
  if (command.kind == CommandKind::Draws) text += " -o OUT";
  return text + "\n";
}

/// A bar would end a cell of the table.
std::string Cell(std::string_view text) {
  std::string cell;
  for (char const c : text) cell += c == '|' ? std::string("\\|") : std::string(1, c);
  return cell;
}

std::string OptionRow(Option const& option) {
  auto const value = option.value.empty() ? "" : " " + std::string(option.value);
  auto const preset = option.preset.empty() ? "" : "`" + std::string(option.preset) + "`";
  return "| `" + std::string(option.name) + Cell(value) + "` | " + preset + " | " +
         Cell(option.help) + " |\n";
}

std::string Section(Command const& command) {
  auto text = "\n## " + std::string(command.name) + "\n\n" + std::string(command.help) + ".\n\n" +
              Usage(command);
  if (command.options.empty()) return text;
  text += "\n| option | unless given | meaning |\n|---|---|---|\n";
  for (auto const& option : command.options) text += OptionRow(option);
  return text;
}

constexpr std::string_view kHead = R"(# Commands

Made from the program's own table by `tarvex reference`.

`tarvex COMMAND MODEL [options]`. MODEL is a model file, `-` for standard input. A command that
changes a model needs exactly one of:

| option | meaning |
|---|---|
| `-o OUT` | write to OUT, `-` for standard output; an existing file only with `--force` |
| `--in-place` | replace MODEL; the old file stays as `MODEL.bak` |
| `--dry-run` | report only |

A command that draws a model needs `-o OUT`, by the same rules, and leaves the model as it is.

Every command takes `--json` (the report as one JSON object), `-q` (no warnings, and no report but that
of `--json`), `-v` (long lists in full, old numbers with new ones, codes of warnings), `--color
auto|always|never` (of warnings and faults; `auto` is on a terminal, unless `NO_COLOR` is set) and,
with a model, `--strict` (a reference to a missing record is a fault). Results go to standard output,
messages to standard error.

| exit code | meaning |
|---|---|
| 0 | done |
| 1 | done, and there is something to look at |
| 2 | bad command line, or an output that must not be written |
| 3 | the tool or the model refuses |
| 4 | a file is missing, faulty or can't be written |
| 5 | a fault of the program |
| 130 | interrupted |
)";

void PrintReference(CZelData&, Arguments const&, CommandResult& result) {
  result.text = ReferencePage();
  result.result =
      std::make_shared<nlohmann::ordered_json>(nlohmann::ordered_json{{"markdown", result.text}});
}

void PrintSchema(CZelData&, Arguments const&, CommandResult& result) {
  result.text = ModelSchema();
  result.result =
      std::make_shared<nlohmann::ordered_json>(nlohmann::ordered_json::parse(result.text));
}

constexpr std::array kReferenceCommands{
    Command{"schema", "print the JSON schema of model files", {}, CommandKind::Alone, &PrintSchema},
    Command{"reference",
            "print the reference of all commands",
            {},
            CommandKind::Alone,
            &PrintReference},
};

}  // namespace

std::string ReferencePage() {
  std::string page(kHead);
  for (auto const& command : Commands()) page += Section(command);
  return page;
}

std::span<Command const> ReferenceCommands() { return kReferenceCommands; }

}  // namespace Tarvex::Workbench
