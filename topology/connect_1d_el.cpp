#include <algorithm>
#include <cmath>
#include <stdexcept>

#include "store/geometry/axis_trans.h"
#include "store/geometry/line.h"
#include "store/geometry/rounding.h"
#include "store/model/get_node_at.h"
#include "store/model/zel_data.h"
#include "store/record/node.h"
#include "tarvex/split_connect.h"
#include "topology/perimeter.h"

namespace Tarvex {
namespace {

/// Significant digits that the co-ordinates of a meeting are rounded to.
constexpr int kMeetingDigits = 15;

/// The zones at the ends of a line that its rigid offsets take, along it.
struct EndZones {
  double start = 0;  ///< above 0
  double end = 0;    ///< below 0, from the end
};

EndZones ZonesOf(CZelData const& model, SEntRef ref, Vec3<double> const& a, Vec3<double> const& b) {
  if (!model.EntIsOffset(ref)) return {};
  auto const chord = b - a;
  auto const x = Length(chord) < kZeroLength ? Vec3<double>{1, 0, 0} : Unit(chord);
  return {std::max(0.0, Dot(model.EntOffset(ref, 0), x)),
          std::min(0.0, Dot(model.EntOffset(ref, 1), x))};
}

}  // namespace

/// A side of a plate or a 1D entity between two nodes.
struct CConnect1dEl::Line {
  int entity = 0;
  int a = 0;
  int b = 0;
  Data::CLine3 line{{}, {}};
  double length = 0;
  EndZones zones;

  bool Has(int node) const { return node == a || node == b; }
};

CConnect1dEl::CConnect1dEl(CZelData& model) : m_model(model) {}
CConnect1dEl::CConnect1dEl(CConnect1dEl const&) = default;
CConnect1dEl::CConnect1dEl(CConnect1dEl&&) noexcept = default;
CConnect1dEl::~CConnect1dEl() = default;

bool CConnect1dEl::CanBeFirst(int entity) const {
  if (m_entType == SelMember) return m_model.MemberExist(entity);
  if (!m_model.ElemExist(entity)) return false;
  auto const& element = m_model.Elem(entity);
  return element.Is1D() || element.Is2D();
}

bool CConnect1dEl::CanBeSecond(int entity) const {
  if (m_entType != SelElement) return m_model.EntExist({m_entType, entity});
  return m_model.ElemExist(entity) && m_model.Elem(entity).Is1D();
}

bool CConnect1dEl::Do() {
  m_allLoadsMapped = true;
  m_someSplitsSkipped = false;
  m_changed = false;
  m_highest = m_set.HighestItem();
  m_model.FlagRebuild();
  m_model.rebuildHold = true;
  for (int i = std::max(m_set.LowestItem(), 1); i <= m_highest; ++i) {
    if (!m_set.IsItemIncluded(i) || !CanBeFirst(i)) continue;
    SEntRef const ref(m_entType, i);
    bool const plate = m_model.EntIs2D(ref);
    int const sides = plate ? m_model.EntNumTopo(ref) : 1;
    for (int side = 0; side < sides; ++side)
      if (!ConnectSide(i, plate, side)) break;
  }
  m_model.rebuildHold = false;
  return m_changed;
}

bool CConnect1dEl::LineOf(int entity, int side, bool zones, Line& line) const {
  line.entity = entity;
  line.a = Topo(entity, side);
  line.b = Topo(entity, side + 1);
  if (!m_model.NodeExist(line.a) || !m_model.NodeExist(line.b)) return false;
  line.line = {m_model.NodeCoor(line.a), m_model.NodeCoor(line.b)};
  line.length = line.line.Length();
  if (zones) line.zones = ZonesOf(m_model, {m_entType, entity}, line.line.Start(), line.line.End());
  return true;
}

bool CConnect1dEl::ConnectSide(int entity, bool plate, int side) {
  Line first;
  if (!LineOf(entity, side, !plate, first)) return true;
  for (int j = m_set.LowestItem(); j <= m_highest; ++j) {
    if (j == entity || !m_set.IsItemIncluded(j) || !CanBeSecond(j)) continue;
    Line second;
    if (!LineOf(j, 0, true, second)) continue;
    if (!plate && (second.Has(first.a) || second.Has(first.b))) continue;
    // The meetings before this one may have moved the nodes.
    first.line = {m_model.NodeCoor(first.a), m_model.NodeCoor(first.b)};
    first.length = first.line.Length();
    if (first.length < m_endTol || second.length < m_endTol) continue;
    if (plate)
      TouchCorner(first.a, second);
    else if (!Cross(first, second))
      return false;
  }
  return true;
}

bool CConnect1dEl::Cross(Line const& first, Line const& second) {
  double r1 = 0;
  double r2 = 0;
  double distance = 0;
  if (!first.line.Intersect(second.line, r1, r2, distance) || !(distance < m_connectionTol))
    return true;
  double const p1 = r1 * first.length;
  double const p2 = r2 * second.length;
  double const t = m_endTol;
  bool const within = -t < p1 && p1 < first.length + t && -t < p2 && p2 < second.length + t;
  if (!within) return true;
  auto const isRigid = [t](Line const& line, double p) {
    return (line.zones.start != 0 && p < t + line.zones.start) ||
           (line.zones.end != 0 && p > line.length + line.zones.end - t);
  };
  if (isRigid(first, p1) || isRigid(second, p2)) {
    m_someSplitsSkipped = true;
    return true;
  }
  int const node = MeetingNode(first, second, r1, r2);
  m_changed = true;
  if (!second.Has(node)) Grow(DoSplit(node, second.entity, second.length, r2, p2));
  if (first.Has(node)) return true;
  int const highest = DoSplit(node, first.entity, first.length, r1, p1);
  Grow(highest);
  return highest == 0;
}

int CConnect1dEl::MeetingNode(Line const& first, Line const& second, double r1, double r2) {
  auto const endNear = [&](Line const& line, double r) {
    double const p = r * line.length;
    if (std::abs(p) < m_endTol) return line.a;
    return std::abs(p - line.length) < m_endTol ? line.b : 0;
  };
  auto const at = first.line.Point(r1);
  if (int const node = endNear(first, r1); node >= 1) {
    SetCoor(node, at);
    return node;
  }
  if (int const node = endNear(second, r2); node >= 1) {
    SetCoor(node, second.line.Point(r2));
    return node;
  }
  return ZelUtil::GetNodeAt(m_model, Round(at, kMeetingDigits),
                            m_useCoincidenceTol ? m_coincidenceTol : 0.0, CString(L""));
}

void CConnect1dEl::TouchCorner(int corner, Line const& line) {
  if (line.Has(corner)) return;
  Util::CAxisTrans along;
  along.Assign(m_model.EntDC({m_entType, line.entity}), line.line.Start());
  auto const at = along.Global2User(m_model.NodeCoor(corner));
  if (!(0 < at.x && at.x < line.length) || !(std::hypot(at.y, at.z) < m_connectionTol)) return;
  if (at.x < m_endTol + line.zones.start || at.x > line.zones.end + line.length - m_endTol) {
    m_someSplitsSkipped = true;
    return;
  }
  Grow(DoSplit(corner, line.entity, line.length, at.x / line.length, at.x));
  m_changed = true;
}

void CConnect1dEl::Grow(int highest) {
  if (highest != 0) m_highest = highest;
}

int CConnect1dEl::Topo(int entity, int index) const {
  if (m_entType != SelElement && m_entType != SelMember) throw std::out_of_range("bad entity type");
  SEntRef const ref(m_entType, entity);
  if (!m_model.EntIs2D(ref)) return m_model.EntTopo(ref, index);
  // For members too the type is read of the element that bears the number.
  int const place = m_model.ElemExist(entity) ? PerimeterPlace(m_model.Elem(entity).Type(), index)
                                              : index % std::max(m_model.EntNumTopo(ref), 1);
  return m_model.EntTopo(ref, place);
}

}  // namespace Tarvex
