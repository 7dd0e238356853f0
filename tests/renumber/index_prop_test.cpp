// Which materials and properties a model uses.
#include <gtest/gtest.h>

#include <stdexcept>

#include "store/record/link_prop.h"
#include "store/record/load_panel.h"
#include "store/record/mass_prop.h"
#include "store/record/material.h"
#include "store/record/member.h"
#include "store/record/node.h"
#include "store/record/other_props.h"
#include "store/record/prop_2d.h"
#include "store/record/prop_3d.h"
#include "store/record/section.h"
#include "store/record/spring_prop.h"
#include "store/record/stages.h"
#include "tarvex/tidy.h"
#include "tests/support/builders.h"

namespace Tarvex::IndexPropTest {
namespace {

using Query = bool (CIndexProp::*)(int) const;

/// A model with nodes 1 and 2 and an element of a type and property.
CZelData ModelWith(ElementType type, int property) {
  CZelData model;
  for (int const n : {1, 2}) model.CreateNode(n, {1.0 * n, 0, 0}, 0, Vbool6());
  auto element = Testing::Element(type, {1, 2});
  element.SetProperty(property);
  model.SetElem(1, element);
  return model;
}

Data::CSection SectionOf(MatType type, int grade, int analysis) {
  return {L"", {Data::CSecComp(L"", analysis, {type, grade})}};
}

TEST(IndexUsed, MarksThePropertyOfEachElementType) {
  struct Row {
    int type;
    Query query;
  };
  for (auto const& [type, query] :
       {Row{1, &CIndexProp::IsSectionUsed}, Row{2, &CIndexProp::IsSectionUsed},
        Row{20, &CIndexProp::IsSectionUsed}, Row{21, &CIndexProp::IsSectionUsed},
        Row{23, &CIndexProp::IsSectionUsed}, Row{3, &CIndexProp::IsSpringUsed},
        Row{5, &CIndexProp::IsProp2DUsed}, Row{6, &CIndexProp::IsProp2DUsed},
        Row{7, &CIndexProp::IsProp2DUsed}, Row{8, &CIndexProp::IsProp2DUsed},
        Row{9, &CIndexProp::IsLinkUsed}, Row{10, &CIndexProp::IsCableUsed},
        Row{19, &CIndexProp::IsSpacerUsed}, Row{24, &CIndexProp::IsDamperUsed},
        Row{12, &CIndexProp::IsProp3DUsed}, Row{14, &CIndexProp::IsProp3DUsed},
        Row{16, &CIndexProp::IsProp3DUsed}, Row{26, &CIndexProp::IsProp3DUsed}}) {
    SCOPED_TRACE(type);
    auto const model = ModelWith(static_cast<ElementType>(type), 7);
    CIndexProp index(model);
    EXPECT_TRUE(index.IndexUsed());
    for (Query const any :
         {&CIndexProp::IsSectionUsed, &CIndexProp::IsSpringUsed, &CIndexProp::IsProp2DUsed,
          &CIndexProp::IsLinkUsed, &CIndexProp::IsCableUsed, &CIndexProp::IsSpacerUsed,
          &CIndexProp::IsDamperUsed, &CIndexProp::IsProp3DUsed, &CIndexProp::IsMassUsed})
      EXPECT_EQ((index.*any)(7), any == query);
    EXPECT_FALSE((index.*query)(6));
  }
}

TEST(IndexUsed, MarksNothingForTypesWithoutProperties) {
  for (int const type : {4, 11, 13, 15, 17, 18, 22, 25}) {
    auto const model = ModelWith(static_cast<ElementType>(type), 7);
    CIndexProp index(model);
    EXPECT_TRUE(index.IndexUsed());
    EXPECT_FALSE(index.IsSectionUsed(7));
    EXPECT_FALSE(index.IsProp2DUsed(7));
  }
}

TEST(IndexUsed, MarksPropertiesOfNodesThatElementsUse) {
  CZelData model = ModelWith(ElementType::Beam, 0);
  for (int const n : {1, 9}) {  // 9 is used by nothing
    Data::CNode node({0, 0, 0}, 0, Vbool6());
    node.SetSpringProperty(n + 1);
    node.SetMassProperty(n + 2);
    node.SetDamperProperty(n + 3);
    model.SetNode(n, node);
  }
  CIndexProp index(model);
  index.IndexUsed();
  EXPECT_TRUE(index.IsSpringUsed(2));
  EXPECT_TRUE(index.IsMassUsed(3));
  EXPECT_TRUE(index.IsDamperUsed(4));
  EXPECT_FALSE(index.IsSpringUsed(10));
  EXPECT_FALSE(index.IsMassUsed(11));
  EXPECT_FALSE(index.IsDamperUsed(12));
}

TEST(IndexUsed, MarksPropertiesOfLoadPanels) {
  CZelData model;
  auto panel = Testing::Panel({1, 2, 3});
  panel.SetProperty(4);
  model.SetLoadPanel(1, panel);
  CIndexProp index(model);
  index.IndexUsed();
  EXPECT_TRUE(index.IsProp2DUsed(4));
  EXPECT_FALSE(index.IsProp2DUsed(0));
}

TEST(IndexUsed, MarksPropertiesOfMembersByWhatTheyBecome) {
  struct Row {
    wchar_t const* topology;
    ElementType type;
    Query query;
  };
  for (auto const& [topology, type, query] :
       {Row{L"1 2", ElementType::Beam, &CIndexProp::IsSectionUsed},
        Row{L"1 2", ElementType::Cable, &CIndexProp::IsCableUsed},
        Row{L"1 2", ElementType::Damper, &CIndexProp::IsDamperUsed},
        Row{L"1 2 3", ElementType::Beam, &CIndexProp::IsProp2DUsed},
        Row{L"1 2 3 ; 1 2 4", ElementType::Beam, &CIndexProp::IsProp3DUsed}}) {
    CZelData model;
    Data::CMember member(1, 5);
    ASSERT_TRUE(member.SetTopo(CString(topology)));
    member.SetAnalysisType1D(type);
    model.SetMember(1, member);
    CIndexProp index(model);
    index.IndexUsed();
    EXPECT_TRUE((index.*query)(5)) << CString(topology).ToUtf8();
  }
}

TEST(IndexUsed, MarksMaterialsOfUsedPropertiesByType) {
  struct Row {
    MatType type;
    Query query;
  };
  for (auto const& [type, query] : {Row{MatType::Steel, &CIndexProp::IsMatSteelUsed},
                                    Row{MatType::Concrete, &CIndexProp::IsMatConcreteUsed},
                                    Row{MatType::Aluminium, &CIndexProp::IsMatAluminiumUsed},
                                    Row{MatType::Glass, &CIndexProp::IsMatGlassUsed},
                                    Row{MatType::Frp, &CIndexProp::IsMatFrpUsed},
                                    Row{MatType::Rebar, &CIndexProp::IsMatRebarUsed},
                                    Row{MatType::Timber, &CIndexProp::IsMatTimberUsed},
                                    Row{MatType::Fabric, &CIndexProp::IsMatFabricUsed}}) {
    auto model = ModelWith(ElementType::Beam, 7);
    model.SetSection(7, SectionOf(type, 3, 4));
    model.SetSection(8, SectionOf(type, 5, 6));  // used by nothing
    CIndexProp index(model);
    index.IndexUsed();
    EXPECT_TRUE((index.*query)(3));
    EXPECT_FALSE((index.*query)(5));
    EXPECT_TRUE(index.IsMatAnalUsed(4));
    EXPECT_FALSE(index.IsMatAnalUsed(6));
    EXPECT_FALSE(index.IsMatGenericUsed(3));
  }
}

TEST(IndexUsed, MarksMaterialsOfPlatesAndSolids) {
  auto model = ModelWith(ElementType::Quad4, 7);
  Data::CProp2D plate;
  plate.SetMaterialAnalysis(4);
  plate.SetMaterialDesign({MatType::Concrete, 3});
  model.SetProp2D(7, plate);
  auto solid = Testing::Element(ElementType::Brick8, {1, 2});
  solid.SetProperty(8);
  model.SetElem(2, solid);
  model.SetProp3D(8, {L"", 5, {MatType::Steel, 6}, 0, Data::CProp3D::PropType::Solid});
  CIndexProp index(model);
  index.IndexUsed();
  EXPECT_TRUE(index.IsMatAnalUsed(4));
  EXPECT_TRUE(index.IsMatConcreteUsed(3));
  EXPECT_TRUE(index.IsMatAnalUsed(5));
  EXPECT_TRUE(index.IsMatSteelUsed(6));
}

TEST(IndexUsed, MarksNoMaterialForTypesThatMeanNone) {
  for (auto const type : {MatType::None, MatType::Undefined}) {
    auto model = ModelWith(ElementType::Beam, 7);
    model.SetSection(7, SectionOf(type, 3, -1));
    CIndexProp index(model);
    EXPECT_TRUE(index.IndexUsed());
    EXPECT_FALSE(index.IsMatSteelUsed(3));
    EXPECT_FALSE(index.IsMatAnalUsed(-1));
  }
}

TEST(IndexUsed, RefusesAnyOtherTypeOfMaterial) {
  auto model = ModelWith(ElementType::Beam, 7);
  model.SetSection(7, SectionOf(static_cast<MatType>(9), 3, 4));
  CIndexProp index(model);
  try {
    index.IndexUsed();
    FAIL() << "no exception";
  } catch (std::runtime_error const& fault) {
    EXPECT_STREQ(fault.what(), "bad material type");
  }
}

TEST(IndexUsed, MarksWhatStandsInThePlaceOfAPropertyInAStage) {
  auto model = ModelWith(ElementType::Beam, 7);
  model.SetAnalStage(2, {L"", {SelElement, L"all"}});
  model.SetAnalStageProp(1, {2, PropertyType::Section, 7, 9});
  model.SetAnalStageProp(2, {3, PropertyType::Section, 7, 10});  // of no stage
  model.SetAnalStageProp(3, {2, PropertyType::Plate, 7, 11});    // of another family
  model.SetSection(9, SectionOf(MatType::Steel, 3, 4));
  CIndexProp index(model);
  index.IndexUsed();
  EXPECT_TRUE(index.IsSectionUsed(7));
  EXPECT_TRUE(index.IsSectionUsed(9));
  EXPECT_TRUE(index.IsMatSteelUsed(3));
  EXPECT_FALSE(index.IsSectionUsed(10));
  EXPECT_FALSE(index.IsSectionUsed(11));
}

/// A model with a load panel 8 of plate 5, whose materials are 3 and concrete 4.
CZelData ModelWithPanel() {
  CZelData model;
  auto panel = Testing::Panel({1, 2, 3});
  panel.SetProperty(5);
  model.SetLoadPanel(8, panel);
  Data::CProp2D plate;
  plate.SetMaterialAnalysis(3);
  plate.SetMaterialDesign({MatType::Concrete, 4});
  model.SetProp2D(5, plate);
  return model;
}

TEST(IndexUsed, MarksNoMaterialsOfWhatLoadPanelsAloneName) {
  auto const model = ModelWithPanel();
  CIndexProp index(model);
  index.IndexUsed();
  EXPECT_TRUE(index.IsProp2DUsed(5));
  EXPECT_FALSE(index.IsMatAnalUsed(3));
  EXPECT_FALSE(index.IsMatConcreteUsed(4));
}

TEST(IndexUsed, MarksMaterialsOfAPlateThatALoadPanelAndAMemberName) {
  auto model = ModelWithPanel();
  Data::CMember member(1, 5);
  ASSERT_TRUE(member.SetTopo(L"1 2 3"));
  model.SetMember(1, member);
  CIndexProp index(model);
  index.IndexUsed();
  EXPECT_TRUE(index.IsMatAnalUsed(3));
  EXPECT_TRUE(index.IsMatConcreteUsed(4));
}

TEST(IndexUsed, MarksMaterialsOfAPlateThatALoadPanelNamesAndAStageUses) {
  auto model = ModelWithPanel();
  auto element = Testing::Element(ElementType::Quad4, {1, 2});
  element.SetProperty(7);
  model.SetElem(1, element);
  model.SetAnalStage(1, {L"", {SelElement, L"1"}});
  model.SetAnalStageProp(1, {1, PropertyType::Plate, 7, 5});
  CIndexProp index(model);
  index.IndexUsed();
  EXPECT_TRUE(index.IsMatAnalUsed(3));
  EXPECT_TRUE(index.IsMatConcreteUsed(4));
}

TEST(IndexUsed, MarksWhatStandsInThePlaceOfPropertiesOfNodesInAStage) {
  auto model = ModelWith(ElementType::Beam, 7);
  Data::CNode node({0, 0, 0}, 0, Vbool6());
  node.SetSpringProperty(4);
  node.SetMassProperty(5);
  node.SetDamperProperty(6);
  model.SetNode(1, node);
  model.SetAnalStage(1, {L"", {SelElement, L"all"}});
  model.SetAnalStageProp(1, {1, PropertyType::Spring, 4, 14});
  model.SetAnalStageProp(2, {1, PropertyType::Mass, 5, 15});
  model.SetAnalStageProp(3, {1, PropertyType::Damper, 6, 16});
  CIndexProp index(model);
  index.IndexUsed();
  for (int const n : {4, 14}) EXPECT_TRUE(index.IsSpringUsed(n)) << n;
  for (int const n : {5, 15}) EXPECT_TRUE(index.IsMassUsed(n)) << n;
  for (int const n : {6, 16}) EXPECT_TRUE(index.IsDamperUsed(n)) << n;
}

TEST(IndexUsed, MarksWhatStandsInThePlaceOfPropertiesOfMembersInAStage) {
  CZelData model;
  Data::CMember member(1, 7);
  ASSERT_TRUE(member.SetTopo(L"1 2"));
  model.SetMember(1, member);
  model.SetAnalStage(1, {L"", {SelElement, L"all"}});
  model.SetAnalStageProp(1, {1, PropertyType::Section, 7, 9});
  CIndexProp index(model);
  index.IndexUsed();
  EXPECT_TRUE(index.IsSectionUsed(7));
  EXPECT_TRUE(index.IsSectionUsed(9));
}

TEST(IndexStage, LeavesOutLoadPanelsOfOtherStages) {
  auto model = ModelWith(ElementType::Beam, 7);
  for (int const n : {2, 3}) {
    auto panel = Testing::Panel({1, 2, 3});
    panel.SetProperty(n + 2);
    model.SetLoadPanel(n, panel);
  }
  model.SetAnalStage(1, {L"", {SelElement, L"1 3"}});
  CIndexProp index(model);
  EXPECT_TRUE(index.IndexStage(1));
  EXPECT_FALSE(index.IsProp2DUsed(4));
  EXPECT_TRUE(index.IsProp2DUsed(5));
}

TEST(IndexStage, MarksWhatOneStageUses) {
  auto model = ModelWith(ElementType::Beam, 7);
  auto other = Testing::Element(ElementType::Beam, {1, 2});
  other.SetProperty(8);
  model.SetElem(2, other);
  model.SetAnalStage(1, {L"", {SelElement, L"2"}});
  CIndexProp index(model);
  EXPECT_TRUE(index.IndexStage(1));
  EXPECT_FALSE(index.IsSectionUsed(7));
  EXPECT_TRUE(index.IsSectionUsed(8));
  EXPECT_TRUE(index.IndexStage(0));  // and forgets the stage before
  EXPECT_TRUE(index.IsSectionUsed(7));
  EXPECT_FALSE(index.IndexStage(5));
  EXPECT_FALSE(index.IsSectionUsed(7));
}

TEST(IndexDefined, MarksAllRecordsWhetherUsedOrNot) {
  CZelData model;
  model.SetSection(4, SectionOf(static_cast<MatType>(9), 3, 4));  // nobody looks at the type
  model.SetMassProp(2, Data::CMassProp());
  model.SetLinkProp(3, Data::CLinkProp());
  CIndexProp index(model);
  EXPECT_TRUE(index.IndexDefined());
  EXPECT_TRUE(index.IsSectionUsed(4));
  EXPECT_TRUE(index.IsMassUsed(2));
  EXPECT_TRUE(index.IsLinkUsed(3));
  EXPECT_FALSE(index.IsSectionUsed(1));
}

/// An index whose parts can be reached.
class OpenIndex : public CIndexProp {
 public:
  using CIndexProp::_Index;
  using CIndexProp::_Init;
  using CIndexProp::_Post;
  using CIndexProp::CIndexProp;
  NumberMap const& Sections() { return m_maps[CModule::Section]; }
  void SetSection(int n, int number) { m_maps[CModule::Section][n] = number; }
};

TEST(IndexPost, GivesEachRecordItsNumberWithoutHoles) {
  CZelData model;
  OpenIndex index(model);
  for (int const n : {9, 2, 5}) index.SetSection(n, n);
  index.SetSection(3, 0);
  index._Post();
  EXPECT_EQ(index.Sections(), (std::map<int, int>{{2, 1}, {3, 0}, {5, 2}, {9, 3}}));
}

TEST(IndexQueries, DoNotCountTheMarkOfNone) {
  CZelData model;
  OpenIndex index(model);
  index.SetSection(4, 0x7FFFFFFF);
  index.SetSection(5, 0);
  EXPECT_FALSE(index.IsSectionUsed(4));
  EXPECT_TRUE(index.IsSectionUsed(5));
}

TEST(IndexCopy, HasTheIndex) {
  auto const model = ModelWith(ElementType::Beam, 7);
  CIndexProp index(model);
  index.IndexUsed();
  CIndexProp const copy(index);
  EXPECT_TRUE(copy.IsSectionUsed(7));
}

}  // namespace
}  // namespace Tarvex::IndexPropTest
