#include "store/table/positional_table.h"

#include <gtest/gtest.h>

#include <climits>
#include <optional>

#include "tests/support/random_model.h"

namespace Tarvex::PositionalTableTest {
namespace {

struct Item {
  int value = 0;
  int number = 0;
};
struct ItemAccess {
  static void SetNumber(Item& item, int number) { item.number = number; }
};
using Table = PositionalTable<Item, ItemAccess>;

/// A table of values, in order.
Table Of(std::vector<int> const& values) {
  Table table;
  for (int const value : values) table.Set(table.Highest() + 1, {value, 0});
  return table;
}

std::vector<int> Values(Table const& table) {
  std::vector<int> values;
  for (auto const& item : table.All()) values.push_back(item.value);
  return values;
}

/// Expects that all ways of reading tell the same values, each record with its number.
void ExpectHolds(Table const& table, std::vector<int> const& values) {
  EXPECT_EQ(Values(table), values);
  EXPECT_EQ(table.Highest(), static_cast<int>(values.size()));
  for (int n = 1; n <= table.Highest(); ++n) {
    EXPECT_TRUE(table.Exist(n));
    ASSERT_NE(table.Find(n), nullptr);
    EXPECT_EQ(table.Find(n), &table.All()[static_cast<std::size_t>(n) - 1]);
    EXPECT_EQ(table.Find(n)->number, n);
  }
  for (int const n : {INT_MIN, -1, 0, table.Highest() + 1, INT_MAX}) {
    EXPECT_FALSE(table.Exist(n)) << n;
    EXPECT_EQ(table.Find(n), nullptr) << n;
  }
}

TEST(PositionalTable, IsEmptyAtFirst) { ExpectHolds(Table(), {}); }

TEST(PositionalTable, TakesARecordBehindTheLastOrInThePlaceOfAnother) {
  auto table = Of({10, 20});
  table.Set(3, {30, 0});
  ExpectHolds(table, {10, 20, 30});
  table.Set(2, {21, 0});
  ExpectHolds(table, {10, 21, 30});
}

TEST(PositionalTable, GivesTheRecordAsStored) {
  auto table = Of({10});
  auto& stored = table.Set(2, {20, 7});
  EXPECT_EQ(stored.number, 2);
  EXPECT_EQ(&stored, table.Find(2));
}

TEST(PositionalTable, RefusesANumberThatWouldLeaveAGapAndChangesNothing) {
  auto table = Of({10, 20});
  auto const revision = table.Revision();
  for (int const n : {INT_MIN, -1, 0, 4, 100000001, INT_MAX})
    EXPECT_THROW(table.Set(n, {9, 0}), std::out_of_range) << n;
  ExpectHolds(table, {10, 20});
  EXPECT_EQ(table.Revision(), revision);
}

TEST(PositionalTable, ClosesUpWhereRecordsGo) {
  struct Row {
    int first;
    int count;
    std::vector<int> left;
  };
  for (auto const& row : std::vector<Row>{{2, 1, {10, 30, 40, 50}},
                                          {2, 3, {10, 50}},
                                          {4, 2, {10, 20, 30}},
                                          {4, INT_MAX, {10, 20, 30}},
                                          {1, 1, {20, 30, 40, 50}},
                                          {-2, 4, {20, 30, 40, 50}},  // -2 to 1
                                          {1, 5, {}},
                                          {INT_MIN, INT_MAX, {10, 20, 30, 40, 50}},
                                          {0, 1, {}},
                                          {0, 2, {20, 30, 40, 50}},
                                          {0, 0, {10, 20, 30, 40, 50}},
                                          {1, 0, {10, 20, 30, 40, 50}},
                                          {2, -1, {10, 20, 30, 40, 50}},
                                          {3, INT_MIN, {10, 20, 30, 40, 50}},
                                          {6, 1, {10, 20, 30, 40, 50}},
                                          {INT_MAX, INT_MAX, {10, 20, 30, 40, 50}}}) {
    SCOPED_TRACE(std::to_string(row.first) + ", " + std::to_string(row.count));
    auto table = Of({10, 20, 30, 40, 50});
    auto const copy = table;
    auto const revision = table.Revision();
    table.Remove(row.first, row.count);
    ExpectHolds(table, row.left);
    ExpectHolds(copy, {10, 20, 30, 40, 50});
    EXPECT_EQ(table.Revision() == revision, row.left.size() == 5u);
  }
}

TEST(PositionalTable, SharesItsRecordsWithCopiesUntilOneIsWritten) {
  auto table = Of({10, 20});
  auto copy = table;
  EXPECT_EQ(&copy.All(), &table.All());
  EXPECT_EQ(copy.Revision(), table.Revision());
  copy.Set(1, {11, 0});
  EXPECT_NE(&copy.All(), &table.All());
  EXPECT_NE(copy.Revision(), table.Revision());
  ExpectHolds(copy, {11, 20});
  ExpectHolds(table, {10, 20});
  auto const* place = table.Find(1);
  table.Set(1, {12, 0});  // nobody shares it any more
  EXPECT_EQ(table.Find(1), place);
}

TEST(PositionalTable, StoresARecordOfItsOwn) {
  auto table = Of({10, 20});
  table.Set(3, *table.Find(1));
  table.Set(2, *table.Find(3));
  ExpectHolds(table, {10, 10, 10});
  auto copy = std::make_optional(table);
  table.Set(4, *table.Find(1));
  table.Set(1, *copy->Find(2));
  copy.reset();
  ExpectHolds(table, {10, 10, 10, 10});
}

TEST(PositionalTable, EditsInPlaceAndLeavesCopiesAlone) {
  auto table = Of({10, 20});
  auto const copy = table;
  auto const revision = table.Revision();
  table.Edit(2).value = 25;
  ExpectHolds(table, {10, 25});
  ExpectHolds(copy, {10, 20});
  EXPECT_NE(table.Revision(), revision);
}

TEST(PositionalTable, BehavesAsAPlainVectorWithCopiesAndWaysBack) {
  struct State {
    Table table;
    std::vector<int> plain;
  };
  for (std::uint32_t seed = 1; seed <= 200; ++seed) {
    SCOPED_TRACE(seed);
    Testing::Random random(seed);
    State now;
    std::vector<State> kept;
    for (int step = 0; step < 60; ++step) {
      int const count = static_cast<int>(now.plain.size());
      int const kind = random.Int(0, 9);
      if (kind <= 4) {
        int const n = random.Int(1, count + 1);
        now.table.Set(n, {step, 0});
        if (n > count) now.plain.push_back(0);
        now.plain[static_cast<std::size_t>(n) - 1] = step;
      } else if (kind <= 6) {
        int const first = random.Int(-1, count + 2);
        int const many = random.Int(-1, 3);
        now.table.Remove(first, many);
        if (first == 0 && many == 1) now.plain.clear();
        for (int n = std::min(first + many - 1, static_cast<int>(now.plain.size()));
             many > 0 && n >= std::max(first, 1); --n)
          now.plain.erase(now.plain.begin() + (n - 1));
      } else if (kind == 7) {
        kept.push_back(now);
      } else if (kind == 8 && !kept.empty()) {
        now = random.Of(kept);
      } else if (count > 0) {
        int const n = random.Int(1, count);
        now.table.Edit(n).value = -step;
        now.plain[static_cast<std::size_t>(n) - 1] = -step;
      }
      ExpectHolds(now.table, now.plain);
      for (auto const& state : kept) ExpectHolds(state.table, state.plain);
      for (auto const& state : kept)
        EXPECT_TRUE(state.table.Revision() != now.table.Revision() || state.plain == now.plain);
    }
  }
}

}  // namespace
}  // namespace Tarvex::PositionalTableTest
