#include "store/record/dof_value.h"

#include <gtest/gtest.h>

#include "tests/support/record_fields.h"

namespace Tarvex::Util::DofValueTest {
namespace {

TEST(DofValue, IsGivenByNodeDirectionAndValue) {
  CDofValue const value(4, Direction::ZZ, -0.5);
  EXPECT_EQ(value.Node(), 4);
  EXPECT_EQ(value.Dir(), Direction::ZZ);
  EXPECT_EQ(value.Value(), -0.5);
}

TEST(DofValue, ComparesEveryField) {
  Testing::ExpectFields<CDofValue>({{"node",
                                     [](CDofValue& v) {
                                       v = {1, Direction::X, 0};
                                     }},
                                    {"direction",
                                     [](CDofValue& v) {
                                       v = {0, Direction::Y, 0};
                                     }},
                                    {"value", [](CDofValue& v) {
                                       v = {0, Direction::X, 1};
                                     }}});
}

}  // namespace
}  // namespace Tarvex::Util::DofValueTest
