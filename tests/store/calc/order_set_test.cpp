#include "store/calc/order_set.h"

#include <gtest/gtest.h>

#include <cmath>

#include "store/record/node.h"
#include "tests/support/builders.h"
#include "tests/support/matchers.h"
#include "tests/support/random_model.h"

namespace Tarvex::OrderSetTest {
namespace {

using Testing::NodeAt;
using Testing::OutOfRangeText;
using Testing::Random;

Util::CSet SetOf(SelType kind, std::vector<int> const& numbers) {
  Util::CSet set(kind);
  for (int const n : numbers) set.AddTo(n);
  return set;
}

Util::CSet AllNodes(CZelData const& model) {
  Util::CSet set(SelNode);
  for (int n = 1; n <= model.HighestNode(); ++n)
    if (model.NodeExist(n)) set.AddTo(n);
  return set;
}

COrderSet Listed(CZelData const& model, Util::CSet const& set, Vec3<double> const& vector) {
  COrderSet order;
  order.SetSet(set, model, true);
  order.SetOrderVector(vector);
  order.CreateList(model);
  order.Sort();
  return order;
}

std::vector<int> Refs(COrderSet const& order) {
  std::vector<int> refs;
  for (int i = 0; i < order.NumItems(); ++i) refs.push_back(order.Ref(i));
  return refs;
}

TEST(COrderSet, ADefaultOneIsEmptyAndHasNoDirection) {
  CZelData const model;
  COrderSet order;
  EXPECT_EQ(order.NumItems(), 0);
  EXPECT_EQ(order.TypeOf(), SelNone);
  EXPECT_EQ(order.GetIndexFromRef(1), -1);
  EXPECT_FALSE(order.CalcOrderVector(model));
  EXPECT_FALSE(order.CreateList(model));
  EXPECT_EQ(order.OrderVector(), (Vec3<double>{0, 0, 0}));
}

TEST(COrderSet, ListsCentresInProjectionThenInNumber) {
  CZelData model;
  NodeAt(model, 3, 0, 0);
  NodeAt(model, 1, 9, 0);
  NodeAt(model, 3, 5, 0);
  NodeAt(model, 2, 0, 0);
  auto const order = Listed(model, AllNodes(model), {1, 0, 0});
  EXPECT_EQ(Refs(order), (std::vector{2, 4, 1, 3}));
  EXPECT_EQ(order.PointItem(0), 1);
  EXPECT_EQ(order.PointItem(1), 2);
  EXPECT_EQ(order.PointItem(2), 3);
  EXPECT_EQ(order.PointItem(3), 3);
  EXPECT_EQ(order.GetIndexFromRef(4), 1);
  EXPECT_EQ(order.GetIndexFromRef(3), 3);
  EXPECT_EQ(order.GetIndexFromRef(5), -1);
  EXPECT_EQ(order.GetIndexFromRef(0), -1);
}

TEST(COrderSet, UnsortedItListsAscendingNumbers) {
  CZelData model;
  for (double const x : {3.0, 1.0, 2.0}) NodeAt(model, x, 0, 0);
  COrderSet order;
  order.SetSet(AllNodes(model), model, true);
  order.SetOrderVector({1, 0, 0});
  EXPECT_TRUE(order.CreateList(model));
  EXPECT_FALSE(order.IsSorted());
  EXPECT_EQ(Refs(order), (std::vector{1, 2, 3}));
  EXPECT_EQ(order.FirstAbove(1.5), 0);  // the first of the list, not the lowest
  order.Sort();
  EXPECT_TRUE(order.IsSorted());
  EXPECT_EQ(Refs(order), (std::vector{2, 3, 1}));
}

TEST(COrderSet, BringsTheVectorToLengthOneSoThatProjectionsAreLengths) {
  CZelData model;
  NodeAt(model, 3, 4, 0);
  auto const order = Listed(model, AllNodes(model), {30, 40, 0});
  EXPECT_DOUBLE_EQ(order.OrderVector().x, 0.6);
  EXPECT_DOUBLE_EQ(order.OrderVector().y, 0.8);
  EXPECT_DOUBLE_EQ(order.PointItem(0), 5);  // 3 * 0.6 + 4 * 0.8
}

TEST(COrderSet, AZeroVectorStaysAndProjectsEverythingOnZero) {
  CZelData model;
  NodeAt(model, 3, 4, 0);
  NodeAt(model, -1, 0, 0);
  auto const order = Listed(model, AllNodes(model), {0, 0, 0});
  EXPECT_EQ(order.OrderVector(), (Vec3<double>{0, 0, 0}));
  EXPECT_EQ(order.PointItem(0), 0);
  EXPECT_EQ(order.PointItem(1), 0);
  EXPECT_EQ(Refs(order), (std::vector{1, 2}));
}

TEST(COrderSet, ProjectsTheMeanOfAnElementsNodes) {
  CZelData model;
  Testing::BeamAt(model, {0, 0, 0}, {4, 0, 0});
  auto const order = Listed(model, SetOf(SelElement, {1}), {1, 0, 0});
  EXPECT_EQ(order.PointItem(0), 2);
}

TEST(COrderSet, TakesWhatExistsAndSaysWhetherThereIsAny) {
  CZelData model;
  NodeAt(model, 0, 0, 0);
  COrderSet order;
  EXPECT_FALSE(order.SetSet(SetOf(SelNode, {2, 3}), model, true));
  EXPECT_TRUE(order.SetSet(SetOf(SelNode, {1, 2}), model, true));
  EXPECT_TRUE(order.IsItemIncluded(1));
  EXPECT_FALSE(order.IsItemIncluded(2));
  EXPECT_EQ(order.TypeOf(), SelNode);
  EXPECT_EQ(order.Set(), SetOf(SelNode, {1}));
}

TEST(COrderSet, CountsLoadPanelsWhenTold) {
  CZelData model;
  Testing::PanelAt(model, {{0, 0, 0}, {1, 0, 0}, {0, 1, 0}});
  COrderSet order;
  EXPECT_FALSE(order.SetSet(SetOf(SelElement, {1}), model, false));
  EXPECT_TRUE(order.SetSet(SetOf(SelElement, {1}), model, true));
}

TEST(COrderSet, ASecondSetEmptiesTheList) {
  CZelData model;
  NodeAt(model, 0, 0, 0);
  auto order = Listed(model, AllNodes(model), {1, 0, 0});
  order.SetSet(AllNodes(model), model, true);
  EXPECT_EQ(order.NumItems(), 0);
}

TEST(COrderSet, ANumberThatLeavesTheSetKeepsItsPlaceInTheList) {
  CZelData model;
  for (double const x : {1.0, 2.0, 3.0}) NodeAt(model, x, 0, 0);
  auto order = Listed(model, AllNodes(model), {1, 0, 0});
  EXPECT_TRUE(order.RemoveFromSet(2));
  EXPECT_FALSE(order.RemoveFromSet(2));
  EXPECT_FALSE(order.RemoveFromSet(7));
  EXPECT_FALSE(order.IsItemIncluded(2));
  EXPECT_EQ(Refs(order), (std::vector{1, 2, 3}));
  EXPECT_EQ(order.GetIndexFromRef(2), 1);
  EXPECT_EQ(order.PointItem(1), 2);
}

TEST(COrderSet, WhatIsAddedComesToItsPlaceInASortedList) {
  CZelData model;
  for (double const x : {1.0, 3.0, 5.0, 4.0, 0.0}) NodeAt(model, x, 0, 0);
  auto order = Listed(model, SetOf(SelNode, {1, 2, 3}), {1, 0, 0});
  EXPECT_TRUE(order.AddToSet(4, model));
  EXPECT_TRUE(order.AddToSet(5, model));
  EXPECT_FALSE(order.AddToSet(6, model));
  EXPECT_FALSE(order.AddToSet(0, model));
  EXPECT_EQ(Refs(order), (std::vector{5, 1, 2, 4, 3}));
  for (int i = 0; i < 5; ++i) EXPECT_EQ(order.GetIndexFromRef(order.Ref(i)), i);
  EXPECT_TRUE(order.IsItemIncluded(4));
}

TEST(COrderSet, WhatIsAddedAgainIsListedOnceAtItsPresentCentre) {
  CZelData model;
  for (double const x : {1.0, 2.0, 3.0}) NodeAt(model, x, 0, 0);
  auto order = Listed(model, AllNodes(model), {1, 0, 0});
  order.RemoveFromSet(1);
  EXPECT_TRUE(order.AddToSet(1, model));
  EXPECT_EQ(Refs(order), (std::vector{1, 2, 3}));
  model.SetNodeCoor(1, {2.5, 0, 0});
  EXPECT_TRUE(order.AddToSet(1, model));
  EXPECT_EQ(Refs(order), (std::vector{2, 1, 3}));
  EXPECT_EQ(order.PointItem(1), 2.5);
}

TEST(COrderSet, AddedToAnUnsortedListItComesLast) {
  CZelData model;
  for (double const x : {3.0, 1.0, 0.0}) NodeAt(model, x, 0, 0);
  COrderSet order;
  order.SetSet(SetOf(SelNode, {1, 2}), model, true);
  order.SetOrderVector({1, 0, 0});
  order.CreateList(model);
  order.AddToSet(3, model);
  EXPECT_EQ(Refs(order), (std::vector{1, 2, 3}));
  model.SetNodeCoor(1, {7, 0, 0});
  order.AddToSet(1, model);
  order.AddToSet(2, model);
  EXPECT_EQ(Refs(order), (std::vector{2, 3, 1}));
  for (int i = 0; i < 3; ++i) EXPECT_EQ(order.GetIndexFromRef(order.Ref(i)), i);
  EXPECT_EQ(order.PointItem(2), 7);
}

TEST(COrderSet, WhatMovesAndComesBackBetweenAdditionsIsWhereItWas) {
  CZelData model;
  for (double const x : {1.0, 2.0}) NodeAt(model, x, 0, 0);
  auto order = Listed(model, AllNodes(model), {1, 0, 0});
  for (double const x : {5.0, 1.0}) {
    model.SetNodeCoor(1, {x, 0, 0});
    order.AddToSet(1, model);
  }
  EXPECT_EQ(Refs(order), (std::vector{1, 2}));
  EXPECT_EQ(order.PointItem(0), 1);
}

TEST(COrderSet, FirstAboveIsStrictAndFirstFromIsNot) {
  CZelData model;
  for (double const x : {1.0, 2.0, 2.0, 3.0}) NodeAt(model, x, 0, 0);
  auto const order = Listed(model, AllNodes(model), {1, 0, 0});
  EXPECT_EQ(order.FirstFrom(2), 1);
  EXPECT_EQ(order.FirstAbove(2), 3);
  EXPECT_EQ(order.FirstAbove(0.5), 0);
  EXPECT_EQ(order.FirstAbove(3), 4);
  EXPECT_EQ(order.FirstFrom(3.5), 4);
}

TEST(COrderSet, APlaceThatIsNoneIsRefused) {
  CZelData model;
  NodeAt(model, 1, 0, 0);
  auto const order = Listed(model, AllNodes(model), {1, 0, 0});
  for (int const place : {-1, 1}) {
    EXPECT_EQ(OutOfRangeText([&] { (void)order.PointItem(place); }), "invalid vector subscript");
    EXPECT_EQ(OutOfRangeText([&] { (void)order.Ref(place); }), "invalid vector subscript");
  }
}

TEST(COrderSet, ACentreThatIsNoNumberComesLast) {
  CZelData model;
  NodeAt(model, std::nan(""), 0, 0);
  NodeAt(model, 5, 0, 0);
  NodeAt(model, 1, 0, 0);
  auto const order = Listed(model, AllNodes(model), {1, 0, 0});
  EXPECT_EQ(Refs(order), (std::vector{3, 2, 1}));
}

TEST(COrderSet, CopiesHaveListsOfTheirOwn) {
  CZelData model;
  for (double const x : {1.0, 2.0}) NodeAt(model, x, 0, 0);
  auto const order = Listed(model, SetOf(SelNode, {1}), {1, 0, 0});
  auto copy = order;
  copy.AddToSet(2, model);
  EXPECT_EQ(Refs(order), (std::vector{1}));
  EXPECT_EQ(Refs(copy), (std::vector{1, 2}));
  EXPECT_EQ(order.GetIndexFromRef(2), -1);
}

// The direction that it chooses.

/// Length of the longest slice of the list that is at most so wide.
int LongestSlice(COrderSet const& order, double width) {
  int longest = 0;
  for (int low = 0, i = 0; i < order.NumItems(); ++i) {
    while (order.PointItem(i) - order.PointItem(low) > width) ++low;
    longest = std::max(longest, i - low + 1);
  }
  return longest;
}

COrderSet Ordered(CZelData const& model) {
  COrderSet order;
  order.SetSet(AllNodes(model), model, true);
  EXPECT_TRUE(order.CalcOrderVector(model));
  order.CreateList(model);
  order.Sort();
  return order;
}

/// A grid of points of a spacing, turned by a frame.
CZelData GridOf(int nx, int ny, int nz, double spacing, Util::CDirCos const& frame = {}) {
  CZelData model;
  int node = 0;
  for (int k = 0; k < nz; ++k)
    for (int j = 0; j < ny; ++j)
      for (int i = 0; i < nx; ++i)
        model.CreateNode(++node, frame.LtoG({spacing * i, spacing * j, spacing * k}), 0, Vbool6());
  return model;
}

TEST(CalcOrderVector, TellsThePointsOfRegularGridsApart) {
  // 27,000 points of a cube over about 50 m: 0.002 m hold one on the mean, a floor holds 900.
  EXPECT_LE(LongestSlice(Ordered(GridOf(30, 30, 30, 1)), 0.002), 12);
  EXPECT_LE(LongestSlice(Ordered(GridOf(200, 200, 1, 0.5)), 0.002), 12);
  EXPECT_LE(LongestSlice(Ordered(GridOf(1, 200, 200, 0.5)), 0.002), 12);
  EXPECT_LE(LongestSlice(Ordered(GridOf(1, 1, 5000, 0.5)), 0.002), 1);
}

TEST(CalcOrderVector, TakesAnotherDirectionWhenAPlateStandsAcrossTheFirst) {
  // A plate square to the direction that the other models get, and a line along it.
  auto const usual = Ordered(GridOf(9, 9, 9, 1)).OrderVector();
  auto const along = Unit(Cross(usual, {0, 0, 1}));
  Util::CDirCos const frame(along, Cross(usual, along));
  ASSERT_LT(std::abs(Dot(frame.LtoG({1, 0, 0}), usual)), 1e-12);
  ASSERT_LT(std::abs(Dot(frame.LtoG({0, 1, 0}), usual)), 1e-12);
  auto const order = Ordered(GridOf(100, 100, 1, 0.5, frame));
  EXPECT_GT(Length(order.OrderVector() - usual), 0.5);
  EXPECT_LE(LongestSlice(order, 0.002), 20);
  auto const column = Ordered(GridOf(1, 1, 1000, 0.5, frame));
  EXPECT_LE(LongestSlice(column, 0.002), 1);
}

TEST(CalcOrderVector, HasLengthOneAndDependsOnPositionsOnly) {
  Testing::ForEachRandomModel(20, [](CZelData const& model, Random& random) {
    auto const vector = Ordered(model).OrderVector();
    EXPECT_NEAR(Length(vector), 1, 1e-15);
    std::vector<Vec3<double>> points;
    for (auto const& [n, node] : model.Node()) points.push_back(node.Position());
    random.Shuffle(points);
    CZelData shuffled;
    for (auto const& p : points) Testing::NodeAt(shuffled, p.x, p.y, p.z);
    EXPECT_EQ(Ordered(shuffled).OrderVector(), vector);
  });
}

TEST(CalcOrderVector, TakesAFixedDirectionWhenAllItemsStandAtOnePoint) {
  CZelData model;
  for (int i = 0; i < 3; ++i) NodeAt(model, 7, 8, 9);
  auto const order = Ordered(model);
  EXPECT_NEAR(Length(order.OrderVector()), 1, 1e-15);
  EXPECT_EQ(Refs(order), (std::vector{1, 2, 3}));
  CZelData single;
  NodeAt(single, 0, 0, 0);
  EXPECT_EQ(Ordered(single).OrderVector(), order.OrderVector());
}

TEST(CalcOrderVector, FailsOnlyForASetWithoutItems) {
  CZelData model;
  NodeAt(model, std::nan(""), 0, 0);
  COrderSet order;
  order.SetSet(SetOf(SelNode, {4}), model, true);
  EXPECT_FALSE(order.CalcOrderVector(model));
  order.SetSet(AllNodes(model), model, true);
  EXPECT_TRUE(order.CalcOrderVector(model));
}

// The list as it is kept, against the plain list.

TEST(COrderSetOracle, AListThatIsAddedToIsTheListMadeAnew) {
  Testing::ForEachRandomModel(30, [](CZelData const& model, Random& random) {
    auto const all = AllNodes(model);
    Util::CSet some(SelNode);
    for (int const n : all)
      if (random.Percent(50)) some.AddTo(n);
    auto order = Listed(model, some, {0.3, 0.4, 0.5});
    std::vector<int> rest;
    for (int const n : all)
      if (!some.IsItemIncluded(n)) rest.push_back(n);
    random.Shuffle(rest);
    for (int const n : rest) {
      order.AddToSet(n, model);
      if (random.Percent(30)) {
        ASSERT_GE(order.GetIndexFromRef(n), 0);
      }
    }
    CZelData moved(model);
    for (int i = 0; i < 20; ++i) {
      int const n = order.Ref(random.Int(0, order.NumItems() - 1));
      moved.SetNodeCoor(n, model.NodeCoor(random.Int(0, 1) == 0 ? n : order.Ref(0)));
      order.AddToSet(n, moved);
      if (random.Percent(10)) {
        ASSERT_EQ(order.NumItems(), all.NumItem());
      }
    }
    auto const whole = Listed(moved, all, {0.3, 0.4, 0.5});
    ASSERT_EQ(Refs(order), Refs(whole));
    for (int i = 0; i < whole.NumItems(); ++i) {
      ASSERT_EQ(order.PointItem(i), whole.PointItem(i));
      ASSERT_EQ(order.GetIndexFromRef(whole.Ref(i)), i);
    }
  });
}

}  // namespace
}  // namespace Tarvex::OrderSetTest
