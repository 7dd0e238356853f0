#include <map>

#include "store/select/compact_text.h"
#include "workbench/report/report.h"
#include "workbench/report/text.h"

namespace Tarvex::Workbench {
namespace {

constexpr std::size_t kLongestList = 72;  // characters of a list that is not verbose

std::string Numbers(std::vector<int> const& numbers, bool verbose) {
  auto text = CompactText(numbers).ToUtf8();
  if (verbose || text.size() <= kLongestList) return text;
  auto const cut = text.rfind(' ', kLongestList);
  return text.substr(0, cut) + " ...";
}

std::string ChangeLine(std::string_view table, char const* what, std::vector<int> const& numbers,
                       bool verbose) {
  if (numbers.empty()) return {};
  if (numbers == std::vector{0}) return "  " + std::string(table) + " " + what + "\n";
  return "  " + Padded(std::string(table), 10) + what + " " + std::to_string(numbers.size()) +
         ": " + Numbers(numbers, verbose) + "\n";
}

std::string UndoneLines(std::vector<Undone> const& undone, bool verbose) {
  std::map<std::pair<std::string, std::string>, std::vector<int>> byReason;
  for (auto const& item : undone) byReason[{item.why, item.table}].push_back(item.number);
  std::string text;
  for (auto const& [reason, numbers] : byReason)
    text += "  left undone: " + reason.second + " " + Numbers(numbers, verbose) + ": " +
            reason.first + "\n";
  return text;
}

}  // namespace

std::string ChangesText(std::vector<TableChange> const& changes, bool verbose) {
  std::string text;
  for (auto const& change : changes) {
    text += ChangeLine(change.table, "added", change.added, verbose);
    text += ChangeLine(change.table, "removed", change.removed, verbose);
    text += ChangeLine(change.table, "changed", change.changed, verbose);
  }
  return text;
}

std::string ReportText(Report const& report, bool verbose) {
  auto const& result = report.result;
  auto text = result.text;
  auto const written =
      report.output.empty() ? std::string() : "  written to " + report.output + "\n";
  if (!report.changesModel) return text + written;
  text += report.command + (report.changes.empty() ? ": nothing changed" : ":");
  if (report.dryRun) text += " (dry run)";
  text += "\n";
  text += ChangesText(report.changes, verbose);
  for (auto const& message : result.messages) text += "  " + message + "\n";
  text += UndoneLines(result.undone, verbose);
  text += TotalChangesText(report.totals);
  for (auto const& tolerance : result.tolerances)
    text += "  " + tolerance.name + " " + NumberText(tolerance.value) + " " + tolerance.unit + "\n";
  return text + written;
}

}  // namespace Tarvex::Workbench
