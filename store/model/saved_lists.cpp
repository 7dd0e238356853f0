#include "store/model/saved_lists.h"

#include <algorithm>
#include <map>

#include "store/model/zel_data.h"
#include "store/select/list_scan.h"

namespace Tarvex {
namespace {

/// The strongly connected components of the references between lists, by the algorithm of Tarjan
/// (Depth-first search and linear graph algorithms, 1972) with a stack of its own.
class Walk {
 public:
  explicit Walk(SavedLists& lists) : m_lists(lists) {}

  void From(int number) {
    if (m_states.contains(number)) return;
    Enter(number);
    while (!m_path.empty()) Step();
  }
  ReachedLists Result() && { return std::move(m_reached); }

 private:
  struct State {
    int index = 0;
    int lowest = 0;  ///< least index that is reached and still open
    bool open = true;
  };
  struct Place {
    int number;
    std::vector<int> next;
    std::size_t at = 0;
  };

  void Enter(int number) {
    int const index = static_cast<int>(m_states.size());
    m_states[number] = {index, index};
    m_open.push_back(number);
    m_path.push_back(
        {number, m_lists.ReferredBy(Data::ListAccess::Text(*m_lists.Find(number)).Tokens())});
  }

  void Step() {
    auto& place = m_path.back();
    if (place.at == place.next.size()) return Leave();
    int const next = place.next[place.at++];
    auto const known = m_states.find(next);
    if (known == m_states.end()) return Enter(next);
    if (next == place.number) m_reached.endless.insert(next);
    if (known->second.open) Reach(place.number, known->second.index);
  }

  void Reach(int number, int index) {
    auto& state = m_states[number];
    state.lowest = std::min(state.lowest, index);
  }

  void Leave() {
    int const number = m_path.back().number;
    m_path.pop_back();
    auto const& state = m_states[number];
    if (!m_path.empty()) Reach(m_path.back().number, state.lowest);
    if (state.lowest == state.index) Close(number);
  }

  /// Ends a component: the lists that are open since a number.
  void Close(int number) {
    bool const several = m_open.back() != number;
    for (int last = 0; last != number;) {
      last = m_open.back();
      m_open.pop_back();
      m_states[last].open = false;
      m_reached.order.push_back(last);
      if (several) m_reached.endless.insert(last);
    }
  }

  SavedLists& m_lists;
  std::map<int, State> m_states;
  std::vector<int> m_open;
  std::vector<Place> m_path;
  ReachedLists m_reached;
};

}  // namespace

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
  Walk walk(lists);
  for (int const number : from) walk.From(number);
  return std::move(walk).Result();
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
