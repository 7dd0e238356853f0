// The tables that elements and members find their properties in, as tidying has them.
#pragma once

#include "store/record/member.h"
#include "store/record/property_type.h"

namespace Tarvex {

/// By element type, CModule::None for a type without properties. A spring element goes by the
/// springs and a damper by the dampers.
CModule::ModuleId TidiedTable(ElementType type);
/// Of a member: a 1D one goes by the type of its elements, a 2D one by the 2D properties, a 3D one
/// by the 3D properties.
CModule::ModuleId TidiedTable(Data::CMember const& member);

}  // namespace Tarvex
