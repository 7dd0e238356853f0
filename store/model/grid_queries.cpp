#include "store/model/grid_queries.h"

#include <algorithm>
#include <cmath>
#include <tuple>

#include "store/model/list_expansion.h"
#include "store/model/model_core.h"
#include "store/model/table_ops.h"
#include "store/numeric/element_frame.h"

namespace Tarvex {
namespace {

using Data::CAxis;
using Data::CGridPlane;

/// Numbers of the grid planes that are storeys, in the order of the storeys.
std::vector<int> StoreyPlanes(PagedTable<CGridPlane> const& planes) {
  // An elevation that is not a number has no place among the others: it comes last.
  using Key = std::tuple<bool, double, int>;
  std::vector<Key> keys;
  for (auto const& [n, plane] : planes) {
    if (!plane.IsStorey()) continue;
    bool const none = std::isnan(plane.Elevation());
    keys.emplace_back(none, none ? 0 : plane.Elevation(), static_cast<int>(n));
  }
  std::sort(keys.begin(), keys.end());
  std::vector<int> numbers;
  numbers.reserve(keys.size());
  for (auto const& key : keys) numbers.push_back(std::get<int>(key));
  return numbers;
}

std::vector<int> const& Storeys(ModelCore& core) {
  auto const revision = core.state.gridPlane.Revision();
  if (core.storeys.revision != revision)
    core.storeys = {revision, StoreyPlanes(core.state.gridPlane)};
  return core.storeys.planes;
}

/// The axis of a plane; null when plane or axis do not exist.
CAxis const* AxisOf(ModelState const& state, CGridPlane const* plane) {
  static CAxis const kGlobal;
  if (plane == nullptr) return nullptr;
  return plane->Axis() == 0 ? &kGlobal : state.axis.Find(plane->Axis());
}

/// The point of a plane on the z direction of its axis.
Vec3<double> OriginOf(CGridPlane const& plane, CAxis const& axis) {
  return axis.Origin() + axis.ZAxis() * plane.Elevation();
}

/// Calls test(node) for the nodes of an entity; whether there are some and all pass.
template <class Test>
bool AllNodes(CZelData const& model, SEntRef ref, Test&& test) {
  int found = 0;
  int const count = model.EntNumTopo(ref);
  for (int i = 0; i < count; ++i) {
    int const node = model.EntTopo(ref, i);
    if (node == 0) continue;
    if (!test(node)) return false;
    ++found;
  }
  return found > 0;
}

}  // namespace

int GridQueries::NumStorey() const { return static_cast<int>(Storeys(m_core).size()); }

int GridQueries::GridPlaneStorey(int storey) const {
  auto const& planes = Storeys(m_core);
  auto const at = static_cast<std::size_t>(storey) - 1;
  return storey >= 1 && at < planes.size() ? planes[at] : 0;
}

CGridPlane const& GridQueries::Storey(int storey) const {
  int const plane = GridPlaneStorey(storey);
  if (plane == 0) TableOps::ThrowMissing("Storey", storey);
  return TableOps::Get(m_core.state.gridPlane, "GridPlane", plane);
}

CString GridQueries::StoreyName(int storey) {
  CString name;
  name.Format(L"Storey %i", storey);
  return name;
}

int GridQueries::ConsGridRef() const { return m_core.state.spec.ConsGridRef(); }

CAxis GridQueries::GridPlaneGridAxis(int plane, int) const {
  auto const* record = m_core.state.gridPlane.Find(plane);
  auto const* axis = AxisOf(m_core.state, record);
  if (axis == nullptr) return {};
  auto moved = *axis;
  moved.SetOrigin(OriginOf(*record, *axis));
  return moved;
}

bool GridQueries::EntIsInGridPlane(SEntRef ref, int plane) const {
  auto const& state = m_core.state;
  auto const* record = state.gridPlane.Find(plane);
  auto const* axis = AxisOf(state, record);
  if (axis == nullptr) return false;
  auto const origin = OriginOf(*record, *axis);
  auto const normal = axis->ZAxis();
  double const tolerance = state.spec.GenTol(TolType::Coincidence);
  return AllNodes(m_model, ref, [&](int n) {
    auto const* node = state.node.Find(n);
    return node != nullptr && std::abs(Dot(node->Position() - origin, normal)) <= tolerance;
  });
}

bool GridQueries::ElemIsInGridPlane(int n, int plane) const {
  return EntIsInGridPlane({SelElement, n}, plane);
}

bool GridQueries::IsUsedIn(Data::CGridSurface const& surface, int node) const {
  auto const& users = m_model.Node(node).AttachedEnt(SelElement);
  return std::any_of(users.begin(), users.end(), [&](int n) {
    return Util::IsItemIncluded(surface.Elements(), {SelElement, n}, m_model);
  });
}

bool GridQueries::EntIsInGridSurface(SEntRef ref, int surface) const {
  auto const* record = m_core.state.gridSurface.Find(surface);
  if (record == nullptr || !EntIsInGridPlane(ref, record->Plane())) return false;
  if (ref.type == SelElement) return Util::IsItemIncluded(record->Elements(), ref, m_model);
  return AllNodes(m_model, ref, [&](int node) { return IsUsedIn(*record, node); });
}

bool GridQueries::NodeIsInGridSurface(int node, int surface) const {
  return EntIsInGridSurface({SelNode, node}, surface);
}

Vec3<double> GridQueries::PanelNormal(Data::CGridSurface const& surface, int panel) const {
  if (panel < 0 || panel >= surface._NumPanel()) return {};
  std::vector<Vec3<double>> points;
  for (int const n : surface.Panel(panel).Nodes()) {
    auto const* node = m_core.state.node.Find(n);
    if (node == nullptr) return {};
    points.push_back(node->Position());
  }
  return Unit(Util::PolygonNormal(points));
}

CAxis GridQueries::AlignmentAxis(int n) const {
  auto const& state = m_core.state;
  auto const* surface = state.gridSurface.Find(state.alignment.Find(n)->Surface());
  return surface == nullptr ? CAxis() : GridPlaneGridAxis(surface->Plane());
}

Util::CDirCos GridQueries::AlignmentDC(int n, double chainage) const {
  auto const* alignment = m_core.state.alignment.Find(n);
  if (alignment == nullptr) return {};
  auto frame = AlignmentAxis(n).Frame();
  frame.Rotate(Direction::Z, alignment->At(chainage).heading);
  return frame;
}

Vec3<double> GridQueries::AlignmentPoint(int n, double chainage) const {
  auto const* alignment = m_core.state.alignment.Find(n);
  if (alignment == nullptr) return {};
  auto const axis = AlignmentAxis(n);
  auto const point = alignment->At(chainage).point;
  return axis.Origin() + axis.Frame().LtoG({point.x, point.y, 0});
}

}  // namespace Tarvex
