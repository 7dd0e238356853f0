// The common operations of the numbered tables. Internal to the store.
#pragma once

#include <algorithm>
#include <stdexcept>
#include <string>
#include <vector>

#include "store/model/query_types.h"
#include "store/record/entity.h"
#include "store/table/paged_table.h"

namespace Tarvex::TableOps {

/// Throws std::out_of_range that names a table and a missing number.
[[noreturn]] inline void ThrowMissing(char const* stem, int n) {
  throw std::out_of_range(std::string(stem) + " " + std::to_string(n) + " does not exist");
}

// A table is a PagedTable or a PositionalTable here.

template <class Table>
auto const& Get(Table const& table, char const* stem, int n) {
  auto const* record = table.Find(n);
  if (record == nullptr) ThrowMissing(stem, n);
  return *record;
}

/// The record of an existing number for changing in place.
template <class Table>
auto& Edit(Table& table, char const* stem, int n) {
  if (!table.Exist(n)) ThrowMissing(stem, n);
  return table.Edit(n);
}

/// Stores a copy that knows its number.
template <class Table, class Record>
Record& Store(Table& table, int n, Record const& record, SidMode sid) {
  auto& stored = table.Set(n, record);
  StoreAccess::SetNumber(stored, n);
  if (sid == SidMode::Drop) StoreAccess::ClearSid(stored);
  return stored;
}

/// Calls visit(n) for each number of first to first + count - 1 that exists.
template <class Record, class Visit>
void ForEachIn(PagedTable<Record> const& table, int first, int count, Visit&& visit) {
  auto const last = static_cast<long long>(first) + count - 1;
  for (int n = table.Next(std::max(first, 1) - 1); n != 0 && n <= last; n = table.Next(n)) visit(n);
}

/// Removes the records of first to first + count - 1 but for those that are locked, and calls
/// gone(n, record) before each goes.
template <class Record, class Gone>
void RemoveUnlocked(PagedTable<Record>& table, int first, int count, Gone&& gone) {
  std::vector<int> locked;
  ForEachIn(table, first, count, [&](int n) {
    auto const& record = *table.Find(n);
    if (record.IsLocked())
      locked.push_back(n);
    else
      gone(n, record);
  });
  for (int const n : locked) {
    table.Remove(first, n - first);
    count -= n + 1 - first;
    first = n + 1;
  }
  table.Remove(first, count);
}

}  // namespace Tarvex::TableOps
