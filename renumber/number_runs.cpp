#include "renumber/number_runs.h"

#include <algorithm>

namespace Tarvex {

NumberRuns::NumberRuns(Intervals const& existing, NumberScheme const* scheme)
    : m_existing(existing), m_scheme(scheme) {
  if (scheme == nullptr) return;
  scheme->ForEach([&](int old, int number) {
    if (number == 0) return;
    int const shift = number - old;
    bool const goesOn =
        !m_runs.empty() && m_runs.back().last == old - 1 && m_runs.back().shift == shift;
    if (goesOn)
      m_runs.back().last = old;
    else
      m_runs.push_back({old, old, shift});
  });
}

std::optional<int> NumberRuns::NextKept(int number) const {
  if (m_scheme == nullptr) return number;
  auto const at = std::lower_bound(m_runs.begin(), m_runs.end(), number,
                                   [](Run const& run, int n) { return run.last < n; });
  if (at == m_runs.end()) return std::nullopt;
  return std::max(number, at->first);
}

std::optional<int> NumberRuns::PreviousKept(int number) const {
  if (m_scheme == nullptr) return number;
  auto const behind = std::upper_bound(m_runs.begin(), m_runs.end(), number,
                                       [](int n, Run const& run) { return n < run.first; });
  if (behind == m_runs.begin()) return std::nullopt;
  return std::min(number, std::prev(behind)->last);
}

bool NumberRuns::AllExist(NumberRange const& range) const {
  auto const runs = m_existing.Runs();
  auto run = std::lower_bound(runs.begin(), runs.end(), range.first,
                              [](Interval const& r, int n) { return r.last < n; });
  for (int k = range.first; k <= range.last;) {
    while (run != runs.end() && run->last < k) ++run;
    if (run == runs.end() || run->first > k) return false;
    k += (std::min(run->last, range.last) - k) / range.step * range.step + range.step;
  }
  return true;
}

bool NumberRuns::MoveAlike(NumberRange const& range) const {
  if (m_scheme == nullptr || range.last - range.first < range.step) return true;
  auto const* const end = m_runs.data() + m_runs.size();
  auto const* run = std::lower_bound(m_runs.data(), end, range.first,
                                     [](Run const& r, int n) { return r.last < n; });
  bool const gone = run == end || run->first > range.first;
  // A number that goes becomes 0, which is a step down by itself.
  int const shift = gone ? -range.first : run->shift;
  for (int k = gone ? range.first + range.step : range.first; k <= range.last;) {
    while (run != end && run->last < k) ++run;
    if (run == end || run->first > k || run->shift != shift) return false;
    k += (std::min(run->last, range.last) - k) / range.step * range.step + range.step;
  }
  return true;
}

}  // namespace Tarvex
