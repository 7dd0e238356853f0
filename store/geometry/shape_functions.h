/* Shape functions of lines, surfaces and solids: one row a shape.

   Natural co-ordinates (r, s, t) of the shapes; numbers of nodes as in
   store/record/element_shape.h:

     line           r from -1 to 1; two ends, then the middle
     triangle       (0, 0) (1, 0) (0, 1), then the middles of the sides 0-1, 1-2, 2-0
     quadrilateral  (-1, -1) (1, -1) (1, 1) (-1, 1), then the middles of the sides from 0-1 on
     tetrahedron    (0, 0, 0) (1, 0, 0) (0, 1, 0) (0, 0, 1)
     wedge          the triangle in r and s at t = -1, then at t = 1
     brick          the quadrilateral at t = -1, then at t = 1
     pyramid        the quadrilateral at t = 0, its half width 1 - t, apex at t = 1

   Sources: O. C. Zienkiewicz, R. L. Taylor, J. Z. Zhu, The Finite Element Method: Its Basis and
   Fundamentals, chapter on standard and hierarchical shape functions, for all but the pyramid;
   G. Bedrosian, Shape functions and integration formulas for three-dimensional finite element
   analysis, Int. J. Numer. Meth. Eng. 35 (1992) 95-108, for the pyramid, whose functions are
   rational. All shapes sum to 1, are 1 at their own node and 0 at the others, and give a linear
   field back exactly.
 */
#pragma once

#include <array>
#include <span>

#include "store/export.h"
#include "store/numeric/vec.h"
#include "store/record/element_shape.h"

namespace Tarvex {

/// What a shape spans.
enum class SpaceType : int { Line = 1, Surface = 2, Solid = 3 };

namespace Util {

/// A function at a point: its value and its derivatives by r, s and t.
struct ShapeTerm {
  double value = 0;
  Vec3<double> slope;
};

inline constexpr int kMostShapeNodes = 8;
/// One term a node; those behind the last node are not touched.
using ShapeTerms = std::array<ShapeTerm, kMostShapeNodes>;

/// What is the same for all shapes of a kind.
struct ShapeKind {
  SpaceType space;
  int nodes;
  int corners;
  ElementType element;                    ///< type whose faces are those of the shape
  std::span<Vec3<double> const> natural;  ///< natural co-ordinates of the nodes
  /// Fills the terms of all nodes at natural co-ordinates.
  void (*evaluate)(Vec3<double> const& at, ShapeTerms& terms);
  /// How far natural co-ordinates lie outside the shape, along the one that is furthest out; below
  /// 0 inside, 0 on the boundary.
  double (*overrun)(Vec3<double> const& at);
};

/// The row of a shape; null for a number of nodes that no shape of the space has.
TARVEX_STORE_EXPORT ShapeKind const* FindShapeKind(SpaceType space, int nodes) noexcept;

/// The row of a shape. Throws std::invalid_argument "invalid number of values for 2D element" (1D,
/// 3D) for a number of nodes that no shape of the space has.
TARVEX_STORE_EXPORT ShapeKind const& ShapeKindOf(SpaceType space, int nodes);

/// Mean of the natural co-ordinates of the corners.
TARVEX_STORE_EXPORT Vec3<double> CentreOf(ShapeKind const& kind);

/// The point or other vector at natural co-ordinates, from its values at the nodes: 2 or 3 for a
/// line, 3, 4, 6 or 8 for a surface, 4, 5, 6 or 8 for a solid. Throws as ShapeKindOf.
TARVEX_STORE_EXPORT Vec3<double> Interpolate(SpaceType space, std::span<Vec3<double> const> values,
                                             Vec3<double> const& at);

}  // namespace Util
}  // namespace Tarvex
