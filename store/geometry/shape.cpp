#include "store/geometry/shape.h"

#include <stdexcept>
#include <utility>

#include "store/geometry/shape_inverse.h"

namespace Tarvex::Util {
namespace {

/// Index of face 0 of a solid; further faces count downwards.
constexpr int kFirstFace = -10;

Vec3<double> FaceCentre(ShapeKind const& kind, int face) {
  auto const& faces = ShapeOf(kind.element).faces;
  if (face < 0 || static_cast<std::size_t>(face) >= faces.size())
    throw std::out_of_range("invalid face of a shape");
  Vec3<double> sum;
  int count = 0;
  for (int const place : faces[static_cast<std::size_t>(face)]) {
    if (place < 0) continue;
    sum += kind.natural[static_cast<std::size_t>(place)];
    ++count;
  }
  return sum / count;
}

Vec3<double> NaturalOf(ShapeKind const& kind, int index) {
  if (index == CShape::kCentre) return CentreOf(kind);
  if (kind.space == SpaceType::Solid && index <= kFirstFace)
    return FaceCentre(kind, kFirstFace - index);
  if (index < 0 || index >= kind.nodes) throw std::out_of_range("invalid node of a shape");
  return kind.natural[static_cast<std::size_t>(index)];
}

}  // namespace

CShape::CShape(SpaceType space, std::vector<Vec3<double>> nodes)
    : m_space(space), m_nodes(std::move(nodes)) {}

Vec3<double> CShape::At(SpaceType space, Vec3<double> const& natural) const {
  if (space != m_space) throw std::invalid_argument("shape of another space");
  return Interpolate(m_space, m_nodes, natural);
}

Vec3<double> CShape::CoorAtR(double r) const { return At(SpaceType::Line, {r, 0, 0}); }

Vec3<double> CShape::CoorAtRS(Vec2<double> rs) const {
  return At(SpaceType::Surface, {rs.x, rs.y, 0});
}

Vec3<double> CShape::CoorAtRST(Vec3<double> const& rst) const { return At(SpaceType::Solid, rst); }

bool CShape::FindRS(Vec3<double> const& point, Vec2<double>& rs, double tol) const noexcept {
  Vec3<double> natural;
  if (m_space != SpaceType::Surface || !FindNatural(m_space, m_nodes, point, tol, natural))
    return false;
  rs = {natural.x, natural.y};
  return true;
}

bool CShape::FindRST(Vec3<double> const& point, Vec3<double>& rst, double tol) const noexcept {
  return m_space == SpaceType::Solid && FindNatural(m_space, m_nodes, point, tol, rst);
}

bool CShape::HoldsRS(Vec2<double> rs, double tol) const noexcept {
  return m_space == SpaceType::Surface && HoldsNatural(m_space, m_nodes, {rs.x, rs.y, 0}, tol);
}

Vec2<double> CShape::RS(int nodes, int index) {
  auto const natural = NaturalOf(ShapeKindOf(SpaceType::Surface, nodes), index);
  return {natural.x, natural.y};
}

Vec3<double> CShape::RST(int nodes, int index) {
  return NaturalOf(ShapeKindOf(SpaceType::Solid, nodes), index);
}

}  // namespace Tarvex::Util
