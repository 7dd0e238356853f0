// Sets of edges and faces.
#pragma once

#include <set>
#include <utility>

#include "store/export.h"
#include "store/select/reference.h"

namespace Tarvex::Util {

/// A set of pairs of an item of one kind and a place of its topology: an edge, a face or, with
/// place -1, the item itself.
class TARVEX_STORE_EXPORT CTopoSet {
 public:
  using Pairs = std::set<std::pair<int, int>>;

  explicit CTopoSet(SelType kind = SelNone) : m_kind(kind) {}

  SelType TypeOf() const { return m_kind; }
  /// Adding an item below 1 or above 100000000, or a place below -1, is std::out_of_range.
  void AddTo(int item, int place);
  bool IsEmpty() const { return m_pairs.empty(); }
  bool IsItemIncluded(int item, int place) const { return m_pairs.contains({item, place}); }
  /// Lowest and highest item that is included with any place, 0 when the set is empty.
  int LowestItemIncluded() const { return IsEmpty() ? 0 : m_pairs.begin()->first; }
  int HighestItemIncluded() const { return IsEmpty() ? 0 : m_pairs.rbegin()->first; }

  // Walks the pairs by item, then place.
  Pairs::const_iterator begin() const { return m_pairs.begin(); }
  Pairs::const_iterator end() const { return m_pairs.end(); }

  friend bool operator==(CTopoSet const&, CTopoSet const&) = default;

 private:
  SelType m_kind;
  Pairs m_pairs;
};

}  // namespace Tarvex::Util
