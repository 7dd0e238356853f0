#include "store/model/grid_queries.h"

#include <gtest/gtest.h>

#include <limits>
#include <numbers>

#include "store/geometry/axis_trans.h"
#include "store/model/undo_step.h"
#include "store/model/zel_data.h"
#include "store/record/alignment.h"
#include "store/record/grid_plane.h"
#include "store/record/grid_surface.h"
#include "tests/support/builders.h"
#include "tests/support/matchers.h"
#include "tests/support/print.h"

namespace Tarvex::GridQueriesTest {
namespace {

using Data::CAxis;
using Data::CEntList;
using Data::CGridPlane;
using Data::CGridSurface;
using Testing::IsNear;

constexpr double kQuarter = std::numbers::pi / 2;

void AddPlane(CZelData& model, int n, double elevation, bool storey = true, int axis = 0) {
  model.SetGridPlane(n, CGridPlane(L"", axis, elevation, storey));
}

void SetTolerance(CZelData& model, double tolerance) {
  auto spec = model.Spec();
  spec.SetGenTol(TolType::Coincidence, tolerance);
  model.SetSpec(spec);
}

/// Numbers of the planes of all storeys.
std::vector<int> Storeys(CZelData const& model) {
  std::vector<int> planes;
  for (int i = 1; i <= model.NumStorey(); ++i) planes.push_back(model.GridPlaneStorey(i));
  return planes;
}

// Storeys.

TEST(Storeys, AreThePlanesThatAreOneByElevation) {
  CZelData model;
  AddPlane(model, 2, 7);
  AddPlane(model, 5, 0);
  AddPlane(model, 6, 1, false);
  AddPlane(model, 900, -3);
  EXPECT_EQ(Storeys(model), (std::vector{900, 5, 2}));
  EXPECT_EQ(model.Storey(1).Elevation(), -3);
  EXPECT_EQ(model.Storey(3).Elevation(), 7);
  EXPECT_EQ(&model.Storey(2), &model.GridPlane(5));
}

TEST(Storeys, OfEqualElevationGoByPlaneNumber) {
  CZelData model;
  AddPlane(model, 8, 3);
  AddPlane(model, 3, 3);
  AddPlane(model, 70, 0);
  AddPlane(model, 4, -0.0);
  EXPECT_EQ(Storeys(model), (std::vector{4, 70, 3, 8}));
}

TEST(Storeys, GoByTheElevationInTheirAxisAlone) {
  CZelData model;
  model.SetAxis(1, CAxis(L"", AxisType::Cartesian, {0, 0, 100}, {1, 0, 0}, {0, 1, 0}));
  AddPlane(model, 1, 2, true, 1);
  AddPlane(model, 2, 3);
  EXPECT_EQ(Storeys(model), (std::vector{1, 2}));
}

TEST(Storeys, WithAnElevationThatIsNoNumberComeLast) {
  CZelData model;
  AddPlane(model, 1, std::numeric_limits<double>::quiet_NaN());
  AddPlane(model, 2, std::numeric_limits<double>::infinity());
  AddPlane(model, 3, 0);
  EXPECT_EQ(Storeys(model), (std::vector{3, 2, 1}));
}

TEST(Storeys, AnswerZeroWhereThereIsNone) {
  CZelData model;
  EXPECT_EQ(model.NumStorey(), 0);
  for (int const none : {-1, 0, 1}) EXPECT_EQ(model.GridPlaneStorey(none), 0);
  AddPlane(model, 7, 1);
  for (int const none : {std::numeric_limits<int>::min(), 0, 2, std::numeric_limits<int>::max()}) {
    EXPECT_EQ(model.GridPlaneStorey(none), 0);
    EXPECT_THROW(model.Storey(none), std::out_of_range);
  }
  EXPECT_EQ(Testing::OutOfRangeText([&] { model.Storey(2); }), "Storey 2 does not exist");
}

TEST(Storeys, FollowEveryChangeOfThePlanes) {
  CZelData model;
  AddPlane(model, 1, 0);
  AddPlane(model, 2, 3);
  EXPECT_EQ(Storeys(model), (std::vector{1, 2}));
  AddPlane(model, 1, 5);
  EXPECT_EQ(Storeys(model), (std::vector{2, 1}));
  AddPlane(model, 2, 3, false);
  EXPECT_EQ(Storeys(model), (std::vector{1}));
  AddPlane(model, 9, 1);
  EXPECT_EQ(Storeys(model), (std::vector{9, 1}));
  model.BlankGridPlane(9, 1);
  EXPECT_EQ(Storeys(model), (std::vector{1}));
  model.RemoveModule(CModule::GridPlane);
  EXPECT_EQ(model.NumStorey(), 0);
}

TEST(Storeys, AreRightDuringARebuildHoldAndBehindAnUndoneStep) {
  CZelData model;
  AddPlane(model, 1, 0);
  EXPECT_EQ(Storeys(model), (std::vector{1}));
  model.rebuildHold = true;
  {
    CUndoStep step(model, false);
    AddPlane(model, 2, -3);
    EXPECT_EQ(Storeys(model), (std::vector{2, 1}));
  }
  EXPECT_EQ(Storeys(model), (std::vector{1}));
  model.rebuildHold = false;
  CZelData const copy(model);
  AddPlane(model, 3, 4);
  EXPECT_EQ(Storeys(model), (std::vector{1, 3}));
  EXPECT_EQ(Storeys(copy), (std::vector{1}));
}

TEST(StoreyName, IsTheWordWithTheNumber) {
  EXPECT_EQ(CZelData::StoreyName(1), L"Storey 1");
  EXPECT_EQ(CZelData().StoreyName(-12), L"Storey -12");
}

TEST(ConsGridRef, IsThePlaneOfTheSpecification) {
  CZelData model;
  EXPECT_EQ(model.ConsGridRef(), 0);
  auto spec = model.Spec();
  spec.SetConsGridRef(6);
  model.SetSpec(spec);
  EXPECT_EQ(model.ConsGridRef(), 6);
}

// Axes of planes.

TEST(GridPlaneGridAxis, IsTheAxisMovedToTheElevation) {
  CZelData model;
  model.SetAxis(4, CAxis(L"yard", AxisType::Cartesian, {1, 2, 3}, {0, 1, 0}, {-1, 0, 0}));
  AddPlane(model, 7, 10, false, 4);
  auto const axis = model.GridPlaneGridAxis(7, 0);
  EXPECT_EQ(axis.Origin(), (Vec3<double>{1, 2, 13}));
  EXPECT_EQ(axis.XAxis(), (Vec3<double>{0, 1, 0}));
  EXPECT_EQ(axis.Name(), L"yard");
  EXPECT_EQ(axis.Type(), AxisType::Cartesian);
}

TEST(GridPlaneGridAxis, MovesAlongTheNormalOfATiltedPlane) {
  // x = (0.6, 0, 0.8), y = Y, so z = x cross y = (-0.8, 0, 0.6). 5 along it from (1, 1, 1) lead to
  // (1 - 4, 1, 1 + 3).
  CZelData model;
  model.SetAxis(1, CAxis(L"", AxisType::Cartesian, {1, 1, 1}, {3, 0, 4}, {0, 1, 0}));
  AddPlane(model, 1, 5, false, 1);
  EXPECT_TRUE(IsNear(model.GridPlaneGridAxis(1).Origin(), {-3, 1, 4}));
}

TEST(GridPlaneGridAxis, KeepsTheTypeForATransform) {
  // 10 above the origin of a cylindrical axis, (0, 3, 12) stands at radius 3, angle 90 degrees,
  // level 2.
  CZelData model;
  model.SetAxis(2, CAxis(L"", AxisType::Cylindrical, {0, 0, 0}, {1, 0, 0}, {0, 1, 0}));
  AddPlane(model, 3, 10, false, 2);
  Util::CAxisTrans const trans(model.GridPlaneGridAxis(3, 0));
  EXPECT_TRUE(IsNear(trans.Global2User({0, 3, 12}), {3, kQuarter, 2}));
}

TEST(GridPlaneGridAxis, IsTheGlobalAxisForAGlobalPlaneAndForWhatIsMissing) {
  CZelData model;
  AddPlane(model, 1, 4);
  EXPECT_EQ(model.GridPlaneGridAxis(1).Origin(), (Vec3<double>{0, 0, 4}));
  EXPECT_EQ(model.GridPlaneGridAxis(0), CAxis());
  EXPECT_EQ(model.GridPlaneGridAxis(2), CAxis());
  AddPlane(model, 3, 4, false, 99);
  EXPECT_EQ(model.GridPlaneGridAxis(3), CAxis());
}

// Membership of planes.

TEST(EntIsInGridPlane, CountsANodeAtTheToleranceOnEitherSide) {
  CZelData model;
  SetTolerance(model, 0.25);
  AddPlane(model, 1, 3);
  struct Row {
    double z;
    bool in;
  };
  for (auto const& [z, in] : {Row{3, true},
                              {3.25, true},
                              {2.75, true},
                              {3.2500001, false},
                              {2.7499999, false},
                              {-3, false}}) {
    int const node = Testing::NodeAt(model, 100, -100, z);
    EXPECT_EQ(model.EntIsInGridPlane({SelNode, node}, 1), in) << z;
  }
}

TEST(EntIsInGridPlane, MeasuresAtARightAngleToATiltedPlane) {
  // The plane through the origin with normal (-0.8, 0, 0.6): (3, 7, 4) lies in it, for
  // -0.8 * 3 + 0.6 * 4 = 0; (3, 7, 5) is 0.6 away. At elevation 0.6 it is the other way about.
  CZelData model;
  SetTolerance(model, 0.5);
  model.SetAxis(1, CAxis(L"", AxisType::Cartesian, {}, {3, 0, 4}, {0, 1, 0}));
  AddPlane(model, 1, 0, false, 1);
  AddPlane(model, 2, 0.6, false, 1);
  SEntRef const in(SelNode, Testing::NodeAt(model, 3, 7, 4));
  SEntRef const above(SelNode, Testing::NodeAt(model, 3, 7, 5));
  EXPECT_TRUE(model.EntIsInGridPlane(in, 1));
  EXPECT_FALSE(model.EntIsInGridPlane(above, 1));
  EXPECT_FALSE(model.EntIsInGridPlane(in, 2));
  EXPECT_TRUE(model.EntIsInGridPlane(above, 2));
}

TEST(EntIsInGridPlane, TakesThePlaneAcrossTheAxisOfACylinder) {
  CZelData model;
  model.SetAxis(1, CAxis(L"", AxisType::Cylindrical, {5, 0, 0}, {0, 1, 0}, {0, 0, 1}));  // z = X
  AddPlane(model, 1, 2, false, 1);
  EXPECT_TRUE(model.EntIsInGridPlane({SelNode, Testing::NodeAt(model, 7, 30, -4)}, 1));
  EXPECT_FALSE(model.EntIsInGridPlane({SelNode, Testing::NodeAt(model, 2, 0, 0)}, 1));
}

TEST(EntIsInGridPlane, AsksForAllNodesOfAnEntity) {
  CZelData model;
  AddPlane(model, 1, 0);
  int const level = Testing::BeamAt(model, {0, 0, 0}, {4, 0, 0});
  int const column = Testing::BeamAt(model, {0, 0, 0}, {0, 0, 3});
  int const above = Testing::BeamAt(model, {0, 0, 3}, {4, 0, 3});
  int const panel = Testing::PanelAt(model, {{0, 0, 0}, {1, 0, 0}, {1, 1, 0}});
  EXPECT_TRUE(model.ElemIsInGridPlane(level, 1));
  EXPECT_FALSE(model.ElemIsInGridPlane(column, 1));
  EXPECT_FALSE(model.ElemIsInGridPlane(above, 1));
  EXPECT_TRUE(model.ElemIsInGridPlane(panel, 1));
  EXPECT_TRUE(model.EntIsInGridPlane({SelElement, level}, 1));
}

TEST(EntIsInGridPlane, LeavesOffsetsAside) {
  CZelData model;
  AddPlane(model, 1, 0);
  int const beam = Testing::BeamAt(model, {0, 0, 0}, {4, 0, 0});
  model.SetElemOffset(beam, Data::COffset(0, 0, 0, 2));
  EXPECT_TRUE(model.ElemIsInGridPlane(beam, 1));
}

TEST(EntIsInGridPlane, IsFalseForWhatDoesNotExist) {
  CZelData model;
  AddPlane(model, 1, 0);
  AddPlane(model, 2, 0, false, 9);  // of an axis that there is not
  int const beam = Testing::BeamAt(model, {0, 0, 0}, {4, 0, 0});
  EXPECT_TRUE(model.ElemIsInGridPlane(beam, 1));
  for (int const plane : {0, 2, 3, -1}) EXPECT_FALSE(model.ElemIsInGridPlane(beam, plane));
  EXPECT_FALSE(model.ElemIsInGridPlane(99, 1));
  EXPECT_FALSE(model.EntIsInGridPlane({SelNode, 99}, 1));
  EXPECT_FALSE(model.EntIsInGridPlane({SelNone, beam}, 1));
  EXPECT_FALSE(model.EntIsInGridPlane({SelMember, 1}, 1));
}

TEST(EntIsInGridPlane, PassesOverPlacesWithoutANodeAndFailsAtAMissingOne) {
  CZelData model;
  AddPlane(model, 1, 0);
  int const node = Testing::NodeAt(model, 1, 1, 0);
  model.SetElem(1, Testing::Element(ElementType::Beam, {node, 0}));
  model.SetElem(2, Testing::Element(ElementType::Beam, {node, 77}));
  model.SetElem(3, Testing::Element(ElementType::Beam, {0, 0}));
  EXPECT_TRUE(model.ElemIsInGridPlane(1, 1));
  EXPECT_FALSE(model.ElemIsInGridPlane(2, 1));
  EXPECT_FALSE(model.ElemIsInGridPlane(3, 1));
}

// Membership of surfaces.

/// Four level quadrilaterals (1 to 4, on nodes 1 to 9) in plane 1, and surface 5 of elements 1
/// and 2.
CZelData Floor() {
  CZelData model;
  Testing::Grid(model, 2, 2);
  AddPlane(model, 1, 0);
  model.SetGridSurface(
      5, CGridSurface(L"", 1, CEntList(SelElement, L"1 2"), GridElementType::Plates), true);
  return model;
}

TEST(EntIsInGridSurface, AsksForPlaneAndList) {
  auto model = Floor();
  EXPECT_TRUE(model.EntIsInGridSurface({SelElement, 1}, 5));
  EXPECT_TRUE(model.EntIsInGridSurface({SelElement, 2}, 5));
  EXPECT_FALSE(model.EntIsInGridSurface({SelElement, 3}, 5));
  model.SetNodeCoor(1, {0, 0, 1});  // of element 1 alone
  EXPECT_FALSE(model.EntIsInGridSurface({SelElement, 1}, 5));
  EXPECT_TRUE(model.EntIsInGridSurface({SelElement, 2}, 5));
}

TEST(NodeIsInGridSurface, AsksThatAListedElementHasTheNode) {
  auto const model = Floor();
  // Rows of three nodes: 1 to 3 below, 4 to 6 between, 7 to 9 above the four squares.
  for (int node = 1; node <= 6; ++node) EXPECT_TRUE(model.NodeIsInGridSurface(node, 5)) << node;
  for (int node = 7; node <= 9; ++node) EXPECT_FALSE(model.NodeIsInGridSurface(node, 5)) << node;
}

TEST(NodeIsInGridSurface, TakesTheNodesThatLieInThePlane) {
  auto model = Floor();
  int const node = Testing::NodeAt(model, 0, 0, 3);
  model.SetElem(8, Testing::Element(ElementType::Beam, {1, node}));
  model.SetGridSurface(6, CGridSurface(L"", 1, CEntList(SelElement, L"8"), GridElementType::Lines),
                       true);
  EXPECT_TRUE(model.NodeIsInGridSurface(1, 6));  // the column's foot
  EXPECT_FALSE(model.NodeIsInGridSurface(node, 6));
  EXPECT_FALSE(model.EntIsInGridSurface({SelElement, 8}, 6));
}

TEST(EntIsInGridSurface, AsksOfAMemberThatAllItsNodesAreNodesOfTheSurface) {
  auto model = Floor();
  SEntRef const edge(SelMember, Testing::MemberAt(model, MembType::Beam, L"1 3"));
  SEntRef const across(SelMember, Testing::MemberAt(model, MembType::Beam, L"1 7"));
  EXPECT_TRUE(model.EntIsInGridPlane(edge, 1));
  EXPECT_TRUE(model.EntIsInGridPlane(across, 1));
  EXPECT_TRUE(model.EntIsInGridSurface(edge, 5));
  EXPECT_FALSE(model.EntIsInGridSurface(across, 5));
  model.SetNodeCoor(3, {2, 0, 1});
  EXPECT_FALSE(model.EntIsInGridPlane(edge, 1));
}

TEST(EntIsInGridSurface, CountsLoadPanelsAsNoElementsOfASurface) {
  auto model = Floor();
  model.SetLoadPanel(9, Testing::Panel({7, 8, 9}));
  model.SetGridSurface(
      5, CGridSurface(L"", 1, CEntList(SelElement, L"1 9"), GridElementType::Lines), true);
  EXPECT_FALSE(model.EntIsInGridSurface({SelElement, 9}, 5));
  EXPECT_FALSE(model.NodeIsInGridSurface(7, 5));
}

TEST(EntIsInGridSurface, IsFalseForWhatDoesNotExist) {
  auto model = Floor();
  for (int const surface : {0, 4, -1}) {
    EXPECT_FALSE(model.EntIsInGridSurface({SelElement, 1}, surface));
    EXPECT_FALSE(model.NodeIsInGridSurface(1, surface));
  }
  model.SetGridSurface(7, CGridSurface());  // of plane 0
  EXPECT_FALSE(model.NodeIsInGridSurface(1, 7));
  EXPECT_FALSE(model.NodeIsInGridSurface(99, 5));
  model.SetGridSurface(
      5, CGridSurface(L"", 1, CEntList(SelElement, L"1 2 77"), GridElementType::Plates));
  EXPECT_FALSE(model.EntIsInGridSurface({SelElement, 77}, 5));
  model.BlankGridPlane(1, 1);
  EXPECT_FALSE(model.NodeIsInGridSurface(1, 5));
}

// Panels.

TEST(PanelNormal, FollowsTheWayRoundOfThePanel) {
  CZelData model;
  Testing::Grid(model, 1, 1);  // nodes 1 (0, 0), 2 (1, 0), 3 (0, 1), 4 (1, 1)
  CGridSurface const surface;
  Data::PanelAccess::Set(surface, {Data::CPanel({1, 2, 4, 3}), Data::CPanel({3, 4, 2, 1}),
                                   Data::CPanel({1, 2}), Data::CPanel({1, 2, 88})});
  EXPECT_EQ(model.PanelNormal(surface, 0), (Vec3<double>{0, 0, 1}));
  EXPECT_EQ(model.PanelNormal(surface, 1), (Vec3<double>{0, 0, -1}));
  for (int const none : {2, 3, 4, -1})
    EXPECT_EQ(model.PanelNormal(surface, none), Vec3<double>()) << none;
  model.SetNodeCoor(3, {0, 0, 1});
  model.SetNodeCoor(4, {1, 0, 1});  // upright: x cross z = -y
  EXPECT_EQ(model.PanelNormal(surface, 0), (Vec3<double>{0, -1, 0}));
  EXPECT_EQ(model.PanelNormal(CGridSurface(), 0), Vec3<double>());
}

// Alignments.

void ExpectFrame(Util::CDirCos const& frame, Vec3<double> const& x, Vec3<double> const& y) {
  EXPECT_TRUE(IsNear(frame.AxisVec(Direction::X), x));
  EXPECT_TRUE(IsNear(frame.AxisVec(Direction::Y), y));
}

TEST(Alignments, LieInTheGlobalPlaneWithoutASurface) {
  CZelData model;
  model.SetAlignment(3, Data::CAlignment(L"", 0, {{0, 0.1}}));
  EXPECT_TRUE(IsNear(model.AlignmentPoint(3, 10 * kQuarter), {10, 10, 0}));
  ExpectFrame(model.AlignmentDC(3, 10 * kQuarter), {0, 1, 0}, {-1, 0, 0});
  EXPECT_TRUE(IsNear(model.AlignmentPoint(3, 0), {0, 0, 0}));
  ExpectFrame(model.AlignmentDC(3, 0), {1, 0, 0}, {0, 1, 0});
}

TEST(Alignments, LieInThePlaneOfTheirSurface) {
  // Axis at (100, 0, 0) with x along Y and y along Z, so z along X; plane 2 above it, at X = 102.
  // A quarter to the right of radius 4 goes from Y towards -Z: to Y = 4, Z = -4.
  CZelData model;
  model.SetAxis(1, CAxis(L"", AxisType::Cartesian, {100, 0, 0}, {0, 1, 0}, {0, 0, 1}));
  AddPlane(model, 6, 2, false, 1);
  CGridSurface surface;
  surface.SetPlane(6);
  model.SetGridSurface(4, surface);
  model.SetAlignment(1, Data::CAlignment(L"", 4, {{50, 0}, {60, -0.25}}));
  EXPECT_TRUE(IsNear(model.AlignmentPoint(1, 50), {102, 0, 0}));
  EXPECT_TRUE(IsNear(model.AlignmentPoint(1, 57), {102, 7, 0}));
  ExpectFrame(model.AlignmentDC(1, 57), {0, 1, 0}, {0, 0, 1});
  EXPECT_TRUE(IsNear(model.AlignmentPoint(1, 60 + 4 * kQuarter), {102, 14, -4}));
  ExpectFrame(model.AlignmentDC(1, 60 + 4 * kQuarter), {0, 0, -1}, {0, 1, 0});
  EXPECT_TRUE(IsNear(model.AlignmentDC(1, 60).AxisVec(Direction::Z), {1, 0, 0}));
}

TEST(Alignments, ThatAreMissingGiveTheOriginAndTheGlobalFrame) {
  CZelData model;
  for (int const none : {-1, 0, 1}) {
    EXPECT_EQ(model.AlignmentPoint(none, 7), Vec3<double>());
    EXPECT_EQ(model.AlignmentDC(none, 7), Util::CDirCos());
  }
  model.SetAlignment(1, Data::CAlignment(L"", 99, {}));  // whose surface there is not
  EXPECT_EQ(model.AlignmentPoint(1, 7), (Vec3<double>{7, 0, 0}));
}

}  // namespace
}  // namespace Tarvex::GridQueriesTest
