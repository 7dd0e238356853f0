// Elements and members that coincide or overlap.
#include <gtest/gtest.h>

#include <cmath>

#include "tests/topology/coincidence_support.h"

namespace Tarvex::OverlapTest {
namespace {

using Testing::BeamAt;
using Testing::ElementAt;
using Testing::NodeAt;
using Testing::Points;
using Testing::QuadAt;
using Testing::Search;
using Testing::SearchAlongX;
using Testing::SearchOver;
using Testing::SetOf;

constexpr double kTolerance = 0.01;

int On(CZelData& model, ElementType type, std::vector<int> const& nodes) {
  int const n = model.HighestElem() + 1;
  model.SetElem(n, Testing::Element(type, nodes));
  return n;
}

/// What of the others an element overlaps or coincides with, when the search is for both.
int Overlapping(CZelData& model, int item, SelType kind = SelElement,
                double tolerance = kTolerance) {
  return Search(model, kind, tolerance).FindCoinc(item, true);
}

int Coincident(CZelData& model, int item) {
  return Search(model, SelElement, kTolerance).FindCoinc(item, false);
}

// The same nodes.

TEST(FindCoincElement, TheSameNodesInAnyOrderCoincide) {
  CZelData model;
  for (auto const& p : Points{{0, 0, 0}, {1, 0, 0}, {1, 1, 0}, {0, 1, 0}})
    NodeAt(model, p.x, p.y, p.z);
  On(model, ElementType::Quad4, {1, 2, 3, 4});
  On(model, ElementType::Quad4, {3, 1, 4, 2});
  EXPECT_EQ(Coincident(model, 1), 2);
  EXPECT_EQ(Coincident(model, 2), 1);
  EXPECT_TRUE(Search(model, SelElement, 1).IsTopoCoinc(SelElement, 1, 2));
}

TEST(FindCoincElement, ATriangleAndAQuadrilateralOnTheSameCornersDoNot) {
  CZelData model;
  for (auto const& p : Points{{0, 0, 0}, {1, 0, 0}, {1, 1, 0}, {0, 1, 0}})
    NodeAt(model, p.x, p.y, p.z);
  On(model, ElementType::Quad4, {1, 2, 3, 4});
  On(model, ElementType::Tri3, {1, 2, 3});
  EXPECT_FALSE(Search(model, SelElement, 9).IsTopoCoinc(SelElement, 1, 2));
  auto const wide = Search(model, SelElement, 9);
  EXPECT_EQ(wide.FindCoinc(1, false), 0);
}

TEST(FindCoincElement, NodesAtTheSamePlaceAreNotTheSameNodes) {
  CZelData model;
  BeamAt(model, {0, 0, 0}, {1, 0, 0});
  BeamAt(model, {0, 0, 0}, {1, 0, 0});
  EXPECT_EQ(Coincident(model, 1), 0);
  EXPECT_EQ(Overlapping(model, 1), 2);
}

TEST(FindCoincElement, RepeatedNodesAreNotTreatedSeparately) {
  // Every node of the second is one of the first, and not the other way about.
  CZelData model;
  for (auto const& p : Points{{0, 0, 0}, {1, 0, 0}, {1, 1, 0}}) NodeAt(model, p.x, p.y, p.z);
  On(model, ElementType::Tri3, {1, 2, 3});
  On(model, ElementType::Tri3, {1, 2, 2});
  auto const tool = Search(model, SelElement, 9);
  EXPECT_TRUE(tool.IsTopoCoinc(SelElement, 1, 2));
  EXPECT_FALSE(tool.IsTopoCoinc(SelElement, 2, 1));
}

TEST(FindCoincElement, TheCentresMustBeWithinTheTolerance) {
  // Centres (2/3, 1/3, 0) and (2/3, 0, 0), on the same nodes.
  CZelData model;
  for (auto const& p : Points{{0, 0, 0}, {1, 0, 0}, {1, 1, 0}}) NodeAt(model, p.x, p.y, p.z);
  On(model, ElementType::Tri3, {1, 2, 3});
  On(model, ElementType::Tri3, {1, 2, 2});
  for (auto const& [tolerance, found] : std::vector<std::pair<double, int>>{{0.1, 0}, {0.5, 2}}) {
    EXPECT_EQ(SearchAlongX(model, SelElement, tolerance).FindCoinc(1, false), found);
    auto const outside = SearchOver(model, SetOf(SelElement, {2}), tolerance);
    EXPECT_EQ(outside.FindCoinc(1, false), found);
  }
}

TEST(FindCoincElement, WithOverlapTheFirstOfTheSweepIsTakenWhetherItCoincidesOrOverlaps) {
  // All centres at 2: the list is 1, 2, 3, and 2 lies along the others.
  CZelData model;
  NodeAt(model, 0, 0, 0);
  NodeAt(model, 4, 0, 0);
  On(model, ElementType::Beam, {1, 2});
  BeamAt(model, {1, 0, 0}, {3, 0, 0});
  On(model, ElementType::Beam, {1, 2});
  auto const tool = SearchAlongX(model, SelElement, kTolerance);
  EXPECT_EQ(tool.FindCoinc(1, true), 2);
  EXPECT_EQ(tool.FindCoinc(1, false), 3);
}

TEST(FindCoincElement, ItemsWithoutNodesCoincide) {
  CZelData model;
  model.SetLoadPanel(1, Testing::Panel({}));
  model.SetLoadPanel(2, Testing::Panel({}));
  auto const tool = Search(model, SelElement, kTolerance);
  EXPECT_TRUE(tool.IsTopoCoinc(SelElement, 1, 2));
  EXPECT_EQ(tool.FindCoinc(1, false), 2);
  EXPECT_EQ(tool.FindCoinc(1, true), 2);
}

TEST(FindCoincElement, TheSweepTakesTheFirstUpwardsThenDownwards) {
  CZelData model;
  NodeAt(model, 0, 0, 0);
  NodeAt(model, 1, 0, 0);
  for (int i = 0; i < 4; ++i) On(model, ElementType::Beam, {1, 2});
  auto const tool = SearchAlongX(model, SelElement, kTolerance);
  EXPECT_EQ(tool.FindCoinc(1, false), 2);
  EXPECT_EQ(tool.FindCoinc(2, false), 3);
  EXPECT_EQ(tool.FindCoinc(4, false), 3);
}

TEST(FindCoincElement, AnElementAndAPanelOnTheSameNodesCoincide) {
  CZelData model;
  for (auto const& p : Points{{0, 0, 0}, {1, 0, 0}, {1, 1, 0}}) NodeAt(model, p.x, p.y, p.z);
  On(model, ElementType::Tri3, {1, 2, 3});
  model.SetLoadPanel(2, Testing::Panel({2, 3, 1}));
  EXPECT_EQ(Coincident(model, 1), 2);
  EXPECT_EQ(Coincident(model, 2), 1);
}

TEST(FindCoincElement, WhatHasLeftTheSetIsPassedOver) {
  CZelData model;
  NodeAt(model, 0, 0, 0);
  NodeAt(model, 1, 0, 0);
  for (int i = 0; i < 3; ++i) On(model, ElementType::Beam, {1, 2});
  auto tool = SearchAlongX(model, SelElement, kTolerance);
  tool.RemoveFromSearchSet(2);
  EXPECT_EQ(tool.FindCoinc(1, false), 3);
  EXPECT_EQ(tool.FindCoinc(1, true), 3);
  model.BlankElem(3, 1);
  EXPECT_EQ(tool.FindCoinc(1, false), 0);
  EXPECT_EQ(tool.FindCoinc(1, true), 0);
}

TEST(FindCoincElement, AnItemOutsideOfTheListIsComparedWithItsClosestOnly) {
  CZelData model;
  NodeAt(model, 0, 0, 0);
  NodeAt(model, 4, 0, 0);
  On(model, ElementType::Beam, {1, 2});   // 1, centre 2
  On(model, ElementType::Beam, {2, 1});   // 2, centre 2
  BeamAt(model, {1, 0, 0}, {3.5, 0, 0});  // 3, centre 2.25, along 1
  BeamAt(model, {1, 9, 0}, {3.5, 9, 0});  // 4, far off
  auto const near = SearchOver(model, SetOf(SelElement, {2, 4}), kTolerance);
  EXPECT_EQ(near.FindCoinc(1, false), 2);
  auto const along = SearchOver(model, SetOf(SelElement, {3, 4}), kTolerance);
  EXPECT_EQ(along.FindCoinc(1, false), 0);
  EXPECT_EQ(along.FindCoinc(1, true), 3);
  auto const far = SearchOver(model, SetOf(SelElement, {4}), kTolerance);
  EXPECT_EQ(far.FindCoinc(1, true), 0);
  auto const none = SearchOver(model, Util::CSet(SelElement), kTolerance);
  EXPECT_EQ(none.FindCoinc(1, true), 0);
}

TEST(FindCoincMember, MembersOfTheSameNodesCoincide) {
  CZelData model;
  for (auto const& p : Points{{0, 0, 0}, {4, 0, 0}, {9, 0, 0}}) NodeAt(model, p.x, p.y, p.z);
  Testing::MemberAt(model, MembType::Beam, L"1 2");
  Testing::MemberAt(model, MembType::Beam, L"2 1");
  Testing::MemberAt(model, MembType::Beam, L"1 3");
  auto const tool = Search(model, SelMember, kTolerance);
  EXPECT_EQ(tool.FindCoinc(1, false), 2);
  EXPECT_EQ(tool.FindCoinc(3, false), 0);
  EXPECT_NE(tool.FindCoinc(3, true), 0);  // it contains the others
}

// Lines.

struct LineRow {
  char const* what;
  Points line;
  bool overlaps;
};

class LineRule : public ::testing::TestWithParam<LineRow> {};

/// Another line, against the one from 0 to 4 along x, with tolerance 0.01.
TEST_P(LineRule, Holds) {
  auto const& row = GetParam();
  CZelData model;
  BeamAt(model, {0, 0, 0}, {4, 0, 0});
  BeamAt(model, row.line[0], row.line[1]);
  EXPECT_EQ(Overlapping(model, 1), row.overlaps ? 2 : 0) << row.what;
}

INSTANTIATE_TEST_SUITE_P(
    Lines, LineRule,
    ::testing::Values(
        LineRow{"contained", {{1, 0, 0}, {3, 0, 0}}, true},
        LineRow{"contained, backwards", {{3, 0, 0}, {1, 0, 0}}, true},
        LineRow{"containing", {{-1, 0, 0}, {5, 0, 0}}, true},
        LineRow{"containing, from the same start", {{0, 0, 0}, {5, 0, 0}}, true},
        LineRow{"overlapping the end", {{3, 0, 0}, {6, 0, 0}}, true},
        LineRow{"overlapping the start", {{-3, 0, 0}, {1, 0, 0}}, true},
        LineRow{"running apart from the end", {{4, 0, 0}, {6, 0, 0}}, false},
        LineRow{"running up to the end from outside", {{6, 0, 0}, {4, 0, 0}}, false},
        LineRow{"running apart from the start", {{0, 0, 0}, {-2, 0, 0}}, false},
        LineRow{"running up to the start", {{-2, 0, 0}, {0, 0, 0}}, false},
        LineRow{"from a little inside the end", {{3.995, 0, 0}, {6, 0, 0}}, false},
        LineRow{"from the tolerance inside the end", {{3.98, 0, 0}, {6, 0, 0}}, true},
        LineRow{"beyond the end", {{5, 0, 0}, {6, 0, 0}}, false},
        LineRow{"before the start", {{-5, 0, 0}, {-3, 0, 0}}, false},
        LineRow{"beside it within the tolerance", {{1, 0.009, 0}, {3, 0, 0.009}}, true},
        LineRow{"beside it beyond the tolerance", {{1, 0.011, 0}, {3, 0, 0}}, false},
        LineRow{"its other end beyond the tolerance", {{1, 0, 0}, {3, 0.011, 0}}, false},
        LineRow{"crossing it at one point", {{2, -1, 0}, {2, 1, 0}}, false},
        LineRow{"the same places", {{0, 0, 0}, {4, 0, 0}}, true}));

TEST(OverlapLine, TheToleranceItselfIsStillOnTheLine) {
  CZelData model;
  BeamAt(model, {0, 0, 0}, {4, 0, 0});
  BeamAt(model, {1, 0.25, 0}, {3, 0.25, 0});
  EXPECT_EQ(Overlapping(model, 1, SelElement, 0.25), 2);
  EXPECT_EQ(Overlapping(model, 1, SelElement, 0.249), 0);
}

TEST(OverlapLine, AnEndAtTheToleranceFromAnEndIsClearOfIt) {
  struct Row {
    double from;
    double to;
    bool overlaps;
  };
  // Against 0 to 4, with tolerance 0.25.
  for (auto const& row :
       {Row{3.75, 6, true}, Row{3.8, 6, false}, Row{6, 3.75, true}, Row{6, 3.8, false},
        Row{-2, 0.25, true}, Row{-2, 0.2, false}, Row{0.25, -2, true}, Row{0.2, -2, false}}) {
    CZelData model;
    BeamAt(model, {0, 0, 0}, {4, 0, 0});
    BeamAt(model, {row.from, 0, 0}, {row.to, 0, 0});
    EXPECT_EQ(Overlapping(model, 1, SelElement, 0.25), row.overlaps ? 2 : 0)
        << row.from << " to " << row.to;
  }
}

TEST(OverlapLine, IsAskedOfTheItemsLineAndNotOfTheOther) {
  // The short line's ends are on the long line; those of the long one are 0.05 off the short
  // one's, which slopes by 0.01 in 1 and is followed for 5.
  CZelData model;
  BeamAt(model, {0, 0, 0}, {10, 0, 0});
  BeamAt(model, {5, -0.005, 0}, {6, 0.005, 0});
  EXPECT_EQ(Overlapping(model, 1), 2);
  EXPECT_EQ(Overlapping(model, 2), 0);
}

TEST(OverlapLine, EverythingLiesAlongALineWithoutLength) {
  CZelData model;
  BeamAt(model, {0, 0, 0}, {0, 0, 0});
  BeamAt(model, {50, 60, 70}, {80, 60, 70});
  EXPECT_EQ(Overlapping(model, 1), 2);
  EXPECT_EQ(Overlapping(model, 2), 0);
}

TEST(OverlapLine, AMissingNodeOverlapsNothing) {
  CZelData model;
  BeamAt(model, {0, 0, 0}, {4, 0, 0});
  BeamAt(model, {1, 0, 0}, {3, 0, 0});
  model.BlankNode(4, 1);
  EXPECT_EQ(Overlapping(model, 1), 0);
  EXPECT_EQ(Overlapping(model, 2), 0);
}

TEST(OverlapLine, TheWholeListIsLookedAt) {
  // The centres are 500 apart.
  CZelData model;
  BeamAt(model, {0, 0, 0}, {1001, 0, 0});
  BeamAt(model, {0.25, 0, 0}, {0.75, 0, 0});
  EXPECT_EQ(Overlapping(model, 1), 2);
  EXPECT_EQ(Overlapping(model, 2), 1);
}

TEST(OverlapLine, FollowsNodesThatMoveBehindTheListing) {
  CZelData model;
  BeamAt(model, {0, 0, 0}, {4, 0, 0});
  BeamAt(model, {1, 7, 0}, {3, 7, 0});
  auto const tool = SearchAlongX(model, SelElement, kTolerance);
  EXPECT_EQ(tool.FindCoinc(1, true), 0);
  model.SetNodeCoor(3, {1, 0, 0});
  model.SetNodeCoor(4, {3, 0, 0});
  EXPECT_EQ(tool.FindCoinc(1, true), 2);
}

/// Beams 1 from 0 to 4 along x, 2 far away, 3 along 1.
CZelData ThreeBeams() {
  CZelData model;
  BeamAt(model, {0, 0, 0}, {4, 0, 0});
  BeamAt(model, {1, 90, 0}, {3, 90, 0});
  BeamAt(model, {1, 0, 0}, {3, 0, 0});
  return model;
}

TEST(OverlapLine, FollowsWhatComesIntoTheSearchSetBehindAQuestion) {
  auto model = ThreeBeams();
  auto tool = SearchOver(model, SetOf(SelElement, {1, 2}), kTolerance);
  EXPECT_EQ(tool.FindCoinc(1, true), 0);
  tool.AddToSearchSet(3);
  EXPECT_EQ(tool.FindCoinc(1, true), 3);
}

TEST(OverlapLine, FollowsASearchSetThatIsSetBehindAQuestion) {
  auto model = ThreeBeams();
  auto tool = SearchOver(model, SetOf(SelElement, {1, 2}), kTolerance);
  EXPECT_EQ(tool.FindCoinc(1, true), 0);
  tool.SetSearchSet(SetOf(SelElement, {1, 3}), CReduceCoinc::kWholeSearch);
  EXPECT_EQ(tool.FindCoinc(1, true), 3);
}

TEST(OverlapLine, FollowsTopologyThatChangesBehindAQuestion) {
  auto model = ThreeBeams();
  auto const tool = SearchOver(model, SetOf(SelElement, {1, 2}), kTolerance);
  EXPECT_EQ(tool.FindCoinc(1, true), 0);
  for (int const place : {0, 1}) model.SetElemTopo(2, place, model.Elem(3).Topo(place));
  EXPECT_EQ(tool.FindCoinc(1, true), 2);

  auto members = ThreeBeams();
  Testing::MemberAt(members, MembType::Beam, L"1 2");
  Testing::MemberAt(members, MembType::Beam, L"3 4");
  Testing::MemberAt(members, MembType::Beam, L"5 6");
  auto const search = SearchOver(members, SetOf(SelMember, {1, 2}), kTolerance);
  EXPECT_EQ(search.FindCoinc(1, true), 0);
  members.SetMember(2, Data::CMember(members.Member(3)));
  EXPECT_EQ(search.FindCoinc(1, true), 2);
}

TEST(Overlap, ALineAndAPlateDoNot) {
  CZelData model;
  QuadAt(model, {0, 0, 0}, {4, 0, 0}, {4, 4, 0}, {0, 4, 0});
  BeamAt(model, {1, 1, 0}, {3, 3, 0});
  EXPECT_EQ(Overlapping(model, 1), 0);
  EXPECT_EQ(Overlapping(model, 2), 0);
}

TEST(Overlap, AMemberWithMoreNodesThanALineIsAPlateToIt) {
  // Three nodes in a row: lines and plates are told apart by their count of nodes.
  CZelData model;
  for (double const x : {0.0, 2.0, 4.0}) NodeAt(model, x, 0, 0);
  Testing::MemberAt(model, MembType::Beam, L"1 2 3");
  Testing::MemberAt(model, MembType::Beam, L"1 3");
  EXPECT_EQ(Overlapping(model, 1, SelMember), 0);
  EXPECT_EQ(Overlapping(model, 2, SelMember), 0);
}

// Plates.

struct PlateRow {
  char const* what;
  Points corners;
  bool overlaps;
};

class PlateRule : public ::testing::TestWithParam<PlateRow> {};

/// Another plate, against the square from (0, 0) to (4, 4) in z = 0, with tolerance 0.01.
TEST_P(PlateRule, Holds) {
  auto const& row = GetParam();
  CZelData model;
  QuadAt(model, {0, 0, 0}, {4, 0, 0}, {4, 4, 0}, {0, 4, 0});
  ElementAt(model, row.corners.size() == 3 ? ElementType::Tri3 : ElementType::Quad4, row.corners);
  EXPECT_EQ(Overlapping(model, 1), row.overlaps ? 2 : 0) << row.what;
}

Points Box(double x0, double y0, double x1, double y1, double z = 0) {
  return {{x0, y0, z}, {x1, y0, z}, {x1, y1, z}, {x0, y1, z}};
}

Points Flat(std::vector<std::pair<double, double>> const& corners) {
  Points points;
  for (auto const& [x, y] : corners) points.push_back({x, y, 0});
  return points;
}

Points Reversed(Points points) { return {points.rbegin(), points.rend()}; }

/// The square from (1, 1) to (5, 5), turned about the line y = 1.
Points Tilted(double degrees) {
  double const c = std::cos(degrees * kPi / 180);
  double const s = std::sin(degrees * kPi / 180);
  return {{1, 1, 0}, {5, 1, 0}, {5, 1 + 4 * c, 4 * s}, {1, 1 + 4 * c, 4 * s}};
}

INSTANTIATE_TEST_SUITE_P(
    Plates, PlateRule,
    ::testing::Values(
        PlateRow{"the same places", Box(0, 0, 4, 4), true},
        PlateRow{"the same places, reversed", Reversed(Box(0, 0, 4, 4)), true},
        PlateRow{"a corner in the other", Box(3, 3, 6, 6), true},
        PlateRow{"a corner in the other, reversed", Reversed(Box(3, 3, 6, 6)), true},
        PlateRow{"around the other, whose corners all lie outside of it", Box(-1, -1, 5, 5), false},
        PlateRow{"sharing an edge", Box(4, 0, 8, 4), false},
        PlateRow{"sharing half an edge", Box(4, 2, 8, 6), false},
        PlateRow{"sharing a corner", Box(4, 4, 8, 8), false},
        PlateRow{"sharing two edges, smaller", Box(0, 0, 2, 2), true},
        PlateRow{"sharing three corners and one edge", Flat({{0, 0}, {4, 0}, {8, 2}, {4, 4}}),
                 true},
        PlateRow{"sharing a corner and two edges", Flat({{0, 0}, {10, 0}, {0, 10}}), true},
        PlateRow{"a corner near the end of an edge", Flat({{2, 0}, {4, 2}, {0, 3.995}}), false},
        PlateRow{"a corner clear of the end of an edge", Flat({{2, 0}, {4, 2}, {0, 3.98}}), true},
        PlateRow{"a corner near the start of an edge", Flat({{4, 2}, {2, 4}, {0, 0.005}}), false},
        // Turned round, its first corner is 4 sin(0.5) = 0.035 off the plane, its third one on it.
        PlateRow{"at an angle of half a degree, reversed", Reversed(Tilted(0.5)), true},
        PlateRow{"apart in its plane", Box(5, 5, 8, 8), false},
        PlateRow{"parallel, nearer than the tolerance", Box(3, 3, 6, 6, 0.009), false},
        PlateRow{"parallel, beyond the tolerance", Box(3, 3, 6, 6, 0.011), false},
        PlateRow{"at an angle of 2 degrees", Tilted(2), false},
        // The cosine 0.999848 is that of 0.99900 degrees.
        PlateRow{"at an angle just wider than 1 degree", Tilted(0.9991), false},
        PlateRow{"at an angle just narrower than 1 degree", Tilted(0.9989), true},
        PlateRow{"at an angle of half a degree", Tilted(0.5), true},
        PlateRow{"at a right angle", {{1, 1, -1}, {3, 1, -1}, {3, 1, 1}, {1, 1, 1}}, false},
        PlateRow{"a triangle with a corner in it", {{3, 3, 0}, {6, 3, 0}, {3, 6, 0}}, true},
        PlateRow{"a triangle on three corners", {{0, 0, 0}, {4, 0, 0}, {4, 4, 0}}, true}));

// A corner of the item must lie in the box of the other: a flat box holds what is in its plane to
// the bit, so the plates of these tests slope.

/// A plate in the plane z = x.
int SlopingAt(CZelData& model, double x0, double y0, double x1, double y1, double lift = 0) {
  return QuadAt(model, {x0, y0, x0 + lift}, {x1, y0, x1 + lift}, {x1, y1, x1 + lift},
                {x0, y1, x0 + lift});
}

TEST(OverlapPlate, ParallelPlatesWithinTheToleranceOverlap) {
  // Lifted by h they are h / sqrt(2) apart: 0.014 gives 0.0099, 0.0145 gives 0.01025.
  for (auto const& [lift, overlaps] : std::vector<std::pair<double, bool>>{
           {0, true}, {0.014, true}, {0.0145, false}, {-0.014, true}, {-0.0145, false}}) {
    CZelData model;
    SlopingAt(model, 0, 0, 4, 4);
    SlopingAt(model, 2, 2, 6, 6, lift);
    EXPECT_EQ(Overlapping(model, 1), overlaps ? 2 : 0) << lift;
  }
}

TEST(OverlapPlate, ACornerOfTheItemMustLieInTheBoxOfTheOther) {
  // In line with the axes a plate has no corner in the box of one inside of it, and the arms of a
  // cross have none in each other's.
  CZelData model;
  QuadAt(model, {0, 0, 0}, {4, 0, 0}, {4, 4, 0}, {0, 4, 0});
  QuadAt(model, {1, 1, 0}, {3, 1, 0}, {3, 3, 0}, {1, 3, 0});
  EXPECT_EQ(Overlapping(model, 1), 0);
  EXPECT_EQ(Overlapping(model, 2), 0);  // here it has, but no corner of the large one is inside
  CZelData cross;
  QuadAt(cross, {-3, -1, 0}, {3, -1, 0}, {3, 1, 0}, {-3, 1, 0});
  QuadAt(cross, {-1, -3, 0}, {1, -3, 0}, {1, 3, 0}, {-1, 3, 0});
  EXPECT_EQ(Overlapping(cross, 1), 0);
}

TEST(OverlapPlate, OneInsideAnotherIsFoundByItsCornersWhereThePlatesSlantToTheAxes) {
  // The box of the small one, 1 to 9, holds the corner (6, 5) of the large one.
  CZelData model;
  QuadAt(model, {0, 0, 0}, {6, 5, 0}, {10, 10, 0}, {5, 6, 0});
  QuadAt(model, {1, 1, 0}, {5.5, 5, 0}, {9, 9, 0}, {5, 5.5, 0});
  EXPECT_EQ(Overlapping(model, 1), 2);
  EXPECT_EQ(Overlapping(model, 2), 0);  // the large one has no corner inside of it
}

TEST(OverlapPlate, ACrossIsFoundByItsCrossingEdges) {
  // Bars of 8 by 2 diagonals of a square along (1, 1) and (1, -1): no corner of one in the other.
  CZelData model;
  QuadAt(model, {-3, -5, 0}, {5, 3, 0}, {3, 5, 0}, {-5, -3, 0});
  QuadAt(model, {3, -5, 0}, {5, -3, 0}, {-3, 5, 0}, {-5, 3, 0});
  EXPECT_EQ(Overlapping(model, 1), 2);
  EXPECT_EQ(Overlapping(model, 2), 1);
}

TEST(OverlapPlate, ATriangleHasTheCornersOfAnotherInside) {
  CZelData model;
  ElementAt(model, ElementType::Tri3, {{0, 0, 0}, {4, 0, 0}, {0, 4, 0}});
  QuadAt(model, {1, 1, 0}, {1, -9, 0}, {-9, -9, 0}, {-9, 1, 0});
  QuadAt(model, {3, 3, 0}, {9, 3, 0}, {9, 9, 0}, {3, 9, 0});
  EXPECT_EQ(Overlapping(model, 1), 2);
  EXPECT_EQ(Overlapping(model, 3), 0);
}

TEST(OverlapPlate, MidSideNodesDoNotCount) {
  // The mid-side nodes of the second stick out over the first.
  CZelData model;
  QuadAt(model, {0, 0, 0}, {4, 0, 0}, {4, 4, 0}, {0, 4, 0});
  ElementAt(
      model, ElementType::Quad8,
      {{5, 0, 0}, {9, 0, 0}, {9, 4, 0}, {5, 4, 0}, {7, 0, 0}, {9, 2, 0}, {7, 4, 0}, {1, 2, 0}});
  EXPECT_EQ(Overlapping(model, 1), 0);
  EXPECT_EQ(Overlapping(model, 2), 0);
  ElementAt(model, ElementType::Tri6,
            {{3, 3, 0}, {7, 3, 0}, {3, 7, 0}, {5, 3, 0}, {5, 5, 0}, {3, 5, 0}});
  EXPECT_EQ(Overlapping(model, 1), 3);
}

TEST(OverlapPlate, AMissingNodeOverlapsNothingEvenAMidSideOne) {
  CZelData model;
  QuadAt(model, {0, 0, 0}, {4, 0, 0}, {4, 4, 0}, {0, 4, 0});
  ElementAt(model, ElementType::Tri6,
            {{3, 3, 0}, {7, 3, 0}, {3, 7, 0}, {5, 3, 0}, {5, 5, 0}, {3, 5, 0}});
  EXPECT_EQ(Overlapping(model, 1), 2);
  model.BlankNode(10, 1);
  EXPECT_EQ(Overlapping(model, 1), 0);
  EXPECT_EQ(Overlapping(model, 2), 0);
}

TEST(OverlapPlate, AnItemOfMoreThanFourNodesCountsHalfOfThemAsCorners) {
  // A panel of six corners counts its first three.
  CZelData model;
  Testing::PanelAt(model, {{0, 0, 0}, {4, 0, 0}, {4, 4, 0}, {10, 4, 0}, {10, 10, 0}, {0, 10, 0}});
  QuadAt(model, {6, 6, 0}, {12, 6, 0}, {12, 12, 0}, {6, 12, 0});
  QuadAt(model, {3, 1, 0}, {9, 1, 0}, {9, 3, 0}, {3, 3, 0});
  QuadAt(model, {3, -1, 0}, {9, -1, 0}, {9, 3, 0}, {3, 3, 0});
  EXPECT_EQ(Overlapping(model, 2), 0);
  EXPECT_EQ(SearchOver(model, SetOf(SelElement, {1, 4}), kTolerance).FindCoinc(1, true), 4);
}

TEST(OverlapPlate, AnItemOfFiveNodesHasTwoCornersAndNoPlane) {
  CZelData model;
  Testing::PanelAt(model, {{0, 0, 0}, {4, 0, 0}, {5, 2, 0}, {4, 4, 0}, {0, 4, 0}});
  QuadAt(model, {3, -1, 0}, {9, -1, 0}, {9, 3, 0}, {3, 3, 0});
  EXPECT_EQ(Overlapping(model, 1), 0);
  EXPECT_EQ(Overlapping(model, 2), 0);
}

TEST(OverlapPlate, CornersOnTheEdgesOfTheItemCountOverAllOfThem) {
  // A diamond with its corners on the four edges of the square.
  CZelData model;
  QuadAt(model, {0, 0, 0}, {4, 0, 0}, {4, 4, 0}, {0, 4, 0});
  QuadAt(model, {2, 0, 0}, {4, 2, 0}, {2, 4, 0}, {0, 2, 0});
  EXPECT_EQ(Overlapping(model, 1), 2);
  EXPECT_EQ(Overlapping(model, 2), 0);
}

}  // namespace
}  // namespace Tarvex::OverlapTest
