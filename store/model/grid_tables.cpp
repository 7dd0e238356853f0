#include "store/model/grid_tables.h"

#include "store/model/model_core.h"
#include "store/model/table_ops.h"

namespace Tarvex {

// The operations of a table: its stem, its record and its place in the state.
#define TARVEX_DEFINE_TABLE(Stem, Record, table)                                     \
  bool GridTables::Stem##Exist(int n) const { return m_core.state.table.Exist(n); }  \
  Data::Record const& GridTables::Stem(int n) const {                                \
    return TableOps::Get(m_core.state.table, #Stem, n);                              \
  }                                                                                  \
  tarvex_unordered_map<unsigned int, Data::Record> const& GridTables::Stem() const { \
    return m_core.state.table;                                                       \
  }                                                                                  \
  int GridTables::Highest##Stem() const { return m_core.state.table.Highest(); }     \
  void GridTables::Set##Stem(int n, Data::Record const& record, SidMode sid) {       \
    TableOps::Store(m_core.state.table, n, record, sid);                             \
  }                                                                                  \
  void GridTables::Blank##Stem(int first, int count) { m_core.state.table.Remove(first, count); }

TARVEX_DEFINE_TABLE(GridPlane, CGridPlane, gridPlane)
TARVEX_DEFINE_TABLE(GridSurface, CGridSurface, gridSurface)
TARVEX_DEFINE_TABLE(GridLine, CGridLine, gridLine)
TARVEX_DEFINE_TABLE(Polyline, CPolyline, polyline)
TARVEX_DEFINE_TABLE(Alignment, CAlignment, alignment)
TARVEX_DEFINE_TABLE(Block, CBlock, block)
TARVEX_DEFINE_TABLE(Assembly, CAssembly, assembly)
TARVEX_DEFINE_TABLE(GrView, CGrView, grView)
TARVEX_DEFINE_TABLE(OpView, COpView, opView)

#undef TARVEX_DEFINE_TABLE

void GridTables::SetGridSurface(int n, Data::CGridSurface const& surface, bool, SidMode sid) {
  SetGridSurface(n, surface, sid);
}

}  // namespace Tarvex
