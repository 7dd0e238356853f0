#include "workbench/commands/totals.h"

#include "tests/workbench/run.h"

namespace Tarvex::TotalsTest {
namespace {

using Testing::RunTarvex;
using Json = nlohmann::json;

/// A square plate of 2 m, 0.1 m thick, 2500 kg/m3, under its weight (case 1) and 3 kN/m2 (case 2).
std::string Plate() {
  return R"({
  "format": "tarvex-model", "version": "1.0",
  "units": {"length": "m", "force": "N", "mass": "kg", "time": "s", "temperature": "C", "angle": "deg"},
  "Node": [
    {"n": 1, "position": [0, 0, 0]}, {"n": 2, "position": [2, 0, 0]},
    {"n": 3, "position": [2, 2, 0]}, {"n": 4, "position": [0, 2, 0]}
  ],
  "Elem": [{"n": 1, "type": 5, "property": 1, "topology": [1, 2, 3, 4]}],
  "MatAnal": [{"n": 1, "density": 2500}],
  "Prop2D": [{"n": 1, "materialAnalysis": 1, "thickness": 0.1}],
  "FaceLoad": [{"loadCase": 2, "loadedEntities": {"text": "all"}, "value": [-3000, 0, 0, 0]}],
  "GravityLoad": [{"loadCase": 1, "loadedEntities": {"text": "all"}}],
  "LoadCaseTitle": [{"n": 2, "name": "Offices"}]
})";
}

class Totals : public Testing::RunTest {
 protected:
  std::string Changed(std::string const& from, std::string const& to) {
    auto text = Plate();
    text.replace(text.find(from), from.size(), to);
    return Write("changed.json", text);
  }
};

TEST_F(Totals, SumsForceMomentAndMass) {
  auto const result = RunTarvex({"totals", Write("a.json", Plate())});
  EXPECT_EQ(result.exit, 0);
  // 1000 kg at (1, 1); 9806.65 N; 12000 N.
  EXPECT_EQ(result.out,
            "load case 1: force (0, 0, -9806.65) N, moment (-9806.65, 9806.65, 0) Nm\n"
            "load case 2 \"Offices\": force (0, 0, -12000) N, moment (-12000, 12000, 0) Nm\n"
            "mass 1000 kg, centre (1, 1, 0) m\n");
}

TEST_F(Totals, GivesTheSameAsJson) {
  auto const data = RunTarvex({"totals", Write("a.json", Plate()), "--json"}).Json().at("data");
  EXPECT_EQ(data.at("cases"), Json::parse(R"([
    {"loadCase": 1, "force": [0, 0, -9806.65], "moment": [-9806.65, 9806.65, 0]},
    {"loadCase": 2, "name": "Offices", "force": [0, 0, -12000], "moment": [-12000, 12000, 0]}])"));
  EXPECT_EQ(data.at("mass"), Json::parse(R"({"value": 1000, "centre": [1, 1, 0], "unknown": 0})"));
  EXPECT_EQ(data.at("uncounted"), Json::array());
}

TEST_F(Totals, SaysWhatIsNotFinite) {
  // 1e308 N/m2 on 4 m2, and 1e308 m x 2500 kg/m3.
  auto text = Plate();
  text.replace(text.find("-3000"), 5, "-1e308");
  text.replace(text.find("\"thickness\": 0.1"), 16, "\"thickness\": 1e308");
  auto const model = Write("a.json", text);
  auto const result = RunTarvex({"totals", model});
  EXPECT_EQ(result.exit, 1);
  EXPECT_NE(result.out.find("load case 2 \"Offices\": force not finite, moment not finite\n"),
            std::string::npos)
      << result.out;
  EXPECT_NE(result.out.find("mass not finite, centre "), std::string::npos) << result.out;
  EXPECT_NE(result.err.find("warning: the total of load case 2 is not finite"), std::string::npos);
  EXPECT_NE(result.err.find("warning: the mass is not finite"), std::string::npos);
  auto const json = RunTarvex({"totals", model, "--json"}).Json();
  EXPECT_EQ(json.at("exit"), 1);
  EXPECT_EQ(json.at("data").at("cases").at(1),
            Json::parse(R"({"loadCase": 2, "name": "Offices"})"));
  EXPECT_FALSE(json.at("data").at("mass").contains("value"));
  EXPECT_EQ(json.dump().find("null"), std::string::npos) << json.dump();
}

TEST_F(Totals, TellsWhatIsNotCounted) {
  auto const result = RunTarvex({"totals", Changed("\"density\": 2500", "\"n\": 2"), "--json"});
  EXPECT_EQ(result.exit, 4);  // a key twice
  auto const missing =
      RunTarvex({"totals", Changed("\"property\": 1", "\"property\": 7"), "--json"});
  EXPECT_EQ(missing.exit, 1);
  auto const json = missing.Json();
  EXPECT_EQ(
      json.at("data").at("uncounted"),
      Json::parse(
          R"([{"table": "GravityLoad", "number": 1, "why": "the mass of an element is not known"}])"));
  EXPECT_EQ(json.at("data").at("mass").at("unknown"), 1);
  EXPECT_EQ(json.at("warnings").back().at("text"),
            "the mass of 1 element is not known: a node, property or material is missing");
}

TEST_F(Totals, StandInReportsOfCommandsThatChangeThem) {
  // Turned over, the plate is the same; its offset goes to the other side and with it the moment.
  auto const model = Changed("\"type\": 5,", "\"type\": 5, \"offset\": {\"z\": 0.5},");
  auto const turned = RunTarvex({"flip", model, "--dry-run", "--json"}).Json();
  EXPECT_EQ(turned.at("data").at("totals"), Json::array());
  EXPECT_FALSE(turned.at("data").contains("mass"));
}

}  // namespace
}  // namespace Tarvex::TotalsTest
