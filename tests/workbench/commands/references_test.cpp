#include "workbench/commands/references.h"

#include <fcntl.h>
#include <unistd.h>

#include <set>

#include "tests/workbench/run.h"

namespace Tarvex::ReferencesTest {
namespace {

using Testing::RunTarvex;
using Json = nlohmann::json;

/// Beams 7 from 0 to 10 and 8, 9 on its two parts, plate 20 with halves 21, 22, member 1 with the
/// parts 2 and 3; a panel on the plate; loads, a list, a rigid constraint, a joint.
std::string Model() {
  return Testing::kHeader + R"(,
"Node": [
{"n": 1, "position": [0, 0, 0]}, {"n": 2, "position": [10, 0, 0]}, {"n": 3, "position": [4, 0, 0]},
{"n": 4, "position": [0, 1, 0]}, {"n": 5, "position": [10, 1, 0]}, {"n": 6, "position": [4, 1, 0]}],
"Elem": [
{"n": 7, "type": 2, "topology": [1, 2]}, {"n": 8, "type": 2, "topology": [1, 3]},
{"n": 9, "type": 2, "topology": [3, 2]}, {"n": 20, "type": 5, "topology": [1, 2, 5, 4]},
{"n": 21, "type": 5, "topology": [1, 3, 6, 4]}, {"n": 22, "type": 5, "topology": [3, 2, 5, 6]}],
"LoadPanel": [{"n": 30, "topology": [1, 2, 5, 4]}],
"Member": [
{"n": 1, "type": 1, "topology": "1 2"}, {"n": 2, "type": 1, "topology": "1 3"},
{"n": 3, "type": 1, "topology": "3 2"}],
"List": [{"n": 1, "kind": 2, "text": "7"}, {"n": 2, "kind": 1, "text": "2 4"}],
"Rigid": [{"primaryNode": 2, "constrainedNodes": "5"}],
"Joint": [{"primaryNode": 1, "constrainedNode": 2}],
"BeamLoad": [
{"loadedEntities": {"kind": 2, "text": "7"}, "type": 3, "value": [0, 10]},
{"loadedEntities": {"kind": 3, "text": "1"}, "type": 2, "value": [5, 0]}],
"FaceLoad": [{"loadedEntities": {"kind": 2, "text": "20"}, "type": 1, "value": [3, 0, 0, 0]}]
}
)";
}

class ReferencesCommand : public Testing::RunTest {
 protected:
  /// Runs a command with a map, writes out.json, and gives the whole report.
  Json RunOn(std::vector<std::string> words, std::string const& map, int exit = 0,
             std::string const& text = Model()) {
    words.insert(words.begin() + 1, Write("in.json", text));
    words.insert(words.end(),
                 {"--map", Write("numbers.map", map), "-o", Path("out.json"), "--force", "--json"});
    auto const result = RunTarvex(words);
    EXPECT_EQ(result.exit, exit) << result.out << result.err;
    return result.Json();
  }
  Json Out() const { return Json::parse(Read("out.json")); }
  std::string LoadText(char const* table, std::size_t place) const {
    return Out().at(table).at(place).at("loadedEntities").at("text").get<std::string>();
  }
};

TEST_F(ReferencesCommand, ReplaceElementsTakesListsAndAllLoadsAlong) {
  auto const report = RunOn({"replace-elements"}, "7 8 9\n");
  EXPECT_EQ(report.at("data").at("did"), true);
  EXPECT_EQ(Out().at("List").at(0).at("text"), "8 9");
  EXPECT_EQ(LoadText("BeamLoad", 0), "8 9");
}

TEST_F(ReferencesCommand, ReplaceElementsMapsLoadsByWhatLiesOnThePieces) {
  RunOn({"replace-elements", "--map-loads"}, "7 8 9  # the girder\n\n# the slab\n20 21 22\n");
  EXPECT_EQ(Out().at("List").at(0).at("text"), "8 9");
  ASSERT_EQ(Out().at("BeamLoad").size(), 3);
  EXPECT_EQ(LoadText("BeamLoad", 1), "8");
  EXPECT_EQ(Out().at("BeamLoad").at(1).at("value"), Json({0, 4}));
  EXPECT_EQ(Out().at("BeamLoad").at(2).at("value"), Json({4, 10}));
  EXPECT_EQ(LoadText("FaceLoad", 0), "21 22");
}

TEST_F(ReferencesCommand, ReplaceNodesReportsWhatStillNamesTheOldNode) {
  auto const report = RunOn({"replace-nodes"}, "2 3\n", 1);
  EXPECT_EQ(Out().at("List").at(1).at("text"), "3 4");
  EXPECT_EQ(Out().at("Joint").at(0).at("constrainedNode"), 3);
  EXPECT_EQ(Out().at("Elem").at(0).at("topology"), Json({1, 3}));
  auto const undone = report.at("data").at("undone");
  ASSERT_EQ(undone.size(), 2);
  EXPECT_EQ(undone.at(0),
            Json({{"table", "LoadPanel"}, {"number", 30}, {"why", "it still names node 2"}}));
  EXPECT_EQ(undone.at(1),
            Json({{"table", "Rigid"}, {"number", 1}, {"why", "it still names node 2"}}));
}

TEST_F(ReferencesCommand, ReplaceNodesLeavesElementsAloneWhenTold) {
  RunOn({"replace-nodes", "--no-entities"}, "3 6\n");
  EXPECT_EQ(Out().at("Elem").at(1).at("topology"), Json({1, 3}));
}

TEST_F(ReferencesCommand, CopyReferencesAddsCopiesByKindAndFlag) {
  RunOn({"copy-references"}, "7 8\n");
  EXPECT_EQ(Out().at("List").at(0).at("text"), "7 8");
  EXPECT_EQ(LoadText("BeamLoad", 0), "7 8");
  RunOn({"copy-references", "--no-lists"}, "7 8\n");
  EXPECT_EQ(Out().at("List").at(0).at("text"), "7");
  RunOn({"copy-references", "--no-loads"}, "7 8\n");
  EXPECT_EQ(LoadText("BeamLoad", 0), "7");
  RunOn({"copy-references", "--kind", "node"}, "1 3\n2 6\n");
  EXPECT_EQ(Out().at("List").at(1).at("text"), "2 4 6");
  EXPECT_EQ(Out().at("Joint").size(), 2);
  RunOn({"copy-references", "--kind", "node", "--no-constraints"}, "1 3\n2 6\n");
  EXPECT_EQ(Out().at("Joint").size(), 1);
}

TEST_F(ReferencesCommand, MapLoadsLeavesReferencesAlone) {
  RunOn({"map-loads"}, "7 8 9\n");
  EXPECT_EQ(Out().at("List").at(0).at("text"), "7");
  EXPECT_EQ(Out().at("BeamLoad").size(), 3);
}

TEST_F(ReferencesCommand, MapLoadsOfMembersReportsWhatMembersDoNotTake) {
  RunOn({"map-loads", "--kind", "member"}, "1 2 3\n");
  EXPECT_EQ(LoadText("BeamLoad", 1), "2 3");
  auto text = Model();
  text.replace(text.find(R"("type": 2, "value": [5, 0])"), 9, R"("type": 1)");
  auto const report = RunOn({"map-loads", "--kind", "member"}, "1 2 3\n", 1, text);
  auto const undone = report.at("data").at("undone");
  ASSERT_EQ(undone.size(), 1);
  EXPECT_EQ(undone.at(0).at("number"), 2);
  EXPECT_EQ(undone.at(0).at("why"), "members take uniform loads only: it is taken off the member");
}

TEST_F(ReferencesCommand, MapLoadsReportsALoadOnARange) {
  auto text = Model();
  text.replace(text.find(R"("text": "7"}, "type": 3)"), 11, R"("text": "6 to 7")");
  auto const report = RunOn({"map-loads"}, "7 8 9\n", 1, text);
  auto const undone = report.at("data").at("undone");
  ASSERT_EQ(undone.size(), 1);
  EXPECT_EQ(undone.at(0).at("table"), "BeamLoad");
  EXPECT_EQ(undone.at(0).at("number"), 1);
  EXPECT_EQ(LoadText("BeamLoad", 0), "6 to 7");
}

TEST_F(ReferencesCommand, RefusesNumbersThatDoNotExist) {
  auto const text = [](Json const& report) {
    return report.at("error").at("text").get<std::string>();
  };
  EXPECT_EQ(text(RunOn({"replace-elements"}, "7 99\n", 3)), "element 99 does not exist");
  EXPECT_EQ(text(RunOn({"replace-nodes"}, "1 99\n", 3)), "node 99 does not exist");
  EXPECT_EQ(text(RunOn({"map-loads"}, "98 8\n", 3)), "element 98 does not exist");
  EXPECT_EQ(text(RunOn({"map-loads", "--kind", "member"}, "9 1\n", 3)), "member 9 does not exist");
  EXPECT_EQ(text(RunOn({"map-loads"}, "7 7 8\n", 3)), "number 7 is an old and a new one");
  EXPECT_EQ(text(RunOn({"map-loads"}, "7 8 9 9\n", 3)),
            "number 9 is twice among the new ones of 7");
  EXPECT_FALSE(Exists("out.json"));
}

TEST_F(ReferencesCommand, ReplaceNodesReportsAllThatStillNamesTheOldNode) {
  // With nothing in its place, lists lose the node; what names one node alone keeps it.
  auto text = Model();
  text.insert(text.find(R"("BeamLoad")"), R"("Assembly": [{"n": 1, "topology": [2, 4, 1]}],
"InfluenceNode": [{"node": 2}],
)");
  auto const undone =
      RunOn({"replace-nodes", "--no-entities"}, "2\n", 1, text).at("data").at("undone");
  std::set<std::string> tables;
  for (auto const& each : undone) {
    EXPECT_EQ(each.at("why"), "it still names node 2");
    tables.insert(each.at("table"));
  }
  EXPECT_EQ(tables,
            (std::set<std::string>{"LoadPanel", "Assembly", "InfluenceNode", "Rigid", "Joint"}));
}

TEST_F(ReferencesCommand, ReplaceElementsReportsWhatStillNamesTheOldElement) {
  auto text = Model();
  text.insert(text.find(R"("BeamLoad")"), R"("InfluenceBeam": [{"elem": 7}],
)");
  auto const undone = RunOn({"replace-elements"}, "7 8 9\n", 1, text).at("data").at("undone");
  ASSERT_EQ(undone.size(), 1);
  EXPECT_EQ(undone.at(0),
            Json({{"table", "InfluenceBeam"}, {"number", 1}, {"why", "it still names element 7"}}));
}

/// Texts of the warnings of a report, and what it says of forces.
std::vector<std::string> Codes(Json const& report) {
  std::vector<std::string> codes;
  for (auto const& warning : report.at("warnings")) codes.push_back(warning.at("code"));
  return codes;
}
constexpr char const* kForceOfCase1 = "load case 1: its total force is not what it was";

TEST_F(ReferencesCommand, MapLoadsReportsAPointLoadThatAPieceRunningBackwardsLoses) {
  auto text = Model();
  text.replace(text.find(R"("topology": [3, 2]})"), 19, R"("topology": [2, 3]})");
  text.replace(text.find(R"("type": 3, "value": [0, 10])"), 27,
               R"("loadCase": 1, "type": 1, "direction": 3, "value": [7, 0], "pos": [6, 0])");
  for (auto const* command : {"map-loads", "replace-elements"}) {
    std::vector<std::string> words{command};
    if (words[0] == "replace-elements") words.emplace_back("--map-loads");
    auto const report = RunOn(words, "7 8 9\n", 1, text);
    EXPECT_EQ(Codes(report), std::vector<std::string>{"runs-backwards"});
    EXPECT_EQ(report.at("data").at("messages"), Json({kForceOfCase1}));
  }
}

TEST_F(ReferencesCommand, MapLoadsReportsADistortionThatAPieceRunningBackwardsLoses) {
  auto text = Model();
  text.replace(text.find(R"("topology": [3, 2]})"), 19, R"("topology": [2, 3]})");
  text.insert(text.find(R"("BeamLoad")"),
              R"("BeamDist": [{"loadedEntities": {"kind": 2, "text": "7"}, "pos": 6}],
)");
  EXPECT_EQ(Codes(RunOn({"map-loads"}, "7 8 9\n", 1, text)),
            std::vector<std::string>{"runs-backwards"});
}

TEST_F(ReferencesCommand, MapLoadsWarnsOfPressuresByCornerOnSolids) {
  // A box of 2 by 1 by 1 cut at x = 1; its pieces are numbered as it is.
  std::string text = Testing::kHeader + ",\"Node\": [";
  for (int n = 1; n <= 12; ++n) {
    auto const at = [n](int step, int count) { return std::to_string((n - 1) / step % count); };
    text += (n == 1 ? "" : ",") + ("{\"n\": " + std::to_string(n)) + ", \"position\": [" +
            at(1, 3) + "," + at(3, 2) + "," + at(6, 2) + "]}";
  }
  text += R"(], "Elem": [{"n": 70, "type": 12, "topology": [1, 3, 6, 4, 7, 9, 12, 10]},
{"n": 80, "type": 12, "topology": [1, 2, 5, 4, 7, 8, 11, 10]},
{"n": 81, "type": 12, "topology": [2, 3, 6, 5, 8, 9, 12, 11]}],
"BodyFaceLoad": [{"loadedEntities": {"kind": 2, "text": "70"}, "type": 2, "face": 0,
"value": [0, 0, 1, 1]}]})";
  auto const report = RunOn({"map-loads"}, "70 80 81\n", 1, text);
  EXPECT_EQ(Codes(report), std::vector<std::string>{"corner-pressure"});
}

TEST_F(ReferencesCommand, MapLoadsGivesUniformPressuresToLoadPanelsAndReportsOnesOnThemAlone) {
  auto text = Model();
  text.replace(text.find(R"({"kind": 2, "text": "20"}, "type": 1)"), 36,
               R"({"kind": 2, "text": "20"}, "loadCase": 1, "direction": 3, "type": 1)");
  RunOn({"map-loads"}, "20 21 30\n", 1, text);  // the panel is as large as both halves
  EXPECT_EQ(LoadText("FaceLoad", 0), "21 30");
  auto const report = RunOn({"map-loads"}, "20 30\n", 1, text);
  EXPECT_EQ(Codes(report), std::vector<std::string>{"panels-alone"});
  EXPECT_EQ(report.at("data").at("messages"), Json({kForceOfCase1}));
}

TEST_F(ReferencesCommand, MapLoadsReportsThatLoadsOfLoadPanelsStay) {
  auto const undone = RunOn({"map-loads"}, "30 21 22\n", 1).at("data").at("undone");
  ASSERT_EQ(undone.size(), 1);
  EXPECT_EQ(undone.at(0).at("table"), "LoadPanel");
  EXPECT_EQ(undone.at(0).at("why"), "loads of load panels are not mapped");
}

TEST_F(ReferencesCommand, RefusesAModelAndAMapThatAreBothOnStandardInput) {
  int const kept = dup(STDIN_FILENO);
  int const file = open(Write("in.json", Model()).c_str(), O_RDONLY | O_CLOEXEC);
  dup2(file, STDIN_FILENO);
  auto const result = RunTarvex({"map-loads", "-", "--map", "-", "--dry-run"});
  dup2(kept, STDIN_FILENO);
  for (int const each : {kept, file}) close(each);
  EXPECT_EQ(result.exit, 2);
  EXPECT_NE(result.err.find("--map: the model is on standard input, name a file"),
            std::string::npos)
      << result.err;
}

TEST_F(ReferencesCommand, TakesNoOptionForAValue) {
  auto const model = Write("in.json", Model());
  for (auto const* command : {"map-loads", "replace-nodes"}) {
    auto const result = RunTarvex({command, model, "--map", "--dry-run"});
    EXPECT_EQ(result.exit, 2);
    EXPECT_NE(result.err.find("--map: a value is missing before --dry-run"), std::string::npos)
        << result.err;
  }
}

TEST_F(ReferencesCommand, RefusesOldNumbersThatNothingHasOrNames) {
  auto const text = [](Json const& report) {
    return report.at("error").at("text").get<std::string>();
  };
  EXPECT_EQ(text(RunOn({"replace-nodes"}, "3 6\n99 4\n", 3)),
            "node 99 does not exist, and nothing names it");
  EXPECT_EQ(text(RunOn({"replace-elements"}, "99 8\n", 3)),
            "element 99 does not exist, and nothing names it");
  // Number 1 is a member, which no element is meant by.
  EXPECT_EQ(text(RunOn({"replace-elements"}, "1 8\n", 3)),
            "element 1 does not exist, and nothing names it");
  EXPECT_EQ(text(RunOn({"copy-references"}, "99 8\n", 3)),
            "element 99 does not exist, and nothing names it");
  EXPECT_EQ(text(RunOn({"copy-references", "--kind", "node"}, "99 4\n", 3)),
            "node 99 does not exist, and nothing names it");
  EXPECT_FALSE(Exists("out.json"));
}

TEST_F(ReferencesCommand, ReplacesMissingNumbersThatAreNamed) {
  auto text = Model();
  text.replace(text.find(R"("topology": [1, 3])"), 18, R"("topology": [1, 99])");
  text.replace(text.find(R"("text": "7")"), 11, R"("text": "7 98")");
  RunOn({"replace-nodes"}, "99 3\n", 0, text);
  EXPECT_EQ(Out().at("Elem").at(1).at("topology"), Json({1, 3}));
  RunOn({"replace-elements"}, "98 9\n", 0, text);
  EXPECT_EQ(Out().at("List").at(0).at("text"), "7 9");
}

TEST_F(ReferencesCommand, ShowsAWordOfABinaryMapCutAndEscaped) {
  // 24 characters of the word, the first of them a control character.
  EXPECT_EQ(RunOn({"replace-nodes"}, "\x1b[31m" + std::string(40, 'x'), 4).at("error").at("text"),
            R"("\u001b[31m)" + std::string(19, 'x') + R"(..." is no number from 1 to 100000000)");
}

TEST_F(ReferencesCommand, TellsWhereAMapIsFaulty) {
  struct Case {
    std::string map;
    int line;
    int column;
    std::string text;
  };
  for (auto const& [map, line, column, text] :
       {Case{"7 8\n8 x9\n", 2, 3, "\"x9\" is no number from 1 to 100000000"},
        Case{"7 0\n", 1, 3, "\"0\" is no number from 1 to 100000000"},
        Case{"7 -1\n", 1, 3, "\"-1\" is no number from 1 to 100000000"},
        Case{"7 100000001\n", 1, 3, "\"100000001\" is no number from 1 to 100000000"},
        Case{"7 8\n\n7 9\n", 3, 1, "number 7 comes a second time"}}) {
    auto const error = RunOn({"replace-elements"}, map, 4).at("error");
    EXPECT_EQ(error.at("text"), text);
    EXPECT_EQ(error.at("line"), line);
    EXPECT_EQ(error.at("column"), column);
  }
  EXPECT_EQ(RunOn({"copy-references"}, "7\n", 4).at("error").at("text"), "a new number is missing");
  EXPECT_EQ(RunOn({"copy-references"}, "7 8 9\n", 4).at("error").at("text"),
            "more than one new number");
}

TEST_F(ReferencesCommand, WantsAMap) {
  auto const model = Write("in.json", Model());
  for (auto const* command : {"replace-nodes", "replace-elements", "copy-references", "map-loads"})
    EXPECT_EQ(RunTarvex({command, model, "--dry-run"}).exit, 2);
  EXPECT_EQ(RunTarvex({"map-loads", model, "--map", Path("none"), "--dry-run"}).exit, 4);
}

TEST_F(ReferencesCommand, TakesAnEmptyMap) {
  auto const report = RunOn({"replace-elements"}, "# nothing\n");
  EXPECT_EQ(report.at("data").at("did"), false);
  EXPECT_EQ(report.at("data").at("changes"), Json::object());
}

TEST_F(ReferencesCommand, RemovesANumberWithoutANewOneFromLists) {
  RunOn({"replace-elements"}, "7\n");
  EXPECT_EQ(Out().count("List"), 1);
  EXPECT_EQ(Out().at("List").size(), 1);
}

}  // namespace
}  // namespace Tarvex::ReferencesTest
