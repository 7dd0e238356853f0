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
            "2 springs came under this number one after the other: the last one is left");
  EXPECT_EQ(Topology("Member", 14), "1 10");
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
  EXPECT_EQ(Warnings().at(0).at("text"),
            "1 2D member of the selection not flagged for the release of edges");
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
