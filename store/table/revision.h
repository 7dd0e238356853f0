// Identity of a table's contents.
#pragma once

#include <cstdint>

#include "store/export.h"

namespace Tarvex {

/// A number that no table of the process has had before. A table takes one at every change, so two
/// tables with the same revision hold the same records, whichever model they belong to.
TARVEX_STORE_EXPORT std::uint64_t NextRevision();

}  // namespace Tarvex
