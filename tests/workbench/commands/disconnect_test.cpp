#include "workbench/commands/disconnect.h"

#include "tests/workbench/run.h"

namespace Tarvex::DisconnectCommandTest {
namespace {

using Testing::RunTarvex;
using Json = nlohmann::json;

/// Three beams at node 1, which bears a mass, with a panel; four members at node 1; a slab member 5
/// of element 11, flagged, with beam 12 along its edge; a block of member 1.
std::string StarModel() {
  return Testing::kHeader + R"(,
"Block": [{"n": 1, "members": [1], "replica": {"steps": [{"count": 1, "offset": [0, 5, 0]}]}}],
"MassProp": [{"n": 1}],
"Node": [
{"n": 1, "position": [0, 0, 0], "massProperty": 1}, {"n": 2, "position": [1, 0, 0]},
{"n": 3, "position": [2, 0, 0]}, {"n": 4, "position": [3, 0, 0]},
{"n": 5, "position": [0, 9, 0]}, {"n": 6, "position": [1, 9, 0]},
{"n": 7, "position": [1, 8, 0]}, {"n": 8, "position": [0, 8, 0]}],
"Member": [
{"n": 1, "topology": "2 1"}, {"n": 2, "topology": "3 1"}, {"n": 3, "topology": "4 1"},
{"n": 5, "topology": "5 6 7 8", "type": 4, "releaseEdges": true, "children": [[0, 11]]},
{"n": 6, "topology": "5 6 7", "type": 4}],
"Elem": [
{"n": 1, "type": 2, "topology": [2, 1]}, {"n": 2, "type": 2, "topology": [1, 3]},
{"n": 3, "type": 2, "topology": [4, 1]},
{"n": 11, "type": 5, "topology": [5, 6, 7, 8], "parentMember": {"member": 5}},
{"n": 12, "type": 2, "topology": [5, 6]}],
"LoadPanel": [{"n": 13, "topology": [1, 2, 3]}]
}
)";
}

class DisconnectCommand : public Testing::RunTest {
 protected:
  Json RunOn(std::vector<std::string> words, int exit, std::string const& model = StarModel()) {
    words.insert(words.begin() + 1, Write("in.json", model));
    words.insert(words.end(), {"-o", Path("out.json"), "--force", "--json"});
    m_result = RunTarvex(words);
    EXPECT_EQ(m_result.exit, exit) << m_result.out << m_result.err;
    return m_result.Json().at("data");
  }
  Json Warnings() const { return m_result.Json().at("warnings"); }
  Json Record(char const* table, int n) const {
    auto const model = Json::parse(Read("out.json"));
    for (auto const& record : model.at(table))
      if (record.at("n") == n) return record;
    return {};
  }
  Json Topology(char const* table, int n) const { return Record(table, n).at("topology"); }

 private:
  Testing::RunResult m_result;
};

TEST_F(DisconnectCommand, DisconnectsListedElementsAndWarnsOfTheMassThatStandsTwice) {
  auto const data = RunOn({"disconnect", "--list", "2 3"}, 1);
  EXPECT_EQ(data.at("did"), true);
  EXPECT_EQ(data.at("result"), Json::parse(R"({"newNodes":1,"joints":0,"springs":0})"));
  EXPECT_EQ(Topology("Elem", 2), Json({1, 3}));
  EXPECT_EQ(Topology("Elem", 3), Json({4, 9}));
  EXPECT_EQ(data.at("undone"), Json::array());
  ASSERT_EQ(Warnings().size(), 1U);
  EXPECT_EQ(Warnings().at(0).at("code"), "copied-property");
  EXPECT_EQ(Warnings().at(0).at("number"), 9);
  EXPECT_EQ(
      RunTarvex({"disconnect", Path("in.json"), "--list", "2 3", "--dry-run"}).err,
      "warning: node 9: the spring, mass or damper of the node that it was parted from stands "
      "at both\n");
}

TEST_F(DisconnectCommand, ReportsPanelsThatKeepANodeOfOthersOnly) {
  // Panel 13 shares nodes with beams 1 to 3, panel 14 shares none.
  auto text = StarModel();
  auto const panel = text.find(R"({"n": 13)");
  text.insert(panel, R"({"n": 14, "topology": [6, 7, 8]}, )");
  auto const expected = Json::parse(R"([{"table":"LoadPanel","number":13,
      "why":"load panels are passed over"}])");
  EXPECT_EQ(RunOn({"disconnect", "--list", "1 to 3 13 14"}, 1, text).at("undone"), expected);
  EXPECT_EQ(RunOn({"disconnect", "--list", "14"}, 0, text).at("undone"), Json::array());
  EXPECT_EQ(RunOn({"disconnect", "--list", "1 8", "--kind", "node"}, 1, text).at("undone").size(),
            2U);  // node 8 is of element 11 and panel 14
}

TEST_F(DisconnectCommand, RefusesPartsThatNothingIsDoneWith) {
  auto const model = Write("in.json", StarModel());
  for (auto const& words :
       std::vector<std::vector<std::string>>{{"--parts", "member"},
                                             {"--parts", "element"},
                                             {"--kind", "member", "--parts", "member"},
                                             {"--kind", "member", "--parts", "element"}}) {
    std::vector<std::string> all{"disconnect", model, "--dry-run"};
    all.insert(all.end(), words.begin(), words.end());
    auto const result = RunTarvex(all);
    EXPECT_EQ(result.exit, 2);
    EXPECT_EQ(result.err, "tarvex: --parts goes with --kind node\n");
  }
}

TEST_F(DisconnectCommand, DisconnectsAllElementsAtANodeWithJointsAndSprings) {
  auto const data =
      RunOn({"disconnect", "--list", "1", "--kind", "node", "--full", "--joint", "--spring"}, 1);
  EXPECT_EQ(data.at("result"), Json::parse(R"({"newNodes":3,"joints":3,"springs":3})"));
  EXPECT_EQ(Topology("Elem", 1), Json({2, 9}));
  EXPECT_EQ(Topology("Elem", 14), Json({1, 9}));
  EXPECT_EQ(Json::parse(Read("out.json")).at("Joint").at(0).at("name"), "On element 1");
  EXPECT_EQ(data.at("undone"), Json::parse(R"([{"table":"LoadPanel","number":13,
      "why":"load panels are passed over"}])"));
}

TEST_F(DisconnectCommand, DisconnectsMembersAtANode) {
  auto const data = RunOn({"disconnect", "--list", "1", "--kind", "node", "--parts", "member"}, 1);
  EXPECT_EQ(data.at("result").at("newNodes"), 2);
  EXPECT_EQ(Topology("Member", 2), "3 9");
  EXPECT_EQ(data.at("undone"), Json::array());
}

TEST_F(DisconnectCommand, WarnsOfMembersThatSpringsTakeTheNumberOf) {
  auto const data = RunOn({"disconnect", "--kind", "member", "--list", "1 to 3", "--spring"}, 1);
  // Element 13 is the highest, so both springs come under 14.
  EXPECT_EQ(data.at("result").at("springs"), 2);
  auto const warnings = Warnings();
  ASSERT_EQ(warnings.size(), 3U);  // two masses
  EXPECT_EQ(warnings.at(2).at("code"), "member-replaced");
  EXPECT_EQ(warnings.at(2).at("number"), 14);
  EXPECT_EQ(warnings.at(2).at("text"),
            "2 springs came in the place of member 14 one after the other: the last one is left");
  EXPECT_EQ(Topology("Member", 14), "1 10");
}

TEST_F(DisconnectCommand, WarnsOfAMemberThatASpringReplaces) {
  auto text = StarModel();
  text.replace(text.find(R"({"n": 6, "topology": "5 6 7")"), 8, R"({"n": 14,)");
  RunOn({"disconnect", "--kind", "member", "--list", "1 2", "--spring"}, 1, text);
  auto const warnings = Warnings();
  ASSERT_EQ(warnings.size(), 2U);  // the mass
  EXPECT_EQ(warnings.at(1).at("code"), "member-replaced");
  EXPECT_EQ(warnings.at(1).at("number"), 14);
  EXPECT_EQ(warnings.at(1).at("text"), "member 14 was replaced by a spring");
  EXPECT_EQ(Topology("Member", 14), "1 9");
}

TEST_F(DisconnectCommand, HasNothingToDoForOneElement) {
  auto const data = RunOn({"disconnect", "--list", "1"}, 0);
  EXPECT_EQ(data.at("did"), false);
  EXPECT_EQ(data.at("changes"), Json::object());
}

TEST_F(DisconnectCommand, ReleasesTheEdgesOfFlaggedMembers) {
  auto const data = RunOn({"release-edges"}, 0);
  EXPECT_EQ(data.at("did"), true);
  EXPECT_EQ(data.at("result"), Json::parse(R"({"released":[{"member":5,"newNodes":[9,10]}]})"));
  EXPECT_EQ(Topology("Elem", 11), Json({9, 10, 7, 8}));
  EXPECT_EQ(Topology("Elem", 12), Json({5, 6}));
  ASSERT_EQ(Warnings().size(), 1U);
  EXPECT_EQ(Warnings().at(0).at("text"), "2D members not flagged for the release of edges: 6");
  EXPECT_EQ(Warnings().at(0).at("number"), 6);
}

TEST_F(DisconnectCommand, WarnsOfTheMassThatAReleasedEdgeHasTwice) {
  auto text = StarModel();
  text.replace(text.find(R"([0, 9, 0])"), 9, R"([0, 9, 0], "massProperty": 1)");
  RunOn({"release-edges", "--list", "5"}, 1, text);
  ASSERT_EQ(Warnings().size(), 1U);
  EXPECT_EQ(Warnings().at(0).at("code"), "copied-property");
  EXPECT_EQ(Warnings().at(0).at("number"), 9);
  EXPECT_EQ(Record("Node", 9).at("massProperty"), 1);
}

TEST_F(DisconnectCommand, ReleasesNothingOfMembersWithoutFlag) {
  auto const data = RunOn({"release-edges", "--list", "1 6"}, 0);
  EXPECT_EQ(data.at("did"), false);
  EXPECT_EQ(data.at("changes"), Json::object());
}

TEST_F(DisconnectCommand, TellsAChainAndWhatDoesNotJoinOn) {
  auto const model = Write("in.json", StarModel());
  auto const result = RunTarvex({"chain", model, "--list", "1 2 11 12", "--json"});
  EXPECT_EQ(result.exit, 1);
  EXPECT_EQ(result.Json().at("data"),
            Json::parse(R"({"nodes":[2,1,3],"elements":[1,2,12],"leftOut":[12]})"));
  auto const words = RunTarvex({"chain", model, "--list", "1 2"});
  EXPECT_EQ(words.exit, 0);
  EXPECT_EQ(words.out, "3 nodes: 2 1 3\n");
}

TEST_F(DisconnectCommand, TellsElementsBesideThoseOfAChain) {
  auto const leftOut = [&](char const* elements) {
    auto const result = RunTarvex({"chain", Write("in.json", Testing::kHeader + R"(,
"Node": [{"n": 1, "position": [0, 0, 0]}, {"n": 2, "position": [1, 0, 0]},
{"n": 3, "position": [1, 1, 0]}],
"Elem": [)" + elements + "]}\n"),
                                   "--json"});
    EXPECT_EQ(result.exit, 1) << result.out;
    return result.Json().at("data");
  };
  // Element 2 stands on 1.
  auto const line = leftOut(
      R"({"n": 1, "type": 2, "topology": [1, 2]}, {"n": 2, "type": 2, "topology": [1, 2]},
         {"n": 3, "type": 2, "topology": [2, 3]})");
  EXPECT_EQ(line, Json::parse(R"({"nodes":[1,2,3],"elements":[1,2,3],"leftOut":[2]})"));
  // A closed chain with a limit of five nodes runs over element 1 twice, and never over 2.
  auto const ring = leftOut(
      R"({"n": 1, "type": 2, "topology": [1, 2]}, {"n": 2, "type": 2, "topology": [1, 2]},
         {"n": 3, "type": 2, "topology": [2, 3]}, {"n": 4, "type": 2, "topology": [3, 1]})");
  EXPECT_EQ(ring, Json::parse(R"({"nodes":[1,2,3,1,2],"elements":[1,2,3,4],"leftOut":[2]})"));
}

/// The model with the steps of the block of member 1.
std::string StarWithSteps(std::string const& steps) {
  auto text = StarModel();
  std::string const old = R"({"count": 1, "offset": [0, 5, 0]})";
  return text.replace(text.find(old), old.size(), steps);
}

TEST_F(DisconnectCommand, MakesMoreThanTenThousandMembersOnlyWhereTold) {
  auto const run = [&](std::string const& steps, std::vector<std::string> more = {}) {
    std::vector<std::string> words{"explode-blocks", Write("in.json", StarWithSteps(steps)),
                                   "--dry-run"};
    words.insert(words.end(), more.begin(), more.end());
    return RunTarvex(words);
  };
  // 101 * 100 - 1 = 10099 places beside the original.
  std::string const many =
      R"({"count": 100, "offset": [0, 50, 0]}, {"count": 99, "offset": [0, 0, 50]})";
  auto const refused = run(many);
  EXPECT_EQ(refused.exit, 3);
  EXPECT_EQ(refused.err,
            "tarvex: up to 10099 members and 20198 nodes would be made: more than 10000 members "
            "only with --yes\n");
  EXPECT_EQ(run(many, {"--yes"}).exit, 0);
  EXPECT_EQ(run(R"({"count": 10000, "offset": [0, 50, 0]})").exit, 0);
  EXPECT_EQ(run(R"({"count": 10001, "offset": [0, 50, 0]})").exit, 3);
}

TEST_F(DisconnectCommand, RefusesMoreMembersThanThereAreNumbersWhateverIsTold) {
  std::string const step = R"({"count": 1000000000, "offset": [0, 5, 0]})";
  for (auto const& [steps, members, nodes] :
       {std::tuple(step, "1000000000", "2000000000"),
        std::tuple(step + "," + step + "," + step, "999999999999999", "1000000000000000")}) {
    auto const model = Write("in.json", StarWithSteps(steps));
    auto const result = RunTarvex({"explode-blocks", model, "--dry-run", "--yes"});
    EXPECT_EQ(result.exit, 3);
    EXPECT_EQ(result.err, std::string("tarvex: up to ") + members + " members and " + nodes +
                              " nodes would be made: numbers end at 100000000\n");
  }
}

TEST_F(DisconnectCommand, TellsTheMembersWhoseOriginalHasElements) {
  auto text = StarModel();
  text.replace(text.find(R"("topology": "2 1")"), 17, R"("topology": "2 1", "children": [[0, 1]])");
  auto const data = RunOn({"explode-blocks"}, 0, text);
  EXPECT_EQ(data.at("result"), Json::parse(R"({"blocks":[1],"newMembers":[7],"toMesh":"7"})"));
}

TEST_F(DisconnectCommand, WorksOnTheExample) {
  std::string const model = TARVEX_SOURCE_DIR "/examples/six-storey/six-storey.json";
  // Column member 1 is made of elements 1, 2 and so on, upwards.
  auto const chain = RunTarvex({"chain", model, "--list", "1 2", "--json"});
  EXPECT_EQ(chain.exit, 0) << chain.err;
  EXPECT_EQ(chain.Json().at("data").at("nodes"), Json({257, 467, 551}));
  auto const parted = RunTarvex(
      {"disconnect", model, "--list", "1 2", "--joint", "-o", Path("out.json"), "--json"});
  EXPECT_EQ(parted.exit, 0) << parted.err;
  EXPECT_EQ(parted.Json().at("data").at("result"),
            Json::parse(R"({"newNodes":1,"joints":1,"springs":0})"));
  EXPECT_EQ(Topology("Elem", 1), Json({257, 467}));
  EXPECT_EQ(Topology("Elem", 2), Json({2801, 551}));
  EXPECT_EQ(RunTarvex({"check", Path("out.json")}).exit, RunTarvex({"check", model}).exit);
  // No member is flagged, and there is no block.
  EXPECT_EQ(RunTarvex({"release-edges", model, "--dry-run", "--json"}).Json().at("data").at("did"),
            false);
  EXPECT_EQ(RunTarvex({"explode-blocks", model, "--dry-run", "--json"}).Json().at("data").at("did"),
            false);
}

TEST_F(DisconnectCommand, ExplodesBlocksAndReportsTheMissingMember) {
  auto text = StarModel();
  text.replace(text.find(R"("members": [1])"), 14, R"("members": [1, 9])");
  auto const data = RunOn({"explode-blocks"}, 1, text);
  EXPECT_EQ(data.at("result"), Json::parse(R"({"blocks":[1],"newMembers":[7],"toMesh":""})"));
  EXPECT_EQ(Topology("Member", 7), "9 10");
  EXPECT_EQ(data.at("changes").at("Block").at("removed"), Json({1}));
  EXPECT_EQ(data.at("undone"),
            Json::parse(R"([{"table":"Block","number":1,"why":"member 9 does not exist"}])"));
  EXPECT_EQ(data.at("tolerances").at(0),
            Json({{"name", "coincidence"}, {"value", 0.001}, {"unit", "m"}}));
}

TEST_F(DisconnectCommand, WarnsOfAListWithoutBlocksAndRefusesATextThatIsNone) {
  auto const data = RunOn({"explode-blocks", "--list", "4"}, 0);
  EXPECT_EQ(data.at("did"), false);
  EXPECT_EQ(Warnings().at(0).at("code"), "empty-selection");
  auto const model = Write("in.json", StarModel());
  EXPECT_EQ(RunTarvex({"explode-blocks", model, "--dry-run", "--list", "1 to"}).exit, 2);
}

}  // namespace
}  // namespace Tarvex::DisconnectCommandTest
