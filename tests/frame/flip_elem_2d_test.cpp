// Agreement of the normals of a patch.
#include <gtest/gtest.h>

#include <cmath>

#include "frame/rebuild_hold.h"
#include "tarvex/orientation.h"
#include "tests/frame/orientation_support.h"

namespace Tarvex::FlipElem2dTest {
namespace {

using Testing::Differences;
using Testing::IsNear;
using Testing::IsUnchanged;
using Testing::NormalAt;
using Testing::Numbers;
using Testing::QuadAt;
using Testing::References;
using Testing::Ring;

/// Gives tests a way to the protected steps.
class FlipSteps : public CFlipElem2D {
 public:
  using CFlipElem2D::AttachedElem;
  using CFlipElem2D::CFlipElem2D;
  using CFlipElem2D::FlipElem;
};

/// Runs the tool once.
bool AgreeNormals(CZelData& model, std::vector<int> const& numbers, double angle = 15.0) {
  CFlipElem2D tool(model);
  tool.SetSet(Numbers(numbers));
  tool.SetFacetAngle(angle);
  return tool.Do();
}

/// Whether a square in the plane z = 0 faces up.
bool FacesUp(CZelData const& model, int n) { return NormalAt(model, n).z > 0; }

// Seeds.

TEST(CFlipElem2D, TurnsASeedThatFacesDown) {
  CZelData model;
  QuadAt(model, {0, 0, 0}, {0, 1, 0}, {1, 1, 0}, {1, 0, 0});
  EXPECT_TRUE(AgreeNormals(model, {1}));
  EXPECT_TRUE(References(model, 1, {2, 1, 4, 3}));
}

TEST(CFlipElem2D, LeavesASeedThatFacesUp) {
  CZelData model;
  QuadAt(model, {0, 0, 0}, {1, 0, 0}, {1, 1, 0}, {0, 1, 0});
  EXPECT_TRUE(AgreeNormals(model, {1}));
  EXPECT_TRUE(References(model, 1, {1, 2, 3, 4}));
}

TEST(CFlipElem2D, LeavesALevelSeedToWhicheverSideItFaces) {
  CZelData model;
  QuadAt(model, {0, 0, 0}, {1, 0, 0}, {1, 0, 1}, {0, 0, 1});  // faces -y
  QuadAt(model, {0, 5, 0}, {0, 5, 1}, {1, 5, 1}, {1, 5, 0});  // faces +y
  CZelData const before(model);
  EXPECT_TRUE(AgreeNormals(model, {1, 2}));
  EXPECT_TRUE(IsUnchanged(model, before));
}

TEST(CFlipElem2D, AppliesTheSeedRuleAloneToElementsWithoutNeighbours) {
  CZelData model;
  for (int i = 0; i < 3; ++i)
    QuadAt(model, {0, 0, double(i)}, {0, 1, double(i)}, {1, 1, double(i)}, {1, 0, double(i)});
  EXPECT_TRUE(AgreeNormals(model, {1, 2, 3}));
  for (int const n : {1, 2, 3}) EXPECT_TRUE(FacesUp(model, n));
}

// Waves.

/// A wall in the plane y = 0 of `count` squares in a row along x, on the nodes 1, 2, 3 ... below
/// and count + 2, ... above. Squares face -y, those of the given numbers +y.
CZelData Wall(int count, std::vector<int> const& turned) {
  CZelData model;
  for (int k = 0; k < 2; ++k)
    for (int i = 0; i <= count; ++i) Testing::NodeAt(model, i, 0, k);
  for (int n = 1; n <= count; ++n) {
    int const a = n + count + 1;
    bool const plus = std::count(turned.begin(), turned.end(), n) != 0;
    model.SetElem(n, plus ? Testing::Element(ElementType::Quad4, {n, a, a + 1, n + 1})
                          : Testing::Element(ElementType::Quad4, {n, n + 1, a + 1, a}));
  }
  return model;
}

/// The elements 1, 2, 3 ... of a wall that face +y.
std::vector<int> FacingPlusY(CZelData const& model) {
  std::vector<int> numbers;
  for (auto const& [n, element] : model.Elem())
    if (NormalAt(model, static_cast<int>(n)).y > 0) numbers.push_back(static_cast<int>(n));
  return numbers;
}

TEST(CFlipElem2D, SpreadsTheSideOfTheLowestNumberOverThePatch) {
  auto minus = Wall(6, {2, 3, 5});
  EXPECT_TRUE(AgreeNormals(minus, {1, 2, 3, 4, 5, 6}));
  EXPECT_EQ(FacingPlusY(minus), (std::vector<int>{}));
  auto plus = Wall(6, {1, 3, 4});
  EXPECT_TRUE(AgreeNormals(plus, {6, 5, 4, 3, 2, 1}));
  EXPECT_EQ(FacingPlusY(plus), (std::vector{1, 2, 3, 4, 5, 6}));
}

TEST(CFlipElem2D, StartsAtTheLowestNumberOfTheSet) {
  auto model = Wall(5, {3});
  EXPECT_TRUE(AgreeNormals(model, {3, 4, 5}));
  EXPECT_EQ(FacingPlusY(model), (std::vector{3, 4, 5}));
}

TEST(CFlipElem2D, DoesNotSpreadThroughElementsOutsideTheSet) {
  auto model = Wall(5, {1, 3, 5});
  EXPECT_TRUE(AgreeNormals(model, {1, 2, 4, 5}));  // two patches, with the seeds 1 and 4
  EXPECT_EQ(FacingPlusY(model), (std::vector{1, 2, 3}));
}

TEST(CFlipElem2D, SpreadsOverASharedCorner) {
  CZelData model;
  for (int i = 0; i < 3; ++i)
    for (int k = 0; k < 3; ++k) Testing::NodeAt(model, i, 0, k);         // node 3 i + k + 1
  model.SetElem(1, Testing::Element(ElementType::Quad4, {1, 4, 5, 2}));  // faces -y
  model.SetElem(2, Testing::Element(ElementType::Quad4, {5, 6, 9, 8}));  // faces +y
  EXPECT_TRUE(AgreeNormals(model, {1, 2}));
  EXPECT_TRUE(References(model, 2, {6, 5, 8, 9}));
}

TEST(CFlipElem2D, MakesAPlaneOfMixedShapesFaceUp) {
  CZelData model;
  for (int i = 0; i < 5; ++i)
    for (int j = 0; j < 3; ++j) Testing::NodeAt(model, i, j, 0);  // node 3 i + j + 1
  Testing::NodeAt(model, 2, 4, 0);                                // 16
  Testing::NodeAt(model, 4, 4, 0);                                // 17
  model.SetElem(2, Testing::Element(ElementType::Quad8, {1, 3, 9, 7, 2, 6, 8, 4}));
  model.SetElem(3, Testing::Element(ElementType::Tri6, {7, 9, 15, 8, 12, 11}));
  model.SetElem(4, Testing::Element(ElementType::Tri3, {7, 15, 13}));
  model.SetElem(5, Testing::Element(ElementType::Quad4, {9, 16, 17, 15}));
  for (int const n : {2, 3, 4, 5}) ASSERT_FALSE(FacesUp(model, n)) << n;
  EXPECT_TRUE(AgreeNormals(model, {2, 3, 4, 5}));
  for (int const n : {2, 3, 4, 5}) EXPECT_TRUE(FacesUp(model, n)) << n;
  EXPECT_TRUE(References(model, 2, {3, 1, 7, 9, 2, 4, 8, 6}));
  EXPECT_TRUE(References(model, 3, {9, 7, 15, 8, 11, 12}));
  EXPECT_TRUE(References(model, 4, {15, 7, 13}));
  EXPECT_TRUE(References(model, 5, {16, 9, 15, 17}));
}

TEST(CFlipElem2D, LeavesAPlaneThatFacesUpAsItIsWhateverTheAngle) {
  for (double const angle : {0.5, 15.0, 60.0, 90.0}) {
    CZelData model;
    Testing::Grid(model, 4, 4);
    CZelData const before(model);
    EXPECT_TRUE(
        AgreeNormals(model, {1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11, 12, 13, 14, 15, 16}, angle));
    EXPECT_TRUE(IsUnchanged(model, before));
  }
}

// The vote of neighbours. Elements that share only the node at the origin may face anywhere, so
// normals are given by their angle from the vertical, in degrees, in the plane y = 0.

/// A right triangle at the origin, node 1, on two new nodes, whose normal is at an angle.
void AddFacet(CZelData& model, int n, double degrees) {
  double const c = std::cos(degrees * kPi / 180.0);
  double const s = std::sin(degrees * kPi / 180.0);
  if (model.HighestNode() == 0) Testing::NodeAt(model, 0, 0, 0);
  int const a = Testing::NodeAt(model, c, 0, -s);
  int const b = Testing::NodeAt(model, 0, 1, 0);
  model.SetElem(n, Testing::Element(ElementType::Tri3, {1, a, b}));  // (c, 0, -s) x (0, 1, 0)
}

/// Facets with normals at the given angles, numbered from 1, after a run; the result says of each
/// whether it was turned.
std::vector<bool> TurnedFacets(std::vector<double> const& angles, double facetAngle) {
  CZelData model;
  std::vector<int> numbers;
  for (double const angle : angles) {
    numbers.push_back(static_cast<int>(numbers.size()) + 1);
    AddFacet(model, numbers.back(), angle);
    auto const expected = Vec3<double>{std::sin(angle * kPi / 180), 0, std::cos(angle * kPi / 180)};
    EXPECT_TRUE(IsNear(NormalAt(model, numbers.back()), expected));
  }
  EXPECT_TRUE(AgreeNormals(model, numbers, facetAngle));
  std::vector<bool> turned;
  for (int const n : numbers) turned.push_back(model.Elem(n).Topo(0) != 1);
  return turned;
}
using Turned = std::vector<bool>;

TEST(CFlipElem2D, TurnsANeighbourToTheSideOfTheSeed) {
  EXPECT_EQ(TurnedFacets({0, 85}, 15), (Turned{false, false}));
  EXPECT_EQ(TurnedFacets({0, 95}, 15), (Turned{false, true}));
  EXPECT_EQ(TurnedFacets({0, -170}, 15), (Turned{false, true}));
  EXPECT_EQ(TurnedFacets({180, 10}, 15), (Turned{true, false}));  // the seed comes first
}

TEST(CFlipElem2D, LetsNeighboursOverruleTheSeed) {
  // 1 at 0, 2 at 80. 3 at 100 is turned to the seed's side, -80. Its neighbours: 1 has the product
  // cos 80 = 0.17, 2 has cos 160 = -0.94. With 25 degrees c = 0.91: one opposed, none agreeing.
  EXPECT_EQ(TurnedFacets({0, 80, 100}, 25), (Turned{false, false, false}));
  // With 15 degrees c = 0.97: nobody votes.
  EXPECT_EQ(TurnedFacets({0, 80, 100}, 15), (Turned{false, false, true}));
}

TEST(CFlipElem2D, VotesByDefaultWithinFifteenDegrees) {
  // 2 at 83 and 3 turned to -83: 166 degrees apart, 14 from opposite. At 82: 164, 16 from opposite.
  CZelData within;
  CZelData beyond;
  for (int const n : {1, 2, 3}) {
    AddFacet(within, n, n == 1 ? 0 : n == 2 ? 83 : 97);
    AddFacet(beyond, n, n == 1 ? 0 : n == 2 ? 82 : 98);
  }
  for (auto* model : {&within, &beyond}) {
    CFlipElem2D tool(*model);
    tool.SetSet(Numbers({1, 2, 3}));
    EXPECT_TRUE(tool.Do());
  }
  EXPECT_EQ(within.Elem(3).Topo(0), 1);
  EXPECT_NE(beyond.Elem(3).Topo(0), 1);
}

TEST(CFlipElem2D, DoesNotTurnWhenOpposedAndAgreeingAreEqual) {
  // c = cos 70 = 0.34. 3 at -60: 1 has cos 60 = 0.5 and agrees, 2 at 60 has cos 120 = -0.5,
  // opposed.
  EXPECT_EQ(TurnedFacets({0, 60, -60}, 70), (Turned{false, false, false}));
  // A second one at 60 makes it two to one for the fourth.
  EXPECT_EQ(TurnedFacets({0, 60, 60, -60}, 70), (Turned{false, false, false, true}));
}

TEST(CFlipElem2D, CountsOnlyNeighboursThatAreSettledInTheOrderOfTheirNumbers) {
  // As before, but the one at -60 comes before the others at 60: it sees the seed alone. The third
  // sees one for and one against it, the fourth two for and one against.
  EXPECT_EQ(TurnedFacets({0, -60, 60, 60}, 70), (Turned{false, false, false, false}));
}

TEST(CFlipElem2D, LetsAllNeighboursOffTheRightAngleVoteAtNinetyDegrees) {
  // 3 at 160 is turned to -20: with 2 at 80 the product is cos 100 = -0.17, with 1 cos 20 = 0.94.
  EXPECT_EQ(TurnedFacets({0, 80, 160}, 90), (Turned{false, false, true}));  // one to one
  // Without the seed as neighbour it is one to none: a strip that turns by 80 degrees a facet.
  CZelData model;
  double x = 0;
  double z = 0;
  for (double const angle : {0.0, 80.0, 160.0, 240.0}) {
    Testing::NodeAt(model, x, 0, z);
    Testing::NodeAt(model, x, 1, z);
    x += std::cos(angle * kPi / 180);
    z -= std::sin(angle * kPi / 180);
  }
  for (int const n : {1, 2, 3})
    model.SetElem(n,
                  Testing::Element(ElementType::Quad4, {2 * n - 1, 2 * n + 1, 2 * n + 2, 2 * n}));
  auto narrow = model;
  EXPECT_TRUE(AgreeNormals(model, {1, 2, 3}, 90));
  EXPECT_TRUE(References(model, 3, {5, 7, 8, 6}));
  EXPECT_TRUE(AgreeNormals(narrow, {1, 2, 3}, 79));  // c = 0.19
  EXPECT_TRUE(References(narrow, 3, {7, 5, 6, 8}));
}

TEST(CFlipElem2D, CountsAsOpposedFirstWhereAnAngleAboveNinetyAllowsBoth) {
  // c = cos 120 = -0.5: the product cos 80 = 0.17 is below 0.5, though it is above -0.5 too.
  EXPECT_EQ(TurnedFacets({0, 80}, 120), (Turned{false, true}));
  // cos 50 = 0.64 is not below 0.5 and agrees.
  EXPECT_EQ(TurnedFacets({0, 50}, 120), (Turned{false, false}));
}

TEST(CFlipElem2D, DoesNotCountAProductThatIsExactlyTheCosineOfTheAngle) {
  int tried = 0;
  for (double angle = 50; angle < 80; angle += 1) {
    // 3 has with the seed the product c, which is not counted, and with 2 one below -c: opposed.
    // Half a degree more and the seed agrees. Only angles at which no rounding comes between
    // product and cosine tell anything.
    CZelData facet;
    AddFacet(facet, 1, -angle);
    if (NormalAt(facet, 1).z != std::cos(angle * kPi / 180.0)) continue;
    ++tried;
    EXPECT_EQ(TurnedFacets({0, 89, -angle}, angle), (Turned{false, false, true})) << angle;
    EXPECT_EQ(TurnedFacets({0, 89, -angle}, angle + 0.5), (Turned{false, false, false})) << angle;
  }
  EXPECT_GT(tried, 0);
}

/// A strip of squares that folds back over itself: normals at 0, 60, 120 and 180 degrees.
CZelData FoldedStrip() {
  CZelData model;
  double const h = std::sqrt(0.75);
  for (auto const& [x, z] :
       {std::pair{0.0, 0.0}, {1.0, 0.0}, {1.5, -h}, {1.0, -2 * h}, {0.0, -2 * h}}) {
    Testing::NodeAt(model, x, 0, z);
    Testing::NodeAt(model, x, 1, z);
  }
  for (int const n : {1, 2, 3, 4})
    model.SetElem(n,
                  Testing::Element(ElementType::Quad4, {2 * n - 1, 2 * n + 1, 2 * n + 2, 2 * n}));
  return model;
}

TEST(CFlipElem2D, FollowsASurfaceThatFoldsBackWhenItsFacetsAreWithinTheAngle) {
  auto model = FoldedStrip();
  CZelData const before(model);
  // From facet to facet the product is cos 60 = 0.5; c = cos 70 = 0.34. 3 and 4 are turned to the
  // seed's side first, and back by the vote of the one before.
  EXPECT_TRUE(AgreeNormals(model, {1, 2, 3, 4}, 70));
  EXPECT_TRUE(IsUnchanged(model, before));
  // Whatever sides they have at first.
  for (int const n : {2, 4}) EXPECT_TRUE(FlipElement(model, n));
  EXPECT_TRUE(AgreeNormals(model, {1, 2, 3, 4}, 70));
  EXPECT_TRUE(IsNear(NormalAt(model, 4), {0, 0, -1}));
  EXPECT_TRUE(IsNear(NormalAt(model, 2), {std::sqrt(0.75), 0, 0.5}));
}

TEST(CFlipElem2D, KeepsASurfaceThatFoldsBackToTheSideOfTheSeedWhenItsFacetsAreBeyondTheAngle) {
  auto model = FoldedStrip();
  EXPECT_TRUE(AgreeNormals(model, {1, 2, 3, 4}, 50));  // c = 0.64
  EXPECT_TRUE(References(model, 1, {1, 3, 4, 2}));
  EXPECT_TRUE(References(model, 2, {3, 5, 6, 4}));
  EXPECT_TRUE(References(model, 3, {7, 5, 6, 8}));
  EXPECT_TRUE(References(model, 4, {9, 7, 8, 10}));
}

// What is touched.

TEST(CFlipElem2D, ChangesTopologyOnly) {
  for (int const type : {5, 6, 7, 8}) {
    SCOPED_TRACE(type);
    CZelData model;
    std::vector<Vec3<double>> points{{0, 0, 0}, {0, 2, 0}, {2, 2, 0}};
    if (type <= 6) points.push_back({2, 0, 0});
    while (static_cast<int>(points.size()) < Testing::NodeCountOf(type))
      points.push_back({1, 1, 0});
    Testing::ElementAt(model, static_cast<ElementType>(type), points);
    model.SetElem(1, Testing::Dressed(model.Elem(1)));
    CZelData const before(model);
    EXPECT_TRUE(AgreeNormals(model, {1}));
    EXPECT_EQ(Differences(model, before), std::vector<std::string>{"Elem 1: topology"});
  }
}

TEST(CFlipElem2D, PassesLoadPanelsOver) {
  CZelData model;
  for (int i = 0; i < 4; ++i)
    for (int k = 0; k < 2; ++k) Testing::NodeAt(model, i, 0, k);         // node 2 i + k + 1
  model.SetElem(1, Testing::Element(ElementType::Quad4, {1, 3, 4, 2}));  // faces -y
  model.SetLoadPanel(2, Testing::Panel({3, 4, 6, 5}));                   // faces +y
  model.SetElem(3, Testing::Element(ElementType::Quad4, {5, 6, 8, 7}));  // faces +y
  model.SetLoadPanel(4, Testing::Panel({1, 2, 4, 3}));
  Testing::PanelAt(model, {{0, 0, 0}, {0, 1, 0}, {1, 0, 0}});  // 5, faces down
  CZelData const before(model);
  EXPECT_TRUE(AgreeNormals(model, {1, 2, 3, 4, 5}));
  EXPECT_TRUE(IsUnchanged(model, before));  // no panel turned, and none led from 1 to 3
}

TEST(CFlipElem2D, SkipsWhatIsNotTwoDimensionalAndNumbersThatNothingBears) {
  CZelData model;
  Testing::BeamAt(model, {0, 0, 1}, {0, 0, 0});
  Testing::Brick(model, 1, 1, -1);
  Testing::ElementAt(model, ElementType::Tetra4, {{0, 0, 0}, {0, 1, 0}, {1, 0, 0}, {0, 0, 1}});
  CZelData const before(model);
  EXPECT_TRUE(AgreeNormals(model, {1, 2, 3, 4, 77, 100000000}));
  EXPECT_TRUE(IsUnchanged(model, before));
}

TEST(CFlipElem2D, IsAlwaysTrue) {
  CZelData model;
  EXPECT_TRUE(CFlipElem2D(model).Do());
  EXPECT_TRUE(AgreeNormals(model, {}));
  EXPECT_TRUE(AgreeNormals(model, {1, 2}));
  Testing::Grid(model, 1, 1);
  EXPECT_TRUE(AgreeNormals(model, {}));
  EXPECT_TRUE(AgreeNormals(model, {1}));
  EXPECT_TRUE(References(model, 1, {1, 2, 4, 3}));
}

TEST(CFlipElem2D, DoesNotAskForTheKindOfTheSet) {
  for (auto const kind : {SelNone, SelElement}) {
    CZelData model;
    QuadAt(model, {0, 0, 0}, {0, 1, 0}, {1, 1, 0}, {1, 0, 0});
    CFlipElem2D tool(model);
    tool.SetSet(Numbers({1}, kind));
    EXPECT_TRUE(tool.Do());
    EXPECT_TRUE(FacesUp(model, 1));
  }
}

TEST(CFlipElem2D, TakesAnElementWithAMissingNodeForLevelAndSpreadsFromItsOtherCorners) {
  CZelData model;
  Testing::Grid(model, 3, 1);  // nodes 1 to 4 below, 5 to 8 above
  for (int const n : {1, 2, 3}) EXPECT_TRUE(FlipElement(model, n));
  model.BlankNode(1, 1);
  EXPECT_TRUE(AgreeNormals(model, {1, 2, 3}));
  EXPECT_TRUE(References(model, 1, {2, 1, 5, 6}));  // 1, 2, 6, 5 flipped before the run: it stays
  EXPECT_TRUE(References(model, 2, {2, 3, 7, 6}));
  EXPECT_TRUE(References(model, 3, {3, 4, 8, 7}));
}

// Where a second run changes more.

TEST(CFlipElem2D, TurnsAtEveryRunAnElementWithoutANormalOfItsOwnThatIsOutvoted) {
  // The seed at 90 stays, and so does 2 at 170, which is to its side. 3 has no area and counts as
  // level whichever way it runs: with 2 the product is cos 170 = -0.98, opposed within 15 degrees.
  CZelData model;
  for (int const n : {1, 2, 3}) AddFacet(model, n, n == 1 ? 90 : 170);
  model.SetNodeCoor(model.Elem(3).Topo(1), {0, 0, 0});
  EXPECT_TRUE(AgreeNormals(model, {1, 2, 3}));
  EXPECT_TRUE(References(model, 3, {6, 1, 7}));
  EXPECT_TRUE(AgreeNormals(model, {1, 2, 3}));
  EXPECT_TRUE(References(model, 3, {1, 6, 7}));
  EXPECT_TRUE(References(model, 1, {1, 2, 3}));
  EXPECT_TRUE(References(model, 2, {1, 4, 5}));
}

TEST(CFlipElem2D, TurnsAtEveryRunWhatStandsAcrossTheSeedWhenTheAngleIsAboveNinety) {
  CZelData model;
  QuadAt(model, {0, 0, 0}, {1, 0, 0}, {1, 1, 0}, {0, 1, 0});  // nodes 1 to 4
  Testing::NodeAt(model, 0, 1, 1);
  Testing::NodeAt(model, 1, 1, 1);
  model.SetElem(2, Testing::Element(ElementType::Quad4, {4, 3, 6, 5}));
  // The product is 0, which is below 0.5: opposed, whichever side it faces.
  EXPECT_TRUE(AgreeNormals(model, {1, 2}, 120));
  EXPECT_TRUE(References(model, 2, {3, 4, 5, 6}));
  EXPECT_TRUE(AgreeNormals(model, {1, 2}, 120));
  EXPECT_TRUE(References(model, 2, {4, 3, 6, 5}));
  EXPECT_TRUE(AgreeNormals(model, {1, 2}, 90));
  EXPECT_TRUE(References(model, 2, {4, 3, 6, 5}));
}

// Steps.

TEST(CFlipElem2D, FlipElemGoesByTheNumberOfNodes) {
  struct Row {
    std::vector<int> before;
    std::vector<int> after;
  };
  for (auto const& [before, after] :
       {Row{{1, 2, 3}, {2, 1, 3}}, Row{{1, 2, 3, 4}, {2, 1, 4, 3}},
        Row{{1, 2, 3, 4, 5, 6}, {2, 1, 3, 4, 6, 5}},
        Row{{1, 2, 3, 4, 5, 6, 7, 8}, {2, 1, 4, 3, 5, 8, 7, 6}}, Row{{}, {}}, Row{{1, 2}, {1, 2}},
        Row{{1, 2, 3, 4, 5}, {1, 2, 3, 4, 5}},
        Row{{1, 2, 3, 4, 5, 6, 7, 8, 9}, {1, 2, 3, 4, 5, 6, 7, 8, 9}}}) {
    CZelData model;
    model.SetElem(1, Testing::Dressed(Testing::Element(ElementType::Quad4, before)));
    FlipSteps(model).FlipElem(1);
    EXPECT_EQ(Ring(model, 1), after);
    EXPECT_EQ(Testing::OffsetOf(model, 1), (Testing::OffsetValues{1, 2, 3, 4}));
  }
}

TEST(CFlipElem2D, FlipElemLeavesPanelsAndMissingNumbersAlone) {
  CZelData model;
  model.SetLoadPanel(1, Testing::Panel({1, 2, 3}));
  CZelData const before(model);
  for (int const n : {-1, 0, 1, 2}) FlipSteps(model).FlipElem(n);
  EXPECT_TRUE(IsUnchanged(model, before));
}

/// What the element form of AttachedElem adds to a vector in a model, and whether it says so.
struct Attached {
  std::vector<int> out;
  bool any;
  friend bool operator==(Attached const&, Attached const&) = default;
};
Attached AttachedTo(CZelData& model, std::vector<int> const& set, int element,
                    std::vector<int> processed, std::vector<int> out = {}) {
  FlipSteps steps(model);
  steps.SetSet(Numbers(set));
  bool const any = steps.AttachedElem(element, processed, out);
  return {out, any};
}
Attached NextWave(CZelData& model, std::vector<int> const& set, std::vector<int> wave,
                  std::vector<int> processed, std::vector<int> out = {}) {
  FlipSteps steps(model);
  steps.SetSet(Numbers(set));
  bool const any = steps.AttachedElem(wave, processed, out);
  return {out, any};
}

std::vector<int> const kNine{1, 2, 3, 4, 5, 6, 7, 8, 9};

TEST(CFlipElem2D, AttachedElemFindsTheProcessedNeighboursCornerByCorner) {
  CZelData model;
  Testing::Grid(model, 3, 3);
  // Element 5 has the corners 6, 7, 11, 10 with the elements {1 2 4 5}, {2 3 5 6}, {5 6 8 9},
  // {4 5 7 8}.
  EXPECT_EQ(AttachedTo(model, kNine, 5, {9, 2, 1}), (Attached{{1, 2, 9}, true}));
  EXPECT_EQ(AttachedTo(model, kNine, 5, kNine), (Attached{{1, 2, 4, 3, 6, 8, 9, 7}, true}));
  EXPECT_TRUE(SpinElement(model, 5, 2));  // corners 11, 10, 6, 7
  EXPECT_EQ(AttachedTo(model, kNine, 5, kNine), (Attached{{6, 8, 9, 4, 7, 1, 2, 3}, true}));
}

TEST(CFlipElem2D, AttachedElemAddsToWhatIsThereAndSaysWhetherAnythingIs) {
  CZelData model;
  Testing::Grid(model, 3, 3);
  EXPECT_EQ(AttachedTo(model, kNine, 5, {}), (Attached{{}, false}));
  EXPECT_EQ(AttachedTo(model, kNine, 5, {5}), (Attached{{}, false}));  // not itself
  EXPECT_EQ(AttachedTo(model, kNine, 5, {}, {77}), (Attached{{77}, true}));
  EXPECT_EQ(AttachedTo(model, kNine, 5, {1, 9}, {9, 77}), (Attached{{9, 77, 1}, true}));
}

TEST(CFlipElem2D, AttachedElemKeepsToTheSet) {
  CZelData model;
  Testing::Grid(model, 3, 3);
  EXPECT_EQ(AttachedTo(model, {1, 3, 5}, 5, kNine), (Attached{{1, 3}, true}));
  EXPECT_EQ(AttachedTo(model, {5}, 5, kNine), (Attached{{}, false}));
  EXPECT_EQ(NextWave(model, {1, 4, 5}, {1}, {1}), (Attached{{4, 5}, true}));
}

TEST(CFlipElem2D, AttachedElemFindsTwoDimensionalElementsOnly) {
  CZelData model;
  Testing::Grid(model, 1, 1);  // nodes 1, 2, 4, 3
  model.SetElem(2, Testing::Element(ElementType::Beam, {1, 2}));
  model.SetElem(3, Testing::Element(ElementType::Tetra4, {1, 2, 3, 4}));
  model.SetLoadPanel(4, Testing::Panel({1, 2, 4, 3}));
  model.SetElem(5, Testing::Element(static_cast<ElementType>(11), {1, 2, 3}));
  model.SetElem(6, Testing::Element(ElementType::Tri3, {1, 2, 3}));
  EXPECT_EQ(AttachedTo(model, kNine, 1, kNine), (Attached{{6}, true}));
  EXPECT_EQ(NextWave(model, kNine, {1}, {1}), (Attached{{6}, true}));
}

TEST(CFlipElem2D, AttachedElemWalksCornersAndFindsByAnyNode) {
  CZelData model;
  for (int i = 0; i < 12; ++i) Testing::NodeAt(model, i, i * i, 0);
  model.SetElem(1, Testing::Element(ElementType::Quad8, {1, 2, 3, 4, 5, 6, 7, 8}));
  model.SetElem(2, Testing::Element(ElementType::Tri3, {5, 9, 10}));  // on a side node of 1
  model.SetElem(3, Testing::Element(ElementType::Tri6, {9, 11, 12, 4, 6, 7}));
  EXPECT_EQ(AttachedTo(model, kNine, 1, kNine), (Attached{{3}, true}));  // node 4, a side node of 3
  EXPECT_EQ(AttachedTo(model, kNine, 2, kNine), (Attached{{1, 3}, true}));
  EXPECT_EQ(AttachedTo(model, kNine, 3, kNine), (Attached{{2}, true}));
}

TEST(CFlipElem2D, AttachedElemTakesAllNodesBelowFiveAndHalfOfThemFromFiveOn) {
  CZelData model;
  for (int i = 0; i < 9; ++i) Testing::NodeAt(model, i, i * i, 0);
  for (int const n : {1, 2, 3, 4, 5})
    model.SetElem(n, Testing::Element(ElementType::Tri3, {n, 8, 9}));
  model.SetElem(6, Testing::Element(ElementType::Quad4, {1, 2, 3, 4}));
  EXPECT_EQ(AttachedTo(model, kNine, 6, kNine), (Attached{{1, 2, 3, 4}, true}));
  model.SetElem(6, Testing::Element(ElementType::Quad4, {1, 2, 3, 4, 5}));
  EXPECT_EQ(AttachedTo(model, kNine, 6, kNine), (Attached{{1, 2}, true}));
}

TEST(CFlipElem2D, AttachedElemOfAWaveFindsWhatIsNeitherProcessedNorInIt) {
  CZelData model;
  Testing::Grid(model, 3, 3);
  EXPECT_EQ(NextWave(model, kNine, {1}, {1}), (Attached{{2, 4, 5}, true}));
  // 2: nodes 2, 3, 7, 6 give 3 and 6; 4: nodes 5, 6, 10, 9 give 7 and 8; 5: node 11 gives 9.
  EXPECT_EQ(NextWave(model, kNine, {2, 4, 5}, {1, 2, 4, 5}), (Attached{{3, 6, 7, 8, 9}, true}));
  EXPECT_EQ(NextWave(model, kNine, {5, 4, 2}, {1, 2, 4, 5}), (Attached{{3, 6, 8, 9, 7}, true}));
  EXPECT_EQ(NextWave(model, kNine, {2, 4, 5}, {}), (Attached{{1, 3, 6, 7, 8, 9}, true}));
  EXPECT_EQ(NextWave(model, kNine, {9}, kNine), (Attached{{}, false}));
  EXPECT_EQ(NextWave(model, kNine, {}, {}), (Attached{{}, false}));
  EXPECT_EQ(NextWave(model, kNine, {1}, {1}, {5, 77}), (Attached{{5, 77, 2, 4}, true}));
}

TEST(CFlipElem2D, AttachedElemPassesMissingNodesAndElementsOver) {
  CZelData model;
  Testing::Grid(model, 3, 3);
  model.BlankNode(6, 2);  // the lower corners of element 5
  EXPECT_EQ(AttachedTo(model, kNine, 5, kNine), (Attached{{6, 8, 9, 4, 7}, true}));
  EXPECT_EQ(AttachedTo(model, kNine, 77, kNine), (Attached{{}, false}));
  EXPECT_EQ(NextWave(model, kNine, {77, 1}, {1}), (Attached{{2, 4}, true}));  // nodes 1, 2, 5
}

// The rebuild hold.

TEST(CFlipElem2D, RunsInAScopeOfTheRebuildHoldAndClearsItsFlag) {
  auto model = Wall(3, {2});
  model.rebuildHold = true;  // no scope is open, so the scope of the run is the outermost
  EXPECT_TRUE(AgreeNormals(model, {1, 2, 3}));
  EXPECT_FALSE(model.rebuildHold);
  EXPECT_EQ(model.rebuildHoldDepth, 0);
}

TEST(CFlipElem2D, HoldsTheRebuildWhileItExchangesNodes) {
  // Half an exchange leaves one node named twice and another not at all. Outside a hold the store
  // follows that in the node records, which then are no longer those of the copy.
  auto model = Wall(3, {2});
  CZelData const before(model);
  EXPECT_TRUE(AgreeNormals(model, {1, 2, 3}));
  EXPECT_NE(Ring(model, 2), Ring(before, 2));
  EXPECT_EQ(&model.Node(1), &before.Node(1));
  auto unheld = before;
  unheld.SetElemTopo(2, 0, 3);
  unheld.SetElemTopo(2, 3, 2);
  EXPECT_NE(&unheld.Node(1), &before.Node(1));
}

TEST(CFlipElem2D, LeavesAnOuterScopeOfTheRebuildHoldOpen) {
  auto model = Wall(3, {2});
  {
    RebuildHold const outer(model);
    EXPECT_TRUE(AgreeNormals(model, {1, 2, 3}));
    EXPECT_TRUE(model.rebuildHold);
    EXPECT_EQ(model.rebuildHoldDepth, 1);
  }
  EXPECT_FALSE(model.rebuildHold);
}

TEST(CFlipElem2D, SeesNeighboursThatWereMadeDuringAnOuterHold) {
  auto model = Wall(2, {1});
  QuadAt(model, {5, 0, 0}, {6, 0, 0}, {6, 0, 1}, {5, 0, 1});  // 3, faces -y, apart
  RebuildHold const outer(model);
  EXPECT_EQ(model.Node(3).NumEntAttached(SelElement), 1);
  for (int const place : {0, 3}) model.SetElemTopo(3, place, place == 0 ? 3 : 6);
  EXPECT_EQ(model.Node(3).NumEntAttached(SelElement), 1);  // held
  EXPECT_TRUE(AgreeNormals(model, {1, 2, 3}));
  EXPECT_EQ(FacingPlusY(model), (std::vector{1, 2, 3}));
}

TEST(CFlipElem2D, LeavesAttachmentsTrue) {
  auto model = Wall(3, {2, 3});
  EXPECT_TRUE(AgreeNormals(model, {1, 2, 3}));
  for (int n = 1; n <= 8; ++n) {
    int const column = (n - 1) % 4;  // of nodes, from 0; squares stand between
    int const squares = column == 0 || column == 3 ? 1 : 2;
    EXPECT_EQ(model.Node(n).NumEntAttached(SelElement), squares);
  }
}

}  // namespace
}  // namespace Tarvex::FlipElem2dTest
