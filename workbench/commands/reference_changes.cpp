#include "workbench/commands/reference_changes.h"

#include <algorithm>
#include <map>
#include <string>
#include <vector>

#include "store/model/registry.h"
#include "workbench/file/references.h"

namespace Tarvex::Workbench {
namespace {

using Id = CModule::ModuleId;

/// Whether a field has the reference alone; in others a record that goes may take its place along.
bool IsSingle(ReferenceSite const& site) { return site.index < 0; }

/// What a field of a record names.
struct HeldReference {
  std::string_view field;
  int value;
  bool exists;
};

/// The references of a model by the record that holds them. A field that has one alone and names
/// nothing is left out.
class HeldReferences {
 public:
  explicit HeldReferences(CZelData const& model) {
    std::vector<Holder>* holders = nullptr;
    std::string_view table;
    ForEachReference(model, [&](ReferenceSite const& site) {
      if (site.inText || (IsSingle(site) && site.value == 0)) return;
      if (holders == nullptr || site.table != table) {
        table = site.table;
        holders = &m_holders[table];
      }
      if (holders->empty() || holders->back().number != site.number)
        holders->push_back({site.number, m_held.size(), m_held.size()});
      m_held.push_back({site.field, site.value, site.exists});
      holders->back().end = m_held.size();
    });
  }

  /// What a field of a record names.
  void Read(std::string_view table, int number, std::string_view field,
            std::vector<HeldReference>& held) const {
    held.clear();
    auto const found = m_holders.find(table);
    if (found == m_holders.end()) return;
    auto const& holders = found->second;
    auto const at = std::lower_bound(holders.begin(), holders.end(), number,
                                     [](Holder const& h, int n) { return h.number < n; });
    if (at == holders.end() || at->number != number) return;
    for (auto i = at->begin; i < at->end; ++i)
      if (m_held[i].field == field) held.push_back(m_held[i]);
  }

 private:
  /// A record and the stretch of its references.
  struct Holder {
    int number;
    std::size_t begin;
    std::size_t end;
  };

  std::vector<HeldReference> m_held;
  std::map<std::string_view, std::vector<Holder>> m_holders;
};

/// Compares the references of a model before a run with those behind it, field by field.
class ReferenceComparison {
 public:
  ReferenceComparison(FinishedRun const& run, NumberBehindRun const& numberBehind,
                      CommandResult& result)
      : m_run(run), m_numberBehind(numberBehind), m_after(run.after), m_result(result) {
    for (auto const& [module, scheme] : run.schemes)
      if (auto const* const row = FindModule(module)) m_moved[row->stem] = module;
  }

  void Run() {
    ForEachReference(m_run.before, [&](ReferenceSite const& site) {
      if (site.inText || site.target.empty() || (IsSingle(site) && site.value <= 0)) return;
      if (!m_field.empty() && !IsOfField(site)) CompareField();
      m_field.push_back(site);
    });
    if (!m_field.empty()) CompareField();
  }

 private:
  bool IsOfField(ReferenceSite const& site) const {
    auto const& first = m_field.front();
    return site.number == first.number && site.table == first.table && site.field == first.field;
  }

  void CompareField() {
    auto const& first = m_field.front();
    int const number =
        first.number == 0 ? 0 : m_numberBehind(first.table, first.number);  // one-offs have none
    if (first.number == 0 || number != 0) {
      m_after.Read(first.table, number, first.field, m_now);
      if (IsSingle(first) && m_field.size() == 1)
        CompareSingle(first, m_now.empty() ? HeldReference{first.field, 0, false} : m_now.front());
      else
        ComparePlaces();
    }
    m_field.clear();
  }

  /// The number that a reference should have now: one without a record keeps its own.
  int Expected(ReferenceSite const& site) const {
    if (!site.exists) return site.value;
    auto const moved = m_moved.find(site.target);
    return moved == m_moved.end() ? site.value : m_run.renumber.MapItem(moved->second, site.value);
  }

  void CompareSingle(ReferenceSite const& site, HeldReference const& now) {
    int const expected = Expected(site);
    bool const same = now.value == expected && now.exists == site.exists;
    if (!same || expected == 0) Report(site, now.value);
  }

  /// Compares the numbers of a field that has several, whatever their order: what is sorted stands
  /// elsewhere behind a run.
  void ComparePlaces() {
    bool const places = m_now.size() == m_field.size();
    auto const follows = [&](ReferenceSite const& site, HeldReference const& now) {
      return now.value == Expected(site) && (now.value > 0 || site.value == 0);
    };
    if (places && std::equal(m_field.begin(), m_field.end(), m_now.begin(), follows)) return;
    std::vector<int> left;
    for (auto const& now : m_now) left.push_back(now.value);
    auto const take = [&](int value) {
      auto const at = std::find(left.begin(), left.end(), value);
      if (at == left.end()) return false;
      left.erase(at);
      return true;
    };
    std::vector<ReferenceSite> missing;
    for (auto const& site : m_field)
      if (int const expected = Expected(site); expected <= 0 || !take(expected))
        if (site.value > 0) missing.push_back(site);
    for (auto const& site : missing) {
      bool const stays = take(site.value);
      bool const gone = Expected(site) == 0 || !site.exists;
      // A place that went along with its record is no loss.
      if (stays || places || !gone) Report(site, stays ? site.value : 0);
    }
  }

  void Report(ReferenceSite const& site, int now) {
    auto const named = std::string(site.target) + " " + std::to_string(site.value);
    auto why = std::string(site.field);
    if (now == site.value) {
      why += " still says " + named;
    } else {
      why += " was " + named;
      if (!site.exists) why += ", which there is not,";
      if (site.exists && Expected(site) == 0) why += ", which went,";
      why += now == 0 ? " and is none now" : " and is " + std::to_string(now) + " now";
    }
    m_result.undone.push_back({std::string(site.table), site.number, why});
  }

  FinishedRun const& m_run;
  NumberBehindRun const& m_numberBehind;
  HeldReferences m_after;
  CommandResult& m_result;
  std::map<std::string_view, Id> m_moved;
  std::vector<ReferenceSite> m_field;  // of one field of one record
  std::vector<HeldReference> m_now;
};

}  // namespace

void ReportReferences(FinishedRun const& run, NumberBehindRun const& numberBehind,
                      CommandResult& result) {
  ReferenceComparison(run, numberBehind, result).Run();
}

}  // namespace Tarvex::Workbench
