// Which numbers of one table become which, and merges of them.
#pragma once

#include <span>
#include <utility>
#include <vector>

#include "renumber/number_groups.h"
#include "store/table/paged_table.h"

namespace Tarvex {

/// The scheme of one table: old number to new number. Looking up is constant-time but for the
/// logarithm of merges that were made since it was last settled.
class NumberScheme {
 public:
  /// The new number, 0 for an old one that the scheme lacks.
  int Map(int old) const {
    if (IsInRow(old)) return m_row[static_cast<std::size_t>(old)];
    auto const* entry = m_entries.Find(old);
    return entry == nullptr ? 0 : NumberOf(*entry);
  }
  /// The new number, the old one itself where the scheme lacks it.
  int MapFound(int old) const {
    if (IsInRow(old)) {
      int const number = m_row[static_cast<std::size_t>(old)];
      return number != 0 || m_entries.Exist(old) ? number : old;
    }
    auto const* entry = m_entries.Find(old);
    return entry == nullptr ? old : NumberOf(*entry);
  }
  /// Calls visit(old, number) in ascending old number.
  template <class Visit>
  void ForEach(Visit&& visit) const {
    for (auto const& [old, entry] : m_entries) visit(static_cast<int>(old), NumberOf(entry));
  }

  /// A scheme of the same numbers without groups.
  NumberScheme Settled() const;
  /// The same, for many look-ups: it is not to be changed.
  NumberScheme SettledInRow() const;
  /// Empties the scheme; the groups of IndexItem stay as they are.
  void Clear();
  void Set(int old, int number) { m_entries.Set(old, Entry{number, kAlone}); }
  void Erase(int old) { m_entries.Remove(old, 1); }
  /// Forgets the groups of IndexItem.
  void ForgetGroups();
  /// Gives everything that has one new number another; pair by pair (from, to).
  void Merge(int from, int to);
  void Merge(std::span<std::pair<int, int> const> pairs);

 private:
  static constexpr int kAlone = NumberGroups::kNone;

  struct Entry {
    int number = 0;
    int member = kAlone;  // of the groups, which then tell its number
  };

  int NumberOf(Entry const& entry) const {
    return entry.member == kAlone ? entry.number : m_groups.NumberOf(entry.member);
  }

  bool IsInRow(int old) const { return old >= 0 && static_cast<std::size_t>(old) < m_row.size(); }

  PagedTable<Entry> m_entries;
  std::vector<int> m_row;  // new numbers by old ones, 0 for none; of a settled scheme alone
  NumberGroups m_groups;
  bool m_grouped = false;
};

}  // namespace Tarvex
