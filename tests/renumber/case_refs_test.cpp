// Descriptions of cases and the cases of tasks with new numbers.
#include <gtest/gtest.h>

#include "store/model/analysis_case_table.h"
#include "store/record/cases.h"
#include "store/record/tasks.h"
#include "tests/renumber/renumber_support.h"

namespace Tarvex::CaseRefsTest {
namespace {

using Cases = std::map<SCaseRef, int>;
using Testing::Scheme;

SCaseRef L(int n) { return {CaseOp::Load, n}; }
SCaseRef A(int n) { return {CaseOp::Analysis, n}; }
SCaseRef C(int n) { return {CaseOp::Combination, n}; }
SCaseRef T(int n) { return {CaseOp::Task, n}; }

/// A renumbering with schemes of all tables of cases.
CRenumber OfAllCases() {
  CRenumber renumber;
  for (auto const module : {CModule::LoadCaseTitle, CModule::AnalysisTask, CModule::AnalysisCase,
                            CModule::CombinationCase})
    renumber.Index(module, Scheme());
  return renumber;
}

std::wstring Mapped(wchar_t const* text, Cases const& cases) {
  return OfAllCases().MapCaseDesc(text, cases).Str();
}

TEST(MapCaseDesc, MapsEachLetterByItsTable) {
  Cases const cases{{L(1), 11}, {A(1), 12}, {C(1), 13}, {T(1), 14}};
  EXPECT_EQ(Mapped(L"L1 A1 C1 T1", cases), L"L11 A12 C13 T14");
}

TEST(MapCaseDesc, KeepsFactorsBlanksAndDelimiters) {
  EXPECT_EQ(Mapped(L"1.35L1 + (1.5 or 0)L2,L1 : P(L2)", {{L(1), 3}, {L(2), 4}}),
            L"1.35L3 + (1.5 or 0)L4,L3 : P(L4)");
}

TEST(MapCaseDesc, KeepsWhatFollowsTheDigitsAndMapsCasesInIt) {
  EXPECT_EQ(Mapped(L"C5+ 0.3C6", {{C(5), 7}, {C(6), 8}}), L"C7+ 0.3C8");
  EXPECT_EQ(Mapped(L"C5abs", {{C(5), 7}}), L"C7abs");
  EXPECT_EQ(Mapped(L"1.2L1+1.5L2", {{L(1), 3}, {L(2), 4}}), L"1.2L3+1.5L4");
  EXPECT_EQ(Mapped(L"SRSS(C5,C6abs)", {{C(5), 7}, {C(6), 8}}), L"SRSS(C7,C8abs)");
}

TEST(MapCaseDesc, WritesACaseThatIsGone) {
  EXPECT_EQ(Mapped(L"L1 + L2", {{L(1), 1}}), L"L1 + L<deleted case>");
  EXPECT_EQ(Mapped(L"1.2L2+L1", {{L(1), 5}}), L"1.2L<deleted case>+L5");
  EXPECT_EQ(Mapped(L"C6abs", {}), L"C<deleted case>abs");
}

TEST(MapCaseDesc, LeavesWhatIsGoneAlready) {
  EXPECT_EQ(Mapped(L"L<deleted case> + L1", {{L(1), 2}}), L"L<deleted case> + L2");
}

TEST(MapCaseDesc, LeavesModesWordsAndLettersWithoutNumbers) {
  EXPECT_EQ(Mapped(L"M1 none abs L A or", {{L(1), 2}}), L"M1 none abs L A or");
}

TEST(MapCaseDesc, LeavesNumbersThatAreTooLong) {
  EXPECT_EQ(Mapped(L"L99999999999", {}), L"L99999999999");
}

TEST(MapCaseDesc, LeavesLettersOfTablesWithoutScheme) {
  CRenumber renumber;
  renumber.Index(CModule::AnalysisCase, Scheme());
  Cases const cases{{L(1), 5}, {A(2), 6}};
  EXPECT_EQ(renumber.MapCaseDesc(L"L1 A2 C3 T4", cases), L"L1 A6 C3 T4");
  EXPECT_EQ(renumber.MapCaseDesc(L"1.2L1+1.5A2", cases), L"1.2L1+1.5A6");
}

TEST(MapCaseDesc, SplitsAtEachDelimiter) {
  // A letter without a number before the delimiter would hide the case behind it.
  Cases const cases{{L(1), 3}};
  for (auto const* between : {L" ", L",", L"(", L")", L"P", L":"}) {
    auto const text = std::wstring(L"A") + between;
    EXPECT_EQ(Mapped((text + L"L1").c_str(), cases), text + L"L3");
  }
}

TEST(MapCaseDesc, OfNothingIsNothing) { EXPECT_EQ(Mapped(L"", {}), L""); }

/// A static task with texts, a response task, an envelope, a case, a combination, a description.
CZelData ModelWithTexts() {
  CZelData model;
  CZssTask plain(L"static", AnalSoln::Static);
  plain.SetCases({1, 2});
  plain.SetPDelta(L"A1");
  plain.SetPrestress(L"L1");
  plain.SetMassCase(L"");
  model.SetAnalysisTask(1, plain);
  CZdSpecTask response(L"response", AnalSoln::ResponseSpectrum);
  response.SetTask(1);
  response.SetLoad(L"L1");
  model.SetAnalysisTask(2, response);
  CEnvelopeTask envelope(L"envelope");
  envelope.SetDesc(L"C1", &model);
  model.SetAnalysisTask(3, envelope);
  model.SetAnalysisCase(1, {L"first", L"L1", 1});
  model.SetAnalysisCase(2, {L"second", L"", 1});
  Data::CCombinationCase combination;
  combination.SetDescription(Data::CCombCaseDesc(L"A1"));
  model.SetCombinationCase(1, combination);
  Data::CCaseDescription description;
  description.SetDescription(L"C1");
  model.SetCaseDescription(1, description);
  return model;
}

Cases const kCases{{L(1), 5}, {A(1), 6}, {C(1), 7}, {T(1), 8}};

TEST(AdjustCaseRefs, RewritesTasksCasesCombinationsAndDescriptions) {
  auto model = ModelWithTexts();
  OfAllCases().AdjustCaseRefs(&model, kCases, false);
  auto const& plain = dynamic_cast<CZssTask const&>(model.AnalysisTask(1));
  EXPECT_EQ(plain.Cases(), std::set<int>{6});  // case 2 has no new number
  EXPECT_EQ(plain.PDelta(), L"A6");
  EXPECT_EQ(plain.Prestress(), L"L5");
  EXPECT_EQ(plain.MassCase(), L"none");
  auto const& response = dynamic_cast<CZdSpecTask const&>(model.AnalysisTask(2));
  EXPECT_EQ(response.Task(), 8);
  EXPECT_EQ(response.Load(), L"L5");
  EXPECT_EQ(dynamic_cast<CEnvelopeTask const&>(model.AnalysisTask(3)).Desc(), L"C7");
  EXPECT_EQ(model.AnalysisCase(1).Description(), L"L5");
  EXPECT_EQ(model.AnalysisCase(2).Description(), L"none");
  EXPECT_EQ(model.AnalysisCase(1).Task(), 1);  // the link is none of the texts
  EXPECT_EQ(model.CombinationCase(1).Description().Text(), L"A6");
  EXPECT_EQ(model.CaseDescription(1).Description(), L"C7");
}

TEST(AdjustCaseRefs, KeepsTextsOfTasksAndCasesWhenToldTo) {
  auto model = ModelWithTexts();
  OfAllCases().AdjustCaseRefs(&model, kCases, true);
  auto const& plain = dynamic_cast<CZssTask const&>(model.AnalysisTask(1));
  EXPECT_EQ(plain.Cases(), std::set<int>{6});
  EXPECT_EQ(plain.PDelta(), L"A1");
  EXPECT_EQ(plain.Prestress(), L"L1");
  EXPECT_EQ(plain.MassCase(), L"");
  EXPECT_EQ(dynamic_cast<CZdSpecTask const&>(model.AnalysisTask(2)).Task(), 1);
  EXPECT_EQ(dynamic_cast<CEnvelopeTask const&>(model.AnalysisTask(3)).Desc(), L"C1");
  EXPECT_EQ(model.AnalysisCase(1).Description(), L"L1");
  EXPECT_EQ(model.AnalysisCase(2).Description(), L"");
  EXPECT_EQ(model.CombinationCase(1).Description().Text(), L"A6");
  EXPECT_EQ(model.CaseDescription(1).Description(), L"C7");
}

TEST(AdjustCaseRefs, LeavesAModalTaskThatHasNoNewNumber) {
  auto model = ModelWithTexts();
  OfAllCases().AdjustCaseRefs(&model, {}, false);
  EXPECT_EQ(dynamic_cast<CZdSpecTask const&>(model.AnalysisTask(2)).Task(), 1);
}

TEST(AdjustCaseRefs, RewritesATextThatIsNoDescriptionToo) {
  CZelData model;
  Data::CCombinationCase combination;
  combination.SetDescription(Data::CCombCaseDesc(L"A1 ++ ?"));
  model.SetCombinationCase(1, combination);
  OfAllCases().AdjustCaseRefs(&model, kCases, false);
  EXPECT_EQ(model.CombinationCase(1).Description().Text(), L"A6 ++ ?");
}

}  // namespace
}  // namespace Tarvex::CaseRefsTest
