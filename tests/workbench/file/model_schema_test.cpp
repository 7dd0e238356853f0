#include "workbench/file/model_schema.h"

#include <cstdlib>
#include <nlohmann/json.hpp>

#include "tests/workbench/file/file_support.h"

namespace Tarvex::Workbench::ModelSchemaTest {
namespace {

using Json = nlohmann::json;
using Testing::Contents;

constexpr char const* kCommitted = TARVEX_SOURCE_DIR "/docs/model.schema.json";

Json Schema() { return Json::parse(ModelSchema()); }

Json Field(std::string const& record, std::string const& field) {
  return Schema()["definitions"][record]["properties"][field];
}

// With TARVEX_REFRESH in the environment the test writes the file instead.
TEST(ModelSchema, IsWhatTheDocumentsHold) {
  if (std::getenv("TARVEX_REFRESH") != nullptr) std::ofstream(kCommitted) << ModelSchema();
  EXPECT_EQ(ModelSchema(), Contents(kCommitted))
      << "run this test once with TARVEX_REFRESH=1 in the environment";
}

TEST(ModelSchema, HasOneEntryATableAndOneOffBehindTheHeader) {
  std::vector<std::string> keys;
  auto const ordered = nlohmann::ordered_json::parse(ModelSchema());
  for (auto const& [key, value] : ordered["properties"].items()) keys.push_back(key);
  std::vector<std::string> const header{"$schema", "format", "version", "generator", "units"};
  ASSERT_GE(keys.size(), header.size());
  EXPECT_TRUE(std::equal(header.begin(), header.end(), keys.begin()));
  for (auto const* key : {"Spec",
                          "Defaults",
                          "Node",
                          "Elem",
                          "LoadPanel",
                          "Axis",
                          "GridPlane",
                          "GridSurface",
                          "GridLine",
                          "Polyline",
                          "Alignment",
                          "List",
                          "Block",
                          "Assembly",
                          "GrView",
                          "OpView",
                          "MatSteel",
                          "MatConcrete",
                          "MatFrp",
                          "MatAluminium",
                          "MatTimber",
                          "MatGlass",
                          "MatFabric",
                          "MatRebar",
                          "MatAnal",
                          "MatCurve",
                          "MatMatrix",
                          "Section",
                          "SpringProp",
                          "MassProp",
                          "Prop2D",
                          "Prop3D",
                          "LinkProp",
                          "DamperProp",
                          "CableProp",
                          "SpacerProp",
                          "ForceDensity1D",
                          "SoapStress1D",
                          "ForceDensity2D",
                          "SoapStress2D",
                          "RC2DProp",
                          "SoilZone",
                          "SoilProfile",
                          "ResSpectrum",
                          "NodeLoad",
                          "AppliedDisplacement",
                          "Settlement",
                          "BeamLoad",
                          "AxialLoad",
                          "BeamDist",
                          "BeamThermalLoad",
                          "FaceLoad",
                          "EdgeLoad",
                          "InPlaneLoad",
                          "FaceThermalLoad",
                          "BodyFaceLoad",
                          "BodyThermalLoad",
                          "GridPointLoad",
                          "GridLineLoad",
                          "GridAreaLoad",
                          "GravityLoad",
                          "GenRest",
                          "Rigid",
                          "Joint",
                          "ConstraintEqn",
                          "TiedInterface",
                          "RaftInteraction",
                          "PileInteraction",
                          "InfluenceNode",
                          "InfluenceBeam"})
    EXPECT_EQ(std::count(keys.begin(), keys.end(), key), 1) << key;
}

TEST(ModelSchema, TellsWhatIsRequired) {
  auto const schema = Schema();
  EXPECT_EQ(schema["required"], Json({"format", "version", "units"}));
  EXPECT_EQ(schema["definitions"]["Node"]["required"], Json({"n", "position"}));
  EXPECT_EQ(schema["definitions"]["Elem"]["required"], Json({"n", "type", "topology"}));
  EXPECT_EQ(schema["definitions"]["LoadPanel"]["required"], Json({"n", "topology"}));
  EXPECT_FALSE(schema["definitions"]["Spec"].contains("required"));
  EXPECT_FALSE(schema["definitions"]["NodeLoad"].contains("required"));
  EXPECT_FALSE(schema["definitions"]["NodeLoad"]["properties"].contains("n"));
}

TEST(ModelSchema, TellsListsByTheirTextWhereTheirKindIsFixed) {
  EXPECT_EQ(Field("GridSurface", "elements"),
            Json::parse(R"({"type": "string", "default": "all"})"));
  EXPECT_EQ(Field("Assembly", "storey"), Json::parse(R"({"type": "string", "default": ""})"));
  auto const entities = Field("Assembly", "entities");
  EXPECT_EQ(entities["properties"]["kind"]["enum"], Json({0, 1, 2, 3, 4, 5}));
  EXPECT_EQ(entities["properties"]["text"]["type"], "string");
  EXPECT_EQ(entities["properties"].size(), 2u);
}

TEST(ModelSchema, TellsBoundsValuesPatternsAndDefaults) {
  EXPECT_EQ(Field("Node", "n"),
            Json::parse(R"({"type": "integer", "minimum": 1, "maximum": 100000000})"));
  EXPECT_EQ(Field("Node", "position"), Json::parse(R"({"type": "array", "minItems": 3,
      "maxItems": 3, "items": {"type": "number"}})"));
  EXPECT_EQ(Field("Node", "colour"), Json::parse(R"({"type": "string",
      "pattern": "^#[0-9a-fA-F]{6}$", "default": "#000000"})"));
  EXPECT_EQ(Field("Node", "restraint"), Json::parse(R"({"type": "array", "uniqueItems": true,
      "items": {"type": "string", "enum": ["X", "Y", "Z", "XX", "YY", "ZZ"]}, "default": []})"));
  EXPECT_EQ(Field("Axis", "type"),
            Json::parse(R"({"type": "integer", "enum": [1, 2, 3], "default": 1})"));
  EXPECT_EQ(Field("Elem", "type")["enum"].size(), 26u);
  EXPECT_EQ(Field("Elem", "group")["default"], 1);
  EXPECT_EQ(Field("Elem", "longPosition")["default"], Json({0, 1}));
  EXPECT_EQ(Field("Elem", "dummy"), Json::parse(R"({"type": "boolean", "default": false})"));
  EXPECT_EQ(Field("Elem", "connect")["items"]["anyOf"][1], Json::parse(R"({"type": "null"})"));
  EXPECT_EQ(Field("Defaults", "analysisTaskName")["default"], "Analysis Task #");
}

TEST(ModelSchema, AllowsNoOtherKeys) {
  auto const schema = Schema();
  EXPECT_EQ(schema["additionalProperties"], false);
  for (auto const& [stem, record] : schema["definitions"].items()) {
    if (record.contains("oneOf")) {
      for (auto const& one : record["oneOf"]) EXPECT_EQ(one["additionalProperties"], false) << stem;
    } else {
      EXPECT_EQ(record["additionalProperties"], false) << stem;
    }
  }
  EXPECT_EQ(Field("Elem", "offset")["additionalProperties"], false);
}

}  // namespace
}  // namespace Tarvex::Workbench::ModelSchemaTest
