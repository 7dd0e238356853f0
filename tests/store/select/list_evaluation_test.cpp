#include "store/select/list_evaluation.h"

#include <gtest/gtest.h>

#include <climits>

#include "store/select/case_tokens.h"
#include "store/select/list_grammar.h"
#include "tests/support/plain_list.h"
#include "tests/support/print.h"

namespace Tarvex::Data::ListEvaluationTest {
namespace {

using Testing::NumbersOf;
using Testing::PlainModel;
using Testing::PlainResolver;
using Testing::Random;
using Testing::RunsOf;
using Set = std::set<int>;

/// Elements 1 to 20 but 7. PB1 are 2, 4, 6 and PB2 are 3 to 6; "roof" is 19 and 20; #1 is 10.
PlainModel Model() {
  PlainModel model;
  for (int number = 1; number <= 20; ++number)
    if (number != 7) model.existing.insert(number);
  model.word = [](std::wstring const& word, int number) -> Set {
    if (word == L"PB" && number == 1) return {2, 4, 6};
    if (word == L"PB" && number == 2) return {3, 4, 5, 6};
    return word == L"#" && number == 1 ? Set{10} : Set();
  };
  model.named = [](std::wstring const& name) { return name == L"roof" ? Set{19, 20} : Set(); };
  return model;
}

Set Expand(std::wstring const& text, PlainModel const& model) {
  PlainResolver resolver(model);
  auto const tokens = ReadList(text, model.kind);
  EXPECT_TRUE(tokens) << CString(text).ToUtf8();
  auto const numbers = ExpandList(*tokens, model.kind, resolver);
  return NumbersOf(Intersection(numbers, RunsOf(model.existing)));
}
Set Expand(std::wstring const& text) { return Expand(text, Model()); }

TEST(ListEvaluation, UnitesItemsSideBySideAndByOr) {
  EXPECT_EQ(Expand(L"3 1 3 5"), (Set{1, 3, 5}));
  EXPECT_EQ(Expand(L"3 or 1"), (Set{1, 3}));
  EXPECT_EQ(Expand(L"1 to 3 \"roof\" #1"), (Set{1, 2, 3, 10, 19, 20}));
  EXPECT_EQ(Expand(L"none 4"), Set{4});
  EXPECT_EQ(Expand(L""), Set());
}

TEST(ListEvaluation, TakesRangesUpwardsByTheirStep) {
  EXPECT_EQ(Expand(L"3 to 6"), (Set{3, 4, 5, 6}));
  EXPECT_EQ(Expand(L"1 to 10 step 4"), (Set{1, 5, 9}));
  EXPECT_EQ(Expand(L"6 to 3"), Set());
  EXPECT_EQ(Expand(L"18 to *"), (Set{18, 19, 20}));
  EXPECT_EQ(Expand(L"*"), Set{20});
  EXPECT_EQ(Expand(L"19 to 100000000"), (Set{19, 20}));
  EXPECT_EQ(Expand(L"1 to 100000000 step 99999999"), Set{1});
}

TEST(ListEvaluation, HoldsWhatExistsOnly) {
  EXPECT_EQ(Expand(L"6 7 8 21"), (Set{6, 8}));
  EXPECT_EQ(Expand(L"all").size(), 19U);
  EXPECT_EQ(Expand(L"all not all"), Set());
}

TEST(ListEvaluation, TakesOneItemAwayByNot) {
  EXPECT_EQ(Expand(L"1 to 6 not 5 8"), (Set{1, 2, 3, 4, 6, 8}));
  EXPECT_EQ(Expand(L"1 to 6 not 2 to 5"), (Set{1, 6}));
  EXPECT_EQ(Expand(L"1 to 6 not PB1"), (Set{1, 3, 5}));
  EXPECT_EQ(Expand(L"1 to 6 not (1 2) not 3"), (Set{4, 5, 6}));
  EXPECT_EQ(Expand(L"not 5"), Set());
  EXPECT_EQ(Expand(L"5 not 5 5"), Set{5});
  // From what stands in the same parenthesis.
  EXPECT_EQ(Expand(L"1 to 4 (3 4 not 4)"), (Set{1, 2, 3, 4}));
  EXPECT_EQ(Expand(L"(1 to 4) not 4"), (Set{1, 2, 3}));
}

TEST(ListEvaluation, BindsAndCloserThanAllElse) {
  EXPECT_EQ(Expand(L"PB1 and PB2"), (Set{4, 6}));
  EXPECT_EQ(Expand(L"1 PB1 and PB2 9"), (Set{1, 4, 6, 9}));
  EXPECT_EQ(Expand(L"1 or PB1 and PB2 and 4"), (Set{1, 4}));
  EXPECT_EQ(Expand(L"(1 PB1) and (1 PB2)"), (Set{1, 4, 6}));
  EXPECT_EQ(Expand(L"2 to 5 and 4 to 8"), (Set{4, 5}));
  EXPECT_EQ(Expand(L"1 PB1 and PB2 not 4"), (Set{1, 6}));
}

TEST(ListEvaluation, TakesWhatIsMissingForNothing) {
  EXPECT_EQ(Expand(L"PB2 and"), Set());
  EXPECT_EQ(Expand(L"and PB2"), Set());
  EXPECT_EQ(Expand(L"3 and or 4"), Set{4});
  EXPECT_EQ(Expand(L"3 and and 3"), Set());
  EXPECT_EQ(Expand(L"or 9"), Set{9});
  EXPECT_EQ(Expand(L"9 not"), Set{9});
  EXPECT_EQ(Expand(L"8 9 not not 9"), Set{8});
  EXPECT_EQ(Expand(L"8 9 not or 9"), (Set{8, 9}));
  EXPECT_EQ(Expand(L"PB or 5"), Set{5});
  EXPECT_EQ(Expand(L"1 to 5 not PB"), (Set{1, 2, 3, 4, 5}));
  EXPECT_EQ(Expand(L"5 and ()"), Set());
  EXPECT_EQ(Expand(L"(5 and) 6"), Set{6});
  // "not" follows the "and" in the place of its operand, and uses up the item that another "and"
  // would take.
  EXPECT_EQ(Expand(L"3 and not 3 4"), Set{4});
  EXPECT_EQ(Expand(L"3 4 not 4 and 3"), Set{3});
  EXPECT_EQ(Expand(L"3 4 not 4 and 9"), Set{3});
}

TEST(ListEvaluation, TakesBareRangesThatTokensHoldForOneOperand) {
  auto const model = Model();
  PlainResolver resolver(model);
  ListTokens const tokens{{1, kTo, 9, kNot, 2, kTo, 5, 4}, {}};
  EXPECT_EQ(NumbersOf(ExpandList(tokens, SelElement, resolver)), (Set{1, 4, 6, 7, 8, 9}));
  ListTokens const joined{{1, kTo, 4, kAnd, 3, kTo, 9}, {}};
  EXPECT_EQ(NumbersOf(ExpandList(joined, SelElement, resolver)), (Set{3, 4}));
}

TEST(ListEvaluation, TakesNAndEForNumbersOfTheirKind) {
  auto model = Model();
  EXPECT_EQ(Expand(L"E3 N4", model), Set{3});
  model.kind = SelNode;
  EXPECT_EQ(Expand(L"E3 N4 N7", model), Set{4});
  model.kind = SelMember;
  EXPECT_EQ(Expand(L"E3 N4", model), Set());
}

TEST(ListEvaluation, SelectsCases) {
  class : public ListResolver {
   public:
    int Highest() override { return 0; }
    int Limit() override { return INT_MAX; }
    Intervals All() override { return {}; }
    Intervals Word(int, int) override { return {}; }
    Intervals Named(CString const&) override { return {}; }
  } resolver;
  auto const tokens = ReadList(L"C2 L1 to L4 not L3 A9", SelCase);
  ASSERT_TRUE(tokens);
  std::vector<SCaseRef> cases;
  for (int const token : NumbersOf(ExpandList(*tokens, SelCase, resolver)))
    cases.push_back(CaseOfToken(token));
  EXPECT_EQ(cases, (std::vector<SCaseRef>{{CaseOp::Load, 1},
                                          {CaseOp::Load, 2},
                                          {CaseOp::Load, 4},
                                          {CaseOp::Analysis, 9},
                                          {CaseOp::Combination, 2}}));
}

TEST(ListEvaluation, AgreesWithThePlainEvaluator) {
  Random random(7);
  Testing::ListForm const form{25, {L"PB", L"#", L"E", L"N", L"G"}, {L"roof", L"wall"}};
  for (int i = 0; i < 5000; ++i) {
    auto model = Model();
    std::map<std::wstring, Set> words;
    for (auto const* word : {L"PB", L"#", L"G"})
      for (int number = 0; number <= 6; ++number)
        for (int const item : model.existing)
          if (random.Percent(30)) words[word + std::to_wstring(number)].insert(item);
    model.word = [&](std::wstring const& word, int number) {
      return words[word + std::to_wstring(number)];
    };
    auto const text = Testing::RandomListText(random, form, random.Int(0, 10));
    EXPECT_EQ(Expand(text, model), Testing::PlainExpansion(text, model)) << CString(text).ToUtf8();
  }
}

// Names.

bool Names(std::wstring const& text, int number, SelType kind = SelElement) {
  return ListNames(*ReadList(text, kind), kind, number, 20);
}

TEST(ListEvaluation, TellsWhichNumbersAListNames) {
  EXPECT_TRUE(Names(L"3 50", 50));
  EXPECT_FALSE(Names(L"3 50", 49));
  EXPECT_TRUE(Names(L"40 to 60", 50));
  EXPECT_TRUE(Names(L"40 to 60 step 5", 50));
  EXPECT_FALSE(Names(L"40 to 60 step 5", 51));
  EXPECT_FALSE(Names(L"40 to 60 step 5", 61));
  EXPECT_TRUE(Names(L"E50", 50));
  EXPECT_FALSE(Names(L"N50", 50));
  EXPECT_TRUE(Names(L"N50", 50, SelNode));
  EXPECT_TRUE(Names(L"0", 0, SelNone));
}

TEST(ListEvaluation, NamesNothingByAllAndByWords) {
  EXPECT_FALSE(Names(L"all", 5));
  EXPECT_FALSE(Names(L"PB5 #5 \"roof\"", 5));
  EXPECT_TRUE(Names(L"7 to *", 15));  // "*" is 20
  EXPECT_FALSE(Names(L"7 to *", 21));
}

TEST(ListEvaluation, NamesByTheRulesOfTheList) {
  EXPECT_FALSE(Names(L"40 to 60 not 50", 50));
  EXPECT_TRUE(Names(L"40 to 60 not 50 50", 50));
  EXPECT_TRUE(Names(L"40 to 60 and 50", 50));
  EXPECT_FALSE(Names(L"40 to 60 and 51", 50));
  EXPECT_TRUE(Names(L"(40 (50))", 50));
}

// Order.

std::vector<int> Order(std::wstring const& text) {
  auto const model = Model();
  PlainResolver resolver(model);
  auto const tokens = ReadList(text, SelElement);
  auto const numbers = ExpandList(*tokens, SelElement, resolver);
  return ListOrder(*tokens, SelElement, Intersection(numbers, RunsOf(model.existing)), resolver);
}

TEST(ListEvaluation, NamesNumbersInTheOrderOfTheText) {
  EXPECT_EQ(Order(L"9 3 9 1"), (std::vector{9, 3, 1}));
  EXPECT_EQ(Order(L"\"roof\" 5 to 8 PB2 1"), (std::vector{19, 20, 5, 6, 8, 3, 4, 1}));
  EXPECT_EQ(Order(L"(8 2) (3 (1))"), (std::vector{8, 2, 3, 1}));
  EXPECT_EQ(Order(L"9 to 1 step 2 4"), std::vector{4});
  EXPECT_EQ(Order(L""), std::vector<int>());
}

TEST(ListEvaluation, DoesNotNameWhatNotTakesAway) {
  EXPECT_EQ(Order(L"9 8 7 6 not 8"), (std::vector{9, 6}));
  EXPECT_EQ(Order(L"not 8 9 8"), (std::vector{9, 8}));
  EXPECT_EQ(Order(L"not (8 (3) not 9) 9 8"), (std::vector{9, 8}));
  EXPECT_EQ(Order(L"5 1 and 1 5"), (std::vector{5, 1}));  // 5, and 1 in common, and 5 again
  EXPECT_EQ(Order(L"5 and 1 2"), std::vector{2});
}

TEST(ListEvaluation, OrdersEachNumberOfTheExpansionOnce) {
  Random random(12);
  auto const model = Model();
  Testing::ListForm const form{25, {L"PB", L"#"}, {L"roof"}};
  for (int i = 0; i < 1000; ++i) {
    auto const text = Testing::RandomListText(random, form, random.Int(0, 10));
    auto const order = Order(text);
    EXPECT_EQ(Set(order.begin(), order.end()), Testing::PlainExpansion(text, model));
    EXPECT_EQ(Set(order.begin(), order.end()).size(), order.size());
  }
}

// Very many words. Were a step of the work as long as the list, each of these would take minutes.
constexpr int kWords = 100000;

PlainModel LargeModel(int highest) {
  PlainModel model;
  for (int number = 1; number <= highest; ++number) model.existing.insert(number);
  return model;
}

/// Whether a set holds the odd numbers from 1 on, so many of them.
bool IsOdds(Set const& set, int count) {
  return set.size() == static_cast<std::size_t>(count) && *set.begin() == 1 &&
         *set.rbegin() == 2 * count - 1;
}

TEST(ListEvaluation, TakesManyWordsSideBySide) {
  std::wstring numbers;
  for (int i = 1; i <= kWords; ++i) numbers += std::to_wstring(2 * i - 1) + L" ";
  EXPECT_TRUE(IsOdds(Expand(numbers, LargeModel(2 * kWords)), kWords));
  std::wstring takenAway = L"all";
  for (int i = 1; i <= kWords / 2; ++i) takenAway += L" not " + std::to_wstring(2 * i);
  EXPECT_TRUE(IsOdds(Expand(takenAway, LargeModel(kWords)), kWords / 2));
}

TEST(ListEvaluation, TakesManyParenthesesInEachOther) {
  // ((((1) 3) 5) ... and (1 (3 (5 ...
  constexpr int kDepth = kWords / 3;
  std::wstring left(kDepth, L'(');
  std::wstring right;
  for (int i = 1; i <= kDepth; ++i) {
    left += std::to_wstring(2 * i - 1) + L")";
    right += L"(" + std::to_wstring(2 * i - 1);
  }
  right += std::wstring(kDepth, L')');
  auto const model = LargeModel(2 * kDepth);
  EXPECT_TRUE(IsOdds(Expand(left, model), kDepth));
  EXPECT_TRUE(IsOdds(Expand(right, model), kDepth));
}

TEST(ListEvaluation, TakesManyOperatorsInEachOther) {
  // 1 to * not (2 to * not (3 to * ...: from the outermost, one number is in, the next is not.
  constexpr int kDepth = kWords / 6;
  std::wstring text;
  for (int i = 1; i <= kDepth; ++i) text += std::to_wstring(i) + L" to * not (";
  text += std::wstring(kDepth, L')');
  EXPECT_EQ(Expand(text, LargeModel(kDepth)).size(), static_cast<std::size_t>(kDepth / 2));
}

}  // namespace
}  // namespace Tarvex::Data::ListEvaluationTest
