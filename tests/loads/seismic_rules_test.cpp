#include "tests/loads/combination_support.h"

namespace Tarvex::SeismicRulesTest {
namespace {

using Data::RespComb;
using Testing::AddAction;
using Testing::AddResponse;
using Testing::Lines;
using Testing::OpenEuro;
using Testing::Texts;
using Testing::WithBasics;

/// A generator with basic combinations that knows the seismic sources.
OpenEuro SeismicGenerator(CZelData& model, RespComb rule) {
  auto generator = WithBasics(model);
  generator.SetSeismic(rule);
  generator.NumSource(CaseType::SeismicStatic, true);
  return generator;
}

Texts SeismicOf(CZelData& model, RespComb rule, int from) {
  SeismicGenerator(model, rule).SeismicComb();
  return Lines(model, from);
}

/// Responses 1 to 3 in x, y, z and torsion 4 and 5 about x and y, all of one source.
CZelData AllDirections(int source) {
  CZelData model;
  for (int const direction : {1, 2, 3}) AddResponse(model, source, direction);
  for (int const direction : {1, 2}) AddAction(model, CaseType::SeismicTorsion, source, direction);
  return model;
}

TEST(SeismicComb, JoinsDirectionsByTheRootOfTheSquares) {
  auto model = AllDirections(7);
  EXPECT_EQ(SeismicOf(model, RespComb::SquareRoot, 6),
            (Texts{"6 | Seismic : Acc. tors. 7x | = C4abs", "7 | Seismic : Acc. tors. 7y | = C5abs",
                   "8 Seismic 7x = C1 + C6", "9 Seismic 7y = C2 + C7",
                   "10 Seismic SRSS = SRSS(C8,C9,C3)", "11 Seismic SRSS +/- = (1 or -1)C10"}));
  EXPECT_EQ(Testing::Colours(model, 6), (std::vector<unsigned long>{0xb0b0ff, 0xb0b0ff, 0x9090ff,
                                                                    0x9090ff, 0xffffff, 0xffffff}));
}

TEST(SeismicComb, JoinsDirectionsByThirtyPercent) {
  auto model = AllDirections(7);
  EXPECT_EQ(SeismicOf(model, RespComb::ThirtyPercent, 8),
            (Texts{"8 Seismic 7x = C1 + C6", "9 Seismic 7y = C2 + C7",
                   "10 Seismic x 30% = C8+ 0.3C9+ 0.3C3", "11 Seismic y 30% = C9+ 0.3C8+ 0.3C3",
                   "12 Seismic z 30% = C3+ 0.3C8+ 0.3C9",
                   "13 Seismic 30% = (1 or -1)C10 or(1 or -1)C11 or(1 or -1)C12"}));
  EXPECT_EQ(Testing::Colours(model, 10), std::vector<unsigned long>(4, 0xffffff));
}

TEST(SeismicComb, TakesThirtyPercentForEveryOtherRule) {
  for (int const rule : {-1, 0, 1, 3, 100}) {
    auto model = AllDirections(1);
    EXPECT_EQ(SeismicOf(model, static_cast<RespComb>(rule), 10).size(), 4u) << rule;
  }
}

TEST(SeismicComb, TakesTheRootOfTheSquaresUnlessTold) {
  CZelData model;
  AddResponse(model, 1, 1);
  auto generator = WithBasics(model);
  EXPECT_TRUE(generator.CombineUlsSeismic());
  EXPECT_EQ(Lines(model, 2)[0], "2 Seismic SRSS = SRSS(C1)");
}

TEST(SeismicComb, OfOneDirectionHasNoOthersBesideIt) {
  CZelData model;
  AddResponse(model, 1, 1);
  EXPECT_EQ(SeismicOf(model, RespComb::ThirtyPercent, 2),
            (Texts{"2 Seismic x 30% = C1", "3 Seismic 30% = (1 or -1)C2"}));
}

TEST(SeismicComb, NamesTheLeadingDirection) {
  CZelData model;
  AddResponse(model, 1, 2);
  AddResponse(model, 1, 3);
  EXPECT_EQ(SeismicOf(model, RespComb::ThirtyPercent, 3),
            (Texts{"3 Seismic y 30% = C1+ 0.3C2", "4 Seismic z 30% = C2+ 0.3C1",
                   "5 Seismic 30% = (1 or -1)C3 or(1 or -1)C4"}));
}

TEST(SeismicComb, OfTorsionAloneListsItsAbsoluteValue) {
  CZelData model;
  AddAction(model, CaseType::SeismicTorsion, 1, 1);
  EXPECT_EQ(SeismicOf(model, RespComb::SquareRoot, 2),
            (Texts{"2 | Seismic : Acc. tors. 1x | = C1abs", "3 Seismic SRSS = SRSS(C2)",
                   "4 Seismic SRSS +/- = (1 or -1)C3"}));
}

TEST(SeismicComb, KnowsTorsionAboutYWithoutTorsionAboutX) {
  CZelData model;
  AddAction(model, CaseType::SeismicTorsion, 1, 2);
  AddResponse(model, 1, 1);
  // Basic 1 the response, 2 the torsion.
  EXPECT_EQ(SeismicOf(model, RespComb::SquareRoot, 3),
            (Texts{"3 | Seismic : Acc. tors. 1y | = C2abs", "4 Seismic SRSS = SRSS(C1,C3)",
                   "5 Seismic SRSS +/- = (1 or -1)C4"}));
}

TEST(SeismicComb, OfSeveralSourcesTakesThirtyPercentForEachByItself) {
  CZelData model;
  for (int const source : {1, 2}) AddResponse(model, source, 1);
  auto generator = SeismicGenerator(model, RespComb::ThirtyPercent);
  generator.SeismicComb();
  generator.FinalCombination(CombUlsSeismic);
  EXPECT_EQ(Lines(model, 3),
            (Texts{"3 Seismic x 30% = C1", "4 Seismic 30% = (1 or -1)C3", "5 Seismic x 30% = C2",
                   "6 Seismic 30% = (1 or -1)C5", "7 ULS Seismic = C6"}));
}

TEST(SeismicComb, OfSeveralSourcesLeavesTheLastOneToTheFinalCombination) {
  CZelData model;
  AddResponse(model, 4, 1);
  AddResponse(model, 2, 1);
  auto generator = SeismicGenerator(model, RespComb::SquareRoot);
  generator.SeismicComb();
  generator.FinalCombination(CombUlsSeismic);
  // Basic combinations in ascending source: 1 of source 2, 2 of source 4.
  EXPECT_EQ(Lines(model, 3), (Texts{"3 Seismic SRSS = SRSS(C1)", "4 Seismic SRSS +/- = (1 or -1)C3",
                                    "5 Seismic SRSS = SRSS(C2)", "6 Seismic SRSS +/- = (1 or -1)C5",
                                    "7 ULS Seismic = C6"}));
}

TEST(SeismicComb, EndsAtASourceWithoutTitlesWithoutARange) {
  CZelData model;
  AddResponse(model, 1, 1);
  AddResponse(model, 2, 1);
  OpenEuro generator;
  generator.SetData(&model);
  generator.SetTasks({Testing::ResponseTask(2)});
  generator.MapTasks();
  generator.BasicComb();                         // knows source 2 alone
  generator.MapCases(Testing::ResponseTask(1));  // now source 1 too, without a title
  EXPECT_EQ(generator.NumSource(CaseType::SeismicStatic, true), 2);
  generator.SeismicComb();
  generator.FinalCombination(CombUlsSeismic);
  EXPECT_EQ(Lines(model), (Texts{"1 Seismic : RSA 2x = A2", "2 ULS Seismic = "}));
}

TEST(SeismicComb, EndsWithoutARangeBehindASourceThatItHasWritten) {
  CZelData model;
  for (int const source : {1, 2}) AddResponse(model, source, 1);
  OpenEuro generator;
  generator.SetData(&model);
  generator.SetTasks({Testing::ResponseTask(1)});
  generator.MapTasks();
  generator.BasicComb();                         // knows source 1 alone
  generator.MapCases(Testing::ResponseTask(2));  // now source 2 too, without a title
  EXPECT_EQ(generator.NumSource(CaseType::SeismicStatic, true), 2);
  generator.SeismicComb();
  generator.FinalCombination(CombUlsSeismic);
  EXPECT_EQ(Lines(model), (Texts{"1 Seismic : RSA 1x = A1", "2 Seismic SRSS = SRSS(C1)",
                                 "3 Seismic SRSS +/- = (1 or -1)C2", "4 ULS Seismic = "}));
}

/// A generator of a response in x with a case of rain whose title became another one meanwhile. The
/// basic combination of the latter is 1, that of the response 2.
OpenEuro WithChangedTitle(CZelData& model, Data::CLoadCaseTitle const& title) {
  AddAction(model, CaseType::Rain);
  AddResponse(model, 1, 1);
  OpenEuro generator;
  generator.SetData(&model);
  generator.SetTasks(Testing::AllTasks(model));
  generator.MapTasks();
  model.SetLoadCaseTitle(1, title);
  generator.BasicComb();
  generator.NumSource(CaseType::SeismicStatic, true);
  return generator;
}

TEST(SeismicComb, TakesTheLowestOfTwoResponsesInOneDirection) {
  CZelData model;
  WithChangedTitle(model, Testing::Title(CaseType::SeismicResponse, 1, 1)).SeismicComb();
  EXPECT_EQ(Lines(model, 3),
            (Texts{"3 Seismic SRSS = SRSS(C1)", "4 Seismic SRSS +/- = (1 or -1)C3"}));
}

TEST(SeismicComb, TakesTorsionThatItsMapHasOnly) {
  CZelData model;
  WithChangedTitle(model, Testing::Title(CaseType::SeismicTorsion, 1, 1)).SeismicComb();
  EXPECT_EQ(Lines(model, 3),
            (Texts{"3 Seismic SRSS = SRSS(C2)", "4 Seismic SRSS +/- = (1 or -1)C3"}));
}

TEST(SeismicComb, WithoutSourcesWritesNothing) {
  CZelData model;
  AddResponse(model, 1, 1);
  auto generator = WithBasics(model);  // the sources were not gathered
  generator.SeismicComb();
  EXPECT_EQ(Lines(model).size(), 1u);
}

}  // namespace
}  // namespace Tarvex::SeismicRulesTest
