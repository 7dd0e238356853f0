// Polygons and polylines in a plane.
#pragma once

#include <memory>
#include <vector>

#include "store/export.h"
#include "store/geometry/edge.h"
#include "store/numeric/vec.h"

namespace Tarvex::Data {

/// A row of points in a plane. As a polygon it closes from the last point to the first; as a
/// polyline it ends at the last. Either way round is right; vertices and edges count from 0, and
/// edge i begins at vertex i.
class TARVEX_STORE_EXPORT CPolygon {
 public:
  static constexpr double kTolerance = 0.001;

  /// @param tolerance distance up to which a point counts as one of a vertex or an edge, in model
  /// length units.
  explicit CPolygon(double tolerance = kTolerance) : m_tolerance(tolerance) {}

  double Tolerance() const { return m_tolerance; }
  int NumPoint() const { return static_cast<int>(m_points.size()); }
  std::vector<Vec2<double>> const& Points() const { return m_points; }
  /// Throws std::out_of_range for a number without a point.
  Vec2<double> Point(int index) const;
  void SetPoint(int index, Vec2<double> point);
  void AddPoint(Vec2<double> point) { m_points.push_back(point); }
  /// Adds the point's plan: its x and y.
  void AddPoint(Vec3<double> const& point) { AddPoint(Vec2<double>{point.x, point.y}); }

  /// Whether a vertex stands at the point, and the nearest such one, the lowest of several.
  bool PointExist(Vec2<double> point, int& vertex) const;
  /// Whether an edge passes through the point, and the nearest such one, the lowest of several.
  /// @param fraction where on the edge, from 0 to 1. Both are untouched when the result is false.
  bool PointOnEdge(Vec2<double> point, int& edge, double& fraction) const;
  /// Whether the point lies inside. @param boundary the answer for a point on an edge.
  bool PointInside(Vec2<double> point, bool boundary) const;

  /// Area inside, whichever way round; a part that the outline runs round twice counts twice.
  double Area() const;
  /// Centroid of the area; without area that of the outline, without points the origin.
  Vec2<double> Centroid() const;
  /// Length from the first point to the last, not closed.
  double Length() const;
  /// Length from the first point to another one. Throws std::out_of_range for a number without a
  /// point.
  double Length(int index) const;

  /// Whether the outline runs straight through vertices on the way from one corner to the next.
  /// Such vertices keep their place and number; Corners leaves them out.
  bool Straight() const { return m_straight; }
  void SetStraight(bool straight) { m_straight = straight; }
  /// The vertices that are corners, ascending. All of them unless the polygon is straight; then
  /// those without which the outline would move by more than the tolerance.
  std::vector<int> Corners() const;

  std::unique_ptr<CPolygon> Clone() const { return std::make_unique<CPolygon>(*this); }

  friend bool operator==(CPolygon const&, CPolygon const&) = default;

 private:
  CEdge Edge(int from, int to) const { return {Point(from), Point(to)}; }
  int Next(int vertex) const { return vertex + 1 < NumPoint() ? vertex + 1 : 0; }
  int WindingNumber(Vec2<double> point) const;
  bool RunsStraight(int from, int to) const;
  Vec2<double> OutlineCentroid() const;

  double m_tolerance;
  bool m_straight = false;
  std::vector<Vec2<double>> m_points;
};

}  // namespace Tarvex::Data
