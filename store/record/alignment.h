// Alignments: the plan of a road or track, given by its curvature.
#pragma once

#include <vector>

#include "store/record/entity.h"

namespace Tarvex::Data {

/// Where the curvature of an alignment changes.
struct AlignmentItem {
  double chainage = 0;  ///< distance along the alignment, model length units
  /// One by the radius of the arc from here to the next item; positive for a turn to the left, 0
  /// for a straight line.
  double curvature = 0;

  friend bool operator==(AlignmentItem const& a, AlignmentItem const& b) { return Same(a, b); }
  static constexpr auto Fields() {
    return MakeRows(Plain<AlignmentItem>("chainage", &AlignmentItem::chainage),
                    Plain<AlignmentItem>("curvature", &AlignmentItem::curvature));
  }
};

/// A named line of straights and circular arcs in the plane of a grid surface.
///
/// At its first item it is at the origin of the plane and runs along the plane's x direction. It
/// goes on beyond its last item with that item's curvature, and runs up to the first with that
/// one's. Without items it is the x direction, with chainage 0 at the origin.
class TARVEX_STORE_EXPORT CAlignment : public NamedEntity {
 public:
  CAlignment() = default;
  /// Throws as SetItems.
  CAlignment(CString const& name, int surface, std::vector<AlignmentItem> items)
      : NamedEntity(0, name), m_surface(surface) {
    SetItems(std::move(items));
  }

  /// Number of the grid surface, 0 for the global xy plane.
  int Surface() const { return m_surface; }
  void SetSurface(int surface) { m_surface = surface; }
  std::vector<AlignmentItem> const& Items() const { return m_items; }
  /// Throws std::invalid_argument unless the chainages ascend.
  void SetItems(std::vector<AlignmentItem> items);
  /// Chainage of the last item, 0 without items.
  double LastChainage() const { return m_items.empty() ? 0 : m_items.back().chainage; }

  /// A place on the alignment, in the plane.
  struct Place {
    Vec2<double> point;
    double heading = 0;  ///< direction from the plane's x towards its y, radians
  };
  Place At(double chainage) const;

  /// What makes the alignment no record that a file may hold, empty when nothing does.
  CString Fault() const;

  friend bool operator==(CAlignment const& a, CAlignment const& b) { return Same(a, b); }

  static constexpr auto Fields() {
    return JoinRows(
        NamedFields<CAlignment>(),
        MakeRows(Reference<CAlignment, CModule::GridSurface>("surface", &CAlignment::m_surface),
                 Plain<CAlignment>("items", &CAlignment::m_items)));
  }

 private:
  int m_surface = 0;
  std::vector<AlignmentItem> m_items;
};

}  // namespace Tarvex::Data
