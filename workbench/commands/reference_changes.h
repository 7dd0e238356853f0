// References of records that do not name after a run what they named before it.
#pragma once

#include <functional>
#include <string_view>

#include "workbench/commands/renumber_run.h"

namespace Tarvex::Workbench {

/// The number that a record has behind a run, by the name of its table and its number before; 0 for
/// one that went.
using NumberBehindRun = std::function<int(std::string_view table, int number)>;

/// Reports as undone each reference field that does not name its record any more: one that kept the
/// number of a record that moved or went, one that took another number, one that lost a record that
/// went, one without a record that changed all the same. Lists and descriptions are left to others.
/// Elements that leave the children of a member and cases that leave a task are no loss: the places
/// go with them.
void ReportReferences(FinishedRun const& run, NumberBehindRun const& numberBehind,
                      CommandResult& result);

}  // namespace Tarvex::Workbench
