// The search for coincidence and the order that it goes by, as an application links them.
#include <gtest/gtest.h>

#include <utility>

#include "store/model/zel_data.h"
#include "store/record/axis.h"
#include "store/record/spec.h"
#include "tarvex/tarvex.h"
#include "tests/link/linked.h"
#include "tests/support/builders.h"

namespace Tarvex::CoincidenceLinkTest {
namespace {

using Testing::AreLinked;
using Testing::Member;

Util::CSet SetOf(SelType kind, int highest) {
  Util::CSet set(kind);
  for (int n = 1; n <= highest; ++n) set.AddTo(n);
  return set;
}

TEST(CoincidenceLink, EveryMemberOfTheSearchIsLinked) {
  using Unit = Data::CUnit;
  using Axis = Data::CAxis;
  using Point = Vec3<double>;
  EXPECT_TRUE(AreLinked(&CReduceCoinc::CoincidenceTol, &CReduceCoinc::SetCoincidenceTol,
                        &CReduceCoinc::SetOption, &CReduceCoinc::SetStage,
                        &CReduceCoinc::SetOrderVector, &CReduceCoinc::SetSearchSet,
                        &CReduceCoinc::AddToSearchSet, &CReduceCoinc::RemoveFromSearchSet));
  EXPECT_TRUE(AreLinked(
      Member<bool(Util::CSet const&, std::vector<std::pair<int, int>>&)>(&CReduceCoinc::Do),
      Member<bool(int, int)>(&CReduceCoinc::Do), &CReduceCoinc::FindCoinc,
      &CReduceCoinc::FindAllCoinc, &CReduceCoinc::FindCross, &CReduceCoinc::FindUnconnect,
      Member<int(Point const&, int) const>(&CReduceCoinc::ClosestItem),
      Member<int(Unit const&, Axis const&, Point const&, int) const>(&CReduceCoinc::ClosestItem),
      &CReduceCoinc::ClosestNode, &CReduceCoinc::IsTopoCoinc));
}

TEST(CoincidenceLink, ToolIsMadeCopiedMovedConfiguredRunAndDestroyed) {
  CZelData model;
  Testing::BeamAt(model, {0, 0, 0}, {1, 0, 0});
  Testing::BeamAt(model, {1, 0, 0}, {2, 0, 0});
  CReduceCoinc tool(model, 0.5, 0);
  tool.SetCoincidenceTol(0.001);
  tool.SetOption(CReduceCoinc::OptionMergeMin);
  tool.SetStage(0);
  EXPECT_TRUE(tool.SetSearchSet(SetOf(SelNode, 4), CReduceCoinc::kWholeSearch));
  CReduceCoinc copy(tool);
  CReduceCoinc moved(std::move(copy));
  std::vector<std::pair<int, int>> pairs;
  EXPECT_TRUE(moved.Do(SetOf(SelNode, 4), pairs));
  EXPECT_EQ(pairs, (std::vector<std::pair<int, int>>{{3, 2}}));
  EXPECT_EQ(model.Elem(2).Topo(0), 2);
}

TEST(CoincidenceLink, EveryMemberOfTheOrderedSetIsLinked) {
  EXPECT_TRUE(AreLinked(&COrderSet::SetOrderVector, &COrderSet::OrderVector, &COrderSet::NumItems,
                        &COrderSet::PointItem, &COrderSet::Sort, &COrderSet::IsSorted,
                        &COrderSet::FirstAbove, &COrderSet::FirstFrom));
  EXPECT_TRUE(AreLinked(&COrderSet::SetSet, &COrderSet::AddToSet, &COrderSet::RemoveFromSet,
                        &COrderSet::CalcOrderVector, &COrderSet::CreateList,
                        &COrderSet::GetIndexFromRef, &COrderSet::Ref, &COrderSet::TypeOf,
                        &COrderSet::IsItemIncluded, &COrderSet::Set));
}

TEST(CoincidenceLink, OrderedSetIsMadeCopiedMovedAndAssigned) {
  CZelData model;
  Testing::BeamAt(model, {3, 0, 0}, {1, 0, 0});
  COrderSet order;
  EXPECT_TRUE(order.SetSet(SetOf(SelNode, 2), model, true));
  EXPECT_TRUE(order.CalcOrderVector(model));
  EXPECT_TRUE(order.CreateList(model));
  order.Sort();
  COrderSet copy(order);
  COrderSet moved(std::move(copy));
  COrderSet assigned;
  assigned = moved;
  COrderSet taken;
  taken = std::move(moved);
  EXPECT_EQ(assigned.NumItems(), 2);
  EXPECT_EQ(taken.Ref(0), order.Ref(0));
}

}  // namespace
}  // namespace Tarvex::CoincidenceLinkTest
