// Loads on elements and members with two ends.
#pragma once

#include <array>

#include "store/record/load_base.h"
#include "store/select/checked_access.h"

namespace Tarvex::Data {

/// A force or moment along a line.
class CBeamLoad : public CElementLoadBase {
 public:
  /// How the load is spread. The numbers are part of model files: never change one.
  enum class LoadType : int {
    Point = 1,      ///< Value(0) at Pos(0)
    Uniform = 2,    ///< Value(0) all along
    Linear = 3,     ///< from Value(0) at end 1 to Value(1) at end 2
    Patch = 4,      ///< from Value(0) at Pos(0) to Value(1) at Pos(1)
    Trilinear = 5,  ///< as Patch, with a run from 0 at end 1 and to 0 at end 2
  };

  /// Axis of the direction, 0 for the global one.
  int Axis() const { return m_axis; }
  void SetAxis(int axis) { m_axis = axis; }
  LoadType TypeOf() const { return m_type; }
  void SetType(LoadType type) { m_type = type; }
  Direction GetDirection() const { return m_direction; }
  void SetDirection(Direction direction) { m_direction = direction; }
  /// Whether the load counts per length of the line's projection at a right angle to it.
  bool IsProjected() const { return m_projected; }
  void SetIsProjected(bool projected) { m_projected = projected; }
  /// Distance from end 1, model length units; place 0 or 1, any other is std::out_of_range.
  double Pos(int place) const { return CheckedAt(m_positions, place); }
  void SetPos(int place, double position) { CheckedAt(m_positions, place) = position; }
  /// Force or force a length, model units; place 0 or 1, any other is std::out_of_range.
  double Value(int place) const { return CheckedAt(m_values, place); }
  void SetValue(int place, double value) { CheckedAt(m_values, place) = value; }

  friend bool operator==(CBeamLoad const& a, CBeamLoad const& b) { return Same(a, b); }

  static constexpr auto Fields() {
    return JoinRows(ElementLoadFields<CBeamLoad>(),
                    MakeRows(Plain<CBeamLoad>("type", &CBeamLoad::m_type),
                             Reference<CBeamLoad, CModule::Axis>("axis", &CBeamLoad::m_axis),
                             Plain<CBeamLoad>("direction", &CBeamLoad::m_direction),
                             Plain<CBeamLoad>("projected", &CBeamLoad::m_projected),
                             Plain<CBeamLoad>("pos", &CBeamLoad::m_positions),
                             Plain<CBeamLoad>("value", &CBeamLoad::m_values)));
  }

 private:
  LoadType m_type = LoadType::Uniform;
  int m_axis = 0;
  Direction m_direction = Direction::Z;
  bool m_projected = false;
  std::array<double, 2> m_positions{};
  std::array<double, 2> m_values{};
};

/// A jump of displacement or rotation at a point of a line.
class CBeamDist : public CElementLoadBase {
 public:
  /// Distance from end 1, model length units.
  double Pos() const { return m_position; }
  void SetPos(double position) { m_position = position; }
  /// In local axes.
  Direction GetDirection() const { return m_direction; }
  void SetDirection(Direction direction) { m_direction = direction; }
  /// Model length units, radians for rotations.
  double Value() const { return m_value; }
  void SetValue(double value) { m_value = value; }

  friend bool operator==(CBeamDist const& a, CBeamDist const& b) { return Same(a, b); }

  static constexpr auto Fields() {
    return JoinRows(ElementLoadFields<CBeamDist>(),
                    MakeRows(Plain<CBeamDist>("pos", &CBeamDist::m_position),
                             Plain<CBeamDist>("direction", &CBeamDist::m_direction),
                             Plain<CBeamDist>("value", &CBeamDist::m_value)));
  }

 private:
  double m_position = 0;
  Direction m_direction = Direction::X;
  double m_value = 0;
};

/// An initial force, lack of fit or the like that acts along the whole of a line.
class CAxialLoad : public CElementLoadBase {
 public:
  /// Tension above 0, model force units.
  double Value() const { return m_value; }
  void SetValue(double value) { m_value = value; }

  friend bool operator==(CAxialLoad const& a, CAxialLoad const& b) { return Same(a, b); }

  static constexpr auto Fields() {
    return JoinRows(ElementLoadFields<CAxialLoad>(),
                    MakeRows(Plain<CAxialLoad>("value", &CAxialLoad::m_value)));
  }

 private:
  double m_value = 0;
};

/// A change of temperature of a line.
class CBeamThermalLoad : public CElementLoadBase {
 public:
  /// The numbers are part of model files: never change one.
  enum class ThermalType : int {
    Uniform = 1,    ///< Value(0)
    GradientY = 2,  ///< from Value(0) at the low to Value(1) at the high face across local y
    GradientZ = 3,  ///< the same across local z
  };

  ThermalType TypeOf() const { return m_type; }
  void SetType(ThermalType type) { m_type = type; }
  /// Model temperature units; place 0 or 1, any other is std::out_of_range.
  double Value(int place) const { return CheckedAt(m_values, place); }
  void SetValue(int place, double value) { CheckedAt(m_values, place) = value; }

  friend bool operator==(CBeamThermalLoad const& a, CBeamThermalLoad const& b) {
    return Same(a, b);
  }

  static constexpr auto Fields() {
    return JoinRows(ElementLoadFields<CBeamThermalLoad>(),
                    MakeRows(Plain<CBeamThermalLoad>("type", &CBeamThermalLoad::m_type),
                             Plain<CBeamThermalLoad>("value", &CBeamThermalLoad::m_values)));
  }

 private:
  ThermalType m_type = ThermalType::Uniform;
  std::array<double, 2> m_values{};
};

}  // namespace Tarvex::Data
