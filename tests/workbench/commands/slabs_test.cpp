#include "workbench/commands/slabs.h"

#include "tests/workbench/run.h"

namespace Tarvex::SlabsTest {
namespace {

using Testing::RunTarvex;
using Json = nlohmann::json;

/// A square slab on four columns of which the second stands on a rigid constraint, and three rigid
/// constraints that touch each other at nodes apart.
std::string SlabModel() {
  return Testing::kHeader + R"(,
"Node": [
{"n": 1, "position": [0, 0, 3]}, {"n": 2, "position": [2, 0, 3]}, {"n": 3, "position": [2, 2, 3]},
{"n": 4, "position": [0, 2, 3]}, {"n": 5, "position": [0, 0, 0]}, {"n": 6, "position": [2, 0, 0]},
{"n": 11, "position": [9, 0, 0]}, {"n": 12, "position": [9, 1, 0]}, {"n": 13, "position": [9, 2, 0]},
{"n": 14, "position": [9, 3, 0], "restraint": ["Z"]}, {"n": 15, "position": [9, 4, 0]}],
"Elem": [
{"n": 1, "type": 5, "topology": [1, 2, 3, 4]},
{"n": 2, "type": 2, "topology": [5, 1]}, {"n": 3, "type": 2, "topology": [6, 2]}],
"Rigid": [
{"primaryNode": 11, "constrainedNodes": "2 12"},
{"primaryNode": 14, "constrainedNodes": "12 13"},
{"type": 511, "primaryNode": 15, "constrainedNodes": "13"}]
}
)";
}

class SlabsCommand : public Testing::RunTest {
 protected:
  Json RunOn(std::vector<std::string> words, int exit = 0, std::string const& model = SlabModel()) {
    words.insert(words.begin() + 1, Write("in.json", model));
    words.insert(words.end(), {"-o", Path("out.json"), "--force", "--json"});
    auto const result = RunTarvex(words);
    EXPECT_EQ(result.exit, exit) << result.out << result.err;
    return result.Json().at("data");
  }
  Json Rigids() const { return Json::parse(Read("out.json")).at("Rigid"); }
};

TEST_F(SlabsCommand, ConnectSlabWritesAConstraintAndReportsTheHeldEnd) {
  auto const data = RunOn({"connect-slab"}, 1);
  EXPECT_EQ(data.at("did"), true);
  EXPECT_EQ(data.at("changes"),
            Json::parse(R"({"Rigid":{"added":[4],"removed":[],"changed":[]}})"));
  // Ends: four. Taken up: head 1 twice, feet 5 and 6; head 2 is held.
  EXPECT_EQ(data.at("result"), Json::parse(R"({"ends":4,"connected":4,"rigids":1})"));
  EXPECT_EQ(data.at("undone"), Json::parse(R"([{"table":"Elem","number":3,
      "why":"node 2 is in a rigid constraint already"}])"));
  EXPECT_EQ(Rigids().at(3).at("name"), "Column 2");
  EXPECT_EQ(Rigids().at(3).at("primaryNode"), 1);
  EXPECT_EQ(Rigids().at(3).at("constrainedNodes"), "1 2 3 4");
}

/// Four unit squares on column 5 below node 5, and a column above a node of the slab.
std::string SquareModel(int corner, std::string const& position) {
  return Testing::kHeader + R"(,
"Node": [
{"n": 1, "position": [0, 0, 0]}, {"n": 2, "position": [1, 0, 0]}, {"n": 3, "position": [2, 0, 0]},
{"n": 4, "position": [0, 1, 0]}, {"n": 5, "position": [1, 1, 0]}, {"n": 6, "position": [2, 1, 0]},
{"n": 7, "position": [0, 2, 0]}, {"n": 8, "position": [1, 2, 0]}, {"n": 9, "position": [2, 2, 0]},
{"n": 10, "position": [1, 1, -3]}, {"n": 11, "position": )" +
         position + R"(}],
"Elem": [
{"n": 1, "type": 5, "topology": [1, 2, 5, 4]}, {"n": 2, "type": 5, "topology": [2, 3, 6, 5]},
{"n": 3, "type": 5, "topology": [4, 5, 8, 7]}, {"n": 4, "type": 5, "topology": [5, 6, 9, 8]},
{"n": 5, "type": 2, "topology": [10, 5]},
{"n": 6, "type": 2, "topology": [)" +
         std::to_string(corner) + R"(, 11]}]
}
)";
}

TEST_F(SlabsCommand, ConnectSlabReportsAFootThatAConstraintOfThisRunHolds) {
  auto const data = RunOn({"connect-slab"}, 1, SquareModel(9, "[2, 2, 3]"));
  EXPECT_EQ(data.at("result"), Json::parse(R"({"ends":4,"connected":5,"rigids":1})"));
  EXPECT_EQ(data.at("undone"), Json::parse(R"([{"table":"Elem","number":6,
      "why":"node 9 is in a rigid constraint already"}])"));
}

TEST_F(SlabsCommand, ConnectSlabLeavesNothingUndoneWhereAColumnStandsOnTheHeadOfAnother) {
  auto const data = RunOn({"connect-slab"}, 0, SquareModel(5, "[1, 1, 3]"));
  EXPECT_EQ(data.at("result"), Json::parse(R"({"ends":4,"connected":5,"rigids":1})"));
  EXPECT_EQ(data.at("undone"), Json::array());
}

TEST_F(SlabsCommand, ConnectSlabWarnsOfConstraintsThatHoldEachOthersNodes) {
  // Column 6 hangs from corner 9: both ends are heads.
  auto const data = RunOn({"connect-slab"}, 1, SquareModel(9, "[2, 2, -3]"));
  EXPECT_EQ(data.at("result").at("rigids"), 2);
  auto const result = RunTarvex({"connect-slab", Path("in.json"), "--dry-run"});
  EXPECT_EQ(result.exit, 1);
  EXPECT_EQ(result.err,
            "warning: rigid constraint 1: node 5, which leads it, is held by rigid constraint 2 "
            "too\n"
            "warning: rigid constraint 2: node 9, which leads it, is held by rigid constraint 1 "
            "too\n");
}

TEST_F(SlabsCommand, ConnectSlabTakesTheSection) {
  auto text = SquareModel(5, "[1, 1, 3]");
  text.replace(text.find(R"({"n": 5, "type": 2,)"), 19, R"({"n": 5, "type": 2, "property": 1,)");
  // A quarter of 2 by 1.5 is 0.75, the centres stand sqrt(0.5) = 0.71 away; of 2 by 1.4 it is 0.7.
  for (auto const& [section, ties] : {std::pair("2 1.5", true), std::pair("2 1.4", false)}) {
    auto model = text;
    model.insert(model.find(R"("Elem")"), std::string(R"("Section": [{"n": 1, "components": [)") +
                                              R"({"description": "rectangle )" + section +
                                              R"("}]}],)" + "\n");
    auto const data = RunOn({"connect-slab", "--mode", "section"}, 0, model);
    EXPECT_EQ(data.at("did"), ties);
    EXPECT_EQ(data.at("result").at("rigids"), ties ? 1 : 0);
  }
}

TEST_F(SlabsCommand, ConnectSlabOverwrites) {
  // Node 2 is held by constraint 1 and leads one of its own then.
  auto const data = RunOn({"connect-slab", "--overwrite", "--list", "3"}, 1);
  EXPECT_EQ(data.at("undone"), Json::array());
  EXPECT_EQ(data.at("result"), Json::parse(R"({"ends":2,"connected":3,"rigids":2})"));
  EXPECT_EQ(Rigids().at(3).at("primaryNode"), 2);
}

TEST_F(SlabsCommand, ConnectSlabTakesARadius) {
  // The centre of the slab is sqrt(2) from the head.
  auto const in = RunOn({"connect-slab", "--list", "2", "--mode", "radius", "--radius", "1.42"});
  EXPECT_EQ(in.at("did"), true);
  EXPECT_EQ(in.at("tolerances").at(0), Json({{"name", "radius"}, {"value", 1.42}, {"unit", "m"}}));
  auto const out = RunOn({"connect-slab", "--list", "2", "--mode", "radius", "--radius", "1.41"});
  EXPECT_EQ(out.at("did"), false);
  EXPECT_EQ(out.at("changes"), Json::object());
  // No column has a section.
  EXPECT_EQ(RunOn({"connect-slab", "--list", "2", "--mode", "section"}).at("did"), false);
}

TEST_F(SlabsCommand, ConnectSlabRefusesBadValues) {
  auto const model = Write("in.json", SlabModel());
  EXPECT_EQ(RunTarvex({"connect-slab", model, "--dry-run", "--mode", "near"}).exit, 2);
  EXPECT_EQ(RunTarvex({"connect-slab", model, "--dry-run", "--radius", "-1"}).exit, 2);
  auto const lacking = RunTarvex({"connect-slab", model, "--dry-run", "--mode", "radius"});
  EXPECT_EQ(lacking.exit, 2);
  EXPECT_EQ(lacking.err, "tarvex: --radius: give a distance above 0 for --mode radius\n");
  auto const idle = RunTarvex({"connect-slab", model, "--dry-run", "--radius", "1"});
  EXPECT_EQ(idle.exit, 2);
  EXPECT_EQ(idle.err, "tarvex: --radius goes with --mode radius\n");
}

TEST_F(SlabsCommand, MergedRigidsTellsWhatAStageSeesAndWhichNodeIsLost) {
  auto const model = Write("in.json", SlabModel());
  auto const result = RunTarvex({"merged-rigids", model, "--json"});
  EXPECT_EQ(result.exit, 1) << result.out << result.err;
  auto const data = result.Json().at("data");
  // 14 is restrained in Z and leads; 11, which led the first, is in neither list.
  EXPECT_EQ(data, Json::parse(R"({"stage":0,"before":3,"rigids":[
      {"number":1,"type":4095,"primaryNode":14,"nodes":"2 12 to 14"},
      {"number":3,"type":511,"primaryNode":15,"nodes":"13"}],"mergedAway":[2]})"));
  auto const warning = result.Json().at("warnings").at(0);
  EXPECT_EQ(warning.at("code"), "primary-node-lost");
  EXPECT_EQ(warning.at("number"), 1);
  EXPECT_EQ(warning.at("text"),
            "rigid constraint 1: node 11 leads it no more and is not among its constrained nodes");
  EXPECT_EQ(Read("in.json"), SlabModel());
}

TEST_F(SlabsCommand, MergedRigidsGoesByItsStage) {
  auto text = SlabModel();
  text.replace(text.find(R"("12 13"})"), 8, R"("12 13", "stage": "2"})");
  text.insert(text.find(R"("Rigid")"), R"("AnalStage": [{"n": 1}, {"n": 2}],)"
                                       "\n");
  auto const model = Write("in.json", text);
  auto const merged = [&](char const* stage) {
    auto const result = RunTarvex({"merged-rigids", model, "--stage", stage});
    return result.out;
  };
  // Constraint 2 acts in stage 2 alone.
  EXPECT_EQ(merged("1"),
            "2 rigid constraints in stage 1, 2 when merged\n"
            "1: node 11 leads 2 12\n"
            "3: node 15 leads 13\n");
  EXPECT_EQ(merged("2"),
            "3 rigid constraints in stage 2, 2 when merged\n"
            "1: node 14 leads 2 12 to 14\n"
            "3: node 15 leads 13\n");
}

TEST_F(SlabsCommand, WorksOnTheExample) {
  std::string const model = TARVEX_SOURCE_DIR "/examples/six-storey/six-storey.json";
  auto const slabs = RunTarvex({"connect-slab", model, "--dry-run", "--json"});
  auto const data = slabs.Json().at("data");
  EXPECT_EQ(slabs.exit, 1) << slabs.err;
  // The heads of the four posts under the canopy, which is no storey. The others are held by the
  // diaphragms of their storeys: heads of 20 columns at 8 levels, feet on 7 of these, feet of the
  // posts on one: 160 + 140 + 4.
  EXPECT_EQ(data.at("result").at("rigids"), 4);
  EXPECT_EQ(data.at("undone").size(), 304U);
  auto const rigids = RunTarvex({"merged-rigids", model, "--json"});
  EXPECT_EQ(rigids.exit, 0) << rigids.err;
  // Storeys share no node.
  EXPECT_EQ(rigids.Json().at("data").at("before"), 8);
  EXPECT_EQ(rigids.Json().at("data").at("rigids").size(), 8U);
}

TEST_F(SlabsCommand, MergedRigidsTellsItInWords) {
  auto text = SlabModel();
  text.replace(text.find(R"(, "restraint": ["Z"])"), 20, "");
  auto const result = RunTarvex({"merged-rigids", Write("in.json", text)});
  EXPECT_EQ(result.exit, 0) << result.err;
  EXPECT_EQ(result.out,
            "3 rigid constraints in stage 0, 2 when merged\n"
            "1: node 11 leads 2 12 to 14\n"
            "3: node 15 leads 13\n");
}

TEST_F(SlabsCommand, MergedRigidsRefusesAStageThatDoesNotExist) {
  auto const result = RunTarvex({"merged-rigids", Write("in.json", SlabModel()), "--stage", "2"});
  EXPECT_EQ(result.exit, 3);
  EXPECT_EQ(result.err, "tarvex: stage 2 does not exist\n");
}

}  // namespace
}  // namespace Tarvex::SlabsTest
