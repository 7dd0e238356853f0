#include "store/record/case_refs.h"

#include <gtest/gtest.h>

#include <string>

namespace Tarvex::Data::CaseRefsTest {
namespace {

std::string Found(wchar_t const* description) {
  std::string found;
  for (auto const& ref : CasesIn(description)) {
    char const letter = ref.CaseType() == CaseOp::Load          ? 'L'
                        : ref.CaseType() == CaseOp::Analysis    ? 'A'
                        : ref.CaseType() == CaseOp::Combination ? 'C'
                                                                : 'T';
    found += std::string(found.empty() ? "" : " ") + letter + std::to_string(ref.Case());
  }
  return found;
}

TEST(CasesIn, NamesEachCaseInTheOrderOfTheText) {
  EXPECT_EQ(Found(L"1.2L1 + 1.5L2"), "L1 L2");
  EXPECT_EQ(Found(L"(1 or -1)C7 or(1 or -1)C8"), "C7 C8");
  EXPECT_EQ(Found(L"C5+ 0.3C6"), "C5 C6");
  EXPECT_EQ(Found(L"C5 to C9"), "C5 C9");
  EXPECT_EQ(Found(L"SRSS(C1,C2)"), "C1 C2");
  EXPECT_EQ(Found(L"C5abs"), "C5");
  EXPECT_EQ(Found(L"A1 + A4 T3"), "A1 A4 T3");
  EXPECT_EQ(Found(L"L3 : P(A12)"), "L3 A12");
  EXPECT_EQ(Found(L"A1 A1"), "A1 A1");
}

TEST(CasesIn, NamesNoneWhereNoneStands) {
  EXPECT_EQ(Found(L""), "");
  EXPECT_EQ(Found(L"none"), "");
  EXPECT_EQ(Found(L"L<deleted case>"), "");
  EXPECT_EQ(Found(L"M1 : P(none)"), "");
  EXPECT_EQ(Found(L"L"), "");
  EXPECT_EQ(Found(L"L 1"), "");
  EXPECT_EQ(Found(L"1.5"), "");
  EXPECT_EQ(Found(L"XA1 aL2"), "");  // a letter before makes it a part of a word
}

TEST(CasesIn, NamesNoNumberThatNoCaseCanHave) {
  EXPECT_EQ(Found(L"L0"), "");
  EXPECT_EQ(Found(L"L100000000"), "L100000000");
  EXPECT_EQ(Found(L"L100000001"), "");
  EXPECT_EQ(Found(L"A99999999999999999999999 C3"), "C3");
}

TEST(CaseModule, IsTheTableOfTheKind) {
  EXPECT_EQ(CaseModule(CaseOp::Load), CModule::LoadCaseTitle);
  EXPECT_EQ(CaseModule(CaseOp::Analysis), CModule::AnalysisCase);
  EXPECT_EQ(CaseModule(CaseOp::Combination), CModule::CombinationCase);
  EXPECT_EQ(CaseModule(CaseOp::Task), CModule::AnalysisTask);
  EXPECT_EQ(CaseModule(CaseOp::None), CModule::None);
}

}  // namespace
}  // namespace Tarvex::Data::CaseRefsTest
