#include "store/table/table_walks.h"

#include <gtest/gtest.h>

#include <utility>

namespace Tarvex::TableWalksTest {
namespace {

using Pairs = std::vector<std::pair<int, int>>;

template <class Table>
Pairs Walked(Table const& table) {
  Pairs pairs;
  ForEachRecord(table, [&](int n, int value) { pairs.emplace_back(n, value); });
  return pairs;
}

/// "n:before>after" a visit, "-" for a record that is missing.
template <class Table>
std::string Differences(Table const& before, Table const& after) {
  std::string text;
  auto const value = [](int const* record) {
    return record == nullptr ? std::string("-") : std::to_string(*record);
  };
  ForEachDifference(before, after, [&](int n, int const* a, int const* b) {
    if (a == nullptr || b == nullptr || *a != *b)
      text += std::to_string(n) + ":" + value(a) + ">" + value(b) + " ";
  });
  return text;
}

TEST(TableWalks, GoThroughSparseTablesByTheirNumbers) {
  PagedTable<int, 2, 2> table;
  table.Set(9, 90);
  table.Set(4, 40);
  EXPECT_EQ(Walked(table), (Pairs{{4, 40}, {9, 90}}));
  EXPECT_EQ(HighestOf(table), 9);
  EXPECT_EQ(*FindRecord(table, 4), 40);
  EXPECT_EQ(FindRecord(table, 5), nullptr);
  auto other = table;
  other.Set(4, 41);
  other.Set(1, 10);
  other.Remove(9, 1);
  EXPECT_EQ(Differences(table, other), "1:->10 4:40>41 9:90>- ");
}

TEST(TableWalks, GoThroughVectorsByTheirPlacesFromOne) {
  std::vector<int> const table{40, 90};
  EXPECT_EQ(Walked(table), (Pairs{{1, 40}, {2, 90}}));
  EXPECT_EQ(HighestOf(table), 2);
  EXPECT_EQ(HighestOf(std::vector<int>()), 0);
  EXPECT_EQ(*FindRecord(table, 2), 90);
  for (int const n : {-1, 0, 3}) EXPECT_EQ(FindRecord(table, n), nullptr);
  EXPECT_EQ(Differences(table, table), "");
  EXPECT_EQ(Differences(table, {41, 90, 7}), "1:40>41 3:->7 ");
  EXPECT_EQ(Differences({41, 90, 7}, table), "1:41>40 3:7>- ");
}

TEST(TableWalks, VisitNothingOfAVectorThatIsShared) {
  std::vector<int> const table{1, 2};
  int visits = 0;
  ForEachDifference(table, table, [&](int, int const*, int const*) { ++visits; });
  EXPECT_EQ(visits, 0);
}

}  // namespace
}  // namespace Tarvex::TableWalksTest
