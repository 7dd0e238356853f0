// Totals of load and mass in reports.
#pragma once

#include <nlohmann/json_fwd.hpp>
#include <optional>
#include <string>
#include <vector>

#include "store/calc/element_mass.h"
#include "store/calc/load_totals.h"

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

nlohmann::ordered_json TotalJson(LoadTotal const& total);
nlohmann::ordered_json TotalChangesJson(TotalChanges const& changes);
std::string TotalText(LoadTotal const& total);
/// Lines of a report.
std::string TotalChangesText(TotalChanges const& changes);

}  // namespace Tarvex::Workbench
