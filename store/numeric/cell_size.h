// Size of the cells of a grid that is to hold given points.
#pragma once

#include <cstddef>
#include <span>

#include "store/export.h"
#include "store/numeric/vec.h"

namespace Tarvex::Util {

/// The largest of a series of cell sizes, each half the one before, with which occupied cells hold
/// at most `crowded` points on average; where points coincide and none does, the largest that
/// tells nearly all different points apart. All co-ordinates must be finite.
TARVEX_STORE_EXPORT double SuitableCellSize(std::span<Vec3<double> const> points,
                                            std::size_t crowded);

}  // namespace Tarvex::Util
