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
  return "  " + Padded(std::string(table) + " ", 10) + what + " " + std::to_string(numbers.size()) +
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

/// Records that moved alike: the old numbers and the new ones both go up by 1, or all of the old
/// ones went.
struct MapRun {
  std::pair<int, int> first;
  int count = 1;

  bool GoesOnWith(std::pair<int, int> const& next) const {
    bool const isNew = first.second == 0 ? next.second == 0 : next.second == first.second + count;
    return isNew && next.first == first.first + count;
  }
};

std::string RunText(int first, int count) {
  auto text = std::to_string(first);
  if (count == 1) return text;
  return text + (count == 2 ? " " : " to ") + std::to_string(first + count - 1);
}

/// "  Elem      7 to 9 -> 1 to 3".
std::string MapLines(std::string const& table, std::vector<std::pair<int, int>> const& moves) {
  std::vector<MapRun> runs;
  for (auto const& move : moves) {
    if (!runs.empty() && runs.back().GoesOnWith(move))
      ++runs.back().count;
    else
      runs.push_back({move});
  }
  std::string text;
  for (auto const& run : runs) {
    auto const [old, number] = run.first;
    text += "  " + Padded(table + " ", 10) + RunText(old, run.count) + " -> " +
            (number == 0 ? "gone" : RunText(number, run.count)) + "\n";
  }
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
  if (verbose)
    for (auto const& [table, moves] : result.maps) text += MapLines(table, moves);
  for (auto const& message : result.messages) text += "  " + message + "\n";
  text += UndoneLines(result.undone, verbose);
  text += TotalChangesText(report.totals);
  for (auto const& tolerance : result.tolerances)
    text += "  " + tolerance.name + " " + NumberText(tolerance.value) + " " + tolerance.unit + "\n";
  return text + written;
}

}  // namespace Tarvex::Workbench
