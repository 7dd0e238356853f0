// Numbers as the text of a list.
#pragma once

#include <span>

#include "store/export.h"
#include "store/text/cstring.h"

namespace Tarvex {

/// List text of ascending numbers: runs of three or more consecutive ones as "a to b", all else
/// singly, one blank between and none at the end.
TARVEX_STORE_EXPORT CString CompactText(std::span<int const> numbers);

}  // namespace Tarvex
