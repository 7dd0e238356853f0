// Boxes of the items of an ordered list, so that a search over all of them touches few.
#pragma once

#include <array>
#include <cstdint>
#include <vector>

#include "store/calc/order_set.h"
#include "store/numeric/box.h"

namespace Tarvex {

class CZelData;

/// Places of a list, from `first` up to, and without, `end`.
struct PlaceRange {
  int first;
  int end;
};

/// The boxes of the nodes of listed elements and members. They are good for one list and the model
/// as it was.
class ItemExtents {
 public:
  ItemExtents(COrderSet const& order, CZelData const& model);

  /// Whether the model has the elements, members and nodes that it had.
  bool IsOf(CZelData const& model) const;

  /// Box of an item of the list or of any other; empty for one without nodes.
  static Util::CBox3D BoxOf(CZelData const& model, SEntRef const& ref);

  /// The places beyond which no item can come within a distance of a box.
  PlaceRange Near(COrderSet const& order, Util::CBox3D const& box, double distance) const;
  /// Whether the item at a place may come within a distance of a box; one without a box may.
  bool MayTouch(int place, Util::CBox3D const& box, double distance) const;

 private:
  struct Interval {
    double low;
    double high;
  };
  /// Projection of a box on the order vector.
  static Interval Along(COrderSet const& order, Util::CBox3D const& box);
  double Margin(double distance) const;

  std::vector<Util::CBox3D> m_boxes;  // by place
  double m_reach = 0;                 // furthest that a box goes from its item's projection
  double m_size = 0;                  // greatest co-ordinate
  std::array<std::uint64_t, 4> m_revisions;
};

}  // namespace Tarvex
