#include "store/select/list_grammar.h"

#include <gtest/gtest.h>

#include "store/select/case_tokens.h"
#include "tests/support/plain_list.h"
#include "tests/support/print.h"

namespace Tarvex::Data::ListGrammarTest {
namespace {

using Testing::Random;

/// The text that a list is kept as; its fault when it is none.
CString Kept(CString const& text, std::optional<SelType> kind = SelElement) {
  ListFault fault;
  auto const tokens = ReadList(text, kind, &fault);
  return tokens ? WriteListTokens(*tokens)
                : L"! " + CString(std::to_wstring(fault.position)) + L": " + fault.reason;
}

TEST(ListGrammar, KeepsTheWordsAsTheyAreGiven) {
  for (auto const* text : {L"",
                           L"1",
                           L"5 3 1 2",
                           L"1 2 3 4 5",
                           L"1 to 10",
                           L"10 to 1",
                           L"1 to 9 step 3",
                           L"1 to *",
                           L"*",
                           L"all",
                           L"none",
                           L"none none",
                           L"0",
                           L"all not 5",
                           L"1 and 2",
                           L"1 or 2 or 3",
                           L"PB2",
                           L"#3 or all",
                           L"\"roof\" not \"\"",
                           L"((1 2) 3) ()",
                           L"all not (1 to 10)",
                           L"X5 ZX6",
                           L"DMR1 DS2 DSR3 DCB4 DCS5"})
    EXPECT_EQ(Kept(text), text);
}

TEST(ListGrammar, WritesOneBlankBetweenWordsAndNoneAtTheEnd) {
  EXPECT_EQ(Kept(L"  1   2\t3\n"), L"1 2 3");
  EXPECT_EQ(Kept(L"(1 2 )3 not( 4)"), L"(1 2) 3 not (4)");
  EXPECT_EQ(Kept(L"PB 2 # 3 PBor 5 PB and PS"), L"PB2 #3 PB or 5 PB and PS");
  EXPECT_EQ(Kept(L"PB(1)"), L"PB (1)");
}

TEST(ListGrammar, AcceptsWhatLacksAnOperandOrANumber) {
  for (auto const* text : {L"or", L"and", L"not", L"or 9", L"and 9", L"not 9", L"PB2 and",
                           L"PB2 or", L"all not", L"PB", L"#", L"PB or 5", L"1 not not 2",
                           L"1 and and 2", L"1 and or 2", L"(and)", L"1 and not 2"})
    EXPECT_EQ(Kept(text), text);
}

TEST(ListGrammar, WritesOutRangesBehindWords) {
  EXPECT_EQ(Kept(L"PB1 to 3"), L"PB1 PB2 PB3");
  EXPECT_EQ(Kept(L"# 5 to 6 9"), L"#5 #6 9");
  EXPECT_EQ(Kept(L"G0 to 1"), L"G0 G1");
  EXPECT_EQ(Kept(L"N3 to 3"), L"N3");
  EXPECT_EQ(Kept(L"1 PB3 to 1 2"), L"1 none 2");
  EXPECT_EQ(Kept(L"all not PB3 to 1"), L"all not none");
}

TEST(ListGrammar, PutsRangesThatAreOperandsInParentheses) {
  EXPECT_EQ(Kept(L"all not 1 to 10"), L"all not (1 to 10)");
  EXPECT_EQ(Kept(L"1 to 5 and 2"), L"(1 to 5) and 2");
  EXPECT_EQ(Kept(L"2 and 1 to 5"), L"2 and (1 to 5)");
  EXPECT_EQ(Kept(L"1 to 9 step 2 and 1 to * and 3"), L"(1 to 9 step 2) and (1 to *) and 3");
  EXPECT_EQ(Kept(L"(not 1 to 10)"), L"(not (1 to 10))");
  EXPECT_EQ(Kept(L"all not (1 to 10)"), L"all not (1 to 10)");
  EXPECT_EQ(Kept(L"all not PB1 to 2"), L"all not (PB1 PB2)");
  EXPECT_EQ(Kept(L"PB1 to 2 and G1"), L"(PB1 PB2) and G1");
  EXPECT_EQ(Kept(L"G1 and PB4 to 4"), L"G1 and PB4");
  // Side by side they are no operands.
  EXPECT_EQ(Kept(L"1 not 2 3 to 4"), L"1 not 2 3 to 4");
  EXPECT_EQ(Kept(L"1 to 2 not 2"), L"1 to 2 not 2");
  EXPECT_EQ(Kept(L"1 or 3 to 4 or 6"), L"1 or 3 to 4 or 6");
}

TEST(ListGrammar, RefusesWhatIsNoList) {
  EXPECT_EQ(Kept(L"1 ten"), L"! 2: an unknown word");
  EXPECT_EQ(Kept(L"2  to 5 to 7"), L"! 8: a range without its begin");
  EXPECT_EQ(Kept(L"to 5"), L"! 0: a range without its begin");
  EXPECT_EQ(Kept(L"1 to"), L"! 2: a range without its end");
  EXPECT_EQ(Kept(L"1 to all"), L"! 2: a range without its end");
  EXPECT_EQ(Kept(L"\"roof\" to 5"), L"! 7: a range without its begin");
  EXPECT_EQ(Kept(L"PB1 to PB3"), L"! 4: a range without its end");
  EXPECT_EQ(Kept(L"PB1 to"), L"! 4: a range without its end");
  EXPECT_EQ(Kept(L"1 step 2"), L"! 2: a step without its range");
  EXPECT_EQ(Kept(L"1 to 5 step"), L"! 7: a step without its number");
  EXPECT_EQ(Kept(L"1 to 5 step *"), L"! 7: a step without its number");
  EXPECT_EQ(Kept(L"1 to 5 step 0"), L"! 12: a step below 1");
  EXPECT_EQ(Kept(L"PB1 to *"), L"! 7: \"*\" as the end of a range behind a word");
  EXPECT_EQ(Kept(L"PB*"), L"! 2: \"*\" behind a word that takes a number");
  EXPECT_EQ(Kept(L"#*"), L"! 1: \"*\" behind a word that takes a number");
  EXPECT_EQ(Kept(L"PB1 to 5 step 2"), L"! 9: a step in a range behind a word");
  EXPECT_EQ(Kept(L"(1 (2)"), L"! 0: a parenthesis that is never closed");
  EXPECT_EQ(Kept(L"(1 2"), L"! 0: a parenthesis that is never closed");
  EXPECT_EQ(Kept(L"1) 2"), L"! 1: a parenthesis that was never opened");
}

TEST(ListGrammar, RefusesToWriteOutTooMuch) {
  EXPECT_EQ(Kept(L"PB1 to 100000000"),
            L"! 0: a range behind a word that would write out more than 100000 numbers");
  // 100001 numbers are 100000 more than the one that a word has anyway; all ranges of a list count.
  auto const most = ReadList(L"PB1 to 100001", SelElement);
  ASSERT_TRUE(most);
  EXPECT_EQ(most->words.size(), 200002U);
  EXPECT_EQ(Kept(L"5 PB1 to 100002").Left(5), L"! 2: ");
  EXPECT_EQ(Kept(L"G1 to 60001 G1 to 40002").Left(6), L"! 12: ");
}

TEST(ListGrammar, KeepsTokensAsTheyWereWhenItRefusesThem) {
  ListTokens const bad{{5, kTo}, {}};
  auto tokens = bad;
  ListFault fault;
  EXPECT_FALSE(NormalizeList(tokens, &fault));
  EXPECT_EQ(fault.position, 1);  // among the words
  EXPECT_EQ(tokens, bad);
  EXPECT_FALSE(NormalizeList(tokens));
}

TEST(ListGrammar, KnowsNoTokenThatIsNoWord) {
  for (int const token : {-25, -26, -33, -40, -49, -56, -59, -100, 100000001}) {
    ListTokens tokens{{1, token}, {}};
    ListFault fault;
    EXPECT_FALSE(NormalizeList(tokens, &fault)) << token;
    EXPECT_EQ(fault.reason, L"an unknown word");
  }
}

TEST(ListGrammar, HasAsManyStringsAsQuotedNames) {
  ListTokens tokens{{kString, 3}, {L"a", L"b"}};
  ASSERT_TRUE(NormalizeList(tokens));
  EXPECT_EQ(tokens.strings, std::vector<CString>{L"a"});
  tokens = {{kString, kString}, {L"a"}};
  ASSERT_TRUE(NormalizeList(tokens));
  EXPECT_EQ(tokens.strings, (std::vector<CString>{L"a", L""}));
}

TEST(ListGrammar, HasCasesInListsOfCasesOnly) {
  for (auto const* text : {L"L1", L"A2 C3 T4", L"L1 to L5", L"L1 to L9 step 2", L"all", L"none",
                           L"all not (L1 to L3)", L"#3", L"\"wind\""})
    EXPECT_EQ(Kept(text, SelCase), text);
  EXPECT_EQ(Kept(L"L1 5", SelCase), L"! 3: a number without the letter of its case");
  EXPECT_EQ(Kept(L"L1 to 5", SelCase), L"! 0: a number without the letter of its case");
  EXPECT_EQ(Kept(L"L1 to A5", SelCase), L"! 6: a range whose ends are not of one kind");
  EXPECT_EQ(Kept(L"L1 G2", SelCase), L"! 3: a word that lists of cases do not know");
  EXPECT_EQ(Kept(L"G", SelCase), L"! 0: a word that lists of cases do not know");
  EXPECT_EQ(Kept(L"1 L2", SelElement), L"! 2: a case in a list of elements");
  EXPECT_EQ(Kept(L"1 L2", SelNone), L"! 2: a case in a list of numbers");
  EXPECT_EQ(Kept(L"L2", std::nullopt), L"L2");
  EXPECT_EQ(ReadList(L"C3", SelCase)->words, std::vector{CaseToken({CaseOp::Combination, 3})});
}

TEST(ListGrammar, TellsPlainLists) {
  EXPECT_TRUE(IsPlainList({{1, 5, 0}, {}}));
  EXPECT_TRUE(IsPlainList({}));
  for (auto const* text : {L"1 to 3", L"1 or 2", L"(1)", L"*", L"all", L"N1", L"none"})
    EXPECT_FALSE(IsPlainList(*ReadList(text, SelNode))) << CString(text).ToUtf8();
}

TEST(ListGrammar, TellsListsThatNeedNoModel) {
  for (auto const* text : {L"", L"1 to 3", L"1 to 9 step 2 not (5) and 7", L"none", L"N1", L"PB"})
    EXPECT_TRUE(NeedsNoModel(*ReadList(text, SelNode), SelNode)) << CString(text).ToUtf8();
  for (auto const* text : {L"all", L"*", L"1 to *", L"* to 1", L"E1", L"PB1", L"#1", L"\"a\""})
    EXPECT_FALSE(NeedsNoModel(*ReadList(text, SelNode), SelNode)) << CString(text).ToUtf8();
}

TEST(ListGrammar, TellsTheWordOfAKind) {
  EXPECT_TRUE(IsOwnNumberWord(-13, SelNode));
  EXPECT_TRUE(IsOwnNumberWord(-14, SelElement));
  EXPECT_FALSE(IsOwnNumberWord(-13, SelElement));
  EXPECT_FALSE(IsOwnNumberWord(-14, SelNode));
  EXPECT_FALSE(IsOwnNumberWord(-13, SelMember));
  EXPECT_FALSE(IsOwnNumberWord(-14, SelMember));
  EXPECT_FALSE(IsOwnNumberWord(-15, SelElement));
}

Testing::ListForm const kForm{
    40, {L"P", L"PB", L"G", L"#", L"N", L"E", L"X", L"YZ", L"MT", L"DSR"}, {L"roof", L""}};

TEST(ListGrammar, PrintsWhatReadsBackToTheSameTokens) {
  Random random(21);
  for (int i = 0; i < 3000; ++i) {
    auto const text = Testing::RandomListText(random, kForm, random.Int(0, 12));
    auto const tokens = ReadList(text, SelElement);
    ASSERT_TRUE(tokens) << CString(text).ToUtf8();
    auto const printed = WriteListTokens(*tokens);
    EXPECT_EQ(ReadList(printed, SelElement), tokens) << printed.ToUtf8();
    EXPECT_EQ(ReadListTokens(printed), tokens) << printed.ToUtf8();  // nothing left to change
    EXPECT_EQ(printed.Find(L"  "), -1);
    EXPECT_FALSE(printed.Str().ends_with(L' '));
  }
}

TEST(ListGrammar, TakesAHundredThousandWordsAndParentheses) {
  constexpr std::size_t kMany = 100000;
  std::wstring const open(kMany, L'(');
  std::wstring const close(kMany, L')');
  auto const nested = ReadList(open + L"7" + close, SelElement);
  ASSERT_TRUE(nested);
  EXPECT_EQ(nested->words.size(), 2 * kMany + 1);
  EXPECT_EQ(Kept(open + L"7"), L"! 99999: a parenthesis that is never closed");
}

}  // namespace
}  // namespace Tarvex::Data::ListGrammarTest
