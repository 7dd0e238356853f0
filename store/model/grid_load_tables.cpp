#include "store/model/grid_load_tables.h"

#include "store/model/load_case_use.h"
#include "store/model/model_core.h"
#include "store/model/table_ops.h"

namespace Tarvex {

// The operations of a table: its stem, its record and its place in the state.
#define TARVEX_DEFINE_TABLE(Stem, Record, table)                                        \
  bool GridLoadTables::Stem##Exist(int n) const { return m_core.state.table.Exist(n); } \
  Data::Record const& GridLoadTables::Stem(int n) const {                               \
    return TableOps::Get(m_core.state.table, #Stem, n);                                 \
  }                                                                                     \
  std::vector<Data::Record> const& GridLoadTables::Stem() const {                       \
    return m_core.state.table.All();                                                    \
  }                                                                                     \
  int GridLoadTables::Highest##Stem() const { return m_core.state.table.Highest(); }    \
  void GridLoadTables::Set##Stem(int n, Data::Record const& record, SidMode sid) {      \
    TableOps::StoreLoad(m_core.loadCases, m_core.state.table, n, record, sid);          \
  }                                                                                     \
  void GridLoadTables::Delete##Stem(int first, int count) {                             \
    TableOps::RemoveLoads(m_core.loadCases, m_core.state.table, first, count);          \
  }

TARVEX_DEFINE_TABLE(GridPointLoad, CGridPointLoad, gridPointLoad)
TARVEX_DEFINE_TABLE(GridLineLoad, CGridLineLoad, gridLineLoad)
TARVEX_DEFINE_TABLE(GridAreaLoad, CGridAreaLoad, gridAreaLoad)

#undef TARVEX_DEFINE_TABLE

void GridLoadTables::SetGridPointLoad(int n, Data::CGridPointLoad const& load, bool, SidMode sid) {
  SetGridPointLoad(n, load, sid);
}

void GridLoadTables::SetGridLineLoad(int n, Data::CGridLineLoad const& load, bool, SidMode sid) {
  SetGridLineLoad(n, load, sid);
}

void GridLoadTables::SetGridAreaLoad(int n, Data::CGridAreaLoad const& load, bool, SidMode sid) {
  SetGridAreaLoad(n, load, sid);
}

}  // namespace Tarvex
