// Lines and plates that lie on one another, by the positions of their nodes. Distances compare with
// a tolerance, an absolute length.
#pragma once

#include <span>

#include "store/numeric/vec.h"

namespace Tarvex::Overlaps {

using Corners = std::span<Vec3<double> const>;

/// Whether a point lies on the line from start to end and is clear of both ends by more than the
/// tolerance.
bool OverlapPoint(Vec3<double> const& start, Vec3<double> const& end, Vec3<double> const& point,
                  double tolerance);

/// Whether the line from b0 to b1 lies along that from a0 to a1 for some of its length. Lines that
/// meet end to end and run apart do not. A line a without length has no direction: everything lies
/// along it.
bool OverlapLine(Vec3<double> const& a0, Vec3<double> const& a1, Vec3<double> const& b0,
                 Vec3<double> const& b1, double tolerance);

/// Whether two plates, each given by its corners, cover each other in part.
bool OverlapPlate(Corners a, Corners b, double tolerance);

}  // namespace Tarvex::Overlaps
