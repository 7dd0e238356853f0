// Bounds of record numbers.
#pragma once

namespace Tarvex {

/// Record numbers run from 1 to this; 0 means none.
inline constexpr int kHighestNumber = 100000000;

}  // namespace Tarvex
