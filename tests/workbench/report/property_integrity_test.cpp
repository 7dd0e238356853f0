// A missing number planted in each reference of materials, properties, soil, and of what has
// properties.
#include <gtest/gtest.h>

#include "store/record/axis.h"
#include "store/record/link_prop.h"
#include "store/record/mass_prop.h"
#include "store/record/mat_anal.h"
#include "store/record/mat_tables.h"
#include "store/record/material.h"
#include "store/record/member.h"
#include "store/record/node.h"
#include "store/record/other_props.h"
#include "store/record/prop_2d.h"
#include "store/record/prop_3d.h"
#include "store/record/section.h"
#include "store/record/soil.h"
#include "store/record/spring_prop.h"
#include "tests/support/builders.h"
#include "workbench/report/integrity.h"

namespace Tarvex::PropertyIntegrityTest {
namespace {

using Workbench::FindFaults;
using Workbench::Finding;

/// A plate with 2D property 1, and under number 3 what refers to materials, curves and profiles
/// that are there under number 1.
CZelData Sound() {
  CZelData model;
  Testing::Grid(model, 1, 1);
  model.SetAxis(1, Data::CAxis());
  model.SetMatAnal(1, Data::CMatAnal());
  model.SetMatSteel(1, Data::Design::CMatSteel());
  model.SetMatConcrete(1, Data::Design::CMatConc());
  model.SetMatCurve(1, Data::CTableT<double>());
  model.SetMatMatrix(1, Data::CMatMatrix());
  model.SetProp2D(1, Data::CProp2D());
  MatDesign const steel(MatType::Steel, 1);
  model.SetSection(3, Data::CSection(L"", {Data::CSecComp(), Data::CSecComp(L"", 1, steel)}));
  Data::CSpringProp spring;
  spring.SetTableRef(Direction::Y, 1);
  spring.SetMatrix(1);
  model.SetSpringProp(3, spring);
  model.SetProp2D(3, Data::CProp2D(L"", 1, steel, 1, Data::PropertyType2d::Shell,
                                   Data::Surface2d::Middle, 1, {}));
  model.SetProp3D(3, Data::CProp3D(L"", 1, steel, 1, Data::CProp3D::PropType::Solid));
  model.SetSoilProfile(1, Data::GeoSoilProfile());
  model.SetSoilZone(3, Data::GeoSoilZone(L"", Data::GeoID(1)));
  return model;
}

template <class Change>
void ChangePlate(CZelData& m, Change&& change) {
  auto record = m.Prop2D(3);
  change(record);
  m.SetProp2D(3, record);
}
template <class Change>
void ChangeSolid(CZelData& m, Change&& change) {
  auto record = m.Prop3D(3);
  change(record);
  m.SetProp3D(3, record);
}
template <class Change>
void ChangeSpring(CZelData& m, Change&& change) {
  auto record = m.SpringProp(3);
  change(record);
  m.SetSpringProp(3, record);
}
template <class Change>
void ChangeNode(CZelData& m, Change&& change) {
  auto record = m.Node(2);
  change(record);
  m.SetNode(2, record);
}
void ChangeComponent(CZelData& m, Data::CSecComp const& component) {
  auto record = m.Section(3);
  record.SetComponent(1, component);
  m.SetSection(3, record);
}
void SetGrade(CZelData& m, MatType type) {
  ChangePlate(m, [&](auto& p) { p.SetMaterialDesign(MatDesign(type, 77)); });
}
void AddElement(CZelData& m, ElementType type, std::vector<int> const& nodes) {
  auto element = Testing::Element(type, nodes);
  element.SetProperty(76);
  m.SetElem(8, element);
}

struct Planted {
  char const* table;
  int number;
  char const* field;
  int index;
  int value;
  char const* target;
  void (*plant)(CZelData&);
};

Planted const kRows[] = {
    {"Section", 3, "components.materialAnalysis", 1, 91, "MatAnal",
     [](CZelData& m) {
       ChangeComponent(m, {L"", 91, MatDesign()});
     }},
    {"Section", 3, "components.materialDesign.grade", 1, 92, "MatConcrete",
     [](CZelData& m) {
       ChangeComponent(m, {L"", 1, MatDesign(MatType::Concrete, 92)});
     }},
    {"SpringProp", 3, "tableRef", 0, 93, "MatCurve",
     [](CZelData& m) { ChangeSpring(m, [](auto& s) { s.SetTableRef(Direction::X, 93); }); }},
    {"SpringProp", 3, "tableRef", 2, 94, "MatCurve",
     [](CZelData& m) { ChangeSpring(m, [](auto& s) { s.SetTableRef(Direction::Z, 94); }); }},
    {"SpringProp", 3, "matrix", -1, 95, "MatMatrix",
     [](CZelData& m) { ChangeSpring(m, [](auto& s) { s.SetMatrix(95); }); }},
    {"Prop2D", 3, "materialAnalysis", -1, 96, "MatAnal",
     [](CZelData& m) { ChangePlate(m, [](auto& p) { p.SetMaterialAnalysis(96); }); }},
    {"Prop2D", 3, "materialDesign.grade", -1, 97, "MatSteel",
     [](CZelData& m) { ChangePlate(m, [](auto& p) { p.SetMaterialGrade(97); }); }},
    {"Prop2D", 3, "axis", -1, 98, "Axis",
     [](CZelData& m) { ChangePlate(m, [](auto& p) { p.SetAxis(98); }); }},
    {"Prop3D", 3, "materialAnalysis", -1, 99, "MatAnal",
     [](CZelData& m) { ChangeSolid(m, [](auto& p) { p.SetMaterialAnalysis(99); }); }},
    {"Prop3D", 3, "materialDesign.grade", -1, 81, "MatSteel",
     [](CZelData& m) { ChangeSolid(m, [](auto& p) { p.SetMaterialGrade(81); }); }},
    {"Prop3D", 3, "axis", -1, 82, "Axis",
     [](CZelData& m) { ChangeSolid(m, [](auto& p) { p.SetAxis(82); }); }},
    {"SoilZone", 3, "profile.ref", -1, 83, "SoilProfile",
     [](CZelData& m) { m.SetSoilZone(3, Data::GeoSoilZone(L"", Data::GeoID(83))); }},
    {"Node", 2, "springProperty", -1, 84, "SpringProp",
     [](CZelData& m) { ChangeNode(m, [](auto& n) { n.SetSpringProperty(84); }); }},
    {"Node", 2, "massProperty", -1, 85, "MassProp",
     [](CZelData& m) { ChangeNode(m, [](auto& n) { n.SetMassProperty(85); }); }},
    {"Node", 2, "damperProperty", -1, 86, "DamperProp",
     [](CZelData& m) { ChangeNode(m, [](auto& n) { n.SetDamperProperty(86); }); }},
    {"Member", 5, "property", -1, 87, "Section",
     [](CZelData& m) {
       Data::CMember member(MembType::Beam, 1, 87);
       member.SetTopo(CString(L"1 2"));
       m.SetMember(5, member);
     }},
    {"LoadPanel", 9, "property", -1, 88, "Prop2D",
     [](CZelData& m) {
       auto panel = Testing::Panel({1, 2, 3});
       panel.SetProperty(88);
       m.SetLoadPanel(9, panel);
     }},
    {"Elem", 8, "property", -1, 76, "Section",
     [](CZelData& m) {
       AddElement(m, ElementType::Beam, {1, 2});
     }},
    {"Elem", 8, "property", -1, 76, "SpringProp",
     [](CZelData& m) {
       AddElement(m, ElementType::Spring, {1, 2});
     }},
    {"Elem", 8, "property", -1, 76, "Prop2D",
     [](CZelData& m) {
       AddElement(m, ElementType::Tri3, {1, 2, 3});
     }},
    {"Elem", 8, "property", -1, 76, "LinkProp",
     [](CZelData& m) {
       AddElement(m, ElementType::Link, {1, 2});
     }},
    {"Elem", 8, "property", -1, 76, "CableProp",
     [](CZelData& m) {
       AddElement(m, ElementType::Cable, {1, 2});
     }},
    {"Elem", 8, "property", -1, 76, "SpacerProp",
     [](CZelData& m) {
       AddElement(m, ElementType::Spacer, {1, 2});
     }},
    {"Elem", 8, "property", -1, 76, "DamperProp",
     [](CZelData& m) {
       AddElement(m, ElementType::Damper, {1, 2});
     }},
    {"Elem", 8, "property", -1, 76, "Prop3D",
     [](CZelData& m) {
       AddElement(m, ElementType::Tetra4, {1, 2, 3, 4});
     }},
    {"Prop2D", 3, "materialDesign.grade", -1, 77, "MatSteel",
     [](CZelData& m) { SetGrade(m, MatType::Steel); }},
    {"Prop2D", 3, "materialDesign.grade", -1, 77, "MatConcrete",
     [](CZelData& m) { SetGrade(m, MatType::Concrete); }},
    {"Prop2D", 3, "materialDesign.grade", -1, 77, "MatAluminium",
     [](CZelData& m) { SetGrade(m, MatType::Aluminium); }},
    {"Prop2D", 3, "materialDesign.grade", -1, 77, "MatGlass",
     [](CZelData& m) { SetGrade(m, MatType::Glass); }},
    {"Prop2D", 3, "materialDesign.grade", -1, 77, "MatFrp",
     [](CZelData& m) { SetGrade(m, MatType::Frp); }},
    {"Prop2D", 3, "materialDesign.grade", -1, 77, "MatRebar",
     [](CZelData& m) { SetGrade(m, MatType::Rebar); }},
    {"Prop2D", 3, "materialDesign.grade", -1, 77, "MatTimber",
     [](CZelData& m) { SetGrade(m, MatType::Timber); }},
    {"Prop2D", 3, "materialDesign.grade", -1, 77, "MatFabric",
     [](CZelData& m) { SetGrade(m, MatType::Fabric); }},
};

TEST(FindFaults, FindsNothingWhereAllThatPropertiesNameIsThere) {
  EXPECT_TRUE(FindFaults(Sound()).empty());
}

TEST(FindFaults, NamesAMissingNumberInEachReferenceOfAndToProperties) {
  for (auto const& row : kRows) {
    SCOPED_TRACE(std::string(row.table) + " " + row.field + " " + std::to_string(row.value));
    auto model = Sound();
    row.plant(model);
    EXPECT_EQ(FindFaults(model),
              (std::vector<Finding>{{"dangling-reference", row.table, row.number, row.field,
                                     row.index, row.value, row.target}}));
  }
}

TEST(FindFaults, TakesNoAnalysisMaterialAndNoGradeForAReference) {
  auto model = Sound();
  ChangePlate(model, [](auto& p) { p.SetMaterialAnalysis(-1); });
  ChangeComponent(model, {L"", -1, MatDesign(MatType::Undefined, 7)});
  ChangeSolid(model, [](auto& p) { p.SetMaterialDesign(MatDesign(MatType::None, 7)); });
  EXPECT_TRUE(FindFaults(model).empty());
}

TEST(FindFaults, FindsMissingPropertiesInAModelWithoutAnyToo) {
  CZelData model;
  Testing::Grid(model, 1, 1);
  EXPECT_TRUE(FindFaults(model).empty());  // 0 names none
  model.SetElemProperty(1, 7);
  ChangeNode(model, [](auto& n) { n.SetMassProperty(5); });
  EXPECT_EQ(
      FindFaults(model),
      (std::vector<Finding>{{"dangling-reference", "Node", 2, "massProperty", -1, 5, "MassProp"},
                            {"dangling-reference", "Elem", 1, "property", -1, 7, "Prop2D"}}));
}

TEST(FindFaults, FindsANumberThatIsNotFiniteInProperties) {
  double const nan = std::numeric_limits<double>::quiet_NaN();
  auto model = Sound();
  ChangePlate(model, [&](auto& p) { p.SetThickness(nan); });
  model.SetMassProp(1, Data::CMassProp(L"", 1, {0, 0, nan, 0, 0, 0}, {1, 1, 1}));
  EXPECT_EQ(FindFaults(model),
            (std::vector<Finding>{
                {"dimension-not-finite", "MassProp", 1, "inertia.zz", -1, std::nullopt, ""},
                {"dimension-not-finite", "Prop2D", 3, "thickness", -1, std::nullopt, ""}}));
}

TEST(PropertyIntegrity, TellsADescriptionOfASectionThatCannotBeRead) {
  CZelData model;
  model.SetSection(3, Data::CSection(L"", {Data::CSecComp(L"rectangle 1 1", 0, MatDesign()),
                                           Data::CSecComp(L"rectangle 1", 0, MatDesign()),
                                           Data::CSecComp(L"", 0, MatDesign())}));
  auto const findings = FindFaults(model);
  ASSERT_EQ(findings.size(), 1U);
  EXPECT_EQ(findings[0].code, "description-not-readable");
  EXPECT_EQ(findings[0].table, "Section");
  EXPECT_EQ(findings[0].number, 3);
  EXPECT_EQ(findings[0].field, "components.description");
  EXPECT_EQ(findings[0].index, 1);
  EXPECT_EQ(findings[0].value, 11);
  EXPECT_EQ(findings[0].reason, "character 12: fewer dimensions than the shape has");
}

}  // namespace
}  // namespace Tarvex::PropertyIntegrityTest
