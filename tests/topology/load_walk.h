// Loads of a table one by one, as a walk over all of them changes them.
#pragma once

#include "store/model/list_expansion.h"
#include "store/model/zel_data.h"

namespace Tarvex::Testing {

/// Adds an entity to those of a load.
template <class Table>
void AddToLoad(CZelData& model, int n, int entity) {
  auto load = Table::Read(model, n);
  Data::CEntList list(load.LoadedEntities());
  list.AddTo(entity);
  load.SetLoadedEntities(list);
  Table::Write(model, n, load);
}

/// Takes an entity off a load. @return whether the load has gone, as it is on nothing any more.
template <class Table>
bool TakeOffLoad(CZelData& model, int n, int entity) {
  auto load = Table::Read(model, n);
  Data::CEntList list(load.LoadedEntities());
  Util::Delete(list, entity, model);
  if (Util::NumItem(list, model, -1, false) < 1) return Table::Delete(model, n), true;
  load.SetLoadedEntities(list);
  Table::Write(model, n, load);
  return false;
}

}  // namespace Tarvex::Testing
