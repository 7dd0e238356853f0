#include "store/select/list_tokens.h"

#include <gtest/gtest.h>

#include "tests/support/print.h"
#include "tests/support/random_model.h"

namespace Tarvex::Data::ListTokensTest {
namespace {

using Words = std::vector<int>;

std::optional<Words> Read(std::wstring_view text) {
  auto const tokens = ReadListTokens(text);
  return tokens ? std::optional(tokens->words) : std::nullopt;
}

CString Write(Words const& words) { return WriteListTokens({words, {}}); }

/// "place: reason" of a text that does not read.
std::string FaultOf(std::wstring_view text) {
  ListFault fault{-1, L""};
  if (ReadListTokens(text, &fault)) return "none";
  return std::to_string(fault.position) + ": " + fault.reason.ToUtf8();
}

struct Row {
  int token;
  wchar_t const* text;  // without the trailing blank
};

/// The keywords of lists, all but the quoted string.
constexpr Row kRows[] = {{-1, L"to"},   {-2, L"not"},  {-3, L"step"}, {-4, L"all"},  {-5, L"none"},
                         {-6, L"*"},    {-7, L"and"},  {-8, L"or"},   {-9, L"("},    {-10, L")"},
                         {-12, L"#"},   {-13, L"N"},   {-14, L"E"},   {-15, L"P"},   {-16, L"PB"},
                         {-17, L"PS"},  {-18, L"PM"},  {-19, L"PA"},  {-20, L"PL"},  {-21, L"PC"},
                         {-22, L"PG"},  {-23, L"PV"},  {-24, L"G"},   {-27, L"DMR"}, {-28, L"DS"},
                         {-29, L"DSR"}, {-30, L"DCB"}, {-31, L"DCS"}, {-32, L"PD"},  {-34, L"X"},
                         {-35, L"Y"},   {-36, L"XY"},  {-37, L"Z"},   {-38, L"ZX"},  {-39, L"YZ"},
                         {-50, L"M"},   {-51, L"MS"},  {-52, L"MC"},  {-53, L"MA"},  {-54, L"MG"},
                         {-55, L"MP"},  {-57, L"MT"},  {-58, L"MF"}};

TEST(ListTokens, ReadsAndWritesEveryWord) {
  for (auto const& [token, text] : kRows) {
    EXPECT_EQ(Read(text), Words{token}) << token;
    EXPECT_EQ(Write({token}), text) << token;
    // Behind the word a number, with and without a blank.
    EXPECT_EQ(Read(CString(text) + L" 5"), (Words{token, 5})) << token;
    EXPECT_EQ(Read(CString(text) + L"5"), (Words{token, 5})) << token;
  }
}

TEST(ListTokens, KnowsNoOtherWord) {
  EXPECT_EQ(ListWords().size(), std::size(kRows));
  for (auto const* text : {L"t", L"To", L"ALL", L"n", L"e", L"D", L"DC", L"DM", L"Q", L"@", L"'a'",
                           L".", L",", L"5.5", L"1,2", L"+5", L"[", L"ä"})
    EXPECT_EQ(Read(text), std::nullopt) << CString(text).ToUtf8();
}

TEST(ListTokens, HasFixedNumbersForTheNamedWords) {
  EXPECT_EQ((Words{kTo, kNot, kStep, kAll, kNone, kHighest, kAnd, kOr, kOpen, kClose, kString,
                   kSavedList}),
            (Words{-1, -2, -3, -4, -5, -6, -7, -8, -9, -10, -11, -12}));
}

TEST(ListTokens, KnowsThePrefixWords) {
  for (int token = -100; token <= 100; ++token)
    EXPECT_EQ(IsPrefixWord(token), (token <= -13 && token >= -39) || (token <= -50 && token >= -58))
        << token;
}

TEST(ListTokens, TakesTheLongestWord) {
  EXPECT_EQ(Read(L"PBor 5"), (Words{-16, -8, 5}));
  EXPECT_EQ(Read(L"Mto 5"), (Words{-50, -1, 5}));
  EXPECT_EQ(Read(L"MS5"), (Words{-51, 5}));
  EXPECT_EQ(Read(L"DSR5 DS5"), (Words{-29, 5, -28, 5}));
  EXPECT_EQ(Read(L"XYZ"), (Words{-36, -37}));
  EXPECT_EQ(Read(L"X YZ"), (Words{-34, -39}));
  EXPECT_EQ(Read(L"PD 1"), (Words{-32, 1}));
  EXPECT_EQ(Read(L"PDCB"), std::nullopt);  // PD, then C, which is no word
}

TEST(ListTokens, NeedsNoBlankWhereNoneIsAmbiguous) {
  EXPECT_EQ(Read(L"all not(1to 5)"), (Words{-4, -2, -9, 1, -1, 5, -10}));
  EXPECT_EQ(Read(L"((1))and((2))"), (Words{-9, -9, 1, -10, -10, -7, -9, -9, 2, -10, -10}));
  EXPECT_EQ(Read(L"#3#4"), (Words{-12, 3, -12, 4}));
  EXPECT_EQ(Read(L"1 to*"), (Words{1, -1, -6}));
}

TEST(ListTokens, PassesOverBlanks) {
  EXPECT_EQ(Read(L""), Words());
  EXPECT_EQ(Read(L" \t\r\n"), Words());
  EXPECT_EQ(Read(L" \t1\r\n  to \n10\t"), (Words{1, -1, 10}));
  EXPECT_EQ(Read(L"1\u00A02"), std::nullopt);
}

TEST(ListTokens, ReadsNumbersUpToTheHighest) {
  EXPECT_EQ(Read(L"0 007 100000000"), (Words{0, 7, 100000000}));
  EXPECT_EQ(FaultOf(L"100000001"), "0: a number above 100000000");
  EXPECT_EQ(FaultOf(L"1 99999999999999999999999"), "2: a number above 100000000");
}

TEST(ListTokens, ReadsTheNumbersOfFiveWordsAsWords) {
  EXPECT_EQ(Read(L"-50 5 -53 -54-57 -58"), (Words{-50, 5, -53, -54, -57, -58}));
  EXPECT_EQ(Write({-50, 5}), L"M5");
  EXPECT_EQ(Write({-58, 5}), L"MF5");
}

TEST(ListTokens, RefusesAnyOtherNegativeNumber) {
  for (int n = 1; n <= 70; ++n) {
    if (n == 50 || n == 53 || n == 54 || n == 57 || n == 58) continue;
    CString text;
    text.Format(L"3 -%i", n);
    EXPECT_EQ(FaultOf(text), "2: a negative number") << n;
  }
  EXPECT_EQ(FaultOf(L"-0"), "0: a negative number");
  EXPECT_EQ(FaultOf(L"1 to -"), "5: a sign without a number");
  EXPECT_EQ(FaultOf(L"- 50"), "0: a sign without a number");
}

TEST(ListTokens, ReadsQuotedNamesInTheirOrder) {
  auto const tokens = ReadListTokens(L"\"floor 1\"not\"\" \"to ) 5\u00FC\"");
  ASSERT_TRUE(tokens);
  EXPECT_EQ(tokens->words, (Words{-11, -2, -11, -11}));
  EXPECT_EQ(tokens->strings, (std::vector<CString>{L"floor 1", L"", L"to ) 5\u00FC"}));
  EXPECT_EQ(WriteListTokens(*tokens), L"\"floor 1\" not \"\" \"to ) 5\u00FC\"");
}

TEST(ListTokens, NamesPlaceAndReasonOfAFault) {
  EXPECT_EQ(FaultOf(L"1 to 5 \"roof"), "7: a quoted name without its end");
  EXPECT_EQ(FaultOf(L"1 to ten"), "5: an unknown word");
  EXPECT_EQ(FaultOf(L"\u00FC"), "0: an unknown word");
  EXPECT_EQ(FaultOf(L"1 to 5"), "none");
  EXPECT_EQ(ReadListTokens(L"ten"), std::nullopt);  // a fault need not be asked for
}

TEST(ListTokens, WritesOneBlankBetweenWordsAndNoneAtTheEnd) {
  EXPECT_EQ(Write({}), L"");
  EXPECT_EQ(Write({1, -1, 10, -3, 2}), L"1 to 10 step 2");
  EXPECT_EQ(Write({-4, -2, -9, 1, -1, 10, -10}), L"all not (1 to 10)");
  EXPECT_EQ(Write({-9, -9, 1, -10, -7, 2, -10, 5}), L"((1) and 2) 5");
  EXPECT_EQ(Write({-16, 1, -16, 2, 7}), L"PB1 PB2 7");
  EXPECT_EQ(Write({1, -1, -6}), L"1 to *");
  EXPECT_EQ(Write({-12, 4, -8, -4}), L"#4 or all");
}

TEST(ListTokens, ReadsBackEveryPairOfWords) {
  for (auto const& a : kRows)
    for (auto const& b : kRows) {
      Words const words{a.token, b.token, 5};
      EXPECT_EQ(Read(Write(words)), words) << Write(words).ToUtf8();
    }
}

TEST(ListTokens, ReadsBackAnySequenceOfWords) {
  Testing::Random random(3);
  for (int i = 0; i < 500; ++i) {
    ListTokens tokens;
    for (int k = random.Int(0, 12); k > 0; --k) {
      int const draw = random.Int(0, 2);
      auto const at = static_cast<std::size_t>(random.Int(0, std::size(kRows) - 1));
      tokens.words.push_back(draw == 0   ? kRows[at].token
                             : draw == 1 ? random.Int(0, 100000000)
                                         : -11);
      if (draw == 2) tokens.strings.push_back(random.Percent(50) ? L"roof 5 " : L"");
    }
    auto const text = WriteListTokens(tokens);
    EXPECT_EQ(ReadListTokens(text), tokens) << text.ToUtf8();
    EXPECT_EQ(CString(text).TrimLeft().TrimRight(), text);
    EXPECT_EQ(text.Find(L"  "), -1) << text.ToUtf8();
  }
}

TEST(ListTokens, ReadsAndWritesAHundredThousandWords) {
  Words words;
  for (int n = 1; n <= 25000; ++n) words.insert(words.end(), {2 * n, kTo, 2 * n + 1, kOr});
  auto const text = Write(words);
  EXPECT_EQ(Read(text), words);
  std::wstring const open(100000, L'(');
  EXPECT_EQ(Read(open), Words(100000, kOpen));
}

}  // namespace
}  // namespace Tarvex::Data::ListTokensTest
