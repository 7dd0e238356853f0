#include "workbench/commands/inspect.h"

#include "tests/workbench/run.h"

namespace Tarvex::InspectTest {
namespace {

using Testing::RunTarvex;
using Json = nlohmann::json;

class Inspect : public Testing::RunTest {
 protected:
  /// The small model with one piece of its text replaced.
  std::string Changed(std::string const& name, std::string const& from, std::string const& to) {
    auto text = Testing::SmallModel();
    text.replace(text.find(from), from.size(), to);
    return Write(name, text);
  }
};

TEST_F(Inspect, CheckOfASoundModelIsZero) {
  auto const result = RunTarvex({"check", Write("a.json", Testing::SmallModel())});
  EXPECT_EQ(result.exit, 0);
  EXPECT_EQ(result.out, "0 findings\n");
}

TEST_F(Inspect, CheckNamesTableRecordFieldAndValue) {
  auto const model = Changed("a.json", "[1, 4, 5, 2]", "[1, 4, 99, 1]");
  auto const result = RunTarvex({"check", model, "--json", "-q"});
  EXPECT_EQ(result.exit, 1);
  EXPECT_EQ(result.Json().at("data").at("findings"), Json::parse(R"([
    {"code": "dangling-reference", "table": "Elem", "number": 3, "field": "topology", "index": 2,
     "value": 99, "target": "Node"},
    {"code": "repeated-node", "table": "Elem", "number": 3, "field": "topology", "index": 3,
     "value": 1}])"));
  EXPECT_EQ(RunTarvex({"check", model, "-v"}).out,
            "dangling-reference: Elem 3 topology/2 names Node 99\n"
            "repeated-node: Elem 3 topology/3: node 1 a second time\n"
            "2 findings\n");
}

TEST_F(Inspect, CheckSaysWhyATopologyHasTheWrongCount) {
  auto const model = Changed("a.json", "[1, 4, 5, 2]", "[1, 4, 5]");
  auto const result = RunTarvex({"check", model, "--json"});
  EXPECT_EQ(result.Json().at("data").at("findings"), Json::parse(R"([
    {"code": "wrong-topology-count", "table": "Elem", "number": 3, "field": "topology", "index": -1,
     "value": 3, "reason": "3 nodes, type 5 has 4"}])"));
  EXPECT_EQ(RunTarvex({"check", model}).out,
            "wrong-topology-count: Elem 3 topology: 3 nodes, type 5 has 4\n1 finding\n");
}

TEST_F(Inspect, DiffOfEqualModelsIsZero) {
  auto const model = Write("a.json", Testing::SmallModel());
  auto const result = RunTarvex({"diff", model, model, "--json"});
  EXPECT_EQ(result.exit, 0);
  EXPECT_EQ(result.Json().at("data"), Json::parse(R"({"changes": {}, "fields": []})"));
  EXPECT_EQ(RunTarvex({"diff", model, model}).out, "the models are equal\n");
}

TEST_F(Inspect, DiffTellsTablesAndFieldsThatDiffer) {
  auto const a = Write("a.json", Testing::SmallModel());
  auto const b = Changed("b.json", R"({"n": 1, "type": 2, "topology": [1, 2]})",
                         R"({"n": 1, "type": 1, "group": 3, "topology": [1, 5]})");
  auto const result = RunTarvex({"diff", a, b, "--json"});
  EXPECT_EQ(result.exit, 1);
  EXPECT_EQ(result.Json().at("data"), Json::parse(R"({
    "changes": {"Elem": {"added": [], "removed": [], "changed": [1]}},
    "fields": [
      {"table": "Elem", "number": 1, "field": "type", "before": 2, "after": 1},
      {"table": "Elem", "number": 1, "field": "group", "before": 1, "after": 3},
      {"table": "Elem", "number": 1, "field": "topology", "before": [1, 2], "after": [1, 5]}]})"));
  EXPECT_EQ(RunTarvex({"diff", a, b}).out,
            "  Elem      changed 1: 1\n"
            "  Elem 1 type: 2 -> 1\n"
            "  Elem 1 group: 1 -> 3\n"
            "  Elem 1 topology: [1, 2] -> [1, 5]\n");
}

TEST_F(Inspect, DiffTellsRecordsThatComeAndGo) {
  auto const a = Write("a.json", Testing::SmallModel());
  auto const b = Changed("b.json", R"({"n": 5, "topology": [1, 2, 5, 4]})",
                         R"({"n": 6, "topology": [1, 2, 5, 4]})");
  auto const data = RunTarvex({"diff", a, b, "--json"}).Json().at("data");
  EXPECT_EQ(data.at("changes"),
            Json::parse(R"({"LoadPanel": {"added": [6], "removed": [5], "changed": []}})"));
  EXPECT_EQ(data.at("fields"), Json::array());
}

TEST_F(Inspect, DiffOfAFileThatIsMissingIsFour) {
  auto const a = Write("a.json", Testing::SmallModel());
  EXPECT_EQ(RunTarvex({"diff", a, Path("no.json")}).exit, 4);
  EXPECT_EQ(RunTarvex({"diff", a}).exit, 2);
}

}  // namespace
}  // namespace Tarvex::InspectTest
