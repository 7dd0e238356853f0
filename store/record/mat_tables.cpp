#include "store/record/mat_tables.h"

namespace Tarvex::Data {

std::size_t CMatMatrix::Place(Direction row, Direction column) {
  auto const [low, high] = std::minmax({row - Direction::X, column - Direction::X});
  if (low < 0 || high > 5) ThrowBadSubscript();
  return static_cast<std::size_t>(high * (high + 1) / 2 + low);
}

}  // namespace Tarvex::Data
