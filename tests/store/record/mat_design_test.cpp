#include "store/record/mat_design.h"

#include <gtest/gtest.h>

#include <stdexcept>

#include "tests/support/record_fields.h"

namespace Tarvex::MatDesignTest {
namespace {

TEST(MatModule, IsTheTableOfATypesGrades) {
  EXPECT_EQ(MatModule(static_cast<MatType>(1)), 30);
  EXPECT_EQ(MatModule(static_cast<MatType>(2)), 31);
  EXPECT_EQ(MatModule(static_cast<MatType>(3)), 33);
  EXPECT_EQ(MatModule(static_cast<MatType>(4)), 35);
  EXPECT_EQ(MatModule(static_cast<MatType>(5)), 32);
  EXPECT_EQ(MatModule(static_cast<MatType>(6)), 37);
  EXPECT_EQ(MatModule(static_cast<MatType>(7)), 34);
  EXPECT_EQ(MatModule(static_cast<MatType>(8)), 36);
}

TEST(MatModule, IsNoneForTheTypesThatMeanNoMaterial) {
  EXPECT_EQ(MatModule(static_cast<MatType>(0)), CModule::None);
  EXPECT_EQ(MatModule(static_cast<MatType>(-2)), CModule::None);
}

TEST(MatModule, RefusesAnyOtherNumber) {
  for (int const number : {-3, -1, 9, 100}) {
    try {
      MatModule(static_cast<MatType>(number));
      FAIL() << number;
    } catch (std::runtime_error const& fault) {
      EXPECT_STREQ(fault.what(), "bad material type");
    }
  }
}

TEST(MatType, HasItsNumbers) {
  EXPECT_EQ(MatType::Steel, static_cast<MatType>(1));
  EXPECT_EQ(MatType::Concrete, static_cast<MatType>(2));
  EXPECT_EQ(MatType::Aluminium, static_cast<MatType>(3));
  EXPECT_EQ(MatType::Glass, static_cast<MatType>(4));
  EXPECT_EQ(MatType::Frp, static_cast<MatType>(5));
  EXPECT_EQ(MatType::Rebar, static_cast<MatType>(6));
  EXPECT_EQ(MatType::Timber, static_cast<MatType>(7));
  EXPECT_EQ(MatType::Fabric, static_cast<MatType>(8));
  EXPECT_EQ(MatType::None, static_cast<MatType>(0));
  EXPECT_EQ(MatType::Undefined, static_cast<MatType>(-2));
}

TEST(MatDesign, IsATypeAndANumber) {
  EXPECT_EQ(MatDesign().Type(), MatType::None);
  EXPECT_EQ(MatDesign().Grade(), 0);
  MatDesign design(MatType::Glass, 4);
  EXPECT_EQ(design.Type(), MatType::Glass);
  EXPECT_EQ(design.Grade(), 4);
  design.SetGrade(7);
  EXPECT_EQ(design.Grade(), 7);
  EXPECT_EQ(design.Type(), MatType::Glass);
}

TEST(MatDesign, ComparesTypeAndNumber) {
  using R = MatDesign;
  Testing::ExpectFields<R>({{"type", [](R& r) { r = R(MatType::Steel, 0); }},
                            {"grade", [](R& r) { r = R(MatType::None, 1); }}});
}

}  // namespace
}  // namespace Tarvex::MatDesignTest
