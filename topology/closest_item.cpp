// The item of a search set that is closest to a point.
#include <cmath>
#include <limits>
#include <stdexcept>

#include "store/geometry/axis_trans.h"
#include "store/model/zel_data.h"
#include "store/record/spec.h"
#include "tarvex/coincidence.h"

namespace Tarvex {
namespace {

constexpr double kFurthest = std::numeric_limits<double>::max();

/// A point in the co-ordinates of an axis, from the user's units to those of the model.
Vec3<double> FromUnits(Vec3<double> const& point, Data::CUnit const& unit, AxisType type) {
  double const length = unit.Conversion(Data::CUnit::kLength);
  double const angle = unit.Conversion(Data::CUnit::kAngle);
  switch (type) {
    case AxisType::Cylindrical:
      return {point.x / length, point.y / angle, point.z / length};
    case AxisType::Spherical:
      return {point.x / length, point.y / angle, point.z / angle};
    default:
      return {point.x / length, point.y / length, point.z / length};
  }
}

}  // namespace

int CReduceCoinc::ClosestNode(Vec3<double> const& point, int exclude, double radius) const {
  double best = kFurthest;
  int found = 0;
  std::vector<int> nodes;
  m_model.NodesAroundPoint(point, nodes, radius);
  for (int const node : nodes) {
    if (node == exclude || !m_order.IsItemIncluded(node)) continue;
    double const distance = Length(m_model.NodeCoor(node) - point);
    if (radius >= distance && distance < best) {
      best = distance;
      found = node;
    }
  }
  return found;
}

int CReduceCoinc::ClosestItem(Vec3<double> const& point, int exclude) const {
  auto const kind = m_order.TypeOf();
  if (kind == SelNode) return ClosestNode(point, exclude, m_tolerance);
  if (kind != SelElement && kind != SelMember) throw std::out_of_range("bad entity type");
  double const at = Dot(point, m_order.OrderVector());
  double best = kFurthest;
  int found = 0;
  auto const look = [&](int place) {
    int const other = m_order.Ref(place);
    SEntRef const ref(kind, other);
    if (other == exclude || !m_order.IsItemIncluded(other) || !m_model.EntExist(ref)) return;
    double const distance = Length(m_model.EntCentre(ref) - point);
    if (distance < best) {
      best = distance;
      found = other;
    }
  };
  int const count = m_order.NumItems();
  int start = m_order.FirstAbove(at);
  if (start == count) start = 0;
  for (int i = start; i < count && !(m_order.PointItem(i) - at > best); ++i) look(i);
  for (int i = start - 1; i >= 0 && !(at - m_order.PointItem(i) > best); --i) look(i);
  return found;
}

int CReduceCoinc::ClosestItem(Data::CUnit const& unit, Data::CAxis const& axis,
                              Vec3<double> const& point, int exclude) const {
  Util::CAxisTrans const transform(axis);
  return ClosestItem(transform.User2Global(FromUnits(point, unit, axis.Type())), exclude);
}

}  // namespace Tarvex
