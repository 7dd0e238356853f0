#include "store/record/other_props.h"

#include <gtest/gtest.h>

#include "tests/support/matchers.h"
#include "tests/support/stored_fields.h"

namespace Tarvex::Data::OtherPropsTest {
namespace {

TEST(DamperProp, HasTheNameThatItIsMadeWith) { EXPECT_EQ(CDamperProp(L"some").Name(), L"some"); }

TEST(DamperProp, ComparesEveryField) {
  using R = CDamperProp;
  Testing::ExpectStoredFields<R>({{"name", [](R& r) { r.SetName(L"n"); }},
                                  {"sid", [](R& r) { r.SetSid(L"s"); }},
                                  {"colour", [](R& r) { r.SetColour(1); }},
                                  {"damping", [](R& r) { r.SetDamping(Direction::YY, 1); }}});
}

TEST(CableProp, HasTheNameThatItIsMadeWith) { EXPECT_EQ(CCableProp(L"some").Name(), L"some"); }

TEST(CableProp, ComparesEveryField) {
  using R = CCableProp;
  Testing::ExpectStoredFields<R>({{"name", [](R& r) { r.SetName(L"n"); }},
                                  {"sid", [](R& r) { r.SetSid(L"s"); }},
                                  {"colour", [](R& r) { r.SetColour(1); }},
                                  {"stiffness", [](R& r) { r.stiffness = 1; }},
                                  {"mass", [](R& r) { r.mass = 1; }},
                                  {"thermalExpansion", [](R& r) { r.thermalExpansion = 1; }},
                                  {"dampingRatio", [](R& r) { r.dampingRatio = 1; }}});
}

TEST(SpacerProp, HasTheNameThatItIsMadeWith) { EXPECT_EQ(CSpacerProp(L"some").Name(), L"some"); }

TEST(SpacerProp, ComparesEveryField) {
  using R = CSpacerProp;
  Testing::ExpectStoredFields<R>({{"name", [](R& r) { r.SetName(L"n"); }},
                                  {"sid", [](R& r) { r.SetSid(L"s"); }},
                                  {"colour", [](R& r) { r.SetColour(1); }},
                                  {"type", [](R& r) { r.type = SpacerType::Bar; }},
                                  {"axialStiffness", [](R& r) { r.axialStiffness = 1; }},
                                  {"torsionStiffness", [](R& r) { r.torsionStiffness = 1; }},
                                  {"lengthRatio", [](R& r) { r.lengthRatio = 2; }}});
}

TEST(RC2DProp, HasTheNameThatItIsMadeWith) { EXPECT_EQ(CRC2DProp(L"some").Name(), L"some"); }

TEST(RC2DProp, ComparesEveryField) {
  using R = CRC2DProp;
  Testing::ExpectStoredFields<R>({{"name", [](R& r) { r.SetName(L"n"); }},
                                  {"sid", [](R& r) { r.SetSid(L"s"); }},
                                  {"colour", [](R& r) { r.SetColour(1); }},
                                  {"coverTop", [](R& r) { r.coverTop = 1; }},
                                  {"coverBottom", [](R& r) { r.coverBottom = 1; }},
                                  {"angle", [](R& r) { r.angle = 1; }},
                                  {"barsTop", [](R& r) { r.barsTop.x = 1; }},
                                  {"barsBottom", [](R& r) { r.barsBottom.y = 1; }}});
}

TEST(DamperProp, KeepsADampingForEachDirection) {
  CDamperProp damper;
  for (auto d = Direction::X; d - Direction::X < 6; ++d) {
    EXPECT_EQ(damper.Damping(d), 0);
    damper.SetDamping(d, 5 + static_cast<int>(d));
  }
  for (auto d = Direction::X; d - Direction::X < 6; ++d)
    EXPECT_EQ(damper.Damping(d), 5 + static_cast<int>(d));
  EXPECT_NE(Testing::OutOfRangeText([&] { damper.Damping(static_cast<Direction>(7)); }), "");
}

}  // namespace
}  // namespace Tarvex::Data::OtherPropsTest
