#include "workbench/commands/conversion.h"

#include "tests/workbench/run.h"

namespace Tarvex::ConversionCommandTest {
namespace {

using Testing::RunTarvex;
using Json = nlohmann::json;

/// A square (1) of side 2 beside another (2), a kite (3) that is warped, and a brick (4); loads on
/// them: pressure on all in case 1, an edge load in case 2 on a range, a pressure by corner that is
/// linear in case 3 on a range.
std::string Plates() {
  return Testing::kHeader + R"(,
"Node": [
{"n": 1, "position": [0, 0, 0]}, {"n": 2, "position": [2, 0, 0]}, {"n": 3, "position": [4, 0, 0]},
{"n": 4, "position": [0, 2, 0]}, {"n": 5, "position": [2, 2, 0]}, {"n": 6, "position": [4, 2, 0]},
{"n": 11, "position": [8, 0, 0.5]}, {"n": 12, "position": [10, -3, -0.5]},
{"n": 13, "position": [12, 0, 0.5]}, {"n": 14, "position": [10, 3, -0.5]},
{"n": 21, "position": [0, 0, 5]}, {"n": 22, "position": [2, 0, 5]}, {"n": 23, "position": [2, 2, 5]},
{"n": 24, "position": [0, 2, 5]}, {"n": 25, "position": [0, 0, 7]}, {"n": 26, "position": [2, 0, 7]},
{"n": 27, "position": [2, 2, 7]}, {"n": 28, "position": [0, 2, 7]}],
"Elem": [
{"n": 1, "type": 5, "topology": [1, 2, 5, 4]}, {"n": 2, "type": 5, "topology": [2, 3, 6, 5]},
{"n": 3, "type": 5, "topology": [11, 12, 13, 14]},
{"n": 4, "type": 12, "topology": [21, 22, 23, 24, 25, 26, 27, 28]}],
"FaceLoad": [
{"loadCase": 1, "loadedEntities": {"text": "1 2 3"}, "direction": 3, "value": [-5, 0, 0, 0]},
{"loadCase": 3, "loadedEntities": {"text": "1 to 2"}, "type": 2, "direction": 3,
 "value": [1, 3, 3, 1]}],
"EdgeLoad": [
{"loadCase": 2, "loadedEntities": {"text": "1 to 2"}, "direction": 3, "edge": 3, "value": [2, 2]}],
"BodyFaceLoad": [
{"loadCase": 4, "loadedEntities": {"text": "4"}, "direction": 3, "face": 1, "value": [2, 0, 0, 0]}]
})";
}

class ConversionCommand : public Testing::RunTest {
 protected:
  Json RunOn(std::vector<std::string> words, int exit = 0, std::string const& text = Plates()) {
    words.insert(words.begin() + 1, Write("in.json", text));
    words.insert(words.end(), {"-o", Path("out.json"), "--force", "--json"});
    auto const result = RunTarvex(words);
    EXPECT_EQ(result.exit, exit) << result.out << result.err;
    return exit < 2 ? result.Json().at("data") : result.Json().at("error").at("text");
  }
  Json Element(int n) const {
    auto const model = Json::parse(Read("out.json"));
    for (auto const& record : model.at("Elem"))
      if (record.at("n") == n) return record;
    return {};
  }
};

TEST_F(ConversionCommand, ToQuadraticAndBackLeavesTheModel) {
  auto const data = RunOn({"to-quadratic", "--list", "1 2"});
  EXPECT_EQ(data.at("did"), true);
  EXPECT_EQ(data.at("changes").at("Elem").at("changed"), Json({1, 2}));
  EXPECT_EQ(data.at("changes").at("Node").at("added"), Json({29, 30, 31, 32, 33, 34, 35}));
  EXPECT_EQ(Element(2).at("topology"), Json({2, 3, 6, 5, 33, 34, 35, 30}));
  EXPECT_EQ(data.at("tolerances").at(0).at("value"), 1e-5);
  auto const quadratic = Read("out.json");
  RunOn({"to-linear"}, 0, quadratic);
  auto const result = RunTarvex({"diff", Write("first.json", Plates()), Path("out.json")});
  EXPECT_EQ(result.exit, 0) << result.out;
}

TEST_F(ConversionCommand, ToTrianglesTakesAllLoadsAlong) {
  auto const data = RunOn({"to-triangles"}, 0);
  EXPECT_EQ(data.at("result").at("pieces"), Json::parse("[[1,[5,6]],[2,[7,8]],[3,[9,10]]]"));
  EXPECT_EQ(data.at("changes").at("Elem").at("removed"), Json({1, 2, 3}));
  // Of the plane elements nothing changes in force or moment; case 1 is on the kite too, whose area
  // is not that of its pieces.
  for (auto const& total : data.at("totals")) EXPECT_EQ(total.at("loadCase"), 1);
}

TEST_F(ConversionCommand, ToTrianglesReportsAQuadrilateralWithoutANode) {
  auto text = Plates();
  text.replace(text.find("[2, 3, 6, 5]"), 12, "[2, 3, 6, 9]");
  auto const data = RunOn({"to-triangles", "--list", "1 2"}, 1, text);
  EXPECT_EQ(data.at("undone").size(), 1u);
  EXPECT_EQ(data.at("undone").at(0).at("number"), 2);
  EXPECT_EQ(data.at("result").at("pieces"), Json::parse("[[1,[5,6]]]"));
}

TEST_F(ConversionCommand, CutWarpedCutsTheWarpedElementAlone) {
  auto const data = RunOn({"cut-warped"});
  EXPECT_EQ(data.at("result").at("pieces"), Json::parse("[[3,[3,5]]]"));
  EXPECT_EQ(Element(3).at("topology"), Json({11, 12, 13}));
  EXPECT_EQ(Element(5).at("topology"), Json({13, 14, 11}));
}

TEST_F(ConversionCommand, CutWarpedReportsLoadsAndReleasesThatItLeavesAsTheyAre) {
  auto text = Plates();
  text.replace(text.find("\"1 to 2\""), 8, "\"1 to 3\"");
  auto const place = text.find("[11, 12, 13, 14]}");
  text.replace(place, 17,
               R"([11, 12, 13, 14], "connect": [{"release": ["XX"]}, null, null, null]})");
  auto const data = RunOn({"cut-warped"}, 1, text);
  ASSERT_EQ(data.at("undone").size(), 2u);
  EXPECT_EQ(data.at("undone").at(0).at("table"), "Elem");
  EXPECT_EQ(data.at("undone").at(1).at("table"), "FaceLoad");
  EXPECT_EQ(data.at("undone").at(1).at("number"), 2);
}

TEST_F(ConversionCommand, RefineReplacesTheElementsAndKeepsTheLoads) {
  auto const data = RunOn({"refine", "--list", "5"});
  EXPECT_EQ(data.at("did"), true);
  EXPECT_EQ(data.at("result").at("pieces"), Json::parse("[[1,[5,6,7]],[2,[8,9,10]]]"));
  EXPECT_EQ(data.at("changes").at("Elem").at("removed"), Json({1, 2}));
  EXPECT_EQ(data.at("totals"), Json::array());
  EXPECT_EQ(data.at("tolerances").at(0).at("value"), 0.001);
}

TEST_F(ConversionCommand, RefineTakesBricksWithTheLoadsOnTheirFaces) {
  auto const data = RunOn({"refine", "--list", "25", "--ratio", "0"});
  EXPECT_EQ(data.at("result").at("pieces"), Json::parse("[[4,[5,6,7,8]]]"));
  EXPECT_EQ(data.at("totals"), Json::array());
}

TEST_F(ConversionCommand, RefineGoesOnWithThePiecesAtTheNextNode) {
  auto const data = RunOn({"refine", "--list", "4 5"});
  // At 4: element 1 into 5 6 7. At 5: the piece of it that has the node, and element 2.
  auto const pieces = data.at("result").at("pieces");
  ASSERT_EQ(pieces.size(), 3u);
  EXPECT_EQ(pieces.at(0).at(0), 1);
  EXPECT_EQ(data.at("totals"), Json::array());
  auto const check = RunTarvex({"check", Path("out.json")});
  EXPECT_EQ(check.exit, 0) << check.out;
}

TEST_F(ConversionCommand, RefineReportsWhatItLeavesAndPiecesThatFold) {
  auto text = Plates();
  text.replace(text.find("\"topology\": [2, 3, 6, 5]"), 24,
               "\"topology\": [2, 3, 6, 5], \"dummy\": true");
  auto const data = RunOn({"refine", "--list", "5", "--ratio", "0.6"}, 1, text);
  EXPECT_EQ(data.at("undone").at(0).at("number"), 2);
  EXPECT_EQ(data.at("undone").at(0).at("why"), "it is a dummy");
}

TEST_F(ConversionCommand, RefineWarnsOfPiecesThatFold) {
  auto const model = Write("in.json", Plates());
  auto const result =
      RunTarvex({"refine", model, "--list", "5", "--ratio", "0.6", "--dry-run", "--json"});
  EXPECT_EQ(result.exit, 0);
  auto const warnings = result.Json().at("warnings");
  ASSERT_EQ(warnings.size(), 2u);
  EXPECT_EQ(warnings.at(0).at("code"), "folded-piece");
}

TEST_F(ConversionCommand, RefineRefusesARatioOfOneAndNoList) {
  EXPECT_EQ(RunOn({"refine", "--list", "5", "--ratio", "1"}, 2), "--ratio: '1' is not below 1");
  EXPECT_EQ(RunOn({"refine", "--list", "5", "--ratio", "-0.1"}, 2),
            "--ratio: '-0.1' is not at least 0");
  EXPECT_EQ(RunOn({"refine"}, 2), "--list: give the nodes to refine around");
}

}  // namespace
}  // namespace Tarvex::ConversionCommandTest
