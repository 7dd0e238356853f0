#include "store/record/kept_value.h"

#include <gtest/gtest.h>

#include <string>

namespace Tarvex::Data::KeptValueTest {
namespace {

TEST(KeptValue, IsNoneUntilItIsSetAndAfterItIsCleared) {
  KeptValue<std::string> value;
  EXPECT_EQ(value.Get(), nullptr);
  value.Set("a");
  ASSERT_NE(value.Get(), nullptr);
  EXPECT_EQ(*value.Get(), "a");
  value.Clear();
  EXPECT_EQ(value.Get(), nullptr);
}

TEST(KeptValue, GoesWithACopyWhichIsThenItsOwn) {
  KeptValue<std::string> value;
  value.Set("a");
  KeptValue<std::string> copy(value);
  KeptValue<std::string> assigned;
  assigned = value;
  value.Set("b");
  EXPECT_EQ(*copy.Get(), "a");
  EXPECT_EQ(*assigned.Get(), "a");
  EXPECT_EQ(*value.Get(), "b");
}

}  // namespace
}  // namespace Tarvex::Data::KeptValueTest
