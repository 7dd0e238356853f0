#include "store/model/zel_data.h"

#include <algorithm>

#include "store/model/model_core.h"
#include "store/model/node_holds.h"
#include "store/model/node_use.h"
#include "store/model/registry.h"

namespace Tarvex {
namespace {

/// Changes a stored member; throws for an entity of another kind.
template <class Change>
void ChangeMember(CZelData& model, SEntRef ref, char const* what, Change&& change) {
  if (ref.type != SelMember)
    throw std::out_of_range(std::string("no ") + what + " to set in a " +
                            SelTypeLabel(ref.type).ToUtf8());
  auto member = model.Member(ref.num);
  change(member);
  model.SetMember(ref.num, member);
}

}  // namespace

ModelBase::ModelBase() : m_owned(std::make_unique<ModelCore>()) { m_owned->hold = &rebuildHold; }

ModelBase::ModelBase(ModelBase const& other) : ModelBase() {
  m_owned->state = other.m_owned->state;
}

ModelBase& ModelBase::operator=(ModelBase const& other) {
  m_owned->Restore(other.m_owned->state);
  return *this;
}

ModelBase::~ModelBase() = default;

CZelData::CZelData()
    : ModelBase(),
      EntityTables(*m_owned),
      MemberTables(*m_owned),
      GeometryTables(*m_owned),
      GridTables(*m_owned),
      LoadTables(*m_owned),
      GridLoadTables(*m_owned),
      ConstraintTables(*m_owned),
      PropertyTables(*m_owned),
      CaseTables(*m_owned),
      ResultTables(*m_owned),
      EntityQueries(*m_owned),
      GridQueries(*m_owned, *this),
      ConstraintQueries(*m_owned, *this),
      StageQueries(*m_owned, *this),
      LoadQueries(*this) {
  m_owned->model = this;
}

CZelData::CZelData(CZelData const& other)
    : ModelBase(other),
      EntityTables(*m_owned),
      MemberTables(*m_owned),
      GeometryTables(*m_owned),
      GridTables(*m_owned),
      LoadTables(*m_owned),
      GridLoadTables(*m_owned),
      ConstraintTables(*m_owned),
      PropertyTables(*m_owned),
      CaseTables(*m_owned),
      ResultTables(*m_owned),
      EntityQueries(*m_owned),
      GridQueries(*m_owned, *this),
      ConstraintQueries(*m_owned, *this),
      StageQueries(*m_owned, *this),
      LoadQueries(*this) {
  m_owned->model = this;
}

CZelData& CZelData::operator=(CZelData const& other) {
  ModelBase::operator=(other);
  return *this;
}

CZelData::~CZelData() = default;

Data::CSpec const& CZelData::Spec() const { return m_owned->state.spec; }
void CZelData::SetSpec(Data::CSpec const& spec) {
  m_owned->state.spec = spec;
  NodeHolds::FollowStructType(m_owned->state);
}
Data::CDefaults const& CZelData::Defaults() const { return m_owned->state.defaults; }
void CZelData::SetDefaults(Data::CDefaults const& defaults) { m_owned->state.defaults = defaults; }
Data::CRaftSpec const& CZelData::RaftSpec() const { return m_owned->state.raftSpec; }
void CZelData::SetRaftSpec(Data::CRaftSpec const& spec) { m_owned->state.raftSpec = spec; }
StrType CZelData::StructType() const { return Spec().StructType(); }
Vbool6 CZelData::GlobalRestraint() const { return Spec().GlobalRestraint(); }

int CZelData::HighestEnt(SelType kind) const { return HighestRecord(EntModId(kind)); }

int CZelData::NumEnt(SelType kind, bool panels) const {
  auto const& state = m_owned->state;
  std::size_t count = 0;
  if (kind == SelNode) count = state.node.size();
  if (kind == SelElement) count = state.elem.size() + (panels ? state.panel.size() : 0);
  if (kind == SelMember) count = state.member.size();
  return static_cast<int>(count);
}

bool CZelData::EntExist(SEntRef const& ref, bool panels) const {
  if (ref.type == SelElement && panels && LoadPanelExist(ref.num)) return true;
  return RecordExist(EntModId(ref.type), ref.num);
}

void CZelData::SetEntTopo(SEntRef ref, int place, int node) {
  if (ref.type == SelElement) return SetElemTopo(ref.num, place, node);
  ChangeMember(*this, ref, "topology", [&](Data::CMember& member) {
    auto topology = member.Topo();
    topology.SetTopo(place, node);
    member.SetTopo(topology);
  });
}

void CZelData::SetEntOffset(SEntRef ref, Data::COffset const& offset) {
  if (ref.type == SelElement) return SetElemOffset(ref.num, offset);
  ChangeMember(*this, ref, "offset", [&](Data::CMember& member) { member.SetOffset(offset); });
}

bool CZelData::RecordExist(CModule::ModuleId module, int n) const {
  auto const* row = FindModule(module);
  return row != nullptr && row->exist(*this, n);
}

int CZelData::HighestRecord(CModule::ModuleId module) const {
  auto const* row = FindModule(module);
  return row == nullptr ? 0 : row->highest(*this);
}

void CZelData::RemoveModule(CModule::ModuleId module) {
  if (auto const* row = FindModule(module)) row->clear(*this);
}

void CZelData::FlagRebuild() {
  m_owned->rebuildAsked = true;
  m_owned->naming.ForgetOrientation();
}

void CZelData::AddBulkOperations(std::vector<CModule::ModuleId> const& modules) {
  auto& bulk = m_owned->bulkModules;
  bulk.insert(bulk.end(), modules.begin(), modules.end());
}

void CZelData::ClearBulkOperations() { m_owned->bulkModules.clear(); }

bool CZelData::Undo() {
  return m_owned->history.Undo(m_owned->state,
                               [&](ModelState state) { m_owned->Restore(std::move(state)); });
}

bool CZelData::Redo() {
  return m_owned->history.Redo(m_owned->state,
                               [&](ModelState state) { m_owned->Restore(std::move(state)); });
}

int CZelData::NumUndo() const { return static_cast<int>(m_owned->history.NumUndo()); }
int CZelData::NumRedo() const { return static_cast<int>(m_owned->history.NumRedo()); }

void CZelData::SetUndoDepth(int steps) {
  m_owned->history.SetDepth(static_cast<std::size_t>(std::max(steps, 0)));
}

std::shared_ptr<CZelData const> CZelData::Snapshot() const {
  return std::make_shared<CZelData const>(*this);
}

Util::CBox3D const& CZelData::Extents() const {
  auto& cache = m_owned->extents;
  auto const& nodes = m_owned->state.node;
  if (cache.revision != nodes.Revision()) {
    cache = {nodes.Revision(), {}};
    for (auto const& [n, node] : nodes) cache.box.AddPoint(node.Position());
  }
  return cache.box;
}

bool CZelData::IsEqual(CZelData const& other) const {
  bool equal = true;
  ForEachOneOff(
      [&](auto const& row) { equal = equal && (this->*row.get)() == (other.*row.get)(); });
  ForEachTable([&](auto const& row) {
    if (!equal) return;
    ForEachDifference((this->*row.all)(), (other.*row.all)(),
                      [&](int, auto const* before, auto const* after) {
                        equal = equal && before != nullptr && after != nullptr && *before == *after;
                      });
  });
  return equal;
}

}  // namespace Tarvex
