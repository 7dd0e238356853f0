// Tables whose records are numbered by their place, from 1 without holes.
//
// All records stand in one vector that copies of a table share until one of them is written, so a
// copy or a snapshot costs a pointer and the first write after it a copy of the vector. Removing
// records closes up: those behind take the numbers that became free.
//
// Properties, each held by a test:
//  1. Exist, Find and Highest are constant-time; All gives the records in the order of numbers.
//  2. A copy is unaffected by later changes of the original, and the other way round.
//  3. A record knows its number, also after others before it went.
//  4. A reference is good until the next store into or removal from the same table.
//  5. Equal revisions mean equal contents.
#pragma once

#include <algorithm>
#include <boost/smart_ptr/intrusive_ptr.hpp>
#include <boost/smart_ptr/intrusive_ref_counter.hpp>
#include <cstdint>
#include <stdexcept>
#include <string>
#include <vector>

#include "store/select/numbers.h"
#include "store/table/revision.h"

namespace Tarvex {

struct StoreAccess;

/// @tparam Access has SetNumber(record, number), which tells a record its number.
template <class Record, class Access = StoreAccess>
class PositionalTable {
 public:
  PositionalTable() = default;

  bool Exist(int number) const { return number >= 1 && number <= Highest(); }
  /// The record of a number, or null when there is none.
  Record const* Find(int number) const { return Exist(number) ? &All()[Index(number)] : nullptr; }
  /// The number of records.
  int Highest() const { return static_cast<int>(All().size()); }
  std::uint64_t Revision() const { return m_revision; }
  /// All records; the one of number n has the index n - 1.
  std::vector<Record> const& All() const {
    static std::vector<Record> const kNone;
    return m_shared == nullptr ? kNone : m_shared->records;
  }

  /// Stores a record in the place of that of a number, or behind the last one. Throws
  /// std::out_of_range for a number below 1, above Highest() + 1 or above 100000000.
  /// @return the record as stored, for the store's own bookkeeping.
  Record& Set(int number, Record const& record) {
    if (number < 1 || number > std::min(Highest() + 1, kHighestNumber))
      throw std::out_of_range("record number " + std::to_string(number) + " is not from 1 to " +
                              std::to_string(std::min(Highest() + 1, kHighestNumber)));
    auto const before = Unshare();  // the record that is given may stand in it
    auto& records = m_shared->records;
    m_revision = NextRevision();
    if (number > Highest())
      records.push_back(record);
    else
      records[Index(number)] = record;
    auto& stored = records[Index(number)];
    Access::SetNumber(stored, number);
    return stored;
  }

  /// The record of an existing number for changing in place.
  Record& Edit(int number) {
    Unshare();
    m_revision = NextRevision();
    return m_shared->records[Index(number)];
  }

  /// Removes count records from first on, as far as they exist, and closes up. (0, 1) removes all;
  /// any other count below 1 and any other number without a record removes nothing.
  void Remove(int first, int count) {
    if (first == 0 && count == 1) return Clear();
    if (count < 1) return;
    auto const last = std::min<long long>(static_cast<long long>(first) + count - 1, Highest());
    first = std::max(first, 1);
    if (first > last) return;
    if (first == 1 && last == Highest()) return Clear();
    Unshare();
    m_revision = NextRevision();
    auto& records = m_shared->records;
    records.erase(records.begin() + (first - 1), records.begin() + static_cast<int>(last));
    for (int n = first; n <= Highest(); ++n) Access::SetNumber(records[Index(n)], n);
  }

  void Clear() {
    if (Highest() == 0) return;
    m_shared.reset();
    m_revision = NextRevision();
  }

 private:
  struct Shared : boost::intrusive_ref_counter<Shared> {
    std::vector<Record> records;
  };
  using Pointer = boost::intrusive_ptr<Shared>;

  static std::size_t Index(int number) { return static_cast<std::size_t>(number) - 1; }

  /// Makes the records this table's own. @return those that were shared, so that references into
  /// them stay good for as long as the caller holds it.
  Pointer Unshare() {
    if (m_shared != nullptr && m_shared->use_count() == 1) return nullptr;
    Pointer own(new Shared);
    if (m_shared != nullptr) own->records = m_shared->records;
    m_shared.swap(own);
    return own;
  }

  Pointer m_shared;
  std::uint64_t m_revision = 0;
};

}  // namespace Tarvex
