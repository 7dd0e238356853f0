#include "workbench/commands/unmapped_loads.h"

#include "store/model/list_expansion.h"
#include "store/record/beam_loads.h"
#include "store/record/body_loads.h"
#include "store/record/face_loads.h"
#include "workbench/commands/shaped_loads.h"
#include "workbench/report/totals.h"

namespace Tarvex::Workbench {
namespace {

using Data::CEntList;

bool IsOnAny(CZelData const& model, CEntList const& list, SelType kind,
             std::set<int> const& numbers) {
  for (int const number : numbers)
    if (Util::IsItemIncluded(list, {kind, number}, model)) return true;
  return false;
}

/// Whether members take a load of the kind: uniform ones only.
bool IsForMembers(Data::CBeamLoad const& load) {
  return load.TypeOf() == Data::CBeamLoad::LoadType::Uniform;
}
template <class Load>
bool IsForMembers(Load const&) {
  return false;
}

template <class Load>
void FindIn(std::vector<Load> const& loads, char const* table, CZelData const& model, SelType kind,
            std::set<int> const& parents, std::vector<Undone>& found) {
  int n = 0;
  for (auto const& load : loads) {
    ++n;
    auto const& list = load.LoadedEntities();
    if (!IsOnAny(model, list, kind, parents)) continue;
    if (!list.IsPlain())
      found.push_back({table, n, "its list is more than plain numbers: it is left as it is"});
    else if (kind == SelMember && !IsForMembers(load))
      found.push_back({table, n, "members take uniform loads only: it is taken off the member"});
  }
}

}  // namespace

std::vector<Undone> FindUnmappableLineLoads(CZelData const& model, SelType kind,
                                            std::set<int> const& parents) {
  std::vector<Undone> found;
  FindIn(model.BeamLoad(), "BeamLoad", model, kind, parents, found);
  FindIn(model.BeamDist(), "BeamDist", model, kind, parents, found);
  return found;
}

std::vector<Undone> FindUnmappableLoads(CZelData const& model, SelType kind,
                                        std::set<int> const& parents) {
  auto found = FindUnmappableLineLoads(model, kind, parents);
  if (kind == SelMember) return found;
  FindIn(model.FaceLoad(), "FaceLoad", model, kind, parents, found);
  FindIn(model.EdgeLoad(), "EdgeLoad", model, kind, parents, found);
  FindIn(model.FaceThermalLoad(), "FaceThermalLoad", model, kind, parents, found);
  FindIn(model.BodyFaceLoad(), "BodyFaceLoad", model, kind, parents, found);
  FindIn(model.BodyThermalLoad(), "BodyThermalLoad", model, kind, parents, found);
  return found;
}

void ReportUnmapped(std::vector<Undone> const& loads, bool allMapped, CommandResult& result) {
  if (allMapped) return;
  result.undone.insert(result.undone.end(), loads.begin(), loads.end());
  if (!loads.empty()) return;
  result.messages.push_back(
      "some loads could not be mapped: a value or a co-ordinate is not usable, a piece reaches "
      "beyond its member, or a load panel is to take more than a uniform load");
  result.lookAt = true;
}

void ReportForces(CZelData const& before, CZelData const& model, CommandResult& result) {
  for (auto const& change : FindTotalChanges(before, model).cases) {
    if (!IsForceChanged(change)) continue;
    result.messages.push_back("load case " + std::to_string(change.loadCase) +
                              ": its total force is not what it was");
    result.lookAt = true;
  }
}

}  // namespace Tarvex::Workbench
