// Keeps what holds nodes beside their own restraint. Internal to the store.
#pragma once

namespace Tarvex {

class ModelCore;
struct ModelState;

namespace NodeHolds {

/// Works out anew what restraints of lists hold, where something that they read has changed.
/// Without such restraints it costs a look at their number.
void BeforeQuery(ModelCore& core);
/// Tells all nodes what the kind of structure rules out.
void FollowStructType(ModelState& state);

}  // namespace NodeHolds
}  // namespace Tarvex
