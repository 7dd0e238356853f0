// Numbers that share a new one.
#pragma once

#include <unordered_map>
#include <vector>

#include "store/table/paged_table.h"

namespace Tarvex {

/// What stands under a number, be it one that a record can have or any other. Looking up is
/// constant-time.
class PlacesByNumber {
 public:
  static constexpr int kNone = -1;

  /// The place of a number, kNone when it has none.
  int Of(int number) const;
  void Set(int number, int place);
  void Remove(int number);

 private:
  PagedTable<int> m_places;
  std::unordered_map<int, int> m_others;  // of numbers below 1 and above the highest
};

/// Old numbers in groups that share a new one. A group is a tree of its members, the smaller of two
/// is hung below the larger: so finding the number of a member costs the logarithm of their number
/// at most, and joining two groups nothing else (disjoint sets; Cormen, Leiserson, Rivest, Stein,
/// Introduction to Algorithms, chapter on data structures for disjoint sets).
///
/// Members wait until their group is first moved: till then the group does not tell their number.
class NumberGroups {
 public:
  static constexpr int kNone = PlacesByNumber::kNone;

  /// Adds an old number to the group of a new one, where it waits.
  void Add(int number, int old);
  /// The group of a new number, kNone when there is none. It is good until the next Join.
  int Of(int number) const { return m_groups.Of(number); }
  /// Told some questions before one about a number, so that its group is at hand by then.
  void Expect(int number) const {
    if (int const group = Of(number); group != kNone) __builtin_prefetch(&At(group));
  }
  /// The number of a member's group.
  int NumberOf(int member) const { return At(RootOf(member)).number; }

  /// Calls visit(old, member) for each member of a group that waits; none does any longer.
  template <class Visit>
  void TakeWaiting(int group, Visit&& visit) {
    for (int m = At(group).first; m != kNone; m = At(m).next) visit(At(m).old, m);
    At(group).first = At(group).last = kNone;
  }
  /// Lets all members of all groups wait.
  void LetWait();

  /// Gives a group a number that no group has.
  void Rename(int group, int number);
  /// Gives the members of a group the number of another one.
  void Join(int group, int other);

 private:
  /// An old number. What stands behind `above` counts for the root of a tree alone.
  struct Member {
    int old;
    int next;   // that waits, kNone behind the last one
    int above;  // or, in the root, less the number of members
    int number;
    int first;  // first and last member that wait
    int last;
  };

  Member& At(int member) { return m_members[static_cast<std::size_t>(member)]; }
  Member const& At(int member) const { return m_members[static_cast<std::size_t>(member)]; }
  int RootOf(int member) const {
    while (At(member).above >= 0) member = At(member).above;
    return member;
  }
  /// Puts the waiting members from first to last behind those of a group.
  void Append(Member& root, int first, int last);

  std::vector<Member> m_members;
  PlacesByNumber m_groups;  // roots
};

}  // namespace Tarvex
