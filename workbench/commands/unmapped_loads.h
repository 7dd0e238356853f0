// What a mapping of loads leaves undone.
#pragma once

#include <set>

#include "store/model/zel_data.h"
#include "workbench/commands/command.h"

namespace Tarvex::Workbench {

/// The loads with a position or face on their entities that can't be mapped from some parents:
/// those on a list that is more than plain numbers, and on members all that are not uniform. To be
/// asked before anything is mapped.
std::vector<Undone> FindUnmappableLoads(CZelData const& model, SelType kind,
                                        std::set<int> const& parents);

/// Those among them on lines: what cutting them maps.
std::vector<Undone> FindUnmappableLineLoads(CZelData const& model, SelType kind,
                                            std::set<int> const& parents);

/// Reports the loads, or, where there are none and a mapping failed all the same, that some could
/// not be mapped.
void ReportUnmapped(std::vector<Undone> const& loads, bool allMapped, CommandResult& result);

/// Reports the load cases whose force is not what it was, whichever rule took it.
void ReportForces(CZelData const& before, CZelData const& model, CommandResult& result);

}  // namespace Tarvex::Workbench
