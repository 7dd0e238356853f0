#include "renumber/number_groups.h"

#include <utility>

#include "store/select/numbers.h"

namespace Tarvex {
namespace {

bool IsRecordNumber(int number) { return number >= 1 && number <= kHighestNumber; }

}  // namespace

int PlacesByNumber::Of(int number) const {
  if (IsRecordNumber(number)) {
    auto const* const place = m_places.Find(number);
    return place == nullptr ? kNone : *place;
  }
  auto const found = m_others.find(number);
  return found == m_others.end() ? kNone : found->second;
}

void PlacesByNumber::Set(int number, int place) {
  if (IsRecordNumber(number))
    m_places.Set(number, place);
  else
    m_others[number] = place;
}

void PlacesByNumber::Remove(int number) {
  if (IsRecordNumber(number))
    m_places.Remove(number, 1);
  else
    m_others.erase(number);
}

void NumberGroups::Add(int number, int old) {
  int const member = static_cast<int>(m_members.size());
  m_members.push_back({old, kNone, -1, number, member, member});
  int const group = Of(number);
  if (group == kNone) return m_groups.Set(number, member);
  auto& root = At(group);
  At(member).above = group;
  --root.above;
  Append(root, member, member);
}

void NumberGroups::LetWait() {
  for (auto& member : m_members) member.next = member.first = member.last = kNone;
  for (int m = 0; m < static_cast<int>(m_members.size()); ++m) Append(At(RootOf(m)), m, m);
}

void NumberGroups::Rename(int group, int number) {
  m_groups.Remove(At(group).number);
  m_groups.Set(number, group);
  At(group).number = number;
}

void NumberGroups::Join(int group, int other) {
  int const number = At(other).number;
  m_groups.Remove(At(group).number);
  bool const otherStays = At(other).above <= At(group).above;
  int const stays = otherStays ? other : group;
  auto& root = At(stays);
  auto& below = At(otherStays ? group : other);
  root.above += below.above;
  below.above = stays;
  if (below.first != kNone) Append(root, below.first, below.last);
  root.number = number;
  if (!otherStays) m_groups.Set(number, stays);
}

void NumberGroups::Append(Member& root, int first, int last) {
  if (root.first == kNone)
    root.first = first;
  else
    At(root.last).next = first;
  root.last = last;
}

}  // namespace Tarvex
