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
std::string VectorText(Vec3<double> const& exact, char const* unit) {
  if (!IsFinite(exact)) return "not finite";
  constexpr int kDigits = 9;
  auto const v = Round(exact, kDigits);
  return "(" + NumberText(v.x) + ", " + NumberText(v.y) + ", " + NumberText(v.z) + ") " + unit;
}

bool IsClose(Vec3<double> const& a, Vec3<double> const& b) {
  return IsFinite(a) && IsFinite(b) &&
         Length(a - b) <= kRoundingOfSums * std::max(Length(a), Length(b));
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
  bool const finite = std::isfinite(mass) && std::isfinite(oldMass);
  if (!finite ||
      std::abs(mass - oldMass) > kRoundingOfSums * std::max(std::abs(mass), std::abs(oldMass)))
    changes.mass = {oldMass, mass};
  return changes;
}

bool IsFinite(Vec3<double> const& v) {
  return std::isfinite(v.x) && std::isfinite(v.y) && std::isfinite(v.z);
}

bool IsFinite(LoadTotal const& total) { return IsFinite(total.force) && IsFinite(total.moment); }

void WarnOfNotFinite(std::string const& name, std::string const& table, int number,
                     CommandResult& result) {
  result.warnings.push_back({"total-not-finite", table, number,
                             name + " is not finite: a place or a value is too large to sum"});
  result.lookAt = true;
}

void WarnOfNotFinite(TotalChanges const& changes, CommandResult& result) {
  for (auto const& change : changes.cases)
    if (!IsFinite(change.after))
      WarnOfNotFinite("the total of load case " + std::to_string(change.loadCase), "LoadCaseTitle",
                      change.loadCase, result);
  if (changes.mass && !std::isfinite(changes.mass->second))
    WarnOfNotFinite("the mass", "", 0, result);
}

Json TotalJson(LoadTotal const& total) {
  Json json = Json::object();
  if (IsFinite(total.force)) json["force"] = VectorJson(total.force);
  if (IsFinite(total.moment)) json["moment"] = VectorJson(total.moment);
  return json;
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
  return "force " + VectorText(total.force, "N") + ", moment " + VectorText(total.moment, "Nm");
}

std::string MassText(double mass) {
  return std::isfinite(mass) ? NumberText(mass) + " kg" : "not finite";
}

std::string TotalChangesText(TotalChanges const& changes) {
  std::string text;
  for (auto const& change : changes.cases) {
    auto const name = "  load case " + std::to_string(change.loadCase) + " ";
    text += name + "before: " + TotalText(change.before) + "\n";
    text += name + "after:  " + TotalText(change.after) + "\n";
  }
  if (changes.mass)
    text += "  mass before: " + MassText(changes.mass->first) +
            ", after: " + MassText(changes.mass->second) + "\n";
  return text;
}

}  // namespace Tarvex::Workbench
