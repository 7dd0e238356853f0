// Quadrilaterals replaced by two triangles each.
#include <boost/container/static_vector.hpp>

#include "frame/rebuild_hold.h"
#include "members/plate_corners.h"
#include "tarvex/conversion.h"
#include "tarvex/data_mgr.h"

namespace Tarvex {
namespace {

/// The corner that the cut starts from: the one with the smallest product of the two sides that
/// leave it, among those below 1; the first of equal ones, and corner 0 without any.
int FlattestCorner(QuadPoints const& points) {
  double least = 1.0;
  int found = 0;
  for (std::size_t j = 0; j < points.size(); ++j) {
    auto const before = points[(j + 3) % 4] - points[j];
    auto const behind = points[(j + 1) % 4] - points[j];
    if (double const product = Dot(before, behind); product < least) {
      least = product;
      found = static_cast<int>(j);
    }
  }
  return found;
}

/// Stores the node in the middle of the diagonal between two nodes.
int AddDiagonalNode(CZelData& model, int a, int b) {
  auto const& start = model.Node(a);
  auto const& end = model.Node(b);
  int const axis = start.Axis() == end.Axis() ? start.Axis() : 0;
  Data::CNode const node((start.Position() + end.Position()) * 0.5, axis,
                         start.Restraint() & end.Restraint());
  int const number = model.HighestNode() + 1;
  model.SetNode(number, node);
  return number;
}

/// The triangle of the corners i, i + 1 and i + 2 of a quadrilateral.
/// @param diagonal the node between the last and the first of them, 0 for a linear element.
Data::CElement TriangleOf(Data::CElement const& quad, int i, int diagonal) {
  bool const quadratic = quad.NumTopo() > kQuadCorners;
  auto triangle = quad;
  triangle.SetType(quadratic ? ElementType::Tri6 : ElementType::Tri3);
  triangle.Lock(false);
  constexpr std::size_t kMostNodes = 6;
  boost::container::static_vector<int, kMostNodes> nodes;
  boost::container::static_vector<CElemConnect, kMostNodes> connects;
  auto const take = [&](int place) {
    nodes.push_back(quad.Topo(place));
    connects.push_back(quad.Connect(place));
  };
  for (int k = 0; k < 3; ++k) take((i + k) % kQuadCorners);
  if (quadratic) {
    for (int k = 0; k < 2; ++k) take(kQuadCorners + (i + k) % kQuadCorners);
    nodes.push_back(diagonal);
    connects.emplace_back(connects[0].Release() & connects[2].Release());
  }
  triangle.SetTopo({nodes.data(), nodes.size()});
  for (std::size_t place = 0; place < connects.size(); ++place)
    triangle.SetConnect(static_cast<int>(place), connects[place]);
  return triangle;
}

}  // namespace

CMod2DToTriangle::CMod2DToTriangle(CZelData& model) : ConversionTool(model) {}
CMod2DToTriangle::CMod2DToTriangle(CMod2DToTriangle const&) = default;
CMod2DToTriangle::CMod2DToTriangle(CMod2DToTriangle&&) noexcept = default;
CMod2DToTriangle::~CMod2DToTriangle() = default;

bool CMod2DToTriangle::Do() {
  RebuildHold const hold(m_model);
  CDataMgr::NumberLists pieces;
  for (int const n : m_set) {
    if (!m_model.ElemExist(n) || !IsCuttable(m_model, m_model.Elem(n))) continue;
    auto const quad = m_model.Elem(n);
    int const i = FlattestCorner(CornerPoints(m_model, quad));
    int const opposite = (i + 2) % kQuadCorners;
    int const diagonal = quad.NumTopo() > kQuadCorners
                             ? AddDiagonalNode(m_model, quad.Topo(i), quad.Topo(opposite))
                             : 0;
    int const first = m_model.HighestElem() + 1;
    m_model.SetElem(first, TriangleOf(quad, i, diagonal));
    m_model.SetElem(first + 1, TriangleOf(quad, opposite, diagonal));
    pieces.emplace_hint(pieces.end(), n, std::vector<int>{first, first + 1});
  }
  CDataMgr const manager(m_model);
  manager.Map2DLoading(pieces);
  manager.ReplaceElemRef(pieces, true);
  for (auto const& [n, made] : pieces) m_model.BlankElem(n, 1);
  return true;
}

}  // namespace Tarvex
