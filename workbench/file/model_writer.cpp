#include "workbench/file/model_writer.h"

#include "store/model/registry.h"
#include "workbench/file/atomic_file.h"
#include "workbench/file/codecs.h"
#include "workbench/file/file_error.h"
#include "workbench/file/json_scan.h"
#include "workbench/file/model_format.h"

namespace Tarvex::Workbench {
namespace {

/// Begins a new line of the top level with a key.
void BeginEntry(std::string& out, std::string_view key) {
  out += out.ends_with('{') ? "\n  \"" : ",\n  \"";
  out += key;
  out += "\": ";
}

void WriteHeader(std::string& out) {
  using namespace ModelFormat;
  auto const entry = [&](Key key, std::string_view text) {
    BeginEntry(out, kHeader[key].name);
    AppendJsonString(out, text);
  };
  entry(kFormat, kName);
  entry(kVersionKey, kVersion);
  entry(kGeneratorKey, kGenerator);
  BeginEntry(out, kHeader[kUnitsKey].name);
  out += '{';
  for (auto const& unit : kUnits) {
    WriteKey(out, unit.key);
    AppendJsonString(out, unit.text);
  }
  out += '}';
}

template <class Row>
void WriteTable(std::string& out, Row const& row, CZelData const& model) {
  auto const& table = (model.*row.all)();
  if (table.size() == 0) return;
  BeginEntry(out, row.stem);
  char const* separator = "[\n    ";
  ForEachRecord(table, [&](int number, auto const& record) {
    out += separator;
    using Classes = RecordClasses<typename Row::Record>;
    Classes::Take(record, [&]<class Class>(Class const& object) {
      BeginObject(out, object);
      if (row.shape == TableShape::Sparse) {
        WriteKey(out, "n");
        AppendJsonNumber(out, number);
      }
      if constexpr (Classes::kSeveral) {
        WriteKey(out, "class");
        AppendJsonString(out, Class::kClass);
      }
      WriteFields(out, object);
    });
    out += '}';
    separator = ",\n    ";
  });
  out += "\n  ]";
}

template <class Row>
void WriteOneOff(std::string& out, Row const& row, CZelData const& model) {
  using Record = typename Row::Record;
  auto const& record = (model.*row.get)();
  if (Same(record, DefaultOf<Record>())) return;
  BeginEntry(out, row.stem);
  Codec<Record>::Write(out, record);
}

/// @param file name of the file in faults.
std::string TextFor(CZelData const& model, std::string const& file) {
  std::string out = "{";
  try {
    WriteHeader(out);
    ForEachOneOff([&](auto const& row) { WriteOneOff(out, row, model); });
    ForEachTable([&](auto const& row) { WriteTable(out, row, model); });
  } catch (CodecFault const& fault) {
    // The text so far ends where the value would begin, which tells the way to it.
    throw FileError({file, 0, 0, ScanJson(out, out.size()).pointer}, fault.text);
  }
  out += "\n}\n";
  return out;
}

}  // namespace

std::string WriteModelText(CZelData const& model) { return TextFor(model, "model"); }

void WriteModel(CZelData const& model, std::string const& path) {
  WriteFileAtomically(path, TextFor(model, path));
}

void ReplaceModel(CZelData const& model, std::string const& path) {
  WriteFileAtomically(path, TextFor(model, path), OldFile::StaysAsBackup);
}

}  // namespace Tarvex::Workbench
