#include "workbench/commands/coincidence.h"

#include <algorithm>
#include <filesystem>

#include "tests/workbench/run.h"

namespace Tarvex::CoincidenceTest {
namespace {

using Testing::RunTarvex;
using Json = nlohmann::json;

/// Beam 1 from (0, 0, 0) to (4, 0, 0), beam 2 on to (8, 0, 0) with a node of its own at (4, 0, 0),
/// beam 3 across beam 1, beam 4 along it, and quadrilateral 5 on four nodes far away, which
/// panel 6 names too. Node 3 is a support, node 2 has a spring.
std::string LooseModel() {
  return Testing::kHeader + R"(,
"Node": [
{"n": 1, "position": [0, 0, 0]}, {"n": 2, "position": [4, 0, 0], "springProperty": 2},
{"n": 3, "position": [4, 0, 0.0004], "restraint": ["Z"]}, {"n": 4, "position": [8, 0, 0]},
{"n": 5, "position": [2, -1, 0]}, {"n": 6, "position": [2, 1, 0]},
{"n": 7, "position": [1, 0, 0]}, {"n": 8, "position": [3, 0, 0]},
{"n": 11, "position": [0, 50, 0]}, {"n": 12, "position": [1, 50, 0]},
{"n": 13, "position": [1, 51, 0]}, {"n": 14, "position": [0, 51, 0]}],
"Elem": [
{"n": 1, "type": 2, "topology": [1, 2]}, {"n": 2, "type": 2, "topology": [3, 4]},
{"n": 3, "type": 2, "topology": [5, 6]}, {"n": 4, "type": 2, "topology": [7, 8]},
{"n": 5, "type": 5, "topology": [11, 12, 13, 14]}],
"LoadPanel": [{"n": 6, "topology": [13, 14, 11, 12]}],
"SpringProp": [{"n": 2}],
"NodeLoad": [{"loadCase": 1, "loadedEntities": "3", "direction": 3, "value": -5}]}
)";
}

class CoincidenceCommand : public Testing::RunTest {
 protected:
  /// Runs a command that changes the model, writes out.json, and gives the report's data.
  Json Change(std::vector<std::string> words, int exit = 0) {
    words.insert(words.end(), {"-o", Path("out.json"), "--force"});
    return Ask(std::move(words), exit);
  }
  /// Runs a command on the loose model and gives the report's data.
  Json Ask(std::vector<std::string> words, int exit) {
    words.insert(words.begin() + 1, Write("in.json", LooseModel()));
    words.emplace_back("--json");
    auto const result = RunTarvex(words);
    EXPECT_EQ(result.exit, exit) << result.out << result.err;
    m_warnings = result.Json().value("warnings", Json::array());
    return result.Json().at("data");
  }
  Json Record(char const* table, int n) const {
    auto const model = Json::parse(Read("out.json"));
    for (auto const& record : model.at(table))
      if (record.at("n") == n) return record;
    return {};
  }
  Json m_warnings;
};

TEST_F(CoincidenceCommand, MergeNodesWritesTheModelAndTellsWhatBecameOfEachNode) {
  auto const data = Change({"merge-nodes"});
  EXPECT_EQ(data.at("did"), true);
  EXPECT_EQ(data.at("maps"), Json::parse(R"({"Node": [[3, 2]]})"));
  EXPECT_EQ(data.at("changes").at("Node").at("removed"), Json({3}));
  EXPECT_EQ(Record("Elem", 2).at("topology"), Json({2, 4}));
  EXPECT_EQ(Record("Node", 2).at("restraint"), Json({"Z"}));
  EXPECT_EQ(Record("Node", 2).at("springProperty"), 2);
  EXPECT_EQ(Json::parse(Read("out.json")).at("NodeLoad").at(0).at("loadedEntities"), "2");
  EXPECT_EQ(data.at("tolerances").at(0),
            Json({{"name", "coincidence"}, {"value", 0.001}, {"unit", "m"}}));
}

TEST_F(CoincidenceCommand, MergeNodesTakesToleranceListAndSearchSet) {
  EXPECT_EQ(Change({"merge-nodes", "--tolerance", "0.0004"}).at("did"), false);
  EXPECT_EQ(Change({"merge-nodes", "--tolerance", "0.00041"}).at("did"), true);
  EXPECT_EQ(Change({"merge-nodes", "--list", "1 4"}).at("did"), false);
  EXPECT_EQ(Change({"merge-nodes", "--list", "2"}).at("did"), true);
  EXPECT_EQ(Change({"merge-nodes", "--list", "3", "--with", "4 to 14"}).at("did"), false);
}

TEST_F(CoincidenceCommand, MergeNodesTakesWhatTheNodeThatStaysGets) {
  Change({"merge-nodes", "--properties", "lesser"});
  EXPECT_FALSE(Record("Node", 2).contains("restraint"));
  EXPECT_FALSE(Record("Node", 2).contains("springProperty"));
  Change({"merge-nodes", "--properties", "kept"});
  EXPECT_FALSE(Record("Node", 2).contains("restraint"));
  EXPECT_EQ(Record("Node", 2).at("springProperty"), 2);
}

TEST_F(CoincidenceCommand, MergeNodesWarnsOfChainsAndOfElementsThatLoseTheirLength) {
  // 8 is 2 from 7 and 7 is 1 from 1: beam 4, from 7 to 8, ends twice at 1, 3 from where 8 was.
  auto const data =
      Change({"merge-nodes", "--tolerance", "2.1", "--list", "1 7 8", "--with", "1"}, 1);
  EXPECT_EQ(data.at("maps"), Json::parse(R"({"Node": [[7, 1], [8, 1]]})"));
  EXPECT_EQ(data.at("did"), true);
  bool chain = false;
  bool repeated = false;
  for (auto const& warning : m_warnings) {
    chain = chain || warning.at("code") == "moved-by-chain";
    repeated = repeated || warning.at("code") == "repeated-node";
  }
  EXPECT_TRUE(chain);
  EXPECT_TRUE(repeated);
  ASSERT_EQ(m_warnings.size(), 2);
}

TEST_F(CoincidenceCommand, MergeNodesWarnsOfLoadsThatActOnFewerNodes) {
  // Both loads are 2 x -5 before; the one whose list holds both of the merged nodes is -5 behind.
  auto const model = Write("loaded.json", Testing::kHeader + R"(,
"Node": [{"n": 1, "position": [0, 0, 0]}, {"n": 2, "position": [0, 0, 0]},
{"n": 3, "position": [9, 0, 0]}],
"NodeLoad": [{"loadedEntities": "1 2", "direction": 3, "value": -5},
{"loadedEntities": "2 3", "direction": 3, "value": -5}]}
)");
  auto const result = RunTarvex({"merge-nodes", model, "--dry-run", "--json"});
  EXPECT_EQ(result.exit, 1);
  auto const warnings = result.Json().at("warnings");
  ASSERT_EQ(warnings.size(), 1);
  EXPECT_EQ(warnings.at(0).at("code"), "fewer-loaded-nodes");
  EXPECT_EQ(warnings.at(0).at("text"), "NodeLoad 1 acts on 1 node, and on 2 before");
}

TEST_F(CoincidenceCommand, JoinNodesPlacesAJointAndReportsWhatIsLeft) {
  auto const data = Change({"join-nodes"});
  EXPECT_EQ(data.at("changes").at("Joint").at("added"), Json({1}));
  EXPECT_EQ(data.at("undone"), Json::array());
  auto const joint = Json::parse(Read("out.json")).at("Joint").at(0);
  EXPECT_EQ(joint.at("primaryNode"), 2);
  EXPECT_EQ(joint.at("constrainedNode"), 3);
  // The second node at that place is in a constraint now.
  auto const again = RunTarvex({"join-nodes", Path("out.json"), "--dry-run", "--json"});
  EXPECT_EQ(again.exit, 0);
  EXPECT_EQ(again.Json().at("data").at("did"), false);
}

TEST_F(CoincidenceCommand, JoinNodesLeavesANodeThatIsInAConstraintUndone) {
  auto text = LooseModel();
  text.replace(text.find("\"NodeLoad\""), 0,
               R"("Joint": [{"primaryNode": 1, "constrainedNode": 2, "direction": ["X"],)"
               R"( "stage": "all"}],)"
               "\n");
  auto const result = RunTarvex({"join-nodes", Write("in.json", text), "--dry-run", "--json"});
  EXPECT_EQ(result.exit, 1) << result.out << result.err;
  auto const undone = result.Json().at("data").at("undone");
  ASSERT_EQ(undone.size(), 2);
  EXPECT_EQ(undone.at(0).at("number"), 2);
  EXPECT_EQ(undone.at(0).at("why"), "it or node 3, which coincides with it, is in a constraint");
}

TEST_F(CoincidenceCommand, FindCoincidentTellsPairsOfAKind) {
  auto const nodes = Ask({"find-coincident"}, 1);
  EXPECT_EQ(nodes, Json::parse(R"({"kind": "node", "count": 1, "pairs": [[2, 3]]})"));
  auto const elements = Ask({"find-coincident", "--kind", "element"}, 1);
  EXPECT_EQ(elements.at("pairs"), Json::parse("[[5, 6]]"));
  auto const members = Ask({"find-coincident", "--kind", "member"}, 0);
  EXPECT_EQ(members.at("count"), 0);
}

TEST_F(CoincidenceCommand, FindOverlapsTellsLinesAlongOneAnotherAndPlatesOverOneAnother) {
  EXPECT_EQ(Ask({"find-overlaps"}, 1).at("pairs"), Json::parse("[[1, 4], [5, 6]]"));
  EXPECT_EQ(Ask({"find-overlaps", "--list", "1 2 3"}, 0).at("pairs"), Json::array());
}

TEST_F(CoincidenceCommand, FindCrossingTellsLinesThatCross) {
  auto const all = Ask({"find-crossing", "--list", "1 2 3 5 6"}, 1);
  EXPECT_EQ(all.at("pairs"), Json::parse("[[1, 3]]"));
  EXPECT_EQ(Ask({"find-crossing", "--kind", "member"}, 0).at("count"), 0);
}

TEST_F(CoincidenceCommand, FindUnconnectedTellsTheLinesThatHangOnNothing) {
  auto const data = Ask({"find-unconnected"}, 1);
  EXPECT_EQ(data, Json::parse(R"({"kind": "element", "count": 4, "numbers": [1, 2, 3, 4]})"));
  EXPECT_EQ(Ask({"find-unconnected", "--list", "5"}, 0).at("numbers"), Json::array());
}

TEST_F(CoincidenceCommand, FindingsAreReadableAsText) {
  auto const model = Write("in.json", LooseModel());
  EXPECT_EQ(RunTarvex({"find-coincident", model}).out, "node 2 and 3\n1 pair\n");
  EXPECT_EQ(RunTarvex({"find-overlaps", model, "--list", "1 to 4"}).out,
            "element 1 overlaps 4\n1 pair\n");
  EXPECT_EQ(RunTarvex({"find-crossing", model, "--list", "1 3"}).out,
            "element 1 crosses 3\n1 pair\n");
  EXPECT_EQ(RunTarvex({"find-unconnected", model, "--list", "1 2"}).out,
            "2 unconnected elements: 1 2\n");
}

TEST_F(CoincidenceCommand, BadValuesAreRefusedWithTwo) {
  auto const model = Write("in.json", LooseModel());
  struct Row {
    std::vector<std::string> words;
    std::string line;
  };
  for (auto row :
       {Row{{"merge-nodes", "--tolerance", "-1"}, "--tolerance: '-1' is not at least 0\n"},
        {{"merge-nodes", "--properties", "most"},
         "--properties: 'most' is not one of greater|lesser|kept\n"},
        {{"merge-nodes", "--with", "1 to"}, "--with: character 3: a range without its end\n"},
        {{"join-nodes", "--stage", "-1"}, "--stage: '-1' is not at least 0\n"},
        {{"find-overlaps", "--kind", "node"}, "--kind: 'node' is not one of element|member\n"}}) {
    row.words.insert(row.words.begin() + 1, model);
    if (!row.words.front().starts_with("find")) row.words.emplace_back("--dry-run");
    auto const result = RunTarvex(row.words);
    EXPECT_EQ(result.exit, 2) << row.line;
    EXPECT_TRUE(result.err.starts_with("tarvex: ") && result.err.ends_with(row.line)) << result.err;
    EXPECT_EQ(std::ranges::count(result.err, '\n'), 1);
    EXPECT_EQ(result.out, "");
  }
}

TEST_F(CoincidenceCommand, AStageThatDoesNotExistIsRefusedWithThree) {
  auto const model = Write("in.json", LooseModel());
  for (std::vector<std::string> words :
       {std::vector<std::string>{"merge-nodes"}, {"join-nodes"}, {"find-coincident"}}) {
    bool const changes = words.front() != "find-coincident";
    words.insert(words.end(), {model, "--stage", "7"});
    if (changes) words.insert(words.end(), {"-o", Path("staged.json")});
    auto const result = RunTarvex(words);
    EXPECT_EQ(result.exit, 3) << words.front();
    EXPECT_EQ(result.err, "tarvex: stage 7 does not exist\n");
    EXPECT_FALSE(std::filesystem::exists(Path("staged.json")));
  }
}

TEST_F(CoincidenceCommand, MergeNodesWarnsOfAJointThatTiesTheMergedNodesInAnotherStage) {
  auto text = LooseModel();
  text.replace(text.find("\"NodeLoad\""), 0, R"("AnalStage": [{"n": 7}],
"Joint": [{"direction": ["X"], "primaryNode": 2, "constrainedNode": 3, "stage": "7"}],
)");
  auto const result =
      RunTarvex({"merge-nodes", Write("in.json", text), "-o", Path("out.json"), "--json"});
  EXPECT_EQ(result.exit, 1);
  auto const warnings = result.Json().at("warnings");
  ASSERT_EQ(warnings.size(), 1u);
  EXPECT_EQ(warnings.at(0).at("code"), "self-constraint");
  EXPECT_EQ(warnings.at(0).at("table"), "Joint");
  EXPECT_EQ(warnings.at(0).at("number"), 1);
}

TEST_F(CoincidenceCommand, AStageThatExistsIsTaken) {
  auto text = LooseModel();
  text.replace(text.find("\"NodeLoad\""), 0, "\"AnalStage\": [{\"n\": 7}],\n");
  auto const model = Write("in.json", text);
  for (auto const* command : {"merge-nodes", "join-nodes"})
    EXPECT_EQ(RunTarvex({command, model, "--stage", "7", "--dry-run"}).exit, 0) << command;
  EXPECT_EQ(RunTarvex({"find-coincident", model, "--stage", "7"}).exit, 1);
}

}  // namespace
}  // namespace Tarvex::CoincidenceTest
