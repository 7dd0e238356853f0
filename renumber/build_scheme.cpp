// The forms of CRenumber::Index.
#include <algorithm>
#include <array>
#include <stdexcept>

#include "renumber/record_numbers.h"
#include "renumber/renumber_parts.h"
#include "store/model/list_expansion.h"
#include "store/record/case_refs.h"
#include "store/select/numbers.h"

namespace Tarvex {
namespace {

constexpr std::array kCaseModules{CModule::LoadCaseTitle, CModule::AnalysisTask,
                                  CModule::AnalysisCase, CModule::CombinationCase};

void KeepAll(NumberScheme& scheme, std::vector<int> const& numbers) {
  for (int const n : numbers) scheme.Set(n, n);
}

/// The sum; one that an int does not hold wraps to a number that no record can have.
int Shifted(int number, int shift) {
  return static_cast<int>(static_cast<unsigned int>(number) + static_cast<unsigned int>(shift));
}

void IndexCases(Schemes& schemes, Data::CEntList const& list, CZelData const& model) {
  for (auto const module : kCaseModules)
    KeepAll(schemes.Start(module), RecordNumbers(model, module));
  int const count = Util::NumItem(list, model, -1, false);
  for (int i = 0; i < count; ++i) {
    auto const ref = list.Case(i);
    if (auto* scheme = schemes.Find(CaseModule(ref.CaseType()))) scheme->Erase(ref.Case());
  }
}

bool IsEntityKind(SelType kind) {
  return kind == SelNode || kind == SelElement || kind == SelMember;
}

}  // namespace

void CRenumber::Index(CModule::ModuleId module) {
  auto& scheme = m_parts->schemes.Start(module);
  int next = 0;
  for (int const n : RecordNumbers(Model(), module)) scheme.Set(n, ++next);
}

void CRenumber::Index(CModule::ModuleId module, unsigned int from, int shift) {
  auto& scheme = m_parts->schemes.Start(module);
  for (int const n : ShiftedNumbers(Model(), module))
    scheme.Set(n, static_cast<unsigned int>(n) < from ? n : Shifted(n, shift));
}

void CRenumber::Index(SelType kind, Vec3<double> const& direction) {
  if (!IsEntityKind(kind)) throw std::out_of_range("bad entity type");
  auto const& model = Model();
  auto const module = EntModId(kind);
  auto& scheme = m_parts->schemes.Start(module);
  auto const numbers = RecordNumbers(model, module);
  std::vector<std::pair<double, int>> sorted;
  sorted.reserve(numbers.size());
  for (int const n : numbers) sorted.emplace_back(Dot(model.EntCentre({kind, n}), direction), n);
  std::stable_sort(sorted.begin(), sorted.end(),
                   [](auto const& a, auto const& b) { return a.first < b.first; });
  for (std::size_t i = 0; i < sorted.size(); ++i) scheme.Set(sorted[i].second, numbers[i]);
}

void CRenumber::Index(Data::CEntList const& list, CModule::ModuleId module) {
  auto& schemes = m_parts->schemes;
  auto const& model = Model();
  auto const kind = list.TypeOf();
  schemes.ForgetGroups(module);
  if (kind == SelCase) return IndexCases(schemes, list, model);
  if (kind != SelNone && !IsEntityKind(kind)) return;
  auto const indexed = kind == SelNone ? module : EntModId(kind);
  auto& scheme = schemes.Start(indexed);
  if (kind != SelNone || IsRenumbered(indexed)) KeepAll(scheme, RecordNumbers(model, indexed));
  int const highest = kind == SelNone ? model.HighestRecord(indexed) : -1;
  for (int const n : Util::Item(list, model, highest, true)) scheme.Erase(n);
}

void CRenumber::Index(CModule::ModuleId module, std::map<int, int> const& map) {
  m_parts->schemes.ForgetGroups(module);
  auto& scheme = m_parts->schemes.Start(module);
  for (auto at = map.lower_bound(1); at != map.end() && at->first <= kHighestNumber; ++at)
    scheme.Set(at->first, at->second);
}

void CRenumber::IndexItem(CModule::ModuleId module, int from, int to) {
  if (auto* scheme = m_parts->schemes.Find(module)) scheme->Merge(from, to);
}

void CRenumber::IndexItems(CModule::ModuleId module, std::span<std::pair<int, int> const> pairs) {
  if (auto* scheme = m_parts->schemes.Find(module)) scheme->Merge(pairs);
}

}  // namespace Tarvex
