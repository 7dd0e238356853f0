// Keeps the attachments of nodes true. Internal to the store.
//
// Each node record holds the entities that use it by their topology. Outside a rebuild hold every
// change of topology is followed at once, at the cost of the nodes that it names. Inside one,
// changes only mark the attachments stale, and one pass over all topology builds them again.
#pragma once

#include <span>

#include "store/model/model_core.h"
#include "store/select/reference.h"

namespace Tarvex::NodeUse {

/// Follows a change of an entity's topology; an entity that comes or goes has an empty side.
void TopologyChanged(ModelCore& core, SEntRef entity, std::span<int const> before,
                     std::span<int const> after);

/// Gives a node that was just stored under a new number the entities that already name it.
void NodeAdded(ModelCore& core, int n);
/// Keeps the attachments of a node that is about to go, for one that comes under its number.
void NodeGoes(ModelCore& core, int n);

/// Marks the attachments stale.
void MarkStale(ModelCore& core);
/// Builds stale attachments, unless the rebuild hold is up and nobody asked since.
void BeforeQuery(ModelCore& core);
/// Builds stale attachments, also during a hold.
void BuildNow(ModelCore& core);

}  // namespace Tarvex::NodeUse
