// How saved lists refer to each other.
#pragma once

#include <map>
#include <optional>
#include <set>
#include <vector>

#include "store/export.h"
#include "store/record/ent_list.h"
#include "store/select/reached.h"
#include "store/table/paged_table.h"

namespace Tarvex {

class CZelData;

/// A reference of a list to a saved list that there is not.
struct MissingList {
  int number = 0;  ///< of "#", 0 for a quoted name
  CString name;

  friend bool operator==(MissingList const&, MissingList const&) = default;
};

/// Finds the saved lists that lists of one kind mean by "#" and by quoted names. Lists of another
/// kind are none for them, and an empty name names none; of several with the same name the one of
/// the lowest number is meant.
class TARVEX_STORE_EXPORT SavedLists {
 public:
  using Table = PagedTable<Data::CEntList>;

  SavedLists(Table const& table, SelType kind) : m_table(table), m_kind(kind) {}

  /// The list of a number; null when there is none of the kind.
  Data::CEntList const* Find(int number) const;
  /// Number of the list of a name, 0 when there is none.
  int Named(CString const& name);
  /// Numbers of the lists that a list refers to, existing ones of the kind only.
  std::vector<int> ReferredBy(Data::ListTokens const& tokens);
  /// References of a list that lead to none, in the order of the list.
  std::vector<MissingList> MissingIn(Data::ListTokens const& tokens);

 private:
  /// Calls visit(number, name) for each reference: its number, 0 for a name of no list.
  template <class Visit>
  void ForEachReference(Data::ListTokens const& tokens, Visit&& visit);

  Table const& m_table;
  SelType m_kind;
  std::optional<std::map<CString, int>> m_names;  // made when a name is first asked for
};

/// The saved lists that some lists reach.
using ReachedLists = Reached;

/// Follows references from some saved lists on, with those lists among the reached. Linear in the
/// words of all that is reached, and without recursion.
TARVEX_STORE_EXPORT ReachedLists ReachLists(SavedLists& lists, std::vector<int> const& from);

/// Numbers of the saved lists of a model that reach themselves, ascending. As items of lists they
/// select nothing.
TARVEX_STORE_EXPORT std::vector<int> ListsThatReachThemselves(CZelData const& model);

}  // namespace Tarvex
