// Titles that change between the reading of cases and the rules: types that no map has reach the
// rules in this way only.
#include "tests/loads/combination_support.h"

namespace Tarvex::VariableGroupsTest {
namespace {

using Testing::AddAction;
using Testing::Lines;
using Testing::OpenEuro;
using Testing::Texts;
using Testing::Title;

/// A generator whose basic combinations, one for each title, have these titles.
OpenEuro WithTitles(CZelData& model, std::vector<Data::CLoadCaseTitle> const& titles) {
  for (std::size_t i = 0; i < titles.size(); ++i)
    AddAction(model, CaseType::Rain, static_cast<int>(i) + 1);
  OpenEuro generator;
  generator.SetData(&model);
  generator.SetTasks({Testing::kStaticTask});
  generator.MapTasks();
  for (std::size_t i = 0; i < titles.size(); ++i)
    model.SetLoadCaseTitle(static_cast<int>(i) + 1, titles[i]);
  generator.BasicComb();
  return generator;
}

CaseType Type(int number) { return static_cast<CaseType>(number); }

/// One action of each kind, the last group first.
std::vector<Data::CLoadCaseTitle> OneOfEachKind() {
  return {Title(CaseType::VariableEquivalent),
          Title(CaseType::Thermal),
          Title(CaseType::Rain),
          Title(CaseType::Snow),
          Title(CaseType::Wind),
          Title(CaseType::Imposed, 1, 1)};
}

TEST(VariableGroups, StandInTheirOrderWhereOneLeads) {
  CZelData model;
  auto generator = WithTitles(model, OneOfEachKind());
  generator.VariableCombB(CombUlsPersistent);
  // Leading 7 equivalent, 9 thermal, 11 rain, 13 snow, 15 wind, 17 imposed.
  EXPECT_EQ(
      Lines(model, 7),
      (Texts{"7 Variable : Equivalent 1 (Leading) = (1.5 or 0)C1",
             "8 Variable : Equivalent 1 (Accompanying) = 0C1",
             "9 Variable : Thermal 1 (Leading) = (1.5 or 0)C2",
             "10 Variable : Thermal 1 (Accompanying) = (0.9 or 0)C2",  // 0.6 x 1.5
             "11 Variable : Rain 1 (Leading) = (1.5 or 0)C3",
             "12 Variable : Rain 1 (Accompanying) = 0C3",
             "13 Variable : Snow 1 (Leading) = (1.5 or 0)C4",
             "14 Variable : Snow 1 (Accompanying) = (0.75 or 0)C4",  // 0.5 x 1.5
             "15 Variable : Wind 1 (Leading) = (1.5 or 0)C5",
             "16 Variable : Wind 1 (Accompanying) = (0.9 or 0)C5",
             "17 Variable : Imposed 1A (Leading) = (1.5 or 0)C6",
             "18 Variable : Imposed 1A (Accompanying) = (1.05 or 0)C6",
             "19 Variable 1 = C17 + C16 + C14 + C12 + C10 + C8",
             "20 Variable 2 = C18 + C15 + C14 + C12 + C10 + C8",
             "21 Variable 3 = C18 + C16 + C13 + C12 + C10 + C8",
             "22 Variable 4 = C18 + C16 + C14 + C11 + C10 + C8",
             "23 Variable 5 = C18 + C16 + C14 + C12 + C9 + C8",
             "24 Variable 6 = C18 + C16 + C14 + C12 + C10 + C7", "25 Variable = C19 to C24"}));
}

TEST(VariableGroups, StandInTheirOrderWhereAllHaveOneFactor) {
  CZelData model;
  auto generator = WithTitles(model, OneOfEachKind());
  generator.VariableCombA(CombUlsSeismic);
  EXPECT_EQ(Lines(model, 13),
            (Texts{"13 Variable 1 = C12 + C11 + C10 + C9 + C8 + C7", "14 Variable = C13 to C13"}));
}

TEST(VariableGroups, HaveNoPlaceForOtherTypes) {
  for (int const type : {30, 37, 38}) {
    CZelData model;
    auto generator = WithTitles(model, {Title(Type(type)), Title(CaseType::Wind)});
    generator.VariableCombB(CombUlsPersistent);
    generator.FinalCombination(CombUlsPersistent);
    EXPECT_EQ(
        Lines(model, 3),
        (Texts{"3 undefined 1 (Leading) = (1.5 or 0)C1", "4 undefined 1 (Accompanying) = 0C1",
               "5 Variable : Wind 1 (Leading) = (1.5 or 0)C2",
               "6 Variable : Wind 1 (Accompanying) = (0.9 or 0)C2", "7 ULS Persistent = C6"}));
  }
  CZelData model;
  auto generator = WithTitles(model, {Title(Type(37)), Title(Type(38))});
  generator.VariableCombA(CombUlsPersistent);
  generator.FinalCombination(CombUlsPersistent);
  EXPECT_EQ(Lines(model, 3), (Texts{"3 undefined 1 = (1.5 or 0)C1", "4 undefined 1 = (1.5 or 0)C2",
                                    "5 ULS Persistent = "}));
}

TEST(VariableGroups, NameAnUnknownCategoryByATilde) {
  for (int const category : {0, 9, -1}) {
    CZelData model;
    auto generator = WithTitles(model, {Title(CaseType::Imposed, 3, category)});
    generator.VariableCombB(CombSlsCharacteristic);
    EXPECT_EQ(Lines(model, 2), (Texts{"2 Variable : Imposed 3~ (Leading) = C1",
                                      "3 Variable : Imposed 3~ (Accompanying) = 0C1"}));
  }
}

TEST(PermanentGroups, HaveNoPlaceForOtherTypes) {
  CZelData model;
  auto generator = WithTitles(model, {Title(Type(10)), Title(Type(13), 2)});
  generator.PersistentComb(CombUlsPersistent);
  generator.FinalCombination(CombUlsPersistent);
  EXPECT_EQ(Lines(model, 3), (Texts{"3 undefined 1 = (1.35 or 1)C1",
                                    "4 undefined 2 = (1.35 or 1)C2", "5 ULS Persistent = "}));
}

TEST(PermanentGroups, CountTheirOwnEntriesAlone) {
  // Two permanent actions, one of them in a group: nothing to choose from. The range goes up to the
  // last that was written, whichever it is.
  struct Row {
    std::vector<int> types;
    Texts lines;
  };
  for (auto const& row :
       {Row{{13, 11},
            {"3 undefined 1 = (1.35 or 1)C1", "4 Permanent : Self weight 1 = (1.35 or 1)C2",
             "5 ULS Persistent = C4"}},
        Row{{11, 13},
            {"3 Permanent : Self weight 1 = (1.35 or 1)C1", "4 undefined 1 = (1.35 or 1)C2",
             "5 ULS Persistent = C4"}}}) {
    CZelData model;
    auto generator = WithTitles(model, {Title(Type(row.types[0])), Title(Type(row.types[1]))});
    generator.PersistentComb(CombUlsPersistent);
    generator.FinalCombination(CombUlsPersistent);
    EXPECT_EQ(Lines(model, 3), row.lines);
  }
}

TEST(PrestressGroup, TakesAllTypesOfItsRange) {
  CZelData model;
  auto generator = WithTitles(model, {Title(Type(20)), Title(Type(29))});
  generator.PrestressComb(CombSlsCharacteristic);
  EXPECT_EQ(Lines(model, 3),
            (Texts{"3 undefined 1 = C1", "4 undefined 1 = C2", "5 Prestress 1 = C3",
                   "6 Prestress 2 = C4", "7 Prestress = C5 to C6"}));
}

TEST(AccidentalGroup, TakesAllTypesOfItsRange) {
  CZelData model;
  auto generator = WithTitles(model, {Title(Type(40)), Title(Type(49)), Title(Type(50))});
  generator.AccidentalComb();
  EXPECT_EQ(Lines(model, 4),
            (Texts{"4 undefined 1 = C1", "5 undefined 1 = C2", "6 Accidental 1 = C4",
                   "7 Accidental 2 = C5", "8 Accidental = C6 to C7"}));
}

}  // namespace
}  // namespace Tarvex::VariableGroupsTest
