#include "store/model/constraint_tables.h"

#include "store/model/model_core.h"
#include "store/model/table_ops.h"

namespace Tarvex {

// The operations of a table: its stem, its record and its place in the state.
#define TARVEX_DEFINE_TABLE(Stem, Record, table)                                          \
  bool ConstraintTables::Stem##Exist(int n) const { return m_core.state.table.Exist(n); } \
  Data::Record const& ConstraintTables::Stem(int n) const {                               \
    return TableOps::Get(m_core.state.table, #Stem, n);                                   \
  }                                                                                       \
  std::vector<Data::Record> const& ConstraintTables::Stem() const {                       \
    return m_core.state.table.All();                                                      \
  }                                                                                       \
  int ConstraintTables::Highest##Stem() const { return m_core.state.table.Highest(); }    \
  void ConstraintTables::Set##Stem(int n, Data::Record const& record, SidMode sid) {      \
    TableOps::Store(m_core.state.table, n, record, sid);                                  \
  }                                                                                       \
  void ConstraintTables::Delete##Stem(int first, int count) {                             \
    m_core.state.table.Remove(first, count);                                              \
  }

TARVEX_DEFINE_TABLE(GenRest, CGenRest, genRest)
TARVEX_DEFINE_TABLE(Rigid, CRigid, rigid)
TARVEX_DEFINE_TABLE(Joint, CJoint, joint)
TARVEX_DEFINE_TABLE(ConstraintEqn, CConstraintEqn, constraintEqn)
TARVEX_DEFINE_TABLE(TiedInterface, CTiedInterface, tiedInterface)
TARVEX_DEFINE_TABLE(RaftInteraction, CRaftInteraction, raftInteraction)
TARVEX_DEFINE_TABLE(PileInteraction, CPileInteraction, pileInteraction)
TARVEX_DEFINE_TABLE(InfluenceNode, CInfluenceNode, influenceNode)
TARVEX_DEFINE_TABLE(InfluenceBeam, CInfluenceBeam, influenceBeam)

#undef TARVEX_DEFINE_TABLE

// Changes of one list of a record: the name, the table and the setter of the record.
#define TARVEX_DEFINE_LIST(Name, Stem, table, Setter)              \
  void ConstraintTables::Name(int n, Data::CEntList const& list) { \
    TableOps::Edit(m_core.state.table, #Stem, n).Setter(list);     \
  }

TARVEX_DEFINE_LIST(SetGenRestNodes, GenRest, genRest, SetNodes)
TARVEX_DEFINE_LIST(SetRigidConstrainedNodes, Rigid, rigid, SetConstrainedNodes)

#undef TARVEX_DEFINE_LIST

void ConstraintTables::SetJointPrimaryNode(int n, int node) {
  TableOps::Edit(m_core.state.joint, "Joint", n).SetPrimaryNode(node);
}

void ConstraintTables::SetJointConstrainedNode(int n, int node) {
  TableOps::Edit(m_core.state.joint, "Joint", n).SetConstrainedNode(node);
}

void ConstraintTables::SetConstraintEqnSid(int n, CString const& sid) {
  TableOps::Edit(m_core.state.constraintEqn, "ConstraintEqn", n).SetSid(sid);
}

void ConstraintTables::SetRaftInteractionSid(int n, CString const& sid) {
  TableOps::Edit(m_core.state.raftInteraction, "RaftInteraction", n).SetSid(sid);
}

}  // namespace Tarvex
