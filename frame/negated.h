// Change of sign.
#pragma once

namespace Tarvex {

/// Change of sign that gives no negative zero, which a file would show.
inline double Negated(double value) { return value == 0 ? value : -value; }

}  // namespace Tarvex
