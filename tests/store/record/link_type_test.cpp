#include "store/record/link_type.h"

#include <gtest/gtest.h>

namespace Tarvex::Data::LinkTypeTest {
namespace {

// Bits of the table in link_type.h, worked by hand.
TEST(LinkType, HasTheNumbersOfItsBits) {
  EXPECT_EQ(static_cast<int>(LinkType::Inert), 0);
  EXPECT_EQ(static_cast<int>(LinkType::Diaphragm), 1 + 4 + 16 + 32);      // X: X, ZZ; Y: Y, ZZ
  EXPECT_EQ(static_cast<int>(LinkType::DiaphragmYZ), 8 + 16 + 64 + 256);  // Y: XX, Y; Z: XX, Z
  EXPECT_EQ(static_cast<int>(LinkType::DiaphragmZX), 1 + 2 + 128 + 256);  // X: X, YY; Z: YY, Z
  EXPECT_EQ(static_cast<int>(LinkType::Pinned), 512 - 1);                 // the first nine
  EXPECT_EQ(static_cast<int>(LinkType::All), 4096 - 1);                   // all twelve
}

TEST(LinkType, TellsTheDirectionsThatFollow) {
  struct Row {
    int type;
    Vbool6 follows;
    bool pin;
  };
  Row const rows[] = {{0, {false, false, false, false, false, false}, false},
                      {53, {true, true, false, false, false, false}, false},
                      {344, {false, true, true, false, false, false}, false},
                      {387, {true, false, true, false, false, false}, false},
                      {511, {true, true, true, false, false, false}, true},
                      {4095, {true, true, true, true, true, true}, false},
                      {2, {true, false, false, false, false, false}, false},
                      {8, {false, true, false, false, false, false}, false},
                      {64, {false, false, true, false, false, false}, false},
                      {512, {false, false, false, true, false, false}, false},
                      {1024, {false, false, false, false, true, false}, false},
                      {2048 + 1, {true, false, false, false, false, true}, false}};
  for (auto const& row : rows) {
    EXPECT_EQ(LinkTypes::ConstrainedDof(static_cast<LinkType>(row.type)), row.follows) << row.type;
    EXPECT_EQ(LinkTypes::IsPin(static_cast<LinkType>(row.type)), row.pin) << row.type;
  }
}

TEST(LinkType, IsCustomWithoutAName) {
  for (int const named : {0, 53, 344, 387, 511, 4095})
    EXPECT_FALSE(LinkTypes::IsCustom(static_cast<LinkType>(named))) << named;
  for (int const other : {1, 52, 54, 512, 4094})
    EXPECT_TRUE(LinkTypes::IsCustom(static_cast<LinkType>(other))) << other;
}

}  // namespace
}  // namespace Tarvex::Data::LinkTypeTest
