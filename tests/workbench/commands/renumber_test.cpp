#include "workbench/commands/renumber.h"

#include "tests/workbench/run.h"

namespace Tarvex::RenumberCommandTest {
namespace {

using Testing::RunResult;
using Testing::RunTarvex;
using Json = nlohmann::json;

/// Nodes 2, 4, 6 and 9 (9 is used by nothing), a beam 3 from 2 to 4 and a load panel 8, a member,
/// lists, loads, a stage, tasks and cases.
std::string Model() {
  return Testing::kHeader + R"(,
"Node": [{"n": 2, "position": [0, 0, 0], "springProperty": 4}, {"n": 4, "position": [2, 0, 0]},
{"n": 6, "position": [1, 0, 0], "axis": 5}, {"n": 9, "position": [9, 0, 0]}],
"Elem": [{"n": 3, "type": 2, "property": 7, "topology": [2, 4], "orientationNode": 9,
"parentMember": {"member": 5, "replica": 0}}],
"LoadPanel": [{"n": 8, "topology": [2, 4, 6]}],
"Member": [{"n": 5, "topology": "2 4", "property": 7, "children": [[0, 3]]}],
"Axis": [{"n": 5}],
"List": [{"n": 1, "name": "nodes", "kind": 1, "text": "2 to 9"},
{"n": 2, "name": "numbers", "kind": 0, "text": "1 2"},
{"n": 3, "name": "sections", "kind": 2, "text": "PB8 3"}],
"Section": [{"n": 7}, {"n": 8}],
"SpringProp": [{"n": 4}, {"n": 6}],
"DamperProp": [{"n": 6}],
"LoadCaseTitle": [{"n": 2, "name": "dead"}, {"n": 5, "name": "live"}],
"AnalStage": [{"n": 3}],
"AnalysisTask": [{"n": 4, "class": "CAnalysisTask", "name": "Analysis Task 4", "cases": [2]}],
"AnalysisCase": [{"n": 2, "name": "Analysis Case 2", "description": "L2 + L5", "task": 4}],
"CombinationCase": [{"n": 3, "name": "sum", "description": "1.5A2"}],
"NodeLoad": [{"loadCase": 2, "loadedEntities": "9"}, {"loadCase": 5, "loadedEntities": "2 4"}],
"BodyFaceLoad": [{"loadCase": 2, "loadedEntities": {"kind": 2, "text": "3"}}],
"GenRest": [{"nodes": "2"}]}
)";
}

class RenumberCommand : public Testing::RunTest {
 protected:
  /// Runs a command on the model, writes out.json and gives the result.
  RunResult RunOn(std::vector<std::string> words, int exit) {
    words.insert(words.begin() + 1, Write("in.json", Model()));
    words.insert(words.end(), {"-o", Path("out.json"), "--force", "--json"});
    auto const result = RunTarvex(words);
    EXPECT_EQ(result.exit, exit) << result.out << result.err;
    return result;
  }
  Json Data(std::vector<std::string> const& words, int exit = 0) {
    return RunOn(words, exit).Json().at("data");
  }
  std::string ErrorText(std::vector<std::string> const& words, int exit) {
    auto const text = RunOn(words, exit).Json().at("error").at("text").get<std::string>();
    EXPECT_FALSE(Exists("out.json"));
    return text;
  }

  Json Table(char const* table) const {
    auto const model = Json::parse(Read("out.json"));
    return model.contains(table) ? model.at(table) : Json::array();
  }
  std::vector<int> Numbers(char const* table) const {
    std::vector<int> numbers;
    for (auto const& record : Table(table)) numbers.push_back(record.at("n"));
    return numbers;
  }
  Json Record(char const* table, int n) const {
    for (auto const& record : Table(table))
      if (record.at("n") == n) return record;
    return {};
  }
};

/// The warnings of a code, as table and number.
std::vector<std::string> Warned(Json const& json, std::string const& code) {
  std::vector<std::string> records;
  for (auto const& warning : json.at("warnings"))
    if (warning.at("code") == code)
      records.push_back(warning.at("table").get<std::string>() + " " +
                        std::to_string(warning.at("number").get<int>()));
  return records;
}

std::vector<std::string> Undone(Json const& data) {
  std::vector<std::string> lines;
  for (auto const& item : data.at("undone"))
    lines.push_back(item.at("table").get<std::string>() + " " +
                    std::to_string(item.at("number").get<int>()) + ": " +
                    item.at("why").get<std::string>());
  return lines;
}

using Lines = std::vector<std::string>;

TEST_F(RenumberCommand, CompressesATableAndItsReferences) {
  auto const data = Data({"renumber", "--table", "Node", "--compress"});
  EXPECT_EQ(data.at("did"), true);
  EXPECT_EQ(data.at("maps"), Json::parse(R"({"Node": [[2, 1], [4, 2], [6, 3], [9, 4]]})"));
  EXPECT_EQ(Numbers("Node"), (std::vector<int>{1, 2, 3, 4}));
  EXPECT_EQ(Record("Elem", 3).at("topology"), Json({1, 2}));
  EXPECT_EQ(Record("Elem", 3).at("orientationNode"), 4);
  EXPECT_EQ(Record("LoadPanel", 8).at("topology"), Json({1, 2, 3}));
  EXPECT_EQ(Record("Member", 5).at("topology"), "1 2");
  EXPECT_EQ(Record("Member", 5).at("children"), Json::parse("[[0, 3]]"));
  EXPECT_EQ(Record("List", 1).at("text"), "1 2 3 4");
  EXPECT_EQ(Table("NodeLoad").at(0).at("loadedEntities"), "4");
}

TEST_F(RenumberCommand, CompressesSeveralTablesAtOnce) {
  auto const data = Data({"renumber", "--table", "Elem,Member", "--compress"});
  EXPECT_EQ(data.at("maps"), Json::parse(R"({"Elem": [[3, 1], [8, 2]], "Member": [[5, 1]]})"));
  EXPECT_EQ(Record("Elem", 1).at("parentMember").at("member"), 1);
  EXPECT_EQ(Record("Member", 1).at("children"), Json::parse("[[0, 1]]"));
  EXPECT_EQ(Numbers("LoadPanel"), std::vector<int>{2});
}

TEST_F(RenumberCommand, ShiftsNumbersFromOneOn) {
  Data({"renumber", "--table", "Node", "--shift", "5,100"});
  EXPECT_EQ(Numbers("Node"), (std::vector<int>{2, 4, 106, 109}));
}

TEST_F(RenumberCommand, OrdersAlongADirection) {
  Data({"renumber", "--table", "Node", "--direction", "1,0,0"});
  // along x: 2 at 0, 6 at 1, 4 at 2, 9 at 9
  EXPECT_EQ(Record("Elem", 3).at("topology"), Json({2, 6}));
}

TEST_F(RenumberCommand, TakesAMapAndLeavesOtherNumbers) {
  auto const map = Write("map.txt", "# old new\n2 4\n\n 4\t2 \n");
  Data({"renumber", "--table", "Node", "--map", map});
  EXPECT_EQ(Numbers("Node"), (std::vector<int>{2, 4, 6, 9}));
  EXPECT_EQ(Record("Elem", 3).at("topology"), Json({4, 2}));
}

TEST_F(RenumberCommand, RefusesAMapThatCannotBeRead) {
  struct Row {
    char const* text;
    char const* fault;
  };
  for (auto const& row :
       {Row{"2", "a new number is missing"}, Row{"2 3 4", "more than one new number"},
        Row{"a b", "\"a\" is no number from 1 to 100000000"},
        Row{"2 0", "\"0\" is no number from 1 to 100000000"},
        Row{"-2 3", "\"-2\" is no number from 1 to 100000000"},
        Row{"2 3\n2 4", "number 2 comes a second time"}}) {
    auto const map = Write("map.txt", row.text);
    EXPECT_EQ(ErrorText({"renumber", "--table", "Node", "--map", map}, 4), row.fault);
  }
  auto const map = Write("map.txt", "77 3");
  EXPECT_EQ(ErrorText({"renumber", "--table", "Node", "--map", map}, 3), "Node 77 does not exist");
  auto const text = ErrorText({"renumber", "--table", "Node", "--map", Path("none.txt")}, 4);
  EXPECT_EQ(text.rfind("cannot be read", 0), 0U) << text;
}

TEST_F(RenumberCommand, RefusesWhatIsNotOneToOne) {
  auto const map = Write("map.txt", "2 4\n");
  EXPECT_EQ(ErrorText({"renumber", "--table", "Node", "--map", map}, 3),
            "Node 4 and 2 would both have the number 4");
  EXPECT_EQ(ErrorText({"renumber", "--table", "Node", "--shift", "4,-2"}, 3),
            "Node 4 and 2 would both have the number 2");
}

TEST_F(RenumberCommand, RefusesNumbersThatNoRecordCanHave) {
  EXPECT_EQ(ErrorText({"renumber", "--table", "Node", "--shift", "1,-2"}, 3),
            "Node 2 can't have the number 0");
  EXPECT_EQ(ErrorText({"renumber", "--table", "Node", "--shift", "1,100000000"}, 3),
            "Node 2 can't have the number 100000002");
}

TEST_F(RenumberCommand, WantsOneFormAndAKnownTable) {
  auto const expect = [&](std::vector<std::string> words, std::string const& fault) {
    words.insert(words.begin(), "renumber");
    EXPECT_EQ(ErrorText(words, 2), fault);
  };
  std::string const oneForm = "give one of --compress, --shift, --direction and --map";
  expect({"--table", "Node"}, oneForm);
  expect({"--table", "Node", "--compress", "--shift", "1,2"}, oneForm);
  expect({"--compress"}, "--table: which table?");
  std::string const known =
      "' is no table whose records can be renumbered or deleted; these are: Node, Elem, LoadPanel, "
      "Member, Axis, GridPlane, GridSurface, Polyline, MatSteel, MatConcrete, MatFrp, "
      "MatAluminium, MatTimber, MatGlass, MatFabric, MatRebar, MatAnal, MatCurve, MatMatrix, "
      "Section, SpringProp, MassProp, Prop2D, Prop3D, LinkProp, DamperProp, CableProp, SpacerProp, "
      "ForceDensity1D, SoapStress1D, ForceDensity2D, SoapStress2D, RC2DProp, LoadCaseTitle, "
      "AnalStage, AnalysisTask, AnalysisCase, CombinationCase, DesignTask";
  expect({"--table", "NodeLoad", "--compress"}, "--table: 'NodeLoad" + known);
  expect({"--table", "Nothing", "--compress"}, "--table: 'Nothing" + known);
  expect({"--table", "Node,Elem", "--shift", "1,2"},
         "--table: several tables go with --compress alone");
  expect({"--table", "Node", "--shift", "1"}, "--shift: '1' is not 2 numbers, split by commas");
  expect({"--table", "Node", "--shift", "1,x"}, "--shift: '1,x' is not 2 numbers, split by commas");
  expect({"--table", "Node", "--shift", "1,99999999999"}, "--shift: '99999999999' is out of range");
  expect({"--table", "Axis", "--direction", "1,0,0"},
         "--direction: nodes, elements and members alone have a place");
  for (std::string const text : {"0,0,0", "nan,0,0", "0,inf,0"})
    expect({"--table", "Node", "--direction", text}, "--direction: '" + text + "' is no direction");
}

TEST_F(RenumberCommand, KeepsTheCasesOfTasksWhenLoadCasesMove) {
  auto const data = Data({"renumber", "--table", "LoadCaseTitle", "--compress"}, 1);
  EXPECT_EQ(Record("AnalysisTask", 4).at("cases"), Json({2}));
  EXPECT_EQ(Record("AnalysisCase", 2).at("description"), "L1 + L2");
  EXPECT_EQ(Table("NodeLoad").at(0).at("loadCase"), 1);
  // loads on solids keep their load case, and the report says so
  EXPECT_EQ(Undone(data), Lines{"BodyFaceLoad 1: loadCase still says LoadCaseTitle 2"});
}

TEST_F(RenumberCommand, KeepsDescriptionsWhenToldTo) {
  Data({"renumber", "--table", "LoadCaseTitle", "--compress", "--keep-descriptions"}, 1);
  EXPECT_EQ(Record("AnalysisCase", 2).at("description"), "L2 + L5");
}

TEST_F(RenumberCommand, MovesTasksCasesAndTheirDefaultNames) {
  Data({"renumber", "--table", "AnalysisTask,AnalysisCase", "--compress"});
  EXPECT_EQ(Record("AnalysisTask", 1).at("name"), "Analysis Task 1");
  EXPECT_EQ(Record("AnalysisTask", 1).at("cases"), Json({1}));
  EXPECT_EQ(Record("AnalysisCase", 1).at("name"), "Analysis Case 1");
  EXPECT_EQ(Record("AnalysisCase", 1).at("task"), 1);
  EXPECT_EQ(Record("CombinationCase", 3).at("description"), "1.5A1");
}

TEST_F(RenumberCommand, NamesListsThatTheRulesEmpty) {
  auto const json = RunOn({"renumber", "--table", "Axis", "--compress"}, 0).Json();
  EXPECT_EQ(Warned(json, "emptied-list"), Lines{"List 2"});
  EXPECT_EQ(Record("Node", 6).at("axis"), 1);
}

TEST_F(RenumberCommand, NamesListsThatSelectOtherRecordsThanBefore) {
  // 4 to 6 step 3 is node 4 alone; its end follows node 6 all the same, and 106 is in reach of 4.
  auto text = Model();
  text.replace(text.find("2 to 9"), 6, "4 to 6 step 3");
  auto const model = Write("stepped.json", text);
  auto const result =
      RunTarvex({"renumber", model, "--table", "Node", "--shift", "5,100", "--dry-run", "--json"});
  EXPECT_EQ(Warned(result.Json(), "list-selects-otherwise"), Lines{"List 1"});
  EXPECT_EQ(Warned(RunOn({"renumber", "--table", "Node", "--shift", "5,100"}, 0).Json(),
                   "list-selects-otherwise"),
            Lines{});
}

TEST_F(RenumberCommand, NamesNodesThatKeepTheNumberOfTheirSpring) {
  auto const data = Data({"renumber", "--table", "SpringProp", "--compress"}, 1);
  EXPECT_EQ(Undone(data), Lines{"Node 2: springProperty still says SpringProp 4"});
}

TEST_F(RenumberCommand, NamesTheSpringsThatGoWhenDampersMove) {
  auto const json = RunOn({"renumber", "--table", "DamperProp", "--compress"}, 1).Json();
  EXPECT_EQ(Warned(json, "erased-record"), (Lines{"SpringProp 4", "SpringProp 6"}));
  EXPECT_EQ(Undone(json.at("data")), Lines{"Node 2: springProperty still says SpringProp 4"});
  // the damper stands under both numbers
  EXPECT_EQ(Numbers("DamperProp"), (std::vector<int>{1, 6}));
  EXPECT_EQ(Warned(json, "left-record"), Lines{"DamperProp 6"});
}

TEST_F(RenumberCommand, RollsBackWhenAnElementHasNoTableOfProperties) {
  auto text = Model();
  text.replace(text.find("\"type\": 2"), 9, "\"type\": 24");
  auto const model = Write("damper.json", text);
  auto const result = RunTarvex(
      {"renumber", model, "--table", "Section", "--compress", "-o", Path("out.json"), "--json"});
  EXPECT_EQ(result.exit, 3);
  EXPECT_EQ(result.Json().at("error").at("text"),
            "properties can't be renumbered: element 3 of type 24 has no table of properties");
  EXPECT_FALSE(Exists("out.json"));
}

class DeleteCommand : public RenumberCommand {};

TEST_F(DeleteCommand, DeletesNodesAndWhatNamesThem) {
  auto const json = RunOn({"delete", "--kind", "node", "--list", "9"}, 1).Json();
  EXPECT_EQ(json.at("data").at("maps"), Json::parse(R"({"Node": [[9, 0]]})"));
  EXPECT_EQ(Numbers("Node"), (std::vector<int>{2, 4, 6}));
  EXPECT_EQ(Record("List", 1).at("text"), "2 4 6");
  EXPECT_EQ(Warned(json, "dropped-record"), Lines{"NodeLoad 1"});
  EXPECT_EQ(Table("NodeLoad").size(), 1);
  // what the rules leave: the orientation node
  EXPECT_EQ(Undone(json.at("data")), Lines{"Elem 3: orientationNode still says Node 9"});
  EXPECT_EQ(Record("Elem", 3).at("orientationNode"), 9);
  EXPECT_EQ(RunTarvex({"check", Path("out.json")}).exit, 1);
}

TEST_F(DeleteCommand, RefusesANodeThatATopologyNeeds) {
  EXPECT_EQ(ErrorText({"delete", "--kind", "node", "--list", "4"}, 3),
            "Node 4 can't be deleted: Elem 3 needs it");
  EXPECT_EQ(ErrorText({"delete", "--kind", "node", "--list", "6"}, 3),
            "Node 6 can't be deleted: LoadPanel 8 needs it");
}

TEST_F(DeleteCommand, TellsElementsFromLoadPanelsWhichShareTheirNumbers) {
  RunOn({"delete", "--table", "LoadPanel", "--list", "3"}, 0);
  EXPECT_EQ(Numbers("Elem"), std::vector<int>{3});
  RunOn({"delete", "--table", "Elem", "--list", "8"}, 0);
  EXPECT_EQ(Numbers("LoadPanel"), std::vector<int>{8});
  RunOn({"delete", "--table", "LoadPanel", "--list", "8"}, 0);
  EXPECT_TRUE(Table("LoadPanel").empty());
}

TEST_F(DeleteCommand, TakesNoValueForAFlag) {
  for (auto const* flag : {"--with-users=false", "--with-users=0", "--with-users=no"})
    EXPECT_EQ(ErrorText({"delete", "--list", "6", flag}, 2), "--with-users takes no value");
}

TEST_F(DeleteCommand, TakesUsersAlongWhenToldTo) {
  auto const data = Data({"delete", "--kind", "node", "--list", "4", "--with-users"});
  EXPECT_EQ(data.at("maps"),
            Json::parse(R"({"Node": [[4, 0]], "Member": [[5, 0]], "Elem": [[3, 0], [8, 0]]})"));
  EXPECT_TRUE(Table("Elem").empty());
  EXPECT_TRUE(Table("LoadPanel").empty());
  EXPECT_TRUE(Table("Member").empty());
}

TEST_F(DeleteCommand, DeletesElementsAndTheirPlaceInMembers) {
  Data({"delete", "--list", "3"});
  EXPECT_FALSE(Record("Member", 5).contains("children"));
  EXPECT_EQ(RunTarvex({"check", Path("out.json")}).exit, 0);
}

TEST_F(DeleteCommand, LeavesTheMemberThatAnElementNames) {
  auto const data = Data({"delete", "--kind", "member", "--list", "5"}, 1);
  EXPECT_EQ(Undone(data), Lines{"Elem 3: parentMember.member still says Member 5"});
  EXPECT_EQ(Record("Elem", 3).at("parentMember").at("member"), 5);
}

TEST_F(DeleteCommand, RefusesPropertiesInUseAndAxes) {
  EXPECT_EQ(ErrorText({"delete", "--table", "Section", "--list", "7"}, 3),
            "Section 7 can't be deleted: Elem 3 needs it");
  EXPECT_EQ(ErrorText({"delete", "--table", "Axis", "--list", "5"}, 3),
            "Axis 5 can't be deleted: Node 6 needs it");
}

TEST_F(DeleteCommand, DeletesAnUnusedPropertyAndNamesListsThatLoseIt) {
  auto const json = RunOn({"delete", "--table", "Section", "--list", "8"}, 0).Json();
  EXPECT_EQ(Numbers("Section"), std::vector<int>{7});
  EXPECT_EQ(Record("List", 3).at("text"), "PB3");
  EXPECT_EQ(Warned(json, "word-without-number"), Lines{"List 3"});
}

TEST_F(DeleteCommand, DeletesCasesOfEachKind) {
  // a load on a solid keeps the deleted load case, so there is something to look at
  auto const json = RunOn({"delete", "--kind", "case", "--list", "L2 C3"}, 1).Json();
  EXPECT_EQ(Undone(json.at("data")), Lines{"BodyFaceLoad 1: loadCase still says LoadCaseTitle 2"});
  EXPECT_EQ(Numbers("LoadCaseTitle"), std::vector<int>{5});
  EXPECT_TRUE(Table("CombinationCase").empty());
  EXPECT_EQ(Record("AnalysisCase", 2).at("description"), "L<deleted case> + L5");
  EXPECT_EQ(Record("AnalysisTask", 4).at("cases"), Json({2}));
  EXPECT_EQ(Warned(json, "dropped-record"), Lines{"NodeLoad 1"});
}

TEST_F(DeleteCommand, DoesNothingForRecordsThatThereAreNot) {
  auto const data = Data({"delete", "--table", "Section", "--list", "55"});
  EXPECT_EQ(data.at("did"), false);
  EXPECT_EQ(data.at("changes"), Json::object());
}

TEST_F(DeleteCommand, WantsAList) {
  EXPECT_EQ(ErrorText({"delete", "--kind", "node"}, 2), "--list: which records?");
  EXPECT_EQ(ErrorText({"delete", "--kind", "node", "--list", "1 to"}, 2),
            "--list: character 3: a range without its end");
}

TEST_F(DeleteCommand, RefusesTablesThatCannotLoseRecords) {
  EXPECT_EQ(ErrorText({"delete", "--table", "DamperProp", "--list", "6"}, 3),
            "records of DamperProp can't be deleted by renumbering");
}

class TidyCommand : public RenumberCommand {};

TEST_F(TidyCommand, UsedTellsUsedAndUnusedRecords) {
  auto const model = Write("in.json", Model());
  auto const json = RunTarvex({"used", model, "--json"}).Json();
  auto const tables = json.at("data").at("tables");
  EXPECT_EQ(tables.at("Section"), Json::parse(R"({"used": [7], "unused": [8]})"));
  EXPECT_EQ(tables.at("SpringProp"), Json::parse(R"({"used": [4], "unused": [6]})"));
  EXPECT_EQ(tables.at("DamperProp"), Json::parse(R"({"used": [], "unused": [6]})"));
  EXPECT_FALSE(tables.contains("Prop2D"));
}

TEST_F(TidyCommand, UsedTellsOneStage) {
  auto const model = Write("in.json", Model());
  auto const json = RunTarvex({"used", model, "--stage", "3", "--json"}).Json();
  // the stage has no elements; members act in every stage
  EXPECT_EQ(json.at("data").at("tables").at("SpringProp"),
            Json::parse(R"({"used": [], "unused": [4, 6]})"));
  EXPECT_EQ(RunTarvex({"used", model, "--stage", "8"}).exit, 3);
}

TEST_F(TidyCommand, BlanksWhatIsUnusedAndSectionsWhenToldTo) {
  Data({"tidy", "--blank"});
  EXPECT_EQ(Numbers("Section"), (std::vector<int>{7, 8}));
  EXPECT_EQ(Numbers("SpringProp"), std::vector<int>{4});
  Data({"tidy", "--blank", "--sections"});
  EXPECT_EQ(Numbers("Section"), std::vector<int>{7});
}

TEST_F(TidyCommand, CompactsAndNamesNodesThatKeepTheirNumbers) {
  auto const data = Data({"tidy", "--compact"}, 1);
  EXPECT_EQ(data.at("maps"), Json::parse(R"({"Section": [[7, 1], [8, 2]],
            "SpringProp": [[4, 1], [6, 2]], "DamperProp": [[6, 1]]})"));
  EXPECT_EQ(Record("Elem", 3).at("property"), 1);
  EXPECT_EQ(Record("Member", 5).at("property"), 1);
  EXPECT_EQ(Record("List", 3).at("text"), "PB2 3");
  EXPECT_EQ(Undone(data), Lines{"Node 2: springProperty still says SpringProp 4"});
}

TEST_F(TidyCommand, FitsTheTypesOf2dProperties) {
  auto text = Model();
  text.insert(text.find("\"SpringProp\""),
              "\"Prop2D\": [{\"n\": 1, \"type\": 2}, {\"n\": 2, \"type\": 6}],\n");
  auto const model = Write("plates.json", text);
  auto const result =
      RunTarvex({"tidy", model, "--fit-2d-types", "-o", Path("out.json"), "--json"});
  EXPECT_EQ(result.exit, 0);
  EXPECT_EQ(result.Json().at("data").at("changes"),
            Json::parse(R"({"Prop2D": {"added": [], "removed": [], "changed": [1]}})"));
  EXPECT_EQ(Record("Prop2D", 1).at("type"), 1);
}

TEST_F(TidyCommand, WantsSomethingToDo) {
  EXPECT_EQ(ErrorText({"tidy"}, 2), "give --blank, --compact or --fit-2d-types");
  EXPECT_EQ(ErrorText({"tidy", "--compact", "--sections"}, 2), "--sections goes with --blank");
}

TEST_F(RenumberCommand, WarnsOfADeletionThatSelectsNothing) {
  struct Row {
    std::vector<std::string> words;
    char const* text;
  };
  for (auto const& row :
       {Row{{"delete", "--table", "Section", "--list", "PB1"},
            "'PB1' selects no record of Section"},
        Row{{"delete", "--table", "Node", "--list", "777"}, "'777' selects no record of Node"},
        Row{{"delete", "--kind", "case", "--list", "L99"}, "'L99' selects no case"}}) {
    auto const json = RunOn(row.words, 0).Json();
    ASSERT_EQ(json.at("warnings").size(), 1U) << row.text;
    EXPECT_EQ(json.at("warnings").at(0).at("code"), "empty-selection");
    EXPECT_EQ(json.at("warnings").at(0).at("text"), row.text);
    EXPECT_EQ(json.at("data").at("changes"), Json::object());
  }
}

TEST_F(RenumberCommand, RefusesADeletionByKindAndByTable) {
  for (auto const* kind : {"node", "element"})  // element is what it is unless given
    EXPECT_EQ(ErrorText({"delete", "--kind", kind, "--table", "Section", "--list", "1"}, 2),
              "give one of --kind and --table");
}

}  // namespace
}  // namespace Tarvex::RenumberCommandTest
