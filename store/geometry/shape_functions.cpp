#include "store/geometry/shape_functions.h"

#include <algorithm>
#include <cmath>
#include <stdexcept>
#include <string>

namespace Tarvex::Util {
namespace {

using NaturalPoint = Vec3<double>;

constexpr NaturalPoint kLineNodes[] = {{-1, 0, 0}, {1, 0, 0}, {0, 0, 0}};
constexpr NaturalPoint kTriangleNodes[] = {{0, 0, 0},   {1, 0, 0},     {0, 1, 0},
                                           {0.5, 0, 0}, {0.5, 0.5, 0}, {0, 0.5, 0}};
constexpr NaturalPoint kQuadNodes[] = {{-1, -1, 0}, {1, -1, 0}, {1, 1, 0}, {-1, 1, 0},
                                       {0, -1, 0},  {1, 0, 0},  {0, 1, 0}, {-1, 0, 0}};
constexpr NaturalPoint kTetraNodes[] = {{0, 0, 0}, {1, 0, 0}, {0, 1, 0}, {0, 0, 1}};
constexpr NaturalPoint kPyramidNodes[] = {
    {-1, -1, 0}, {1, -1, 0}, {1, 1, 0}, {-1, 1, 0}, {0, 0, 1}};
constexpr NaturalPoint kWedgeNodes[] = {{0, 0, -1}, {1, 0, -1}, {0, 1, -1},
                                        {0, 0, 1},  {1, 0, 1},  {0, 1, 1}};
constexpr NaturalPoint kBrickNodes[] = {{-1, -1, -1}, {1, -1, -1}, {1, 1, -1}, {-1, 1, -1},
                                        {-1, -1, 1},  {1, -1, 1},  {1, 1, 1},  {-1, 1, 1}};

// Terms are combined by the rules of differentiation, so that a shape is written once, as its
// value.
ShapeTerm operator+(ShapeTerm const& a, ShapeTerm const& b) {
  return {a.value + b.value, a.slope + b.slope};
}
ShapeTerm operator*(ShapeTerm const& a, ShapeTerm const& b) {
  return {a.value * b.value, a.slope * b.value + b.slope * a.value};
}
ShapeTerm operator*(double f, ShapeTerm const& a) { return {f * a.value, a.slope * f}; }
ShapeTerm operator-(ShapeTerm const& a, ShapeTerm const& b) { return a + -1.0 * b; }

ShapeTerm ConstantTerm(double value) { return {value, {}}; }
ShapeTerm AlongR(NaturalPoint const& at) { return {at.x, {1, 0, 0}}; }
ShapeTerm AlongS(NaturalPoint const& at) { return {at.y, {0, 1, 0}}; }
ShapeTerm AlongT(NaturalPoint const& at) { return {at.z, {0, 0, 1}}; }

/// The linear function of one co-ordinate that is 1 at the end of that sign and 0 at the other.
ShapeTerm TowardsEnd(double sign, ShapeTerm const& coordinate) {
  return 0.5 * (ConstantTerm(1) + sign * coordinate);
}

/// The function of one co-ordinate that is 1 in the middle and 0 at both ends.
ShapeTerm BubbleTerm(ShapeTerm const& coordinate) {
  return ConstantTerm(1) - coordinate * coordinate;
}

/// Makes corner shapes of linear ones, given the mid-side shapes behind them: each corner gives up
/// half of the two that stand next to it. Mid-side node m lies between corners m and m + 1.
void TakeMidSides(ShapeTerms& terms, std::size_t corners, std::size_t midSides) {
  for (std::size_t m = 0; m < midSides; ++m) {
    auto const half = 0.5 * terms[corners + m];
    terms[m] = terms[m] - half;
    terms[(m + 1) % corners] = terms[(m + 1) % corners] - half;
  }
}

void Line2Shapes(NaturalPoint const& at, ShapeTerms& terms) {
  terms[0] = TowardsEnd(-1, AlongR(at));
  terms[1] = TowardsEnd(1, AlongR(at));
}

void Line3Shapes(NaturalPoint const& at, ShapeTerms& terms) {
  Line2Shapes(at, terms);
  terms[2] = BubbleTerm(AlongR(at));
  TakeMidSides(terms, 2, 1);
}

void Tri3Shapes(NaturalPoint const& at, ShapeTerms& terms) {
  terms[0] = ConstantTerm(1) - AlongR(at) - AlongS(at);
  terms[1] = AlongR(at);
  terms[2] = AlongS(at);
}

void Tri6Shapes(NaturalPoint const& at, ShapeTerms& terms) {
  Tri3Shapes(at, terms);
  for (std::size_t m = 0; m < 3; ++m) terms[3 + m] = 4.0 * (terms[m] * terms[(m + 1) % 3]);
  TakeMidSides(terms, 3, 3);
}

void Quad4Shapes(NaturalPoint const& at, ShapeTerms& terms) {
  for (std::size_t i = 0; i < 4; ++i)
    terms[i] = TowardsEnd(kQuadNodes[i].x, AlongR(at)) * TowardsEnd(kQuadNodes[i].y, AlongS(at));
}

void Quad8Shapes(NaturalPoint const& at, ShapeTerms& terms) {
  Quad4Shapes(at, terms);
  for (std::size_t m = 4; m < 8; m += 2) {
    terms[m] = BubbleTerm(AlongR(at)) * TowardsEnd(kQuadNodes[m].y, AlongS(at));
    terms[m + 1] = BubbleTerm(AlongS(at)) * TowardsEnd(kQuadNodes[m + 1].x, AlongR(at));
  }
  TakeMidSides(terms, 4, 4);
}

void Tetra4Shapes(NaturalPoint const& at, ShapeTerms& terms) {
  Tri3Shapes(at, terms);
  terms[0] = terms[0] - AlongT(at);
  terms[3] = AlongT(at);
}

void Wedge6Shapes(NaturalPoint const& at, ShapeTerms& terms) {
  ShapeTerms triangle;
  Tri3Shapes(at, triangle);
  for (std::size_t i = 0; i < 6; ++i)
    terms[i] = triangle[i % 3] * TowardsEnd(kWedgeNodes[i].z, AlongT(at));
}

void Brick8Shapes(NaturalPoint const& at, ShapeTerms& terms) {
  for (std::size_t i = 0; i < 8; ++i)
    terms[i] = TowardsEnd(kBrickNodes[i].x, AlongR(at)) * TowardsEnd(kBrickNodes[i].y, AlongS(at)) *
               TowardsEnd(kBrickNodes[i].z, AlongT(at));
}

/// r s t / (1 - t), the rational part of the pyramid's shapes. It goes to 0 at the apex, where its
/// slope depends on the way there and is taken as 0.
ShapeTerm PyramidTwist(NaturalPoint const& at) {
  double const width = 1 - at.z;
  if (std::abs(width) < kZeroVector) return {};
  ShapeTerm const inverse{1 / width, {0, 0, 1 / (width * width)}};
  return AlongR(at) * AlongS(at) * AlongT(at) * inverse;
}

void Pyramid5Shapes(NaturalPoint const& at, ShapeTerms& terms) {
  auto const twist = PyramidTwist(at);
  for (std::size_t i = 0; i < 4; ++i) {
    double const r = kPyramidNodes[i].x;
    double const s = kPyramidNodes[i].y;
    auto const plane = (ConstantTerm(1) + r * AlongR(at)) * (ConstantTerm(1) + s * AlongS(at));
    terms[i] = 0.25 * (plane - AlongT(at) + (r * s) * twist);
  }
  terms[4] = AlongT(at);
}

double OutsideLine(NaturalPoint const& at) { return std::abs(at.x) - 1; }
double OutsideTriangle(NaturalPoint const& at) { return std::max({-at.x, -at.y, at.x + at.y - 1}); }
double OutsideQuad(NaturalPoint const& at) { return std::max(std::abs(at.x), std::abs(at.y)) - 1; }
double OutsideTetra(NaturalPoint const& at) {
  return std::max({-at.x, -at.y, -at.z, at.x + at.y + at.z - 1});
}
double OutsidePyramid(NaturalPoint const& at) {
  return std::max(-at.z, std::max(std::abs(at.x), std::abs(at.y)) - (1 - at.z));
}
double OutsideWedge(NaturalPoint const& at) {
  return std::max(OutsideTriangle(at), std::abs(at.z) - 1);
}
double OutsideBrick(NaturalPoint const& at) {
  return std::max(OutsideQuad(at), std::abs(at.z) - 1);
}

constexpr std::span<NaturalPoint const> FirstNodes(std::span<NaturalPoint const> nodes,
                                                   std::size_t count) {
  return nodes.first(count);
}

constexpr ShapeKind kKinds[] = {
    {SpaceType::Line, 2, 2, ElementType::Bar, FirstNodes(kLineNodes, 2), Line2Shapes, OutsideLine},
    {SpaceType::Line, 3, 2, ElementType::Bar, kLineNodes, Line3Shapes, OutsideLine},
    {SpaceType::Surface, 3, 3, ElementType::Tri3, FirstNodes(kTriangleNodes, 3), Tri3Shapes,
     OutsideTriangle},
    {SpaceType::Surface, 4, 4, ElementType::Quad4, FirstNodes(kQuadNodes, 4), Quad4Shapes,
     OutsideQuad},
    {SpaceType::Surface, 6, 3, ElementType::Tri6, kTriangleNodes, Tri6Shapes, OutsideTriangle},
    {SpaceType::Surface, 8, 4, ElementType::Quad8, kQuadNodes, Quad8Shapes, OutsideQuad},
    {SpaceType::Solid, 4, 4, ElementType::Tetra4, kTetraNodes, Tetra4Shapes, OutsideTetra},
    {SpaceType::Solid, 5, 5, ElementType::Pyramid5, kPyramidNodes, Pyramid5Shapes, OutsidePyramid},
    {SpaceType::Solid, 6, 6, ElementType::Wedge6, kWedgeNodes, Wedge6Shapes, OutsideWedge},
    {SpaceType::Solid, 8, 8, ElementType::Brick8, kBrickNodes, Brick8Shapes, OutsideBrick},
};

}  // namespace

ShapeKind const* FindShapeKind(SpaceType space, int nodes) noexcept {
  auto const* const found = std::find_if(
      std::begin(kKinds), std::end(kKinds),
      [&](ShapeKind const& kind) { return kind.space == space && kind.nodes == nodes; });
  return found == std::end(kKinds) ? nullptr : found;
}

ShapeKind const& ShapeKindOf(SpaceType space, int nodes) {
  if (auto const* const kind = FindShapeKind(space, nodes)) return *kind;
  throw std::invalid_argument("invalid number of values for " +
                              std::to_string(static_cast<int>(space)) + "D element");
}

Vec3<double> CentreOf(ShapeKind const& kind) {
  Vec3<double> sum;
  for (auto const& node : kind.natural.first(static_cast<std::size_t>(kind.corners))) sum += node;
  return sum / kind.corners;
}

Vec3<double> Interpolate(SpaceType space, std::span<Vec3<double> const> values,
                         Vec3<double> const& at) {
  ShapeTerms terms;
  ShapeKindOf(space, static_cast<int>(values.size())).evaluate(at, terms);
  Vec3<double> sum;
  for (std::size_t i = 0; i < values.size(); ++i) sum += values[i] * terms[i].value;
  return sum;
}

}  // namespace Tarvex::Util
