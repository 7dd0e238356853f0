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

bool GeometryTables::ListExist(int n) const { return m_core.state.list.Exist(n); }

Data::CEntList const& GeometryTables::List(int n) const {
  return TableOps::Get(m_core.state.list, "List", n);
}

tarvex_unordered_map<unsigned int, Data::CEntList> const& GeometryTables::List() const {
  return m_core.state.list;
}

int GeometryTables::HighestList() const { return m_core.state.list.Highest(); }

void GeometryTables::SetList(int n, Data::CEntList const& list, SidMode sid) {
  TableOps::Store(m_core.state.list, n, list, sid);
}

void GeometryTables::BlankList(int first, int count) { m_core.state.list.Remove(first, count); }

}  // namespace Tarvex
