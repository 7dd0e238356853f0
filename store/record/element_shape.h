/* Facts of the element shapes: one constexpr row a type.

   Numbering (topology positions from 0):

     line            0---------1

     Quad4           3---------2        Quad8           3----6----2
                     |         |                        |         |
                     |         |                        7         5
                     |         |                        |         |
                     0---------1                        0----4----1

     Tri3            2                  Tri6            2
                     | \                                | \
                     |   \                              5   4
                     |     \                            |     \
                     0------1                           0---3--1

     Brick8          7---------6        Wedge6          5
                    /|        /|                       /| \
                   4---------5 |                      / |   \
                   | |       | |                     3---------4
                   | 3-------|-2                     |  2      |
                   |/        |/                      |/    \   |
                   0---------1                       0---------1

     Tetra4          3                  Pyramid5             4
                    /|\                                    / |\ \
                   / | \                                  /  3-\--\2
                  0--|--2                                / /    \ /
                   \ | /                                0-------1
                     1

   The near face of a brick (0 to 3) runs right-handed about the direction to the far face (4 to 7).
   Faces of solids run right-handed about their outward normal.
 */
#pragma once

#include <array>
#include <span>

#include "store/export.h"
#include "store/select/module_id.h"

namespace Tarvex {

/// Shape of an element. The numbers are part of model files: never change one. Types without a name
/// exist in models and have no shape that a tool knows.
enum class ElementType : int {
  None = 0,
  Bar = 1,
  Beam = 2,
  Spring = 3,
  Quad4 = 5,
  Quad8 = 6,
  Tri3 = 7,
  Tri6 = 8,
  Link = 9,
  Cable = 10,
  Brick8 = 12,
  Wedge6 = 14,
  Tetra4 = 16,
  Spacer = 19,
  Line20 = 20,  ///< further line with a section
  Line21 = 21,  ///< further line with a section
  Line23 = 23,  ///< further line with a section
  Damper = 24,
  Pyramid5 = 26,
};

/// Type of an element or load panel. The values are those of ElementType but for 19, which is the
/// load panel, and the spacer, which stands above all others. Convert with the functions of
/// store/record/variant_element.h, never with a cast.
enum class VariantElementType : int { LoadPanel = 19, Spacer = 27 };

/// One face of a solid: topology positions, -1 behind the last one of a triangle.
using FaceRow = std::array<int, 4>;
/// One edge: the positions of its two corners.
using EdgeRow = std::array<int, 2>;

/// What is the same for all elements of a type.
struct ElementShape {
  ElementType type = ElementType::None;
  int dimension = 0;  ///< 1 to 3; 0 for a type without a shape
  int nodes = 0;
  int corners = 0;
  bool section = false;                        ///< 1D with a section
  CModule::ModuleId property = CModule::None;  ///< table of its property number
  ElementType linear = ElementType::None;      ///< the shape with corner nodes only
  ElementType quadratic = ElementType::None;   ///< the shape with mid-side nodes
  VariantElementType variant{};                ///< its number among elements and panels
  std::span<EdgeRow const> edges;
  std::span<FaceRow const> faces;
};

/// The row of a type; a row of dimension 0 for a type without a shape or out of range.
TARVEX_STORE_EXPORT ElementShape const& ShapeOf(ElementType type);

/// Numbers of types run from 1 to this.
inline constexpr int kHighestElementType = 26;

inline bool Is1dType(ElementType type) { return ShapeOf(type).dimension == 1; }
inline bool Is2dType(ElementType type) { return ShapeOf(type).dimension == 2; }
inline bool Is3dType(ElementType type) { return ShapeOf(type).dimension == 3; }

}  // namespace Tarvex
