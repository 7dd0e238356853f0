// Loads along edges of plates given to the edges of pieces.
#include "tests/topology/plate_support.h"
#include "tests/topology/private_access.h"

namespace Tarvex::EdgeMappingTest {
namespace {

using namespace Testing;
using Data::CEdgeLoad;

CEdgeLoad EdgeLoad(int edge, double v0, double v1, wchar_t const* list = L"70") {
  CEdgeLoad load;
  load.SetLoadCase(4);
  load.SetEdge(edge);
  load.SetValue(0, v0);
  load.SetValue(1, v1);
  load.SetLoadedEntities(Elements(list));
  return load;
}

bool Map(CZelData& model, NumberLists const& pieces) {
  return CDataMgr(model).Map2DLoading(pieces);
}
bool Map(CZelData& model) { return Map(model, PiecesOf(model)); }

/// List, edge and values of a load.
struct Seen {
  std::wstring list;
  int edge;
  double v0;
  double v1;
};
bool operator==(Seen const& a, Seen const& b) {
  return a.list == b.list && a.edge == b.edge && std::abs(a.v0 - b.v0) < 1e-12 &&
         std::abs(a.v1 - b.v1) < 1e-12;
}
void PrintTo(Seen const& seen, std::ostream* out) {
  *out << CString(seen.list).ToUtf8() << ": edge " << seen.edge << " " << seen.v0 << " " << seen.v1;
}
using AllSeen = std::vector<Seen>;
AllSeen Loads(CZelData const& model) {
  AllSeen all;
  for (auto const& load : model.EdgeLoad()) {
    EXPECT_EQ(load.LoadCase(), 4);
    all.push_back({TextOf(load.LoadedEntities()), load.Edge(), load.Value(0), load.Value(1)});
  }
  return all;
}

TEST(MapEdgeLoading, CutsALoadFromOneToThreeAtTheMiddleOfTheEdge) {
  auto model = CutPlate(2, 1);
  model.SetEdgeLoad(1, EdgeLoad(1, 1, 3));
  EXPECT_TRUE(Map(model));
  EXPECT_EQ(Loads(model), (AllSeen{{L"80", 1, 1, 2}, {L"81", 1, 2, 3}}));
}

TEST(MapEdgeLoading, MapsEachEdgeOfTheParentInItsOwnDirection) {
  // 3 by 2 cells: 80 81 82 below, 83 84 85 above. The edge, and who takes it with what.
  struct Case {
    int edge;
    AllSeen loads;
  };
  std::vector<Case> const cases{{1, {{L"80", 1, 0, 2}, {L"81", 1, 2, 4}, {L"82", 1, 4, 6}}},
                                {2, {{L"82", 2, 0, 3}, {L"85", 2, 3, 6}}},
                                {3, {{L"83", 3, 4, 6}, {L"84", 3, 2, 4}, {L"85", 3, 0, 2}}},
                                {4, {{L"80", 4, 3, 6}, {L"83", 4, 0, 3}}}};
  for (auto const& [edge, loads] : cases) {
    auto model = CutPlate(3, 2);
    model.SetEdgeLoad(1, EdgeLoad(edge, 0, 6));
    EXPECT_TRUE(Map(model));
    EXPECT_EQ(Loads(model), loads);
  }
}

TEST(MapEdgeLoading, GivesTheEdgeNumberOfThePieceWhereverItsRingBegins) {
  auto model = CutPlate(2, 1);
  model.SetElem(80, Element(ElementType::Quad4, {5, 4, 1, 2}));  // begins at its upper right
  model.SetEdgeLoad(1, EdgeLoad(1, 1, 3));
  EXPECT_TRUE(Map(model));
  EXPECT_EQ(Loads(model), (AllSeen{{L"80", 3, 1, 2}, {L"81", 1, 2, 3}}));
}

TEST(MapEdgeLoading, MapsToTriangles) {
  auto model = CutPlate(1, 1);
  model.SetElem(80, Element(ElementType::Tri3, {1, 2, 4}));
  model.SetElem(81, Element(ElementType::Tri3, {1, 4, 3}));
  for (int edge = 1; edge <= 4; ++edge) model.SetEdgeLoad(edge, EdgeLoad(edge, 1, 2));
  EXPECT_TRUE(Map(model, {{kParent, {80, 81}}}));
  EXPECT_EQ(Loads(model),
            (AllSeen{{L"80", 1, 1, 2}, {L"80", 2, 1, 2}, {L"81", 2, 1, 2}, {L"81", 3, 1, 2}}));
}

TEST(MapEdgeLoading, TakesCornersOfQuadraticPlatesOnly) {
  auto model = CutPlate(2, 2);
  model.SetElem(kParent, Element(ElementType::Quad8, {1, 3, 9, 7, 2, 6, 8, 4}));
  model.SetEdgeLoad(1, EdgeLoad(2, 1, 3));
  EXPECT_TRUE(Map(model));
  EXPECT_EQ(Loads(model), (AllSeen{{L"81", 2, 1, 2}, {L"83", 2, 2, 3}}));
}

TEST(MapEdgeLoading, PlacesAPieceByItsStraightDistanceFromTheFirstNode) {
  auto model = CutPlate(2, 1);
  model.SetNodeCoor(2, {0.6, 0.8, 0});  // 1 from the first node, on the way to 2 from it
  model.SetEdgeLoad(1, EdgeLoad(1, 1, 3));
  EXPECT_TRUE(Map(model));
  EXPECT_EQ(Loads(model), (AllSeen{{L"80", 1, 1, 2}, {L"81", 1, 2, 3}}));
}

TEST(MapEdgeLoading, GivesAnEdgeToOnePieceThatKeepsIt) {
  auto model = CutPlate(1, 2);
  model.SetEdgeLoad(1, EdgeLoad(1, 1, 3));
  EXPECT_TRUE(Map(model));
  EXPECT_EQ(Loads(model), (AllSeen{{L"80", 1, 1, 3}}));
}

TEST(MapEdgeLoading, GivesNothingForAnEdgeWhoseChainIsOpenAndKeepsTheOthers) {
  auto model = CutPlate(2, 1);
  model.SetEdgeLoad(1, EdgeLoad(1, 1, 3));
  model.SetEdgeLoad(2, EdgeLoad(4, 5, 5));
  // The outline of 80 alone turns up at node 2, where only 80 itself would go on.
  EXPECT_TRUE(Map(model, {{kParent, {80}}}));
  EXPECT_EQ(Loads(model), (AllSeen{{L"80", 4, 5, 5}}));
}

TEST(MapEdgeLoading, GivesNothingForAnEdgeToACornerThatNoPieceHas) {
  auto model = CutPlate(2, 2);
  NodeAt(model, 2, 2, 0);
  model.SetElem(kParent, Element(ElementType::Quad4, {1, 3, 10, 7}));
  for (int edge = 1; edge <= 3; ++edge) model.SetEdgeLoad(edge, EdgeLoad(edge, 1, 3));
  EXPECT_TRUE(Map(model));
  EXPECT_EQ(Loads(model), (AllSeen{{L"80", 1, 1, 2}, {L"81", 1, 2, 3}}));
}

TEST(MapEdgeLoading, EndsAWalkThatWouldGoRoundAndRound) {
  // Four triangles round a middle node, and a parent whose third corner is no corner of theirs: the
  // walk for it never comes to its end.
  auto model = CutPlate(1, 1);
  NodeAt(model, 0.5, 0.5, 0);
  NodeAt(model, 1, 1, 0);
  int n = kFirstPiece;
  for (auto const& [a, b] : {std::pair(1, 2), {2, 4}, {4, 3}, {3, 1}})
    model.SetElem(n++, Element(ElementType::Tri3, {a, b, 5}));
  model.SetElem(kParent, Element(ElementType::Quad4, {1, 2, 6, 3}));
  for (int edge = 1; edge <= 4; ++edge) model.SetEdgeLoad(edge, EdgeLoad(edge, 1, 3));
  EXPECT_TRUE(Map(model));
  EXPECT_EQ(Loads(model), (AllSeen{{L"80", 1, 1, 3}, {L"83", 1, 1, 3}}));
}

TEST(MapEdgeLoading, FollowsPiecesThatRunAsTheParentOnly) {
  auto model = CutPlate(2, 1);
  model.SetElem(80, Element(ElementType::Quad4, {1, 4, 5, 2}));
  model.SetElem(81, Element(ElementType::Quad4, {2, 5, 6, 3}));
  model.SetEdgeLoad(1, EdgeLoad(1, 1, 3));
  EXPECT_TRUE(Map(model));
  EXPECT_EQ(model.HighestEdgeLoad(), 0);
}

TEST(MapEdgeLoading, GivesNothingForAnEdgeThatTheParentHasNot) {
  for (int const edge : {0, 5, -1}) {
    auto model = CutPlate(2, 1);
    model.SetEdgeLoad(1, EdgeLoad(edge, 1, 3));
    EXPECT_TRUE(Map(model));
    EXPECT_EQ(model.HighestEdgeLoad(), 0);
  }
}

TEST(MapEdgeLoading, GivesNothingForAnEdgeWithoutLength) {
  auto model = CutPlate(2, 1);
  for (int const node : {2, 3}) model.SetNodeCoor(node, {0, 0, 0});
  model.SetEdgeLoad(1, EdgeLoad(1, 1, 3));
  EXPECT_TRUE(Map(model));
  EXPECT_EQ(model.HighestEdgeLoad(), 0);
}

TEST(MapEdgeLoading, LeavesALoadOnAnIndirectListAndSaysSo) {
  auto model = CutPlate(2, 1);
  model.SetEdgeLoad(1, EdgeLoad(1, 1, 3, L"69 to 71"));
  CZelData const before(model);
  EXPECT_FALSE(Map(model));
  EXPECT_TRUE(IsUnchanged(model, before));
}

TEST(MapEdgeLoading, KeepsTheLoadOnTheOthersOfItsList) {
  auto model = CutPlate(2, 1);
  model.SetElem(3, Element(ElementType::Quad4, {1, 2, 5, 4}));
  model.SetEdgeLoad(1, EdgeLoad(1, 1, 3, L"3 70"));
  EXPECT_TRUE(Map(model));
  EXPECT_EQ(Loads(model), (AllSeen{{L"3", 1, 1, 3}, {L"80", 1, 1, 2}, {L"81", 1, 2, 3}}));
}

TEST(MapEdgeLoading, RemovesALoadWhoseListNamesNothingThatExistsAnyMore) {
  auto model = CutPlate(2, 1);
  model.SetEdgeLoad(1, EdgeLoad(1, 1, 3, L"70 99"));
  EXPECT_TRUE(Map(model));
  EXPECT_EQ(Loads(model), (AllSeen{{L"80", 1, 1, 2}, {L"81", 1, 2, 3}}));
}

TEST(MapEdgeLoading, WritesNothingWhereACoordinateOrAValueIsNotFiniteAndSaysSo) {
  double const inf = std::numeric_limits<double>::infinity();
  auto model = CutPlate(2, 1);
  model.SetNodeCoor(2, {inf, 0, 0});
  model.SetEdgeLoad(1, EdgeLoad(1, 1, 3));
  EXPECT_FALSE(Map(model));
  EXPECT_EQ(model.HighestEdgeLoad(), 0);
  auto other = CutPlate(2, 1);
  other.SetEdgeLoad(1, EdgeLoad(1, 1, inf));
  EXPECT_FALSE(Map(other));
  EXPECT_EQ(other.HighestEdgeLoad(), 0);
}

TEST(MapEdgeLoading, IsNoStepWithoutLoadsOnEdgesAndOneWithThem) {
  auto model = CutPlate(2, 1);
  EXPECT_TRUE(Map(model));
  int const without = model.NumUndo();
  model.SetEdgeLoad(1, EdgeLoad(1, 1, 3));
  EXPECT_TRUE(Map(model));
  EXPECT_EQ(model.NumUndo() - without, without + 1);
}

TEST(CDataMgr, CountsThePiecesAtACorner) {
  auto model = CutPlate(2, 2);
  CDataMgr const manager(model);
  std::vector<int> const all{80, 81, 82, 83};
  EXPECT_EQ(CallPrivate(AttachedElements(), manager, 5, all), 4);
  EXPECT_EQ(CallPrivate(AttachedElements(), manager, 2, all), 2);
  EXPECT_EQ(CallPrivate(AttachedElements(), manager, 1, all), 1);
  EXPECT_EQ(CallPrivate(AttachedElements(), manager, 5, std::vector<int>{80, 83}), 2);
  EXPECT_EQ(CallPrivate(AttachedElements(), manager, 9, std::vector<int>{80}), 0);
}

}  // namespace
}  // namespace Tarvex::EdgeMappingTest
