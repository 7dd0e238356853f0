#include "store/model/entity_queries.h"

#include "store/geometry/integration.h"
#include "store/model/entity_geometry.h"
#include "store/model/member_topology.h"
#include "store/numeric/element_frame.h"
#include "store/record/property_type.h"

namespace Tarvex {

namespace Geometry = EntityGeometry;
using Data::CElement;
using Util::CDirCos;

CDirCos EntityQueries::EntDC(SEntRef ref, Vec3<double> const& shift0,
                             Vec3<double> const& shift1) const {
  return Geometry::Frame(m_core.state, ref, {shift0, shift1});
}

CDirCos EntityQueries::ElemDC(int n, EntAt, int face) const {
  auto const* element = m_core.state.elem.Find(n);
  if (face < 0 || element == nullptr || !element->Is3D()) return EntDC({SelElement, n});
  return Util::PlateFrame(Geometry::Points(m_core.state, element->FaceTopo(face)), 0);
}

CDirCos EntityQueries::MemberDC(int n, EntAt, Vec3<double> const& shift0,
                                Vec3<double> const& shift1) const {
  return EntDC({SelMember, n}, shift0, shift1);
}

Vec3<double> EntityQueries::Normal(int n, int, EntAt) const {
  SEntRef const ref{SelElement, n};
  if (!EntIs2D(ref)) return {};
  Geometry::Points const outline(m_core.state, Geometry::Outline(m_core.state, ref));
  return Unit(Util::PolygonNormal(outline));
}

double EntityQueries::EntLen(SEntRef ref, EntAt at) const {
  double const length = Geometry::LengthAtNodes(m_core.state, ref);
  auto const* offset = Geometry::Offset(m_core.state, ref);
  if (length == 0 || at == EntAt::Nodes || offset == nullptr) return length;
  return std::abs(length - offset->X1() - offset->X2());
}

double EntityQueries::ElemArea(int n) const {
  SEntRef const ref{SelElement, n};
  if (!EntIs2D(ref)) return 0;
  Geometry::Topology const topology(m_core.state, ref);
  Geometry::Points const points(m_core.state, topology.Nodes());
  bool const shaped = m_core.state.elem.Exist(n);
  return shaped ? Util::ExtentOf(SpaceType::Surface, points).size
                : Length(Util::PolygonNormal(points)) / 2;
}

Vec3<double> EntityQueries::EntCoor(SEntRef ref, int place, EntAt at, CElement::EntBy) const {
  auto const& state = m_core.state;
  auto const p = Geometry::Position(state, EntTopo(ref, place));
  if (!p) return {};
  auto const* offset = Geometry::Offset(state, ref);
  if (at == EntAt::Nodes || offset == nullptr) return *p;
  int const dimension = Geometry::Dimension(state, ref);
  if (dimension == 2) return *p + EntOffset(ref, 0);
  if (dimension != 1) return *p;
  if (place == 0 || place == EntNumTopo(ref) - 1) return *p + EntOffset(ref, place == 0 ? 0 : 1);
  return *p + EntDC(ref).LtoG({0, offset->Y(), offset->Z()});  // a node that a line passes
}

Vec3<double> EntityQueries::EntCentre(SEntRef ref) const {
  Vec3<double> sum;
  int count = 0;
  Geometry::Topology const topology(m_core.state, ref);
  for (int const node : topology.Nodes()) {
    auto const p = Geometry::Position(m_core.state, node);
    if (!p) continue;
    sum += *p;
    ++count;
  }
  return count == 0 ? sum : sum / static_cast<double>(count);
}

Util::CBox3D EntityQueries::EntExtents(SEntRef ref, EntAt at) const {
  Util::CBox3D box;
  for (int place = 0; place < EntNumTopo(ref); ++place)
    if (m_core.state.node.Exist(EntTopo(ref, place))) box.AddPoint(EntCoor(ref, place, at));
  return box;
}

bool EntityQueries::EntIsVertical(SEntRef ref) const {
  auto const ends = Geometry::Ends(m_core.state, ref);
  return ends && IsVertical((*ends)[1] - (*ends)[0], m_core.state.spec.GenTol(TolType::Vertical));
}

bool EntityQueries::ElemIsVertical(int n, EntAt) const { return EntIsVertical({SelElement, n}); }
bool EntityQueries::MemberIsVertical(int n, EntAt) const { return EntIsVertical({SelMember, n}); }

bool EntityQueries::IsLevel(SEntRef ref) const {
  double const tolerance = m_core.state.spec.GenTol(TolType::Vertical);
  if (EntIs2D(ref)) {
    Geometry::Points const outline(m_core.state, Geometry::Outline(m_core.state, ref));
    return IsVertical(Util::PolygonNormal(outline), tolerance);
  }
  auto const ends = Geometry::Ends(m_core.state, ref);
  return ends && IsHorizontal((*ends)[1] - (*ends)[0], tolerance);
}

bool EntityQueries::ElemIsHorizontal(int n) const { return IsLevel({SelElement, n}); }
bool EntityQueries::MemberIsHorizontal(int n) const { return IsLevel({SelMember, n}); }

int EntityQueries::EntNumTopo(SEntRef ref) const {
  return Geometry::Topology(m_core.state, ref).Count();
}

int EntityQueries::EntTopo(SEntRef ref, int place, CElement::EntBy) const {
  return Geometry::Topology(m_core.state, ref).At(place);
}

bool EntityQueries::EntIs1D(SEntRef ref) const {
  return Geometry::Dimension(m_core.state, ref) == 1;
}

bool EntityQueries::EntIs2D(SEntRef ref) const {
  return Geometry::Dimension(m_core.state, ref) == 2;
}

bool EntityQueries::EntIsSection(SEntRef ref) const {
  if (ref.type == SelElement) {
    auto const* element = m_core.state.elem.Find(ref.num);
    return element != nullptr && element->IsSection();
  }
  auto const* member = ref.type == SelMember ? m_core.state.member.Find(ref.num) : nullptr;
  return member != nullptr && member->IsSection();
}

bool EntityQueries::EntIsOffset(SEntRef ref) const {
  auto const* offset = Geometry::Offset(m_core.state, ref);
  return offset != nullptr && offset->IsOffset();
}

Data::COffset EntityQueries::EntOffset(SEntRef ref) const {
  auto const* offset = Geometry::Offset(m_core.state, ref);
  return offset == nullptr ? Data::COffset() : *offset;
}

Vec3<double> EntityQueries::EntOffset(SEntRef ref, int end) const {
  auto const* offset = Geometry::Offset(m_core.state, ref);
  int const dimension = Geometry::Dimension(m_core.state, ref);
  if (offset == nullptr || (dimension != 1 && dimension != 2)) return {};
  // The ends of a line are offset in three directions, a plate along its normal only.
  auto const local = dimension == 1 ? offset->Vector(end) : Vec3<double>{0, 0, offset->Z()};
  return EntDC(ref).LtoG(local);
}

int EntityQueries::EntProperty(SEntRef ref, int stage) const {
  auto const& state = m_core.state;
  auto const staged = [&](CModule::ModuleId table, int property) {
    return m_core.stageProperties.Property(state, PropertyTypeOf(table), property, stage);
  };
  if (ref.type == SelElement) {
    if (auto const* element = state.elem.Find(ref.num))
      return staged(element->Shape().property, element->Property());
    if (auto const* panel = state.panel.Find(ref.num))
      return staged(CModule::Prop2D, panel->Property());
  }
  auto const* member = ref.type == SelMember ? state.member.Find(ref.num) : nullptr;
  return member == nullptr ? 0 : staged(member->PropertyTable(), member->Property());
}

int EntityQueries::ElemMember(int n) const {
  if (auto const* element = m_core.state.elem.Find(n)) return element->ParentMember().member;
  auto const* panel = m_core.state.panel.Find(n);
  return panel == nullptr ? 0 : panel->ParentMember().member;
}

bool EntityQueries::IsMemberTopoValid(Data::CMember const& member) const {
  return MemberTopology::IsValid(m_core.state, member);
}

}  // namespace Tarvex
