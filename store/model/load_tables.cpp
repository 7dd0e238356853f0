#include "store/model/load_tables.h"

#include "store/model/load_case_use.h"
#include "store/model/model_core.h"
#include "store/model/table_ops.h"

namespace Tarvex {

// The operations of a table but storing: its stem, its record and its place in the state.
#define TARVEX_DEFINE_READING(Stem, Record, table)                                               \
  bool LoadTables::Stem##Exist(int n) const { return m_core.state.table.Exist(n); }              \
  Data::Record const& LoadTables::Stem(int n) const {                                            \
    return TableOps::Get(m_core.state.table, #Stem, n);                                          \
  }                                                                                              \
  std::vector<Data::Record> const& LoadTables::Stem() const { return m_core.state.table.All(); } \
  int LoadTables::Highest##Stem() const { return m_core.state.table.Highest(); }                 \
  void LoadTables::Delete##Stem(int first, int count) {                                          \
    TableOps::RemoveLoads(m_core.loadCases, m_core.state.table, first, count);                   \
  }

// Storing. A node load is told the table that it stands in.
#define TARVEX_DEFINE_TABLE(Stem, Record, table)                               \
  TARVEX_DEFINE_READING(Stem, Record, table)                                   \
  void LoadTables::Set##Stem(int n, Data::Record const& record, SidMode sid) { \
    TableOps::StoreLoad(m_core.loadCases, m_core.state.table, n, record, sid); \
  }

#define TARVEX_DEFINE_NODE_TABLE(Stem, table)                                     \
  TARVEX_DEFINE_READING(Stem, CNodeLoad, table)                                   \
  void LoadTables::Set##Stem(int n, Data::CNodeLoad const& record, SidMode sid) { \
    TableOps::StoreLoad(m_core.loadCases, m_core.state.table, n, record, sid)     \
        .SetModule(CModule::Stem);                                                \
  }

TARVEX_DEFINE_NODE_TABLE(NodeLoad, nodeLoad)
TARVEX_DEFINE_NODE_TABLE(AppliedDisplacement, appliedDisplacement)
TARVEX_DEFINE_NODE_TABLE(Settlement, settlement)
TARVEX_DEFINE_TABLE(BeamLoad, CBeamLoad, beamLoad)
TARVEX_DEFINE_TABLE(AxialLoad, CAxialLoad, axialLoad)
TARVEX_DEFINE_TABLE(BeamDist, CBeamDist, beamDist)
TARVEX_DEFINE_TABLE(BeamThermalLoad, CBeamThermalLoad, beamThermalLoad)
TARVEX_DEFINE_TABLE(FaceLoad, CFaceLoad, faceLoad)
TARVEX_DEFINE_TABLE(EdgeLoad, CEdgeLoad, edgeLoad)
TARVEX_DEFINE_TABLE(InPlaneLoad, CInPlaneLoad, inPlaneLoad)
TARVEX_DEFINE_TABLE(FaceThermalLoad, CFaceThermalLoad, faceThermalLoad)
TARVEX_DEFINE_TABLE(BodyFaceLoad, CBodyFaceLoad, bodyFaceLoad)
TARVEX_DEFINE_TABLE(BodyThermalLoad, CBodyThermalLoad, bodyThermalLoad)
TARVEX_DEFINE_TABLE(GravityLoad, CGravityLoad, gravityLoad)

#undef TARVEX_DEFINE_TABLE
#undef TARVEX_DEFINE_NODE_TABLE
#undef TARVEX_DEFINE_READING

void LoadTables::SetFaceLoad(int n, Data::CFaceLoad const& load, bool, SidMode sid) {
  SetFaceLoad(n, load, sid);
}

// Changes of one list of a record: the name, the table and the setter of the record.
#define TARVEX_DEFINE_LIST(Name, Stem, table, Setter)          \
  void LoadTables::Name(int n, Data::CEntList const& list) {   \
    TableOps::Edit(m_core.state.table, #Stem, n).Setter(list); \
  }

TARVEX_DEFINE_LIST(SetNodeLoadItem, NodeLoad, nodeLoad, SetLoadedEntities)
TARVEX_DEFINE_LIST(SetAppliedDisplacementItem, AppliedDisplacement, appliedDisplacement,
                   SetLoadedEntities)
TARVEX_DEFINE_LIST(SetSettlementItem, Settlement, settlement, SetLoadedEntities)
TARVEX_DEFINE_LIST(SetBeamLoadItem, BeamLoad, beamLoad, SetLoadedEntities)
TARVEX_DEFINE_LIST(SetAxialLoadItem, AxialLoad, axialLoad, SetLoadedEntities)
TARVEX_DEFINE_LIST(SetBeamDistItem, BeamDist, beamDist, SetLoadedEntities)
TARVEX_DEFINE_LIST(SetBeamThermalLoadItem, BeamThermalLoad, beamThermalLoad, SetLoadedEntities)
TARVEX_DEFINE_LIST(SetFaceLoadItem, FaceLoad, faceLoad, SetLoadedEntities)
TARVEX_DEFINE_LIST(SetEdgeLoadItem, EdgeLoad, edgeLoad, SetLoadedEntities)
TARVEX_DEFINE_LIST(SetInPlaneLoadItem, InPlaneLoad, inPlaneLoad, SetLoadedEntities)
TARVEX_DEFINE_LIST(SetFaceThermalLoadItem, FaceThermalLoad, faceThermalLoad, SetLoadedEntities)
TARVEX_DEFINE_LIST(SetGravityLoadEntities, GravityLoad, gravityLoad, SetLoadedEntities)
TARVEX_DEFINE_LIST(SetGravityLoadNodes, GravityLoad, gravityLoad, SetLoadedNodes)

#undef TARVEX_DEFINE_LIST

}  // namespace Tarvex
