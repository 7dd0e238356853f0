// Wide text and UTF-8, as an application links them.
#include <gtest/gtest.h>

#include <stdexcept>

#include "store/numeric/vbool6.h"
#include "store/text/cstring.h"
#include "store/text/utf8.h"
#include "tests/link/linked.h"

namespace Tarvex::TextLinkTest {
namespace {

using Testing::AreLinked;
using Testing::Member;

TEST(TextLink, Strings) {
  EXPECT_TRUE(AreLinked(&CString::FromUtf8, &CString::ToUtf8, &CString::Find, &CString::Left,
                        Member<CString(int) const>(&CString::Mid),
                        Member<CString(int, int) const>(&CString::Mid), &CString::Right,
                        &CString::CompareNoCase, &CString::TrimRight, &CString::TrimLeft));
  auto text = CString::FromUtf8("  Stütze 4 ");
  text.TrimLeft().TrimRight();
  EXPECT_EQ(text.ToUtf8(), "Stütze 4");
  EXPECT_EQ(text.Find(L"4"), 7);
  EXPECT_EQ(text.Left(3) + text.Mid(6) + text.Mid(0, 1) + text.Right(1), CString(L"Stü 4S4"));
  EXPECT_EQ(text.CompareNoCase(L"STüTZE 4"), 0);
}

TEST(TextLink, FormattingAndItsFailure) {
  EXPECT_TRUE(AreLinked(&Text::FormatText));
  CString text;
  text.Format(L"%i of %g: %s", 3, 0.5, CString(L"x"));
  EXPECT_EQ(text, CString(L"3 of 0.5: x"));
  EXPECT_THROW(text.Format(L"%i %i", 1), std::invalid_argument);
}

TEST(TextLink, Utf8) {
  EXPECT_TRUE(AreLinked(&Text::DecodeUtf8, &Text::EncodeUtf8, &Text::FindInvalidUtf8));
  EXPECT_EQ(Text::EncodeUtf8(Text::DecodeUtf8("ä")), "ä");
  EXPECT_EQ(Text::FindInvalidUtf8("a\xFF"), 1u);
}

}  // namespace
}  // namespace Tarvex::TextLinkTest
