// The nodes in the middle of sides, by the nodes at the ends.
#pragma once

#include <algorithm>
#include <cstdint>
#include <unordered_map>
#include <vector>

namespace Tarvex {

/// Maps two corners, in either order, to the node between them. Corners are named by their places,
/// counted from 0. Sides stand in the order in which they came, so that the elements that meet one
/// find it close to what they asked for before.
class EdgeMiddles {
 public:
  /// The node between two corners, 0 when there is none yet.
  int Find(int a, int b) const {
    auto const low = static_cast<std::size_t>(std::min(a, b));
    if (low >= m_corners.size()) return 0;
    int const high = std::max(a, b);
    auto const& corner = m_corners[low];
    for (int at = corner.first; at >= 0; at = SideAt(at).next)
      if (SideAt(at).high == high) return SideAt(at).node;
    if (corner.sides <= kFew) return 0;
    auto const found = m_more.find(KeyOf(low, high));
    return found == m_more.end() ? 0 : found->second;
  }

  /// Enters the node between two corners that have none.
  void Add(int a, int b, int node) {
    auto const low = static_cast<std::size_t>(std::min(a, b));
    if (low >= m_corners.size()) m_corners.resize(low + 1);
    int const high = std::max(a, b);
    auto& corner = m_corners[low];
    if (++corner.sides > kFew) {
      m_more.emplace(KeyOf(low, high), node);
      return;
    }
    m_sides.push_back({high, node, corner.first});
    corner.first = static_cast<int>(m_sides.size()) - 1;
  }

 private:
  /// Sides of a corner that are walked; those of a hub beyond them are looked up.
  static constexpr int kFew = 8;

  struct Corner {
    int first = -1;  // side, -1 for none
    int sides = 0;   // to corners of higher places
  };
  struct Side {
    int high;  // place of the other corner
    int node;
    int next;  // side of the same corner, -1 behind the last one
  };

  static std::uint64_t KeyOf(std::size_t low, int high) {
    return std::uint64_t{low} << 32 | static_cast<std::uint64_t>(high);
  }
  Side const& SideAt(int at) const { return m_sides[static_cast<std::size_t>(at)]; }

  std::vector<Corner> m_corners;  // by the lower place of a side
  std::vector<Side> m_sides;
  std::unordered_map<std::uint64_t, int> m_more;
};

}  // namespace Tarvex
