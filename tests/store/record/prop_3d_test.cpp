#include "store/record/prop_3d.h"

#include <gtest/gtest.h>

#include "tests/support/stored_fields.h"

namespace Tarvex::Data::Prop3DTest {
namespace {

TEST(Prop3D, IsGivenByMaterialsAxisAndType) {
  CProp3D const prop(L"raft", 3, MatDesign(MatType::Concrete, 4), 5, CProp3D::PropType::Soil);
  EXPECT_EQ(prop.Name(), L"raft");
  EXPECT_EQ(prop.MaterialAnalysis(), 3);
  EXPECT_EQ(prop.MaterialDesign(), MatDesign(MatType::Concrete, 4));
  EXPECT_EQ(prop.MaterialType(), MatType::Concrete);
  EXPECT_EQ(prop.MaterialGrade(), 4);
  EXPECT_EQ(prop.Axis(), 5);
  EXPECT_EQ(prop.Type(), CProp3D::PropType::Soil);
}

TEST(Prop3D, KeepsWhatIsSet) {
  CProp3D prop;
  EXPECT_EQ(prop.Type(), CProp3D::PropType::Solid);
  prop.SetMaterialAnalysis(1);
  prop.SetMaterialDesign(MatDesign(MatType::Timber, 2));
  prop.SetAxis(3);
  prop.SetType(CProp3D::PropType::Soil);
  EXPECT_EQ(prop.MaterialAnalysis(), 1);
  EXPECT_EQ(prop.MaterialDesign(), MatDesign(MatType::Timber, 2));
  EXPECT_EQ(prop.Axis(), 3);
  EXPECT_EQ(prop.Type(), CProp3D::PropType::Soil);
}

TEST(Prop3D, ComparesEveryField) {
  using R = CProp3D;
  Testing::ExpectStoredFields<R>({{"name", [](R& r) { r.SetName(L"n"); }},
                                  {"sid", [](R& r) { r.SetSid(L"s"); }},
                                  {"colour", [](R& r) { r.SetColour(1); }},
                                  {"type", [](R& r) { r.SetType(CProp3D::PropType::Soil); }},
                                  {"materialAnalysis", [](R& r) { r.SetMaterialAnalysis(1); }},
                                  {"materialDesign", [](R& r) { r.SetMaterialGrade(1); }},
                                  {"axis", [](R& r) { r.SetAxis(1); }}});
}

}  // namespace
}  // namespace Tarvex::Data::Prop3DTest
