// Families of properties.
#pragma once

#include "store/select/module_id.h"

namespace Tarvex {

/// The family that a property belongs to where families are told by number.
enum class PropertyType : int {
  Section = 0,
  Spring = 1,
  Mass = 2,
  Plate = 3,
  Link = 4,
  Cable = 5,
  None = 6,
  Solid = 7,
  Damper = 8,
};

/// The table of a family.
constexpr CModule::ModuleId PropertyModule(PropertyType type) {
  switch (type) {
    case PropertyType::Section:
      return CModule::Section;
    case PropertyType::Spring:
      return CModule::SpringProp;
    case PropertyType::Mass:
      return CModule::MassProp;
    case PropertyType::Plate:
      return CModule::Prop2D;
    case PropertyType::Link:
      return CModule::LinkProp;
    case PropertyType::Cable:
      return CModule::CableProp;
    case PropertyType::Solid:
      return CModule::Prop3D;
    case PropertyType::Damper:
      return CModule::DamperProp;
    case PropertyType::None:
      break;
  }
  return CModule::None;
}

/// The family of a table, None for a table that is no family's.
constexpr PropertyType PropertyTypeOf(CModule::ModuleId module) {
  for (int i = 0; i <= static_cast<int>(PropertyType::Damper); ++i)
    if (auto const type = static_cast<PropertyType>(i);
        module != CModule::None && PropertyModule(type) == module)
      return type;
  return PropertyType::None;
}

}  // namespace Tarvex
