#include "store/select/checked_access.h"

#include <gtest/gtest.h>

#include <climits>
#include <map>
#include <unordered_map>

#include "tests/support/matchers.h"

namespace Tarvex::CheckedAccessTest {
namespace {

using Testing::OutOfRangeText;

TEST(CheckedAccess, GivesEntriesOfVectors) {
  std::vector<int> numbers{7, 8};
  EXPECT_EQ(CheckedAt(numbers, 0), 7);
  EXPECT_EQ(CheckedAt(numbers, std::size_t{1}), 8);
  CheckedAt(numbers, 1) = 9;
  EXPECT_EQ(numbers, (std::vector{7, 9}));
  auto const& constant = numbers;
  EXPECT_EQ(&CheckedAt(constant, 1), &numbers[1]);
}

TEST(CheckedAccess, NamesABadSubscriptInFixedWords) {
  std::vector<int> numbers{7, 8};
  for (int const i : {2, -1, INT_MIN, INT_MAX})
    EXPECT_EQ(OutOfRangeText([&] { CheckedAt(numbers, i); }), "invalid vector subscript");
  EXPECT_EQ(OutOfRangeText([&] { CheckedAt(numbers, std::size_t{2}); }),
            "invalid vector subscript");
  std::vector<int> empty;
  EXPECT_EQ(OutOfRangeText([&] { CheckedAt(empty, 0); }), "invalid vector subscript");
}

TEST(CheckedAccess, GivesValuesOfMaps) {
  std::map<int, int> map{{3, 30}};
  CheckedMapAt(map, 3) = 31;
  EXPECT_EQ(map.at(3), 31);
  std::unordered_map<int, int> hashed{{3, 30}};
  CheckedUnorderedMapAt(hashed, 3) = 31;
  EXPECT_EQ(hashed.at(3), 31);
}

TEST(CheckedAccess, NamesABadKeyInFixedWords) {
  std::map<int, int> const map{{3, 30}};
  EXPECT_EQ(OutOfRangeText([&] { CheckedMapAt(map, 4); }), "invalid map<K, T> key");
  std::unordered_map<int, int> const hashed{{3, 30}};
  EXPECT_EQ(OutOfRangeText([&] { CheckedUnorderedMapAt(hashed, 4); }),
            "invalid unordered_map<K, T> key");
}

}  // namespace
}  // namespace Tarvex::CheckedAccessTest
