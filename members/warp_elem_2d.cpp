// Warped quadrilaterals cut along the shorter diagonal.
#include <algorithm>
#include <cmath>

#include "frame/rebuild_hold.h"
#include "members/plate_corners.h"
#include "store/record/prop_2d.h"
#include "tarvex/conversion.h"
#include "tarvex/data_mgr.h"

namespace Tarvex {
namespace {

/// An element is warped above this share of its longest side.
constexpr double kMostWarp = 0.01;
/// The diagonal from the first corner is taken while it is at most so many times the other.
constexpr double kFavourFirst = 1.1;

constexpr int kNewNode = 8;  // in the place of a topology position

/// Topology positions of the two triangles; of a linear element the first three are taken.
struct CutRow {
  int from, to;  ///< the corners that the cut runs between
  std::array<std::array<int, 6>, 2> triangles;
};
constexpr CutRow kFirstDiagonal{0, 2, {{{0, 1, 2, 4, 5, kNewNode}, {2, 3, 0, 6, 7, kNewNode}}}};
constexpr CutRow kSecondDiagonal{1, 3, {{{0, 1, 3, 4, kNewNode, 7}, {2, 3, 1, 6, kNewNode, 5}}}};

bool IsWarped(QuadPoints const& p, Vec3<double> const& normal) {
  double longest = 0;
  for (std::size_t i = 0; i < p.size(); ++i)
    longest = std::max(longest, Length(p[(i + 1) % 4] - p[i]));
  return std::abs(Dot(p[1] - p[0], normal)) / (Length(normal) * longest) > kMostWarp;
}

CutRow const& CutOf(QuadPoints const& p) {
  return Length(p[2] - p[0]) > Length(p[3] - p[1]) * kFavourFirst ? kSecondDiagonal
                                                                  : kFirstDiagonal;
}

bool StaysWhole(CZelData const& model, Data::CElement const& element) {
  int const property = element.Property();
  return model.Prop2DExist(property) &&
         model.Prop2D(property).Type() == Data::PropertyType2d::CurvedShell;
}

}  // namespace

CWarpElem2D::CWarpElem2D(CZelData& model) : ConversionTool(model) {}
CWarpElem2D::CWarpElem2D(CWarpElem2D const&) = default;
CWarpElem2D::CWarpElem2D(CWarpElem2D&&) noexcept = default;
CWarpElem2D::~CWarpElem2D() = default;

bool CWarpElem2D::Do() {
  RebuildHold const hold(m_model);
  CDataMgr::NumberLists pieces;
  for (int const n : m_set) {
    if (!m_model.ElemExist(n)) continue;
    auto const quad = m_model.Elem(n);
    if (!IsCuttable(m_model, quad) || !HasCorners(m_model, quad, quad.NumTopo()) ||
        StaysWhole(m_model, quad))
      continue;
    auto const points = CornerPoints(m_model, quad);
    if (!IsWarped(points, m_model.Normal(n, -2, EntAt::Ends))) continue;
    auto const& cut = CutOf(points);
    bool const quadratic = quad.NumTopo() > kQuadCorners;
    int newNode = 0;
    if (quadratic) {
      auto const& from = points[static_cast<std::size_t>(cut.from)];
      auto const& to = points[static_cast<std::size_t>(cut.to)];
      newNode = m_model.HighestNode() + 1;
      m_model.SetNode(newNode, Data::CNode((from + to) * 0.5, 0, Vbool6()));
    }
    auto triangle = quad;
    triangle.SetType(quadratic ? ElementType::Tri6 : ElementType::Tri3);
    auto const store = [&](int number, std::array<int, 6> const& places) {
      std::array<int, 6> nodes{};
      for (std::size_t k = 0; k < nodes.size(); ++k)
        nodes[k] = places[k] == kNewNode ? newNode : quad.Topo(places[k]);
      triangle.SetTopo(std::span(nodes).first(quadratic ? 6 : 3));
      m_model.SetElem(number, triangle);
    };
    store(n, cut.triangles[0]);
    int const second = m_model.HighestElem() + 1;
    store(second, cut.triangles[1]);
    pieces.emplace_hint(pieces.end(), n, std::vector<int>{n, second});
  }
  CDataMgr(m_model).ReplaceElemRef(pieces, true);
  return true;
}

}  // namespace Tarvex
