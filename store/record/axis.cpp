#include "store/record/axis.h"

#include "store/geometry/axis_trans.h"

namespace Tarvex::Data {

CAxis::CAxis(CString const& name, AxisType type, Vec3<double> const& origin, Vec3<double> const& x,
             Vec3<double> const& xy)
    : NamedEntity(0, name), m_type(type), m_origin(origin), m_x(x), m_xy(xy) {}

Util::CDirCos CAxis::DirCos(Vec3<double> const& point) const {
  return Util::CAxisTrans(*this).DirCos(point);
}

}  // namespace Tarvex::Data
