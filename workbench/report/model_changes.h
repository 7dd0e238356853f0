// What differs between two states of a model, by table.
#pragma once

#include <string_view>
#include <vector>

#include "store/model/zel_data.h"

namespace Tarvex::Workbench {

/// Numbers of one table, ascending. A one-off record counts as changed with number 0.
struct TableChange {
  std::string_view table;
  std::vector<int> added;
  std::vector<int> removed;
  std::vector<int> changed;
};

/// The tables with a change, in the order of the registry. Costs what changed, not what the model
/// holds, when one state came from a copy of the other.
std::vector<TableChange> FindChanges(CZelData const& before, CZelData const& after);

}  // namespace Tarvex::Workbench
