#include "workbench/commands/conversion.h"

#include <cmath>
#include <map>

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
  ASSERT_EQ(data.at("totals").size(), 1u);
  EXPECT_EQ(data.at("totals").at(0).at("loadCase"), 1);
  auto const totals = RunTarvex({"totals", Path("out.json"), "--json"}).Json();
  std::map<int, double> inZ;
  for (auto const& row : totals.at("data").at("cases"))
    inZ[row.at("loadCase").get<int>()] = row.at("force").at(2).get<double>();
  // Case 1: two squares of 4 and two triangles with the base (4, 0, 0) and sides of (2, -3, -1) and
  // (2, 3, -1): half of |(4,0,0) x (2,3,-1)| = |(0,4,12)| / 2 = 6.32456 each; 20.64911 by -5.
  EXPECT_NEAR(inZ.at(1), -5 * (8 + std::sqrt(160.0)), 1e-9);
  EXPECT_NEAR(inZ.at(2), 8, 1e-12);   // two sides of 2 with 2
  EXPECT_NEAR(inZ.at(3), 16, 1e-12);  // two squares of 4 with 2 in the middle
}

/// A plate of four nodes with a load; more elements and loads may follow.
std::string Plate(std::string const& nodes, std::string const& elements, std::string const& loads) {
  return Testing::kHeader + ", \"Node\": [" + nodes + "], \"Elem\": [" + elements + "], " + loads +
         "}";
}
std::string const kSquareOfTen =
    R"({"n": 1, "position": [0, 0, 0]}, {"n": 2, "position": [10, 0, 0]},
{"n": 3, "position": [10, 10, 0]}, {"n": 4, "position": [0, 10, 0]})";
std::string const kOneQuad = R"({"n": 1, "type": 5, "topology": [1, 2, 3, 4]})";

TEST_F(ConversionCommand, ToTrianglesAndRefineKeepAPointLoadNextToACut) {
  // At r = 0.1, s = 0.1001 it is 0.35 mm behind the diagonal, on which the first triangle ends.
  auto const text = Plate(kSquareOfTen, kOneQuad, R"("FaceLoad": [{"loadCase": 1, "type": 3,
"loadedEntities": {"text": "1"}, "direction": 3, "value": [-5, 0, 0, 0], "position": [0.1, 0.1001]}])");
  auto data = RunOn({"to-triangles"}, 0, text);
  EXPECT_EQ(data.at("totals"), Json::array());
  data = RunOn({"refine", "--list", "3"}, 0, Read("out.json"));
  EXPECT_EQ(data.at("totals"), Json::array());
  EXPECT_EQ(Json::parse(Read("out.json")).at("FaceLoad").size(), 1u);
}

TEST_F(ConversionCommand, LoadsThatNoPieceCouldBeGivenAreReported) {
  // Turned by 45 degrees the corners of a square are (0, 0) (a, a) (0, 2 a) (-a, a): x is xy / a,
  // and the pressure has no polynomial.
  auto const square = R"({"n": 1, "type": 5, "topology": [1, 2, 3, 4], "orientationAngle": 45})";
  auto const loads =
      R"("FaceLoad": [{"loadCase": 1, "loadedEntities": {"text": "1"}, "direction": 3,
"value": [-1, 0, 0, 0]}, {"loadCase": 2, "type": 2, "loadedEntities": {"text": "1"}, "direction": 3,
"value": [-5, -5, -5, -5], "sid": "mine"}])";
  for (auto const& words :
       std::vector<std::vector<std::string>>{{"to-triangles"}, {"refine", "--list", "1"}}) {
    auto const data = RunOn(words, 1, Plate(kSquareOfTen, square, loads));
    ASSERT_EQ(data.at("undone").size(), 1u);
    auto const& row = data.at("undone").at(0);
    EXPECT_EQ(row.at("table"), "FaceLoad");
    EXPECT_EQ(row.at("number"), 2);
    EXPECT_EQ(row.at("why"), "no piece of element 1 could be given it: it is gone there");
    ASSERT_EQ(data.at("totals").size(), 1u);
    EXPECT_EQ(data.at("totals").at(0).at("loadCase"), 2);
  }
}

TEST_F(ConversionCommand, LoadsKeepTheirIdentifiersThroughPieces) {
  auto const loads = R"("FaceLoad": [{"loadCase": 2, "type": 2, "loadedEntities": {"text": "1"},
"direction": 3, "value": [-5, -5, -5, -5], "sid": "mine"}], "EdgeLoad": [{"loadCase": 2,
"loadedEntities": {"text": "1"}, "direction": 3, "edge": 1, "value": [1, 1]}])";
  for (auto const& words :
       std::vector<std::vector<std::string>>{{"to-triangles"}, {"refine", "--list", "1"}}) {
    RunOn(words, 0, Plate(kSquareOfTen, kOneQuad, loads));
    auto const model = Json::parse(Read("out.json"));
    EXPECT_GE(model.at("FaceLoad").size(), 2u);
    for (auto const& load : model.at("FaceLoad")) EXPECT_EQ(load.at("sid"), "mine");
    for (auto const& load : model.at("EdgeLoad")) EXPECT_FALSE(load.contains("sid"));
  }
}

TEST_F(ConversionCommand, UniformLoadsOnRangesAndAllFollowTheirElements) {
  for (std::string const list : {"1 to 2", "all"}) {
    auto text = Plates();
    text.replace(text.find("\"1 2 3\""), 7, "\"" + list + "\"");
    auto const data = RunOn({"refine", "--list", "5"}, 0, text);
    EXPECT_FALSE(data.contains("undone") && !data.at("undone").empty());
    EXPECT_EQ(data.at("totals"), Json::array());
    auto const model = Json::parse(Read("out.json"));
    EXPECT_EQ(model.at("FaceLoad").at(0).at("loadedEntities").at("text"),
              list == "all" ? "all" : "5 6 7 8 9 10");
  }
}

TEST_F(ConversionCommand, PiecesAreThoseOfPlatesByTheirNumberOfNodes) {
  // Element 1 has the type of a triangle and four nodes.
  auto const nodes = kSquareOfTen + R"(, {"n": 5, "position": [20, 0, 0]},
{"n": 6, "position": [20, 10, 0]})";
  auto const elements = R"({"n": 1, "type": 7, "topology": [1, 2, 3, 4]},
{"n": 2, "type": 5, "topology": [2, 5, 6, 3]})";
  auto const data =
      RunOn({"to-triangles"}, 0, Plate(nodes, elements, R"("FaceLoad": [{"loadCase": 1, "type": 2,
"loadedEntities": {"text": "1 to 2"}, "direction": 3, "value": [1, 1, 1, 1]}])"));
  EXPECT_EQ(data.at("result").at("pieces"), Json::parse("[[1,[3,4]],[2,[5,6]]]"));
}

TEST_F(ConversionCommand, MissingNodesAreReportedByToQuadraticAndCutWarped) {
  auto text = Plates();
  text.replace(text.find("[2, 3, 6, 5]"), 12, "[2, 3, 6, 9]");
  for (auto const* command : {"to-quadratic", "cut-warped"}) {
    auto const data = RunOn({command, "--list", "1 2"}, 1, text);
    ASSERT_EQ(data.at("undone").size(), 1u) << command;
    EXPECT_EQ(data.at("undone").at(0).at("number"), 2);
    EXPECT_EQ(data.at("undone").at(0).at("why"), "a node of its topology does not exist");
  }
}

TEST_F(ConversionCommand, PiecesOfChildrenThatTheirMemberDoesNotListAreWarnings) {
  auto text = Plates();
  text.replace(text.find("\"topology\": [2, 3, 6, 5]"), 24,
               "\"topology\": [2, 3, 6, 5], \"parentMember\": {\"member\": 1}");
  text.replace(text.find("\"Elem\""), 6,
               R"("Member": [{"n": 1, "type": 4, "topology": "2 3 6 5", "children": [[0, 2]]}],
"Elem")");
  for (auto const& words : std::vector<std::vector<std::string>>{{"to-triangles", "--list", "2"},
                                                                 {"refine", "--list", "3"}}) {
    auto arguments = words;
    arguments.insert(arguments.begin() + 1, Write("in.json", text));
    arguments.insert(arguments.end(), {"--dry-run", "--json"});
    auto const warnings = RunTarvex(arguments).Json().at("warnings");
    ASSERT_EQ(warnings.size(), words[0] == "refine" ? 3u : 2u);
    for (auto const& warning : warnings) EXPECT_EQ(warning.at("code"), "unlisted-piece");
  }
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

TEST_F(ConversionCommand, RefineOfSeveralNodesIsThatOfOneAfterTheOther) {
  // 1 and 6 share no element, 4 and 5 do; 25 is of a brick.
  for (std::vector<std::string> const& nodes :
       std::vector<std::vector<std::string>>{{"1", "6", "25"}, {"1", "4", "5", "6"}}) {
    std::string list;
    auto text = Plates();
    for (auto const& node : nodes) {
      list += node + " ";
      RunOn({"refine", "--list", node}, 0, text);
      text = Read("out.json");
    }
    RunOn({"refine", "--list", list});
    EXPECT_EQ(Json::parse(Read("out.json")), Json::parse(text)) << list;
  }
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

TEST_F(ConversionCommand, RefineFoldsFromAHalfInPlatesAndFromAThirdInBricks) {
  struct Row {
    std::string node, ratio;
    std::size_t folds;
  };
  for (auto const& row : {Row{"1", "0.499999", 0}, Row{"1", "0.5", 1}, Row{"25", "0.333333", 0},
                          Row{"25", "0.33333333333333333", 1}}) {
    auto const result = RunTarvex({"refine", Write("in.json", Plates()), "--list", row.node,
                                   "--ratio", row.ratio, "--dry-run", "--json"});
    auto const report = result.Json();
    auto const folds = report.contains("warnings") ? report.at("warnings").size() : 0;
    EXPECT_EQ(folds, row.folds) << row.node << " " << row.ratio;
  }
}

TEST_F(ConversionCommand, RefineTakesElementsOfAnIdentifierAndGivesItToNodes) {
  auto text = Plates();
  text.replace(text.find("\"topology\": [2, 3, 6, 5]"), 24,
               "\"topology\": [2, 3, 6, 5], \"sid\": \"mine\"");
  auto const data = RunOn({"refine", "--list", "5", "--sid", "mine"}, 1, text);
  EXPECT_EQ(data.at("result").at("pieces"), Json::parse("[[2,[5,6,7]]]"));
  ASSERT_EQ(data.at("undone").size(), 1u);
  EXPECT_EQ(data.at("undone").at(0).at("number"), 1);
  EXPECT_EQ(data.at("undone").at(0).at("why"), "it has another identifier");
  auto const out = Json::parse(Read("out.json"));
  for (auto const& node : out.at("Node"))
    EXPECT_EQ(node.value("sid", ""), node.at("n").get<int>() > 28 ? "mine" : "") << node.at("n");
}

TEST_F(ConversionCommand, RefineTakesNodesWithinTheTolerance) {
  auto text = Plates();
  text.replace(text.find("\"position\": [4, 2, 0]}"), 22,
               "\"position\": [4, 2, 0]}, {\"n\": 7, \"position\": [1, 2, 0.01]}");
  // Nodes of the inner points, and of the middles of the sides 1-2, 3-6 at 5: 2-5, 5-6 and 4-5,
  // beside which node 7 stands.
  for (auto const& [tolerance, added] : {std::pair{"0.02", 4u}, {"0.005", 5u}}) {
    auto const data = RunOn({"refine", "--list", "5", "--tol", tolerance}, 0, text);
    EXPECT_EQ(data.at("changes").at("Node").at("added").size(), added) << tolerance;
    EXPECT_EQ(data.at("tolerances").at(0).at("value"), std::stod(tolerance));
  }
}

TEST_F(ConversionCommand, RefineTellsWhyItLeavesAnElement) {
  struct Row {
    std::string elements, node, why;
  };
  auto const nodes = kSquareOfTen + R"(, {"n": 5, "position": [5, 0, 0]},
{"n": 6, "position": [10, 5, 0]}, {"n": 7, "position": [5, 10, 0]}, {"n": 8, "position": [0, 5, 0]},
{"n": 9, "position": [0, 0, 9]})";
  for (auto const& row : {Row{R"({"n": 1, "type": 5, "topology": [1, 2, 3, 77]})", "1",
                              "a node of its topology does not exist"},
                          Row{R"({"n": 1, "type": 6, "topology": [1, 2, 3, 4]})", "1",
                              "its number of nodes is not that of its type"},
                          Row{R"({"n": 1, "type": 6, "topology": [1, 2, 3, 4, 5, 6, 7, 8]})", "5",
                              "the node is in the middle of its side"},
                          Row{R"({"n": 1, "type": 16, "topology": [1, 2, 4, 9]})", "1",
                              "elements of its shape are not refined"}}) {
    auto const data =
        RunOn({"refine", "--list", row.node}, 1, Plate(nodes, row.elements, R"("Axis": [])"));
    ASSERT_EQ(data.at("undone").size(), 1u) << row.why;
    EXPECT_EQ(data.at("undone").at(0).at("why"), row.why);
  }
}

TEST_F(ConversionCommand, RefineReportsAnElementThatStaysOnce) {
  auto text = Plates();
  text.replace(text.find("\"topology\": [2, 3, 6, 5]"), 24,
               "\"topology\": [2, 3, 6, 5], \"dummy\": true");
  auto const data = RunOn({"refine", "--list", "2 5"}, 1, text);
  EXPECT_EQ(data.at("undone").size(), 1u);
}

TEST_F(ConversionCommand, RefineWarnsOfPiecesWithANodeTwice) {
  // Half a side is 1: with 1.5 the new nodes are the corners.
  auto const result = RunTarvex(
      {"refine", Write("in.json", Plates()), "--list", "1", "--tol", "1.5", "--dry-run", "--json"});
  auto const warnings = result.Json().at("warnings");
  ASSERT_GT(warnings.size(), 0u);
  EXPECT_EQ(warnings.at(0).at("code"), "repeated-node");
}

TEST_F(ConversionCommand, RefineRefusesARatioOfOneAndNoList) {
  EXPECT_EQ(RunOn({"refine", "--list", "5", "--ratio", "1"}, 2), "--ratio: '1' is not below 1");
  EXPECT_EQ(RunOn({"refine", "--list", "5", "--ratio", "-0.1"}, 2),
            "--ratio: '-0.1' is not at least 0");
  EXPECT_EQ(RunOn({"refine"}, 2), "--list: give the nodes to refine around");
}

}  // namespace
}  // namespace Tarvex::ConversionCommandTest
