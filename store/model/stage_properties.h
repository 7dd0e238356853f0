// What stands in the place of properties and materials in stages. Internal to the store.
#pragma once

#include <array>
#include <cstdint>
#include <map>
#include <tuple>

#include "store/record/property_type.h"

namespace Tarvex {

struct ModelState;

/// The replacements of all stages, read once from the tables and kept until these change. Of
/// several for the same property or material in a stage the one of the highest number counts; a
/// replacement is not replaced itself.
class StageProperties {
 public:
  /// The property of a family that applies in a stage, 0 being the model without stages.
  int Property(ModelState const& state, PropertyType type, int property, int stage);
  /// The analysis material that applies.
  int Material(ModelState const& state, int material, int stage);

 private:
  void Follow(ModelState const& state);

  std::array<std::uint64_t, 2> m_revisions{~std::uint64_t{0}, ~std::uint64_t{0}};
  std::map<std::tuple<int, PropertyType, int>, int> m_properties;
  std::map<std::array<int, 2>, int> m_materials;
};

}  // namespace Tarvex
