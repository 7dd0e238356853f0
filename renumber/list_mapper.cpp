#include "renumber/list_mapper.h"

#include <algorithm>
#include <stdexcept>

#include "renumber/list_text_mapper.h"
#include "store/model/list_expansion.h"
#include "store/select/list_evaluation.h"
#include "store/select/numbers.h"

namespace Tarvex {
namespace {

using Data::CEntList;

/// An empty list that is otherwise a given one.
CEntList EmptyLike(CEntList const& list) {
  CEntList result(list.Name(), list.TypeOf(), CString());
  result.SetSid(list.Sid());
  result.SetColour(list.GetColour());
  return result;
}

/// Expands a list without asking which of the numbers that it names exist.
class NamedNumbers : public Data::ListResolver {
 public:
  NamedNumbers(CZelData const& model, SelType kind) : m_model(model), m_kind(kind) {}

  int Highest() override { return m_model.HighestEnt(m_kind); }
  int Limit() override { return kHighestNumber; }
  Intervals All() override { return Expanded(CEntList(m_kind, CEntList::All())); }
  Intervals Word(int token, int number) override {
    return Expanded(CEntList(m_kind, std::vector<int>{token, number}));
  }
  Intervals Named(CString const& name) override {
    return Expanded(CEntList(m_kind, L"\"" + name.Str() + L"\""));
  }

 private:
  Intervals Expanded(CEntList const& list) const {
    return Util::Item(list, m_model, -1, true).Numbers();
  }

  CZelData const& m_model;
  SelType m_kind;
};

}  // namespace

CEntList ListMapper::Map(CEntList const& list, Id module, Id propertyModule) {
  if (StaysAsItIs(list)) return list;
  auto const kind = list.TypeOf();
  if (kind == SelNone) return MapUntyped(list, module);
  if (kind > SelMember) throw std::out_of_range("bad entity type");
  return m_refOnly ? MapExpanded(list) : MapText(list, propertyModule);
}

bool ListMapper::StaysAsItIs(CEntList const& list) const {
  if (list.IsEmpty() || (list.IsAll() && !m_refOnly)) return true;
  auto const kind = list.TypeOf();
  if (kind < SelNode || kind > SelMember || m_schemes.Has(EntModId(kind))) return false;
  return kind == SelNode || !m_schemes.HasProperties();
}

CEntList ListMapper::MapUntyped(CEntList const& list, Id module) const {
  auto result = EmptyLike(list);
  if (module != CModule::AnalStage) return result;
  Util::CSet mapped(SelNone);
  for (int const n : Util::MakeSet(list, m_before))
    if (int const number = m_schemes.Map(module, n); number != 0) mapped.AddTo(number);
  result.AssignFromSet(mapped);
  return result;
}

CEntList ListMapper::MapExpanded(CEntList const& list) const {
  auto const kind = list.TypeOf();
  NamedNumbers resolver(m_before, kind);
  return MapNumbers(list, Data::ExpandList(Data::ListAccess::Text(list).Tokens(), kind, resolver));
}

CEntList ListMapper::MapNumbers(CEntList const& list, Intervals const& numbers) const {
  auto const kind = list.TypeOf();
  auto const* const scheme = m_schemes.Find(EntModId(kind));
  Util::CSet mapped(kind);
  for (auto const& run : numbers.Runs())
    for (int n = std::max(run.first, 1); n <= run.last; ++n)
      if (int const number = scheme == nullptr ? n : scheme->Map(n); number > 0)
        mapped.AddTo(number);
  auto result = EmptyLike(list);
  result.AssignFromSet(mapped);
  return result;
}

CEntList ListMapper::MapText(CEntList const& list, Id propertyModule) {
  auto const converted = Preconvert(list);
  if (converted.NumWord() == 0) return converted;
  auto result = EmptyLike(list);
  if (result.SetString(ListTextMapper(*this, converted, propertyModule).Run())) return result;
  // Without the numbers that went the words are no list; what it selected is not to be lost.
  return MapNumbers(list, Util::Item(list, m_before, -1, true).Numbers());
}

CString ListMapper::MapWord(CEntList const& list, int token, Id& module, int& string,
                            Id propertyModule) const {
  std::wstring text;
  AppendMapped(text, list, token, module, string, propertyModule);
  return text;
}

bool ListMapper::AppendMapped(std::wstring& text, CEntList const& list, int token, Id& module,
                              int& string, Id propertyModule) const {
  auto const own = EntModId(list.TypeOf());
  if (auto const* const row = FindListWord(token)) {
    text += row->text;
    if (row->next == ListWordRow::kOwn)
      module = own;
    else
      module = row->next == ListWordRow::kProperty ? propertyModule : static_cast<Id>(row->next);
    return true;
  }
  auto const table = module;
  module = own;
  if (token == Data::kString) {
    ListWordText::AppendName(text, list, string);
    return true;
  }
  int const number = table == CModule::None ? token : m_schemes.Map(table, token);
  if (number == 0 && table != CModule::None) return false;
  ListWordText::AppendNumber(text, number);
  return true;
}

NumberRuns const& ListMapper::RunsOf(SelType kind) {
  auto& runs = m_runs[static_cast<std::size_t>(kind)];
  if (!runs) {
    CEntList const all(kind, CEntList::All());
    runs.emplace(Util::Item(all, m_before, -1, true).Numbers(), m_schemes.Find(EntModId(kind)));
  }
  return *runs;
}

}  // namespace Tarvex
