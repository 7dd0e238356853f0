// The references of a model's records to each other, as the records' fields describe them.
#pragma once

#include <functional>
#include <string>
#include <string_view>
#include <vector>

#include "store/model/zel_data.h"

namespace Tarvex::Workbench {

/// One reference that a record holds.
struct ReferenceSite {
  std::string_view table;   ///< stem of the record's table
  int number = 0;           ///< number of the record, 0 for one that a model has once
  std::string_view field;   ///< with dots for a field of a field: "parentMember.member"
  int index = -1;           ///< place in a list or among its words, -1 for a single number
  int value = 0;            ///< the number that is referred to; 0 is none
  std::string_view target;  ///< stem of the table that it points into, empty when no table has it
  bool exists = false;      ///< whether the target table has such a record
  bool inText = false;      ///< whether a list or a description names it, not a field of its own
};

/// Calls visit for every reference field of every record, in the order of the registry and records
/// in ascending number, empty references (0) included. The views of a site are good for the time of
/// the program. Of a list, saved or held by a record, the numbers that stand alone are references,
/// so are nodes behind co-ordinate words and saved lists behind "#"; the index is the place among
/// the words. Ranges may have holes, and are none. Of a description the cases that it names are
/// references; the index counts them.
void ForEachReference(CZelData const& model,
                      std::function<void(ReferenceSite const&)> const& visit);

/// A reference to a record that does not exist.
struct DanglingReference {
  std::string table;
  int number = 0;
  std::string field;
  int index = -1;
  int value = 0;
  std::string target;

  friend bool operator==(DanglingReference const&, DanglingReference const&) = default;
};

/// The references of a model other than 0 whose record does not exist, in the order of
/// ForEachReference. References into a table that the model has not are passed over; references to
/// elements are met by load panels too.
std::vector<DanglingReference> FindDanglingReferences(CZelData const& model);

}  // namespace Tarvex::Workbench
