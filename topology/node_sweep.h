// The nearest of many nodes, asked of one after the other while none moves.
#pragma once

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
  /// Which other nodes are looked at: all, or those with a lower number than the node.
  enum class Among { All, Lower };

  NodeSweep(COrderSet const& order, CZelData const& model, double tolerance);

  /// Of the others that are in the set and not tied to the node at a place of the list, the
  /// nearest, 0 for none.
  int Nearest(int place, Among among, JointTies const& ties) const;
  /// The nearest of each node, by place, found in one go along the list.
  std::vector<int> NearestOfEach(Among among, JointTies const& ties) const;

 private:
  struct Best {
    double distance;
    int place;
  };

  double FindSlack() const;
  bool HasLongSlices() const;
  Best BySlice(int place, Among among, JointTies const& ties) const;
  Best ByCells(int place, Among among, JointTies const& ties) const;
  bool Counts(int place, int other, Among among, JointTies const& ties) const;
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
