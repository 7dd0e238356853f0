// The expanded form of a list.
#pragma once

#include <iterator>
#include <vector>

#include "store/select/intervals.h"

namespace Tarvex {

/// The numbers that a list selects: for each number, whether it is one of them. It is kept as runs
/// of numbers, so its size and the time to look one up follow the runs (logarithmically) and not
/// the highest number.
class TARVEX_STORE_EXPORT CBitContainer {
 public:
  /// Number at which the end iterator stands, above all numbers.
  static constexpr int kEnd = 0x7FFFFFFF;

  /// Walks the numbers in ascending order; good until the container changes.
  class TARVEX_STORE_EXPORT MyIterator {
   public:
    using iterator_category = std::forward_iterator_tag;
    using value_type = int;
    using difference_type = std::ptrdiff_t;
    using pointer = int const*;
    using reference = int;

    MyIterator() = default;
    /// @param start a number of the container, such as Lowest(), or kEnd.
    MyIterator(CBitContainer const& container, int start);

    int operator*() const { return m_at; }
    MyIterator& operator++() {
      if (m_at == m_last)
        NextRun();
      else
        ++m_at;
      return *this;
    }
    MyIterator operator++(int) {
      auto const before = *this;
      ++*this;
      return before;
    }
    friend bool operator==(MyIterator const& a, MyIterator const& b) { return a.m_at == b.m_at; }

   private:
    void NextRun();

    CBitContainer const* m_container = nullptr;
    std::size_t m_run = 0;
    int m_at = kEnd;
    int m_last = kEnd;  // of the run
  };

  CBitContainer() = default;
  explicit CBitContainer(Intervals numbers);

  bool IsEmpty() const { return m_numbers.IsEmpty(); }
  bool IsItemIncluded(int number) const { return m_numbers.Contains(number); }
  int NumItem() const { return m_count; }
  /// The n-th number, from 0; std::out_of_range "invalid vector subscript" when there is none.
  int Item(int n) const;
  /// Lowest number, kEnd when there is none.
  int Lowest() const { return IsEmpty() ? kEnd : m_numbers.Runs().front().first; }
  /// Highest number, 0 when there is none.
  int Highest() const { return IsEmpty() ? 0 : m_numbers.Runs().back().last; }
  Intervals const& Numbers() const { return m_numbers; }

  MyIterator begin() const { return {*this, Lowest()}; }
  MyIterator end() const { return {*this, kEnd}; }
  /// At a number, or the end when it is not in the container.
  MyIterator find(int number) const { return {*this, IsItemIncluded(number) ? number : kEnd}; }

  friend bool operator==(CBitContainer const& a, CBitContainer const& b) {
    return a.m_numbers == b.m_numbers;
  }

 private:
  /// Place of the run that holds a number or, when none does, of the next one.
  std::size_t RunOf(int number) const;

  Intervals m_numbers;
  std::vector<int> m_before;  // by run: how many numbers come before it
  int m_count = 0;
};

}  // namespace Tarvex
