// Expands lists on a model. Internal to the store.
#pragma once

#include "store/model/list_cache.h"
#include "store/model/list_words.h"
#include "store/model/model_core.h"
#include "store/model/saved_lists.h"
#include "store/select/list_evaluation.h"

namespace Tarvex {

/// Works out what one list selects on a model, and what that depends on.
class ListExpander : public Data::ListResolver {
 public:
  /// @param list is the caller's; when it is a saved list of the model that reaches itself, it
  /// selects nothing.
  ListExpander(CZelData const& model, Data::CEntList const& list, ListForm const& form);

  /// The numbers that the list selects, existing ones of an entity kind only. Those of a list
  /// without a kind may have 0 among them.
  Intervals Numbers();
  /// Numbers in the order in which the list names them.
  std::vector<int> Order(Intervals const& numbers);
  /// What the list reads, to be given to SourcesOf.
  int Reads() const { return m_reads; }

  // What the list's items stand for.
  int Highest() override { return m_highest; }
  int Limit() override;
  Intervals All() override;
  Intervals Word(int token, int number) override;
  Intervals Named(CString const& name) override { return Saved(m_lists.Named(name)); }

 private:
  void Follow();
  bool IsEndless() const;
  Intervals Saved(int number);

  CZelData const& m_model;
  Data::CEntList const& m_list;
  Data::ListTokens const& m_tokens;
  ListForm m_form;
  int m_highest = 0;
  int m_reads = 0;
  SavedLists m_lists;
  ReachedLists m_reached;
  std::map<int, Intervals> m_saved;  // what the lists that this one reaches select
};

/// The entities of a kind that exist.
Intervals const& ExistingEntities(CZelData const& model, SelType kind, bool panels);

/// The present sources of an expansion that reads some things.
ListSources SourcesOf(CZelData const& model, ListForm const& form, int reads);

}  // namespace Tarvex
