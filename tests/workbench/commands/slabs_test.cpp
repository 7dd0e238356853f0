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
  Json RunOn(std::vector<std::string> words, int exit = 0) {
    words.insert(words.begin() + 1, Write("in.json", SlabModel()));
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

TEST_F(SlabsCommand, ConnectSlabOverwrites) {
  auto const data = RunOn({"connect-slab", "--overwrite", "--list", "3"});
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
  EXPECT_EQ(warning.at("text"), "node 11 leads it no more and is not among its constrained nodes");
  EXPECT_EQ(Read("in.json"), SlabModel());
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
