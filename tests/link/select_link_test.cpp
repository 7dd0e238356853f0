// References, sets and checked access, as an application links them.
#include <gtest/gtest.h>

#include <stdexcept>
#include <utility>

#include "store/record/ent_list.h"
#include "store/select/bit_container.h"
#include "store/select/checked_access.h"
#include "store/select/intervals.h"
#include "store/select/reference.h"
#include "store/select/set.h"
#include "store/select/topo_set.h"
#include "tests/link/linked.h"

namespace Tarvex::SelectLinkTest {
namespace {

using Testing::AreLinked;
using Util::CSet;

/// A set of even numbers: the membership test is open to derived sets.
class EvenNumbers : public CSet {
 public:
  bool IsItemIncluded(int number) const override { return number % 2 == 0; }
};

TEST(SelectLink, Sets) {
  EXPECT_TRUE(AreLinked(&CSet::AddTo, &CSet::AddListToSet, &CSet::RemoveFrom, &CSet::Invert,
                        &CSet::LowestItem, &CSet::HighestItem, &CSet::String, &CSet::Runs));
  CSet set(SelElement);
  for (int const n : {1, 2, 3, 8}) set.AddTo(n);
  CSet copy(set);
  CSet const moved(std::move(copy));
  CSet assigned;
  assigned = moved;
  CSet last;
  last = std::move(assigned);
  EXPECT_TRUE(last == set);
  EXPECT_EQ(last.String(), CString(L"1 to 3 8"));
  EXPECT_TRUE(CSet(SelElement, last.Runs()) == set);
  last.RemoveFrom(1);
  last.Invert(7, 9);
  EXPECT_EQ(last.LowestItem(), 2);
  EXPECT_EQ(last.HighestItem(), 9);
  last.AddListToSet(Data::CEntList(SelElement, L"20"), 30);
  EXPECT_TRUE(last.IsItemIncluded(20));
  EXPECT_TRUE(EvenNumbers().IsItemIncluded(4));
}

TEST(SelectLink, SetsOfEdgesAndFaces) {
  EXPECT_TRUE(AreLinked(&Util::CTopoSet::AddTo));
  Util::CTopoSet set(SelElement);
  set.AddTo(3, 1);
  EXPECT_TRUE(set.IsItemIncluded(3, 1) && !set.IsItemIncluded(3, 0));
}

TEST(SelectLink, RunsOfNumbers) {
  EXPECT_TRUE(AreLinked(&Intervals::Append, &Intervals::Contains));
  Intervals odd{{1, 1}, {3, 3}};
  odd.Append({5, 7});
  std::vector<Interval> const runs{{3, 6}};
  Intervals const some{std::span<Interval const>(runs)};
  EXPECT_TRUE(Union(odd, some).Contains(4));
  EXPECT_FALSE(Intersection(odd, some).Contains(4));
  EXPECT_TRUE(Difference(odd, some) == (Intervals{{1, 1}, {7, 7}}));
}

TEST(SelectLink, ContainersOfNumbers) {
  EXPECT_TRUE(AreLinked(&CBitContainer::Item));
  CBitContainer const container(Intervals{{2, 3}, {9, 9}});
  EXPECT_EQ(container.Item(2), 9);
  std::vector<int> numbers;
  for (auto at = CBitContainer::MyIterator(container, container.Lowest()); at != container.end();
       ++at)
    numbers.push_back(*at);
  EXPECT_EQ(numbers, (std::vector{2, 3, 9}));
}

TEST(SelectLink, Kinds) {
  EXPECT_TRUE(AreLinked(&SelTypeLabel, &EntModId));
  EXPECT_EQ(SelTypeLabel(SelMember), CString(L"member"));
  EXPECT_EQ(EntModId(SelElement), CModule::Elem);
}

TEST(SelectLink, FailedLookUpsAreCaughtAcrossTheBorder) {
  EXPECT_TRUE(AreLinked(&ThrowBadSubscript, &ThrowBadMapKey, &ThrowBadUnorderedMapKey));
  EXPECT_THROW(ThrowBadSubscript(), std::out_of_range);
  EXPECT_THROW(ThrowBadMapKey(), std::out_of_range);
  EXPECT_THROW(ThrowBadUnorderedMapKey(), std::out_of_range);
}

}  // namespace
}  // namespace Tarvex::SelectLinkTest
