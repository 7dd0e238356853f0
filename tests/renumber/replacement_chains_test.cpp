// Chains of replacements.
#include <gtest/gtest.h>

#include "tests/renumber/renumber_support.h"

namespace Tarvex::ReplacementChainsTest {
namespace {

using Numbers = std::vector<int>;
using Rows = std::vector<Numbers>;
using Map = std::map<int, Numbers>;
using Testing::OpenRenumber;

TEST(ReplacementChains, EndAtNumbersWithoutReplacement) {
  Map const map{{1, {2, 5}}, {2, {3, 4}}, {4, {}}};
  EXPECT_EQ(OpenRenumber::RenumberGetReplacement(1, map), (Numbers{3, 4, 5}));
  EXPECT_EQ(OpenRenumber::RenumberGetReplacement(4, map), (Numbers{4}));  // an empty row is none
  EXPECT_EQ(OpenRenumber::RenumberGetReplacement(9, map), (Numbers{9}));
}

TEST(ReplacementChains, BeginWithTheNumberItself) {
  EXPECT_EQ(CRenumber::Renumber(1, Map{{1, {2}}, {2, {3, 4}}}), (Numbers{1, 3, 4}));
}

TEST(ReplacementChains, TellANumberWithoutReplacementTwice) {
  EXPECT_EQ(CRenumber::Renumber(5, Map{}), (Numbers{5, 5}));
}

TEST(ReplacementChains, GiveARowForEachNumberInOrder) {
  Map const map{{1, {2}}};
  EXPECT_EQ(CRenumber::Renumber(Numbers{3, 1, 3}, map), (Rows{{3, 3}, {1, 2}, {3, 3}}));
}

TEST(ReplacementChains, TakeTheLaterOfTwoPairs) {
  std::vector<std::pair<int, int>> const pairs{{1, 2}, {2, 6}, {1, 3}};
  EXPECT_EQ(CRenumber::Renumber(Numbers{1, 2}, pairs), (Rows{{1, 3}, {2, 6}}));
}

TEST(ReplacementChains, CompressToTheirHeads) {
  EXPECT_EQ(CRenumber::RenumberGetCompressedScheme(Map{{1, {2}}, {2, {3, 4}}}), (Rows{{1, 3, 4}}));
}

TEST(ReplacementChains, CompressToRowsInAscendingOrder) {
  EXPECT_EQ(CRenumber::RenumberGetCompressedScheme(Map{{8, {9}}, {3, {8}}, {5, {6, 7}}, {4, {}}}),
            (Rows{{3, 9}, {4, 4}, {5, 6, 7}}));
}

}  // namespace
}  // namespace Tarvex::ReplacementChainsTest
