#include "topology/item_extents.h"

#include <algorithm>
#include <cmath>
#include <limits>

#include "store/model/zel_data.h"
#include "store/record/element.h"
#include "store/record/load_panel.h"
#include "store/record/member.h"
#include "store/record/node.h"
#include "topology/entity_nodes.h"

namespace Tarvex {
namespace {

std::array<std::uint64_t, 4> RevisionsOf(CZelData const& model) {
  return {model.Node().Revision(), model.Elem().Revision(), model.LoadPanels().Revision(),
          model.Member().Revision()};
}

double Largest(Vec3<double> const& p) {
  return std::max({std::abs(p.x), std::abs(p.y), std::abs(p.z)});
}

}  // namespace

ItemExtents::ItemExtents(COrderSet const& order, CZelData const& model)
    : m_revisions(RevisionsOf(model)) {
  m_boxes.reserve(static_cast<std::size_t>(order.NumItems()));
  for (int place = 0; place < order.NumItems(); ++place) {
    auto const box = BoxOf(model, {order.TypeOf(), order.Ref(place)});
    auto const along = Along(order, box);
    double const at = order.PointItem(place);
    m_reach = std::max({m_reach, along.high - at, at - along.low});
    m_size = std::max({m_size, Largest(box.Min()), Largest(box.Max())});
    m_boxes.push_back(box);
  }
}

bool ItemExtents::IsOf(CZelData const& model) const { return m_revisions == RevisionsOf(model); }

Util::CBox3D ItemExtents::BoxOf(CZelData const& model, SEntRef const& ref) {
  Util::CBox3D box;
  for (int const node : NodesOf(model, ref))
    if (model.NodeExist(node)) box.AddPoint(model.NodeCoor(node));
  return box;
}

ItemExtents::Interval ItemExtents::Along(COrderSet const& order, Util::CBox3D const& box) {
  // What has no box may be anywhere.
  constexpr double kEver = std::numeric_limits<double>::infinity();
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

PlaceRange ItemExtents::Near(COrderSet const& order, Util::CBox3D const& box,
                             double distance) const {
  auto const along = Along(order, box);
  // Boxes as far apart in each direction are up to the root of three as far apart.
  double const apart = 2 * Margin(distance) + m_reach;
  bool const any = !order.IsSorted() || !std::isfinite(apart) || !std::isfinite(along.low) ||
                   !std::isfinite(along.high);
  if (any) return {0, order.NumItems()};
  return {order.FirstFrom(along.low - apart), order.FirstAbove(along.high + apart)};
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
