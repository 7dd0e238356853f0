#include "workbench/file/model_reader.h"

#include <algorithm>

#include "store/model/registry.h"
#include "workbench/file/codecs.h"
#include "workbench/file/file_error.h"
#include "workbench/file/json_value.h"
#include "workbench/file/model_format.h"
#include "workbench/file/read_file.h"
#include "workbench/file/task_reader.h"

namespace Tarvex::Workbench {
namespace {

/// A record as it stands in a file of numbered records.
template <class Record>
struct NumberedRecord : Record {
  int number = 0;
  char const* place = nullptr;  ///< of the number in the text
};

using KeyReader = FieldReader<JsonValue>;

/// Readers of the number and of all fields of a record.
template <class Record>
constexpr auto MakeRecordReaders() {
  using Target = NumberedRecord<Record>;
  constexpr auto kFields = MakeFieldReaders<JsonValue, Record, Target>();
  std::array<KeyReader, kFields.size() + 1> readers{};
  readers[0] = {"n", true, [](JsonValue& in, void* target) {
                  auto& record = *static_cast<Target*>(target);
                  record.number = in.Whole(1, kHighestNumber);
                  record.place = in.Place();
                }};
  std::copy(kFields.begin(), kFields.end(), readers.begin() + 1);
  return readers;
}

void ExpectText(JsonValue& in, std::string_view expected) {
  if (auto const text = in.String(); text != expected)
    in.Fail("expected " + Quoted(expected) + ", found " + Quoted(text));
}

void ReadVersion(JsonValue& in) {
  if (auto const text = in.String(); text != ModelFormat::kVersion)
    in.Fail("format version " + Quoted(text) + " is not known; this program reads version " +
            Quoted(ModelFormat::kVersion));
}

void ReadUnits(JsonValue& in) {
  constexpr auto kCount = ModelFormat::kUnits.size();
  constexpr auto kReaders = []<std::size_t... I>(std::index_sequence<I...>) {
    return std::array{KeyReader{ModelFormat::kUnits[I].key, true, [](JsonValue& unit, void*) {
                                  ExpectText(unit, ModelFormat::kUnits[I].text);
                                }}...};
  }
  (std::make_index_sequence<kCount>());
  ReadKeysInAnyOrder<JsonValue>(in, kReaders, nullptr);
}

/// Reads the whole of one file into an empty model.
class ModelReader {
 public:
  explicit ModelReader(CZelData& model) : m_model(model) {}

  void Read(JsonRoot& root);

  /// Holds the head of the file to its order.
  void BeforeKey(std::size_t at, JsonKey const& key) {
    auto const& header = ModelFormat::kHeader;
    for (; m_header < std::min(at, header.size()); ++m_header)
      if (header[m_header].required) key.Fail("expected key " + Quoted(header[m_header].name));
    if (at >= header.size()) return;
    if (at < m_header) key.Fail("key " + Quoted(header[at].name) + " comes too late");
    ++m_header;
  }

  /// The records of a positional table: their place is their number.
  template <class Record>
  void ReadTable(JsonValue& in, PositionalRow<Record> const& table) {
    int number = 0;
    in.ForEachItem([&](JsonValue& item) {
      Record record;
      Codec<Record>::Read(item, record);
      (m_model.*table.set)(++number, record, SidMode::Keep);
    });
  }

  template <class Record>
  void ReadTable(JsonValue& in, TableRow<Record> const& table) {
    static constexpr auto kReaders = MakeRecordReaders<Record>();
    in.ForEachItem([&](JsonValue& item) {
      NumberedRecord<Record> record;
      ReadObject(item, kReaders, record);
      CheckFree(table.module, table.stem, record.number, record.place);
      (m_model.*table.set)(record.number, record, SidMode::Keep);
    });
  }

  /// Tasks: the class stands before the fields, since it tells which these are.
  void ReadTable(JsonValue& in, TableRow<Zel::TaskSlot> const& table) {
    in.ForEachItem([&](JsonValue& item) {
      TaskReader reader;
      reader.Read(item);
      CheckFree(table.module, table.stem, reader.Number(), reader.Place());
      m_model.SetAnalysisTask(reader.Number(), reader.Task());
    });
  }

  template <class Row>
  void ReadOneOff(JsonValue& in, Row const& row) {
    typename Row::Record record;
    Codec<typename Row::Record>::Read(in, record);
    (m_model.*row.set)(record);
  }

 private:
  /// Fails when a table, or another that shares its numbers, has a record of a number.
  void CheckFree(CModule::ModuleId module, std::string_view stem, int number,
                 char const* place) const {
    for (auto const& other : Tables()) {
      bool const shares = other.stem == stem || (other.module == module && module != CModule::None);
      if (!shares || !other.exist(m_model, number)) continue;
      throw JsonWalkFault{place, "number " + std::to_string(number) + " occurs twice, first in " +
                                     std::string(other.stem)};
    }
  }

  CZelData& m_model;
  std::size_t m_header = 0;  ///< place in the header of what may come next
};

/// Readers of one-off records or of tables, from their rows in the registry.
template <auto const& Rows, auto Read>
constexpr auto MakeRowReaders() {
  return []<std::size_t... I>(std::index_sequence<I...>) {
    return std::array{KeyReader{GetRow<I>(Rows).stem, false, [](JsonValue& in, void* reader) {
                                  Read(*static_cast<ModelReader*>(reader), in, GetRow<I>(Rows));
                                }}...};
  }
  (std::make_index_sequence<Rows.kSize>());
}

template <class... Arrays>
constexpr auto Joined(Arrays const&... arrays) {
  std::array<KeyReader, (std::tuple_size_v<Arrays> + ...)> all{};
  auto next = all.begin();
  ((next = std::copy(arrays.begin(), arrays.end(), next)), ...);
  return all;
}

constexpr auto MakeHeaderReaders() {
  using enum ModelFormat::Key;
  std::array<KeyReader, ModelFormat::kHeader.size()> readers{};
  for (std::size_t i = 0; i < readers.size(); ++i)
    readers[i] = {ModelFormat::kHeader[i].name, ModelFormat::kHeader[i].required, nullptr};
  auto constexpr anyText = [](JsonValue& in, void*) { in.String(); };
  readers[kSchema].read = anyText;
  readers[kFormat].read = [](JsonValue& in, void*) { ExpectText(in, ModelFormat::kName); };
  readers[kVersionKey].read = [](JsonValue& in, void*) { ReadVersion(in); };
  readers[kGeneratorKey].read = anyText;
  readers[kUnitsKey].read = [](JsonValue& in, void*) { ReadUnits(in); };
  return readers;
}

void ModelReader::Read(JsonRoot& root) {
  static constexpr auto kReaders = Joined(
      MakeHeaderReaders(),
      MakeRowReaders<Registry::kOneOffs, [](ModelReader& reader, JsonValue& in,
                                            auto const& row) { reader.ReadOneOff(in, row); }>(),
      MakeRowReaders<Registry::kTables, [](ModelReader& reader, JsonValue& in, auto const& row) {
        reader.ReadTable(in, row);
      }>());
  static_assert(kReaders.size() <= kMostKeys);
  ReadKeys<JsonRoot, JsonValue>(root, kReaders, this,
                                [&](std::size_t at, JsonKey const& key) { BeforeKey(at, key); });
}

/// The fault of a text that can't be read. A text that is no JSON is told as such, since whatever
/// else seems wrong with it may follow from that.
FileError Explained(JsonWalkFault const& fault, std::string_view text, std::string const& file) {
  auto offset = static_cast<std::size_t>(fault.at - text.data());
  auto const scan = ScanJson(text, offset);
  if (scan.fault) offset = scan.fault->offset;
  auto const place = PlaceInText(text, offset);
  return {{file, place.line, place.column, scan.fault ? scan.fault->pointer : scan.pointer},
          scan.fault ? scan.fault->text : fault.text};
}

/// Faults of a text as a whole, which say more than what the reader would find first.
void CheckWhole(std::string_view text, std::string const& file) {
  constexpr std::string_view kByteOrderMark = "\xEF\xBB\xBF";
  auto const fail = [&](char const* reason) { throw FileError({file, 1, 1, ""}, reason); };
  if (text.find_first_not_of(" \t\r\n") == std::string_view::npos) fail("the file is empty");
  if (text.starts_with(kByteOrderMark))
    fail("a byte-order mark; model files are UTF-8 without one");
  if (text.size() > kJsonLongest) fail("longer than 4 GiB");
}

/// @param text goes on for kJsonPadding zero bytes.
void ReadPadded(std::string_view text, std::string const& file, CZelData& model) {
  CheckWhole(text, file);
  try {
    CZelData fresh;
    fresh.rebuildHold = true;  // what is attached to nodes is built once, at the first query
    JsonRoot root(text);
    ModelReader(fresh).Read(root);
    model = fresh;
  } catch (JsonWalkFault const& fault) {
    throw Explained(fault, text, file);
  }
}

}  // namespace

void ReadModel(std::string const& path, CZelData& model) {
  auto text = ReadWholeFile(path, kJsonPadding);
  auto const size = text.size();
  text.append(kJsonPadding, '\0');
  ReadPadded({text.data(), size}, path == kStandardPath ? "standard input" : path, model);
}

void ReadModelText(std::string_view text, std::string const& fileName, CZelData& model) {
  std::string padded;
  padded.reserve(text.size() + kJsonPadding);
  padded.append(text).append(kJsonPadding, '\0');
  ReadPadded({padded.data(), text.size()}, fileName, model);
}

}  // namespace Tarvex::Workbench
