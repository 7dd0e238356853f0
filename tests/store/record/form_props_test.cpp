#include "store/record/form_props.h"

#include <gtest/gtest.h>

#include "tests/support/matchers.h"
#include "tests/support/stored_fields.h"

namespace Tarvex::Data::FormPropsTest {
namespace {

TEST(ForceDensity1D, HasTheNameThatItIsMadeWith) {
  EXPECT_EQ(CForceDensity1D(L"some").Name(), L"some");
}

TEST(ForceDensity1D, ComparesEveryField) {
  using R = CForceDensity1D;
  Testing::ExpectStoredFields<R>({{"name", [](R& r) { r.SetName(L"n"); }},
                                  {"sid", [](R& r) { r.SetSid(L"s"); }},
                                  {"colour", [](R& r) { r.SetColour(1); }},
                                  {"density", [](R& r) { r.density = 1; }}});
}

TEST(SoapStress1D, HasTheNameThatItIsMadeWith) {
  EXPECT_EQ(CSoapStress1D(L"some").Name(), L"some");
}

TEST(SoapStress1D, ComparesEveryField) {
  using R = CSoapStress1D;
  Testing::ExpectStoredFields<R>({{"name", [](R& r) { r.SetName(L"n"); }},
                                  {"sid", [](R& r) { r.SetSid(L"s"); }},
                                  {"colour", [](R& r) { r.SetColour(1); }},
                                  {"force", [](R& r) { r.force = 1; }}});
}

TEST(ForceDensity2D, HasTheNameThatItIsMadeWith) {
  EXPECT_EQ(CForceDensity2D(L"some").Name(), L"some");
}

TEST(ForceDensity2D, ComparesEveryField) {
  using R = CForceDensity2D;
  Testing::ExpectStoredFields<R>({{"name", [](R& r) { r.SetName(L"n"); }},
                                  {"sid", [](R& r) { r.SetSid(L"s"); }},
                                  {"colour", [](R& r) { r.SetColour(1); }},
                                  {"density", [](R& r) { r.density.y = 1; }}});
}

TEST(SoapStress2D, HasTheNameThatItIsMadeWith) {
  EXPECT_EQ(CSoapStress2D(L"some").Name(), L"some");
}

TEST(SoapStress2D, ComparesEveryField) {
  using R = CSoapStress2D;
  Testing::ExpectStoredFields<R>({{"name", [](R& r) { r.SetName(L"n"); }},
                                  {"sid", [](R& r) { r.SetSid(L"s"); }},
                                  {"colour", [](R& r) { r.SetColour(1); }},
                                  {"stress", [](R& r) { r.stress.x = 1; }},
                                  {"shear", [](R& r) { r.shear = 1; }}});
}

}  // namespace
}  // namespace Tarvex::Data::FormPropsTest
