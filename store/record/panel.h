// Panels of grid surfaces: the fields between the elements that carry a grid load.
#pragma once

#include <vector>

#include "store/export.h"

namespace Tarvex::Data {

/// A closed run of nodes in a grid surface. Edges count from 0; edge i begins at node i.
class TARVEX_STORE_EXPORT CPanel {
 public:
  CPanel() = default;
  /// @param boundary see IsBoundary. @param straight see Straight.
  explicit CPanel(std::vector<int> nodes, bool boundary = false, bool straight = false)
      : m_nodes(std::move(nodes)), m_boundary(boundary), m_straight(straight) {}

  std::vector<int> const& Nodes() const { return m_nodes; }
  int NumEdge() const { return static_cast<int>(m_nodes.size()); }
  /// Node at an end of an edge, 0 for its start and 1 for its end. Throws std::out_of_range for an
  /// edge or end that there is not.
  int EdgeNode(int edge, int end) const;
  /// Whether this is the outline of all panels together, and no field that takes load.
  bool IsBoundary() const { return m_boundary; }
  /// Whether the outline runs straight through nodes on its way from corner to corner; see
  /// CPolygon::Straight.
  bool Straight() const { return m_straight; }

  friend bool operator==(CPanel const&, CPanel const&) = default;

 private:
  std::vector<int> m_nodes;
  bool m_boundary = false;
  bool m_straight = false;
};

}  // namespace Tarvex::Data
