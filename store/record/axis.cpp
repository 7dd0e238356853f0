#include "store/record/axis.h"

namespace Tarvex::Data {

CAxis::CAxis(CString const& name, AxisType type, Vec3<double> const& origin, Vec3<double> const& x,
             Vec3<double> const& xy)
    : NamedEntity(0, name), m_type(type), m_origin(origin), m_x(x), m_xy(xy) {}

}  // namespace Tarvex::Data
