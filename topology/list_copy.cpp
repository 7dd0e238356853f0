#include "topology/list_copy.h"

#include <unordered_set>

#include "store/model/zel_data.h"
#include "store/select/list_tokens.h"

namespace Tarvex {
namespace {

using Data::CEntList;

/// Whether a number that is put at the end of a list adds to what it selects and does no more: the
/// last word is none that would take it, and no saved list is named, which might be this very one.
bool OnlyGains(CEntList const& list) {
  auto const& words = list.Word();
  if (words.empty()) return true;
  for (int const word : words)
    if (word == Data::kSavedList || word == Data::kString) return false;
  int const last = words.back();
  return last >= 0 || last == Data::kAll || last == Data::kHighest || last == Data::kClose;
}

/// A list that grows at its end, asked in between. As long as what is added does no more than add,
/// the list is expanded once and not at each question.
class GrowingList {
 public:
  GrowingList(CEntList& list, SelType kind, CZelData const& model)
      : m_list(list), m_first(list), m_kind(kind), m_model(model), m_onlyGains(OnlyGains(list)) {}

  bool Includes(int number) const {
    SEntRef const ref(m_kind, number);
    if (!m_onlyGains) return Util::IsItemIncluded(m_list, ref, m_model, -1, false);
    if (Util::IsItemIncluded(m_first, ref, m_model, -1, false)) return true;
    return m_added.contains(number) && !(m_kind == SelElement && m_model.LoadPanelExist(number));
  }
  void Add(int number) {
    m_list.AddTo(number);
    m_added.insert(number);
  }
  bool HasGrown() const { return !m_added.empty(); }

 private:
  CEntList& m_list;
  CEntList const m_first;
  SelType m_kind;
  CZelData const& m_model;
  bool m_onlyGains;
  std::unordered_set<int> m_added;
};

}  // namespace

bool AddCopies(CEntList& list, SelType kind, std::map<int, int> const& copies,
               CZelData const& model) {
  GrowingList growing(list, kind, model);
  for (auto const& [number, copy] : copies)
    if (growing.Includes(number) && !growing.Includes(copy)) growing.Add(copy);
  return growing.HasGrown();
}

bool AddCopiesOfSelected(CEntList& list, std::map<int, int> const& copies, CZelData const& model) {
  CEntList const before(list);
  bool grown = false;
  ForEachNewCopy(Util::Item(before, model, -1, false), copies, [&](int copy) {
    list.AddTo(copy);
    grown = true;
  });
  return grown;
}

}  // namespace Tarvex
