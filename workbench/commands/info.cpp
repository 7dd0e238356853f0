#include "workbench/commands/info.h"

#include <array>
#include <map>
#include <nlohmann/json.hpp>

#include "store/model/registry.h"
#include "workbench/report/text.h"

namespace Tarvex::Workbench {
namespace {

using Json = nlohmann::ordered_json;

Json Point(Vec3<double> const& p) { return Json::array({p.x, p.y, p.z}); }

std::string PointText(Vec3<double> const& p) {
  return "(" + NumberText(p.x) + ", " + NumberText(p.y) + ", " + NumberText(p.z) + ")";
}

/// Elements by type number.
std::map<int, int> CountTypes(CZelData const& model) {
  std::map<int, int> counts;
  for (auto const& [n, element] : model.Elem()) ++counts[static_cast<int>(element.Type())];
  return counts;
}

}  // namespace

void Info(CZelData& model, Arguments const&, CommandResult& result) {
  Json tables = Json::object();
  constexpr std::size_t kStemWidth = 20;  // as wide as the longest stem
  constexpr std::size_t kNumberWidth = 11;
  std::string text = Padded("table", kStemWidth) + PaddedLeft("records", kNumberWidth) +
                     PaddedLeft("highest", kNumberWidth) + "\n";
  ForEachTable([&](auto const& row) {
    auto const& table = (model.*row.all)();
    if (table.empty()) return;
    tables[std::string(row.stem)] = {{"count", table.size()}, {"highest", HighestOf(table)}};
    text += Padded(std::string(row.stem), kStemWidth) +
            PaddedLeft(std::to_string(table.size()), kNumberWidth) +
            PaddedLeft(std::to_string(HighestOf(table)), kNumberWidth) + "\n";
  });
  Json types = Json::object();
  for (auto const& [type, count] : CountTypes(model)) {
    types[std::to_string(type)] = count;
    text += "elements of type " + Padded(std::to_string(type), 3) + std::to_string(count) + "\n";
  }
  auto const& box = model.Extents();
  Json extents;
  if (!box.IsEmpty()) {
    extents = {{"min", Point(box.Min())}, {"max", Point(box.Max())}};
    text += "extents " + PointText(box.Min()) + " to " + PointText(box.Max()) + " m\n";
  }
  result.result = std::make_shared<Json>(Json{{"tables", tables},
                                              {"elementTypes", types},
                                              {"extents", extents},
                                              {"units",
                                               {{"length", "m"},
                                                {"force", "N"},
                                                {"mass", "kg"},
                                                {"time", "s"},
                                                {"temperature", "C"},
                                                {"angle", "deg"}}}});
  result.text = text;
  result.did = true;
}

}  // namespace Tarvex::Workbench
