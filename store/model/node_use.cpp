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

/// The entities of one kind at all nodes as flat arrays: those of place i stand from first[i] to
/// first[i + 1].
struct FlatUse {
  std::vector<std::size_t> first;
  std::vector<int> entities;

  std::span<int const> Of(std::size_t place) const {
    if (entities.empty()) return {};
    return {entities.data() + first[place], first[place + 1] - first[place]};
  }
};

/// Calls visit(number, nodes) for elements and load panels in ascending number.
template <class Visit>
void ForEachElementTopology(ModelState const& state, Visit&& visit) {
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

/// Calls visit(number, nodes) for the entities of a kind in ascending number.
template <class Visit>
void ForEachTopology(ModelState const& state, SelType kind, Visit&& visit) {
  if (kind == SelElement) return ForEachElementTopology(state, visit);
  for (auto const& [n, member] : state.member) visit(static_cast<int>(n), member.Topo().Nodes());
}

FlatUse Gather(ModelState const& state, NodePlaces const& places, SelType kind) {
  FlatUse use;
  use.first.assign(places.Count() + 2, 0);
  ForEachTopology(state, kind, [&](int, Data::TopoVector const& nodes) {
    for (int const node : nodes) ++use.first[places.Of(node) + 1];
  });
  for (std::size_t i = 1; i < use.first.size(); ++i) use.first[i] += use.first[i - 1];
  use.entities.resize(use.first.back());
  auto next = use.first;
  ForEachTopology(state, kind, [&](int number, Data::TopoVector const& nodes) {
    for (int const node : nodes) use.entities[next[places.Of(node)]++] = number;
  });
  return use;
}

using EntitySet = boost::container::flat_set<int>;

/// A set of numbers that come ascending, perhaps with repeats.
EntitySet SetOfAscending(std::span<int const> numbers) {
  EntitySet set;
  set.reserve(numbers.size());
  for (int const number : numbers) set.insert(set.end(), number);
  return set;
}

/// Gives a node its attachments if it has others.
void Assign(ModelState& state, int node, Use&& fresh) {
  auto const& now = NodeUseAccess::Get(*state.node.Find(node));
  bool const same = now == nullptr
                        ? fresh.IsEmpty()
                        : now->elements == fresh.elements && now->members == fresh.members;
  if (same) return;
  NodeUseAccess::Set(state.node.EditDerived(node),
                     fresh.IsEmpty() ? nullptr : new Use(std::move(fresh)));
}

void AddWaiting(ModelState& state, SelType kind) {
  ForEachTopology(state, kind, [&](int number, Data::TopoVector const& nodes) {
    for (int const node : nodes)
      if (node >= 1 && !state.node.Exist(node))
        ChangeUse(state, node, [&](Use& waiting) { SetOf(waiting, kind).insert(number); });
  });
}

void Build(ModelState& state) {
  NodePlaces const places(state.node);
  auto const elements = Gather(state, places, SelElement);
  auto const members = Gather(state, places, SelMember);
  for (int n = state.node.Next(0); n != 0; n = state.node.Next(n)) {
    auto const place = places.Of(n);
    Use fresh;
    fresh.elements = SetOfAscending(elements.Of(place));
    fresh.members = SetOfAscending(members.Of(place));
    Assign(state, n, std::move(fresh));
  }
  state.waiting.reset();
  AddWaiting(state, SelElement);
  AddWaiting(state, SelMember);
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
