// How the responses to an earthquake in several directions come together.
#pragma once

namespace Tarvex::Data {

/// Combination of the effects of the components of a seismic action (EN 1998-1, 4.3.3.5.1). The
/// numbers are those of recorded work.
enum class RespComb : int {
  ThirtyPercent = 1,  ///< each direction in full with 0.3 of the others
  SquareRoot = 2,     ///< the root of the sum of the squares
};

}  // namespace Tarvex::Data
