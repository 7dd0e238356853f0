#include "store/geometry/shape_inverse.h"

#include <algorithm>
#include <cmath>
#include <limits>

namespace Tarvex::Util {
namespace {

/// Sine of the angle between the directions of a shape, and their length against its size, below
/// which it has no area or volume there.
constexpr double kFlat = 1e-12;
/// Rounding of natural co-ordinates themselves.
constexpr double kNaturalRounding = 1e-12;
constexpr int kMostSteps = 60;
constexpr int kMostHalvings = 8;
/// Steps to the nearest point of a side. One finds it on a straight side.
constexpr int kSideSteps = 8;
/// Steps below this, in natural co-ordinates, are taken whole: Newton's method converges there.
constexpr double kLocalStep = 0.1;
/// A step this small that no longer shrinks is rounding: the point is found.
constexpr double kSmallStep = 1e-9;
constexpr double kLeastStep = 1e-15;

double LargestComponent(Vec3<double> const& v) {
  return std::max({std::abs(v.x), std::abs(v.y), std::abs(v.z)});
}

/// The shape at natural co-ordinates, seen from the point that is looked for.
struct ShapePlace {
  Vec3<double> offset;  ///< from the point
  Vec3<double> r;       ///< derivative by r
  Vec3<double> s;       ///< derivative by s
  Vec3<double> t;       ///< derivative by t; of a surface, a vector at a right angle to r and s
};

/// The search for one point in one shape. Lengths are in units of the shape's size and places are
/// relative to the point, so that far co-ordinates cost no digits.
class ShapeSearch {
 public:
  ShapeSearch(ShapeKind const& kind, std::span<Vec3<double> const> nodes, Vec3<double> const& point)
      : m_kind(kind) {
    Vec3<double> low = nodes[0];
    Vec3<double> high = nodes[0];
    for (auto const& node : nodes) {
      low = {std::min(low.x, node.x), std::min(low.y, node.y), std::min(low.z, node.z)};
      high = {std::max(high.x, node.x), std::max(high.y, node.y), std::max(high.z, node.z)};
    }
    m_size = LargestComponent(high - low);
    m_far = LargestComponent((low + high) * 0.5 - point);
    m_rounding = 8 * kZeroVector *
                 std::max({LargestComponent(low), LargestComponent(high), LargestComponent(point)});
    for (std::size_t i = 0; i < nodes.size(); ++i) m_nodes[i] = (nodes[i] - point) / m_size;
  }

  /// Whether the point may belong to the shape. The shape functions of a point inside sum to at
  /// most 3 by their amounts, so that it lies within 1.5 sizes of the middle.
  bool IsNear(double tol) const {
    return std::isfinite(m_size) && m_size > 0 && m_far <= 2 * m_size * (1 + tol) + tol;
  }

  /// Whether the shape has area or volume somewhere.
  bool HasSpace() const {
    if (IsRegular(At(CentreOf(m_kind)))) return true;
    return std::any_of(m_kind.natural.begin(), m_kind.natural.end(),
                       [this](Vec3<double> const& node) { return IsRegular(At(node)); });
  }

  bool FindFrom(Vec3<double> const& start, double tol, Vec3<double>& natural) const {
    auto at = start;
    if (!Converge(at)) return false;
    if (!IsWithin(at, tol)) return false;
    double const allowed = m_kind.space == SpaceType::Surface ? tol : 0;
    if (!(Length(At(at).offset) * m_size <= allowed + Rounding() * m_size)) return false;
    natural = at;
    return true;
  }

  /// Whether natural co-ordinates lie in the shape, or over its edge or face by the tolerance.
  bool IsWithin(Vec3<double> const& at, double tol) const {
    double const overrun = m_kind.overrun(at);
    if (m_kind.space != SpaceType::Surface) return overrun <= tol + Rounding();
    return overrun <= Rounding() || DistanceToSides(at) * m_size <= tol + Rounding() * m_size;
  }

 private:
  ShapePlace At(Vec3<double> const& natural) const {
    ShapeTerms terms;
    m_kind.evaluate(natural, terms);
    ShapePlace place;
    for (std::size_t i = 0; i < m_kind.natural.size(); ++i) {
      place.offset += m_nodes[i] * terms[i].value;
      place.r += m_nodes[i] * terms[i].slope.x;
      place.s += m_nodes[i] * terms[i].slope.y;
      place.t += m_nodes[i] * terms[i].slope.z;
    }
    if (m_kind.space == SpaceType::Surface) place.t = Cross(place.r, place.s);
    return place;
  }

  /// Rounding that is allowed for in natural co-ordinates.
  double Rounding() const { return kNaturalRounding + m_rounding / m_size; }

  /// How far the point of a surface at natural co-ordinates outside of it lies from its sides.
  double DistanceToSides(Vec3<double> const& at) const {
    auto const point = At(at).offset;
    auto const corners = static_cast<std::size_t>(m_kind.corners);
    double least = std::numeric_limits<double>::infinity();
    for (std::size_t i = 0; i < corners; ++i) {
      auto const& start = m_kind.natural[i];
      least =
          std::min(least, DistanceToSide(start, m_kind.natural[(i + 1) % corners] - start, point));
    }
    return least;
  }
  double DistanceToSide(Vec3<double> const& start, Vec3<double> const& along,
                        Vec3<double> const& point) const {
    double t = 0.5;
    for (int i = 0; i < kSideSteps; ++i) {
      auto const place = At(start + along * t);
      auto const slope = place.r * along.x + place.s * along.y;
      double const step = Dot(point - place.offset, slope) / Dot(slope, slope);
      if (!std::isfinite(step)) break;  // a side without length
      t = std::clamp(t + step, 0.0, 1.0);
    }
    return Length(At(start + along * t).offset - point);
  }

  bool IsRegular(ShapePlace const& place) const {
    double const r = Length(place.r);
    double const s = Length(place.s);
    if (!(r > kFlat && s > kFlat)) return false;
    if (m_kind.space == SpaceType::Surface) return Length(place.t) > kFlat * r * s;
    double const t = Length(place.t);
    return t > kFlat && std::abs(Dot(place.r, Cross(place.s, place.t))) > kFlat * r * s * t;
  }

  /// Newton's step by Cramer's rule. For a surface it is that of the nearest point of the tangent
  /// plane, since the third direction stands at a right angle to it.
  bool Step(ShapePlace const& place, Vec3<double>& step) const {
    if (!IsRegular(place)) return false;
    auto const st = Cross(place.s, place.t);
    double const det = Dot(place.r, st);
    auto const& f = place.offset;
    step =
        Vec3<double>{Dot(f, st), Dot(place.r, Cross(f, place.t)), Dot(place.r, Cross(place.s, f))} /
        -det;
    if (m_kind.space == SpaceType::Surface) step.z = 0;
    return true;
  }

  /// A part of the step that comes nearer to the point.
  Vec3<double> Damped(Vec3<double> const& from, Vec3<double> const& step, double distance) const {
    double part = std::min(1.0, 1 / LargestComponent(step));
    for (int i = 0; i < kMostHalvings; ++i, part *= 0.5) {
      if (Length(At(from + step * part).offset) < distance) break;
    }
    return from + step * part;
  }

  bool Converge(Vec3<double>& at) const {
    double last = std::numeric_limits<double>::infinity();
    for (int i = 0; i < kMostSteps; ++i) {
      auto const place = At(at);
      double const distance = Length(place.offset);
      Vec3<double> step;
      if (distance == 0) return true;
      if (!Step(place, step)) return false;
      double const length = LargestComponent(step);
      at = length > kLocalStep ? Damped(at, step, distance) : at + step;
      if (length <= kLeastStep || (length <= kSmallStep && length >= 0.5 * last)) return true;
      last = length;
    }
    return last <= kSmallStep;
  }

  ShapeKind const& m_kind;
  std::array<Vec3<double>, kMostShapeNodes> m_nodes;
  double m_size = 0;
  double m_far = 0;
  double m_rounding = 0;
};

}  // namespace

bool FindNatural(SpaceType space, std::span<Vec3<double> const> nodes, Vec3<double> const& point,
                 double tol, Vec3<double>& natural) noexcept {
  auto const* const kind = FindShapeKind(space, static_cast<int>(nodes.size()));
  if (!kind) return false;
  ShapeSearch const search(*kind, nodes, point);
  if (!search.IsNear(tol) || !search.HasSpace()) return false;
  if (search.FindFrom(CentreOf(*kind), tol, natural)) return true;
  return std::any_of(kind->natural.begin(), kind->natural.end(),
                     [&](Vec3<double> const& node) { return search.FindFrom(node, tol, natural); });
}

bool HoldsNatural(SpaceType space, std::span<Vec3<double> const> nodes, Vec3<double> const& natural,
                  double tol) noexcept {
  auto const* const kind = FindShapeKind(space, static_cast<int>(nodes.size()));
  if (!kind || !std::isfinite(natural.x + natural.y + natural.z)) return false;
  return ShapeSearch(*kind, nodes, Interpolate(space, nodes, natural)).IsWithin(natural, tol);
}

}  // namespace Tarvex::Util
