// References of grids, nodes, elements, panels, members and properties.
#include <gtest/gtest.h>

#include "store/record/axis.h"
#include "store/record/grid_plane.h"
#include "store/record/grid_surface.h"
#include "store/record/member.h"
#include "store/record/node.h"
#include "store/record/prop_2d.h"
#include "store/record/prop_3d.h"
#include "store/record/section.h"
#include "store/record/spring_prop.h"
#include "store/record/stages.h"
#include "tests/renumber/renumber_support.h"

namespace Tarvex::RewriteEntitiesTest {
namespace {

using Testing::Apply;
using Testing::Scheme;

TEST(RewriteGridPlane, FollowsAxes) {
  CZelData model;
  model.SetGridPlane(1, {L"", 3, 0, false});
  EXPECT_TRUE(Apply(model, CModule::Axis, {{3, 5}}));
  EXPECT_EQ(model.GridPlane(1).Axis(), 5);
}

TEST(RewriteGridSurface, FollowsElementsAndNoPlanes) {
  CZelData model;
  model.SetGridSurface(1, {L"", 2, {SelElement, L"3"}, GridElementType::Plates});
  CRenumber renumber(&model);
  renumber.Index(CModule::Elem, {{3, 5}});
  renumber.Index(CModule::GridPlane, {{2, 7}});
  EXPECT_TRUE(renumber.Go(false));
  EXPECT_EQ(model.GridSurface(1).Elements().String(), L"5");
  EXPECT_EQ(model.GridSurface(1).Plane(), 2);
}

TEST(RewriteNode, FollowsAxesAndNoProperties) {
  CZelData model;
  Data::CNode node({0, 0, 0}, 3, Vbool6());
  node.SetSpringProperty(4);
  model.SetNode(1, node);
  CRenumber renumber(&model);
  renumber.Index(CModule::Axis, {{3, 5}});
  renumber.Index(CModule::SpringProp, {{4, 8}});
  EXPECT_TRUE(renumber.Go(false));
  EXPECT_EQ(model.Node(1).Axis(), 5);
  EXPECT_EQ(model.Node(1).SpringProperty(), 4);
}

/// A beam from node 1 to node 2 with orientation node 3, of section 4 and member 5.
CZelData ModelWithBeam() {
  CZelData model;
  Testing::NodesAt(model, {1, 2, 3});
  auto beam = Testing::Element(ElementType::Beam, {1, 2});
  beam.SetOrientationNode(3);
  beam.SetProperty(4);
  beam.SetParentMember({5, 7});
  model.SetElem(1, beam);
  return model;
}

TEST(RewriteElement, FollowsNodes) {
  auto model = ModelWithBeam();
  EXPECT_TRUE(Apply(model, CModule::Node, {{1, 11}, {2, 1}, {3, 13}}));
  EXPECT_TRUE(Testing::References(model, 1, {11, 1}));
  EXPECT_EQ(model.Elem(1).OrientationNode(), 13);
  EXPECT_TRUE(Testing::AttachmentsFollowTopology(model));
}

TEST(RewriteElement, KeepsNodesThatTheSchemeLacks) {
  auto model = ModelWithBeam();
  EXPECT_TRUE(Apply(model, CModule::Node, {{1, 11}}));
  EXPECT_TRUE(Testing::References(model, 1, {11, 2}));
  EXPECT_EQ(model.Elem(1).OrientationNode(), 3);
}

TEST(RewriteElement, KeepsNodesInARunOnReferencesAlone) {
  auto model = ModelWithBeam();
  CRenumber renumber(&model);
  renumber.SetRefOnly(true);
  renumber.Index(CModule::Node, {{1, 11}, {2, 12}, {3, 13}});
  renumber.Index(CModule::Member, {{5, 6}});  // so that elements are looked at
  EXPECT_TRUE(renumber.Go(false));
  EXPECT_TRUE(Testing::References(model, 1, {1, 2}));
  EXPECT_EQ(model.Elem(1).OrientationNode(), 3);
  EXPECT_EQ(model.Elem(1).ParentMember().member, 6);
}

TEST(RewriteElement, FollowsMembersAndKeepsTheReplica) {
  auto model = ModelWithBeam();
  EXPECT_TRUE(Apply(model, CModule::Member, {{5, 8}}));
  EXPECT_EQ(model.Elem(1).ParentMember(), (Data::ParentMember{8, 7}));
  EXPECT_TRUE(Apply(model, CModule::Member, {{5, 9}}));  // 8 is not in the scheme
  EXPECT_EQ(model.Elem(1).ParentMember(), (Data::ParentMember{8, 7}));
}

TEST(RewriteElement, FollowsThePropertiesOfItsType) {
  struct Row {
    int type;
    CModule::ModuleId module;
  };
  for (auto const& [type, module] :
       {Row{1, CModule::Section}, Row{2, CModule::Section}, Row{20, CModule::Section},
        Row{21, CModule::Section}, Row{23, CModule::Section}, Row{3, CModule::Prop2D},
        Row{5, CModule::Prop2D}, Row{6, CModule::Prop2D}, Row{7, CModule::Prop2D},
        Row{8, CModule::Prop2D}, Row{9, CModule::LinkProp}, Row{10, CModule::CableProp},
        Row{12, CModule::Prop3D}, Row{14, CModule::Prop3D}, Row{16, CModule::Prop3D},
        Row{26, CModule::Prop3D}, Row{19, CModule::SpacerProp}}) {
    SCOPED_TRACE(type);
    CZelData model;
    model.SetElem(1, Data::CElement(1, static_cast<ElementType>(type), 4));
    for (auto const other :
         {CModule::Section, CModule::SpringProp, CModule::Prop2D, CModule::LinkProp,
          CModule::CableProp, CModule::Prop3D, CModule::SpacerProp, CModule::ForceDensity1D}) {
      CZelData changed(model);
      EXPECT_TRUE(Apply(changed, other, {{4, 9}}));
      EXPECT_EQ(changed.Elem(1).Property(), other == module ? 9 : 4);
    }
    EXPECT_TRUE(Apply(model, module, Scheme()));
    EXPECT_EQ(model.Elem(1).Property(), 0);
  }
}

TEST(RewriteElement, WithoutATableOfPropertiesEndsTheRunWhenPropertiesMove) {
  for (int const type : {4, 11, 13, 15, 17, 18, 22, 24, 25}) {
    SCOPED_TRACE(type);
    CZelData model;
    model.SetElem(1, Data::CElement(1, ElementType::Beam, 4));
    model.SetElem(2, Data::CElement(1, static_cast<ElementType>(type), 4));
    model.SetElem(3, Data::CElement(1, ElementType::Beam, 4));
    model.SetLoadPanel(4, Data::LoadPanel());
    CZelData const before(model);
    EXPECT_FALSE(Apply(model, CModule::Section, {{4, 9}}));
    EXPECT_EQ(model.Elem(1).Property(), 9);  // before it, and done
    EXPECT_EQ(model.Elem(2).Property(), 4);
    EXPECT_EQ(model.Elem(3).Property(), 4);
    EXPECT_FALSE(model.rebuildHold);
    EXPECT_EQ(model.bulkCounter, 0);
    CZelData nodes(before);
    EXPECT_TRUE(Apply(nodes, CModule::Node, Scheme()));  // no property moves
  }
}

TEST(RewriteElement, WithoutATableOfPropertiesLeavesTheStepsBehindItUndone) {
  CZelData model;
  model.SetElem(2, Data::CElement(1, ElementType::Damper, 4));
  Data::LoadPanel panel;
  panel.SetProperty(4);
  model.SetLoadPanel(4, panel);
  model.SetList(1, {L"", SelElement, L"PA4"});
  model.SetNode(1, Data::CNode({0, 0, 0}, 3, Vbool6()));
  model.SetGridPlane(1, {L"", 3, 0, false});
  CRenumber renumber(&model);
  renumber.Index(CModule::Prop2D, {{4, 9}});
  renumber.Index(CModule::Axis, {{3, 5}});
  EXPECT_FALSE(renumber.Go(false));
  EXPECT_EQ(model.GridPlane(1).Axis(), 5);  // before elements
  EXPECT_EQ(model.Node(1).Axis(), 5);
  EXPECT_EQ(model.LoadPanel(4).Property(), 4);  // behind them
  EXPECT_EQ(model.List(1).String(), L"PA4");
}

TEST(RewriteElement, CountsModules50To65And75AsProperties) {
  for (int const module : {50, 52, 53, 54, 55, 56, 57, 58, 59, 62, 63, 64, 65, 75, 38, 80}) {
    CZelData model;
    model.SetElem(1, Data::CElement(1, ElementType::Damper, 4));
    bool const property = module != 38 && module != 80;
    EXPECT_EQ(Apply(model, static_cast<CModule::ModuleId>(module), Scheme()), !property);
  }
}

TEST(RewriteLoadPanel, FollowsNodesMembersAndPlates) {
  CZelData model;
  Testing::NodesAt(model, {1, 2, 3});
  auto panel = Testing::Panel({1, 2, 3});
  panel.SetProperty(4);
  panel.SetParentMember({5, 7});
  model.SetLoadPanel(1, panel);
  CRenumber renumber(&model);
  renumber.Index(CModule::Node, {{1, 3}, {3, 1}});
  renumber.Index(CModule::Member, {{5, 8}});
  renumber.Index(CModule::Prop2D, {{4, 9}});
  EXPECT_TRUE(renumber.Go(false));
  EXPECT_TRUE(Testing::References(model, 1, {3, 2, 1}));
  EXPECT_EQ(model.LoadPanel(1).ParentMember(), (Data::ParentMember{8, 7}));
  EXPECT_EQ(model.LoadPanel(1).Property(), 9);
}

/// A member of a topology with orientation node 3 and property 4.
CZelData ModelWithMember(wchar_t const* topology, MembType type = MembType::Generic) {
  CZelData model;
  Testing::NodesAt(model, {1, 2, 3, 4, 5, 6, 7});
  Data::CMember member(type, 1, 4);
  EXPECT_TRUE(member.SetTopo(CString(topology)));
  member.SetOrientationNode(3);
  model.SetMember(1, member);
  return model;
}

TEST(RewriteMember, FollowsNodesAndKeepsWords) {
  auto model = ModelWithMember(L"1 2 3 4 hole( 5 6 7 )");
  EXPECT_TRUE(Apply(model, CModule::Node, {{1, 11}, {5, 15}, {3, 13}}));
  EXPECT_EQ(model.Member(1).Topo().String(), L"11 2 13 4 hole( 15 6 7 )");
  EXPECT_EQ(model.Member(1).OrientationNode(), 13);
}

TEST(RewriteMember, DropsANodeThatComesToStandBehindItself) {
  auto model = ModelWithMember(L"1 2 3 4 hole( 5 6 7 )");
  EXPECT_TRUE(Apply(model, CModule::Node, {{2, 1}, {3, 1}, {5, 4}, {6, 5}, {7, 5}}));
  EXPECT_EQ(model.Member(1).Topo().String(), L"1 4 hole( 4 5 )");  // the word stands between
}

TEST(RewriteMember, KeepsNodesInARunOnReferencesAlone) {
  auto model = ModelWithMember(L"1 2");
  CRenumber renumber(&model);
  renumber.SetRefOnly(true);
  renumber.Index(CModule::Node, {{1, 11}});
  renumber.Index(CModule::Section, {{4, 9}});
  EXPECT_TRUE(renumber.Go(false));
  EXPECT_EQ(model.Member(1).Topo().String(), L"1 2");
  EXPECT_EQ(model.Member(1).Property(), 9);
}

TEST(RewriteMember, FollowsSectionsWhateverItsType) {
  auto model = ModelWithMember(L"1 2 3 4");  // 2D
  EXPECT_TRUE(Apply(model, CModule::Prop2D, {{4, 8}}));
  EXPECT_EQ(model.Member(1).Property(), 4);
  EXPECT_TRUE(Apply(model, CModule::Section, {{4, 9}}));
  EXPECT_EQ(model.Member(1).Property(), 9);
}

TEST(RewriteSection, FollowsMaterialsByTypeAndNoRebarNorFabric) {
  struct Row {
    MatType type;
    CModule::ModuleId module;
    bool follows;
  };
  for (auto const& [type, module, follows] :
       {Row{MatType::Steel, CModule::MatSteel, true},
        Row{MatType::Concrete, CModule::MatConcrete, true},
        Row{MatType::Aluminium, CModule::MatAluminium, true},
        Row{MatType::Glass, CModule::MatGlass, true}, Row{MatType::Frp, CModule::MatFrp, true},
        Row{MatType::Timber, CModule::MatTimber, true},
        Row{MatType::Rebar, CModule::MatRebar, false},
        Row{MatType::Fabric, CModule::MatFabric, false}}) {
    SCOPED_TRACE(static_cast<int>(type));
    CZelData model;
    model.SetSection(1, {L"", {Data::CSecComp(L"", 2, {type, 4}), Data::CSecComp(L"", -1, {})}});
    CRenumber renumber(&model);
    renumber.Index(module, {{4, 9}});
    renumber.Index(CModule::MatAnal, {{2, 3}});
    EXPECT_TRUE(renumber.Go(false));
    EXPECT_EQ(model.Section(1).MaterialGrade(0), follows ? 9 : 4);
    EXPECT_EQ(model.Section(1).MaterialAnalysis(0), 3);
    EXPECT_EQ(model.Section(1).MaterialAnalysis(1), -1);
  }
}

TEST(RewriteSpring, FollowsCurvesAndMatrices) {
  CZelData model;
  Data::CSpringProp spring;
  for (auto const d : {Direction::X, Direction::Y, Direction::Z})
    spring.SetTableRef(d, static_cast<int>(d));
  spring.SetMatrix(4);
  model.SetSpringProp(1, spring);
  CRenumber renumber(&model);
  renumber.Index(CModule::MatCurve, {{1, 11}, {2, 12}, {3, 13}});
  renumber.Index(CModule::MatMatrix, {{4, 14}});
  EXPECT_TRUE(renumber.Go(false));
  EXPECT_EQ(model.SpringProp(1).TableRef(Direction::X), 11);
  EXPECT_EQ(model.SpringProp(1).TableRef(Direction::Y), 12);
  EXPECT_EQ(model.SpringProp(1).TableRef(Direction::Z), 13);
  EXPECT_EQ(model.SpringProp(1).Matrix(), 14);
}

TEST(RewritePlate, FollowsAxesAndAnalysisMaterialsAndNoGrades) {
  CZelData model;
  Data::CProp2D plate;
  plate.SetAxis(3);
  plate.SetMaterialAnalysis(2);
  plate.SetMaterialDesign({MatType::Concrete, 4});
  model.SetProp2D(1, plate);
  model.SetProp3D(1, {L"", 2, {MatType::Concrete, 4}, 3, Data::CProp3D::PropType::Solid});
  CRenumber renumber(&model);
  renumber.Index(CModule::Axis, {{3, 5}});
  renumber.Index(CModule::MatAnal, {{2, 6}});
  renumber.Index(CModule::MatConcrete, {{4, 8}});
  EXPECT_TRUE(renumber.Go(false));
  EXPECT_EQ(model.Prop2D(1).Axis(), 5);
  EXPECT_EQ(model.Prop2D(1).MaterialAnalysis(), 6);
  EXPECT_EQ(model.Prop2D(1).MaterialGrade(), 4);
  EXPECT_EQ(model.Prop3D(1).MaterialAnalysis(), 2);  // solids are not rewritten at all
  EXPECT_EQ(model.Prop3D(1).Axis(), 3);
}

TEST(RewriteStageProperty, FollowsStagesAndTheFamilyOfEachButDampers) {
  struct Row {
    PropertyType type;
    CModule::ModuleId module;
    bool follows;
  };
  for (auto const& [type, module, follows] :
       {Row{PropertyType::Section, CModule::Section, true},
        Row{PropertyType::Spring, CModule::SpringProp, true},
        Row{PropertyType::Mass, CModule::MassProp, true},
        Row{PropertyType::Plate, CModule::Prop2D, true},
        Row{PropertyType::Link, CModule::LinkProp, true},
        Row{PropertyType::Cable, CModule::CableProp, true},
        Row{PropertyType::None, CModule::Section, false},
        Row{PropertyType::Solid, CModule::Prop3D, true},
        Row{PropertyType::Damper, CModule::DamperProp, false}}) {
    SCOPED_TRACE(static_cast<int>(type));
    CZelData model;
    model.SetAnalStageProp(1, {2, type, 4, 5});
    CRenumber renumber(&model);
    renumber.Index(module, {{4, 14}, {5, 15}});
    EXPECT_TRUE(renumber.Go(false));
    EXPECT_EQ(model.AnalStageProp(1).ElemProp(), 4);  // only when stages move
    renumber.Index(CModule::AnalStage, {{2, 3}});
    EXPECT_TRUE(renumber.Go(false));
    EXPECT_EQ(model.AnalStageProp(1).Stage(), 3);
    EXPECT_EQ(model.AnalStageProp(1).ElemProp(), follows ? 14 : 4);
    EXPECT_EQ(model.AnalStageProp(1).PropRec(), follows ? 15 : 5);
  }
}

TEST(RewriteStageMaterial, FollowsStagesAndAnalysisMaterials) {
  CZelData model;
  model.SetAnalStageMat(1, {2, 4, 5});
  CRenumber renumber(&model);
  renumber.Index(CModule::AnalStage, {{2, 3}});
  renumber.Index(CModule::MatAnal, {{4, 14}, {5, 15}});
  EXPECT_TRUE(renumber.Go(false));
  EXPECT_EQ(model.AnalStageMat(1), Data::CAnalStageMat(3, 14, 15));
}

}  // namespace
}  // namespace Tarvex::RewriteEntitiesTest
