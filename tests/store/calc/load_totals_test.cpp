#include "store/calc/load_totals.h"

#include <gtest/gtest.h>

#include <cmath>

#include "store/calc/element_mass.h"
#include "store/model/zel_data.h"
#include "store/record/axis.h"
#include "store/record/beam_loads.h"
#include "store/record/body_loads.h"
#include "store/record/face_loads.h"
#include "store/record/grid_loads.h"
#include "store/record/grid_plane.h"
#include "store/record/grid_surface.h"
#include "store/record/load_panel.h"
#include "store/record/mass_prop.h"
#include "store/record/mat_anal.h"
#include "store/record/member.h"
#include "store/record/node.h"
#include "store/record/node_load.h"
#include "store/record/polyline.h"
#include "store/record/prop_2d.h"
#include "tests/support/builders.h"
#include "tests/support/matchers.h"

namespace Tarvex::LoadTotalsTest {
namespace {

using Data::CEntList;
using V = Vec3<double>;
using LoadType = Data::CBeamLoad::LoadType;

CEntList Elements(CString const& text = L"all") { return {SelElement, text}; }
CEntList Members(CString const& text = L"all") { return {SelMember, text}; }

/// Expects that load case 1 comes to a force and a moment about the origin, and that all is in it.
void ExpectTotal(CZelData const& model, V const& force, V const& moment) {
  auto const totals = SumLoads(model);
  ASSERT_TRUE(totals.byCase.contains(1));
  EXPECT_TRUE(Testing::IsNear(totals.byCase.at(1).force, force, 1e-10));
  EXPECT_TRUE(Testing::IsNear(totals.byCase.at(1).moment, moment, 1e-10));
  EXPECT_TRUE(totals.uncounted.empty());
}

/// Expects that a load of a table is not wholly counted.
void ExpectUncounted(CZelData const& model, std::string_view table, std::string_view why) {
  auto const totals = SumLoads(model);
  ASSERT_EQ(totals.uncounted.size(), 1U);
  EXPECT_EQ(totals.uncounted[0].table, table);
  EXPECT_EQ(totals.uncounted[0].number, 1);
  EXPECT_EQ(totals.uncounted[0].why, why);
}

// Nodes.

void AddNodeLoad(CZelData& model, CString const& nodes, Direction direction, double value,
                 int axis = 0, int loadCase = 1) {
  model.SetNodeLoad(
      model.HighestNodeLoad() + 1,
      Data::CNodeLoad({SelNode, nodes}, loadCase, axis, direction, value, CModule::NodeLoad));
}

TEST(SumLoads, OfNodesTakesForcesAtTheirPoints) {
  CZelData model;
  Testing::NodeAt(model, 2, 0, 0);
  Testing::NodeAt(model, 0, 3, 0);
  AddNodeLoad(model, L"1 2", Direction::Z, -10);
  AddNodeLoad(model, L"2", Direction::X, 4);
  // Moments: (0, 3, 0) x (4, 0, -10) and (2, 0, 0) x (0, 0, -10).
  ExpectTotal(model, {4, 0, -20}, {-30, 20, -12});
}

TEST(SumLoads, OfNodesTakesMoments) {
  CZelData model;
  Testing::NodeAt(model, 2, 0, 0);
  AddNodeLoad(model, L"1", Direction::YY, 7);
  ExpectTotal(model, {}, {0, 7, 0});
}

TEST(SumLoads, GoesByTheAxisOfTheLoadAtEachPoint) {
  CZelData model;
  Testing::NodeAt(model, 2, 0, 0);
  Testing::NodeAt(model, 0, 2, 0);
  model.SetAxis(3, Data::CAxis(L"", AxisType::Cylindrical, {}, {1, 0, 0}, {0, 1, 0}));
  AddNodeLoad(model, L"1 2", Direction::X, 5, 3);
  ExpectTotal(model, {5, 5, 0}, {});
  model.SetAxis(3, Data::CAxis(L"", AxisType::Cartesian, {9, 9, 9}, {0, 0, 1}, {1, 0, 0}));
  ExpectTotal(model, {0, 0, 10}, {10, -10, 0});  // (2, 2, 0) x (0, 0, 5)
}

TEST(SumLoads, KeepsCasesApartAndLeavesCaseZeroOut) {
  CZelData model;
  Testing::NodeAt(model, 0, 0, 0);
  AddNodeLoad(model, L"1", Direction::Z, 1);
  AddNodeLoad(model, L"1", Direction::Z, 2, 0, 5);
  AddNodeLoad(model, L"1", Direction::Z, 4, 0, 0);
  auto const totals = SumLoads(model);
  ASSERT_EQ(totals.byCase.size(), 2U);
  EXPECT_EQ(totals.byCase.at(1).force.z, 1);
  EXPECT_EQ(totals.byCase.at(5).force.z, 2);
}

TEST(SumLoads, TellsALoadWhoseAxisIsMissing) {
  CZelData model;
  Testing::NodeAt(model, 0, 0, 0);
  AddNodeLoad(model, L"1", Direction::Z, 1, 7);
  ExpectUncounted(model, "NodeLoad", "its axis does not exist");
}

// Lines.

Data::CBeamLoad BeamLoad(CEntList const& on, LoadType type, double v0, double v1 = 0, double p0 = 0,
                         double p1 = 0) {
  Data::CBeamLoad load;
  load.SetLoadCase(1);
  load.SetLoadedEntities(on);
  load.SetType(type);
  load.SetValue(0, v0);
  load.SetValue(1, v1);
  load.SetPos(0, p0);
  load.SetPos(1, p1);
  return load;
}

/// A beam along x from 1 to 7 at y = 2, with a load along z.
CZelData BeamWith(Data::CBeamLoad const& load) {
  CZelData model;
  Testing::BeamAt(model, {1, 2, 0}, {7, 2, 0});
  model.SetBeamLoad(1, load);
  return model;
}

/// Expects a force along z at a distance x from the origin and y = 2.
void ExpectAlongZ(Data::CBeamLoad const& load, double force, double x) {
  ExpectTotal(BeamWith(load), {0, 0, force}, {2 * force, -x * force, 0});
}

TEST(SumLoads, OfLinesTakesPointLoadsAtTheirPosition) {
  ExpectAlongZ(BeamLoad(Elements(), LoadType::Point, 10, 0, 4.5), 10, 5.5);
  ExpectAlongZ(BeamLoad(Elements(), LoadType::Point, 10, 0, -0.25), 10, 2.5);
  ExpectAlongZ(BeamLoad(Elements(), LoadType::Point, 10, 0, -1.0), 10, 7);
}

TEST(SumLoads, OfLinesSpreadsUniformAndLinearLoads) {
  ExpectAlongZ(BeamLoad(Elements(), LoadType::Uniform, 5), 30, 4);
  // A triangle from 0 to 3 over 6: 9 at two thirds.
  ExpectAlongZ(BeamLoad(Elements(), LoadType::Linear, 0, 3), 9, 5);
  // 2 to 8: 30, at 6 / 3 * (2 + 2 * 8) / (2 + 8) = 3.6 from end 1.
  ExpectAlongZ(BeamLoad(Elements(), LoadType::Linear, 2, 8), 30, 4.6);
}

TEST(SumLoads, OfLinesSpreadsPatches) {
  ExpectAlongZ(BeamLoad(Elements(), LoadType::Patch, 4, 4, 1, 3), 8, 3);
  ExpectAlongZ(BeamLoad(Elements(), LoadType::Patch, 4, 4, 3, -1.0), 12, 5.5);
  ExpectAlongZ(BeamLoad(Elements(), LoadType::Patch, 0, 6, 0, 3), 9, 3);
}

TEST(SumLoads, OfLinesSpreadsTrilinearLoads) {
  // 0 to 4 over the first 2, 4 to 8 over the next one, 8 to 0 over the last 3: 4 at 4 / 3; 6 at
  // 2 + 5 / 9; 12 at 4.
  double const force = 4 + 6 + 12;
  double const lever = (4 * (4.0 / 3) + 6 * (2 + 5.0 / 9) + 12 * 4) / force;
  ExpectAlongZ(BeamLoad(Elements(), LoadType::Trilinear, 4, 8, 2, 3), force, 1 + lever);
}

TEST(SumLoads, OfLinesTakesDistributedMoments) {
  auto load = BeamLoad(Elements(), LoadType::Uniform, 5);
  load.SetDirection(Direction::XX);
  ExpectTotal(BeamWith(load), {}, {30, 0, 0});
}

TEST(SumLoads, OfLinesGoesFromOffsetEndToOffsetEnd) {
  auto model = BeamWith(BeamLoad(Elements(), LoadType::Uniform, 5));
  model.SetElemOffset(1, Data::COffset(1, 2, 0.5, 0));  // from (2, 2.5) to (5, 2.5)
  ExpectTotal(model, {0, 0, 15}, {2.5 * 15, -3.5 * 15, 0});
}

TEST(SumLoads, OfLinesCountsTheProjectionWhereAsked) {
  CZelData model;
  Testing::BeamAt(model, {0, 0, 0}, {3, 0, 4});
  auto load = BeamLoad(Elements(), LoadType::Uniform, -10);
  load.SetIsProjected(true);
  model.SetBeamLoad(1, load);
  ExpectTotal(model, {0, 0, -30}, {0, 45, 0});
}

TEST(SumLoads, OfLinesPassesOverOtherElements) {
  auto model = BeamWith(BeamLoad(Elements(), LoadType::Uniform, 5));
  Testing::QuadAt(model, {0, 0, 0}, {1, 0, 0}, {1, 1, 0}, {0, 1, 0});
  ExpectTotal(model, {0, 0, 30}, {60, -120, 0});
}

TEST(SumLoads, TellsPositionsThatAreNotOnTheLine) {
  ExpectUncounted(BeamWith(BeamLoad(Elements(), LoadType::Point, 1, 0, 6.1)), "BeamLoad",
                  "its position is beyond the end");
  ExpectUncounted(BeamWith(BeamLoad(Elements(), LoadType::Patch, 1, 1, 3, 2)), "BeamLoad",
                  "its positions are beyond the end or out of order");
  ExpectUncounted(BeamWith(BeamLoad(Elements(), LoadType::Patch, 1, 1, 3, 7)), "BeamLoad",
                  "its positions are beyond the end or out of order");
}

TEST(SumLoads, TellsALineThatLacksANode) {
  auto model = BeamWith(BeamLoad(Elements(), LoadType::Uniform, 5));
  model.BlankNode(2, 1);
  ExpectUncounted(model, "BeamLoad", "a line lacks a node");
}

TEST(SumLoads, OfMembersGoesAlongTheirNodes) {
  CZelData model;
  Testing::NodeAt(model, 0, 0, 0);
  Testing::NodeAt(model, 4, 0, 0);
  Testing::NodeAt(model, 4, 6, 0);
  Data::CMember member(1, 1);
  member.SetType(MembType::Beam);
  member.SetTopo(CString(L"1 2 3"));
  model.SetMember(1, member);
  model.SetBeamLoad(1, BeamLoad(Members(), LoadType::Uniform, 1));
  // 4 at (2, 0) and 6 at (4, 3).
  ExpectTotal(model, {0, 0, 10}, {18, -(8 + 24), 0});
}

TEST(SumLoads, OfMembersGoesRoundArcs) {
  // Half a circle of radius 2 from (2, 0) by (0, 2) to (-2, 0).
  CZelData model;
  Testing::NodeAt(model, 2, 0, 0);
  Testing::NodeAt(model, 0, 2, 0);
  Testing::NodeAt(model, -2, 0, 0);
  Testing::MemberAt(model, MembType::Beam, L"1 arc 2 3");
  ASSERT_NE(model.Member(1).Geometry(), MembGeom::Line);
  model.SetBeamLoad(1, BeamLoad(Members(), LoadType::Uniform, 1));
  // Length 2 pi; the centroid of the line stands 2 r / pi above the diameter.
  ExpectTotal(model, {0, 0, 2 * kPi}, {2 * kPi * 4 / kPi, 0, 0});
}

TEST(SumLoads, OfPrestressKinksAndTemperatureIsNothing) {
  CZelData model;
  Testing::BeamAt(model, {0, 0, 0}, {1, 0, 0});
  Data::CAxialLoad prestress;
  prestress.SetLoadCase(1);
  prestress.SetLoadedEntities(Elements());
  prestress.SetValue(5);
  model.SetAxialLoad(1, prestress);
  Data::CBeamThermalLoad warming;
  warming.SetLoadCase(2);
  model.SetBeamThermalLoad(1, warming);
  Data::CFaceThermalLoad face;
  face.SetLoadCase(3);
  model.SetFaceThermalLoad(1, face);
  model.SetSettlement(1,
                      Data::CNodeLoad({SelNode, L"1"}, 4, 0, Direction::Z, 1, CModule::Settlement));
  auto const totals = SumLoads(model);
  ASSERT_EQ(totals.byCase.size(), 4U);
  for (auto const& [loadCase, total] : totals.byCase) {
    EXPECT_EQ(total.force, V{});
    EXPECT_EQ(total.moment, V{});
  }
}

// Plates.

Data::CFaceLoad FaceLoad(Data::CFaceLoad::Load2D type, std::array<double, 4> values,
                         CEntList const& on = Elements()) {
  Data::CFaceLoad load;
  load.SetLoadCase(1);
  load.SetLoadedEntities(on);
  load.SetType(type);
  for (int i = 0; i < 4; ++i) load.SetValue(i, values[static_cast<std::size_t>(i)]);
  return load;
}
using Load2D = Data::CFaceLoad::Load2D;

TEST(SumLoads, OfFacesSpreadsUniformPressure) {
  CZelData model;
  Testing::Grid(model, 3, 2);
  model.SetFaceLoad(1, FaceLoad(Load2D::Uniform, {-2, 9, 9, 9}));
  ExpectTotal(model, {0, 0, -12}, {-12, 18, 0});
}

TEST(SumLoads, OfFacesSpreadsPressureByCorner) {
  // On a unit square 0, 0, 6, 6: 3, at a third from the loaded side.
  CZelData model;
  Testing::Grid(model, 1, 1);
  model.SetFaceLoad(1, FaceLoad(Load2D::PerCorner, {0, 0, 6, 6}));
  ExpectTotal(model, {0, 0, 3}, {2, -1.5, 0});
}

TEST(SumLoads, OfFacesSpreadsPressureByCornerOnTriangles) {
  // Legs of 3: area 4.5; 6 at corner 2 alone: 4.5 * 6 / 3, at (0.75, 1.5).
  CZelData model;
  Testing::ElementAt(model, ElementType::Tri3, {{0, 0, 0}, {3, 0, 0}, {0, 3, 0}});
  model.SetFaceLoad(1, FaceLoad(Load2D::PerCorner, {0, 0, 6, 0}));
  ExpectTotal(model, {0, 0, 9}, {13.5, -6.75, 0});
}

TEST(SumLoads, OfFacesTakesPointsAtTheirNaturalPosition) {
  CZelData model;
  Testing::QuadAt(model, {0, 0, 0}, {4, 0, 0}, {4, 2, 0}, {0, 2, 0});
  auto load = FaceLoad(Load2D::Point, {7, 0, 0, 0});
  load.SetPosition({0.5, -0.5});  // at (3, 0.5)
  model.SetFaceLoad(1, load);
  ExpectTotal(model, {0, 0, 7}, {3.5, -21, 0});
  load.SetPosition({1.5, 0});
  model.SetFaceLoad(1, load);
  ExpectUncounted(model, "FaceLoad", "its position is not on an element");
}

TEST(SumLoads, OfFacesCountsTheProjectionWhereAsked) {
  // A roof 3 by 1 in plan, 4 high: area 5.
  CZelData model;
  Testing::QuadAt(model, {0, 0, 0}, {3, 0, 4}, {3, 1, 4}, {0, 1, 0});
  model.SetFaceLoad(1, FaceLoad(Load2D::Uniform, {-1, 0, 0, 0}));
  ExpectTotal(model, {0, 0, -5}, {-2.5, 7.5, 0});
  auto load = model.FaceLoad(1);
  load.SetIsProjected(true);
  model.SetFaceLoad(1, load);
  ExpectTotal(model, {0, 0, -3}, {-1.5, 4.5, 0});
}

TEST(SumLoads, OfFacesLiesOnTheOffsetPlane) {
  CZelData model;
  Testing::Grid(model, 1, 1);
  model.SetElemOffset(1, Data::COffset(0, 0, 0, 0.5));
  auto load = FaceLoad(Load2D::Uniform, {2, 0, 0, 0});
  load.SetDirection(Direction::X);
  model.SetFaceLoad(1, load);
  ExpectTotal(model, {2, 0, 0}, {0, 1, -1});
}

TEST(SumLoads, OfFacesCountsLoadPanelsOfAnyOutline) {
  // An L of 2 by 2 less a corner of 1 by 1: area 3, centroid at 2.5 / 3.
  CZelData model;
  Testing::PanelAt(model, {{0, 0, 0}, {2, 0, 0}, {2, 1, 0}, {1, 1, 0}, {1, 2, 0}, {0, 2, 0}});
  model.SetFaceLoad(1, FaceLoad(Load2D::Uniform, {4, 0, 0, 0}));
  ExpectTotal(model, {0, 0, 12}, {10, -10, 0});
  model.SetFaceLoad(1, FaceLoad(Load2D::PerCorner, {1, 1, 1, 1}));
  ExpectUncounted(model, "FaceLoad", "a panel has more corners than the load has values");
}

TEST(SumLoads, OfFacesActsOnTheElementsOfMembers) {
  CZelData model;
  Testing::Grid(model, 2, 1);
  Testing::MemberAt(model, MembType::Slab, L"1 3 6 4");
  model.SetFaceLoad(1, FaceLoad(Load2D::Uniform, {1, 0, 0, 0}, Members()));
  ExpectUncounted(model, "FaceLoad", "its members have no elements");
  model.AddChildElement(1, 2, 0);
  ExpectTotal(model, {0, 0, 1}, {0.5, -1.5, 0});
}

TEST(SumLoads, TellsAPlateThatLacksANode) {
  CZelData model;
  Testing::Grid(model, 1, 1);
  model.SetFaceLoad(1, FaceLoad(Load2D::Uniform, {1, 0, 0, 0}));
  model.BlankNode(4, 1);
  ExpectUncounted(model, "FaceLoad", "a surface lacks a node");
}

Data::CEdgeLoad EdgeLoad(int edge, double v0, double v1) {
  Data::CEdgeLoad load;
  load.SetLoadCase(1);
  load.SetLoadedEntities(Elements());
  load.SetDirection(Direction::Z);
  load.SetEdge(edge);
  load.SetValue(0, v0);
  load.SetValue(1, v1);
  return load;
}

TEST(SumLoads, OfEdgesRunsFromCornerToCorner) {
  CZelData model;
  Testing::QuadAt(model, {0, 0, 0}, {3, 0, 0}, {3, 2, 0}, {0, 2, 0});
  model.SetEdgeLoad(1, EdgeLoad(1, 0, 4));  // 6 at (2, 0)
  ExpectTotal(model, {0, 0, 6}, {0, -12, 0});
  model.SetEdgeLoad(1, EdgeLoad(4, 3, 3));  // from (0, 2) to (0, 0)
  ExpectTotal(model, {0, 0, 6}, {6, 0, 0});
  model.SetEdgeLoad(1, EdgeLoad(5, 3, 3));
  ExpectUncounted(model, "EdgeLoad", "an element has no such edge");
}

TEST(SumLoads, OfEdgesIsNotWorkedOutWithoutTheNodesOfTheType) {
  for (auto const& nodes : {std::vector<int>{1, 2}, {1, 2, 3}, {1, 2, 3, 4, 5}}) {
    CZelData model;
    for (int i = 0; i < 5; ++i) Testing::NodeAt(model, i, i % 2, 0);
    auto plate = Testing::Element(ElementType::Quad4, {1, 2, 3, 4});
    plate.SetTopology(nodes);
    model.SetElem(1, plate);
    model.SetEdgeLoad(1, EdgeLoad(2, 3, 3));
    EXPECT_FALSE(SumLoads(model).uncounted.empty()) << nodes.size() << " nodes";
  }
}

TEST(SumLoads, OfEdgesFollowsTheirMiddleNodes) {
  CZelData model;
  Testing::ElementAt(
      model, ElementType::Quad8,
      {{0, 0, 0}, {2, 0, 0}, {2, 2, 0}, {0, 2, 0}, {1, 0, 0}, {2, 1, 0}, {1, 2, 0}, {0, 1, 0}});
  model.SetEdgeLoad(1, EdgeLoad(2, 1, 4));  // 5 at 2 / 3 * (1 + 2 * 4) / (1 + 4) = 1.2
  ExpectTotal(model, {0, 0, 5}, {6, -10, 0});
}

// Solids.

TEST(SumLoads, OfBodyFacesSpreadsOverTheFace) {
  CZelData model;
  Testing::Brick(model, 2, 3, 4);
  Data::CBodyFaceLoad load;
  load.SetLoadCase(1);
  load.SetLoadedEntities(Elements());
  int top = -1;
  for (int face = 0; face < 6; ++face) {
    bool all = true;
    for (int const node : model.Elem(1).FaceTopo(face))
      all = all && model.Node(node).Position().z == 4;
    if (all) top = face;
  }
  ASSERT_GE(top, 0);
  load.SetFace(top);
  load.SetValue(0, -5);
  model.SetBodyFaceLoad(1, load);
  ExpectTotal(model, {0, 0, -30}, {-45, 30, 0});
  load.SetType(Data::CBodyFaceLoad::Load3D::PerCorner);
  for (int i = 0; i < 4; ++i) load.SetValue(i, -5);
  model.SetBodyFaceLoad(1, load);
  ExpectTotal(model, {0, 0, -30}, {-45, 30, 0});
  load.SetFace(6);
  model.SetBodyFaceLoad(1, load);
  ExpectUncounted(model, "BodyFaceLoad", "an element has no such face");
}

// Gravity.

TEST(SumLoads, OfGravityTakesMassTimesGravity) {
  CZelData model;
  Testing::Grid(model, 2, 1);
  model.SetMatAnal(1, Data::CMatAnal(L"", L"", 1, 0, 2000, 0, 0));
  Data::CProp2D plate;
  plate.SetMaterialAnalysis(1);
  plate.SetThickness(0.5);
  model.SetProp2D(1, plate);
  for (int const n : {1, 2}) model.SetElemProperty(n, 1);
  Data::CGravityLoad load;
  load.SetLoadCase(1);
  load.SetLoadedEntities(Elements());
  model.SetGravityLoad(1, load);
  double const weight = 2000 * kGravity;
  ExpectTotal(model, {0, 0, -weight}, {-weight / 2, weight, 0});
  load.SetFactor({0.1, 0, 0});
  model.SetGravityLoad(1, load);
  ExpectTotal(model, {weight / 10, 0, 0}, {0, 0, -weight / 20});
  model.SetElemProperty(2, 9);
  ExpectUncounted(model, "GravityLoad", "the mass of an element is not known");
}

TEST(SumLoads, OfGravityTakesTheMassOfNodes) {
  CZelData model;
  Testing::NodeAt(model, 3, 0, 0);
  Testing::NodeAt(model, 0, 0, 0);
  model.SetMassProp(2, Data::CMassProp(L"", 50, {}, {1, 1, 0.5}));
  auto node = model.Node(1);
  node.SetMassProperty(2);
  model.SetNode(1, node);
  Data::CGravityLoad load;
  load.SetLoadCase(1);
  load.SetLoadedNodes({SelNode, L"all"});
  model.SetGravityLoad(1, load);
  double const weight = 25 * kGravity;
  ExpectTotal(model, {0, 0, -weight}, {0, 3 * weight, 0});
  model.BlankMassProp(2, 1);
  ExpectUncounted(model, "GravityLoad", "the mass property of a node does not exist");
}

// Grids: surface 1 in the plane z = 5 of the global axis.

CZelData WithSurface(GridElementType type = GridElementType::Plates) {
  CZelData model;
  model.SetGridPlane(2, Data::CGridPlane(L"", 0, 5, false));
  model.SetGridSurface(1, Data::CGridSurface(L"", 2, Elements(), type));
  return model;
}

TEST(SumLoads, OfGridPointsActsInTheirPlane) {
  auto model = WithSurface();
  Data::CGridPointLoad load;
  load.SetLoadCase(1);
  load.SetSurface(1);
  load.SetDirection(Direction::X);
  load.SetGridCoor({2, 3});
  load.SetValue(4);
  model.SetGridPointLoad(1, load);
  ExpectTotal(model, {4, 0, 0}, {0, 20, -12});
  load.SetSurface(9);
  model.SetGridPointLoad(1, load);
  ExpectUncounted(model, "GridPointLoad", "its grid surface or the plane of it does not exist");
}

TEST(SumLoads, OfGridLinesChangesEvenlyAlongTheLine) {
  auto model = WithSurface();
  Data::CGridLineLoad load(1, 0, 1, 0, false, Direction::Z, 0, 6);
  Data::CPolygon line;
  line.AddPoint(Vec2<double>{0, 0});
  line.AddPoint(Vec2<double>{3, 0});
  load.SetPolygon(line, true);
  model.SetGridLineLoad(1, load);
  ExpectTotal(model, {0, 0, 9}, {0, -18, 0});
  // Round a corner: 3 along x with 0 to 3, 3 along y with 3 to 6: 4.5 at (2, 0) and 13.5 at
  // (3, 3 / 3 * (3 + 12) / 9).
  line.AddPoint(Vec2<double>{3, 3});
  load.SetPolygon(line, true);
  model.SetGridLineLoad(1, load);
  ExpectTotal(model, {0, 0, 18}, {13.5 * 5 / 3, -(9 + 40.5), 0});
}

TEST(SumLoads, OfGridLinesTakesPolylines) {
  auto model = WithSurface();
  model.SetPolyline(4, Data::CPolyline(L"", 2, {{1, 1}, {1, 3}}));
  model.SetGridLineLoad(1, Data::CGridLineLoad(1, 4, 1, 0, false, Direction::Z, 2, 2));
  ExpectTotal(model, {0, 0, 4}, {8, -4, 0});
  model.BlankPolyline(4, 1);
  ExpectUncounted(model, "GridLineLoad", "it has no line");
}

TEST(SumLoads, OfGridAreasCoversTheirOutline) {
  auto model = WithSurface();
  Data::CGridAreaLoad load(1, Data::GridLoadShape::None, 0, 1, 0, false, Direction::Z, -2);
  Data::CPolygon outline;
  for (auto const& p : {Vec2<double>{0, 0}, {0, 2}, {4, 2}, {4, 0}}) outline.AddPoint(p);
  load.SetPolygon(outline, true);
  model.SetGridAreaLoad(1, load);
  ExpectTotal(model, {0, 0, -16}, {-16, 32, 0});
}

TEST(SumLoads, OfGridAreasCoversWholeSurfacesOfPlates) {
  auto model = WithSurface();
  Testing::QuadAt(model, {0, 0, 5}, {2, 0, 5}, {2, 1, 5}, {0, 1, 5});
  Testing::QuadAt(model, {0, 0, 0}, {2, 0, 0}, {2, 1, 0}, {0, 1, 0});  // not in the plane
  Data::CGridAreaLoad const load(1, Data::GridLoadShape::None, 0, 1, 0, false, Direction::Z, 3);
  model.SetGridAreaLoad(1, load);
  ExpectTotal(model, {0, 0, 6}, {3, -6, 0});
  auto lines = WithSurface(GridElementType::Lines);
  lines.SetGridAreaLoad(1, load);
  ExpectUncounted(lines, "GridAreaLoad", "it covers a whole surface of 1D elements");
}

}  // namespace
}  // namespace Tarvex::LoadTotalsTest
