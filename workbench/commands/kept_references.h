// What still names a number that something else has taken the place of.
#pragma once

#include <functional>
#include <string_view>

#include "store/model/zel_data.h"
#include "workbench/commands/command.h"

namespace Tarvex::Workbench {

/// Which references are looked at.
struct KeptReferences {
  std::string_view target;  ///< stem of the table that is referred to
  std::string_view label;   ///< "node"
  std::function<bool(int)> isOld;
  /// Whether references of a table are meant to stay.
  std::function<bool(std::string_view)> mayStay = [](std::string_view) { return false; };
};

/// Reports each record that names an old number singly, once, unless it has been reported already.
void ReportKeptReferences(CZelData const& model, KeptReferences const& kept, CommandResult& result);

}  // namespace Tarvex::Workbench
