#include "store/record/prop_2d.h"

#include <gtest/gtest.h>

#include "tests/support/stored_fields.h"

namespace Tarvex::Data::Prop2DTest {
namespace {

TEST(Prop2D, IsGivenByMaterialsAxisTypeAndThickness) {
  CProp2D const prop(L"slab", 3, MatDesign(MatType::Concrete, 4), 5, PropertyType2d::Plate,
                     Surface2d::Bottom, 0.25, {0.5, 0.75, 1.5});
  EXPECT_EQ(prop.Name(), L"slab");
  EXPECT_EQ(prop.MaterialAnalysis(), 3);
  EXPECT_EQ(prop.MaterialDesign(), MatDesign(MatType::Concrete, 4));
  EXPECT_EQ(prop.MaterialType(), MatType::Concrete);
  EXPECT_EQ(prop.MaterialGrade(), 4);
  EXPECT_EQ(prop.Axis(), 5);
  EXPECT_EQ(prop.Type(), PropertyType2d::Plate);
  EXPECT_EQ(prop.ReferenceSurface(), Surface2d::Bottom);
  EXPECT_EQ(prop.Thickness(), 0.25);
  EXPECT_EQ(prop.Effective(), (EffectiveThickness{0.5, 0.75, 1.5}));
  EXPECT_EQ(prop.VolumeThickness(), 0.375);  // 0.25 * 1.5
  EXPECT_EQ(prop.AdditionalMass(), 0);
}

TEST(Prop2D, KeepsWhatIsSet) {
  CProp2D prop;
  prop.SetMaterialAnalysis(1);
  prop.SetMaterialDesign(MatDesign(MatType::Glass, 2));
  prop.SetAxis(3);
  prop.SetType(PropertyType2d::LoadPanel);
  prop.SetReferenceSurface(Surface2d::Top);
  prop.SetThickness(4);
  prop.SetEffective({5, 6, 7});
  prop.SetAdditionalMass(8);
  EXPECT_EQ(prop.MaterialAnalysis(), 1);
  EXPECT_EQ(prop.MaterialDesign(), MatDesign(MatType::Glass, 2));
  EXPECT_EQ(prop.Axis(), 3);
  EXPECT_EQ(prop.Type(), PropertyType2d::LoadPanel);
  EXPECT_EQ(prop.ReferenceSurface(), Surface2d::Top);
  EXPECT_EQ(prop.Thickness(), 4);
  EXPECT_EQ(prop.Effective(), (EffectiveThickness{5, 6, 7}));
  EXPECT_EQ(prop.VolumeThickness(), 28);  // 4 * 7
  EXPECT_EQ(prop.AdditionalMass(), 8);
  prop.SetMaterialGrade(9);
  EXPECT_EQ(prop.MaterialDesign(), MatDesign(MatType::Glass, 9));
}

TEST(PropertyType2d, HasTheNumbersThatToolsKnow) {
  EXPECT_EQ(PropertyType2d::PlaneStress, static_cast<PropertyType2d>(1));
  EXPECT_EQ(PropertyType2d::PlaneStrain, static_cast<PropertyType2d>(2));
  EXPECT_EQ(PropertyType2d::Axisymmetric, static_cast<PropertyType2d>(3));
  EXPECT_EQ(PropertyType2d::Shell, static_cast<PropertyType2d>(6));
  EXPECT_EQ(PropertyType2d::CurvedShell, static_cast<PropertyType2d>(7));
  EXPECT_EQ(PropertyType2d::LoadPanel, static_cast<PropertyType2d>(10));
}

TEST(SetFromDesc, TakesANumberAsThickness) {
  CProp2D prop;
  EXPECT_TRUE(prop.SetFromDesc(L"0.0125"));
  EXPECT_EQ(prop.Thickness(), 0.0125);
  EXPECT_TRUE(prop.SetFromDesc(L"  1e-3 "));
  EXPECT_EQ(prop.Thickness(), 0.001);
}

TEST(SetFromDesc, LeavesTheThicknessForATextThatIsNone) {
  CProp2D prop;
  prop.SetThickness(0.5);
  for (auto const* text : {L"", L"  ", L"slab", L"0.2 m", L"1 2", L"nan", L"inf", L"1e999"}) {
    EXPECT_FALSE(prop.SetFromDesc(text)) << CString(text).ToUtf8();
    EXPECT_EQ(prop.Thickness(), 0.5);
  }
}

TEST(Prop2D, ComparesEveryField) {
  using R = CProp2D;
  Testing::ExpectStoredFields<R>({{"name", [](R& r) { r.SetName(L"n"); }},
                                  {"sid", [](R& r) { r.SetSid(L"s"); }},
                                  {"colour", [](R& r) { r.SetColour(1); }},
                                  {"type", [](R& r) { r.SetType(PropertyType2d::Wall); }},
                                  {"materialAnalysis", [](R& r) { r.SetMaterialAnalysis(1); }},
                                  {"materialDesign", [](R& r) { r.SetMaterialGrade(1); }},
                                  {"axis", [](R& r) { r.SetAxis(1); }},
                                  {"surface", [](R& r) { r.SetReferenceSurface(Surface2d::Top); }},
                                  {"thickness", [](R& r) { r.SetThickness(1); }},
                                  {"effective",
                                   [](R& r) {
                                     r.SetEffective({1, 1, 2});
                                   }},
                                  {"additionalMass", [](R& r) { r.SetAdditionalMass(1); }}});
}

TEST(EffectiveThickness, ComparesEveryFactor) {
  using R = EffectiveThickness;
  Testing::ExpectFields<R>({{"bending", [](R& r) { r.bending = 2; }},
                            {"inPlane", [](R& r) { r.inPlane = 2; }},
                            {"volume", [](R& r) { r.volume = 2; }}});
}

}  // namespace
}  // namespace Tarvex::Data::Prop2DTest
