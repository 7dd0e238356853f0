// Normals of 2D entities turned towards the Z direction of an axis.
#include <gtest/gtest.h>

#include "tarvex/orientation.h"
#include "tests/frame/orientation_support.h"

namespace Tarvex::AlignElem2dZTest {
namespace {

using Testing::AxisAlong;
using Testing::IsUnchanged;
using Testing::Numbers;
using Testing::PanelAt;
using Testing::QuadAt;
using Testing::References;

/// Runs the tool once.
bool AlignZ(CZelData& model, Util::CSet const& set, int axis = 0) {
  CAlignElem2DZ tool(model);
  tool.SetSet(set);
  tool.SetAxis(axis);
  return tool.Do();
}

/// Adds a unit square that faces down.
int SquareDown(CZelData& model) {
  return QuadAt(model, {0, 0, 0}, {0, 1, 0}, {1, 1, 0}, {1, 0, 0});
}

TEST(CAlignElem2DZ, TurnsWhatFacesDownAndLeavesWhatFacesUp) {
  CZelData model;
  QuadAt(model, {0, 0, 0}, {1, 0, 0}, {1, 1, 0}, {0, 1, 0});
  SquareDown(model);
  EXPECT_TRUE(AlignZ(model, Numbers({1, 2})));
  EXPECT_TRUE(References(model, 1, {1, 2, 3, 4}));
  EXPECT_TRUE(References(model, 2, {6, 5, 8, 7}));
  EXPECT_TRUE(Testing::IsNear(Testing::NormalAt(model, 2), {0, 0, 1}));
}

TEST(CAlignElem2DZ, TurnsAllShapesOfPlatesWithWhatBelongsToTheirNodes) {
  for (int const type : {5, 6, 7, 8}) {
    SCOPED_TRACE(type);
    CZelData model;
    std::vector<Vec3<double>> const square{{0, 0, 0}, {0, 1, 0}, {1, 1, 0}, {1, 0, 0}};
    std::vector<Vec3<double>> points(square.begin(), square.begin() + (type > 6 ? 3 : 4));
    for (auto n = points.size(); static_cast<int>(points.size()) < Testing::NodeCountOf(type);)
      points.push_back(points[points.size() - n]);  // mid-side nodes play no part
    Testing::ElementAt(model, static_cast<ElementType>(type), points);
    model.SetElem(1, Testing::Dressed(model.Elem(1)));
    auto expected = model;
    EXPECT_TRUE(FlipElement(expected, 1));
    EXPECT_TRUE(AlignZ(model, Numbers({1})));
    EXPECT_TRUE(IsUnchanged(model, expected));
    EXPECT_EQ(model.Elem(1).Offset().Z(), -4);
  }
}

TEST(CAlignElem2DZ, TurnsALoadPanelAsFlipLoadPanelDoes) {
  CZelData model;
  PanelAt(model, {{0, 0, 0}, {0, 2, 0}, {1, 3, 0}, {2, 2, 0}, {2, 0, 0}});
  EXPECT_TRUE(AlignZ(model, Numbers({1})));
  EXPECT_TRUE(References(model, 1, {2, 1, 5, 4, 3}));
  EXPECT_FALSE(AlignZ(model, Numbers({1})));
}

TEST(CAlignElem2DZ, LeavesAWallWhoseNormalIsExactlyLevel) {
  CZelData model;
  QuadAt(model, {0, 0, 0}, {1, 0, 0}, {1, 0, 1}, {0, 0, 1});  // faces -y
  QuadAt(model, {0, 0, 0}, {0, 0, 1}, {1, 0, 1}, {1, 0, 0});  // faces +y
  CZelData const before(model);
  EXPECT_FALSE(AlignZ(model, Numbers({1, 2})));
  EXPECT_TRUE(IsUnchanged(model, before));
}

TEST(CAlignElem2DZ, HasNoTolerance) {
  CZelData model;
  // The normal is (0, -1, 0) x 1 + (0, 0, t) with the upper edge moved by t along y: (1, 0, 0) x
  // (0, t, 1) = (0, -1, t).
  double const t = 1e-12;
  QuadAt(model, {0, 0, 0}, {1, 0, 0}, {1, t, 1}, {0, t, 1});
  QuadAt(model, {0, 0, 0}, {1, 0, 0}, {1, -t, 1}, {0, -t, 1});
  EXPECT_TRUE(AlignZ(model, Numbers({1, 2})));
  EXPECT_TRUE(References(model, 1, {1, 2, 3, 4}));
  EXPECT_TRUE(References(model, 2, {6, 5, 8, 7}));
}

TEST(CAlignElem2DZ, TakesTheZDirectionOfAUserAxis) {
  CZelData model;
  int const down = AxisAlong(model, {1, 0, 0}, {0, -1, 0});
  int const along = AxisAlong(model, {1, 0, 0}, {0, 0, -1});  // z is the global y
  QuadAt(model, {0, 0, 0}, {1, 0, 0}, {1, 1, 0}, {0, 1, 0});  // faces up
  QuadAt(model, {0, 0, 0}, {1, 0, 0}, {1, 0, 1}, {0, 0, 1});  // faces -y
  EXPECT_TRUE(AlignZ(model, Numbers({1, 2}), down));
  EXPECT_TRUE(References(model, 1, {2, 1, 4, 3}));
  EXPECT_TRUE(References(model, 2, {5, 6, 7, 8}));
  EXPECT_TRUE(AlignZ(model, Numbers({1, 2}), along));
  EXPECT_TRUE(References(model, 1, {2, 1, 4, 3}));
  EXPECT_TRUE(References(model, 2, {6, 5, 8, 7}));
}

TEST(CAlignElem2DZ, SkipsWhatIsNotTwoDimensionalAndNumbersThatNothingBears) {
  CZelData model;
  Testing::BeamAt(model, {0, 0, 1}, {0, 0, 0});
  Testing::Brick(model, 1, 1, -1);
  CZelData const before(model);
  EXPECT_FALSE(AlignZ(model, Numbers({1, 2, 3, 100000000})));
  EXPECT_TRUE(IsUnchanged(model, before));
  SquareDown(model);
  EXPECT_TRUE(AlignZ(model, Numbers({1, 2, 3, 100000000})));
}

TEST(CAlignElem2DZ, WorksOnTheSetOnlyAndSaysWhetherAnythingWasTurned) {
  CZelData model;
  for (int i = 0; i < 3; ++i) SquareDown(model);
  CZelData const before(model);
  EXPECT_FALSE(AlignZ(model, Numbers({})));
  EXPECT_TRUE(IsUnchanged(model, before));
  EXPECT_TRUE(AlignZ(model, Numbers({2})));
  EXPECT_EQ(Testing::Differences(model, before), std::vector<std::string>{"Elem 2: topology"});
  EXPECT_TRUE(AlignZ(model, Numbers({1, 2})));  // the last one is not turned
  EXPECT_FALSE(AlignZ(model, Numbers({1, 2})));
}

TEST(CAlignElem2DZ,
     TakesAPlateWithoutAreaOrNodesForLevelAndTurnsItAtEveryRunOfAnAxisThatPointsDown) {
  CZelData model;
  int const down = AxisAlong(model, {1, 0, 0}, {0, -1, 0});
  QuadAt(model, {0, 0, 0}, {1, 0, 0}, {2, 0, 0}, {3, 0, 0});
  model.SetElem(2, Testing::Element(ElementType::Tri3, {91, 92, 93}));
  CZelData const before(model);
  EXPECT_FALSE(AlignZ(model, Numbers({1, 2})));
  EXPECT_TRUE(AlignZ(model, Numbers({1, 2}), down));
  EXPECT_TRUE(References(model, 1, {2, 1, 4, 3}));
  EXPECT_TRUE(References(model, 2, {92, 91, 93}));
  EXPECT_TRUE(AlignZ(model, Numbers({1, 2}), down));
  EXPECT_TRUE(IsUnchanged(model, before));
}

TEST(CAlignElem2DZ, RefusesSetsOfOtherKinds) {
  CZelData model;
  SquareDown(model);
  CZelData const before(model);
  for (auto const kind : {SelNone, SelNode, SelMember, SelCase, SelOther})
    EXPECT_FALSE(AlignZ(model, Numbers({1}, kind)));
  EXPECT_TRUE(IsUnchanged(model, before));
}

TEST(CAlignElem2DZ, RefusesAnAxisBelowZeroOrNotInTheModel) {
  CZelData model;
  SquareDown(model);
  AxisAlong(model, {1, 0, 0}, {0, 1, 0});
  CZelData const before(model);
  for (int const axis : {-1, -2, 2, 100}) EXPECT_FALSE(AlignZ(model, Numbers({1}), axis));
  EXPECT_TRUE(IsUnchanged(model, before));
  EXPECT_TRUE(AlignZ(model, Numbers({1}), 1));
}

TEST(CAlignElem2DZ, LeavesTheRebuildHoldAlone) {
  CZelData model;
  SquareDown(model);
  for (bool const held : {false, true}) {
    model.rebuildHold = held;
    AlignZ(model, Numbers({1}));
    EXPECT_EQ(model.rebuildHold, held);
    EXPECT_EQ(model.rebuildHoldDepth, 0);
  }
}

}  // namespace
}  // namespace Tarvex::AlignElem2dZTest
