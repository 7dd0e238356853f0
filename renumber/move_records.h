// The first half of a renumbering: records go to their new numbers.
#pragma once

#include "renumber/renumber_run.h"

namespace Tarvex {

/// Moves the records of every table that has a scheme.
void MoveRecords(RenumberRun const& run);

/// Moves tasks and analysis cases; tasks count as changed, and names that are the default of the
/// old number become that of the new one.
void MoveTasksAndCases(RenumberRun const& run);
/// Moves combinations; those whose number is not taken over stay.
void MoveCombinations(RenumberRun const& run);
/// Puts loads on the new numbers of their load cases. @return whether any load was stored.
bool MoveLoads(RenumberRun const& run);

/// Gives members the children of the members that they were, under their new numbers.
void MoveChildren(RenumberRun const& run);

}  // namespace Tarvex
