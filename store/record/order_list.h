// Lists whose order means something.
#pragma once

#include <boost/container/small_vector.hpp>

#include "store/select/checked_access.h"

namespace Tarvex::Data {

/// Items in an order; up to four cost no allocation.
template <class T>
class COrderList {
 public:
  using ItemVector = boost::container::small_vector<T, 4>;
  using value_type = T;

  int NumItem() const { return static_cast<int>(m_items.size()); }
  ItemVector const& Items() const { return m_items; }
  void AddItem(T const& item) { m_items.push_back(item); }
  /// Throws std::out_of_range "invalid vector subscript" for a position past the end.
  void SetItem(int place, T const& item) { CheckedAt(m_items, place) = item; }

  auto begin() const { return m_items.begin(); }
  auto end() const { return m_items.end(); }

  friend bool operator==(COrderList const& a, COrderList const& b) {
    return a.m_items == b.m_items;
  }

 protected:
  ItemVector m_items;
};

}  // namespace Tarvex::Data
