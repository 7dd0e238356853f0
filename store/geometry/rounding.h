// Rounding to decimals and to significant digits.
#pragma once

#include "store/export.h"
#include "store/numeric/vec.h"

namespace Tarvex {

/// The double nearest to the number with so many decimals (below 0 counts as 0). The value is taken
/// as it is to the last bit; one half-way between two such numbers goes to the one further from 0
/// (beyond 22 decimals, to the even one). Numbers that are not finite stay.
TARVEX_STORE_EXPORT double Round(double value, int decimals);

/// Each component to so many significant digits (below 1 counts as 1), by itself and otherwise as
/// the form for decimals.
TARVEX_STORE_EXPORT Vec3<double> Round(Vec3<double> const& v, int digits);

}  // namespace Tarvex
