// Loads spread along lines. Internal to the store.
#pragma once

#include <array>
#include <span>

#include "store/calc/load_line.h"
#include "store/calc/load_sum.h"

namespace Tarvex::Calc {

/// A stretch of a line with an intensity that changes evenly.
struct Stretch {
  double from = 0;  ///< distances from the start of the line
  double to = 0;
  std::array<double, 2> value{};
};

/// Adds a load of force a length. @param projected whether it counts a length of the line's
/// projection at a right angle to the load
void AddStretches(LoadSum& sum, LoadDirection const& direction, LoadLine const& line,
                  std::span<Stretch const> stretches, bool projected);

}  // namespace Tarvex::Calc
