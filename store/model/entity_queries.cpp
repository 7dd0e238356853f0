#include "store/model/entity_queries.h"

#include <array>
#include <optional>

#include "store/model/model_core.h"
#include "store/numeric/element_frame.h"

namespace Tarvex {
namespace {

using Data::CElement;
using Util::CDirCos;

/// Topology of the element, panel or node of a reference; empty when it does not exist.
std::span<int const> TopologyOf(ModelState const& state, SEntRef const& ref) {
  if (ref.type == SelElement) {
    if (auto const* element = state.elem.Find(ref.num)) return element->Topology();
    if (auto const* panel = state.panel.Find(ref.num)) return panel->Topology();
  }
  if (ref.type == SelNode && state.node.Exist(ref.num)) return {&ref.num, 1};
  return {};
}

std::optional<Vec3<double>> Position(ModelState const& state, int node) {
  auto const* record = state.node.Find(node);
  return record == nullptr ? std::nullopt : std::optional(record->Position());
}

/// Positions of nodes, empty when one of them does not exist; up to eight cost no allocation.
class Points : public boost::container::small_vector<Vec3<double>, 8> {
 public:
  Points(ModelState const& state, std::span<int const> nodes) {
    for (int const node : nodes) {
      auto const p = Position(state, node);
      if (!p) {
        clear();
        return;
      }
      push_back(*p);
    }
  }
  Points(Points const&) = delete;
  Points& operator=(Points const&) = delete;

  operator std::span<Vec3<double> const>() const { return {data(), size()}; }  // NOLINT: a view
};

/// The corners of an element or panel; all nodes where the shape does not tell.
std::span<int const> Corners(std::span<int const> nodes, CElement const* element) {
  if (element == nullptr || element->Shape().dimension == 0) return nodes;
  return nodes.first(std::min(nodes.size(), static_cast<std::size_t>(element->Shape().corners)));
}

Points CornerPoints(ModelState const& state, int n) {
  auto const nodes = TopologyOf(state, {SelElement, n});
  return Points(state, Corners(nodes, state.elem.Find(n)));
}

CDirCos LineFrameOf(ModelState const& state, CElement const& element) {
  Points const ends(state, Corners(element.Topology(), &element));
  if (ends.size() != 2) return {};
  std::optional<Vec3<double>> orientation;
  if (element.OrientationNode() != 0) orientation = Position(state, element.OrientationNode());
  return Util::LineFrame(ends[0], ends[1], orientation, element.OrientationAngle(),
                         state.spec.GenTol(TolType::Vertical));
}

CDirCos SolidFrameOf(ModelState const& state, CElement const& element, int face) {
  if (face >= 0) return Util::PlateFrame(Points(state, element.FaceTopo(face)), 0);
  auto const& nodes = element.Topology();
  if (nodes.size() < static_cast<std::size_t>(element.Shape().corners)) return {};
  // The near face is listed about its outward normal: its second entry is its last node.
  int const last = element.Shape().faces[0][1];
  Points const points(state, std::array{nodes[0], nodes[1], element.Topo(last)});
  if (points.empty()) return {};
  return {points[1] - points[0], points[2] - points[0]};
}

}  // namespace

CDirCos EntityQueries::ElemDC(int n, EntAt, int face) const {
  auto const& state = m_core.state;
  if (auto const* panel = state.panel.Find(n))
    return Util::PlateFrame(CornerPoints(state, n), panel->OrientationAngle());
  auto const* element = state.elem.Find(n);
  if (element == nullptr) return {};
  if (element->Is1D()) return LineFrameOf(state, *element);
  if (element->Is2D()) return Util::PlateFrame(CornerPoints(state, n), element->OrientationAngle());
  return element->Is3D() ? SolidFrameOf(state, *element, face) : CDirCos();
}

Vec3<double> EntityQueries::Normal(int n, int, EntAt) const {
  if (!EntIs2D({SelElement, n})) return {};
  return Unit(Util::PolygonNormal(CornerPoints(m_core.state, n)));
}

double EntityQueries::ElemLen(int n, EntAt at) const {
  if (!EntIs1D({SelElement, n})) return 0;
  auto const ends = CornerPoints(m_core.state, n);
  if (ends.size() != 2) return 0;
  double const length = Tarvex::Length(ends[1] - ends[0]);
  if (at == EntAt::Nodes) return length;
  auto const& offset = m_core.state.elem.Find(n)->Offset();
  return std::abs(length - offset.X1() - offset.X2());
}

Vec3<double> EntityQueries::Coor(int n, int place, EntAt at) const {
  auto const& state = m_core.state;
  auto const p = Position(state, EntTopo({SelElement, n}, place));
  if (!p) return {};
  auto const* element = state.elem.Find(n);
  bool const offsets = element != nullptr && (element->Is1D() || element->Is2D());
  if (at == EntAt::Nodes || !offsets) return *p;
  auto const& offset = element->Offset();
  // The ends of a line are offset in three directions, a plate along its normal only.
  auto const local =
      element->Is1D() ? offset.Vector(place == 0 ? 0 : 1) : Vec3<double>{0, 0, offset.Z()};
  return *p + ElemDC(n).LtoG(local);
}

bool EntityQueries::ElemIsVertical(int n, EntAt) const {
  if (!EntIs1D({SelElement, n})) return false;
  auto const ends = CornerPoints(m_core.state, n);
  return ends.size() == 2 &&
         IsVertical(ends[1] - ends[0], m_core.state.spec.GenTol(TolType::Vertical));
}

bool EntityQueries::ElemIsHorizontal(int n) const {
  double const tolerance = m_core.state.spec.GenTol(TolType::Vertical);
  if (EntIs2D({SelElement, n})) return IsVertical(Normal(n), tolerance);
  if (!EntIs1D({SelElement, n})) return false;
  auto const ends = CornerPoints(m_core.state, n);
  return ends.size() == 2 && IsHorizontal(ends[1] - ends[0], tolerance);
}

int EntityQueries::EntNumTopo(SEntRef ref) const {
  return static_cast<int>(TopologyOf(m_core.state, ref).size());
}

int EntityQueries::EntTopo(SEntRef ref, int place, CElement::EntBy) const {
  auto const nodes = TopologyOf(m_core.state, ref);
  auto const at = static_cast<std::size_t>(place);
  return at < nodes.size() ? nodes[at] : 0;
}

bool EntityQueries::EntIs1D(SEntRef ref) const {
  auto const* element = ref.type == SelElement ? m_core.state.elem.Find(ref.num) : nullptr;
  return element != nullptr && element->Is1D();
}

bool EntityQueries::EntIs2D(SEntRef ref) const {
  if (ref.type != SelElement) return false;
  if (m_core.state.panel.Exist(ref.num)) return true;
  auto const* element = m_core.state.elem.Find(ref.num);
  return element != nullptr && element->Is2D();
}

Vec3<double> EntityQueries::EntCentre(SEntRef ref) const {
  Vec3<double> sum;
  int count = 0;
  for (int const node : TopologyOf(m_core.state, ref)) {
    auto const p = Position(m_core.state, node);
    if (!p) continue;
    sum += *p;
    ++count;
  }
  return count == 0 ? sum : sum / static_cast<double>(count);
}

}  // namespace Tarvex
