// The entities that a list text selects.
#pragma once

#include <string>

#include "store/model/zel_data.h"
#include "store/select/set.h"
#include "workbench/commands/command.h"

namespace Tarvex::Workbench {

/// The kind that "node", "element" or "member" names.
SelType KindOf(std::string_view word);

/// The existing entities of a kind that a list text names: numbers, ranges "a to b step s" where
/// "*" is the highest number, "all", "none". Elements include load panels. Throws UsageError with
/// the place for a text that is none of this.
Util::CSet Select(CZelData const& model, SelType kind, std::string const& listText);

/// As Select by the options --list and, where the command has it, the kind given; warns when
/// nothing is selected.
Util::CSet SelectByOptions(CZelData const& model, SelType kind, Arguments const& arguments,
                           CommandResult& result);

}  // namespace Tarvex::Workbench
