// Plates refined at a corner.
#include "members/refined_element.h"
#include "tarvex/refinement.h"

namespace Tarvex::ZelUtil {
namespace {

constexpr double kExact = 0.0;  // tolerance of nodes that no neighbour shares

// Shares of a side at which the mid-side nodes of its two halves stand.
constexpr double kNearMiddle = 0.25;
constexpr double kFarMiddle = 0.75;
constexpr double kMiddle = 0.5;

}  // namespace

bool RefineQuadAtCorner(CZelData& model, int element, int corner, double ratio, double tolerance,
                        CString const& sid) {
  RefinedElement const quad(model, element, SpaceType::Surface, 4, sid);
  auto const old = [&](int place) { return quad.Old().Topo(place); };
  int const c = corner;
  int const c1 = (c + 1) % 4;
  int const c2 = (c + 2) % 4;
  int const c3 = (c + 3) % 4;
  auto const p = quad.At(c);
  auto const centre = ratio * p;
  int const m = quad.NodeAt(centre, kExact);
  if (!quad.IsQuadratic()) {
    int const s1 = quad.NodeAt(Between(p, quad.At(c1), kMiddle), tolerance);
    int const s3 = quad.NodeAt(Between(p, quad.At(c3), kMiddle), tolerance);
    quad.AddPiece(ElementType::Quad4, std::array{old(c), s1, m, s3});
    quad.AddPiece(ElementType::Quad4, std::array{s1, old(c1), old(c2), m});
    quad.AddPiece(ElementType::Quad4, std::array{s3, m, old(c2), old(c3)});
    return true;
  }
  int const s1 = old(c + 4);
  int const s3 = old(c3 + 4);
  int const k1 = old(c1 + 4);
  int const k2 = old(c2 + 4);
  int const a = quad.NodeAt(Between(p, quad.At(c1), kNearMiddle), tolerance);
  int const b = quad.NodeAt(Between(p, quad.At(c3), kNearMiddle), tolerance);
  int const d = quad.NodeAt(Between(p, quad.At(c1), kFarMiddle), tolerance);
  int const e = quad.NodeAt(Between(p, quad.At(c3), kFarMiddle), tolerance);
  auto const toSide1 = Between(p, quad.At(c1), kMiddle);
  auto const toSide3 = Between(p, quad.At(c3), kMiddle);
  int const f = quad.NodeAt(Between(toSide1, centre, kMiddle), kExact);
  int const g = quad.NodeAt(Between(toSide3, centre, kMiddle), kExact);
  int const h = quad.NodeAt(Between(centre, quad.At(c2), kMiddle), kExact);
  quad.AddPiece(ElementType::Quad8, std::array{old(c), s1, m, s3, a, f, g, b});
  quad.AddPiece(ElementType::Quad8, std::array{s1, old(c1), old(c2), m, d, k1, h, f});
  quad.AddPiece(ElementType::Quad8, std::array{s3, m, old(c2), old(c3), g, h, k2, e});
  return true;
}

bool RefineTriAtCorner(CZelData& model, int element, int corner, double tolerance,
                       CString const& sid) {
  RefinedElement const triangle(model, element, SpaceType::Surface, 3, sid);
  auto const old = [&](int place) { return triangle.Old().Topo(place); };
  int const c = corner;
  int const c1 = (c + 1) % 3;
  int const c2 = (c + 2) % 3;
  auto const at = triangle.At(c);
  auto const at1 = triangle.At(c1);
  auto const at2 = triangle.At(c2);
  auto const toP = Between(at, at1, kMiddle);
  auto const toQ = Between(at, at2, kMiddle);
  if (!triangle.IsQuadratic()) {
    int const p = triangle.NodeAt(toP, tolerance);
    int const q = triangle.NodeAt(toQ, tolerance);
    triangle.AddPiece(ElementType::Tri3, std::array{old(c), p, q});
    triangle.AddPiece(ElementType::Quad4, std::array{p, old(c1), old(c2), q});
    return true;
  }
  int const p = old(c + 3);
  int const q = old(c2 + 3);
  int const k = old(c1 + 3);
  int const a = triangle.NodeAt(Between(at, at1, kNearMiddle), tolerance);
  int const b = triangle.NodeAt(Between(at, at2, kNearMiddle), tolerance);
  int const d = triangle.NodeAt(Between(at, at1, kFarMiddle), tolerance);
  int const e = triangle.NodeAt(Between(at, at2, kFarMiddle), tolerance);
  int const m = triangle.NodeAt(Between(toP, toQ, kMiddle), tolerance);
  triangle.AddPiece(ElementType::Tri6, std::array{old(c), p, q, a, m, b});
  triangle.AddPiece(ElementType::Quad8, std::array{p, old(c1), old(c2), q, d, k, e, m});
  return true;
}

}  // namespace Tarvex::ZelUtil
