#include "tests/loads/combination_support.h"
#include "tests/support/matchers.h"

namespace Tarvex::CombinationDriverTest {
namespace {

using Testing::AddAction;
using Testing::AddResponse;
using Testing::IsUnchanged;
using Testing::kAllFamilies;
using Testing::kStaticTask;
using Testing::Lines;
using Testing::OnTasks;
using Testing::OpenEuro;
using Testing::ResponseTask;
using Testing::Texts;
using Testing::Title;
using Testing::WithBasics;

void Describe(CZelData& model, int analysisCase, wchar_t const* text) {
  auto record = model.AnalysisCase(analysisCase);
  record.SetDescription(text);
  model.SetAnalysisCase(analysisCase, record);
}

// Titles of analysis cases.

TEST(AnalysisCase, OfAMissingCaseOrTaskHasTheBlankTitle) {
  CZelData model;
  model.SetAnalysisCase(1, Zel::CAnalysisCase(L"", L"L1", 7));
  OpenEuro euro;
  euro.SetData(&model);
  Data::CLoadCaseTitle const blank;
  EXPECT_EQ(blank.Source(), 1);
  for (int const n : {0, 1, 2, -3}) EXPECT_TRUE(euro.AnalysisCase(n) == blank) << n;
}

TEST(AnalysisCase, HasTheTitleOfItsLoadCaseInStaticTasksOnly) {
  CZelData model;
  Data::CLoadCaseTitle wind(L"west", CaseType::Wind, 4);
  wind.SetCategory(2);
  wind.SetPermanentMode(1);
  wind.SetDirection(3);
  int const n = AddAction(model, wind);
  OpenEuro euro;
  euro.SetData(&model);
  for (int solution = 0; solution <= 50; ++solution) {
    model.SetAnalysisTask(kStaticTask, CZssTask(L"", static_cast<AnalSoln>(solution)));
    bool const takes = solution == 1 || solution == 4 || solution == 7;
    EXPECT_TRUE(euro.AnalysisCase(n) == (takes ? wind : Data::CLoadCaseTitle())) << solution;
  }
}

TEST(AnalysisCase, OfAResponseHasTypeSourceOfItsTaskAndItsDirection) {
  CZelData model;
  int const n = AddResponse(model, 5, 3);
  OpenEuro euro;
  euro.SetData(&model);
  auto const title = euro.AnalysisCase(n);
  EXPECT_EQ(title.TypeOf(), CaseType::SeismicResponse);
  EXPECT_EQ(title.Source(), 5);
  EXPECT_EQ(title.GetDirection(), 3);
  EXPECT_EQ(title.Name(), L"");
  EXPECT_EQ(title.Category(), 0);
  EXPECT_EQ(title.PermanentMode(), 0);
}

TEST(AnalysisCase, OfAPseudoStaticResponseOrATaskOfAnotherClassHasTheBlankTitle) {
  CZelData model;
  int const n = AddResponse(model, 5, 1);
  OpenEuro euro;
  euro.SetData(&model);
  CZdSpecTask pseudoStatic(L"", AnalSoln::ResponseSpectrumPseudoStatic);
  model.SetAnalysisTask(ResponseTask(5), pseudoStatic);
  EXPECT_TRUE(euro.AnalysisCase(n) == Data::CLoadCaseTitle());
  model.SetAnalysisTask(ResponseTask(5), CZssTask(L"", AnalSoln::ResponseSpectrum));
  EXPECT_TRUE(euro.AnalysisCase(n) == Data::CLoadCaseTitle());
}

TEST(AnalysisCase, TakesItsTitleFromTheLowestOfLoadCasesThatAgree) {
  CZelData model;
  auto first = Title(CaseType::Wind, 2);
  first.SetName(L"first");
  auto second = Title(CaseType::Wind, 2);
  second.SetName(L"second");
  int const n = AddAction(model, first);
  AddAction(model, second);
  Describe(model, n, L"0.5L2 + 1.5L1");
  OpenEuro euro;
  euro.SetData(&model);
  EXPECT_EQ(euro.AnalysisCase(n).Name(), L"first");
}

/// Whether an analysis case of two load cases with these titles has their title.
bool Agree(Data::CLoadCaseTitle const& a, Data::CLoadCaseTitle const& b) {
  CZelData model;
  int const n = AddAction(model, a);
  AddAction(model, b);
  Describe(model, n, L"L1 + L2");
  OpenEuro euro;
  euro.SetData(&model);
  auto const title = euro.AnalysisCase(n);
  EXPECT_TRUE(title == a || title == Data::CLoadCaseTitle());
  return title == a;
}

TEST(AnalysisCase, IsBlankWhereLoadCasesDifferInTypeOrSource) {
  EXPECT_TRUE(Agree(Title(CaseType::Wind, 1), Title(CaseType::Wind, 1)));
  EXPECT_FALSE(Agree(Title(CaseType::Wind, 1), Title(CaseType::Wind, 2)));
  EXPECT_FALSE(Agree(Title(CaseType::Wind, 1), Title(CaseType::Snow, 1)));
}

TEST(AnalysisCase, IsBlankWhereModesOfPermanentActionsOrCategoriesOfImposedOnesDiffer) {
  auto const with = [](CaseType type, int category, int mode, int direction) {
    Data::CLoadCaseTitle title(L"", type, 1);
    title.SetCategory(category);
    title.SetPermanentMode(mode);
    title.SetDirection(direction);
    return title;
  };
  for (auto const type : {CaseType::SelfWeight, CaseType::Soil, CaseType::PermanentEquivalent}) {
    EXPECT_FALSE(Agree(with(type, 1, 0, 0), with(type, 1, 1, 0)));
    EXPECT_TRUE(Agree(with(type, 1, 2, 0), with(type, 2, 2, 1)));
  }
  for (auto const type : {CaseType::Imposed, CaseType::ImposedRoof}) {
    EXPECT_FALSE(Agree(with(type, 1, 0, 0), with(type, 2, 0, 0)));
    EXPECT_TRUE(Agree(with(type, 3, 0, 0), with(type, 3, 1, 1)));
  }
  for (auto const type : {CaseType::Prestress, CaseType::Wind, CaseType::Accidental})
    EXPECT_TRUE(Agree(with(type, 1, 1, 1), with(type, 2, 2, 2)));
}

TEST(AnalysisCase, IsBlankWhereALoadCaseHasNoTitleOrNoneIsNamed) {
  CZelData model;
  int const n = AddAction(model, CaseType::Wind, 3);
  OpenEuro euro;
  euro.SetData(&model);
  Describe(model, n, L"L1 + L9");
  EXPECT_TRUE(euro.AnalysisCase(n) == Data::CLoadCaseTitle());
  Describe(model, n, L"none");
  EXPECT_TRUE(euro.AnalysisCase(n) == Data::CLoadCaseTitle());
  Describe(model, n, L"L1");
  EXPECT_EQ(euro.AnalysisCase(n).TypeOf(), CaseType::Wind);
}

TEST(CaseDefn, ReadsTheDigitsFromTheSecondCharacterOn) {
  CZelData model;
  for (int n = 1; n <= 12; ++n) AddAction(model, CaseType::Wind, n);
  OpenEuro euro;
  euro.SetData(&model);
  model.SetAnalysisCase(12345678, model.AnalysisCase(9));
  EXPECT_EQ(euro.CaseDefn(L"A12345678 + A2").Source(), 9);
  EXPECT_EQ(euro.CaseDefn(L"A12").Source(), 12);
  EXPECT_EQ(euro.CaseDefn(L"A1 + A2").Source(), 1);
  EXPECT_EQ(euro.CaseDefn(L"X7+A2").Source(), 7);
  for (auto const* text : {L"", L"A", L"1", L"AB2", L"A 2", L"A99999999999999999999"})
    EXPECT_TRUE(euro.CaseDefn(text) == Data::CLoadCaseTitle()) << CString(text).ToUtf8();
}

// Maps of sources.

/// The basic combinations that one action gives, as lines.
Texts BasicOf(Data::CLoadCaseTitle const& title) {
  CZelData model;
  AddAction(model, title);
  WithBasics(model);
  return Lines(model);
}

TEST(MapCases, HasAMapForEachKindOfActionThatIsCombined) {
  struct Row {
    CaseType type;
    int detail;
    char const* line;
  };
  for (auto const& row : {Row{CaseType::SelfWeight, 0, "1 Permanent : Self weight 3 = A1"},
                          Row{CaseType::Soil, 0, "1 Permanent : Soil 3 = A1"},
                          Row{CaseType::PermanentEquivalent, 0, "1 Permanent : Equivalent 3 = A1"},
                          Row{CaseType::Prestress, 0, "1 Prestress 3 = A1"},
                          Row{CaseType::Imposed, 1, "1 Variable : Imposed 3A = A1"},
                          Row{CaseType::Imposed, 2, "1 Variable : Imposed 3B = A1"},
                          Row{CaseType::Imposed, 3, "1 Variable : Imposed 3C = A1"},
                          Row{CaseType::Imposed, 4, "1 Variable : Imposed 3D = A1"},
                          Row{CaseType::Imposed, 5, "1 Variable : Imposed 3E = A1"},
                          Row{CaseType::Imposed, 6, "1 Variable : Imposed 3F = A1"},
                          Row{CaseType::Imposed, 7, "1 Variable : Imposed 3G = A1"},
                          Row{CaseType::Imposed, 8, "1 Variable : Imposed (roof) 3 = A1"},
                          Row{CaseType::ImposedRoof, 1, "1 Variable : Imposed 3A = A1"},
                          Row{CaseType::ImposedRoof, 7, "1 Variable : Imposed 3G = A1"},
                          Row{CaseType::ImposedRoof, 8, "1 Variable : Imposed (roof) 3 = A1"},
                          Row{CaseType::Wind, 0, "1 Variable : Wind 3 = A1"},
                          Row{CaseType::Snow, 0, "1 Variable : Snow 3 = A1"},
                          Row{CaseType::Rain, 0, "1 Variable : Rain 3 = A1"},
                          Row{CaseType::Accidental, 0, "1 Accidental 3 = A1"},
                          Row{CaseType::SeismicResponse, 1, "1 Seismic : RSA 3x = A1"},
                          Row{CaseType::SeismicResponse, 2, "1 Seismic : RSA 3y = A1"},
                          Row{CaseType::SeismicResponse, 3, "1 Seismic : RSA 3z = A1"},
                          Row{CaseType::SeismicTorsion, 1, "1 Seismic : Acc. tors. 3x = A1"},
                          Row{CaseType::SeismicTorsion, 2, "1 Seismic : Acc. tors. 3y = A1"}})
    EXPECT_EQ(BasicOf(Title(row.type, 3, row.detail)), Texts{row.line});
}

TEST(MapCases, DropsOtherTypesCategoriesAndDirections) {
  struct Row {
    CaseType type;
    int detail;
  };
  for (auto const& row :
       {Row{CaseType::Undefined, 0}, Row{static_cast<CaseType>(13), 0},
        Row{CaseType::SeismicStatic, 1}, Row{CaseType::Imposed, 0}, Row{CaseType::Imposed, 9},
        Row{CaseType::ImposedRoof, 0}, Row{CaseType::ImposedRoof, 9},
        Row{CaseType::SeismicResponse, 0}, Row{CaseType::SeismicResponse, 4},
        Row{CaseType::SeismicTorsion, 0}, Row{CaseType::SeismicTorsion, 3}})
    EXPECT_EQ(BasicOf(Title(row.type, 3, row.detail)), Texts())
        << static_cast<int>(row.type) << " " << row.detail;
}

TEST(MapCases, ReadsResponsesByTheDirectionOfTheCase) {
  CZelData model;
  for (int const direction : {0, 1, 2, 3, 4}) AddResponse(model, 2, direction);
  WithBasics(model);
  EXPECT_EQ(Lines(model), (Texts{"1 Seismic : RSA 2x = A2", "2 Seismic : RSA 2y = A3",
                                 "3 Seismic : RSA 2z = A4"}));
}

TEST(MapCases, JoinsTheCasesOfOneSourceInTheirOrder) {
  CZelData model;
  AddAction(model, CaseType::Wind, 2);
  AddAction(model, CaseType::Snow, 2);
  AddAction(model, CaseType::Wind, 1);
  AddAction(model, CaseType::Wind, 2);
  WithBasics(model);
  EXPECT_EQ(Lines(model), (Texts{"1 Variable : Wind 1 = A3", "2 Variable : Wind 2 = A1 + A4",
                                 "3 Variable : Snow 2 = A2"}));
}

TEST(MapCases, PassesOverCasesOfOtherTasksAndHoles) {
  CZelData model;
  AddAction(model, CaseType::Wind, 1);
  AddAction(model, CaseType::Wind, 2);
  AddAction(model, CaseType::Wind, 3);
  model.BlankAnalysisCase(2, 1);
  auto other = model.AnalysisCase(3);
  other.SetTask(9);
  model.SetAnalysisCase(3, other);
  auto generator = OnTasks(model, {kStaticTask});
  EXPECT_TRUE(generator.Combine());
  EXPECT_EQ(Lines(model), Texts{"1 Variable : Wind 1 = A1"});
}

TEST(MapTasks, TakesTheTasksInTheirOrder) {
  CZelData model;
  AddAction(model, CaseType::Wind);
  AddAction(model, CaseType::Wind);
  model.SetAnalysisTask(9, CZssTask(L"", AnalSoln::Static));
  auto other = model.AnalysisCase(1);
  other.SetTask(9);
  model.SetAnalysisCase(1, other);
  CZelData again(model);
  EXPECT_TRUE(OnTasks(model, {kStaticTask, 9}).Combine());
  EXPECT_EQ(Lines(model), Texts{"1 Variable : Wind 1 = A2 + A1"});
  EXPECT_TRUE(OnTasks(again, {9, kStaticTask}).Combine());
  EXPECT_EQ(Lines(again), Texts{"1 Variable : Wind 1 = A1 + A2"});
}

TEST(MapTasks, TakesATaskThatIsGivenAgainAgain) {
  CZelData model;
  for (int i = 0; i < 3; ++i) AddAction(model, CaseType::Wind);
  model.SetAnalysisTask(9, CZssTask(L"", AnalSoln::Static));
  auto other = model.AnalysisCase(2);
  other.SetTask(9);
  model.SetAnalysisCase(2, other);
  EXPECT_TRUE(OnTasks(model, {kStaticTask, 9, 7, kStaticTask}).Combine());
  EXPECT_EQ(Lines(model), Texts{"1 Variable : Wind 1 = A1 + A3 + A2 + A1 + A3"});
}

TEST(MapTasks, EmptiesTheGroupRanges) {
  CZelData model;
  AddAction(model, CaseType::SelfWeight);
  auto generator = WithBasics(model);
  generator.PersistentComb(CombUlsPersistent);
  generator.MapTasks();
  generator.FinalCombination(CombUlsPersistent);
  EXPECT_EQ(Lines(model, 3), Texts{"3 ULS Persistent = "});
}

TEST(NumSource, CountsTheSourcesOfEachKind) {
  CZelData model;
  AddAction(model, CaseType::SelfWeight, 1);
  AddAction(model, CaseType::SelfWeight, 2);
  AddAction(model, CaseType::Soil, 1);
  AddAction(model, CaseType::PermanentEquivalent, 4);
  AddAction(model, CaseType::Prestress, 1);
  AddAction(model, CaseType::Prestress, 1);
  for (int const source : {1, 2, 3}) AddAction(model, CaseType::Wind, source);
  AddAction(model, CaseType::Snow, 1);
  AddAction(model, CaseType::Rain, 1);
  AddAction(model, CaseType::Thermal, 1);
  AddAction(model, CaseType::Thermal, 8);
  AddAction(model, CaseType::VariableEquivalent, 1);
  AddAction(model, CaseType::Accidental, 1);
  auto generator = WithBasics(model);
  struct Row {
    int type;
    int count;
  };
  for (auto const& row : {Row{11, 2}, Row{12, 1}, Row{19, 1}, Row{21, 1}, Row{33, 3}, Row{34, 1},
                          Row{35, 1}, Row{36, 2}, Row{39, 1}, Row{41, 1}, Row{31, 0}, Row{32, 0},
                          Row{51, 0}, Row{52, 0}, Row{53, 0}, Row{0, 0}, Row{-1, 0}, Row{40, 0}})
    for (bool const flag : {false, true})
      EXPECT_EQ(generator.NumSource(static_cast<CaseType>(row.type), flag), row.count) << row.type;
}

TEST(NumSource, OfImposedActionsCountsDistinctSourcesAndTheRoofWhereTold) {
  CZelData model;
  AddAction(model, CaseType::Imposed, 1, 1);
  AddAction(model, CaseType::Imposed, 1, 7);
  AddAction(model, CaseType::Imposed, 2, 3);
  AddAction(model, CaseType::ImposedRoof, 2, 8);
  AddAction(model, CaseType::ImposedRoof, 5, 8);
  auto generator = WithBasics(model);
  for (auto const type : {CaseType::Imposed, CaseType::ImposedRoof}) {
    EXPECT_EQ(generator.NumSource(type, false), 2);
    EXPECT_EQ(generator.NumSource(type, true), 3);
  }
}

TEST(NumSource, OfSeismicActionsAddsUpDirections) {
  CZelData model;
  AddResponse(model, 1, 1);
  AddResponse(model, 1, 2);
  AddResponse(model, 3, 3);
  AddAction(model, CaseType::SeismicTorsion, 1, 1);
  AddAction(model, CaseType::SeismicTorsion, 4, 2);
  auto generator = WithBasics(model);
  EXPECT_EQ(generator.NumSource(CaseType::SeismicResponse, true), 3);
  EXPECT_EQ(generator.NumSource(CaseType::SeismicTorsion, true), 2);
  EXPECT_EQ(generator.NumSource(CaseType::SeismicStatic, true), 3);  // sources 1, 3, 4
  EXPECT_EQ(generator.NumSource(CaseType::SeismicStatic, false), 3);
}

TEST(TrimMap, TakesBlanksThenPlusSignsThenBlanksOffTheEnd) {
  std::map<int, CString> texts{{1, L"A1 + A4 + "}, {2, L" A1"},      {3, L""},
                               {4, L"+ + "},       {5, L"A1 ++ \t"}, {6, L"A1 + +"}};
  OpenEuro::TrimMap(texts);
  EXPECT_EQ(texts,
            (std::map<int, CString>{
                {1, L"A1 + A4"}, {2, L" A1"}, {3, L""}, {4, L"+"}, {5, L"A1"}, {6, L"A1 +"}}));
}

// Writing.

TEST(AddComb, WritesNameColourAndTrimmedDescriptionBehindTheHighest) {
  CZelData model;
  model.SetCombinationCase(7, Data::CCombinationCase(true));
  OpenEuro euro;
  euro.SetData(&model);
  euro.MapTasks();
  euro.AddComb(L"wind", L"C1 + C2 + ", CaseType::Wind, 2);
  euro.AddComb(L"snow", L"C3", CaseType::Snow, 3);
  EXPECT_EQ(Lines(model, 8), (Texts{"8 wind = C1 + C2", "9 snow = C3"}));
  EXPECT_EQ(Testing::Colours(model, 8), (std::vector<unsigned long>{0x90ffff, 0x60ffff}));
  EXPECT_TRUE(model.CombinationCase(8).IsUsed());
}

TEST(FinalCombination, AddsTheLastOfEachGroupInOrder) {
  CZelData model;
  AddAction(model, CaseType::SelfWeight);
  AddAction(model, CaseType::Prestress);
  AddAction(model, CaseType::Wind);
  AddAction(model, CaseType::Accidental);
  auto generator = WithBasics(model);
  generator.AccidentalComb();                       // 5
  generator.PrestressComb(CombSlsCharacteristic);   // 6
  generator.PersistentComb(CombSlsCharacteristic);  // 7
  generator.VariableCombA(CombUlsSeismic);          // 8
  generator.FinalCombination(CombSlsFrequent);
  EXPECT_EQ(Lines(model, 9), Texts{"9 SLS Frequent = C7 + C6 + C8 + C5"});
  EXPECT_EQ(Testing::Colours(model, 9), std::vector<unsigned long>{0xa0ff60});
  generator.ClearCombinations();
  generator.FinalCombination(CombUlsSeismic);
  EXPECT_EQ(Lines(model, 10), Texts{"10 ULS Seismic = "});
}

// The whole run.

TEST(Combine, WithoutTasksOrClassifiedCasesLeavesTheModelAlone) {
  CZelData model;
  EXPECT_FALSE(OnTasks(model, {}, kAllFamilies).Combine());
  AddAction(model, CaseType::SeismicStatic);
  AddAction(model, CaseType::Thermal);
  AddAction(model, CaseType::Undefined);
  CZelData const before(model);
  EXPECT_FALSE(OnTasks(model, {kStaticTask}, kAllFamilies).Combine());
  EXPECT_FALSE(OnTasks(model, {}, kAllFamilies).Combine());
  EXPECT_FALSE(OnTasks(model, {5}, kAllFamilies).Combine());
  EXPECT_TRUE(IsUnchanged(model, before));
}

TEST(Combine, WithoutAModelGivesFalse) {
  OpenEuro euro;
  euro.SetTasks({1});
  EXPECT_FALSE(euro.Combine());
}

TEST(Combine, WithoutFamiliesWritesTheBasicCombinationsAlone) {
  CZelData model;
  AddAction(model, CaseType::Wind);
  EXPECT_TRUE(OnTasks(model, {kStaticTask}).Combine());
  EXPECT_EQ(Lines(model), Texts{"1 Variable : Wind 1 = A1"});
}

TEST(Combine, WritesBehindTheHighestCombinationOfTheModel) {
  CZelData model;
  AddAction(model, CaseType::SelfWeight);
  Data::CCombinationCase kept(false);
  kept.SetName(L"kept");
  model.SetCombinationCase(3, kept);
  model.SetCombinationCase(41, kept);
  auto generator = OnTasks(model, {kStaticTask});
  generator.SetSlsCharacteristic(true);
  EXPECT_TRUE(generator.Combine());
  EXPECT_EQ(Lines(model, 42),
            (Texts{"42 Permanent : Self weight 1 = A1", "43 Permanent : Self weight 1 = C42",
                   "44 SLS Characteristic = C43"}));
  EXPECT_TRUE(model.CombinationCase(3) == kept);
  EXPECT_TRUE(model.CombinationCase(41) == kept);
  EXPECT_EQ(model.CombinationCase().size(), 5u);
}

/// Names of the final combinations that a run writes, in order.
Texts Finals(CZelData const& model) {
  Texts names;
  for (auto const& [n, record] : model.CombinationCase())
    if (record.GetColour() == 0xa0ff60) names.push_back(record.Name().ToUtf8());
  return names;
}

TEST(Combine, RunsTheFamiliesInOrder) {
  CZelData model;
  AddAction(model, CaseType::SelfWeight);
  AddAction(model, CaseType::Accidental);
  AddResponse(model, 1, 1);
  EXPECT_TRUE(OnTasks(model, Testing::AllTasks(model), kAllFamilies).Combine());
  EXPECT_EQ(Finals(model), (Texts{"ULS Persistent", "ULS Accidental", "ULS Seismic",
                                  "SLS Characteristic", "SLS Frequent", "SLS Quasi-Permament"}));
}

TEST(Combine, RunsOneFamilyForEachFlag) {
  struct Row {
    void (CLoadCombinationGeneratorEuro::*set)(bool);
    char const* name;
  };
  using Base = CLoadCombinationGeneratorEuro;
  for (auto const& row :
       {Row{&Base::SetUlsPersistent, "ULS Persistent"},
        Row{&Base::SetUlsAccidental, "ULS Accidental"}, Row{&Base::SetUlsSeismic, "ULS Seismic"},
        Row{&Base::SetSlsCharacteristic, "SLS Characteristic"},
        Row{&Base::SetSlsFrequent, "SLS Frequent"},
        Row{&Base::SetSlsQuasiPerm, "SLS Quasi-Permament"}}) {
    CZelData model;
    AddAction(model, CaseType::Accidental);
    AddResponse(model, 1, 1);
    auto generator = OnTasks(model, Testing::AllTasks(model));
    (generator.*row.set)(true);
    EXPECT_TRUE(generator.Combine());
    EXPECT_EQ(Finals(model), Texts{row.name});
  }
}

TEST(Combine, WithoutAccidentalCasesIsFalseWithoutWordsAndGoesOn) {
  CZelData model;
  AddAction(model, CaseType::SelfWeight);
  auto generator = OnTasks(model, {kStaticTask});
  generator.SetUlsPersistent(true);
  generator.SetUlsAccidental(true);
  generator.SetSlsCharacteristic(true);
  EXPECT_FALSE(generator.Combine());
  EXPECT_EQ(generator.Report(), L"");
  EXPECT_EQ(Finals(model), (Texts{"ULS Persistent", "SLS Characteristic"}));
}

TEST(Combine, WithoutSeismicCasesIsFalseWithAReportAndGoesOn) {
  CZelData model;
  AddAction(model, CaseType::SelfWeight);
  auto generator = OnTasks(model, {kStaticTask});
  generator.SetUlsSeismic(true);
  generator.SetSlsFrequent(true);
  EXPECT_FALSE(generator.Combine());
  EXPECT_EQ(generator.Report(), L"ULS Seismic: no seismic cases\n");
  EXPECT_EQ(Finals(model), Texts{"SLS Frequent"});
}

TEST(Combine, IsFalseForAFamilyWithoutCasesWhateverComesBefore) {
  CZelData model;
  AddAction(model, CaseType::SelfWeight);
  AddResponse(model, 1, 1);
  auto generator = OnTasks(model, Testing::AllTasks(model));
  generator.SetUlsAccidental(true);
  generator.SetUlsSeismic(true);
  EXPECT_FALSE(generator.Combine());  // no accidental cases
  EXPECT_EQ(generator.Report(), L"");
  EXPECT_EQ(Finals(model), Texts{"ULS Seismic"});
}

TEST(Combine, IsFalseForAFamilyWithoutCasesWhateverComesBehind) {
  struct Row {
    void (CLoadCombinationGeneratorEuro::*set)(bool);
    char const* name;
  };
  using Base = CLoadCombinationGeneratorEuro;
  for (auto const& row : {Row{&Base::SetSlsCharacteristic, "SLS Characteristic"},
                          Row{&Base::SetSlsFrequent, "SLS Frequent"},
                          Row{&Base::SetSlsQuasiPerm, "SLS Quasi-Permament"}}) {
    CZelData model;
    AddAction(model, CaseType::SelfWeight);
    auto generator = OnTasks(model, {kStaticTask});
    generator.SetUlsSeismic(true);
    (generator.*row.set)(true);
    EXPECT_FALSE(generator.Combine()) << row.name;
    EXPECT_EQ(Finals(model), Texts{row.name});
  }
}

TEST(Combine, EmptiesTheReportFirst) {
  CZelData model;
  AddAction(model, CaseType::SelfWeight);
  auto generator = OnTasks(model, {kStaticTask});
  generator.SetUlsSeismic(true);
  generator.Combine();
  generator.SetUlsSeismic(false);
  EXPECT_TRUE(generator.Combine());
  EXPECT_EQ(generator.Report(), L"");
}

TEST(Combine, ASecondTimeAddsToWhatTheFirstFound) {
  CZelData model;
  AddAction(model, CaseType::Wind);
  AddAction(model, CaseType::Wind);
  auto generator = OnTasks(model, {kStaticTask});
  EXPECT_TRUE(generator.Combine());
  EXPECT_TRUE(generator.Combine());
  EXPECT_EQ(Lines(model),
            (Texts{"1 Variable : Wind 1 = A1 + A2", "2 Variable : Wind 1 = A1 + A2A1 + A2"}));
  generator.SetTasks({});
  generator.SetSlsQuasiPerm(true);
  EXPECT_TRUE(generator.Combine());  // both titles are still there, and a third one
  EXPECT_EQ(Lines(model, 4).front(), "4 Variable : Wind 1 = (1.5 or 0)C1");
}

TEST(Combine, GivesTheSameOnCopiesOfTheGeneratorAndOfTheModel) {
  CZelData model;
  AddAction(model, CaseType::SelfWeight);
  AddAction(model, CaseType::Imposed, 1, 1);
  AddAction(model, CaseType::Wind);
  auto generator = OnTasks(model, {kStaticTask});
  generator.SetUlsPersistent(true);
  CZelData second(model);
  CZelData third(model);
  OpenEuro copy(generator);
  copy.SetData(&second);
  OpenEuro assigned;
  assigned = generator;
  auto const& itself = assigned;
  assigned = itself;
  assigned.SetData(&third);
  EXPECT_TRUE(generator.Combine());
  EXPECT_TRUE(copy.Combine());
  EXPECT_TRUE(assigned.Combine());
  EXPECT_EQ(Lines(model).size(), 12u);  // 3 basic, 1 permanent, 4 + 2 + 1 variable, 1 final
  EXPECT_TRUE(IsUnchanged(second, model));
  EXPECT_TRUE(IsUnchanged(third, model));
}

}  // namespace
}  // namespace Tarvex::CombinationDriverTest
