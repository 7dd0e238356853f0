#include "store/model/geometry_tables.h"

#include "store/model/model_core.h"
#include "store/model/table_ops.h"

namespace Tarvex {

bool GeometryTables::AxisExist(int n) const { return m_core.state.axis.Exist(n); }

Data::CAxis const& GeometryTables::Axis(int n) const {
  static Data::CAxis const kGlobal;
  return n == 0 ? kGlobal : TableOps::Get(m_core.state.axis, "Axis", n);
}

tarvex_unordered_map<unsigned int, Data::CAxis> const& GeometryTables::Axis() const {
  return m_core.state.axis;
}

int GeometryTables::HighestAxis() const { return m_core.state.axis.Highest(); }

void GeometryTables::SetAxis(int n, Data::CAxis const& axis, SidMode sid) {
  TableOps::Store(m_core.state.axis, n, axis, sid);
}

void GeometryTables::BlankAxis(int first, int count) { m_core.state.axis.Remove(first, count); }

}  // namespace Tarvex
