// Points by cells of a fixed width.
#pragma once

#include <cstdint>
#include <span>
#include <vector>

#include "store/numeric/vec.h"

namespace Tarvex {

/// A hash of cells that holds the places of points in a row; 8 to 12 bytes a point. The width is
/// that of the questions alone, so that a point far away changes nothing for the others.
class NodeCells {
 public:
  /// @param width the greatest distance that will be asked for, finite and above 0.
  NodeCells(std::span<Vec3<double> const> points, double width);

  /// Calls visit(place) for every point that may be within the width of a point, and for some that
  /// are not; for one more than once where cells share a place of the hash.
  template <class Visit>
  void ForEachNear(Vec3<double> const& point, Visit&& visit) const {
    if (!IsFinite(point)) return;
    auto const low = CellOf(point, -1);
    auto const high = CellOf(point, 1);
    for (auto x = low.x; x <= high.x; ++x)
      for (auto y = low.y; y <= high.y; ++y)
        for (auto z = low.z; z <= high.z; ++z)
          for (int i = m_heads[SlotOf({x, y, z})]; i >= 0; i = m_next[static_cast<std::size_t>(i)])
            visit(i);
  }

 private:
  struct Cell {
    std::int64_t x;
    std::int64_t y;
    std::int64_t z;
  };

  static bool IsFinite(Vec3<double> const& p);
  /// The cell of a point, moved by so many widths in each direction.
  Cell CellOf(Vec3<double> const& point, int widths) const;
  std::size_t SlotOf(Cell const& cell) const;

  double m_width;
  std::vector<int> m_heads;  // first place of a slot, -1 for none
  std::vector<int> m_next;
};

}  // namespace Tarvex
