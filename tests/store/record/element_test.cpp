#include "store/record/element.h"

#include <gtest/gtest.h>

#include <climits>

#include "tests/support/builders.h"
#include "tests/support/matchers.h"
#include "tests/support/stored_fields.h"

namespace Tarvex::Data::ElementTest {
namespace {

using Testing::Element;
using Nodes = std::vector<int>;

Nodes TopoOf(CElement const& element) {
  return {element.Topology().begin(), element.Topology().end()};
}

CElemConnect Pinned() { return CElemConnect(Vbool6(L"pin")); }

TEST(Element, IsOfNoTypeAtFirst) {
  CElement const element;
  EXPECT_EQ(element.Type(), ElementType::None);
  EXPECT_EQ(element.NumTopo(), 0);
  EXPECT_EQ(element.Group(), 1);
  EXPECT_EQ(element.Property(), 0);
  EXPECT_EQ(element.OrientationNode(), 0);
  EXPECT_EQ(element.OrientationAngle(), 0);
  EXPECT_FALSE(element.IsDummy());
  EXPECT_FALSE(element.IsConnect());
  EXPECT_FALSE(element.IsOffset());
  EXPECT_EQ(element.LongPosition(true), 0);
  EXPECT_EQ(element.LongPosition(false), 1);
  EXPECT_EQ(element.ParentMember(), ParentMember());
}

TEST(Element, IsMadeWithTheTopologyLengthOfItsType) {
  CElement const element(3, ElementType::Quad8, 7);
  EXPECT_EQ(element.Group(), 3);
  EXPECT_EQ(element.Property(), 7);
  EXPECT_EQ(element.Type(), ElementType::Quad8);
  EXPECT_EQ(TopoOf(element), Nodes(8, 0));
  EXPECT_EQ(TopoOf(CElement(1, static_cast<ElementType>(4), 1)), Nodes());
}

TEST(Element, KeepsWhatIsSet) {
  CElement element(1, ElementType::Beam, 1);
  element.SetGroup(2);
  element.SetProperty(3);
  element.SetOrientationNode(4);
  element.SetOrientationAngle(30);
  element.SetIsDummy(true);
  element.SetOffset({1, 2, 3, 4});
  element.SetLongPosition(true, 0.25);
  element.SetLongPosition(false, 0.75);
  element.SetParentMember({5, 6});
  EXPECT_EQ(element.Group(), 2);
  EXPECT_EQ(element.Property(), 3);
  EXPECT_EQ(element.OrientationNode(), 4);
  EXPECT_EQ(element.OrientationAngle(), 30);
  EXPECT_TRUE(element.IsDummy());
  EXPECT_EQ(element.Offset(), COffset(1, 2, 3, 4));
  EXPECT_TRUE(element.IsOffset());
  EXPECT_EQ(element.LongPosition(true), 0.25);
  EXPECT_EQ(element.LongPosition(false), 0.75);
  EXPECT_EQ(element.ParentMember().member, 5);
  EXPECT_EQ(element.ParentMember().replica, 6);
  element.SetIsDummy(false);
  EXPECT_FALSE(element.IsDummy());
}

TEST(Element, KnowsItsKind) {
  struct Row {
    int type;
    char const* kinds;  // 1D, 2D, 3D, beam, quadrilateral, section
    int edges;
  };
  for (auto const& [type, kinds, edges] :
       {Row{1, "1----s", 1}, Row{2, "1--b-s", 1}, Row{3, "1-----", 1}, Row{4, "------", 0},
        Row{5, "-2--q-", 4}, Row{6, "-2--q-", 4}, Row{7, "-2----", 3}, Row{8, "-2----", 3},
        Row{9, "1-----", 1}, Row{12, "--3---", 12}, Row{14, "--3---", 9}, Row{16, "--3---", 6},
        Row{19, "1-----", 1}, Row{20, "1----s", 1}, Row{24, "1-----", 1}, Row{26, "--3---", 8}}) {
    CElement const e(1, static_cast<ElementType>(type), 1);
    std::string const found{e.Is1D() ? '1' : '-',   e.Is2D() ? '2' : '-',
                            e.Is3D() ? '3' : '-',   e.IsBeam() ? 'b' : '-',
                            e.IsQuad() ? 'q' : '-', e.IsSection() ? 's' : '-'};
    EXPECT_EQ(found, kinds) << type;
    EXPECT_EQ(e.NumEdge(), edges) << type;
  }
}

TEST(Element, GivesNodeZeroPastTheEndOfItsTopology) {
  auto const element = Element(ElementType::Beam, {8, 9});
  EXPECT_EQ(element.Topo(0), 8);
  EXPECT_EQ(element.Topo(1), 9);
  for (int const place : {2, -1, INT_MIN, INT_MAX}) EXPECT_EQ(element.Topo(place), 0);
  EXPECT_EQ(&element.Topo(), &element.Topology());
}

TEST(Element, SetsOneTopologyPosition) {
  auto element = Element(ElementType::Beam, {8, 9});
  element.SetTopo(1, 7);
  EXPECT_EQ(TopoOf(element), (Nodes{8, 7}));
  for (int const place : {2, -1, INT_MAX})
    EXPECT_EQ(Testing::OutOfRangeText([&] { element.SetTopo(place, 5); }),
              "invalid vector subscript");
  EXPECT_EQ(TopoOf(element), (Nodes{8, 7}));
}

TEST(Element, TakesATopologyOfAnotherLengthThanItsType) {
  CElement brick(1, ElementType::Brick8, 1);
  brick.SetTopo(Nodes{1, 2, 3, 4, 5, 6, 7});
  EXPECT_EQ(brick.NumTopo(), 7);
  EXPECT_EQ(brick.NumEdge(), 12);
  EXPECT_EQ(brick.Topo(7), 0);
  brick.SetTopology(Nodes{1, 2, 3, 4, 5, 6, 7, 8, 9, 10});
  EXPECT_EQ(brick.NumTopo(), 10);
  EXPECT_EQ(brick.Topo(9), 10);
  brick.SetTopo(Nodes());
  EXPECT_EQ(brick.NumTopo(), 0);
}

TEST(Element, TakesItsOwnTopology) {
  auto element = Element(ElementType::Quad4, {1, 2, 3, 4});
  element.SetTopo(element.Topo());
  EXPECT_EQ(TopoOf(element), (Nodes{1, 2, 3, 4}));
}

TEST(Element, ListsTheNodesOfAFace) {
  auto const brick = Element(ElementType::Brick8, {11, 12, 13, 14, 15, 16, 17, 18});
  EXPECT_EQ(brick.FaceTopo(1), (Nodes{15, 16, 17, 18}));
  EXPECT_EQ(brick.FaceTopo(2), (Nodes{11, 12, 16, 15}));
  auto const wedge = Element(ElementType::Wedge6, {1, 2, 3, 4, 5, 6});
  EXPECT_EQ(wedge.FaceTopo(0), (Nodes{1, 3, 2}));
  EXPECT_EQ(wedge.FaceTopo(3), (Nodes{2, 3, 6, 5}));
  EXPECT_EQ(Element(ElementType::Tri6, {1, 2, 3, 4, 5, 6}).FaceTopo(0), (Nodes{1, 2, 3}));
  Nodes nodes{99};
  wedge.FaceTopo(nodes, 1);
  EXPECT_EQ(nodes, (Nodes{4, 5, 6}));
}

TEST(Element, HasNoNodesOnAFaceThatItsShapeHasNot) {
  auto const wedge = Element(ElementType::Wedge6, {1, 2, 3, 4, 5, 6});
  for (int const face : {-1, 5, INT_MIN, INT_MAX}) EXPECT_EQ(wedge.FaceTopo(face), Nodes());
  EXPECT_EQ(Element(ElementType::Beam, {1, 2}).FaceTopo(0), Nodes());
  Nodes nodes{99};
  wedge.FaceTopo(nodes, 5);
  EXPECT_EQ(nodes, Nodes());
  // A place past the end of a short topology gives node 0.
  EXPECT_EQ(Element(ElementType::Tri3, {1, 2}).FaceTopo(0), (Nodes{1, 2, 0}));
}

TEST(Element, IsConnectedByAReleaseOrAStiffnessAtAnyPlace) {
  auto element = Element(ElementType::Quad4, {1, 2, 3, 4});
  EXPECT_FALSE(element.IsConnect());
  element.SetConnect(3, Pinned());
  EXPECT_TRUE(element.IsConnect());
  EXPECT_EQ(element.Connect(3), Pinned());
  EXPECT_TRUE(element.Connect(0).IsNone());
  EXPECT_TRUE(element.Connect(99).IsNone());
  element.SetConnect(3, CElemConnect());
  EXPECT_FALSE(element.IsConnect());
  CElemConnect spring;
  spring.SetStiffness(Direction::ZZ, 5);
  element.SetConnect(0, spring);
  EXPECT_TRUE(element.IsConnect());
}

TEST(Element, SetTypeKeepsTheCornersAndFillsTheRest) {
  struct Row {
    ElementType from;
    Nodes topo;
    ElementType to;
    Nodes result;
  };
  using enum ElementType;
  Row const rows[] = {
      {Quad4, {1, 2, 3, 4}, Quad8, {1, 2, 3, 4, 0, 0, 0, 0}},
      {Quad8, {1, 2, 3, 4, 5, 6, 7, 8}, Quad4, {1, 2, 3, 4}},
      {Tri3, {1, 2, 3}, Tri6, {1, 2, 3, 0, 0, 0}},
      {Tri6, {1, 2, 3, 4, 5, 6}, Tri3, {1, 2, 3}},
      {Quad4, {1, 2, 3, 4}, Tri3, {1, 2, 3}},
      {Tri3, {1, 2, 3}, Quad4, {1, 2, 3, 0}},
      {Quad8, {1, 2, 3, 4, 5, 6, 7, 8}, Tri6, {1, 2, 3, 0, 0, 0}},
      {Tri6, {1, 2, 3, 4, 5, 6}, Quad8, {1, 2, 3, 0, 0, 0, 0, 0}},
      {Quad8, {1, 2, 3, 4, 5, 6, 7, 8}, Quad8, {1, 2, 3, 4, 5, 6, 7, 8}},
      {Beam, {1, 2}, Bar, {1, 2}},
      {Beam, {1, 2}, Spacer, {1, 2}},
      {Brick8, {1, 2, 3, 4, 5, 6, 7}, Brick8, {1, 2, 3, 4, 5, 6, 7, 0}},
      {Brick8, {1, 2, 3, 4, 5, 6, 7, 8}, Wedge6, {1, 2, 3, 4, 5, 6}},
      {Quad4, {1, 2}, Quad8, {1, 2, 0, 0, 0, 0, 0, 0}},
      {Quad4, {1, 2}, Tri6, {1, 2, 0, 0, 0, 0}},
  };
  for (auto const& row : rows) {
    auto element = Element(row.from, row.topo);
    element.SetType(row.to);
    EXPECT_EQ(element.Type(), row.to);
    EXPECT_EQ(TopoOf(element), row.result)
        << static_cast<int>(row.from) << " to " << static_cast<int>(row.to);
  }
}

TEST(Element, SetTypeKeepsTheReleasesOfPlacesThatStayOnly) {
  struct Row {
    ElementType from;
    ElementType to;
    Nodes kept;  // of places 0 to 7, all of them released before
  };
  using enum ElementType;
  Row const rows[] = {{Quad8, Quad4, {0, 1, 2, 3}}, {Quad8, Tri6, {0, 1, 2}},
                      {Quad4, Quad8, {0, 1, 2, 3}}, {Tri6, Quad8, {0, 1, 2}},
                      {Tri6, Tri3, {0, 1, 2}},      {Tri3, Quad4, {0, 1, 2}},
                      {Beam, Link, {0, 1}},         {Quad8, Quad8, {0, 1, 2, 3, 4, 5, 6, 7}}};
  for (auto const& row : rows) {
    CElement element(1, row.from, 1);
    for (int i = 0; i < element.NumTopo(); ++i) element.SetConnect(i, Pinned());
    element.SetType(row.to);
    Nodes kept;
    for (int i = 0; i < 8; ++i)
      if (!element.Connect(i).IsNone()) kept.push_back(i);
    EXPECT_EQ(kept, row.kept) << static_cast<int>(row.from) << " to " << static_cast<int>(row.to);
  }
}

TEST(Element, SetTypeFromOrToATypeWithoutAShapeKeepsTheTopology) {
  auto const shapeless = static_cast<ElementType>(4);
  CElement element(1, ElementType::Quad4, 1);
  element.SetTopo(std::vector{5, 6, 7, 8});
  element.SetConnect(2, CElemConnect(Vbool6(1, 0, 0, 0, 0, 0)));
  element.SetType(shapeless);
  EXPECT_EQ(element.Topo(), (TopoVector{5, 6, 7, 8}));
  EXPECT_TRUE(element.IsConnect());
  element.SetType(ElementType::Tri3);
  EXPECT_EQ(element.Topo(), (TopoVector{5, 6, 7, 8}));
}

TEST(Element, SetTypeKeepsEverythingElse) {
  auto element = Element(ElementType::Quad4, {1, 2, 3, 4});
  element.SetProperty(9);
  element.SetOffset({0, 0, 0, 1});
  element.SetOrientationAngle(45);
  element.SetName(L"slab");
  auto changed = element;
  changed.SetType(ElementType::Quad8);
  EXPECT_EQ(Testing::ChangedFields(changed, element),
            (std::vector<std::string>{"type", "topology"}));
}

TEST(Element, ComparesEveryField) {
  Testing::ExpectStoredFields<CElement>(
      {{"name", [](CElement& e) { e.SetName(L"n"); }},
       {"sid", [](CElement& e) { e.SetSid(L"s"); }},
       {"colour", [](CElement& e) { e.SetColour(1); }},
       {"type", [](CElement& e) { e.SetType(ElementType::Bar); }},
       {"group", [](CElement& e) { e.SetGroup(2); }},
       {"property", [](CElement& e) { e.SetProperty(2); }},
       {"topology", [](CElement& e) { e.SetTopo(1, 7); }},
       {"orientationNode", [](CElement& e) { e.SetOrientationNode(1); }},
       {"orientationAngle", [](CElement& e) { e.SetOrientationAngle(-0.0); }},
       {"offset",
        [](CElement& e) {
          e.SetOffset({0, -0.0, 0, 0});
        }},
       {"connect", [](CElement& e) { e.SetConnect(1, Pinned()); }},
       {"longPosition", [](CElement& e) { e.SetLongPosition(true, -0.0); }},
       {"dummy", [](CElement& e) { e.SetIsDummy(true); }},
       {"parentMember",
        [](CElement& e) {
          e.SetParentMember({0, 1});
        }}},
      Element(ElementType::Beam, {1, 2}));
}

TEST(Element, PointsByItsPropertyIntoTheTableOfItsType) {
  for (auto const& [type, module] : {std::pair{2, 50},
                                     {3, 52},
                                     {5, 54},
                                     {12, 55},
                                     {9, 56},
                                     {24, 57},
                                     {10, 58},
                                     {19, 59},
                                     {4, -1}}) {
    CElement const element(1, static_cast<ElementType>(type), 1);
    ForEachField<CElement>([&, m = module](auto const& field) {
      if (field.name != "property") return;
      ASSERT_NE(field.target, nullptr);
      EXPECT_EQ(static_cast<int>(field.target(element)), m) << type;
    });
  }
}

}  // namespace
}  // namespace Tarvex::Data::ElementTest
