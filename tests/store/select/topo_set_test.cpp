#include "store/select/topo_set.h"

#include <gtest/gtest.h>

#include "tests/support/matchers.h"

namespace Tarvex::Util::TopoSetTest {
namespace {

TEST(TopoSet, IsEmptyAtFirst) {
  CTopoSet const set(SelElement);
  EXPECT_EQ(set.TypeOf(), SelElement);
  EXPECT_TRUE(set.IsEmpty());
  EXPECT_EQ(set.LowestItemIncluded(), 0);
  EXPECT_EQ(set.HighestItemIncluded(), 0);
  EXPECT_FALSE(set.IsItemIncluded(1, 0));
}

TEST(TopoSet, HoldsPairsOfItemAndPlace) {
  CTopoSet set(SelElement);
  set.AddTo(7, 2);
  set.AddTo(7, 0);
  set.AddTo(3, -1);  // the item itself
  set.AddTo(7, 2);
  EXPECT_FALSE(set.IsEmpty());
  EXPECT_TRUE(set.IsItemIncluded(7, 2));
  EXPECT_TRUE(set.IsItemIncluded(7, 0));
  EXPECT_TRUE(set.IsItemIncluded(3, -1));
  EXPECT_FALSE(set.IsItemIncluded(7, 1));
  EXPECT_FALSE(set.IsItemIncluded(7, -1));
  EXPECT_FALSE(set.IsItemIncluded(3, 2));
  EXPECT_EQ(set.LowestItemIncluded(), 3);
  EXPECT_EQ(set.HighestItemIncluded(), 7);
  EXPECT_EQ(CTopoSet::Pairs(set.begin(), set.end()), (CTopoSet::Pairs{{3, -1}, {7, 0}, {7, 2}}));
}

TEST(TopoSet, RefusesWhatIsNoItemOrPlace) {
  CTopoSet set(SelNode);
  for (auto const& [item, place] : CTopoSet::Pairs{{0, 0}, {-1, 0}, {100000001, 0}, {1, -2}})
    EXPECT_NE(Testing::OutOfRangeText([&] { set.AddTo(item, place); }), "") << item;
  EXPECT_TRUE(set.IsEmpty());
}

TEST(TopoSet, IsEqualByKindAndPairs) {
  CTopoSet a(SelNode);
  CTopoSet b(SelNode);
  a.AddTo(1, 0);
  EXPECT_FALSE(a == b);
  b.AddTo(1, 0);
  EXPECT_TRUE(a == b);
  EXPECT_FALSE(CTopoSet(SelNode) == CTopoSet(SelElement));
}

}  // namespace
}  // namespace Tarvex::Util::TopoSetTest
