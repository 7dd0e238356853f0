// Reversing one entity: which corner goes where, and what travels with it.
#include <gtest/gtest.h>

#include <cmath>
#include <map>

#include "tarvex/orientation.h"
#include "tests/frame/orientation_support.h"

namespace Tarvex::FlipTest {
namespace {

using Testing::Differences;
using Testing::IsUnchanged;
using Testing::LongPositions;
using Testing::LongPositionsOf;
using Testing::OffsetOf;
using Testing::OffsetValues;
using Testing::References;
using Testing::ReleasesAreWithTheirNodes;
using Testing::Ring;

constexpr LongPositions kAsBefore{0.25, 0.75};
constexpr LongPositions kExchanged{0.75, 0.25};

/// A model with nodes 1 to 8 on the corners of a brick, and a dressed element 1 of a type on the
/// first of them.
CZelData ModelToFlip(ElementType type, int count) {
  CZelData model;
  for (int i = 0; i < 8; ++i)
    Testing::NodeAt(model, (i + 1) / 2 % 2, i / 2 % 2, i / 4);  // round the near face, then the far
  std::vector<int> nodes;
  for (int n = 1; n <= count; ++n) nodes.push_back(n);
  model.SetElem(1, Testing::Dressed(Testing::Element(type, nodes)));
  return model;
}

/// A model with a dressed beam 1 from node 1 at the origin to node 2.
CZelData ModelWithBeamTo(Vec3<double> const& end) {
  CZelData model;
  Testing::BeamAt(model, {0, 0, 0}, end);
  model.SetElem(1, Testing::Dressed(model.Elem(1)));
  return model;
}

// Which corner goes where.

TEST(FlipElement, ExchangesTheEndsOfEveryOneDimensionalType) {
  for (int const type : {1, 2, 3, 9, 10, 19, 20, 21, 23, 24}) {
    SCOPED_TRACE(type);
    auto model = ModelToFlip(static_cast<ElementType>(type), 2);
    EXPECT_TRUE(FlipElement(model, 1));
    EXPECT_TRUE(References(model, 1, {2, 1}));
    EXPECT_TRUE(ReleasesAreWithTheirNodes(model, 1));
    EXPECT_EQ(LongPositionsOf(model, 1), kExchanged);
  }
}

TEST(FlipElement, ExchangesFirstWithSecondAndThirdWithFourthCornerOfAQuad4) {
  auto model = ModelToFlip(ElementType::Quad4, 4);
  EXPECT_TRUE(FlipElement(model, 1));
  EXPECT_TRUE(References(model, 1, {2, 1, 4, 3}));
  EXPECT_TRUE(ReleasesAreWithTheirNodes(model, 1));
}

TEST(FlipElement, ExchangesTwoCornerPairsAndTheSideNodesBetweenThemOfAQuad8) {
  auto model = ModelToFlip(ElementType::Quad8, 8);
  EXPECT_TRUE(FlipElement(model, 1));
  // Sides 0-1 and 2-3 keep their mid-side nodes 5 and 7; 1-2 and 3-0 exchange 6 and 8.
  EXPECT_TRUE(References(model, 1, {2, 1, 4, 3, 5, 8, 7, 6}));
  EXPECT_TRUE(ReleasesAreWithTheirNodes(model, 1));
}

TEST(FlipElement, ExchangesTheFirstTwoCornersOfATri3) {
  auto model = ModelToFlip(ElementType::Tri3, 3);
  EXPECT_TRUE(FlipElement(model, 1));
  EXPECT_TRUE(References(model, 1, {2, 1, 3}));
  EXPECT_TRUE(ReleasesAreWithTheirNodes(model, 1));
}

TEST(FlipElement, ExchangesTheFirstTwoCornersAndTheLastTwoSideNodesOfATri6) {
  auto model = ModelToFlip(ElementType::Tri6, 6);
  EXPECT_TRUE(FlipElement(model, 1));
  EXPECT_TRUE(References(model, 1, {2, 1, 3, 4, 6, 5}));
  EXPECT_TRUE(ReleasesAreWithTheirNodes(model, 1));
}

TEST(FlipElement, ExchangesNearAndFarFaceOfABrick) {
  auto model = ModelToFlip(ElementType::Brick8, 8);
  EXPECT_TRUE(FlipElement(model, 1));
  EXPECT_TRUE(References(model, 1, {5, 6, 7, 8, 1, 2, 3, 4}));
  EXPECT_TRUE(ReleasesAreWithTheirNodes(model, 1));
}

// What becomes of offsets and long positions: each exchange of places exchanges x1 with x2 and the
// two positions, so an odd number of them is seen and an even number is not.

TEST(FlipElement, ExchangesAxialOffsetsAndNegatesYOfALevelLine) {
  auto model = ModelWithBeamTo({5, 0, 0});
  EXPECT_TRUE(FlipElement(model, 1));
  EXPECT_EQ(OffsetOf(model, 1), (OffsetValues{2, 1, -3, 4}));
}

TEST(FlipElement, ExchangesAxialOffsetsAndNegatesZOfAVerticalLine) {
  for (double const z : {3.0, -3.0}) {
    auto model = ModelWithBeamTo({0, 0, z});
    EXPECT_TRUE(FlipElement(model, 1));
    EXPECT_EQ(OffsetOf(model, 1), (OffsetValues{2, 1, 3, -4}));
  }
}

TEST(FlipElement, TakesALineForVerticalWithinTheToleranceOfTheModel) {
  auto within = ModelWithBeamTo({0.0009, 0, 1});  // the sine of the angle is 0.0009
  auto beyond = ModelWithBeamTo({0.0011, 0, 1});
  EXPECT_TRUE(FlipElement(within, 1) && FlipElement(beyond, 1));
  EXPECT_EQ(OffsetOf(within, 1), (OffsetValues{2, 1, 3, -4}));
  EXPECT_EQ(OffsetOf(beyond, 1), (OffsetValues{2, 1, -3, 4}));

  auto wider = ModelWithBeamTo({0.0011, 0, 1});
  auto spec = wider.Spec();
  spec.SetGenTol(TolType::Vertical, 0.002);
  wider.SetSpec(spec);
  EXPECT_TRUE(FlipElement(wider, 1));
  EXPECT_EQ(OffsetOf(wider, 1), (OffsetValues{2, 1, 3, -4}));
}

TEST(FlipElement, NegatesYOfALineWithoutLength) {
  auto model = ModelWithBeamTo({0, 0, 0});
  EXPECT_TRUE(FlipElement(model, 1));
  EXPECT_EQ(OffsetOf(model, 1), (OffsetValues{2, 1, -3, 4}));
}

TEST(FlipElement, NegatesZOffsetOnceForTypeFiveByTwoSwapsAndOneMore) {
  auto model = ModelToFlip(ElementType::Quad4, 4);
  EXPECT_TRUE(FlipElement(model, 1));
  EXPECT_EQ(OffsetOf(model, 1), (OffsetValues{1, 2, 3, -4}));
  EXPECT_EQ(LongPositionsOf(model, 1), kAsBefore);
}

TEST(FlipElement, NegatesZOffsetOnceForTypeSixByThreeSwaps) {
  auto model = ModelToFlip(ElementType::Quad8, 8);
  EXPECT_TRUE(FlipElement(model, 1));
  EXPECT_EQ(OffsetOf(model, 1), (OffsetValues{2, 1, 3, -4}));
  EXPECT_EQ(LongPositionsOf(model, 1), kExchanged);
}

TEST(FlipElement, NegatesZOffsetOnceForTypeSevenByOneSwap) {
  auto model = ModelToFlip(ElementType::Tri3, 3);
  EXPECT_TRUE(FlipElement(model, 1));
  EXPECT_EQ(OffsetOf(model, 1), (OffsetValues{2, 1, 3, -4}));
  EXPECT_EQ(LongPositionsOf(model, 1), kExchanged);
}

TEST(FlipElement, NegatesZOffsetOnceForTypeEightByTwoSwapsAndOneMore) {
  auto model = ModelToFlip(ElementType::Tri6, 6);
  EXPECT_TRUE(FlipElement(model, 1));
  EXPECT_EQ(OffsetOf(model, 1), (OffsetValues{1, 2, 3, -4}));
  EXPECT_EQ(LongPositionsOf(model, 1), kAsBefore);
}

TEST(FlipElement, KeepsTheOffsetOfABrick) {
  auto model = ModelToFlip(ElementType::Brick8, 8);
  EXPECT_TRUE(FlipElement(model, 1));
  EXPECT_EQ(OffsetOf(model, 1), (OffsetValues{1, 2, 3, 4}));
  EXPECT_EQ(LongPositionsOf(model, 1), kAsBefore);
}

TEST(FlipElement, MakesNoNegativeZero) {
  for (auto const type : {ElementType::Beam, ElementType::Quad4, ElementType::Quad8}) {
    auto model = ModelToFlip(type, Testing::NodeCountOf(static_cast<int>(type)));
    model.SetElemOffset(1, Data::COffset());
    EXPECT_TRUE(FlipElement(model, 1));
    for (double const value : OffsetOf(model, 1)) EXPECT_FALSE(std::signbit(value));
  }
}

TEST(FlipElement, LeavesTheKindsOfOffsetAtTheirEnds) {
  auto model = ModelWithBeamTo({5, 0, 0});
  auto offset = model.Elem(1).Offset();
  offset.SetAuto(0, AutoOffset::On);
  offset.SetType(1, OffsetType::Derived);
  model.SetElemOffset(1, offset);
  EXPECT_TRUE(FlipElement(model, 1));
  EXPECT_EQ(model.Elem(1).Offset().AutomaticOffset(0), AutoOffset::On);
  EXPECT_EQ(model.Elem(1).Offset().AutomaticOffset(1), AutoOffset::Off);
  EXPECT_EQ(model.Elem(1).Offset().Type(1), OffsetType::Derived);
}

TEST(FlipElement, ChangesNothingElseOfTheElement) {
  auto model = ModelToFlip(ElementType::Tri3, 3);
  auto element = model.Elem(1);
  element.SetName(L"slab");
  element.SetSid(L"id");
  element.SetColour(0x123456);
  element.SetGroup(5);
  element.SetProperty(6);
  element.SetOrientationNode(7);
  element.SetOrientationAngle(30);
  element.SetIsDummy(true);
  element.SetParentMember({2, 1});
  model.SetElem(1, element);
  CZelData const before(model);
  EXPECT_TRUE(FlipElement(model, 1));
  EXPECT_EQ(Differences(model, before),
            std::vector<std::string>{"Elem 1: topology, offset, connect, longPosition"});
}

// Where things are.

TEST(FlipElement, LeavesTheEndsOfAnOffsetLineWhereTheyAre) {
  for (auto const& end : {Vec3<double>{4, 3, 2}, {-4, 0, 0}, {0, 0, 6}, {0, 0, -6}}) {
    auto model = ModelWithBeamTo(end);
    auto const start = model.Coor(1, 0);
    auto const finish = model.Coor(1, 1);
    EXPECT_TRUE(FlipElement(model, 1));
    EXPECT_TRUE(Testing::IsNear(model.Coor(1, 0), finish));
    EXPECT_TRUE(Testing::IsNear(model.Coor(1, 1), start));
  }
}

TEST(FlipElement, TurnsTheNormalOfAPlateAndLeavesItsPlaneWhereItIs) {
  for (int const type : {5, 6, 7, 8}) {
    SCOPED_TRACE(type);
    auto model = ModelToFlip(static_cast<ElementType>(type), Testing::NodeCountOf(type));
    auto const normal = Testing::NormalAt(model, 1);
    auto const corner = model.Coor(1, 2);  // of node 3
    int const place = type == 5 || type == 6 ? 3 : 2;
    EXPECT_TRUE(FlipElement(model, 1));
    EXPECT_TRUE(Testing::IsNear(Testing::NormalAt(model, 1), -normal));
    EXPECT_EQ(model.Elem(1).Topo(place), 3);
    EXPECT_TRUE(Testing::IsNear(model.Coor(1, place), corner));
  }
}

// What is refused.

TEST(FlipElement, RefusesOtherSolids) {
  for (int const type : {14, 16, 26}) {
    SCOPED_TRACE(type);
    auto model = ModelToFlip(static_cast<ElementType>(type), Testing::NodeCountOf(type));
    CZelData const before(model);
    EXPECT_FALSE(FlipElement(model, 1));
    EXPECT_TRUE(IsUnchanged(model, before));
  }
}

TEST(FlipElement, RefusesTypesWithoutAShape) {
  for (int const type : {0, 4, 11, 13, 15, 17, 18, 22, 25, 27, -1})
    for (int const count : {2, 3, 4, 6, 8}) {
      SCOPED_TRACE(type);
      auto model = ModelToFlip(static_cast<ElementType>(type), count);
      CZelData const before(model);
      EXPECT_FALSE(FlipElement(model, 1));
      EXPECT_TRUE(IsUnchanged(model, before));
    }
}

TEST(FlipElement, RefusesATopologyShorterThanItsType) {
  for (int const type : {2, 5, 6, 7, 8, 12}) {
    SCOPED_TRACE(type);
    for (int count = 0; count < Testing::NodeCountOf(type); ++count) {
      auto model = ModelToFlip(static_cast<ElementType>(type), count);
      CZelData const before(model);
      EXPECT_FALSE(FlipElement(model, 1));
      EXPECT_TRUE(IsUnchanged(model, before));
    }
  }
}

TEST(FlipElement, RefusesANumberWithoutAnElement) {
  CZelData model;
  Testing::PanelAt(model, {{0, 0, 0}, {1, 0, 0}, {0, 1, 0}});  // panel 1
  CZelData const before(model);
  for (int const n : {-1, 0, 1, 2, 100000000}) EXPECT_FALSE(FlipElement(model, n));
  EXPECT_TRUE(IsUnchanged(model, before));
}

TEST(FlipElement, NeedsNoNodesInTheModel) {
  CZelData model;
  model.SetElem(1, Testing::Element(ElementType::Quad4, {11, 12, 13, 14}));
  EXPECT_TRUE(FlipElement(model, 1));
  EXPECT_TRUE(References(model, 1, {12, 11, 14, 13}));
}

/// Gives an element a random offset, releases and long positions, whatever its shape.
void DressAtRandom(Data::CElement& element, Testing::Random& random) {
  std::vector<double> const values{0, 0, 0.25, -0.5, 1.75, -0.0, 1e-3, 0.1};
  Data::COffset offset{random.Of(values), random.Of(values), random.Of(values), random.Of(values)};
  for (int const end : {0, 1}) {
    if (random.Percent(20)) offset.SetAuto(end, AutoOffset::On);
    if (random.Percent(20)) offset.SetType(end, OffsetType::Derived);
  }
  element.SetOffset(offset);
  for (int i = 0; i < element.NumTopo(); ++i)
    if (random.Percent(50)) element.SetConnect(i, Testing::ReleaseFor(random.Int(1, 50)));
  element.SetLongPosition(true, random.Real(0, 1));
  element.SetLongPosition(false, random.Real(0, 1));
}

TEST(FlipElement, TwiceIsTheIdentityOnRandomElementsOfAllTypes) {
  std::map<ElementType, int> flipped;
  Testing::ForEachRandomModel(60, [&](CZelData model, Testing::Random& random) {
    for (int n = 1; n <= model.HighestElem(); ++n) {
      if (!model.ElemExist(n)) continue;
      auto element = model.Elem(n);
      DressAtRandom(element, random);
      model.SetElem(n, element);
    }
    CZelData const before(model);
    std::vector<int> turned;
    for (int n = 1; n <= model.HighestElem(); ++n)
      if (FlipElement(model, n)) turned.push_back(n);
    for (int const n : turned) {
      EXPECT_FALSE(model.Elem(n) == before.Elem(n));
      EXPECT_TRUE(FlipElement(model, n));
      ++flipped[model.Elem(n).Type()];
    }
    ASSERT_TRUE(IsUnchanged(model, before));
  });
  EXPECT_EQ(flipped.size(), 15u);  // 10 lines, 4 plates and the brick
  for (auto const& [type, count] : flipped) EXPECT_GT(count, 10) << static_cast<int>(type);
}

// Load panels.

/// Topology of a panel after it was flipped.
std::vector<int> FlippedPanel(std::vector<int> const& nodes) {
  CZelData model;
  model.SetLoadPanel(4, Testing::Panel(nodes));
  EXPECT_TRUE(FlipLoadPanel(model, 4));
  return Ring(model, 4);
}

TEST(FlipLoadPanel, ReversesTheRingAndKeepsTheEdgeBetweenTheFirstTwoNodes) {
  EXPECT_EQ(FlippedPanel({10, 11, 12}), (std::vector{11, 10, 12}));
  EXPECT_EQ(FlippedPanel({10, 11, 12, 13}), (std::vector{11, 10, 13, 12}));
  EXPECT_EQ(FlippedPanel({10, 11, 12, 13, 14}), (std::vector{11, 10, 14, 13, 12}));
  EXPECT_EQ(FlippedPanel({1, 2, 3, 4, 5, 6, 7, 8}), (std::vector{2, 1, 8, 7, 6, 5, 4, 3}));
}

TEST(FlipLoadPanel, TakesPanelsOfTwoNodesOrFewer) {
  EXPECT_EQ(FlippedPanel({10, 11}), (std::vector{11, 10}));
  EXPECT_EQ(FlippedPanel({10}), (std::vector{10}));
  EXPECT_EQ(FlippedPanel({}), (std::vector<int>{}));
}

TEST(FlipLoadPanel, TwiceIsTheIdentity) {
  for (int count = 0; count < 10; ++count) {
    CZelData model;
    std::vector<int> nodes;
    for (int i = 0; i < count; ++i) nodes.push_back(100 + i * i);
    model.SetLoadPanel(1, Testing::Panel(nodes));
    CZelData const before(model);
    EXPECT_TRUE(FlipLoadPanel(model, 1));
    EXPECT_EQ(Ring(model, 1) == nodes, count < 2);
    EXPECT_TRUE(FlipLoadPanel(model, 1));
    EXPECT_TRUE(IsUnchanged(model, before));
  }
}

TEST(FlipLoadPanel, TurnsTheNormalAndChangesNothingElse) {
  CZelData model;
  Testing::PanelAt(model, {{0, 0, 0}, {2, 0, 0}, {3, 1, 0}, {1, 2, 0}, {0, 1, 0}});
  auto panel = model.LoadPanel(1);
  panel.SetName(L"wind");
  panel.SetGroup(3);
  panel.SetOrientationAngle(20);
  panel.SetParentMember({4, 0});
  model.SetLoadPanel(1, panel);
  CZelData const before(model);
  EXPECT_TRUE(FlipLoadPanel(model, 1));
  EXPECT_TRUE(Testing::IsNear(Testing::NormalAt(model, 1), {0, 0, -1}));
  EXPECT_EQ(Differences(model, before), std::vector<std::string>{"LoadPanel 1: topology"});
}

TEST(FlipLoadPanel, RefusesANumberWithoutAPanel) {
  CZelData model;
  Testing::Grid(model, 1, 1);
  CZelData const before(model);
  for (int const n : {-1, 0, 1, 2}) EXPECT_FALSE(FlipLoadPanel(model, n));
  EXPECT_TRUE(IsUnchanged(model, before));
}

// Either.

TEST(FlipEntity, FlipsAnElementOrAPanelByItsNumber) {
  CZelData model;
  Testing::Grid(model, 1, 1);
  model.SetLoadPanel(2, Testing::Panel({1, 2, 4, 3}));
  EXPECT_TRUE(FlipEntity(model, {SelElement, 1}));
  EXPECT_TRUE(References(model, 1, {2, 1, 3, 4}));  // the square is 1, 2, 4, 3
  EXPECT_TRUE(References(model, 2, {1, 2, 4, 3}));
  EXPECT_TRUE(FlipEntity(model, {SelElement, 2}));
  EXPECT_TRUE(References(model, 2, {2, 1, 3, 4}));
  EXPECT_TRUE(model.LoadPanelExist(2));
}

TEST(FlipEntity, RefusesOtherKindsThoughTheNumberIsAnElement) {
  CZelData model;
  Testing::Grid(model, 1, 1);
  CZelData const before(model);
  for (auto const kind : {SelNone, SelNode, SelMember, SelCase, SelOther})
    EXPECT_FALSE(FlipEntity(model, {kind, 1}));
  EXPECT_FALSE(FlipEntity(model, {SelElement, 2}));
  EXPECT_FALSE(FlipEntity(model, {SelElement, 0}));
  EXPECT_TRUE(IsUnchanged(model, before));
}

}  // namespace
}  // namespace Tarvex::FlipTest
