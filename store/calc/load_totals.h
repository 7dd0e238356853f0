// What the loads of a model come to.
#pragma once

#include <map>
#include <string_view>
#include <vector>

#include "store/export.h"
#include "store/numeric/vec.h"

namespace Tarvex {

class CZelData;

/// Resultant of loads: force, and moment about the origin of the global axes; model units.
struct LoadTotal {
  Vec3<double> force;
  Vec3<double> moment;

  LoadTotal& operator+=(LoadTotal const& other) {
    force += other.force;
    moment += other.moment;
    return *this;
  }
};

/// A load of which a part is not in the totals.
struct UncountedLoad {
  std::string_view table;
  int number = 0;
  std::string_view why;
};

/// The resultants by load case; a case is in the map as soon as a load names it.
struct LoadTotals {
  std::map<int, LoadTotal> byCase;
  std::vector<UncountedLoad> uncounted;  ///< in the order of tables and numbers
};

/// Sums all loads of a model but those of load case 0, which are of no case.
///
/// Forces and moments act at the point where the record puts them: at nodes, along lines, edges and
/// areas (by numerical integration, exact for straight lines and plane elements), at points of grid
/// surfaces. Lines have their offsets, plates their offset along the normal. A load on members acts
/// on their line where it acts on lines, and else on their child elements. Gravity acts on the mass
/// of elements (store/calc/element_mass.h, stage 0) and of nodes by their mass property. Imposed
/// displacements, prestress, kinks and changes of temperature have no resultant. A load that covers
/// a whole grid surface is counted where the surface is one of 2D elements.
TARVEX_STORE_EXPORT LoadTotals SumLoads(CZelData const& model);

}  // namespace Tarvex
