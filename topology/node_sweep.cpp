#include "topology/node_sweep.h"

#include <algorithm>
#include <cmath>
#include <limits>

#include "store/record/node.h"

namespace Tarvex {

NodeSweep::NodeSweep(COrderSet const& order, CZelData const& model, double tolerance)
    : m_order(order), m_tolerance(tolerance) {
  constexpr double kGone = std::numeric_limits<double>::quiet_NaN();
  int const count = order.NumItems();
  m_points.reserve(static_cast<std::size_t>(count));
  for (int place = 0; place < count; ++place) {
    int const node = order.Ref(place);
    m_points.push_back(model.NodeExist(node) ? model.NodeCoor(node)
                                             : Vec3<double>{kGone, kGone, kGone});
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
  for (int place = 0; place < m_order.NumItems(); ++place) {
    auto const& p = PointAt(place);
    double const size = std::abs(p.x) + std::abs(p.y) + std::abs(p.z);
    if (!std::isfinite(size)) continue;
    moved = std::max(moved, std::abs(Dot(p, v) - m_order.PointItem(place)));
    largest = std::max(largest, size);
  }
  return 2 * moved + kRounding * largest;
}

/// Whether the slices within the tolerance hold more candidates, in all, than cells would.
bool NodeSweep::HasLongSlices() const {
  constexpr long long kOftenMet = 16;
  int const count = m_order.NumItems();
  if (!m_order.IsSorted() || !std::isfinite(m_tolerance) || !(m_tolerance > 0)) return false;
  long long candidates = 0;
  int low = 0;
  for (int place = 0; place < count; ++place) {
    while (m_order.PointItem(place) - m_order.PointItem(low) > m_tolerance) ++low;
    candidates += place - low;
  }
  return candidates > kOftenMet * count;
}

bool NodeSweep::Counts(int place, int other, JointTies const& ties) const {
  int const node = m_order.Ref(other);
  return m_order.IsItemIncluded(node) && !ties.AreTied(m_order.Ref(place), node);
}

NodeSweep::Best NodeSweep::BySlice(int place, JointTies const& ties) const {
  Best best{m_tolerance, -1};
  double const at = m_order.PointItem(place);
  bool const sorted = m_order.IsSorted();
  // @return whether the sweep goes on beyond the node.
  auto const visit = [&](int other) {
    double const along = std::abs(m_order.PointItem(other) - at);
    if (along > m_tolerance) return false;
    if (sorted && along > best.distance + m_slack) return false;  // nor can any further one win
    double const distance = Length(PointAt(other) - PointAt(place));
    if (best.distance > distance && Counts(place, other, ties)) best = {distance, other};
    return true;
  };
  for (int other = place + 1; other < m_order.NumItems() && visit(other);) ++other;
  for (int other = place - 1; other >= 0 && visit(other);) --other;
  return best;
}

NodeSweep::Best NodeSweep::ByCells(int place, JointTies const& ties) const {
  Best best{m_tolerance, -1};
  double const at = m_order.PointItem(place);
  m_cells->ForEachNear(PointAt(place), [&](int other) {
    if (other == place) return;
    double const distance = Length(PointAt(other) - PointAt(place));
    bool const better = best.distance > distance || (best.place >= 0 && best.distance == distance &&
                                                     MeetsFirst(place, other, best.place));
    if (better && !(std::abs(m_order.PointItem(other) - at) > m_tolerance) &&
        Counts(place, other, ties))
      best = {distance, other};
  });
  return best;
}

int NodeSweep::Nearest(int place, JointTies const& ties) const {
  auto const best = m_cells ? ByCells(place, ties) : BySlice(place, ties);
  return best.place < 0 ? 0 : m_order.Ref(best.place);
}

}  // namespace Tarvex
