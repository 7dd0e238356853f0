// Sets of record numbers.
#pragma once

#include <boost/dynamic_bitset.hpp>
#include <cstdint>

#include "store/export.h"
#include "store/select/reference.h"

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
  CSet(CSet const&);
  CSet(CSet&&) noexcept;
  CSet& operator=(CSet const&);
  CSet& operator=(CSet&&) noexcept;
  virtual ~CSet();

  SelType TypeOf() const { return m_kind; }
  /// Adds a number; adding one below 1 or above 100000000 is std::out_of_range.
  void AddTo(int number);
  /// Takes a number out; one that is not in the set is no fault.
  void RemoveFrom(int number);
  bool IsEmpty() const { return m_bits.none(); }
  /// Whether the number is in the set; false for any number below 1.
  virtual bool IsItemIncluded(int number) const;
  /// Lowest and highest number, 0 when the set is empty.
  int LowestItem() const;
  int HighestItem() const;
  int NumItem() const { return static_cast<int>(m_bits.count()); }

  Iterator begin() const { return {m_bits, m_bits.find_first()}; }
  Iterator end() const { return {m_bits, Bits::npos}; }

  /// Equal kind and numbers.
  friend bool operator==(CSet const& a, CSet const& b) { return a.IsEqual(b); }

 private:
  bool IsEqual(CSet const& other) const;

  SelType m_kind;
  Bits m_bits;  // bit n for number n; bit 0 is never set
};

}  // namespace Tarvex::Util
