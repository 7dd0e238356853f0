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

void MapFacePressure(CZelData& model, CBodyFaceLoad load, int parent, int sub) {
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
  if (HasFiniteValues(load, kFaceCorners)) BodyFaceLoads::AppendOn(model, sub, load);
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
  return MapByPair(
      m_model, pieces, [](int, Numbers const&) { return true; },
      [&](int parent, int sub) { return Map3dFaceLoading(parent, sub); },
      [&](int parent) { UnMap3dFaceLoading(parent); });
}

bool CDataMgr::Map3dFaceLoading(int parent, int sub) const {
  bool const finite = HasFiniteNodes(m_model, parent) && HasFiniteNodes(m_model, sub);
  bool all = true;
  int const highest = m_model.HighestBodyFaceLoad();
  for (int n = 1; n <= highest; ++n) {
    if (!BodyFaceLoads::IsOn(m_model, n, parent)) continue;
    auto const load = m_model.BodyFaceLoad(n);
    if (IsIndirectList(load.LoadedEntities()) || !finite || !IsFiniteBodyLoad(load)) {
      all = false;
      continue;
    }
    if (!LiesOnFace(parent, sub, load.Face())) continue;
    if (load.TypeOf() == BodyType::Uniform)
      BodyFaceLoads::AddTo(m_model, n, sub);
    else if (load.TypeOf() == BodyType::PerCorner)
      MapFacePressure(m_model, load, parent, sub);
  }
  return all;
}

void CDataMgr::UnMap3dFaceLoading(int parent) const {
  TakeElementOff<BodyFaceLoads>(m_model, parent,
                                [&](auto const& list) { return IsIndirectList(list); });
}

bool CDataMgr::MapBodyThermalLoadLoading(NumberLists const& pieces) const {
  return MapByPair(
      m_model, pieces, [](int, Numbers const&) { return true; },
      [&](int parent, int sub) { return MapBodyThermalLoadLoading(parent, sub); },
      [&](int parent) { UnMapBodyThermalLoadLoading(parent); });
}

bool CDataMgr::MapBodyThermalLoadLoading(int parent, int sub) const {
  bool const finite = HasFiniteNodes(m_model, parent) && HasFiniteNodes(m_model, sub);
  bool all = true;
  int const highest = m_model.HighestBodyThermalLoad();
  for (int n = 1; n <= highest; ++n) {
    if (!BodyThermalLoads::IsOn(m_model, n, parent)) continue;
    auto const load = m_model.BodyThermalLoad(n);
    bool const byNode = load.TypeOf() == SolidThermal::PerNode;
    if (IsIndirectList(load.LoadedEntities()) || !finite ||
        !HasFiniteValues(load, byNode ? kBrickNodes : 1))
      all = false;
    else if (load.TypeOf() == SolidThermal::Uniform)
      BodyThermalLoads::AddTo(m_model, n, sub);
    else if (byNode && m_model.Elem(parent).NumTopo() == kBrickNodes)
      MapNodeTemperatures(load, parent, sub);  // the polynomial has eight terms
  }
  return all;
}

void CDataMgr::MapNodeTemperatures(Data::CBodyThermalLoad load, int parent, int sub) const {
  auto const frame = m_model.ElemDC(parent, EntAt::Ends, -1);
  CornerFit const fit(LocalNodes(m_model, parent, kBrickNodes, frame));
  std::vector<double> values;
  for (int i = 0; i < kBrickNodes; ++i) values.push_back(load.Value(i));
  auto const coefficients = fit.Coefficients(values);
  // The nodes beyond these keep the values of the parent.
  int const count = std::min(NumCorner(m_model.Elem(sub)), kBrickNodes);
  int place = 0;
  for (auto const& at : LocalNodes(m_model, sub, count, frame))
    load.SetValue(place++, CornerFit::At(at, coefficients));
  if (HasFiniteValues(load, kBrickNodes)) BodyThermalLoads::AppendOn(m_model, sub, load);
}

void CDataMgr::UnMapBodyThermalLoadLoading(int parent) const {
  TakeElementOff<BodyThermalLoads>(m_model, parent,
                                   [&](auto const& list) { return IsIndirectList(list); });
}

bool CDataMgr::Map3DLoading(NumberLists const& pieces) const {
  bool const faces = Map3dFaceLoading(pieces);
  bool const temperatures = MapBodyThermalLoadLoading(pieces);
  return faces && temperatures;
}

}  // namespace Tarvex
