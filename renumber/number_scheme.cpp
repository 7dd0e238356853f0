#include "renumber/number_scheme.h"

#include <utility>

namespace Tarvex {

int NumberGroups::Of(int number) const {
  auto const found = m_ofNumber.find(number);
  return found == m_ofNumber.end() ? -1 : found->second;
}

void NumberGroups::Add(int number, int old) {
  auto const [at, isNew] = m_ofNumber.try_emplace(number, static_cast<int>(m_groups.size()));
  if (isNew) m_groups.push_back({number, {}, {}});
  At(at->second).pending.push_back(old);
}

void NumberGroups::Rename(int group, int number) {
  m_ofNumber.erase(At(group).number);
  m_ofNumber[number] = group;
  At(group).number = number;
}

void NumberGroups::Unlink() {
  for (auto& group : m_groups) {
    group.pending.insert(group.pending.end(), group.linked.begin(), group.linked.end());
    group.linked.clear();
  }
}

void NumberScheme::Clear() {
  m_entries.Clear();
  m_groups.Unlink();
}

void NumberScheme::ForgetGroups() {
  PagedTable<Entry> plain;
  ForEach([&](int old, int number) { plain.Set(old, Entry{number, kAlone}); });
  m_entries = std::move(plain);
  m_groups = NumberGroups();
  m_grouped = false;
}

void NumberScheme::Merge(int from, int to) {
  if (!m_grouped) {
    ForEach([&](int old, int number) { m_groups.Add(number, old); });
    m_grouped = true;
  }
  int const group = m_groups.Of(from);
  if (group < 0) return;
  Link(group);
  if (from == to) return;
  int const other = m_groups.Of(to);
  if (other < 0)
    m_groups.Rename(group, to);
  else
    Join(group, other);
}

void NumberScheme::Link(int group) {
  auto& members = m_groups.At(group);
  for (int const old : members.pending) m_entries.Set(old, Entry{0, group});
  members.linked.insert(members.linked.end(), members.pending.begin(), members.pending.end());
  members.pending = {};
}

/// The larger of the two groups takes the other in, so that an entry changes its group a
/// logarithmic number of times.
void NumberScheme::Join(int group, int other) {
  int const number = m_groups.At(other).number;
  bool const otherStays = m_groups.At(other).linked.size() >= m_groups.At(group).linked.size();
  int const stays = otherStays ? other : group;
  auto& from = m_groups.At(otherStays ? group : other);
  auto& into = m_groups.At(stays);
  for (int const old : from.linked) m_entries.Set(old, Entry{0, stays});
  into.linked.insert(into.linked.end(), from.linked.begin(), from.linked.end());
  into.pending.insert(into.pending.end(), from.pending.begin(), from.pending.end());
  m_groups.Drop(otherStays ? group : other);
  if (!otherStays) m_groups.Rename(stays, number);
  from = NumberGroup();
}

}  // namespace Tarvex
