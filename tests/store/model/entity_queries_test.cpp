// Geometry of entities, with figures worked by hand. Frames of bare points stand in
// numeric/element_frame_test.cpp.
#include "store/model/entity_queries.h"

#include <gtest/gtest.h>

#include <climits>

#include "store/model/zel_data.h"
#include "store/record/node.h"
#include "tests/support/builders.h"
#include "tests/support/matchers.h"

namespace Tarvex::EntityQueriesTest {
namespace {

using Testing::BeamAt;
using Testing::Brick;
using Testing::ElementAt;
using Testing::IsNear;
using Testing::NodeAt;
using Testing::PanelAt;
using Testing::QuadAt;
using V = Vec3<double>;

double const kRoot3Half = std::sqrt(3.0) / 2;  // cos 30 degrees

void ExpectFrame(Util::CDirCos const& frame, V const& x, V const& y) {
  EXPECT_TRUE(IsNear(frame.AxisVec(Direction::X), x));
  EXPECT_TRUE(IsNear(frame.AxisVec(Direction::Y), y));
  EXPECT_TRUE(IsNear(frame.AxisVec(Direction::Z), Cross(x, y)));
}

void ExpectGlobalFrame(Util::CDirCos const& frame) { EXPECT_EQ(frame, Util::CDirCos()); }

TEST(ElemDC, OfALineFollowsItsNodes) {
  CZelData model;
  int const level = BeamAt(model, {1, 1, 1}, {5, 1, 1});
  int const up = BeamAt(model, {2, 0, 0}, {2, 0, 3});
  int const down = BeamAt(model, {2, 0, 3}, {2, 0, 0});
  int const skew = BeamAt(model, {0, 0, 0}, {3, 0, 4});
  ExpectFrame(model.ElemDC(level), {1, 0, 0}, {0, 1, 0});
  ExpectFrame(model.ElemDC(up), {0, 0, 1}, {0, 1, 0});
  ExpectFrame(model.ElemDC(down), {0, 0, -1}, {0, 1, 0});
  ExpectFrame(model.ElemDC(skew), {0.6, 0, 0.8}, {0, 1, 0});
}

TEST(ElemDC, OfALineFollowsOrientationNodeAndAngle) {
  CZelData model;
  int const beam = BeamAt(model, {0, 0, 0}, {4, 0, 0});
  int const above = NodeAt(model, 1, 0, 2);
  int const onAxis = NodeAt(model, 9, 0, 0);
  model.SetElemOrientNode(beam, above);
  ExpectFrame(model.ElemDC(beam), {1, 0, 0}, {0, 0, 1});
  model.SetElemBeta(beam, 30);  // y = Z turns towards z = -Y
  ExpectFrame(model.ElemDC(beam), {1, 0, 0}, {0, -0.5, kRoot3Half});
  model.SetElemOrientNode(beam, onAxis);
  ExpectFrame(model.ElemDC(beam), {1, 0, 0}, {0, kRoot3Half, 0.5});
  model.SetElemOrientNode(beam, 12345);  // a node that does not exist
  ExpectFrame(model.ElemDC(beam), {1, 0, 0}, {0, kRoot3Half, 0.5});
}

TEST(ElemDC, OfALineTakesTheVerticalToleranceOfTheModel) {
  CZelData model;
  int const lean = BeamAt(model, {0, 0, 0}, {0, 3, 4});
  ExpectFrame(model.ElemDC(lean), {0, 0.6, 0.8}, {-1, 0, 0});
  Data::CSpec spec;
  spec.SetGenTol(TolType::Vertical, 0.6);
  model.SetSpec(spec);
  ExpectFrame(model.ElemDC(lean), {0, 0.6, 0.8}, {0, 0.8, -0.6});
}

TEST(ElemDC, OfEveryLineTypeIsTheSame) {
  for (int const type : {1, 2, 3, 9, 10, 19, 20, 21, 23, 24}) {
    CZelData model;
    int const n = ElementAt(model, static_cast<ElementType>(type), {{0, 0, 0}, {0, 0, 2}});
    ExpectFrame(model.ElemDC(n), {0, 0, 1}, {0, 1, 0});
  }
}

TEST(ElemDC, OfALineWithoutLengthIsTheGlobalFrame) {
  CZelData model;
  int const n = BeamAt(model, {1, 2, 3}, {1, 2, 3});
  model.SetElemBeta(n, 30);
  ExpectGlobalFrame(model.ElemDC(n));
}

TEST(ElemDC, OfAPlateHasXAlongItsFirstEdge) {
  CZelData model;
  int const wall = QuadAt(model, {0, 0, 0}, {0, 2, 0}, {0, 2, 2}, {0, 0, 2});
  ExpectFrame(model.ElemDC(wall), {0, 1, 0}, {0, 0, 1});
  int const triangle = ElementAt(model, ElementType::Tri3, {{4, 0, 5}, {0, 3, 5}, {0, 0, 5}});
  ExpectFrame(model.ElemDC(triangle), {-0.8, 0.6, 0}, {-0.6, -0.8, 0});
  model.SetElemBeta(wall, 90);
  ExpectFrame(model.ElemDC(wall), {0, 0, 1}, {0, -1, 0});
}

TEST(ElemDC, OfAQuadraticPlateIsThatOfItsCorners) {
  CZelData model;
  // The mid-side nodes lie below the plane of the corners.
  int const quad = ElementAt(
      model, ElementType::Quad8,
      {{0, 0, 0}, {2, 0, 0}, {2, 2, 0}, {0, 2, 0}, {1, 0, -1}, {2, 1, -1}, {1, 2, -1}, {0, 1, -1}});
  int const triangle =
      ElementAt(model, ElementType::Tri6,
                {{0, 0, 0}, {2, 0, 0}, {0, 2, 0}, {1, 0, -5}, {1, 1, -5}, {0, 1, -5}});
  ExpectFrame(model.ElemDC(quad), {1, 0, 0}, {0, 1, 0});
  ExpectFrame(model.ElemDC(triangle), {1, 0, 0}, {0, 1, 0});
  EXPECT_TRUE(IsNear(model.Normal(quad), {0, 0, 1}));
}

TEST(ElemDC, OfAWarpedPlateLiesInItsMeanPlane) {
  CZelData model;
  int const n = QuadAt(model, {0, 0, 0}, {2, 0, 0}, {2, 2, 1}, {0, 2, 0});
  // Diagonals (2, 2, 1) and (-2, 2, 0): normal along (-2, -2, 8); see element_frame_test.cpp.
  V const z = V{-1, -1, 4} / std::sqrt(18.0);
  V const x = V{17, -1, 4} / std::sqrt(306.0);
  ExpectFrame(model.ElemDC(n), x, Cross(z, x));
  EXPECT_TRUE(IsNear(model.Normal(n), z));
}

TEST(ElemDC, OfALoadPanelTakesAllItsNodesAsCorners) {
  CZelData model;
  // An L from its inward corner on, in a plane at right angles to Y.
  int const n = PanelAt(model, {{1, 0, 1}, {1, 0, 3}, {0, 0, 3}, {0, 0, 0}, {4, 0, 0}, {4, 0, 1}});
  ExpectFrame(model.ElemDC(n), {0, 0, 1}, {-1, 0, 0});
  EXPECT_TRUE(IsNear(model.Normal(n), {0, -1, 0}));
  auto panel = model.LoadPanel(n);
  panel.SetOrientationAngle(90);
  model.SetLoadPanel(n, panel);
  ExpectFrame(model.ElemDC(n), {-1, 0, 0}, {0, 0, -1});
}

TEST(ElemDC, OfAPlateWithACollapsedEdgeTakesTheNext) {
  CZelData model;
  double const r = std::sqrt(0.5);
  ExpectFrame(model.ElemDC(QuadAt(model, {0, 0, 0}, {0, 0, 0}, {1, 1, 0}, {0, 2, 0})), {r, r, 0},
              {-r, r, 0});
}

TEST(ElemDC, OfAPlateWithoutAreaIsTheGlobalFrame) {
  CZelData model;
  int const line = QuadAt(model, {0, 1, 0}, {0, 2, 0}, {0, 3, 0}, {0, 4, 0});
  int const panel = PanelAt(model, {{0, 1, 0}, {0, 2, 0}});
  int const none = PanelAt(model, {});
  for (int const n : {line, panel, none}) {
    ExpectGlobalFrame(model.ElemDC(n));
    EXPECT_EQ(model.Normal(n), V());
  }
}

TEST(ElemDC, OfASolidHasYTowardsTheLastNodeOfItsNearFace) {
  CZelData model;
  ExpectFrame(model.ElemDC(Brick(model, 2, 3, 4)), {1, 0, 0}, {0, 1, 0});
  // A brick that leans: its fourth node lies at (1, 3, 0), so y is (0, 1, 0) at a right angle to x.
  int const leaning = ElementAt(
      model, ElementType::Brick8,
      {{0, 0, 0}, {2, 0, 0}, {3, 3, 0}, {1, 3, 0}, {0, 0, 4}, {2, 0, 4}, {3, 3, 4}, {1, 3, 4}});
  ExpectFrame(model.ElemDC(leaning), {1, 0, 0}, {0, 1, 0});
  // A near face that is warped: its third node lies at (2, 3, 1).
  int const warped = ElementAt(
      model, ElementType::Brick8,
      {{0, 0, 0}, {2, 0, 0}, {2, 3, 1}, {0, 3, 0}, {0, 0, 4}, {2, 0, 4}, {2, 3, 4}, {0, 3, 4}});
  ExpectFrame(model.ElemDC(warped), {1, 0, 0}, {0, 1, 0});
  int const wedge = ElementAt(model, ElementType::Wedge6,
                              {{0, 0, 0}, {0, 2, 0}, {-2, 0, 0}, {0, 0, 2}, {0, 2, 2}, {-2, 0, 2}});
  ExpectFrame(model.ElemDC(wedge), {0, 1, 0}, {-1, 0, 0});
  int const tetra =
      ElementAt(model, ElementType::Tetra4, {{0, 0, 0}, {0, 0, 2}, {0, 2, 2}, {-2, 0, 0}});
  ExpectFrame(model.ElemDC(tetra), {0, 0, 1}, {0, 1, 0});
  int const pyramid = ElementAt(model, ElementType::Pyramid5,
                                {{0, 0, 0}, {0, 2, 0}, {0, 2, 2}, {0, 0, 2}, {3, 1, 1}});
  ExpectFrame(model.ElemDC(pyramid), {0, 1, 0}, {0, 0, 1});
}

TEST(ElemDC, OfAFaceOfASolidIsThatOfAPlate) {
  CZelData model;
  int const n = Brick(model, 2, 3, 4);
  model.SetElemBeta(n, 30);  // has no meaning for faces
  // Faces 0-3-2-1, 4-5-6-7, 0-1-5-4, 1-2-6-5, 2-3-7-6, 3-0-4-7: x along the first edge, z outward.
  ExpectFrame(model.ElemDC(n, EntAt::Ends, 0), {0, 1, 0}, {1, 0, 0});
  ExpectFrame(model.ElemDC(n, EntAt::Ends, 1), {1, 0, 0}, {0, 1, 0});
  ExpectFrame(model.ElemDC(n, EntAt::Ends, 2), {1, 0, 0}, {0, 0, 1});
  ExpectFrame(model.ElemDC(n, EntAt::Ends, 3), {0, 1, 0}, {0, 0, 1});
  ExpectFrame(model.ElemDC(n, EntAt::Ends, 4), {-1, 0, 0}, {0, 0, 1});
  ExpectFrame(model.ElemDC(n, EntAt::Ends, 5), {0, -1, 0}, {0, 0, 1});
  ExpectGlobalFrame(model.ElemDC(n, EntAt::Ends, 6));
  ExpectFrame(model.ElemDC(n, EntAt::Ends, -1), {1, 0, 0}, {0, 1, 0});
  int const wedge = ElementAt(model, ElementType::Wedge6,
                              {{0, 0, 0}, {2, 0, 0}, {0, 2, 0}, {0, 0, 2}, {2, 0, 2}, {0, 2, 2}});
  // Face 0-2-1: x along the edge from 0 to 2, z downward, y = z cross x.
  ExpectFrame(model.ElemDC(wedge, EntAt::Ends, 0), {0, 1, 0}, {1, 0, 0});
}

TEST(ElemDC, IsTheSameAtNodesAndAtOffsetEnds) {
  CZelData model;
  int const n = BeamAt(model, {0, 0, 0}, {3, 0, 4});
  model.SetElemOffset(n, {1, 2, 3, 4});
  ExpectFrame(model.ElemDC(n, EntAt::Ends), {0.6, 0, 0.8}, {0, 1, 0});
  ExpectFrame(model.ElemDC(n, EntAt::Nodes), {0.6, 0, 0.8}, {0, 1, 0});
}

TEST(ElemDC, OfWhatHasNoFrameIsTheGlobalOne) {
  CZelData model;
  int const shapeless =
      ElementAt(model, static_cast<ElementType>(4), {{0, 0, 0}, {0, 0, 1}, {0, 1, 0}});
  int const shortBrick = ElementAt(model, ElementType::Brick8, {{0, 0, 0}, {0, 0, 1}, {0, 1, 0}});
  int const dangling = model.HighestElem() + 1;
  model.SetElem(dangling, Testing::Element(ElementType::Beam, {1, 999}));
  model.SetElem(dangling + 1, Testing::Element(ElementType::Quad4, {1, 2, 3, 999}));
  model.SetElem(dangling + 2, Testing::Element(ElementType::Beam, {1}));
  model.SetElem(dangling + 3, Testing::Element(ElementType::Tetra4, {997, 998, 999, 1}));
  model.SetElem(dangling + 4, Testing::Element(static_cast<ElementType>(4), {1, 2}));
  for (int const n : {shapeless, shortBrick, dangling, dangling + 1, dangling + 2, dangling + 3,
                      dangling + 4, 0, -1, 500}) {
    ExpectGlobalFrame(model.ElemDC(n));
    EXPECT_EQ(model.ElemLen(n), 0) << n;
    EXPECT_EQ(model.Normal(n), V()) << n;
    EXPECT_FALSE(model.ElemIsVertical(n)) << n;
    EXPECT_FALSE(model.ElemIsHorizontal(n)) << n;
  }
}

TEST(Normal, IsAUnitVectorOfTwoDimensionalEntitiesOnly) {
  CZelData model;
  int const quad = QuadAt(model, {0, 0, 0}, {0, 20, 0}, {0, 20, 30}, {0, 0, 30});
  EXPECT_TRUE(IsNear(model.Normal(quad), {1, 0, 0}));
  EXPECT_TRUE(IsNear(model.Normal(quad, -2, EntAt::Nodes), {1, 0, 0}));
  EXPECT_EQ(model.Normal(BeamAt(model, {0, 0, 0}, {1, 0, 0})), V());
  EXPECT_EQ(model.Normal(Brick(model, 1, 1, 1)), V());
}

TEST(Lengths, OfALineAreBetweenItsNodesOrItsOffsetEnds) {
  CZelData model;
  int const n = BeamAt(model, {1, 1, 1}, {4, 1, 5});  // 3, 0, 4: length 5
  EXPECT_EQ(model.ElemLen(n), 5);
  model.SetElemOffset(n, {1, 1.5, 7, 8});
  EXPECT_EQ(model.ElemLen(n, EntAt::Nodes), 5);
  EXPECT_EQ(model.ElemLen(n, EntAt::Ends), 2.5);  // 5 - 1 - 1.5
  EXPECT_EQ(model.ElemLen(n), 2.5);
  model.SetElemOffset(n, {-1, -1, 0, 0});
  EXPECT_EQ(model.ElemLen(n), 7);
  model.SetElemOffset(n, {4, 4, 0, 0});  // the ends pass one another by 3
  EXPECT_EQ(model.ElemLen(n), 3);
}

TEST(Lengths, AreZeroForAllButLines) {
  CZelData model;
  EXPECT_EQ(model.ElemLen(QuadAt(model, {0, 0, 0}, {1, 0, 0}, {1, 1, 0}, {0, 1, 0})), 0);
  EXPECT_EQ(model.ElemLen(PanelAt(model, {{0, 0, 0}, {1, 0, 0}, {1, 1, 0}})), 0);
  EXPECT_EQ(model.ElemLen(Brick(model, 1, 1, 1)), 0);
}

TEST(Coordinates, OfALineAreOffsetInItsFrame) {
  CZelData model;
  int const n = BeamAt(model, {0, 0, 0}, {3, 0, 4});
  model.SetElemOffset(n, {1, 2, 3, 4});
  // x = (0.6, 0, 0.8), y = (0, 1, 0), z = (-0.8, 0, 0.6).
  // Start: 1 x + 3 y + 4 z = (0.6 - 3.2, 3, 0.8 + 2.4)
  EXPECT_TRUE(IsNear(model.Coor(n, 0), {-2.6, 3, 3.2}));
  // End: (3, 0, 4) - 2 x + 3 y + 4 z = (3 - 1.2 - 3.2, 3, 4 - 1.6 + 2.4)
  EXPECT_TRUE(IsNear(model.Coor(n, 1), {-1.4, 3, 4.8}));
  EXPECT_EQ(model.Coor(n, 0, EntAt::Nodes), (V{0, 0, 0}));
  EXPECT_EQ(model.Coor(n, 1, EntAt::Nodes), (V{3, 0, 4}));
  EXPECT_NEAR(Length(model.Coor(n, 1) - model.Coor(n, 0)), model.ElemLen(n), 1e-12);
}

TEST(Coordinates, OfALineAreOffsetInTheFrameThatItsAngleTurns) {
  CZelData model;
  int const n = BeamAt(model, {0, 0, 0}, {4, 0, 0});
  model.SetElemOffset(n, {0, 0, 1, 0});
  model.SetElemBeta(n, 90);  // y points up
  EXPECT_TRUE(IsNear(model.Coor(n, 0), {0, 0, 1}));
}

TEST(Coordinates, OfATypeWithoutAShapeAreThoseOfItsNodes) {
  CZelData model;
  int const n = BeamAt(model, {1, 2, 3}, {4, 2, 3});
  auto element = model.Elem(n);
  element.SetOffset({0.5, 0, 0, 2});
  element.SetType(static_cast<ElementType>(4));
  model.SetElem(n, element);
  EXPECT_EQ(model.Coor(n, 0), (V{1, 2, 3}));
}

TEST(Coordinates, OfAPlateAreOffsetAlongItsNormalOnly) {
  CZelData model;
  int const n = QuadAt(model, {0, 0, 0}, {0, 2, 0}, {0, 2, 2}, {0, 0, 2});  // normal X
  model.SetElemOffset(n, {7, 7, 7, 0.5});
  EXPECT_TRUE(IsNear(model.Coor(n, 2), {0.5, 2, 2}));
  EXPECT_EQ(model.Coor(n, 2, EntAt::Nodes), (V{0, 2, 2}));
}

TEST(Coordinates, OfSolidsAndPanelsAreThoseOfTheirNodes) {
  CZelData model;
  int const brick = Brick(model, 2, 3, 4);
  model.SetElemOffset(brick, {1, 1, 1, 1});
  EXPECT_EQ(model.Coor(brick, 6), (V{2, 3, 4}));
  int const panel = PanelAt(model, {{0, 0, 7}, {1, 0, 7}, {1, 1, 7}});
  EXPECT_EQ(model.Coor(panel, 1), (V{1, 0, 7}));
}

TEST(Coordinates, OfWhatIsNotThereAreTheOrigin) {
  CZelData model;
  int const n = BeamAt(model, {1, 1, 1}, {4, 1, 5});
  for (int const place : {2, -1, INT_MIN, INT_MAX}) EXPECT_EQ(model.Coor(n, place), V());
  EXPECT_EQ(model.Coor(99, 0), V());
  model.BlankNode(2, 1);
  EXPECT_EQ(model.Coor(n, 1), V());
  EXPECT_EQ(model.Coor(n, 0), (V{1, 1, 1}));
}

TEST(Direction, OfALineIsComparedWithTheToleranceInclusive) {
  CZelData model;
  int const n = BeamAt(model, {0, 0, 0}, {3, 0, 4});  // sine from the vertical 0.6, level 0.8
  auto const setTolerance = [&](double value) {
    Data::CSpec spec;
    spec.SetGenTol(TolType::Vertical, value);
    model.SetSpec(spec);
  };
  setTolerance(0.6);
  EXPECT_TRUE(model.ElemIsVertical(n));
  EXPECT_TRUE(model.ElemIsVertical(n, EntAt::Nodes));
  EXPECT_FALSE(model.ElemIsHorizontal(n));
  setTolerance(std::nextafter(0.6, 0));
  EXPECT_FALSE(model.ElemIsVertical(n));
  setTolerance(0.8);
  EXPECT_TRUE(model.ElemIsHorizontal(n));
  setTolerance(std::nextafter(0.8, 0));
  EXPECT_FALSE(model.ElemIsHorizontal(n));
}

TEST(Direction, OfAPlateIsLevelWhenItsNormalIsVertical) {
  CZelData model;
  int const slab = QuadAt(model, {0, 0, 1}, {0, 1, 1}, {1, 1, 1}, {1, 0, 1});  // normal downward
  int const wall = QuadAt(model, {0, 0, 0}, {1, 0, 0}, {1, 0, 1}, {0, 0, 1});
  int const panel = PanelAt(model, {{0, 0, 0}, {1, 0, 0}, {1, 1, 0}});
  int const brick = Brick(model, 1, 1, 1);
  EXPECT_TRUE(model.ElemIsHorizontal(slab));
  EXPECT_TRUE(model.ElemIsHorizontal(panel));
  EXPECT_FALSE(model.ElemIsHorizontal(wall));
  EXPECT_FALSE(model.ElemIsHorizontal(brick));
  for (int const n : {slab, wall, panel, brick}) EXPECT_FALSE(model.ElemIsVertical(n)) << n;
  // Normal along (0, -4, 3) / 5: the sine of its angle from the vertical is 0.8.
  int const steep = QuadAt(model, {0, 0, 0}, {1, 0, 0}, {1, 3, 4}, {0, 3, 4});
  EXPECT_FALSE(model.ElemIsHorizontal(steep));
  Data::CSpec spec;
  spec.SetGenTol(TolType::Vertical, 0.8 + 1e-12);
  model.SetSpec(spec);
  EXPECT_TRUE(model.ElemIsHorizontal(steep));
}

TEST(EntTopo, ReadsElementsPanelsAndNodesAlike) {
  CZelData model;
  int const beam = BeamAt(model, {0, 0, 0}, {1, 0, 0});                 // nodes 1, 2
  int const panel = PanelAt(model, {{0, 0, 0}, {1, 0, 0}, {1, 1, 0}});  // nodes 3 to 5
  EXPECT_EQ(model.EntNumTopo({SelElement, beam}), 2);
  EXPECT_EQ(model.EntNumTopo({SelElement, panel}), 3);
  EXPECT_EQ(model.EntNumTopo({SelNode, 4}), 1);
  EXPECT_EQ(model.EntTopo({SelElement, beam}, 1), 2);
  EXPECT_EQ(model.EntTopo({SelElement, panel}, 2), 5);
  EXPECT_EQ(model.EntTopo({SelElement, panel}, 2, Data::CElement::kByTopology), 5);
  EXPECT_EQ(model.EntTopo({SelNode, 4}, 0), 4);
  EXPECT_EQ(model.EntTopo({SelNode, 4}, 1), 0);
}

TEST(EntTopo, IsZeroPastTheEndAndForWhatIsNotThere) {
  CZelData model;
  int const beam = BeamAt(model, {0, 0, 0}, {1, 0, 0});
  for (int const place : {2, -1, INT_MIN, INT_MAX})
    EXPECT_EQ(model.EntTopo({SelElement, beam}, place), 0);
  for (SEntRef const ref : {SEntRef(SelElement, 99), SEntRef(SelNode, 99), SEntRef(SelNode, 0),
                            SEntRef(SelCase, 1), SEntRef(SelNone, 1), SEntRef(SelOther, 1)}) {
    EXPECT_EQ(model.EntNumTopo(ref), 0);
    EXPECT_EQ(model.EntTopo(ref, 0), 0);
    EXPECT_EQ(model.EntCentre(ref), V());
    EXPECT_FALSE(model.EntIs1D(ref));
    EXPECT_FALSE(model.EntIs2D(ref));
  }
}

TEST(EntCentre, IsTheMeanOfTheNodesWithoutOffsets) {
  CZelData model;
  int const beam = BeamAt(model, {0, 0, 0}, {3, 0, 4});
  model.SetElemOffset(beam, {1, 2, 3, 4});
  EXPECT_EQ(model.EntCentre({SelElement, beam}), (V{1.5, 0, 2}));
  int const panel = PanelAt(model, {{0, 0, 3}, {3, 0, 3}, {0, 6, 3}});
  EXPECT_EQ(model.EntCentre({SelElement, panel}), (V{1, 2, 3}));
  EXPECT_EQ(model.EntCentre({SelNode, 2}), (V{3, 0, 4}));
}

TEST(EntCentre, TakesTheMidSideNodesTooAndLeavesOutMissingOnes) {
  CZelData model;
  int const n = ElementAt(model, ElementType::Tri6,
                          {{0, 0, 0}, {6, 0, 0}, {0, 6, 0}, {3, 0, 6}, {3, 3, 6}, {0, 3, 6}});
  EXPECT_EQ(model.EntCentre({SelElement, n}), (V{2, 2, 3}));  // (12, 12, 18) / 6
  model.BlankNode(4, 3);
  EXPECT_EQ(model.EntCentre({SelElement, n}), (V{2, 2, 0}));  // (6, 6, 0) / 3
  model.BlankNode(1, 3);
  EXPECT_EQ(model.EntCentre({SelElement, n}), V());
}

TEST(EntDimension, IsThatOfTheElementAndTwoForAPanel) {
  CZelData model;
  int const beam = BeamAt(model, {0, 0, 0}, {3, 0, 4});
  int const quad = QuadAt(model, {0, 0, 0}, {1, 0, 0}, {1, 1, 0}, {0, 1, 0});
  int const panel = PanelAt(model, {});
  int const brick = Brick(model, 1, 1, 1);
  auto const dimension = [&](SEntRef ref) {
    return std::string(model.EntIs1D(ref) ? "1" : "") + (model.EntIs2D(ref) ? "2" : "");
  };
  EXPECT_EQ(dimension({SelElement, beam}), "1");
  EXPECT_EQ(dimension({SelElement, quad}), "2");
  EXPECT_EQ(dimension({SelElement, panel}), "2");
  EXPECT_EQ(dimension({SelElement, brick}), "");
  EXPECT_EQ(dimension({SelNode, 1}), "");
}

TEST(Queries, FollowAChangeOfTheNodesAtOnce) {
  CZelData model;
  int const n = BeamAt(model, {0, 0, 0}, {3, 0, 4});
  model.rebuildHold = true;
  model.SetNodeCoor(2, {0, 0, 2});
  EXPECT_EQ(model.ElemLen(n), 2);
  EXPECT_TRUE(model.ElemIsVertical(n));
}

}  // namespace
}  // namespace Tarvex::EntityQueriesTest
