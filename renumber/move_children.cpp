// The children of members, which are part of the members' records, on the move.
#include <algorithm>
#include <map>

#include "renumber/move_records.h"
#include "store/record/member.h"

namespace Tarvex {
namespace {

/// Children by replica, in the order in which they come.
using Lists = std::map<int, std::vector<int>>;

bool HasRepeats(std::vector<int> numbers) {
  std::sort(numbers.begin(), numbers.end());
  return std::adjacent_find(numbers.begin(), numbers.end()) != numbers.end();
}

/// Leaves the first of equal numbers.
void DropRepeats(std::vector<int>& numbers) {
  if (!HasRepeats(numbers)) return;
  std::map<int, bool> seen;
  std::erase_if(numbers, [&](int n) { return !seen.try_emplace(n, true).second; });
}

void AddChildren(RenumberRun const& run, Data::CMember const& member, Lists& lists) {
  for (auto const& children : member.Children())
    for (int const child : children.elements)
      if (int const number = run.Map(CModule::Elem, child); number != 0)
        lists[children.replica].push_back(number);
}

Data::ChildLists Joined(Lists& lists) {
  Data::ChildLists joined;
  for (auto& [replica, numbers] : lists) {
    DropRepeats(numbers);
    for (int const number : numbers) Data::AppendChild(joined, number, replica);
  }
  return joined;
}

}  // namespace

void MoveChildren(RenumberRun const& run) {
  if (!run.schemes.HasAny(CModule::Member, CModule::Elem)) return;
  std::map<int, Lists> lists;  // by new number of the member
  for (auto const& [old, member] : run.before.Member())
    if (int const number = run.Map(CModule::Member, static_cast<int>(old));
        number != 0 && run.model.MemberExist(number))
      AddChildren(run, member, lists[number]);
  for (auto& [number, children] : lists) {
    auto const joined = Joined(children);
    if (run.model.Member(number).Children() == joined) continue;
    auto copy = run.model.Member(number);
    copy.ClearChildElements();
    for (auto const& replica : joined)
      for (int const child : replica.elements) copy.AppendChildElement(child, replica.replica);
    run.model.SetMember(number, copy, SidMode::Keep);
  }
}

}  // namespace Tarvex
