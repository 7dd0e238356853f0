// Lines that cross, elements that hang on nothing, and the item closest to a point.
#include <gtest/gtest.h>

#include <cmath>

#include "store/record/axis.h"
#include "store/record/spec.h"
#include "store/record/stages.h"
#include "tests/topology/coincidence_support.h"

namespace Tarvex::FindCrossTest {
namespace {

using Testing::AllOf;
using Testing::BeamAt;
using Testing::NodeAt;
using Testing::Points;
using Testing::Search;
using Testing::SearchAlongX;
using Testing::SearchOver;
using Testing::SetOf;

// Crossings. The tolerance of the search, 5, has no part in them.

struct CrossRow {
  char const* what;
  Points line;
  bool crosses;
};

class CrossRule : public ::testing::TestWithParam<CrossRow> {};

/// Another line, against the one from 0 to 4 along x.
TEST_P(CrossRule, Holds) {
  auto const& row = GetParam();
  CZelData model;
  BeamAt(model, {0, 0, 0}, {4, 0, 0});
  BeamAt(model, row.line[0], row.line[1]);
  EXPECT_EQ(Search(model, SelElement, 5).FindCross(1), row.crosses ? 2 : 0) << row.what;
  EXPECT_EQ(Search(model, SelElement, 5).FindCross(2), row.crosses ? 1 : 0) << row.what;
}

INSTANTIATE_TEST_SUITE_P(
    Lines, CrossRule,
    ::testing::Values(CrossRow{"through its middle", {{2, -1, 0}, {2, 1, 0}}, true},
                      CrossRow{"slanting", {{1, -1, 0}, {3, 2, 0}}, true},
                      CrossRow{"0.001 above it", {{2, -1, 0.001}, {2, 1, 0.001}}, true},
                      CrossRow{"0.001 from its start", {{0.001, -1, 0}, {0.001, 1, 0}}, false},
                      CrossRow{"0.001 from its end", {{3.999, -1, 0}, {3.999, 1, 0}}, false},
                      CrossRow{"0.0009 above it", {{2, -1, 0.0009}, {2, 1, 0.0009}}, true},
                      CrossRow{"0.0011 above it", {{2, -1, 0.0011}, {2, 1, 0.0011}}, false},
                      CrossRow{"ending on it", {{2, 0, 0}, {2, 1, 0}}, false},
                      CrossRow{"ending 0.0009 beyond it", {{2, -0.0009, 0}, {2, 1, 0}}, false},
                      CrossRow{"ending 0.0011 beyond it", {{2, -0.0011, 0}, {2, 1, 0}}, true},
                      CrossRow{"0.0009 from its start", {{0.0009, -1, 0}, {0.0009, 1, 0}}, false},
                      CrossRow{"0.0011 from its start", {{0.0011, -1, 0}, {0.0011, 1, 0}}, true},
                      CrossRow{"0.0009 from its end", {{3.9991, -1, 0}, {3.9991, 1, 0}}, false},
                      CrossRow{"0.0011 from its end", {{3.9989, -1, 0}, {3.9989, 1, 0}}, true},
                      CrossRow{"past its end", {{5, -1, 0}, {5, 1, 0}}, false},
                      CrossRow{"short of it", {{2, 1, 0}, {2, 3, 0}}, false},
                      CrossRow{"parallel", {{0, 0.0005, 0}, {4, 0.0005, 0}}, false},
                      CrossRow{"along it", {{1, 0, 0}, {3, 0, 0}}, false}));

TEST(FindCross, LinesThatTouchInsideAreNoOverlap) {
  CZelData model;
  BeamAt(model, {0, 0, 0}, {4, 0, 0});
  BeamAt(model, {2, -1, 0}, {2, 1, 0});
  auto tool = Search(model, SelElement, 0.001);
  EXPECT_EQ(tool.FindCross(1), 2);
  EXPECT_EQ(tool.FindCoinc(1, true), 0);
}

TEST(FindCross, PassesOverLinesThatShareAnEndNode) {
  // The second runs from node 1 through the point (2, 0) again.
  CZelData model;
  BeamAt(model, {0, 0, 0}, {4, 0, 0});
  int const other = BeamAt(model, {2, -1, 0}, {2, 1, 0});
  for (int place = 0; place < 2; ++place)
    for (int const node : {1, 2}) {
      CZelData shared(model);
      shared.SetElemTopo(other, place, node);
      EXPECT_EQ(Search(shared, SelElement, 0.001).FindCross(1), 0);
    }
}

TEST(FindCross, PassesOverLinesWithoutLengthAndWithMissingNodes) {
  CZelData model;
  BeamAt(model, {0, 0, 0}, {4, 0, 0});
  BeamAt(model, {2, 0, 0}, {2, 0, 0.9e-10});
  EXPECT_EQ(Search(model, SelElement, 0.001).FindCross(1), 0);
  EXPECT_EQ(Search(model, SelElement, 0.001).FindCross(2), 0);
  BeamAt(model, {2, -1, 0}, {2, 1, 0});
  EXPECT_EQ(Search(model, SelElement, 0.001).FindCross(1), 3);
  model.BlankNode(6, 1);
  EXPECT_EQ(Search(model, SelElement, 0.001).FindCross(1), 0);
  EXPECT_EQ(Search(model, SelElement, 0.001).FindCross(3), 0);
  EXPECT_EQ(Search(model, SelElement, 0.001).FindCross(9), 0);
}

TEST(FindCross, GivesTheFirstOfTheListWhetherOrNotItIsStillInTheSet) {
  CZelData model;
  BeamAt(model, {0, 0, 0}, {9, 0, 0});
  BeamAt(model, {7, -1, 0}, {7, 1, 0});
  BeamAt(model, {2, -1, 0}, {2, 1, 0});
  auto tool = SearchAlongX(model, SelElement, 0.001);
  EXPECT_EQ(tool.FindCross(1), 3);
  tool.RemoveFromSearchSet(3);
  EXPECT_EQ(tool.FindCross(1), 3);
  auto shorter = SearchOver(model, SetOf(SelElement, {1, 2}), 0.001);
  EXPECT_EQ(shorter.FindCross(1), 2);
  EXPECT_EQ(shorter.FindCross(3), 1);
}

TEST(FindCross, FollowsNodesThatMoveBehindTheListing) {
  CZelData model;
  BeamAt(model, {0, 0, 0}, {4, 0, 0});
  BeamAt(model, {2, 50, 0}, {2, 60, 0});
  auto tool = Search(model, SelElement, 0.001);
  EXPECT_EQ(tool.FindCross(1), 0);
  model.SetNodeCoor(3, {2, -1, 0});
  EXPECT_EQ(tool.FindCross(1), 2);
}

TEST(FindCross, FollowsAVectorThatIsSetBehindTheListing) {
  CZelData model;
  BeamAt(model, {10, 0, 0}, {14, 0, 0});
  BeamAt(model, {12, -1, 0}, {12, 1, 0});
  auto tool = SearchAlongX(model, SelElement, 0.001);
  EXPECT_EQ(tool.FindCross(1), 2);
  tool.SetOrderVector({0, 1, 0});
  EXPECT_EQ(tool.FindCross(1), 2);
}

TEST(FindCross, TakesAMemberFromItsFirstToItsLastNode) {
  CZelData model;
  for (auto const& p : Points{{0, 0, 0}, {2, 3, 0}, {4, 0, 0}, {1, -1, 0}, {1, 1, 0}})
    NodeAt(model, p.x, p.y, p.z);
  Testing::MemberAt(model, MembType::Beam, L"1 2 3");
  Testing::MemberAt(model, MembType::Beam, L"4 5");
  auto tool = Search(model, SelMember, 0.001);
  EXPECT_EQ(tool.FindCross(1), 2);
  EXPECT_EQ(tool.FindCross(2), 1);
  EXPECT_EQ(tool.FindCross(3), 0);
}

TEST(FindCross, PassesOverLoadPanels) {
  CZelData model;
  BeamAt(model, {0, 0, 0}, {4, 0, 0});
  Testing::PanelAt(model, {{2, -1, 0}, {2, 1, 0}, {9, 0, 0}});
  auto tool = Search(model, SelElement, 0.001);
  EXPECT_EQ(tool.FindCross(1), 0);
  EXPECT_EQ(tool.FindCross(2), 0);
}

// Unconnected elements.

TEST(FindUnconnect, GivesTheElementWhoseEndsAreItsOwn) {
  CZelData model;
  BeamAt(model, {0, 0, 0}, {1, 0, 0});
  auto tool = Search(model, SelElement, 0.001);
  EXPECT_EQ(tool.FindUnconnect(1), 1);
  EXPECT_EQ(tool.FindUnconnect(2), 0);
  EXPECT_EQ(tool.FindUnconnect(0), 0);
}

TEST(FindUnconnect, ASecondElementOrPanelAtAnyEndConnects) {
  for (int const end : {1, 2}) {
    CZelData model;
    BeamAt(model, {0, 0, 0}, {1, 0, 0});
    NodeAt(model, 0, 5, 0);
    NodeAt(model, 5, 5, 0);
    CZelData panel(model);
    model.SetElem(2, Testing::Element(ElementType::Beam, {end, 3}));
    EXPECT_EQ(Search(model, SelElement, 0.001).FindUnconnect(1), 0);
    panel.SetLoadPanel(2, Testing::Panel({end, 3, 4}));
    EXPECT_EQ(Search(panel, SelElement, 0.001).FindUnconnect(1), 0);
  }
}

TEST(FindUnconnect, AConstraintOfAnyStageAtAnyEndConnects) {
  for (int const end : {1, 2}) {
    CZelData model;
    BeamAt(model, {0, 0, 0}, {1, 0, 0});
    NodeAt(model, 0, 5, 0);
    model.SetAnalStage(3, Data::CAnalStage());
    Testing::JoinIn(model, 3, end, L"3");
    EXPECT_EQ(Search(model, SelElement, 0.001, 0).FindUnconnect(1), 0);
  }
}

TEST(FindUnconnect, AMissingEndIsNoAnswer) {
  CZelData model;
  BeamAt(model, {0, 0, 0}, {1, 0, 0});
  auto tool = Search(model, SelElement, 0.001);
  model.BlankNode(2, 1);
  EXPECT_EQ(tool.FindUnconnect(1), 0);
}

TEST(FindUnconnect, IsForElementsOnly) {
  CZelData model;
  BeamAt(model, {0, 0, 0}, {1, 0, 0});
  Testing::MemberAt(model, MembType::Beam, L"1 2");
  Testing::PanelAt(model, {{5, 5, 5}, {6, 5, 5}, {5, 6, 5}});
  EXPECT_EQ(Search(model, SelNode, 0.001).FindUnconnect(1), 0);
  EXPECT_EQ(Search(model, SelMember, 0.001).FindUnconnect(1), 0);
  EXPECT_EQ(Search(model, SelElement, 0.001).FindUnconnect(2), 0);  // a panel
}

// The closest item.

TEST(ClosestNode, IncludesTheRadiusAndTakesTheLowestOfEquallyNearOnes) {
  CZelData model;
  Testing::NodesOnX(model, {{1, 2}, {2, -2}, {3, 0.5}, {4, 9}});
  auto const tool = SearchOver(model, SetOf(SelNode, {1, 2, 4}), 0.1);
  EXPECT_EQ(tool.ClosestNode({0, 0, 0}, 0, 2), 1);
  EXPECT_EQ(tool.ClosestNode({0, 0, 0}, 1, 2), 2);
  EXPECT_EQ(tool.ClosestNode({0, 0, 0}, 0, 1.999), 0);
  EXPECT_EQ(tool.ClosestNode({-0.5, 0, 0}, 0, 9), 2);
}

TEST(ClosestItem, OfNodesLooksWithinTheToleranceAndPassesOverTheOneGivenAlone) {
  CZelData model;
  Testing::NodesOnX(model, {{1, 0}, {2, 0.5}, {3, 0.75}});
  Testing::JoinIn(model, 1, 2, L"all");
  auto const tool = Search(model, SelNode, 0.5);
  EXPECT_EQ(tool.ClosestItem({0, 0, 0}, 0), 1);
  EXPECT_EQ(tool.ClosestItem({0, 0, 0}, 1), 2);  // at the tolerance, and tied to 1
  EXPECT_EQ(tool.ClosestItem({-0.5, 0, 0}, 1), 0);
}

TEST(ClosestItem, OfElementsHasNoBound) {
  CZelData model;
  BeamAt(model, {0, 0, 0}, {2, 0, 0});      // centre 1
  BeamAt(model, {100, 0, 0}, {102, 0, 0});  // centre 101
  auto const tool = Search(model, SelElement, 0.1);
  EXPECT_EQ(tool.ClosestItem({0, 0, 0}, 0), 1);
  EXPECT_EQ(tool.ClosestItem({52, 0, 0}, 0), 2);
  EXPECT_EQ(tool.ClosestItem({0, 0, 0}, 1), 2);
  EXPECT_EQ(tool.ClosestItem({1e6, 0, 0}, 0), 2);   // beyond the list's end
  EXPECT_EQ(tool.ClosestItem({-1e6, 0, 0}, 0), 1);  // before its start
}

TEST(ClosestItem, OfMembersGoesByTheMeanOfTheirNodes) {
  CZelData model;
  for (auto const& p : Points{{0, 0, 0}, {2, 0, 0}, {5, 5, 0}, {7, 5, 0}})
    NodeAt(model, p.x, p.y, p.z);
  Testing::MemberAt(model, MembType::Beam, L"1 2");
  Testing::MemberAt(model, MembType::Beam, L"3 4");
  auto const tool = Search(model, SelMember, 0.1);
  EXPECT_EQ(tool.ClosestItem({4, 4, 0}, 0), 2);
  EXPECT_EQ(tool.ClosestItem({4, 4, 0}, 2), 1);
}

TEST(ClosestItem, OfEquallyNearElementsIsTheOneThatTheUpwardSweepMeets) {
  // Centres (0, 1, 0) and (1, 0, 0), both 1 away. The sweep starts strictly above the point's
  // projection 0, at the second.
  CZelData model;
  BeamAt(model, {0, 1, -1}, {0, 1, 1});
  BeamAt(model, {1, 0, -1}, {1, 0, 1});
  EXPECT_EQ(SearchAlongX(model, SelElement, 0.1).ClosestItem({0, 0, 0}, 0), 2);
  CZelData row;
  BeamAt(row, {-1, 0, -1}, {-1, 0, 1});
  BeamAt(row, {1, 0, -1}, {1, 0, 1});
  EXPECT_EQ(SearchAlongX(row, SelElement, 0.1).ClosestItem({0, 0, 0}, 0), 2);
}

TEST(ClosestItem, OfNothingIsNone) {
  CZelData model;
  NodeAt(model, 0, 0, 0);
  EXPECT_EQ(SearchOver(model, Util::CSet(SelElement), 1).ClosestItem({0, 0, 0}, 0), 0);
  EXPECT_EQ(SearchOver(model, Util::CSet(SelNode), 1).ClosestItem({0, 0, 0}, 0), 0);
}

TEST(ClosestItem, PassesOverWhatHasLeftTheSetOrTheModel) {
  CZelData model;
  for (int i = 0; i < 3; ++i) BeamAt(model, {1.0 * i, 0, 0}, {1.0 * i, 0, 2});
  auto tool = Search(model, SelElement, 0.1);
  tool.RemoveFromSearchSet(1);
  EXPECT_EQ(tool.ClosestItem({0, 0, 1}, 0), 2);
  model.BlankElem(2, 1);
  EXPECT_EQ(tool.ClosestItem({0, 0, 1}, 0), 3);
}

/// Nodes at (1, 0, 0), (0, 2, 0) and (0, 0, 3) beside the axis' origin, in millimetres and degrees.
int ClosestInAxis(AxisType type, Vec3<double> const& user) {
  CZelData model;
  Vec3<double> const origin{10, 20, 30};
  for (auto const& p : Points{{1, 0, 0}, {0, 2, 0}, {0, 0, 3}})
    NodeAt(model, origin.x + p.x, origin.y + p.y, origin.z + p.z);
  Data::CUnit unit;
  unit.SetConversion(Data::CUnit::kLength, 1000);
  unit.SetConversion(Data::CUnit::kAngle, 180 / kPi);
  Data::CAxis const axis(L"", type, origin, {1, 0, 0}, {0, 1, 0});
  return Search(model, SelNode, 1e-6).ClosestItem(unit, axis, user, 0);
}

TEST(ClosestItemInAxis, TurnsTheUsersCoordinatesIntoThoseOfTheModel) {
  EXPECT_EQ(ClosestInAxis(AxisType::Cartesian, {1000, 0, 0}), 1);
  EXPECT_EQ(ClosestInAxis(AxisType::Cartesian, {0, 2000, 0}), 2);
  EXPECT_EQ(ClosestInAxis(AxisType::Cartesian, {0, 0, 3000}), 3);
  EXPECT_EQ(ClosestInAxis(static_cast<AxisType>(9), {0, 2000, 0}), 2);
  EXPECT_EQ(ClosestInAxis(AxisType::Cylindrical, {1000, 0, 0}), 1);
  EXPECT_EQ(ClosestInAxis(AxisType::Cylindrical, {2000, 90, 0}), 2);
  EXPECT_EQ(ClosestInAxis(AxisType::Cylindrical, {0, 0, 3000}), 3);
  EXPECT_EQ(ClosestInAxis(AxisType::Spherical, {1000, 0, 90}), 1);
  EXPECT_EQ(ClosestInAxis(AxisType::Spherical, {2000, 90, 90}), 2);
  EXPECT_EQ(ClosestInAxis(AxisType::Spherical, {3000, 0, 0}), 3);
  EXPECT_EQ(ClosestInAxis(AxisType::Cartesian, {1, 0, 0}), 0);
}

}  // namespace
}  // namespace Tarvex::FindCrossTest
