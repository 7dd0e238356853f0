// Places of the nodes along the perimeter of a plate.
#pragma once

#include <algorithm>
#include <array>

#include "store/record/element_shape.h"

namespace Tarvex {

/// A plate with so many corners; one with mid-side nodes has as many of them, behind the corners.
struct PerimeterRow {
  ElementType type;
  int corners;
  bool midSides;
};

inline constexpr std::array kPerimeters{
    PerimeterRow{ElementType::Quad4, 4, false}, PerimeterRow{ElementType::Quad8, 4, true},
    PerimeterRow{ElementType::Tri3, 3, false}, PerimeterRow{ElementType::Tri6, 3, true}};

/// Topology position of the node with an index along the perimeter, where corners and mid-side
/// nodes take turns. The index itself for a type that is no plate.
inline int PerimeterPlace(ElementType type, int index) {
  auto const row = std::find_if(kPerimeters.begin(), kPerimeters.end(),
                                [&](PerimeterRow const& each) { return each.type == type; });
  if (row == kPerimeters.end()) return index;
  if (!row->midSides) return index % row->corners;
  int const k = index % (2 * row->corners);
  return k / 2 + (k % 2) * row->corners;
}

}  // namespace Tarvex
