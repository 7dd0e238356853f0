// Writes model files (UTF-8 JSON, see docs/model.schema.json).
//
// The text of a model is always the same: header, one-off records that differ from their default,
// then the tables in the order of the registry with ascending numbers, one record a line. Fields
// with their default are left out; numbers have the shortest form that reads back the same bits.
#pragma once

#include <string>

#include "store/model/zel_data.h"

namespace Tarvex::Workbench {

/// The text of a model file. Throws FileError for a model that no file can hold: a value that is
/// not finite, or an enumeration value that is not known; the pointer names it.
std::string WriteModelText(CZelData const& model);

/// Writes a model file, replacing an existing one in one step (see atomic_file.h); "-" is standard
/// output. Throws FileError when that fails; an existing file is then as it was.
void WriteModel(CZelData const& model, std::string const& path);

/// As WriteModel, and keeps the file that it replaces as "<path>.bak".
void ReplaceModel(CZelData const& model, std::string const& path);

}  // namespace Tarvex::Workbench
