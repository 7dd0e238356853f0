// What the mappings of loads on plates and solids have in common.
#pragma once

#include <unordered_set>
#include <vector>

#include "store/model/undo_step.h"
#include "topology/load_sheet.h"

namespace Tarvex {

/// Maps the loads of a table pair by pair of parent and piece, as one undo step: all pieces of a
/// parent, then the parent comes off. @return whether all calls of map(loads, parent, piece) were
/// true.
template <class Table, class Wanted, class Map>
bool MapByPair(CZelData& model, CDataMgr::NumberLists const& pieces, Wanted&& wanted, Map&& map) {
  CUndoStep step(model, false);
  if (Table::Highest(model) == 0) return step.Accept(), true;
  LoadSheet<Table> loads(model, pieces);
  bool all = true;
  for (auto const& [parent, subs] : pieces) {
    if (!wanted(parent)) continue;
    for (int const sub : subs)
      if (!map(loads, parent, sub)) all = false;
    loads.TakeOff(parent);
  }
  loads.Store();
  step.Accept();
  return all;
}

/// Calls map(loads) with the loads of a table on one parent. @return what it returned.
template <class Table, class Map>
bool MapOfParent(CZelData& model, int parent, Map&& map) {
  LoadSheet<Table> loads(model, {{parent, {}}});
  bool const all = map(loads);
  loads.Store();
  return all;
}

/// Takes an element off the loads of a table that are on plain lists.
template <class Table>
void TakeElementOff(CZelData& model, int element) {
  LoadSheet<Table> loads(model, {{element, {}}});
  loads.TakeOff(element);
  loads.Store();
}

/// The elements that the loads of a table are on. @param elementsOnly passes lists of other kinds
/// over.
template <class Table>
std::unordered_set<int> LoadedNumbers(CZelData const& model, bool elementsOnly) {
  std::unordered_set<int> numbers;
  for (int n = 1; n <= Table::Highest(model); ++n) {
    auto const& list = Table::Read(model, n).LoadedEntities();
    if (elementsOnly && list.TypeOf() != SelElement) continue;
    for (int const number : Util::Item(list, model)) numbers.insert(number);
  }
  return numbers;
}

/// Positions of the first so many nodes of an element in a frame; all of them exist.
inline std::vector<Vec3<double>> LocalNodes(CZelData const& model, int element, int count,
                                            Util::CDirCos const& frame) {
  std::vector<Vec3<double>> points;
  for (int i = 0; i < count; ++i)
    points.push_back(frame.GtoL(model.NodeCoor(model.Elem(element).Topo(i))));
  return points;
}

}  // namespace Tarvex
