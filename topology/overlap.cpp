#include "topology/overlap.h"

#include <boost/container/small_vector.hpp>
#include <utility>

#include "store/numeric/box.h"

namespace Tarvex::Overlaps {
namespace {

using Point = Vec3<double>;
using Ring = boost::container::small_vector<Point, 4>;

// Cosine of 1 degree, to six digits: planes at a wider angle are not parallel.
constexpr double kParallelCosine = 0.999848;

Point const& Next(Corners ring, std::size_t i) { return ring[i + 1 < ring.size() ? i + 1 : 0]; }

double Distance(Point const& a, Point const& b) { return Length(a - b); }

/// Unit normal at the first corner; the zero vector when its edges have no plane.
Point NormalOf(Corners ring) {
  return Unit(Cross(ring[1] - ring[0], ring.back() - ring[0]), kZeroVector);
}

/// Whether enough of the corners and edges of b lie on edges of a: three pairs of corners, two
/// pairs of edges, or as many corners on edges as b has.
bool ShareEdges(Corners a, Corners b, double tolerance) {
  constexpr int kCorners = 2;
  constexpr int kLines = 1;
  int corners = 0;
  int lines = 0;
  std::size_t points = 0;
  for (std::size_t i = 0; i < a.size(); ++i)
    for (std::size_t j = 0; j < b.size(); ++j) {
      auto const& end = Next(a, i);
      if (tolerance > Distance(a[i], b[j])) ++corners;
      if (OverlapLine(a[i], end, b[j], Next(b, j), tolerance)) ++lines;
      if (OverlapPoint(a[i], end, b[j], tolerance)) ++points;
      if (corners > kCorners || lines > kLines) return true;
    }
  return points == b.size();
}

bool HasCornerIn(Corners ring, Util::CBox3D const& box) {
  for (auto const& corner : ring)
    if (box.PointInside(corner)) return true;
  return false;
}

/// Whether a corner of b lies between the edges at the first and at the third corner of a.
bool HasCornerInside(Corners a, Corners b) {
  auto const e1 = a[1] - a[0];
  auto const w0 = a.back() - a[0];
  auto const f1 = a[1] - a[2];
  auto const w2 = (a.size() == 4 ? a[3] : a[0]) - a[2];
  for (auto const& corner : b) {
    auto const d0 = corner - a[0];
    auto const d2 = corner - a[2];
    auto const c1 = Cross(d0, w0);
    auto const c2 = Cross(e1, d0);
    auto const c3 = Cross(d2, f1);
    auto const c4 = Cross(w2, d2);
    if (Dot(c1, c2) > 0 && Dot(c3, c4) > 0 && Dot(c4, c2) > 0) return true;
  }
  return false;
}

/// Whether two points stand on opposite sides of the line from p to q.
bool StandsBetween(Point const& p, Point const& q, Point const& r, Point const& s) {
  auto const along = q - p;
  return Dot(Cross(along, s - p), Cross(r - p, along)) > 0;
}

bool HaveCrossingEdges(Corners a, Corners b) {
  for (std::size_t i = 0; i < a.size(); ++i)
    for (std::size_t j = 0; j < b.size(); ++j)
      if (StandsBetween(a[i], Next(a, i), b[j], Next(b, j)) &&
          StandsBetween(b[j], Next(b, j), a[i], Next(a, i)))
        return true;
  return false;
}

}  // namespace

bool OverlapPoint(Point const& start, Point const& end, Point const& point, double tolerance) {
  auto const along = Unit(end - start);
  auto const to = point - start;
  if (Length(Cross(to, along)) > tolerance) return false;
  double const t = Dot(to, along);
  return t > tolerance && Distance(end, start) - tolerance > t;
}

bool OverlapLine(Point const& a0, Point const& a1, Point const& b0, Point const& b1,
                 double tolerance) {
  auto const along = Unit(a1 - a0);
  double const length = Distance(a1, a0);
  if (Length(Cross(b0 - a0, along)) > tolerance || Length(Cross(b1 - a0, along)) > tolerance)
    return false;
  double const t0 = Dot(b0 - a0, along);
  double const t1 = Dot(b1 - a0, along);
  if (Distance(b0, a0) < tolerance && t1 < 0) return false;
  if (Distance(b0, a1) < tolerance && t1 > length) return false;
  if (Distance(b1, a0) < tolerance && t0 < 0) return false;
  if (Distance(b1, a1) < tolerance && t0 > length) return false;
  if (t0 < 0 && t1 < 0) return false;
  return !(t0 > length && t1 > length);
}

bool OverlapPlate(Corners a, Corners corners, double tolerance) {
  Ring b(corners.begin(), corners.end());
  Corners const ring(b.data(), b.size());
  if (ShareEdges(a, ring, tolerance)) return true;
  Util::CBox3D box;
  for (auto const& corner : b) box.AddPoint(corner);
  if (!HasCornerIn(a, box)) return false;
  auto const normal = NormalOf(a);
  double const cosine = Dot(normal, NormalOf(ring));
  if (std::abs(cosine) < kParallelCosine) return false;
  if (cosine < 0) std::swap(b[0], b[2]);
  if (std::abs(Dot(b[0] - a[0], normal)) > tolerance) return false;
  return HasCornerInside(a, ring) || HaveCrossingEdges(a, ring);
}

}  // namespace Tarvex::Overlaps
