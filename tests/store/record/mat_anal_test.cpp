#include "store/record/mat_anal.h"

#include <gtest/gtest.h>

#include "tests/support/matchers.h"
#include "tests/support/stored_fields.h"

namespace Tarvex::Data::MatAnalTest {
namespace {

double At(CMatAnal const& material, int selector) {
  return material.Value(static_cast<MatAnalValue>(selector));
}

TEST(MatAnal, IsGivenByKindNameAndFiveValues) {
  CMatAnal const soil(L"MAT_ELAS_ISO", L"Soil", 3e7, 0.25, 2000, 1e-5, 0.02);
  EXPECT_EQ(soil.Kind(), L"MAT_ELAS_ISO");
  EXPECT_EQ(soil.Name(), L"Soil");
  EXPECT_EQ(At(soil, 0), 3e7);
  EXPECT_EQ(At(soil, 1), 0.25);
  EXPECT_EQ(At(soil, 2), 2000);  // the density is value 2
  EXPECT_EQ(At(soil, 3), 1e-5);
  EXPECT_EQ(At(soil, 4), 0.02);
}

TEST(MatAnal, IsElasticAndWithoutStiffnessAtFirst) {
  CMatAnal const material;
  EXPECT_EQ(material.Kind(), L"MAT_ELAS_ISO");
  for (int i = 0; i < 5; ++i) EXPECT_EQ(At(material, i), 0) << i;
}

TEST(MatAnal, KeepsWhatIsSet) {
  CMatAnal material;
  material.SetKind(L"MAT_FABRIC");
  EXPECT_EQ(material.Kind(), L"MAT_FABRIC");
  for (int i = 0; i < 5; ++i) {
    material.SetValue(static_cast<MatAnalValue>(i), 10 + i);
    EXPECT_EQ(At(material, i), 10 + i);
  }
  for (int i = 0; i < 5; ++i) EXPECT_EQ(At(material, i), 10 + i);
}

TEST(MatAnal, RefusesAValueThatThereIsNot) {
  CMatAnal const material;
  EXPECT_NE(Testing::OutOfRangeText([&] { At(material, 5); }), "");
  EXPECT_NE(Testing::OutOfRangeText([&] { At(material, -1); }), "");
}

TEST(MatAnal, ComparesEveryField) {
  using R = CMatAnal;
  Testing::ExpectStoredFields<R>(
      {{"name", [](R& r) { r.SetName(L"n"); }},
       {"sid", [](R& r) { r.SetSid(L"s"); }},
       {"colour", [](R& r) { r.SetColour(1); }},
       {"kind", [](R& r) { r.SetKind(L"k"); }},
       {"youngsModulus", [](R& r) { r.SetValue(MatAnalValue::YoungsModulus, 1); }},
       {"poissonsRatio", [](R& r) { r.SetValue(MatAnalValue::PoissonsRatio, 1); }},
       {"density", [](R& r) { r.SetValue(MatAnalValue::Density, 1); }},
       {"thermalExpansion", [](R& r) { r.SetValue(MatAnalValue::ThermalExpansion, 1); }},
       {"dampingRatio", [](R& r) { r.SetValue(MatAnalValue::DampingRatio, 1); }}});
}

}  // namespace
}  // namespace Tarvex::Data::MatAnalTest
