// The entities that a list text selects, and the command that tells them.
#pragma once

#include <string>

#include "store/model/zel_data.h"
#include "store/record/ent_list.h"
#include "store/select/set.h"
#include "workbench/commands/command.h"

namespace Tarvex::Workbench {

/// The kind that "node", "element" or "member" names.
SelType KindOf(std::string_view word);

/// The list of a text that an option has. Throws UsageError with option, place and reason for a
/// text that is no list.
Data::CEntList ListOf(SelType kind, std::string const& text, std::string const& option = "--list");

/// The existing entities of a kind that a list text selects; docs/lists.md tells how. Elements
/// include load panels. Throws as ListOf.
Util::CSet Select(CZelData const& model, SelType kind, std::string const& listText,
                  std::string const& option = "--list");

/// As Select by the option --list; warns when nothing is selected and of saved lists that there are
/// not.
Util::CSet SelectByOptions(CZelData const& model, SelType kind, Arguments const& arguments,
                           CommandResult& result);

std::span<Command const> SelectionCommands();

}  // namespace Tarvex::Workbench
