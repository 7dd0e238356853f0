// Area of surface elements.
#pragma once

#include <span>

#include "store/export.h"
#include "store/numeric/vec.h"

namespace Tarvex::Util {

/// Area of the surface through the nodes of a 3, 4, 6 or 8-noded element: exact for plane elements
/// with straight edges, by numerical integration for others. 0 for another number of nodes.
///
/// Rules: Gauss with 3 x 3 points on the quadrilateral, seven points of degree 5 on the triangle
/// (O. C. Zienkiewicz, R. L. Taylor, J. Z. Zhu, The Finite Element Method: Its Basis and
/// Fundamentals, tables of numerical integration).
TARVEX_STORE_EXPORT double SurfaceArea(std::span<Vec3<double> const> nodes);

}  // namespace Tarvex::Util
