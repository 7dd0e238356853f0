#include "store/record/mass_prop.h"

#include <gtest/gtest.h>

#include "tests/support/stored_fields.h"

namespace Tarvex::Data::MassPropTest {
namespace {

using Inertia = TensSym3<double>;

TEST(MassProp, IsGivenByMassInertiaAndFactors) {
  CMassProp const prop(L"tank", 500, Inertia{1, 2, 3, 4, 5, 6}, {1, 0.5, 0});
  EXPECT_EQ(prop.Name(), L"tank");
  EXPECT_EQ(prop.Mass(), 500);
  EXPECT_EQ(prop.Inertia(), (Inertia{1, 2, 3, 4, 5, 6}));
  EXPECT_EQ(prop.Factors(), (Vec3<double>{1, 0.5, 0}));
}

TEST(MassProp, IsAPointThatActsWhollyInEachDirectionAtFirst) {
  CMassProp const prop;
  EXPECT_EQ(prop.Mass(), 0);
  EXPECT_EQ(prop.Inertia(), CMassProp::DefaultInertia());
  EXPECT_EQ(prop.Factors(), (Vec3<double>{1, 1, 1}));
  EXPECT_EQ(CMassProp::DefaultInertia(), (Inertia{0, 0, 0, 0, 0, 0}));
}

TEST(MassProp, KeepsWhatIsSet) {
  CMassProp prop;
  prop.SetMass(7);
  prop.SetInertia(Inertia{6, 5, 4, 3, 2, 1});
  prop.SetFactors({2, 3, 4});
  EXPECT_EQ(prop.Mass(), 7);
  EXPECT_EQ(prop.Inertia(), (Inertia{6, 5, 4, 3, 2, 1}));
  EXPECT_EQ(prop.Factors(), (Vec3<double>{2, 3, 4}));
}

TEST(MassProp, ComparesEveryField) {
  using R = CMassProp;
  Testing::ExpectStoredFields<R>({{"name", [](R& r) { r.SetName(L"n"); }},
                                  {"sid", [](R& r) { r.SetSid(L"s"); }},
                                  {"colour", [](R& r) { r.SetColour(1); }},
                                  {"mass", [](R& r) { r.SetMass(1); }},
                                  {"inertia",
                                   [](R& r) {
                                     r.SetInertia({0, 0, 0, 0, 1, 0});
                                   }},
                                  {"factors", [](R& r) {
                                     r.SetFactors({1, 1, 0});
                                   }}});
}

TEST(TensSym3, ComparesEveryTerm) {
  using R = Inertia;
  Testing::ExpectFields<R>({{"xx", [](R& r) { r.xx = 1; }},
                            {"yy", [](R& r) { r.yy = 1; }},
                            {"zz", [](R& r) { r.zz = 1; }},
                            {"xy", [](R& r) { r.xy = 1; }},
                            {"yz", [](R& r) { r.yz = 1; }},
                            {"zx", [](R& r) { r.zx = 1; }}});
}

}  // namespace
}  // namespace Tarvex::Data::MassPropTest
