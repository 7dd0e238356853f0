// What differs between the records of two models, field by field.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "store/model/zel_data.h"

namespace Tarvex::Workbench {

/// One field of a record that stands in both models. The values are JSON, as in model files.
struct FieldChange {
  std::string_view table;
  int number = 0;  ///< 0 for a one-off record
  std::string_view field;
  std::string before;
  std::string after;
};

/// The fields that differ, in the order of registry, numbers and fields.
std::vector<FieldChange> FindFieldChanges(CZelData const& before, CZelData const& after);

}  // namespace Tarvex::Workbench
