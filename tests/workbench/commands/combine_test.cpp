#include "workbench/commands/combine.h"

#include "tests/workbench/run.h"

namespace Tarvex::CombineTest {
namespace {

using Testing::RunTarvex;
using Json = nlohmann::json;
using Numbers = std::vector<int>;

/// A model of titled load cases, each with an analysis case of a static task.
std::string Cases(std::vector<std::string> const& titles, std::string const& more = {}) {
  std::string titleRows;
  std::string caseRows;
  for (std::size_t i = 0; i < titles.size(); ++i) {
    auto const n = std::to_string(i + 1);
    auto const comma = std::string(i == 0 ? "" : ",\n");
    if (!titles[i].empty())
      (titleRows += titleRows.empty() ? "" : ",\n") += R"({"n": )" + n + ", " + titles[i] + "}";
    caseRows += comma + R"({"n": )" + n + R"(, "description": "L)" + n + R"(", "task": 1})";
  }
  return Testing::kHeader + ",\n\"LoadCaseTitle\": [" + titleRows +
         "],\n\"AnalysisTask\": [{\"n\": 1, \"class\": \"CZssTask\"}],\n\"AnalysisCase\": [" +
         caseRows + more + "]\n}\n";
}

std::string const kSelfWeight = R"("type": 11)";
std::string const kOffices = R"("type": 31, "category": 2)";
std::string const kWind = R"("type": 33)";

std::string Wind(int source) { return R"("type": 33, "source": )" + std::to_string(source); }

class Combine : public Testing::RunTest {
 protected:
  Testing::RunResult Run(std::string const& model, std::vector<std::string> const& options,
                         bool json = true) {
    std::vector<std::string> words{"combine", Write("in.json", model)};
    words.insert(words.end(), options.begin(), options.end());
    words.insert(words.end(), {"-o", Path("out.json"), "--force"});
    if (json) words.emplace_back("--json");
    return RunTarvex(words);
  }
  Json Data(std::string const& model, std::vector<std::string> const& options, int exit = 0) {
    auto const result = Run(model, options);
    EXPECT_EQ(result.exit, exit) << result.out;
    return result.Json().at("data");
  }
  /// "NAME = DESCRIPTION" of each combination that was written.
  std::vector<std::string> Written() const {
    std::vector<std::string> lines;
    auto const model = Json::parse(Read("out.json"));
    for (auto const& record : model.at("CombinationCase"))
      lines.push_back(record.at("name").get<std::string>() + " = " +
                      record.value("description", ""));
    return lines;
  }
  std::vector<std::string> Codes(std::string const& model,
                                 std::vector<std::string> const& options) {
    std::vector<std::string> codes;
    auto const json = Run(model, options).Json();
    for (auto const& warning : json.at("warnings")) codes.push_back(warning.at("code"));
    return codes;
  }
  /// What is told of the accompanying factors of roofs in a family, from the factor on.
  std::vector<std::string> RoofWarnings(std::string const& model, std::string const& family,
                                        bool isUk) {
    std::vector<std::string> options{"--families", family};
    if (isUk) options.emplace_back("--uk");
    std::vector<std::string> texts;
    auto const json = Run(model, options).Json();
    for (auto const& warning : json.at("warnings")) {
      if (warning.at("code") != "roof-accompanying") continue;
      auto const text = warning.at("text").get<std::string>();
      texts.push_back(text.substr(text.find("with its ") + std::string("with its ").size()));
    }
    return texts;
  }
};

using Texts = std::vector<std::string>;

TEST_F(Combine, UnlessToldWritesThePersistentAndTheCharacteristicFamily) {
  auto const data = Data(Cases({kSelfWeight, kOffices, kWind}), {});
  EXPECT_EQ(data.at("did"), true);
  Json names = Json::array();
  for (auto const& family : data.at("result").at("families")) names.push_back(family.at("name"));
  EXPECT_EQ(names, Json({"ULS Persistent", "SLS Characteristic"}));
  // 3 basic; 1 permanent, 4 values, 2 ways, an envelope, a final one in either family.
  EXPECT_EQ(data.at("result").at("combinations"), 3 + 2 * 9);
  EXPECT_EQ(Written().size(), 21u);
  EXPECT_EQ(Written()[11], "ULS Persistent = C4 + C11");
}

TEST_F(Combine, ReportsTheFactorsOfEachActionAndThePermutations) {
  auto const data = Data(Cases({kSelfWeight, kOffices, kWind}), {"--families", "persistent"});
  EXPECT_EQ(data.at("result").at("actions"), Json::parse(R"([
      {"combination": 1, "name": "Permanent : Self weight 1", "cases": "A1"},
      {"combination": 2, "name": "Variable : Imposed 1B", "cases": "A2"},
      {"combination": 3, "name": "Variable : Wind 1", "cases": "A3"}])"));
  // 2 factors of self weight x 2 ways x 2 x 2 factors of the variable actions.
  EXPECT_EQ(data.at("result").at("families"), Json::parse(R"([
      {"name": "ULS Persistent", "first": 4, "final": 12, "combinations": 9, "permutations": 16,
       "morePermutations": false, "factors": [
         {"action": 1, "values": [1.0, 1.35], "nonLinear": false},
         {"action": 2, "values": [0.0, 1.05, 1.5], "nonLinear": false},
         {"action": 3, "values": [0.0, 0.9, 1.5], "nonLinear": false}]}])"));
}

TEST_F(Combine, PrintsATable) {
  auto const result =
      Run(Cases({kSelfWeight, kOffices, kWind}), {"--families", "persistent"}, false);
  EXPECT_EQ(result.exit, 0);
  EXPECT_EQ(result.out.substr(0, result.out.find("combine:")),
            "action                        cases  ULS Persistent\n"
            "C1 Permanent : Self weight 1  A1     1.35, 1\n"
            "C2 Variable : Imposed 1B      A2     1.5, 1.05, 0\n"
            "C3 Variable : Wind 1          A3     1.5, 0.9, 0\n"
            "final combination                    C12\n"
            "combinations                         9\n"
            "permutations                         16\n"
            "12 combinations, 3 of them basic\n");
}

TEST_F(Combine, TakesFamiliesByTheirWords) {
  auto const model = Cases({kSelfWeight, R"("type": 41)"},
                           R"(, {"n": 9, "description": "M1", "task": 2, "modeDirection": 1})");
  auto const withTask = [&] {
    auto text = model;
    std::string const task = R"({"n": 1, "class": "CZssTask"})";
    text.insert(text.find(task) + task.size(), R"(, {"n": 2, "class": "CZdSpecTask"})");
    return text;
  }();
  struct Row {
    char const* word;
    char const* name;
    int exit = 0;
  };
  Json all = Json::array();
  for (auto const& row :
       {Row{"persistent", "ULS Persistent"}, Row{"accidental", "ULS Accidental"},
        Row{"seismic", "ULS Seismic"}, Row{"characteristic", "SLS Characteristic"},
        Row{"frequent", "SLS Frequent", 1}, Row{"quasi-permanent", "SLS Quasi-Permament", 1}}) {
    auto const data = Data(withTask, {"--families", row.word}, row.exit);  // 1: persistent-factors
    ASSERT_EQ(data.at("result").at("families").size(), 1u);
    EXPECT_EQ(data.at("result").at("families").at(0).at("name"), row.name);
    all.push_back(row.name);
  }
  Json names = Json::array();
  auto const every = Data(withTask, {"--families", "all"}, 1).at("result").at("families");
  for (auto const& family : every) names.push_back(family.at("name"));
  EXPECT_EQ(names, all);
  auto const two = Data(withTask, {"--families", " frequent, persistent "}, 1);
  EXPECT_EQ(two.at("result").at("families").at(0).at("name"), "ULS Persistent");
  EXPECT_EQ(two.at("result").at("families").at(1).at("name"), "SLS Frequent");
}

TEST_F(Combine, TakesTheCasesOfTheTasksGiven) {
  auto text = Cases({kSelfWeight, kWind});
  std::string const task = R"({"n": 1, "class": "CZssTask"})";
  text.insert(text.find(task) + task.size(), R"(, {"n": 2, "class": "CZssTask"})");
  text.replace(text.find(R"("L2", "task": 1)"), 15, R"("L2", "task": 2)");
  Data(text, {"--tasks", "2", "--families", "characteristic"}, 1);  // single-variable-action
  EXPECT_EQ(Written().front(), "Variable : Wind 1 = A2");
  Data(text, {"--tasks", "1 to 2", "--families", "characteristic"}, 1);
  EXPECT_EQ(Written().front(), "Permanent : Self weight 1 = A1");
  EXPECT_EQ(Codes(text, {"--tasks", "1 7", "--families", "characteristic"}), Texts{"missing-task"});
  auto const fault = Run(text, {"--tasks", "1 to"}, false);
  EXPECT_EQ(fault.exit, 2);
  EXPECT_EQ(fault.err, "tarvex: --tasks: character 3: a range without its end\n");
}

/// Static tasks 1, 2, 3 and 5 with a case each: A1 self weight, A2 offices, A3 wind, A4 snow.
/// Stages where told.
std::string FourTasks(int stages) {
  auto text = Cases({kSelfWeight, kOffices, kWind, R"("type": 34)"});
  std::string const task = R"({"n": 1, "class": "CZssTask"})";
  std::string more;
  for (auto const* n : {"2", "3", "5"})
    more += std::string(R"(, {"n": )") + n + R"(, "class": "CZssTask"})";
  text.insert(text.find(task) + task.size(), more);
  for (auto const& [from, to] : {std::pair{R"("L2", "task": 1)", R"("L2", "task": 2)"},
                                 std::pair{R"("L3", "task": 1)", R"("L3", "task": 3)"},
                                 std::pair{R"("L4", "task": 1)", R"("L4", "task": 5)"}})
    text.replace(text.find(from), std::string(from).size(), to);
  std::string rows;
  for (int n = 1; n <= stages; ++n)
    rows += (n == 1 ? R"({"n": )" : R"(, {"n": )") + std::to_string(n) + "}";
  if (stages > 0) text.insert(text.find("\"LoadCaseTitle\""), "\"AnalStage\": [" + rows + "],\n");
  return text;
}

TEST_F(Combine, TakesAllTasksUpToTheHighestHoweverManyStagesThereAre) {
  Texts const all{"Permanent : Self weight 1 = A1", "Variable : Imposed 1B = A2",
                  "Variable : Wind 1 = A3", "Variable : Snow 1 = A4"};
  Texts const withoutFirst(all.begin() + 1, all.end());
  struct Row {
    char const* tasks;
    Texts basic;
    Texts codes;
    int exit = 0;  // 1 with a single variable action
  };
  for (int const stages : {0, 2, 9})
    for (auto const& row :
         {Row{"all", all, {}}, Row{" all", all, {}}, Row{"1 to *", all, {}},
          Row{"*", {all[3]}, {}, 1}, Row{"all not 1", withoutFirst, {}},
          Row{"all not (3 to 5)", {all[0], all[1]}, {}, 1}, Row{"2 to * not 4", withoutFirst, {}},
          Row{"1 to 5 not 1", withoutFirst, {"missing-task"}},  // 4
          Row{"all 8", all, {"missing-task"}}}) {
      SCOPED_TRACE(std::string(row.tasks) + ", stages: " + std::to_string(stages));
      auto const result =
          Run(FourTasks(stages), {"--tasks", row.tasks, "--families", "characteristic"});
      EXPECT_EQ(result.exit, row.exit) << result.out;
      auto written = Written();
      std::erase_if(written,
                    [](auto const& line) { return line.find("= A") == std::string::npos; });
      EXPECT_EQ(written, row.basic);
      Texts codes;
      auto const json = result.Json();
      for (auto const& warning : json.at("warnings"))
        if (warning.at("code") == "missing-task") codes.push_back(warning.at("code"));
      EXPECT_EQ(codes, row.codes);
    }
  EXPECT_EQ(Codes(FourTasks(0), {"--tasks", "6 to *"}), (Texts{"empty-selection", "no-actions"}));
}

TEST_F(Combine, TakesTheFactorBesideAnAccidentalAction) {
  auto const model = Cases({kOffices, kWind, R"("type": 41)"});
  auto const leading = [&](std::vector<std::string> options) {
    options.insert(options.end(), {"--families", "accidental"});
    Run(model, options);
    return Written()[3];
  };
  EXPECT_EQ(leading({}), "Variable : Imposed 1B (Leading) = 0.5C1");
  EXPECT_EQ(leading({"--psi", "2"}), "Variable : Imposed 1B (Leading) = 0.3C1");
  EXPECT_EQ(leading({"--psi", "0"}), "Variable : Imposed 1B (Leading) = 0.7C1");
  EXPECT_EQ(Codes(model, {"--families", "accidental", "--psi", "0"}), Texts{"leading-factor"});
  EXPECT_EQ(Codes(model, {"--families", "accidental", "--psi", "2"}), Texts());
  EXPECT_EQ(Run(model, {"--psi", "3"}).exit, 2);
}

TEST_F(Combine, TakesTheFactorsOfTheUnitedKingdom) {
  Run(Cases({kOffices, kWind}), {"--families", "persistent", "--uk"});
  EXPECT_EQ(Written()[5], "Variable : Wind 1 (Accompanying) = (0.75 or 0)C2");  // 0.5 x 1.5
}

TEST_F(Combine, ListsWhatWasDroppedAndWhy) {
  auto const data = Data(Cases({kSelfWeight, "", R"("type": 51)", R"("type": 31)", R"("type": 0)",
                                R"("type": 39)", R"("type": 53, "direction": 3)"}),
                         {"--families", "characteristic"}, 1);
  EXPECT_EQ(data.at("undone"), Json::parse(R"([
      {"table": "AnalysisCase", "number": 2, "why": "a load case of it has no title"},
      {"table": "AnalysisCase", "number": 3, "why": "actions of type 51 are not combined"},
      {"table": "AnalysisCase", "number": 4,
       "why": "an imposed action needs a category from 1 to 8"},
      {"table": "AnalysisCase", "number": 5, "why": "actions of type 0 are not combined"},
      {"table": "AnalysisCase", "number": 6, "why": "actions of type 39 get no basic combination"},
      {"table": "AnalysisCase", "number": 7,
       "why": "a seismic action needs a direction that its type has"}])"));
}

TEST_F(Combine, ListsCasesWithoutATitleOfTheirOwn) {
  auto text = Cases({kSelfWeight, kWind, kWind, kOffices});
  auto const replace = [&](std::string const& from, std::string const& to) {
    text.replace(text.find(from), from.size(), to);
  };
  replace(R"("description": "L2")", R"("description": "L1 + L2")");
  replace(R"("description": "L3")", R"("description": "none")");
  replace(R"("L4", "task": 1)", R"("L4", "task": 2)");
  replace(R"({"n": 1, "class": "CZssTask"})",
          R"({"n": 1, "class": "CZssTask"}, {"n": 2, "class": "CZssTask", "solution": 2})");
  auto const undone = Data(text, {"--families", "characteristic"}, 1).at("undone");
  ASSERT_EQ(undone.size(), 3u);
  EXPECT_EQ(undone.at(0).at("why"), "its load cases are of different actions");
  EXPECT_EQ(undone.at(1).at("why"), "its description names no load case");
  EXPECT_EQ(undone.at(2).at("why"), "its task solves neither load cases nor a response spectrum");
}

TEST_F(Combine, WithNothingToCombineLeavesTheModelAndSaysSo) {
  auto const model = Cases({R"("type": 36)"});
  auto const result = Run(model, {});
  EXPECT_EQ(result.exit, 1);  // a case was dropped
  auto const json = result.Json();
  EXPECT_EQ(json.at("data").at("did"), false);
  EXPECT_EQ(json.at("data").at("changes"), Json::object());
  EXPECT_EQ(json.at("data").at("result").at("combinations"), 0);
  EXPECT_EQ(json.at("warnings").at(0).at("code"), "no-actions");
  EXPECT_EQ(Run(Testing::SmallModel(), {}).exit, 0);
  EXPECT_EQ(Codes(Testing::SmallModel(), {}), (Texts{"empty-selection", "no-actions"}));
}

TEST_F(Combine, RefusesAFamilyWithoutItsCases) {
  auto const model = Cases({kSelfWeight});
  auto const accidental = Run(model, {"--families", "accidental,persistent"}, false);
  EXPECT_EQ(accidental.exit, 3);
  EXPECT_EQ(accidental.err, "tarvex: ULS Accidental: no accidental cases\n");
  auto const seismic = Run(model, {"--families", "seismic"}, false);
  EXPECT_EQ(seismic.exit, 3);
  EXPECT_EQ(seismic.err, "tarvex: ULS Seismic: no seismic cases\n");
  EXPECT_FALSE(Exists("out.json"));
}

TEST_F(Combine, RefusesUnknownFamilies) {
  auto const model = Cases({kSelfWeight});
  for (auto const* word : {"ultimate", "", "persistent,", "persistent,,frequent", "Persistent"})
    EXPECT_EQ(Run(model, {"--families", word}).exit, 2) << word;
}

/// Wind from many sides beside snow: for either leading as many ways as there are sides.
std::string WindFrom(int sides) {
  std::vector<std::string> titles;
  for (int side = 1; side <= sides; ++side) titles.push_back(Wind(side));
  titles.emplace_back(R"("type": 34)");
  return Cases(titles);
}

TEST_F(Combine, WritesMoreThanTenThousandOnlyWhereTold) {
  // Basic n + 1; two values each; 2 n ways; an envelope and a final one: 5 n + 5.
  EXPECT_EQ(Data(WindFrom(1999), {"--families", "persistent"}).at("result").at("combinations"),
            10000);
  auto const more = WindFrom(2000);
  auto const refused = Run(more, {"--families", "persistent"}, false);
  EXPECT_EQ(refused.exit, 3);
  EXPECT_EQ(
      refused.err,
      "tarvex: 10005 combinations would be written (2001 basic, ULS Persistent 8004): more than "
      "10000 only with --yes\n");
  EXPECT_EQ(Data(more, {"--families", "persistent", "--yes"}).at("result").at("combinations"),
            10005);
}

TEST_F(Combine, RefusesMoreThanNumbersAreLeftFor) {
  // 1 basic; self weight and the final combination: 3.
  auto const behind = [](int highest) {
    auto text = Cases({kSelfWeight});
    text.insert(text.rfind('}'), ",\n\"CombinationCase\": [{\"n\": " + std::to_string(highest) +
                                     ", \"name\": \"kept\", \"description\": \"A1\"}]\n");
    return text;
  };
  EXPECT_EQ(Run(behind(99'999'997), {"--families", "persistent"}).exit, 0);
  auto const refused = Run(behind(99'999'998), {"--families", "persistent", "--yes"}, false);
  EXPECT_EQ(refused.exit, 3);
  EXPECT_EQ(refused.err,
            "tarvex: 3 combinations would be written (1 basic, ULS Persistent 2): numbers are left "
            "for 2\n");
}

TEST_F(Combine, SaysHowManyWouldBeWrittenInADryRunToo) {
  auto const dryRun = [&](std::string const& model) {
    return RunTarvex({"combine", Write("in.json", model), "--families", "persistent", "--dry-run"});
  };
  auto const refused = dryRun(WindFrom(2000));
  EXPECT_EQ(refused.exit, 3);
  EXPECT_NE(refused.err.find("10005 combinations would be written"), std::string::npos);
  EXPECT_EQ(refused.out, "");
  // Thousands of sources of wind, snow and rain are
  // counted and not listed: 8.1e10 combinations would have no room.
  std::vector<std::string> titles;
  for (int source = 1; source <= 3000; ++source)
    for (auto const* type : {"33", "34", "35", "11"})
      titles.push_back(std::string(R"("type": )") + type + R"(, "source": )" +
                       std::to_string(source));
  auto const huge = dryRun(Cases(titles));
  EXPECT_EQ(huge.exit, 3);
  // 12000 basic; 3000 permanent actions, as many ways, an envelope; 2 values of 9000 actions,
  // either of three groups leading in 3000^3 ways, an envelope; a final one.
  EXPECT_NE(huge.err.find("(12000 basic, ULS Persistent " +
                          std::to_string(6001 + 18000 + 3 * 27'000'000'000LL + 1 + 1) + ")"),
            std::string::npos)
      << huge.err;
  auto const small = dryRun(Cases({kSelfWeight}));
  EXPECT_EQ(small.exit, 0);
  EXPECT_NE(small.out.find("combinations"), std::string::npos);
  EXPECT_NE(small.out.find("(dry run)"), std::string::npos);
  EXPECT_EQ(NumFiles(), 1u);
}

/// Seven imposed actions of one source, snow, rain, and wind from a hundred sides.
std::vector<std::string> ManyVariableActions() {
  std::vector<std::string> titles{R"("type": 34)", R"("type": 35)"};
  for (int category = 1; category <= 7; ++category)
    titles.push_back(R"("type": 31, "category": )" + std::to_string(category));
  for (int side = 1; side <= 100; ++side) titles.push_back(Wind(side));
  return titles;
}
// Four of the imposed actions lead, each with the other three as companions: 2^4 factors. Snow and
// wind have 2 factors each, rain 2 where it leads and 1 where it accompanies.
//   imposed leading: 4 x 100 ways of 2^4 x 2 x 2 x 1                            = 25600
//   wind leading: 100 ways, 4 of them with 2^4 x 2 x 2 x 1, 3 without: 2 x 2 x 1 = 26800
//   snow leading: the same                                                      = 26800
//   rain leading: twice that                                                    = 53600
constexpr int kVariablePermutations = 25600 + 26800 + 26800 + 53600;

TEST_F(Combine, CountsPermutations) {
  auto const family = Data(Cases(ManyVariableActions()), {"--families", "persistent"}, 1)
                          .at("result")
                          .at("families")
                          .at(0);
  EXPECT_EQ(family.at("permutations"), kVariablePermutations);
  EXPECT_EQ(family.at("morePermutations"), false);
}

TEST_F(Combine, CountsPermutationsUpToTheHighestNumber) {
  auto titles = ManyVariableActions();
  for (int source = 1; source <= 70; ++source)
    for (auto const* type : {"11", "12"})
      titles.push_back(std::string(R"("type": )") + type + R"(, "source": )" +
                       std::to_string(source));
  // 70 x 70 ways of 2 x 2 factors, with each of the above: 19600 x 132800 = 2.6e9.
  auto const result = Run(Cases(titles), {"--families", "persistent"}, false);
  EXPECT_EQ(result.exit, 1) << result.err;
  EXPECT_NE(result.out.find("more than 2147483647\n"), std::string::npos);
  auto const family =
      Data(Cases(titles), {"--families", "persistent"}, 1).at("result").at("families").at(0);
  EXPECT_EQ(family.at("permutations"), 2147483647);
  EXPECT_EQ(family.at("morePermutations"), true);
}

// Warnings that the tables of factors have none of.

TEST_F(Combine, EndsWithOneWhereItWarnsOfTheStandard) {
  auto const sound = Cases({kSelfWeight, kOffices, kWind});
  EXPECT_EQ(Run(sound, {"--families", "persistent"}).exit, 0);
  EXPECT_EQ(Run(sound, {"--families", "frequent"}).exit, 1);
  EXPECT_EQ(Run(sound, {"--families", "frequent", "-q"}).exit, 1);
}

TEST_F(Combine, WarnsWhereVariableActionsAreAllOfOneKind) {
  auto const model = Cases({kSelfWeight, Wind(1), Wind(2)});
  // The combination that collects the alternatives has none to name.
  EXPECT_EQ(Codes(model, {}), (Texts{"no-alternative", "no-alternative", "description-not-readable",
                                     "description-not-readable"}));
  auto const data = Data(model, {"--families", "persistent"}, 1);
  EXPECT_EQ(data.at("result").at("families").at(0).at("permutations"), 0);
  EXPECT_EQ(data.at("result").at("families").at(0).at("factors"), Json::array());
  // One factor for each action needs no leading one.
  EXPECT_EQ(Codes(model, {"--families", "quasi-permanent"}), Texts{"persistent-factors"});
}

TEST_F(Combine, WarnsOfAFamilyThatNamesNothing) {
  EXPECT_EQ(Codes(Cases({R"("type": 41)"}), {"--families", "persistent"}),
            Texts{"empty-combination"});
}

TEST_F(Combine, WarnsOfRoofsThatDisplaceTheOnlyOtherAction) {
  auto const model = Cases({kOffices, R"("type": 32, "category": 8)"});
  auto const codes = Codes(model, {"--families", "persistent"});
  // The final combination has the accompanying value 0 of the roof, and the offices not at all.
  EXPECT_EQ(codes, (Texts{"single-variable-action", "action-left-out"}));
}

TEST_F(Combine, WarnsOfRoofsOfAnotherSourceThanAnyFloor) {
  auto const with = [](int source) {
    return Cases(
        {kOffices, kWind, R"("type": 32, "category": 8, "source": )" + std::to_string(source)});
  };
  EXPECT_EQ(Codes(with(1), {"--families", "persistent"}), Texts());
  EXPECT_EQ(Codes(with(2), {"--families", "persistent"}), Texts{"action-left-out"});
  EXPECT_EQ(Codes(with(1), {"--families", "persistent", "--uk"}), Texts{"roof-accompanying"});
}

std::string Roof(int source, int category) {
  return R"("type": 32, "source": )" + std::to_string(source) + R"(, "category": )" +
         std::to_string(category);
}

TEST_F(Combine, WarnsOfRoofsThatNeverAccompany) {
  struct Row {
    int category;
    char const* psi0;    ///< nothing for 0
    char const* psi0Uk;  ///< with the national annex
    char const* psi2;
  };
  for (auto const& row :
       {Row{1, "0.7", "0.7", "0.3"}, Row{2, "0.7", "0.7", "0.3"}, Row{3, "0.7", "0.7", "0.6"},
        Row{4, "0.7", "0.7", "0.6"}, Row{5, "1", "1", "0.8"}, Row{6, "0.7", "0.7", "0.6"},
        Row{7, "0.7", "0.7", "0.3"}, Row{8, "", "0.7", ""}}) {
    // The offices are of a category of their own, so that the roof is an action of its own.
    auto const floor = row.category == 2 ? R"("type": 31, "category": 1)" : kOffices;
    auto const model = Cases({kSelfWeight, floor, kWind, Roof(1, row.category)});
    struct Told {
      char const* family;
      bool isUk;
      std::string factor;
      char const* clause;
    };
    for (auto const& told :
         {Told{"persistent", false, row.psi0, "6.4.3.2 (6.10), has it there"},
          Told{"persistent", true, row.psi0Uk,
               "6.4.3.2 (6.10), has it there, with the factors of the national annex"},
          Told{"characteristic", false, row.psi0, "6.5.3 (6.14b), has it there"}}) {
      SCOPED_TRACE(std::to_string(row.category) + " " + told.family);
      EXPECT_EQ(RoofWarnings(model, told.family, told.isUk),
                told.factor.empty() ? Texts()
                                    : Texts{"psi0, " + told.factor + "; EN 1990, " + told.clause});
    }
    auto const accidental =
        Cases({kSelfWeight, floor, kWind, Roof(1, row.category), R"("type": 41)"});
    EXPECT_EQ(RoofWarnings(accidental, "accidental", false),
              std::string(row.psi2).empty() ? Texts()
                                            : Texts{"psi2, " + std::string(row.psi2) +
                                                    "; EN 1990, 6.4.3.3 (6.11b), has it there"});
  }
}

TEST_F(Combine, WarnsOfFloorsThatNeverAccompanyTheirRoof) {
  auto const floor = R"("type": 31, "category": 1)";
  std::vector<std::string> titles{kSelfWeight, floor, kOffices, Roof(1, 8)};
  auto const clause = "psi0, 0.7; EN 1990, 6.4.3.2 (6.10), has it there";
  EXPECT_EQ(RoofWarnings(Cases(titles), "persistent", false), (Texts{clause, clause}));
  titles.push_back(kWind);  // beside which they do
  EXPECT_EQ(RoofWarnings(Cases(titles), "persistent", false), Texts());
}

/// A model of some actions with an earthquake along x.
std::string InAnEarthquake(std::vector<std::string> const& titles) {
  auto text = Cases(titles, R"(, {"n": 99, "description": "M1", "task": 2, "modeDirection": 1})");
  std::string const task = R"({"n": 1, "class": "CZssTask"})";
  return text.insert(text.find(task) + task.size(), R"(, {"n": 2, "class": "CZdSpecTask"})");
}

TEST_F(Combine, WarnsOfRoofsThatTakeTurnsInAnEarthquake) {
  auto const codes = [&](std::vector<std::string> const& titles) {
    return Codes(InAnEarthquake(titles), {"--families", "seismic"});
  };
  EXPECT_EQ(codes({kSelfWeight, Roof(1, 1)}), Texts());
  EXPECT_EQ(codes({kSelfWeight, Roof(1, 1), Roof(2, 1)}),
            (Texts{"absent-from-some", "absent-from-some"}));
  EXPECT_EQ(codes({kSelfWeight, Roof(1, 8), Roof(2, 8)}), Texts());  // psi2 0
  // Floor and roof by turns, the floor with its 0.3 and the roof with 0.
  EXPECT_EQ(codes({kSelfWeight, kOffices, Roof(2, 8)}), Texts{"absent-from-some"});
  EXPECT_EQ(codes({kSelfWeight, kOffices, Roof(2, 1)}),
            (Texts{"absent-from-some", "absent-from-some"}));
  // Two floors by turns, which is told once for both, and a roof.
  auto const upper = R"("type": 31, "source": 2, "category": 2)";
  EXPECT_EQ(codes({kSelfWeight, kOffices, upper, Roof(3, 1)}),
            (Texts{"taken-one-at-a-time", "absent-from-some"}));
}

TEST_F(Combine, DoesNotMissAFloorWhoseAccompanyingValueIsZero) {
  auto const model = Cases({kSelfWeight, R"("type": 31, "category": 8)", kWind});
  EXPECT_EQ(Codes(model, {"--families", "characteristic"}), Texts());
}

TEST_F(Combine, WarnsOfASourceWithSeveralPermanentModes) {
  auto const modes = [](int type, std::vector<int> const& all) {
    std::vector<std::string> titles{kWind};
    for (int const mode : all)
      titles.push_back(R"("type": )" + std::to_string(type) + R"(, "permanentMode": )" +
                       std::to_string(mode));
    return Cases(titles);
  };
  std::vector<std::string> const options{"--families", "characteristic"};
  std::string const single = "single-variable-action";
  for (int const type : {11, 12, 19, 21}) {
    EXPECT_EQ(Codes(modes(type, {0, 0, 0}), options), Texts{single}) << type;
    EXPECT_EQ(Codes(modes(type, {0, 0, 1}), options), (Texts{"permanent-modes-differ", single}));
    EXPECT_EQ(Codes(modes(type, {2, 0}), options),
              (Texts{"permanent-factor-zero", "permanent-modes-differ", single}));
  }
  auto const json = Run(modes(11, {0, 0, 1}), options).Json();
  EXPECT_EQ(json.at("warnings").at(0), Json::parse(R"({
      "code": "permanent-modes-differ", "table": "CombinationCase", "number": 1,
      "text": "C1 Permanent : Self weight 1 has the permanent mode of its first case, and A4 has another; EN 1990, Table A1.2(B), note 3, has one factor for all permanent actions of one source"})"));
}

TEST_F(Combine, WarnsOfFloorsThatTakeTurns) {
  auto const floors = [](std::vector<std::pair<int, int>> const& sourcesAndCategories) {
    std::vector<std::string> titles{kWind};
    for (auto const& [source, category] : sourcesAndCategories)
      titles.push_back(R"("type": 31, "source": )" + std::to_string(source) + R"(, "category": )" +
                       std::to_string(category));
    return Cases(titles);
  };
  using Options = std::vector<std::string>;
  Options const options{"--families", "characteristic"};
  EXPECT_EQ(Codes(floors({{1, 1}}), options), Texts());
  EXPECT_EQ(Codes(floors({{1, 1}, {1, 2}}), options), Texts());
  EXPECT_EQ(Codes(floors({{1, 1}, {2, 1}}), options), Texts{"taken-one-at-a-time"});
  EXPECT_EQ(Codes(floors({{1, 1}, {1, 2}, {1, 3}}), options), Texts{"taken-one-at-a-time"});
}

TEST_F(Combine, WarnsOfRain) {
  EXPECT_EQ(Codes(Cases({kOffices, R"("type": 35)"}), {"--families", "characteristic"}),
            Texts{"rain-accompanying"});
}

TEST_F(Combine, WarnsOfAllSeismicSourcesButTheLast) {
  auto text =
      Cases({kSelfWeight}, R"(, {"n": 8, "description": "M1", "task": 2, "modeDirection": 1},)"
                           R"( {"n": 9, "description": "M1", "task": 3, "modeDirection": 1})");
  std::string const task = R"({"n": 1, "class": "CZssTask"})";
  text.insert(
      text.find(task) + task.size(),
      R"(, {"n": 2, "class": "CZdSpecTask"}, {"n": 3, "class": "CZdSpecTask", "source": 2})");
  auto const json = Run(text, {"--families", "seismic"}).Json();
  ASSERT_EQ(json.at("warnings").size(), 1u);
  EXPECT_EQ(json.at("warnings").at(0).at("code"), "action-left-out");
  EXPECT_EQ(json.at("warnings").at(0).at("number"), 2);  // the basic combination of source 1
  auto const factors = json.at("data").at("result").at("families").at(0).at("factors");
  EXPECT_EQ(factors.at(1), Json::parse(R"({"action": 3, "values": [0.0], "nonLinear": true})"));
}

TEST_F(Combine, WarnsOfStaticSeismicCasesInTheSeismicFamilyOnly) {
  auto text = Cases({kSelfWeight, R"("type": 51)"},
                    R"(, {"n": 8, "description": "M1", "task": 2, "modeDirection": 1})");
  std::string const task = R"({"n": 1, "class": "CZssTask"})";
  text.insert(text.find(task) + task.size(), R"(, {"n": 2, "class": "CZdSpecTask"})");
  EXPECT_EQ(Codes(text, {"--families", "seismic"}), Texts{"no-basic-combination"});
  EXPECT_EQ(Codes(text, {"--families", "persistent"}), Texts());
}

TEST_F(Combine, RunsInARecipe) {
  auto const recipe = Write("r.recipe", "combine --families 'persistent, frequent'\n");
  auto const result = RunTarvex({"run", recipe, Write("in.json", Cases({kSelfWeight, kOffices})),
                                 "-o", Path("out.json"), "--json"});
  EXPECT_EQ(result.exit, 1) << result.out;  // a single variable action, persistent factors
  EXPECT_EQ(Written().size(), 2u + 4 + 4);
}

}  // namespace
}  // namespace Tarvex::CombineTest
