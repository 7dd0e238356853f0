// Rigid constraints that touch each other, merged for the life of a guard.
#include "tarvex/merge_rigid.h"

#include <algorithm>
#include <functional>
#include <queue>
#include <unordered_map>
#include <utility>

#include "store/model/list_expansion.h"
#include "store/model/zel_data.h"
#include "store/record/node.h"

namespace Tarvex {
namespace {

void StoreRigids(CZelData& model, std::vector<Data::CRigid> const& rigids) {
  int number = 0;
  for (auto const& rigid : rigids) model.SetRigid(++number, rigid);
}

}  // namespace

/// One merge of a vector of constraints. Instead of each pair it looks at those that share a node,
/// which it finds by node, in the same order. Nodes are numbered densely.
class MergeRigid::Run {
 public:
  Run(MergeRigid const& tool, std::vector<Data::CRigid>& rigids, int stage)
      : m_tool(tool), m_rigids(rigids), m_nodes(rigids.size()), m_queuedBy(rigids.size()) {
    for (std::size_t i = 0; i < rigids.size(); ++i) {
      m_mergeable.push_back(tool.CheckRigid(rigids[i], stage));
      if (m_mergeable[i]) IndexNodes(i);
    }
    m_reachedBy.resize(m_rigidsAt.size());
  }

  void MergeAll() {
    for (std::size_t r = 0; r < m_rigids.size(); ++r)
      if (m_mergeable[r]) MergeInto(r);
  }

 private:
  /// Notes the nodes of a constraint, constrained and primary, as far as they exist. They can be
  /// expanded before the walk, since only a constraint that it has come to changes its lists.
  void IndexNodes(std::size_t i) {
    Data::CEntList nodes(m_rigids[i].ConstrainedNodes());
    nodes.AddTo(m_rigids[i].PrimaryNode());
    for (int const node : Util::Item(nodes, m_tool.m_model)) {
      auto const index = m_indexOf.try_emplace(node, m_rigidsAt.size()).first->second;
      if (index == m_rigidsAt.size()) m_rigidsAt.emplace_back();
      m_nodes[i].push_back(index);
      m_rigidsAt[index].push_back(i);
    }
  }

  void MergeInto(std::size_t r) {
    auto& rigid = m_rigids[r];
    int const ownPrimary = rigid.PrimaryNode();
    Data::CEntList list(rigid.ConstrainedNodes());
    bool const listsPrimary = Util::IsItemIncluded(list, {SelNode, ownPrimary}, m_tool.m_model);
    bool grown = false;
    Reach(r, r);
    while (!m_candidates.empty()) {
      auto const s = m_candidates.top();
      m_candidates.pop();
      auto& other = m_rigids[s];
      if (!m_mergeable[s] || other.PrimaryNode() == rigid.PrimaryNode() ||
          other.TypeOf() != rigid.TypeOf() || !Touches(r, s))
        continue;
      m_tool.TakeIn(rigid, other, list);
      m_mergeable[s] = false;
      if (!grown && !listsPrimary) m_reachedBy[m_indexOf.at(ownPrimary)] = 0;
      grown = true;
      Reach(r, s);
    }
    if (grown) rigid.SetConstrainedNodes(list);
  }

  bool Touches(std::size_t r, std::size_t s) const {
    return std::any_of(m_nodes[s].begin(), m_nodes[s].end(),
                       [&](std::size_t node) { return m_reachedBy[node] == r + 1; });
  }

  /// Adds the nodes of a constraint to those that r reaches, and queues the constraints behind it
  /// that share one of them.
  void Reach(std::size_t r, std::size_t from) {
    for (auto const node : m_nodes[from]) {
      if (std::exchange(m_reachedBy[node], r + 1) == r + 1) continue;
      auto const& rigids = m_rigidsAt[node];
      for (auto at = std::upper_bound(rigids.begin(), rigids.end(), from); at != rigids.end(); ++at)
        if (std::exchange(m_queuedBy[*at], r + 1) != r + 1) m_candidates.push(*at);
    }
  }

  MergeRigid const& m_tool;
  std::vector<Data::CRigid>& m_rigids;
  std::vector<bool> m_mergeable;
  std::vector<std::vector<std::size_t>> m_nodes;     // by constraint
  std::unordered_map<int, std::size_t> m_indexOf;    // of a node
  std::vector<std::vector<std::size_t>> m_rigidsAt;  // by node, ascending
  // The last constraint that reached a node, or queued a constraint, by index plus 1.
  std::vector<std::size_t> m_reachedBy;
  std::vector<std::size_t> m_queuedBy;
  std::priority_queue<std::size_t, std::vector<std::size_t>, std::greater<>> m_candidates;
};

MergeRigid::MergeRigid(CZelData& model) : m_model(model) {}
MergeRigid::~MergeRigid() { StoreRigids(m_model, m_saved); }

void MergeRigid::Merge(int stage) {
  auto rigids = m_model.Rigid();
  if (rigids.size() < 2) return;
  Run(*this, rigids, stage).MergeAll();
  UpdateRigids(rigids);
}

bool MergeRigid::CheckRigid(Data::CRigid const& rigid, int stage) const {
  if (!m_model.RigidIsActive(rigid, stage) || rigid.IsPin() || rigid.IsCustom()) return false;
  return Util::IsItemIncluded(rigid.Stage(), {SelNone, stage}, m_model, m_model.HighestAnalStage());
}

bool MergeRigid::ListsOverlap(Data::CEntList const& a, Data::CEntList const& b) const {
  if (a.TypeOf() != b.TypeOf()) return false;
  auto const& items = Util::Item(b, m_model);
  return std::any_of(items.begin(), items.end(), [&](int item) {
    return Util::IsItemIncluded(a, {SelNode, item}, m_model);
  });
}

void MergeRigid::DoMerge(Data::CRigid& first, Data::CRigid& second) const {
  Data::CEntList list(first.ConstrainedNodes());
  TakeIn(first, second, list);
  first.SetConstrainedNodes(list);
}

/// As DoMerge, with the list of the first kept apart, so that it is copied once for many.
void MergeRigid::TakeIn(Data::CRigid& first, Data::CRigid& second, Data::CEntList& list) const {
  int const node = second.PrimaryNode();
  if (m_model.NodeExist(node)) {
    auto const restrained = m_model.Node(node).TotalNodalRestraint(0);
    if (!(restrained & second.ConstrainedDof()).IsNone()) first.SetPrimaryNode(node);
  }
  for (int const item : Util::Item(second.ConstrainedNodes(), m_model)) list.AddTo(item);
  list.AddTo(node);
  second.SetType(Data::LinkType::Inert);
}

void MergeRigid::UpdateRigids(std::vector<Data::CRigid> const& rigids) {
  auto const given = rigids;  // may be the model's own
  if (&rigids != &m_saved) m_saved = m_model.Rigid();
  m_model.DeleteRigid(1, m_model.HighestRigid());
  StoreRigids(m_model, given);
}

}  // namespace Tarvex
