#include "store/record/mat_tables.h"

namespace Tarvex::Data {

std::size_t CMatMatrix::Place(Direction row, Direction column) {
  auto const [first, last] = std::minmax({row - Direction::X, column - Direction::X});
  if (first < 0 || last > 5) ThrowBadSubscript();
  auto const low = static_cast<std::size_t>(first);
  auto const high = static_cast<std::size_t>(last);
  return high * (high + 1) / 2 + low;
}

}  // namespace Tarvex::Data
