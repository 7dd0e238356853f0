// What a renumbering did beside moving records.
#include <algorithm>
#include <array>
#include <functional>
#include <map>
#include <set>
#include <string>
#include <tuple>

#include "store/model/list_expansion.h"
#include "store/model/registry.h"
#include "store/record/record_classes.h"
#include "workbench/commands/reference_changes.h"

namespace Tarvex::Workbench {
namespace {

using Id = CModule::ModuleId;
using Data::CEntList;

/// The words of lists whose number is one of a material or property.
struct PropertyWord {
  int token;
  std::string_view text;
  Id module;
};
constexpr std::array kPropertyWords{
    PropertyWord{-16, "PB", CModule::Section},      PropertyWord{-17, "PS", CModule::SpringProp},
    PropertyWord{-18, "PM", CModule::MassProp},     PropertyWord{-19, "PA", CModule::Prop2D},
    PropertyWord{-20, "PL", CModule::LinkProp},     PropertyWord{-21, "PC", CModule::CableProp},
    PropertyWord{-22, "PG", CModule::SpacerProp},   PropertyWord{-23, "PV", CModule::Prop3D},
    PropertyWord{-32, "PD", CModule::DamperProp},   PropertyWord{-50, "M", CModule::MatAnal},
    PropertyWord{-51, "MS", CModule::MatSteel},     PropertyWord{-52, "MC", CModule::MatConcrete},
    PropertyWord{-53, "MA", CModule::MatAluminium}, PropertyWord{-54, "MG", CModule::MatGlass},
    PropertyWord{-55, "MP", CModule::MatFrp},       PropertyWord{-57, "MT", CModule::MatTimber},
    PropertyWord{-58, "MF", CModule::MatFabric}};

/// That a list lost the number behind a word.
std::string LostWord(std::string const& name, std::string const& was, std::string const& now,
                     std::string const& gone) {
  auto text = name;
  for (auto const& part :
       {" named '" + was, "' and is '" + now, "' now, since there is no " + gone})
    text += part;
  return text;
}

std::string RecordText(std::string_view table, int number) {
  return std::string(table) + (number == 0 ? "" : " " + std::to_string(number));
}

/// Tells which records of positional tables a run left: where some went, by running it once more
/// with each of them marked.
class Survivors {
 public:
  explicit Survivors(FinishedRun const& run) {
    bool dropped = false;
    Registry::kPositionalTables.ForEach([&](auto const& row) {
      dropped = dropped || (run.before.*row.highest)() != (run.after.*row.highest)();
    });
    if (dropped) RunAgain(run);
  }

  /// The number of a record behind the run, 0 for one that went.
  int NumberOf(std::string_view stem, int old) const {
    auto const table = m_numbers.find(std::string(stem));
    if (table == m_numbers.end()) return old;
    auto const found = table->second.find(old);
    return found == table->second.end() ? 0 : found->second;
  }

 private:
  void RunAgain(FinishedRun const& run) {
    CZelData marked(run.before);
    Registry::kPositionalTables.ForEach([&](auto const& row) {
      auto const records = (run.before.*row.all)();
      for (int n = 1; auto record : records) {
        record.SetSid(CString(std::to_wstring(n)));
        (marked.*row.set)(n++, record, SidMode::Keep);
      }
    });
    CRenumber again(&marked);
    for (auto const& [module, scheme] : run.schemes) again.Index(module, scheme);
    again.Go(run.keepDescriptions);
    Registry::kPositionalTables.ForEach([&](auto const& row) {
      auto& numbers = m_numbers[std::string(row.stem)];
      for (int n = 1; auto const& record : (marked.*row.all)())
        numbers[std::stoi(record.Sid().Str())] = n++;
    });
  }

  std::map<std::string, std::map<int, int>> m_numbers;
};

class Losses {
 public:
  Losses(FinishedRun const& run, CommandResult& result)
      : m_run(run), m_survivors(run), m_result(result) {}

  /// References that do not name their record any more.
  void References() {
    std::map<std::string_view, std::function<int(int)>> numbers;
    ForEachTable([&](auto const& row) {
      numbers[row.stem] = [this, &row](int n) {
        int const number = NumberBehind(row, n);
        return FindRecord((m_run.after.*row.all)(), number) == nullptr ? 0 : number;
      };
    });
    ReportReferences(
        m_run,
        [&](std::string_view table, int n) {
          auto const found = numbers.find(table);
          return found == numbers.end() ? n : found->second(n);
        },
        m_result);
  }

  /// Records of positional tables that went, and lists that became empty or lost a number.
  void RecordsAndLists() {
    ForEachTable([&](auto const& row) {
      using Record = typename std::remove_cvref_t<decltype(row)>::Record;
      auto const& after = (m_run.after.*row.all)();
      ForEachRecord((m_run.before.*row.all)(), [&](int n, Record const& record) {
        int const number = NumberBehind(row, n);
        auto const* const now = number == 0 ? nullptr : FindRecord(after, number);
        if (now == nullptr && row.shape == TableShape::Positional)
          Warn("dropped-record", row.stem, n, "went with what it acts on or belongs to");
        if (now == nullptr) return;
        if constexpr (std::derived_from<Record, CEntList>)
          CompareLists(row.stem, n, "text", record, *now);
        else
          RecordClasses<Record>::TakeTwo(record, *now, [&](auto const& a, auto const& b) {
            CompareFields(row.stem, n, a, b);
          });
      });
    });
  }

 private:
  /// The number of a record of a table behind the run, 0 for one that went.
  template <class Row>
  int NumberBehind(Row const& row, int n) const {
    return row.shape == TableShape::Positional ? m_survivors.NumberOf(row.stem, n)
                                               : m_run.renumber.MapItem(row.module, n);
  }

  template <class Record>
  void CompareFields(std::string_view table, int n, Record const& before, Record const& after) {
    ForEachField<Record>([&](auto const& field) {
      using Value = typename std::remove_cvref_t<decltype(field)>::Value;
      if constexpr (std::derived_from<Value, CEntList>)
        CompareLists(table, n, field.name, before.*field.member, after.*field.member);
    });
  }

  void Warn(char const* code, std::string_view table, int n, std::string const& text) {
    m_result.warnings.push_back({code, std::string(table), n, RecordText(table, n) + ": " + text});
  }

  void CompareLists(std::string_view table, int n, std::string_view field, CEntList const& before,
                    CEntList const& after) {
    auto const name = std::string(field);
    auto const was = before.String().ToUtf8();
    if (!before.IsEmpty() && after.IsEmpty())
      Warn("emptied-list", table, n, name + " named '" + was + "' and names nothing now");
    if (before.TypeOf() >= SelNode && before.TypeOf() <= SelMember &&
        !SelectsTheSame(before, after))
      Warn("list-selects-otherwise", table, n,
           name + " was '" + was + "', and what it is now, '" + after.String().ToUtf8() +
               "', selects others");
    if (before.String() == after.String()) return;
    auto const& words = before.Word();
    for (std::size_t i = 1; i < words.size(); ++i)
      for (auto const& word : kPropertyWords)
        if (words[i - 1] == word.token && words[i] > 0 &&
            m_run.renumber.MapItem(word.module, words[i]) == 0)
          Warn("word-without-number", table, n,
               LostWord(name, was, after.String().ToUtf8(),
                        std::string(word.text) + std::to_string(words[i])));
  }

  /// Whether a list of entities selects the records that it selected, where they are now. Many
  /// records have the same list.
  bool SelectsTheSame(CEntList const& before, CEntList const& after) {
    auto const [at, isNew] = m_compared.try_emplace(
        {before.TypeOf(), before.String().Str(), after.String().Str()}, false);
    if (isNew) at->second = Compare(before, after);
    return at->second;
  }

  bool Compare(CEntList const& before, CEntList const& after) const {
    auto const module = EntModId(before.TypeOf());
    std::set<int> expected;
    for (int const n : Util::Item(before, m_run.before, -1, true))
      if (int const number = m_run.renumber.MapItem(module, n); number != 0)
        expected.insert(number);
    auto const& now = Util::Item(after, m_run.after, -1, true);
    return std::equal(now.begin(), now.end(), expected.begin(), expected.end());
  }

  FinishedRun const& m_run;
  Survivors m_survivors;
  CommandResult& m_result;
  std::map<std::tuple<SelType, std::wstring, std::wstring>, bool> m_compared;
};

}  // namespace

void ReportLosses(FinishedRun const& run, CommandResult& result) {
  Losses losses(run, result);
  losses.References();
  losses.RecordsAndLists();
}

}  // namespace Tarvex::Workbench
