#include "store/model/node_holds.h"

#include <bit>
#include <map>

#include "store/model/list_expansion.h"
#include "store/model/model_core.h"
#include "store/model/stage_queries.h"

namespace Tarvex::NodeHolds {
namespace {

using Data::NodeHold;
using Data::NodeHoldAccess;

/// Revisions of all that restraints and their lists of nodes and stages read; elements and what
/// they are made of are no part of it.
auto MarksOf(ModelState const& state) {
  return std::array{state.genRest.Revision(), state.list.Revision(), state.analStage.Revision(),
                    state.node.Revision(),
                    std::bit_cast<std::uint64_t>(state.spec.GenTol(TolType::Coincidence))};
}

/// The stages that a restraint acts in.
NodeHold::Item ItemOf(Data::CGenRest const& restraint, CZelData const& model) {
  NodeHold::Item item{restraint.Stage().IsAll(), {}, restraint.Restraint()};
  if (item.inAllStages) return item;
  for (int stage = 0; stage <= model.HighestAnalStage(); ++stage)
    if (NamesStage(model, restraint.Stage(), stage)) item.stages.Append({stage, stage});
  return item;
}

}  // namespace

void BeforeQuery(ModelCore& core) {
  auto& state = core.state;
  bool const none = state.genRest.Highest() == 0;
  if (none && (state.held == nullptr || state.held->nodes.empty())) return;
  if (core.IsHeld() && !core.rebuildAsked) return;
  auto const marks = MarksOf(state);
  if (state.held != nullptr && state.held->marks == marks) return;
  std::map<int, NodeHoldAccess::Pointer> holds;
  for (auto const& restraint : state.genRest.All()) {
    auto const item = ItemOf(restraint, *core.model);
    for (int const node : Util::MakeSet(restraint.Nodes(), *core.model)) {
      auto& hold = holds[node];
      if (hold == nullptr) hold = new NodeHold;
      hold->items.push_back(item);
    }
  }
  if (state.held != nullptr)
    for (int const node : state.held->nodes)
      if (!holds.contains(node) && state.node.Exist(node))
        NodeHoldAccess::Set(state.node.EditDerived(node), nullptr);
  auto held = std::make_shared<ModelState::Held>();
  held->marks = marks;
  for (auto& [node, hold] : holds) {
    NodeHoldAccess::Set(state.node.EditDerived(node), std::move(hold));
    held->nodes.push_back(node);
  }
  state.held = std::move(held);
}

void FollowStructType(ModelState& state) {
  auto const ruledOut = state.spec.GlobalRestraint();
  int const first = state.node.Next(0);
  if (first == 0 || NodeHoldAccess::RuledOut(*state.node.Find(first)) == ruledOut) return;
  for (int n = first; n != 0; n = state.node.Next(n))
    NodeHoldAccess::SetRuledOut(state.node.EditDerived(n), ruledOut);
}

}  // namespace Tarvex::NodeHolds
