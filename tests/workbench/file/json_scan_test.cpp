#include "workbench/file/json_scan.h"

#include <gtest/gtest.h>

namespace Tarvex::Workbench::JsonScanTest {
namespace {

/// The fault of a text as "offset pointer: reason"; empty when there is none.
std::string Fault(std::string const& json) {
  auto const fault = ScanJson(json).fault;
  if (!fault) return "";
  return std::to_string(fault->offset) + " " + fault->pointer + ": " + fault->text;
}

std::string PointerTo(std::string const& json, std::size_t offset) {
  return ScanJson(json, offset).pointer;
}

std::string Nested(std::size_t depth) { return std::string(depth, '[') + std::string(depth, ']'); }

TEST(ScanJson, TakesAllThatIsJson) {
  for (auto const* json : {"{}", "[]", " [ ] \n", "true", "-1.5e3", "\"a\"", "[1,\t2 ,\r\n3]",
                           R"({"a": [null, false, {"b": "\u00e9"}], "": 0})", "\"\xC3\xA9\""})
    EXPECT_EQ(Fault(json), "") << json;
}

TEST(ScanJson, TellsWhereATextEndsEarly) {
  EXPECT_EQ(Fault(""), "0 : the file ends early");
  EXPECT_EQ(Fault("{"), "1 : the file ends early");
  EXPECT_EQ(Fault(R"({"a)"), "3 : the file ends early");
  EXPECT_EQ(Fault(R"({"a")"), "4 : the file ends early");
  EXPECT_EQ(Fault(R"({"a": )"), "6 /a: the file ends early");
  EXPECT_EQ(Fault(R"({"a": [1, )"), "10 /a/1: the file ends early");
  EXPECT_EQ(Fault(R"({"a": [1)"), "8 /a/0: the file ends early");
  EXPECT_EQ(Fault(R"({"a": [1])"), "9 : the file ends early");
  EXPECT_EQ(Fault("[tr"), "3 /0: the file ends early");
  EXPECT_EQ(Fault("tr"), "2 : the file ends early");
}

TEST(ScanJson, TellsWhatItExpected) {
  EXPECT_EQ(Fault("[1 2]"), R"(3 : expected "," or "]", found "2")");
  EXPECT_EQ(Fault(R"({"a": 1 "b": 2})"), R"(8 : expected "," or "}", found "\"")");
  EXPECT_EQ(Fault("[1}"), R"(2 : expected "," or "]", found "}")");
  EXPECT_EQ(Fault(R"({"a" 1})"), R"(5 : expected ":", found "1")");
  EXPECT_EQ(Fault(R"({a: 1})"), R"(1 : expected a key, found "a")");
  EXPECT_EQ(Fault(R"({"a": 1,})"), R"(8 : expected a key, found "}")");
  EXPECT_EQ(Fault("[1,]"), R"(3 /1: expected a value, found "]")");
  EXPECT_EQ(Fault("[01]"), R"(1 /0: expected a value, found "01")");
  EXPECT_EQ(Fault("[.5]"), R"(1 /0: expected a value, found ".5")");
  EXPECT_EQ(Fault("[1.]"), R"(1 /0: expected a value, found "1.")");
  EXPECT_EQ(Fault("[True]"), R"(1 /0: expected a value, found "True")");
  EXPECT_EQ(Fault("[// a\n1]"), R"(1 /0: expected a value, found "//")");
  EXPECT_EQ(Fault("{} {}"), "3 : text behind the end of the model");
}

TEST(ScanJson, TellsNumbersThatAreNotFinite) {
  EXPECT_EQ(Fault("[1, NaN]"), "4 /1: NaN is not finite");
  EXPECT_EQ(Fault("[-Infinity]"), "1 /0: -Infinity is not finite");
}

TEST(ScanJson, TakesNestingToTheDeepestAndNoFurther) {
  EXPECT_EQ(Fault(Nested(64)), "");
  EXPECT_TRUE(Fault(Nested(65)).ends_with("/0/0: nesting deeper than 64"));
  EXPECT_TRUE(Fault(Nested(65)).starts_with("64 /0/0"));
  EXPECT_TRUE(Fault(Nested(100000)).starts_with("64 /0/0"));
}

TEST(ScanJson, TellsTheFirstByteThatIsNoUtf8) {
  EXPECT_EQ(Fault("[\"ab\xFF\"]"), "4 /0: invalid UTF-8");
  EXPECT_EQ(Fault("{\"\xC3\": 1}"), "2 : invalid UTF-8");
  EXPECT_EQ(Fault("[1]\xFE"), "3 : invalid UTF-8");
  EXPECT_EQ(Fault("[1\x80]"), "2 /0: invalid UTF-8");
  EXPECT_EQ(Fault("[1 2, \"\xFF\"]"), R"(3 : expected "," or "]", found "2")");  // comes first
}

TEST(ScanJson, TellsFaultsOfStringsInside) {
  EXPECT_EQ(Fault(R"(["a\q"])"), "3 /0: an unknown escape in a string");
  EXPECT_EQ(Fault("{\"a\tb\": 1}"), "3 : a control character in a string must be escaped");
}

TEST(ScanJson, PointsAtValuesAndKeys) {
  std::string const json = R"({"a": [10, {"b/c~d": 2}], "e": {}})";
  EXPECT_EQ(PointerTo(json, 0), "");
  EXPECT_EQ(PointerTo(json, 1), "/a");
  EXPECT_EQ(PointerTo(json, 6), "/a");
  EXPECT_EQ(PointerTo(json, 7), "/a/0");
  EXPECT_EQ(PointerTo(json, 11), "/a/1");
  EXPECT_EQ(PointerTo(json, 12), "/a/1/b~1c~0d");
  EXPECT_EQ(PointerTo(json, 21), "/a/1/b~1c~0d");
  EXPECT_EQ(PointerTo(json, 31), "/e");
}

TEST(ScanJson, KeepsPointersOnOneLine) {
  EXPECT_EQ(PointerTo("{\"a\\n\\u0000\\u007f\": 1}", 1), "/a\\n\\u0000\x7F");
}

TEST(ScanJson, PointsAtAValueThatIsYetToCome) { EXPECT_EQ(PointerTo(R"({"a": [1, )", 10), "/a/1"); }

TEST(PlaceInText, CountsLinesAndCharactersFromOne) {
  std::string const text = "ab\n\xC3\xA9x\n";
  auto const place = [&](std::size_t offset) {
    auto const found = PlaceInText(text, offset);
    return std::pair(found.line, found.column);
  };
  EXPECT_EQ(place(0), std::pair(1, 1));
  EXPECT_EQ(place(1), std::pair(1, 2));
  EXPECT_EQ(place(2), std::pair(1, 3));  // the line end itself
  EXPECT_EQ(place(3), std::pair(2, 1));
  EXPECT_EQ(place(5), std::pair(2, 2));  // behind one character of two bytes
  EXPECT_EQ(place(7), std::pair(3, 1));
}

TEST(Quoted, CutsLongTextsBetweenCharacters) {
  EXPECT_EQ(Quoted("a\nb"), R"("a\nb")");
  EXPECT_EQ(Quoted(std::string(24, 'x')), '"' + std::string(24, 'x') + '"');
  EXPECT_EQ(Quoted(std::string(25, 'x')), '"' + std::string(24, 'x') + "...\"");
  EXPECT_EQ(Quoted(std::string(23, 'x') + "\xC3\xA9y"), '"' + std::string(23, 'x') + "...\"");
}

}  // namespace
}  // namespace Tarvex::Workbench::JsonScanTest
