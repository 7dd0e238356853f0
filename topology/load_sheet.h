// The loads of a table by the elements that they are on, while the loads of many elements are given
// to their pieces: no walk of all loads for each element, and no copy of a list for each number
// that it gains or loses. What is left in the end is what such walks leave.
#pragma once

#include <algorithm>
#include <map>
#include <unordered_map>
#include <unordered_set>
#include <vector>

#include "tarvex/data_mgr.h"
#include "topology/load_table.h"

namespace Tarvex {

/// A list of plain numbers that loses and gains some.
class NumberWords {
 public:
  NumberWords(CZelData const& model, SelType kind, std::vector<int> const& words) : m_kind(kind) {
    for (int const number : words) Add(model, number);
  }

  void Add(CZelData const& model, int number) {
    m_places[number].push_back(m_words.size());
    m_words.push_back(number);
    if (model.EntExist({m_kind, number}, false)) ++m_existing;
  }
  /// Takes a number out wherever it stands.
  void Remove(CZelData const& model, int number) {
    auto const found = m_places.find(number);
    if (found == m_places.end()) return;
    for (auto const place : found->second) m_words[place] = kGone;
    if (model.EntExist({m_kind, number}, false)) m_existing -= found->second.size();
    m_places.erase(found);
  }
  /// Whether any of the numbers is that of an element or member.
  bool NamesAny() const { return m_existing > 0; }
  std::vector<int> Words() const {
    std::vector<int> words;
    for (int const number : m_words)
      if (number != kGone) words.push_back(number);
    return words;
  }

 private:
  static constexpr int kGone = -1;

  SelType m_kind;
  std::vector<int> m_words;
  std::unordered_map<int, std::vector<std::size_t>> m_places;
  std::size_t m_existing = 0;
};

/// Which loads a sheet tells of.
enum class LoadsOf {
  Plates,  ///< those on elements, as lists stand when they are asked for, pieces' own ones too
  Lines,   ///< those that were on elements or members of a kind at the beginning
};

/// The loads of a table on the parents of a map. Numbers of loads stay until Store, which writes
/// the changed lists and takes the loads out that are on nothing any more.
template <class Table>
class LoadSheet {
 public:
  LoadSheet(CZelData& model, CDataMgr::NumberLists const& pieces, LoadsOf loads = LoadsOf::Plates,
            SelType kind = SelElement)
      : m_model(model), m_kind(kind) {
    if (Table::Highest(model) == 0) return;
    std::vector<int> missing;
    for (auto const& [parent, subs] : pieces) {
      bool const exists = model.EntExist({kind, parent}, false);
      bool const named = parent >= 1 && !model.LoadPanelExist(parent);
      if (!(loads == LoadsOf::Plates ? named : exists)) continue;
      m_rows.emplace(parent, std::vector<int>());
      if (!exists) missing.push_back(parent);
    }
    for (int n = 1; n <= Table::Highest(model); ++n) {
      auto const& list = Table::Read(model, n).LoadedEntities();
      if (list.TypeOf() != kind) continue;
      if (!list.IsPlain()) {
        NoteIndirect(list, missing);
        continue;
      }
      for (int const number : list.Word()) NoteOn(n, number);
    }
    m_follows = loads == LoadsOf::Plates;
  }

  /// The loads on plain lists that an element is on, in ascending number.
  std::vector<int> On(int parent) const {
    std::vector<int> loads;
    if (auto const row = m_rows.find(parent); row != m_rows.end())
      for (int const n : row->second)
        if (!IsGone(n)) loads.push_back(n);
    return loads;
  }
  /// Whether an element is on a list that is more than plain numbers.
  bool IsOnIndirect(int parent) const { return m_onIndirect.contains(parent); }

  /// Appends a load, on one element and nothing else.
  template <class Record>
  void AppendOn(int element, Record const& load) {
    Table::AppendOn(m_model, element, load);
    if (m_follows) NoteOn(Table::Highest(m_model), element);
  }
  /// Adds an element to those of a load on a plain list.
  void AddTo(int n, int element) {
    ListOf(n).Add(m_model, element);
    if (m_follows) NoteOn(n, element);
  }
  /// Takes an element off all loads on plain lists. A load goes with its last element.
  void TakeOff(int parent) {
    for (int const n : On(parent)) {
      bool alone = IsOnlyOn(n, parent);
      if (!alone) {
        auto& list = ListOf(n);
        list.Remove(m_model, parent);
        alone = !list.NamesAny();
      }
      if (alone) SetGone(n);
    }
    if (auto const row = m_rows.find(parent); row != m_rows.end()) row->second.clear();
  }

  void Store() {
    for (auto const& [n, words] : m_lists) {
      if (IsGone(n)) continue;
      auto load = Table::Read(m_model, n);
      Data::CEntList list(load.LoadedEntities());
      list.SetTokens(words.Words());
      load.SetLoadedEntities(list);
      Table::Write(m_model, n, load);
    }
    CloseGaps();
  }

 private:
  bool IsGone(int n) const {
    auto const place = static_cast<std::size_t>(n);
    return place < m_gone.size() && m_gone[place];
  }
  void SetGone(int n) {
    auto const place = static_cast<std::size_t>(n);
    if (place >= m_gone.size())
      m_gone.resize(static_cast<std::size_t>(Table::Highest(m_model)) + 1, false);
    m_gone[place] = true;
  }

  /// Notes that a load is on an element, if that is a parent.
  void NoteOn(int n, int element) {
    auto const row = m_rows.find(element);
    if (row == m_rows.end()) return;
    auto& loads = row->second;
    auto const place = std::lower_bound(loads.begin(), loads.end(), n);
    if (place == loads.end() || *place != n) loads.insert(place, n);
  }
  void NoteIndirect(Data::CEntList const& list, std::vector<int> const& missing) {
    auto const& numbers = Util::Item(list, m_model);
    if (static_cast<std::size_t>(numbers.NumItem()) < m_rows.size()) {
      for (int const number : numbers)
        if (m_rows.contains(number)) m_onIndirect.insert(number);
    } else {
      for (auto const& [parent, loads] : m_rows)
        if (numbers.IsItemIncluded(parent)) m_onIndirect.insert(parent);
    }
    // Numbers without an element are named all the same.
    for (int const parent : missing)
      if (Util::IsItemIncluded(list, {m_kind, parent}, m_model)) m_onIndirect.insert(parent);
  }

  /// Whether an unchanged list names one element and nothing else.
  bool IsOnlyOn(int n, int element) const {
    auto const& words = Table::Read(m_model, n).LoadedEntities().Word();
    return words.size() == 1 && words[0] == element && !m_lists.contains(n);
  }
  NumberWords& ListOf(int n) {
    auto const found = m_lists.find(n);
    if (found != m_lists.end()) return found->second;
    auto const& words = Table::Read(m_model, n).LoadedEntities().Word();
    return m_lists.emplace(n, NumberWords(m_model, m_kind, words)).first->second;
  }

  void CloseGaps() {
    if (m_gone.empty()) return;
    int const highest = Table::Highest(m_model);
    int next = 1;
    for (int n = 1; n <= highest; ++n) {
      if (IsGone(n)) continue;
      if (next != n) {
        auto const load = Table::Read(m_model, n);
        Table::Write(m_model, next, load);
      }
      ++next;
    }
    Table::Delete(m_model, next, highest - next + 1);
  }

  CZelData& m_model;
  SelType m_kind;
  bool m_follows = true;                             ///< whether rows follow what is added
  std::unordered_map<int, std::vector<int>> m_rows;  ///< loads on plain lists by parent
  std::unordered_set<int> m_onIndirect;              ///< parents on other lists
  std::map<int, NumberWords> m_lists;                ///< lists that have changed, by load
  std::vector<bool> m_gone;                          ///< loads that are on nothing any more
};

}  // namespace Tarvex
