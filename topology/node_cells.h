// Points by cells of a fixed width.
#pragma once

#include <cstdint>
#include <span>
#include <vector>

#include "store/numeric/vec.h"

namespace Tarvex {

/// A hash of cells that holds the places of points in a row; at most 8 bytes a point. The width is
/// that of the questions, so that a point far away changes nothing for the others. Where
/// co-ordinates are so great that their last digits come near it, cells grow with them: a question
/// always looks at 27.
class NodeCells {
 public:
  /// @param width the greatest distance that will be asked for, finite and above 0.
  NodeCells(std::span<Vec3<double> const> points, double width);

  /// Calls visit(place) for every point that may be within the width of a point, and for some that
  /// are not; for one more than once where cells share a place of the hash.
  template <class Visit>
  void ForEachNear(Vec3<double> const& point, Visit&& visit) const {
    if (!IsFinite(point)) return;
    auto const cell = CellOf(point);
    for (auto x = cell.x - 1; x <= cell.x + 1; ++x)
      for (auto y = cell.y - 1; y <= cell.y + 1; ++y)
        for (auto z = cell.z - 1; z <= cell.z + 1; ++z)
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
  Cell CellOf(Vec3<double> const& point) const;
  std::size_t SlotOf(Cell const& cell) const;

  double m_width;            // of a cell near the origin
  std::vector<int> m_heads;  // first place of a slot, -1 for none
  std::vector<int> m_next;
};

}  // namespace Tarvex
