#include "store/model/model_core.h"

namespace Tarvex {

namespace {

void Follow(Util::PointIndex& index, int n, Data::CNode const* before, Data::CNode const* after) {
  if (before != nullptr && after != nullptr && before->Position() == after->Position()) return;
  if (before != nullptr) index.Erase(n, before->Position());
  if (after != nullptr) index.Insert(n, after->Position());
}

}  // namespace

Util::PointIndex const& ModelCore::Positions() {
  if (!positions) {
    std::vector<Util::PointIndex::Entry> entries;
    entries.reserve(state.node.size());
    for (auto const& [n, node] : state.node)
      entries.push_back({static_cast<int>(n), node.Position()});
    positions.emplace(entries);
  }
  return *positions;
}

void ModelCore::NodeMoved(int n, Data::CNode const* before, Data::CNode const* after) {
  if (positions) Follow(*positions, n, before, after);
}

void ModelCore::Restore(ModelState other) {
  if (positions && other.node.Revision() != state.node.Revision()) {
    // An undo step restores while an exception passes: without memory for it the index goes, and
    // the next query builds it anew.
    try {
      PagedTable<Data::CNode>::Difference(
          state.node, other.node,
          [&](int n, auto const* before, auto const* after) { NodeMoved(n, before, after); });
    } catch (...) {
      positions.reset();
    }
  }
  if (other.member.Revision() != state.member.Revision()) children.Reset();
  loadCases.Forget();
  state = std::move(other);
}

}  // namespace Tarvex
