#include "store/model/constraint_queries.h"

#include <algorithm>

#include "store/model/list_expansion.h"
#include "store/model/model_core.h"
#include "store/model/node_use.h"

namespace Tarvex {
namespace {

using Data::CEntList;
using Table = NodeNaming::Table;

/// A record of a positional table; numbers in a naming exist as long as it is current.
template <class Positional>
auto const& RecordOf(Positional const& table, int number) {
  return *table.Find(number);
}

/// The stages of a link.
CEntList const& StagesOf(ModelState const& state, NodeNaming::Record const& record) {
  switch (record.table) {
    case Table::Rigid:
      return RecordOf(state.rigid, record.number).Stage();
    case Table::Joint:
      return RecordOf(state.joint, record.number).Stage();
    case Table::ConstraintEqn:
      return RecordOf(state.constraintEqn, record.number).Stage();
    default:
      return RecordOf(state.tiedInterface, record.number).Stage();
  }
}

/// The lists of nodes of a record that has some; the second may be null.
std::array<CEntList const*, 2> ListsOf(ModelState const& state, NodeNaming::Record const& record) {
  switch (record.table) {
    case Table::Rigid:
      return {&RecordOf(state.rigid, record.number).ConstrainedNodes(), nullptr};
    case Table::TiedInterface:
      return {&RecordOf(state.tiedInterface, record.number).ConstrainedEntities(), nullptr};
    case Table::Raft:
      return {&RecordOf(state.raftInteraction, record.number).Nodes(), nullptr};
    case Table::Pile:
      return {&RecordOf(state.pileInteraction, record.number).Nodes(), nullptr};
    case Table::Assembly: {
      auto const& assembly = RecordOf(state.assembly, record.number);
      return {&assembly.Entities(), &assembly.IntTopo()};
    }
    default:
      return {nullptr, nullptr};
  }
}

bool ActsIn(CZelData const& model, CEntList const& stages, int stage) {
  return stage == -1 || NamesStage(model, stages, stage);
}

bool ListsNode(CZelData const& model, NodeNaming::Record const& record, int node) {
  auto const lists = ListsOf(ModelAccess::Core(model).state, record);
  return std::any_of(lists.begin(), lists.end(), [&](CEntList const* list) {
    return list != nullptr && Util::IsItemIncluded(*list, {SelNode, node}, model);
  });
}

/// Whether the topology of anything holds a node.
bool IsAttached(ModelCore& core, int node) {
  NodeUse::BeforeQuery(core);
  auto const* record = core.state.node.Find(node);
  if (record == nullptr) return false;
  auto const& use = Data::NodeUseAccess::Get(*record);
  return use != nullptr && !use->IsEmpty();
}

}  // namespace

bool ConstraintQueries::NodeIsInConstraint(int node, int stage) const {
  if (node < 1) return false;
  auto& naming = m_core.naming;
  naming.Update(m_core.state);
  auto const acts = [&](auto const& link) {
    return ActsIn(m_model, StagesOf(m_core.state, link), stage);
  };
  auto const& links = naming.Links(node);
  auto const& open = naming.OpenLinks();
  return std::any_of(links.begin(), links.end(), acts) ||
         std::any_of(open.begin(), open.end(), [&](auto const& link) {
           return ListsNode(m_model, link, node) && acts(link);
         });
}

bool ConstraintQueries::RigidIsActive(Data::CRigid const& rigid, int stage) const {
  return rigid.TypeOf() != Data::LinkType::Inert && m_model.NodeExist(rigid.PrimaryNode()) &&
         ActsIn(m_model, rigid.Stage(), stage) &&
         !Util::Item(rigid.ConstrainedNodes(), m_model).IsEmpty();
}

bool ConstraintQueries::NodeIsUsed(int node) const {
  if (node < 1) return false;
  if (IsAttached(m_core, node)) return true;
  auto& naming = m_core.naming;
  naming.Update(m_core.state);
  naming.UpdateOrientation(m_core.state, m_core.IsHeld());
  if (naming.Orients(node) || naming.IsNamed(node) || !naming.Links(node).empty()) return true;
  auto const lists = [&](auto const& record) { return ListsNode(m_model, record, node); };
  return std::any_of(naming.OpenLinks().begin(), naming.OpenLinks().end(), lists) ||
         std::any_of(naming.OpenLists().begin(), naming.OpenLists().end(), lists);
}

void ConstraintQueries::InitNodalUseRigid() { m_core.naming.Update(m_core.state); }

}  // namespace Tarvex
