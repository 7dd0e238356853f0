// Reads model files (UTF-8 JSON, see docs/model.schema.json).
//
// Reading is strict: unknown and repeated keys, repeated numbers, wrong types, values that are not
// finite, missing required fields, invalid UTF-8, nesting deeper than 64 and any text that is no
// JSON are faults. A text that is no JSON is reported as such, whatever else is wrong with it;
// otherwise the first fault in the file counts. Numbers that are whole may be written in any form
// (10, 10.0, 1e1); a number too small for a double reads as zero.
#pragma once

#include <string>
#include <string_view>

#include "store/model/zel_data.h"

namespace Tarvex::Workbench {

/// Replaces a model by the one of a file; "-" is standard input. Throws FileError for a file that
/// can't be read or is faulty, and then leaves the model as it was.
void ReadModel(std::string const& path, CZelData& model);

/// As ReadModel, from a text. @param fileName stands for the file in faults.
void ReadModelText(std::string_view text, std::string const& fileName, CZelData& model);

}  // namespace Tarvex::Workbench
