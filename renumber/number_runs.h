// Numbers of one kind before a run: which exist, and which move alike.
#pragma once

#include <optional>
#include <vector>

#include "renumber/number_scheme.h"
#include "store/select/intervals.h"

namespace Tarvex {

/// The numbers of a range: first, first + step and so on, up to last.
struct NumberRange {
  int first = 1;
  int last = 0;
  int step = 1;

  /// The last one that is a number of the range, where there is one.
  int Aligned() const { return last - (last - first) % step; }
};

/// Answers for ranges of numbers in the time of the runs that they are made of, not of the numbers.
/// Without a scheme every number stays what it is.
class NumberRuns {
 public:
  /// Existing numbers, and the scheme of their table or null.
  NumberRuns(Intervals const& existing, NumberScheme const* scheme);

  /// Whether a number goes.
  bool IsGone(int number) const { return m_scheme != nullptr && m_scheme->Map(number) == 0; }
  /// The lowest number from the given one on that stays, and the highest down from it; nothing when
  /// there is none.
  std::optional<int> NextKept(int number) const;
  std::optional<int> PreviousKept(int number) const;
  /// Whether all numbers of a range exist.
  bool AllExist(NumberRange const& range) const;
  /// Whether all numbers of a range move as its first one does; one that goes moves to 0.
  bool MoveAlike(NumberRange const& range) const;
  /// Calls visit for each existing number of a range.
  template <class Visit>
  void ForEachExisting(NumberRange const& range, Visit&& visit) const {
    for (auto const& run : m_existing.Runs()) {
      if (run.last < range.first) continue;
      if (run.first > range.last) break;
      int k = range.first;
      if (run.first > k) k += (run.first - k + range.step - 1) / range.step * range.step;
      for (; k <= run.last && k <= range.last; k += range.step) visit(k);
    }
  }

 private:
  /// Numbers in succession that move by the same step.
  struct Run {
    int first;
    int last;
    int shift;
  };

  Intervals m_existing;
  NumberScheme const* m_scheme;
  std::vector<Run> m_runs;
};

}  // namespace Tarvex
