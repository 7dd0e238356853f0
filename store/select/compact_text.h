// Numbers as the text of a list.
#pragma once

#include <span>

#include "store/select/intervals.h"
#include "store/text/cstring.h"

namespace Tarvex {

/// List text of numbers: runs of three or more consecutive ones as "a to b", all else singly, one
/// blank between and none at the end.
TARVEX_STORE_EXPORT CString CompactText(Intervals const& numbers);
/// The same of ascending numbers.
TARVEX_STORE_EXPORT CString CompactText(std::span<int const> numbers);

}  // namespace Tarvex
