// Checks that each change of a stored record is told, undone, done again and kept by files.
#pragma once

#include <functional>
#include <string>

#include "store/model/registry.h"
#include "tests/support/record_fields.h"

namespace Tarvex::Testing {

/// A model with one record, changed in one field.
struct StoredChange {
  std::string difference;                  ///< what matchers.h tells: "Axis 7: origin"
  std::function<void(CZelData&)> store;    ///< stores the record as it was
  std::function<void(CZelData&)> replace;  ///< stores the changed one in its place
};

/// Expects that the change is the one difference, that undo and redo lead back and forth to the
/// bit, and that a file gives back the changed model.
void ExpectStored(StoredChange const& change);

/// Runs the changes of one class of records through each table that holds it.
template <class Record>
class TablesOf {
 public:
  TablesOf(std::vector<FieldChange<Record>> const& changes, Record const& original)
      : m_changes(changes), m_original(original) {}

  /// The number of tables that were met.
  int Met() const { return m_met; }

  template <class Whole>
  void operator()(RowOf<Record, Whole> const& row) {
    int const n = row.shape == TableShape::Positional ? 1 : 7;
    Run(std::string(row.stem) + " " + std::to_string(n),
        [&](CZelData& model, Record const& r) { (model.*row.set)(n, r, SidMode::Keep); });
  }
  void operator()(OneOffRow<Record> const& row) {
    Run(std::string(row.stem), [&](CZelData& model, Record const& r) { (model.*row.set)(r); });
  }
  void operator()(TableRow<Zel::TaskSlot> const& row) {
    if constexpr (std::derived_from<Record, Zel::CAnalysisTask>)
      Run(std::string(row.stem) + " 7",
          [&](CZelData& model, Record const& r) { model.SetAnalysisTask(7, r); });
  }
  /// Any other table.
  struct Other {
    template <class Row>
    Other(Row const&) {}  // NOLINT: converts by intent
  };
  void operator()(Other) {}

 private:
  template <class Store>
  void Run(std::string const& record, Store&& store) {
    ++m_met;
    for (auto const& row : m_changes) {
      Record changed(m_original);
      row.change(changed);
      ExpectStored({record + ": " + row.field, [&](CZelData& model) { store(model, m_original); },
                    [&](CZelData& model) { store(model, changed); }});
    }
  }

  std::vector<FieldChange<Record>> const& m_changes;
  Record const& m_original;
  int m_met = 0;
};

/// As ExpectFields, and the changes of the record in each of its tables.
template <class Record>
void ExpectStoredFields(std::vector<FieldChange<Record>> const& changes,
                        Record const& original = {}) {
  ExpectFields(changes, original);
  TablesOf<Record> tables(changes, original);
  Registry::kTables.ForEach(tables);
  Registry::kOneOffs.ForEach(tables);
  EXPECT_GT(tables.Met(), 0);
}

}  // namespace Tarvex::Testing
