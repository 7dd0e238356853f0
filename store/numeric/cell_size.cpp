// Points are put in the order of a space-filling curve (G. M. Morton, 1966), by interleaving the
// bits of their cell indices on the finest grid. Two neighbours in that order share a cell of a
// coarser grid as long as their codes agree in the leading bits, so one pass over them counts the
// occupied cells of every grid of the series.
#include "store/numeric/cell_size.h"

#include <algorithm>
#include <array>
#include <bit>
#include <cmath>
#include <cstdint>
#include <vector>

namespace Tarvex::Util {
namespace {

constexpr unsigned kLevels = 21;  // three co-ordinates of 21 bits fill a 64-bit code
using Counts = std::array<std::size_t, kLevels + 1>;

/// Bits of a 21-bit number spread so that two free bits follow each.
std::uint64_t Spread(std::uint64_t bits) {
  bits = (bits | bits << 32) & 0x001F00000000FFFFu;
  bits = (bits | bits << 16) & 0x001F0000FF0000FFu;
  bits = (bits | bits << 8) & 0x100F00F00F00F00Fu;
  bits = (bits | bits << 4) & 0x10C30C30C30C30C3u;
  return (bits | bits << 2) & 0x1249249249249249u;
}

struct Range {
  double low = 0;
  double high = 0;
};

/// Where most points lie along one axis: a few far away must not decide the size for all.
Range MiddleRange(std::span<Vec3<double> const> points, double Vec3<double>::*axis) {
  constexpr std::size_t kSample = 1024;
  auto const step = std::max<std::size_t>(points.size() / kSample, 1);
  std::vector<double> sample;
  for (std::size_t i = 0; i < points.size(); i += step) sample.push_back(points[i].*axis);
  std::sort(sample.begin(), sample.end());
  auto const cut = sample.size() / 50;
  return {sample[cut], sample[sample.size() - 1 - cut]};
}

/// Cell index on the finest grid; points beyond the grid count to its outermost cells.
std::uint64_t FinestIndex(double coordinate, double origin, double width) {
  constexpr double kCells = 1u << kLevels;
  return static_cast<std::uint64_t>(
      std::clamp(std::floor((coordinate - origin) / width * kCells), 0.0, kCells - 1));
}

/// Occupied cells by level; level 0 is one cell, each further level halves the cells.
Counts CountCells(std::vector<std::uint64_t> codes) {
  std::sort(codes.begin(), codes.end());
  Counts newAt{};
  newAt[0] = 1;
  for (std::size_t i = 1; i < codes.size(); ++i) {
    auto const differing = static_cast<unsigned>(std::bit_width(codes[i] ^ codes[i - 1]));
    if (differing > 0) ++newAt[kLevels - (differing - 1) / 3];
  }
  for (std::size_t level = 1; level < newAt.size(); ++level) newAt[level] += newAt[level - 1];
  return newAt;
}

unsigned ChooseLevel(Counts const& cells, std::size_t points, std::size_t crowded) {
  for (unsigned level = 0; level <= kLevels; ++level)
    if (points <= crowded * cells[level]) return level;
  constexpr double kNearlyAll = 0.9;
  auto const enough = kNearlyAll * static_cast<double>(cells[kLevels]);
  unsigned level = 0;
  while (static_cast<double>(cells[level]) < enough) ++level;
  return level;
}

}  // namespace

double SuitableCellSize(std::span<Vec3<double> const> points, std::size_t crowded) {
  constexpr double kAnySize = 1;
  if (points.empty()) return kAnySize;
  std::array const ranges{MiddleRange(points, &Vec3<double>::x),
                          MiddleRange(points, &Vec3<double>::y),
                          MiddleRange(points, &Vec3<double>::z)};
  double extent = 0;
  for (auto const& range : ranges) extent = std::max(extent, range.high - range.low);
  if (!(extent > 0) || !std::isfinite(3 * extent)) return kAnySize;
  double const width = 3 * extent;  // room for what lies around the middle
  std::vector<std::uint64_t> codes;
  codes.reserve(points.size());
  for (auto const& p : points)
    codes.push_back(Spread(FinestIndex(p.x, ranges[0].low - extent, width)) << 2 |
                    Spread(FinestIndex(p.y, ranges[1].low - extent, width)) << 1 |
                    Spread(FinestIndex(p.z, ranges[2].low - extent, width)));
  auto const level = ChooseLevel(CountCells(std::move(codes)), points.size(), crowded);
  double const size = std::ldexp(width, -static_cast<int>(level));
  return size > 0 ? size : kAnySize;
}

}  // namespace Tarvex::Util
