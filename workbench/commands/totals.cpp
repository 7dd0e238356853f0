#include "workbench/commands/totals.h"

#include <array>
#include <cmath>
#include <nlohmann/json.hpp>

#include "store/record/load_case_title.h"
#include "workbench/file/json_scan.h"
#include "workbench/report/text.h"
#include "workbench/report/totals.h"

namespace Tarvex::Workbench {
namespace {

using Json = nlohmann::ordered_json;

Json CaseTotalJson(CZelData const& model, int loadCase, LoadTotal const& total) {
  Json json{{"loadCase", loadCase}};
  if (model.LoadCaseTitleExist(loadCase))
    json["name"] = model.LoadCaseTitle(loadCase).Name().ToUtf8();
  json.update(TotalJson(total));
  return json;
}

std::string CaseTotalText(CZelData const& model, int loadCase, LoadTotal const& total) {
  auto text = "load case " + std::to_string(loadCase);
  if (model.LoadCaseTitleExist(loadCase))
    text += " " + Quoted(model.LoadCaseTitle(loadCase).Name().ToUtf8());
  return text + ": " + TotalText(total) + "\n";
}

void Totals(CZelData& model, Arguments const&, CommandResult& result) {
  auto const totals = SumLoads(model);
  auto const mass = MassOfModel(model, 0);
  Json cases = Json::array();
  for (auto const& [loadCase, total] : totals.byCase) {
    cases.push_back(CaseTotalJson(model, loadCase, total));
    result.text += CaseTotalText(model, loadCase, total);
    if (!IsFinite(total))
      WarnOfNotFinite("the total of load case " + std::to_string(loadCase), "LoadCaseTitle",
                      loadCase, result);
  }
  auto const& centre = mass.total.centre;
  bool const hasMass = std::isfinite(mass.total.mass);
  bool const hasCentre = IsFinite(centre);
  result.text += "mass " + MassText(mass.total.mass) + ", centre ";
  result.text += hasCentre ? "(" + NumberText(centre.x) + ", " + NumberText(centre.y) + ", " +
                                 NumberText(centre.z) + ") m\n"
                           : "not finite\n";
  if (!hasMass || !hasCentre)
    WarnOfNotFinite(hasMass ? "the centre of the mass" : "the mass", "", 0, result);
  for (auto const& load : totals.uncounted)
    result.undone.push_back({std::string(load.table), load.number,
                             "not all of it is counted: " + std::string(load.why)});
  if (mass.unknown > 0)
    result.warnings.push_back({"unknown-mass", "Elem", 0,
                               "the mass of " +
                                   Counted(static_cast<std::size_t>(mass.unknown), "element") +
                                   " is not known: a node, property or material is missing"});
  for (auto const& item : result.undone)
    result.text += item.table + " " + std::to_string(item.number) + ": " + item.why + "\n";
  Json massJson = Json::object();
  if (hasMass) massJson["value"] = mass.total.mass;
  if (hasCentre) massJson["centre"] = Json::array({centre.x, centre.y, centre.z});
  massJson["unknown"] = mass.unknown;
  Json uncounted = Json::array();
  for (auto const& load : totals.uncounted)
    uncounted.push_back({{"table", load.table}, {"number", load.number}, {"why", load.why}});
  result.result =
      std::make_shared<Json>(Json{{"cases", cases}, {"mass", massJson}, {"uncounted", uncounted}});
  result.did = true;
}

constexpr std::array kTotalsCommands{
    Command{"totals",
            "sum the loads of each load case, with their moment about the origin, and the mass "
            "of the elements",
            {},
            CommandKind::Reads,
            &Totals}};

}  // namespace

std::span<Command const> TotalsCommands() { return kTotalsCommands; }

}  // namespace Tarvex::Workbench
