#include "store/text/utf8.h"

#include <gtest/gtest.h>

namespace Tarvex::Text::Utf8Test {
namespace {

constexpr wchar_t kBad = 0xFFFD;

struct WellFormed {
  char const* utf8;
  wchar_t code;
};

/// The first and last code of each length; the code beside the bytes by table 3-6 of the Unicode
/// standard.
class Utf8WellFormed : public ::testing::TestWithParam<WellFormed> {};

TEST_P(Utf8WellFormed, PassesThereAndBack) {
  auto const [utf8, code] = GetParam();
  EXPECT_EQ(DecodeUtf8(utf8), std::wstring(1, code));
  EXPECT_EQ(EncodeUtf8(std::wstring(1, code)), utf8);
  EXPECT_EQ(FindInvalidUtf8(utf8), std::nullopt);
}

INSTANTIATE_TEST_SUITE_P(
    Bounds, Utf8WellFormed,
    ::testing::Values(WellFormed{"\x01", 0x01}, WellFormed{"\x7F", 0x7F},
                      WellFormed{"\xC2\x80", 0x80}, WellFormed{"\xDF\xBF", 0x7FF},
                      WellFormed{"\xE0\xA0\x80", 0x800}, WellFormed{"\xED\x9F\xBF", 0xD7FF},
                      WellFormed{"\xEE\x80\x80", 0xE000}, WellFormed{"\xEF\xBF\xBD", 0xFFFD},
                      WellFormed{"\xEF\xBF\xBF", 0xFFFF}, WellFormed{"\xF0\x90\x80\x80", 0x10000},
                      WellFormed{"\xF4\x8F\xBF\xBF", 0x10FFFF}));

struct IllFormed {
  char const* name;
  std::string_view utf8;
  std::size_t bad;  // number of bytes that belong to no character, which stand behind "a"
};

std::ostream& operator<<(std::ostream& out, IllFormed const& row) { return out << row.name; }

class Utf8IllFormed : public ::testing::TestWithParam<IllFormed> {};

TEST_P(Utf8IllFormed, GivesAReplacementForEachByteAndIsFound) {
  auto const& row = GetParam();
  auto const text = "a" + std::string(row.utf8) + "z";
  EXPECT_EQ(DecodeUtf8(text), L"a" + std::wstring(row.bad, kBad) + L"z");
  EXPECT_EQ(FindInvalidUtf8(text), 1u);
  // At the very end of the text too.
  auto const cut = "a" + std::string(row.utf8);
  EXPECT_EQ(DecodeUtf8(cut), L"a" + std::wstring(row.bad, kBad));
  EXPECT_EQ(FindInvalidUtf8(cut), 1u);
}

INSTANTIATE_TEST_SUITE_P(Kinds, Utf8IllFormed,
                         ::testing::Values(IllFormed{"lone continuation", "\x80", 1},
                                           IllFormed{"last continuation", "\xBF", 1},
                                           IllFormed{"overlong slash", "\xC0\xAF", 2},
                                           IllFormed{"overlong two bytes", "\xC1\xBF", 2},
                                           IllFormed{"overlong three bytes", "\xE0\x9F\xBF", 3},
                                           IllFormed{"overlong four bytes", "\xF0\x8F\xBF\xBF", 4},
                                           IllFormed{"first surrogate", "\xED\xA0\x80", 3},
                                           IllFormed{"last surrogate", "\xED\xBF\xBF", 3},
                                           IllFormed{"above the last code", "\xF4\x90\x80\x80", 4},
                                           IllFormed{"lead of no character", "\xF5\x80\x80\x80", 4},
                                           IllFormed{"byte 255", "\xFF", 1},
                                           IllFormed{"byte 254", "\xFE", 1},
                                           IllFormed{"two bytes cut", "\xC3", 1},
                                           IllFormed{"three bytes cut", "\xE6\xA2", 2},
                                           IllFormed{"four bytes cut", "\xF0\x9D\x9B", 3}));

TEST(Utf8, GoesOnBehindABrokenCharacter) {
  // A lead byte whose continuation is the lead of a good character.
  EXPECT_EQ(DecodeUtf8("\xE6\xC3\xBC"), std::wstring({kBad, 0xFC}));
  EXPECT_EQ(FindInvalidUtf8("\xC3\xBC\xE6"), 2u);
}

TEST(Utf8, KeepsTheZeroByte) {
  std::string_view const text("a\0b", 3);
  EXPECT_EQ(DecodeUtf8(text), std::wstring(L"a\0b", 3));
  EXPECT_EQ(EncodeUtf8(std::wstring_view(L"a\0b", 3)), text);
}

TEST(Utf8, WritesCodesThatAreNoCharactersAsReplacement) {
  for (long const code : {0xD800L, 0xDFFFL, 0x110000L, 0x7FFFFFFFL, -1L})
    EXPECT_EQ(EncodeUtf8(std::wstring(1, static_cast<wchar_t>(code))), "\xEF\xBF\xBD") << code;
}

TEST(Utf8, PassesEveryCharacterThereAndBack) {
  std::wstring all;
  for (wchar_t code = 0; code <= 0x10FFFF; code += code < 0x3000 ? 1 : 0x65)
    if (code < 0xD800 || code > 0xDFFF) all.push_back(code);
  auto const utf8 = EncodeUtf8(all);
  EXPECT_EQ(DecodeUtf8(utf8), all);
  EXPECT_EQ(FindInvalidUtf8(utf8), std::nullopt);
}

}  // namespace
}  // namespace Tarvex::Text::Utf8Test
