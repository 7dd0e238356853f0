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

template <class Loads>
void MapPressure(CZelData const& model, Loads& loads, CFaceLoad load, int parent, int sub) {
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
  if (HasFiniteValues(load, kMostCorners)) loads.AppendOn(sub, load);
}

Util::CShape PlateShape(CZelData const& model, int element) {
  return {SpaceType::Surface, LocalNodes(model, element, model.Elem(element).NumTopo(), {})};
}

/// A point load goes to the first piece that it lies on.
template <class Loads>
void MapPointLoad(CZelData const& model, Loads& loads, CFaceLoad load, int parent,
                  std::vector<int> const& subs) {
  if (!model.ValidatePointLoadPosition(load, parent) || !HasShape(model, parent)) return;
  auto const point = PlateShape(model, parent).CoorAtRS(load.Position());
  double const tolerance = model.Spec().GenTol(TolType::PointInElement);
  for (int const sub : subs) {
    Vec2<double> at;
    if (!PlateShape(model, sub).FindRS(point, at, tolerance)) continue;
    load.SetPosition(at);
    loads.AppendOn(sub, load);
    return;
  }
}

template <class Loads>
void MapFaceLoad(CZelData const& model, Loads& loads, int n, int parent,
                 std::vector<int> const& subs) {
  auto const load = model.FaceLoad(n);
  switch (load.TypeOf()) {
    case FaceType::Uniform:
      for (int const sub : subs) loads.AddTo(n, sub);
      break;
    case FaceType::PerCorner:
      for (int const sub : subs) MapPressure(model, loads, load, parent, sub);
      break;
    case FaceType::Point:
      MapPointLoad(model, loads, load, parent, subs);
      break;
  }
}

template <class Loads>
void MapTemperatures(CZelData const& model, Loads& loads, Data::CFaceThermalLoad load, int parent,
                     int sub) {
  auto const frame = model.ElemDC(parent, EntAt::Ends, -1);
  int const corners = NumCorner(model.Elem(parent));
  CornerFit const fit(LocalNodes(model, parent, corners, frame));
  auto const top = fit.Coefficients(ValuesFrom(load, 0, 2, corners));
  auto const bottom = fit.Coefficients(ValuesFrom(load, 1, 2, corners));
  for (int i = 0; i < 2 * kMostCorners; ++i) load.SetValue(i, 0);
  int place = 0;
  for (auto const& at : LocalNodes(model, sub, CornersWithValues(model, sub), frame)) {
    load.SetValue(place++, CornerFit::At(at, top));
    load.SetValue(place++, CornerFit::At(at, bottom));
  }
  if (HasFiniteValues(load, 2 * kMostCorners)) loads.AppendOn(sub, load);
}

}  // namespace

bool CDataMgr::MapFaceLoading(NumberLists const& pieces) const {
  CUndoStep step(m_model, false);
  if (m_model.HighestFaceLoad() == 0) return step.Accept(), true;
  LoadSheet<FaceLoads> loads(m_model, pieces);
  bool all = true;
  for (auto const& [parent, subs] : pieces) {
    if (loads.IsOnIndirect(parent)) all = false;
    auto const numbers = loads.On(parent);
    if (numbers.empty()) continue;
    // A load panel takes a uniform pressure; any other asks for the shape of an element.
    bool placed = HasFinitePlace(m_model, parent);
    bool shaped = HasFiniteNodes(m_model, parent);
    for (int const sub : subs) {
      placed = placed && HasFinitePlace(m_model, sub);
      shaped = shaped && HasFiniteNodes(m_model, sub);
    }
    for (int const n : numbers) {
      auto const& load = m_model.FaceLoad(n);
      bool const finite = load.TypeOf() == FaceType::Uniform ? placed : shaped;
      if (!finite || !IsFinitePlateLoad(load, CornersWithValues(m_model, parent)))
        all = false;
      else
        MapFaceLoad(m_model, loads, n, parent, subs);
    }
    loads.TakeOff(parent);
  }
  loads.Store();
  step.Accept();
  return all;
}

void CDataMgr::MapFaceLoading(int n, int parent, Numbers const& subs) const {
  if (m_model.FaceLoad(n).LoadedEntities().TypeOf() != SelElement)
    throw std::runtime_error("this function is only intended for element loads");
  MapOfParent<FaceLoads>(m_model, parent, [&](auto& loads) {
    MapFaceLoad(m_model, loads, n, parent, subs);
    return true;
  });
}

Util::CShape CDataMgr::GetShapeOfElement(int element) const { return PlateShape(m_model, element); }

void CDataMgr::UnMapFaceLoading(int parent) const { TakeElementOff<FaceLoads>(m_model, parent); }

bool CDataMgr::MapFaceThermalLoadLoading(NumberLists const& pieces) const {
  auto const loaded = LoadedNumbers<FaceThermalLoads>(m_model, true);
  return MapByPair<FaceThermalLoads>(
      m_model, pieces, [&](int parent) { return loaded.contains(parent); },
      [&](auto& loads, int parent, int sub) {
        return MapFaceThermalLoadLoading(loads, parent, sub);
      });
}

bool CDataMgr::MapFaceThermalLoadLoading(int parent, int sub) const {
  return MapOfParent<FaceThermalLoads>(
      m_model, parent, [&](auto& loads) { return MapFaceThermalLoadLoading(loads, parent, sub); });
}

template <class Loads>
bool CDataMgr::MapFaceThermalLoadLoading(Loads& loads, int parent, int sub) const {
  bool all = !loads.IsOnIndirect(parent);
  auto const numbers = loads.On(parent);
  if (numbers.empty()) return all;
  bool const placed = HasFinitePlace(m_model, parent) && HasFinitePlace(m_model, sub);
  bool const shaped = HasFiniteNodes(m_model, parent) && HasFiniteNodes(m_model, sub);
  int const corners = m_model.ElemExist(parent) ? NumCorner(m_model.Elem(parent)) : 0;
  for (int const n : numbers) {
    auto const load = m_model.FaceThermalLoad(n);
    int const values = NumThermalValue(load.TypeOf(), std::min(corners, kMostCorners));
    bool const finite = load.TypeOf() == ThermalType::PerCorner ? shaped : placed;
    if (!finite || !HasFiniteValues(load, values))
      all = false;
    else if (load.TypeOf() == ThermalType::Uniform || load.TypeOf() == ThermalType::Gradient)
      loads.AddTo(n, sub);
    else if (load.TypeOf() == ThermalType::PerCorner && HasFit(corners))
      MapTemperatures(m_model, loads, load, parent, sub);
  }
  return all;
}

void CDataMgr::UnMapFaceThermalLoadLoading(int parent) const {
  TakeElementOff<FaceThermalLoads>(m_model, parent);
}

bool CDataMgr::Map2DLoading(NumberLists const& pieces) const {
  bool const faces = MapFaceLoading(pieces);
  bool const edges = MapEdgeLoading(pieces);
  bool const temperatures = MapFaceThermalLoadLoading(pieces);
  return faces && edges && temperatures;
}

}  // namespace Tarvex
