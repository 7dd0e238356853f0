#include "workbench/report/field_changes.h"

#include "store/model/registry.h"
#include "workbench/file/codecs.h"

namespace Tarvex::Workbench {
namespace {

template <class Record>
void AddFields(std::string_view table, int number, Record const& before, Record const& after,
               std::vector<FieldChange>& changes) {
  ForEachField<Record>([&](auto const& row) {
    if (Same(before.*row.member, after.*row.member)) return;
    FieldChange change{table, number, row.name, "", ""};
    WriteValue(change.before, before.*row.member, before);
    WriteValue(change.after, after.*row.member, after);
    changes.push_back(std::move(change));
  });
}

/// A record that became one of another class is one change.
template <class Record>
void AddRecord(std::string_view table, int number, Record const& before, Record const& after,
               std::vector<FieldChange>& changes) {
  bool const alike = RecordClasses<Record>::TakeTwo(
      before, after,
      [&](auto const& a, auto const& b) { AddFields(table, number, a, b, changes); });
  if (alike) return;
  FieldChange change{table, number, "class", "", ""};
  auto const write = [](std::string& text) {
    return [&text]<class Class>(Class const&) {
      if constexpr (requires { Class::kClass; }) AppendJsonString(text, Class::kClass);
    };
  };
  RecordClasses<Record>::Take(before, write(change.before));
  RecordClasses<Record>::Take(after, write(change.after));
  changes.push_back(std::move(change));
}

}  // namespace

std::vector<FieldChange> FindFieldChanges(CZelData const& before, CZelData const& after) {
  std::vector<FieldChange> changes;
  ForEachOneOff([&](auto const& row) {
    AddFields(row.stem, 0, (before.*row.get)(), (after.*row.get)(), changes);
  });
  ForEachTable([&](auto const& row) {
    ForEachDifference((before.*row.all)(), (after.*row.all)(),
                      [&](int n, auto const* a, auto const* b) {
                        if (a != nullptr && b != nullptr) AddRecord(row.stem, n, *a, *b, changes);
                      });
  });
  return changes;
}

}  // namespace Tarvex::Workbench
