#include "store/select/list_rewrite.h"

#include <gtest/gtest.h>

#include "store/select/list_grammar.h"
#include "tests/support/plain_list.h"
#include "tests/support/print.h"

namespace Tarvex::Data::ListRewriteTest {
namespace {

using Testing::Random;
using Set = std::set<int>;

constexpr int kHighestHere = 20;

ListTokens Read(CString const& text, SelType kind = SelElement) {
  auto tokens = ReadList(text, kind);
  EXPECT_TRUE(tokens) << text.ToUtf8();
  return tokens.value_or(ListTokens());
}

CString Appended(CString const& text, std::vector<int> const& words) {
  auto tokens = Read(text);
  for (int const word : words) AppendToList(tokens, word);
  return WriteListTokens(tokens);
}

TEST(ListRewrite, AppendsBehindWhatStands) {
  EXPECT_EQ(Appended(L"8", {9}), L"8 9");
  EXPECT_EQ(Appended(L"1 to 3", {4, 4}), L"1 to 3 4 4");
  EXPECT_EQ(Appended(L"all not (5)", {5}), L"all not (5) 5");
  EXPECT_EQ(Appended(L"1", {kAll}), L"1 all");
}

TEST(ListRewrite, AppendsInThePlaceOfNothing) {
  EXPECT_EQ(Appended(L"", {5}), L"5");
  EXPECT_EQ(Appended(L"none", {5, 6}), L"5 6");
  EXPECT_EQ(Appended(L"()", {kAll}), L"all");
}

TEST(ListRewrite, LetsNothingFallUnderADanglingWord) {
  EXPECT_EQ(Appended(L"PB", {5}), L"PB or 5");
  EXPECT_EQ(Appended(L"#", {5}), L"# or 5");
  EXPECT_EQ(Appended(L"1 and", {5}), L"1 and or 5");
  EXPECT_EQ(Appended(L"1 not", {5}), L"1 not or 5");
  EXPECT_EQ(Appended(L"1 or", {5}), L"1 or 5");
  EXPECT_EQ(Appended(L"PB", {kOr, 5}), L"PB or 5");
  EXPECT_EQ(Appended(L"1", {-16, 2}), L"1 PB or 2");
}

CString Removed(CString const& text, int number, SelType kind = SelElement) {
  auto tokens = Read(text, kind);
  RemoveFromList(tokens, kind, number, kHighestHere);
  return WriteListTokens(tokens);
}

TEST(ListRewrite, LetsTheHighestNotFallUnderAWordThatLostItsNumber) {
  EXPECT_EQ(Removed(L"N N7 *", 7, SelNode), L"N or *");
  EXPECT_EQ(Removed(L"PB E7 *", 7), L"PB or *");
}

TEST(ListRewrite, TakesNumbersOutOfPlainLists) {
  EXPECT_EQ(Removed(L"7 8 9", 8), L"7 9");
  EXPECT_EQ(Removed(L"8 7 8", 8), L"7");
  EXPECT_EQ(Removed(L"8", 8), L"");
  EXPECT_EQ(Removed(L"7 or 8 or 9", 8), L"7 or 9");
  EXPECT_EQ(Removed(L"8 or 9", 8), L"9");
  EXPECT_EQ(Removed(L"(8) none", 8), L"");
  EXPECT_EQ(Removed(L"PB or 8 9", 8), L"PB or 9");
}

TEST(ListRewrite, SplitsTheRangeThatHoldsTheNumber) {
  EXPECT_EQ(Removed(L"1 to 10", 5), L"1 to 4 6 to 10");
  EXPECT_EQ(Removed(L"1 to 10", 2), L"1 3 to 10");
  EXPECT_EQ(Removed(L"1 to 10", 3), L"1 2 4 to 10");
  EXPECT_EQ(Removed(L"1 to 10", 10), L"1 to 9");
  EXPECT_EQ(Removed(L"1 to 3", 2), L"1 3");
  EXPECT_EQ(Removed(L"1 to 9 step 2", 5), L"1 3 7 9");
  EXPECT_EQ(Removed(L"1 to 13 step 2", 5), L"1 3 7 to 13 step 2");
  EXPECT_EQ(Removed(L"1 to 9 step 2", 4), L"1 to 9 step 2");
  EXPECT_EQ(Removed(L"15 to *", 17), L"15 16 18 to *");
  EXPECT_EQ(Removed(L"15 to *", 20), L"15 to 19");
}

TEST(ListRewrite, TakesAwayByNotFromAllOtherLists) {
  EXPECT_EQ(Removed(L"all", 5), L"all not 5");
  EXPECT_EQ(Removed(L"all not 5", 7), L"all not (5 7)");
  EXPECT_EQ(Removed(L"all not (5 7)", 9), L"all not (5 7 9)");
  EXPECT_EQ(Removed(L"all not (5 to 7)", 9), L"all not (5 to 7) not 9");
  EXPECT_EQ(Removed(L"all and (5 7)", 5), L"all and (5 7) not 5");
  EXPECT_EQ(Removed(L"PB2 5", 5), L"PB2 5 not 5");
  EXPECT_EQ(Removed(L"5 and", 5), L"5 and not 5");
  EXPECT_EQ(Removed(L"\"roof\"", 5), L"\"roof\" not 5");
  EXPECT_EQ(Removed(L"N5 6", 5, SelNode), L"6");
  EXPECT_EQ(Removed(L"N5 6", 5, SelElement), L"N5 6 not 5");
}

using Map = std::map<int, std::vector<int>>;

/// The text after a replacement, "=" when it tells that nothing changed.
CString Replaced(CString const& text, Map const& numbers, SelType kind = SelElement) {
  auto tokens = Read(text, kind);
  auto const before = tokens;
  if (ReplaceInList(tokens, kind, numbers, kHighestHere)) return WriteListTokens(tokens);
  EXPECT_EQ(tokens, before);
  return L"=";
}

TEST(ListRewrite, ReplacesNumbersByTheirVector) {
  EXPECT_EQ(Replaced(L"4 5 6", {{5, {7, 9}}}), L"4 7 9 6");
  EXPECT_EQ(Replaced(L"5", {{5, {}}}), L"");
  EXPECT_EQ(Replaced(L"5 6", {{5, {0}}}), L"6");
  EXPECT_EQ(Replaced(L"5 6", {{5, {6}}, {6, {5}}}), L"6 5");  // each once, by its old number
  EXPECT_EQ(Replaced(L"4", {{5, {7}}}), L"=");
  EXPECT_EQ(Replaced(L"5", {{5, {5}}}), L"=");
  EXPECT_EQ(Replaced(L"", {{5, {7}}}), L"=");
}

TEST(ListRewrite, WritesARangeOutOnlyWhereItMust) {
  EXPECT_EQ(Replaced(L"1 to 10", {{5, {20, 30}}}), L"1 to 4 20 30 6 to 10");
  EXPECT_EQ(Replaced(L"1 to 10", {{1, {11}}, {10, {}}}), L"11 2 to 9");
  EXPECT_EQ(Replaced(L"1 to 9 step 2", {{4, {30}}}), L"=");
  EXPECT_EQ(Replaced(L"1 to 10", {{11, {30}}}), L"=");
  EXPECT_EQ(Replaced(L"15 to *", {{16, {3}}}), L"15 3 17 to *");
  EXPECT_EQ(Replaced(L"3 to 1", {{2, {30}}}), L"=");
}

TEST(ListRewrite, LeavesAloneWhatNeedsAModel) {
  for (auto const* text : {L"all", L"PB5", L"#5", L"\"5\"", L"X5", L"all not PB5", L"N5"})
    EXPECT_EQ(Replaced(text, {{5, {7}}}), L"=") << CString(text).ToUtf8();
  EXPECT_EQ(Replaced(L"1 to 9 step 5", {{5, {7}}}), L"=");
}

TEST(ListRewrite, ReplacesTheNumberBehindTheWordOfTheKind) {
  EXPECT_EQ(Replaced(L"E5", {{5, {7}}}), L"E7");
  EXPECT_EQ(Replaced(L"all not E5", {{5, {7, 8}}}), L"all not (E7 E8)");
  EXPECT_EQ(Replaced(L"N5", {{5, {7}}}, SelNode), L"N7");
}

TEST(ListRewrite, PutsSeveralNumbersOfAnOperandInParentheses) {
  Map const two{{5, {7, 8}}};
  EXPECT_EQ(Replaced(L"all not 5", two), L"all not (7 8)");
  EXPECT_EQ(Replaced(L"5 and 6", two), L"(7 8) and 6");
  EXPECT_EQ(Replaced(L"6 and 5", two), L"6 and (7 8)");
  EXPECT_EQ(Replaced(L"all not (5)", two), L"all not (7 8)");
  EXPECT_EQ(Replaced(L"all not (1 to 9)", {{5, {5, 7}}}), L"all not (1 to 4 5 7 6 to 9)");
  EXPECT_EQ(Replaced(L"all not 5", {{5, {7}}}), L"all not 7");
}

TEST(ListRewrite, TakesTheOperatorAwayWithItsOperand) {
  Map const gone{{5, {}}};
  EXPECT_EQ(Replaced(L"all not 5", gone), L"all");
  EXPECT_EQ(Replaced(L"all not 5 7", gone), L"all 7");
  EXPECT_EQ(Replaced(L"1 or 5 or 2", gone), L"1 or 2");
}

TEST(ListRewrite, KeepsThePlaceWhereTheOthersWouldChangeTheirMeaning) {
  Map const gone{{5, {}}};
  EXPECT_EQ(Replaced(L"3 5 and 7", gone), L"3 none and 7");
  EXPECT_EQ(Replaced(L"3 and 5 7", gone), L"3 and none 7");
  EXPECT_EQ(Replaced(L"3 not 5 and 7", gone), L"3 not none and 7");
  EXPECT_EQ(Replaced(L"3 and not 5 7", gone), L"3 and not none 7");
  EXPECT_EQ(Replaced(L"3 and or 5 7", gone), L"3 and or 7");
  EXPECT_EQ(Replaced(L"3 PB or 5 7", gone), L"3 PB or 7");
}

TEST(ListRewrite, EmptiesAListThatNamesNothing) {
  EXPECT_EQ(Replaced(L"(5) or none", {{5, {}}}), L"");
  EXPECT_EQ(Replaced(L"5 5 to 5", {{5, {}}}), L"");
}

TEST(ListRewrite, KeepsTheNamesInTheirPlaces) {
  auto tokens = Read(L"\"a\" 5 \"b\"");
  ASSERT_TRUE(ReplaceInList(tokens, SelElement, {{5, {6}}}, kHighestHere));
  EXPECT_EQ(WriteListTokens(tokens), L"\"a\" 6 \"b\"");
}

CString WrittenOut(CString const& text) {
  auto tokens = Read(text);
  EXPECT_TRUE(WriteOutRanges(tokens));
  return WriteListTokens(tokens);
}

TEST(ListRewrite, WritesRangesOut) {
  EXPECT_EQ(WrittenOut(L"1 to 4 9"), L"1 2 3 4 9");
  EXPECT_EQ(WrittenOut(L"1 to 9 step 4"), L"1 5 9");
  EXPECT_EQ(WrittenOut(L"all not (3 to 4)"), L"all not (3 4)");
  EXPECT_EQ(WrittenOut(L"5 4 to 3"), L"5");
  EXPECT_EQ(WrittenOut(L"1 to *"), L"1 to *");
  EXPECT_EQ(WrittenOut(L"or 1"), L"or 1");  // nothing to do
  // A bare range, as tokens may hold it.
  ListTokens tokens{{kAll, kNot, 1, kTo, 3}, {}};
  EXPECT_TRUE(WriteOutRanges(tokens));
  EXPECT_EQ(WriteListTokens(tokens), L"all not (1 2 3)");
}

TEST(ListRewrite, RefusesToWriteOutTooMuch) {
  auto tokens = Read(L"5 1 to 100000000");
  auto const before = tokens;
  EXPECT_FALSE(WriteOutRanges(tokens));
  EXPECT_EQ(tokens, before);
  tokens = Read(L"PB1");
  EXPECT_FALSE(WriteOutWords(tokens, [](int, int) { return Intervals{{1, 100000000}}; }));
  EXPECT_EQ(WriteListTokens(tokens), L"PB1");
}

TEST(ListRewrite, WritesWordsOut) {
  auto const expand = [](int token, int number) -> std::optional<Intervals> {
    if (token == -24) return std::nullopt;  // G
    return number == 1 ? Intervals{{2, 4}, {9, 9}} : Intervals();
  };
  auto const written = [&](CString const& text) {
    auto tokens = Read(text);
    EXPECT_TRUE(WriteOutWords(tokens, expand));
    return WriteListTokens(tokens);
  };
  EXPECT_EQ(written(L"PB1 7 G1"), L"2 3 4 9 7 G1");
  EXPECT_EQ(written(L"all not PB1"), L"all not (2 3 4 9)");
  EXPECT_EQ(written(L"5 PB2"), L"5");
  EXPECT_EQ(written(L"all and PB2"), L"all and none");
  EXPECT_EQ(written(L"PB2"), L"");
}

TEST(ListRewrite, WritesCompactly) {
  auto const text = [](Intervals const& numbers) {
    return WriteListTokens({CompactWords(numbers), {}});
  };
  EXPECT_EQ(text({}), L"");
  EXPECT_EQ(text({{1, 5}, {8, 8}}), L"1 to 5 8");
  EXPECT_EQ(text({{1, 2}, {4, 6}}), L"1 2 4 to 6");
}

// The rewritten list, judged by what it selects.

Testing::PlainModel Model(Random& random) {
  Testing::PlainModel model;
  for (int number = 1; number <= kHighestHere; ++number)
    if (random.Percent(80)) model.existing.insert(number);
  model.existing.insert(kHighestHere);
  auto const existing = model.existing;
  model.word = [existing](std::wstring const&, int number) {
    Set set;
    for (int const item : existing)
      if (item % 4 == number % 4) set.insert(item);
    return set;
  };
  return model;
}

Testing::ListForm const kForm{kHighestHere, {L"PB", L"E"}, {L"roof"}};

TEST(ListRewrite, LeavesEveryOtherNumberWhenOneIsTakenOut) {
  Random random(31);
  for (int i = 0; i < 3000; ++i) {
    auto const model = Model(random);
    auto const text = Testing::RandomListText(random, kForm, random.Int(0, 8));
    auto expected = Testing::PlainExpansion(text, model);
    int const number = random.Int(1, kHighestHere);
    auto const left = Removed(CString(text), number);
    EXPECT_EQ(Read(left), Read(left));  // still a list
    expected.erase(number);
    EXPECT_EQ(Testing::PlainExpansion(left.Str(), model), expected)
        << CString(text).ToUtf8() << " without " << number << ": " << left.ToUtf8();
  }
}

TEST(ListRewrite, SelectsTheNewNumbersInThePlaceOfTheOld) {
  // Old numbers are those up to 20, new ones lie above and come from one old number each. So a new
  // number is selected when the old one was, whatever the operators, as long as no word or "all"
  // tells them apart.
  Random random(32);
  Testing::ListForm const form{kHighestHere, {}, {}};
  for (int i = 0; i < 3000; ++i) {
    Testing::PlainModel before;
    Testing::PlainModel after;
    Map numbers;
    std::map<int, int> source;
    int next = kHighestHere;
    for (int number = 1; number <= kHighestHere; ++number) {
      before.existing.insert(number);
      if (number == kHighestHere || random.Percent(70)) {
        after.existing.insert(number);
        source[number] = number;
        continue;
      }
      auto& to = numbers[number];
      for (int count = random.Int(0, 2); count > 0; --count) {
        to.push_back(++next);
        source[next] = number;
        after.existing.insert(next);
      }
    }
    auto text = Testing::RandomListText(random, form, random.Int(0, 8));
    for (auto const* word : {L"all", L"*"})  // which go by the model
      for (auto at = text.find(word); at != std::wstring::npos; at = text.find(word))
        text.replace(at, std::wcslen(word), L"3");
    auto const old = Testing::PlainExpansion(text, before);
    Set expected;
    for (auto const& [item, from] : source)
      if (old.contains(from)) expected.insert(item);
    auto tokens = Read(CString(text));
    ReplaceInList(tokens, SelElement, numbers, kHighestHere);
    auto const now = WriteListTokens(tokens);
    EXPECT_EQ(Read(now), tokens);
    EXPECT_EQ(Testing::PlainExpansion(now.Str(), after), expected)
        << CString(text).ToUtf8() << ": " << now.ToUtf8();
  }
}

TEST(ListRewrite, SelectsTheSameWhenWrittenOut) {
  Random random(33);
  for (int i = 0; i < 2000; ++i) {
    auto const model = Model(random);
    auto const text = Testing::RandomListText(random, kForm, random.Int(0, 8));
    auto tokens = Read(CString(text));
    EXPECT_TRUE(WriteOutRanges(tokens));
    EXPECT_TRUE(WriteOutWords(tokens, [&](int token, int number) -> std::optional<Intervals> {
      if (token != -16) return std::nullopt;
      return Testing::RunsOf(model.word(L"PB", number));
    }));
    auto const now = WriteListTokens(tokens);
    EXPECT_EQ(Read(now), tokens) << now.ToUtf8();
    EXPECT_EQ(Testing::PlainExpansion(now.Str(), model), Testing::PlainExpansion(text, model))
        << CString(text).ToUtf8() << ": " << now.ToUtf8();
  }
}

TEST(ListRewrite, ReadsBackWhatItWritesCompactly) {
  Random random(34);
  for (int i = 0; i < 500; ++i) {
    Set numbers;
    for (int count = random.Int(0, 40); count > 0; --count) numbers.insert(random.Int(1, 60));
    Testing::PlainModel model;
    model.existing = numbers;
    auto const text = WriteListTokens({CompactWords(Testing::RunsOf(numbers)), {}});
    EXPECT_EQ(Testing::PlainExpansion(text.Str(), model), numbers);
    // As short as its rule makes it: no number stands singly beside two neighbours of it.
    EXPECT_EQ(CompactWords(Testing::RunsOf(numbers)), Read(text).words);
  }
}

}  // namespace
}  // namespace Tarvex::Data::ListRewriteTest
