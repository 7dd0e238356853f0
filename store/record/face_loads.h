// Loads on plates: on their face, along their edges and in their plane.
#pragma once

#include <array>

#include "store/numeric/vec.h"
#include "store/record/load_base.h"
#include "store/select/checked_access.h"

namespace Tarvex::Data {

/// How a load on the face of a plate acts, whatever its values.
class CFaceLoadBase : public CElementLoadBase {
 public:
  /// How the load is spread. The numbers are part of model files: never change one.
  enum class Load2D : int {
    Uniform = 1,    ///< Value(0) all over
    PerCorner = 2,  ///< a value a corner
    Point = 3,      ///< Value(0) at Position()
  };

  /// Axis of the direction, 0 for the global one.
  int Axis() const { return m_axis; }
  void SetAxis(int axis) { m_axis = axis; }
  Load2D TypeOf() const { return m_type; }
  void SetType(Load2D type) { m_type = type; }
  Direction GetDirection() const { return m_direction; }
  void SetDirection(Direction direction) { m_direction = direction; }
  /// Whether the load counts per area of the plate's projection at a right angle to it.
  bool IsProjected() const { return m_projected; }
  void SetIsProjected(bool projected) { m_projected = projected; }
  /// Natural co-ordinates r, s of a point load.
  Vec2<double> const& Position() const { return m_position; }
  void SetPosition(Vec2<double> const& position) { m_position = position; }

 protected:
  /// Fields of the bases, which come first.
  template <class Record>
  static constexpr auto FaceLoadFields() {
    return JoinRows(ElementLoadFields<Record>(),
                    MakeRows(Plain<Record>("type", &CFaceLoadBase::m_type),
                             Reference<Record, CModule::Axis>("axis", &CFaceLoadBase::m_axis),
                             Plain<Record>("direction", &CFaceLoadBase::m_direction),
                             Plain<Record>("projected", &CFaceLoadBase::m_projected),
                             Plain<Record>("position", &CFaceLoadBase::m_position)));
  }

 private:
  Load2D m_type = Load2D::Uniform;
  int m_axis = 0;
  Direction m_direction = Direction::Z;
  bool m_projected = false;
  Vec2<double> m_position{};
};

/// A pressure on, or a force at a point of, the face of a plate.
class CFaceLoad : public CFaceLoadBase {
 public:
  /// Pressure or force, model units; place 0 to 3, any other is std::out_of_range.
  double Value(int place) const { return CheckedAt(m_values, place); }
  void SetValue(int place, double value) { CheckedAt(m_values, place) = value; }

  friend bool operator==(CFaceLoad const& a, CFaceLoad const& b) { return Same(a, b); }

  static constexpr auto Fields() {
    return JoinRows(FaceLoadFields<CFaceLoad>(),
                    MakeRows(Plain<CFaceLoad>("value", &CFaceLoad::m_values)));
  }

 private:
  std::array<double, 4> m_values{};
};

/// A force along an edge of a plate.
class CEdgeLoad : public CElementLoadBase {
 public:
  /// Axis of the direction, 0 for the global one.
  int Axis() const { return m_axis; }
  void SetAxis(int axis) { m_axis = axis; }
  Direction GetDirection() const { return m_direction; }
  void SetDirection(Direction direction) { m_direction = direction; }
  /// The edge, from 1: edge i begins at corner i.
  int Edge() const { return m_edge; }
  void SetEdge(int edge) { m_edge = edge; }
  /// Force a length at the start and the end of the edge, model units; place 0 or 1, any other is
  /// std::out_of_range.
  double Value(int place) const { return CheckedAt(m_values, place); }
  void SetValue(int place, double value) { CheckedAt(m_values, place) = value; }

  friend bool operator==(CEdgeLoad const& a, CEdgeLoad const& b) { return Same(a, b); }

  static constexpr auto Fields() {
    return JoinRows(ElementLoadFields<CEdgeLoad>(),
                    MakeRows(Reference<CEdgeLoad, CModule::Axis>("axis", &CEdgeLoad::m_axis),
                             Plain<CEdgeLoad>("direction", &CEdgeLoad::m_direction),
                             Plain<CEdgeLoad>("edge", &CEdgeLoad::m_edge),
                             Plain<CEdgeLoad>("value", &CEdgeLoad::m_values)));
  }

 private:
  int m_axis = 0;
  Direction m_direction = Direction::X;
  int m_edge = 1;
  std::array<double, 2> m_values{};
};

/// An initial force in the plane of a plate.
class CInPlaneLoad : public CElementLoadBase {
 public:
  /// Axis that x and y are those of, 0 for the global one.
  int Axis() const { return m_axis; }
  void SetAxis(int axis) { m_axis = axis; }
  /// Force a length along x, along y and in shear, model units; place 0 to 2, any other is
  /// std::out_of_range.
  double Value(int place) const { return CheckedAt(m_values, place); }
  void SetValue(int place, double value) { CheckedAt(m_values, place) = value; }

  friend bool operator==(CInPlaneLoad const& a, CInPlaneLoad const& b) { return Same(a, b); }

  static constexpr auto Fields() {
    return JoinRows(ElementLoadFields<CInPlaneLoad>(),
                    MakeRows(Reference<CInPlaneLoad, CModule::Axis>("axis", &CInPlaneLoad::m_axis),
                             Plain<CInPlaneLoad>("value", &CInPlaneLoad::m_values)));
  }

 private:
  int m_axis = 0;
  std::array<double, 3> m_values{};
};

/// A change of temperature of a plate.
class CFaceThermalLoad : public CElementLoadBase {
 public:
  /// The numbers are part of model files: never change one.
  enum class ThermalType : int {
    Uniform = 1,    ///< Value(0)
    Gradient = 2,   ///< Value(0) at the top, Value(1) at the bottom
    PerCorner = 8,  ///< Value(2k) at the top and Value(2k + 1) at the bottom of corner k
  };

  ThermalType TypeOf() const { return m_type; }
  void SetType(ThermalType type) { m_type = type; }
  /// Model temperature units; place 0 to 7, any other is std::out_of_range.
  double Value(int place) const { return CheckedAt(m_values, place); }
  void SetValue(int place, double value) { CheckedAt(m_values, place) = value; }

  friend bool operator==(CFaceThermalLoad const& a, CFaceThermalLoad const& b) {
    return Same(a, b);
  }

  static constexpr auto Fields() {
    return JoinRows(ElementLoadFields<CFaceThermalLoad>(),
                    MakeRows(Plain<CFaceThermalLoad>("type", &CFaceThermalLoad::m_type),
                             Plain<CFaceThermalLoad>("value", &CFaceThermalLoad::m_values)));
  }

 private:
  ThermalType m_type = ThermalType::Uniform;
  std::array<double, 8> m_values{};
};

}  // namespace Tarvex::Data
