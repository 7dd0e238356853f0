#include "tests/loads/combination_support.h"

namespace Tarvex::CombinationTextsTest {
namespace {

using Testing::OpenEuro;

TEST(CombTypeDesc, HasATextForEachFamilyAndNoneForOthers) {
  EXPECT_EQ(OpenEuro::CombTypeDesc(static_cast<CombType>(0)), L"ULS Persistent");
  EXPECT_EQ(OpenEuro::CombTypeDesc(static_cast<CombType>(1)), L"ULS Accidental");
  EXPECT_EQ(OpenEuro::CombTypeDesc(static_cast<CombType>(2)), L"ULS Seismic");
  EXPECT_EQ(OpenEuro::CombTypeDesc(static_cast<CombType>(3)), L"SLS Characteristic");
  EXPECT_EQ(OpenEuro::CombTypeDesc(static_cast<CombType>(4)), L"SLS Frequent");
  EXPECT_EQ(OpenEuro::CombTypeDesc(static_cast<CombType>(5)), L"SLS Quasi-Permament");
  for (int const other : {-1, 6, 100})
    EXPECT_EQ(OpenEuro::CombTypeDesc(static_cast<CombType>(other)), L"");
}

TEST(CombType, NumbersTheFamiliesInOrder) {
  EXPECT_EQ(CombUlsPersistent, 0);
  EXPECT_EQ(CombUlsAccidental, 1);
  EXPECT_EQ(CombUlsSeismic, 2);
  EXPECT_EQ(CombSlsCharacteristic, 3);
  EXPECT_EQ(CombSlsFrequent, 4);
  EXPECT_EQ(CombSlsQuasiPermanent, 5);
}

TEST(CaseTypeDesc, HasATextForEachKindOfActionAndUndefinedForOthers) {
  struct Row {
    int type;
    wchar_t const* text;
  };
  for (auto const& row : {Row{0, L"undefined"},
                          Row{11, L"Permanent : Self weight"},
                          Row{12, L"Permanent : Soil"},
                          Row{19, L"Permanent : Equivalent"},
                          Row{21, L"Prestress"},
                          Row{31, L"Variable : Imposed"},
                          Row{32, L"Variable : Imposed (roof)"},
                          Row{33, L"Variable : Wind"},
                          Row{34, L"Variable : Snow"},
                          Row{35, L"Variable : Rain"},
                          Row{36, L"Variable : Thermal"},
                          Row{39, L"Variable : Equivalent"},
                          Row{41, L"Accidental"},
                          Row{51, L"Seismic : Equiv. static"},
                          Row{52, L"Seismic : RSA"},
                          Row{53, L"Seismic : Acc. tors."},
                          Row{-1, L"undefined"},
                          Row{13, L"undefined"},
                          Row{37, L"undefined"},
                          Row{54, L"undefined"}})
    EXPECT_EQ(OpenEuro::CaseTypeDesc(static_cast<CaseType>(row.type)), row.text) << row.type;
}

TEST(CombDesc, OffersTwoFactorsWhereTheyDiffer) {
  EXPECT_EQ(OpenEuro::CombDesc(1.35, 1, 7), L"(1.35 or 1)C7");
  EXPECT_EQ(OpenEuro::CombDesc(0, 1, 7), L"(0 or 1)C7");
  EXPECT_EQ(OpenEuro::CombDesc(1.5 * 0.7, 0, 12), L"(1.05 or 0)C12");
}

TEST(CombDesc, HasNoFactorForOneAndASingleOneOtherwise) {
  EXPECT_EQ(OpenEuro::CombDesc(1, 1, 7), L"C7");
  EXPECT_EQ(OpenEuro::CombDesc(0.7, 0.7, 7), L"0.7C7");
  EXPECT_EQ(OpenEuro::CombDesc(0, 0, 7), L"0C7");
}

TEST(CombDesc, TakesFactorsWithinAMillionthAsEqual) {
  EXPECT_EQ(OpenEuro::CombDesc(1.0000001, 1, 7), L"C7");
  EXPECT_EQ(OpenEuro::CombDesc(1, 1.0000001, 7), L"C7");
  // A difference of 1e-6 to the bit, and one that is just below.
  EXPECT_EQ(OpenEuro::CombDesc(1e-6, 0, 7), L"(1e-06 or 0)C7");
  EXPECT_EQ(OpenEuro::CombDesc(0.99e-6, 0, 7), L"9.9e-07C7");
  EXPECT_EQ(OpenEuro::CombDesc(1.000002, 1.000002, 7), L"1C7");  // %g has six digits
}

TEST(Colour, DeepensByStepForEachKindOfAction) {
  struct Row {
    std::vector<int> types;
    std::array<unsigned long, 3> shades;
  };
  for (auto const& row :
       {Row{{-1}, {0xa0ff60, 0xa0ff60, 0xa0ff60}},
        Row{{11, 12, 19}, {0xffc0c0, 0xff9090, 0xff6060}},
        Row{{21}, {0xffffc0, 0xffff70, 0xffff20}},
        Row{{31, 32, 33, 34, 35, 36, 39}, {0xc0ffff, 0x90ffff, 0x60ffff}},
        Row{{41}, {0xc0e0ff, 0x90d0ff, 0x60b0ff}}, Row{{52, 53}, {0xb0b0ff, 0x9090ff, 0x6060ff}}})
    for (int const type : row.types)
      for (int step = 1; step <= 3; ++step)
        EXPECT_EQ(OpenEuro::Colour(static_cast<CaseType>(type), step),
                  row.shades[static_cast<std::size_t>(step - 1)])
            << type << " step " << step;
}

TEST(Colour, IsWhiteForTypesOutsideTheTableAndForOtherSteps) {
  for (int const type : {0, 51, 10, 13, 18, 20, 22, 30, 37, 38, 40, 42, 50, 54, -2})
    for (int step = 1; step <= 3; ++step)
      EXPECT_EQ(OpenEuro::Colour(static_cast<CaseType>(type), step), 0xffffffu) << type;
  for (int const type : {11, 21, 31, 41, 52})
    for (int const step : {-1, 0, 4})
      EXPECT_EQ(OpenEuro::Colour(static_cast<CaseType>(type), step), 0xffffffu) << type;
}

TEST(Colour, OfAFinalCombinationIgnoresTheStep) {
  for (int const step : {-1, 0, 1, 4})
    EXPECT_EQ(OpenEuro::Colour(static_cast<CaseType>(-1), step), 0xa0ff60u);
}

}  // namespace
}  // namespace Tarvex::CombinationTextsTest
