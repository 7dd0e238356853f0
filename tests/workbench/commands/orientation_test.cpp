#include "workbench/commands/orientation.h"

#include "tests/workbench/run.h"

namespace Tarvex::OrientationTest {
namespace {

using Testing::RunTarvex;
using Json = nlohmann::json;

class OrientationCommand : public Testing::RunTest {
 protected:
  /// Runs a command on the small model, writes out.json, and gives the report's data.
  Json RunOn(std::vector<std::string> words, int exit = 0) {
    auto const model = Write("in.json", Testing::SmallModel());
    words.insert(words.begin() + 1, model);
    words.insert(words.end(), {"-o", Path("out.json"), "--force", "--json"});
    auto const result = RunTarvex(words);
    EXPECT_EQ(result.exit, exit) << result.out << result.err;
    return result.Json().at("data");
  }

  Json Record(char const* table, int n) const {
    auto const model = Json::parse(Read("out.json"));
    for (auto const& record : model.at(table))
      if (record.at("n") == n) return record;
    return {};
  }
  Json Topology(char const* table, int n) const { return Record(table, n).at("topology"); }
  Json Element(int n) const { return Record("Elem", n); }
};

TEST_F(OrientationCommand, Align1dTurnsTheBeamThatRunsBackwards) {
  auto const data = RunOn({"align-1d"});
  EXPECT_EQ(data.at("did"), true);
  EXPECT_EQ(data.at("changes"), Json::parse(R"({"Elem":{"added":[],"removed":[],"changed":[2]}})"));
  EXPECT_EQ(Topology("Elem", 2), Json({2, 3}));
}

TEST_F(OrientationCommand, Align1dTakesTheListOnly) {
  auto const data = RunOn({"align-1d", "--list", "1"});
  EXPECT_EQ(data.at("did"), false);
  EXPECT_EQ(data.at("changes"), Json::object());
  EXPECT_EQ(Topology("Elem", 2), Json({3, 2}));
}

TEST_F(OrientationCommand, Align1dReportsWhatComesBehindAMissingNode) {
  auto text = Testing::SmallModel();
  text.replace(text.find("[3, 2]"), 6, "[9, 2]");
  auto const model = Write("in.json", text);
  auto const result = RunTarvex({"align-1d", model, "--dry-run", "--json"});
  EXPECT_EQ(result.exit, 1);
  auto const undone = result.Json().at("data").at("undone");
  ASSERT_EQ(undone.size(), 1);
  EXPECT_EQ(undone.at(0).at("number"), 2);
  EXPECT_EQ(undone.at(0).at("why"), "a node of its topology does not exist");
}

TEST_F(OrientationCommand, AlignNormalsTurnsTheQuadrilateralThatFacesDown) {
  auto const data = RunOn({"align-normals"});
  EXPECT_EQ(data.at("did"), true);
  EXPECT_EQ(Topology("Elem", 3), Json({4, 1, 2, 5}));
  EXPECT_EQ(Element(3).at("offset"), Json({{"z", -0.25}}));
  EXPECT_EQ(Topology("LoadPanel", 5), Json({1, 2, 5, 4}));
}

TEST_F(OrientationCommand, AgreeNormalsTurnsTheSeedUpwardAndReportsThePanel) {
  auto const data = RunOn({"agree-normals", "--angle", "20"}, 1);
  EXPECT_EQ(Topology("Elem", 3), Json({4, 1, 2, 5}));
  EXPECT_EQ(Element(3).at("offset"), Json({{"z", 0.25}}));
  EXPECT_EQ(data.at("undone").at(0).at("table"), "LoadPanel");
  EXPECT_EQ(data.at("tolerances").at(0),
            Json({{"name", "facet angle"}, {"value", 20.0}, {"unit", "deg"}}));
}

TEST_F(OrientationCommand, AlignEdgesTakesAnAxis) {
  // Edge 1 to 4 runs along y, 4 to 5 along x: the second edge comes first.
  RunOn({"align-edges", "--axis", "0", "--list", "3"});
  EXPECT_EQ(Topology("Elem", 3), Json({4, 5, 2, 1}));
}

TEST_F(OrientationCommand, AlignEdgesUnlessToldTakesEachElementsOwnXAxis) {
  auto const data = RunOn({"align-edges"});
  EXPECT_EQ(data.at("did"), false);
  EXPECT_EQ(Topology("Elem", 3), Json({1, 4, 5, 2}));
  RunOn({"align-edges", "--axis", "-1"});
  EXPECT_EQ(Topology("Elem", 3), Json({1, 4, 5, 2}));
}

TEST_F(OrientationCommand, FlipReversesWhatIsListedAndReportsTheWedge) {
  auto const data = RunOn({"flip", "--list", "1 4 5"}, 1);
  EXPECT_EQ(Topology("Elem", 1), Json({2, 1}));
  EXPECT_EQ(Topology("LoadPanel", 5), Json({2, 1, 4, 5}));
  EXPECT_EQ(Topology("Elem", 4), Json({1, 2, 4, 6, 7, 8}));
  EXPECT_EQ(data.at("undone"),
            Json::parse(R"([{"table":"Elem","number":4,"why":"its shape can't be reversed"}])"));
  EXPECT_EQ(data.at("changes").at("Elem").at("changed"), Json({1}));
  EXPECT_EQ(data.at("changes").at("LoadPanel").at("changed"), Json({5}));
}

TEST_F(OrientationCommand, FlipOfMembersFindsNoneInAModelWithoutMembers) {
  auto const model = Write("in.json", Testing::SmallModel());
  auto const result = RunTarvex({"flip", model, "--kind", "member", "--dry-run", "--json"});
  EXPECT_EQ(result.exit, 0);
  EXPECT_EQ(result.Json().at("warnings").at(0).at("code"), "empty-selection");
  EXPECT_EQ(result.Json().at("data").at("did"), false);
}

TEST_F(OrientationCommand, SpinTurnsByTheStepsGiven) {
  RunOn({"spin", "--list", "3 5", "--steps", "2"});
  EXPECT_EQ(Topology("Elem", 3), Json({5, 2, 1, 4}));
  EXPECT_EQ(Topology("LoadPanel", 5), Json({5, 4, 1, 2}));
  RunOn({"spin", "--list", "3"});
  EXPECT_EQ(Topology("Elem", 3), Json({4, 5, 2, 1}));
}

TEST_F(OrientationCommand, BadValuesAreRefusedWithTwo) {
  auto const model = Write("in.json", Testing::SmallModel());
  auto const exitOf = [&](std::vector<std::string> words) {
    words.insert(words.begin() + 1, {model, "--dry-run"});
    return RunTarvex(words).exit;
  };
  EXPECT_EQ(exitOf({"align-1d", "--axis", "-1"}), 2);
  EXPECT_EQ(exitOf({"align-1d", "--axis", "1.5"}), 2);
  EXPECT_EQ(exitOf({"align-1d", "--kind", "node"}), 2);
  EXPECT_EQ(exitOf({"align-edges", "--axis", "-2"}), 2);
  EXPECT_EQ(exitOf({"align-normals", "--axis", "-1"}), 2);
  EXPECT_EQ(exitOf({"agree-normals", "--angle", "nan"}), 2);
  EXPECT_EQ(exitOf({"agree-normals", "--angle", "15deg"}), 2);
  EXPECT_EQ(exitOf({"spin", "--steps", "0"}), 2);
  EXPECT_EQ(exitOf({"spin", "--steps", "99999999999"}), 2);
}

TEST_F(OrientationCommand, AnAxisThatDoesNotExistIsRefusedWithThree) {
  auto const model = Write("in.json", Testing::SmallModel());
  for (auto const* command : {"align-1d", "align-edges", "align-normals"}) {
    auto const result = RunTarvex({command, model, "--dry-run", "--axis", "7"});
    EXPECT_EQ(result.exit, 3);
    EXPECT_EQ(result.err, "tarvex: axis 7 does not exist\n");
  }
}

}  // namespace
}  // namespace Tarvex::OrientationTest
