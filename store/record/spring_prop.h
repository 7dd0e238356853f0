// Spring properties, of spring elements and of nodes on springs.
#pragma once

#include <array>

#include "store/export.h"
#include "store/numeric/direction.h"
#include "store/record/entity.h"

namespace Tarvex {

/// How a spring acts. The numbers are part of files.
enum class SpringType : int {
  General = 0,      ///< each direction by its stiffness, or by its curve
  Axial = 1,        ///< along the element only
  Torsional = 2,    ///< about the element only
  Matrix = 3,       ///< directions act on each other by a matrix
  Tension = 4,      ///< along the element, in tension only
  Compression = 5,  ///< along the element, in compression only
  Gap = 6,          ///< once it is closed
  Lockup = 7,       ///< stiff beyond its limits
  Friction = 8,     ///< across the element, up to what friction holds
};

namespace Data {

/// A spring; values in model units, rotations in radians.
class TARVEX_STORE_EXPORT CSpringProp : public NamedEntity {
 public:
  CSpringProp() = default;
  /// @param x, y, z force by displacement. @param xx, yy, zz moment by rotation. @param lateral
  /// stiffness of a friction spring across its element. @param matrix number in the table of
  /// matrices. @param lower, upper displacements at which a lock-up spring becomes stiff.
  CSpringProp(CString const& name, SpringType type, double x, double y, double z, double xx,
              double yy, double zz, double lateral, int matrix, double friction, double lower,
              double upper)
      : NamedEntity(0, name),
        m_type(type),
        m_stiffness{x, y, z, xx, yy, zz},
        m_lateral(lateral),
        m_matrix(matrix),
        m_friction(friction),
        m_lower(lower),
        m_upper(upper) {}

  SpringType Type() const { return m_type; }
  void SetType(SpringType type) { m_type = type; }
  /// Throws std::out_of_range for a direction that there is not.
  double Stiffness(Direction direction) const;
  void SetStiffness(Direction direction, double stiffness);
  double LateralStiffness() const { return m_lateral; }
  void SetLateralStiffness(double stiffness) { m_lateral = stiffness; }
  /// Number of the curve of force over displacement in the place of a stiffness, 0 for none. The
  /// translations can have one; any other direction throws std::out_of_range.
  int TableRef(Direction direction) const;
  void SetTableRef(Direction direction, int const& table);
  /// Number of the matrix of a matrix spring, 0 for none.
  int Matrix() const { return m_matrix; }
  void SetMatrix(int matrix) { m_matrix = matrix; }
  double FrictionCoefficient() const { return m_friction; }
  void SetFrictionCoefficient(double coefficient) { m_friction = coefficient; }
  double LowerLimit() const { return m_lower; }
  double UpperLimit() const { return m_upper; }
  void SetLimits(double lower, double upper) {
    m_lower = lower;
    m_upper = upper;
  }

  friend bool operator==(CSpringProp const& a, CSpringProp const& b) { return Same(a, b); }

  static constexpr auto Fields() {
    using R = CSpringProp;
    return JoinRows(
        NamedFields<R>(),
        MakeRows(Plain<R>("type", &R::m_type), Plain<R>("stiffness", &R::m_stiffness),
                 Plain<R>("lateralStiffness", &R::m_lateral),
                 Reference<R, CModule::MatCurve>("tableRef", &R::m_tableRef),
                 Reference<R, CModule::MatMatrix>("matrix", &R::m_matrix),
                 Plain<R>("frictionCoefficient", &R::m_friction),
                 Plain<R>("lowerLimit", &R::m_lower), Plain<R>("upperLimit", &R::m_upper)));
  }

 private:
  SpringType m_type = SpringType::General;
  std::array<double, 6> m_stiffness{};
  double m_lateral = 0;
  std::array<int, 3> m_tableRef{};
  int m_matrix = 0;
  double m_friction = 0;
  double m_lower = 0;
  double m_upper = 0;
};

}  // namespace Data
}  // namespace Tarvex
