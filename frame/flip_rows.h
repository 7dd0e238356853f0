// Which topology positions change places when an element is reversed.
#pragma once

#include <algorithm>
#include <array>
#include <span>
#include <utility>

#include "store/record/element.h"

namespace Tarvex {

/// The exchanges that reverse an element, and whether its Z offset then wants one more change of
/// sign: each exchange in a 2D element negates it, and an odd number of changes must come out.
struct FlipRow {
  using Swap = std::pair<int, int>;

  ElementType type;
  std::array<Swap, 4> swaps;
  std::size_t count;
  bool negateOffsetZ;

  std::span<Swap const> Swaps() const { return std::span(swaps).first(count); }
};

inline constexpr FlipRow kLineFlip{ElementType::None, {{{0, 1}}}, 1, false};
inline constexpr FlipRow kBrickFlip{
    ElementType::Brick8, {{{0, 4}, {1, 5}, {2, 6}, {3, 7}}}, 4, false};
inline constexpr std::array kPlateFlips{
    FlipRow{ElementType::Quad4, {{{0, 1}, {2, 3}}}, 2, true},
    FlipRow{ElementType::Quad8, {{{5, 7}, {0, 1}, {2, 3}}}, 3, false},
    FlipRow{ElementType::Tri3, {{{0, 1}}}, 1, false},
    FlipRow{ElementType::Tri6, {{{4, 5}, {0, 1}}}, 2, true},
};

/// The plate row that fits, null when none does.
template <class Fits>
FlipRow const* FindPlateFlipIf(Fits&& fits) {
  auto const at = std::find_if(kPlateFlips.begin(), kPlateFlips.end(), fits);
  return at == kPlateFlips.end() ? nullptr : &*at;
}

/// The row of an element's type, null for one that can't be reversed.
inline FlipRow const* FindFlip(Data::CElement const& element) {
  if (element.Is1D()) return &kLineFlip;
  if (element.Type() == ElementType::Brick8) return &kBrickFlip;
  return FindPlateFlipIf([&](FlipRow const& row) { return row.type == element.Type(); });
}

/// The row of the plate with that many nodes, null when there is none.
inline FlipRow const* FindPlateFlipByNodes(int nodes) {
  return FindPlateFlipIf([&](FlipRow const& row) { return ShapeOf(row.type).nodes == nodes; });
}

}  // namespace Tarvex
