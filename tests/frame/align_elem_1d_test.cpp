// 1D entities made to run towards the positive sense of an axis.
#include <gtest/gtest.h>

#include "tarvex/orientation.h"
#include "tests/frame/orientation_support.h"

namespace Tarvex::AlignElem1dTest {
namespace {

using Testing::AxisAlong;
using Testing::BeamAt;
using Testing::IsUnchanged;
using Testing::Numbers;
using Testing::References;

/// Runs the tool once.
bool Align1D(CZelData& model, Util::CSet const& set, int axis = 0) {
  CAlignElem1D tool(model);
  tool.SetSet(set);
  tool.SetAxis(axis);
  return tool.Do();
}

/// Whether the tool turns a beam of a direction, in the global axis or one of given directions.
bool IsTurned(Vec3<double> const& direction) {
  CZelData model;
  BeamAt(model, {1, 2, 3}, Vec3<double>{1, 2, 3} + direction);
  bool const result = Align1D(model, Numbers({1}));
  EXPECT_EQ(model.Elem(1).Topo(0), result ? 2 : 1);
  return result;
}
bool IsTurned(Vec3<double> const& direction, Vec3<double> const& x, Vec3<double> const& xy) {
  CZelData model;
  BeamAt(model, {0, 0, 0}, direction);
  bool const result = Align1D(model, Numbers({1}), AxisAlong(model, x, xy));
  EXPECT_EQ(model.Elem(1).Topo(0), result ? 2 : 1);
  return result;
}

// Which way the dominant component points.

TEST(CAlignElem1D, TurnsWhatRunsInTheNegativeSenseOfTheAxis) {
  EXPECT_TRUE(IsTurned({-3, 0, 0}));
  EXPECT_TRUE(IsTurned({0, -3, 0}));
  EXPECT_TRUE(IsTurned({0, 0, -3}));
}

TEST(CAlignElem1D, LeavesWhatRunsInThePositiveSenseOfTheAxis) {
  EXPECT_FALSE(IsTurned({3, 0, 0}));
  EXPECT_FALSE(IsTurned({0, 3, 0}));
  EXPECT_FALSE(IsTurned({0, 0, 3}));
}

TEST(CAlignElem1D, GoesByTheLargestComponentAloneWhateverTheOthersAre) {
  EXPECT_TRUE(IsTurned({-3, 2, 2}));
  EXPECT_TRUE(IsTurned({2, -3, 2}));
  EXPECT_TRUE(IsTurned({2, 2, -3}));
  EXPECT_FALSE(IsTurned({3, -2, -2}));
  EXPECT_FALSE(IsTurned({-2, 3, -2}));
  EXPECT_FALSE(IsTurned({-2, -2, 3}));
}

TEST(CAlignElem1D, LetsXDecideATieWithY) {
  EXPECT_TRUE(IsTurned({-1, 1, 0}));
  EXPECT_FALSE(IsTurned({1, -1, 0}));
}

TEST(CAlignElem1D, LetsXDecideATieWithZ) {
  EXPECT_TRUE(IsTurned({-1, 0, 1}));
  EXPECT_FALSE(IsTurned({1, 0, -1}));
}

TEST(CAlignElem1D, LetsYDecideATieWithZ) {
  EXPECT_TRUE(IsTurned({0, -1, 1}));
  EXPECT_FALSE(IsTurned({0, 1, -1}));
  EXPECT_TRUE(IsTurned({0.5, -1, 1}));
  EXPECT_FALSE(IsTurned({-0.5, 1, -1}));
}

TEST(CAlignElem1D, LetsXDecideATieOfAllThree) {
  EXPECT_TRUE(IsTurned({-1, 1, 1}));
  EXPECT_FALSE(IsTurned({1, -1, -1}));
}

TEST(CAlignElem1D, TakesDirectionsFromAUserAxis) {
  // Its x, y, z are the global y, z, x.
  EXPECT_TRUE(IsTurned({0, -1, 0}, {0, 1, 0}, {0, 0, 1}));
  EXPECT_FALSE(IsTurned({0, 1, 0}, {0, 1, 0}, {0, 0, 1}));
  EXPECT_TRUE(IsTurned({3, -2, 0}, {0, -1, 0}, {-1, 0, 0}));  // largest along its -y
  EXPECT_FALSE(IsTurned({3, -2, 0}, {0, -1, 0}, {1, 0, 0}));  // largest along its y
  EXPECT_TRUE(IsTurned({1, 1, 3}, {1, 0, 0}, {0, -1, 0}));    // its z points down
}

TEST(CAlignElem1D, DecidesTiesInTheOrderOfTheUserAxis) {
  // In the axis whose x, y, z are the global y, z, x, direction (1, 0, -1) is (0, -1, 1): y
  // decides.
  EXPECT_TRUE(IsTurned({1, 0, -1}, {0, 1, 0}, {0, 0, 1}));
  EXPECT_FALSE(IsTurned({-1, 0, 1}, {0, 1, 0}, {0, 0, 1}));
  EXPECT_TRUE(IsTurned({1, -1, 0}, {0, 1, 0}, {0, 0, 1}));  // (-1, 0, 1): x decides
}

TEST(CAlignElem1D, LetsXDecideInAnAxisAtFortyFiveDegreesToTheElement) {
  // x is (1, 1, 0) and y (-1, 1, 0), each over the square root of 2.
  EXPECT_TRUE(IsTurned({-1, 0, 0}, {1, 1, 0}, {-1, 1, 0}));  // (-0.7, 0.7)
  EXPECT_FALSE(IsTurned({1, 0, 0}, {1, 1, 0}, {-1, 1, 0}));  // (0.7, -0.7)
}

TEST(CAlignElem1D, LeavesAnElementWithoutLength) {
  EXPECT_FALSE(IsTurned({0, 0, 0}));
  CZelData model;
  Testing::NodeAt(model, 1, 0, 0);
  model.SetElem(1, Testing::Element(ElementType::Beam, {1, 1}));
  EXPECT_FALSE(Align1D(model, Numbers({1})));
}

TEST(CAlignElem1D, TakesALengthBelowTheSmallestStepOfOneForNoLength) {
  for (auto const& [x, turned] : {std::pair{-2.2e-16, false}, std::pair{-2.3e-16, true}}) {
    CZelData model;
    BeamAt(model, {0, 0, 0}, {x, 0, 0});
    EXPECT_EQ(Align1D(model, Numbers({1})), turned);
    EXPECT_EQ(model.Elem(1).Topo(0), turned ? 2 : 1);
  }
}

TEST(CAlignElem1D, GoesFromTheFirstToTheLastNodeOfTheTopology) {
  CZelData model;
  Testing::NodeAt(model, 0, 0, 0);
  Testing::NodeAt(model, -5, 0, 0);
  Testing::NodeAt(model, 1, 0, 0);
  model.SetElem(1, Testing::Element(ElementType::Beam, {1, 2, 3}));
  EXPECT_FALSE(Align1D(model, Numbers({1})));
  model.SetElem(1, Testing::Element(ElementType::Beam, {3, 2, 1}));
  EXPECT_TRUE(Align1D(model, Numbers({1})));
  EXPECT_TRUE(References(model, 1, {2, 3, 1}));  // turning exchanges the first two places
}

// What is turned, and how.

TEST(CAlignElem1D, TurnsEveryOneDimensionalType) {
  for (int const type : {1, 2, 3, 9, 10, 19, 20, 21, 23, 24}) {
    SCOPED_TRACE(type);
    CZelData model;
    Testing::ElementAt(model, static_cast<ElementType>(type), {{1, 0, 0}, {0, 0, 0}});
    EXPECT_TRUE(Align1D(model, Numbers({1})));
    EXPECT_TRUE(References(model, 1, {2, 1}));
  }
}

TEST(CAlignElem1D, TurnsReleasesOffsetsAndPositionsWithTheElement) {
  CZelData model;
  BeamAt(model, {1, 0, 0}, {0, 0, 0});
  BeamAt(model, {0, 0, 1}, {0, 0, 0});
  for (int const n : {1, 2}) model.SetElem(n, Testing::Dressed(model.Elem(n)));
  EXPECT_TRUE(Align1D(model, Numbers({1, 2})));
  for (int const n : {1, 2}) EXPECT_TRUE(Testing::ReleasesAreWithTheirNodes(model, n));
  EXPECT_EQ(Testing::OffsetOf(model, 1), (Testing::OffsetValues{2, 1, -3, 4}));  // level
  EXPECT_EQ(Testing::OffsetOf(model, 2), (Testing::OffsetValues{2, 1, 3, -4}));  // vertical
  EXPECT_EQ(Testing::LongPositionsOf(model, 1), (Testing::LongPositions{0.75, 0.25}));
}

TEST(CAlignElem1D, SkipsWhatIsNotOneDimensional) {
  CZelData model;
  Testing::QuadAt(model, {1, 0, 0}, {0, 0, 0}, {0, 1, 0}, {1, 1, 0});
  Testing::Brick(model, -1, -1, -1);
  Testing::PanelAt(model, {{1, 0, 0}, {0, 0, 0}, {0, 1, 0}});
  model.SetElem(4, Testing::Element(static_cast<ElementType>(4), {1, 2}));
  CZelData const before(model);
  EXPECT_FALSE(Align1D(model, Numbers({1, 2, 3, 4})));
  EXPECT_TRUE(IsUnchanged(model, before));
}

TEST(CAlignElem1D, GoesOnBehindNumbersThatNothingBearsAndElementsOfOtherDimensions) {
  CZelData model;
  model.SetElem(2, Testing::Element(ElementType::Quad4, {91, 92, 93, 94}));  // of missing nodes
  Testing::NodeAt(model, 1, 0, 0);
  Testing::NodeAt(model, 0, 0, 0);
  model.SetElem(5, Testing::Element(ElementType::Beam, {1, 2}));
  EXPECT_TRUE(Align1D(model, Numbers({1, 2, 3, 5, 100000000})));
  EXPECT_TRUE(References(model, 5, {2, 1}));
}

TEST(CAlignElem1D, WorksOnTheSetOnly) {
  CZelData model;
  for (int i = 0; i < 3; ++i) BeamAt(model, {1, 0, 0}, {0, 0, 0});
  CZelData const before(model);
  EXPECT_TRUE(Align1D(model, Numbers({2})));
  EXPECT_EQ(Testing::Differences(model, before),
            std::vector<std::string>{"Elem 2: topology, longPosition"});
}

TEST(CAlignElem1D, SaysWhetherAnythingWasTurned) {
  CZelData model;
  BeamAt(model, {0, 0, 0}, {1, 0, 0});
  BeamAt(model, {1, 0, 0}, {0, 0, 0});
  BeamAt(model, {0, 0, 0}, {1, 0, 0});
  EXPECT_FALSE(Align1D(model, Numbers({1, 3})));
  EXPECT_TRUE(Align1D(model, Numbers({1, 2, 3})));  // the last one is not turned
  EXPECT_FALSE(Align1D(model, Numbers({1, 2, 3})));
  EXPECT_FALSE(Align1D(model, Numbers({})));
}

// Missing nodes.

/// Beams 1 to 4 that run along -x; one end of beam 3 is missing.
CZelData BeamsWithAGap(int place) {
  CZelData model;
  for (int i = 0; i < 4; ++i) BeamAt(model, {1.0, double(i), 0}, {0, double(i), 0});
  model.BlankNode(model.Elem(3).Topo(place), 1);
  return model;
}

TEST(CAlignElem1D, EndsItsWalkAtAMissingNodeAndSaysWhatItDidBefore) {
  for (int const place : {0, 1}) {
    auto model = BeamsWithAGap(place);
    EXPECT_TRUE(Align1D(model, Numbers({4, 3, 2, 1})));
    EXPECT_TRUE(References(model, 1, {2, 1}));
    EXPECT_TRUE(References(model, 2, {4, 3}));
    EXPECT_TRUE(References(model, 3, {5, 6}));
    EXPECT_TRUE(References(model, 4, {7, 8}));
  }
}

TEST(CAlignElem1D, DoesNothingWhenTheFirstElementHasAMissingNode) {
  auto model = BeamsWithAGap(1);
  CZelData const before(model);
  EXPECT_FALSE(Align1D(model, Numbers({3, 4})));
  EXPECT_TRUE(IsUnchanged(model, before));
}

TEST(CAlignElem1D, EndsItsWalkAtAnElementWithoutTopology) {
  CZelData model;
  model.SetElem(1, Testing::Element(ElementType::Beam, {}));
  BeamAt(model, {1, 0, 0}, {0, 0, 0});
  EXPECT_FALSE(Align1D(model, Numbers({1, 2})));
  EXPECT_TRUE(References(model, 2, {1, 2}));
}

TEST(CAlignElem1D, NeedsNoOrientationNode) {
  CZelData model;
  BeamAt(model, {1, 0, 0}, {0, 0, 0});
  model.SetElemOrientNode(1, 99);
  EXPECT_TRUE(Align1D(model, Numbers({1})));
}

// What is refused as a whole.

TEST(CAlignElem1D, RefusesSetsOfOtherKindsThanElementsAndMembers) {
  CZelData model;
  BeamAt(model, {1, 0, 0}, {0, 0, 0});
  CZelData const before(model);
  for (auto const kind : {SelNone, SelNode, SelCase, SelOther})
    EXPECT_FALSE(Align1D(model, Numbers({1}, kind)));
  EXPECT_TRUE(IsUnchanged(model, before));
}

TEST(CAlignElem1D, LeavesElementsWhoseNumbersAreNamedAsMembers) {
  CZelData model;
  BeamAt(model, {1, 0, 0}, {0, 0, 0});
  CZelData const before(model);
  EXPECT_FALSE(Align1D(model, Numbers({1}, SelMember)));
  EXPECT_TRUE(IsUnchanged(model, before));
}

TEST(CAlignElem1D, RefusesAnAxisBelowZeroOrNotInTheModel) {
  CZelData model;
  BeamAt(model, {1, 0, 0}, {0, 0, 0});
  AxisAlong(model, {1, 0, 0}, {0, 1, 0});
  CZelData const before(model);
  for (int const axis : {-1, -2, 2, 100}) EXPECT_FALSE(Align1D(model, Numbers({1}), axis));
  EXPECT_TRUE(IsUnchanged(model, before));
  EXPECT_TRUE(Align1D(model, Numbers({1}), 1));
}

TEST(CAlignElem1D, LeavesTheRebuildHoldAlone) {
  CZelData model;
  BeamAt(model, {1, 0, 0}, {0, 0, 0});
  for (bool const held : {false, true}) {
    model.rebuildHold = held;
    Align1D(model, Numbers({1}));
    EXPECT_EQ(model.rebuildHold, held);
    EXPECT_EQ(model.rebuildHoldDepth, 0);
  }
}

}  // namespace
}  // namespace Tarvex::AlignElem1dTest
