// User axes.
#pragma once

#include "store/numeric/dir_cos.h"
#include "store/record/entity.h"

namespace Tarvex {

/// How co-ordinates are given in an axis.
enum class AxisType : int { Cartesian = 1, Cylindrical = 2, Spherical = 3 };

namespace Data {

/// A named axis: origin, x direction and a vector in its xy plane, both relative to the origin and
/// in global components. The default is the global axis.
class TARVEX_STORE_EXPORT CAxis : public NamedEntity {
 public:
  CAxis() = default;
  CAxis(CString const& name, AxisType type, Vec3<double> const& origin, Vec3<double> const& x,
        Vec3<double> const& xy);

  AxisType Type() const { return m_type; }
  Vec3<double> const& Origin() const { return m_origin; }
  void SetOrigin(Vec3<double> const& origin) { m_origin = origin; }
  /// Unit vectors in global components. Directions that span no plane give the global ones.
  Vec3<double> XAxis() const { return Frame().AxisVec(Direction::X); }
  Vec3<double> YAxis() const { return Frame().AxisVec(Direction::Y); }
  Vec3<double> ZAxis() const { return Frame().AxisVec(Direction::Z); }
  /// The frame of x, y and z.
  Util::CDirCos Frame() const { return {m_x, m_xy}; }
  /// The frame of the axis's co-ordinates at a point in global axes, right-handed. Cartesian: as
  /// Frame. Cylindrical: outwards from the z axis, tangential, z. Spherical: outwards from the
  /// origin, tangential about the z axis, and the third at a right angle to both, towards positive
  /// z. On the z axis the tangential direction is y, and at the origin the frame is as Frame.
  Util::CDirCos DirCos(Vec3<double> const& point) const;

  friend bool operator==(CAxis const& a, CAxis const& b) { return Same(a, b); }

  static constexpr auto Fields() {
    return JoinRows(
        NamedFields<CAxis>(),
        MakeRows(Plain<CAxis>("type", &CAxis::m_type), Plain<CAxis>("origin", &CAxis::m_origin),
                 Plain<CAxis>("x", &CAxis::m_x), Plain<CAxis>("xy", &CAxis::m_xy)));
  }

 private:
  AxisType m_type = AxisType::Cartesian;
  Vec3<double> m_origin;
  Vec3<double> m_x{1, 0, 0};
  Vec3<double> m_xy{0, 1, 0};
};

}  // namespace Data
}  // namespace Tarvex
