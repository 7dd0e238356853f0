#include "topology/node_cells.h"

#include <algorithm>
#include <bit>
#include <cmath>
#include <limits>

namespace Tarvex {
namespace {

// By how much a cell is wider than the greatest distance: for the rounding of distances and
// indices.
constexpr double kSpare = 1.001;
// Below it, distances lose themselves in squares that are too small for a double.
constexpr double kLeastWidth = 1e-150;

}  // namespace

NodeCells::NodeCells(std::span<Vec3<double> const> points, double width)
    : m_width(std::max(width, kLeastWidth) * kSpare),
      m_heads(std::bit_floor(std::max<std::size_t>(points.size(), 1)), -1),
      m_next(points.size(), -1) {
  for (std::size_t i = 0; i < points.size(); ++i) {
    if (!IsFinite(points[i])) continue;
    auto& head = m_heads[SlotOf(CellOf(points[i]))];
    m_next[i] = head;
    head = static_cast<int>(i);
  }
}

bool NodeCells::IsFinite(Vec3<double> const& p) {
  return std::isfinite(p.x) && std::isfinite(p.y) && std::isfinite(p.z);
}

/// Two co-ordinates up to the greatest distance apart must get the same index or neighbouring ones,
/// rounding included. Up to 2^40 widths the index counts widths, which rounding changes by less
/// than 2^-12; from there on it follows the logarithm, which goes on with the same slope and ever
/// less.
NodeCells::Cell NodeCells::CellOf(Vec3<double> const& point) const {
  constexpr double kEven = 0x1p40;
  auto const index = [&](double coordinate) {
    double const widths =
        std::min(std::abs(coordinate) / m_width, std::numeric_limits<double>::max());
    double const along = widths <= kEven ? widths : kEven * (1 + std::log(widths / kEven));
    return static_cast<std::int64_t>(std::floor(std::copysign(along, coordinate)));
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
