// Merges of numbers, against the plain form on sorted pairs.
#include <gtest/gtest.h>

#include <algorithm>
#include <array>

#include "store/record/node.h"
#include "store/select/numbers.h"
#include "tests/renumber/renumber_support.h"

namespace Tarvex::MergeTest {
namespace {

using Testing::Random;
using Testing::Scheme;
using Testing::SchemeOf;

/// The scheme as a map and its pairs (new, old), sorted; each merge walks the pairs.
class PlainScheme {
 public:
  void Index(Scheme const& scheme) {
    m_scheme = scheme;
    m_pairs.clear();
    m_indexed = false;
  }
  /// A scheme built anew, which leaves the pairs as they were.
  void IndexStale(Scheme const& scheme) { m_scheme = scheme; }
  void Item(int from, int to) {
    if (!m_indexed)
      for (auto const& [old, number] : m_scheme) m_pairs.emplace_back(number, old);
    m_indexed = true;
    for (auto& [number, old] : m_pairs)
      if (number == from) m_scheme[old] = number = to;
    std::sort(m_pairs.begin(), m_pairs.end());
  }
  /// Without what goes.
  Scheme Map() const {
    Scheme kept = m_scheme;
    std::erase_if(kept, [](auto const& entry) { return entry.second == 0; });
    return kept;
  }

 private:
  Scheme m_scheme;
  std::vector<std::pair<int, int>> m_pairs;
  bool m_indexed = false;
};

Scheme Identity(int count) {
  Scheme scheme;
  for (int n = 1; n <= count; ++n) scheme[n] = n;
  return scheme;
}

TEST(MergeItem, MovesEverythingThatMapsToANumber) {
  CRenumber renumber;
  renumber.Index(CModule::Node, {{1, 4}, {2, 4}, {3, 3}});
  renumber.IndexItem(CModule::Node, 4, 9);
  EXPECT_EQ(SchemeOf(renumber, CModule::Node), (Scheme{{1, 9}, {2, 9}, {3, 3}}));
}

TEST(MergeItem, HoldsChains) {
  CRenumber renumber;
  renumber.Index(CModule::Node, Identity(8));
  renumber.IndexItem(CModule::Node, 7, 3);
  renumber.IndexItem(CModule::Node, 3, 2);
  EXPECT_EQ(renumber.MapItem(CModule::Node, 7), 2);
  EXPECT_EQ(renumber.MapItem(CModule::Node, 3), 2);
  EXPECT_EQ(renumber.MapItem(CModule::Node, 2), 2);
}

TEST(MergeItem, OfANumberWithItselfChangesNothing) {
  CRenumber renumber;
  renumber.Index(CModule::Node, {{1, 4}, {2, 4}});
  renumber.IndexItem(CModule::Node, 4, 4);
  EXPECT_EQ(SchemeOf(renumber, CModule::Node), (Scheme{{1, 4}, {2, 4}}));
}

TEST(MergeItem, OfANumberThatNothingMapsToChangesNothing) {
  CRenumber renumber;
  renumber.Index(CModule::Node, {{1, 4}});
  renumber.IndexItem(CModule::Node, 1, 9);
  EXPECT_EQ(SchemeOf(renumber, CModule::Node), (Scheme{{1, 4}}));
}

TEST(MergeItem, DoesNothingForATableWithoutScheme) {
  Testing::OpenRenumber renumber;
  renumber.IndexItem(CModule::Node, 1, 2);
  EXPECT_FALSE(renumber.IsModule(CModule::Node));
  EXPECT_EQ(renumber.MapItem(CModule::Node, 1), 1);
}

TEST(MergeItem, GoesUpAsWellAsDown) {
  CRenumber renumber;
  renumber.Index(CModule::Node, Identity(5));
  renumber.IndexItem(CModule::Node, 1, 5);
  renumber.IndexItem(CModule::Node, 4, 5);
  EXPECT_EQ(SchemeOf(renumber, CModule::Node), (Scheme{{1, 5}, {2, 2}, {3, 3}, {4, 5}, {5, 5}}));
}

TEST(MergeItem, StartsAnewBehindAReadyMap) {
  CRenumber renumber;
  renumber.Index(CModule::Node, {{1, 1}, {2, 2}});
  renumber.IndexItem(CModule::Node, 1, 2);
  renumber.Index(CModule::Node, {{5, 2}});
  renumber.IndexItem(CModule::Node, 2, 7);
  EXPECT_EQ(SchemeOf(renumber, CModule::Node), (Scheme{{5, 7}}));
}

TEST(MergeItem, GoesByWhatItFoundBeforeTheTableWasCompressedAgain) {
  CZelData model;
  Testing::NodesAt(model, {1, 4});
  CRenumber renumber(&model);
  renumber.Index(CModule::Node, {{1, 6}, {9, 8}});
  renumber.IndexItem(CModule::Node, 6, 8);  // the pairs are now (8, 1), (8, 9)
  renumber.Index(CModule::Node);            // 1 to 1, 4 to 2
  renumber.IndexItem(CModule::Node, 8, 3);
  EXPECT_EQ(SchemeOf(renumber, CModule::Node), (Scheme{{1, 3}, {4, 2}, {9, 3}}));
}

TEST(MergeItem, ForgetsWhatItFoundInTheTableThatAListNames) {
  // A list of nodes with another table as argument clears the pairs of that table.
  CZelData model;
  Testing::NodesAt(model, {1});
  CRenumber renumber(&model);
  renumber.Index(CModule::Elem, {{1, 1}, {2, 2}});
  renumber.IndexItem(CModule::Elem, 1, 2);
  renumber.Index(Data::CEntList(SelNode, L""), CModule::Elem);
  renumber.IndexItem(CModule::Elem, 2, 5);
  EXPECT_EQ(SchemeOf(renumber, CModule::Elem), (Scheme{{1, 5}, {2, 5}}));
}

TEST(MergeItem, IsCopiedWithTheScheme) {
  CRenumber renumber;
  renumber.Index(CModule::Node, Identity(3));
  renumber.IndexItem(CModule::Node, 3, 1);
  CRenumber copy(renumber);
  copy.IndexItem(CModule::Node, 1, 2);
  EXPECT_EQ(SchemeOf(copy, CModule::Node), (Scheme{{1, 2}, {2, 2}, {3, 2}}));
  EXPECT_EQ(SchemeOf(renumber, CModule::Node), (Scheme{{1, 1}, {2, 2}, {3, 1}}));
}

TEST(MergeItem, TakesNumbersThatNoRecordCanHave) {
  CRenumber renumber;
  renumber.Index(CModule::Node, {{1, 0}, {2, -3}, {3, 3}, {4, kHighestNumber + 1}});
  renumber.IndexItem(CModule::Node, 0, 5);
  renumber.IndexItem(CModule::Node, -3, -7);
  renumber.IndexItem(CModule::Node, kHighestNumber + 1, 0);
  EXPECT_EQ(SchemeOf(renumber, CModule::Node), (Scheme{{1, 5}, {2, -7}, {3, 3}}));
  renumber.IndexItem(CModule::Node, 0, 3);
  EXPECT_EQ(SchemeOf(renumber, CModule::Node), (Scheme{{1, 5}, {2, -7}, {3, 3}, {4, 3}}));
}

TEST(MergeItem, TakesManyPairsOneAfterTheOther) {
  Random random(4);
  std::vector<std::pair<int, int>> pairs;
  for (int i = 0; i < 60; ++i) pairs.emplace_back(random.Int(1, 100), random.Int(1, 100));
  CRenumber each;
  CRenumber all;
  for (auto* renumber : {&each, &all}) renumber->Index(CModule::Node, Identity(100));
  for (auto const& [from, to] : pairs) each.IndexItem(CModule::Node, from, to);
  all.IndexItems(CModule::Node, pairs);
  EXPECT_EQ(SchemeOf(all, CModule::Node), SchemeOf(each, CModule::Node));
  EXPECT_NE(SchemeOf(all, CModule::Node), Identity(100));
  all.IndexItems(CModule::Elem, pairs);  // a table without a scheme
  EXPECT_EQ(all.MapItem(CModule::Elem, pairs[0].first), pairs[0].first);
}

/// Numbers of records mostly, and some that none can have.
int AnyNumber(Random& random) {
  constexpr std::array kOthers{-1, 0, kHighestNumber + 1};
  if (random.Percent(10)) return kOthers[static_cast<std::size_t>(random.Int(0, 2))];
  return random.Int(1, 12);
}

TEST(MergeItem, EqualsThePlainFormOnRandomMerges) {
  constexpr int kRuns = 200;
  for (std::uint32_t seed = 1; seed <= kRuns; ++seed) {
    SCOPED_TRACE(seed);
    Random random(seed);
    CZelData model;
    int const highest = random.Int(1, 12);
    Testing::NodesAt(model, random.Numbers(highest));
    CRenumber renumber(&model);
    PlainScheme plain;
    Scheme first;
    for (int const n : random.Numbers(highest)) first[n] = random.Int(1, 10);
    renumber.Index(CModule::Node, first);
    plain.Index(first);
    for (int step = 0; step < 30; ++step) {
      if (random.Percent(5)) {
        renumber.Index(CModule::Node);
        plain.IndexStale(SchemeOf(renumber, CModule::Node));
      }
      int const from = AnyNumber(random);
      int const to = AnyNumber(random);
      renumber.IndexItem(CModule::Node, from, to);
      plain.Item(from, to);
      ASSERT_EQ(SchemeOf(renumber, CModule::Node), plain.Map()) << from << " to " << to;
    }
  }
}

/// Merges of a million numbers in one order: each pair of the order becomes the second.
void ExpectFastMerges(std::vector<std::pair<int, int>> const& merges, int expectedLast) {
  constexpr int kRecords = 100000;
  CRenumber renumber;
  renumber.Index(CModule::Node, Identity(kRecords));
  for (auto const& [from, to] : merges) renumber.IndexItem(CModule::Node, from, to);
  EXPECT_EQ(renumber.MapItem(CModule::Node, merges.front().first), expectedLast);
}

TEST(MergeItem, EndsSoonInEveryOrder) {
  // With a walk or a block move a merge these would take minutes.
  constexpr int kMerges = 50000;
  std::vector<std::pair<int, int>> up;
  std::vector<std::pair<int, int>> down;
  std::vector<std::pair<int, int>> toOne;
  for (int n = 1; n <= kMerges; ++n) {
    up.emplace_back(n, n + 1);
    down.emplace_back(kMerges - n + 2, kMerges - n + 1);
    toOne.emplace_back(n + 1, 1);
  }
  ExpectFastMerges(up, kMerges + 1);
  ExpectFastMerges(down, 1);
  ExpectFastMerges(toOne, 1);
}

}  // namespace
}  // namespace Tarvex::MergeTest
