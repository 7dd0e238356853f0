// The model: all its tables, queries and state.
#pragma once

#include <memory>
#include <vector>

#include "store/export.h"
#include "store/model/case_tables.h"
#include "store/model/constraint_queries.h"
#include "store/model/constraint_tables.h"
#include "store/model/entity_queries.h"
#include "store/model/entity_tables.h"
#include "store/model/geometry_tables.h"
#include "store/model/grid_load_tables.h"
#include "store/model/grid_queries.h"
#include "store/model/grid_tables.h"
#include "store/model/load_queries.h"
#include "store/model/load_tables.h"
#include "store/model/member_tables.h"
#include "store/model/property_tables.h"
#include "store/model/result_tables.h"
#include "store/model/stage_queries.h"
#include "store/numeric/box.h"
#include "store/record/spec.h"
#include "store/select/reference.h"

namespace Tarvex {

/// Owner of a model's tables and derived data; first base of the model, so that the families find
/// it ready.
class TARVEX_STORE_EXPORT ModelBase {
 protected:
  ModelBase();
  ModelBase(ModelBase const& other);
  ModelBase& operator=(ModelBase const& other);
  ~ModelBase();

  friend struct ModelAccess;

  std::unique_ptr<ModelCore> m_owned;

 public:
  /// The rebuild hold. While it is up, stores leave the attachments of nodes as they were last
  /// built; a query after FlagRebuild() builds them once more. Once it is down again, what changed
  /// meanwhile is built in one pass at the next query. Positions, extents and highest numbers are
  /// right at all times. Tools raise it with RebuildHold (frame/rebuild_hold.h).
  bool rebuildHold = false;
  /// Number of open RebuildHold scopes.
  int rebuildHoldDepth = 0;
  /// Number of open scopes of bulk changes; guarded by the mutex of the tool that opens them.
  int bulkCounter = 0;
};

/// A structural finite-element model in memory.
///
/// Records live in numbered tables; numbers run from 1 and 0 means none. A copy of a model shares
/// all records with the original until one of the two changes them, and costs microseconds whatever
/// the size. One thread at a time uses a model; copies may be used by different threads.
class TARVEX_STORE_EXPORT CZelData : public ModelBase,
                                     public EntityTables,
                                     public MemberTables,
                                     public GeometryTables,
                                     public GridTables,
                                     public LoadTables,
                                     public GridLoadTables,
                                     public ConstraintTables,
                                     public PropertyTables,
                                     public CaseTables,
                                     public ResultTables,
                                     public EntityQueries,
                                     public GridQueries,
                                     public ConstraintQueries,
                                     public StageQueries,
                                     public LoadQueries {
 public:
  using EntAt = Tarvex::EntAt;

  CZelData();
  CZelData(CZelData const& other);
  CZelData& operator=(CZelData const& other);
  ~CZelData();

  // One-off records.
  Data::CSpec const& Spec() const;
  void SetSpec(Data::CSpec const& spec);
  Data::CDefaults const& Defaults() const;
  void SetDefaults(Data::CDefaults const& defaults);
  Data::CRaftSpec const& RaftSpec() const;
  void SetRaftSpec(Data::CRaftSpec const& spec);
  /// What kind of structure the model is.
  StrType StructType() const;
  /// Directions that no node of the model moves in.
  Vbool6 GlobalRestraint() const;

  // Access by kind. Kinds without entities of their own have none.
  /// Highest number of a kind; for elements it covers load panels.
  int HighestEnt(SelType kind) const;
  /// Number of entities of a kind. @param panels whether load panels count as elements.
  int NumEnt(SelType kind, bool panels = true) const;
  bool EntExist(SEntRef const& ref, bool panels = true) const;
  /// Changes one topology position of an entity; std::out_of_range when the entity or the position
  /// does not exist.
  void SetEntTopo(SEntRef ref, int place, int node);
  /// Replaces the offset of an element or member; std::out_of_range for anything else.
  void SetEntOffset(SEntRef ref, Data::COffset const& offset);

  // Access by table number. A module that no table has is empty.
  /// For 110 elements only; load panels are asked for with LoadPanelExist.
  bool RecordExist(CModule::ModuleId module, int n) const;
  /// For 110 it covers load panels.
  int HighestRecord(CModule::ModuleId module) const;
  /// Empties a table but for records that a tool has locked; 110 both elements and load panels.
  void RemoveModule(CModule::ModuleId module);

  // State.
  /// Marks derived data stale: the next query builds it once more, also during a rebuild hold.
  void FlagRebuild();
  /// Announces that records of modules are about to change in bulk: attachments of nodes are then
  /// built by the next query instead of being followed, until ClearBulkOperations().
  void AddBulkOperations(std::vector<CModule::ModuleId> const& modules);
  void ClearBulkOperations();

  // Undo. A step is one accepted outermost CUndoStep (store/model/undo_step.h).
  /// Goes back by one step, or forward again. @return false when there is none or a step is open.
  bool Undo();
  bool Redo();
  int NumUndo() const;
  int NumRedo() const;
  /// Number of steps that are kept at most, 100 at first; the oldest go.
  void SetUndoDepth(int steps);

  /// A read-only model of the present state, which stays as it is when this one changes.
  std::shared_ptr<CZelData const> Snapshot() const;
  /// Box of all nodes, empty without nodes; right at all times.
  Util::CBox3D const& Extents() const;

  /// Equal tables and one-off records, to the bit.
  friend bool operator==(CZelData const& a, CZelData const& b) { return a.IsEqual(b); }

 private:
  friend class CUndoStep;

  bool IsEqual(CZelData const& other) const;
};

}  // namespace Tarvex
