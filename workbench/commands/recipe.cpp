#include "workbench/commands/recipe.h"

#include <array>
#include <nlohmann/json.hpp>

#include "workbench/cli/command_line.h"
#include "workbench/commands/errors.h"
#include "workbench/file/read_file.h"
#include "workbench/report/new_faults.h"
#include "workbench/report/report.h"

namespace Tarvex::Workbench {
namespace {

using Json = nlohmann::ordered_json;

/// Splits one line into words.
class Splitter {
 public:
  explicit Splitter(std::string_view line) : m_line(line) {}

  /// @return false for a quotation without its end.
  bool Split(std::vector<std::string>& words) {
    for (; m_at < m_line.size(); ++m_at) {
      char const c = m_line[m_at];
      if (c == ' ' || c == '\t' || c == '\r') {
        Finish(words);
      } else if (c == '#' && !m_inWord) {
        break;
      } else {
        m_inWord = true;
        if (!TakeCharacter(c)) return false;
      }
    }
    Finish(words);
    return true;
  }

 private:
  bool TakeCharacter(char c) {
    if (c == '\'') return TakeQuoted('\'', "");
    if (c == '"') return TakeQuoted('"', "\"\\$`");
    if (c == '\\' && m_at + 1 < m_line.size()) c = m_line[++m_at];
    m_word += c;
    return true;
  }

  /// Takes what stands between two quotation marks; a backslash escapes the characters given.
  bool TakeQuoted(char mark, std::string_view escaped) {
    for (++m_at; m_at < m_line.size() && m_line[m_at] != mark; ++m_at) {
      bool const escapes = m_line[m_at] == '\\' && m_at + 1 < m_line.size() &&
                           escaped.find(m_line[m_at + 1]) != std::string_view::npos;
      if (escapes) ++m_at;
      m_word += m_line[m_at];
    }
    return m_at < m_line.size();
  }

  void Finish(std::vector<std::string>& words) {
    if (m_inWord) words.push_back(std::move(m_word));
    m_word.clear();
    m_inWord = false;
  }

  std::string_view m_line;
  std::size_t m_at = 0;
  std::string m_word;
  bool m_inWord = false;
};

/// Calls run and gives a failure the place of the recipe's line.
template <class Run>
void AtLine(std::string const& name, int line, Run&& run) {
  FilePlace const place{name, line, 0, ""};
  try {
    run();
  } catch (UsageError const& fault) {
    throw UsageError(place, fault.what());
  } catch (FileError const& fault) {
    throw FileError(place, fault.what());
  } catch (std::exception const& fault) {
    throw Refusal(place, fault.what());
  }
}

/// What one step adds to the result of the recipe.
void Gather(CommandResult const& from, CommandResult& into) {
  into.did = into.did || from.did;
  into.lookAt = into.lookAt || from.lookAt;
  into.messages.insert(into.messages.end(), from.messages.begin(), from.messages.end());
  into.undone.insert(into.undone.end(), from.undone.begin(), from.undone.end());
  into.warnings.insert(into.warnings.end(), from.warnings.begin(), from.warnings.end());
}

void RunStep(CZelData& model, RecipeStep const& step, Report& report) {
  CZelData const before(model);
  report.command = step.command->name;
  report.changesModel = step.command->kind == CommandKind::Changes;
  step.command->run(model, step.arguments, report.result);
  report.changes = FindChanges(before, model);
  if (report.changes.empty()) return;
  report.totals = FindTotalChanges(before, model);
  WarnOfNotFinite(report.totals, report.result);
  WarnOfNewFaults(before, model, report.result);
}

void RunRecipe(CZelData& model, Arguments const& arguments, CommandResult& result) {
  auto const& name = arguments.Text("RECIPE");
  Json steps = Json::array();
  for (auto const& line : SplitRecipe(ReadWholeFile(name), name)) {
    Report report;
    AtLine(name, line.number, [&] { RunStep(model, ParseRecipeLine(line.words), report); });
    steps.push_back(
        {{"line", line.number}, {"command", report.command}, {"data", DataJson(report)}});
    result.text += ReportText(report, false);
    Gather(report.result, result);
  }
  result.steps = std::make_shared<Json>(std::move(steps));
}

constexpr std::array kOptions{Option{"RECIPE", "", ValueKind::FileBefore, "",
                                     "a file with one command a line, without model and output"}};
constexpr std::array kRecipeCommands{Command{kRecipeCommand,
                                             "run a recipe: several commands in one step", kOptions,
                                             CommandKind::Changes, &RunRecipe}};

}  // namespace

std::vector<RecipeLine> SplitRecipe(std::string_view text, std::string const& name) {
  std::vector<RecipeLine> lines;
  int number = 0;
  for (std::size_t at = 0; at < text.size();) {
    auto const end = std::min(text.find('\n', at), text.size());
    RecipeLine line{++number, {}};
    if (!Splitter(text.substr(at, end - at)).Split(line.words))
      throw UsageError({name, number, 0, ""}, "a quotation without its end");
    if (!line.words.empty()) lines.push_back(std::move(line));
    at = end + 1;
  }
  return lines;
}

std::span<Command const> RecipeCommands() { return kRecipeCommands; }

}  // namespace Tarvex::Workbench
