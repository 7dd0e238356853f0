// Builds a set of numbers from many small steps.
//
// Nothing is merged as it comes: a builder keeps the runs that were added and removed, in order,
// and the last one that holds a number decides about it. They are brought into ascending runs by
// one sweep when their number has doubled. Two builders are joined by taking the smaller one over
// into the larger one, whichever way the operation goes; to that end a builder can stand for all
// numbers but the ones that it holds. So n steps cost O(n log n) but for the factor log n that
// unlucky nesting adds.
#pragma once

#include <boost/container/small_vector.hpp>

#include "store/select/intervals.h"

namespace Tarvex {

/// A set of numbers from 0 up, under construction.
class TARVEX_STORE_EXPORT IntervalBuilder {
 public:
  IntervalBuilder() = default;
  explicit IntervalBuilder(Interval run) { Add(run); }

  void Add(Interval run) { Apply(run, true); }
  void Remove(Interval run) { Apply(run, false); }

  void Unite(IntervalBuilder other);
  void Intersect(IntervalBuilder other);
  void Subtract(IntervalBuilder other);

  /// The set as it now is.
  Intervals Take();

 private:
  struct Step {
    Interval run;
    bool add;
  };

  void Apply(Interval run, bool add);
  void ApplyAll(Intervals const& runs, bool add);
  void Complement() { m_inverse = !m_inverse; }
  /// Runs of what the steps give, which is what is not in the set when m_inverse is true.
  Intervals const& Merge();
  std::size_t Size() const { return m_steps.size() + m_merged.Runs().size(); }

  boost::container::small_vector<Step, 1> m_steps;  // on top of what was merged
  Intervals m_merged;
  bool m_inverse = false;
};

}  // namespace Tarvex
