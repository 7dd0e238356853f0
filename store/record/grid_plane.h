// Grid planes: levels of an axis, storeys among them.
#pragma once

#include "store/record/entity.h"

namespace Tarvex::Data {

/// A named plane at a right angle to the z direction of an axis.
class CGridPlane : public NamedEntity {
 public:
  CGridPlane() = default;
  CGridPlane(CString const& name, int axis, double elevation, bool storey)
      : NamedEntity(0, name), m_axis(axis), m_elevation(elevation), m_storey(storey) {}

  /// Number of the axis, 0 for the global one.
  int Axis() const { return m_axis; }
  void SetAxis(int axis) { m_axis = axis; }
  /// Distance from the origin of the axis along its z direction, model length units.
  double Elevation() const { return m_elevation; }
  void SetElevation(double elevation) { m_elevation = elevation; }
  /// Whether the plane is the level of a storey.
  bool IsStorey() const { return m_storey; }
  void SetStorey(bool storey) { m_storey = storey; }

  friend bool operator==(CGridPlane const& a, CGridPlane const& b) { return Same(a, b); }

  static constexpr auto Fields() {
    return JoinRows(NamedFields<CGridPlane>(),
                    MakeRows(Reference<CGridPlane, CModule::Axis>("axis", &CGridPlane::m_axis),
                             Plain<CGridPlane>("elevation", &CGridPlane::m_elevation),
                             Plain<CGridPlane>("storey", &CGridPlane::m_storey)));
  }

 private:
  int m_axis = 0;
  double m_elevation = 0;
  bool m_storey = false;
};

}  // namespace Tarvex::Data
