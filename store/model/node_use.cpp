#include "store/model/node_use.h"

#include <algorithm>
#include <vector>

namespace Tarvex::NodeUse {
namespace {

using Data::NodeUseAccess;
using Use = Data::NodeUse;

auto& SetOf(Use& use, SelType kind) { return kind == SelMember ? use.members : use.elements; }

/// Makes a use record nobody else shares, so that it can be changed.
Use& Own(NodeUseAccess::Pointer& use) {
  if (use == nullptr)
    use = new Use;
  else if (use->use_count() > 1)
    use = new Use(*use);
  return *use;
}

ModelState::Waiting& OwnWaiting(ModelState& state) {
  if (state.waiting == nullptr)
    state.waiting = std::make_shared<ModelState::Waiting>();
  else if (state.waiting.use_count() > 1)
    state.waiting = std::make_shared<ModelState::Waiting>(*state.waiting);
  return *state.waiting;
}

/// Applies change(use) to the attachments of a node, whether it exists or is only named.
template <class Change>
void ChangeUse(ModelState& state, int node, Change&& change) {
  if (node < 1) return;
  if (state.node.Exist(node)) {
    auto& record = state.node.EditDerived(node);
    auto use = NodeUseAccess::Get(record);
    NodeUseAccess::Set(record, nullptr);  // so that the use is not shared with the record itself
    change(Own(use));
    if (!use->IsEmpty()) NodeUseAccess::Set(record, std::move(use));
  } else {
    auto& waiting = OwnWaiting(state);
    auto& use = waiting[node];
    change(Own(use));
    if (use->IsEmpty()) waiting.erase(node);
  }
}

bool Holds(std::span<int const> nodes, int node) {
  return std::find(nodes.begin(), nodes.end(), node) != nodes.end();
}

/// Places of the nodes in flat arrays: by number where the numbers are dense, else by rank, so that
/// one node of a very high number costs no memory.
class NodePlaces {
 public:
  explicit NodePlaces(PagedTable<Data::CNode> const& nodes) {
    auto const highest = static_cast<std::size_t>(nodes.Highest());
    m_dense = highest / 4 <= nodes.size();
    m_count = m_dense ? highest : nodes.size();
    if (m_dense) return;
    m_numbers.reserve(nodes.size());
    for (int n = nodes.Next(0); n != 0; n = nodes.Next(n)) m_numbers.push_back(n);
  }

  std::size_t Count() const { return m_count; }
  /// The place of a node, Count() for one that does not exist and has none.
  std::size_t Of(int node) const {
    if (m_dense) {
      bool const inRange = node >= 1 && static_cast<std::size_t>(node) <= m_count;
      return inRange ? static_cast<std::size_t>(node) - 1 : m_count;
    }
    auto const found = std::lower_bound(m_numbers.begin(), m_numbers.end(), node);
    bool const is = found != m_numbers.end() && *found == node;
    return is ? static_cast<std::size_t>(found - m_numbers.begin()) : m_count;
  }

 private:
  bool m_dense = false;
  std::size_t m_count = 0;
  std::vector<int> m_numbers;  // ascending; empty where dense
};

/// The attachments of all nodes as flat arrays: those of place i stand from first[i] to
/// first[i + 1].
struct FlatUse {
  NodePlaces places;
  std::vector<std::size_t> first;
  std::vector<int> entities;

  std::span<int const> Of(int node) const {
    auto const i = places.Of(node);
    return {entities.data() + first[i], first[i + 1] - first[i]};
  }
};

/// Calls visit(number, topology) for elements and load panels in ascending number.
template <class Visit>
void ForEachTopology(ModelState const& state, Visit&& visit) {
  int e = state.elem.Next(0);
  int p = state.panel.Next(0);
  while (e != 0 || p != 0) {
    if (p == 0 || (e != 0 && e < p)) {
      visit(e, state.elem.Find(e)->Topology());
      e = state.elem.Next(e);
    } else {
      visit(p, state.panel.Find(p)->Topology());
      p = state.panel.Next(p);
    }
  }
}

FlatUse GatherElements(ModelState const& state) {
  FlatUse use{NodePlaces(state.node), {}, {}};
  auto const count = use.places.Count();
  use.first.assign(count + 2, 0);
  ForEachTopology(state, [&](int, Data::TopoVector const& nodes) {
    for (int const node : nodes) ++use.first[use.places.Of(node) + 1];
  });
  for (std::size_t i = 1; i < use.first.size(); ++i) use.first[i] += use.first[i - 1];
  use.entities.resize(use.first.back());
  auto next = use.first;
  ForEachTopology(state, [&](int number, Data::TopoVector const& nodes) {
    for (int const node : nodes) use.entities[next[use.places.Of(node)]++] = number;
  });
  return use;
}

/// Gives a node its attachments if it has others; ascending, perhaps with repeats.
void Assign(ModelState& state, int node, std::span<int const> elements) {
  Use fresh;
  fresh.elements.reserve(elements.size());
  for (int const number : elements) fresh.elements.insert(fresh.elements.end(), number);
  auto const& now = NodeUseAccess::Get(*state.node.Find(node));
  bool const same = now == nullptr ? fresh.IsEmpty() : now->elements == fresh.elements;
  if (same) return;
  NodeUseAccess::Set(state.node.EditDerived(node),
                     fresh.IsEmpty() ? nullptr : new Use(std::move(fresh)));
}

void Build(ModelState& state) {
  auto const use = GatherElements(state);
  for (int n = state.node.Next(0); n != 0; n = state.node.Next(n)) Assign(state, n, use.Of(n));
  state.waiting.reset();
  ForEachTopology(state, [&](int number, Data::TopoVector const& nodes) {
    for (int const node : nodes)
      if (node >= 1 && !state.node.Exist(node))
        ChangeUse(state, node, [&](Use& waiting) { waiting.elements.insert(number); });
  });
  state.useCurrent = true;
}

}  // namespace

void TopologyChanged(ModelCore& core, SEntRef entity, std::span<int const> before,
                     std::span<int const> after) {
  if (!core.state.useCurrent) return;
  if (std::is_permutation(before.begin(), before.end(), after.begin(), after.end())) return;
  if (core.DefersUse()) return MarkStale(core);
  for (int const node : before)
    if (!Holds(after, node))
      ChangeUse(core.state, node, [&](Use& use) { SetOf(use, entity.type).erase(entity.num); });
  for (int const node : after)
    if (!Holds(before, node))
      ChangeUse(core.state, node, [&](Use& use) { SetOf(use, entity.type).insert(entity.num); });
}

void NodeAdded(ModelCore& core, int n) {
  auto& state = core.state;
  if (!state.useCurrent || state.waiting == nullptr || !state.waiting->contains(n)) return;
  if (core.DefersUse()) return MarkStale(core);
  auto& waiting = OwnWaiting(state);
  NodeUseAccess::Set(state.node.EditDerived(n), waiting.at(n));
  waiting.erase(n);
}

void NodeGoes(ModelCore& core, int n) {
  auto& state = core.state;
  auto const& use = NodeUseAccess::Get(*state.node.Find(n));
  if (!state.useCurrent || use == nullptr) return;
  if (core.DefersUse()) return MarkStale(core);
  OwnWaiting(state)[n] = use;
}

void MarkStale(ModelCore& core) { core.state.useCurrent = false; }

void BeforeQuery(ModelCore& core) {
  if (core.state.useCurrent)
    core.rebuildAsked = false;
  else if (!core.IsHeld() || core.rebuildAsked)
    BuildNow(core);
}

void BuildNow(ModelCore& core) {
  core.rebuildAsked = false;
  if (!core.state.useCurrent) Build(core.state);
}

}  // namespace Tarvex::NodeUse
