#include "topology/node_cells.h"

#include <algorithm>
#include <bit>
#include <cmath>
#include <limits>

namespace Tarvex {

NodeCells::NodeCells(std::span<Vec3<double> const> points, double width)
    : m_width(width), m_heads(std::bit_ceil(points.size() + 1), -1), m_next(points.size(), -1) {
  for (std::size_t i = 0; i < points.size(); ++i) {
    if (!IsFinite(points[i])) continue;
    auto& head = m_heads[SlotOf(CellOf(points[i], 0))];
    m_next[i] = head;
    head = static_cast<int>(i);
  }
}

bool NodeCells::IsFinite(Vec3<double> const& p) {
  return std::isfinite(p.x) && std::isfinite(p.y) && std::isfinite(p.z);
}

NodeCells::Cell NodeCells::CellOf(Vec3<double> const& point, int widths) const {
  auto const index = [&](double coordinate) {
    constexpr double kBound = 4e18;  // within what an integer holds
    // A little more than the width, so that rounding leaves out no cell; dividing and rounding down
    // keep the order of co-ordinates.
    double const reach =
        widths *
        (m_width * (1 + 1e-12) + std::abs(coordinate) * std::numeric_limits<double>::epsilon() * 4);
    return static_cast<std::int64_t>(
        std::clamp(std::floor((coordinate + reach) / m_width), -kBound, kBound));
  };
  return {index(point.x), index(point.y), index(point.z)};
}

std::size_t NodeCells::SlotOf(Cell const& cell) const {
  // Large odd constants spread the bits; the golden ratio and two of Stafford's mixers.
  auto hash = static_cast<std::uint64_t>(cell.x) * 0x9E3779B97F4A7C15u;
  hash = (hash ^ (hash >> 32) ^ static_cast<std::uint64_t>(cell.y)) * 0xBF58476D1CE4E5B9u;
  hash = (hash ^ (hash >> 29) ^ static_cast<std::uint64_t>(cell.z)) * 0x94D049BB133111EBu;
  return static_cast<std::size_t>(hash ^ (hash >> 31)) & (m_heads.size() - 1);
}

}  // namespace Tarvex
