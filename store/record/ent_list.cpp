#include "store/record/ent_list.h"

#include <algorithm>
#include <string>

#include "store/select/case_tokens.h"
#include "store/select/checked_access.h"
#include "store/select/list_evaluation.h"
#include "store/select/list_grammar.h"
#include "store/select/list_rewrite.h"
#include "store/select/list_scan.h"

namespace Tarvex::Data {
namespace {

/// Expands lists that need no model.
class PlainResolver : public ListResolver {
 public:
  explicit PlainResolver(int highest) : m_highest(highest) {}

  int Highest() override { return m_highest; }
  int Limit() override { return kHighestNumber; }
  Intervals All() override { return {{1, m_highest}}; }
  Intervals Word(int, int) override { return {}; }
  Intervals Named(CString const&) override { return {}; }

 private:
  int m_highest;
};

Intervals ExpandPlain(CEntList const& list, int highest) {
  PlainResolver resolver(highest);
  return ExpandList(ListAccess::Text(list).Tokens(), list.TypeOf(), resolver);
}

}  // namespace

CEntList::CEntList(CString const& name, SelType kind, CString const& text)
    : NamedEntity(0, name), m_kind(kind) {
  m_text.Set(text, kind);
}

CEntList::CEntList(SelType kind, std::vector<int> const& tokens) : m_kind(kind) {
  m_text.Set({tokens, {}}, kind);
}

void CEntList::SetType(SelType kind) {
  m_kind = kind;
  m_kept.Clear();
}

bool CEntList::SetString(CString const& text, ListFault* fault) {
  if (!m_text.Set(text, m_kind, fault)) return false;
  m_kept.Clear();
  return true;
}

bool CEntList::SetTokens(std::vector<int> const& tokens) {
  if (!m_text.Set({tokens, m_text.Tokens().strings}, m_kind)) return false;
  m_kept.Clear();
  return true;
}

void CEntList::Change(ListTokens tokens) {
  m_text.Put(std::move(tokens));
  m_kept.Clear();
}

int CEntList::Word(int i) const { return CheckedAt(Word(), i); }

CString const& CEntList::StringRef(int i) const { return CheckedAt(m_text.Tokens().strings, i); }

bool CEntList::IsAll() const { return Word() == std::vector<int>{kAll}; }

bool CEntList::IsEmpty() const { return NamesNothing(m_text.Tokens()); }

void CEntList::AddTo(int token) {
  auto tokens = m_text.Take();
  if (IsNumberToken(token) && m_kind != SelCase) {  // always a list, and often one of very many
    AppendToList(tokens, token);
    return Change(std::move(tokens));
  }
  auto changed = tokens;
  AppendToList(changed, token);
  bool const good = IsListOfKind(changed, m_kind) && NormalizeList(changed);
  Change(good ? std::move(changed) : std::move(tokens));
  if (!good) throw std::out_of_range("list: no place for token " + std::to_string(token));
}

void CEntList::AssignFromSet(Util::CSet const& set) { Change({CompactWords(set.Runs()), {}}); }

int CEntList::Item(int n) const {
  auto const numbers = m_kept.Get().counted;
  if (numbers == nullptr) ThrowBadSubscript();
  return numbers->Item(n);
}

SCaseRef CEntList::Case(int n) const { return CaseOfToken(Item(n)); }

bool CEntList::IsPlain() const { return m_kind != SelCase && IsPlainList(m_text.Tokens()); }

bool CEntList::CheckSimpleList(int& count, Util::CSet& set) const {
  auto const& tokens = m_text.Tokens();
  if (m_kind == SelCase || !NeedsNoModel(tokens, m_kind)) return false;
  count = 0;
  ListScanner scanner(tokens);
  ListElement element;
  while (scanner.Next(element))
    if (element.item == ListElement::Item::Numbers && !element.IsRange()) ++count;
  set = Util::CSet(m_kind, ExpandPlain(*this, 0));
  return true;
}

void CEntList::FlagRebuild() { Change(m_text.Tokens()); }

CString CEntList::Fault() const {
  ListFault fault;
  return IsListOfKind(m_text.Tokens(), m_kind, &fault) ? CString() : fault.reason;
}

}  // namespace Tarvex::Data

namespace Tarvex::Util {

void CSet::AddListToSet(Data::CEntList const& list, int highest) {
  if (list.TypeOf() == SelCase) return;
  auto const numbers = Data::ExpandPlain(list, highest);
  for (auto const& run : numbers.Runs()) Add(run);
}

}  // namespace Tarvex::Util
