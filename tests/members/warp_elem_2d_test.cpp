#include <cmath>

#include "store/model/list_expansion.h"
#include "tests/members/plate_support.h"

namespace Tarvex::WarpElem2DTest {
namespace {

using namespace Testing;

void CutWarped(CZelData& model, std::vector<int> const& numbers) {
  Convert<CWarpElem2D>(model, numbers);
}

/// The unit square with corners 0 and 2 up and 1 and 3 down by a quarter of the rise: its normal is
/// z, and its first side leaves the plane by half the rise over a length of sqrt(1 + rise^2 / 4).
Points Saddle(double rise) {
  double const h = rise / 4;
  return {{0, 0, h}, {1, 0, -h}, {1, 1, h}, {0, 1, -h}};
}
CZelData OneQuad(Points const& p) {
  CZelData model;
  QuadAt(model, p[0], p[1], p[2], p[3]);
  return model;
}

bool IsCut(Points const& corners) {
  auto model = OneQuad(corners);
  CutWarped(model, {1});
  return model.HighestElem() == 2;
}

TEST(CWarpElem2D, CutsAWarpedQuadrilateralAcrossTheFirstCornerAndKeepsItsNumber) {
  auto model = OneQuad(Saddle(0.4));
  CutWarped(model, {1});
  EXPECT_EQ(ElementNumbers(model), (std::vector{1, 2}));
  EXPECT_TRUE(References(model, 1, {1, 2, 3}));
  EXPECT_TRUE(References(model, 2, {3, 4, 1}));
  EXPECT_EQ(model.Elem(1).Type(), ElementType::Tri3);
  EXPECT_EQ(model.Elem(2).Type(), ElementType::Tri3);
  EXPECT_TRUE(AttachmentsFollowTopology(model));
}

TEST(CWarpElem2D, LeavesAPlaneQuadrilateralAndOneOfLittleWarp) {
  // w = (rise / 2) / sqrt(1 + rise^2 / 4): 0.0099995 at a rise of 0.02, 0.0105 at 0.021.
  EXPECT_FALSE(IsCut(kSquare));
  EXPECT_FALSE(IsCut(Saddle(0.02)));
  EXPECT_TRUE(IsCut(Saddle(0.021)));
}

TEST(CWarpElem2D, MeasuresTheWarpByTheLongestSide) {
  // The sides along x are 10: 0.05 / 10 is little, 0.05 / 1 would not be.
  Points flat = Saddle(0.1);
  for (auto& p : flat) p.x *= 10;
  EXPECT_FALSE(IsCut(flat));
  flat = Saddle(0.22);  // 0.11 / 10
  for (auto& p : flat) p.x *= 10;
  EXPECT_TRUE(IsCut(flat));
}

TEST(CWarpElem2D, TakesTheLongestOfAllFourSides) {
  // The first side drops by 0.094. Both normals are z, as no diagonal rises.
  double const h = 0.047;
  // Sides of 1.00, 9.06 from (9, 1, 0.094), 10.00 and 1.00: 0.094 / 10 = 0.0094, while by 9.06 it
  // is 0.0104.
  EXPECT_FALSE(IsCut({{0, 0, h}, {1, 0, -h}, {10, 1, h}, {0, 1, -h}}));
  // Sides of 1.00, 1.00, 9.06 and 10.00.
  EXPECT_FALSE(IsCut({{0, 0, h}, {1, 0, -h}, {1, 1, h}, {0, 10, -h}}));
  // A side of 9.2 as the longest: 0.094 / 9.2 = 0.0102.
  EXPECT_TRUE(IsCut({{0, 0, h}, {1, 0, -h}, {9.2, 1, h}, {0, 1, -h}}));
}

/// A rectangle of the given length and width 1 whose sides all drop by 1: its normal is z.
Points Long(double length) {
  return {{0, 0, 0.5}, {length, 0, -0.5}, {length, 1, 0.5}, {0, 1, -0.5}};
}

TEST(CWarpElem2D, LeavesAnElementAtExactlyTheLimit) {
  // A drop of 1 over a side of 100: sqrt(9999 + 1).
  auto const limit = Long(std::sqrt(9999.0));
  ASSERT_EQ(Length(limit[1] - limit[0]), 100.0);
  EXPECT_FALSE(IsCut(limit));
  EXPECT_TRUE(IsCut(Long(99.99)));  // 1 / sqrt(99.99^2 + 1) = 0.0100005
}

/// Diagonals of the given lengths along x (0 to 2) and y (1 to 3), half a unit above and below 0.
Points Kite(double first, double second) {
  return {{-first / 2, 0, 0.5}, {0, -second / 2, -0.5}, {first / 2, 0, 0.5}, {0, second / 2, -0.5}};
}

TEST(CWarpElem2D, TakesTheFirstDiagonalWhileItIsAtMostElevenTenthsOfTheOther) {
  struct Row {
    double first;
    bool takesFirst;
  };
  for (auto const& row : {Row{5, true}, Row{10, true}, Row{11, true}, Row{11.01, false}}) {
    SCOPED_TRACE(row.first);
    auto model = OneQuad(Kite(row.first, 10));
    CutWarped(model, {1});
    EXPECT_TRUE(References(model, 1, row.takesFirst ? std::vector{1, 2, 3} : std::vector{1, 2, 4}));
    EXPECT_TRUE(References(model, 2, row.takesFirst ? std::vector{3, 4, 1} : std::vector{3, 4, 2}));
  }
}

// Quadratic elements: corners 1 to 4, mid-side nodes 5 to 8, the new node 9.

TEST(CWarpElem2D, CutsAnEightNodedElementAcrossEitherDiagonal) {
  {
    CZelData model;
    QuadraticAt(model, Kite(4, 6));
    CutWarped(model, {1});
    EXPECT_EQ(model.Elem(1).Type(), ElementType::Tri6);
    EXPECT_TRUE(References(model, 1, {1, 2, 3, 5, 6, 9}));
    EXPECT_TRUE(References(model, 2, {3, 4, 1, 7, 8, 9}));
    EXPECT_EQ(model.NodeCoor(9), (Vec3<double>{0, 0, 0.5}));
  }
  CZelData model;
  QuadraticAt(model, Kite(6, 4));
  CutWarped(model, {1});
  EXPECT_EQ(model.Elem(2).Type(), ElementType::Tri6);
  EXPECT_TRUE(References(model, 1, {1, 2, 4, 5, 9, 8}));
  EXPECT_TRUE(References(model, 2, {3, 4, 2, 7, 9, 6}));
  EXPECT_EQ(model.NodeCoor(9), (Vec3<double>{0, 0, -0.5}));
  EXPECT_TRUE(AttachmentsFollowTopology(model));
}

TEST(CWarpElem2D, GivesTheNewNodeNeitherAxisNorRestraint) {
  CZelData model;
  QuadraticAt(model, Kite(4, 6));
  for (int const n : {1, 3}) {
    model.SetNodeAxis(n, 4);
    model.SetNodeRestraint(n, kHeldXY);
  }
  CutWarped(model, {1});
  EXPECT_EQ(model.Node(9).Axis(), 0);
  EXPECT_TRUE(model.Node(9).Restraint().IsNone());
}

TEST(CWarpElem2D, KeepsOffsetAndReleasesByThePlacesOfTheTopology) {
  auto model = OneQuad(Kite(4, 6));
  auto element = model.Elem(1);
  element.SetOffset(Data::COffset(0, 0, 0, 0.2));
  element.SetGroup(3);
  element.SetConnect(1, CElemConnect(kHeldX));
  element.SetConnect(3, CElemConnect(kHeldY));
  model.SetElem(1, element);
  CutWarped(model, {1});
  element.SetType(ElementType::Tri3);  // drops place 3
  element.SetTopo(std::vector<int>{1, 2, 3});
  EXPECT_TRUE(model.Elem(1) == element);
  element.SetTopo(std::vector<int>{3, 4, 1});
  EXPECT_TRUE(model.Elem(2) == element);
  EXPECT_EQ(model.Elem(2).Connect(1).Release(), kHeldX);
}

// What is passed over.

TEST(CWarpElem2D, LeavesElementsOfCurvedShellsAndTakesThoseOfAnyOtherOrNoProperty) {
  for (int type = 0; type <= 10; ++type) {
    SCOPED_TRACE(type);
    auto model = OneQuad(Kite(4, 6));
    model.SetElemProperty(1, 5);
    Data::CProp2D property;
    property.SetType(static_cast<Data::PropertyType2d>(type));
    model.SetProp2D(5, property);
    CutWarped(model, {1});
    EXPECT_EQ(model.HighestElem(), type == 7 ? 1 : 2);
  }
  auto model = OneQuad(Kite(4, 6));
  model.SetElemProperty(1, 5);  // does not exist
  CutWarped(model, {1});
  EXPECT_EQ(model.HighestElem(), 2);
}

TEST(CWarpElem2D, PassesOverElementsWithAMissingNodeAlsoInTheMiddleOfASide) {
  auto linear = OneQuad(Kite(4, 6));
  linear.SetElemTopo(1, 3, 99);
  CZelData quadratic;
  QuadraticAt(quadratic, Kite(4, 6));
  quadratic.SetElemTopo(1, 6, 99);
  for (auto* model : {&linear, &quadratic}) {
    CZelData const before(*model);
    CutWarped(*model, {1});
    EXPECT_TRUE(IsUnchanged(*model, before));
  }
}

TEST(CWarpElem2D, PassesOverWhatIsNoQuadrilateralAndOneWithoutArea) {
  CZelData model;
  ElementAt(model, ElementType::Tri3, kTriangle);
  QuadraticAt(model, kTriangle);
  Brick(model, 1, 1, 1);
  PanelAt(model, Kite(4, 6));
  QuadAt(model, {0, 0, 0}, {1, 0, 0}, {2, 0, 0}, {3, 0, 0});  // no normal
  QuadAt(model, {1, 1, 1}, {1, 1, 1}, {1, 1, 1}, {1, 1, 1});
  CZelData const before(model);
  CutWarped(model, {1, 2, 3, 4, 5, 6, 99});
  CutWarped(model, {});
  EXPECT_TRUE(IsUnchanged(model, before));
}

// References and loads.

TEST(CWarpElem2D, NamesBothPiecesInListsAndLeavesTheValuesOfLoadsAsTheyAre) {
  auto model = OneQuad(Kite(6, 4));
  QuadAt(model, kSquare[0], kSquare[1], kSquare[2], kSquare[3]);
  model.SetList(1, Data::CEntList(CString(L"a"), SelElement, CString(L"1 2")));
  Data::CFaceLoad load;
  load.SetType(Data::CFaceLoad::Load2D::PerCorner);
  for (int i = 0; i < 4; ++i) load.SetValue(i, i + 1);
  load.SetLoadedEntities(Data::CEntList(SelElement, CString(L"1")));
  model.SetFaceLoad(1, load);
  Data::CEdgeLoad edge;
  edge.SetEdge(2);
  edge.SetLoadedEntities(Data::CEntList(SelElement, CString(L"1 to 2")));
  model.SetEdgeLoad(1, edge);
  CutWarped(model, {1, 2});
  EXPECT_EQ(Util::MakeSet(model.List(1), model), SetOf({1, 2, 3}));
  EXPECT_EQ(TextOf(model.List(1)), L"1 3 2");
  EXPECT_EQ(model.HighestFaceLoad(), 1);
  EXPECT_EQ(TextOf(model.FaceLoad(1).LoadedEntities()), L"1 3");
  for (int i = 0; i < 4; ++i) EXPECT_EQ(model.FaceLoad(1).Value(i), i + 1);
  EXPECT_EQ(Util::MakeSet(model.EdgeLoad(1).LoadedEntities(), model), SetOf({1, 2, 3}));
  EXPECT_EQ(model.EdgeLoad(1).Edge(), 2);
}

TEST(CWarpElem2D, GivesTheAreaOfItsTwoPlanes) {
  // Kite of diagonals 4 and 6, cut along x: the line from (-2,0,.5) to (2,0,.5) and the corners
  // (0,-3,-.5), (0,3,-.5) at sqrt(9 + 1) from it: 2 * 4 * sqrt(10) / 2 = 4 sqrt(10).
  auto model = OneQuad(Kite(4, 6));
  CutWarped(model, {1});
  EXPECT_NEAR(TotalSize(model, 2), 4 * std::sqrt(10.0), 1e-12);
}

TEST(CWarpElem2D, CutsNothingTwice) {
  auto model = OneQuad(Kite(4, 6));
  CutWarped(model, {1, 2, 3});
  CZelData const once(model);
  CutWarped(model, {1, 2, 3});
  EXPECT_TRUE(IsUnchanged(model, once));
}

}  // namespace
}  // namespace Tarvex::WarpElem2DTest
