// Slabs tied to the heads and feet of columns by rigid constraints.
//
//   Tarvex::CConnectSlab tool(model);
//   tool.SetSet(columns);  // Util::CSet of kind SelElement
//   tool.SetMode(Tarvex::ConnectMode::WithinRadius);
//   tool.SetRadius(0.6);
//   bool tied = tool.Do();
//
// A tool keeps the model by reference and a copy of the selection. Only the table of rigid
// constraints changes.
#pragma once

#include <array>
#include <vector>

#include "store/select/set.h"
#include "tarvex/export.h"

namespace Tarvex {

class CZelData;

/// Which of the slab elements at the end of a column are tied to it.
enum class ConnectMode : int {
  AllAttached = 0,    ///< every level 2D element that has the node
  WithinSection = 1,  ///< those whose centre is within the radius that the column's section gives
  WithinRadius = 2,   ///< those whose centre is within a given radius
};

/// Ties each end of vertical beams to the nodes of the level 2D elements there, by a rigid
/// constraint in all directions and stages whose primary node is the column's. Load panels are
/// passed over.
class TARVEX_EXPORT CConnectSlab {
 public:
  explicit CConnectSlab(CZelData& model);
  CConnectSlab(CConnectSlab const&);
  CConnectSlab(CConnectSlab&&) noexcept;
  ~CConnectSlab();

  /// The elements to take columns from; empty at first.
  void SetSet(Util::CSet const& set) { m_set = set; }
  /// ConnectMode::AllAttached at first.
  void SetMode(ConnectMode mode) { m_mode = mode; }
  /// Model length units, 0 at first. A run in mode WithinSection overwrites it.
  void SetRadius(double const& radius) { m_radius = radius; }
  /// Whether ends whose node is in a rigid constraint are treated too, and the constraint that the
  /// node leads is replaced. False at first.
  void SetOverwrite(bool overwrite) { m_overwrite = overwrite; }

  /// Treats all heads, then heads and feet: a head that was taken up is looked at twice. The
  /// distance is from the node to the centre of the slab element, the limit included. In mode
  /// WithinSection the limit is a quarter of width times height of the box around the section, the
  /// greatest of the columns at the node: a product of lengths that is compared with a length.
  /// @return whether a constraint was written; NumItem tells the counts.
  bool Do();

  /// Counts of the last run: 1 the ends of columns that were looked at; 2 those that were taken up
  /// and have a node to tie, which is the column's own at least (a head counts in both passes);
  /// 3 the constraints that were written, replaced ones included. 0 for any other index.
  int NumItem(int index) const;

  /// The end of a column.
  struct End {
    int column;
    int node;
  };
  /// The ends that the last run passed over, since their node was in a rigid constraint by then:
  /// heads, then feet, which may be held by constraints that the run wrote for heads.
  std::vector<End> const& PassedOver() const { return m_passedOver; }

 private:
  class Run;

  CZelData& m_model;
  Util::CSet m_set;
  ConnectMode m_mode = ConnectMode::AllAttached;
  double m_radius = 0;
  bool m_overwrite = false;
  std::array<int, 3> m_counts{};
  std::vector<End> m_passedOver;
};

}  // namespace Tarvex
