#include "store/record/spring_prop.h"

#include <gtest/gtest.h>

#include "tests/support/matchers.h"
#include "tests/support/stored_fields.h"

namespace Tarvex::Data::SpringPropTest {
namespace {

using Testing::OutOfRangeText;

TEST(SpringProp, IsGivenByItsStiffnessesMatrixAndLimits) {
  CSpringProp const spring(L"Spring 4", SpringType::Lockup, 1, 2, 3, 4, 5, 6, 7, 8, 0.3, -0.1, 0.2);
  EXPECT_EQ(spring.Name(), L"Spring 4");
  EXPECT_EQ(spring.Type(), SpringType::Lockup);
  for (int d = 1; d <= 6; ++d) EXPECT_EQ(spring.Stiffness(static_cast<Direction>(d)), d);
  EXPECT_EQ(spring.LateralStiffness(), 7);
  EXPECT_EQ(spring.Matrix(), 8);
  EXPECT_EQ(spring.FrictionCoefficient(), 0.3);
  EXPECT_EQ(spring.LowerLimit(), -0.1);
  EXPECT_EQ(spring.UpperLimit(), 0.2);
}

TEST(SpringProp, HasNoStiffnessAtFirst) {
  CSpringProp const spring;
  EXPECT_EQ(spring.Type(), SpringType::General);
  for (int d = 1; d <= 6; ++d) EXPECT_EQ(spring.Stiffness(static_cast<Direction>(d)), 0);
  for (int d = 1; d <= 3; ++d) EXPECT_EQ(spring.TableRef(static_cast<Direction>(d)), 0);
  EXPECT_EQ(spring.Matrix(), 0);
}

TEST(SpringProp, KeepsWhatIsSet) {
  CSpringProp spring;
  spring.SetType(SpringType::Gap);
  spring.SetLateralStiffness(4);
  spring.SetMatrix(5);
  spring.SetFrictionCoefficient(6);
  spring.SetLimits(7, 8);
  for (int d = 1; d <= 6; ++d) spring.SetStiffness(static_cast<Direction>(d), 10 + d);
  for (int d = 1; d <= 3; ++d) spring.SetTableRef(static_cast<Direction>(d), 20 + d);
  EXPECT_EQ(spring.Type(), SpringType::Gap);
  EXPECT_EQ(spring.LateralStiffness(), 4);
  EXPECT_EQ(spring.Matrix(), 5);
  EXPECT_EQ(spring.FrictionCoefficient(), 6);
  EXPECT_EQ(spring.LowerLimit(), 7);
  EXPECT_EQ(spring.UpperLimit(), 8);
  for (int d = 1; d <= 6; ++d) EXPECT_EQ(spring.Stiffness(static_cast<Direction>(d)), 10 + d);
  for (int d = 1; d <= 3; ++d) EXPECT_EQ(spring.TableRef(static_cast<Direction>(d)), 20 + d);
}

TEST(SpringProp, RefusesADirectionThatThereIsNot) {
  CSpringProp spring;
  auto const seventh = static_cast<Direction>(7);
  EXPECT_NE(OutOfRangeText([&] { spring.Stiffness(seventh); }), "");
  EXPECT_NE(OutOfRangeText([&] { spring.SetStiffness(static_cast<Direction>(0), 1); }), "");
  // Rotations have no curves.
  EXPECT_NE(OutOfRangeText([&] { spring.TableRef(Direction::XX); }), "");
  EXPECT_NE(OutOfRangeText([&] { spring.SetTableRef(Direction::XX, 1); }), "");
}

TEST(SpringProp, ComparesEveryField) {
  using R = CSpringProp;
  Testing::ExpectStoredFields<R>(
      {{"name", [](R& r) { r.SetName(L"n"); }},
       {"sid", [](R& r) { r.SetSid(L"s"); }},
       {"colour", [](R& r) { r.SetColour(1); }},
       {"type", [](R& r) { r.SetType(SpringType::Friction); }},
       {"stiffness", [](R& r) { r.SetStiffness(Direction::Z, 1); }},
       {"lateralStiffness", [](R& r) { r.SetLateralStiffness(1); }},
       {"tableRef", [](R& r) { r.SetTableRef(Direction::Y, 1); }},
       {"matrix", [](R& r) { r.SetMatrix(1); }},
       {"frictionCoefficient", [](R& r) { r.SetFrictionCoefficient(1); }},
       {"lowerLimit", [](R& r) { r.SetLimits(1, 0); }},
       {"upperLimit", [](R& r) { r.SetLimits(0, 1); }}});
}

}  // namespace
}  // namespace Tarvex::Data::SpringPropTest
