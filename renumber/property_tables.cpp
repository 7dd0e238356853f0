#include "renumber/property_tables.h"

#include <array>

namespace Tarvex {
namespace {

struct TidiedType {
  int type;
  CModule::ModuleId module;
};

constexpr std::array kTidiedTypes{
    TidiedType{1, CModule::Section},     TidiedType{2, CModule::Section},
    TidiedType{20, CModule::Section},    TidiedType{21, CModule::Section},
    TidiedType{23, CModule::Section},    TidiedType{3, CModule::SpringProp},
    TidiedType{5, CModule::Prop2D},      TidiedType{6, CModule::Prop2D},
    TidiedType{7, CModule::Prop2D},      TidiedType{8, CModule::Prop2D},
    TidiedType{9, CModule::LinkProp},    TidiedType{10, CModule::CableProp},
    TidiedType{19, CModule::SpacerProp}, TidiedType{24, CModule::DamperProp},
    TidiedType{12, CModule::Prop3D},     TidiedType{14, CModule::Prop3D},
    TidiedType{16, CModule::Prop3D},     TidiedType{26, CModule::Prop3D}};

}  // namespace

CModule::ModuleId TidiedTable(ElementType type) {
  for (auto const& row : kTidiedTypes)
    if (row.type == static_cast<int>(type)) return row.module;
  return CModule::None;
}

CModule::ModuleId TidiedTable(Data::CMember const& member) {
  if (member.Is2D()) return CModule::Prop2D;
  if (member.Is3D()) return CModule::Prop3D;
  return TidiedTable(member.AnalysisTypes().element1D);
}

}  // namespace Tarvex
