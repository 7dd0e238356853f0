// The wiring of all tables: each operation of each table does what its name says, in that table
// and in no other. The rows are written out in registry_rows.h.
#include "store/model/registry.h"

#include <gtest/gtest.h>

#include <climits>

#include "tests/store/model/registry_rows.h"
#include "tests/support/matchers.h"

namespace Tarvex::RegistryTest {
namespace {

using Testing::Differences;
using Testing::IsUnchanged;
using Testing::OutOfRangeText;

/// A model that holds something in every table but one.
CZelData AllBut(std::string const& stem) {
  CZelData model;
  auto const fill = [&](auto const& row) {
    if (row.stem != stem) row.set(model, 51 + int(row.stem.size()), row.b, SidMode::Keep);
  };
  Rows().ForEach(fill);
  return model;
}

/// Calls check(row, model) for each table with a model that holds something in every other one.
template <class Check>
void ForEachRow(Check&& check) {
  auto const run = [&](auto const& row) {
    SCOPED_TRACE(row.stem);
    auto model = AllBut(row.stem);
    check(row, model);
  };
  Rows().ForEach(run);
}

TEST(Registry, HasExactlyTheTablesOfThisTest) {
  std::vector<std::string> expected;
  ForEachRow([&](auto const& row, CZelData&) {
    expected.push_back(row.stem + " " + std::to_string(row.module));
  });
  std::vector<std::string> found;
  ForEachTable([&](auto const& row) {
    if (row.shape == TableShape::Positional) return;  // positional_tables_test.cpp holds these
    found.push_back(std::string(row.stem) + " " + std::to_string(row.module));
    EXPECT_EQ(row.removal, RemovalForm::Blank);
  });
  EXPECT_EQ(found, expected);
}

TEST(Registry, HasExactlyTheOneOffRecordsOfThisTest) {
  std::vector<std::string> found;
  ForEachOneOff([&](auto const& row) { found.emplace_back(row.stem); });
  EXPECT_EQ(found, (std::vector<std::string>{"Spec", "Defaults", "RaftSpec"}));
}

TEST(Registry, LeadsToTheOperationsOfItsTables) {
  ForEachRow([](auto const& row, CZelData& model) {
    using R = std::remove_cvref_t<decltype(row.a)>;
    int met = 0;
    ForEachTable([&](auto const& registered) {
      if constexpr (std::is_same_v<typename std::remove_cvref_t<decltype(registered)>::Record, R>) {
        ++met;
        (model.*registered.set)(90, row.a, SidMode::Keep);
        EXPECT_EQ(row.get(model, 90), row.a);
        EXPECT_TRUE((model.*registered.exist)(90));
        EXPECT_EQ(&(model.*registered.get)(90), &row.get(model, 90));
        EXPECT_EQ(&(model.*registered.all)(), &row.all(model));
        EXPECT_EQ((model.*registered.highest)(), 90);
        (model.*registered.remove)(90, 1);
        EXPECT_FALSE(row.exist(model, 90));
      }
    });
    EXPECT_EQ(met, 1);
  });
}

TEST(Tables, StoreReadAndRemoveARecordAndTouchNoOtherTable) {
  ForEachRow([](auto const& row, CZelData& model) {
    CZelData const before(model);
    EXPECT_EQ(row.all(model).size(), 0u);
    row.set(model, 3, row.a, SidMode::Keep);
    EXPECT_EQ(Differences(model, before), std::vector<std::string>{row.stem + " 3: came"});
    EXPECT_TRUE(row.exist(model, 3));
    EXPECT_FALSE(row.exist(model, 2));
    EXPECT_EQ(row.get(model, 3), row.a);
    EXPECT_EQ(row.get(model, 3).Number(), 3u);
    EXPECT_EQ(row.all(model).size(), 1u);
    EXPECT_EQ(&row.all(model).at(3), &row.get(model, 3));
    row.blank(model, 3, 1);
    EXPECT_FALSE(row.exist(model, 3));
    EXPECT_TRUE(IsUnchanged(model, before));
  });
}

TEST(Tables, AreEmptyAtFirst) {
  ForEachRow([](auto const& row, CZelData&) {
    CZelData const model;
    EXPECT_EQ(row.highest(model), 0);
    EXPECT_TRUE(row.all(model).empty());
    EXPECT_FALSE(row.exist(model, 0));
    EXPECT_FALSE(row.exist(model, 1));
  });
}

TEST(Tables, ReplaceTheRecordOfANumber) {
  ForEachRow([](auto const& row, CZelData& model) {
    row.set(model, 3, row.a, SidMode::Keep);
    row.set(model, 3, row.b, SidMode::Keep);
    EXPECT_EQ(row.get(model, 3), row.b);
    EXPECT_EQ(row.all(model).size(), 1u);
  });
}

TEST(Tables, KnowTheirHighestNumber) {
  ForEachRow([](auto const& row, CZelData&) {
    CZelData model;
    for (int const n : {7, 500, 3}) row.set(model, n, row.a, SidMode::Keep);
    EXPECT_EQ(row.highest(model), 500);
    row.blank(model, 500, 1);
    EXPECT_EQ(row.highest(model), 7);
    row.set(model, 100000000, row.a, SidMode::Keep);
    EXPECT_EQ(row.highest(model), 100000000);
  });
}

TEST(Tables, WalkInAscendingNumber) {
  ForEachRow([](auto const& row, CZelData& model) {
    for (int const n : {700, 5, 64, 65}) row.set(model, n, row.a, SidMode::Keep);
    std::vector<unsigned int> numbers;
    for (auto const& [n, record] : row.all(model)) {
      EXPECT_EQ(record, row.a);
      numbers.push_back(n);
    }
    EXPECT_EQ(numbers, (std::vector{5u, 64u, 65u, 700u}));
  });
}

TEST(Tables, NameTableAndNumberOfAMissingRecord) {
  ForEachRow([](auto const& row, CZelData& model) {
    for (int const n : {7, -1, INT_MAX})
      EXPECT_EQ(OutOfRangeText([&] { row.get(model, n); }),
                row.stem + " " + std::to_string(n) + " does not exist");
  });
}

TEST(Tables, RefuseNumbersBelowOneAndAboveTheHighest) {
  ForEachRow([](auto const& row, CZelData& model) {
    CZelData const before(model);
    for (int const n : {0, -1, INT_MIN, 100000001, INT_MAX})
      EXPECT_THROW(row.set(model, n, row.a, SidMode::Keep), std::out_of_range) << n;
    EXPECT_TRUE(IsUnchanged(model, before));
  });
}

TEST(Tables, BlankARangeAndLeaveHoles) {
  ForEachRow([](auto const& row, CZelData& model) {
    for (int const n : {1, 2, 4, 5, 9}) row.set(model, n, row.a, SidMode::Keep);
    row.blank(model, 2, 3);  // 2 to 4
    std::string left;
    for (int n = 0; n <= 10; ++n) left += row.exist(model, n) ? '1' : '0';
    EXPECT_EQ(left, "01000100010");
    row.blank(model, -5, 7);  // -5 to 1
    EXPECT_FALSE(row.exist(model, 1));
    row.blank(model, 5, INT_MAX);
    EXPECT_TRUE(row.all(model).empty());
  });
}

TEST(Tables, BlankNothingForACountBelowOne) {
  ForEachRow([](auto const& row, CZelData& model) {
    row.set(model, 1, row.a, SidMode::Keep);
    row.set(model, 2, row.a, SidMode::Keep);
    CZelData const before(model);
    for (int const count : {0, -1, INT_MIN}) row.blank(model, 2, count);
    row.blank(model, 0, 1);
    row.blank(model, 3, INT_MAX);
    row.blank(model, INT_MIN, 5);
    row.blank(model, INT_MIN, -5);
    EXPECT_TRUE(IsUnchanged(model, before));
  });
}

TEST(Tables, StoreARecordOfTheirOwnUnderAnotherNumber) {
  ForEachRow([](auto const& row, CZelData& model) {
    row.set(model, 4, row.a, SidMode::Keep);
    row.set(model, 5, row.get(model, 4), SidMode::Keep);
    EXPECT_EQ(row.get(model, 5), row.a);
    EXPECT_EQ(row.get(model, 5).Number(), 5u);
    EXPECT_EQ(row.get(model, 4).Number(), 4u);
    auto const snapshot = model.Snapshot();  // now the store clones the page of the record
    row.set(model, 6, row.get(model, 4), SidMode::Keep);
    row.set(model, 4, row.get(model, 4), SidMode::Keep);
    row.set(model, 400, row.get(model, 4), SidMode::Drop);
    EXPECT_EQ(row.get(model, 6), row.a);
    EXPECT_EQ(row.get(model, 4), row.a);
    EXPECT_EQ(row.get(model, 400).Sid(), L"");
    EXPECT_FALSE(row.exist(*snapshot, 6));
  });
}

TEST(Tables, StoreWithOrWithoutTheIdentifier) {
  ForEachRow([](auto const& row, CZelData& model) {
    row.set(model, 1, row.a, SidMode::Keep);
    EXPECT_EQ(row.get(model, 1).Sid(), L"id");
    row.set(model, 1, row.a, SidMode::Drop);
    EXPECT_EQ(row.get(model, 1).Sid(), L"");
    EXPECT_EQ(row.get(model, 1), WithSid(row.a, L""));
  });
}

TEST(Modules, AnswerForTheirTable) {
  ForEachRow([](auto const& row, CZelData&) {
    CZelData model;
    auto const module = static_cast<CModule::ModuleId>(row.module);
    if (module == CModule::None) return;
    EXPECT_EQ(model.HighestRecord(module), 0);
    row.set(model, 3, row.a, SidMode::Keep);
    EXPECT_EQ(model.HighestRecord(module), 3);
    EXPECT_EQ(model.RecordExist(module, 3), row.stem != "LoadPanel");
    EXPECT_FALSE(model.RecordExist(module, 2));
    EXPECT_FALSE(model.RecordExist(module, -1));
    model.RemoveModule(module);
    EXPECT_TRUE(row.all(model).empty());
    EXPECT_EQ(model.HighestRecord(module), 0);
  });
}

TEST(Modules, EmptyTheirOwnTablesOnly) {
  for (auto const& [module, gone] : {std::pair{80, "Node"},
                                     {110, "Elem LoadPanel"},
                                     {100, "Member"},
                                     {20, "Axis"},
                                     {23, "GridPlane"},
                                     {24, "GridSurface"},
                                     {25, "Polyline"}}) {
    CZelData model;
    ForEachRow([&](auto const& row, CZelData&) {
      row.set(model, row.stem == "LoadPanel" ? 4 : 3, row.b, SidMode::Keep);
      row.set(model, row.stem == "LoadPanel" ? 100000000 : 99999, row.b, SidMode::Keep);
    });
    model.RemoveModule(static_cast<CModule::ModuleId>(module));
    ForEachRow([&, names = std::string(gone)](auto const& row, CZelData&) {
      bool const isGone = (" " + names + " ").find(" " + row.stem + " ") != std::string::npos;
      EXPECT_EQ(row.all(model).size(), isGone ? 0u : 2u);
    });
  }
}

TEST(Modules, AreOneRowEach) {
  std::vector<int> modules;
  for (auto const& row : Modules()) modules.push_back(row.module);
  EXPECT_EQ(modules,
            (std::vector{80,  110, 100, 20,  23,  24,  25,  30,  31,  32,  33,  34,  35,  36,
                         37,  38,  39,  40,  50,  52,  53,  54,  55,  56,  57,  58,  59,  62,
                         63,  64,  65,  75,  135, 136, 137, 140, 142, 143, 144, 150, 151, 152,
                         153, 155, 156, 161, 162, 163, 170, 130, 230, 235, 274, 236, 239}));
  for (int const module : modules) {
    auto const* row = FindModule(static_cast<CModule::ModuleId>(module));
    ASSERT_NE(row, nullptr);
    EXPECT_EQ(static_cast<int>(row->module), module);
  }
}

TEST(Modules, WithoutATableAreEmpty) {
  CZelData model;
  Testing::Grid(model, 2, 2);
  model.SetList(1, CEntList(L"a", SelNode, L"1"));  // a table without a module number
  CZelData const before(model);
  for (auto const module :
       {CModule::None, static_cast<CModule::ModuleId>(0), static_cast<CModule::ModuleId>(9999)}) {
    EXPECT_EQ(FindModule(module), nullptr);
    EXPECT_FALSE(model.RecordExist(module, 1));
    EXPECT_EQ(model.HighestRecord(module), 0);
    model.RemoveModule(module);
  }
  EXPECT_TRUE(IsUnchanged(model, before));
}

}  // namespace
}  // namespace Tarvex::RegistryTest
