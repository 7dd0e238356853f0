#include "store/record/soil.h"

#include <gtest/gtest.h>

#include "tests/support/matchers.h"
#include "tests/support/stored_fields.h"

namespace Tarvex::Data::SoilTest {
namespace {

GeoSedoStratum Clay() { return {-8.5, GeoStratum(2e7, 4e7, 0.3)}; }

TEST(GeoSedoStratum, IsALayerWithItsBottomLevel) {
  EXPECT_EQ(Clay().GetLevel(), -8.5);
  EXPECT_EQ(Clay().GetTopYoungsModulus(), 2e7);
  EXPECT_EQ(Clay().GetBottomYoungsModulus(), 4e7);
  EXPECT_EQ(Clay().GetPoissonsRatio(), 0.3);
}

TEST(GeoSedoStratum, ComparesEveryField) {
  using R = GeoSedoStratum;
  Testing::ExpectFields<R>({{"level", [](R& r) { r = R(1, GeoStratum()); }},
                            {"topYoungsModulus", [](R& r) { r = R(0, GeoStratum(1, 0, 0)); }},
                            {"bottomYoungsModulus", [](R& r) { r = R(0, GeoStratum(0, 1, 0)); }},
                            {"poissonsRatio", [](R& r) { r = R(0, GeoStratum(0, 0, 1)); }}});
}

TEST(GeoSoilProfile, IsARowOfLayers) {
  GeoSoilProfile profile(L"west", {GeoSedoStratum(-2, {}), Clay()});
  EXPECT_EQ(profile.Name(), L"west");
  ASSERT_EQ(profile.NumStrata(), 2);
  EXPECT_EQ(profile.GetStratum(0).GetLevel(), -2);
  EXPECT_EQ(profile.GetStratum(1), Clay());
  EXPECT_EQ(Testing::OutOfRangeText([&] { profile.GetStratum(2); }), "invalid vector subscript");
  profile.SetStrata({Clay()});
  EXPECT_EQ(profile.Strata(), std::vector{Clay()});
  EXPECT_EQ(GeoSoilProfile().NumStrata(), 0);
}

TEST(GeoSoilProfile, ComparesEveryField) {
  using R = GeoSoilProfile;
  Testing::ExpectStoredFields<R>({{"name", [](R& r) { r.SetName(L"n"); }},
                                  {"sid", [](R& r) { r.SetSid(L"s"); }},
                                  {"colour", [](R& r) { r.SetColour(1); }},
                                  {"strata", [](R& r) { r.SetStrata({Clay()}); }}});
}

TEST(GeoSoilZone, IsARectangleWithItsProfile) {
  GeoSoilZone zone(L"yard", GeoID(4));
  EXPECT_EQ(zone.GetName(), L"yard");
  EXPECT_EQ(zone.GetProfile().GetRef(), 4);
  zone.SetProfile(GeoID(5));
  zone.SetX(-1, 2);
  zone.SetY(-3, 4);
  EXPECT_EQ(zone.GetProfile().GetRef(), 5);
  EXPECT_EQ(zone.GetXminZone(), -1);
  EXPECT_EQ(zone.GetXmaxZone(), 2);
  EXPECT_EQ(zone.GetYminZone(), -3);
  EXPECT_EQ(zone.GetYmaxZone(), 4);
  EXPECT_EQ(GeoID().GetRef(), 0);
}

TEST(GeoSoilZone, ComparesEveryField) {
  using R = GeoSoilZone;
  Testing::ExpectStoredFields<R>({{"name", [](R& r) { r.SetName(L"n"); }},
                                  {"sid", [](R& r) { r.SetSid(L"s"); }},
                                  {"colour", [](R& r) { r.SetColour(1); }},
                                  {"profile", [](R& r) { r.SetProfile(GeoID(1)); }},
                                  {"xmin", [](R& r) { r.SetX(1, 0); }},
                                  {"xmax", [](R& r) { r.SetX(0, 1); }},
                                  {"ymin", [](R& r) { r.SetY(1, 0); }},
                                  {"ymax", [](R& r) { r.SetY(0, 1); }}});
}

}  // namespace
}  // namespace Tarvex::Data::SoilTest
