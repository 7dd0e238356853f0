#include "workbench/commands/shaped_loads.h"

#include <algorithm>

#include "store/model/list_expansion.h"
#include "store/record/body_loads.h"
#include "store/record/ent_list.h"
#include "store/record/face_loads.h"

namespace Tarvex::Workbench {
namespace {

using Data::CEntList;

bool NamesAny(CZelData const& model, CEntList const& list, Util::CSet const& elements) {
  if (list.TypeOf() != SelElement) return false;
  auto const named = Util::MakeSet(list, model);
  return std::any_of(named.begin(), named.end(),
                     [&](int const n) { return elements.IsItemIncluded(n); });
}

bool HasShape(Data::CFaceLoad const& load) {
  return load.TypeOf() != Data::CFaceLoad::Load2D::Uniform;
}
bool HasShape(Data::CFaceThermalLoad const& load) {
  return load.TypeOf() == Data::CFaceThermalLoad::ThermalType::PerCorner;
}
template <class Load>
bool HasShape(Load const&) {
  return true;
}

/// Stores the loads of a table whose lists have to be written out.
template <class Load, class Store>
void WriteOut(CZelData const& model, std::vector<Load> const& table, Util::CSet const& elements,
              Store&& store) {
  // A copy: storing a load gives the table another place.
  auto const loads = table;  // NOLINT(performance-unnecessary-copy-initialization)
  int n = 0;
  for (auto const& load : loads) {
    ++n;
    auto const& list = load.LoadedEntities();
    if (!HasShape(load) || list.IsPlain() || !NamesAny(model, list, elements)) continue;
    CEntList plain(list.Name(), SelElement, CString(L""));
    for (int const number : Util::MakeSet(list, model)) plain.AddTo(number);
    auto changed = load;
    changed.SetLoadedEntities(plain);
    store(n, changed);
  }
}

template <class Load>
void Find(std::vector<Load> const& table, char const* name, CZelData const& model,
          Util::CSet const& elements, char const* why, std::vector<Undone>& found) {
  int n = 0;
  for (auto const& load : table) {
    ++n;
    if (HasShape(load) && NamesAny(model, load.LoadedEntities(), elements))
      found.push_back({name, n, why});
  }
}

}  // namespace

void WriteOutShapedLoads(CZelData& model, Util::CSet const& elements) {
  WriteOut(model, model.FaceLoad(), elements,
           [&](int n, auto const& load) { model.SetFaceLoad(n, load); });
  WriteOut(model, model.EdgeLoad(), elements,
           [&](int n, auto const& load) { model.SetEdgeLoad(n, load); });
  WriteOut(model, model.FaceThermalLoad(), elements,
           [&](int n, auto const& load) { model.SetFaceThermalLoad(n, load); });
  WriteOut(model, model.BodyFaceLoad(), elements,
           [&](int n, auto const& load) { model.SetBodyFaceLoad(n, load); });
  WriteOut(model, model.BodyThermalLoad(), elements,
           [&](int n, auto const& load) { model.SetBodyThermalLoad(n, load); });
}

std::vector<Undone> FindShapedLoads(CZelData const& model, Util::CSet const& elements,
                                    char const* why) {
  std::vector<Undone> found;
  Find(model.FaceLoad(), "FaceLoad", model, elements, why, found);
  Find(model.EdgeLoad(), "EdgeLoad", model, elements, why, found);
  Find(model.FaceThermalLoad(), "FaceThermalLoad", model, elements, why, found);
  return found;
}

}  // namespace Tarvex::Workbench
