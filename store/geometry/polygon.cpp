#include "store/geometry/polygon.h"

#include <algorithm>
#include <cmath>
#include <stdexcept>

namespace Tarvex::Data {
namespace {

double CrossZ(Vec2<double> a, Vec2<double> b) { return a.x * b.y - a.y * b.x; }

std::size_t CheckedVertex(int index, std::size_t count) {
  auto const at = static_cast<std::size_t>(index);
  if (index < 0 || at >= count) throw std::out_of_range("invalid polygon point");
  return at;
}

}  // namespace

Vec2<double> CPolygon::Point(int index) const {
  return m_points[CheckedVertex(index, m_points.size())];
}

void CPolygon::SetPoint(int index, Vec2<double> point) {
  m_points[CheckedVertex(index, m_points.size())] = point;
}

bool CPolygon::PointExist(Vec2<double> point, int& vertex) const {
  double nearest = m_tolerance;
  bool found = false;
  for (int i = 0; i < NumPoint(); ++i) {
    double const distance = Tarvex::Length(point - Point(i));
    if (!(found ? distance < nearest : distance <= nearest)) continue;
    nearest = distance;
    found = true;
    vertex = i;
  }
  return found;
}

bool CPolygon::PointOnEdge(Vec2<double> point, int& edge, double& fraction) const {
  double nearest = m_tolerance;
  bool found = false;
  for (int i = 0; i < NumPoint(); ++i) {
    double t = 0;
    double const distance = Edge(i, Next(i)).Distance(point, t);
    if (!(found ? distance < nearest : distance <= nearest)) continue;
    nearest = distance;
    found = true;
    edge = i;
    fraction = t;
  }
  return found;
}

bool CPolygon::PointInside(Vec2<double> point, bool boundary) const {
  int edge = 0;
  double fraction = 0;
  if (PointOnEdge(point, edge, fraction)) return boundary;
  return WindingNumber(point) != 0;
}

/// How often the outline runs round a point that is on none of its edges. Each edge counts where it
/// crosses the level of the point to its right, its lower end included and its upper one not, so
/// that a vertex at that level counts once (D. Sunday, Inclusion of a point in a polygon, 2001).
int CPolygon::WindingNumber(Vec2<double> point) const {
  int winding = 0;
  for (int i = 0; i < NumPoint(); ++i) {
    auto const a = Point(i) - point;
    auto const b = Point(Next(i)) - point;
    bool const upwards = a.y <= 0;
    if (upwards == (b.y <= 0)) continue;
    double const side = CrossZ(a, b);
    if (upwards && side > 0) ++winding;
    if (!upwards && side < 0) --winding;
  }
  return winding;
}

double CPolygon::Area() const {
  double twice = 0;
  for (int i = 1; i + 1 < NumPoint(); ++i)
    twice += CrossZ(Point(i) - Point(0), Point(i + 1) - Point(0));
  return std::abs(twice) / 2;
}

Vec2<double> CPolygon::Centroid() const {
  double twice = 0;
  Vec2<double> moment;
  for (int i = 1; i + 1 < NumPoint(); ++i) {
    auto const a = Point(i) - Point(0);
    auto const b = Point(i + 1) - Point(0);
    double const part = CrossZ(a, b);
    twice += part;
    moment = moment + (a + b) * part;
  }
  // Below this the sum is what rounding left of an outline without area.
  double const length = Length() + (NumPoint() > 0 ? Edge(NumPoint() - 1, 0).Length() : 0);
  if (!(std::abs(twice) > kZeroVector * length * length)) return OutlineCentroid();
  return Point(0) + moment * (1 / (3 * twice));
}

Vec2<double> CPolygon::OutlineCentroid() const {
  if (m_points.empty()) return {};
  double length = 0;
  Vec2<double> moment;
  for (int i = 0; i < NumPoint(); ++i) {
    auto const edge = Edge(i, Next(i));
    length += edge.Length();
    moment = moment + (edge.Point(0.5) - Point(0)) * edge.Length();
  }
  return length > 0 ? Point(0) + moment * (1 / length) : Point(0);
}

double CPolygon::Length() const { return m_points.empty() ? 0 : Length(NumPoint() - 1); }

double CPolygon::Length(int index) const {
  CheckedVertex(index, m_points.size());
  double length = 0;
  for (int i = 0; i < index; ++i) length += Edge(i, i + 1).Length();
  return length;
}

/// Whether all vertices between two lie on the edge between these.
bool CPolygon::RunsStraight(int from, int to) const {
  auto const edge = Edge(from, to);
  for (int i = Next(from); i != to; i = Next(i)) {
    double fraction = 0;
    if (!(edge.Distance(Point(i), fraction) <= m_tolerance)) return false;
  }
  return true;
}

std::vector<int> CPolygon::Corners() const {
  std::vector<int> corners;
  if (!m_straight || NumPoint() < 3) {
    for (int i = 0; i < NumPoint(); ++i) corners.push_back(i);
    return corners;
  }
  // The leftmost point, the lowest of these, is a corner of any polygon.
  auto const first = std::min_element(m_points.begin(), m_points.end(), [](auto a, auto b) {
    return a.x != b.x ? a.x < b.x : a.y < b.y;
  });
  int const start = static_cast<int>(first - m_points.begin());
  corners.push_back(start);
  for (int i = Next(start); i != start; i = Next(i))
    if (!RunsStraight(corners.back(), Next(i))) corners.push_back(i);
  std::sort(corners.begin(), corners.end());
  return corners;
}

}  // namespace Tarvex::Data
