#include "store/record/element_shape.h"

namespace Tarvex {
namespace {

using enum ElementType;

constexpr EdgeRow kLineEdges[] = {{0, 1}};
constexpr EdgeRow kTriEdges[] = {{0, 1}, {1, 2}, {2, 0}};
constexpr EdgeRow kQuadEdges[] = {{0, 1}, {1, 2}, {2, 3}, {3, 0}};
constexpr EdgeRow kTetraEdges[] = {{0, 1}, {1, 2}, {2, 0}, {0, 3}, {1, 3}, {2, 3}};
constexpr EdgeRow kPyramidEdges[] = {{0, 1}, {1, 2}, {2, 3}, {3, 0},
                                     {0, 4}, {1, 4}, {2, 4}, {3, 4}};
constexpr EdgeRow kWedgeEdges[] = {{0, 1}, {1, 2}, {2, 0}, {3, 4}, {4, 5},
                                   {5, 3}, {0, 3}, {1, 4}, {2, 5}};
constexpr EdgeRow kBrickEdges[] = {{0, 1}, {1, 2}, {2, 3}, {3, 0}, {4, 5}, {5, 6},
                                   {6, 7}, {7, 4}, {0, 4}, {1, 5}, {2, 6}, {3, 7}};

constexpr FaceRow kTriFaces[] = {{0, 1, 2, -1}};
constexpr FaceRow kQuadFaces[] = {{0, 1, 2, 3}};
constexpr FaceRow kTetraFaces[] = {{0, 2, 1, -1}, {0, 1, 3, -1}, {1, 2, 3, -1}, {2, 0, 3, -1}};
constexpr FaceRow kPyramidFaces[] = {
    {0, 3, 2, 1}, {0, 1, 4, -1}, {1, 2, 4, -1}, {2, 3, 4, -1}, {3, 0, 4, -1}};
constexpr FaceRow kWedgeFaces[] = {
    {0, 2, 1, -1}, {3, 4, 5, -1}, {0, 1, 4, 3}, {1, 2, 5, 4}, {2, 0, 3, 5}};
constexpr FaceRow kBrickFaces[] = {{0, 3, 2, 1}, {4, 5, 6, 7}, {0, 1, 5, 4},
                                   {1, 2, 6, 5}, {2, 3, 7, 6}, {3, 0, 4, 7}};

constexpr VariantElementType SameVariant(ElementType type) {
  return static_cast<VariantElementType>(type);
}

constexpr ElementShape Line(ElementType type, CModule::ModuleId property,
                            VariantElementType variant) {
  return {type, 1,       2,          2, property == CModule::Section, property, type,
          None, variant, kLineEdges, {}};
}
constexpr ElementShape Line(ElementType type, CModule::ModuleId property) {
  return Line(type, property, SameVariant(type));
}
constexpr ElementShape Plate(ElementType type, int nodes, int corners, ElementType linear,
                             ElementType quadratic, std::span<EdgeRow const> edges,
                             std::span<FaceRow const> faces) {
  return {type,  2,    nodes, corners, false, CModule::Prop2D, linear, quadratic, SameVariant(type),
          edges, faces};
}
constexpr ElementShape Solid(ElementType type, int nodes, std::span<EdgeRow const> edges,
                             std::span<FaceRow const> faces) {
  return {type,  3,    nodes, nodes, false, CModule::Prop3D, type, None, SameVariant(type),
          edges, faces};
}

constexpr ElementShape kRows[] = {
    Line(Bar, CModule::Section),
    Line(Beam, CModule::Section),
    Line(Spring, CModule::SpringProp),
    Plate(Quad4, 4, 4, Quad4, Quad8, kQuadEdges, kQuadFaces),
    Plate(Quad8, 8, 4, Quad4, Quad8, kQuadEdges, kQuadFaces),
    Plate(Tri3, 3, 3, Tri3, Tri6, kTriEdges, kTriFaces),
    Plate(Tri6, 6, 3, Tri3, Tri6, kTriEdges, kTriFaces),
    Line(Link, CModule::LinkProp),
    Line(Cable, CModule::CableProp),
    Solid(Brick8, 8, kBrickEdges, kBrickFaces),
    Solid(Wedge6, 6, kWedgeEdges, kWedgeFaces),
    Solid(Tetra4, 4, kTetraEdges, kTetraFaces),
    Line(Spacer, CModule::SpacerProp, VariantElementType::Spacer),
    Line(Line20, CModule::Section),
    Line(Line21, CModule::Section),
    Line(Line23, CModule::Section),
    Line(Damper, CModule::DamperProp),
    Solid(Pyramid5, 5, kPyramidEdges, kPyramidFaces),
};

using Table = std::array<ElementShape, kHighestElementType + 1>;

constexpr Table MakeTable() {
  Table table{};
  for (int i = 0; i <= kHighestElementType; ++i) {
    table[static_cast<std::size_t>(i)].type = static_cast<ElementType>(i);
    table[static_cast<std::size_t>(i)].variant = static_cast<VariantElementType>(i);
  }
  for (auto const& row : kRows) table[static_cast<std::size_t>(row.type)] = row;
  return table;
}

constexpr Table kTable = MakeTable();

constexpr bool CountsAgree() {
  for (auto const& row : kTable) {
    if (row.dimension == 2 && row.edges.size() != static_cast<std::size_t>(row.corners))
      return false;
    if (row.dimension == 3 &&
        row.corners - static_cast<int>(row.edges.size()) + static_cast<int>(row.faces.size()) != 2)
      return false;  // Euler's formula for polyhedra
  }
  return true;
}
static_assert(CountsAgree());

}  // namespace

ElementShape const& ShapeOf(ElementType type) {
  auto const i = static_cast<std::size_t>(type);
  return i < kTable.size() ? kTable[i] : kTable[0];
}

}  // namespace Tarvex
