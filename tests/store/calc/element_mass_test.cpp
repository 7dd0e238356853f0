#include "store/calc/element_mass.h"

#include <gtest/gtest.h>

#include "store/model/zel_data.h"
#include "store/record/element.h"
#include "store/record/load_panel.h"
#include "store/record/mat_anal.h"
#include "store/record/node.h"
#include "store/record/other_props.h"
#include "store/record/prop_2d.h"
#include "store/record/prop_3d.h"
#include "store/record/section.h"
#include "store/record/stages.h"
#include "tests/support/builders.h"
#include "tests/support/matchers.h"

namespace Tarvex::ElementMassTest {
namespace {

using Data::CSecComp;
using Testing::IsNear;

/// Materials 1 (2500) and 2 (7850).
CZelData WithMaterials() {
  CZelData model;
  model.SetMatAnal(1, Data::CMatAnal(L"MAT_ELAS_ISO", L"concrete", 3e10, 0.2, 2500, 0, 0));
  model.SetMatAnal(2, Data::CMatAnal(L"MAT_ELAS_ISO", L"steel", 2.1e11, 0.3, 7850, 0, 0));
  return model;
}

void AddSection(CZelData& model, std::vector<CSecComp> components, double additional = 0) {
  Data::CSection section(L"", std::move(components));
  section.SetAdditionalMass(additional);
  model.SetSection(1, section);
}

Data::CProp2D Plate(double thickness) {
  Data::CProp2D plate;
  plate.SetMaterialAnalysis(1);
  plate.SetThickness(thickness);
  return plate;
}

TEST(MassOfElement, OfABeamIsAreaTimesDensityAndTheAdditionalMass) {
  auto model = WithMaterials();
  AddSection(model, {CSecComp(L"rectangle 0.5 0.3", 1, MatDesign())}, 20);
  int const n = Testing::BeamAt(model, {1, 0, 0}, {5, 0, 3});
  model.SetElemProperty(n, 1);
  auto const mass = MassOfElement(model, n, 0);
  ASSERT_TRUE(mass);
  EXPECT_NEAR(mass->mass, 5 * (0.15 * 2500 + 20), 1e-9);
  EXPECT_TRUE(IsNear(mass->centre, {3, 0, 1.5}));
}

TEST(MassOfElement, OfABeamGoesFromOffsetEndToOffsetEnd) {
  auto model = WithMaterials();
  AddSection(model, {CSecComp(L"rectangle 1 1", 1, MatDesign())});
  int const n = Testing::BeamAt(model, {0, 0, 0}, {10, 0, 0});
  model.SetElemProperty(n, 1);
  model.SetElemOffset(n, Data::COffset(1, 3, 0, 0.5));
  auto const mass = MassOfElement(model, n, 0);
  EXPECT_NEAR(mass->mass, 6 * 2500, 1e-9);
  EXPECT_TRUE(IsNear(mass->centre, {4, 0, 0.5}));
}

TEST(MassOfElement, OfATaperedBeamCountsEachPlace) {
  auto model = WithMaterials();
  // The area goes from 0.1 to 0.3 over 6 m: mean 0.2, centre at (0.1 + 2 * 0.3) / 3 / 0.4 of it.
  AddSection(model, {CSecComp(L"rectangle 0.5 0.2 to 1.5 0.2", 1, MatDesign())});
  int const n = Testing::BeamAt(model, {0, 0, 0}, {6, 0, 0});
  model.SetElemProperty(n, 1);
  auto const mass = MassOfElement(model, n, 0);
  EXPECT_NEAR(mass->mass, 6 * 0.2 * 2500, 1e-9);
  EXPECT_NEAR(mass->centre.x, 6 * (0.1 + 2 * 0.3) / 3 / 0.4, 1e-12);
}

TEST(MassOfElement, OfASectionOfTwoMaterialsCountsEachByItsDensity) {
  auto model = WithMaterials();
  AddSection(model, {CSecComp(L"tube 0.3 0.01", 2, MatDesign()),
                     CSecComp(L"circle 0.28", 1, MatDesign())});
  int const n = Testing::BeamAt(model, {0, 0, 0}, {0, 0, 2});
  model.SetElemProperty(n, 1);
  double const steel = kPi * (0.15 * 0.15 - 0.14 * 0.14);
  double const concrete = kPi * 0.14 * 0.14;
  EXPECT_NEAR(MassOfElement(model, n, 0)->mass, 2 * (steel * 7850 + concrete * 2500), 1e-9);
}

TEST(MassOfElement, OfAPlateIsByTheThicknessForVolumeAndTheAdditionalMass) {
  auto model = WithMaterials();
  auto plate = Plate(0.2);
  plate.SetEffective({1, 1, 0.5});
  plate.SetAdditionalMass(30);
  model.SetProp2D(1, plate);
  int const n = Testing::QuadAt(model, {0, 0, 0}, {4, 0, 0}, {4, 2, 0}, {0, 2, 0});
  model.SetElemProperty(n, 1);
  model.SetElemOffset(n, Data::COffset(0, 0, 0, 0.1));
  auto const mass = MassOfElement(model, n, 0);
  EXPECT_NEAR(mass->mass, 8 * (0.1 * 2500 + 30), 1e-9);
  EXPECT_TRUE(IsNear(mass->centre, {2, 1, 0.1}));
}

TEST(MassOfElement, OfASolidIsItsVolumeTimesDensity) {
  auto model = WithMaterials();
  model.SetProp3D(1, Data::CProp3D(L"", 1, MatDesign(), 0, Data::CProp3D::PropType::Solid));
  int const n = Testing::Brick(model, 2, 3, 4);
  model.SetElemProperty(n, 1);
  auto const mass = MassOfElement(model, n, 0);
  EXPECT_NEAR(mass->mass, 24 * 2500, 1e-8);
  EXPECT_TRUE(IsNear(mass->centre, {1, 1.5, 2}));
}

TEST(MassOfElement, OfACableIsItsOwnMassByLength) {
  auto model = WithMaterials();
  Data::CCableProp cable;
  cable.mass = 7;
  model.SetCableProp(3, cable);
  int const n = Testing::ElementAt(model, ElementType::Cable, {{0, 0, 0}, {3, 4, 0}});
  EXPECT_FALSE(MassOfElement(model, n, 0));
  model.SetElemProperty(n, 3);
  EXPECT_NEAR(MassOfElement(model, n, 0)->mass, 35, 1e-12);
}

TEST(MassOfElement, IsNoneOfWhatHasNoMass) {
  auto model = WithMaterials();
  int const spring = Testing::ElementAt(model, ElementType::Spring, {{0, 0, 0}, {1, 0, 0}});
  int const panel = Testing::PanelAt(model, {{0, 0, 0}, {1, 0, 0}, {1, 1, 0}});
  auto loadPanel = Plate(1);
  loadPanel.SetType(Data::PropertyType2d::LoadPanel);
  model.SetProp2D(1, loadPanel);
  int const plate = Testing::QuadAt(model, {0, 0, 0}, {1, 0, 0}, {1, 1, 0}, {0, 1, 0});
  model.SetElemProperty(plate, 1);
  for (int const n : {spring, panel, plate}) {
    ASSERT_TRUE(MassOfElement(model, n, 0));
    EXPECT_EQ(MassOfElement(model, n, 0)->mass, 0);
  }
}

TEST(MassOfElement, OfADummyIsNone) {
  auto model = WithMaterials();
  model.SetProp2D(1, Plate(1));
  int const n = Testing::QuadAt(model, {0, 0, 0}, {1, 0, 0}, {1, 1, 0}, {0, 1, 0});
  model.SetElemProperty(n, 1);
  EXPECT_EQ(MassOfElement(model, n, 0)->mass, 2500);
  model.SetElemDummy(n, true);
  EXPECT_EQ(MassOfElement(model, n, 0)->mass, 0);
}

TEST(MassOfElement, IsNotKnownWithoutElementNodePropertyOrMaterial) {
  auto model = WithMaterials();
  EXPECT_FALSE(MassOfElement(model, 1, 0));
  int const n = Testing::QuadAt(model, {0, 0, 0}, {1, 0, 0}, {1, 1, 0}, {0, 1, 0});
  EXPECT_FALSE(MassOfElement(model, n, 0));
  model.SetElemProperty(n, 1);
  auto plate = Plate(1);
  plate.SetMaterialAnalysis(9);
  model.SetProp2D(1, plate);
  EXPECT_FALSE(MassOfElement(model, n, 0));
  model.SetProp2D(1, Plate(1));
  EXPECT_TRUE(MassOfElement(model, n, 0));
  model.BlankNode(1, 1);
  EXPECT_FALSE(MassOfElement(model, n, 0));
}

TEST(MassOfModel, SumsWhatActsInAStageAndCountsWhatIsNotKnown) {
  auto model = WithMaterials();
  model.SetProp2D(1, Plate(1));
  model.SetProp2D(2, Plate(2));
  Testing::Grid(model, 3, 1);  // squares at x = 0.5, 1.5, 2.5
  for (int const n : {1, 2}) model.SetElemProperty(n, 1);
  auto const all = MassOfModel(model, 0);
  EXPECT_EQ(all.total.mass, 5000);
  EXPECT_TRUE(IsNear(all.total.centre, {1, 0.5, 0}));
  EXPECT_EQ(all.unknown, 1);
  model.SetAnalStage(1, Data::CAnalStage(L"", Data::CEntList(SelElement, L"2")));
  model.SetAnalStageProp(1, Data::CAnalStageProp(1, PropertyType::Plate, 1, 2));
  auto const staged = MassOfModel(model, 1);
  EXPECT_EQ(staged.total.mass, 5000);
  EXPECT_TRUE(IsNear(staged.total.centre, {1.5, 0.5, 0}));
  EXPECT_EQ(staged.unknown, 0);
  EXPECT_EQ(MassOfModel(CZelData(), 0).total.mass, 0);
}

}  // namespace
}  // namespace Tarvex::ElementMassTest
