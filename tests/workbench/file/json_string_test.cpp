#include "workbench/file/json_string.h"

#include <gtest/gtest.h>

namespace Tarvex::Workbench::JsonStringTest {
namespace {

/// What a string, given from behind its opening quote, is read as; its fault with the offset.
std::string ReadText(std::string const& json) {
  std::string text;
  auto const read = ReadJsonString(json, 0, text);
  return read.fault == nullptr ? text : std::to_string(read.end) + ": " + read.fault;
}

std::string Written(std::string const& utf8) {
  std::string json;
  AppendJsonString(json, utf8);
  return json;
}

TEST(ReadJsonString, EndsBehindTheClosingQuote) {
  std::string text;
  EXPECT_EQ(ReadJsonString("x\"ab\\\"c\"d", 2, text).end, 8u);
  EXPECT_EQ(text, "ab\"c");
}

TEST(ReadJsonString, KnowsEveryEscape) {
  EXPECT_EQ(ReadText(R"(\"\\\/\b\f\n\r\t")"), "\"\\/\b\f\n\r\t");
  EXPECT_EQ(ReadText(R"(\u0041\u00e9\u20AC")"), "A\xC3\xA9\xE2\x82\xAC");
  EXPECT_EQ(ReadText(R"(\u0000")"), std::string(1, '\0'));
}

TEST(ReadJsonString, JoinsSurrogatePairs) {
  // 0x1F600 = 0x10000 + (0x3D << 10) + 0x200
  EXPECT_EQ(ReadText(R"(\ud83d\ude00")"), "\xF0\x9F\x98\x80");
}

TEST(ReadJsonString, RefusesHalvesOfSurrogatePairs) {
  constexpr auto kHalf = "half of a surrogate pair in a string";
  EXPECT_EQ(ReadText(R"(ab\ud83d")"), std::string("2: ") + kHalf);
  EXPECT_EQ(ReadText(R"(\ud83dx")"), std::string("0: ") + kHalf);
  EXPECT_EQ(ReadText(R"(\ud83d\ud83d")"), std::string("0: ") + kHalf);
  EXPECT_EQ(ReadText(R"(\ude00")"), std::string("0: ") + kHalf);
  EXPECT_EQ(ReadText(R"(\ud83d\n")"), std::string("0: ") + kHalf);
}

TEST(ReadJsonString, RefusesUnknownEscapes) {
  EXPECT_EQ(ReadText(R"(a\x")"), "1: an unknown escape in a string");
  EXPECT_EQ(ReadText(R"(\u12g4")"), "0: an escape \\u in a string needs four hexadecimal digits");
  EXPECT_EQ(ReadText(R"(\u-123")"), "0: an escape \\u in a string needs four hexadecimal digits");
}

TEST(ReadJsonString, RefusesControlCharacters) {
  EXPECT_EQ(ReadText("a\nb\""), "1: a control character in a string must be escaped");
  EXPECT_EQ(ReadText(std::string("\0\"", 2)), "0: a control character in a string must be escaped");
}

TEST(ReadJsonString, TellsATextThatEndsEarly) {
  for (std::string const text : {"abc", "abc\\", "abc\\u12", "\\ud83d\\", "\\ud83d\\u12"})
    EXPECT_EQ(ReadText(text), std::to_string(text.size()) + ": the text ends inside a string");
}

TEST(AppendJsonString, EscapesOnlyWhatMustBe) {
  EXPECT_EQ(Written("a/b'\x7F\xC3\xA9"), "\"a/b'\x7F\xC3\xA9\"");
  EXPECT_EQ(Written("\"\\\n\t"), R"("\"\\\n\t")");
  EXPECT_EQ(Written(std::string("\0\r\x1F", 3)), R"("\u0000\u000d\u001f")");
}

}  // namespace
}  // namespace Tarvex::Workbench::JsonStringTest
