#include <gtest/gtest.h>

#include <cmath>

#include "store/model/list_expansion.h"
#include "store/model/zel_data.h"
#include "store/record/mat_anal.h"
#include "store/record/member.h"
#include "store/record/node.h"
#include "store/record/prop_2d.h"
#include "store/record/prop_3d.h"
#include "store/record/section.h"
#include "store/record/stages.h"
#include "tests/support/builders.h"

namespace Tarvex::StagePropertiesTest {
namespace {

using Data::CAnalStageMat;
using Data::CAnalStageProp;
using Data::CEntList;
using Data::CSecComp;
using Numbers = std::vector<int>;

Data::CMatAnal Material(double modulus, double density) {
  return {L"MAT_ELAS_ISO", L"", modulus, 0.2, density, 0, 0};
}

/// Stages 1 and 2. Beam 1 of section 1 (material 1), plate 2 of property 1 (material 2), brick 3 of
/// property 1 (material 1), panel 4 of 2D property 1. In stage 2: section 1 is section 2 (materials
/// 2 and 3), 2D property 1 is 2 (material 3), material 3 is 1.
CZelData Staged() {
  CZelData model;
  for (int const n : {1, 2})
    model.SetAnalStage(n, Data::CAnalStage(L"", CEntList(SelElement, L"all")));
  model.SetMatAnal(1, Material(1, 10));
  model.SetMatAnal(2, Material(2, 20));
  model.SetMatAnal(3, Material(3, 30));
  model.SetSection(1, Data::CSection(L"", {CSecComp(L"rectangle 1 1", 1, MatDesign())}));
  model.SetSection(2, Data::CSection(L"", {CSecComp(L"rectangle 2 1", 2, MatDesign()),
                                           CSecComp(L"rectangle 1 1", 3, MatDesign())}));
  Data::CProp2D plate;
  plate.SetMaterialAnalysis(2);
  model.SetProp2D(1, plate);
  plate.SetMaterialAnalysis(3);
  model.SetProp2D(2, plate);
  model.SetProp3D(1, Data::CProp3D(L"", 1, MatDesign(), 0, Data::CProp3D::PropType::Solid));
  Testing::BeamAt(model, {0, 0, 0}, {4, 0, 0});
  Testing::QuadAt(model, {0, 0, 0}, {1, 0, 0}, {1, 1, 0}, {0, 1, 0});
  Testing::Brick(model, 1, 1, 1);
  Testing::PanelAt(model, {{0, 0, 0}, {1, 0, 0}, {1, 1, 0}});
  for (int n = 1; n <= 4; ++n) model.SetElemProperty(n, 1);
  model.SetAnalStageProp(1, CAnalStageProp(2, PropertyType::Section, 1, 2));
  model.SetAnalStageProp(2, CAnalStageProp(2, PropertyType::Plate, 1, 2));
  model.SetAnalStageMat(1, CAnalStageMat(2, 3, 1));
  return model;
}

TEST(StageProperty, IsTheReplacementOfThatFamilyAndStage) {
  auto const model = Staged();
  EXPECT_EQ(model.StageProperty(PropertyType::Section, 1, 2), 2);
  EXPECT_EQ(model.StageProperty(PropertyType::Section, 1, 1), 1);
  EXPECT_EQ(model.StageProperty(PropertyType::Section, 1, 0), 1);
  EXPECT_EQ(model.StageProperty(PropertyType::Spring, 1, 2), 1);
  EXPECT_EQ(model.StageProperty(PropertyType::Section, 2, 2), 2);
  EXPECT_EQ(model.StageProperty(PropertyType::Section, 0, 2), 0);
  EXPECT_EQ(model.StageProperty(PropertyType::Section, 9, 2), 9);
}

TEST(StageProperty, OfSeveralReplacementsIsThatOfTheHighestNumberAndNotReplacedAgain) {
  auto model = Staged();
  model.SetAnalStageProp(5, CAnalStageProp(2, PropertyType::Section, 1, 7));
  model.SetAnalStageProp(6, CAnalStageProp(2, PropertyType::Section, 7, 8));
  EXPECT_EQ(model.StageProperty(PropertyType::Section, 1, 2), 7);
  model.BlankAnalStageProp(5, 1);
  EXPECT_EQ(model.StageProperty(PropertyType::Section, 1, 2), 2);
}

TEST(StageProperty, OfAnElementIsOfItsOwnFamily) {
  auto const model = Staged();
  EXPECT_EQ(model.StageProperty(1, 2), 2);
  EXPECT_EQ(model.StageProperty(2, 2), 2);
  EXPECT_EQ(model.StageProperty(3, 2), 1);
  EXPECT_EQ(model.StageProperty(4, 2), 2);  // a panel has a 2D property
  EXPECT_EQ(model.ElemStageProperty(1, 0), 1);
  EXPECT_EQ(model.ElemStageProperty(9, 2), 0);
}

TEST(EntProperty, FollowsTheStageForMembersByTheirDimension) {
  auto model = Staged();
  Data::CMember member(1, 1);
  member.SetType(MembType::Beam);
  model.SetMember(1, member);
  member.SetType(MembType::Slab);
  model.SetMember(2, member);
  member.SetType(MembType::Solid);
  model.SetMember(3, member);
  model.SetAnalStageProp(2, CAnalStageProp(2, PropertyType::Plate, 1, 5));
  EXPECT_EQ(model.EntProperty({SelMember, 1}, 2), 2);
  EXPECT_EQ(model.EntProperty({SelMember, 2}, 2), 5);
  EXPECT_EQ(model.EntProperty({SelMember, 3}, 2), 1);
  EXPECT_EQ(model.EntProperty({SelMember, 1}, 0), 1);
  EXPECT_EQ(model.EntProperty({SelElement, 1}, 2), 2);
  EXPECT_EQ(model.EntProperty({SelNode, 1}, 2), 0);
}

TEST(ElemMatAnal, IsThatOfTheStagesPropertyInTheStage) {
  auto const model = Staged();
  EXPECT_EQ(model.ElemMatAnal(1, 0), 1);
  EXPECT_EQ(model.ElemMatAnal(1, 2), 2);  // of section 2
  EXPECT_EQ(model.ElemMatAnal(2, 0), 2);
  EXPECT_EQ(model.ElemMatAnal(2, 2), 1);  // property 2 is of material 3, which is 1 then
  EXPECT_EQ(model.ElemMatAnal(3, 2), 1);
  EXPECT_EQ(model.ElemMatAnal(4, 0), 0);  // a panel
  EXPECT_EQ(model.ElemMatAnal(9, 0), 0);
}

TEST(ElemMatAnal, IsNoneWithoutPropertyOrComponent) {
  auto model = Staged();
  model.SetSection(1, Data::CSection());
  EXPECT_EQ(model.ElemMatAnal(1, 0), 0);
  model.SetElemProperty(2, 9);
  EXPECT_EQ(model.ElemMatAnal(2, 0), 0);
  Data::CProp2D none;
  none.SetMaterialAnalysis(-1);
  model.SetProp2D(9, none);
  EXPECT_EQ(model.ElemMatAnal(2, 2), -1);
}

TEST(Elem1DPropMat, PutsSectionAndMaterialTogether) {
  auto model = Staged();
  auto section = model.Section(1);
  section.SetAdditionalMass(5);
  model.SetSection(1, section);
  auto const beam = model.Elem1DPropMat(1, 0, 0.5, false);
  EXPECT_EQ(beam.area, 1);
  EXPECT_NEAR(beam.iyy, 1.0 / 12, 1e-15);
  EXPECT_NEAR(beam.izz, 1.0 / 12, 1e-15);
  EXPECT_EQ(beam.youngsModulus, 1);
  EXPECT_EQ(beam.density, 10);
  EXPECT_TRUE(std::isnan(beam.meanDensity));
  EXPECT_EQ(beam.additionalMass, 5);
}

TEST(Elem1DPropMat, HasAMeanDensityForUnlikeComponents) {
  // In stage 2: areas 2 and 1 of densities 20 and, material 3 being 1 then, 10.
  auto const beam = Staged().Elem1DPropMat(1, 2, 0.5, false);
  EXPECT_EQ(beam.area, 3);
  EXPECT_EQ(beam.density, 20);
  EXPECT_NEAR(beam.meanDensity, 50.0 / 3, 1e-14);
}

TEST(Elem1DPropMat, TransformsToTheFirstModulusWhenAsked) {
  // Moduli 2 and 1: the second area of 1 counts a half; 8 / 12 + 1 / 12 / 2.
  auto const beam = Staged().Elem1DPropMat(1, 2, 0.5, true);
  EXPECT_NEAR(beam.area, 2.5, 1e-15);
  EXPECT_NEAR(beam.iyy, 8.0 / 12 + 1.0 / 24, 1e-15);
  EXPECT_NEAR(beam.meanDensity, 50.0 / 3, 1e-14);
}

TEST(Elem1DPropMat, IsZeroForAnythingButAnElementWithASection) {
  auto model = Staged();
  EXPECT_EQ(model.Elem1DPropMat(2, 0, 0.5, false).area, 0);
  EXPECT_EQ(model.Elem1DPropMat(9, 0, 0.5, false).area, 0);
  model.SetElemProperty(1, 9);
  EXPECT_EQ(model.Elem1DPropMat(1, 0, 0.5, false).area, 0);
}

Numbers Selected(CZelData const& model, CString const& text, int stage) {
  CEntList const list(SelElement, text);
  auto const& items = Util::Item(list, model, stage, true);
  return {items.begin(), items.end()};
}

TEST(ListWords, GoByThePropertiesOfAStage) {
  auto model = Staged();
  EXPECT_EQ(Selected(model, L"PB1", -1), Numbers{1});
  EXPECT_EQ(Selected(model, L"PB1", 2), Numbers{});
  EXPECT_EQ(Selected(model, L"PB2", 2), Numbers{1});
  EXPECT_EQ(Selected(model, L"PA2", 2), (Numbers{2, 4}));
  EXPECT_EQ(Selected(model, L"PA2", 1), Numbers{});
  // What is kept of a list follows the replacements.
  model.BlankAnalStageProp(2, 1);
  EXPECT_EQ(Selected(model, L"PA2", 2), Numbers{});
}

TEST(ListWords, GoByTheMaterialsOfAStage) {
  auto model = Staged();
  EXPECT_EQ(Selected(model, L"M1", -1), (Numbers{1, 3}));
  EXPECT_EQ(Selected(model, L"M1", 2), (Numbers{1, 2, 3, 4}));
  EXPECT_EQ(Selected(model, L"M3", 2), Numbers{});
  model.BlankAnalStageMat(1, 1);
  EXPECT_EQ(Selected(model, L"M3", 2), (Numbers{1, 2, 4}));
}

}  // namespace
}  // namespace Tarvex::StagePropertiesTest
