// The paged table: its rules one by one. What sharing costs and what failures leave stands in
// paged_table_impl_test.cpp, random operations against a map in paged_table_property_test.cpp.
#include "store/table/paged_table.h"

#include <gtest/gtest.h>

#include <climits>
#include <string>

#include "tests/support/matchers.h"

namespace Tarvex::PagedTableTest {
namespace {

using Testing::OutOfRangeText;
using Small = PagedTable<std::string, 2, 2>;  // four numbers a chunk

Small Of(std::initializer_list<int> numbers) {
  Small table;
  for (int const n : numbers) table.Set(n, "r" + std::to_string(n));
  return table;
}

std::vector<int> Walk(Small const& table) {
  std::vector<int> numbers;
  for (auto const& [n, record] : table) {
    EXPECT_EQ(record, "r" + std::to_string(n));
    numbers.push_back(static_cast<int>(n));
  }
  return numbers;
}

TEST(PagedTable, IsEmptyAtFirst) {
  Small const table;
  EXPECT_TRUE(table.empty());
  EXPECT_EQ(table.size(), 0u);
  EXPECT_EQ(table.Highest(), 0);
  EXPECT_EQ(table.Next(0), 0);
  EXPECT_EQ(table.Previous(INT_MAX), 0);
  EXPECT_EQ(table.begin(), table.end());
  EXPECT_FALSE(table.Exist(1));
}

TEST(PagedTable, WalksInAscendingNumberWhateverTheOrderOfStoring) {
  EXPECT_EQ(Walk(Of({9, 1, 200, 4, 5, 17})), (std::vector{1, 4, 5, 9, 17, 200}));
}

TEST(PagedTable, ReplacesTheRecordOfANumber) {
  auto table = Of({3});
  auto& stored = table.Set(3, std::string("new"));
  EXPECT_EQ(stored, "new");
  EXPECT_EQ(*table.Find(3), "new");
  EXPECT_EQ(table.size(), 1u);
}

TEST(PagedTable, RefusesNumbersBelowOneAndAboveTheHighest) {
  auto table = Of({3});
  auto const revision = table.Revision();
  for (int const n : {0, -1, INT_MIN, 100000001, INT_MAX}) {
    EXPECT_EQ(OutOfRangeText([&] { table.Set(n, std::string()); }),
              "record number " + std::to_string(n) + " is not from 1 to 100000000");
    EXPECT_FALSE(table.Exist(n));
  }
  EXPECT_EQ(Walk(table), std::vector{3});
  EXPECT_EQ(table.Revision(), revision);
}

TEST(PagedTable, TakesTheHighestNumber) {
  PagedTable<int> table;
  table.Set(100000000, 7);
  table.Set(1, 8);
  EXPECT_EQ(table.Highest(), 100000000);
  EXPECT_EQ(*table.Find(100000000), 7);
  EXPECT_EQ(table.Next(1), 100000000);
  EXPECT_EQ(table.Previous(100000000), 1);
  EXPECT_EQ(table.size(), 2u);
  table.Remove(100000000, 1);
  EXPECT_EQ(table.Highest(), 1);
}

TEST(PagedTable, FindsTheNeighboursOfAnyNumber) {
  auto const table = Of({2, 3, 11});
  EXPECT_EQ(table.Next(INT_MIN), 2);
  EXPECT_EQ(table.Next(-1), 2);
  EXPECT_EQ(table.Next(0), 2);
  EXPECT_EQ(table.Next(2), 3);
  EXPECT_EQ(table.Next(3), 11);
  EXPECT_EQ(table.Next(11), 0);
  EXPECT_EQ(table.Next(INT_MAX), 0);
  EXPECT_EQ(table.Previous(INT_MAX), 11);
  EXPECT_EQ(table.Previous(12), 11);
  EXPECT_EQ(table.Previous(11), 3);
  EXPECT_EQ(table.Previous(3), 2);
  EXPECT_EQ(table.Previous(2), 0);
  EXPECT_EQ(table.Previous(INT_MIN), 0);
}

TEST(PagedTable, HasTheFaceOfAMap) {
  auto const table = Of({2, 9});
  EXPECT_EQ(table.count(2), 1u);
  EXPECT_EQ(table.count(3), 0u);
  EXPECT_TRUE(table.contains(9));
  EXPECT_FALSE(table.contains(0));
  EXPECT_FALSE(table.contains(UINT_MAX));
  EXPECT_EQ(table.find(3), table.end());
  EXPECT_EQ(table.find(UINT_MAX), table.end());
  auto at = table.find(2);
  EXPECT_EQ(at->first, 2u);
  EXPECT_EQ(at->second, "r2");
  EXPECT_EQ((at++)->first, 2u);
  EXPECT_EQ((*at).first, 9u);
  EXPECT_EQ(++at, table.end());
  EXPECT_EQ(table.at(9), "r9");
  EXPECT_EQ(OutOfRangeText([&] { table.at(10); }), "no record 10");
  EXPECT_EQ(OutOfRangeText([&] { table.at(4294967295u); }), "no record 4294967295");
}

TEST(PagedTable, RemovesARangeAndLeavesHoles) {
  auto table = Of({1, 2, 3, 5, 8, 9});
  table.Remove(2, 4);  // 2 to 5
  EXPECT_EQ(Walk(table), (std::vector{1, 8, 9}));
  EXPECT_EQ(table.Highest(), 9);
  EXPECT_EQ(table.size(), 3u);
  table.Remove(9, 100);
  EXPECT_EQ(table.Highest(), 8);
}

TEST(PagedTable, RemovesNothingForACountBelowOne) {
  auto table = Of({1, 2});
  auto const revision = table.Revision();
  for (int const count : {0, -1, INT_MIN}) table.Remove(1, count);
  table.Remove(3, 5);
  table.Remove(-5, 5);
  table.Remove(INT_MIN, INT_MAX);
  table.Remove(INT_MAX, INT_MAX);
  EXPECT_EQ(Walk(table), (std::vector{1, 2}));
  EXPECT_EQ(table.Revision(), revision);
}

TEST(PagedTable, RemovesARangeThatBeginsBelowOne) {
  auto table = Of({1, 2, 3});
  table.Remove(-1, 4);  // -1 to 2
  EXPECT_EQ(Walk(table), std::vector{3});
  table.Remove(-5, INT_MAX);
  EXPECT_TRUE(table.empty());
  EXPECT_EQ(table.Highest(), 0);
}

TEST(PagedTable, ClearsToAnEmptyTableOfANewRevision) {
  auto table = Of({1, 50});
  auto const copy = table;
  table.Clear();
  EXPECT_TRUE(table.empty());
  EXPECT_EQ(table.Highest(), 0);
  EXPECT_NE(table.Revision(), copy.Revision());
  EXPECT_EQ(Walk(copy), (std::vector{1, 50}));
}

TEST(PagedTable, StoresARecordOfItsOwnUnderAnotherNumber) {
  auto table = Of({1});
  auto const snapshot = table;  // so that the store clones the page that the record stands in
  table.Set(2, *table.Find(1));
  table.Set(40, *table.Find(1));  // grows the root
  table.Set(1, *table.Find(1));
  EXPECT_EQ(*table.Find(2), "r1");
  EXPECT_EQ(*table.Find(40), "r1");
  EXPECT_EQ(*table.Find(1), "r1");
  EXPECT_EQ(Walk(snapshot), std::vector{1});
}

TEST(PagedTable, MayBeStoredIntoDuringAWalk) {
  auto table = Of({1, 2, 3});
  auto const snapshot = table;
  std::vector<unsigned int> seen;
  for (auto const& [n, record] : table) {
    seen.push_back(n);
    if (n == 1) table.Remove(2, 1);
    if (n == 3) table.Set(30, std::string("r30"));
  }
  EXPECT_EQ(seen, (std::vector{1u, 3u, 30u}));
}

TEST(PagedTable, MovesItsRecordsAndLeavesAnEmptyTable) {
  auto a = Of({1, 9});
  auto b = std::move(a);
  EXPECT_EQ(Walk(b), (std::vector{1, 9}));
  EXPECT_TRUE(a.empty());  // NOLINT: moved from
  EXPECT_EQ(a.Highest(), 0);
  a.Set(4, std::string("r4"));
  EXPECT_EQ(Walk(a), std::vector{4});
  b = std::move(a);
  EXPECT_EQ(Walk(b), std::vector{4});
}

TEST(PagedTable, TakesANewRevisionAtEveryChangeAndAtNoOther) {
  auto table = Of({1, 2});
  auto last = table.Revision();
  auto const changed = [&] { return std::exchange(last, table.Revision()) != last; };
  table.Set(1, std::string("x"));
  EXPECT_TRUE(changed());
  table.Edit(1) = "y";
  EXPECT_TRUE(changed());
  table.Remove(2, 1);
  EXPECT_TRUE(changed());
  table.EditDerived(1);
  EXPECT_FALSE(changed());
  auto const copy = table;
  EXPECT_EQ(copy.Revision(), last);
  EXPECT_FALSE(changed());
}

TEST(PagedTable, TakesANewExistenceRevisionWhenNumbersComeOrGoAndAtNoOtherChange) {
  auto table = Of({1, 2});
  auto last = table.ExistenceRevision();
  auto const changed = [&] { return std::exchange(last, table.ExistenceRevision()) != last; };
  EXPECT_NE(last, PagedTable<std::string>().ExistenceRevision());
  table.Set(1, std::string("x"));
  table.Edit(1) = "y";
  table.EditDerived(1);
  EXPECT_FALSE(changed());
  table.Set(3, std::string("z"));
  EXPECT_TRUE(changed());
  table.Remove(9, 5);
  EXPECT_FALSE(changed());
  table.Remove(2, 1);
  EXPECT_TRUE(changed());
  auto const copy = table;
  EXPECT_EQ(copy.ExistenceRevision(), last);
  auto moved = std::move(table);
  EXPECT_EQ(moved.ExistenceRevision(), last);
  moved.Clear();
  EXPECT_NE(moved.ExistenceRevision(), last);
}

TEST(PagedTable, EditOfASharedRecordLeavesTheCopyAsItIs) {
  auto table = Of({1, 2});
  auto const copy = table;
  table.Edit(1) = "edited";
  table.EditDerived(2) = "derived";
  EXPECT_EQ(*table.Find(1), "edited");
  EXPECT_EQ(*table.Find(2), "derived");
  EXPECT_EQ(Walk(copy), (std::vector{1, 2}));
}

TEST(PagedTable, DifferenceVisitsWhatCameWentAndChanged) {
  auto const before = Of({1, 5, 9, 33});
  auto after = before;
  after.Set(5, std::string("x"));
  after.Remove(9, 1);
  after.Set(100, std::string("y"));
  std::vector<std::string> seen;
  Small::Difference(before, after, [&](int n, std::string const* was, std::string const* is) {
    if (was != nullptr && is != nullptr && *was == *is) return;
    seen.push_back(std::to_string(n) + (was == nullptr ? " none" : " " + *was) +
                   (is == nullptr ? " none" : " " + *is));
  });
  EXPECT_EQ(seen, (std::vector<std::string>{"5 r5 x", "9 r9 none", "100 none y"}));
}

TEST(PagedTable, DifferenceOfACopyVisitsNothing) {
  auto const table = Of({1, 5, 9, 33});
  auto copy = table;
  int visits = 0;
  auto const count = [&](int, auto, auto) { ++visits; };
  Small::Difference(table, copy, count);
  EXPECT_EQ(visits, 0);
  copy.Remove(33, 1);
  Small::Difference(table, copy, count);
  EXPECT_EQ(visits, 1);
}

}  // namespace
}  // namespace Tarvex::PagedTableTest
