#include "store/model/entity_geometry.h"

#include <algorithm>

#include "store/geometry/circle.h"
#include "store/numeric/element_frame.h"

namespace Tarvex::EntityGeometry {
namespace {

using Data::CElement;
using Data::CMember;
using Data::TopoVector;
using Util::CDirCos;

CElement const* ElementOf(ModelState const& state, SEntRef const& ref) {
  return ref.type == SelElement ? state.elem.Find(ref.num) : nullptr;
}

Data::LoadPanel const* PanelOf(ModelState const& state, SEntRef const& ref) {
  return ref.type == SelElement ? state.panel.Find(ref.num) : nullptr;
}

CMember const* MemberOf(ModelState const& state, SEntRef const& ref) {
  return ref.type == SelMember ? state.member.Find(ref.num) : nullptr;
}

/// The corners of an element; all nodes where the shape does not tell.
std::span<int const> CornersOf(CElement const& element) {
  std::span<int const> const nodes = element.Topology();
  if (element.Shape().dimension == 0) return nodes;
  return nodes.first(std::min(nodes.size(), static_cast<std::size_t>(element.Shape().corners)));
}

CDirCos LineFrameOf(ModelState const& state, LineEnds const& ends,
                    std::optional<Vec3<double>> const& orientation, double angle) {
  return Util::LineFrame(ends[0], ends[1], orientation, angle,
                         state.spec.GenTol(TolType::Vertical));
}

std::optional<Vec3<double>> OrientationPoint(ModelState const& state, int node) {
  return node == 0 ? std::nullopt : Position(state, node);
}

CDirCos SolidFrameOf(ModelState const& state, CElement const& element) {
  auto const& nodes = element.Topology();
  if (nodes.size() < static_cast<std::size_t>(element.Shape().corners)) return {};
  // The near face is listed about its outward normal: its second entry is its last node.
  int const last = element.Shape().faces[0][1];
  Points const points(state, std::array{nodes[0], nodes[1], element.Topo(last)});
  if (points.empty()) return {};
  return {points[1] - points[0], points[2] - points[0]};
}

/// A point in the plane of an arc, on the side of its centre: the centre, but for half a circle,
/// whose centre lies on the chord.
Vec3<double> OffChord(ModelState const& state, CMember const& member, Vec3<double> const& centre) {
  Points const points(state, member.Topo().Nodes());
  auto const chord = Unit(points.back() - points.front());
  auto const across = Cross(chord, centre - points.front());
  bool const half = Length(across) < kZeroLength && points.size() == 3;
  return half ? centre * 2.0 - points[1] : centre;
}

/// The point that the xy plane of a 1D member goes through: by its arc or its orientation node.
std::optional<Vec3<double>> OrientationOf(ModelState const& state, CMember const& member) {
  auto const centre = ArcCentre(state, member);
  return centre ? OffChord(state, member, *centre)
                : OrientationPoint(state, member.OrientationNode());
}

std::optional<LineEnds> EndsOf(ModelState const& state, int first, int last) {
  Points const ends(state, std::array{first, last});
  if (ends.empty()) return std::nullopt;
  return LineEnds{ends[0], ends[1]};
}

LineEnds Shifted(LineEnds const& ends, LineEnds const& shift) {
  return {ends[0] + shift[0], ends[1] + shift[1]};
}

CDirCos FrameOf(ModelState const& state, CElement const& element, LineEnds const& shift) {
  if (element.Is1D()) {
    auto const ends = EndsOf(state, element.Topo(0), element.Topo(1));
    if (!ends) return {};
    return LineFrameOf(state, Shifted(*ends, shift),
                       OrientationPoint(state, element.OrientationNode()),
                       element.OrientationAngle());
  }
  if (element.Is2D())
    return Util::PlateFrame(Points(state, CornersOf(element)), element.OrientationAngle());
  return element.Is3D() ? SolidFrameOf(state, element) : CDirCos();
}

bool HaveAPlane(Vec3<double> const& a, Vec3<double> const& b) {
  return Length(Cross(Unit(a), Unit(b))) > kZeroLength;
}

double PathLength(std::span<Vec3<double> const> points) {
  double length = 0;
  for (std::size_t i = 1; i < points.size(); ++i) length += Length(points[i] - points[i - 1]);
  return length;
}

/// Angle from one arm to another, from 0 to pi, that keeps its digits for small and flat angles (W.
/// Kahan: twice the arc tangent of the half angle).
double AngleBetween(Vec3<double> const& a, Vec3<double> const& b) {
  auto const u = Unit(a);
  auto const v = Unit(b);
  return 2 * std::atan2(Length(u - v), Length(u + v));
}

/// Length of an arc from its start (through its middle where it has one) to its end.
double ArcLength(std::span<Vec3<double> const> points, Vec3<double> const& centre) {
  auto const first = points.front() - centre;
  auto const last = points.back() - centre;
  double angle = AngleBetween(first, last);
  if (points.size() == 3) {
    auto const middle = points[1] - centre;
    // The arms turn to the middle and on to the end; past half a circle the short way is wrong.
    bool const longWay = Dot(Cross(first, middle), Cross(first, last)) < 0 ||
                         Dot(Cross(middle, last), Cross(first, last)) < 0;
    if (longWay) angle = 2 * kPi - angle;
  }
  return angle * Length(first);
}

}  // namespace

Topology::Topology(ModelState const& state, SEntRef const& ref) {
  if (auto const* element = ElementOf(state, ref)) {
    m_nodes = element->Topology();
  } else if (auto const* panel = PanelOf(state, ref)) {
    m_nodes = panel->Topology();
  } else if (auto const* member = MemberOf(state, ref)) {
    m_own = member->Topo().Nodes();
    m_nodes = m_own;
  } else if (ref.type == SelNode && state.node.Exist(ref.num)) {
    m_single = ref.num;
    m_nodes = {&m_single, 1};
  }
}

Points::Points(ModelState const& state, std::span<int const> nodes) {
  for (int const node : nodes) {
    auto const p = Position(state, node);
    if (!p) {
      clear();
      return;
    }
    push_back(*p);
  }
}

std::optional<Vec3<double>> Position(ModelState const& state, int node) {
  auto const* record = state.node.Find(node);
  return record == nullptr ? std::nullopt : std::optional(record->Position());
}

int Dimension(ModelState const& state, SEntRef const& ref) {
  if (auto const* element = ElementOf(state, ref)) return element->Shape().dimension;
  if (PanelOf(state, ref) != nullptr) return 2;
  auto const* member = MemberOf(state, ref);
  return member == nullptr ? 0 : member->Dimension();
}

std::optional<LineEnds> Ends(ModelState const& state, SEntRef const& ref) {
  if (Dimension(state, ref) != 1) return std::nullopt;
  Topology const topology(state, ref);
  int const last = ref.type == SelElement ? 1 : topology.Count() - 1;
  return last < 1 ? std::nullopt : EndsOf(state, topology.At(0), topology.At(last));
}

TopoVector Outline(ModelState const& state, SEntRef const& ref) {
  if (auto const* member = MemberOf(state, ref)) return member->Topo().Outline();
  if (auto const* element = ElementOf(state, ref)) {
    auto const corners = CornersOf(*element);
    return {corners.begin(), corners.end()};
  }
  auto const* panel = PanelOf(state, ref);
  return panel == nullptr ? TopoVector() : panel->Topology();
}

CDirCos Frame(ModelState const& state, SEntRef const& ref, LineEnds const& shift) {
  if (auto const* element = ElementOf(state, ref)) return FrameOf(state, *element, shift);
  if (auto const* panel = PanelOf(state, ref))
    return Util::PlateFrame(Points(state, panel->Topology()), panel->OrientationAngle());
  auto const* member = MemberOf(state, ref);
  return member == nullptr ? CDirCos() : FrameOf(state, *member, shift);
}

CDirCos FrameOf(ModelState const& state, CMember const& member, LineEnds const& shift) {
  if (member.Is2D())
    return Util::PlateFrame(Points(state, member.Topo().Outline()), member.OrientationAngle());
  int const count = member.NumTopo();
  auto const ends = member.Is1D() && count > 1
                        ? EndsOf(state, member.Topo(0), member.Topo(count - 1))
                        : std::nullopt;
  if (!ends) return {};
  return LineFrameOf(state, Shifted(*ends, shift), OrientationOf(state, member),
                     member.OrientationAngle());
}

double LengthAtNodes(ModelState const& state, SEntRef const& ref) {
  if (Dimension(state, ref) != 1) return 0;
  auto const* member = MemberOf(state, ref);
  if (member == nullptr) {
    auto const ends = Ends(state, ref);
    return ends ? Length((*ends)[1] - (*ends)[0]) : 0;
  }
  Points const points(state, Topology(state, ref).Nodes());
  if (points.size() < 2) return 0;
  auto const centre = ArcCentre(state, *member);
  return centre ? ArcLength(points, *centre) : PathLength(points);
}

Data::COffset const* Offset(ModelState const& state, SEntRef const& ref) {
  if (auto const* element = ElementOf(state, ref)) return &element->Offset();
  auto const* member = MemberOf(state, ref);
  return member == nullptr ? nullptr : &member->Offset();
}

std::optional<Vec3<double>> ArcCentre(ModelState const& state, CMember const& member) {
  auto const geometry = member.Geometry();
  Points const points(state, member.Topo().Nodes());
  if (geometry == MembGeom::Line || points.empty()) return std::nullopt;
  if (geometry == MembGeom::ArcAbout) {
    auto const about = OrientationPoint(state, member.OrientationNode());
    bool const arms = about && HaveAPlane(points[0] - *about, points[1] - *about);
    return arms ? about : std::nullopt;
  }
  Vec3<double> centre;
  bool const found = Tarvex::ArcCentre(points[0], points[2], points[1], centre);
  return found ? std::optional(centre) : std::nullopt;
}

}  // namespace Tarvex::EntityGeometry
