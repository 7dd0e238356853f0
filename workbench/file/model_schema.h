// The JSON schema of model files.
#pragma once

#include <string>

namespace Tarvex::Workbench {

/// JSON schema (draft-07) of model files, made from the same descriptions as reader and writer;
/// docs/model.schema.json holds it. What a schema can't say (repeated numbers, order of the header,
/// depth) only the reader checks.
std::string ModelSchema();

}  // namespace Tarvex::Workbench
