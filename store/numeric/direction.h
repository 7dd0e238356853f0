// Axis directions of a frame.
#pragma once

namespace Tarvex {

/// Direction of a translation (1 to 3) or of a rotation about an axis (4 to 6).
enum class Direction : int { X = 1, Y = 2, Z = 3, XX = 4, YY = 5, ZZ = 6 };

/// Steps to the next direction.
inline Direction& operator++(Direction& d) {
  return d = static_cast<Direction>(static_cast<int>(d) + 1);
}

/// Number of steps from b to a.
inline int operator-(Direction a, Direction b) { return static_cast<int>(a) - static_cast<int>(b); }

}  // namespace Tarvex
