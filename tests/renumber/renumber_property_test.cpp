// What holds behind any renumbering on any model.
#include <gtest/gtest.h>

#include <algorithm>
#include <set>

#include "store/model/analysis_case_table.h"
#include "store/model/list_expansion.h"
#include "store/model/undo_step.h"
#include "store/record/assembly.h"
#include "store/record/cases.h"
#include "store/record/element.h"
#include "store/record/member.h"
#include "store/record/rigid.h"
#include "store/record/tasks.h"
#include "store/select/list_tokens.h"
#include "tarvex/tidy.h"
#include "tests/renumber/renumber_support.h"

namespace Tarvex::RenumberPropertyTest {
namespace {

using Data::CEntList;
using Testing::Random;
using Testing::Scheme;
using Schemes = std::map<CModule::ModuleId, Scheme>;

constexpr int kModels = 24;

std::vector<CModule::ModuleId> const kPermuted{
    CModule::Axis,         CModule::GridPlane,   CModule::GridSurface,   CModule::Polyline,
    CModule::MatSteel,     CModule::MatConcrete, CModule::MatFrp,        CModule::MatAluminium,
    CModule::MatTimber,    CModule::MatGlass,    CModule::MatFabric,     CModule::MatRebar,
    CModule::MatAnal,      CModule::MatCurve,    CModule::MatMatrix,     CModule::Node,
    CModule::Member,       CModule::Elem,        CModule::LoadCaseTitle, CModule::AnalStage,
    CModule::AnalysisTask, CModule::AnalysisCase};
std::vector<CModule::ModuleId> const kIdentity{CModule::Axis, CModule::Node, CModule::Member,
                                               CModule::Elem, CModule::AnalStage};

/// The numbers in use in a table, as a scheme that closes up tells them.
std::vector<int> NumbersOf(CZelData& model, CModule::ModuleId module) {
  CRenumber renumber(&model);
  renumber.Index(module);
  std::vector<int> numbers;
  for (int n = 1; n <= model.HighestRecord(module); ++n)
    if (renumber.MapItem(module, n) != 0) numbers.push_back(n);
  return numbers;
}

/// Whether a list has a range that selects nothing, since its begin is above its end.
bool HasRangeOutOfOrder(CEntList const& list) {
  auto const& words = list.Word();
  for (std::size_t i = 1; i + 1 < words.size(); ++i)
    if (words[i] == static_cast<int>(Data::kTo) && words[i + 1] > 0 && words[i - 1] > words[i + 1])
      return true;
  return false;
}

/// Replaces the expression of each list by one that keeps what the rules keep: no range whose ends
/// follow records that the list does not select.
void SettleText(CEntList& list) {
  auto const text = list.String().Str();
  if (text.find(L"step") != std::wstring::npos || HasRangeOutOfOrder(list))
    list.SetString(L"2 to 5");
}

template <class Record>
void SettleLists(Record& record) {
  ForEachField<Record>([&](auto const& field) {
    using Value = typename std::remove_cvref_t<decltype(field)>::Value;
    if constexpr (std::derived_from<Value, CEntList>) SettleText(record.*field.member);
  });
}

/// Takes out of a model what a renumbering changes on its own account.
void Settle(CZelData& model) {
  Registry::kTables.ForEach([&](auto const& row) {
    using Record = typename std::remove_cvref_t<decltype(row)>::Record;
    if constexpr (Described<Record> && !std::is_same_v<Record, Zel::TaskSlot>) {
      auto const records = (model.*row.all)();
      ForEachRecord(records, [&](int n, Record record) {
        if constexpr (std::is_same_v<Record, CEntList>)
          SettleText(record);
        else
          SettleLists(record);
        (model.*row.set)(n, record, SidMode::Keep);
      });
    }
  });
  for (int n = 1; n <= model.HighestList(); ++n)
    if (model.ListExist(n) &&
        (model.List(n).TypeOf() == SelNone || model.List(n).TypeOf() == SelOther))
      model.BlankList(n, 1);
  for (auto const& [n, assembly] : PagedTable(model.Assembly())) {
    auto copy = assembly;
    if (copy.Entities().TypeOf() == SelCase || copy.Entities().TypeOf() == SelNone)
      copy.SetEntities({SelElement, L"all"});
    copy.SetStorey({SelNone, L"all"});
    model.SetAssembly(static_cast<int>(n), copy);
  }
  // Empty descriptions come out as "none", and names that are the default follow their number.
  auto defaults = model.Defaults();
  defaults.SetAnalysisTaskName(L"default task #");
  defaults.SetAnalysisCaseName(L"default case #");
  model.SetDefaults(defaults);
}

/// The identity schemes, and random permutations of some tables.
Schemes RandomSchemes(CZelData& model, Random& random) {
  Schemes schemes;
  for (auto const module : kIdentity)
    for (int const n : NumbersOf(model, module)) schemes[module][n] = n;
  bool cases = false;
  for (auto const module : kPermuted) {
    if (!random.Percent(30)) continue;
    auto const numbers = NumbersOf(model, module);
    auto shuffled = numbers;
    random.Shuffle(shuffled);
    schemes[module].clear();
    for (std::size_t i = 0; i < numbers.size(); ++i) schemes[module][numbers[i]] = shuffled[i];
    cases = cases || module == CModule::LoadCaseTitle || module == CModule::AnalysisTask;
  }
  if (cases && !schemes.contains(CModule::AnalysisCase))
    for (int const n : NumbersOf(model, CModule::AnalysisCase))
      schemes[CModule::AnalysisCase][n] = n;
  return schemes;
}

Schemes Inverse(Schemes const& schemes) {
  Schemes inverse;
  for (auto const& [module, scheme] : schemes) {
    auto& turned = inverse[module];
    for (auto const& [old, number] : scheme) turned[number] = old;
  }
  return inverse;
}

bool RunSchemes(CZelData& model, Schemes const& schemes) {
  CRenumber renumber(&model);
  for (auto const& [module, scheme] : schemes) renumber.Index(module, scheme);
  return renumber.Go(true);
}

/// Makes texts of lists and the status of tasks alike in two models.
void ForgetWording(CZelData& model) {
  Registry::kTables.ForEach([&](auto const& row) {
    using Record = typename std::remove_cvref_t<decltype(row)>::Record;
    if constexpr (std::is_same_v<Record, Zel::TaskSlot>) {
      for (auto const& [n, slot] : PagedTable(model.AnalysisTask())) {
        auto const task = slot.Get().Clone();
        task->SetStatus(TaskStatus::Undone);
        if (auto* const own = dynamic_cast<CZssTask*>(task.get())) own->SetGeoExclude({});
        if (auto* const own = dynamic_cast<CFormRelaxTask*>(task.get())) own->SetEulerElemList({});
        model.SetAnalysisTask(static_cast<int>(n), *task);
      }
    } else if constexpr (Described<Record>) {
      auto const records = (model.*row.all)();
      ForEachRecord(records, [&](int n, Record record) {
        auto const forget = [](CEntList& list) { list.SetString(L"none"); };
        if constexpr (std::is_same_v<Record, CEntList>)
          forget(record);
        else
          ForEachField<Record>([&](auto const& field) {
            using Value = typename std::remove_cvref_t<decltype(field)>::Value;
            if constexpr (std::derived_from<Value, CEntList>) forget(record.*field.member);
          });
        (model.*row.set)(n, record, SidMode::Keep);
      });
    }
  });
}

/// Descriptions whose cases do not exist are marked as deleted, and rigid constraints and loads
/// that hold nothing go: the first run does that, so a model is tried that has been through it.
CZelData Settled(CZelData model) {
  Settle(model);
  Schemes schemes;
  for (auto const module : kPermuted)
    for (int const n : NumbersOf(model, module)) schemes[module][n] = n;
  EXPECT_TRUE(RunSchemes(model, schemes));
  return model;
}

std::set<int> Selected(CEntList const& list, CZelData const& model) {
  auto const& items = Util::Item(list, model, -1, true);
  return {items.begin(), items.end()};
}

/// Expects the lists of records, whatever their words, to select the same in two models.
void ExpectSameSelections(CZelData const& before, CZelData const& after) {
  Registry::kTables.ForEach([&](auto const& row) {
    using Record = typename std::remove_cvref_t<decltype(row)>::Record;
    if constexpr (Described<Record> && !std::is_same_v<Record, CEntList>)
      ForEachRecord((before.*row.all)(), [&](int n, Record const& record) {
        auto const* const now = FindRecord((after.*row.all)(), n);
        ASSERT_NE(now, nullptr) << row.stem << " " << n;
        ForEachField<Record>([&](auto const& field) {
          using Value = typename std::remove_cvref_t<decltype(field)>::Value;
          if constexpr (std::derived_from<Value, CEntList>) {
            CEntList const& list = record.*field.member;
            if (list.TypeOf() < SelNode || list.TypeOf() > SelMember) return;
            EXPECT_EQ(Selected(now->*field.member, after), Selected(list, before))
                << row.stem << " " << n << ": " << list.String().ToUtf8() << " became "
                << (now->*field.member).String().ToUtf8();
          }
        });
      });
  });
}

TEST(RenumberProperty, APermutationAndItsInverseLeaveTheModelAsItWas) {
  Testing::ForEachRandomModel(kModels, [&](CZelData const& original, Random& random) {
    auto const before = Settled(original);
    CZelData model(before);
    auto const schemes = RandomSchemes(model, random);
    ASSERT_TRUE(RunSchemes(model, schemes));
    EXPECT_TRUE(Testing::AttachmentsFollowTopology(model));
    ASSERT_TRUE(RunSchemes(model, Inverse(schemes)));
    ExpectSameSelections(before, model);
    CZelData expected(before);
    ForgetWording(expected);
    ForgetWording(model);
    ASSERT_TRUE(Testing::IsUnchanged(model, expected));
  });
}

/// Whether a list goes by words for properties or materials, which follow tables of their own.
bool HasWordsOfOtherTables(CEntList const& list) {
  for (int const word : list.Word())
    if ((word <= -15 && word >= -24) || word <= -27) return true;
  return false;
}

TEST(RenumberProperty, ListsSelectTheMappedNumbers) {
  int met = 0;
  Testing::ForEachRandomModel(kModels, [&](CZelData const& original, Random& random) {
    auto const before = Settled(original);
    CZelData model(before);
    auto const schemes = RandomSchemes(model, random);
    CRenumber renumber(&model);
    for (auto const& [module, scheme] : schemes) renumber.Index(module, scheme);
    ASSERT_TRUE(renumber.Go(true));
    for (auto const& [n, list] : before.List()) {
      if (list.TypeOf() < SelNode || list.TypeOf() > SelMember) continue;
      if (HasWordsOfOtherTables(list)) continue;
      ++met;
      auto const module = EntModId(list.TypeOf());
      std::set<int> expected;
      for (int const item : Selected(list, before)) expected.insert(renumber.MapItem(module, item));
      auto const& now = model.List(static_cast<int>(n));
      ASSERT_EQ(Selected(now, model), expected)
          << list.String().ToUtf8() << " became " << now.String().ToUtf8();
      bool const moves = std::any_of(schemes.at(module).begin(), schemes.at(module).end(),
                                     [](auto const& entry) { return entry.first != entry.second; });
      if (moves) continue;
      EXPECT_LE(now.String().Str().size(), list.String().Str().size())
          << list.String().ToUtf8() << " became " << now.String().ToUtf8();
    }
  });
  EXPECT_GT(met, kModels / 2);
}

TEST(RenumberProperty, AShiftLeavesListsAtMostAsManyWordsAsTheyHad) {
  int ranges = 0;
  Testing::ForEachRandomModel(kModels, [&](CZelData const& original, Random&) {
    auto const before = Settled(original);
    CZelData model(before);
    CRenumber renumber(&model);
    for (auto const module : {CModule::Node, CModule::Elem, CModule::Member})
      renumber.Index(module, 1U, 1000);
    ASSERT_TRUE(renumber.Go(true));
    for (auto const& [n, list] : before.List()) {
      if (list.TypeOf() < SelNode || list.TypeOf() > SelMember) continue;
      ranges += list.String().Str().find(L" to ") != std::wstring::npos ? 1 : 0;
      auto const& now = model.List(static_cast<int>(n));
      EXPECT_LE(now.NumWord(), list.NumWord())
          << list.String().ToUtf8() << " became " << now.String().ToUtf8();
    }
  });
  EXPECT_GT(ranges, 0);
}

TEST(RenumberProperty, RunsAlikeFromTheSameState) {
  Testing::ForEachRandomModel(kModels / 2, [&](CZelData const& original, Random& random) {
    auto const before = Settled(original);
    CZelData first(before);
    auto const schemes = RandomSchemes(first, random);
    CZelData second(before);
    ASSERT_TRUE(RunSchemes(first, schemes));
    ASSERT_TRUE(RunSchemes(second, schemes));
    ASSERT_TRUE(Testing::IsUnchanged(second, first));
  });
}

TEST(RenumberProperty, IsUndoneToTheBit) {
  Testing::ForEachRandomModel(kModels / 2, [&](CZelData const& original, Random& random) {
    CZelData model(original);
    Settle(model);
    CZelData const before(model);
    auto const schemes = RandomSchemes(model, random);
    {
      CUndoStep step(model);
      ASSERT_TRUE(RunSchemes(model, schemes));
    }
    ASSERT_TRUE(Testing::IsUnchanged(model, before));
    EXPECT_TRUE(Testing::AttachmentsFollowTopology(model));
    CUndoStep step(model);
    ASSERT_TRUE(RunSchemes(model, schemes));
    step.Accept();
    ASSERT_TRUE(model.Undo());
    ASSERT_TRUE(Testing::IsUnchanged(model, before));
  });
}

TEST(RenumberProperty, KeepsTheLoadsOfEachCaseInNumber) {
  Testing::ForEachRandomModel(kModels / 2, [&](CZelData const& original, Random& random) {
    auto const before = Settled(original);
    CZelData model(before);
    auto schemes = RandomSchemes(model, random);
    auto& cases = schemes[CModule::LoadCaseTitle];
    cases.clear();
    auto numbers = NumbersOf(model, CModule::LoadCaseTitle);
    auto shuffled = numbers;
    random.Shuffle(shuffled);
    for (std::size_t i = 0; i < numbers.size(); ++i) cases[numbers[i]] = shuffled[i];
    ASSERT_TRUE(RunSchemes(model, schemes));
    std::map<int, int> expected;
    for (auto const& load : before.NodeLoad())
      ++expected[load.LoadCase() == 0 ? 0 : cases.at(load.LoadCase())];
    std::map<int, int> found;
    for (auto const& load : model.NodeLoad()) ++found[load.LoadCase()];
    EXPECT_EQ(found, expected);
  });
}

TEST(RenumberProperty, CompactionLeavesNoHoleAndNoNewDanglingReference) {
  Testing::ForEachRandomModel(kModels / 2, [&](CZelData const& original, Random&) {
    CZelData model(original);
    Settle(model);
    CRenumber renumber(&model);
    for (auto const module :
         {CModule::Node, CModule::Elem, CModule::Member, CModule::Axis, CModule::AnalStage})
      renumber.Index(module);
    ASSERT_TRUE(renumber.Go(false));
    EXPECT_EQ(model.HighestNode(), static_cast<int>(model.Node().size()));
    EXPECT_EQ(model.HighestElem(),
              static_cast<int>(model.Elem().size() + model.LoadPanels().size()));
    EXPECT_EQ(model.HighestMember(), static_cast<int>(model.Member().size()));
    EXPECT_TRUE(Testing::NoDanglingReference(model));
    EXPECT_TRUE(Testing::AttachmentsFollowTopology(model));
  });
}

TEST(TidyProperty, CompactsATablesOnceAndForAll) {
  Testing::ForEachRandomModel(kModels / 2, [&](CZelData const& original, Random&) {
    CZelData model(original);
    CUpdateProp tidy(model);
    ASSERT_TRUE(tidy.Update(CUpdateProp::kDeleteBlank));
    EXPECT_EQ(model.HighestSection(), static_cast<int>(model.Section().size()));
    EXPECT_EQ(model.HighestMatAnal(), static_cast<int>(model.MatAnal().size()));
    CZelData const once(model);
    CUpdateProp again(model);
    ASSERT_TRUE(again.Update(CUpdateProp::kDeleteBlank));
    ASSERT_TRUE(Testing::IsUnchanged(model, once));
  });
}

TEST(TidyProperty, BlankingLeavesWhatIsUsedAndNothingElse) {
  Testing::ForEachRandomModel(kModels / 2, [&](CZelData const& original, Random&) {
    CZelData model(original);
    CUpdateProp tidy(model);
    tidy.SetNoSection(true);
    ASSERT_TRUE(tidy.Update(CUpdateProp::kBlankUnused));
    CIndexProp index(original);
    index.IndexUsed();
    for (auto const& [n, section] : original.Section())
      EXPECT_EQ(model.SectionExist(static_cast<int>(n)), index.IsSectionUsed(static_cast<int>(n)));
    for (auto const& [n, material] : original.MatAnal())
      EXPECT_EQ(model.MatAnalExist(static_cast<int>(n)), index.IsMatAnalUsed(static_cast<int>(n)));
  });
}

}  // namespace
}  // namespace Tarvex::RenumberPropertyTest
