// Which numbers of one table become which, and merges of them.
#pragma once

#include "renumber/number_groups.h"
#include "store/table/paged_table.h"

namespace Tarvex {

/// The scheme of one table: old number to new number. Looking up is constant-time but for the
/// logarithm of merges that were made since it was last settled.
class NumberScheme {
 public:
  /// The new number, 0 for an old one that the scheme lacks.
  int Map(int old) const {
    auto const* entry = m_entries.Find(old);
    return entry == nullptr ? 0 : NumberOf(*entry);
  }
  /// The new number, the old one itself where the scheme lacks it.
  int MapFound(int old) const {
    auto const* entry = m_entries.Find(old);
    return entry == nullptr ? old : NumberOf(*entry);
  }
  /// Calls visit(old, number) in ascending old number.
  template <class Visit>
  void ForEach(Visit&& visit) const {
    for (auto const& [old, entry] : m_entries) visit(static_cast<int>(old), NumberOf(entry));
  }

  /// A scheme of the same numbers without groups, for many look-ups.
  NumberScheme Settled() const;
  /// Empties the scheme; the groups of IndexItem stay as they are.
  void Clear();
  void Set(int old, int number) { m_entries.Set(old, Entry{number, kAlone}); }
  void Erase(int old) { m_entries.Remove(old, 1); }
  /// Forgets the groups of IndexItem.
  void ForgetGroups();
  /// Gives everything that has one new number another.
  void Merge(int from, int to);

 private:
  static constexpr int kAlone = NumberGroups::kNone;

  struct Entry {
    int number = 0;
    int member = kAlone;  // of the groups, which then tell its number
  };

  int NumberOf(Entry const& entry) const {
    return entry.member == kAlone ? entry.number : m_groups.NumberOf(entry.member);
  }

  PagedTable<Entry> m_entries;
  NumberGroups m_groups;
  bool m_grouped = false;
};

}  // namespace Tarvex
