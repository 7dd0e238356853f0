#include "store/model/saved_lists.h"

#include <algorithm>
#include <map>

#include "store/model/zel_data.h"
#include "store/select/list_scan.h"

namespace Tarvex {
Data::CEntList const* SavedLists::Find(int number) const {
  auto const* list = m_table.Find(number);
  return list != nullptr && list->TypeOf() == m_kind ? list : nullptr;
}

int SavedLists::Named(CString const& name) {
  if (!m_names) {
    m_names.emplace();
    for (auto const& [n, list] : m_table)
      if (list.TypeOf() == m_kind && !list.Name().IsEmpty())
        m_names->try_emplace(list.Name(), static_cast<int>(n));
  }
  auto const found = m_names->find(name);
  return found == m_names->end() ? 0 : found->second;
}

template <class Visit>
void SavedLists::ForEachReference(Data::ListTokens const& tokens, Visit&& visit) {
  using Item = Data::ListElement::Item;
  Data::ListScanner scanner(tokens);
  Data::ListElement element;
  while (scanner.Next(element)) {
    if (element.item == Item::Name) {
      auto const& name = tokens.strings[element.name];
      visit(Named(name), name);
    }
    if (element.item == Item::Word && element.token == Data::kSavedList)
      visit(element.first, CString());
  }
}

std::vector<int> SavedLists::ReferredBy(Data::ListTokens const& tokens) {
  std::vector<int> numbers;
  ForEachReference(tokens, [&](int number, CString const&) {
    if (Find(number) != nullptr) numbers.push_back(number);
  });
  return numbers;
}

std::vector<MissingList> SavedLists::MissingIn(Data::ListTokens const& tokens) {
  std::vector<MissingList> missing;
  ForEachReference(tokens, [&](int number, CString const& name) {
    if (Find(number) == nullptr) missing.push_back({number, name});
  });
  return missing;
}

ReachedLists ReachLists(SavedLists& lists, std::vector<int> const& from) {
  return FollowReferences(
      [&](int number) {
        return lists.ReferredBy(Data::ListAccess::Text(*lists.Find(number)).Tokens());
      },
      from);
}

std::vector<int> ListsThatReachThemselves(CZelData const& model) {
  std::map<SelType, std::vector<int>> byKind;
  for (auto const& [n, list] : model.List()) byKind[list.TypeOf()].push_back(static_cast<int>(n));
  std::vector<int> numbers;
  for (auto const& [kind, from] : byKind) {
    SavedLists lists(model.List(), kind);
    auto const reached = ReachLists(lists, from);
    numbers.insert(numbers.end(), reached.endless.begin(), reached.endless.end());
  }
  std::sort(numbers.begin(), numbers.end());
  return numbers;
}

}  // namespace Tarvex
