#include "workbench/commands/picture.h"

#include <set>

#include "tests/workbench/run.h"

namespace Tarvex::PictureCommandTest {
namespace {

using Testing::RunTarvex;
using Json = nlohmann::json;

class PictureCommand : public Testing::RunTest {
 protected:
  /// Beams 1 and 2, a quadrilateral 3 that faces down, a wedge 4 and a load panel 5.
  std::string Model() const { return Write("in.json", Testing::SmallModel()); }

  /// Runs with further options and gives what was drawn.
  Json Drawn(std::vector<std::string> const& options) {
    std::vector<std::string> words{"picture", Model(), "-o", Path("out.svg"), "--force", "--json"};
    words.insert(words.end(), options.begin(), options.end());
    auto const result = RunTarvex(words);
    EXPECT_EQ(result.exit, 0) << result.out;
    m_warnings = result.Json().at("warnings");
    return result.Json().at("data").at("drawn");
  }

  Json m_warnings;
};

TEST_F(PictureCommand, WritesThePictureAndReportsWhatIsOnIt) {
  auto const model = Model();
  auto const result = RunTarvex({"picture", model, "-o", Path("out.svg")});
  EXPECT_EQ(result.exit, 0);
  EXPECT_EQ(result.err, "");
  EXPECT_EQ(result.out,
            "picture: isometric view from +x, -y and above: 5 elements (2 1D, 1 2D, 1 3D, 1 load "
            "panel)\n  written to " +
                Path("out.svg") + "\n");
  EXPECT_TRUE(Read("out.svg").starts_with("<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n<svg "));
  EXPECT_NE(Read("out.svg").find("<title>in.json</title>"), std::string::npos);
  EXPECT_EQ(Read("in.json"), Testing::SmallModel());
  EXPECT_EQ(NumFiles(), 2);
}

TEST_F(PictureCommand, JsonHasTheCountsAndTheOutput) {
  auto const result =
      RunTarvex({"picture", Model(), "-o", Path("a.svg"), "--view", "plan", "--json"}).Json();
  EXPECT_EQ(result.at("data"), (Json{{"view", "plan"},
                                     {"drawn",
                                      {{"lines", 2},
                                       {"plates", 1},
                                       {"solids", 1},
                                       {"panels", 1},
                                       {"members", 0},
                                       {"supports", 0},
                                       {"notDrawn", 0}}},
                                     {"storeys", 0},
                                     {"output", Path("a.svg")}}));
}

TEST_F(PictureCommand, DrawsWhatTheListSelects) {
  auto const drawn = Drawn({"--list", "1 to 3 not 2"});
  EXPECT_EQ(drawn.at("lines"), 1);
  EXPECT_EQ(drawn.at("plates"), 1);
  EXPECT_EQ(drawn.at("solids"), 0);
  EXPECT_EQ(RunTarvex({"picture", Model(), "-o", Path("b.svg"), "--list", "1 to"}).exit, 2);
  EXPECT_FALSE(Exists("b.svg"));
}

TEST_F(PictureCommand, AnEmptyListOrModelIsAPictureThatSaysSo) {
  Drawn({"--list", "none"});
  EXPECT_EQ(m_warnings.at(0).at("code"), "empty-selection");
  EXPECT_NE(Read("out.svg").find(">nothing to draw: the list selects nothing<"), std::string::npos);
  auto const empty = Write("empty.json", Testing::kHeader + "}");
  EXPECT_EQ(RunTarvex({"picture", empty, "-o", Path("e.svg")}).exit, 0);
  EXPECT_NE(Read("e.svg").find(">nothing to draw: the model is empty<"), std::string::npos);
}

TEST_F(PictureCommand, NeedsAnOutputAndReplacesOneOnlyWithForce) {
  auto const model = Model();
  auto const without = RunTarvex({"picture", model});
  EXPECT_EQ(without.exit, 2);
  EXPECT_EQ(without.err, "tarvex: give the file to write: -o OUT\n");
  Write("out.svg", "old");
  EXPECT_EQ(RunTarvex({"picture", model, "-o", Path("out.svg")}).exit, 2);
  EXPECT_EQ(Read("out.svg"), "old");
  EXPECT_EQ(RunTarvex({"picture", model, "-o", Path("out.svg"), "--force"}).exit, 0);
  EXPECT_NE(Read("out.svg"), "old");
  EXPECT_EQ(RunTarvex({"picture", model, "-o", model, "--force"}).exit, 2);
  EXPECT_EQ(Read("in.json"), Testing::SmallModel());
  EXPECT_EQ(RunTarvex({"picture", model, "-o", Path("no/out.svg")}).exit, 4);
}

TEST_F(PictureCommand, RefusesUnknownViewsKindsAndNumbers) {
  for (auto const* option : {"--view", "--kind", "--numbers"})
    EXPECT_EQ(RunTarvex({"picture", Model(), "-o", Path("out.svg"), option, "z"}).exit, 2);
  EXPECT_EQ(RunTarvex({"picture", Model(), "-o", Path("out.svg"), "--in-place"}).exit, 2);
  EXPECT_EQ(NumFiles(), 1);
}

TEST_F(PictureCommand, IsNoStepOfARecipe) {
  auto const recipe = Write("r", "picture --view x\n");
  auto const result = RunTarvex({"run", recipe, Model(), "--dry-run"});
  EXPECT_EQ(result.exit, 2);
  EXPECT_NE(result.err.find("a recipe can't hold 'picture'"), std::string::npos) << result.err;
}

TEST_F(PictureCommand, EachViewIsAPictureOfItsOwnAndTheSameEveryTime) {
  std::set<std::string> pictures;
  for (int run = 0; run < 2; ++run)
    for (auto const* view : {"iso", "plan", "x", "y"}) {
      Drawn({"--view", view});
      pictures.insert(Read("out.svg"));
    }
  EXPECT_EQ(pictures.size(), 4u);
}

TEST_F(PictureCommand, ATurnedElementIsAnotherPicture) {
  auto const model = Model();
  RunTarvex({"picture", model, "-o", Path("before.svg"), "--view", "plan"});
  EXPECT_NE(Read("before.svg").find("<g class=\"back\">"), std::string::npos);
  EXPECT_EQ(Read("before.svg").find("<g class=\"front\">"), std::string::npos);
  RunTarvex({"flip", model, "-o", Path("out.json"), "--list", "3"});
  RunTarvex({"picture", Path("out.json"), "-o", Path("after.svg"), "--view", "plan"});
  EXPECT_NE(Read("after.svg").find("<g class=\"front\">"), std::string::npos);
  EXPECT_EQ(Read("after.svg").find("<g class=\"back\">"), std::string::npos);
}

TEST_F(PictureCommand, SaysWhatCannotBeDrawn) {
  auto text = Testing::SmallModel();
  text.replace(text.find("[3, 2]"), 6, "[3, 9]");
  auto const result =
      RunTarvex({"picture", Write("in.json", text), "-o", Path("out.svg"), "--json"}).Json();
  EXPECT_EQ(result.at("data").at("drawn").at("notDrawn"), 1);
  EXPECT_EQ(result.at("warnings").back().at("code"), "not-drawn");
}

/// The small model with member 1 on beam 1, and member 2 without elements.
class MembersPicture : public PictureCommand {
 protected:
  MembersPicture() {
    auto text = Testing::SmallModel();
    text.replace(text.find("\"topology\": [1, 2]}"), 19,
                 R"("topology": [1, 2], "parentMember": {"member": 1}})");
    auto const end = text.rfind(']') + 1;
    m_model = Write("in.json", text.substr(0, end) + R"(,
      "Member": [{"n": 1, "type": 1, "topology": "1 2"}, {"n": 2, "type": 1, "topology": "2 8"}])" +
                                   text.substr(end));
  }

  Json Drawn(std::string const& kind, std::string const& list) const {
    auto const result = RunTarvex({"picture", m_model, "-o", Path("out.svg"), "--force", "--kind",
                                   kind, "--list", list, "--json"});
    auto const drawn = result.Json().at("data").at("drawn");
    return {drawn.at("lines"), drawn.at("members")};
  }

  std::string m_model;
};

TEST_F(MembersPicture, ShowsAllMembersWithAllElementsAndTheirsWithSome) {
  EXPECT_EQ(Drawn("both", "all"), (Json{2, 2}));
  EXPECT_EQ(Drawn("both", "1"), (Json{1, 1}));
  EXPECT_EQ(Drawn("both", "2"), (Json{1, 0}));
  EXPECT_EQ(Drawn("element", "all"), (Json{2, 0}));
  EXPECT_EQ(Drawn("member", "2"), (Json{0, 1}));
}

}  // namespace
}  // namespace Tarvex::PictureCommandTest
