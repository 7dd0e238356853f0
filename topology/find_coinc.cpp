// Which item of the search set another one coincides with, crosses or overlaps.
#include <algorithm>
#include <array>
#include <cmath>
#include <stdexcept>

#include "store/geometry/line.h"
#include "store/model/zel_data.h"
#include "store/record/element.h"
#include "store/record/joint.h"
#include "store/record/node.h"
#include "tarvex/coincidence.h"
#include "topology/entity_nodes.h"
#include "topology/item_extents.h"
#include "topology/joint_ties.h"
#include "topology/node_sweep.h"
#include "topology/overlap.h"

namespace Tarvex {
namespace {

void RequireEntities(SelType kind) {
  if (kind != SelNode && kind != SelElement && kind != SelMember)
    throw std::out_of_range("bad entity type");
}

void RequireTopology(SelType kind) {
  if (kind != SelElement && kind != SelMember) throw std::out_of_range("bad entity type");
}

/// Calls visit(place) upwards from behind a place to the end of a list, then downwards from before
/// it to the start. A direction ends where visit gives false.
template <class Visit>
void Sweep(int place, int count, Visit&& visit) {
  for (int i = place + 1; i < count && visit(i);) ++i;
  for (int i = place - 1; i >= 0 && visit(i);) --i;
}

std::size_t CornersOf(Data::TopoVector const& nodes) {
  constexpr std::size_t kMostCorners = 4;
  return nodes.size() <= kMostCorners ? nodes.size() : nodes.size() / 2;
}

/// Whether an edge between two corners has no length, so that it has no direction.
bool HasPointEdge(NodePoints const& corners) {
  for (std::size_t i = 0; i < corners.size(); ++i)
    if (Length(corners[(i + 1) % corners.size()] - corners[i]) < kZeroVector) return true;
  return false;
}

/// The straight line between the ends of an item.
struct EndLine {
  Vec3<double> start;
  Vec3<double> end;
  double length;
};

/// Empty where a node is missing, and for a line without length.
std::optional<EndLine> EndLineOf(CZelData const& model, std::optional<EndNodes> const& ends) {
  if (!ends || !model.NodeExist(ends->first) || !model.NodeExist(ends->last)) return std::nullopt;
  auto const start = model.NodeCoor(ends->first);
  auto const end = model.NodeCoor(ends->last);
  double const length = Length(end - start);
  if (length < kZeroLength) return std::nullopt;
  return EndLine{start, end, length};
}

// Distance of crossing lines, and of the crossing from their ends, model length units.
constexpr double kCrossing = 0.001;

/// Whether two lines come near one another at a place inside of both.
bool CrossInside(EndLine const& a, EndLine const& b) {
  auto const isInside = [](double fraction, double length) {
    return kCrossing < fraction * length && fraction * length < length - kCrossing;
  };
  auto const closest = DistanceBetweenLines(a.start, a.end, b.start, b.end);
  return !std::isnan(closest.ra) && !std::isnan(closest.rb) &&
         std::abs(closest.distance) <= kCrossing && isInside(closest.ra, a.length) &&
         isInside(closest.rb, b.length);
}

}  // namespace

std::unordered_set<int> CReduceCoinc::ExcludedItems(int item) const {
  if (item < 1) return {};
  std::unordered_set<int> excluded{item};
  if (m_order.TypeOf() != SelNode) return excluded;
  for (auto const& joint : m_model.Joint())
    if (int const other = TiedBy(joint, item); other != 0 && JointActsIn(m_model, joint, m_stage))
      excluded.insert(other);
  return excluded;
}

int CReduceCoinc::FindCoinc(int item, bool overlap) const {
  auto const kind = m_order.TypeOf();
  RequireEntities(kind);
  if (!m_model.EntExist({kind, item})) return 0;
  int const place = m_order.GetIndexFromRef(item);
  if (place < 0) return FindOutside(item, overlap);
  if (kind == SelNode) return FindNode(item, place, overlap);
  return overlap ? FindOverlapping(item, place) : FindEntity(item, place);
}

int CReduceCoinc::FindOutside(int item, bool overlap) const {
  auto const kind = m_order.TypeOf();
  auto const centre = m_model.EntCentre({kind, item});
  int const closest = ClosestItem(centre, item);
  if (closest < 1) return 0;
  bool const near = m_tolerance > Length(m_model.EntCentre({kind, closest}) - centre);
  if (kind == SelNode) return near ? closest : 0;
  if (near && IsTopoCoinc(kind, item, closest)) return closest;
  return overlap && Overlap(kind, item, closest) ? closest : 0;
}

/// The nearest node. @param whole whether the sweep goes over the whole list.
int CReduceCoinc::FindNode(int item, int place, bool whole) const {
  // Above it the store's index of positions has fewer candidates, most likely.
  constexpr int kLongSlice = 64;
  double const at = m_order.PointItem(place);
  if (!whole && m_order.IsSorted() &&
      m_order.FirstAbove(at + m_tolerance) - m_order.FirstFrom(at - m_tolerance) > kLongSlice)
    return FindNodeAround(item, place);
  auto const excluded = ExcludedItems(item);
  auto const centre = m_model.NodeCoor(item);
  double best = m_tolerance;
  int found = 0;
  Sweep(place, m_order.NumItems(), [&](int i) {
    if (!whole && std::abs(m_order.PointItem(i) - at) > m_tolerance) return false;
    int const other = m_order.Ref(i);
    if (!m_order.IsItemIncluded(other) || excluded.contains(other)) return true;
    if (!m_model.NodeExist(other)) return true;
    double const distance = Length(m_model.NodeCoor(other) - centre);
    if (best > distance) {
      best = distance;
      found = other;
    }
    return true;
  });
  return found;
}

/// As the sweep of FindNode over a slice, with candidates from the store's index of positions.
int CReduceCoinc::FindNodeAround(int item, int place) const {
  constexpr double kRounding = 1e-9;  // so that none is left out that the distance below takes
  auto const excluded = ExcludedItems(item);
  auto const centre = m_model.NodeCoor(item);
  double const at = m_order.PointItem(place);
  double best = m_tolerance;
  int found = -1;
  for (int const other : m_model.NodesAroundPoint(centre, m_tolerance * (1 + kRounding))) {
    int const i = m_order.GetIndexFromRef(other);
    if (i < 0 || !m_order.IsItemIncluded(other) || excluded.contains(other)) continue;
    if (std::abs(m_order.PointItem(i) - at) > m_tolerance) continue;
    double const distance = Length(m_model.NodeCoor(other) - centre);
    if (best > distance || (found >= 0 && best == distance && MeetsFirst(place, i, found))) {
      best = distance;
      found = i;
    }
  }
  return found < 0 ? 0 : m_order.Ref(found);
}

int CReduceCoinc::FindEntity(int item, int place) const {
  auto const kind = m_order.TypeOf();
  auto const centre = m_model.EntCentre({kind, item});
  double const at = m_order.PointItem(place);
  int found = 0;
  Sweep(place, m_order.NumItems(), [&](int i) {
    if (found != 0 || std::abs(m_order.PointItem(i) - at) > m_tolerance) return false;
    int const other = m_order.Ref(i);
    if (other == item || !m_order.IsItemIncluded(other) || !m_model.EntExist({kind, other}))
      return true;
    if (m_tolerance > Length(m_model.EntCentre({kind, other}) - centre) &&
        IsTopoCoinc(kind, item, other))
      found = other;
    return found == 0;
  });
  return found;
}

/// Two items overlap or share all nodes only where their boxes come within the tolerance, unless
/// the first has an edge without length, which everything lies along: so few of the whole list need
/// a closer look.
int CReduceCoinc::FindOverlapping(int item, int place) const {
  auto const kind = m_order.TypeOf();
  SEntRef const ref(kind, item);
  auto const nodes = NodesOf(m_model, ref);
  auto const centre = m_model.EntCentre(ref);
  bool const any = HasPointEdge(PointsOf(m_model, nodes, CornersOf(nodes)));
  auto const box = any ? Util::CBox3D() : ItemExtents::BoxOf(m_model, ref);
  int found = 0;
  Extents().Sweep(m_order, place, box, m_tolerance, [&](int i) {
    int const other = m_order.Ref(i);
    if (other == item || !m_order.IsItemIncluded(other) || !m_model.EntExist({kind, other}))
      return true;
    bool const same = m_tolerance > Length(m_model.EntCentre({kind, other}) - centre) &&
                      IsTopoCoinc(kind, item, other);
    if (same || Overlap(kind, item, other)) found = other;
    return found == 0;
  });
  return found;
}

ItemExtents const& CReduceCoinc::Extents() const {
  if (m_extents == nullptr || !m_extents->IsOf(m_model))
    m_extents = std::make_shared<ItemExtents const>(m_order, m_model);
  return *m_extents;
}

bool CReduceCoinc::IsTopoCoinc(SelType kind, int a, int b) const {
  RequireTopology(kind);
  auto const nodes = NodesOf(m_model, {kind, a});
  auto const others = NodesOf(m_model, {kind, b});
  return nodes.size() == others.size() && std::ranges::all_of(others, [&](int node) {
           return std::ranges::find(nodes, node) != nodes.end();
         });
}

int CReduceCoinc::FindCross(int item) {
  auto const kind = m_order.TypeOf();
  RequireTopology(kind);
  auto const ends = EndNodesOf(m_model, {kind, item});
  auto const line = EndLineOf(m_model, ends);
  if (!line) return 0;
  Util::CBox3D box;
  for (auto const& end : {line->start, line->end}) box.AddPoint(end);
  constexpr int kBeforeTheList = -1;
  int found = 0;
  Extents().Sweep(m_order, kBeforeTheList, box, kCrossing, [&](int i) {
    int const other = m_order.Ref(i);
    if (other == item) return true;
    auto const others = EndNodesOf(m_model, {kind, other});
    if (!others || ends->Has(others->first) || ends->Has(others->last)) return true;
    auto const otherLine = EndLineOf(m_model, others);
    if (otherLine && CrossInside(*line, *otherLine)) found = other;
    return found == 0;
  });
  return found;
}

int CReduceCoinc::FindUnconnect(int item) {
  if (m_order.TypeOf() != SelElement || !m_model.ElemExist(item)) return 0;
  auto const ends = EndNodesOf(m_model, {SelElement, item});
  if (!ends) return 0;
  bool const free = std::ranges::all_of(std::array{ends->first, ends->last}, [&](int node) {
    constexpr int kAnyStage = -1;
    constexpr int kSecond = 2;
    return m_model.NodeExist(node) && !m_model.NodeIsInConstraint(node, kAnyStage) &&
           m_model.Node(node).NumEntAttached(SelElement) < kSecond;
  });
  return free ? item : 0;
}

bool CReduceCoinc::Overlap(SelType kind, int a, int b) const {
  constexpr std::size_t kLine = 2;
  constexpr std::size_t kPlate = 3;
  auto const count = NodesOf(m_model, {kind, a}).size();
  auto const other = NodesOf(m_model, {kind, b}).size();
  if (count == kLine && other == kLine) return Overlap1D(kind, a, b);
  return count >= kPlate && other >= kPlate && Overlap2D(kind, a, b);
}

bool CReduceCoinc::Overlap1D(SelType kind, int a, int b) const {
  auto const line = PointsOf(m_model, NodesOf(m_model, {kind, a}), 2);
  auto const other = PointsOf(m_model, NodesOf(m_model, {kind, b}), 2);
  return !line.empty() && !other.empty() &&
         Overlaps::OverlapLine(line[0], line[1], other[0], other[1], m_tolerance);
}

bool CReduceCoinc::Overlap2D(SelType kind, int a, int b) const {
  auto const nodes = NodesOf(m_model, {kind, a});
  auto const others = NodesOf(m_model, {kind, b});
  // Mid-side nodes must exist too, though only corners count.
  bool const whole = !PointsOf(m_model, nodes, nodes.size()).empty() &&
                     !PointsOf(m_model, others, others.size()).empty();
  if (!whole) return false;
  auto const corners = PointsOf(m_model, nodes, CornersOf(nodes));
  auto const otherCorners = PointsOf(m_model, others, CornersOf(others));
  return Overlaps::OverlapPlate({corners.data(), corners.size()},
                                {otherCorners.data(), otherCorners.size()}, m_tolerance);
}

}  // namespace Tarvex
