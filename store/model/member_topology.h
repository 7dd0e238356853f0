// Whether the topology of a member can be meshed. Internal to the store.
#pragma once

#include "store/model/model_core.h"

namespace Tarvex::MemberTopology {

/// See EntityQueries::IsMemberTopoValid.
bool IsValid(ModelState const& state, Data::CMember const& member);

}  // namespace Tarvex::MemberTopology
