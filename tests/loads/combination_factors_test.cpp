#include "tests/loads/combination_support.h"

namespace Tarvex::CombinationFactorsTest {
namespace {

using Testing::OpenEuro;
using Testing::OpenEuroUk;
using Testing::Title;

CombType Type(int number) { return static_cast<CombType>(number); }

/// A factor by its two values in the persistent family; 1 in every other.
struct PartialRow {
  double unfavourable;
  double favourable;
};
template <class Generator>
void ExpectPartial(double (Generator::*factor)(CombType, bool) const, Generator const& generator,
                   PartialRow const& row) {
  EXPECT_EQ((generator.*factor)(Type(0), true), row.unfavourable);
  EXPECT_EQ((generator.*factor)(Type(0), false), row.favourable);
  for (int const other : {1, 2, 3, 4, 5, 6, -1}) {
    EXPECT_EQ((generator.*factor)(Type(other), true), 1.0);
    EXPECT_EQ((generator.*factor)(Type(other), false), 1.0);
  }
}

TEST(Gamma, HasTwoValuesInThePersistentFamilyAndOneInOthers) {
  OpenEuro const euro;
  ExpectPartial<OpenEuro>(&OpenEuro::GammaG, euro, {1.35, 1.0});
  ExpectPartial<OpenEuro>(&OpenEuro::GammaP, euro, {1.3, 1.0});
  ExpectPartial<OpenEuro>(&OpenEuro::GammaQ, euro, {1.5, 0.0});
  EXPECT_EQ(euro.GammaA(), 1.0);
  EXPECT_EQ(euro.GammaI(), 1.0);
}

TEST(Gamma, OfTheUnitedKingdomDiffersForPrestressAlone) {
  OpenEuroUk const uk;
  ExpectPartial<OpenEuroUk>(&OpenEuroUk::GammaG, uk, {1.35, 1.0});
  ExpectPartial<OpenEuroUk>(&OpenEuroUk::GammaP, uk, {1.1, 0.9});
  ExpectPartial<OpenEuroUk>(&OpenEuroUk::GammaQ, uk, {1.5, 0.0});
  EXPECT_EQ(uk.GammaA(), 1.0);
  EXPECT_EQ(uk.GammaI(), 1.0);
}

struct PsiRow {
  Data::CLoadCaseTitle title;
  std::array<double, 3> psi;
};

Data::CLoadCaseTitle Imposed(int category) { return Title(CaseType::Imposed, 1, category); }
Data::CLoadCaseTitle Roof(int category) { return Title(CaseType::ImposedRoof, 1, category); }

/// The rows that both generators have.
std::vector<PsiRow> CommonRows() {
  return {{Imposed(1), {0.7, 0.5, 0.3}},
          {Imposed(2), {0.7, 0.5, 0.3}},
          {Imposed(3), {0.7, 0.7, 0.6}},
          {Imposed(4), {0.7, 0.7, 0.6}},
          {Imposed(5), {1.0, 0.9, 0.8}},
          {Imposed(6), {0.7, 0.7, 0.6}},
          {Imposed(7), {0.7, 0.5, 0.3}},
          {Imposed(0), {0, 0, 0}},
          {Imposed(9), {0, 0, 0}},
          {Imposed(-1), {0, 0, 0}},
          {Roof(1), {0.7, 0.5, 0.3}},
          {Roof(5), {1.0, 0.9, 0.8}},
          {Roof(9), {0, 0, 0}},
          {Title(CaseType::Snow), {0.5, 0.2, 0.0}},
          {Title(CaseType::Thermal), {0.6, 0.5, 0.0}},
          {Title(CaseType::Rain), {0, 0, 0}},
          {Title(CaseType::VariableEquivalent), {0, 0, 0}},
          {Title(CaseType::SelfWeight), {0, 0, 0}},
          {Title(CaseType::Accidental), {0, 0, 0}},
          {Title(CaseType::Undefined), {0, 0, 0}}};
}

template <class Generator>
void ExpectPsi(Generator const& generator, std::vector<PsiRow> const& rows) {
  for (auto const& row : rows) {
    auto const what = ::testing::Message() << "type " << static_cast<int>(row.title.TypeOf())
                                           << " category " << row.title.Category();
    EXPECT_EQ(generator.Psi0(row.title), row.psi[0]) << what;
    EXPECT_EQ(generator.Psi1(row.title), row.psi[1]) << what;
    EXPECT_EQ(generator.Psi2(row.title), row.psi[2]) << what;
  }
}

TEST(Psi, HasTheRowsOfItsTable) {
  CZelData model;
  OpenEuro euro;
  euro.SetData(&model);
  ExpectPsi(euro, CommonRows());
  ExpectPsi(
      euro,
      {{Imposed(8), {0, 0, 0}}, {Roof(8), {0, 0, 0}}, {Title(CaseType::Wind), {0.6, 0.2, 0.0}}});
}

TEST(Psi, OfTheUnitedKingdomDiffersForRoofsAndWindInTheFirst) {
  CZelData model;
  OpenEuroUk uk;
  uk.SetData(&model);
  ExpectPsi(uk, CommonRows());
  ExpectPsi(uk, {{Imposed(8), {0.7, 0, 0}},
                 {Roof(8), {0.7, 0, 0}},
                 {Title(CaseType::Wind), {0.5, 0.2, 0.0}}});
}

TEST(Psi, GoesByIndexThroughTheVirtualFunctions) {
  CZelData model;
  OpenEuroUk uk;
  uk.SetData(&model);
  auto const wind = Title(CaseType::Wind);
  EXPECT_EQ(uk.Psi(0, wind), 0.5);  // Psi is that of the base, Psi0 is not
  EXPECT_EQ(uk.Psi(1, wind), 0.2);
  EXPECT_EQ(uk.Psi(2, Imposed(5)), 0.8);
  for (int const other : {-1, 3, 100}) EXPECT_EQ(uk.Psi(other, wind), 1.0);
}

TEST(IsSnowSevere, InTheListedCountriesAtAnyHeight) {
  CZelData model;
  OpenEuro euro;
  euro.SetData(&model);
  for (int country = 0; country <= 250; ++country) {
    auto spec = model.Spec();
    spec.SetCountry(Data::CCountry(country));
    model.SetSpec(spec);
    bool const listed = country == 80 || country == 106 || country == 169 || country == 214;
    EXPECT_EQ(euro.IsSnowSevere(), listed) << country;
  }
}

TEST(IsSnowSevere, AboveAThousandElsewhere) {
  CZelData model;
  OpenEuro euro;
  euro.SetData(&model);
  auto const severeAt = [&](double elevation) {
    auto spec = model.Spec();
    spec.SetZElevation(elevation);
    model.SetSpec(spec);
    return euro.IsSnowSevere();
  };
  EXPECT_FALSE(severeAt(0));
  EXPECT_FALSE(severeAt(1000.0));
  EXPECT_TRUE(severeAt(1000.0000000000002));
  EXPECT_TRUE(severeAt(2500));
}

TEST(IsSnowSevere, RaisesTheFactorsOfSnowAndOfNothingElse) {
  CZelData model;
  auto spec = model.Spec();
  spec.SetCountry(Data::CCountry(214));
  model.SetSpec(spec);
  OpenEuro euro;
  euro.SetData(&model);
  ExpectPsi(euro, {{Title(CaseType::Snow), {0.7, 0.5, 0.2}},
                   {Title(CaseType::Wind), {0.6, 0.2, 0.0}},
                   {Title(CaseType::Thermal), {0.6, 0.5, 0.0}},
                   {Title(CaseType::Rain), {0, 0, 0}},
                   {Imposed(1), {0.7, 0.5, 0.3}}});
}

TEST(SetPsiType, HasTheRowsOfItsTable) {
  struct Row {
    int type;
    int leading;
    int accompanying;
  };
  for (int const selector : {0, 1, 2}) {
    OpenEuro euro;
    euro.SetPsiAccidental(selector);
    for (auto const& row : {Row{0, -1, 0}, Row{1, selector, 2}, Row{2, 2, 2}, Row{3, -1, 0},
                            Row{4, 1, 2}, Row{5, 2, 2}, Row{6, -1, -1}, Row{-1, -1, -1}}) {
      int out[2] = {77, 77};
      euro.SetPsiType(Type(row.type), out);
      EXPECT_EQ(out[0], row.leading) << row.type;
      EXPECT_EQ(out[1], row.accompanying) << row.type;
    }
  }
}

TEST(SetPsiType, TakesPsi1ForTheLeadingActionBesideAnAccidentalOneUnlessTold) {
  OpenEuro const euro;
  int out[2];
  euro.SetPsiType(CombUlsAccidental, out);
  EXPECT_EQ(out[0], 1);
}

}  // namespace
}  // namespace Tarvex::CombinationFactorsTest
