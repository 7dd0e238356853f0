#include "topology/item_extents.h"

#include <algorithm>
#include <cmath>
#include <limits>
#include <map>

#include "store/model/zel_data.h"
#include "store/record/element.h"
#include "store/record/load_panel.h"
#include "store/record/member.h"
#include "store/record/node.h"
#include "topology/entity_nodes.h"

namespace Tarvex {
namespace {

std::array<std::uint64_t, 4> RevisionsOf(CZelData const& model) {
  return {model.StoredNodes().Revision(), model.Elem().Revision(), model.LoadPanels().Revision(),
          model.Member().Revision()};
}

// Reach of what has no box, or none that is known: it may be anywhere.
constexpr double kEver = std::numeric_limits<double>::infinity();

/// Items whose boxes reach up to four times as far as one another are of one level.
int LevelOf(double reach) {
  if (!std::isfinite(reach)) return std::numeric_limits<int>::max();
  return reach > 0 ? std::ilogb(reach) / 2 : std::numeric_limits<int>::min();
}

double Largest(Vec3<double> const& p) {
  return std::max({std::abs(p.x), std::abs(p.y), std::abs(p.z)});
}

}  // namespace

ItemExtents::ItemExtents(COrderSet const& order, CZelData const& model)
    : m_revisions(RevisionsOf(model)) {
  std::map<int, Level> levels;
  m_boxes.reserve(static_cast<std::size_t>(order.NumItems()));
  for (int place = 0; place < order.NumItems(); ++place) {
    auto const box = BoxOf(model, {order.TypeOf(), order.Ref(place)});
    auto const along = Along(order, box);
    double const at = order.PointItem(place);
    double const reach = std::max(along.high - at, at - along.low);
    auto& level = levels[LevelOf(reach)];
    level.reach = std::isfinite(reach) ? std::max(level.reach, reach) : kEver;
    level.places.push_back(place);
    m_size = std::max({m_size, Largest(box.Min()), Largest(box.Max())});
    m_boxes.push_back(box);
  }
  for (auto& [number, level] : levels) m_levels.push_back(std::move(level));
}

bool ItemExtents::IsOf(CZelData const& model) const { return m_revisions == RevisionsOf(model); }

Util::CBox3D ItemExtents::BoxOf(CZelData const& model, SEntRef const& ref) {
  Util::CBox3D box;
  for (int const node : NodesOf(model, ref))
    if (model.NodeExist(node)) box.AddPoint(model.NodeCoor(node));
  return box;
}

ItemExtents::Interval ItemExtents::Along(COrderSet const& order, Util::CBox3D const& box) {
  if (box.IsEmpty()) return {-kEver, kEver};
  auto const& v = order.OrderVector();
  auto const half = (box.Max() - box.Min()) * 0.5;
  double const centre = Dot(box.Centre(), v);
  double const width = half.x * std::abs(v.x) + half.y * std::abs(v.y) + half.z * std::abs(v.z);
  return {centre - width, centre + width};
}

/// A distance with what rounding of co-ordinates and projections can add.
double ItemExtents::Margin(double distance) const {
  constexpr double kRounding = 1e-12;
  return distance * (1 + kRounding) + m_size * kRounding;
}

ItemExtents::Rows ItemExtents::RowsNear(COrderSet const& order, Util::CBox3D const& box,
                                        double distance) const {
  auto const along = Along(order, box);
  auto const& items = order.Items();
  auto const projection = [&](int place) {
    return items[static_cast<std::size_t>(place)].projection;
  };
  Rows rows;
  for (auto const& level : m_levels) {
    Row const all(level.places);
    // Boxes as far apart in each direction are up to the root of three as far apart.
    double const apart = 2 * Margin(distance) + level.reach;
    bool const any = !order.IsSorted() || !std::isfinite(apart) || !std::isfinite(along.low) ||
                     !std::isfinite(along.high);
    auto const first =
        any ? all.begin() : std::ranges::lower_bound(all, along.low - apart, {}, projection);
    auto const end =
        any ? all.end() : std::ranges::upper_bound(all, along.high + apart, {}, projection);
    if (first < end) rows.emplace_back(first, end);
  }
  return rows;
}

ItemExtents::Rows ItemExtents::Above(Rows rows, int place) {
  for (auto& row : rows) row = Row(std::ranges::upper_bound(row, place), row.end());
  return rows;
}

ItemExtents::Rows ItemExtents::Below(Rows rows, int place) {
  for (auto& row : rows) row = Row(row.begin(), std::ranges::lower_bound(row, place));
  return rows;
}

int ItemExtents::TakeLowest(Rows& rows) {
  Row* best = nullptr;
  for (auto& row : rows)
    if (!row.empty() && (best == nullptr || row.front() < best->front())) best = &row;
  if (best == nullptr) return -1;
  int const place = best->front();
  *best = best->subspan(1);
  return place;
}

int ItemExtents::TakeHighest(Rows& rows) {
  Row* best = nullptr;
  for (auto& row : rows)
    if (!row.empty() && (best == nullptr || row.back() > best->back())) best = &row;
  if (best == nullptr) return -1;
  int const place = best->back();
  *best = best->first(best->size() - 1);
  return place;
}

bool ItemExtents::MayTouch(int place, Util::CBox3D const& box, double distance) const {
  auto const& other = m_boxes[static_cast<std::size_t>(place)];
  if (box.IsEmpty() || other.IsEmpty()) return true;
  double const margin = Margin(distance);
  auto const apart = [&](double low, double high, double otherLow, double otherHigh) {
    return otherLow - high > margin || low - otherHigh > margin;
  };
  return !apart(box.Min().x, box.Max().x, other.Min().x, other.Max().x) &&
         !apart(box.Min().y, box.Max().y, other.Min().y, other.Max().y) &&
         !apart(box.Min().z, box.Max().z, other.Min().z, other.Max().z);
}

}  // namespace Tarvex
