#include "store/geometry/integration.h"

#include <cmath>
#include <vector>

namespace Tarvex::Util {
namespace {

using Rule = std::vector<RulePoint>;

/// Gauss with three points from -1 to 1.
Rule LineRule() {
  double const root = std::sqrt(0.6);
  return {{{-root, 0, 0}, 5.0 / 9}, {{0, 0, 0}, 8.0 / 9}, {{root, 0, 0}, 5.0 / 9}};
}

Rule TriangleRule() {
  double const root = std::sqrt(15.0);
  constexpr double kArea = 0.5;
  Rule rule{{{1.0 / 3, 1.0 / 3, 0}, kArea * 9 / 40}};
  for (double const sign : {-1.0, 1.0}) {
    double const near = (6 + sign * root) / 21;
    double const far = 1 - 2 * near;
    double const weight = kArea * (155 + sign * root) / 1200;
    for (auto const& [r, s] : {Vec2<double>{near, near}, {near, far}, {far, near}})
      rule.push_back({{r, s, 0}, weight});
  }
  return rule;
}

Rule QuadrilateralRule() {
  Rule rule;
  for (auto const& r : LineRule())
    for (auto const& s : LineRule())
      rule.push_back({{r.natural.x, s.natural.x, 0}, r.weight * s.weight});
  return rule;
}

/// A rule in r and s times the one in t.
Rule Extruded(Rule const& base) {
  Rule rule;
  for (auto const& point : base)
    for (auto const& t : LineRule())
      rule.push_back({{point.natural.x, point.natural.y, t.natural.x}, point.weight * t.weight});
  return rule;
}

/// A rule in r and s about the axis t from 0 to 1, where the base shrinks to nothing.
Rule Pointed(Rule const& base) {
  Rule rule;
  for (auto const& point : Extruded(base)) {
    double const t = (1 + point.natural.z) / 2;
    double const left = 1 - t;
    rule.push_back(
        {{point.natural.x * left, point.natural.y * left, t}, point.weight / 2 * left * left});
  }
  return rule;
}

struct RuleRow {
  SpaceType space;
  int corners;
  Rule rule;
};

}  // namespace

std::span<RulePoint const> RuleOf(ShapeKind const& kind) {
  static std::array const kRules{
      RuleRow{SpaceType::Line, 2, LineRule()},
      RuleRow{SpaceType::Surface, 3, TriangleRule()},
      RuleRow{SpaceType::Surface, 4, QuadrilateralRule()},
      RuleRow{SpaceType::Solid, 4, Pointed(TriangleRule())},
      RuleRow{SpaceType::Solid, 5, Pointed(QuadrilateralRule())},
      RuleRow{SpaceType::Solid, 6, Extruded(TriangleRule())},
      RuleRow{SpaceType::Solid, 8, Extruded(QuadrilateralRule())},
  };
  for (auto const& row : kRules)
    if (row.space == kind.space && row.corners == kind.corners) return row.rule;
  return {};
}

ElementPoint PointOf(ShapeKind const& kind, std::span<Vec3<double> const> nodes,
                     Vec3<double> const& natural, ShapeTerms& terms) {
  kind.evaluate(natural, terms);
  ElementPoint point;
  Vec3<double> alongR;
  Vec3<double> alongS;
  Vec3<double> alongT;
  for (std::size_t i = 0; i < nodes.size(); ++i) {
    point.position += nodes[i] * terms[i].value;
    alongR += nodes[i] * terms[i].slope.x;
    alongS += nodes[i] * terms[i].slope.y;
    alongT += nodes[i] * terms[i].slope.z;
  }
  point.terms = std::span(terms).first(nodes.size());
  if (kind.space == SpaceType::Surface) point.normal = Cross(alongR, alongS);
  if (kind.space == SpaceType::Line) point.size = Length(alongR);
  if (kind.space == SpaceType::Surface) point.size = Length(point.normal);
  if (kind.space == SpaceType::Solid) point.size = std::abs(Dot(Cross(alongR, alongS), alongT));
  return point;
}

ElementExtent ExtentOf(SpaceType space, std::span<Vec3<double> const> nodes) {
  ElementExtent extent;
  auto const* kind = FindShapeKind(space, static_cast<int>(nodes.size()));
  if (kind == nullptr) return extent;
  ForEachElementPoint(*kind, nodes, [&](ElementPoint const& point) {
    extent.size += point.size;
    extent.moment += point.position * point.size;
  });
  return extent;
}

}  // namespace Tarvex::Util
