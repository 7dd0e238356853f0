// Which load cases the loads of a model belong to. Internal to the store.
#pragma once

#include <algorithm>
#include <map>

#include "store/model/table_ops.h"

namespace Tarvex {

struct ModelState;

/// The number of loads of each load case. The first query counts; from then on each load that
/// comes, changes or goes is followed, so that asking between two changes costs no walk of all
/// loads.
class LoadCaseUse {
 public:
  /// The load cases that have loads, with the number of those.
  std::map<int, int> const& Counts(ModelState const& state);
  /// Follows a load that goes from one load case to another; 0 where it comes or goes.
  void Move(int before, int after) {
    if (!m_known) return;
    Add(before, -1);
    Add(after, 1);
  }
  void Forget() { m_known = false; }
  bool IsKnown() const { return m_known; }

 private:
  void Add(int loadCase, int count);

  bool m_known = false;
  std::map<int, int> m_counts;
};

namespace TableOps {

/// Stores a load.
template <class Table, class Record>
Record& StoreLoad(LoadCaseUse& use, Table& table, int n, Record const& record, SidMode sid) {
  auto const* old = table.Find(n);
  int const before = old == nullptr ? 0 : old->LoadCase();
  int const after = record.LoadCase();
  auto& stored = Store(table, n, record, sid);
  use.Move(before, after);
  return stored;
}

/// Removes loads.
template <class Table>
void RemoveLoads(LoadCaseUse& use, Table& table, int first, int count) {
  bool const all = first == 0 && count == 1;
  long long const last = all ? table.Highest() : static_cast<long long>(first) + count - 1;
  if (use.IsKnown() && (all || count > 0))
    for (int n = std::max(first, 1); n <= std::min<long long>(last, table.Highest()); ++n)
      use.Move(table.Find(n)->LoadCase(), 0);
  table.Remove(first, count);
}

}  // namespace TableOps
}  // namespace Tarvex
