#include "store/calc/load_line.h"

#include <algorithm>
#include <cmath>

#include "store/record/member.h"
#include "store/record/node.h"

namespace Tarvex::Calc {

using Vec = Vec3<double>;

LoadLine::LoadLine(std::vector<Vec> points) : m_points(std::move(points)) {
  double length = 0;
  for (std::size_t i = 1; i < m_points.size(); ++i) {
    length += Tarvex::Length(m_points[i] - m_points[i - 1]);
    m_ends.push_back(length);
  }
}

std::optional<LoadLine> LoadLine::Of(CZelData const& model, SEntRef ref) {
  if (!model.EntIs1D(ref)) return std::nullopt;
  int const count = model.EntNumTopo(ref);
  if (count < 2) return std::nullopt;
  for (int i = 0; i < count; ++i)
    if (!model.NodeExist(model.EntTopo(ref, i))) return std::nullopt;
  if (ref.type == SelMember && model.Member(ref.num).Geometry() != MembGeom::Line)
    return OfArc(model, ref.num);
  std::vector<Vec> points;
  points.reserve(static_cast<std::size_t>(count));
  for (int i = 0; i < count; ++i) points.push_back(model.EntCoor(ref, i));
  return LoadLine(std::move(points));
}

std::optional<LoadLine> LoadLine::OfArc(CZelData const& model, int member) {
  auto const& record = model.Member(member);
  Vec centre;
  if (!record.ArcCentre(model, centre)) return std::nullopt;
  auto const node = [&](int place) { return model.Node(record.Topo(place)).Position(); };
  int const last = record.NumTopo() - 1;
  auto const start = node(0) - centre;
  auto const end = node(last) - centre;
  double const radius = Tarvex::Length(start);
  double const length = model.MemberLen(member, EntAt::Nodes);
  // Of the two ways round the one that ends where the arc does; a half circle goes by the middle.
  auto const normal = Unit(Cross(start, last > 1 ? node(1) - centre : end));
  LoadLine arc({node(0), node(last)});
  arc.m_ends = {length};
  arc.m_radius = radius;
  arc.m_centre = centre;
  arc.m_out = start / radius;
  arc.m_along = Cross(normal, arc.m_out);
  constexpr double kRounding = 1e-6;
  bool const otherWay = Tarvex::Length(arc.At(length) - node(last)) > kRounding * radius;
  if (otherWay) arc.m_along = -arc.m_along;
  return arc;
}

std::size_t LoadLine::PieceOf(double distance) const {
  auto const piece = std::lower_bound(m_ends.begin(), m_ends.end() - 1, distance);
  return static_cast<std::size_t>(piece - m_ends.begin());
}

Vec LoadLine::At(double distance) const {
  if (IsArc()) {
    double const angle = distance / m_radius;
    return m_centre + (m_out * std::cos(angle) + m_along * std::sin(angle)) * m_radius;
  }
  auto const piece = PieceOf(distance);
  double const from = piece == 0 ? 0 : m_ends[piece - 1];
  return m_points[piece] + Along(distance) * (distance - from);
}

Vec LoadLine::Along(double distance) const {
  if (IsArc()) {
    double const angle = distance / m_radius;
    return m_along * std::cos(angle) - m_out * std::sin(angle);
  }
  auto const piece = PieceOf(distance);
  return Unit(m_points[piece + 1] - m_points[piece]);
}

}  // namespace Tarvex::Calc
