#include "store/select/interval_builder.h"

#include <algorithm>
#include <limits>
#include <queue>
#include <utility>

namespace Tarvex {
namespace {

constexpr Interval kUniverse{0, std::numeric_limits<int>::max()};
/// Fewer steps are not worth a merge.
constexpr std::size_t kFewSteps = 16;

/// What is not in a set.
Intervals Gaps(Intervals const& set) { return Difference({kUniverse}, set); }

/// The steps that hold the place of a sweep, the last one of them on top.
class Covering {
 public:
  explicit Covering(std::span<Interval const> runs) : m_runs(runs) {}

  void Add(std::size_t step) { m_steps.push(step); }
  /// Forgets what ended before a place, as far as it is on top.
  void LeaveBehind(long long place) {
    while (!m_steps.empty() && m_runs[m_steps.top()].last < place) m_steps.pop();
  }
  bool IsEmpty() const { return m_steps.empty(); }
  std::size_t Last() const { return m_steps.top(); }

 private:
  std::span<Interval const> m_runs;
  std::priority_queue<std::size_t> m_steps;
};

/// Places of the runs in ascending order of their first numbers.
std::vector<std::size_t> Order(std::span<Interval const> runs) {
  std::vector<std::size_t> order(runs.size());
  for (std::size_t i = 0; i < order.size(); ++i) order[i] = i;
  std::sort(order.begin(), order.end(),
            [&](auto a, auto b) { return runs[a].first < runs[b].first; });
  return order;
}

/// The numbers whose last run is one that adds.
Intervals Sweep(std::span<Interval const> runs, std::vector<bool> const& adds) {
  auto const order = Order(runs);
  Covering covering(runs);
  Intervals set;
  long long place = 0;
  for (std::size_t next = 0; next < order.size() || !covering.IsEmpty();) {
    if (covering.IsEmpty()) place = std::max<long long>(place, runs[order[next]].first);
    while (next < order.size() && runs[order[next]].first <= place) covering.Add(order[next++]);
    covering.LeaveBehind(place);
    if (covering.IsEmpty()) continue;
    auto const last = covering.Last();
    long long end = runs[last].last;
    if (next < order.size()) end = std::min<long long>(end, runs[order[next]].first - 1);
    if (adds[last]) set.Append({static_cast<int>(place), static_cast<int>(end)});
    place = end + 1;
    covering.LeaveBehind(place);
  }
  return set;
}

}  // namespace

void IntervalBuilder::Apply(Interval run, bool add) {
  run.first = std::max(run.first, kUniverse.first);
  if (run.IsEmpty()) return;
  m_steps.push_back({run, add != m_inverse});
  if (m_steps.size() >= std::max(kFewSteps, m_merged.Runs().size())) Merge();
}

void IntervalBuilder::ApplyAll(Intervals const& runs, bool add) {
  for (auto const& run : runs.Runs()) Apply(run, add);
}

Intervals const& IntervalBuilder::Merge() {
  if (m_steps.empty()) return m_merged;
  if (m_steps.size() == 1 && m_merged.IsEmpty()) {  // as in every item of a list
    if (m_steps[0].add) m_merged.Append(m_steps[0].run);
    m_steps.clear();
    return m_merged;
  }
  auto const old = m_merged.Runs();
  std::vector<Interval> runs(old.begin(), old.end());
  std::vector<bool> adds(old.size(), true);
  for (auto const& step : m_steps) {
    runs.push_back(step.run);
    adds.push_back(step.add);
  }
  m_merged = Sweep(runs, adds);
  m_steps.clear();
  return m_merged;
}

Intervals IntervalBuilder::Take() {
  Merge();
  auto set = m_inverse ? Gaps(m_merged) : std::move(m_merged);
  *this = IntervalBuilder();
  return set;
}

void IntervalBuilder::Unite(IntervalBuilder other) {
  if (Size() < other.Size()) std::swap(*this, other);
  ApplyAll(other.Take(), true);
}

void IntervalBuilder::Intersect(IntervalBuilder other) {
  if (Size() < other.Size()) std::swap(*this, other);
  other.Complement();
  ApplyAll(other.Take(), false);
}

void IntervalBuilder::Subtract(IntervalBuilder other) {
  if (Size() >= other.Size()) {
    ApplyAll(other.Take(), false);
    return;
  }
  // All but the rest is what is not here or is in the other.
  Complement();
  other.Unite(std::move(*this));
  *this = std::move(other);
  Complement();
}

}  // namespace Tarvex
