#include "store/numeric/point_index.h"

#include <algorithm>
#include <cmath>

#include "store/numeric/cell_size.h"

namespace Tarvex::Util {
namespace {

// Points that an occupied cell should hold at most, on average.
constexpr std::size_t kCrowded = 4;
// An index is built anew when it has grown by this factor, and not before it holds so many points.
constexpr std::size_t kGrowth = 4;
constexpr std::size_t kFew = 64;

bool IsFinite(Vec3<double> const& p) {
  return std::isfinite(p.x) && std::isfinite(p.y) && std::isfinite(p.z);
}

double LargestOf(Vec3<double> const& p) {
  return std::max({std::abs(p.x), std::abs(p.y), std::abs(p.z)});
}

/// Index of a co-ordinate, kept within what an integer holds.
std::int64_t IndexOf(double coordinate, double cellSize) {
  constexpr double kBound = 4e18;
  return static_cast<std::int64_t>(std::clamp(std::floor(coordinate / cellSize), -kBound, kBound));
}

double DistanceBetween(Vec3<double> const& a, Vec3<double> const& b) {
  return std::hypot(a.x - b.x, a.y - b.y, a.z - b.z);
}

}  // namespace

std::size_t PointIndex::HashOf::operator()(Cell const& cell) const {
  // Large odd constants spread the bits; the golden ratio and two of Stafford's mixers.
  auto hash = static_cast<std::uint64_t>(cell.x) * 0x9E3779B97F4A7C15u;
  hash = (hash ^ (hash >> 32) ^ static_cast<std::uint64_t>(cell.y)) * 0xBF58476D1CE4E5B9u;
  hash = (hash ^ (hash >> 29) ^ static_cast<std::uint64_t>(cell.z)) * 0x94D049BB133111EBu;
  return static_cast<std::size_t>(hash ^ (hash >> 31));
}

PointIndex::Cell PointIndex::CellOf(Vec3<double> const& point) const {
  return {IndexOf(point.x, m_cellSize), IndexOf(point.y, m_cellSize), IndexOf(point.z, m_cellSize)};
}

void PointIndex::Put(Entry const& entry) {
  auto const cell = CellOf(entry.point);
  m_lowest = m_cells.empty() ? cell
                             : Cell{std::min(m_lowest.x, cell.x), std::min(m_lowest.y, cell.y),
                                    std::min(m_lowest.z, cell.z)};
  m_highest = m_cells.empty() ? cell
                              : Cell{std::max(m_highest.x, cell.x), std::max(m_highest.y, cell.y),
                                     std::max(m_highest.z, cell.z)};
  m_cells[cell].push_back(entry);
}

PointIndex::PointIndex(std::vector<Entry> const& entries) {
  std::vector<Entry> finite;
  finite.reserve(entries.size());
  for (auto const& entry : entries)
    if (IsFinite(entry.point)) finite.push_back(entry);
  Rebuild(finite);
}

void PointIndex::Rebuild(std::vector<Entry> const& entries) {
  std::vector<Vec3<double>> points;
  points.reserve(entries.size());
  for (auto const& entry : entries) points.push_back(entry.point);
  m_cellSize = SuitableCellSize(points, kCrowded);
  m_cells.clear();
  m_cells.reserve(entries.size() / kCrowded);
  for (auto const& entry : entries) Put(entry);
  m_size = entries.size();
  m_sizeWhenBuilt = m_size;
}

void PointIndex::Insert(int number, Vec3<double> const& point) {
  if (!IsFinite(point)) return;
  Put({number, point});
  ++m_size;
  if (m_size < kGrowth * std::max(m_sizeWhenBuilt, kFew)) return;
  std::vector<Entry> all;
  all.reserve(m_size);
  for (auto const& [cell, entries] : m_cells) all.insert(all.end(), entries.begin(), entries.end());
  Rebuild(all);
}

void PointIndex::Erase(int number, Vec3<double> const& point) {
  if (!IsFinite(point)) return;  // was never put in, and has no cell
  auto const found = m_cells.find(CellOf(point));
  if (found == m_cells.end()) return;
  auto& entries = found->second;
  auto const entry = std::find_if(entries.begin(), entries.end(),
                                  [&](Entry const& e) { return e.number == number; });
  if (entry == entries.end()) return;
  *entry = entries.back();
  entries.pop_back();
  --m_size;
  if (entries.empty()) m_cells.erase(found);
}

template <class Visit>
void PointIndex::ForEachNear(Vec3<double> const& point, double distance, Visit&& visit) const {
  if (m_cells.empty() || !IsFinite(point) || !(distance >= 0)) return;
  auto const test = [&](Entries const& entries) {
    for (auto const& entry : entries)
      if (double const d = DistanceBetween(entry.point, point); d <= distance) visit(entry, d);
  };
  // A little more than the distance, so that rounding leaves out no cell that holds a near point.
  double const reach = distance * (1 + 1e-12) + LargestOf(point) * 1e-14;
  auto low = CellOf({point.x - reach, point.y - reach, point.z - reach});
  auto high = CellOf({point.x + reach, point.y + reach, point.z + reach});
  low = {std::max(low.x, m_lowest.x), std::max(low.y, m_lowest.y), std::max(low.z, m_lowest.z)};
  high = {std::min(high.x, m_highest.x), std::min(high.y, m_highest.y),
          std::min(high.z, m_highest.z)};
  if (low.x > high.x || low.y > high.y || low.z > high.z) return;
  auto const width = [](std::int64_t a, std::int64_t b) {
    return static_cast<double>(b) - static_cast<double>(a) + 1;
  };
  double const count = width(low.x, high.x) * width(low.y, high.y) * width(low.z, high.z);
  if (count > static_cast<double>(m_cells.size())) {
    for (auto const& [cell, entries] : m_cells) test(entries);
    return;
  }
  for (auto x = low.x; x <= high.x; ++x)
    for (auto y = low.y; y <= high.y; ++y)
      for (auto z = low.z; z <= high.z; ++z)
        if (auto const found = m_cells.find({x, y, z}); found != m_cells.end()) test(found->second);
}

int PointIndex::Nearest(Vec3<double> const& point, double distance) const {
  int nearest = 0;
  double least = distance;
  ForEachNear(point, distance, [&](Entry const& entry, double d) {
    bool const better = nearest == 0 || d < least || (d == least && entry.number < nearest);
    if (!better) return;
    nearest = entry.number;
    least = d;
  });
  return nearest;
}

std::vector<int> PointIndex::Around(Vec3<double> const& point, double distance) const {
  std::vector<int> numbers;
  ForEachNear(point, distance,
              [&](Entry const& entry, double) { numbers.push_back(entry.number); });
  std::sort(numbers.begin(), numbers.end());
  return numbers;
}

}  // namespace Tarvex::Util
