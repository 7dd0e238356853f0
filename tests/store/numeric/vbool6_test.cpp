#include "store/numeric/vbool6.h"

#include <gtest/gtest.h>

namespace Tarvex::Vbool6Test {
namespace {

std::string Bits(Vbool6 flags) {
  std::string text;
  for (auto d = Direction::X; d - Direction::X < 6; ++d) text += flags.Get(d) ? '1' : '0';
  return text;
}

TEST(Vbool6, HasNothingSetAtFirst) {
  EXPECT_TRUE(Vbool6().IsNone());
  EXPECT_EQ(Bits(Vbool6()), "000000");
}

TEST(Vbool6, TakesSixValuesInOrder) {
  Vbool6 const flags(true, false, true, false, false, true);
  EXPECT_EQ(Bits(flags), "101001");
  EXPECT_TRUE(flags.X());
  EXPECT_FALSE(flags.Y());
  EXPECT_TRUE(flags.Z());
  EXPECT_FALSE(flags.XX());
  EXPECT_FALSE(flags.YY());
  EXPECT_TRUE(flags.ZZ());
}

TEST(Vbool6, SetsEachFlagAlone) {
  struct Row {
    void (Vbool6::*set)(bool);
    bool (Vbool6::*get)() const;
    char const* bits;
  };
  for (Row const& row :
       {Row{&Vbool6::X, &Vbool6::X, "100000"}, Row{&Vbool6::Y, &Vbool6::Y, "010000"},
        Row{&Vbool6::Z, &Vbool6::Z, "001000"}, Row{&Vbool6::XX, &Vbool6::XX, "000100"},
        Row{&Vbool6::YY, &Vbool6::YY, "000010"}, Row{&Vbool6::ZZ, &Vbool6::ZZ, "000001"}}) {
    Vbool6 flags;
    (flags.*row.set)(true);
    EXPECT_EQ(Bits(flags), row.bits);
    EXPECT_TRUE((flags.*row.get)());
    EXPECT_FALSE(flags.IsNone());
    (flags.*row.set)(false);
    EXPECT_TRUE(flags.IsNone());
    flags.SetAll(true);
    (flags.*row.set)(false);
    EXPECT_FALSE((flags.*row.get)());
    EXPECT_EQ(Bits(flags).find('0'), std::string(row.bits).find('1'));
  }
}

TEST(Vbool6, SetsAllAndNone) {
  Vbool6 flags;
  flags.SetAll(true);
  EXPECT_EQ(Bits(flags), "111111");
  EXPECT_EQ(flags, Vbool6(true, true, true, true, true, true));
  flags.SetAll(false);
  EXPECT_EQ(flags, Vbool6());
}

TEST(Vbool6, CombinesFlagByFlag) {
  Vbool6 const a(true, true, false, false, true, false);
  Vbool6 const b(true, false, true, false, true, true);
  EXPECT_EQ(Bits(a & b), "100010");
  EXPECT_EQ(Bits(a | b), "111011");
  EXPECT_NE(a, b);
}

TEST(Vbool6, KnowsThreeRestraintsByName) {
  EXPECT_EQ(Bits(Vbool6(L"free")), "000000");
  EXPECT_EQ(Bits(Vbool6(L"pin")), "111000");
  EXPECT_EQ(Bits(Vbool6(L"fix")), "111111");
  EXPECT_THROW(Vbool6(L"Pin"), std::invalid_argument);
  EXPECT_THROW(Vbool6(L""), std::invalid_argument);
}

}  // namespace
}  // namespace Tarvex::Vbool6Test
