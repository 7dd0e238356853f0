#include "store/record/res_spectrum.h"

#include <gtest/gtest.h>

#include "tests/support/stored_fields.h"

namespace Tarvex::Data::ResSpectrumTest {
namespace {

TEST(ResSpectrum, IsGivenByNameCodeAndFactor) {
  CResSpectrum const spectrum(L"site", 11, 1.5);
  EXPECT_EQ(spectrum.Name(), L"site");
  EXPECT_EQ(spectrum.CodeType(), 11);
  EXPECT_EQ(spectrum.Factor(), 1.5);
}

TEST(ResSpectrum, IsWithoutCodeAndFactorAtFirst) {
  CResSpectrum const spectrum;
  EXPECT_EQ(spectrum.CodeType(), 0);
  EXPECT_EQ(spectrum.Factor(), 1);
  EXPECT_EQ(spectrum.DampingRatio(), 0.05);
  EXPECT_TRUE(spectrum.Points().empty());
}

TEST(ResSpectrum, KeepsWhatIsSet) {
  CResSpectrum spectrum;
  spectrum.SetCodeType(15);
  spectrum.SetFactor(2);
  spectrum.SetDampingRatio(0.02);
  spectrum.SetPoints({{0, 1}, {0.5, 2.5}});
  EXPECT_EQ(spectrum.CodeType(), 15);
  EXPECT_EQ(spectrum.Factor(), 2);
  EXPECT_EQ(spectrum.DampingRatio(), 0.02);
  EXPECT_EQ(spectrum.Points(), (std::vector<Vec2<double>>{{0, 1}, {0.5, 2.5}}));
}

TEST(ResSpectrum, ComparesEveryField) {
  using R = CResSpectrum;
  Testing::ExpectStoredFields<R>({{"name", [](R& r) { r.SetName(L"n"); }},
                                  {"sid", [](R& r) { r.SetSid(L"s"); }},
                                  {"colour", [](R& r) { r.SetColour(1); }},
                                  {"codeType", [](R& r) { r.SetCodeType(1); }},
                                  {"factor", [](R& r) { r.SetFactor(2); }},
                                  {"dampingRatio", [](R& r) { r.SetDampingRatio(1); }},
                                  {"points", [](R& r) {
                                     r.SetPoints({{1, 1}});
                                   }}});
}

}  // namespace
}  // namespace Tarvex::Data::ResSpectrumTest
