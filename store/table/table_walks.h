// Walks that are the same for tables of every shape: sparse ones, and positional ones as the vector
// of their records.
#pragma once

#include <algorithm>
#include <vector>

#include "store/table/paged_table.h"

namespace Tarvex {

/// Calls visit(number, record) in ascending number.
template <class Record, unsigned PageSize, unsigned ChunkSize, class Visit>
void ForEachRecord(PagedTable<Record, PageSize, ChunkSize> const& table, Visit&& visit) {
  for (auto const& [number, record] : table) visit(static_cast<int>(number), record);
}
template <class Record, class Visit>
void ForEachRecord(std::vector<Record> const& table, Visit&& visit) {
  for (int n = 0; auto const& record : table) visit(++n, record);
}

/// Highest number of a table as a whole.
template <class Record, unsigned PageSize, unsigned ChunkSize>
int HighestOf(PagedTable<Record, PageSize, ChunkSize> const& table) {
  return table.Highest();
}
template <class Record>
int HighestOf(std::vector<Record> const& table) {
  return static_cast<int>(table.size());
}

/// The record of a number, null when there is none.
template <class Record, unsigned PageSize, unsigned ChunkSize>
Record const* FindRecord(PagedTable<Record, PageSize, ChunkSize> const& table, int number) {
  return table.Find(number);
}
template <class Record>
Record const* FindRecord(std::vector<Record> const& table, int number) {
  bool const is = number >= 1 && number <= HighestOf(table);
  return is ? &table[static_cast<std::size_t>(number) - 1] : nullptr;
}

/// Calls visit(number, before, after) in ascending number for each number whose record the two
/// tables do not share; a missing record is null. Records may be equal.
template <class Record, unsigned PageSize, unsigned ChunkSize, class Visit>
void ForEachDifference(PagedTable<Record, PageSize, ChunkSize> const& before,
                       PagedTable<Record, PageSize, ChunkSize> const& after, Visit&& visit) {
  PagedTable<Record, PageSize, ChunkSize>::Difference(before, after, visit);
}
template <class Record, class Visit>
void ForEachDifference(std::vector<Record> const& before, std::vector<Record> const& after,
                       Visit&& visit) {
  if (&before == &after) return;
  for (int n = 1; n <= std::max(HighestOf(before), HighestOf(after)); ++n)
    visit(n, FindRecord(before, n), FindRecord(after, n));
}

}  // namespace Tarvex
