#include "store/model/load_case_use.h"

#include "store/model/model_core.h"

namespace Tarvex {
namespace {

/// Calls visit(table) for each table of loads.
template <class Visit>
void ForEachLoadTable(ModelState const& state, Visit&& visit) {
  auto const each = [&](auto const&... tables) { (visit(tables), ...); };
  each(state.nodeLoad, state.appliedDisplacement, state.settlement, state.beamLoad, state.axialLoad,
       state.beamDist, state.beamThermalLoad, state.faceLoad, state.edgeLoad, state.inPlaneLoad,
       state.faceThermalLoad, state.bodyFaceLoad, state.bodyThermalLoad, state.gridPointLoad,
       state.gridLineLoad, state.gridAreaLoad, state.gravityLoad);
}

}  // namespace

std::map<int, int> const& LoadCaseUse::Counts(ModelState const& state) {
  if (m_known) return m_counts;
  m_counts.clear();
  ForEachLoadTable(state, [&](auto const& table) {
    for (auto const& load : table.All()) Add(load.LoadCase(), 1);
  });
  m_known = true;
  return m_counts;
}

void LoadCaseUse::Add(int loadCase, int count) {
  if (loadCase < 1) return;
  auto const entry = m_counts.try_emplace(loadCase, 0).first;
  entry->second += count;
  if (entry->second == 0) m_counts.erase(entry);
}

}  // namespace Tarvex
