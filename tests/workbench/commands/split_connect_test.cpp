#include "workbench/commands/split_connect.h"

#include "tests/workbench/run.h"

namespace Tarvex::SplitConnectTest {
namespace {

using Testing::RunTarvex;
using Json = nlohmann::json;

/// Beam 7 along x, a child of member 1; beam 8 across it, rigid for 1 at its start; member 2 across
/// member 1; a linear load on 7 and a list of it.
std::string Model() {
  return Testing::kHeader + R"(,
"Node": [
{"n": 1, "position": [0, 0, 0]}, {"n": 2, "position": [10, 0, 0]},
{"n": 3, "position": [4, -3, 0]}, {"n": 4, "position": [4, 3, 0]}],
"Elem": [
{"n": 7, "type": 2, "topology": [1, 2], "parentMember": {"member": 1}},
{"n": 8, "type": 2, "topology": [3, 4], "offset": {"x1": 1}}],
"Member": [
{"n": 1, "type": 1, "topology": "1 2", "children": [[0, 7]]}, {"n": 2, "type": 1, "topology": "3 4"}],
"List": [{"n": 1, "kind": 2, "text": "7"}],
"BeamLoad": [{"loadedEntities": {"kind": 2, "text": "7"}, "type": 3, "value": [0, 10]}]
}
)";
}

class SplitConnectCommand : public Testing::RunTest {
 protected:
  Json RunOn(std::vector<std::string> words, int exit = 0, std::string const& text = Model()) {
    words.insert(words.begin() + 1, Write("in.json", text));
    words.insert(words.end(), {"-o", Path("out.json"), "--force", "--json"});
    auto const result = RunTarvex(words);
    EXPECT_EQ(result.exit, exit) << result.out << result.err;
    return result.Json();
  }
  Json Out() const { return Json::parse(Read("out.json")); }
};

TEST_F(SplitConnectCommand, SplitCutsABeamAndTakesLoadsAndReferencesAlong) {
  auto const report = RunOn({"split", "--list", "7", "--at", "4"});
  auto const& data = report.at("data");
  EXPECT_EQ(data.at("did"), true);
  EXPECT_EQ(data.at("result"),
            Json::parse(R"({"splits": [{"number": 7, "node": 5, "created": [10, 9]}]})"));
  EXPECT_EQ(Out().at("List").at(0).at("text"), "9 10");
  ASSERT_EQ(Out().at("BeamLoad").size(), 2);
  EXPECT_EQ(Out().at("BeamLoad").at(0).at("value"), Json({0, 4}));
  // Neither piece is listed with the member that they were made from.
  ASSERT_EQ(report.at("warnings").size(), 2);
  EXPECT_EQ(report.at("warnings").at(0).at("code"), "unlisted-piece");
  EXPECT_EQ(report.at("warnings").at(0).at("number"), 9);
}

TEST_F(SplitConnectCommand, ConnectRefusesAToleranceAsLongAsALine) {
  for (auto const* tolerance : {"6", "6.5"}) {  // element 8 is 6 m long
    auto const report = RunOn({"connect", "--tol", tolerance}, 3);
    EXPECT_EQ(report.at("error").at("text"), std::string("--tol ") + tolerance +
                                                 " m is not shorter than element 8, which is 6 m "
                                                 "long");
  }
  RunOn({"connect", "--tol", "5.9"}, 0);
}

TEST_F(SplitConnectCommand, SplitLeavesReferencesAloneWhenTold) {
  RunOn({"split", "--list", "7", "--at", "4", "--no-references"}, 1);
  EXPECT_EQ(Out().at("List").at(0).at("text"), "7");
  EXPECT_EQ(Out().at("BeamLoad").size(), 1);
}

TEST_F(SplitConnectCommand, SplitReportsWhatItLeaves) {
  auto text = Model();
  text.replace(text.find(R"("text": "7"}, "type": 3)"), 11, R"("text": "6 to 7")");
  auto const report = RunOn({"split", "--at", "0.5"}, 1, text);
  auto const undone = report.at("data").at("undone");
  ASSERT_EQ(undone.size(), 2);
  EXPECT_EQ(
      undone.at(0),
      Json({{"table", "Elem"}, {"number", 8}, {"why", "the place is within a rigid offset"}}));
  EXPECT_EQ(undone.at(1).at("table"), "BeamLoad");
}

TEST_F(SplitConnectCommand, SplitOfSeveralElementsIsThatOfOneAfterTheOther) {
  auto text = Model();
  // A load and a list that both beams share; loads are mapped without the offset of beam 8.
  text.replace(text.find(R"("List": [)"), 9, R"("List": [{"n": 2, "kind": 2, "text": "8 7"}, )");
  text.replace(text.find(R"("BeamLoad": [)"), 13,
               R"("BeamLoad": [{"loadedEntities": {"kind": 2, "text": "7 8"}, "type": 2,
 "value": [5, 0]}, {"loadedEntities": {"kind": 2, "text": "8"}, "type": 3, "value": [0, 6]}, )");
  auto one = text;
  for (auto const* n : {"7", "8"}) {
    RunOn({"split", "--list", n, "--at", "4"}, 0, one);
    one = Read("out.json");
  }
  RunOn({"split", "--list", "7 8", "--at", "4"}, 0, text);
  EXPECT_EQ(Out(), Json::parse(one));
  EXPECT_EQ(Out().at("List").at(1).at("text"), "11 12 9 10");
  EXPECT_EQ(Out().at("BeamLoad").at(0).at("loadedEntities").at("text"), "9 10 11 12");
  // The load rises by 1 a metre; the pieces start 1 behind their nodes: 1 to 4, 4 + 1 to 6.
  EXPECT_EQ(Out().at("BeamLoad").at(3).at("value"), Json({1, 4}));
  EXPECT_EQ(Out().at("BeamLoad").at(4).at("value"), Json({5, 6}));
}

TEST_F(SplitConnectCommand, SplitWarnsOfOffsetsThatAreGoneWhereItDidNotCut) {
  auto const report = RunOn({"split", "--list", "8", "--at", "0.5"}, 1);
  EXPECT_EQ(report.at("warnings").at(0), Json({{"code", "offset-cleared"},
                                               {"table", "Elem"},
                                               {"number", 8},
                                               {"text", "element 8 has lost its offsets"}}));
}

TEST_F(SplitConnectCommand, SplitReportsRigidEndsAtTheCutAndTheForceTheyTake) {
  auto text = Model();
  // 10 N/m on the 6 less 1 of beam 8; both pieces keep the offset, so that 9 runs from 1 to 4 and
  // 10 from 4 + 1 on: 10 N are gone.
  text.replace(text.find(R"("text": "7"}, "type": 3, "value": [0, 10])"), 41,
               R"("text": "8"}, "loadCase": 1, "type": 2, "direction": 3, "value": [10, 0])");
  auto const report = RunOn({"split", "--list", "8", "--at", "4"}, 1, text);
  ASSERT_EQ(report.at("warnings").size(), 1);
  EXPECT_EQ(report.at("warnings").at(0),
            Json({{"code", "offset-kept"},
                  {"table", "Elem"},
                  {"number", 10},
                  {"text", "element 10 keeps an axial offset at the cut, and no load there"}}));
  EXPECT_EQ(report.at("data").at("messages"),
            Json({"load case 1: its total force is not what it was"}));
}

TEST_F(SplitConnectCommand, SplitSaysThatAPlaceOutsideOrWithinAMemberGaveANodeAlone) {
  auto const report = RunOn({"split", "--list", "7", "--at", "12"}, 1);
  ASSERT_EQ(report.at("warnings").size(), 1);
  EXPECT_EQ(report.at("warnings").at(0).at("code"), "node-alone");
  EXPECT_EQ(report.at("warnings").at(0).at("text"),
            "element 7 was neither cut nor extended: node 5 is at the place");
  auto const member = RunOn({"split", "--kind", "member", "--list", "1", "--at", "4"}, 1);
  ASSERT_EQ(member.at("warnings").size(), 1);
  EXPECT_EQ(member.at("warnings").at(0).at("table"), "Member");
  EXPECT_EQ(member.at("warnings").at(0).at("text"),
            "member 1 was neither cut nor extended: node 5 is at the place; members are not cut");
  EXPECT_EQ(RunOn({"split", "--list", "7", "--at", "10"}).at("warnings").size(), 0);
}

TEST_F(SplitConnectCommand, SplitPassesPlatesOverUnlessTheListNamesThem) {
  auto text = Model();
  text.insert(text.find(R"({"n": 8, "type": 2)"), R"({"n": 3, "type": 7, "topology": [1, 2, 4]},
)");
  EXPECT_TRUE(RunOn({"split", "--at", "4"}, 0, text).at("data").at("undone").empty());
  auto const undone =
      RunOn({"split", "--list", "3 7", "--at", "4"}, 1, text).at("data").at("undone");
  ASSERT_EQ(undone.size(), 1);
  EXPECT_EQ(undone.at(0).at("why"), "it is no 1D entity");
}

TEST_F(SplitConnectCommand, ReportsWhatStillNamesAnElementThatIsGone) {
  auto text = Model();
  text.insert(text.find(R"("BeamLoad")"), R"("InfluenceBeam": [{"elem": 7}],
)");
  for (auto const& words :
       std::vector<std::vector<std::string>>{{"split", "--list", "7", "--at", "4"}, {"connect"}}) {
    auto const undone = RunOn(words, 1, text).at("data").at("undone");
    ASSERT_EQ(undone.size(), 1);
    EXPECT_EQ(undone.at(0).at("table"), "InfluenceBeam");
    EXPECT_EQ(undone.at(0).at("why"), "it still names element 7");
  }
}

TEST_F(SplitConnectCommand, ReportsLoadsOnLinesOnly) {
  // Both loads are on everything; that of plates is no matter of cut beams.
  auto text = Model();
  text.replace(text.find(R"("text": "7"}, "type": 3)"), 11, R"("text": "all")");
  text.insert(
      text.find(R"("BeamLoad")"),
      R"("FaceLoad": [{"loadedEntities": {"kind": 2, "text": "all"}, "type": 1, "value": [3, 0, 0, 0]}],
)");
  for (auto const& words :
       std::vector<std::vector<std::string>>{{"split", "--list", "7", "--at", "4"}, {"connect"}}) {
    auto const undone = RunOn(words, 1, text).at("data").at("undone");
    ASSERT_EQ(undone.size(), 1);
    EXPECT_EQ(undone.at(0).at("table"), "BeamLoad");
  }
}

TEST_F(SplitConnectCommand, SplitWarnsOfAnExtensionWithoutLength) {
  auto const report = RunOn({"split", "--list", "7", "--at=-2", "--extend"}, 1);
  EXPECT_EQ(report.at("warnings").at(0).at("code"), "no-length");
  EXPECT_EQ(report.at("warnings").at(0).at("number"), 9);
}

TEST_F(SplitConnectCommand, SplitExtendsMembers) {
  RunOn({"split", "--kind", "member", "--list", "1", "--at", "12"}, 1);  // a node alone
  EXPECT_EQ(Out().at("Member").size(), 2);
  auto const data =
      RunOn({"split", "--kind", "member", "--list", "1", "--at=-2", "--extend"}).at("data");
  EXPECT_EQ(data.at("result").at("splits").at(0).at("created"), Json({1, 3}));
  EXPECT_EQ(Out().at("Member").at(2).at("topology"), "5 2");
}

TEST_F(SplitConnectCommand, SplitTakesANodeWithinTheCoincidenceTolerance) {
  auto text = Model();
  text.replace(text.find("[4, -3, 0]"), 10, "[4, 0.1, 0]");
  auto const data =
      RunOn({"split", "--list", "7", "--at", "4", "--coincidence", "0.2"}, 0, text).at("data");
  EXPECT_EQ(data.at("result").at("splits").at(0).at("node"), 3);
  EXPECT_EQ(data.at("tolerances").at(0),
            Json({{"name", "coincidence"}, {"value", 0.2}, {"unit", "m"}}));
}

TEST_F(SplitConnectCommand, SplitWantsAPlace) {
  auto const model = Write("in.json", Model());
  EXPECT_EQ(RunTarvex({"split", model, "--dry-run"}).exit, 2);
  EXPECT_EQ(RunTarvex({"split", model, "--at", "x", "--dry-run"}).exit, 2);
  EXPECT_EQ(RunTarvex({"split", model, "--at", "nan", "--dry-run"}).exit, 2);
  auto const result = RunTarvex({"split", model, "--at", "--dry-run"});
  EXPECT_EQ(result.exit, 2);
  EXPECT_NE(result.err.find("--at: a value is missing before --dry-run"), std::string::npos);
}

TEST_F(SplitConnectCommand, ConnectCutsLinesThatCross) {
  auto const data = RunOn({"connect"}).at("data");
  EXPECT_EQ(data.at("did"), true);
  EXPECT_EQ(data.at("changes").at("Elem"),
            Json::parse(R"({"added": [9, 10, 11, 12], "removed": [7, 8], "changed": []})"));
  EXPECT_EQ(Out().at("List").at(0).at("text"), "11 12");
  EXPECT_EQ(data.at("tolerances").size(), 3);
}

TEST_F(SplitConnectCommand, ConnectReportsMeetingsWithinAnOffset) {
  auto const data = RunOn({"connect", "--end-tol", "2.5"}, 1).at("data");
  EXPECT_EQ(data.at("did"), false);
  EXPECT_EQ(data.at("messages").size(), 1);
}

TEST_F(SplitConnectCommand, ConnectReportsALoadThatIsLeft) {
  auto text = Model();
  text.replace(text.find(R"("text": "7"}, "type": 3)"), 11, R"("text": "6 to 7")");
  auto const undone = RunOn({"connect"}, 1, text).at("data").at("undone");
  ASSERT_EQ(undone.size(), 1);
  EXPECT_EQ(undone.at(0).at("table"), "BeamLoad");
}

TEST_F(SplitConnectCommand, ConnectNamesALoadWhoseRangeHoldsPiecesAlone) {
  // Beam 9 crosses 7 too; the pieces of 7 are 12 and 13, of which 12 is cut again.
  auto text = Model();
  text.replace(text.find(R"({"n": 4, "position": [4, 3, 0]})"), 31,
               R"({"n": 4, "position": [4, 3, 0]},
{"n": 5, "position": [7, -3, 0]}, {"n": 6, "position": [7, 3, 0]})");
  text.insert(text.find(R"({"n": 8, "type": 2)"), R"({"n": 9, "type": 2, "topology": [5, 6]},
)");
  text.replace(text.find(R"("text": "7"}, "type": 3)"), 11, R"("text": "12 to 20")");
  auto const data = RunOn({"connect"}, 1, text).at("data");
  ASSERT_EQ(data.at("undone").size(), 1);
  EXPECT_EQ(data.at("undone").at(0).at("table"), "BeamLoad");
  EXPECT_EQ(data.at("undone").at(0).at("why"),
            "its list is more than plain numbers: it is left as it is");
}

TEST_F(SplitConnectCommand, ConnectCutsMembersAndWarnsOfTheirReferences) {
  auto const report = RunOn({"connect", "--kind", "member"}, 1);
  EXPECT_EQ(report.at("data").at("changes").at("Member").at("removed"), Json({1, 2}));
  EXPECT_EQ(report.at("warnings").at(0).at("code"), "member-references");
}

}  // namespace
}  // namespace Tarvex::SplitConnectTest
