// Alternatives of descriptions, against a plain evaluator that lists them all.
#include "store/select/case_permutations.h"

#include <gtest/gtest.h>

#include <cmath>
#include <string>

#include "store/model/zel_data.h"
#include "store/record/case_desc.h"
#include "store/record/cases.h"
#include "tests/support/random_model.h"

namespace Tarvex::Data::CasePermutationsTest {
namespace {

using Testing::Random;

using Factors = std::map<SCaseRef, double>;
using Listed = std::vector<Factors>;

SCaseRef A(int n) { return {CaseOp::Analysis, n}; }
SCaseRef C(int n) { return {CaseOp::Combination, n}; }

/// All alternatives of a text, each case for itself.
Listed AllOf(CString const& text) {
  CasesAsWritten const meaning;
  auto const cases = CountCases(ReadCases(text).value(), meaning);
  Listed all;
  for (int i = 0; i < cases.Total(); ++i)
    all.push_back(CaseFactors(cases, cases.tree.whole, i, meaning));
  return all;
}

TEST(CaseFactors, AddUpWithinASum) {
  EXPECT_EQ(AllOf(L"1.5A1 + A2 - 0.5A1"), (Listed{{{A(1), 1}, {A(2), 1}}}));
}

TEST(CaseFactors, ComeOneBehindTheOtherForAlternatives) {
  EXPECT_EQ(AllOf(L"A1 or 2A2"), (Listed{{{A(1), 1}}, {{A(2), 2}}}));
  EXPECT_EQ(AllOf(L"(1.35 or 1)A1"), (Listed{{{A(1), 1.35}}, {{A(1), 1}}}));
  EXPECT_EQ(AllOf(L"C5 to C7"), (Listed{{{C(5), 1}}, {{C(6), 1}}, {{C(7), 1}}}));
  // A factor stands for all of its part by the first of its values, then all by the second.
  EXPECT_EQ(AllOf(L"(1 or -1)(A1 or A2)"),
            (Listed{{{A(1), 1}}, {{A(2), 1}}, {{A(1), -1}}, {{A(2), -1}}}));
}

TEST(CaseFactors, ChangeFastestInTheLastPartOfASum) {
  EXPECT_EQ(AllOf(L"(1 or 2)A1 + (3 or 4)A2"), (Listed{{{A(1), 1}, {A(2), 3}},
                                                       {{A(1), 1}, {A(2), 4}},
                                                       {{A(1), 2}, {A(2), 3}},
                                                       {{A(1), 2}, {A(2), 4}}}));
}

TEST(CaseFactors, AreNoneOfWhatIsNotLinear) {
  EXPECT_EQ(AllOf(L"A1 + 2A2abs"), (Listed{{{A(1), 1}}}));
  EXPECT_EQ(AllOf(L"SRSS(A1,A2)"), Listed{{}});
  EXPECT_EQ(AllOf(L"SRSS(A1 or A2,A3)").size(), 2u);
}

TEST(CaseFactors, AreNoneOfNothing) {
  EXPECT_TRUE(AllOf(L"").empty());
  EXPECT_TRUE(AllOf(L"none").empty());
  EXPECT_EQ(AllOf(L"C<deleted case> + A1"), (Listed{{{A(1), 1}}}));
}

/// A random description as text, and the list of its alternatives, made side by side.
struct Made {
  std::wstring text;
  Listed all;
};

Made MakeCase(Random& random) {
  int const n = random.Int(1, 4);
  return {L"A" + std::to_wstring(n), {{{A(n), 1}}}};
}

Made MakePart(Random& random, int depth);

/// So many alternatives are listed at most.
constexpr std::size_t kMostListed = 300;

Made MakeSum(Random& random, int depth) {
  Made sum{L"", {{}}};
  for (int i = random.Int(1, 3); i > 0; --i) {
    auto const part = MakePart(random, depth);
    if (sum.all.size() * part.all.size() > kMostListed) continue;
    sum.text += (sum.text.empty() ? L"" : random.Percent(50) ? L" + " : L"+") + part.text;
    Listed joined;
    for (auto const& before : sum.all)
      for (auto const& behind : part.all) {
        auto both = before;
        for (auto const& [ref, factor] : behind) both[ref] += factor;
        joined.push_back(both);
      }
    sum.all = joined;
  }
  if (sum.text.empty()) return MakeCase(random);
  return sum;
}

Made MakeEither(Random& random, int depth) {
  auto either = MakeSum(random, depth);
  for (int i = random.Int(0, 2); i > 0; --i) {
    auto const other = MakeSum(random, depth);
    either.text += L" or " + other.text;
    either.all.insert(either.all.end(), other.all.begin(), other.all.end());
  }
  return either;
}

Made Scaled(Made const& part, std::vector<int> const& factors) {
  Made scaled;
  for (int const factor : factors) {
    scaled.text += (scaled.text.empty() ? L"(" : L" or ") + std::to_wstring(factor);
    for (auto alternative : part.all) {
      for (auto& [ref, value] : alternative) value *= factor;
      scaled.all.push_back(alternative);
    }
  }
  scaled.text += L")" + part.text;
  return scaled;
}

Made MakePart(Random& random, int depth) {
  auto part = MakeCase(random);
  if (depth > 0 && random.Percent(40)) {
    part = MakeEither(random, depth - 1);
    part.text = L"(" + part.text + L")";
  }
  if (random.Percent(60)) return part;
  std::vector<int> factors;
  for (int i = random.Int(1, 3); i > 0; --i) factors.push_back(random.Int(-3, 3));
  return Scaled(part, factors);
}

TEST(CasePermutationsProperty, AreThoseOfAPlainEvaluator) {
  Random random(20261121);
  for (int round = 0; round < 200; ++round) {
    auto const made = MakeEither(random, 3);
    auto const all = AllOf(CString(made.text));
    ASSERT_EQ(all, made.all) << CString(made.text).ToUtf8();
    CCombCaseDesc const description{CString(made.text)};
    for (std::size_t i = 0; i < all.size(); i += 7)
      for (int n = 1; n <= 4; ++n)
        ASSERT_EQ(description.CaseFactor(static_cast<int>(i) + 1, A(n)),
                  all[i].contains(A(n)) ? all[i].at(A(n)) : 0);
  }
}

TEST(CountCases, CountsWithoutListingAndStopsAtTheHighest) {
  auto const count = [](std::wstring const& text) {
    CasesAsWritten const meaning;
    return CountCases(ReadCases(CString(text)).value(), meaning).Total();
  };
  std::wstring text = L"(1 or 2)A1";
  for (int i = 1; i < 30; ++i) text += L" + (1 or 2)A1";
  EXPECT_EQ(count(text), 1 << 30);
  EXPECT_EQ(count(text + L" + (1 or 2)A1"), 2147483647);
  EXPECT_EQ(count(text + L" + (1 or 2)A1 + (1 or 2)A1"), 2147483647);
  EXPECT_EQ(count(L"A1 to A100000000"), 100000000);
  EXPECT_EQ(count(L"(A1 to A100000000) + (A1 to A100000000)"), 2147483647);
}

}  // namespace
}  // namespace Tarvex::Data::CasePermutationsTest
