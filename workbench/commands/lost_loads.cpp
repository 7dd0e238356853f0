#include "workbench/commands/lost_loads.h"

#include <set>
#include <string>
#include <unordered_map>

#include "store/model/list_expansion.h"
#include "store/record/body_loads.h"
#include "store/record/face_loads.h"

namespace Tarvex::Workbench {
namespace {

using LoadOnElement = std::pair<int, int>;

template <class Load>
using StoreLoadCall = void (LoadTables::*)(int, Load const&, SidMode);

/// Calls visit(name, table, how it is stored) for the tables of loads on plates and solids.
template <class Visit>
void ForEachPlateLoadTable(CZelData const& model, Visit&& visit) {
  visit("FaceLoad", model.FaceLoad(), StoreLoadCall<Data::CFaceLoad>(&CZelData::SetFaceLoad));
  visit("EdgeLoad", model.EdgeLoad(), StoreLoadCall<Data::CEdgeLoad>(&CZelData::SetEdgeLoad));
  visit("FaceThermalLoad", model.FaceThermalLoad(),
        StoreLoadCall<Data::CFaceThermalLoad>(&CZelData::SetFaceThermalLoad));
  visit("BodyFaceLoad", model.BodyFaceLoad(),
        StoreLoadCall<Data::CBodyFaceLoad>(&CZelData::SetBodyFaceLoad));
  visit("BodyThermalLoad", model.BodyThermalLoad(),
        StoreLoadCall<Data::CBodyThermalLoad>(&CZelData::SetBodyThermalLoad));
}

/// Stores the loads of a table with other identifiers: identifier(n, load).
template <class Load, class Identifier>
void StoreWithIdentifiers(CZelData& model, std::vector<Load> const& table,
                          StoreLoadCall<Load> store, Identifier&& identifier) {
  // A copy: storing a load gives the table another place.
  auto const loads = table;  // NOLINT(performance-unnecessary-copy-initialization)
  int n = 0;
  for (auto load : loads) {
    ++n;
    load.SetSid(identifier(n, load));
    (model.*store)(n, load, SidMode::Keep);
  }
}

template <class Load>
int MarkOf(Load const& load) {
  return std::stoi(load.Sid().Str());
}

/// What loads on elements are on, by the numbers of the marks: the element itself, or the one that
/// an element is a piece of.
template <class Load>
std::set<LoadOnElement> ElementsOfLoads(CZelData const& model, std::vector<Load> const& table,
                                        std::unordered_map<int, int> const& elements) {
  std::set<LoadOnElement> on;
  for (auto const& load : table) {
    auto const& list = load.LoadedEntities();
    if (list.TypeOf() != SelElement) continue;
    for (int const n : Util::Item(list, model))
      if (auto const found = elements.find(n); found != elements.end())
        on.emplace(MarkOf(load), found->second);
  }
  return on;
}

}  // namespace

LoadMarks::LoadMarks(CZelData& model) : m_unmarked(model) {
  ForEachPlateLoadTable(m_unmarked, [&](char const*, auto const& table, auto store) {
    StoreWithIdentifiers(model, table, store,
                         [](int n, auto const&) { return CString(std::to_wstring(n)); });
  });
}

void LoadMarks::TakeOff(CZelData& model) const {
  std::map<std::string, std::vector<CString>> identifiers;
  ForEachPlateLoadTable(m_unmarked, [&](char const* name, auto const& table, auto) {
    for (auto const& load : table) identifiers[name].push_back(load.Sid());
  });
  ForEachPlateLoadTable(model, [&](char const* name, auto const& table, auto store) {
    auto const& old = identifiers[name];
    StoreWithIdentifiers(model, table, store, [&](int, auto const& load) {
      return old[static_cast<std::size_t>(MarkOf(load)) - 1];
    });
  });
}

void LoadMarks::ReportLost(CZelData const& before, CZelData const& after,
                           std::map<int, std::vector<int>> const& pieces, CommandResult& result) {
  std::unordered_map<int, int> itself;
  std::unordered_map<int, int> parents;
  for (auto const& [parent, subs] : pieces) {
    itself[parent] = parent;
    for (int const sub : subs) parents[sub] = parent;
  }
  std::map<std::string, std::set<LoadOnElement>> kept;
  ForEachPlateLoadTable(after, [&](char const* name, auto const& table, auto) {
    kept[name] = ElementsOfLoads(after, table, parents);
  });
  ForEachPlateLoadTable(before, [&](char const* name, auto const& table, auto) {
    for (auto const& [n, element] : ElementsOfLoads(before, table, itself))
      if (!kept[name].contains({n, element}))
        result.undone.push_back({name, n,
                                 "no piece of element " + std::to_string(element) +
                                     " could be given it: it is gone there"});
  });
}

}  // namespace Tarvex::Workbench
