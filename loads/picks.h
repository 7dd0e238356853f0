// Ways of taking one of each of several things.
#pragma once

#include <cstddef>
#include <vector>

namespace Tarvex {

/// Calls visit(pick) with pointers to the entries for every way of taking one of each group, the
/// last group's changing fastest; once with nothing where there is no group, never where one is
/// empty. Costs no recursion and two vectors.
template <class T, class Visit>
void ForEachPick(std::vector<std::vector<T>> const& groups, Visit&& visit) {
  std::vector<T const*> pick;
  for (auto const& group : groups) {
    if (group.empty()) return;
    pick.push_back(&group.front());
  }
  std::vector<std::size_t> places(groups.size(), 0);
  for (;;) {
    visit(static_cast<std::vector<T const*> const&>(pick));
    auto group = groups.size();
    for (; group > 0; --group) {
      auto const k = group - 1;
      places[k] = (places[k] + 1) % groups[k].size();
      pick[k] = &groups[k][places[k]];
      if (places[k] != 0) break;
    }
    if (group == 0) return;
  }
}

}  // namespace Tarvex
