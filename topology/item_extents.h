// Boxes of the items of an ordered list, so that a search over all of them touches few.
#pragma once

#include <array>
#include <boost/container/small_vector.hpp>
#include <cstdint>
#include <span>
#include <vector>

#include "store/calc/order_set.h"
#include "store/numeric/box.h"

namespace Tarvex {

class CZelData;

/// The boxes of the nodes of listed elements and members. They are good for one list and the model
/// as it was. Items are kept by size, so that a long one among short ones is met by all and makes
/// nothing else be.
class ItemExtents {
 public:
  ItemExtents(COrderSet const& order, CZelData const& model);

  /// Whether the model has the elements, members and nodes that it had.
  bool IsOf(CZelData const& model) const;

  /// Box of an item of the list or of any other; empty for one without nodes.
  static Util::CBox3D BoxOf(CZelData const& model, SEntRef const& ref);

  /// Calls visit(place) for the items that may come within a distance of a box, until it gives
  /// false: upwards from behind a place, which may be -1, to the end of the list, then downwards
  /// from before it to the start. An item without a box may come near anything.
  template <class Visit>
  void Sweep(COrderSet const& order, int place, Util::CBox3D const& box, double distance,
             Visit&& visit) const {
    auto const rows = RowsNear(order, box, distance);
    auto above = Above(rows, place);
    for (int i = TakeLowest(above); i >= 0; i = TakeLowest(above))
      if (MayTouch(i, box, distance) && !visit(i)) return;
    auto below = Below(rows, place);
    for (int i = TakeHighest(below); i >= 0; i = TakeHighest(below))
      if (MayTouch(i, box, distance) && !visit(i)) return;
  }

 private:
  /// Places of items of about one size, ascending.
  struct Level {
    double reach = 0;  // furthest that a box goes from its item's projection
    std::vector<int> places;
  };
  using Row = std::span<int const>;
  using Rows = boost::container::small_vector<Row, 8>;
  struct Interval {
    double low;
    double high;
  };
  /// Projection of a box on the order vector.
  static Interval Along(COrderSet const& order, Util::CBox3D const& box);
  double Margin(double distance) const;
  /// Of each level the places beyond which no item can come within a distance of a box.
  Rows RowsNear(COrderSet const& order, Util::CBox3D const& box, double distance) const;
  static Rows Above(Rows rows, int place);
  static Rows Below(Rows rows, int place);
  /// Takes the lowest or the highest place out of rows; -1 when they are empty.
  static int TakeLowest(Rows& rows);
  static int TakeHighest(Rows& rows);
  bool MayTouch(int place, Util::CBox3D const& box, double distance) const;

  std::vector<Util::CBox3D> m_boxes;  // by place
  std::vector<Level> m_levels;
  double m_size = 0;  // greatest co-ordinate
  std::array<std::uint64_t, 4> m_revisions;
};

}  // namespace Tarvex
