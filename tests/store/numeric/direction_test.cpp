#include "store/numeric/direction.h"

#include <gtest/gtest.h>

namespace Tarvex::DirectionTest {
namespace {

TEST(Direction, HasTheNumbersOfTheAxes) {
  EXPECT_EQ(static_cast<int>(Direction::X), 1);
  EXPECT_EQ(static_cast<int>(Direction::Y), 2);
  EXPECT_EQ(static_cast<int>(Direction::Z), 3);
  EXPECT_EQ(static_cast<int>(Direction::XX), 4);
  EXPECT_EQ(static_cast<int>(Direction::YY), 5);
  EXPECT_EQ(static_cast<int>(Direction::ZZ), 6);
}

TEST(Direction, StepsAndHasDistances) {
  auto d = Direction::X;
  EXPECT_EQ(++d, Direction::Y);
  EXPECT_EQ(++d, Direction::Z);
  EXPECT_EQ(d - Direction::X, 2);
  EXPECT_EQ(Direction::X - d, -2);
}

}  // namespace
}  // namespace Tarvex::DirectionTest
