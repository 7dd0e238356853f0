// Offsets of the ends of 1D entities and of the plane of 2D ones.
#pragma once

#include <array>

#include "store/record/field.h"

namespace Tarvex {

/// Whether the axial offset of an end follows from what is connected there.
enum class AutoOffset : int { Off = 0, On = 1 };

/// How the offset of an end was asked for; kept for the application.
enum class OffsetType : int { Given = 0, Derived = 1 };

namespace Data {

/// Offsets of an entity from its nodes, in local axes and model length units. An end is 0 (start)
/// or
/// 1. A positive axial offset pulls the end into the entity, at either end.
class COffset {
 public:
  COffset() = default;
  COffset(double x1, double x2, double y, double z) : m_x1(x1), m_x2(x2), m_y(y), m_z(z) {}

  double X1() const { return m_x1; }
  double X2() const { return m_x2; }
  double X(int end) const { return end == 0 ? m_x1 : m_x2; }
  double Axial(int end) const { return X(end); }
  /// The axial offset as it was given by the user.
  double X_user(int end) const { return X(end); }
  double Y() const { return m_y; }
  double Z() const { return m_z; }
  /// Vector from the node to the end, in local axes: its x is X1 at the start and -X2 at the end.
  Vec3<double> Vector(int end) const { return {end == 0 ? m_x1 : -m_x2, m_y, m_z}; }
  AutoOffset AutomaticOffset(int end) const { return m_auto[Place(end)]; }
  OffsetType Type(int end) const { return m_type[Place(end)]; }

  void SetX1(double x) { m_x1 = x; }
  void SetX2(double x) { m_x2 = x; }
  void SetX(int end, double x) { (end == 0 ? m_x1 : m_x2) = x; }
  void SetAxial(int end, double x) { SetX(end, x); }
  void SetY(double y) { m_y = y; }
  void SetZ(double z) { m_z = z; }
  void SetAuto(int end, AutoOffset const& automatic) { m_auto[Place(end)] = automatic; }
  void SetType(int end, OffsetType type) { m_type[Place(end)] = type; }

  /// True when any component is not 0 or an end is automatic.
  bool IsOffset() const {
    return m_x1 != 0 || m_x2 != 0 || m_y != 0 || m_z != 0 || m_auto[0] == AutoOffset::On ||
           m_auto[1] == AutoOffset::On;
  }

  friend bool operator==(COffset const& a, COffset const& b) { return Same(a, b); }
  static constexpr auto Fields() {
    return MakeRows(Plain<COffset>("x1", &COffset::m_x1), Plain<COffset>("x2", &COffset::m_x2),
                    Plain<COffset>("y", &COffset::m_y), Plain<COffset>("z", &COffset::m_z),
                    Plain<COffset>("auto", &COffset::m_auto),
                    Plain<COffset>("type", &COffset::m_type));
  }

 private:
  static std::size_t Place(int end) { return end == 0 ? 0 : 1; }

  double m_x1 = 0;
  double m_x2 = 0;
  double m_y = 0;
  double m_z = 0;
  std::array<AutoOffset, 2> m_auto{};
  std::array<OffsetType, 2> m_type{};
};

}  // namespace Data
}  // namespace Tarvex
