// Loads spread over polygons and elements. Internal to the store.
#pragma once

#include <span>

#include "store/calc/load_sum.h"

namespace Tarvex::Calc {

/// Adds a load of force an area on a plane polygon, either way round and with inward corners too.
/// @param projected whether it counts an area of the polygon's projection at a right angle to the
/// load
void AddPolygon(LoadSum& sum, LoadDirection const& direction, std::span<Vec3<double> const> corners,
                double value, bool projected);

/// Adds a load of force an area on a surface element. @param values at its corners
void AddSurface(LoadSum& sum, LoadDirection const& direction, std::span<Vec3<double> const> nodes,
                std::span<double const> values, bool projected);

}  // namespace Tarvex::Calc
