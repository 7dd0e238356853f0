// Lists that gain the copies of what they select.
#pragma once

#include <map>

#include "store/model/list_expansion.h"

namespace Tarvex {

/// Adds to a list the copy of each number that it includes and whose copy it does not include,
/// ascending by old number; a copy that was added counts as included from then on.
/// @return whether the list gained anything.
bool AddCopies(Data::CEntList& list, SelType kind, std::map<int, int> const& copies,
               CZelData const& model);

/// The same by what the list selects before anything is added: numbers without a record are not
/// selected, and the copy of two numbers is added twice.
bool AddCopiesOfSelected(Data::CEntList& list, std::map<int, int> const& copies,
                         CZelData const& model);

/// Calls visit(copy), ascending by number, for each selected number that has a copy which is not
/// selected itself.
template <class Visit>
void ForEachNewCopy(CBitContainer const& selected, std::map<int, int> const& copies,
                    Visit&& visit) {
  auto const offer = [&](int copy) {
    if (!selected.IsItemIncluded(copy)) visit(copy);
  };
  // Whichever is shorter is walked, and the other one asked.
  if (static_cast<std::size_t>(selected.NumItem()) < copies.size()) {
    for (int const number : selected)
      if (auto const found = copies.find(number); found != copies.end()) offer(found->second);
  } else {
    for (auto const& [number, copy] : copies)
      if (selected.IsItemIncluded(number)) offer(copy);
  }
}

}  // namespace Tarvex
