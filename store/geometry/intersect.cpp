#include "store/geometry/intersect.h"

// Boost.Geometry includes a header of Boost that has moved.
#define BOOST_ALLOW_DEPRECATED_HEADERS
#include <algorithm>
#include <boost/geometry/algorithms/correct.hpp>
#include <boost/geometry/algorithms/intersection.hpp>
#include <boost/geometry/algorithms/is_valid.hpp>
#include <boost/geometry/algorithms/remove_spikes.hpp>
#include <boost/geometry/algorithms/unique.hpp>
#include <boost/geometry/core/exception.hpp>
#include <boost/geometry/geometries/point_xy.hpp>
#include <boost/geometry/geometries/polygon.hpp>
#include <boost/geometry/strategies/strategies.hpp>
#include <cmath>
#include <stdexcept>
#include <utility>

#include "store/numeric/box.h"

namespace Tarvex::Util {
namespace {

namespace bg = boost::geometry;
using BoostPoint = bg::model::d2::point_xy<double>;
using Points = std::vector<Vec2<double>>;
using BoostPolygon = bg::model::polygon<BoostPoint>;

/// Distance, as a part of the size of both polygons, below which points and edges are the same.
constexpr double kNear = 1e-7;

/// Co-ordinates are taken relative to the origin, so that far ones cost no digits.
BoostPolygon ToBoost(Points const& points, Vec2<double> origin) {
  BoostPolygon result;
  for (auto const point : points) {
    auto const p = point - origin;
    result.outer().emplace_back(p.x, p.y);
  }
  bg::correct(result);
  bg::unique(result);
  bg::remove_spikes(result);
  return result;
}

Data::CPolygon FromBoost(BoostPolygon const& polygon, Vec2<double> origin, double tolerance) {
  Data::CPolygon result(tolerance);
  auto const& ring = polygon.outer();  // clockwise, the first point repeated at the end
  for (auto p = ring.rbegin(); p + 1 < ring.rend(); ++p)
    result.AddPoint(origin + Vec2<double>{p->x(), p->y()});
  return result;
}

/// Whether an outline gains nothing by a point between two others: it repeats the one before, or
/// the outline turns back there and runs along itself.
bool IsIdle(Vec2<double> before, Vec2<double> point, Vec2<double> after, double near) {
  double t = 0;
  return Length(point - before) <= near || Data::CEdge(point, after).Distance(before, t) <= near ||
         Data::CEdge(before, point).Distance(after, t) <= near;
}

/// The points without repeated ones and spikes.
Points Cleaned(Points points, double near) {
  std::size_t checked = 0;  // so many in a row are not idle
  for (std::size_t i = 0; points.size() >= 3 && checked < points.size();) {
    auto const count = points.size();
    if (IsIdle(points[(i + count - 1) % count], points[i % count], points[(i + 1) % count], near)) {
      points.erase(points.begin() + static_cast<std::ptrdiff_t>(i % count));
      checked = 0;
      i = (i % count + count - 1) % count;  // what is one place back has a new neighbour
    } else {
      ++checked;
      i = (i + 1) % count;
    }
  }
  return points;
}

/// Moves each point that lies near one of the other polygon onto it.
void MoveOnto(Points const& other, double near, Points& points) {
  for (auto& point : points) {
    auto const target = std::find_if(other.begin(), other.end(), [&](Vec2<double> const& p) {
      return Length(p - point) <= near;
    });
    if (target != other.end()) point = *target;
  }
}

/// The points with those of the other polygon put in where they lie near an edge.
Points WithPointsOf(Points const& other, double near, Points const& points) {
  Points result;
  std::vector<std::pair<double, Vec2<double>>> between;
  for (std::size_t i = 0; i < points.size(); ++i) {
    auto const from = points[i];
    auto const to = points[(i + 1) % points.size()];
    between.clear();
    for (auto const p : other) {
      double t = 0;
      bool const onEdge = Data::CEdge(from, to).Distance(p, t) <= near;
      if (onEdge && Length(p - from) > near && Length(p - to) > near) between.emplace_back(t, p);
    }
    std::stable_sort(between.begin(), between.end(),
                     [](auto const& a, auto const& b) { return a.first < b.first; });
    result.push_back(from);
    for (auto const& [t, p] : between) result.push_back(p);
  }
  return result;
}

/// Makes edges of two polygons that nearly coincide the same ones: the overlay of polygons goes
/// astray on edges that are a rounding apart.
void Join(Points& a, Points& b, double near) {
  a = Cleaned(std::move(a), 4 * near);
  b = Cleaned(std::move(b), 4 * near);
  MoveOnto(a, near, b);
  auto const split = WithPointsOf(b, near, a);
  b = WithPointsOf(a, near, b);
  a = split;
}

bool IsFinite(Points const& points) {
  return std::all_of(points.begin(), points.end(),
                     [](auto p) { return std::isfinite(p.x) && std::isfinite(p.y); });
}

/// Longer than any way from a point of one polygon to one of the other.
double SizeOf(Points const& a, Points const& b) {
  CBox3D box;
  for (auto const* const points : {&a, &b})
    for (auto const p : *points) box.AddPoint({p.x, p.y, 0});
  return Length(box.Max() - box.Min());
}

/// Mean width: that of the strip as long as half the outline.
bool IsNarrow(Data::CPolygon const& piece, double tolerance) {
  auto const last = piece.Point(piece.NumPoint() - 1);
  double const outline = piece.Length() + Length(piece.Point(0) - last);
  return !(piece.Area() > tolerance * outline / 2);
}

std::vector<BoostPolygon> Overlap(BoostPolygon const& a, BoostPolygon const& b) {
  std::vector<BoostPolygon> pieces;
  if (!bg::is_valid(a) || !bg::is_valid(b)) return pieces;
  try {
    bg::intersection(a, b, pieces);
  } catch (bg::exception const&) {
    pieces.clear();  // it found what the test before did not
  }
  return pieces;
}

}  // namespace

int CIntersect::NumPoly(Data::CPolygon const& a, Data::CPolygon const& b) {
  m_pieces.clear();
  auto first = a.Points();
  auto second = b.Points();
  if (!IsFinite(first) || !IsFinite(second)) return 0;
  Join(first, second, kNear * SizeOf(first, second));
  if (std::min(first.size(), second.size()) < 3) return 0;
  auto const origin = first[0];
  for (auto const& found : Overlap(ToBoost(first, origin), ToBoost(second, origin))) {
    auto piece = FromBoost(found, origin, m_tolerance);
    if (piece.NumPoint() >= 3 && !IsNarrow(piece, m_tolerance))
      m_pieces.push_back(std::move(piece));
  }
  return NumIntersect();
}

Data::CPolygon const& CIntersect::Intersect(int index) const {
  if (index < 0 || index >= NumIntersect()) throw std::out_of_range("invalid polygon piece");
  return m_pieces[static_cast<std::size_t>(index)];
}

}  // namespace Tarvex::Util
