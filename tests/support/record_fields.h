// Checks that each field of a record counts.
#pragma once

#include <gtest/gtest.h>

#include <set>
#include <string>
#include <vector>

#include "store/record/field.h"

namespace Tarvex::Testing {

/// A change of one field of a record, written out by hand in a test.
template <class Record>
struct FieldChange {
  char const* field;  ///< its name in model files
  void (*change)(Record&);
};

/// Names of the fields in which two records differ.
template <class Record>
std::vector<std::string> ChangedFields(Record const& a, Record const& b) {
  std::vector<std::string> names;
  ForEachField<Record>([&](auto const& field) {
    if (!Same(a.*field.member, b.*field.member)) names.emplace_back(field.name);
  });
  return names;
}

/// Expects that each change makes a record differ from what it was in that one field, and makes it
/// unequal; that a copy and an assigned record are equal to it; and that the changes reach every
/// field that the record describes.
template <class Record>
void ExpectFields(std::vector<FieldChange<Record>> const& changes, Record const& original = {}) {
  std::set<std::string> reached;
  for (auto const& [field, change] : changes) {
    SCOPED_TRACE(field);
    Record changed(original);
    EXPECT_TRUE(changed == original);
    change(changed);
    EXPECT_EQ(ChangedFields(changed, original), std::vector<std::string>{field});
    EXPECT_FALSE(changed == original);
    Record const copy(changed);
    EXPECT_TRUE(copy == changed);
    Record assigned(original);
    assigned = copy;
    EXPECT_TRUE(assigned == changed);
    reached.insert(field);
  }
  std::set<std::string> described;
  ForEachField<Record>([&](auto const& field) { described.emplace(field.name); });
  EXPECT_EQ(reached, described);
}

}  // namespace Tarvex::Testing
