// Points by their place: which numbered points lie near a position.
#pragma once

#include <boost/container/small_vector.hpp>
#include <cstddef>
#include <cstdint>
#include <unordered_map>
#include <vector>

#include "store/export.h"
#include "store/numeric/vec.h"

namespace Tarvex::Util {

/// A hashed grid of numbered points that follows every change. Answers are exact at any distance.
///
/// The size of a cell follows the points, not the box around them, so that one point far away or a
/// plate in a plane costs nothing: it is chosen so that occupied cells hold few points on average.
/// A point whose co-ordinates are not finite is never near anything.
class TARVEX_STORE_EXPORT PointIndex {
 public:
  struct Entry {
    int number;
    Vec3<double> point;
  };

  PointIndex() = default;
  /// An index of many points at once.
  explicit PointIndex(std::vector<Entry> const& entries);

  /// Adds a number at a point; it must not be there yet.
  void Insert(int number, Vec3<double> const& point);
  /// Takes a number away from the point where it was added.
  void Erase(int number, Vec3<double> const& point);

  /// The number nearest to a point within a distance (inclusive); the lowest of equally near ones,
  /// 0 when there is none. A distance of 0 asks for equal co-ordinates.
  int Nearest(Vec3<double> const& point, double distance) const;

  /// All numbers within a distance (inclusive) of a point, ascending.
  std::vector<int> Around(Vec3<double> const& point, double distance) const;

  std::size_t Size() const { return m_size; }

 private:
  struct Cell {
    std::int64_t x;
    std::int64_t y;
    std::int64_t z;
    friend bool operator==(Cell const&, Cell const&) = default;
  };
  struct HashOf {
    std::size_t operator()(Cell const& cell) const;
  };
  using Entries = boost::container::small_vector<Entry, 1>;

  Cell CellOf(Vec3<double> const& point) const;
  void Put(Entry const& entry);
  void Rebuild(std::vector<Entry> const& entries);
  template <class Visit>
  void ForEachNear(Vec3<double> const& point, double distance, Visit&& visit) const;

  std::unordered_map<Cell, Entries, HashOf> m_cells;
  Cell m_lowest{};  // of all cells that were occupied since the last rebuild
  Cell m_highest{};
  double m_cellSize = 1;
  std::size_t m_size = 0;
  std::size_t m_sizeWhenBuilt = 0;
};

}  // namespace Tarvex::Util
