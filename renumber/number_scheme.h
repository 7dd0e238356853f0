// Which numbers of one table become which, and merges of them.
#pragma once

#include <unordered_map>
#include <vector>

#include "store/table/paged_table.h"

namespace Tarvex {

/// The old numbers that share a new one. `linked` ones take their new number from here; `pending`
/// ones come to do so when the group is first moved.
struct NumberGroup {
  int number = 0;
  std::vector<int> linked;
  std::vector<int> pending;
};

/// The old numbers of a scheme by their new ones, as IndexItem found them when it first asked. A
/// scheme that is built anew leaves it as it was.
class NumberGroups {
 public:
  NumberGroup& At(int group) { return m_groups[static_cast<std::size_t>(group)]; }
  NumberGroup const& At(int group) const { return m_groups[static_cast<std::size_t>(group)]; }
  /// The group of a new number, -1 when there is none.
  int Of(int number) const;
  /// Adds an old number to the group of a new one.
  void Add(int number, int old);
  /// Gives a group another new number, which must have none.
  void Rename(int group, int number);
  /// Forgets a group that was emptied.
  void Drop(int group) { m_ofNumber.erase(At(group).number); }
  /// Takes all links away.
  void Unlink();

 private:
  std::vector<NumberGroup> m_groups;
  std::unordered_map<int, int> m_ofNumber;
};

/// The scheme of one table: old number to new number. Looking up is constant-time, and n merges in
/// any order cost O(n log n).
class NumberScheme {
 public:
  bool Has(int old) const { return m_entries.Exist(old); }
  /// The new number, 0 for an old one that the scheme lacks.
  int Map(int old) const {
    auto const* entry = m_entries.Find(old);
    return entry == nullptr ? 0 : NumberOf(*entry);
  }
  /// Calls visit(old, number) in ascending old number.
  template <class Visit>
  void ForEach(Visit&& visit) const {
    for (auto const& [old, entry] : m_entries) visit(static_cast<int>(old), NumberOf(entry));
  }

  /// Empties the scheme; the groups of IndexItem stay as they are.
  void Clear();
  void Set(int old, int number) { m_entries.Set(old, Entry{number, kAlone}); }
  void Erase(int old) { m_entries.Remove(old, 1); }
  /// Forgets the groups of IndexItem.
  void ForgetGroups();
  /// Gives everything that has one new number another.
  void Merge(int from, int to);

 private:
  static constexpr int kAlone = -1;

  struct Entry {
    int number = 0;
    int group = kAlone;  // whose number counts
  };

  int NumberOf(Entry const& entry) const {
    return entry.group == kAlone ? entry.number : m_groups.At(entry.group).number;
  }
  void Link(int group);
  void Join(int group, int other);

  PagedTable<Entry> m_entries;
  NumberGroups m_groups;
  bool m_grouped = false;
};

}  // namespace Tarvex
