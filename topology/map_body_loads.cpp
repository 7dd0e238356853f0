// Loads on faces and temperatures of solids given to the pieces that fill them.
#include <algorithm>

#include "topology/corner_fit.h"
#include "topology/plate_mapping.h"

namespace Tarvex {
namespace {

using Data::CBodyFaceLoad;
using BodyType = CBodyFaceLoad::Load3D;
using SolidThermal = Data::CBodyThermalLoad::ThermalType;

constexpr int kFaceCorners = 4;
constexpr int kBrickNodes = 8;
/// How far a point may lie off a solid or a face, in natural co-ordinates.
constexpr double kNaturalTolerance = 1e-6;
/// Index of the centre of face 0 among the natural points of a solid; further ones count down.
constexpr int kFirstFace = -10;

/// Whether a point has a natural co-ordinate in common with the centre of a face.
bool SharesFace(Vec3<double> const& face, Vec3<double> const& at) {
  auto const shares = [](double reference, double u) {
    return std::abs(reference) - 1 <= kNaturalTolerance &&
           std::abs(reference - u) <= kNaturalTolerance;
  };
  return shares(face.x, at.x) || shares(face.y, at.y) || shares(face.z, at.z);
}

/// Whether a solid has the nodes that its shape asks for, so that points in it have natural
/// co-ordinates.
bool HasSolidShape(Data::CElement const& element) {
  return element.Is3D() && element.NumTopo() == element.Shape().nodes;
}

bool IsFiniteBodyLoad(CBodyFaceLoad const& load) {
  return HasFiniteValues(load, load.TypeOf() == BodyType::PerCorner ? kFaceCorners : 1);
}

template <class Loads>
void MapFacePressure(CZelData const& model, Loads& loads, CBodyFaceLoad load, int parent, int sub) {
  int const face = load.Face();
  auto const frame = model.ElemDC(parent, EntAt::Ends, face);
  std::vector<Vec3<double>> corners;
  for (int const node : model.Elem(parent).FaceTopo(face))
    corners.push_back(frame.GtoL(model.NodeCoor(node)));
  if (static_cast<int>(corners.size()) != kFaceCorners) return;
  CornerFit const fit(corners);
  if (!fit.IsDetermined()) return;
  auto const coefficients =
      fit.Coefficients({load.Value(0), load.Value(1), load.Value(2), load.Value(3)});
  load.SetFace(face);
  int place = 0;
  for (auto const& at : LocalNodes(model, sub, kFaceCorners, frame))
    load.SetValue(place++, CornerFit::At(at, coefficients));
  if (HasFiniteValues(load, kFaceCorners)) loads.AppendOn(sub, load);
}

template <class Loads>
void MapNodeTemperatures(CZelData const& model, Loads& loads, Data::CBodyThermalLoad load,
                         int parent, int sub) {
  auto const frame = model.ElemDC(parent, EntAt::Ends, -1);
  CornerFit const fit(LocalNodes(model, parent, kBrickNodes, frame));
  std::vector<double> values;
  for (int i = 0; i < kBrickNodes; ++i) values.push_back(load.Value(i));
  auto const coefficients = fit.Coefficients(values);
  // The nodes beyond these keep the values of the parent.
  int const count = std::min(NumCorner(model.Elem(sub)), kBrickNodes);
  int place = 0;
  for (auto const& at : LocalNodes(model, sub, count, frame))
    load.SetValue(place++, CornerFit::At(at, coefficients));
  if (HasFiniteValues(load, kBrickNodes)) loads.AppendOn(sub, load);
}

}  // namespace

bool CDataMgr::FindRST(std::vector<Vec3<double>> nodes, Vec3<double> point,
                       Vec3<double>& rst) const {
  return Util::CShape(SpaceType::Solid, std::move(nodes)).FindRST(point, rst, kNaturalTolerance);
}

/// Whether the nodes of a piece that stand in the places of a face of its parent lie on that face.
bool CDataMgr::LiesOnFace(int parent, int sub, int face) const {
  auto const& solid = m_model.Elem(parent);
  int const count = solid.NumTopo();
  auto const& faces = solid.Shape().faces;
  if (!HasSolidShape(solid) || m_model.Elem(sub).NumTopo() < count) return false;
  if (face < 0 || static_cast<std::size_t>(face) >= faces.size()) return false;
  auto const frame = m_model.ElemDC(parent, EntAt::Ends, -1);
  auto const nodes = LocalNodes(m_model, parent, count, frame);
  auto const points = LocalNodes(m_model, sub, count, frame);
  auto const centre = Util::CShape::RST(count, kFirstFace - face);
  auto const& places = faces[static_cast<std::size_t>(face)];
  return std::all_of(places.begin(), places.end(), [&](int place) {
    if (place < 0) return true;  // behind the last corner of a triangle
    Vec3<double> at;
    return FindRST(nodes, points[static_cast<std::size_t>(place)], at) && SharesFace(centre, at);
  });
}

bool CDataMgr::Map3dFaceLoading(NumberLists const& pieces) const {
  return MapByPair<BodyFaceLoads>(
      m_model, pieces, [](int) { return true; },
      [&](auto& loads, int parent, int sub) { return Map3dFaceLoading(loads, parent, sub); });
}

bool CDataMgr::Map3dFaceLoading(int parent, int sub) const {
  return MapOfParent<BodyFaceLoads>(
      m_model, parent, [&](auto& loads) { return Map3dFaceLoading(loads, parent, sub); });
}

template <class Loads>
bool CDataMgr::Map3dFaceLoading(Loads& loads, int parent, int sub) const {
  bool all = !loads.IsOnIndirect(parent);
  auto const numbers = loads.On(parent);
  if (numbers.empty()) return all;
  bool const finite = HasFiniteNodes(m_model, parent) && HasFiniteNodes(m_model, sub);
  for (int const n : numbers) {
    auto const load = m_model.BodyFaceLoad(n);
    if (!finite || !IsFiniteBodyLoad(load)) {
      all = false;
      continue;
    }
    if (!LiesOnFace(parent, sub, load.Face())) continue;
    if (load.TypeOf() == BodyType::Uniform)
      loads.AddTo(n, sub);
    else if (load.TypeOf() == BodyType::PerCorner)
      MapFacePressure(m_model, loads, load, parent, sub);
  }
  return all;
}

void CDataMgr::UnMap3dFaceLoading(int parent) const {
  TakeElementOff<BodyFaceLoads>(m_model, parent);
}

bool CDataMgr::MapBodyThermalLoadLoading(NumberLists const& pieces) const {
  return MapByPair<BodyThermalLoads>(
      m_model, pieces, [](int) { return true; },
      [&](auto& loads, int parent, int sub) {
        return MapBodyThermalLoadLoading(loads, parent, sub);
      });
}

bool CDataMgr::MapBodyThermalLoadLoading(int parent, int sub) const {
  return MapOfParent<BodyThermalLoads>(
      m_model, parent, [&](auto& loads) { return MapBodyThermalLoadLoading(loads, parent, sub); });
}

template <class Loads>
bool CDataMgr::MapBodyThermalLoadLoading(Loads& loads, int parent, int sub) const {
  bool all = !loads.IsOnIndirect(parent);
  auto const numbers = loads.On(parent);
  if (numbers.empty()) return all;
  bool const finite = HasFiniteNodes(m_model, parent) && HasFiniteNodes(m_model, sub);
  for (int const n : numbers) {
    auto const load = m_model.BodyThermalLoad(n);
    bool const byNode = load.TypeOf() == SolidThermal::PerNode;
    if (!finite || !HasFiniteValues(load, byNode ? kBrickNodes : 1))
      all = false;
    else if (load.TypeOf() == SolidThermal::Uniform)
      loads.AddTo(n, sub);
    else if (byNode && m_model.Elem(parent).NumTopo() == kBrickNodes)
      MapNodeTemperatures(m_model, loads, load, parent, sub);  // the polynomial has eight terms
  }
  return all;
}

void CDataMgr::UnMapBodyThermalLoadLoading(int parent) const {
  TakeElementOff<BodyThermalLoads>(m_model, parent);
}

bool CDataMgr::Map3DLoading(NumberLists const& pieces) const {
  bool const faces = Map3dFaceLoading(pieces);
  bool const temperatures = MapBodyThermalLoadLoading(pieces);
  return faces && temperatures;
}

}  // namespace Tarvex
