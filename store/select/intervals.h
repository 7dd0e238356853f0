// Sets of whole numbers as the runs that they consist of.
//
// What lists select is mostly runs: floors, groups and ranges. A set costs its runs and not its
// numbers, so "all" of a million elements is one run.
#pragma once

#include <initializer_list>
#include <span>
#include <vector>

#include "store/export.h"

namespace Tarvex {

/// The numbers from first to last; none when first is above last.
struct Interval {
  int first = 1;
  int last = 0;

  bool IsEmpty() const { return first > last; }
  friend bool operator==(Interval const&, Interval const&) = default;
};

/// A set of numbers: ascending runs, with at least one number missing between two of them.
class TARVEX_STORE_EXPORT Intervals {
 public:
  Intervals() = default;
  /// The union of runs that ascend by their first number.
  Intervals(std::initializer_list<Interval> ascending);
  explicit Intervals(std::span<Interval const> ascending);

  /// Adds a run that begins at or behind the last one's begin. Linear over many calls.
  void Append(Interval run);

  std::span<Interval const> Runs() const& { return m_runs; }
  std::span<Interval const> Runs() const&& = delete;  // they would be gone
  bool IsEmpty() const { return m_runs.empty(); }
  /// Logarithmic in the number of runs.
  bool Contains(int number) const;

  // Linear in the runs of both; the intersection of few runs with many costs the few, with a factor
  // of the logarithm of the many.
  TARVEX_STORE_EXPORT friend Intervals Union(Intervals const& a, Intervals const& b);
  TARVEX_STORE_EXPORT friend Intervals Intersection(Intervals const& a, Intervals const& b);
  /// What is in a and not in b.
  TARVEX_STORE_EXPORT friend Intervals Difference(Intervals const& a, Intervals const& b);

  friend bool operator==(Intervals const&, Intervals const&) = default;

 private:
  std::vector<Interval> m_runs;
};

}  // namespace Tarvex
