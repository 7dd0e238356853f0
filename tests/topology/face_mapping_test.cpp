// Pressures, point loads and temperatures of plates given to pieces.
#include "tests/support/random_model.h"
#include "tests/topology/plate_support.h"
#include "tests/topology/private_access.h"

namespace Tarvex::FaceMappingTest {
namespace {

using namespace Testing;
using Data::CFaceLoad;
using Data::CFaceThermalLoad;
using FaceType = CFaceLoad::Load2D;
using ThermalType = CFaceThermalLoad::ThermalType;

CFaceLoad Pressure(FaceType type, std::vector<double> const& values, wchar_t const* list = L"70") {
  return OnParent<CFaceLoad>(type, values, list);
}
CFaceThermalLoad Temperature(ThermalType type, std::vector<double> const& values,
                             wchar_t const* list = L"70") {
  return OnParent<CFaceThermalLoad>(type, values, list);
}

bool Map(CZelData& model, NumberLists const& pieces) {
  return CDataMgr(model).Map2DLoading(pieces);
}
bool Map(CZelData& model) { return Map(model, PiecesOf(model)); }

// Uniform pressure.

TEST(MapFaceLoading, LeavesOneRecordOfAUniformPressureOnTheListOfThePieces) {
  auto model = CutPlate(2, 1);
  model.SetFaceLoad(1, Pressure(FaceType::Uniform, {5}));
  EXPECT_TRUE(Map(model));
  EXPECT_EQ(ValuesOf(model.FaceLoad(), 1), (AllValues{{L"80 81", {5}}}));
}

TEST(MapFaceLoading, MapsAPieceOfTheSameMapThatIsAParentItself) {
  auto model = CutPlate(3, 1);
  model.SetFaceLoad(1, Pressure(FaceType::Uniform, {5}));
  EXPECT_TRUE(Map(model, {{kParent, {80, 81}}, {81, {82}}}));
  EXPECT_EQ(ValuesOf(model.FaceLoad(), 1), (AllValues{{L"80 82", {5}}}));
}

/// A plate cut in two, and load panel 90 on the second half.
CZelData PanelModel() {
  auto model = CutPlate(2, 1);
  model.SetLoadPanel(90, Panel({2, 3, 6, 5}));
  return model;
}

TEST(MapFaceLoading, GivesUniformLoadsToPiecesThatAreLoadPanels) {
  auto model = PanelModel();
  model.SetFaceLoad(1, Pressure(FaceType::Uniform, {5}));
  model.SetFaceThermalLoad(1, Temperature(ThermalType::Uniform, {20}));
  EXPECT_TRUE(Map(model, {{kParent, {80, 90}}}));
  EXPECT_EQ(ValuesOf(model.FaceLoad(), 1), (AllValues{{L"80 90", {5}}}));
  EXPECT_EQ(ValuesOf(model.FaceThermalLoad(), 1), (AllValues{{L"80 90", {20}}}));
}

TEST(MapFaceLoading, CountsNoLoadPanelsWhereItAsksWhetherALoadIsOnAnythingStill) {
  auto model = PanelModel();
  model.SetFaceLoad(1, Pressure(FaceType::Uniform, {5}));
  EXPECT_TRUE(Map(model, {{kParent, {90}}}));
  EXPECT_EQ(model.HighestFaceLoad(), 0);
}

TEST(MapFaceLoading, GivesLoadPanelsNoLoadThatAsksForTheShapeOfAnElementAndSaysSo) {
  for (auto const type : {FaceType::PerCorner, FaceType::Point}) {
    auto model = PanelModel();
    model.SetFaceLoad(1, Pressure(type, {5, 5, 5, 5}));
    EXPECT_FALSE(Map(model, {{kParent, {80, 90}}}));
    EXPECT_EQ(model.HighestFaceLoad(), 0);
  }
  auto model = PanelModel();
  model.SetFaceThermalLoad(1, Temperature(ThermalType::PerCorner, {5}));
  EXPECT_FALSE(Map(model, {{kParent, {90}}}));
  EXPECT_EQ(model.HighestFaceThermalLoad(), 0);
}

TEST(MapFaceLoading, RemovesALoadWhoseListNamesNothingThatExistsAnyMore) {
  auto model = CutPlate(2, 1);
  model.SetFaceLoad(1, Pressure(FaceType::PerCorner, {1, 1, 1, 1}, L"70 99"));
  EXPECT_TRUE(Map(model));
  EXPECT_EQ(ValuesOf(model.FaceLoad(), 1), (AllValues{{L"80", {1}}, {L"81", {1}}}));
}

// Pressure by corner.

TEST(MapFaceLoading, ReproducesALinearPressureAtTheCornersOfThePiecesAlsoInside) {
  auto model = CutPlate(2, 2);
  // 1 + 2 x + 3 y at (0,0) (2,0) (2,2) (0,2).
  model.SetFaceLoad(1, Pressure(FaceType::PerCorner, {1, 5, 11, 7}));
  EXPECT_TRUE(Map(model));
  EXPECT_EQ(ValuesOf(model.FaceLoad(), 4), (AllValues{{L"80", {1, 3, 6, 4}},
                                                      {L"81", {3, 5, 8, 6}},
                                                      {L"82", {4, 6, 9, 7}},
                                                      {L"83", {6, 8, 11, 9}}}));
}

TEST(MapFaceLoading, ReproducesABilinearPressure) {
  auto model = CutPlate(2, 1);
  // x y at (0,0) (2,0) (2,1) (0,1).
  model.SetFaceLoad(1, Pressure(FaceType::PerCorner, {0, 0, 2, 0}));
  EXPECT_TRUE(Map(model));
  EXPECT_EQ(ValuesOf(model.FaceLoad(), 4),
            (AllValues{{L"80", {0, 0, 1, 0}}, {L"81", {0, 0, 2, 1}}}));
}

TEST(MapFaceLoading, FitsAPlaneThroughATriangleAndLeavesTheFourthValueOfTriangularPieces) {
  CZelData model;
  for (auto const& p : Points{{0, 0, 0}, {2, 0, 0}, {0, 2, 0}, {1, 1, 0}})
    NodeAt(model, p.x, p.y, p.z);
  model.SetElem(kParent, Element(ElementType::Tri3, {1, 2, 3}));
  model.SetElem(80, Element(ElementType::Tri3, {1, 2, 4}));
  model.SetElem(81, Element(ElementType::Tri3, {1, 4, 3}));
  // 1 + x + 2 y; the fourth value is not one of a corner.
  model.SetFaceLoad(1, Pressure(FaceType::PerCorner, {1, 3, 5, 99}));
  EXPECT_TRUE(Map(model));
  EXPECT_EQ(ValuesOf(model.FaceLoad(), 4),
            (AllValues{{L"80", {1, 3, 4, 0}}, {L"81", {1, 4, 5, 0}}}));
}

TEST(MapFaceLoading, TakesTheCornersOfQuadraticPlates) {
  auto model = CutPlate(2, 2);
  auto plate = Element(ElementType::Quad8, {1, 3, 9, 7, 2, 6, 8, 4});
  model.SetElem(kParent, plate);
  model.SetFaceLoad(1, Pressure(FaceType::PerCorner, {1, 5, 11, 7}));
  EXPECT_TRUE(Map(model, {{kParent, {83}}}));
  EXPECT_EQ(ValuesOf(model.FaceLoad(), 4), (AllValues{{L"83", {6, 8, 11, 9}}}));
}

TEST(MapFaceLoading, GivesNothingWhereTheCornersDoNotDetermineTheFitAndFindsNoFault) {
  CZelData model;
  for (double const x : {0.0, 1.0, 2.0, 0.5}) NodeAt(model, x, 0, 0);
  model.SetElem(kParent, Element(ElementType::Tri3, {1, 2, 3}));
  model.SetElem(80, Element(ElementType::Tri3, {1, 4, 2}));
  model.SetFaceLoad(1, Pressure(FaceType::PerCorner, {1, 3, 5}));
  EXPECT_TRUE(Map(model));
  EXPECT_EQ(model.HighestFaceLoad(), 0);
}

TEST(MapFaceLoading, KeepsAxisDirectionAndProjectionOfALoadByCorner) {
  auto model = CutPlate(2, 1);
  auto load = Pressure(FaceType::PerCorner, {1, 1, 1, 1});
  load.SetAxis(3);
  load.SetDirection(Direction::X);
  load.SetIsProjected(true);
  model.SetFaceLoad(1, load);
  EXPECT_TRUE(Map(model));
  EXPECT_EQ(model.FaceLoad(2).Axis(), 3);
  EXPECT_EQ(model.FaceLoad(2).GetDirection(), Direction::X);
  EXPECT_TRUE(model.FaceLoad(2).IsProjected());
}

// Point loads.

CFaceLoad PointAt(double r, double s) {
  auto load = Pressure(FaceType::Point, {5});
  load.SetPosition({r, s});
  return load;
}

TEST(MapFaceLoading, GivesAPointLoadToThePieceUnderIt) {
  auto model = CutPlate(2, 1);
  // r = 0.5 is x = 1.5, the middle of 81; s = -0.5 is y = 0.25 and stays.
  model.SetFaceLoad(1, PointAt(0.5, -0.5));
  EXPECT_TRUE(Map(model));
  EXPECT_EQ(ValuesOf(model.FaceLoad(), 1), (AllValues{{L"81", {5}}}));
  EXPECT_NEAR(model.FaceLoad(1).Position().x, 0, 1e-12);
  EXPECT_NEAR(model.FaceLoad(1).Position().y, -0.5, 1e-12);
}

TEST(MapFaceLoading, GivesAPointLoadOnASharedSideToTheFirstPieceOfTheVectorAlone) {
  for (auto const& [subs, first] : std::vector<std::pair<std::vector<int>, wchar_t const*>>{
           {{80, 81}, L"80"}, {{81, 80}, L"81"}}) {
    auto model = CutPlate(2, 1);
    model.SetFaceLoad(1, PointAt(0, 0.2));
    EXPECT_TRUE(Map(model, {{kParent, subs}}));
    EXPECT_EQ(ValuesOf(model.FaceLoad(), 1), (AllValues{{first, {5}}}));
  }
}

TEST(MapFaceLoading, GivesAPointLoadAtACommonCornerToOnePiece) {
  auto model = CutPlate(2, 2);
  model.SetFaceLoad(1, PointAt(0, 0));
  EXPECT_TRUE(Map(model));
  EXPECT_EQ(ValuesOf(model.FaceLoad(), 1), (AllValues{{L"80", {5}}}));
}

TEST(MapFaceLoading, DropsAPointLoadOutsideTheParentOrAllPiecesAndFindsNoFault) {
  for (double const r : {1.5, 0.5}) {
    auto model = CutPlate(2, 1);
    model.SetFaceLoad(1, PointAt(r, 0));
    EXPECT_TRUE(Map(model, {{kParent, {80}}}));
    EXPECT_EQ(model.HighestFaceLoad(), 0);
  }
}

TEST(MapFaceLoading, LetsAPointLieOffAPieceByTheToleranceOfTheModel) {
  // The piece ends at x = 1; r = 0.001 of the parent is x = 1.001.
  for (double const tolerance : {0.0011, 0.0009}) {
    auto model = CutPlate(2, 1);
    auto spec = model.Spec();
    spec.SetGenTol(TolType::PointInElement, tolerance);
    model.SetSpec(spec);
    model.SetFaceLoad(1, PointAt(0.001, 0));
    EXPECT_TRUE(Map(model, {{kParent, {80}}}));
    EXPECT_EQ(model.HighestFaceLoad(), tolerance > 0.001 ? 1 : 0);
  }
}

TEST(MapFaceLoading, KeepsAPointLoadJustBehindACutThroughFurtherCuts) {
  auto model = CutPlate(2, 1);
  // Piece 80 from x = 0 to 1 has the load at x = 1.0009, 0.0009 behind it: r = 0.5009 / 0.5. Half
  // of it has the load at r = (1.0009 - 0.75) / 0.25, half of that at (1.0009 - 0.875) / 0.125.
  model.SetFaceLoad(1, PointAt(0.0009, 0));
  ASSERT_TRUE(Map(model));
  double from = 0;
  int cut = 80;
  for (double const r : {1.0018, 1.0036, 1.0072}) {
    ASSERT_EQ(model.HighestFaceLoad(), 1);
    auto const& load = model.FaceLoad(1);
    EXPECT_EQ(TextOf(load.LoadedEntities()), std::to_wstring(cut));
    EXPECT_NEAR(load.Position().x, r, 1e-12);
    EXPECT_TRUE(model.ValidatePointLoadPosition(load, cut));
    double const middle = (from + 1) / 2;
    int const low = NodeAt(model, middle, 0, 0);
    int const high = NodeAt(model, middle, 1, 0);
    int const n = model.HighestElem() + 1;
    auto const nodes = model.Elem(cut).Topology();
    model.SetElem(n, Element(ElementType::Quad4, {nodes[0], low, high, nodes[3]}));
    model.SetElem(n + 1, Element(ElementType::Quad4, {low, nodes[1], nodes[2], high}));
    ASSERT_TRUE(Map(model, {{cut, {n, n + 1}}}));
    cut = n + 1;
    from = middle;
  }
}

TEST(MapFaceLoading, MapsAParentThatIsItsOwnPiece) {
  auto model = CutPlate(2, 1);
  model.SetFaceLoad(1, Pressure(FaceType::Uniform, {5}, L"70 9"));
  model.SetFaceLoad(2, Pressure(FaceType::PerCorner, {5, 5, 5, 5}));
  EXPECT_TRUE(Map(model, {{kParent, {kParent, 80}}}));
  // It comes off what it was given just now.
  EXPECT_EQ(ValuesOf(model.FaceLoad(), 1), (AllValues{{L"9 80", {5}}, {L"80", {5}}}));
}

TEST(MapFaceLoading, LeavesALoadOfAnUnknownTypeAndTakesTheParentOff) {
  auto model = CutPlate(2, 1);
  model.SetFaceLoad(1, Pressure(static_cast<FaceType>(9), {5}, L"70 81"));
  EXPECT_TRUE(Map(model, {{kParent, {80}}}));
  EXPECT_EQ(ValuesOf(model.FaceLoad(), 1), (AllValues{{L"81", {5}}}));
}

// Lists.

TEST(MapFaceLoading, LeavesALoadOnAnIndirectListAndSaysSo) {
  for (auto const type : {FaceType::Uniform, FaceType::PerCorner, FaceType::Point}) {
    auto model = CutPlate(2, 1);
    model.SetFaceLoad(1, Pressure(type, {5, 5, 5, 5}, L"69 to 71"));
    CZelData const before(model);
    EXPECT_FALSE(Map(model));
    EXPECT_TRUE(IsUnchanged(model, before));
  }
}

TEST(MapFaceLoading, PassesLoadsOnMembersOver) {
  auto model = CutPlate(2, 1);
  for (int n = 1; n <= kParent; ++n) MemberAt(model, MembType::Slab, L"1 3 6 4");
  auto load = Pressure(FaceType::Uniform, {5});
  load.SetLoadedEntities(Members(L"70"));
  model.SetFaceLoad(1, load);
  CZelData const before(model);
  EXPECT_TRUE(Map(model));
  EXPECT_TRUE(IsUnchanged(model, before));
}

TEST(MapFaceLoading, IsIntendedForLoadsOnElementsOnly) {
  auto model = CutPlate(2, 1);
  auto load = Pressure(FaceType::Uniform, {5});
  load.SetLoadedEntities(Members(L"70"));
  model.SetFaceLoad(1, load);
  CDataMgr const manager(model);
  try {
    CallPrivate(OneFaceLoad(), manager, 1, kParent, std::vector<int>{80});
    FAIL() << "no exception";
  } catch (std::runtime_error const& fault) {
    EXPECT_STREQ(fault.what(), "this function is only intended for element loads");
  }
}

// Temperatures.

TEST(MapFaceThermalLoadLoading, AddsThePiecesToAUniformAndAGradientTemperature) {
  for (auto const type : {ThermalType::Uniform, ThermalType::Gradient}) {
    auto model = CutPlate(2, 1);
    model.SetFaceThermalLoad(1, Temperature(type, {20, 5}));
    EXPECT_TRUE(Map(model));
    EXPECT_EQ(ValuesOf(model.FaceThermalLoad(), 2), (AllValues{{L"80 81", {20, 5}}}));
  }
}

TEST(MapFaceThermalLoadLoading, FitsTopAndBottomEachByTheCorners) {
  auto model = CutPlate(2, 1);
  // Top 1 + x, bottom 10 + x y, at (0,0) (2,0) (2,1) (0,1).
  model.SetFaceThermalLoad(1, Temperature(ThermalType::PerCorner, {1, 10, 3, 10, 3, 12, 1, 10}));
  EXPECT_TRUE(Map(model));
  EXPECT_EQ(
      ValuesOf(model.FaceThermalLoad(), 8),
      (AllValues{{L"80", {1, 10, 2, 10, 2, 11, 1, 10}}, {L"81", {2, 10, 3, 10, 3, 12, 2, 11}}}));
}

TEST(MapFaceThermalLoadLoading, LeavesTheFourthCornerOfATriangleAtZero) {
  CZelData model;
  for (auto const& p : Points{{0, 0, 0}, {2, 0, 0}, {0, 2, 0}, {1, 1, 0}})
    NodeAt(model, p.x, p.y, p.z);
  model.SetElem(kParent, Element(ElementType::Tri3, {1, 2, 3}));
  model.SetElem(80, Element(ElementType::Tri3, {1, 2, 4}));
  model.SetFaceThermalLoad(1, Temperature(ThermalType::PerCorner, {1, 0, 3, 0, 5, 0, 99, 99}));
  EXPECT_TRUE(Map(model));
  EXPECT_EQ(ValuesOf(model.FaceThermalLoad(), 8), (AllValues{{L"80", {1, 0, 3, 0, 4, 0, 0, 0}}}));
}

TEST(MapFaceThermalLoadLoading, WritesOnlyFiniteValuesWhereTheCornersDoNotDetermineTheFit) {
  CZelData model;
  for (double const x : {0.0, 1.0, 2.0, 0.5}) NodeAt(model, x, 0, 0);
  model.SetElem(kParent, Element(ElementType::Tri3, {1, 2, 3}));
  model.SetElem(80, Element(ElementType::Tri3, {1, 4, 2}));
  model.SetFaceThermalLoad(1, Temperature(ThermalType::PerCorner, {1, 2, 3, 4, 5, 6}));
  EXPECT_TRUE(Map(model));
  ASSERT_EQ(model.HighestFaceThermalLoad(), 1);  // there is no test of the rank here
  for (int i = 0; i < 8; ++i) EXPECT_TRUE(std::isfinite(model.FaceThermalLoad(1).Value(i)));
  // What the corners do determine, along the line, is kept: 1 + 2 x at the top.
  EXPECT_NEAR(model.FaceThermalLoad(1).Value(2), 2, 1e-12);
}

TEST(MapFaceThermalLoadLoading, LeavesALoadOnAnIndirectListAndSaysSo) {
  auto model = CutPlate(2, 1);
  model.SetFaceThermalLoad(1, Temperature(ThermalType::Uniform, {5}, L"all"));
  CZelData const before(model);
  EXPECT_FALSE(Map(model));
  EXPECT_TRUE(IsUnchanged(model, before));
}

// All together.

TEST(Map2DLoading, MapsEdgesAndTemperaturesAlsoWhereFaceLoadsFailed) {
  auto model = CutPlate(2, 1);
  model.SetFaceLoad(1, Pressure(FaceType::Uniform, {5}, L"all"));
  Data::CEdgeLoad edge;
  edge.SetLoadCase(4);
  edge.SetEdge(1);
  edge.SetValue(0, 1);
  edge.SetValue(1, 3);
  edge.SetLoadedEntities(Elements(L"70"));
  model.SetEdgeLoad(1, edge);
  model.SetFaceThermalLoad(1, Temperature(ThermalType::Uniform, {20}));
  EXPECT_FALSE(Map(model));
  // 1 + 2 / 2 in the middle of the edge.
  EXPECT_EQ(ValuesOf(model.EdgeLoad(), 2), (AllValues{{L"80", {1, 2}}, {L"81", {2, 3}}}));
  EXPECT_EQ(ValuesOf(model.FaceThermalLoad(), 1), (AllValues{{L"80 81", {20}}}));
}

TEST(Map2DLoading, IsAStepForFaceLoadsAndOneForTemperaturesAndNoneForEdgesWithoutLoads) {
  auto model = CutPlate(2, 1);
  EXPECT_TRUE(Map(model));
  EXPECT_EQ(model.NumUndo(), 2);
}

TEST(Map2DLoading, WritesNothingWhereACoordinateIsNotFiniteAndSaysSo) {
  double const nan = std::numeric_limits<double>::quiet_NaN();
  for (auto const type : {FaceType::Uniform, FaceType::PerCorner, FaceType::Point}) {
    auto model = CutPlate(2, 1);
    model.SetNodeCoor(2, {nan, 0, 0});
    model.SetFaceLoad(1, Pressure(type, {5, 5, 5, 5}));
    EXPECT_FALSE(Map(model));
    EXPECT_EQ(model.HighestFaceLoad(), 0);
  }
  for (auto const type : {ThermalType::Uniform, ThermalType::PerCorner}) {
    auto model = CutPlate(2, 1);
    model.SetNodeCoor(2, {nan, 0, 0});
    model.SetFaceThermalLoad(1, Temperature(type, {5}));
    EXPECT_FALSE(Map(model));
    EXPECT_EQ(model.HighestFaceThermalLoad(), 0);
  }
}

TEST(Map2DLoading, WritesNothingOfALoadThatIsNotFiniteAndSaysSo) {
  double const inf = std::numeric_limits<double>::infinity();
  std::vector<CFaceLoad> loads{Pressure(FaceType::Uniform, {inf}),
                               Pressure(FaceType::PerCorner, {1, 2, 3, inf}), PointAt(inf, 0)};
  for (auto const& load : loads) {
    auto model = CutPlate(2, 1);
    model.SetFaceLoad(1, load);
    EXPECT_FALSE(Map(model));
    EXPECT_EQ(model.HighestFaceLoad(), 0);
  }
  auto model = CutPlate(2, 1);
  model.SetFaceThermalLoad(1, Temperature(ThermalType::PerCorner, {0, 0, 0, 0, 0, 0, 0, inf}));
  EXPECT_FALSE(Map(model));
  EXPECT_EQ(model.HighestFaceThermalLoad(), 0);
}

// The fit on random plates: a + b x + c y + d x y in local axes comes back at the corners of random
// pieces. The fit is in co-ordinates that are not shifted, so far from the origin digits go.

void ExpectFieldAtCorners(double distance, double tolerance) {
  Random random(7);
  for (int i = 0; i < 200; ++i) {
    CZelData model;
    Vec3<double> const origin{random.Real(-1, 1) * distance, random.Real(-1, 1) * distance,
                              random.Real(-1, 1) * distance};
    Util::CDirCos const frame({random.Real(-1, 1), random.Real(-1, 1), random.Real(-1, 1)},
                              {random.Real(-1, 1), random.Real(-1, 1), random.Real(-1, 1)});
    auto const node = [&](double x, double y) {
      auto const p = origin + frame.LtoG({x, y, 0});
      return NodeAt(model, p.x, p.y, p.z);
    };
    // A quadrilateral of about 1 by 1, and random pieces of three and four corners within it.
    auto const near = [&](double v) { return v + random.Real(-0.2, 0.2); };
    std::vector<int> corners;
    for (auto const& [x, y] : {std::pair(0.0, 0.0), {1.0, 0.0}, {1.0, 1.0}, {0.0, 1.0}}) {
      double const px = near(x);
      corners.push_back(node(px, near(y)));
    }
    model.SetElem(kParent, Element(ElementType::Quad4, corners));
    for (int n = 80; n < 84; ++n) {
      bool const quad = n % 2 == 0;
      std::vector<int> nodes;
      for (int k = 0; k < (quad ? 4 : 3); ++k) {
        double const x = random.Real(0, 1);
        nodes.push_back(node(x, random.Real(0, 1)));
      }
      model.SetElem(n, Element(quad ? ElementType::Quad4 : ElementType::Tri3, nodes));
    }
    auto const local = model.ElemDC(kParent);
    std::array<double, 4> const c{random.Real(-1, 1), random.Real(-1, 1), random.Real(-1, 1),
                                  random.Real(-1, 1)};
    auto const base = local.GtoL(model.NodeCoor(corners[0]));
    // Told from a corner of the plate, so that its size does not grow with the distance.
    auto const field = [&](int at) {
      auto const p = local.GtoL(model.NodeCoor(at)) - base;
      return 10 * c[0] + c[1] * p.x + c[2] * p.y + c[3] * p.x * p.y;
    };
    auto load = Pressure(FaceType::PerCorner, {});
    double size = 0;
    for (int k = 0; k < 4; ++k) {
      load.SetValue(k, field(corners[static_cast<std::size_t>(k)]));
      size = std::max(size, std::abs(load.Value(k)));
    }
    model.SetFaceLoad(1, load);
    ASSERT_TRUE(Map(model));
    ASSERT_EQ(model.HighestFaceLoad(), 4);
    for (int n = 1; n <= 4; ++n) {
      auto const& piece = model.Elem(79 + n);
      for (int k = 0; k < piece.NumTopo(); ++k)
        ASSERT_NEAR(model.FaceLoad(n).Value(k), field(piece.Topo(k)), tolerance * size);
    }
  }
}

TEST(MapFaceLoading, ReproducesAFieldWithinTenLengthsOfTheOriginToTwelveDigits) {
  ExpectFieldAtCorners(5, 1e-12);
}

TEST(MapFaceLoading, ReproducesAFieldAKilometreAwayToSevenDigits) {
  ExpectFieldAtCorners(577, 1e-7);
}

}  // namespace
}  // namespace Tarvex::FaceMappingTest
