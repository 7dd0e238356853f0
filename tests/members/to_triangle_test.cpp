#include <algorithm>
#include <cmath>

#include "store/model/list_expansion.h"
#include "store/record/member.h"
#include "tests/members/plate_support.h"

namespace Tarvex::ToTriangleTest {
namespace {

using namespace Testing;

void ToTriangle(CZelData& model, std::vector<int> const& numbers) {
  Convert<CMod2DToTriangle>(model, numbers);
}

/// A quadrilateral of corners 1 to 4.
CZelData OneQuad(Points const& p) {
  CZelData model;
  QuadAt(model, p[0], p[1], p[2], p[3]);
  return model;
}

// Where the cut runs.

TEST(CMod2DToTriangle, CutsASquareFromItsFirstCorner) {
  // All products are 0: below 1, and the later ones are not smaller than the first.
  auto model = OneQuad(kSquare);
  ToTriangle(model, {1});
  EXPECT_EQ(ElementNumbers(model), (std::vector{2, 3}));
  EXPECT_TRUE(References(model, 2, {1, 2, 3}));
  EXPECT_TRUE(References(model, 3, {3, 4, 1}));
  EXPECT_EQ(model.Elem(2).Type(), ElementType::Tri3);
  EXPECT_EQ(model.Elem(3).Type(), ElementType::Tri3);
  EXPECT_EQ(model.HighestNode(), 4);
  EXPECT_TRUE(AttachmentsFollowTopology(model));
}

TEST(CMod2DToTriangle, CutsFromTheFlattestCorner) {
  // Corner 1 (the second): sides to (0,0) and (3,2), (-2,0).(1,2) = -2. Corner 3: sides to (3,2)
  // and (0,0) from (1,2), (2,0).(-1,-2) = -2: not smaller. Corners 0 and 2: +2.
  auto model = OneQuad({{0, 0, 0}, {2, 0, 0}, {3, 2, 0}, {1, 2, 0}});
  ToTriangle(model, {1});
  EXPECT_TRUE(References(model, 2, {2, 3, 4}));
  EXPECT_TRUE(References(model, 3, {4, 1, 2}));
}

TEST(CMod2DToTriangle, CutsFromTheThirdOrFourthCornerWhenThatIsTheFlattest) {
  struct Row {
    Points corners;
    std::vector<int> first, second;
  };
  // A square with corner 2 pulled in to (0.4, 0.4), product of (-0.4,0.6).(0.6,-0.4) = -0.48; its
  // neighbours have (1,0)->(0,0),(0.4,0.4): (-1,0).(-0.6,0.4) = 0.6. Then the same one corner on.
  std::vector<Row> const rows{
      {{{0, 0, 0}, {1, 0, 0}, {0.4, 0.4, 0}, {0, 1, 0}}, {3, 4, 1}, {1, 2, 3}},
      {{{1, 0, 0}, {0.4, 0.4, 0}, {0, 1, 0}, {0, 0, 0}}, {2, 3, 4}, {4, 1, 2}},
      {{{0, 1, 0}, {0, 0, 0}, {1, 0, 0}, {0.4, 0.4, 0}}, {4, 1, 2}, {2, 3, 4}},
      {{{0.4, 0.4, 0}, {0, 1, 0}, {0, 0, 0}, {1, 0, 0}}, {1, 2, 3}, {3, 4, 1}},
  };
  for (auto const& row : rows) {
    auto model = OneQuad(row.corners);
    ToTriangle(model, {1});
    EXPECT_TRUE(References(model, 2, row.first));
    EXPECT_TRUE(References(model, 3, row.second));
    // Two triangles over the straight sides of 1, of height 0.4.
    EXPECT_NEAR(TotalSize(model, 2), 0.4, 1e-12);
  }
}

TEST(CMod2DToTriangle, CutsFromTheFirstCornerWhenTheSmallestProductIsLittleAboveOne) {
  // corner 0: (0,3,2).(3,0,2) = 4              corner 1: (-3,0,-2).(0,3,-1.1) = 2.2
  // corner 2: (0,-3,1.1).(-3,0,1.1) = 1.21     corner 3: (3,0,-1.1).(0,-3,-2) = 2.2
  auto model = OneQuad({{0, 0, 0}, {3, 0, 2}, {3, 3, 0.9}, {0, 3, 2}});
  ToTriangle(model, {1});
  EXPECT_TRUE(References(model, 2, {1, 2, 3}));
  EXPECT_TRUE(References(model, 3, {3, 4, 1}));
}

TEST(CMod2DToTriangle, CutsFromTheFirstCornerWhenNoProductIsBelowOne) {
  // A skew ring whose corners are all acute: (0,0,0) (10,0,10) (10,10,0) (0,10,10).
  //   corner 0: (0,10,10).(10,0,10) = 100      corner 1: (-10,0,-10).(0,10,-10) = 100
  //   corner 2: (0,-10,10).(-10,0,10) = 100    corner 3: (10,0,-10).(0,-10,-10) = 100
  // The smallest is not taken either when it is above 1: corner 2 moved to (10, 10, 5) has
  // (0,-10,5).(-10,0,5) = 25, its neighbours 50.
  for (double const z : {0.0, 5.0}) {
    auto model = OneQuad({{0, 0, 0}, {10, 0, 10}, {10, 10, z}, {0, 10, 10}});
    ToTriangle(model, {1});
    EXPECT_TRUE(References(model, 2, {1, 2, 3}));
    EXPECT_TRUE(References(model, 3, {3, 4, 1}));
  }
}

TEST(CMod2DToTriangle, TakesAProductBelowOneOverTheFirstCornerAndOneOfOneNot) {
  // Corner 0: (0,2,1).(2,0,1) = 1, not below 1. Corner 1 (from (2,0,1)): (-2,0,-1).(0,2,c-1), with
  // corner 2 at (2,2,c): 1 - c. c = 0 gives 1 at corner 1 too: the cut stays at corner 0. c = 0.5
  // gives 0.5, and corner 3 (from (0,2,1)): (2,0,c-1).(0,-2,-1) = 1 - c, not smaller; corner 2:
  // (0,-2,1-c).(-2,0,1-c) = (1-c)^2 = 1 or 0.25. So with c = 0.5 corner 2 is the flattest.
  struct Row {
    double c;
    std::vector<int> first;
  };
  for (auto const& row : {Row{0, {1, 2, 3}}, Row{0.5, {3, 4, 1}}}) {
    auto model = OneQuad({{0, 0, 0}, {2, 0, 1}, {2, 2, row.c}, {0, 2, 1}});
    ToTriangle(model, {1});
    EXPECT_TRUE(References(model, 2, row.first));
  }
}

// Quadratic elements: corners 1 to 4, mid-side nodes 5 to 8, the new node 9.

TEST(CMod2DToTriangle, CutsAnEightNodedQuadrilateralIntoSixNodedTriangles) {
  CZelData model;
  QuadraticAt(model, kSquare);
  ToTriangle(model, {1});
  EXPECT_EQ(model.Elem(2).Type(), ElementType::Tri6);
  EXPECT_TRUE(References(model, 2, {1, 2, 3, 5, 6, 9}));
  EXPECT_TRUE(References(model, 3, {3, 4, 1, 7, 8, 9}));
  EXPECT_EQ(model.NodeCoor(9), (Vec3<double>{0.5, 0.5, 0}));
  EXPECT_TRUE(AttachmentsFollowTopology(model));
}

TEST(CMod2DToTriangle, CountsMidSideNodesRoundTheRingFromTheCornerOfTheCut) {
  CZelData model;
  QuadraticAt(model, {{0, 1, 0}, {0, 0, 0}, {1, 0, 0}, {0.4, 0.4, 0}});  // flattest: the fourth
  ToTriangle(model, {1});
  EXPECT_TRUE(References(model, 2, {4, 1, 2, 8, 5, 9}));
  EXPECT_TRUE(References(model, 3, {2, 3, 4, 6, 7, 9}));
}

TEST(CMod2DToTriangle, GivesTheNewNodeTheCommonRestraintsAndTheCommonAxis) {
  struct Row {
    int axis;
    int expected;
  };
  for (auto const& row : {Row{7, 7}, Row{8, 0}}) {
    CZelData model;
    QuadraticAt(model, kSquare);
    model.SetNodeAxis(1, 7);
    model.SetNodeAxis(3, row.axis);
    model.SetNodeRestraint(1, kHeldXY);
    model.SetNodeRestraint(3, kHeldYZ);
    ToTriangle(model, {1});
    EXPECT_EQ(model.Node(9).Axis(), row.expected);
    EXPECT_EQ(model.Node(9).Restraint(), kHeldY);  // of both, whatever the axes
  }
}

TEST(CMod2DToTriangle, MakesANodeOfItsOwnForEachElement) {
  CZelData model;
  QuadraticAt(model, kSquare);
  QuadraticAt(model, kSquare);
  ToTriangle(model, {1, 2});
  EXPECT_EQ(model.Elem(3).Topo(5), 17);
  EXPECT_EQ(model.Elem(5).Topo(5), 18);
}

// What the triangles take from the element.

TEST(CMod2DToTriangle, KeepsReleasesWithTheirNodes) {
  auto model = OneQuad({{0, 0, 0}, {2, 0, 0}, {3, 2, 0}, {1, 2, 0}});  // cut from the second corner
  CElemConnect soft(kHeldX);
  soft.SetStiffness(Direction::X, 30);
  model.SetElemConnect(1, 1, soft);
  model.SetElemConnect(1, 2, CElemConnect(kHeldY));
  ToTriangle(model, {1});
  // 2: corners 1 2 3; 3: corners 3 0 1
  EXPECT_EQ(model.Elem(2).Connect(0), soft);
  EXPECT_EQ(model.Elem(2).Connect(1), CElemConnect(kHeldY));
  EXPECT_EQ(model.Elem(2).Connect(2), CElemConnect());
  EXPECT_EQ(model.Elem(3).Connect(0), CElemConnect());
  EXPECT_EQ(model.Elem(3).Connect(1), CElemConnect());
  EXPECT_EQ(model.Elem(3).Connect(2), soft);
}

TEST(CMod2DToTriangle, ReleasesTheNewNodeWhereBothEndsOfTheDiagonalAre) {
  CZelData model;
  QuadraticAt(model, kSquare);
  CElemConnect soft(kHeldXY);
  soft.SetStiffness(Direction::Y, 30);
  model.SetElemConnect(1, 0, soft);
  model.SetElemConnect(1, 2, CElemConnect(kHeldYZ));
  model.SetElemConnect(1, 5, CElemConnect(kHeldX));
  model.SetElemConnect(1, 7, CElemConnect(kHeldY));
  ToTriangle(model, {1});
  EXPECT_EQ(model.Elem(2).Connect(0), soft);
  EXPECT_EQ(model.Elem(2).Connect(3), CElemConnect());
  EXPECT_EQ(model.Elem(2).Connect(4), CElemConnect(kHeldX));
  EXPECT_EQ(model.Elem(2).Connect(5), CElemConnect(kHeldY));
  EXPECT_EQ(model.Elem(3).Connect(0), CElemConnect(kHeldYZ));
  EXPECT_EQ(model.Elem(3).Connect(3), CElemConnect());
  EXPECT_EQ(model.Elem(3).Connect(4), CElemConnect(kHeldY));
  EXPECT_EQ(model.Elem(3).Connect(5), CElemConnect(kHeldY));
}

TEST(CMod2DToTriangle, CopiesEverythingElseAndIsNoLongerLocked) {
  auto model = OneQuad(kSquare);
  auto element = model.Elem(1);
  element.SetGroup(3);
  element.SetProperty(4);
  element.SetOrientationAngle(30);
  element.SetOffset(Data::COffset(0, 0, 0, 0.2));
  element.SetName(L"slab");
  element.SetSid(L"s1");
  element.SetParentMember({2, 1});
  model.SetElem(1, element);
  ToTriangle(model, {1});
  element.SetType(ElementType::Tri3);
  element.SetTopo(std::vector<int>{1, 2, 3});
  EXPECT_TRUE(model.Elem(2) == element);
  element.SetTopo(std::vector<int>{3, 4, 1});
  EXPECT_TRUE(model.Elem(3) == element);
  EXPECT_FALSE(model.Elem(2).IsLocked());
}

TEST(CMod2DToTriangle, MakesPiecesOfALockedElementThatAreNotLocked) {
  auto model = OneQuad(kSquare);
  model.LockElem(1, true);
  ToTriangle(model, {1});
  EXPECT_TRUE(model.ElemExist(1));  // the lock protects it
  EXPECT_FALSE(model.Elem(2).IsLocked());
  EXPECT_FALSE(model.Elem(3).IsLocked());
}

// Numbers.

TEST(CMod2DToTriangle, CountsNumbersByTheElementsThatItCuts) {
  CZelData model;
  Grid(model, 3, 1);                                                               // 1 2 3
  ElementAt(model, ElementType::Tri3, kTriangle);                                  // 4
  Brick(model, 1, 1, 1);                                                           // 5
  QuadraticAt(model, kTriangle);                                                   // 6
  PanelAt(model, kSquare);                                                         // 7
  int const last = QuadAt(model, kSquare[0], kSquare[1], kSquare[2], kSquare[3]);  // 8
  model.BlankElem(2, 1);
  model.SetElem(9, Element(ElementType::Quad4, {1, 2, 5, 0}));  // without its last corner
  EXPECT_EQ(last, 8);
  ToTriangle(model, {1, 2, 3, 4, 5, 6, 7, 8, 9, 50});
  // 1 became 10 and 11, 3 became 12 and 13, 8 became 14 and 15; the panel keeps 7.
  EXPECT_EQ(ElementNumbers(model), (std::vector{4, 5, 6, 9, 10, 11, 12, 13, 14, 15}));
  EXPECT_TRUE(model.LoadPanelExist(7));
  EXPECT_TRUE(References(model, 12, {3, 4, 8}));
  EXPECT_TRUE(References(model, 14, {30, 31, 32}));
}

TEST(CMod2DToTriangle, DoesNotCutThePiecesWhoseNumbersTheSetHolds) {
  auto model = OneQuad(kSquare);
  ToTriangle(model, {1, 2, 3, 4});
  EXPECT_EQ(ElementNumbers(model), (std::vector{2, 3}));
}

TEST(CMod2DToTriangle, ChangesNothingWithoutAQuadrilateralInTheSet) {
  CZelData model;
  ElementAt(model, ElementType::Tri3, kTriangle);
  QuadraticAt(model, kTriangle);
  CZelData const before(model);
  ToTriangle(model, {});
  ToTriangle(model, {1, 2, 3});
  EXPECT_TRUE(IsUnchanged(model, before));
}

// References and loads.

Data::CEntList Elements(wchar_t const* text) { return {SelElement, CString(text)}; }

TEST(CMod2DToTriangle, PutsTheTrianglesInThePlaceOfTheElementInLists) {
  CZelData model;
  Grid(model, 2, 1);
  auto list = Elements(L"1 2");
  list.SetName(L"slab");
  model.SetList(1, list);
  ToTriangle(model, {2});
  EXPECT_EQ(TextOf(model.List(1)), L"1 3 4");
}

TEST(CMod2DToTriangle, LeavesPiecesOfAChildUnregistered) {
  auto model = OneQuad(kSquare);
  int const member = MemberAt(model, MembType::Slab, L"1 2 3 4");
  auto element = model.Elem(1);
  element.SetParentMember({member, 0});
  model.SetElem(1, element);
  model.AddChildElement(member, 1, 0);
  ToTriangle(model, {1});
  EXPECT_EQ(model.Member(member).NumElem(), 0);
  EXPECT_EQ(model.Elem(2).ParentMember().member, member);
}

Data::CFaceLoad Pressure(Data::CFaceLoad::Load2D type, std::vector<double> const& values,
                         wchar_t const* list) {
  Data::CFaceLoad load;
  load.SetType(type);
  load.SetLoadedEntities(Elements(list));
  for (std::size_t i = 0; i < values.size(); ++i) load.SetValue(static_cast<int>(i), values[i]);
  return load;
}
using FaceType = Data::CFaceLoad::Load2D;

TEST(CMod2DToTriangle, MapsUniformPressureByNumbersAndByRange) {
  CZelData model;
  Grid(model, 2, 1);
  model.SetFaceLoad(1, Pressure(FaceType::Uniform, {5}, L"1 2"));
  model.SetFaceLoad(2, Pressure(FaceType::Uniform, {6}, L"1 to 2"));
  ToTriangle(model, {1});
  EXPECT_EQ(TextOf(model.FaceLoad(1).LoadedEntities()), L"2 3 4");
  EXPECT_EQ(Util::MakeSet(model.FaceLoad(2).LoadedEntities(), model), SetOf({2, 3, 4}));
}

TEST(CMod2DToTriangle, MapsPressureByCornerThatIsLinearExactly) {
  auto model = OneQuad({{0, 0, 0}, {2, 0, 0}, {2, 1, 0}, {0, 1, 0}});
  model.SetFaceLoad(1, Pressure(FaceType::PerCorner, {1, 3, 6, 4}, L"1"));  // 1 + x + 3 y
  ToTriangle(model, {1});
  ASSERT_EQ(model.HighestFaceLoad(), 2);
  auto const& first = model.FaceLoad(1);
  EXPECT_EQ(TextOf(first.LoadedEntities()), L"2");  // corners 1 2 3
  EXPECT_NEAR(first.Value(0), 1, 1e-12);
  EXPECT_NEAR(first.Value(1), 3, 1e-12);
  EXPECT_NEAR(first.Value(2), 6, 1e-12);
  EXPECT_EQ(first.Value(3), 0);
  auto const& second = model.FaceLoad(2);  // corners 3 4 1
  EXPECT_NEAR(second.Value(0), 6, 1e-12);
  EXPECT_NEAR(second.Value(1), 4, 1e-12);
  EXPECT_NEAR(second.Value(2), 1, 1e-12);
}

TEST(CMod2DToTriangle, ChangesTheTotalOfABilinearPressure) {
  // p = 4 x y on the unit square, total 4 * 1/2 * 1/2 = 1. The triangles have the corner values 0 0
  // 4 and 4 0 0, each a third of them times half an area: 4 / 3 * 1/2 = 2/3, together 4/3.
  auto model = OneQuad(kSquare);
  model.SetFaceLoad(1, Pressure(FaceType::PerCorner, {0, 0, 4, 0}, L"1"));
  ToTriangle(model, {1});
  double total = 0;
  for (auto const& load : model.FaceLoad())
    total += (load.Value(0) + load.Value(1) + load.Value(2)) / 3 * 0.5;
  EXPECT_NEAR(total, 4.0 / 3, 1e-12);
}

TEST(CMod2DToTriangle, GivesEdgeLoadsToTheTriangleThatHasTheEdge) {
  auto model = OneQuad(kSquare);
  for (int edge = 1; edge <= 4; ++edge) {
    Data::CEdgeLoad load;
    load.SetLoadedEntities(Elements(L"1"));
    load.SetEdge(edge);
    load.SetValue(0, edge);
    load.SetValue(1, 10 * edge);
    model.SetEdgeLoad(edge, load);
  }
  ToTriangle(model, {1});
  // 2 has the corners 1 2 3 and so the edges 1 and 2 as its own 1 and 2; 3 has 3 4 1: 3 and 4.
  std::vector<std::vector<double>> found;
  for (auto const& load : model.EdgeLoad())
    found.push_back({static_cast<double>(std::stoi(TextOf(load.LoadedEntities()))),
                     static_cast<double>(load.Edge()), load.Value(0), load.Value(1)});
  std::sort(found.begin(), found.end());
  EXPECT_EQ(found, (std::vector<std::vector<double>>{
                       {2, 1, 1, 10}, {2, 2, 2, 20}, {3, 1, 3, 30}, {3, 2, 4, 40}}));
}

TEST(CMod2DToTriangle, MapsTemperatures) {
  auto model = OneQuad(kSquare);
  Data::CFaceThermalLoad load;
  load.SetType(Data::CFaceThermalLoad::ThermalType::Uniform);
  load.SetValue(0, 20);
  load.SetLoadedEntities(Elements(L"1"));
  model.SetFaceThermalLoad(1, load);
  ToTriangle(model, {1});
  EXPECT_EQ(TextOf(model.FaceThermalLoad(1).LoadedEntities()), L"2 3");
}

TEST(CMod2DToTriangle, GivesTheAreaOfItsTwoPlanesForAWarpedElement) {
  // Corner 3 lifted by 1: planes through (0,0,0) (1,0,0) (1,1,0) and (1,1,0) (0,1,1) (0,0,0). The
  // first has area 1/2; the second |(-1,0,1) x (-1,-1,0)| / 2 = |(1,-1,1)| / 2 = sqrt(3) / 2.
  auto model = OneQuad({{0, 0, 0}, {1, 0, 0}, {1, 1, 0}, {0, 1, 1}});
  ToTriangle(model, {1});
  EXPECT_TRUE(References(model, 2, {1, 2, 3}));
  EXPECT_NEAR(TotalSize(model, 2), 0.5 + std::sqrt(3.0) / 2, 1e-12);
}

}  // namespace
}  // namespace Tarvex::ToTriangleTest
