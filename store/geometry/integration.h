// Numerical integration over elements by their shape functions.
#pragma once

#include <span>

#include "store/export.h"
#include "store/geometry/shape_functions.h"

namespace Tarvex::Util {

/// A point of a rule in natural co-ordinates; the weights of a rule sum to the shape's natural
/// size.
struct RulePoint {
  Vec3<double> natural;
  double weight = 0;
};

/// Rule of a shape: exact for polynomials of degree 5, on tetrahedra and pyramids of degree 3.
/// Gauss with three points a direction on lines, quadrilaterals and bricks, seven points on
/// triangles (O. C. Zienkiewicz, R. L. Taylor, J. Z. Zhu, The Finite Element Method: Its Basis and
/// Fundamentals, tables of numerical integration), their product on wedges, and the product rule of
/// the brick folded to a corner or an edge on tetrahedra and pyramids.
TARVEX_STORE_EXPORT std::span<RulePoint const> RuleOf(ShapeKind const& kind);

/// What an integral sees of an element at one point of its rule.
struct ElementPoint {
  Vec3<double> position;
  Vec3<double> normal;  ///< of a surface, its length the size for a unit of weight
  double size = 0;      ///< length, area or volume that the point stands for
  std::span<ShapeTerm const> terms;
};

/// The element at natural co-ordinates; its size is that of a unit of natural size.
TARVEX_STORE_EXPORT ElementPoint PointOf(ShapeKind const& kind, std::span<Vec3<double> const> nodes,
                                         Vec3<double> const& natural, ShapeTerms& terms);

/// Calls visit(point) for the points of an element's rule.
template <class Visit>
void ForEachElementPoint(ShapeKind const& kind, std::span<Vec3<double> const> nodes,
                         Visit&& visit) {
  ShapeTerms terms;
  for (auto const& rule : RuleOf(kind)) {
    auto point = PointOf(kind, nodes, rule.natural, terms);
    point.size *= rule.weight;
    visit(point);
  }
}

/// Size of an element and the first moment of its points.
struct ElementExtent {
  double size = 0;
  Vec3<double> moment;

  Vec3<double> Centre() const { return size == 0 ? Vec3<double>{} : moment / size; }
};

/// Length, area or volume through the nodes of an element, zeros for a number of nodes that no
/// shape has. Exact for straight lines, plane surfaces with straight edges and solids with plane
/// faces, by numerical integration for others.
TARVEX_STORE_EXPORT ElementExtent ExtentOf(SpaceType space, std::span<Vec3<double> const> nodes);

}  // namespace Tarvex::Util
