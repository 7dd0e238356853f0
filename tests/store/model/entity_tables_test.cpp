// What nodes, elements and load panels have beside the common operations of their tables, which
// registry_test.cpp holds.
#include "store/model/entity_tables.h"

#include <gtest/gtest.h>

#include <climits>

#include "store/model/zel_data.h"
#include "store/record/node.h"
#include "tests/support/builders.h"
#include "tests/support/matchers.h"

namespace Tarvex::EntityTablesTest {
namespace {

using Data::CElement;
using Data::CNode;
using Testing::Differences;
using Testing::Element;
using Testing::OutOfRangeText;
using Testing::Panel;
using Testing::References;
using Lines = std::vector<std::string>;

/// Expects that a change of a model with nodes, a beam 1, a quadrilateral 2 and a panel 3 changes
/// exactly what the lines say.
template <class Change>
void ExpectChange(Change&& change, Lines const& lines) {
  CZelData model;
  for (int i = 0; i < 4; ++i) Testing::NodeAt(model, i, i % 2, 0);
  model.SetElem(1, Element(ElementType::Beam, {1, 2}));
  model.SetElem(2, Element(ElementType::Quad4, {1, 2, 3, 4}));
  model.SetLoadPanel(3, Panel({1, 2, 3}));
  CZelData const before(model);
  change(model);
  EXPECT_EQ(Differences(model, before), lines);
}

TEST(Nodes, ChangeByOneField) {
  ExpectChange([](CZelData& m) { m.SetNodeCoor(2, {7, 8, 9}); }, {"Node 2: position"});
  ExpectChange([](CZelData& m) { m.SetNodeAxis(2, 5); }, {"Node 2: axis"});
  ExpectChange([](CZelData& m) { m.SetNodeRestraint(2, Vbool6(L"pin")); }, {"Node 2: restraint"});
  ExpectChange([](CZelData& m) { m.SetNodeSid(2, L"id"); }, {"Node 2: sid"});
}

TEST(Nodes, KeepWhatTheirShortcutsSet) {
  CZelData model;
  model.CreateNode(7, {1, 2, 3}, 4, Vbool6(L"pin"));
  EXPECT_EQ(model.Node(7), CNode({1, 2, 3}, 4, Vbool6(L"pin")));
  EXPECT_EQ(model.NodeCoor(7), (Vec3<double>{1, 2, 3}));
  model.SetNodeCoor(7, {4, 5, 6});
  model.SetNodeAxis(7, 8);
  model.SetNodeRestraint(7, Vbool6(L"fix"));
  model.SetNodeSid(7, L"id");
  EXPECT_EQ(model.NodeCoor(7), (Vec3<double>{4, 5, 6}));
  EXPECT_EQ(model.Node(7).Axis(), 8);
  EXPECT_EQ(model.Node(7).Restraint(), Vbool6(L"fix"));
  EXPECT_EQ(model.Node(7).Sid(), L"id");
}

TEST(Nodes, OfMissingNumbersAreNamed) {
  CZelData model;
  for (auto const& call : std::initializer_list<void (*)(CZelData&)>{
           [](CZelData& m) { m.SetNodeCoor(9, {}); }, [](CZelData& m) { m.SetNodeAxis(9, 1); },
           [](CZelData& m) { m.SetNodeRestraint(9, Vbool6()); },
           [](CZelData& m) { m.SetNodeSid(9, L""); }, [](CZelData& m) { m.NodeCoor(9); }})
    EXPECT_EQ(OutOfRangeText([&] { call(model); }), "Node 9 does not exist");
}

TEST(Elements, AreCreatedWithTheTopologyLengthOfTheirType) {
  CZelData model;
  model.CreateElem(5, ElementType::Tri6, 2, 3);
  EXPECT_EQ(model.Elem(5), CElement(2, ElementType::Tri6, 3));
  EXPECT_TRUE(References(model, 5, {0, 0, 0, 0, 0, 0}));
}

TEST(Elements, ChangeByOneField) {
  auto const pinned = CElemConnect(Vbool6(L"pin"));
  ExpectChange([](CZelData& m) { m.SetElemTopo(1, 1, 4); }, {"Elem 1: topology"});
  ExpectChange([](CZelData& m) { m.SetElemType(2, ElementType::Quad8); },
               {"Elem 2: type, topology"});
  ExpectChange([](CZelData& m) { m.SetElemProperty(2, 9); }, {"Elem 2: property"});
  ExpectChange([](CZelData& m) { m.SetElemGroup(2, 9); }, {"Elem 2: group"});
  ExpectChange([](CZelData& m) { m.SetElemDummy(2, true); }, {"Elem 2: dummy"});
  ExpectChange([](CZelData& m) { m.SetElemBeta(2, 9); }, {"Elem 2: orientationAngle"});
  ExpectChange([](CZelData& m) { m.SetElemOrientNode(1, 4); }, {"Elem 1: orientationNode"});
  ExpectChange([&](CZelData& m) { m.SetElemConnect(1, 1, pinned); }, {"Elem 1: connect"});
  ExpectChange([](CZelData& m) { m.SetElemOffset(1, {1, 2, 3, 4}); }, {"Elem 1: offset"});
  ExpectChange([](CZelData& m) { m.SetElemSid(1, L"id"); }, {"Elem 1: sid"});
}

TEST(Elements, KeepWhatTheirShortcutsSet) {
  CZelData model;
  model.SetElem(1, Element(ElementType::Beam, {1, 2}));
  model.SetElemTopo(1, 1, 7);
  model.SetElemProperty(1, 2);
  model.SetElemGroup(1, 3);
  model.SetElemDummy(1, true);
  model.SetElemBeta(1, 30);
  model.SetElemOrientNode(1, 4);
  model.SetElemConnect(1, 1, CElemConnect(Vbool6(L"pin")));
  model.SetElemOffset(1, {1, 2, 3, 4});
  model.SetElemSid(1, L"id");
  model.SetElemType(1, ElementType::Bar);
  auto const& element = model.Elem(1);
  EXPECT_TRUE(References(model, 1, {1, 7}));
  EXPECT_EQ(element.Property(), 2);
  EXPECT_EQ(element.Group(), 3);
  EXPECT_TRUE(element.IsDummy());
  EXPECT_EQ(element.OrientationAngle(), 30);
  EXPECT_EQ(element.OrientationNode(), 4);
  EXPECT_EQ(element.Connect(1).Release(), Vbool6(L"pin"));
  EXPECT_EQ(element.Offset(), Data::COffset(1, 2, 3, 4));
  EXPECT_EQ(element.Sid(), L"id");
  EXPECT_EQ(element.Type(), ElementType::Bar);
}

TEST(Elements, OfMissingNumbersAreNamed) {
  CZelData model;
  for (auto const& call : std::initializer_list<void (*)(CZelData&)>{
           [](CZelData& m) { m.SetElemTopo(9, 0, 1); },
           [](CZelData& m) { m.SetElemType(9, ElementType::Bar); },
           [](CZelData& m) { m.SetElemProperty(9, 1); }, [](CZelData& m) { m.SetElemGroup(9, 1); },
           [](CZelData& m) { m.SetElemDummy(9, true); }, [](CZelData& m) { m.SetElemBeta(9, 1); },
           [](CZelData& m) { m.SetElemOrientNode(9, 1); },
           [](CZelData& m) { m.SetElemConnect(9, 0, CElemConnect()); },
           [](CZelData& m) { m.SetElemOffset(9, {}); }, [](CZelData& m) { m.SetElemSid(9, L""); }})
    EXPECT_EQ(OutOfRangeText([&] { call(model); }), "Elem 9 does not exist");
}

TEST(Elements, RefuseTopologyPlacesPastTheirEnd) {
  ExpectChange(
      [](CZelData& m) {
        for (int const place : {2, -1, INT_MAX})
          EXPECT_EQ(OutOfRangeText([&] { m.SetElemTopo(1, place, 4); }),
                    "invalid vector subscript");
      },
      {});
}

TEST(LoadPanels, ShareSomeShortcutsWithElements) {
  ExpectChange([](CZelData& m) { m.SetElemTopo(3, 1, 4); }, {"LoadPanel 3: topology"});
  ExpectChange([](CZelData& m) { m.SetElemProperty(3, 9); }, {"LoadPanel 3: property"});
  ExpectChange([](CZelData& m) { m.SetElemGroup(3, 9); }, {"LoadPanel 3: group"});
  ExpectChange([](CZelData& m) { m.SetElemDummy(3, true); }, {"LoadPanel 3: dummy"});
}

TEST(LoadPanels, KeepWhatTheSharedShortcutsSet) {
  CZelData model;
  model.SetLoadPanel(3, Panel({1, 2, 3}));
  model.SetElemProperty(3, 7);
  model.SetElemGroup(3, 8);
  model.SetElemDummy(3, true);
  EXPECT_EQ(model.LoadPanel(3).Property(), 7);
  EXPECT_EQ(model.LoadPanel(3).Group(), 8);
  EXPECT_TRUE(model.LoadPanel(3).IsDummy());
}

TEST(LoadPanels, GrowByTheTopologyPlacesThatAreSet) {
  CZelData model;
  model.SetLoadPanel(3, Panel({}));
  for (int i = 0; i < 3; ++i) model.SetElemTopo(3, i, 10 + i);
  EXPECT_TRUE(References(model, 3, {10, 11, 12}));
  model.SetElemTopo(3, 4, 14);
  EXPECT_TRUE(References(model, 3, {10, 11, 12, 0, 14}));
  EXPECT_EQ(OutOfRangeText([&] { model.SetElemTopo(3, -1, 1); }), "invalid vector subscript");
  EXPECT_TRUE(References(model, 3, {10, 11, 12, 0, 14}));
}

TEST(ElementsAndPanels, ReplaceOneAnotherUnderANumber) {
  CZelData model;
  model.SetElem(3, Element(ElementType::Beam, {1, 2}));
  model.SetLoadPanel(3, Panel({1, 2, 3}));
  EXPECT_FALSE(model.ElemExist(3));
  EXPECT_TRUE(model.LoadPanelExist(3));
  EXPECT_TRUE(model.VariantElementExist(3));
  model.SetElem(3, Element(ElementType::Beam, {1, 2}));
  EXPECT_TRUE(model.ElemExist(3));
  EXPECT_FALSE(model.LoadPanelExist(3));
  model.BlankElem(3, 1);
  EXPECT_FALSE(model.VariantElementExist(3));
}

TEST(ElementsAndPanels, ShareTheirHighestNumber) {
  CZelData model;
  model.SetElem(3, Element(ElementType::Beam, {1, 2}));
  EXPECT_EQ(model.HighestElem(), 3);
  EXPECT_EQ(model.HighestLoadPanel(), 0);
  model.SetLoadPanel(8, Panel({1, 2, 3}));
  EXPECT_EQ(model.HighestElem(), 8);
  EXPECT_EQ(model.HighestLoadPanel(), 8);
  model.SetElem(9, Element(ElementType::Beam, {1, 2}));
  EXPECT_EQ(model.HighestElem(), 9);
  model.BlankVariantElement(8, 2);
  EXPECT_EQ(model.HighestElem(), 3);
  EXPECT_EQ(model.HighestLoadPanel(), 0);
}

TEST(ElementsAndPanels, AreBlankedEachByItsOwnOperationOrBothAtOnce) {
  auto const filled = [] {
    CZelData model;
    for (int const n : {1, 3}) model.SetElem(n, Element(ElementType::Beam, {1, 2}));
    for (int const n : {2, 4}) model.SetLoadPanel(n, Panel({1, 2, 3}));
    return model;
  };
  auto const left = [](CZelData const& model) {
    std::string text;
    for (int n = 1; n <= 4; ++n)
      text += model.ElemExist(n) ? 'e' : model.LoadPanelExist(n) ? 'p' : '-';
    return text;
  };
  CZelData elements = filled();
  elements.BlankElem(2, 3);
  EXPECT_EQ(left(elements), "ep-p");
  CZelData panels = filled();
  panels.BlankLoadPanel(2, 2);
  EXPECT_EQ(left(panels), "e-ep");
  CZelData both = filled();
  both.BlankVariantElement(2, 2);
  EXPECT_EQ(left(both), "e--p");
  for (int const count : {0, -3}) both.BlankVariantElement(1, count);
  EXPECT_EQ(left(both), "e--p");
}

TEST(VariantElement, ShowsWhatStandsUnderANumber) {
  CZelData model;
  model.SetElem(1, Element(ElementType::Beam, {1, 2}));
  model.SetLoadPanel(2, Panel({1, 2, 3}));
  ASSERT_TRUE(model.VariantElement(1));
  EXPECT_EQ(model.VariantElement(1)->Element(), &model.Elem(1));
  ASSERT_TRUE(model.VariantElement(2));
  EXPECT_EQ(model.VariantElement(2)->Panel(), &model.LoadPanel(2));
  for (int const n : {0, 3, -1}) {
    EXPECT_FALSE(model.VariantElement(n)) << n;
    EXPECT_FALSE(model.VariantElementExist(n)) << n;
  }
}

TEST(VariantElement, IsStoredInTheTableOfItsClass) {
  CZelData model;
  auto element = Element(ElementType::Beam, {1, 2});
  element.SetSid(L"id");
  auto panel = Panel({1, 2, 3});
  panel.SetSid(L"id");
  model.SetVariantElement(4, element);
  EXPECT_EQ(model.Elem(4), element);
  model.SetVariantElement(4, panel);
  EXPECT_EQ(model.LoadPanel(4), panel);
  EXPECT_FALSE(model.ElemExist(4));
  model.SetVariantElement(4, element, SidMode::Drop);
  EXPECT_EQ(model.Elem(4).Sid(), L"");
  model.SetVariantElement(4, panel, SidMode::Drop);
  EXPECT_EQ(model.LoadPanel(4).Sid(), L"");
  EXPECT_THROW(model.SetVariantElement(0, element), std::out_of_range);
  EXPECT_THROW(model.SetVariantElement(0, panel), std::out_of_range);
}

TEST(VariantElement, IsStoredFromAViewOfTheSameModel) {
  CZelData model;
  model.SetElem(1, Element(ElementType::Quad8, {1, 2, 3, 4, 5, 6, 7, 8}));
  auto const snapshot = model.Snapshot();
  model.SetVariantElement(1, model.VariantElement(1)->CopyAsType(VariantElementType::LoadPanel));
  EXPECT_TRUE(References(model, 1, {1, 2, 3, 4}));
  EXPECT_TRUE(References(*snapshot, 1, {1, 2, 3, 4, 5, 6, 7, 8}));
}

TEST(Shortcuts, TakeValuesOfTheirOwnModel) {
  CZelData model;
  auto element = Element(ElementType::Beam, {1, 2});
  element.SetSid(L"id");
  element.SetOffset({1, 2, 3, 4});
  element.SetConnect(0, CElemConnect(Vbool6(L"pin")));
  model.SetElem(1, element);
  auto const snapshot = model.Snapshot();  // the first store clones the page of the record
  model.SetElemConnect(1, 1, model.Elem(1).Connect(0));
  model.SetElemOffset(1, model.Elem(1).Offset());
  model.SetElemSid(1, model.Elem(1).Sid());
  EXPECT_EQ(model.Elem(1).Connect(1), CElemConnect(Vbool6(L"pin")));
  EXPECT_EQ(Differences(model, *snapshot), Lines{"Elem 1: connect"});
}

}  // namespace
}  // namespace Tarvex::EntityTablesTest
