#include "store/record/load_case_title.h"

#include <gtest/gtest.h>

#include "tests/support/stored_fields.h"

namespace Tarvex::Data::LoadCaseTitleTest {
namespace {

TEST(LoadCaseTitle, IsBlankAtFirst) {
  CLoadCaseTitle const title;
  EXPECT_EQ(title.Name(), L"");
  EXPECT_EQ(title.TypeOf(), CaseType::Undefined);
  EXPECT_EQ(title.Source(), 1);
  EXPECT_EQ(title.Category(), 0);
  EXPECT_EQ(title.PermanentMode(), 0);
  EXPECT_EQ(title.GetDirection(), 0);
}

TEST(LoadCaseTitle, IsMadeWithNameTypeAndSource) {
  CLoadCaseTitle const title(L"wind", CaseType::Wind, 4);
  EXPECT_EQ(title.Name(), L"wind");
  EXPECT_EQ(title.TypeOf(), CaseType::Wind);
  EXPECT_EQ(title.Source(), 4);
}

TEST(LoadCaseTitle, GivesBackWhatIsSet) {
  CLoadCaseTitle title;
  title.SetType(CaseType::Prestress);
  title.SetSource(2);
  title.SetCategory(3);
  title.SetPermanentMode(4);
  title.SetDirection(5);
  EXPECT_EQ(title.TypeOf(), CaseType::Prestress);
  EXPECT_EQ(title.Source(), 2);
  EXPECT_EQ(title.Category(), 3);
  EXPECT_EQ(title.PermanentMode(), 4);
  EXPECT_EQ(title.GetDirection(), 5);
}

TEST(LoadCaseTitle, ComparesEveryField) {
  Testing::ExpectStoredFields<CLoadCaseTitle>(
      {{"name", [](auto& t) { t.SetName(L"a"); }},
       {"sid", [](auto& t) { t.SetSid(L"a"); }},
       {"colour", [](auto& t) { t.SetColour(1); }},
       {"type", [](auto& t) { t.SetType(CaseType::Soil); }},
       {"source", [](auto& t) { t.SetSource(2); }},
       {"category", [](auto& t) { t.SetCategory(2); }},
       {"permanentMode", [](auto& t) { t.SetPermanentMode(2); }},
       {"direction", [](auto& t) { t.SetDirection(2); }}});
}

TEST(CaseType, HasTheNumbersOfRecordedWork) {
  struct Row {
    CaseType type;
    int number;
  };
  for (auto const& [type, number] :
       {Row{CaseType::Undefined, 0}, Row{CaseType::SelfWeight, 11}, Row{CaseType::Soil, 12},
        Row{CaseType::PermanentEquivalent, 19}, Row{CaseType::Prestress, 21},
        Row{CaseType::Imposed, 31}, Row{CaseType::ImposedRoof, 32}, Row{CaseType::Wind, 33},
        Row{CaseType::Snow, 34}, Row{CaseType::Rain, 35}, Row{CaseType::Thermal, 36},
        Row{CaseType::VariableEquivalent, 39}, Row{CaseType::Accidental, 41},
        Row{CaseType::SeismicStatic, 51}, Row{CaseType::SeismicResponse, 52},
        Row{CaseType::SeismicTorsion, 53}})
    EXPECT_EQ(static_cast<int>(type), number);
}

}  // namespace
}  // namespace Tarvex::Data::LoadCaseTitleTest
