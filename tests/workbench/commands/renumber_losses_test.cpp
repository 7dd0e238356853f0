// What renumbering, deleting and tidying tell of references that came to name another record or
// none.
#include "tests/workbench/run.h"
#include "workbench/commands/renumber.h"

namespace Tarvex::RenumberLossesTest {
namespace {

using Testing::RunTarvex;
using Json = nlohmann::json;
using Lines = std::vector<std::string>;
using Words = std::vector<std::string>;

/// Eight nodes along x.
constexpr char kNodes[] = R"("Node": [{"n": 1, "position": [1, 0, 0]},
{"n": 2, "position": [2, 0, 0]}, {"n": 3, "position": [3, 0, 0]}, {"n": 4, "position": [4, 1, 0]},
{"n": 5, "position": [5, 0, 0]}, {"n": 6, "position": [6, 0, 0]}, {"n": 7, "position": [7, 0, 0]},
{"n": 8, "position": [8, 0, 0]}])";

class RenumberLosses : public Testing::RunTest {
 protected:
  /// Runs a command on a model of eight nodes with further tables; the new one is in out.json.
  Json Run(std::string const& tables, Words words, int exit) {
    auto const model = Testing::kHeader + ",\n" + kNodes + ",\n" + tables + "}\n";
    words.insert(words.begin() + 1, Write("in.json", model));
    words.insert(words.end(), {"-o", Path("out.json"), "--force", "--json"});
    auto const result = RunTarvex(words);
    EXPECT_EQ(result.exit, exit) << result.out << result.err;
    return result.Json();
  }
  /// What a command tells that it left undone.
  Lines Undone(std::string const& tables, Words const& words) {
    auto const json = Run(tables, words, 1);
    Lines lines;
    for (auto const& item : json.at("data").at("undone"))
      lines.push_back(item.at("table").get<std::string>() + " " +
                      std::to_string(item.at("number").get<int>()) + ": " +
                      item.at("why").get<std::string>());
    return lines;
  }
  /// The records of the warnings of a code.
  static Lines Warned(Json const& json, std::string const& code) {
    Lines records;
    for (auto const& warning : json.at("warnings"))
      if (warning.at("code") == code)
        records.push_back(warning.at("table").get<std::string>() + " " +
                          std::to_string(warning.at("number").get<int>()));
    return records;
  }
  Json Table(char const* table) const {
    auto const model = Json::parse(Read("out.json"));
    return model.contains(table) ? model.at(table) : Json::array();
  }
};

Words Compress(char const* table) { return {"renumber", "--table", table, "--compress"}; }

/// A slab of plate 5 beside a beam of section 7.
constexpr char kSlab[] = R"("Member": [{"n": 1, "topology": "1 2 4", "property": 5},
{"n": 2, "topology": "1 2", "property": 7}], "Section": [{"n": 7}, {"n": 8}],
"Prop2D": [{"n": 5}, {"n": 6}])";

TEST_F(RenumberLosses, NamesSlabsThatLoseTheirPlateWithTheSections) {
  Lines const lost{"Member 1: property was Prop2D 5 and is none now"};
  EXPECT_EQ(Undone(kSlab, Compress("Section")), lost);
  EXPECT_EQ(Undone(kSlab, {"delete", "--table", "Section", "--list", "8"}), lost);
}

TEST_F(RenumberLosses, NamesSlabsThatGetAnotherPlateWithTheSections) {
  std::string tables = kSlab;
  tables.replace(tables.find("\"Section\": ["), 12, "\"Section\": [{\"n\": 3}, {\"n\": 5}, ");
  // 3, 5, 7, 8 become 1, 2, 3, 4
  EXPECT_EQ(Undone(tables, Compress("Section")),
            Lines{"Member 1: property was Prop2D 5 and is 2 now"});
}

TEST_F(RenumberLosses, NamesSlabsThatKeepTheNumberOfTheirPlate) {
  EXPECT_EQ(Undone(kSlab, Compress("Prop2D")), Lines{"Member 1: property still says Prop2D 5"});
}

constexpr char kSpring[] = R"("Elem": [{"n": 1, "type": 3, "property": 4, "topology": [1, 2]},
{"n": 2, "type": 7, "property": 6, "topology": [1, 2, 4]}], "SpringProp": [{"n": 4}],
"Prop2D": [{"n": 6}])";

TEST_F(RenumberLosses, NamesSpringElementsThatGoByTheTableOfPlates) {
  EXPECT_EQ(Undone(kSpring, Compress("Prop2D")),
            Lines{"Elem 1: property was SpringProp 4 and is none now"});
  EXPECT_EQ(Undone(kSpring, Compress("SpringProp")),
            Lines{"Elem 1: property still says SpringProp 4"});
}

TEST_F(RenumberLosses, NamesSectionsThatKeepTheGradeOfAFabric) {
  EXPECT_EQ(Undone(R"("Section": [{"n": 1, "components":
                      [{"materialDesign": {"type": 8, "grade": 4}}]}], "MatFabric": [{"n": 4}])",
                   Compress("MatFabric")),
            Lines{"Section 1: components.materialDesign.grade still says MatFabric 4"});
}

TEST_F(RenumberLosses, NamesPolylinesAndSurfacesThatKeepTheirPlane) {
  EXPECT_EQ(Undone(R"("GridPlane": [{"n": 4}], "GridSurface": [{"n": 1, "plane": 4}],
                      "Polyline": [{"n": 1, "plane": 4}])",
                   Compress("GridPlane")),
            (Lines{"GridSurface 1: plane still says GridPlane 4",
                   "Polyline 1: plane still says GridPlane 4"}));
}

TEST_F(RenumberLosses, NamesSpringsThatLoseTheirCurve) {
  EXPECT_EQ(Undone(R"("SpringProp": [{"n": 4, "tableRef": [2, 0, 0]}], "MatCurve": [{"n": 2}])",
                   {"delete", "--table", "MatCurve", "--list", "2"}),
            Lines{"SpringProp 4: tableRef was MatCurve 2, which went, and is none now"});
}

TEST_F(RenumberLosses, NamesConstraintsAndTasksThatLoseANode) {
  EXPECT_EQ(Undone(R"("ConstraintEqn": [{"constrainedNode": 1, "terms": [
                {"node": 2, "direction": 1, "value": 0.5},
                {"node": 3, "direction": 1, "value": 1}]}],
                "Rigid": [{"primaryNode": 3, "constrainedNodes": "5 6"}],
                "AnalysisTask": [{"n": 1, "class": "CZdSpecTask", "name": "t", "solution": 6,
                "relDisp": [{"axis": 0, "nodes": [3, 4]}]}])",
                   {"delete", "--kind", "node", "--list", "3"}),
            (Lines{"Rigid 1: primaryNode was Node 3, which went, and is 5 now",
                   "ConstraintEqn 1: terms.node was Node 3, which went, and is none now",
                   "AnalysisTask 1: relDisp.nodes was Node 3, which went, and is none now"}));
}

TEST_F(RenumberLosses, NamesReferencesWithoutARecordThatChangeAllTheSame) {
  EXPECT_EQ(Undone(R"("Elem": [{"n": 2, "type": 2, "property": 99, "topology": [1, 2]}],
                      "Section": [{"n": 4}])",
                   Compress("Section")),
            Lines{"Elem 2: property was Section 99, which there is not, and is none now"});
}

TEST_F(RenumberLosses, SayNothingOfWhatFollows) {
  auto const json = Run(R"("Elem": [{"n": 3, "type": 2, "property": 4, "topology": [5, 2]},
                           {"n": 7, "type": 2, "property": 6, "topology": [2, 7]}],
                           "Member": [{"n": 9, "topology": "1 2", "property": 6,
                           "children": [[0, 7], [0, 3]]}], "Section": [{"n": 4}, {"n": 6}],
                           "AnalysisTask": [{"n": 4, "class": "CAnalysisTask", "cases": [2, 6]}],
                           "AnalysisCase": [{"n": 2, "task": 4}, {"n": 6, "task": 4}])",
                        Compress("Node,Elem,Member,Section,AnalysisTask,AnalysisCase"), 0);
  EXPECT_EQ(json.at("warnings"), Json::array());
  EXPECT_EQ(Table("Member").at(0).at("property"), 2);
}

TEST_F(RenumberLosses, SayNothingOfAPlaceThatGoesWithItsRecord) {
  auto const json = Run(R"("AnalysisTask": [{"n": 4, "class": "CAnalysisTask", "cases": [2, 6]}],
                           "AnalysisCase": [{"n": 2, "task": 4}, {"n": 6, "task": 4}])",
                        {"delete", "--kind", "case", "--list", "A2"}, 0);
  EXPECT_EQ(Table("AnalysisTask").at(0).at("cases"), Json({6}));
}

TEST_F(RenumberLosses, CompressedCombinationsStandOnce) {
  auto const json = Run(R"("LoadCaseTitle": [{"n": 1}],
      "AnalysisCase": [{"n": 1, "name": "x", "description": "L1"}],
      "CombinationCase": [{"n": 3, "name": "c3", "description": "1.5A1"},
      {"n": 7, "name": "c7", "description": "1.2C3"}])",
                        Compress("CombinationCase"), 0);
  EXPECT_EQ(json.at("data").at("maps"), Json::parse(R"({"CombinationCase": [[3, 1], [7, 2]]})"));
  ASSERT_EQ(Table("CombinationCase").size(), 2);
  EXPECT_EQ(Table("CombinationCase").at(0).at("name"), "c3");
  EXPECT_EQ(Table("CombinationCase").at(1).at("description"), "1.2C1");
}

TEST_F(RenumberLosses, NamesJointsWhoseStagesWent) {
  auto const json = Run(R"("Joint": [{"primaryNode": 1, "constrainedNode": 2, "stage": "3"}],
                           "AnalStage": [{"n": 2}, {"n": 3}])",
                        {"delete", "--table", "AnalStage", "--list", "3"}, 0);
  EXPECT_EQ(Warned(json, "emptied-list"), Lines{"Joint 1"});
}

TEST_F(RenumberLosses, DeletesAMaterialOfAPlateInUseNeitherBesideALoadPanel) {
  auto const json = Run(R"("LoadPanel": [{"n": 8, "topology": [1, 2, 4], "property": 5}],
                           "Member": [{"n": 1, "topology": "1 2 4", "property": 5}],
                           "Prop2D": [{"n": 5, "materialDesign": {"type": 2, "grade": 1}}],
                           "MatConcrete": [{"n": 1}])",
                        {"delete", "--table", "MatConcrete", "--list", "1"}, 3);
  EXPECT_EQ(json.at("error").at("text"), "MatConcrete 1 can't be deleted: Prop2D 5 needs it");
}

// Tidying.

TEST_F(RenumberLosses, NamesStagesAndTasksThatSelectOtherElementsInCompactedTables) {
  // Section 2 becomes 1 and 4 becomes 2: the lists, which tidying leaves, come to name the other.
  auto const json = Run(R"("Elem": [{"n": 1, "type": 2, "property": 2, "topology": [1, 2]},
      {"n": 2, "type": 2, "property": 4, "topology": [2, 3]}],
      "Section": [{"n": 2}, {"n": 4}], "AnalStage": [{"n": 1, "stageElem": "PB2"}],
      "AnalysisTask": [{"n": 1, "class": "CFormRelaxTask", "name": "t", "eulerElemList": "PB2"}])",
                        {"tidy", "--compact"}, 0);
  EXPECT_EQ(Table("AnalStage").at(0).at("stageElem"), "PB2");
  EXPECT_EQ(Warned(json, "list-selects-otherwise"), (Lines{"AnalStage 1", "AnalysisTask 1"}));
}

TEST_F(RenumberLosses, NamesLoadsOnSolidsThatSelectOthersInCompactedTables) {
  auto const json = Run(R"("Elem": [
      {"n": 1, "type": 12, "property": 2, "topology": [1, 2, 3, 4, 5, 6, 7, 8]},
      {"n": 2, "type": 12, "property": 4, "topology": [1, 2, 3, 4, 5, 6, 7, 8]}],
      "Prop3D": [{"n": 2}, {"n": 4}], "LoadCaseTitle": [{"n": 1}],
      "BodyFaceLoad": [{"loadCase": 1, "loadedEntities": {"kind": 2, "text": "PV2"}}])",
                        {"tidy", "--compact"}, 0);
  EXPECT_EQ(Warned(json, "list-selects-otherwise"), Lines{"BodyFaceLoad 1"});
}

/// A beam of section 4 and steel, one of a section that there is not, and what nothing uses.
constexpr char kUntidy[] = R"("Elem": [{"n": 1, "type": 2, "property": 4, "topology": [1, 2]},
{"n": 2, "type": 2, "property": 99, "topology": [2, 3]}],
"Section": [{"n": 4, "components": [{"materialAnalysis": 2}]}, {"n": 6}],
"MatAnal": [{"n": 2}, {"n": 3}],
"AnalStageMat": [{"n": 1, "stage": 1, "elemOriginalMat": 2, "elemStageMat": 3}],
"AnalStage": [{"n": 1, "stageElem": "all"}], "List": [{"n": 1, "kind": 2, "text": "PB9 1"}])";

TEST_F(RenumberLosses, NamesWhatNamesRemovedMaterials) {
  EXPECT_EQ(Undone(kUntidy, {"tidy", "--blank", "--sections"}),
            Lines{"AnalStageMat 1: elemStageMat still says MatAnal 3"});
  auto const json = Run(kUntidy, {"tidy", "--blank", "--sections"}, 1);
  EXPECT_EQ(json.at("data").at("maps"),
            Json::parse(R"({"MatAnal": [[3, 0]], "Section": [[6, 0]]})"));
}

TEST_F(RenumberLosses, NamesPropertiesWithoutARecordInCompactedTables) {
  auto const json = Run(kUntidy, {"tidy", "--compact"}, 1);
  EXPECT_EQ(json.at("data").at("undone").size(), 1);
  EXPECT_EQ(json.at("data").at("undone").at(0).at("why"),
            "property was Section 99, which there is not, and is none now");
  EXPECT_EQ(Warned(json, "word-without-number"), Lines{"List 1"});
}

TEST_F(RenumberLosses, FollowsBothStepsOfTidyingAtOnce) {
  // Material 2 stays and becomes 1; 3 goes, and the stage names none.
  EXPECT_EQ(Undone(kUntidy, {"tidy", "--blank", "--compact"}),
            (Lines{"Elem 2: property was Section 99, which there is not, and is none now",
                   "AnalStageMat 1: elemStageMat was MatAnal 3, which went, and is none now"}));
  EXPECT_EQ(Table("AnalStageMat").at(0).at("elemOriginalMat"), 1);
}

}  // namespace
}  // namespace Tarvex::RenumberLossesTest
