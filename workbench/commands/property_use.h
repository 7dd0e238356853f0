// The tables of materials and properties whose use can be asked for.
#pragma once

#include <algorithm>
#include <array>

#include "store/select/module_id.h"
#include "tarvex/tidy.h"

namespace Tarvex::Workbench {

struct UseRow {
  CModule::ModuleId module;
  bool (CIndexProp::*isUsed)(int) const;
};
inline constexpr std::array kUseRows{UseRow{CModule::MatAnal, &CIndexProp::IsMatAnalUsed},
                                     UseRow{CModule::MatSteel, &CIndexProp::IsMatSteelUsed},
                                     UseRow{CModule::MatConcrete, &CIndexProp::IsMatConcreteUsed},
                                     UseRow{CModule::MatAluminium, &CIndexProp::IsMatAluminiumUsed},
                                     UseRow{CModule::MatGlass, &CIndexProp::IsMatGlassUsed},
                                     UseRow{CModule::MatFrp, &CIndexProp::IsMatFrpUsed},
                                     UseRow{CModule::MatTimber, &CIndexProp::IsMatTimberUsed},
                                     UseRow{CModule::MatFabric, &CIndexProp::IsMatFabricUsed},
                                     UseRow{CModule::MatRebar, &CIndexProp::IsMatRebarUsed},
                                     UseRow{CModule::Section, &CIndexProp::IsSectionUsed},
                                     UseRow{CModule::Prop2D, &CIndexProp::IsProp2DUsed},
                                     UseRow{CModule::SpringProp, &CIndexProp::IsSpringUsed},
                                     UseRow{CModule::DamperProp, &CIndexProp::IsDamperUsed},
                                     UseRow{CModule::MassProp, &CIndexProp::IsMassUsed},
                                     UseRow{CModule::LinkProp, &CIndexProp::IsLinkUsed},
                                     UseRow{CModule::CableProp, &CIndexProp::IsCableUsed},
                                     UseRow{CModule::SpacerProp, &CIndexProp::IsSpacerUsed},
                                     UseRow{CModule::Prop3D, &CIndexProp::IsProp3DUsed}};

/// Whether a record is in use by an index; false for tables of other things.
inline bool IsUsed(CIndexProp const& index, CModule::ModuleId module, int n) {
  return std::any_of(kUseRows.begin(), kUseRows.end(), [&](UseRow const& row) {
    return row.module == module && (index.*row.isUsed)(n);
  });
}

}  // namespace Tarvex::Workbench
