// What each word selects, on one model that is written out here. A word whose rule went missing
// would select nothing, and each of these selects something that no other word does.
#include <gtest/gtest.h>

#include "store/model/list_expansion.h"
#include "store/model/zel_data.h"
#include "store/record/member.h"
#include "store/record/node.h"
#include "store/record/prop_2d.h"
#include "store/record/prop_3d.h"
#include "store/record/section.h"
#include "tests/support/builders.h"

namespace Tarvex::ListWordsTest {
namespace {

using Data::CEntList;
using Numbers = std::vector<int>;

void AddElement(CZelData& model, int n, ElementType type, std::vector<int> const& nodes,
                int property, int group) {
  auto element = Testing::Element(type, nodes);
  element.SetProperty(property);
  element.SetGroup(group);
  model.SetElem(n, element);
}

/*
   Nodes, with their spring, mass and damper property:

     n   x  y  z   PS PM PD        n   x  y  z
     1   0  0  0    4  -  -        5   0  0  3
     2   2  0  0    -  4  -        6   2  0  3
     3   2  5  0    -  -  4        7   2  5  3
     4   0  5  0    4  5  6        8   0  5  3

   Elements of property 1 but where it is told.
*/
CZelData Model() {
  CZelData model;
  Vec3<double> const points[] = {{0, 0, 0}, {2, 0, 0}, {2, 5, 0}, {0, 5, 0},
                                 {0, 0, 3}, {2, 0, 3}, {2, 5, 3}, {0, 5, 3}};
  struct Properties {
    int spring, mass, damper;
  };
  Properties const properties[8] = {{4, 0, 0}, {0, 4, 0}, {0, 0, 4}, {4, 5, 6}};
  for (int i = 0; i < 8; ++i) {
    Data::CNode node(points[i], 0, Vbool6());
    node.SetSpringProperty(properties[i].spring);
    node.SetMassProperty(properties[i].mass);
    node.SetDamperProperty(properties[i].damper);
    model.SetNode(i + 1, node);
  }
  AddElement(model, 1, ElementType::Beam, {1, 5}, 1, 7);
  AddElement(model, 2, ElementType::Bar, {1, 2}, 2, 7);
  AddElement(model, 3, ElementType::Spring, {2, 6}, 1, 1);
  AddElement(model, 4, ElementType::Quad4, {1, 2, 3, 4}, 1, 8);
  AddElement(model, 5, ElementType::Brick8, {1, 2, 3, 4, 5, 6, 7, 8}, 1, 1);
  AddElement(model, 6, ElementType::Link, {3, 7}, 1, 1);
  AddElement(model, 7, ElementType::Cable, {1, 6}, 1, 1);
  AddElement(model, 8, ElementType::Spacer, {4, 8}, 1, 1);
  AddElement(model, 9, ElementType::Damper, {2, 7}, 1, 1);
  AddElement(model, 10, static_cast<ElementType>(11), {5, 6}, 1, 1);  // has no property table
  auto panel = Testing::Panel({5, 6, 7, 8});
  panel.SetGroup(8);
  panel.SetProperty(1);
  model.SetLoadPanel(20, panel);
  return model;
}

Numbers Select(CZelData const& model, SelType kind, CString const& text) {
  auto const set = Util::MakeSet(CEntList(kind, text), model, true);
  return {set.begin(), set.end()};
}
Numbers Elements(CString const& text) { return Select(Model(), SelElement, text); }
Numbers Nodes(CString const& text) { return Select(Model(), SelNode, text); }

TEST(ListWords, SelectElementsByTheTableOfTheirProperty) {
  EXPECT_EQ(Elements(L"PB1"), Numbers{1});
  EXPECT_EQ(Elements(L"PB2"), Numbers{2});
  EXPECT_EQ(Elements(L"PS1"), Numbers{3});
  EXPECT_EQ(Elements(L"PA1"), (Numbers{4, 20}));  // a panel has a 2D property
  EXPECT_EQ(Elements(L"PV1"), Numbers{5});
  EXPECT_EQ(Elements(L"PL1"), Numbers{6});
  EXPECT_EQ(Elements(L"PC1"), Numbers{7});
  EXPECT_EQ(Elements(L"PG1"), Numbers{8});
  EXPECT_EQ(Elements(L"PD1"), Numbers{9});
  EXPECT_EQ(Elements(L"PM1"), Numbers());  // no element has a mass property
  EXPECT_EQ(Elements(L"P1"), (Numbers{1, 3, 4, 5, 6, 7, 8, 9, 20}));
  EXPECT_EQ(Elements(L"P2"), Numbers{2});
}

TEST(ListWords, SelectNodesByTheTableOfTheirProperty) {
  EXPECT_EQ(Nodes(L"PS4"), (Numbers{1, 4}));
  EXPECT_EQ(Nodes(L"PM4"), Numbers{2});
  EXPECT_EQ(Nodes(L"PD4"), Numbers{3});
  EXPECT_EQ(Nodes(L"PM5"), Numbers{4});
  EXPECT_EQ(Nodes(L"P4"), (Numbers{1, 2, 3, 4}));
  EXPECT_EQ(Nodes(L"P6"), Numbers{4});
  EXPECT_EQ(Nodes(L"PB1 PA1"), Numbers());
}

TEST(ListWords, SelectByGroup) {
  EXPECT_EQ(Elements(L"G7"), (Numbers{1, 2}));
  EXPECT_EQ(Elements(L"G8"), (Numbers{4, 20}));
  EXPECT_EQ(Nodes(L"G1"), Numbers());  // nodes have none
}

TEST(ListWords, SelectByNumber) {
  EXPECT_EQ(Elements(L"E4 E5 E99"), (Numbers{4, 5}));
  EXPECT_EQ(Elements(L"N4"), Numbers());
  EXPECT_EQ(Nodes(L"N4 N5 N99"), (Numbers{4, 5}));
  EXPECT_EQ(Nodes(L"E4"), Numbers());
}

TEST(ListWords, SelectNodesWithCoordinatesInCommonWithOne) {
  // Node 7 is at (2, 5, 3).
  EXPECT_EQ(Nodes(L"X7"), (Numbers{2, 3, 6, 7}));
  EXPECT_EQ(Nodes(L"Y7"), (Numbers{3, 4, 7, 8}));
  EXPECT_EQ(Nodes(L"Z7"), (Numbers{5, 6, 7, 8}));
  EXPECT_EQ(Nodes(L"XY7"), (Numbers{3, 7}));
  EXPECT_EQ(Nodes(L"YZ7"), (Numbers{7, 8}));
  EXPECT_EQ(Nodes(L"ZX7"), (Numbers{6, 7}));
  EXPECT_EQ(Nodes(L"X99"), Numbers());
}

TEST(ListWords, SelectElementsWithAllTheirNodesThere) {
  EXPECT_EQ(Elements(L"Z7"), (Numbers{10, 20}));
  EXPECT_EQ(Elements(L"Z1"), (Numbers{2, 4}));
  EXPECT_EQ(Elements(L"X1"), (Numbers{1, 8}));
  EXPECT_EQ(Elements(L"Y1"), (Numbers{1, 2, 3, 7, 10}));
  EXPECT_EQ(Elements(L"XY1"), Numbers{1});
  EXPECT_EQ(Elements(L"YZ1"), Numbers{2});
  EXPECT_EQ(Elements(L"ZX1"), Numbers());  // y alone is free, and no element runs along it
}

TEST(ListWords, SelectNoElementWithoutNodesOrWithAMissingOne) {
  auto model = Model();
  AddElement(model, 30, ElementType::Bar, {1, 77}, 1, 1);
  AddElement(model, 31, static_cast<ElementType>(11), {}, 1, 1);
  EXPECT_EQ(Select(model, SelElement, L"Z1"), (Numbers{2, 4}));
}

TEST(ListWords, CompareWithinTheToleranceOfCoincidence) {
  auto model = Model();  // tolerance 0.001
  model.SetNodeCoor(3, {2.0009, 5, 0});
  model.SetNodeCoor(6, {1.9989, 0, 3});
  EXPECT_EQ(Select(model, SelNode, L"X2"), (Numbers{2, 3, 7}));
  auto spec = model.Spec();
  spec.SetGenTol(TolType::Coincidence, 0.002);
  model.SetSpec(spec);
  EXPECT_EQ(Select(model, SelNode, L"X2"), (Numbers{2, 3, 6, 7}));
  // Exactly at the tolerance is within it.
  spec.SetGenTol(TolType::Coincidence, 5);
  model.SetSpec(spec);
  EXPECT_EQ(Select(model, SelNode, L"Y1").size(), 8U);
}

TEST(ListWords, SelectSavedListsOfTheSameKind) {
  auto model = Model();
  model.SetList(3, CEntList(L"roof", SelElement, L"10 20 99"));
  model.SetList(4, CEntList(L"wall", SelNode, L"1 2"));
  model.SetList(5, CEntList(L"both", SelElement, L"\"roof\" #4 4"));
  EXPECT_EQ(Select(model, SelElement, L"#3"), (Numbers{10, 20}));
  EXPECT_EQ(Select(model, SelElement, L"\"roof\""), (Numbers{10, 20}));
  EXPECT_EQ(Select(model, SelElement, L"#4 \"wall\" #9 \"cellar\""), Numbers());
  EXPECT_EQ(Select(model, SelNode, L"#4"), (Numbers{1, 2}));
  EXPECT_EQ(Select(model, SelNode, L"\"wall\""), (Numbers{1, 2}));
  EXPECT_EQ(Select(model, SelElement, L"all not #5"), (Numbers{1, 2, 3, 5, 6, 7, 8, 9}));
}

/// The model with materials of number 6: a section, a 2D and a 3D property of analysis material 6,
/// and beams 41 to 47, each of a section of its own and grade 6 of a type of its own.
CZelData MadeModel() {
  auto model = Model();
  MatDesign const none;
  model.SetSection(2, Data::CSection(L"", {Data::CSecComp(L"", 1, none), {L"", 6, none}}));
  model.SetProp2D(1, Data::CProp2D(L"", 6, none, 0, Data::PropertyType2d::Shell,
                                   Data::Surface2d::Middle, 1, {}));
  model.SetProp3D(1, Data::CProp3D(L"", 6, none, 0, Data::CProp3D::PropType::Solid));
  MatType const types[] = {MatType::Steel, MatType::Concrete, MatType::Aluminium, MatType::Glass,
                           MatType::Frp,   MatType::Timber,   MatType::Fabric};
  for (int i = 0; i < 7; ++i) {
    model.SetSection(31 + i, Data::CSection(L"", {Data::CSecComp(L"", 0, {types[i], 6})}));
    AddElement(model, 41 + i, ElementType::Beam, {1, 5}, 31 + i, 1);
  }
  return model;
}

TEST(ListWords, SelectByTheMaterialOfTheProperty) {
  auto const model = MadeModel();
  auto const elements = [&](CString const& text) { return Select(model, SelElement, text); };
  EXPECT_EQ(elements(L"M6"), (Numbers{2, 4, 5, 20}));  // a panel has a 2D property
  EXPECT_EQ(elements(L"M1"), Numbers{2});              // by its other component
  EXPECT_EQ(elements(L"MS6"), Numbers{41});
  EXPECT_EQ(elements(L"MC6"), Numbers{42});
  EXPECT_EQ(elements(L"MA6"), Numbers{43});
  EXPECT_EQ(elements(L"MG6"), Numbers{44});
  EXPECT_EQ(elements(L"MP6"), Numbers{45});
  EXPECT_EQ(elements(L"MT6"), Numbers{46});
  EXPECT_EQ(elements(L"MF6"), Numbers{47});
  EXPECT_EQ(elements(L"MS5 MC1 M7"), Numbers());
  EXPECT_EQ(Select(model, SelNode, L"M6 MS6"), Numbers());  // nodes have none
}

TEST(ListWords, SelectByTheGradesOfPlatesAndSolids) {
  auto model = Model();
  MatDesign const timber(MatType::Timber, 3);
  model.SetProp2D(1, Data::CProp2D(L"", 0, timber, 0, Data::PropertyType2d::Shell,
                                   Data::Surface2d::Middle, 1, {}));
  EXPECT_EQ(Select(model, SelElement, L"MT3"), (Numbers{4, 20}));
  model.SetProp3D(1, Data::CProp3D(L"", 0, timber, 0, Data::CProp3D::PropType::Solid));
  EXPECT_EQ(Select(model, SelElement, L"MT3"), (Numbers{4, 5, 20}));
}

TEST(ListWords, SelectMembersByTheMaterialOfTheirProperty) {
  auto model = MadeModel();
  Data::CMember beam(MembType::Beam, 1, 2);
  beam.SetTopo(CString(L"1 2"));
  model.SetMember(3, beam);
  Data::CMember slab(MembType::Slab, 1, 1);
  slab.SetTopo(CString(L"1 2 3"));
  model.SetMember(4, slab);
  EXPECT_EQ(Select(model, SelMember, L"M1"), Numbers{3});
  EXPECT_EQ(Select(model, SelMember, L"M6"), (Numbers{3, 4}));
}

TEST(ListWords, FollowAChangeOfWhatAPropertyIsMadeOf) {
  auto model = MadeModel();
  CEntList const list(SelElement, L"M6");
  auto const selected = [&] {
    auto const set = Util::MakeSet(list, model, true);
    return Numbers{set.begin(), set.end()};
  };
  EXPECT_EQ(selected(), (Numbers{2, 4, 5, 20}));
  auto section = model.Section(2);
  section.SetMaterialAnalysis(1, 9);
  model.SetSection(2, section);
  EXPECT_EQ(selected(), (Numbers{4, 5, 20}));
  auto plate = model.Prop2D(1);
  plate.SetMaterialAnalysis(9);
  model.SetProp2D(1, plate);
  EXPECT_EQ(selected(), Numbers{5});
  model.BlankProp3D(1, 1);
  EXPECT_EQ(selected(), Numbers());
}

TEST(ListWords, SelectNothingThatNoTableHolds) {
  for (auto const* text : {L"DMR1", L"DS1", L"DSR1", L"DCB1", L"DCS1"})
    EXPECT_EQ(Elements(text), Numbers()) << CString(text).ToUtf8();
}

TEST(ListWords, TakeOneNumberOnly) {
  EXPECT_EQ(Elements(L"PB2 1"), (Numbers{1, 2}));
  EXPECT_EQ(Elements(L"PB1 to 2"), (Numbers{1, 2}));
  EXPECT_EQ(Elements(L"PB or 5"), Numbers{5});
}

}  // namespace
}  // namespace Tarvex::ListWordsTest
