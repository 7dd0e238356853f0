#include "workbench/report/totals.h"

#include <algorithm>
#include <cmath>
#include <nlohmann/json.hpp>

#include "store/geometry/rounding.h"
#include "store/model/zel_data.h"
#include "workbench/report/text.h"

namespace Tarvex::Workbench {
namespace {

using Json = nlohmann::ordered_json;

/// Part of the size of a total that sums in another order may differ by.
constexpr double kRoundingOfSums = 1e-9;

Json VectorJson(Vec3<double> const& v) { return Json::array({v.x, v.y, v.z}); }

/// Rounded for readers: sums carry the rounding of their terms.
std::string VectorText(Vec3<double> const& exact) {
  constexpr int kDigits = 9;
  auto const v = Round(exact, kDigits);
  return "(" + NumberText(v.x) + ", " + NumberText(v.y) + ", " + NumberText(v.z) + ")";
}

bool IsClose(Vec3<double> const& a, Vec3<double> const& b) {
  return Length(a - b) <= kRoundingOfSums * std::max(Length(a), Length(b));
}

}  // namespace

bool IsForceChanged(TotalChange const& change) {
  return !IsClose(change.before.force, change.after.force);
}

TotalChanges FindTotalChanges(CZelData const& before, CZelData const& after) {
  TotalChanges changes;
  auto old = SumLoads(before).byCase;
  auto const now = SumLoads(after).byCase;
  for (auto const& [loadCase, total] : now) old.try_emplace(loadCase);
  for (auto const& [loadCase, total] : old) {
    auto const found = now.find(loadCase);
    auto const& other = found == now.end() ? LoadTotal() : found->second;
    if (!IsClose(total.force, other.force) || !IsClose(total.moment, other.moment))
      changes.cases.push_back({loadCase, total, other});
  }
  double const oldMass = MassOfModel(before, 0).total.mass;
  double const mass = MassOfModel(after, 0).total.mass;
  if (std::abs(mass - oldMass) > kRoundingOfSums * std::max(std::abs(mass), std::abs(oldMass)))
    changes.mass = {oldMass, mass};
  return changes;
}

Json TotalJson(LoadTotal const& total) {
  return {{"force", VectorJson(total.force)}, {"moment", VectorJson(total.moment)}};
}

Json TotalChangesJson(TotalChanges const& changes) {
  Json json = Json::array();
  for (auto const& change : changes.cases)
    json.push_back({{"loadCase", change.loadCase},
                    {"before", TotalJson(change.before)},
                    {"after", TotalJson(change.after)}});
  return json;
}

std::string TotalText(LoadTotal const& total) {
  return "force " + VectorText(total.force) + " N, moment " + VectorText(total.moment) + " Nm";
}

std::string TotalChangesText(TotalChanges const& changes) {
  std::string text;
  for (auto const& change : changes.cases) {
    auto const name = "  load case " + std::to_string(change.loadCase) + " ";
    text += name + "before: " + TotalText(change.before) + "\n";
    text += name + "after:  " + TotalText(change.after) + "\n";
  }
  if (changes.mass)
    text += "  mass before: " + NumberText(changes.mass->first) +
            " kg, after: " + NumberText(changes.mass->second) + " kg\n";
  return text;
}

}  // namespace Tarvex::Workbench
