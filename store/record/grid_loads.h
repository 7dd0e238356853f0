// Loads that are given on a grid surface, whatever elements take them.
#pragma once

#include <array>
#include <vector>

#include "store/geometry/polygon.h"
#include "store/numeric/direction.h"
#include "store/record/entity.h"
#include "store/select/checked_access.h"

namespace Tarvex::Data {

/// What gives the outline of a load on a grid. The numbers are part of model files: never change
/// one.
enum class GridLoadShape : int {
  None = 1,      ///< no outline: an area load covers the whole surface
  Polyline = 2,  ///< a polyline of the model
  Polygon = 3,   ///< points of the load's own
};

/// A load of a load case on a grid surface.
class CGridLoadBase : public BaseEntity {
 public:
  /// Number of the load case, 0 for none.
  int LoadCase() const { return m_loadCase; }
  void SetLoadCase(int loadCase) { m_loadCase = loadCase; }
  /// Number of the grid surface.
  int Surface() const { return m_surface; }
  void SetSurface(int surface) { m_surface = surface; }
  /// Axis of the direction, 0 for the global one.
  int Axis() const { return m_axis; }
  void SetAxis(int axis) { m_axis = axis; }
  Direction GetDirection() const { return m_direction; }
  void SetDirection(Direction direction) { m_direction = direction; }
  /// Whether the load counts per length or area of the projection at a right angle to it.
  bool IsProjected() const { return m_projected; }
  void SetIsProjected(bool projected) { m_projected = projected; }

 protected:
  CGridLoadBase() = default;
  CGridLoadBase(int surface, int loadCase, int axis, bool projected, Direction direction)
      : m_loadCase(loadCase),
        m_surface(surface),
        m_axis(axis),
        m_direction(direction),
        m_projected(projected) {}

  /// Fields of the bases, which come first in every load on a grid.
  template <class Record>
  static constexpr auto GridLoadFields() {
    return MakeRows(
        SidField<Record>(),
        Reference<Record, CModule::LoadCaseTitle>("loadCase", &CGridLoadBase::m_loadCase),
        Reference<Record, CModule::GridSurface>("surface", &CGridLoadBase::m_surface),
        Reference<Record, CModule::Axis>("axis", &CGridLoadBase::m_axis),
        Plain<Record>("direction", &CGridLoadBase::m_direction),
        Plain<Record>("projected", &CGridLoadBase::m_projected));
  }

 private:
  int m_loadCase = 0;
  int m_surface = 0;
  int m_axis = 0;
  Direction m_direction = Direction::Z;
  bool m_projected = false;
};

/// A force at a point of a grid surface.
class CGridPointLoad : public CGridLoadBase {
 public:
  /// The point in the plane of the surface, model length units.
  Vec2<double> const& GridCoor() const { return m_point; }
  void SetGridCoor(Vec2<double> const& point) { m_point = point; }
  /// Model force units.
  double Value() const { return m_value; }
  void SetValue(double value) { m_value = value; }

  friend bool operator==(CGridPointLoad const& a, CGridPointLoad const& b) { return Same(a, b); }

  static constexpr auto Fields() {
    return JoinRows(GridLoadFields<CGridPointLoad>(),
                    MakeRows(Plain<CGridPointLoad>("gridCoor", &CGridPointLoad::m_point),
                             Plain<CGridPointLoad>("value", &CGridPointLoad::m_value)));
  }

 private:
  Vec2<double> m_point{};
  double m_value = 0;
};

/// A load on a grid that has an outline.
class CGridShapeLoad : public CGridLoadBase {
 public:
  using Shape = GridLoadShape;

  /// The points of the load's own, in the plane of the surface and model length units.
  CPolygon Polygon() const {
    CPolygon polygon;
    for (auto const& point : m_points) polygon.AddPoint(point);
    return polygon;
  }
  /// @param use whether these points are the outline from now on.
  void SetPolygon(CPolygon const& polygon, bool use) {
    m_points = polygon.Points();
    if (use) m_shape = Shape::Polygon;
  }
  /// Number of a polyline, 0 for none.
  int PolyRef() const { return m_polyRef; }
  /// @param use whether the polyline is the outline from now on.
  void SetPolyRef(int polyline, bool use) {
    m_polyRef = polyline;
    if (use) m_shape = Shape::Polyline;
  }

 protected:
  CGridShapeLoad() = default;
  CGridShapeLoad(int surface, Shape shape, int polyRef, int loadCase, int axis, bool projected,
                 Direction direction)
      : CGridLoadBase(surface, loadCase, axis, projected, direction),
        m_shape(shape),
        m_polyRef(polyRef) {}

  Shape GetShape() const { return m_shape; }
  void SetShape(Shape shape) { m_shape = shape; }

  /// Fields of the bases; a file names the shape as the class does.
  template <class Record>
  static constexpr auto ShapeFields(std::string_view shape) {
    return JoinRows(
        GridLoadFields<Record>(),
        MakeRows(Plain<Record>(shape, &CGridShapeLoad::m_shape),
                 Plain<Record>("polygon", &CGridShapeLoad::m_points),
                 Reference<Record, CModule::Polyline>("polyRef", &CGridShapeLoad::m_polyRef)));
  }

 private:
  Shape m_shape = Shape::None;
  std::vector<Vec2<double>> m_points;
  int m_polyRef = 0;
};

/// A force along a line on a grid surface.
class CGridLineLoad : public CGridShapeLoad {
 public:
  CGridLineLoad() = default;
  /// @param polyRef the polyline that the load stands on, 0 for none yet.
  CGridLineLoad(int surface, int polyRef, int loadCase, int axis, bool projected,
                Direction direction, double start, double end)
      : CGridShapeLoad(surface, polyRef == 0 ? Shape::None : Shape::Polyline, polyRef, loadCase,
                       axis, projected, direction),
        m_values{start, end} {}

  /// What gives the line; without one there is no load.
  Shape Line() const { return GetShape(); }
  void SetLine(Shape line) { SetShape(line); }
  /// Force a length at the start and the end of the line, model units; place 0 or 1, any other is
  /// std::out_of_range.
  double Value(int place) const { return CheckedAt(m_values, place); }
  void SetValue(int place, double value) { CheckedAt(m_values, place) = value; }

  friend bool operator==(CGridLineLoad const& a, CGridLineLoad const& b) { return Same(a, b); }

  static constexpr auto Fields() {
    return JoinRows(ShapeFields<CGridLineLoad>("line"),
                    MakeRows(Plain<CGridLineLoad>("value", &CGridLineLoad::m_values)));
  }

 private:
  std::array<double, 2> m_values{};
};

/// A pressure on an area of a grid surface.
class CGridAreaLoad : public CGridShapeLoad {
 public:
  CGridAreaLoad() = default;
  CGridAreaLoad(int surface, Shape area, int polyRef, int loadCase, int axis, bool projected,
                Direction direction, double value)
      : CGridShapeLoad(surface, area, polyRef, loadCase, axis, projected, direction),
        m_value(value) {}

  /// What gives the outline of the area; without one the load covers the surface.
  Shape Area() const { return GetShape(); }
  void SetArea(Shape area) { SetShape(area); }
  /// Model units.
  double Value() const { return m_value; }
  void SetValue(double value) { m_value = value; }

  friend bool operator==(CGridAreaLoad const& a, CGridAreaLoad const& b) { return Same(a, b); }

  static constexpr auto Fields() {
    return JoinRows(ShapeFields<CGridAreaLoad>("area"),
                    MakeRows(Plain<CGridAreaLoad>("value", &CGridAreaLoad::m_value)));
  }

 private:
  double m_value = 0;
};

}  // namespace Tarvex::Data
