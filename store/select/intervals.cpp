#include "store/select/intervals.h"

#include <algorithm>

namespace Tarvex {
namespace {

/// The first run from a place on that ends at or behind a number. Logarithmic in how far it is.
template <class Place>
Place SkipTo(Place at, Place end, int number) {
  auto const before = [](Interval const& run, int value) { return run.last < value; };
  std::ptrdiff_t step = 1;
  while (end - at > step && before(at[step], number)) {
    at += step;
    step *= 2;
  }
  return std::lower_bound(at, end - at > step ? at + step : end, number, before);
}

}  // namespace

Intervals::Intervals(std::initializer_list<Interval> ascending)
    : Intervals(std::span(ascending.begin(), ascending.size())) {}

Intervals::Intervals(std::span<Interval const> ascending) {
  m_runs.reserve(ascending.size());
  for (auto const& run : ascending) Append(run);
}

void Intervals::Append(Interval run) {
  if (run.IsEmpty()) return;
  // Written without a sum, which could leave the range of int.
  if (m_runs.empty() || (run.first > m_runs.back().last && run.first - 1 > m_runs.back().last))
    m_runs.push_back(run);
  else
    m_runs.back().last = std::max(m_runs.back().last, run.last);
}

bool Intervals::Contains(int number) const {
  auto const behind =
      std::upper_bound(m_runs.begin(), m_runs.end(), number,
                       [](int value, Interval const& run) { return value < run.first; });
  return behind != m_runs.begin() && number <= std::prev(behind)->last;
}

Intervals Union(Intervals const& a, Intervals const& b) {
  Intervals sum;
  sum.m_runs.reserve(a.m_runs.size() + b.m_runs.size());
  auto i = a.m_runs.begin();
  auto j = b.m_runs.begin();
  while (i != a.m_runs.end() || j != b.m_runs.end()) {
    bool const fromA = j == b.m_runs.end() || (i != a.m_runs.end() && i->first < j->first);
    sum.Append(fromA ? *i++ : *j++);
  }
  return sum;
}

Intervals Intersection(Intervals const& a, Intervals const& b) {
  Intervals common;
  auto i = a.m_runs.begin();
  auto j = b.m_runs.begin();
  while (i != a.m_runs.end() && j != b.m_runs.end()) {
    common.Append({std::max(i->first, j->first), std::min(i->last, j->last)});
    if (i->last < j->last)
      i = SkipTo(i + 1, a.m_runs.end(), j->first);
    else
      j = SkipTo(j + 1, b.m_runs.end(), i->first);
  }
  return common;
}

Intervals Difference(Intervals const& a, Intervals const& b) {
  Intervals rest;
  auto j = b.m_runs.begin();
  for (auto run : a.m_runs) {
    while (j != b.m_runs.end() && j->last < run.first) ++j;
    for (auto hole = j; hole != b.m_runs.end() && hole->first <= run.last; ++hole) {
      if (hole->first > run.first) rest.Append({run.first, hole->first - 1});
      if (hole->last >= run.last) {
        run = Interval();
        break;
      }
      run.first = hole->last + 1;
    }
    rest.Append(run);
  }
  return rest;
}

}  // namespace Tarvex
