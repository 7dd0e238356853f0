// Numbered tables whose copies share what they have in common.
//
// A table is a tree of three levels:
//
//   root (vector) -> chunk (ChunkSize pages) -> page (PageSize records by value, one occupancy
//   word)
//
// Chunks and pages are reference counted and shared between copies of a table; a copy costs the
// root alone. Storing into a shared page clones that page (and its chunk) first, in a page that
// nobody shares it writes in place. So a step of undo or a snapshot of 10^6 records costs
// microseconds, and the difference of two tables costs what differs.
//
// Properties, each held by a test:
//  1. Exist, Find and Highest are constant-time; walks go in ascending number.
//  2. A copy is unaffected by later changes of the original, and the other way round.
//  3. A change clones at most one page and one chunk.
//  4. A reference is good until the next store into or removal from the same table.
//  5. Equal revisions mean equal contents, equal existence revisions the same numbers.
#pragma once

#include <bit>
#include <boost/smart_ptr/intrusive_ptr.hpp>
#include <boost/smart_ptr/intrusive_ref_counter.hpp>
#include <cstddef>
#include <cstdint>
#include <iterator>
#include <memory>
#include <new>
#include <stdexcept>
#include <string>
#include <utility>
#include <vector>

#include "store/select/numbers.h"
#include "store/table/revision.h"

namespace Tarvex {

/// @tparam PageSize records a page, a power of two up to 64. @tparam ChunkSize pages a chunk. Tests
/// take small ones to reach deep states with few records.
template <class Record, unsigned PageSize = 64, unsigned ChunkSize = 256>
class PagedTable {
  static_assert(std::has_single_bit(PageSize) && PageSize <= 64, "one occupancy word a page");
  static_assert(std::has_single_bit(ChunkSize), "places are found by shifting");

 public:
  /// A record with its number, as the whole-table walk gives it.
  using value_type = std::pair<unsigned int const, Record const&>;

  /// Walks the records in ascending number. It keeps the number and looks the record up, so a store
  /// into the table during a walk is no fault.
  class Iterator {
   public:
    using iterator_category = std::input_iterator_tag;
    using value_type = PagedTable::value_type;
    using difference_type = std::ptrdiff_t;
    using reference = value_type;
    struct pointer {
      value_type pair;
      value_type const* operator->() const { return &pair; }
    };

    Iterator() = default;
    Iterator(PagedTable const* table, int number) : m_table(table), m_number(number) {}
    reference operator*() const {
      return {static_cast<unsigned int>(m_number), *m_table->Find(m_number)};
    }
    pointer operator->() const { return {**this}; }
    Iterator& operator++() {
      m_number = m_table->Next(m_number);
      return *this;
    }
    Iterator operator++(int) {
      auto const before = *this;
      ++*this;
      return before;
    }
    friend bool operator==(Iterator const& a, Iterator const& b) {
      return a.m_number == b.m_number;
    }

   private:
    PagedTable const* m_table = nullptr;
    int m_number = 0;  // 0 is the end
  };
  using iterator = Iterator;
  using const_iterator = Iterator;

  PagedTable() = default;
  PagedTable(PagedTable const&) = default;
  PagedTable(PagedTable&& other) noexcept { Swap(other); }
  PagedTable& operator=(PagedTable other) noexcept {
    Swap(other);
    return *this;
  }
  ~PagedTable() = default;

  bool Exist(int number) const { return Find(number) != nullptr; }

  /// The record of a number, or null when there is none.
  Record const* Find(int number) const {
    auto const place = Place(number);
    auto const* page = PageAt(place);
    return page != nullptr && page->Holds(place.slot) ? &page->At(place.slot) : nullptr;
  }

  int Highest() const { return m_highest; }
  std::uint64_t Revision() const { return m_revision; }
  /// As Revision, but it stays when records change and none comes or goes.
  std::uint64_t ExistenceRevision() const { return m_existence; }

  /// Lowest number in use above the given one (which may be 0); 0 when there is none.
  int Next(int number) const;
  /// Highest number in use below the given one; 0 when there is none.
  int Previous(int number) const;

  // The usual face of a map, for walks over the whole table.
  Iterator begin() const { return {this, Next(0)}; }
  Iterator end() const { return {this, 0}; }
  Iterator find(unsigned int number) const {
    return {this, number <= kHighestNumber && Exist(static_cast<int>(number))
                      ? static_cast<int>(number)
                      : 0};
  }
  std::size_t count(unsigned int number) const { return find(number) == end() ? 0 : 1; }
  bool contains(unsigned int number) const { return count(number) != 0; }
  std::size_t size() const { return m_count; }
  bool empty() const { return m_count == 0; }
  /// Throws std::out_of_range for a missing number.
  Record const& at(unsigned int number) const {
    auto const found = find(number);
    if (found == end()) throw std::out_of_range("no record " + std::to_string(number));
    return (*found).second;
  }

  /// Stores a record, replacing the one of that number. Throws std::out_of_range for a number below
  /// 1 or above 100000000. @return the record as stored, for the store's own bookkeeping.
  template <class R>
  Record& Set(int number, R&& record);

  /// The record of an existing number for changing in place.
  Record& Edit(int number) {
    m_revision = NextRevision();
    return EditDerived(number);
  }
  /// As Edit, for what a record holds beside its contents: the revision stays.
  Record& EditDerived(int number) {
    auto const place = Place(number);
    return OwnPage(place).At(place.slot);
  }

  /// Removes count numbers from first on, as far as they exist. A count below 1 removes nothing.
  void Remove(int first, int count);
  void Clear() { *this = PagedTable(WithRevision{}); }

  /// Calls visit(number, before, after) in ascending number for each number whose record stands in
  /// a page that the two tables do not share; a missing record is null. Records may be equal.
  template <class Visit>
  static void Difference(PagedTable const& before, PagedTable const& after, Visit&& visit);

 private:
  struct WithRevision {};
  explicit PagedTable(WithRevision) : m_revision(NextRevision()), m_existence(m_revision) {}

  struct PlaceOf {
    std::size_t chunk;
    unsigned page;
    unsigned slot;
  };

  class Page : public boost::intrusive_ref_counter<Page> {
   public:
    // A defaulted one would fill the bytes with zeros whenever a copy begins with it.
    Page() {}  // NOLINT(modernize-use-equals-default)
    Page(Page const& other) : Page() {
      other.ForEach([&](unsigned slot, Record const& record) { Put(slot, record); });
    }
    Page& operator=(Page const&) = delete;
    ~Page() {
      ForEach([&](unsigned slot, Record const&) { std::destroy_at(&At(slot)); });
    }

    bool Holds(unsigned slot) const { return (occupied >> slot & 1) != 0; }
    Record const& At(unsigned slot) const {
      return *std::launder(reinterpret_cast<Record const*>(m_bytes) + slot);
    }
    Record& At(unsigned slot) { return *std::launder(reinterpret_cast<Record*>(m_bytes) + slot); }
    template <class R>
    void Put(unsigned slot, R&& record) {
      std::construct_at(reinterpret_cast<Record*>(m_bytes) + slot, std::forward<R>(record));
      occupied |= std::uint64_t{1} << slot;
    }
    void Drop(unsigned slot) {
      std::destroy_at(&At(slot));
      occupied &= ~(std::uint64_t{1} << slot);
    }
    template <class Visit>
    void ForEach(Visit&& visit) const {
      for (auto bits = occupied; bits != 0; bits &= bits - 1) {
        auto const slot = static_cast<unsigned>(std::countr_zero(bits));
        visit(slot, At(slot));
      }
    }

    std::uint64_t occupied = 0;

   private:
    alignas(Record) std::byte m_bytes[PageSize * sizeof(Record)];
  };
  using PagePtr = boost::intrusive_ptr<Page>;

  struct Chunk : boost::intrusive_ref_counter<Chunk> {
    PagePtr pages[ChunkSize];
  };
  using ChunkPtr = boost::intrusive_ptr<Chunk>;

  static constexpr std::size_t kPerChunk = std::size_t{PageSize} * ChunkSize;

  static PlaceOf Place(int number) {
    // Number 0 and below wrap to a chunk beyond every root.
    auto const i = static_cast<std::size_t>(number) - 1;
    return {i / kPerChunk, static_cast<unsigned>(i / PageSize % ChunkSize),
            static_cast<unsigned>(i % PageSize)};
  }
  static int Number(std::size_t chunk, unsigned page, unsigned slot) {
    return static_cast<int>(chunk * kPerChunk + std::size_t{page} * PageSize + slot + 1);
  }

  Page const* PageAt(PlaceOf const& place) const {
    if (place.chunk >= m_root.size() || m_root[place.chunk] == nullptr) return nullptr;
    return m_root[place.chunk]->pages[place.page].get();
  }

  /// Makes chunk and page of a place this table's own, empty where there was none.
  Page& OwnPage(PlaceOf const& place);

  void Swap(PagedTable& other) noexcept {
    m_root.swap(other.m_root);
    std::swap(m_count, other.m_count);
    std::swap(m_highest, other.m_highest);
    std::swap(m_revision, other.m_revision);
    std::swap(m_existence, other.m_existence);
  }

  std::vector<ChunkPtr> m_root;
  std::size_t m_count = 0;
  int m_highest = 0;
  std::uint64_t m_revision = 0;
  std::uint64_t m_existence = 0;
};

/// The read-only face of a whole sparse table, as the model's accessors give it.
template <class Key, class Record>
requires std::same_as<Key, unsigned int>
using tarvex_unordered_map = PagedTable<Record>;

}  // namespace Tarvex

#include "store/table/paged_table_impl.h"
