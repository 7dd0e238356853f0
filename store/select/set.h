// Sets of record numbers.
#pragma once

#include <boost/dynamic_bitset.hpp>
#include <cstdint>

#include "store/select/intervals.h"
#include "store/select/reference.h"

namespace Tarvex::Data {
class CEntList;
}

namespace Tarvex::Util {

/// A set of positive numbers of one kind, walked in ascending order. A number costs one bit up to
/// the highest that was ever added.
class TARVEX_STORE_EXPORT CSet {
  using Bits = boost::dynamic_bitset<std::uint64_t>;

 public:
  /// Walks a set in ascending order; good until the set changes.
  class Iterator {
   public:
    using value_type = int;
    using difference_type = std::ptrdiff_t;

    Iterator() = default;
    Iterator(Bits const& bits, Bits::size_type at) : m_bits(&bits), m_at(at) {}
    int operator*() const { return static_cast<int>(m_at); }
    Iterator& operator++() {
      m_at = m_bits->find_next(m_at);
      return *this;
    }
    Iterator operator++(int) {
      auto const before = *this;
      ++*this;
      return before;
    }
    friend bool operator==(Iterator const&, Iterator const&) = default;

   private:
    Bits const* m_bits = nullptr;
    Bits::size_type m_at = Bits::npos;
  };

  explicit CSet(SelType kind = SelNone);
  /// A set of what of the numbers is above 0; one above 100000000 is std::out_of_range.
  CSet(SelType kind, Intervals const& numbers);
  CSet(CSet const&);
  CSet(CSet&&) noexcept;
  CSet& operator=(CSet const&);
  CSet& operator=(CSet&&) noexcept;
  virtual ~CSet();

  SelType TypeOf() const { return m_kind; }
  /// Adds a number; adding one below 1 or above 100000000 is std::out_of_range.
  void AddTo(int number);
  /// Adds what a list of plain numbers and ranges names. "all" and "*" go up to the highest number
  /// that is given; words that need a model add nothing, Util::MakeSet is there for them.
  void AddListToSet(Data::CEntList const& list, int highest);
  /// Takes a number out; one that is not in the set is no fault.
  void RemoveFrom(int number);
  /// Puts in what is missing of the numbers first to last, and takes out what is there of them.
  void Invert(int first, int last);
  bool IsEmpty() const { return m_bits.none(); }
  /// Whether the number is in the set; false for any number below 1.
  virtual bool IsItemIncluded(int number) const;
  /// Lowest and highest number, 0 when the set is empty.
  int LowestItem() const;
  int HighestItem() const;
  int NumItem() const { return static_cast<int>(m_bits.count()); }

  /// The numbers as the text of a list: runs of three or more as "a to b", all else singly.
  /// @param most so many numbers at most, with " ..." behind them where there are more; -1 for all.
  /// @param before goes before the text.
  CString String(int most = -1, CString const& before = L"") const;
  /// The numbers as runs.
  Intervals Runs() const;

  Iterator begin() const { return {m_bits, m_bits.find_first()}; }
  Iterator end() const { return {m_bits, Bits::npos}; }

  /// Equal kind and numbers.
  friend bool operator==(CSet const& a, CSet const& b) { return a.IsEqual(b); }

 private:
  bool IsEqual(CSet const& other) const;
  void Add(Interval run);

  SelType m_kind;
  Bits m_bits;  // bit n for number n; bit 0 is never set
};

}  // namespace Tarvex::Util
