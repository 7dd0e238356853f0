// Random members over the nodes and elements of a model.
#pragma once

#include "tests/support/random_model.h"

namespace Tarvex::Testing {

/// Adds five to twelve members: lines of two nodes or more, arcs of both forms, outlines with
/// holes, inner lines and points, and tetrahedra as strips; half of the numbers of a range, in no
/// order. Each field is changed in some, and children are existing elements, none in two members.
void AddRandomMembers(CZelData& model, Random& random);

}  // namespace Tarvex::Testing
