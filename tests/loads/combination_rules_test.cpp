#include "tests/loads/combination_support.h"

namespace Tarvex::CombinationRulesTest {
namespace {

using Testing::AddAction;
using Testing::AddResponse;
using Testing::Colours;
using Testing::Lines;
using Testing::OpenEuro;
using Testing::Texts;
using Testing::WithBasics;
using Shades = std::vector<unsigned long>;

// Basic combinations.

TEST(BasicComb, FollowsTheOrderOfTheMapsThenOfTheSources) {
  CZelData model;
  AddAction(model, CaseType::SeismicTorsion, 1, 2);
  AddAction(model, CaseType::SeismicTorsion, 1, 1);
  for (int const direction : {3, 2, 1}) AddResponse(model, 1, direction);
  AddAction(model, CaseType::Accidental);
  AddAction(model, CaseType::VariableEquivalent);
  AddAction(model, CaseType::Thermal);
  AddAction(model, CaseType::Rain);
  AddAction(model, CaseType::Snow);
  AddAction(model, CaseType::Wind, 10);
  AddAction(model, CaseType::Wind, 2);
  AddAction(model, CaseType::Wind, -1);
  for (int category = 8; category >= 1; --category)
    AddAction(model, category == 8 ? CaseType::ImposedRoof : CaseType::Imposed, 1, category);
  AddAction(model, CaseType::Prestress);
  AddAction(model, CaseType::PermanentEquivalent);
  AddAction(model, CaseType::Soil);
  AddAction(model, CaseType::SelfWeight);
  WithBasics(model);
  EXPECT_EQ(Lines(model),
            (Texts{"1 Permanent : Self weight 1 = A25", "2 Permanent : Soil 1 = A24",
                   "3 Permanent : Equivalent 1 = A23",  "4 Prestress 1 = A22",
                   "5 Variable : Imposed 1A = A21",     "6 Variable : Imposed 1B = A20",
                   "7 Variable : Imposed 1C = A19",     "8 Variable : Imposed 1D = A18",
                   "9 Variable : Imposed 1E = A17",     "10 Variable : Imposed 1F = A16",
                   "11 Variable : Imposed 1G = A15",    "12 Variable : Imposed (roof) 1 = A14",
                   "13 Variable : Wind -1 = A13",       "14 Variable : Wind 2 = A12",
                   "15 Variable : Wind 10 = A11",       "16 Variable : Snow 1 = A10",
                   "17 Variable : Rain 1 = A9",         "18 Accidental 1 = A6",
                   "19 Seismic : RSA 1x = A5",          "20 Seismic : RSA 1y = A4",
                   "21 Seismic : RSA 1z = A3",          "22 Seismic : Acc. tors. 1x = A2",
                   "23 Seismic : Acc. tors. 1y = A1"}));
  EXPECT_EQ(Colours(model), Shades(23, 0xffffff));
}

// Permanent actions.

Texts PersistentOf(CZelData& model, CombType type, int from) {
  WithBasics(model).PersistentComb(type);
  return Lines(model, from);
}

TEST(PersistentComb, HasTheTwoFactorsInTheUltimatePersistentFamilyAndOneInOthers) {
  for (int type = 0; type <= 5; ++type) {
    CZelData model;
    AddAction(model, CaseType::SelfWeight, 4);
    EXPECT_EQ(PersistentOf(model, static_cast<CombType>(type), 2),
              Texts{type == 0 ? "2 Permanent : Self weight 4 = (1.35 or 1)C1"
                              : "2 Permanent : Self weight 4 = C1"});
  }
}

TEST(PersistentComb, PutsAZeroInThePlaceOfTheFactorThatTheModeLeavesOut) {
  struct Row {
    int mode;
    char const* ultimate;
    char const* other;
  };
  for (auto const& row : {Row{0, "(1.35 or 1)C1", "C1"}, Row{1, "(1.35 or 0)C1", "(1 or 0)C1"},
                          Row{2, "(0 or 1)C1", "(0 or 1)C1"}, Row{3, "(1.35 or 1)C1", "C1"},
                          Row{-1, "(1.35 or 1)C1", "C1"}}) {
    CZelData model;
    AddAction(model, CaseType::Soil, 1, row.mode);
    CZelData other(model);
    EXPECT_EQ(PersistentOf(model, CombUlsPersistent, 2),
              Texts{std::string("2 Permanent : Soil 1 = ") + row.ultimate});
    EXPECT_EQ(PersistentOf(other, CombUlsSeismic, 2),
              Texts{std::string("2 Permanent : Soil 1 = ") + row.other});
  }
}

TEST(PersistentComb, TakesOneOfEachGroupInEveryWay) {
  CZelData model;
  for (int const source : {1, 2}) AddAction(model, CaseType::SelfWeight, source);
  for (int const source : {1, 2, 3}) AddAction(model, CaseType::PermanentEquivalent, source);
  EXPECT_EQ(PersistentOf(model, CombSlsCharacteristic, 6),
            (Texts{"6 Permanent : Self weight 1 = C1", "7 Permanent : Self weight 2 = C2",
                   "8 Permanent : Equivalent 1 = C3", "9 Permanent : Equivalent 2 = C4",
                   "10 Permanent : Equivalent 3 = C5", "11 Persistent 1 = C6 + C8",
                   "12 Persistent 2 = C6 + C9", "13 Persistent 3 = C6 + C10",
                   "14 Persistent 4 = C7 + C8", "15 Persistent 5 = C7 + C9",
                   "16 Persistent 6 = C7 + C10", "17 Persistent = C11 to C16"}));
  EXPECT_EQ(Colours(model, 6),
            (Shades{0xffc0c0, 0xffc0c0, 0xffc0c0, 0xffc0c0, 0xffc0c0, 0xff9090, 0xff9090, 0xff9090,
                    0xff9090, 0xff9090, 0xff9090, 0xff6060}));
}

TEST(PersistentComb, HasSelfWeightThenSoilThenEquivalent) {
  CZelData model;
  AddAction(model, CaseType::PermanentEquivalent, 1);
  AddAction(model, CaseType::Soil, 1);
  AddAction(model, CaseType::SelfWeight, 1);
  EXPECT_EQ(PersistentOf(model, CombUlsPersistent, 7),
            (Texts{"7 Persistent 1 = C4 + C5 + C6", "8 Persistent = C7 to C7"}));
}

TEST(PersistentComb, OfSeveralSourcesOfOneTypeTakesOneAtATime) {
  CZelData model;
  for (int const source : {1, 2}) AddAction(model, CaseType::SelfWeight, source);
  EXPECT_EQ(PersistentOf(model, CombUlsPersistent, 5),
            (Texts{"5 Persistent 1 = C3", "6 Persistent 2 = C4", "7 Persistent = C5 to C6"}));
}

TEST(PersistentComb, WithoutPermanentActionsWritesNothingAndSetsNoRange) {
  CZelData model;
  AddAction(model, CaseType::Prestress);
  auto generator = WithBasics(model);
  generator.PersistentComb(CombUlsPersistent);
  generator.FinalCombination(CombUlsPersistent);
  EXPECT_EQ(Lines(model, 2), Texts{"2 ULS Persistent = "});
}

// Prestress.

TEST(PrestressComb, HasTheFactorsOfPermanentActions) {
  CZelData model;
  AddAction(model, CaseType::Prestress, 1);
  auto generator = WithBasics<Testing::OpenEuroUk>(model);
  generator.PrestressComb(CombUlsPersistent);
  generator.PrestressComb(CombUlsAccidental);
  EXPECT_EQ(Lines(model, 2), (Texts{"2 Prestress 1 = (1.35 or 1)C1", "3 Prestress 1 = C1"}));
}

TEST(PrestressComb, KnowsThePermanentModes) {
  CZelData model;
  AddAction(model, CaseType::Prestress, 1, 1);
  AddAction(model, CaseType::Prestress, 2, 2);
  WithBasics(model).PrestressComb(CombUlsPersistent);
  EXPECT_EQ(Lines(model, 3),
            (Texts{"3 Prestress 1 = (1.35 or 0)C1", "4 Prestress 2 = (0 or 1)C2",
                   "5 Prestress 1 = C3", "6 Prestress 2 = C4", "7 Prestress = C5 to C6"}));
  EXPECT_EQ(Colours(model, 3), (Shades{0xffffc0, 0xffffc0, 0xffff70, 0xffff70, 0xffff20}));
}

// Accidental actions.

TEST(AccidentalComb, HasOneFactorWhateverTheMode) {
  CZelData model;
  auto title = Testing::Title(CaseType::Accidental, 6);
  title.SetPermanentMode(1);
  AddAction(model, title);
  WithBasics(model).AccidentalComb();
  EXPECT_EQ(Lines(model, 2), Texts{"2 Accidental 6 = C1"});
}

TEST(AccidentalComb, TakesOneAtATime) {
  CZelData model;
  for (int const source : {1, 5, 9}) AddAction(model, CaseType::Accidental, source);
  auto generator = WithBasics(model);
  generator.AccidentalComb();
  generator.FinalCombination(CombUlsAccidental);
  EXPECT_EQ(Lines(model, 4),
            (Texts{"4 Accidental 1 = C1", "5 Accidental 5 = C2", "6 Accidental 9 = C3",
                   "7 Accidental 1 = C4", "8 Accidental 2 = C5", "9 Accidental 3 = C6",
                   "10 Accidental = C7 to C9", "11 ULS Accidental = C10"}));
  EXPECT_EQ(Colours(model, 4), (Shades{0xc0e0ff, 0xc0e0ff, 0xc0e0ff, 0x90d0ff, 0x90d0ff, 0x90d0ff,
                                       0x60b0ff, 0xa0ff60}));
}

// Families, on a model with something of everything: combinations 1 to 6 are the basic ones.

class Families : public ::testing::Test {
 protected:
  Families() {
    AddAction(model, CaseType::SelfWeight);
    AddAction(model, CaseType::Prestress);
    AddAction(model, CaseType::Imposed, 1, 1);
    AddAction(model, CaseType::Wind);
    AddAction(model, CaseType::Accidental);
    AddResponse(model, 1, 1);
    generator = WithBasics(model);
  }
  CZelData model;
  OpenEuro generator;
};

TEST_F(Families, UlsPersistent) {
  EXPECT_TRUE(generator.CombineUlsPersistent());
  EXPECT_EQ(Lines(model, 7),
            (Texts{"7 Permanent : Self weight 1 = (1.35 or 1)C1", "8 Prestress 1 = (1.35 or 1)C2",
                   "9 Variable : Imposed 1A (Leading) = (1.5 or 0)C3",
                   "10 Variable : Imposed 1A (Accompanying) = (1.05 or 0)C3",  // 0.7 x 1.5
                   "11 Variable : Wind 1 (Leading) = (1.5 or 0)C4",
                   "12 Variable : Wind 1 (Accompanying) = (0.9 or 0)C4",  // 0.6 x 1.5
                   "13 Variable 1 = C9 + C12", "14 Variable 2 = C10 + C11",
                   "15 Variable = C13 to C14", "16 ULS Persistent = C7 + C8 + C15"}));
}

TEST_F(Families, UlsAccidental) {
  EXPECT_TRUE(generator.CombineUlsAccidental());
  EXPECT_EQ(
      Lines(model, 7),
      (Texts{"7 Permanent : Self weight 1 = C1", "8 Prestress 1 = C2",
             "9 Variable : Imposed 1A (Leading) = 0.5C3",
             "10 Variable : Imposed 1A (Accompanying) = 0.3C3",
             "11 Variable : Wind 1 (Leading) = 0.2C4", "12 Variable : Wind 1 (Accompanying) = 0C4",
             "13 Variable 1 = C9 + C12", "14 Variable 2 = C10 + C11", "15 Variable = C13 to C14",
             "16 Accidental 1 = C5", "17 ULS Accidental = C7 + C8 + C15 + C16"}));
}

TEST_F(Families, UlsSeismic) {
  EXPECT_TRUE(generator.CombineUlsSeismic());
  EXPECT_EQ(
      Lines(model, 7),
      (Texts{"7 Permanent : Self weight 1 = C1", "8 Prestress 1 = C2",
             "9 Variable : Imposed 1 = 0.3C3", "10 Variable : Wind 1 = 0C4",
             "11 Variable 1 = C9 + C10", "12 Variable = C11 to C11", "13 Seismic SRSS = SRSS(C6)",
             "14 Seismic SRSS +/- = (1 or -1)C13", "15 ULS Seismic = C7 + C8 + C12 + C14"}));
}

TEST_F(Families, SlsCharacteristic) {
  EXPECT_TRUE(generator.CombineSlsCharacter());
  EXPECT_EQ(
      Lines(model, 7),
      (Texts{"7 Permanent : Self weight 1 = C1", "8 Prestress 1 = C2",
             "9 Variable : Imposed 1A (Leading) = C3",
             "10 Variable : Imposed 1A (Accompanying) = 0.7C3",
             "11 Variable : Wind 1 (Leading) = C4", "12 Variable : Wind 1 (Accompanying) = 0.6C4",
             "13 Variable 1 = C9 + C12", "14 Variable 2 = C10 + C11", "15 Variable = C13 to C14",
             "16 SLS Characteristic = C7 + C8 + C15"}));
}

TEST_F(Families, SlsFrequentIsThePersistentOneUnderAnotherName) {
  CZelData other(model);
  OpenEuro persistent(generator);
  persistent.SetData(&other);
  EXPECT_TRUE(persistent.CombineUlsPersistent());
  EXPECT_TRUE(generator.CombineSlsFrequent());
  auto expected = Lines(other, 7);
  expected.back() = "16 SLS Frequent = C7 + C8 + C15";
  EXPECT_EQ(Lines(model, 7), expected);
}

TEST_F(Families, SlsQuasiPermanentHasPersistentFactorsWithoutALeadingAction) {
  EXPECT_TRUE(generator.CombineSlsQuasiPerm());
  EXPECT_EQ(Lines(model, 7),
            (Texts{"7 Permanent : Self weight 1 = (1.35 or 1)C1", "8 Prestress 1 = (1.35 or 1)C2",
                   "9 Variable : Imposed 1 = (1.5 or 0)C3", "10 Variable : Wind 1 = (1.5 or 0)C4",
                   "11 Variable 1 = C9 + C10", "12 Variable = C11 to C11",
                   "13 SLS Quasi-Permament = C7 + C8 + C12"}));
}

TEST_F(Families, StandEachOnTheirOwnBehindOneAnother) {
  EXPECT_TRUE(generator.CombineUlsAccidental());  // 7 to 17
  EXPECT_TRUE(generator.CombineUlsSeismic());     // 18 to 26
  EXPECT_TRUE(generator.CombineSlsCharacter());   // 27 to 36
  EXPECT_EQ(Lines(model, 26).front(), "26 ULS Seismic = C18 + C19 + C23 + C25");
  EXPECT_EQ(Lines(model, 36).front(), "36 SLS Characteristic = C27 + C28 + C35");
}

TEST_F(Families, BeginWithoutTheGroupsOfOthers) {
  struct Row {
    bool (OpenEuro::*family)();
    char const* last;
  };
  CZelData const basics(model);
  // Behind an accidental group, 7, that none of these has.
  for (auto const& row :
       {Row{&OpenEuro::CombineUlsPersistent, "17 ULS Persistent = C8 + C9 + C16"},
        Row{&OpenEuro::CombineUlsSeismic, "16 ULS Seismic = C8 + C9 + C13 + C15"},
        Row{&OpenEuro::CombineSlsCharacter, "17 SLS Characteristic = C8 + C9 + C16"},
        Row{&OpenEuro::CombineSlsFrequent, "17 SLS Frequent = C8 + C9 + C16"},
        Row{&OpenEuro::CombineSlsQuasiPerm, "14 SLS Quasi-Permament = C8 + C9 + C13"}}) {
    CZelData own(basics);
    OpenEuro copy(generator);
    copy.SetData(&own);
    copy.AccidentalComb();
    EXPECT_TRUE((copy.*row.family)());
    EXPECT_EQ(Lines(own).back(), row.last);
  }
  // Behind a seismic group, 7 and 8.
  generator.NumSource(CaseType::SeismicStatic, true);
  generator.SeismicComb();
  EXPECT_TRUE(generator.CombineUlsAccidental());
  EXPECT_EQ(Lines(model).back(), "19 ULS Accidental = C9 + C10 + C17 + C18");
}

TEST_F(Families, TheSelectorChoosesTheFactorOfTheLeadingActionBesideAnAccidentalOne) {
  generator.SetPsiAccidental(0);
  EXPECT_TRUE(generator.CombineUlsAccidental());
  EXPECT_EQ(Lines(model, 9)[0], "9 Variable : Imposed 1A (Leading) = 0.7C3");
  EXPECT_EQ(Lines(model, 9)[1], "10 Variable : Imposed 1A (Accompanying) = 0.3C3");
  generator.SetPsiAccidental(2);
  EXPECT_TRUE(generator.CombineUlsAccidental());
  EXPECT_EQ(Lines(model, 20)[0], "20 Variable : Imposed 1A (Leading) = 0.3C3");
}

TEST(FamiliesOf, TheUnitedKingdomHaveTheirFactorsForWindAndRoofs) {
  CZelData model;
  AddAction(model, CaseType::ImposedRoof, 1, 8);
  AddAction(model, CaseType::Wind);
  auto generator = WithBasics<Testing::OpenEuroUk>(model);
  EXPECT_TRUE(generator.CombineUlsPersistent());
  EXPECT_EQ(Lines(model, 3),
            (Texts{"3 Variable : Imposed (roof) 1 (Leading) = (1.5 or 0)C1",
                   "4 Variable : Imposed (roof) 1 (Accompanying) = (1.05 or 0)C1",  // 0.7 x 1.5
                   "5 Variable : Wind 1 (Leading) = (1.5 or 0)C2",
                   "6 Variable : Wind 1 (Accompanying) = (0.75 or 0)C2",  // 0.5 x 1.5
                   "7 ULS Persistent = C6"}));
}

TEST(FamiliesOf, OneSourceOfSelfWeightAloneHaveNoEnvelope) {
  CZelData model;
  AddAction(model, CaseType::SelfWeight);
  auto generator = WithBasics(model);
  EXPECT_TRUE(generator.CombineUlsPersistent());
  EXPECT_EQ(Lines(model),
            (Texts{"1 Permanent : Self weight 1 = A1",
                   "2 Permanent : Self weight 1 = (1.35 or 1)C1", "3 ULS Persistent = C2"}));
}

TEST(FamiliesOf, AModelWithoutTheirCasesFailWithoutWriting) {
  CZelData model;
  AddAction(model, CaseType::SelfWeight);
  auto generator = WithBasics(model);
  EXPECT_FALSE(generator.CombineUlsAccidental());
  EXPECT_EQ(generator.Report(), L"");
  EXPECT_FALSE(generator.CombineUlsSeismic());
  EXPECT_EQ(generator.Report(), L"ULS Seismic: no seismic cases\n");
  EXPECT_FALSE(generator.CombineUlsSeismic());
  EXPECT_EQ(generator.Report(), L"ULS Seismic: no seismic cases\nULS Seismic: no seismic cases\n");
  EXPECT_EQ(Lines(model, 2), Texts());
}

}  // namespace
}  // namespace Tarvex::CombinationRulesTest
