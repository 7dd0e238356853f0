// Tables of records with a list, as the reference operations walk them.
#pragma once

#include <map>
#include <vector>

#include "store/model/list_expansion.h"
#include "store/model/zel_data.h"

namespace Tarvex {

/// A list field of a table: how it is read, written and how its record goes.
struct ListField {
  int (CZelData::*highest)() const;
  bool (CZelData::*exist)(int) const;
  Data::CEntList const& (*read)(CZelData const&, int);
  void (*write)(CZelData&, int, Data::CEntList const&);
  /// Removes a record whose list has become empty; null where it stays, with its empty list.
  void (*remove)(CZelData&, int);
};

/// Walks a table from its highest number down and calls visit(n) for the records that exist.
/// @return whether any call was true.
template <class Visit>
bool WalkDown(CZelData const& model, ListField const& field, Visit&& visit) {
  bool any = false;
  for (int n = (model.*field.highest)(); n >= 1; --n)
    if ((model.*field.exist)(n) && visit(n)) any = true;
  return any;
}

/// Puts new numbers in the place of old ones in one list. @return whether it changed.
inline bool ReplaceInField(CZelData& model, ListField const& field, int n,
                           std::map<int, std::vector<int>> const& numbers) {
  auto list = field.read(model, n);
  if (!Util::Replace(list, numbers, model)) return false;
  if (list.IsEmpty() && field.remove != nullptr)
    field.remove(model, n);
  else
    field.write(model, n, list);
  return true;
}

}  // namespace Tarvex
