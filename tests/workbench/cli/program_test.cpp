#include "workbench/cli/program.h"

#include <stdexcept>

#include "tests/workbench/run.h"

namespace Tarvex::ProgramTest {
namespace {

using Testing::RunTarvex;
using Json = nlohmann::json;

class Program : public Testing::RunTest {
 protected:
  std::string Model() const { return Write("in.json", Testing::SmallModel()); }
};

TEST_F(Program, PrintsItsVersion) {
  auto const result = RunTarvex({"--version"});
  EXPECT_EQ(result.exit, 0);
  EXPECT_EQ(result.out, "tarvex 0.1.0\n");
}

TEST_F(Program, HelpNamesEveryCommand) {
  auto const result = RunTarvex({"--help"});
  EXPECT_EQ(result.exit, 0);
  for (auto const* command :
       {"info", "picture", "align-1d", "align-edges", "align-normals", "agree-normals", "flip",
        "spin", "check", "diff", "run", "schema", "reference"})
    EXPECT_NE(result.out.find(command), std::string::npos) << command;
}

TEST_F(Program, HelpOfACommandNamesItsOptionsAndUnits) {
  auto const result = RunTarvex({"agree-normals", "--help"});
  EXPECT_EQ(result.exit, 0);
  for (auto const* word : {"--list", "--angle", "degrees", "--dry-run", "--in-place", "--force"})
    EXPECT_NE(result.out.find(word), std::string::npos) << word;
}

TEST_F(Program, HelpOfACommandBeginsWithItsOwnOptions) {
  auto const help = RunTarvex({"split", "--help"}).out;
  EXPECT_NE(help.find("Usage: tarvex split [OPTIONS] MODEL\n"), std::string::npos) << help;
  EXPECT_LT(help.find("--coincidence"), help.find("--strict"));
  EXPECT_LT(help.find("--coincidence"), help.find("--dry-run"));
  EXPECT_NE(RunTarvex({"run", "--help"}).out.find("Usage: tarvex run [OPTIONS] RECIPE MODEL\n"),
            std::string::npos);
  EXPECT_NE(RunTarvex({"diff", "--help"}).out.find("Usage: tarvex diff [OPTIONS] MODEL OTHER\n"),
            std::string::npos);
  EXPECT_NE(RunTarvex({"--help"}).out.find("130 interrupted"), std::string::npos);
}

TEST_F(Program, AFileWithoutANameIsTwo) {
  EXPECT_EQ(RunTarvex({"info", ""}).err, "tarvex: the name of the model file is empty\n");
  EXPECT_EQ(RunTarvex({"info", ""}).exit, 2);
  EXPECT_EQ(RunTarvex({"diff", Model(), ""}).err, "tarvex: the name of the file OTHER is empty\n");
}

TEST_F(Program, StandardInputIsReadOnce) {
  EXPECT_EQ(RunTarvex({"diff", "-", "-"}).err,
            "tarvex: OTHER: the model is on standard input, name a file\n");
  EXPECT_EQ(RunTarvex({"diff", "-", "-"}).exit, 2);
  EXPECT_EQ(RunTarvex({"run", "-", "-", "--dry-run"}).err,
            "tarvex: RECIPE: the model is on standard input, name a file\n");
}

TEST_F(Program, ANumberOutOfRangeIsSaidToBeOne) {
  auto const fault = [&](std::vector<std::string> words) {
    words.insert(words.begin() + 1, Model());
    words.emplace_back("--dry-run");
    auto const result = RunTarvex(words);
    EXPECT_EQ(result.exit, 2);
    return result.err;
  };
  EXPECT_EQ(fault({"spin", "--steps", "2147483648"}),
            "tarvex: --steps: '2147483648' is out of range\n");
  EXPECT_EQ(fault({"spin", "--steps", "2x"}), "tarvex: --steps: '2x' is not a whole number\n");
  EXPECT_EQ(fault({"agree-normals", "--angle", "1e309"}),
            "tarvex: --angle: '1e309' is out of range\n");
  EXPECT_EQ(fault({"agree-normals", "--angle", "-1"}), "tarvex: --angle: '-1' is not at least 0\n");
  EXPECT_EQ(fault({"agree-normals", "--angle", "181"}),
            "tarvex: --angle: '181' is not at most 180\n");
  EXPECT_EQ(
      RunTarvex({"agree-normals", Model(), "--angle", "180", "--list", "3", "--dry-run"}).exit, 0);
}

TEST_F(Program, VerboseWarningsHaveTheirCodes) {
  std::vector<std::string> words{"flip", Model(), "--list", "PB9", "--dry-run"};
  EXPECT_EQ(RunTarvex(words).err, "warning: 'PB9' selects no element\n");
  words.emplace_back("-v");
  EXPECT_EQ(RunTarvex(words).err, "warning: 'PB9' selects no element [empty-selection]\n");
}

TEST_F(Program, AnUnknownCommandIsOneLineAndTwo) {
  auto const result = RunTarvex({"frobnicate", "x.json"});
  EXPECT_EQ(result.exit, 2);
  EXPECT_EQ(result.out, "");
  EXPECT_EQ(result.err, "tarvex: unknown command 'frobnicate', see tarvex --help\n");
}

TEST_F(Program, AReportThatCannotBeWrittenIsAFault) {
  for (auto const& words : std::vector<std::vector<std::string>>{
           {"info", Model()}, {"info", Model(), "--json"}, {"--version"}}) {
    std::ostream out(nullptr);  // takes nothing
    std::ostringstream err;
    EXPECT_EQ(Workbench::RunProgram(words, out, err), 4);
    EXPECT_EQ(err.str(), "tarvex: the report cannot be written\n");
  }
}

TEST_F(Program, NoInputIsReplacedByTheOutput) {
  auto const recipe = Write("steps.recipe", "flip --list 1\n");
  auto const run = RunTarvex({"run", recipe, Model(), "-o", recipe, "--force"});
  EXPECT_EQ(run.exit, 2);
  EXPECT_EQ(run.err, "tarvex: the output is an input: " + recipe + "\n");
  EXPECT_EQ(Read("steps.recipe"), "flip --list 1\n");
  auto const map = Write("numbers.map", "1 2\n");
  auto const renumbered =
      RunTarvex({"renumber", Model(), "--table", "Node", "--map", map, "-o", map, "--force"});
  EXPECT_EQ(renumbered.exit, 2);
  EXPECT_EQ(renumbered.err, "tarvex: the output is an input: " + map + "\n");
  EXPECT_EQ(Read("numbers.map"), "1 2\n");
  auto const picture = RunTarvex({"picture", Model(), "-o", Path("in.json"), "--force"});
  EXPECT_EQ(picture.err, "tarvex: the output is the input\n");
}

TEST_F(Program, NoCommandIsOneLineAndTwo) {
  auto const result = RunTarvex({});
  EXPECT_EQ(result.exit, 2);
  EXPECT_EQ(result.err, "tarvex: give a command, see tarvex --help\n");
}

TEST_F(Program, AnUnknownOptionIsNamed) {
  auto const result = RunTarvex({"info", Model(), "--wide"});
  EXPECT_EQ(result.exit, 2);
  EXPECT_EQ(result.err, "tarvex: The following argument was not expected: --wide\n");
}

TEST_F(Program, AMissingModelIsSaid) {
  auto const result = RunTarvex({"info"});
  EXPECT_EQ(result.exit, 2);
  EXPECT_EQ(result.err, "tarvex: the model file is missing\n");
}

TEST_F(Program, AFileThatIsMissingIsFour) {
  auto const result = RunTarvex({"info", Path("no.json")});
  EXPECT_EQ(result.exit, 4);
  EXPECT_EQ(result.out, "");
  EXPECT_EQ(result.err.find(Path("no.json") + ": "), 0) << result.err;
}

TEST_F(Program, AChangeNeedsExactlyOneDestination) {
  auto const model = Model();
  auto const wanted = "tarvex: give one of -o OUT, --in-place and --dry-run\n";
  EXPECT_EQ(RunTarvex({"flip", model}).err, wanted);
  EXPECT_EQ(RunTarvex({"flip", model}).exit, 2);
  EXPECT_EQ(RunTarvex({"flip", model, "--dry-run", "--in-place"}).err, wanted);
  EXPECT_EQ(RunTarvex({"flip", model, "--dry-run", "-o", Path("out.json")}).exit, 2);
  EXPECT_EQ(RunTarvex({"flip", "-", "--in-place"}).exit, 2);
}

TEST_F(Program, ADryRunWritesNothingAndHasTheCodeOfTheRun) {
  auto const model = Model();
  auto const result = RunTarvex({"flip", model, "--dry-run"});
  EXPECT_EQ(result.exit, 1);  // the wedge can't be reversed
  EXPECT_EQ(Read("in.json"), Testing::SmallModel());
  EXPECT_EQ(NumFiles(), 1);
  EXPECT_EQ(RunTarvex({"flip", model, "--dry-run", "--list", "1"}).exit, 0);
}

TEST_F(Program, AnExistingOutputIsReplacedOnlyWithForce) {
  auto const model = Model();
  Write("out.json", "old");
  EXPECT_EQ(RunTarvex({"flip", model, "-o", Path("out.json"), "--list", "1"}).exit, 2);
  EXPECT_EQ(Read("out.json"), "old");
  EXPECT_EQ(RunTarvex({"flip", model, "-o", Path("out.json"), "--list", "1", "--force"}).exit, 0);
  EXPECT_NE(Read("out.json").find("\"topology\": [2, 1]"), std::string::npos);
}

TEST_F(Program, TheInputIsNeverTheOutput) {
  auto const model = Model();
  EXPECT_EQ(RunTarvex({"flip", model, "-o", model, "--force"}).exit, 2);
  EXPECT_EQ(RunTarvex({"flip", model, "-o", Path("./in.json"), "--force"}).exit, 2);
  EXPECT_EQ(Read("in.json"), Testing::SmallModel());
}

TEST_F(Program, InPlaceKeepsTheOldFile) {
  auto const model = Model();
  EXPECT_EQ(RunTarvex({"flip", model, "--in-place", "--list", "1"}).exit, 0);
  EXPECT_EQ(Read("in.json.bak"), Testing::SmallModel());
  EXPECT_NE(Read("in.json").find("\"topology\": [2, 1]"), std::string::npos);
  EXPECT_EQ(NumFiles(), 2);
}

TEST_F(Program, WritesAlsoWhenNothingChanged) {
  EXPECT_EQ(RunTarvex({"flip", Model(), "--list", "none", "-o", Path("out.json")}).exit, 0);
  EXPECT_TRUE(Exists("out.json"));
}

TEST_F(Program, AFaultyFileIsOneLineWithItsPlaceAndLeavesTheOutput) {
  auto text = Testing::SmallModel();
  text.replace(text.find("\"type\": 14"), 10, "\"type\": \"w\"");
  auto const model = Write("bad.json", text);
  Write("out.json", "old");
  auto const result = RunTarvex({"flip", model, "-o", Path("out.json"), "--force"});
  EXPECT_EQ(result.exit, 4);
  EXPECT_EQ(result.err.find(model + ":9:18: /Elem/3/type: "), 0) << result.err;
  EXPECT_EQ(std::count(result.err.begin(), result.err.end(), '\n'), 1);
  EXPECT_EQ(Read("out.json"), "old");
}

TEST_F(Program, DanglingReferencesAreAWarningAndWithStrictAFault) {
  auto text = Testing::SmallModel();
  text.replace(text.find("[3, 2]"), 6, "[9, 9]");
  auto const model = Write("in.json", text);
  auto const result = RunTarvex({"info", model});
  EXPECT_EQ(result.exit, 0);
  EXPECT_EQ(result.err, "warning: 2 references to missing records, see check\n");
  EXPECT_EQ(RunTarvex({"info", model, "--strict"}).exit, 4);
  EXPECT_EQ(RunTarvex({"info", model, "-q"}).err, "");
}

TEST_F(Program, JsonHasItsHeaderAndData) {
  auto const json = RunTarvex({"flip", Model(), "--list", "1", "--dry-run", "--json"}).Json();
  EXPECT_EQ(json.at("schema"), "tarvex-result-1");
  EXPECT_EQ(json.at("tool"), "tarvex");
  EXPECT_EQ(json.at("version"), "0.1.0");
  EXPECT_EQ(json.at("command"), "flip");
  EXPECT_EQ(json.at("ok"), true);
  EXPECT_EQ(json.at("exit"), 0);
  EXPECT_EQ(json.at("warnings"), Json::array());
  auto const& data = json.at("data");
  EXPECT_EQ(data.at("input"), Path("in.json"));
  EXPECT_EQ(data.at("output"), nullptr);
  EXPECT_EQ(data.at("dryRun"), true);
  EXPECT_EQ(data.at("did"), true);
  EXPECT_EQ(data.at("maps"), Json::object());
  EXPECT_EQ(data.at("messages"), Json::array());
  EXPECT_EQ(data.at("undone"), Json::array());
  EXPECT_EQ(data.at("totals"), Json::array());
  EXPECT_EQ(data.at("tolerances"), Json::array());
  EXPECT_FALSE(data.contains("mass"));
}

TEST_F(Program, JsonTellsAFailureWithItsPlace) {
  auto const model = Write("bad.json", "{\"format\": 5}");
  auto const result = RunTarvex({"info", model, "--json"});
  EXPECT_EQ(result.exit, 4);
  auto const json = result.Json();
  EXPECT_EQ(json.at("ok"), false);
  EXPECT_EQ(json.at("exit"), 4);
  EXPECT_FALSE(json.contains("data"));
  EXPECT_EQ(json.at("error").at("file"), model);
  EXPECT_EQ(json.at("error").at("line"), 1);
  EXPECT_EQ(json.at("error").at("column"), 12);
  EXPECT_EQ(json.at("error").at("pointer"), "/format");
}

// A tool that breaks half way.
TEST_F(Program, AnExceptionOfAToolIsOneLineAndLeavesTheModelAlone) {
  constexpr Workbench::Command kBreaks{
      "breaks",
      "",
      {},
      Workbench::CommandKind::Changes,
      [](CZelData& model, Workbench::Arguments const&, Workbench::CommandResult&) {
        model.BlankNode(1, 1);
        throw std::out_of_range("invalid vector subscript");
      }};
  Workbench::Invocation invocation;
  invocation.command = &kBreaks;
  invocation.model = Model();
  invocation.inPlace = true;
  auto const report = Workbench::RunInvocation(invocation);
  EXPECT_EQ(static_cast<int>(report.exit), 3);
  ASSERT_TRUE(report.failure);
  EXPECT_EQ(report.failure->text, "invalid vector subscript");
  EXPECT_TRUE(report.failure->place.file.empty());
  EXPECT_EQ(Read("in.json"), Testing::SmallModel());
  EXPECT_EQ(NumFiles(), 1u);
}

TEST_F(Program, JsonTellsAFaultOfTheCommandLineToo) {
  auto const result = RunTarvex({"info", "--json", "a", "b"});
  EXPECT_EQ(result.exit, 2);
  EXPECT_EQ(result.Json().at("ok"), false);
  EXPECT_EQ(result.Json().at("command"), "info");
  EXPECT_FALSE(result.Json().at("error").contains("file"));
  EXPECT_EQ(RunTarvex({"frobnicate", "--json"}).Json().at("command"), "");
}

TEST_F(Program, QuietPrintsNoReport) {
  auto const result = RunTarvex({"flip", Model(), "--list", "1", "--dry-run", "-q"});
  EXPECT_EQ(result.exit, 0);
  EXPECT_EQ(result.out + result.err, "");
}

TEST_F(Program, TheReportSaysWhatChanged) {
  auto const result = RunTarvex({"flip", Model(), "--list", "1 to 3", "-o", Path("out.json")});
  EXPECT_EQ(result.out,
            "flip:\n  Elem      changed 3: 1 to 3\n  written to " + Path("out.json") + "\n");
}

TEST_F(Program, InfoCountsTablesAndExtents) {
  auto const data = RunTarvex({"info", Model(), "--json"}).Json().at("data");
  EXPECT_EQ(data.at("tables"), Json::parse(R"({"Node":{"count":8,"highest":8},
    "Elem":{"count":4,"highest":4},"LoadPanel":{"count":1,"highest":5}})"));
  EXPECT_EQ(data.at("extents"), Json::parse(R"({"min":[0.0,0.0,0.0],"max":[2.0,1.0,1.0]})"));
  EXPECT_EQ(data.at("units").at("length"), "m");
  EXPECT_EQ(data.at("elementTypes"), Json::parse(R"({"2":2,"5":1,"14":1})"));
}

TEST_F(Program, InfoOfAModelWithoutNodesHasNoExtents) {
  auto const model = Write("empty.json", Testing::kHeader + "}");
  EXPECT_EQ(RunTarvex({"info", model, "--json"}).Json().at("data").at("extents"), nullptr);
}

TEST_F(Program, ADoubleDashEndsTheOptions) {
  auto const model = Model();
  std::filesystem::rename(model, Path("-odd.json"));
  std::filesystem::current_path(std::filesystem::path(model).parent_path());
  auto const result = RunTarvex({"info", "--", "-odd.json"});
  std::filesystem::current_path(TARVEX_SOURCE_DIR);
  EXPECT_EQ(result.exit, 0) << result.err;
}

TEST_F(Program, AnOptionTakesItsValueBehindAnEqualsSign) {
  EXPECT_EQ(RunTarvex({"align-edges", Model(), "--dry-run", "--axis=-1", "--list=3"}).exit, 0);
}

}  // namespace
}  // namespace Tarvex::ProgramTest
