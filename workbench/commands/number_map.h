// Files that say which numbers become which: one line each, "old new new ...".
#pragma once

#include <map>
#include <string>
#include <vector>

#include "store/model/zel_data.h"

namespace Tarvex::Workbench {

/// Old number to new numbers, in order.
using NumberLists = std::map<int, std::vector<int>>;

/// Reads a file of whole numbers from 1 to 100000000 with blanks between them; "#" begins a
/// comment, "-" is standard input. Throws FileError with line and column for anything else and for
/// an old number that comes twice, UsageError when the name is empty.
/// @param fewest, most how many new numbers each line may have; most -1 for any.
NumberLists ReadNumberMap(std::string const& path, int fewest, int most);

/// Throws Refusal when a new number names no entity of the kind, and, when asked, an old one.
void RequireEntities(CZelData const& model, SelType kind, NumberLists const& numbers, bool oldToo);

}  // namespace Tarvex::Workbench
