#include "store/geometry/surface_area.h"

#include <cmath>

#include "store/geometry/shape_functions.h"

namespace Tarvex::Util {
namespace {

/// Area of the image of a unit of natural area at a point.
double AreaFactor(ShapeKind const& kind, std::span<Vec3<double> const> nodes, double r, double s) {
  ShapeTerms terms;
  kind.evaluate({r, s, 0}, terms);
  Vec3<double> alongR;
  Vec3<double> alongS;
  for (std::size_t i = 0; i < nodes.size(); ++i) {
    alongR += nodes[i] * terms[i].slope.x;
    alongS += nodes[i] * terms[i].slope.y;
  }
  return Length(Cross(alongR, alongS));
}

double QuadrilateralArea(ShapeKind const& kind, std::span<Vec3<double> const> nodes) {
  double const root = std::sqrt(0.6);
  double const at[] = {-root, 0, root};
  double const weight[] = {5.0 / 9, 8.0 / 9, 5.0 / 9};
  double area = 0;
  for (int i = 0; i < 3; ++i)
    for (int j = 0; j < 3; ++j)
      area += weight[i] * weight[j] * AreaFactor(kind, nodes, at[i], at[j]);
  return area;
}

double TriangleArea(ShapeKind const& kind, std::span<Vec3<double> const> nodes) {
  double const root = std::sqrt(15.0);
  double area = 9.0 / 40 * AreaFactor(kind, nodes, 1.0 / 3, 1.0 / 3);
  for (double const sign : {-1.0, 1.0}) {
    double const near = (6 + sign * root) / 21;
    double const far = 1 - 2 * near;
    double const weight = (155 + sign * root) / 1200;
    for (auto const& [r, s] : {Vec2<double>{near, near}, {near, far}, {far, near}})
      area += weight * AreaFactor(kind, nodes, r, s);
  }
  return area / 2;  // the weights are those of a triangle of unit area
}

}  // namespace

double SurfaceArea(std::span<Vec3<double> const> nodes) {
  auto const* kind = FindShapeKind(SpaceType::Surface, static_cast<int>(nodes.size()));
  if (kind == nullptr) return 0;
  return kind->corners == 3 ? TriangleArea(*kind, nodes) : QuadrilateralArea(*kind, nodes);
}

}  // namespace Tarvex::Util
