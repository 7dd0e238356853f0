#include "topology/node_sweep.h"

#include <algorithm>
#include <cmath>
#include <limits>

#include "store/record/node.h"

namespace Tarvex {

NodeSweep::NodeSweep(COrderSet const& order, CZelData const& model, double tolerance)
    : m_order(order), m_items(order.Items()), m_tolerance(tolerance) {
  constexpr double kGone = std::numeric_limits<double>::quiet_NaN();
  m_points.resize(m_items.size(), {kGone, kGone, kGone});
  // In the order of their numbers, in which the model has them.
  for (auto const& [number, place] : order.Places()) {
    int const node = static_cast<int>(number);
    if (model.NodeExist(node)) m_points[static_cast<std::size_t>(place)] = model.NodeCoor(node);
  }
  m_slack = FindSlack();
  if (HasLongSlices()) m_cells.emplace(m_points, tolerance);
}

/// Two nodes are at least as far apart as their projections but for rounding, and for what they
/// have moved since the list was made.
double NodeSweep::FindSlack() const {
  constexpr double kRounding = 16 * std::numeric_limits<double>::epsilon();
  double moved = 0;
  double largest = 0;
  auto const& v = m_order.OrderVector();
  for (int place = 0; place < NumPlaces(); ++place) {
    auto const& p = PointAt(place);
    double const size = std::abs(p.x) + std::abs(p.y) + std::abs(p.z);
    if (!std::isfinite(size)) continue;
    moved = std::max(moved, std::abs(Dot(p, v) - AlongAt(place)));
    largest = std::max(largest, size);
  }
  return 2 * moved + kRounding * largest;
}

/// Whether the slices within the tolerance hold more candidates, in all, than cells would.
bool NodeSweep::HasLongSlices() const {
  constexpr long long kOftenMet = 16;
  int const count = NumPlaces();
  if (!m_order.IsSorted() || !std::isfinite(m_tolerance) || !(m_tolerance > 0)) return false;
  long long candidates = 0;
  int low = 0;
  for (int place = 0; place < count; ++place) {
    while (AlongAt(place) - AlongAt(low) > m_tolerance) ++low;
    candidates += place - low;
  }
  return candidates > kOftenMet * count;
}

bool NodeSweep::Counts(int place, int other, Among among, JointTies const& ties) const {
  int const node = NodeAt(other);
  if (among == Among::Lower && node > NodeAt(place)) return false;
  return m_order.IsItemIncluded(node) && !ties.AreTied(NodeAt(place), node);
}

NodeSweep::Best NodeSweep::BySlice(int place, Among among, JointTies const& ties) const {
  Best best{m_tolerance, -1};
  double const at = AlongAt(place);
  bool const sorted = m_order.IsSorted();
  // @return whether the sweep goes on beyond the node.
  auto const visit = [&](int other) {
    double const along = std::abs(AlongAt(other) - at);
    if (along > m_tolerance) return false;
    if (sorted && along > best.distance + m_slack) return false;  // nor can any further one win
    double const distance = Length(PointAt(other) - PointAt(place));
    if (best.distance > distance && Counts(place, other, among, ties)) best = {distance, other};
    return true;
  };
  for (int other = place + 1; other < NumPlaces() && visit(other);) ++other;
  for (int other = place - 1; other >= 0 && visit(other);) --other;
  return best;
}

NodeSweep::Best NodeSweep::ByCells(int place, Among among, JointTies const& ties) const {
  Best best{m_tolerance, -1};
  double const at = AlongAt(place);
  m_cells->ForEachNear(PointAt(place), [&](int other) {
    if (other == place) return;
    double const distance = Length(PointAt(other) - PointAt(place));
    bool const better = best.distance > distance || (best.place >= 0 && best.distance == distance &&
                                                     MeetsFirst(place, other, best.place));
    if (better && !(std::abs(AlongAt(other) - at) > m_tolerance) &&
        Counts(place, other, among, ties))
      best = {distance, other};
  });
  return best;
}

int NodeSweep::Nearest(int place, Among among, JointTies const& ties) const {
  auto const best = m_cells ? ByCells(place, among, ties) : BySlice(place, among, ties);
  return best.place < 0 ? 0 : NodeAt(best.place);
}

std::vector<int> NodeSweep::NearestOfEach(Among among, JointTies const& ties) const {
  std::vector<int> nearest;
  nearest.reserve(m_items.size());
  for (int place = 0; place < NumPlaces(); ++place) nearest.push_back(Nearest(place, among, ties));
  return nearest;
}

}  // namespace Tarvex
