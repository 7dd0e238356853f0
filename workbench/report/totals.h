// Totals of load and mass in reports.
#pragma once

#include <nlohmann/json_fwd.hpp>
#include <optional>
#include <string>
#include <vector>

#include "store/calc/element_mass.h"
#include "store/calc/load_totals.h"
#include "workbench/commands/command.h"

namespace Tarvex::Workbench {

/// A load case whose total is not what it was.
struct TotalChange {
  int loadCase = 0;
  LoadTotal before;
  LoadTotal after;
};

/// What a command did to loads and masses.
struct TotalChanges {
  std::vector<TotalChange> cases;                 ///< ascending
  std::optional<std::pair<double, double>> mass;  ///< before and after, where they differ
};

/// Whether it is the force that differs, and not the moment alone.
bool IsForceChanged(TotalChange const& change);

/// Compares two models. Differences within rounding of the sums count as none.
TotalChanges FindTotalChanges(CZelData const& before, CZelData const& after);

/// Whether each number of a total is finite; sums of huge numbers are not.
bool IsFinite(Vec3<double> const& v);
bool IsFinite(LoadTotal const& total);

/// Warns of a total, of what `name` says, that is not finite.
void WarnOfNotFinite(std::string const& name, std::string const& table, int number,
                     CommandResult& result);
/// Warns of the totals behind a change that are not finite.
void WarnOfNotFinite(TotalChanges const& changes, CommandResult& result);

/// Vectors that are not finite are left out.
nlohmann::ordered_json TotalJson(LoadTotal const& total);
nlohmann::ordered_json TotalChangesJson(TotalChanges const& changes);
/// With units; "not finite" where it is not.
std::string TotalText(LoadTotal const& total);
std::string MassText(double mass);
/// Lines of a report.
std::string TotalChangesText(TotalChanges const& changes);

}  // namespace Tarvex::Workbench
