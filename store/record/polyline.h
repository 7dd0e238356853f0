// Polylines: rows of points that grid loads are laid out along.
#pragma once

#include <vector>

#include "store/geometry/polygon.h"
#include "store/record/entity.h"

namespace Tarvex::Data {

/// A named row of points in a grid plane.
class TARVEX_STORE_EXPORT CPolyline : public NamedEntity {
 public:
  CPolyline() = default;
  CPolyline(CString const& name, int plane, std::vector<Vec2<double>> points)
      : NamedEntity(0, name), m_plane(plane), m_points(std::move(points)) {}

  /// Number of the grid plane, 0 for the global xy plane.
  int Plane() const { return m_plane; }
  void SetPlane(int plane) { m_plane = plane; }
  /// The points in the co-ordinates of the plane's axis, model length units.
  std::vector<Vec2<double>> const& Points() const { return m_points; }
  void SetPoints(std::vector<Vec2<double>> points) { m_points = std::move(points); }

  /// The points as an outline with the tolerance of polygons.
  CPolygon Polygon() const;

  friend bool operator==(CPolyline const& a, CPolyline const& b) { return Same(a, b); }

  static constexpr auto Fields() {
    return JoinRows(NamedFields<CPolyline>(),
                    MakeRows(Reference<CPolyline, CModule::GridPlane>("plane", &CPolyline::m_plane),
                             Plain<CPolyline>("points", &CPolyline::m_points)));
  }

 private:
  int m_plane = 0;
  std::vector<Vec2<double>> m_points;
};

}  // namespace Tarvex::Data
