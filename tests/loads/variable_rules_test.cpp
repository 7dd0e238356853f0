#include "tests/loads/combination_support.h"

namespace Tarvex::VariableRulesTest {
namespace {

using Testing::AddAction;
using Testing::Lines;
using Testing::OpenEuro;
using Testing::Texts;
using Testing::WithBasics;
using Group = OpenEuro::VariableGroup;

// Pairing of sources.

/// The sources of a group after sorting, from those before.
std::vector<int> Sorted(std::vector<int> const& sources) {
  std::vector<Group> groups(1);
  for (int const source : sources) {
    int const n = static_cast<int>(groups[0].size()) + 1;
    groups[0][n] = {source, 5};
  }
  OpenEuro::SortVariable(groups);
  std::vector<int> sorted;
  for (auto const& entry : groups[0]) {
    EXPECT_EQ(entry.second.second, 5);  // the category stays
    sorted.push_back(entry.second.first);
  }
  return sorted;
}

TEST(SortVariable, NegatesEverySecondOfOneSource) {
  using Sources = std::vector<int>;
  EXPECT_EQ(Sorted({3}), (Sources{3}));
  EXPECT_EQ(Sorted({3, 3}), (Sources{3, -3}));
  EXPECT_EQ(Sorted({3, 3, 3}), (Sources{3, -3, 3}));
  EXPECT_EQ(Sorted({3, 3, 3, 3}), (Sources{3, -3, 3, -3}));
  EXPECT_EQ(Sorted({1, 2, 1, 2, 1}), (Sources{1, 2, -1, -2, 1}));
  EXPECT_EQ(Sorted({1, 2, 3}), (Sources{1, 2, 3}));
}

TEST(SortVariable, KeepsGroupsApart) {
  std::vector<Group> groups{{{1, {4, 0}}}, {{2, {4, 0}}, {3, {4, 0}}}};
  OpenEuro::SortVariable(groups);
  EXPECT_EQ(groups, (std::vector<Group>{{{1, {4, 0}}}, {{2, {4, 0}}, {3, {-4, 0}}}}));
}

/// Plainly: for each entry in turn every later one with its source is negated.
std::vector<int> PlainlySorted(std::vector<int> sources) {
  for (std::size_t i = 0; i < sources.size(); ++i)
    for (std::size_t k = i + 1; k < sources.size(); ++k)
      if (sources[k] == sources[i]) sources[k] = -sources[k];
  return sources;
}

TEST(SortVariable, GivesWhatThePlainRuleGivesForAllShortSequences) {
  constexpr int kLength = 6;
  constexpr int kLowest = -2;
  constexpr int kValues = 5;  // -2 to 2
  int total = 1;
  for (int i = 0; i < kLength; ++i) total *= kValues;
  for (int code = 0; code < total; ++code) {
    std::vector<int> sources;
    for (int rest = code, i = 0; i < kLength; ++i, rest /= kValues)
      sources.push_back(kLowest + rest % kValues);
    ASSERT_EQ(Sorted(sources), PlainlySorted(sources)) << code;
  }
}

// Texts of entries.

TEST(AllVariable, NamesTheEntryThenItsCompanions) {
  Group const group{{4, {1, 1}}, {6, {2, 1}}, {8, {-1, 2}}, {10, {-1, 3}}};
  EXPECT_EQ(OpenEuro::AllVariable(group, 4, true), L"C4 + C8 + C10 + ");
  EXPECT_EQ(OpenEuro::AllVariable(group, 4, false), L"C5 + C9 + C11 + ");
  EXPECT_EQ(OpenEuro::AllVariable(group, 6, true), L"C6 + ");
  EXPECT_EQ(OpenEuro::AllVariable(group, 6, false), L"C7 + ");
}

TEST(AllVariable, OfACompanionIsEmpty) {
  Group const group{{4, {1, 1}}, {8, {-1, 2}}};
  EXPECT_EQ(OpenEuro::AllVariable(group, 8, true), L"");
  EXPECT_EQ(OpenEuro::AllVariable(group, 8, false), L"");
}

TEST(AllVariable, TakesCompanionsThatStandBeforeToo) {
  Group const group{{4, {1, 1}}, {6, {-1, 1}}, {8, {1, 2}}};  // s, -s, s
  EXPECT_EQ(OpenEuro::AllVariable(group, 8, true), L"C8 + C6 + ");
  EXPECT_EQ(OpenEuro::AllVariable(group, 4, true), L"C4 + C6 + ");
}

TEST(AllVariable, OfSourceZeroTakesAllOthersOfSourceZero) {
  Group const group{{4, {0, 1}}, {6, {0, 1}}};
  EXPECT_EQ(OpenEuro::AllVariable(group, 6, true), L"C6 + C4 + ");
}

TEST(AllVariable, OfAMissingNumberThrows) {
  EXPECT_THROW(OpenEuro::AllVariable({{4, {1, 1}}}, 5, true), std::out_of_range);
}

// One factor for each action.

Texts OneFactorOf(CZelData& model, CombType type, int from) {
  auto generator = WithBasics(model);
  generator.VariableCombA(type);
  generator.FinalCombination(type);
  return Lines(model, from);
}

TEST(VariableCombA, OfOneActionHasNoEnvelope) {
  CZelData model;
  AddAction(model, CaseType::Imposed, 3, 5);
  EXPECT_EQ(OneFactorOf(model, CombUlsSeismic, 2),
            (Texts{"2 Variable : Imposed 3 = 0.8C1", "3 ULS Seismic = C2"}));
}

TEST(VariableCombA, HasPsi2InTheSeismicFamilyAndNoReductionInThePersistentOne) {
  CZelData model;
  AddAction(model, CaseType::Imposed, 1, 1);
  AddAction(model, CaseType::ImposedRoof, 1, 8);
  AddAction(model, CaseType::Wind);
  AddAction(model, CaseType::Snow);
  AddAction(model, CaseType::Rain);
  CZelData other(model);
  // Basic combinations in the order of the maps: 1 imposed, 2 roof, 3 wind, 4 snow, 5 rain.
  EXPECT_EQ(
      OneFactorOf(model, CombUlsSeismic, 6),
      (Texts{"6 Variable : Imposed 1 = 0.3C1", "7 Variable : Imposed (roof) 1 = 0C2",
             "8 Variable : Wind 1 = 0C3", "9 Variable : Snow 1 = 0C4", "10 Variable : Rain 1 = 0C5",
             "11 Variable 1 = C6 + C7 + C8 + C9 + C10", "12 Variable 2 = C8 + C9 + C10",
             "13 Variable = C11 to C12", "14 ULS Seismic = C13"}));
  EXPECT_EQ(OneFactorOf(other, CombUlsPersistent, 6)[0], "6 Variable : Imposed 1 = (1.5 or 0)C1");
  EXPECT_EQ(Testing::Colours(model, 6),
            (std::vector<unsigned long>{0xc0ffff, 0xc0ffff, 0xc0ffff, 0xc0ffff, 0xc0ffff, 0x90ffff,
                                        0x90ffff, 0x60ffff, 0xa0ff60}));
}

TEST(VariableCombA, TakesOneOfEachGroupInEveryWayWithCompanions) {
  CZelData model;
  AddAction(model, CaseType::Imposed, 1, 1);
  AddAction(model, CaseType::Imposed, 1, 2);
  AddAction(model, CaseType::Imposed, 2, 1);
  for (int const source : {1, 2}) AddAction(model, CaseType::Wind, source);
  // Basic: 1 imposed 1A, 2 imposed 2A, 3 imposed 1B, 4 and 5 wind.
  EXPECT_EQ(OneFactorOf(model, CombUlsSeismic, 11),
            (Texts{"11 Variable 1 = C6 + C8 + C9", "12 Variable 2 = C6 + C8 + C10",
                   "13 Variable 3 = C7 + C9", "14 Variable 4 = C7 + C10", "15 Variable 5 = C9",
                   "16 Variable 6 = C10", "17 Variable = C11 to C16", "18 ULS Seismic = C17"}));
}

TEST(VariableCombA, WritesTheEmptyTextOfACompanionAlone) {
  CZelData model;
  AddAction(model, CaseType::Imposed, 1, 1);
  AddAction(model, CaseType::Imposed, 1, 2);
  EXPECT_EQ(OneFactorOf(model, CombUlsSeismic, 5),
            (Texts{"5 Variable 1 = C3 + C4", "6 Variable 2 = ", "7 Variable = C5 to C6",
                   "8 ULS Seismic = C7"}));
}

TEST(VariableCombA, TakesOtherThanImposedActionsAlone) {
  CZelData model;
  for (int const source : {-1, 1}) AddAction(model, CaseType::Wind, source);
  AddAction(model, CaseType::Snow);
  // Where one leads the first would travel with the second, as its companion.
  EXPECT_EQ(OneFactorOf(model, CombUlsSeismic, 7),
            (Texts{"7 Variable 1 = C4 + C6", "8 Variable 2 = C5 + C6", "9 Variable = C7 to C8",
                   "10 ULS Seismic = C9"}));
}

TEST(VariableCombA, WithoutVariableActionsSetsNoRange) {
  CZelData model;
  AddAction(model, CaseType::SelfWeight);
  EXPECT_EQ(OneFactorOf(model, CombUlsSeismic, 2), Texts{"2 ULS Seismic = "});
}

// One group leads.

Texts OneLeadsOf(CZelData& model, CombType type, int from) {
  auto generator = WithBasics(model);
  generator.VariableCombB(type);
  generator.FinalCombination(type);
  return Lines(model, from);
}

TEST(VariableCombB, OfOneActionLeavesTheAccompanyingValueToTheFinalCombination) {
  CZelData model;
  AddAction(model, CaseType::Wind);
  EXPECT_EQ(OneLeadsOf(model, CombUlsPersistent, 2),
            (Texts{"2 Variable : Wind 1 (Leading) = (1.5 or 0)C1",
                   "3 Variable : Wind 1 (Accompanying) = (0.9 or 0)C1", "4 ULS Persistent = C3"}));
}

TEST(VariableCombB, NamesTheCategoryOfImposedActionsAndOfNoOther) {
  CZelData model;
  for (int category = 1; category <= 8; ++category)
    AddAction(model, CaseType::Imposed, category, category);
  AddAction(model, CaseType::ImposedRoof, 9, 8);
  AddAction(model, CaseType::Snow, 1);
  AddAction(model, CaseType::Rain, 1);
  auto const lines = OneLeadsOf(model, CombSlsCharacteristic, 12);
  Texts const stems{"Variable : Imposed 1A", "Variable : Imposed 2B", "Variable : Imposed 3C",
                    "Variable : Imposed 4D", "Variable : Imposed 5E", "Variable : Imposed 6F",
                    "Variable : Imposed 7G", "Variable : Imposed 8H", "Variable : Imposed (roof) 9",
                    "Variable : Snow 1",     "Variable : Rain 1"};
  // psi0 of categories A to H, of the roof, of snow and of rain
  Texts const accompanying{"0.7", "0.7", "0.7", "0.7", "", "0.7", "0.7", "0", "0", "0.5", "0"};
  for (std::size_t i = 0; i < stems.size(); ++i) {
    auto const n = std::to_string(12 + 2 * i);
    auto const next = std::to_string(13 + 2 * i);
    auto const basic = "C" + std::to_string(i + 1);
    EXPECT_EQ(lines[2 * i], (n + " ").append(stems[i]).append(" (Leading) = ").append(basic));
    EXPECT_EQ(lines[2 * i + 1], (next + " ")
                                    .append(stems[i])
                                    .append(" (Accompanying) = ")
                                    .append(accompanying[i])
                                    .append(basic));
  }
}

TEST(VariableCombB, LetsEachGroupLeadInTurn) {
  CZelData model;
  AddAction(model, CaseType::Imposed, 1, 1);
  AddAction(model, CaseType::Wind);
  AddAction(model, CaseType::Snow);
  AddAction(model, CaseType::Rain);
  // Basic 1 to 4; leading 5, 7, 9, 11, accompanying one behind.
  EXPECT_EQ(OneLeadsOf(model, CombUlsPersistent, 13),
            (Texts{"13 Variable 1 = C5 + C8 + C10 + C12", "14 Variable 2 = C6 + C7 + C10 + C12",
                   "15 Variable 3 = C6 + C8 + C9 + C12", "16 Variable 4 = C6 + C8 + C10 + C11",
                   "17 Variable = C13 to C16", "18 ULS Persistent = C17"}));
  EXPECT_EQ(Testing::Colours(model, 12),
            (std::vector<unsigned long>{0xc0ffff, 0x90ffff, 0x90ffff, 0x90ffff, 0x90ffff, 0x60ffff,
                                        0xa0ff60}));
}

TEST(VariableCombB, TakesOneOfEachGroupInEveryWayWithTheFirstOutermost) {
  CZelData model;
  for (int const source : {1, 2}) AddAction(model, CaseType::Imposed, source, 1);
  for (int const source : {1, 2}) AddAction(model, CaseType::Wind, source);
  // Leading 5, 7 imposed, 9, 11 wind.
  EXPECT_EQ(
      OneLeadsOf(model, CombUlsPersistent, 13),
      (Texts{"13 Variable 1 = C5 + C10", "14 Variable 2 = C5 + C12", "15 Variable 3 = C7 + C10",
             "16 Variable 4 = C7 + C12", "17 Variable 5 = C6 + C9", "18 Variable 6 = C6 + C11",
             "19 Variable 7 = C8 + C9", "20 Variable 8 = C8 + C11", "21 Variable = C13 to C20",
             "22 ULS Persistent = C21"}));
}

TEST(VariableCombB, LetsCompanionsTravelTogether) {
  CZelData model;
  AddAction(model, CaseType::Imposed, 1, 1);
  AddAction(model, CaseType::Imposed, 1, 5);
  AddAction(model, CaseType::Wind);
  // Leading 4 (1A), 6 (1E), 8 (wind).
  EXPECT_EQ(OneLeadsOf(model, CombUlsPersistent, 10),
            (Texts{"10 Variable 1 = C4 + C6 + C9", "11 Variable 2 = C5 + C7 + C8",
                   "12 Variable = C10 to C11", "13 ULS Persistent = C12"}));
}

TEST(VariableCombB, LeavesTheThirdOfOneSourceApartFromTheFirst) {
  CZelData model;
  for (int const category : {1, 2, 3}) AddAction(model, CaseType::Imposed, 1, category);
  AddAction(model, CaseType::Wind);
  // Leading 5, 7, 9 of one source, 11 wind: the second goes with the first and with the third.
  EXPECT_EQ(OneLeadsOf(model, CombUlsPersistent, 13),
            (Texts{"13 Variable 1 = C5 + C7 + C12", "14 Variable 2 = C9 + C7 + C12",
                   "15 Variable 3 = C6 + C8 + C11", "16 Variable 4 = C10 + C8 + C11",
                   "17 Variable = C13 to C16", "18 ULS Persistent = C17"}));
}

TEST(VariableCombB, PairsRoofsWithImposedActionsOfTheirSourceOnly) {
  CZelData model;
  AddAction(model, CaseType::Imposed, 1, 1);
  AddAction(model, CaseType::Imposed, 2, 1);
  AddAction(model, CaseType::ImposedRoof, 2, 8);
  AddAction(model, CaseType::ImposedRoof, 3, 8);
  AddAction(model, CaseType::Wind);
  // Leading 6, 8 imposed, 10, 12 roofs, 14 wind.
  EXPECT_EQ(
      OneLeadsOf(model, CombUlsPersistent, 16),
      (Texts{"16 Variable 1 = C8 + C10", "17 Variable 2 = C6 + C15", "18 Variable 3 = C8 + C15",
             "19 Variable 4 = C7 + C14", "20 Variable 5 = C9 + C14", "21 Variable = C16 to C20",
             "22 ULS Persistent = C21"}));
}

TEST(VariableCombB, PairsEachImposedActionInTurnWithItsRoofs) {
  CZelData model;
  AddAction(model, CaseType::Imposed, 2, 1);
  AddAction(model, CaseType::Imposed, 1, 2);
  for (int const source : {1, 2}) AddAction(model, CaseType::ImposedRoof, source, 8);
  AddAction(model, CaseType::Wind);
  // Basic in the order of the categories: 1 imposed 2A, 2 imposed 1B, 3 roof 1, 4 roof 2, 5 wind.
  // Leading 6, 8 imposed, 10, 12 roofs, 14 wind.
  EXPECT_EQ(
      OneLeadsOf(model, CombUlsPersistent, 16),
      (Texts{"16 Variable 1 = C6 + C12", "17 Variable 2 = C8 + C10", "18 Variable 3 = C6 + C15",
             "19 Variable 4 = C8 + C15", "20 Variable 5 = C7 + C14", "21 Variable 6 = C9 + C14",
             "22 Variable = C16 to C21", "23 ULS Persistent = C22"}));
}

TEST(VariableCombB, CountsThePlacesOfEmptyTextsToo) {
  CZelData model;
  AddAction(model, CaseType::Imposed, 1, 1);
  AddAction(model, CaseType::ImposedRoof, 1, 2);  // goes to the map of category B
  AddAction(model, CaseType::Imposed, 1, 3);
  AddAction(model, CaseType::ImposedRoof, 1, 8);
  AddAction(model, CaseType::Wind);
  // Leading 6 and 10 imposed, 8 and 12 roofs, 14 wind. Of either two the second is a companion, and
  // the pair of the companions is an empty text in the second place.
  EXPECT_EQ(OneLeadsOf(model, CombUlsPersistent, 6),
            (Texts{"6 Variable : Imposed 1A (Leading) = (1.5 or 0)C1",
                   "7 Variable : Imposed 1A (Accompanying) = (1.05 or 0)C1",
                   "8 Variable : Imposed (roof) 1 (Leading) = (1.5 or 0)C2",
                   "9 Variable : Imposed (roof) 1 (Accompanying) = (1.05 or 0)C2",
                   "10 Variable : Imposed 1C (Leading) = (1.5 or 0)C3",
                   "11 Variable : Imposed 1C (Accompanying) = (1.05 or 0)C3",
                   "12 Variable : Imposed (roof) 1 (Leading) = (1.5 or 0)C4",
                   "13 Variable : Imposed (roof) 1 (Accompanying) = 0C4",
                   "14 Variable : Wind 1 (Leading) = (1.5 or 0)C5",
                   "15 Variable : Wind 1 (Accompanying) = (0.9 or 0)C5",
                   "16 Variable 1 = C6 + C10 + C8 + C12", "17 Variable 3 = C6 + C10 + C15",
                   "18 Variable 4 = C7 + C11 + C14", "19 Variable = C16 to C18",
                   "20 ULS Persistent = C19"}));
}

TEST(VariableCombB, TakesANegativeSourceForACompanion) {
  CZelData model;
  for (int const source : {-1, 1}) AddAction(model, CaseType::Wind, source);
  AddAction(model, CaseType::Snow);
  // Leading 4 and 6 wind, 8 snow.
  EXPECT_EQ(OneLeadsOf(model, CombUlsPersistent, 10),
            (Texts{"10 Variable 1 = C6 + C4 + C9", "11 Variable 2 = C7 + C5 + C8",
                   "12 Variable = C10 to C11", "13 ULS Persistent = C12"}));
}

TEST(VariableCombB, DoesNotCountRoofs) {
  CZelData roofs;
  for (int const source : {1, 2}) AddAction(roofs, CaseType::ImposedRoof, source, 8);
  EXPECT_EQ(OneLeadsOf(roofs, CombUlsPersistent, 7), Texts{"7 ULS Persistent = "});
  CZelData withOne;
  AddAction(withOne, CaseType::Imposed, 1, 1);
  AddAction(withOne, CaseType::ImposedRoof, 1, 8);
  // One action that counts: no pairs, and the highest number is the accompanying value of the roof.
  EXPECT_EQ(OneLeadsOf(withOne, CombUlsPersistent, 6),
            (Texts{"6 Variable : Imposed (roof) 1 (Accompanying) = 0C2", "7 ULS Persistent = C6"}));
}

TEST(VariableCombB, OfOneGroupAloneWritesAnEnvelopeOfNothing) {
  CZelData model;
  for (int const source : {1, 2}) AddAction(model, CaseType::Wind, source);
  EXPECT_EQ(OneLeadsOf(model, CombUlsPersistent, 7),
            (Texts{"7 Variable = C7 to C6", "8 ULS Persistent = C7"}));
}

}  // namespace
}  // namespace Tarvex::VariableRulesTest
