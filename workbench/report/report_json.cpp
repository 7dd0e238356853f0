#include <cmath>
#include <nlohmann/json.hpp>

#include "workbench/report/report.h"

namespace Tarvex::Workbench {
namespace {

using Json = nlohmann::ordered_json;

Json Undones(std::vector<Undone> const& undone) {
  Json json = Json::array();
  for (auto const& item : undone)
    json.push_back({{"table", item.table}, {"number", item.number}, {"why", item.why}});
  return json;
}

Json Maps(std::map<std::string, std::vector<std::pair<int, int>>> const& maps) {
  Json json = Json::object();
  for (auto const& [table, moves] : maps) {
    auto& rows = json[table] = Json::array();
    for (auto const& [old, number] : moves) rows.push_back({old, number});
  }
  return json;
}

Json Tolerances(std::vector<ToleranceUsed> const& tolerances) {
  Json json = Json::array();
  for (auto const& item : tolerances)
    json.push_back({{"name", item.name}, {"value", item.value}, {"unit", item.unit}});
  return json;
}

Json Warnings(std::vector<Warning> const& warnings) {
  Json json = Json::array();
  for (auto const& warning : warnings) {
    Json item{{"code", warning.code}};
    if (!warning.table.empty()) item["table"] = warning.table;
    if (warning.number != 0) item["number"] = warning.number;
    item["text"] = warning.text;
    json.push_back(std::move(item));
  }
  return json;
}

Json Error(Failure const& failure) {
  Json json{{"text", failure.text}};
  auto const& place = failure.place;
  if (!place.file.empty()) json["file"] = place.file;
  if (place.line > 0) json["line"] = place.line;
  if (place.line > 0 && place.column > 0) json["column"] = place.column;
  if (!place.pointer.empty()) json["pointer"] = place.pointer;
  return json;
}

}  // namespace

Json ChangesJson(std::vector<TableChange> const& changes) {
  Json json = Json::object();
  for (auto const& change : changes)
    json[std::string(change.table)] = {
        {"added", change.added}, {"removed", change.removed}, {"changed", change.changed}};
  return json;
}

Json DataJson(Report const& report) {
  auto const& result = report.result;
  Json own = result.result == nullptr ? Json::object() : *result.result;
  if (!report.changesModel && !report.output.empty()) own["output"] = report.output;
  if (!report.changesModel) return own;
  auto const orNull = [](std::string const& text) { return text.empty() ? Json() : Json(text); };
  Json json{{"input", orNull(report.input)},
            {"output", orNull(report.output)},
            {"dryRun", report.dryRun},
            {"did", result.did},
            {"changes", ChangesJson(report.changes)},
            {"maps", Maps(result.maps)},
            {"messages", result.messages},
            {"undone", Undones(result.undone)},
            {"totals", TotalChangesJson(report.totals)},
            {"tolerances", Tolerances(result.tolerances)},
            {"result", own}};
  if (auto const& mass = report.totals.mass) {
    auto& pair = json["mass"] = Json::object();
    if (std::isfinite(mass->first)) pair["before"] = mass->first;
    if (std::isfinite(mass->second)) pair["after"] = mass->second;
  }
  if (result.steps != nullptr) json["steps"] = *result.steps;
  return json;
}

std::string ReportJson(Report const& report) {
  Json json{{"schema", "tarvex-result-1"},       {"tool", "tarvex"},
            {"version", TARVEX_VERSION},         {"command", report.command},
            {"ok", !report.failure.has_value()}, {"exit", static_cast<int>(report.exit)}};
  if (report.failure)
    json["error"] = Error(*report.failure);
  else
    json["data"] = DataJson(report);
  json["warnings"] = Warnings(report.result.warnings);
  // Text that came from a command line may be no UTF-8.
  return json.dump(2, ' ', false, Json::error_handler_t::replace) + "\n";
}

}  // namespace Tarvex::Workbench
