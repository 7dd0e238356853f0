// Selectors that model operations take.
#pragma once

namespace Tarvex {

/// What becomes of the text identifier of a record that is stored.
enum class SidMode : int {
  Keep = 0,  ///< the record keeps the one that it carries
  Drop = 2,  ///< it is stored without one
};

/// Where a geometry query takes the ends of an entity.
enum class EntAt : int {
  Ends = 0,   ///< with offsets applied
  Nodes = 1,  ///< at the nodes
};

}  // namespace Tarvex
