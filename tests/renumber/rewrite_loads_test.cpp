// References of loads, stages, tasks, saved lists, assemblies and views.
#include <gtest/gtest.h>

#include "store/record/assembly.h"
#include "store/record/beam_loads.h"
#include "store/record/body_loads.h"
#include "store/record/face_loads.h"
#include "store/record/grid_loads.h"
#include "store/record/node_load.h"
#include "store/record/section.h"
#include "store/record/stages.h"
#include "store/record/tasks.h"
#include "store/record/views.h"
#include "tests/renumber/renumber_support.h"

namespace Tarvex::RewriteLoadsTest {
namespace {

using Data::CEntList;
using Testing::Apply;
using Testing::Scheme;

/// Runs test(add, load) on the table of one class of loads.
template <class Load>
struct Table {
  void (CZelData::*set)(int, Load const&, SidMode);
  Load const& (CZelData::*get)(int) const;
  int (CZelData::*highest)() const;
};

/// Schemes of elements 1 to 3, nodes 1 to 3, axis 1 and properties 1.
CRenumber Moving(CZelData& model, std::vector<CModule::ModuleId> const& modules) {
  CRenumber renumber(&model);
  for (auto const module : modules) renumber.Index(module, {{1, 7}, {2, 8}});
  return renumber;
}

/// Checks that a load on entities follows them, its property words by a table, and goes when it
/// acts on nothing; with an axis it follows that, too.
template <class Load>
void ExpectElementLoad(Table<Load> const& table, CModule::ModuleId propertyModule, bool axis) {
  CZelData model;
  Load load;
  load.SetLoadCase(4);
  if constexpr (requires { load.SetAxis(1); }) load.SetAxis(1);
  wchar_t const* const texts[] = {L"1 P2", L"3", L"none"};
  for (int n = 1; n <= 3; ++n) {
    load.SetLoadedEntities({SelElement, texts[n - 1]});
    (model.*table.set)(n, load, SidMode::Keep);
  }
  CZelData const before(model);
  auto renumber = Moving(model, {CModule::Elem, CModule::Axis, propertyModule});
  EXPECT_TRUE(renumber.Go(false));
  ASSERT_EQ((model.*table.highest)(), 1);
  auto const& now = (model.*table.get)(1);
  EXPECT_EQ(now.LoadedEntities().String(), L"7 P8");
  EXPECT_EQ(now.LoadCase(), 4);
  if constexpr (requires { now.Axis(); }) {
    EXPECT_EQ(now.Axis(), axis ? 7 : 1);
  }

  CZelData onAxis(before);
  EXPECT_TRUE(Apply(onAxis, CModule::Axis, {{1, 7}}));
  // The row runs for axes only where the load has one that follows; then the empty load goes.
  EXPECT_EQ((onAxis.*table.highest)(), axis ? 2 : 3);
  if constexpr (requires { now.Axis(); }) {
    EXPECT_EQ((onAxis.*table.get)(1).Axis(), axis ? 7 : 1);
  }
  CZelData onProperty(before);
  EXPECT_TRUE(Apply(onProperty, propertyModule, {{2, 8}}));
  EXPECT_EQ((onProperty.*table.get)(1).LoadedEntities().String(), L"1 P2");
}

TEST(RewriteBeamLoad, FollowsElementsSectionsAndAxes) {
  ExpectElementLoad<Data::CBeamLoad>(
      {&CZelData::SetBeamLoad, &CZelData::BeamLoad, &CZelData::HighestBeamLoad}, CModule::Section,
      true);
}

TEST(RewriteOtherBeamLoads, FollowElementsAndSections) {
  ExpectElementLoad<Data::CBeamDist>(
      {&CZelData::SetBeamDist, &CZelData::BeamDist, &CZelData::HighestBeamDist}, CModule::Section,
      false);
  ExpectElementLoad<Data::CBeamThermalLoad>(
      {&CZelData::SetBeamThermalLoad, &CZelData::BeamThermalLoad,
       &CZelData::HighestBeamThermalLoad},
      CModule::Section, false);
  ExpectElementLoad<Data::CAxialLoad>(
      {&CZelData::SetAxialLoad, &CZelData::AxialLoad, &CZelData::HighestAxialLoad},
      CModule::Section, false);
}

TEST(RewriteFaceAndEdgeLoads, FollowElementsPlatesAndAxes) {
  ExpectElementLoad<Data::CFaceLoad>(
      {&CZelData::SetFaceLoad, &CZelData::FaceLoad, &CZelData::HighestFaceLoad}, CModule::Prop2D,
      true);
  ExpectElementLoad<Data::CEdgeLoad>(
      {&CZelData::SetEdgeLoad, &CZelData::EdgeLoad, &CZelData::HighestEdgeLoad}, CModule::Prop2D,
      true);
}

TEST(RewriteOtherFaceLoads, FollowElementsAndPlatesAndNoAxes) {
  ExpectElementLoad<Data::CFaceThermalLoad>(
      {&CZelData::SetFaceThermalLoad, &CZelData::FaceThermalLoad,
       &CZelData::HighestFaceThermalLoad},
      CModule::Prop2D, false);
  ExpectElementLoad<Data::CInPlaneLoad>(
      {&CZelData::SetInPlaneLoad, &CZelData::InPlaneLoad, &CZelData::HighestInPlaneLoad},
      CModule::Prop2D, false);
}

TEST(RewriteBodyLoads, FollowElementsSolidsAndAxes) {
  ExpectElementLoad<Data::CBodyFaceLoad>(
      {&CZelData::SetBodyFaceLoad, &CZelData::BodyFaceLoad, &CZelData::HighestBodyFaceLoad},
      CModule::Prop3D, true);
  ExpectElementLoad<Data::CBodyThermalLoad>(
      {&CZelData::SetBodyThermalLoad, &CZelData::BodyThermalLoad,
       &CZelData::HighestBodyThermalLoad},
      CModule::Prop3D, false);
}

TEST(RewriteNodeLoads, FollowNodesAndAxesInThreeTables) {
  for (auto const& table :
       {Table<Data::CNodeLoad>{&CZelData::SetNodeLoad, &CZelData::NodeLoad,
                               &CZelData::HighestNodeLoad},
        Table<Data::CNodeLoad>{&CZelData::SetAppliedDisplacement, &CZelData::AppliedDisplacement,
                               &CZelData::HighestAppliedDisplacement},
        Table<Data::CNodeLoad>{&CZelData::SetSettlement, &CZelData::Settlement,
                               &CZelData::HighestSettlement}}) {
    CZelData model;
    Data::CNodeLoad load({SelNode, L"3"}, 4, 1, Direction::Y, 2.5, CModule::NodeLoad);
    (model.*table.set)(1, load, SidMode::Keep);
    load.SetLoadedEntities({SelNode, L"1 2"});
    (model.*table.set)(2, load, SidMode::Keep);
    CZelData onAxis(model);
    auto renumber = Moving(model, {CModule::Node, CModule::Axis});
    EXPECT_TRUE(renumber.Go(false));
    ASSERT_EQ((model.*table.highest)(), 1);
    EXPECT_EQ((model.*table.get)(1).LoadedEntities().String(), L"7 8");
    EXPECT_EQ((model.*table.get)(1).Axis(), 7);
    EXPECT_EQ((model.*table.get)(1).Value(), 2.5);
    EXPECT_TRUE(Apply(onAxis, CModule::Axis, {{1, 9}}));
    EXPECT_EQ((onAxis.*table.get)(1).Axis(), 9);
    EXPECT_EQ((onAxis.*table.get)(1).LoadedEntities().String(), L"3");
  }
}

TEST(RewriteGridLoads, FollowAxesSurfacesAndPolylines) {
  CZelData model;
  Data::CGridPointLoad point;
  point.SetAxis(1);
  point.SetSurface(2);
  model.SetGridPointLoad(1, point);
  Data::CGridLineLoad line;
  line.SetAxis(1);
  line.SetSurface(2);
  line.SetPolyRef(1, true);
  model.SetGridLineLoad(1, line);
  Data::CGridAreaLoad area;
  area.SetAxis(1);
  area.SetSurface(2);
  area.SetPolyRef(1, false);
  auto const shape = area.Area();
  model.SetGridAreaLoad(1, area);
  auto renumber = Moving(model, {CModule::Axis, CModule::GridSurface, CModule::Polyline});
  EXPECT_TRUE(renumber.Go(false));
  EXPECT_EQ(model.GridPointLoad(1).Axis(), 7);
  EXPECT_EQ(model.GridPointLoad(1).Surface(), 8);
  EXPECT_EQ(model.GridLineLoad(1).Axis(), 7);
  EXPECT_EQ(model.GridLineLoad(1).Surface(), 8);
  EXPECT_EQ(model.GridLineLoad(1).PolyRef(), 7);
  EXPECT_EQ(model.GridLineLoad(1).Line(), Data::GridLoadShape::Polyline);
  EXPECT_EQ(model.GridAreaLoad(1).Axis(), 7);
  EXPECT_EQ(model.GridAreaLoad(1).Surface(), 8);
  EXPECT_EQ(model.GridAreaLoad(1).PolyRef(), 7);
  EXPECT_EQ(model.GridAreaLoad(1).Area(), shape);  // which outline counts stays
}

TEST(RewriteGridLoads, StayWithoutTheirSurface) {
  CZelData model;
  Data::CGridPointLoad point;
  point.SetSurface(2);
  model.SetGridPointLoad(1, point);
  EXPECT_TRUE(Apply(model, CModule::GridSurface, Scheme()));
  ASSERT_EQ(model.HighestGridPointLoad(), 1);
  EXPECT_EQ(model.GridPointLoad(1).Surface(), 0);
}

TEST(RewriteGravityLoad, GoesOnlyWithoutBothOfItsLists) {
  CZelData model;
  wchar_t const* const entities[] = {L"1", L"3", L"3", L"1"};
  wchar_t const* const nodes[] = {L"1", L"1", L"3", L"3"};
  for (int n = 1; n <= 4; ++n) {
    Data::CGravityLoad load;
    load.SetLoadedEntities({SelElement, entities[n - 1]});
    load.SetLoadedNodes({SelNode, nodes[n - 1]});
    load.SetLoadCase(n);
    model.SetGravityLoad(n, load);
  }
  auto renumber = Moving(model, {CModule::Node, CModule::Elem});
  EXPECT_TRUE(renumber.Go(false));
  ASSERT_EQ(model.HighestGravityLoad(), 3);
  EXPECT_EQ(model.GravityLoad(1).LoadedEntities().String(), L"7");
  EXPECT_EQ(model.GravityLoad(1).LoadedNodes().String(), L"7");
  EXPECT_EQ(model.GravityLoad(2).LoadedEntities().String(), L"none");
  EXPECT_EQ(model.GravityLoad(3).LoadCase(), 4);
}

TEST(RewriteLoads, OfMembersFollowThem) {
  CZelData model;
  Data::CBeamLoad load;
  load.SetLoadedEntities({SelMember, L"1"});
  model.SetBeamLoad(1, load);
  CZelData onMember(model);
  EXPECT_TRUE(Apply(onMember, CModule::Member, {{1, 7}}));
  EXPECT_EQ(onMember.BeamLoad(1).LoadedEntities().String(), L"1");  // elements have no scheme
  auto renumber = Moving(model, {CModule::Member, CModule::Elem});
  EXPECT_TRUE(renumber.Go(false));
  EXPECT_EQ(model.BeamLoad(1).LoadedEntities().String(), L"7");
}

// Others.

TEST(RewriteStage, FollowsElementsAndStaysWithoutThem) {
  CZelData model;
  model.SetAnalStage(1, {L"", {SelElement, L"1 3"}});
  model.SetAnalStage(2, {L"", {SelElement, L"3"}});
  auto renumber = Moving(model, {CModule::Elem});
  EXPECT_TRUE(renumber.Go(false));
  EXPECT_EQ(model.AnalStage(1).StageElem().String(), L"7");
  EXPECT_TRUE(model.AnalStage(2).StageElem().IsEmpty());
}

TEST(RewriteTask, FollowsTheElementsThatBucklingLeavesOut) {
  for (auto const solution :
       {AnalSoln::StaticPDelta, AnalSoln::ModalPDelta, AnalSoln::ModalBuckling, AnalSoln::Static}) {
    CZelData model;
    CZssTask task(L"", solution);
    task.SetGeoExclude({SelElement, L"1"});
    model.SetAnalysisTask(1, task);
    auto renumber = Moving(model, {CModule::Elem});
    EXPECT_TRUE(renumber.Go(false));
    EXPECT_EQ(dynamic_cast<CZssTask const&>(model.AnalysisTask(1)).GeoExclude().String(),
              solution == AnalSoln::Static ? L"1" : L"7");
  }
}

TEST(RewriteTask, FollowsNodesAndAxesOfRelativeDisplacements) {
  for (auto const solution : {AnalSoln::ResponseSpectrum, AnalSoln::ResponseSpectrumPseudoStatic}) {
    CZelData model;
    CZdSpecTask task(L"", solution);
    task.SetRelDisp(0, {1, 1, 2});
    task.SetRelDisp(1, {0, 2, 3});
    model.SetAnalysisTask(1, task);
    auto renumber = Moving(model, {CModule::Node, CModule::Axis});
    EXPECT_TRUE(renumber.Go(false));
    auto const& now = dynamic_cast<CZdSpecTask const&>(model.AnalysisTask(1));
    EXPECT_EQ(now.RelDisp(0), CRelDisp(7, 7, 8));
    EXPECT_EQ(now.RelDisp(1), CRelDisp(0, 8, 0));  // node 3 goes
  }
}

TEST(RewriteTask, WithoutRelativeDisplacementsStays) {
  CZelData model;
  model.SetAnalysisTask(1, CZdSpecTask(L"", AnalSoln::ResponseSpectrum));
  CZelData const before(model);
  EXPECT_TRUE(Apply(model, CModule::Axis, Scheme()));
  EXPECT_TRUE(Testing::IsUnchanged(model, before));
}

TEST(RewriteTask, FollowsTheElementsOfFormFinding) {
  CZelData model;
  CFormRelaxTask task(L"");
  task.SetEulerElemList({SelElement, L"1"});
  model.SetAnalysisTask(1, task);
  auto renumber = Moving(model, {CModule::Elem});
  EXPECT_TRUE(renumber.Go(false));
  EXPECT_EQ(dynamic_cast<CFormRelaxTask const&>(model.AnalysisTask(1)).GetEulerElemList().String(),
            L"7");
}

TEST(RewriteTask, OfAClassThatHasNoSuchListIsLeft) {
  CZelData model;
  model.SetAnalysisTask(1, Zel::CAnalysisTask(L"", AnalSoln::StaticPDelta));
  CZelData const before(model);
  EXPECT_TRUE(Apply(model, CModule::Axis, Scheme()));
  EXPECT_TRUE(Testing::IsUnchanged(model, before));
}

TEST(RewriteSavedList, FollowsEachKindButCases) {
  CZelData model;
  model.SetList(1, {L"n", SelNode, L"1"});
  model.SetList(2, {L"e", SelElement, L"1"});
  model.SetList(3, {L"m", SelMember, L"1"});
  model.SetList(4, {L"c", SelCase, L"L1"});
  auto renumber = Moving(model, {CModule::Node, CModule::Elem, CModule::Member});
  EXPECT_TRUE(renumber.Go(false));
  for (int const n : {1, 2, 3}) EXPECT_EQ(model.List(n).String(), L"7");
  EXPECT_EQ(model.List(1).Name(), L"n");
  EXPECT_EQ(model.List(4).String(), L"L1");
}

TEST(RewriteSavedList, WithoutAKindIsEmptiedUnlessItIsAll) {
  CZelData model;
  model.SetList(1, {L"numbers", SelNone, L"1 2"});
  model.SetList(2, {L"all", SelNone, L"all"});
  EXPECT_TRUE(Apply(model, CModule::Axis, Scheme()));
  EXPECT_TRUE(model.List(1).IsEmpty());
  EXPECT_EQ(model.List(2).String(), L"all");
}

TEST(RewriteSavedList, OfTheReservedKindRaises) {
  CZelData model;
  model.SetList(1, {L"", SelOther, L"1"});
  EXPECT_EQ(Testing::OutOfRangeText([&] { Apply(model, CModule::Axis, Scheme()); }),
            "bad entity type");
  EXPECT_FALSE(model.rebuildHold);
}

TEST(RewriteAssembly, FollowsEntitiesAndNodes) {
  CZelData model;
  Data::CAssembly assembly;
  assembly.SetEntities({SelElement, L"1"});
  assembly.SetTopo(0, 1);
  assembly.SetTopo(2, 3);
  assembly.SetIntTopo({SelNode, L"2"});
  assembly.SetStorey({SelNone, L"1"});
  model.SetAssembly(1, assembly);
  auto renumber = Moving(model, {CModule::Node, CModule::Elem});
  EXPECT_TRUE(renumber.Go(false));
  auto const& now = model.Assembly(1);
  EXPECT_EQ(now.Entities().String(), L"7");
  EXPECT_EQ(now.Topo(0), 7);
  EXPECT_EQ(now.Topo(1), 0);
  EXPECT_EQ(now.Topo(2), 0);  // node 3 goes
  EXPECT_EQ(now.IntTopo().String(), L"8");
  EXPECT_EQ(now.Storey().String(), L"1");
}

TEST(RewriteAssembly, ByStoreysLosesStoreysThatItNames) {
  CZelData model;
  for (int const n : {1, 2}) {
    Data::CAssembly assembly;
    assembly.definition = Data::CAssembly::kByStoreys;
    assembly.SetStorey({SelNone, n == 1 ? L"1 2" : L"all"});
    model.SetAssembly(n, assembly);
  }
  EXPECT_TRUE(Apply(model, CModule::Axis, Scheme()));
  EXPECT_TRUE(model.Assembly(1).Storey().IsEmpty());
  EXPECT_EQ(model.Assembly(2).Storey().String(), L"all");
}

TEST(RewriteAssembly, OfCasesRaises) {
  CZelData model;
  Data::CAssembly assembly;
  assembly.SetEntities({SelCase, L"L1"});
  model.SetAssembly(1, assembly);
  EXPECT_EQ(Testing::OutOfRangeText([&] { Apply(model, CModule::Axis, Scheme()); }),
            "bad entity type");
}

TEST(RewriteViews, FollowEntitiesAndAxes) {
  CZelData model;
  Data::CGrView graphic;
  graphic.SetNodes({SelNode, L"1"});
  graphic.SetElements({SelElement, L"1"});
  graphic.SetMembers({SelMember, L"1"});
  graphic.SetHiLiteElements({SelElement, L"2"});
  graphic.SetHiLiteMembers({SelMember, L"2"});
  Data::CGrData drawn;
  drawn.SetAxis(1);
  graphic.SetGrData(0, drawn);
  model.SetGrView(1, graphic);
  Data::COpView output;
  output.SetNodes({SelNode, L"1"});
  output.SetElements({SelElement, L"1"});
  output.SetMembers({SelMember, L"1"});
  output.SetAxis(1);
  Data::COpData told;
  told.SetAxis(2);
  output.SetOpData(0, told);
  model.SetOpView(1, output);
  auto renumber = Moving(model, {CModule::Node, CModule::Elem, CModule::Member, CModule::Axis});
  EXPECT_TRUE(renumber.Go(false));
  auto const& drawnNow = model.GrView(1);
  EXPECT_EQ(drawnNow.Nodes().String(), L"7");
  EXPECT_EQ(drawnNow.Elements().String(), L"7");
  EXPECT_EQ(drawnNow.Members().String(), L"7");
  EXPECT_EQ(drawnNow.HiLiteElements().String(), L"8");
  EXPECT_EQ(drawnNow.HiLiteMembers().String(), L"8");
  EXPECT_EQ(drawnNow.GrData(0).Axis(), 7);
  auto const& toldNow = model.OpView(1);
  EXPECT_EQ(toldNow.Nodes().String(), L"7");
  EXPECT_EQ(toldNow.Elements().String(), L"7");
  EXPECT_EQ(toldNow.Members().String(), L"7");
  EXPECT_EQ(toldNow.Axis(), 7);
  EXPECT_EQ(toldNow.OpData(0).Axis(), 8);
}

TEST(RewriteViews, RunWhateverMoves) {
  CZelData model;
  Data::COpView output;
  output.SetElements({SelElement, L"PB1"});
  model.SetOpView(1, output);
  model.SetSection(1, Data::CSection());
  EXPECT_TRUE(Apply(model, CModule::Section, {{1, 5}}));
  EXPECT_EQ(model.OpView(1).Elements().String(), L"PB5");
}

}  // namespace
}  // namespace Tarvex::RewriteLoadsTest
