#include "workbench/file/model_schema.h"

#include <nlohmann/json.hpp>

#include "store/model/registry.h"
#include "workbench/file/codecs.h"
#include "workbench/file/model_format.h"

namespace Tarvex::Workbench {
namespace {

using Json = nlohmann::ordered_json;

constexpr char const* kDialect = "http://json-schema.org/draft-07/schema#";
constexpr char const* kId = "https://tarvex.example/model.schema.json";

/// Schema of a value that is one fixed text.
Json Fixed(std::string_view text) { return {{"type", "string"}, {"const", text}}; }

Json UnitsSchema() {
  auto schema = EmptyObjectSchema<Json>();
  for (auto const& unit : ModelFormat::kUnits) {
    schema["required"].push_back(unit.key);
    schema["properties"][std::string(unit.key)] = Fixed(unit.text);
  }
  return schema;
}

void AddHeader(Json& schema) {
  using namespace ModelFormat;
  Json const text{{"type", "string"}};
  Json const values[] = {text, Fixed(kName), Fixed(kVersion), text, UnitsSchema()};
  static_assert(std::size(values) == kHeader.size());
  for (std::size_t i = 0; i < kHeader.size(); ++i) {
    schema["properties"][std::string(kHeader[i].name)] = values[i];
    if (kHeader[i].required) schema["required"].push_back(kHeader[i].name);
  }
}

/// Schema of the records of a table; in a positional one the place is the number.
template <class Record>
Json RecordSchema(TableShape shape) {
  auto schema = EmptyObjectSchema<Json>();
  if (shape == TableShape::Sparse) {
    schema["required"].push_back("n");
    schema["properties"]["n"] = {{"type", "integer"}, {"minimum", 1}, {"maximum", kHighestNumber}};
  }
  AddFieldsToSchema<Json, Record>(schema);
  return schema;
}

/// Schema of the records of a table of several classes: each names its class.
template <class Row>
Json TableSchema(Row const& row) {
  using Record = typename Row::Record;
  if constexpr (!RecordClasses<Record>::kSeveral) {
    return RecordSchema<Record>(row.shape);
  } else {
    auto schemas = Json::array();
    RecordClasses<Record>::ForEach([&]<class Class>(Class*) {
      auto schema = RecordSchema<Class>(row.shape);
      schema["required"].push_back("class");
      schema["properties"]["class"] = Fixed(Class::kClass);
      schemas.push_back(std::move(schema));
    });
    return {{"oneOf", std::move(schemas)}};
  }
}

/// Objects need not say that nothing is required of them.
void DropEmptyRequired(Json& schema) {
  if (schema.is_object() && schema.contains("required") && schema["required"].empty())
    schema.erase("required");
  for (auto& entry : schema)
    if (entry.is_structured()) DropEmptyRequired(entry);
}

}  // namespace

std::string ModelSchema() {
  Json schema{{"$schema", kDialect}, {"$id", kId}, {"title", "Tarvex model"}};
  schema.update(EmptyObjectSchema<Json>());
  schema["definitions"] = Json::object();
  AddHeader(schema);
  auto const define = [&](std::string const& stem, Json record) {
    schema["definitions"][stem] = std::move(record);
    return Json{{"$ref", "#/definitions/" + stem}};
  };
  ForEachOneOff([&](auto const& row) {
    using Record = typename std::remove_cvref_t<decltype(row)>::Record;
    std::string const stem(row.stem);
    schema["properties"][stem] = define(stem, Codec<Record>::template Schema<Json>());
  });
  ForEachTable([&](auto const& row) {
    std::string const stem(row.stem);
    schema["properties"][stem] = {{"type", "array"}, {"items", define(stem, TableSchema(row))}};
  });
  DropEmptyRequired(schema);
  return schema.dump(2) + "\n";
}

}  // namespace Tarvex::Workbench
