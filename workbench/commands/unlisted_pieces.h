// Pieces of children that their members do not know.
#pragma once

#include "store/model/zel_data.h"
#include "workbench/commands/command.h"

namespace Tarvex::Workbench {

/// Warns of new elements that bear the number of a member which does not list them.
void WarnOfUnlistedPieces(CZelData const& before, CZelData const& model, CommandResult& result);

}  // namespace Tarvex::Workbench
