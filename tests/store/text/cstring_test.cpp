#include "store/text/cstring.h"

#include <gtest/gtest.h>

#include <climits>

#include "tests/support/print.h"

namespace Tarvex::CstringTest {
namespace {

CString const kText(L"beam to beam");

TEST(CString, IsEmptyAtFirst) {
  CString const text;
  EXPECT_TRUE(text.IsEmpty());
  EXPECT_EQ(text.GetLength(), 0);
  EXPECT_EQ(text, L"");
}

TEST(CString, ConvertsFromAndToTheStandardString) {
  std::wstring const standard(L"a\0b", 3);
  CString const text(standard);
  EXPECT_EQ(text.GetLength(), 3);
  EXPECT_EQ(text.Str(), standard);
  EXPECT_EQ(CString(std::wstring_view(standard)), text);
  EXPECT_STREQ(kText.c_str(), L"beam to beam");
}

TEST(CString, FindsTheFirstOccurrenceAtOrBehindAStart) {
  EXPECT_EQ(kText.Find(L"beam"), 0);
  EXPECT_EQ(kText.Find(L"beam", 1), 8);
  EXPECT_EQ(kText.Find(L"beam", 8), 8);
  EXPECT_EQ(kText.Find(L"beam", 9), -1);
  EXPECT_EQ(kText.Find(L"beam", 1000), -1);
  EXPECT_EQ(kText.Find(L"beam", -5), 0);
  EXPECT_EQ(kText.Find(L"Beam"), -1);
  EXPECT_EQ(CString().Find(L"a"), -1);
}

TEST(CString, TakesCharactersFromTheLeft) {
  EXPECT_EQ(kText.Left(4), L"beam");
  EXPECT_EQ(kText.Left(0), L"");
  EXPECT_EQ(kText.Left(-1), L"");
  EXPECT_EQ(kText.Left(INT_MAX), kText);
}

TEST(CString, TakesCharactersFromTheRight) {
  EXPECT_EQ(kText.Right(7), L"to beam");
  EXPECT_EQ(kText.Right(0), L"");
  EXPECT_EQ(kText.Right(INT_MIN), L"");
  EXPECT_EQ(kText.Right(12), kText);
  EXPECT_EQ(kText.Right(13), kText);
}

TEST(CString, TakesCharactersFromTheMiddle) {
  EXPECT_EQ(kText.Mid(8), L"beam");
  EXPECT_EQ(kText.Mid(12), L"");
  EXPECT_EQ(kText.Mid(13), L"");
  EXPECT_EQ(kText.Mid(-3), kText);
  EXPECT_EQ(kText.Mid(5, 2), L"to");
  EXPECT_EQ(kText.Mid(5, -1), L"");
  EXPECT_EQ(kText.Mid(5, INT_MAX), L"to beam");
  EXPECT_EQ(kText.Mid(-1, 4), L"beam");
  EXPECT_EQ(kText.Mid(INT_MAX, 1), L"");
}

TEST(CString, ComparesByCharacterCode) {
  EXPECT_EQ(CString(L"beam").Compare(L"beam"), 0);
  EXPECT_LT(CString(L"Beam").Compare(L"beam"), 0);  // B is 66, b is 98
  EXPECT_GT(CString(L"beams").Compare(L"beam"), 0);
  EXPECT_LT(CString(L"beam").Compare(L"beams"), 0);
  EXPECT_GT(CString(L"é").Compare(L"z"), 0);  // 233 against 122
  EXPECT_LT(CString(L"a"), CString(L"b"));
  EXPECT_NE(CString(L"a"), CString(L"A"));
}

TEST(CString, ComparesWithoutCaseOfLatinLetters) {
  EXPECT_EQ(CString(L"BEAM az").CompareNoCase(L"beam AZ"), 0);
  EXPECT_LT(CString(L"BEAM").CompareNoCase(L"cable"), 0);
  EXPECT_GT(CString(L"cable").CompareNoCase(L"BEAM"), 0);
  EXPECT_LT(CString(L"beam").CompareNoCase(L"BEAMS"), 0);
  EXPECT_GT(CString(L"BEAMS").CompareNoCase(L"beam"), 0);
  EXPECT_NE(CString(L"Ä").CompareNoCase(L"ä"), 0);
  // '[' (91) stands between the capitals and the small letters: behind Z as it is, before z.
  EXPECT_GT(CString(L"Z").CompareNoCase(L"["), 0);
  EXPECT_NE(CString(L"@").CompareNoCase(L"`"), 0);
}

TEST(CString, TrimsBlanksAndLineEnds) {
  EXPECT_EQ(CString(L" \t a b \r\n").TrimRight(), L" \t a b");
  EXPECT_EQ(CString(L" \t a b \r\n").TrimLeft(), L"a b \r\n");
  EXPECT_EQ(CString(L" \r\n\t").TrimRight(), L"");
  EXPECT_EQ(CString(L" \r\n\t").TrimLeft(), L"");
  EXPECT_EQ(CString().TrimLeft().TrimRight(), L"");
}

TEST(CString, TrimsChosenCharacters) {
  EXPECT_EQ(CString(L"1, 2, ; ").TrimRight(L" ,;"), L"1, 2");
  EXPECT_EQ(CString(L"xxabx").TrimLeft(L"x"), L"abx");
  EXPECT_EQ(CString(L"abc ").TrimRight(L"c"), L"abc ");
}

TEST(CString, Appends) {
  CString text(L"a");
  text += L"b";
  text += text;
  EXPECT_EQ(text, L"abab");
  EXPECT_EQ(text + L"c" + CString(L"d"), L"ababcd");
}

TEST(CString, PassesTextThroughUtf8) {
  // U+00FC is C3 BC, U+6881 is E6 A2 81, U+1D6FC is F0 9D 9B BC.
  CString const text(L"\u00FC\u6881\U0001D6FC");
  EXPECT_EQ(text.ToUtf8(), "\xC3\xBC\xE6\xA2\x81\xF0\x9D\x9B\xBC");
  EXPECT_EQ(CString::FromUtf8("\xC3\xBC\xE6\xA2\x81\xF0\x9D\x9B\xBC"), text);
}

}  // namespace
}  // namespace Tarvex::CstringTest
