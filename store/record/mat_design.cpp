#include "store/record/mat_design.h"

#include <stdexcept>

namespace Tarvex {
namespace {

struct MatTypeRow {
  MatType type;
  CModule::ModuleId module;
};

constexpr std::array kMatTypes{
    MatTypeRow{MatType::Undefined, CModule::None},
    MatTypeRow{MatType::None, CModule::None},
    MatTypeRow{MatType::Steel, CModule::MatSteel},
    MatTypeRow{MatType::Concrete, CModule::MatConcrete},
    MatTypeRow{MatType::Aluminium, CModule::MatAluminium},
    MatTypeRow{MatType::Glass, CModule::MatGlass},
    MatTypeRow{MatType::Frp, CModule::MatFrp},
    MatTypeRow{MatType::Rebar, CModule::MatRebar},
    MatTypeRow{MatType::Timber, CModule::MatTimber},
    MatTypeRow{MatType::Fabric, CModule::MatFabric},
};

MatTypeRow const* FindMatType(MatType type) {
  auto const* const row = std::find_if(kMatTypes.begin(), kMatTypes.end(),
                                       [&](MatTypeRow const& r) { return r.type == type; });
  return row == kMatTypes.end() ? nullptr : row;
}

}  // namespace

CModule::ModuleId MatModule(MatType type) {
  auto const* row = FindMatType(type);
  if (row == nullptr) throw std::runtime_error("bad material type");
  return row->module;
}

CModule::ModuleId MatDesign::GradeTable(MatDesign const& design) {
  auto const* row = FindMatType(design.m_type);
  return row == nullptr ? CModule::None : row->module;
}

}  // namespace Tarvex
