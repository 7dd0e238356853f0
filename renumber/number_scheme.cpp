#include "renumber/number_scheme.h"

namespace Tarvex {

NumberScheme NumberScheme::Settled() const {
  NumberScheme settled;
  if (m_grouped)
    ForEach([&](int old, int number) { settled.Set(old, number); });
  else
    settled.m_entries = m_entries;
  return settled;
}

NumberScheme NumberScheme::SettledInRow() const {
  constexpr std::size_t kDense = 4;  // numbers up to the highest, for each that is in use
  auto settled = Settled();
  auto const highest = static_cast<std::size_t>(m_entries.Highest());
  if (highest > kDense * m_entries.size()) return settled;
  settled.m_row.assign(highest + 1, 0);
  settled.ForEach(
      [&](int old, int number) { settled.m_row[static_cast<std::size_t>(old)] = number; });
  return settled;
}

void NumberScheme::Clear() {
  m_entries.Clear();
  m_groups.LetWait();
}

void NumberScheme::ForgetGroups() { *this = Settled(); }

void NumberScheme::Merge(std::span<std::pair<int, int> const> pairs) {
  constexpr std::size_t kAhead = 8;  // merges for which memory takes to answer
  for (std::size_t i = 0; i < pairs.size(); ++i) {
    if (m_grouped && i + kAhead < pairs.size()) {
      m_groups.Expect(pairs[i + kAhead].first);
      m_groups.Expect(pairs[i + kAhead].second);
    }
    Merge(pairs[i].first, pairs[i].second);
  }
}

void NumberScheme::Merge(int from, int to) {
  if (!m_grouped) {
    ForEach([&](int old, int number) { m_groups.Add(number, old); });
    m_grouped = true;
  }
  int const group = m_groups.Of(from);
  if (group == NumberGroups::kNone) return;
  m_groups.TakeWaiting(group, [&](int old, int member) { m_entries.Set(old, Entry{0, member}); });
  if (from == to) return;
  int const other = m_groups.Of(to);
  if (other == NumberGroups::kNone)
    m_groups.Rename(group, to);
  else
    m_groups.Join(group, other);
}

}  // namespace Tarvex
