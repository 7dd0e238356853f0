#include "store/record/variant_element.h"

#include <gtest/gtest.h>

#include "tests/support/builders.h"
#include "tests/support/print.h"
#include "tests/support/record_fields.h"

namespace Tarvex::VariantElementTest {
namespace {

using Data::CElement;
using Data::LoadPanel;
using Data::VariantElementConstRef;
using Data::VariantElementValue;
using Testing::Element;
using Testing::Panel;
using Nodes = std::vector<int>;

VariantElementType Variant(int number) { return static_cast<VariantElementType>(number); }

template <class Entity>
Nodes TopoOf(Entity const& entity) {
  return {entity.Topology().begin(), entity.Topology().end()};
}

/// Gives an entity a value of its own in each field that elements and panels have both.
template <class Entity>
Entity Filled(Entity entity) {
  entity.SetName(L"name");
  entity.SetSid(L"sid");
  entity.SetColour(0x123456);
  entity.SetGroup(2);
  entity.SetProperty(3);
  entity.SetIsDummy(true);
  entity.SetOrientationAngle(45);
  entity.SetParentMember({5, 6});
  return entity;
}

TEST(VariantElementType, IsThatOfTheElementButForThePanelAndTheSpacer) {
  for (int type = 1; type <= 26; ++type) {
    auto const elementType = static_cast<ElementType>(type);
    int const variant = type == 19 ? 27 : type;
    EXPECT_EQ(ToVariantType(elementType), Variant(variant)) << type;
    EXPECT_EQ(ToElementType(Variant(variant)), elementType) << type;
  }
  EXPECT_EQ(VariantElementType::LoadPanel, Variant(19));
  EXPECT_EQ(VariantElementType::Spacer, Variant(27));
  EXPECT_EQ(ToElementType(VariantElementType::LoadPanel), std::nullopt);
  for (int const none : {0, -1, 28, 1000}) EXPECT_EQ(ToElementType(Variant(none)), std::nullopt);
}

TEST(VariantElement, ShowsAnElement) {
  auto element = Filled(Element(ElementType::Spacer, {8, 9}));
  element.SetOrientationNode(4);
  element.SetOffset({1, 2, 3, 4});
  element.SetConnect(1, CElemConnect(Vbool6(L"pin")));
  VariantElementConstRef const view(element);
  EXPECT_FALSE(view.IsLoadPanel());
  EXPECT_EQ(view.Element(), &element);
  EXPECT_EQ(view.Panel(), nullptr);
  EXPECT_EQ(view.Type(), ElementType::Spacer);
  EXPECT_EQ(view.VariantType(), VariantElementType::Spacer);
  EXPECT_FALSE(view.Is2D());
  EXPECT_TRUE(view.IsDummy());
  EXPECT_EQ(view.Group(), 2);
  EXPECT_EQ(view.Property(), 3);
  EXPECT_EQ(&view.Topology(), &element.Topology());
  EXPECT_EQ(view.OrientationAngle(), 45);
  EXPECT_EQ(view.OrientationNode(), 4);
  EXPECT_EQ(view.Offset(), Data::COffset(1, 2, 3, 4));
  EXPECT_EQ(view.Connect(1), CElemConnect(Vbool6(L"pin")));
  EXPECT_EQ(view.Connect(0), CElemConnect());
  EXPECT_TRUE(view.CanGetConnect());
  EXPECT_TRUE(view.CanGetOffset());
  auto const quad = Element(ElementType::Quad4, {1, 2, 3, 4});
  EXPECT_TRUE(VariantElementConstRef(quad).Is2D());
}

TEST(VariantElement, ShowsALoadPanelAsWhatItHas) {
  auto const panel = Filled(Panel({1, 2, 3}));
  VariantElementConstRef const view(panel);
  EXPECT_TRUE(view.IsLoadPanel());
  EXPECT_EQ(view.Element(), nullptr);
  EXPECT_EQ(view.Panel(), &panel);
  EXPECT_EQ(view.Type(), std::nullopt);
  EXPECT_EQ(view.VariantType(), VariantElementType::LoadPanel);
  EXPECT_TRUE(view.Is2D());
  EXPECT_TRUE(view.IsDummy());
  EXPECT_EQ(view.Group(), 2);
  EXPECT_EQ(view.Property(), 3);
  EXPECT_EQ(&view.Topology(), &panel.Topology());
  EXPECT_EQ(view.OrientationAngle(), 45);
  EXPECT_EQ(view.OrientationNode(), std::nullopt);
  EXPECT_EQ(view.Offset(), std::nullopt);
  EXPECT_EQ(view.Connect(0), std::nullopt);
  EXPECT_FALSE(view.CanGetConnect());
  EXPECT_FALSE(view.CanGetOffset());
}

TEST(VariantElementValue, OwnsEither) {
  auto const element = Element(ElementType::Beam, {1, 2});
  auto const panel = Panel({1, 2, 3});
  VariantElementValue const e(element);
  VariantElementValue const p(panel);
  EXPECT_FALSE(e.IsLoadPanel());
  ASSERT_NE(e.Element(), nullptr);
  EXPECT_EQ(*e.Element(), element);
  EXPECT_EQ(e.Panel(), nullptr);
  EXPECT_TRUE(p.IsLoadPanel());
  ASSERT_NE(p.Panel(), nullptr);
  EXPECT_EQ(*p.Panel(), panel);
  EXPECT_EQ(p.Element(), nullptr);
  EXPECT_EQ(e, VariantElementValue(element));
  EXPECT_FALSE(e == p);
}

LoadPanel AsPanel(CElement const& element) {
  return *VariantElementConstRef(element).CopyAsType(VariantElementType::LoadPanel).Panel();
}

TEST(CopyAsType, MakesAPanelOfTheCornersOfAnElement) {
  for (auto const& [type, corners] : {std::pair{ElementType::Quad8, 4},
                                      {ElementType::Tri6, 3},
                                      {ElementType::Quad4, 4},
                                      {ElementType::Tri3, 3}}) {
    Nodes nodes;
    for (int i = 0; i < ShapeOf(type).nodes; ++i) nodes.push_back(i + 11);
    auto const panel = AsPanel(Element(type, nodes));
    nodes.resize(static_cast<std::size_t>(corners));
    EXPECT_EQ(TopoOf(panel), nodes);
  }
  EXPECT_EQ(TopoOf(AsPanel(Element(ElementType::Quad4, {1, 2, 3}))), (Nodes{1, 2, 3}));
}

TEST(CopyAsType, KeepsWhatElementsAndPanelsHaveBoth) {
  auto const panel = Filled(Panel({1, 2, 3, 4}));
  auto const element = Filled(Element(ElementType::Quad4, {1, 2, 3, 4}));
  EXPECT_EQ(AsPanel(element), panel);
  auto const back = VariantElementConstRef(panel).CopyAsType(Variant(5));
  ASSERT_NE(back.Element(), nullptr);
  EXPECT_EQ(*back.Element(), element);
}

TEST(CopyAsType, LeavesOutWhatAPanelHasNot) {
  auto element = Element(ElementType::Quad4, {1, 2, 3, 4});
  auto const plain = AsPanel(element);
  element.SetOffset({0, 0, 0, 1});
  element.SetConnect(0, CElemConnect(Vbool6(L"pin")));
  element.SetOrientationNode(5);
  EXPECT_EQ(AsPanel(element), plain);
}

TEST(CopyAsType, GivesAnElementOfAPanelAsManyNodesAsItsTypeHas) {
  struct Row {
    Nodes panel;
    int type;
    Nodes result;
  };
  Row const rows[] = {{{1, 2, 3, 4}, 5, {1, 2, 3, 4}},
                      {{1, 2, 3, 4}, 6, {1, 2, 3, 4, 0, 0, 0, 0}},
                      {{1, 2, 3}, 5, {1, 2, 3, 0}},
                      {{1, 2, 3, 4, 5}, 7, {1, 2, 3}},
                      {{1, 2, 3, 4, 5, 6}, 8, {1, 2, 3, 0, 0, 0}},
                      {{1, 2, 3}, 27, {1, 2}}};
  for (auto const& row : rows) {
    auto const panel = Panel(row.panel);
    auto const copy = VariantElementConstRef(panel).CopyAsType(Variant(row.type));
    ASSERT_NE(copy.Element(), nullptr);
    EXPECT_EQ(ToVariantType(copy.Element()->Type()), Variant(row.type));
    EXPECT_EQ(TopoOf(*copy.Element()), row.result) << row.type;
  }
}

TEST(CopyAsType, OfTheSameTypeIsAPlainCopy) {
  auto element = Filled(Element(ElementType::Brick8, {1, 2, 3, 4, 5, 6, 7}));
  element.SetOffset({1, 2, 3, 4});
  EXPECT_EQ(VariantElementConstRef(element).CopyAsType(Variant(12)), VariantElementValue(element));
  auto const panel = Filled(Panel({1, 2, 3, 4, 5}));
  EXPECT_EQ(VariantElementConstRef(panel).CopyAsType(Variant(19)), VariantElementValue(panel));
}

TEST(CopyAsType, BetweenElementsIsAChangeOfType) {
  auto const quad = Filled(Element(ElementType::Quad8, {1, 2, 3, 4, 5, 6, 7, 8}));
  auto expected = quad;
  expected.SetType(ElementType::Quad4);
  EXPECT_EQ(VariantElementConstRef(quad).CopyAsType(Variant(5)), VariantElementValue(expected));
  EXPECT_EQ(TopoOf(*VariantElementConstRef(quad).CopyAsType(Variant(5)).Element()),
            (Nodes{1, 2, 3, 4}));
  auto const beam = Element(ElementType::Beam, {1, 2});
  auto const spacer = VariantElementConstRef(beam).CopyAsType(VariantElementType::Spacer);
  ASSERT_NE(spacer.Element(), nullptr);
  EXPECT_EQ(spacer.Element()->Type(), ElementType::Spacer);
}

}  // namespace
}  // namespace Tarvex::VariantElementTest
