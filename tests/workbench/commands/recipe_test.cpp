#include "workbench/commands/recipe.h"

#include "tests/workbench/run.h"
#include "workbench/commands/errors.h"

namespace Tarvex::RecipeTest {
namespace {

using Testing::RunTarvex;
using Json = nlohmann::json;
using Words = std::vector<std::string>;

std::vector<Words> Split(std::string_view text) {
  std::vector<Words> lines;
  for (auto const& line : Workbench::SplitRecipe(text, "r")) lines.push_back(line.words);
  return lines;
}

TEST(SplitRecipe, PartsWordsByBlanks) {
  EXPECT_EQ(Split("a b\tc\r\nd"), (std::vector<Words>{{"a", "b", "c"}, {"d"}}));
}

TEST(SplitRecipe, TakesWhatIsQuotedAsOneWord) {
  EXPECT_EQ(Split("a '1 to 5' \"x y\"z ''"), (std::vector<Words>{{"a", "1 to 5", "x yz", ""}}));
}

TEST(SplitRecipe, EscapesAsAShellDoes) {
  EXPECT_EQ(Split(R"(a\ b "c\"d\\e\f" 'g\h' \#)"),
            (std::vector<Words>{{"a b", "c\"d\\e\\f", "g\\h", "#"}}));
}

TEST(SplitRecipe, LeavesOutCommentsAndEmptyLinesAndKeepsTheirNumbers) {
  auto const lines = Workbench::SplitRecipe("# all\n\nflip # one\nspin a#b\n", "r");
  ASSERT_EQ(lines.size(), 2u);
  EXPECT_EQ(lines[0].number, 3);
  EXPECT_EQ(lines[0].words, (Words{"flip"}));
  EXPECT_EQ(lines[1].number, 4);
  EXPECT_EQ(lines[1].words, (Words{"spin", "a#b"}));
}

TEST(SplitRecipe, RefusesAQuotationWithoutItsEnd) {
  for (auto const* text : {"ok\nflip 'x", "ok\nflip \"x", "ok\nflip \"x\\\""}) {
    try {
      Workbench::SplitRecipe(text, "r");
      ADD_FAILURE() << text;
    } catch (Workbench::UsageError const& fault) {
      EXPECT_STREQ(fault.what(), "r:2: a quotation without its end");
    }
  }
}

class Recipe : public Testing::RunTest {
 protected:
  std::string Model() { return Write("in.json", Testing::SmallModel()); }
};

TEST_F(Recipe, RunsItsCommandsInOrderAndReportsEachStep) {
  auto const recipe = Write("r.txt", "align-1d --axis 0\nflip --list '1 3'\ninfo\n");
  auto const result = RunTarvex({"run", recipe, Model(), "-o", Path("out.json"), "--json"});
  EXPECT_EQ(result.exit, 0) << result.err;
  auto const data = result.Json().at("data");
  EXPECT_EQ(data.at("changes").at("Elem").at("changed"), Json({1, 2, 3}));
  ASSERT_EQ(data.at("steps").size(), 3);
  EXPECT_EQ(data.at("steps").at(0).at("command"), "align-1d");
  EXPECT_EQ(data.at("steps").at(0).at("data").at("changes").at("Elem").at("changed"), Json({2}));
  EXPECT_EQ(data.at("steps").at(1).at("line"), 2);
  EXPECT_EQ(data.at("steps").at(1).at("data").at("changes").at("Elem").at("changed"), Json({1, 3}));
  EXPECT_EQ(data.at("steps").at(2).at("data").at("tables").at("Elem").at("count"), 4);
}

TEST_F(Recipe, TheFirstLineThatFailsEndsItWithItsCodeAndPlace) {
  auto const recipe = Write("r.txt", "# turn\nflip --list 1\nalign-1d --axis 7\nflip\n");
  auto const result = RunTarvex({"run", recipe, Model(), "-o", Path("out.json")});
  EXPECT_EQ(result.exit, 3);
  EXPECT_EQ(result.err, "tarvex: " + recipe + ":3: axis 7 does not exist\n");
  EXPECT_FALSE(Exists("out.json"));
}

TEST_F(Recipe, JsonHasTheFileAndLineOfAFailure) {
  auto const error = [&](std::string const& line) {
    auto const recipe = Write("r.txt", "flip --list 1\n" + line + "\n");
    return RunTarvex({"run", recipe, Model(), "--dry-run", "--json"}).Json().at("error");
  };
  auto const at = [&](char const* text) {
    return Json{{"text", text}, {"file", Path("r.txt")}, {"line", 2}};
  };
  EXPECT_EQ(error("align-1d --axis 7"), at("axis 7 does not exist"));
  EXPECT_EQ(error("flip --list five"), at("--list: character 1: an unknown word"));
  EXPECT_EQ(error("flip 'x"), at("a quotation without its end"));
  EXPECT_EQ(error("diff no.json"), at("no.json: cannot be read: No such file or directory"));
}

TEST_F(Recipe, ABadLineIsTwo) {
  for (auto const* line : {"frobnicate", "flip --list 'five'", "spin --steps 0", "flip -o x",
                           "run r.txt", "schema", "flip extra"}) {
    auto const recipe = Write("r.txt", line);
    auto const result = RunTarvex({"run", recipe, Model(), "--dry-run"});
    EXPECT_EQ(result.exit, 2) << line;
    EXPECT_EQ(result.err.find("tarvex: " + recipe + ":1: "), 0u) << result.err;
  }
}

TEST_F(Recipe, AFileThatALineNeedsAndThatIsMissingIsFour) {
  auto const recipe = Write("r.txt", "\ndiff " + Path("no.json"));
  auto const result = RunTarvex({"run", recipe, Model(), "--dry-run"});
  EXPECT_EQ(result.exit, 4);
  EXPECT_EQ(result.err.find(recipe + ":2: " + Path("no.json")), 0u) << result.err;
}

TEST_F(Recipe, AMissingRecipeIsFour) {
  EXPECT_EQ(RunTarvex({"run", Path("no.txt"), Model(), "--dry-run"}).exit, 4);
}

TEST_F(Recipe, WhatALineLeftUndoneMakesTheRunOne) {
  auto const recipe = Write("r.txt", "flip --list 4\n");
  EXPECT_EQ(RunTarvex({"run", recipe, Model(), "--dry-run"}).exit, 1);
}

TEST_F(Recipe, AnEmptyRecipeChangesNothing) {
  auto const result =
      RunTarvex({"run", Write("r.txt", "# nothing\n"), Model(), "--dry-run", "--json"});
  EXPECT_EQ(result.exit, 0);
  EXPECT_EQ(result.Json().at("data").at("steps"), Json::array());
}

}  // namespace
}  // namespace Tarvex::RecipeTest
