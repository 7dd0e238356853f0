// Numbers in the order of their projection on a vector.
#pragma once

#include <cstddef>
#include <unordered_map>
#include <vector>

#include "store/export.h"
#include "store/numeric/vec.h"
#include "store/table/paged_table.h"

namespace Tarvex {

/// A list of numbers, each with the projection of its position on the order vector. Places in the
/// list count from 0. What is added to a sorted list comes to its place with the next question.
class TARVEX_STORE_EXPORT COrder {
 public:
  /// A number and its projection, model length units.
  struct Item {
    double projection;
    int number;
    friend bool operator<(Item const& a, Item const& b) {
      // Without branches, which no processor could foretell in a sort.
      return (a.projection < b.projection) |
             ((a.projection == b.projection) & (a.number < b.number));
    }
  };

  /// Takes a direction. It is brought to length 1, so that differences of projections are lengths;
  /// one shorter than machine epsilon becomes the zero vector, on which all projections are 0. The
  /// list stays as it is until it is created anew.
  void SetOrderVector(Vec3<double> const& vector);
  Vec3<double> const& OrderVector() const { return m_vector; }

  int NumItems() const { return static_cast<int>(Items().size()); }
  /// The items by place. Good, like Places, until the list changes.
  std::vector<Item> const& Items() const {
    if (!m_added.empty()) Settle();
    return m_items;
  }
  /// The places of the items by number.
  PagedTable<int> const& Places() const;
  /// Projection of the item at a place, model length units; std::out_of_range "invalid vector
  /// subscript" when there is none.
  double PointItem(int place) const;
  /// Sorts by projection, then by number.
  void Sort();
  bool IsSorted() const { return m_sorted; }
  /// The first place with a projection above the given one, NumItems() when there is none.
  int FirstAbove(double projection) const;
  /// The first place with a projection of at least the given one, NumItems() when there is none.
  int FirstFrom(double projection) const;

 protected:
  COrder();
  COrder(COrder const&);
  COrder(COrder&&) noexcept;
  COrder& operator=(COrder const&);
  COrder& operator=(COrder&&) noexcept;
  ~COrder();

  /// Projection of a point; infinity for one that is not a number, so that it comes last.
  double Projection(Vec3<double> const& point) const;
  /// Takes a new list, not sorted unless it is empty.
  void Assign(std::vector<Item> items);
  /// Adds a number that the list has not, or gives one that it has a new projection. What is put
  /// into a sorted list one by one costs the whole list once, at the next question.
  void Put(Item const& item);
  /// Place of a number, -1 when the list has it not.
  int PlaceOf(int number) const;

 private:
  PagedTable<int> const& SettledPlaces() const;
  void PutLast(Item const& item);
  void Settle() const;

  Vec3<double> m_vector;
  bool m_sorted = true;
  // The list but for what awaits its place in it, projections by number; those stand for what the
  // list has of the same number.
  mutable std::vector<Item> m_items;
  mutable std::unordered_map<int, double> m_added;
  mutable PagedTable<int> m_places;  // in m_items, by number
  mutable bool m_placesKnown = true;
};

}  // namespace Tarvex
