#include "store/model/node_naming.h"

#include "store/model/model_core.h"
#include "store/select/list_scan.h"
#include "store/table/table_walks.h"

namespace Tarvex {
namespace {

using Data::CEntList;
using Namings = std::vector<NodeNaming::Record>;

/// Calls visit(node) for each node of a list that says by itself which these are.
/// @return false for a list of nodes that does not; other lists name none.
template <class Visit>
bool ForEachListedNode(CEntList const& list, Visit&& visit) {
  if (list.TypeOf() != SelNode || list.IsEmpty()) return true;
  int count = 0;
  Util::CSet nodes(SelNode);
  if (!list.CheckSimpleList(count, nodes)) return false;
  for (int const node : nodes) visit(node);
  return true;
}

/// Calls visit(node) for each number that stands alone in a list of nodes.
template <class Visit>
void ForEachSingleNode(CEntList const& list, Visit&& visit) {
  if (list.TypeOf() != SelNode) return;
  Data::ListScanner scanner(Data::ListAccess::Text(list).Tokens());
  Data::ListElement element;
  while (scanner.Next(element)) {
    bool const number = element.part == Data::ListElement::Part::Item &&
                        element.item == Data::ListElement::Item::Numbers && !element.IsRange();
    if (number && element.first > 0) visit(element.first);
  }
}

/// Revisions of all that Update looks at.
std::vector<std::uint64_t> SourcesOfNaming(ModelState const& state) {
  return {state.rigid.Revision(),
          state.joint.Revision(),
          state.constraintEqn.Revision(),
          state.tiedInterface.Revision(),
          state.genRest.Revision(),
          state.raftInteraction.Revision(),
          state.pileInteraction.Revision(),
          state.influenceNode.Revision(),
          state.assembly.Revision(),
          state.nodeLoad.Revision(),
          state.appliedDisplacement.Revision(),
          state.settlement.Revision(),
          state.gravityLoad.Revision(),
          state.analysisTask.Revision()};
}

}  // namespace

void NodeNaming::Update(ModelState const& state) {
  auto sources = SourcesOfNaming(state);
  if (sources == m_sources) return;
  m_sources.clear();
  m_links.clear();
  m_openLinks.clear();
  m_named.clear();
  m_openLists.clear();
  BuildLinks(state);
  BuildNamed(state);
  m_sources = std::move(sources);
}

void NodeNaming::BuildLinks(ModelState const& state) {
  auto const addLink = [&](int node, Record const& record) {
    if (node < 1) return;
    auto& links = m_links[node];
    bool const again = !links.empty() && links.back().table == record.table &&
                       links.back().number == record.number;
    if (!again) links.push_back(record);
  };
  auto const addList = [&](CEntList const& list, Record const& record) {
    if (!ForEachListedNode(list, [&](int node) { addLink(node, record); }))
      m_openLinks.push_back(record);
  };
  ForEachRecord(state.rigid.All(), [&](int n, Data::CRigid const& rigid) {
    addLink(rigid.PrimaryNode(), {Table::Rigid, n});
    addList(rigid.ConstrainedNodes(), {Table::Rigid, n});
  });
  ForEachRecord(state.joint.All(), [&](int n, Data::CJoint const& joint) {
    addLink(joint.PrimaryNode(), {Table::Joint, n});
    addLink(joint.ConstrainedNode(), {Table::Joint, n});
  });
  ForEachRecord(state.constraintEqn.All(), [&](int n, Data::CConstraintEqn const& equation) {
    addLink(equation.ConstrainedNode(), {Table::ConstraintEqn, n});
    for (auto const& term : equation.Terms()) addLink(term.Node(), {Table::ConstraintEqn, n});
  });
  ForEachRecord(state.tiedInterface.All(), [&](int n, Data::CTiedInterface const& tied) {
    addList(tied.ConstrainedEntities(), {Table::TiedInterface, n});
  });
}

void NodeNaming::BuildNamed(ModelState const& state) {
  auto const add = [&](int node) { m_named.insert(node); };
  auto const addList = [&](CEntList const& list, Record const& record) {
    if (!ForEachListedNode(list, add)) m_openLists.push_back(record);
  };
  ForEachRecord(state.raftInteraction.All(), [&](int n, Data::CRaftInteraction const& raft) {
    addList(raft.Nodes(), {Table::Raft, n});
  });
  ForEachRecord(state.pileInteraction.All(), [&](int n, Data::CPileInteraction const& pile) {
    addList(pile.Nodes(), {Table::Pile, n});
  });
  ForEachRecord(state.assembly, [&](int n, Data::CAssembly const& assembly) {
    for (int place = 0; place < 3; ++place) add(assembly.Topo(place));
    bool const alone = ForEachListedNode(assembly.Entities(), add);
    if (!ForEachListedNode(assembly.IntTopo(), add) || !alone)
      m_openLists.push_back({Table::Assembly, n});
  });
  for (auto const& influence : state.influenceNode.All()) add(influence.Node());
  for (auto const& restraint : state.genRest.All()) ForEachSingleNode(restraint.Nodes(), add);
  for (auto const* table : {&state.nodeLoad, &state.appliedDisplacement, &state.settlement})
    for (auto const& load : table->All()) ForEachSingleNode(load.LoadedEntities(), add);
  for (auto const& load : state.gravityLoad.All()) ForEachSingleNode(load.LoadedNodes(), add);
  for (auto const& [n, slot] : state.analysisTask) {
    auto const* task = dynamic_cast<CZdSpecTask const*>(&slot.Get());
    for (int i = 0; task != nullptr && i < task->NumRelDisp(); ++i)
      for (int const index : {1, 2}) add(task->RelDisp(i).Node(index));
  }
}

void NodeNaming::UpdateOrientation(ModelState const& state, bool held) {
  std::array<std::uint64_t, 2> const sources{state.elem.Revision(), state.member.Revision()};
  if (m_orientationKnown && (held || sources == m_orientationSources)) return;
  m_orientation.clear();
  for (auto const& [n, element] : state.elem) m_orientation.insert(element.OrientationNode());
  for (auto const& [n, member] : state.member) m_orientation.insert(member.OrientationNode());
  m_orientationSources = sources;
  m_orientationKnown = true;
}

std::vector<NodeNaming::Record> const& NodeNaming::Links(int node) const {
  static Namings const kNone;
  auto const found = m_links.find(node);
  return found == m_links.end() ? kNone : found->second;
}

}  // namespace Tarvex
