// Holds docs/model-file.md, docs/recipes.md and docs/reports.md to the program.
#include <map>
#include <regex>

#include "tests/workbench/page.h"
#include "tests/workbench/run.h"
#include "workbench/commands/command.h"
#include "workbench/commands/recipe.h"

namespace Tarvex::DocsPagesTest {
namespace {

using Testing::Bare;
using Testing::Page;
using Testing::Quoted;
using Testing::RunTarvex;
using Json = nlohmann::json;
using Names = std::set<std::string>;
using Words = std::vector<std::string>;

constexpr char const* kSixStorey = TARVEX_SOURCE_DIR "/examples/six-storey/six-storey.json";

/// All that is quoted in a column of a table.
Names NamesIn(std::vector<std::vector<std::string>> const& rows, std::size_t column = 0) {
  Names names;
  for (auto const& row : rows)
    for (auto const& name : Quoted(row.at(column))) names.insert(name);
  return names;
}

Names KeysOf(Json const& object) {
  Names keys;
  for (auto const& [key, value] : object.items()) keys.insert(key);
  return keys;
}

Names Joined(Names a, Names const& b) {
  a.insert(b.begin(), b.end());
  return a;
}

// The model file.

class ModelFilePage : public Testing::RunTest {
 protected:
  /// The definitions of the schema's tables whose records stand in an array, by table.
  static std::map<std::string, Json> Tables() {
    auto const schema = RunTarvex({"schema"}).Json();
    std::map<std::string, Json> tables;
    for (auto const& [stem, entry] : schema.at("properties").items())
      if (entry.value("type", "") == "array") tables[stem] = schema.at("definitions").at(stem);
    return tables;
  }
  static bool IsByPlace(Json const& record) {
    return record.contains("properties") && !record.at("properties").contains("n");
  }
  static Names Required(Json const& record) {
    return record.contains("required") ? record.at("required").get<Names>() : Names();
  }

  int ExitOfInfo(std::string const& text) const {
    return RunTarvex({"info", Write("read.json", text)}).exit;
  }

  Page m_page{"docs/model-file.md"};
};

TEST_F(ModelFilePage, ShowsAModelWithoutFindingsThatHasTheMassItSays) {
  auto const model = Write("page.json", m_page.Json());
  auto const check = RunTarvex({"check", model, "--json"}).Json();
  EXPECT_EQ(check.at("exit"), 0);
  EXPECT_EQ(check.at("warnings"), Json::array());
  // 4 + 4 + 6 = 14 m of 0.4 x 0.4 = 0.16 m2 at 2500 kg/m3.
  auto const totals = RunTarvex({"totals", model, "--json"}).Json();
  EXPECT_NEAR(totals.at("data").at("mass").at("value").get<double>(), 5600, 1e-9);
  EXPECT_NE(m_page.Text().find("tells 5600 kg"), std::string::npos);
}

TEST_F(ModelFilePage, ShowsAModelThatIsTheSameWhenReadAndWritten) {
  auto const model = Write("page.json", m_page.Json());
  EXPECT_EQ(RunTarvex({"flip", model, "--list", "none", "-o", Path("out.json")}).exit, 0);
  EXPECT_EQ(RunTarvex({"diff", model, Path("out.json")}).out, "the models are equal\n");
}

TEST_F(ModelFilePage, TellsTheHeadInItsOrderAndWhatOfItIsRequired) {
  auto const head = Json::parse(m_page.Json());
  std::vector<std::string> entries;
  std::vector<bool> required;
  for (auto const& row : m_page.Rows("| Key | Required | Is |")) {
    auto const key = Bare(row.at(0));
    entries.push_back(Json(key).dump() + ": " + (head.contains(key) ? head.at(key) : "x").dump());
    required.push_back(row.at(1) == "yes");
  }
  ASSERT_EQ(entries.size(), 5u);
  auto const text = [](std::vector<std::string> const& keys) {
    std::string joined;
    for (auto const& key : keys) joined += (joined.empty() ? "" : ", ") + key;
    return "{" + joined + "}";
  };
  EXPECT_EQ(ExitOfInfo(text(entries)), 0);
  for (std::size_t i = 0; i < entries.size(); ++i) {
    auto without = entries;
    without.erase(without.begin() + static_cast<std::ptrdiff_t>(i));
    EXPECT_EQ(ExitOfInfo(text(without)), required[i] ? 4 : 0) << entries[i];
    if (i == 0) continue;
    auto turned = entries;
    std::swap(turned[i - 1], turned[i]);
    EXPECT_EQ(ExitOfInfo(text(turned)), 4) << entries[i];
  }
}

TEST_F(ModelFilePage, TellsTheTablesByPlace) {
  Names byPlace;
  for (auto const& [stem, record] : Tables())
    if (IsByPlace(record)) byPlace.insert(stem);
  std::istringstream block(m_page.Block("NodeLoad"));
  EXPECT_EQ(Names(std::istream_iterator<std::string>(block), {}), byPlace);
}

TEST_F(ModelFilePage, TellsWhatIsRequired) {
  std::map<std::string, Names> told;
  for (auto const& row : m_page.Rows("| Table | Required |")) {
    auto const names = Quoted(row.at(1));
    told[Bare(row.at(0))] = {names.begin(), names.end()};
  }
  auto const others = told.at("every other table with numbers");
  EXPECT_EQ(told.at("tables by place, single objects"), Names());
  for (auto const& [stem, record] : Tables()) {
    auto const found = told.find(stem);
    auto const& expected = found != told.end() ? found->second
                           : IsByPlace(record) ? told.at("tables by place, single objects")
                                               : others;
    auto const classes = record.contains("oneOf") ? record.at("oneOf") : Json::array({record});
    for (auto const& each : classes) EXPECT_EQ(Required(each), expected) << stem;
  }
  for (auto const* stem : {"Spec", "Defaults", "RaftSpec"})
    EXPECT_EQ(Required(RunTarvex({"schema"}).Json().at("definitions").at(stem)), Names()) << stem;
}

TEST_F(ModelFilePage, TellsHowManyNodesElementsHave) {
  auto const exitWith = [&](std::string const& type, int nodes) {
    std::string topology;
    std::string places;
    for (int n = 1; n <= nodes; ++n) {
      auto const number = std::to_string(n);
      topology += (n > 1 ? ", " : "") + number;
      places += (n > 1 ? ", " : "");
      places += R"({"n": )" + number + R"(, "position": [)" + number + ", 0, 0]}";
    }
    return RunTarvex({"check", Write("shape.json", Testing::kHeader + R"(, "Node": [)" + places +
                                                       R"(], "Elem": [{"n": 1, "type": )" + type +
                                                       R"(, "topology": [)" + topology + "]}]}")})
        .exit;
  };
  std::size_t types = 0;
  for (auto const& row : m_page.Rows("| `type` | Is | Nodes |")) {
    std::istringstream numbers(row.at(0));
    std::istringstream counts(row.at(2));
    int nodes = 0;
    for (std::string type; std::getline(numbers, type, ',');) {
      if (std::string count; std::getline(counts, count, ',')) nodes = std::stoi(count);
      EXPECT_EQ(exitWith(type, nodes), 0) << type;
      EXPECT_EQ(exitWith(type, nodes + 1), 1) << type;
      ++types;
    }
  }
  EXPECT_EQ(types, 18u);
}

TEST_F(ModelFilePage, ShowsAFaultAsTheProgramTellsIt) {
  auto const shown = m_page.Block("tower.json");
  auto text = m_page.Json();
  auto const last = text.find(R"("topology": [3, 4])");
  ASSERT_NE(last, std::string::npos);
  text.replace(last, 10, R"("topologie")");
  auto const model = Write("tower.json", text);
  auto const result = RunTarvex({"info", model});
  EXPECT_EQ(result.exit, 4);
  // The page's fault is in the fourth element, that of the example in the third.
  auto const behindPlace = [](std::string const& line) { return line.substr(line.find(": /")); };
  EXPECT_EQ(std::regex_replace(behindPlace(result.err), std::regex("/2/"), "/3/"),
            behindPlace(shown));
}

// Recipes.

class RecipesPage : public Testing::RunTest {
 protected:
  Page m_page{"docs/recipes.md"};
};

TEST_F(RecipesPage, ShowsARecipeThatRunsOnTheExample) {
  auto const recipe = Write("page.recipe", m_page.Block("# Beams"));
  auto const result = RunTarvex({"run", recipe, kSixStorey, "--dry-run", "--json"}).Json();
  EXPECT_EQ(result.at("exit"), 0);
  EXPECT_EQ(result.at("warnings"), Json::array());
  Words commands;
  for (auto const& step : result.at("data").at("steps")) {
    commands.push_back(step.at("command"));
    bool const changes = step.at("data").contains("changes");
    EXPECT_TRUE(!changes || !step.at("data").at("changes").empty()) << step.at("command");
  }
  EXPECT_EQ(commands, (Words{"align-1d", "align-normals", "renumber", "check"}));
}

TEST_F(RecipesPage, ShowsWordsThatAreSplitAsItSays) {
  std::map<std::string, Words> const expected{
      {"1 to 3", {"1", "to", "3"}},
      {"\"1 to 3\"", {"1 to 3"}},
      {"'\"South facade\"'", {"\"South facade\""}},
      {"\"\\\"South facade\\\"\"", {"\"South facade\""}},
      {"--list=\"1 to 3\"", {"--list=1 to 3"}},
      {"1\\ to\\ 3", {"1 to 3"}},
      {"'a\\b'", {"a\\b"}},
      {"\"a\\b\"", {"a\\b"}},
      {"#3", {}},
      {"'#3'", {"#3"}},
      {"PB1#3", {"PB1#3"}},
  };
  std::map<std::string, Words> split;
  for (auto const& row : m_page.Rows("| Written | Is |")) {
    auto const text = Bare(row.at(0));
    auto const lines = Workbench::SplitRecipe(text, "r");
    split[text] = lines.empty() ? Words() : lines.front().words;
  }
  EXPECT_EQ(split, expected);
}

TEST_F(RecipesPage, NamesTheCommandsThatCannotStandInOne) {
  auto const& text = m_page.Text();
  auto const begin = text.find("Not `");
  ASSERT_NE(begin, std::string::npos);
  auto const named = Quoted(text.substr(begin, text.find(':', begin) - begin));
  Names refused;
  auto const model = Write("in.json", Testing::SmallModel());
  for (auto const& command : Workbench::Commands()) {
    std::string const name(command.name);
    auto const result = RunTarvex({"run", Write("r", name), model, "--dry-run"});
    if (result.err.find("a recipe can't hold '" + name + "'") != std::string::npos)
      refused.insert(name);
  }
  EXPECT_EQ(refused, Names(named.begin(), named.end()));
}

TEST_F(RecipesPage, ShowsAFaultAsTheProgramTellsItAndWritesNothing) {
  auto const recipe = Write("tidy.recipe", "flip\n\nflip --list \"1 to\"\n");
  auto const model = Write("in.json", Testing::SmallModel());
  auto const result = RunTarvex({"run", recipe, model, "--in-place"});
  EXPECT_EQ(result.exit, 2);
  EXPECT_EQ(result.err,
            std::regex_replace(m_page.Block("tarvex: tidy"), std::regex("tidy.recipe"), recipe));
  EXPECT_EQ(Read("in.json"), Testing::SmallModel());
}

// Reports.

class ReportsPage : public Testing::RunTest {
 protected:
  static constexpr char const* kCodes = "| Code | Means | What to do |";

  Names CheckCodes() const { return NamesIn(m_page.Rows(kCodes, 0)); }

  /// The codes in the sources of some folders: whatever has hyphens and opens a record or a call,
  /// but for the names of commands.
  static Names CodesIn(std::vector<std::string> const& places) {
    namespace fs = std::filesystem;
    static std::regex const kCode(R"([({]\s*"([a-z]+(-[a-z]+)+)\")");
    Names codes;
    auto const read = [&](fs::path const& path) {
      std::ifstream file(path);
      std::string const text(std::istreambuf_iterator<char>(file), {});
      for (std::sregex_iterator at(text.begin(), text.end(), kCode), end; at != end; ++at)
        codes.insert((*at)[1]);
    };
    for (auto const& place : places) {
      auto const path = fs::path(TARVEX_SOURCE_DIR) / "workbench" / place;
      if (fs::is_regular_file(path)) read(path);
      if (!fs::is_directory(path)) continue;
      for (auto const& entry : fs::directory_iterator(path))
        if (entry.path().extension() == ".cpp") read(entry.path());
    }
    for (auto const& command : Workbench::Commands()) codes.erase(std::string(command.name));
    return codes;
  }

  Page m_page{"docs/reports.md"};
};

TEST_F(ReportsPage, ShowsTheTextThatTheProgramPrints) {
  auto const result =
      RunTarvex({"align-1d", kSixStorey, "--list", "1001 to 1010", "--axis", "0", "--dry-run"});
  EXPECT_EQ(
      "$ tarvex align-1d examples/six-storey/six-storey.json --list \"1001 to 1010\" "
      "--axis 0 --dry-run\n" +
          result.out,
      m_page.Block("$ tarvex"));
}

TEST_F(ReportsPage, ShowsTheJsonThatTheProgramPrints) {
  auto result = RunTarvex({"align-1d", kSixStorey, "--list", "1001 to 1010", "--axis", "0",
                           "--dry-run", "--json"})
                    .Json();
  auto shown = Json::parse(m_page.Json());
  for (auto* each : {&result, &shown}) {
    EXPECT_TRUE(each->at("version").is_string());
    each->erase("version");
    EXPECT_TRUE(each->at("data").at("input").get<std::string>().ends_with("six-storey.json"));
    each->at("data").erase("input");
  }
  EXPECT_EQ(shown, result);
}

TEST_F(ReportsPage, NamesTheMembersOfReports) {
  constexpr char const* kMembers = "| Member | Holds |";
  // The canopy has weight: its deletion tells load totals and mass.
  auto const recipe = Write("r", "delete --kind element --list '\"Canopy\"'\n");
  auto const run = RunTarvex({"run", recipe, kSixStorey, "--dry-run", "--json"}).Json();
  EXPECT_EQ(NamesIn(m_page.Rows(kMembers, 1)), KeysOf(run.at("data")));
  auto const failed = RunTarvex({"info", Write("bad.json", "{"), "--json"}).Json();
  Names const head{"schema", "tool", "version", "command", "data"};
  EXPECT_EQ(Joined(NamesIn(m_page.Rows(kMembers, 0)), head), Joined(KeysOf(run), KeysOf(failed)));
  auto const own = m_page.Rows("| Command | Members |");
  for (auto const& row : own) {
    auto const command = Bare(row.at(0));
    if (command == "find-..." || command == "diff") continue;
    auto const data = RunTarvex({command, kSixStorey, "--json"}).Json().at("data");
    for (auto const& key : KeysOf(data)) EXPECT_TRUE(NamesIn({row}, 1).contains(key)) << key;
  }
  EXPECT_EQ(own.size(), 6u);
}

TEST_F(ReportsPage, HasEveryExitCodeOfTheReference) {
  auto const codes = [](Page const& page, std::string const& heading) {
    Names all;
    for (auto const& row : page.Rows(heading)) all.insert(row.at(0));
    return all;
  };
  EXPECT_EQ(codes(m_page, "| Code | Means | The model |"),
            codes(Page("docs/commands.md"), "| exit code | meaning |"));
}

TEST_F(ReportsPage, HasTheCodesThatCheckGivesAModelWithAllFaults) {
  auto const model = Write("faults.json", Testing::kHeader + R"(,
"Node": [{"n": 1, "position": [0, 0, 0]}, {"n": 2, "position": [6, 0, 0]}],
"Elem": [{"n": 1, "type": 2, "topology": [1, 9]}, {"n": 2, "type": 2, "topology": [1, 1]},
{"n": 3, "type": 5, "topology": [1, 2]}],
"List": [{"n": 1, "kind": 2, "text": "#1"}],
"Joint": [{"direction": ["X"], "primaryNode": 1, "constrainedNode": 1}],
"CombinationCase": [{"n": 1, "description": "C1"}, {"n": 2, "description": "none of these"},
{"n": 3, "description": "A<deleted case>"}]})");
  auto const report = RunTarvex({"check", model, "--json"}).Json();
  Names given;
  for (auto const& finding : report.at("data").at("findings")) given.insert(finding.at("code"));
  given.insert("dimension-not-finite");  // which no file can hold
  EXPECT_EQ(given, CheckCodes());
}

TEST_F(ReportsPage, HasTheCodesOfCheckAndNoOthers) {
  EXPECT_EQ(CheckCodes(), CodesIn({"report/integrity.cpp"}));
}

TEST_F(ReportsPage, HasTheCodesOfWarningsAndNoOthers) {
  auto const ofStandard = NamesIn(m_page.Rows("| Code | What to do |"));
  EXPECT_EQ(Joined(Joined(NamesIn(m_page.Rows(kCodes, 1)), ofStandard), CheckCodes()),
            CodesIn({"commands", "report", "cli"}));
  EXPECT_EQ(ofStandard, NamesIn(Page("docs/combinations.md").Rows("| Warning | What happens |")));
  EXPECT_EQ(ofStandard, CodesIn({"commands/combine_warnings.cpp"}));
}

}  // namespace
}  // namespace Tarvex::DocsPagesTest
