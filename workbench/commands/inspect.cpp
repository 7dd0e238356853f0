#include "workbench/commands/inspect.h"

#include <array>
#include <map>
#include <nlohmann/json.hpp>

#include "workbench/commands/info.h"
#include "workbench/file/model_reader.h"
#include "workbench/report/field_changes.h"
#include "workbench/report/integrity.h"
#include "workbench/report/report.h"
#include "workbench/report/text.h"

namespace Tarvex::Workbench {
namespace {

using Json = nlohmann::ordered_json;

Json ToJson(Finding const& finding) {
  Json json{{"code", finding.code},
            {"table", finding.table},
            {"number", finding.number},
            {"field", finding.field},
            {"index", finding.index}};
  if (finding.value) json["value"] = *finding.value;
  if (!finding.target.empty()) json["target"] = finding.target;
  if (!finding.reason.empty()) json["reason"] = finding.reason;
  return json;
}

void Check(CZelData& model, Arguments const&, CommandResult& result) {
  auto const findings = FindFaults(model);
  Json json = Json::array();
  for (auto const& finding : findings) {
    json.push_back(ToJson(finding));
    result.text += FindingText(finding) + "\n";
  }
  result.text += Counted(findings.size(), "finding") + "\n";
  result.result = std::make_shared<Json>(Json{{"findings", json}});
  result.did = true;
  result.lookAt = !findings.empty();
}

void Diff(CZelData& model, Arguments const& arguments, CommandResult& result) {
  CZelData other;
  ReadModel(arguments.Text("OTHER"), other);
  auto const changes = FindChanges(model, other);
  Json fields = Json::array();
  for (auto const& change : FindFieldChanges(model, other)) {
    auto const before = Json::parse(change.before);
    auto const after = Json::parse(change.after);
    fields.push_back({{"table", change.table},
                      {"number", change.number},
                      {"field", change.field},
                      {"before", before},
                      {"after", after}});
    result.text += "  " + std::string(change.table) + " " + std::to_string(change.number) + " " +
                   std::string(change.field) + ": " + change.before + " -> " + change.after + "\n";
  }
  result.text = ChangesText(changes, false) + result.text;
  if (changes.empty()) result.text = "the models are equal\n";
  result.result =
      std::make_shared<Json>(Json{{"changes", ChangesJson(changes)}, {"fields", fields}});
  result.did = true;
  result.lookAt = !changes.empty();
}

constexpr std::array kDiffOptions{
    Option{"OTHER", "", ValueKind::FileBehind, "", "the model file to compare with"}};

constexpr std::array kInspectCommands{
    Command{"info",
            "say what a model holds: tables, element types, extents",
            {},
            CommandKind::Reads,
            &Info},
    Command{"check",
            "find faults of a model: references to missing records, wrong topologies",
            {},
            CommandKind::Reads,
            &Check},
    Command{"diff", "compare two models, field by field", kDiffOptions, CommandKind::Reads, &Diff},
};

}  // namespace

std::span<Command const> InspectCommands() { return kInspectCommands; }

}  // namespace Tarvex::Workbench
