// The property that applies in a stage.
#pragma once

#include "store/model/zel_data.h"
#include "store/record/property_type.h"

namespace Tarvex {

/// The property in the place of one of a family in a stage; 0 for none.
int StagePropertyOf(CZelData const& model, PropertyType type, int property, int stage);
/// The property of an element or load panel in a stage, 0 where there is none.
int StagePropertyOf(CZelData const& model, int element, int stage);

}  // namespace Tarvex
