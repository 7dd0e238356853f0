// The nearest of many nodes, asked of one after the other while none moves.
#pragma once

#include <algorithm>
#include <optional>
#include <span>
#include <vector>

#include "store/calc/order_set.h"
#include "topology/joint_ties.h"
#include "topology/node_cells.h"

namespace Tarvex {

class CZelData;

/// Whether a sweep from a place, upwards and then downwards, meets one place before another.
inline bool MeetsFirst(int from, int a, int b) {
  if ((a > from) != (b > from)) return a > from;
  return a > from ? a < b : a > b;
}

/// Positions of the nodes of an ordered list in a row, and the search for the nearest of each. It
/// gives what the plain sweep along the list gives: the least distance below the tolerance, and of
/// equal ones the one that the sweep, upwards and then downwards, meets first.
///
/// Where the order vector leaves long slices of the list within the tolerance, candidates come from
/// cells one tolerance wide instead.
class NodeSweep {
 public:
  NodeSweep(COrderSet const& order, CZelData const& model, double tolerance);

  /// The node nearest to that at a place of the list that is in the set and not tied to it, 0 for
  /// none.
  int Nearest(int place, JointTies const& ties) const;
  /// Told some questions before one for a place, so that its neighbourhood is at hand by then.
  void Expect(int place) const {
    constexpr int kApart = 3;  // places that memory gives at a time, about
    for (int const at : {place - kApart, place, place + kApart}) {
      int const inside = std::clamp(at, 0, NumPlaces() - 1);
      __builtin_prefetch(&m_items[static_cast<std::size_t>(inside)]);
      __builtin_prefetch(&PointAt(inside));
    }
  }

 private:
  struct Best {
    double distance;
    int place;
  };

  double FindSlack() const;
  bool HasLongSlices() const;
  Best BySlice(int place, JointTies const& ties) const;
  Best ByCells(int place, JointTies const& ties) const;
  bool Counts(int place, int other, JointTies const& ties) const;
  int NumPlaces() const { return static_cast<int>(m_items.size()); }
  int NodeAt(int place) const { return m_items[static_cast<std::size_t>(place)].number; }
  double AlongAt(int place) const { return m_items[static_cast<std::size_t>(place)].projection; }
  Vec3<double> const& PointAt(int place) const { return m_points[static_cast<std::size_t>(place)]; }

  COrderSet const& m_order;
  std::span<COrder::Item const> m_items;  // of the order
  double m_tolerance;
  std::vector<Vec3<double>> m_points;  // by place; not a number for a node that is gone
  double m_slack;                      // by which a projection may be further than a position
  std::optional<NodeCells> m_cells;
};

}  // namespace Tarvex
