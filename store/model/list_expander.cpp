#include "store/model/list_expander.h"

#include <bit>
#include <limits>

#include "store/model/zel_data.h"
#include "store/record/cases.h"
#include "store/record/task_slot.h"
#include "store/select/case_tokens.h"
#include "store/select/list_scan.h"

namespace Tarvex {
namespace {

using Data::ListElement;

/// What lists read beside the existence of entities.
enum Read : int { kRecords = 1, kPositions = 2, kLists = 4, kMaterials = 8 };

int ReadsOf(Data::ListTokens const& tokens) {
  int reads = 0;
  Data::ListScanner scanner(tokens);
  ListElement element;
  while (scanner.Next(element)) {
    bool const word = element.item == ListElement::Item::Word;
    bool const saved = word && element.token == Data::kSavedList;
    if (saved || element.item == ListElement::Item::Name) reads |= kLists;
    if (!word) continue;
    auto const wordReads = ListWords::ReadsOf(element.token);
    if (wordReads.records) reads |= kRecords;
    if (wordReads.positions) reads |= kPositions;
    if (wordReads.materials) reads |= kMaterials;
  }
  return reads;
}

/// The load cases, analysis cases, combinations and tasks that exist.
Intervals AllCases(CZelData const& model) {
  Intervals all;
  auto const add = [&](CaseOp kind, int number) {
    int const token = Data::CaseToken({kind, number});
    all.Append({token, token});
  };
  auto const addAll = [&](CaseOp kind, auto const& table) {
    for (int n = table.Next(0); n != 0; n = table.Next(n)) add(kind, n);
  };
  for (auto const& [number, type] : model.LoadCaseTypes()) add(CaseOp::Load, number);
  addAll(CaseOp::Analysis, model.AnalysisCases());
  addAll(CaseOp::Combination, model.CombinationCase());
  addAll(CaseOp::Task, model.AnalysisTask());
  return all;
}

template <class Record>
Intervals NumbersIn(PagedTable<Record> const& table) {
  Intervals numbers;
  for (int n = table.Next(0); n != 0; n = table.Next(n)) numbers.Append({n, n});
  return numbers;
}

}  // namespace

ListExpander::ListExpander(CZelData const& model, Data::CEntList const& list, ListForm const& form)
    : m_model(model),
      m_list(list),
      m_tokens(Data::ListAccess::Text(list).Tokens()),
      m_form(form),
      m_highest(form.kind == SelNone ? form.highest : model.HighestEnt(form.kind)),
      m_reads(ReadsOf(m_tokens)),
      m_lists(model.List(), form.kind) {
  if ((m_reads & kLists) != 0) Follow();
}

void ListExpander::Follow() {
  auto from = m_lists.ReferredBy(m_tokens);
  auto const own = static_cast<int>(m_list.Number());
  if (m_lists.Find(own) != nullptr) from.push_back(own);
  m_reached = ReachLists(m_lists, from);
  for (int const number : m_reached.order) {
    auto const& tokens = Data::ListAccess::Text(*m_lists.Find(number)).Tokens();
    m_reads |= ReadsOf(tokens);
    if (!m_reached.endless.contains(number))
      m_saved[number] = Data::ExpandList(tokens, m_form.kind, *this);
  }
}

bool ListExpander::IsEndless() const {
  auto const own = static_cast<int>(m_list.Number());
  return m_reached.endless.contains(own) &&
         Data::ListAccess::Text(*m_lists.Find(own)) == Data::ListAccess::Text(m_list);
}

Intervals ListExpander::Numbers() {
  if (IsEndless()) return {};
  auto numbers = Data::ExpandList(m_tokens, m_form.kind, *this);
  if (m_form.kind == SelNone || m_form.kind == SelCase) return numbers;
  return Intersection(numbers, ExistingEntities(m_model, m_form.kind, m_form.panels));
}

std::vector<int> ListExpander::Order(Intervals const& numbers) {
  return Data::ListOrder(m_tokens, m_form.kind, numbers, *this);
}

int ListExpander::Limit() {
  if (m_form.kind == SelNone) return kHighestNumber;
  return m_form.kind == SelCase ? std::numeric_limits<int>::max() : m_highest;
}

Intervals ListExpander::All() {
  if (m_form.kind == SelCase) return AllCases(m_model);
  return {{m_form.kind == SelNone ? 0 : 1, m_highest}};
}

Intervals ListExpander::Word(int token, int number) {
  if (token == Data::kSavedList) return Saved(number);
  return ListWords::Select(ModelAccess::Core(m_model), m_form.kind, token, number, m_form.stage);
}

Intervals ListExpander::Saved(int number) {
  auto const found = m_saved.find(number);
  return found == m_saved.end() ? Intervals() : found->second;
}

Intervals const& ExistingEntities(CZelData const& model, SelType kind, bool panels) {
  static Intervals const kNone;
  auto& core = ModelAccess::Core(model);
  auto const& state = core.state;
  auto const of = [](ModelCore::Existing& cache, auto const&... tables) -> Intervals const& {
    std::array const revisions{tables.ExistenceRevision()...};
    if (!cache.known || !std::equal(revisions.begin(), revisions.end(), cache.revisions.begin())) {
      cache.known = true;
      std::copy(revisions.begin(), revisions.end(), cache.revisions.begin());
      cache.numbers = Intervals();
      ((cache.numbers = Union(cache.numbers, NumbersIn(tables))), ...);
    }
    return cache.numbers;
  };
  if (kind == SelNode) return of(core.existingNodes, state.node);
  if (kind == SelMember) return of(core.existingMembers, state.member);
  if (kind != SelElement) return kNone;
  return panels ? of(core.existingElementsAndPanels, state.elem, state.panel)
                : of(core.existingElements, state.elem);
}

ListSources SourcesOf(CZelData const& model, ListForm const& form, int reads) {
  auto const& state = ModelAccess::Core(model).state;
  ListSources sources;
  std::size_t next = 0;
  ListWords::ForEachTableOf(state, form.kind, [&](auto const& table) {
    sources.marks[next++] = (reads & kRecords) != 0 ? table.Revision() : table.ExistenceRevision();
  });
  if ((reads & kPositions) != 0) {
    sources.marks[2] = state.node.Revision();
    sources.marks[3] = std::bit_cast<std::uint64_t>(state.spec.GenTol(TolType::Coincidence));
  }
  if ((reads & kLists) != 0) sources.marks[4] = state.list.Revision();
  if ((reads & kMaterials) != 0) {
    sources.marks[5] = state.section.Revision();
    sources.marks[6] = state.prop2D.Revision();
    sources.marks[7] = state.prop3D.Revision();
  }
  if ((reads & kRecords) != 0 && form.stage > 0) {
    sources.marks[8] = state.analStageProp.Revision();
    sources.marks[9] = state.analStageMat.Revision();
  }
  return sources;
}

}  // namespace Tarvex
