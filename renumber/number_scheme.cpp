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

void NumberScheme::Clear() {
  m_entries.Clear();
  m_groups.LetWait();
}

void NumberScheme::ForgetGroups() { *this = Settled(); }

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
