#include "store/record/case_desc.h"

#include <gtest/gtest.h>

#include "store/model/zel_data.h"
#include "store/record/cases.h"

namespace Tarvex::Data::CaseDescTest {
namespace {

SCaseRef A(int n) { return {CaseOp::Analysis, n}; }
SCaseRef C(int n) { return {CaseOp::Combination, n}; }

void Set(CZelData& model, int n, wchar_t const* text) {
  CCombinationCase combination;
  combination.SetDescription(CCombCaseDesc(CString(text)));
  model.SetCombinationCase(n, combination);
}

CZelData WithCases(std::vector<int> const& numbers) {
  CZelData model;
  for (int const n : numbers) model.SetAnalysisCase(n, Zel::CAnalysisCase());
  return model;
}

TEST(CaseDesc, PrintsWhatToolsWriteUnchanged) {
  for (auto const* text : {L"",
                           L"none",
                           L"C5+ 0.3C6",
                           L"C5+ 0.3C6+ 0.3C7",
                           L"(1 or -1)C7 or(1 or -1)C8",
                           L"C5 to C9",
                           L"SRSS(C1,C2)",
                           L"SRSS(C1,C2,C3)",
                           L"C5abs",
                           L"(1.35 or 1)C7",
                           L"1.5C7",
                           L"A1 + A4",
                           L"L<deleted case>",
                           L"C<deleted case>+C2",
                           L"L3",
                           L"L3 : P(L3)",
                           L"L3 : P(A12)",
                           L"L3 : P(C2)",
                           L"L3 : P(none)",
                           L"M1",
                           L"M1 : P(A3)",
                           L"C1 + C2",
                           L"(1 or -1)C9"}) {
    CCombCaseDesc description;
    EXPECT_TRUE(description.SetDescription(text)) << CString(text).ToUtf8();
    EXPECT_EQ(description.Text(), text);
  }
}

TEST(CaseDesc, RefusesWhatIsNoneAndStaysAsItWas) {
  CCombCaseDesc description(L"C1");
  CaseFault fault;
  EXPECT_FALSE(description.SetDescription(L"C1 C2", &fault));
  EXPECT_EQ(fault.position, 3);
  EXPECT_EQ(description.Text(), L"C1");
  CCaseDesc loads(L"L1");
  EXPECT_FALSE(loads.SetDescription(L"L1 +"));
  EXPECT_EQ(loads.Text(), L"L1");
}

TEST(CaseDesc, KeepsATextThatItIsBuiltFromWhetherOrNotItCanBeRead) {
  CCombCaseDesc const description(L"C1 C2");
  EXPECT_EQ(description.Text(), L"C1 C2");
  EXPECT_FALSE(description.IsReadable());
  EXPECT_TRUE(CCombCaseDesc(L"C1").IsReadable());
  EXPECT_EQ(description.CaseFactor(1, C(1)), 0);
  EXPECT_EQ(description.NumPermutation(CZelData()), 0);
  CCaseDesc const loads(L"L1 L2");
  EXPECT_EQ(loads.CaseFactor(CCaseDesc::Part::Main, 1), 0);
  EXPECT_TRUE(loads.LoadCases().IsEmpty());
}

TEST(CaseFactor, OfLoadCasesIsThatOfTheTextOrItsSuffix) {
  CCaseDesc const description(L"1.2L1 + 0.5L2 - L1 : P(3L1 + L4)");
  EXPECT_NEAR(description.CaseFactor(CCaseDesc::Part::Main, 1), 0.2, 1e-15);
  EXPECT_EQ(description.CaseFactor(CCaseDesc::Part::Main, 2), 0.5);
  EXPECT_EQ(description.CaseFactor(CCaseDesc::Part::Main, 4), 0);
  EXPECT_EQ(description.CaseFactor(CCaseDesc::Part::PDelta, 1), 3);
  EXPECT_EQ(description.CaseFactor(CCaseDesc::Part::PDelta, 4), 1);
  EXPECT_EQ(CCaseDesc(L"L1").CaseFactor(CCaseDesc::Part::PDelta, 1), 0);
  EXPECT_EQ(static_cast<int>(CCaseDesc::Part::Main), 0);
}

TEST(LoadCases, AreThoseOutsideTheSuffixAscending) {
  std::vector<int> found;
  auto const numbers = CCaseDesc(L"L7 + 2L3 + L3 to L5 : P(L9)").LoadCases();
  for (auto const& run : numbers.Runs())
    for (int n = run.first; n <= run.last; ++n) found.push_back(n);
  EXPECT_EQ(found, (std::vector{3, 4, 5, 7}));
  EXPECT_TRUE(CCaseDesc(L"A1 + C2").LoadCases().IsEmpty());
  EXPECT_TRUE(CCaseDesc(L"none").LoadCases().IsEmpty());
}

TEST(NumPermutation, MultipliesThroughCombinationsOfCombinations) {
  auto model = WithCases({1, 2, 3});
  Set(model, 1, L"(1.35 or 1)A1");
  Set(model, 2, L"(1.5 or 0)A2");
  Set(model, 3, L"C1 + C2");
  CCombCaseDesc const description(L"2C3 + A3");
  EXPECT_EQ(description.NumPermutation(model), 4);
  double const dead[] = {2.7, 2.7, 2, 2};
  double const imposed[] = {3, 0, 3, 0};
  for (int k = 1; k <= 4; ++k) {
    EXPECT_EQ(description.CaseFactor(k, A(1)), dead[k - 1]);
    EXPECT_EQ(description.CaseFactor(k, A(2)), imposed[k - 1]);
    EXPECT_EQ(description.CaseFactor(k, A(3)), 1);
    EXPECT_EQ(description.CaseFactor(k, C(3)), 0);  // it was followed
  }
  EXPECT_EQ(description.CaseFactor(0, A(3)), 0);
  EXPECT_EQ(description.CaseFactor(5, A(3)), 0);
}

TEST(NumPermutation, TakesOfARangeWhatExists) {
  auto model = WithCases({2, 5, 9});
  Set(model, 4, L"A1 or A2");
  Set(model, 6, L"A5");
  EXPECT_EQ(CCombCaseDesc(L"A1 to A9").NumPermutation(model), 3);
  CCombCaseDesc const envelope(L"C1 to C10");
  EXPECT_EQ(envelope.NumPermutation(model), 3);
  EXPECT_EQ(envelope.CaseFactor(2, A(2)), 1);
  EXPECT_EQ(envelope.CaseFactor(3, A(5)), 1);
  EXPECT_EQ(envelope.CaseFactor(3, A(2)), 0);
}

TEST(NumPermutation, IsNoneForACombinationThatReachesItself) {
  auto model = WithCases({1});
  Set(model, 1, L"C2 or A1");
  Set(model, 2, L"C3 + A1");
  Set(model, 3, L"2C1");
  Set(model, 4, L"C4");
  Set(model, 5, L"C1 or A1");  // reaches them, but not itself
  for (int const n : {1, 2, 3, 4})
    EXPECT_EQ(model.CombinationCase(n).Description().NumPermutation(model), 0) << n;
  EXPECT_EQ(model.CombinationCase(5).Description().NumPermutation(model), 1);
}

TEST(NumPermutation, TakesAMissingCombinationForNothing) {
  auto const model = WithCases({1});
  CCombCaseDesc const description(L"C7 + A1");
  EXPECT_EQ(description.NumPermutation(model), 1);
  EXPECT_EQ(description.CaseFactor(1, A(1)), 1);
  EXPECT_EQ(description.CaseFactor(1, C(7)), 0);
}

TEST(NumPermutation, IsRememberedUntilTheModelOrTheObjectChanges) {
  auto model = WithCases({1, 2});
  Set(model, 1, L"A1");
  CCombCaseDesc description(L"C1");
  EXPECT_EQ(description.CaseFactor(1, C(1)), 1);  // by the text alone
  EXPECT_EQ(description.NumPermutation(model), 1);
  EXPECT_EQ(description.CaseFactor(1, A(1)), 1);
  Set(model, 1, L"A1 or 3A2");
  EXPECT_EQ(description.CaseFactor(1, A(1)), 1);  // as it was found
  EXPECT_EQ(description.NumPermutation(model), 2);
  EXPECT_EQ(description.CaseFactor(2, A(2)), 3);
  auto const copy = description;  // a copy knows its text alone
  EXPECT_EQ(copy.CaseFactor(1, C(1)), 1);
  EXPECT_EQ(copy.CaseFactor(1, A(1)), 0);
  EXPECT_EQ(description.CaseFactor(1, A(1)), 1);
  EXPECT_TRUE(description.SetDescription(L"C1"));
  EXPECT_EQ(description.CaseFactor(1, C(1)), 1);
}

TEST(NumPermutation, FollowsAVeryLongChain) {
  auto model = WithCases({1});
  constexpr int kMany = 20000;
  Set(model, 1, L"A1");
  for (int n = 2; n <= kMany; ++n) Set(model, n, (L"C" + std::to_wstring(n - 1)).c_str());
  auto const& last = model.CombinationCase(kMany).Description();
  EXPECT_EQ(last.NumPermutation(model), 1);
  EXPECT_EQ(last.CaseFactor(1, A(1)), 1);
}

}  // namespace
}  // namespace Tarvex::Data::CaseDescTest
