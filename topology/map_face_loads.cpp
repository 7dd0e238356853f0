// Pressures, point loads and temperatures of plates given to the pieces that fill them.
#include <algorithm>
#include <stdexcept>

#include "topology/corner_fit.h"
#include "topology/plate_mapping.h"

namespace Tarvex {
namespace {

using Data::CFaceLoad;
using FaceType = CFaceLoad::Load2D;
using ThermalType = Data::CFaceThermalLoad::ThermalType;

constexpr int kMostCorners = 4;

/// Whether a field over a plate with so many corners can be fitted to them.
bool HasFit(int corners) { return corners == 3 || corners == kMostCorners; }

int CornersWithValues(CZelData const& model, int element) {
  return std::min(NumCorner(model.Elem(element)), kMostCorners);
}

bool IsFinitePlateLoad(CFaceLoad const& load, int corners) {
  if (load.TypeOf() == FaceType::PerCorner) return HasFiniteValues(load, corners);
  auto const at = load.Position();
  bool const point = load.TypeOf() == FaceType::Point;
  return HasFiniteValues(load, 1) && (!point || std::isfinite(at.x + at.y));
}

/// Number of values of a thermal load that are read.
int NumThermalValue(ThermalType type, int corners) {
  if (type == ThermalType::PerCorner) return 2 * corners;
  return type == ThermalType::Gradient ? 2 : 1;
}

/// Whether a plate has the nodes that its shape asks for.
bool HasShape(CZelData const& model, int element) {
  auto const& plate = model.Elem(element);
  return plate.Is2D() && plate.NumTopo() == plate.Shape().nodes;
}

/// Every so many values of a load, from one on: those of one side of a plate, by corner.
template <class Load>
std::vector<double> ValuesFrom(Load const& load, int first, int step, int count) {
  std::vector<double> values;
  for (int i = 0; i < count; ++i) values.push_back(load.Value(first + i * step));
  return values;
}

void MapPressure(CZelData& model, CFaceLoad load, int parent, int sub) {
  auto const frame = model.ElemDC(parent, EntAt::Ends, -1);
  int const corners = NumCorner(model.Elem(parent));
  if (!HasFit(corners)) return;
  CornerFit const fit(LocalNodes(model, parent, corners, frame));
  if (!fit.IsDetermined()) return;
  auto const coefficients = fit.Coefficients(ValuesFrom(load, 0, 1, corners));
  for (int i = 0; i < kMostCorners; ++i) load.SetValue(i, 0);
  int place = 0;
  for (auto const& at : LocalNodes(model, sub, CornersWithValues(model, sub), frame))
    load.SetValue(place++, CornerFit::At(at, coefficients));
  if (HasFiniteValues(load, kMostCorners)) FaceLoads::AppendOn(model, sub, load);
}

}  // namespace

bool CDataMgr::MapFaceLoading(NumberLists const& pieces) const {
  CUndoStep step(m_model, false);
  auto loaded = LoadedNumbers<FaceLoads>(m_model, true);
  bool all = true;
  for (auto const& [parent, subs] : pieces) {
    if (m_model.ElemExist(parent) && !loaded.contains(parent)) continue;
    loaded.insert(subs.begin(), subs.end());
    // A load panel takes a uniform pressure; any other asks for the shape of an element.
    bool placed = HasFinitePlace(m_model, parent);
    bool shaped = HasFiniteNodes(m_model, parent);
    for (int const sub : subs) {
      placed = placed && HasFinitePlace(m_model, sub);
      shaped = shaped && HasFiniteNodes(m_model, sub);
    }
    int const highest = m_model.HighestFaceLoad();
    for (int n = 1; n <= highest; ++n) {
      if (!FaceLoads::IsOn(m_model, n, parent)) continue;
      auto const& load = m_model.FaceLoad(n);
      bool const finite = load.TypeOf() == FaceType::Uniform ? placed : shaped;
      if (IsIndirectList(load.LoadedEntities()) || !finite ||
          !IsFinitePlateLoad(load, CornersWithValues(m_model, parent)))
        all = false;
      else
        MapFaceLoading(n, parent, subs);
    }
    UnMapFaceLoading(parent);
  }
  step.Accept();
  return all;
}

void CDataMgr::MapFaceLoading(int n, int parent, Numbers const& subs) const {
  auto const load = m_model.FaceLoad(n);
  if (load.LoadedEntities().TypeOf() != SelElement)
    throw std::runtime_error("this function is only intended for element loads");
  switch (load.TypeOf()) {
    case FaceType::Uniform:
      for (int const sub : subs) FaceLoads::AddTo(m_model, n, sub);
      break;
    case FaceType::PerCorner:
      for (int const sub : subs) MapPressure(m_model, load, parent, sub);
      break;
    case FaceType::Point:
      MapPointLoad(load, parent, subs);
      break;
  }
}

/// A point load goes to the first piece that it lies on.
void CDataMgr::MapPointLoad(CFaceLoad const& load, int parent, Numbers const& subs) const {
  if (!m_model.ValidatePointLoadPosition(load, parent) || !HasShape(m_model, parent)) return;
  auto const point = GetShapeOfElement(parent).CoorAtRS(load.Position());
  double const tolerance = m_model.Spec().GenTol(TolType::PointInElement);
  for (int const sub : subs) {
    Vec2<double> at;
    if (!GetShapeOfElement(sub).FindRS(point, at, tolerance)) continue;
    auto mapped = load;
    mapped.SetPosition(at);
    FaceLoads::AppendOn(m_model, sub, mapped);
    return;
  }
}

Util::CShape CDataMgr::GetShapeOfElement(int element) const {
  return {SpaceType::Surface, LocalNodes(m_model, element, m_model.Elem(element).NumTopo(), {})};
}

void CDataMgr::UnMapFaceLoading(int parent) const {
  TakeElementOff<FaceLoads>(m_model, parent,
                            [&](auto const& list) { return IsIndirectList(list); });
}

bool CDataMgr::MapFaceThermalLoadLoading(NumberLists const& pieces) const {
  auto const loaded = LoadedNumbers<FaceThermalLoads>(m_model, true);
  return MapByPair(
      m_model, pieces, [&](int parent, Numbers const&) { return loaded.contains(parent); },
      [&](int parent, int sub) { return MapFaceThermalLoadLoading(parent, sub); },
      [&](int parent) { UnMapFaceThermalLoadLoading(parent); });
}

bool CDataMgr::MapFaceThermalLoadLoading(int parent, int sub) const {
  bool const placed = HasFinitePlace(m_model, parent) && HasFinitePlace(m_model, sub);
  bool const shaped = HasFiniteNodes(m_model, parent) && HasFiniteNodes(m_model, sub);
  int const corners = m_model.ElemExist(parent) ? NumCorner(m_model.Elem(parent)) : 0;
  bool all = true;
  int const highest = m_model.HighestFaceThermalLoad();
  for (int n = 1; n <= highest; ++n) {
    if (!FaceThermalLoads::IsOn(m_model, n, parent)) continue;
    auto const load = m_model.FaceThermalLoad(n);
    int const values = NumThermalValue(load.TypeOf(), std::min(corners, kMostCorners));
    bool const finite = load.TypeOf() == ThermalType::PerCorner ? shaped : placed;
    if (IsIndirectList(load.LoadedEntities()) || !finite || !HasFiniteValues(load, values))
      all = false;
    else if (load.TypeOf() == ThermalType::Uniform || load.TypeOf() == ThermalType::Gradient)
      FaceThermalLoads::AddTo(m_model, n, sub);
    else if (load.TypeOf() == ThermalType::PerCorner && HasFit(corners))
      MapTemperatures(load, parent, sub);
  }
  return all;
}

void CDataMgr::MapTemperatures(Data::CFaceThermalLoad load, int parent, int sub) const {
  auto const frame = m_model.ElemDC(parent, EntAt::Ends, -1);
  int const corners = NumCorner(m_model.Elem(parent));
  CornerFit const fit(LocalNodes(m_model, parent, corners, frame));
  auto const top = fit.Coefficients(ValuesFrom(load, 0, 2, corners));
  auto const bottom = fit.Coefficients(ValuesFrom(load, 1, 2, corners));
  for (int i = 0; i < 2 * kMostCorners; ++i) load.SetValue(i, 0);
  int place = 0;
  for (auto const& at : LocalNodes(m_model, sub, CornersWithValues(m_model, sub), frame)) {
    load.SetValue(place++, CornerFit::At(at, top));
    load.SetValue(place++, CornerFit::At(at, bottom));
  }
  if (HasFiniteValues(load, 2 * kMostCorners)) FaceThermalLoads::AppendOn(m_model, sub, load);
}

void CDataMgr::UnMapFaceThermalLoadLoading(int parent) const {
  TakeElementOff<FaceThermalLoads>(m_model, parent,
                                   [&](auto const& list) { return IsIndirectList(list); });
}

bool CDataMgr::Map2DLoading(NumberLists const& pieces) const {
  bool const faces = MapFaceLoading(pieces);
  bool const edges = MapEdgeLoading(pieces);
  bool const temperatures = MapFaceThermalLoadLoading(pieces);
  return faces && edges && temperatures;
}

}  // namespace Tarvex
