// What the words of lists select by what records know. Internal to the store.
#pragma once

#include "store/model/model_core.h"
#include "store/select/intervals.h"
#include "store/select/reference.h"

namespace Tarvex::ListWords {

/// Calls visit(table) for the tables whose records are the entities of a kind.
template <class Visit>
void ForEachTableOf(ModelState const& state, SelType kind, Visit&& visit) {
  if (kind == SelNode) visit(state.node);
  if (kind == SelElement) {
    visit(state.elem);
    visit(state.panel);
  }
  if (kind == SelMember) visit(state.member);
}

/// What the answer to a word depends on, beside which entities exist.
struct Reads {
  bool records = false;    ///< the records of the kind
  bool positions = false;  ///< the nodes, and the tolerance of coincidence
  bool materials = false;  ///< the properties that are made of a material

  void Add(Reads other) {
    records = records || other.records;
    positions = positions || other.positions;
    materials = materials || other.materials;
  }
};

Reads ReadsOf(int token);

/// The entities of a kind, load panels among the elements, that a word with its number selects by
/// the properties and materials of a stage; none for a word that nothing in the model answers.
Intervals Select(ModelCore& core, SelType kind, int token, int number, int stage);

/// Whether a word selects by property: P and the words that begin with it.
bool IsPropertyWord(int token);

}  // namespace Tarvex::ListWords
