// Loads along edges of plates given to the edges of the pieces that lie on them.
#include <algorithm>

#include "topology/plate_mapping.h"

namespace Tarvex {
namespace {

/// Corner of a plate, counted round its ring.
int RingCorner(Data::CElement const& plate, int place) {
  return plate.Topo(place % NumCorner(plate));
}

/// Calls visit(a, b) for each side of a plate in the direction of its ring, until one is true.
/// @return whether one was.
template <class Visit>
bool AnySide(CZelData const& model, int element, Visit&& visit) {
  if (!model.ElemExist(element)) return false;
  auto const& plate = model.Elem(element);
  for (int i = 0; i < NumCorner(plate); ++i)
    if (visit(plate.Topo(i), RingCorner(plate, i + 1))) return true;
  return false;
}

}  // namespace

bool CDataMgr::MapEdgeLoading(NumberLists const& pieces) const {
  auto const loaded = LoadedNumbers<EdgeLoads>(m_model, false);
  if (loaded.empty()) return true;
  return MapByPair<EdgeLoads>(
      m_model, pieces,
      [&](int parent) {
        bool const wanted = loaded.contains(parent);
        if (wanted) BuildEdgeChains(parent, pieces.at(parent));
        return wanted;
      },
      [&](auto& loads, int parent, int sub) { return MapEdgeLoading(loads, parent, sub); });
}

void CDataMgr::BuildEdgeChains(int parent, Numbers const& subs) const {
  m_edgeChains.clear();
  if (!m_model.ElemExist(parent)) return;
  auto const plate = m_model.Elem(parent);
  int const corners = NumCorner(plate);
  // An outline has no more sides than its pieces have together: a longer walk goes in circles.
  std::size_t sides = 0;
  for (int const sub : subs)
    if (m_model.ElemExist(sub)) sides += static_cast<std::size_t>(NumCorner(m_model.Elem(sub)));
  m_edgeChains.resize(static_cast<std::size_t>(corners));
  for (int edge = 0; edge < corners; ++edge) {
    auto& chain = m_edgeChains[static_cast<std::size_t>(edge)];
    m_lastElement = 0;
    int const end = RingCorner(plate, edge + 1);
    int node = plate.Topo(edge);
    chain = {node};
    while (node != end) {
      node = NextEdgeNode(parent, node, subs);
      if (node < 1 || chain.size() > sides) {
        chain.clear();
        break;
      }
      chain.push_back(node);
    }
  }
}

int CDataMgr::NextEdgeNode(int, int node, Numbers const& subs) const {
  for (int const sub : subs) {
    if (sub == m_lastElement) continue;
    int next = 0;
    bool const found = AnySide(m_model, sub, [&](int a, int b) {
      next = b;
      return a == node && ExternalEdge(a, b, subs);
    });
    if (!found) continue;
    m_lastElement = sub;
    return next;
  }
  return -1;
}

bool CDataMgr::ExternalEdge(int a, int b, Numbers const& subs) const {
  int count = 0;
  for (int const sub : subs) {
    bool const shared = AnySide(m_model, sub, [&](int p, int q) {
      return ((p == a && q == b) || (p == b && q == a)) && ++count > 1;
    });
    if (shared) return false;
  }
  return count == 1;
}

int CDataMgr::NumElemAttached(int node, Numbers const& subs) const {
  return static_cast<int>(std::count_if(subs.begin(), subs.end(), [&](int sub) {
    return AnySide(m_model, sub, [&](int corner, int) { return corner == node; });
  }));
}

int CDataMgr::ElemIncludedOnEdge(int sub, int edge, double& start, double& end) const {
  start = end = 0;
  if (edge < 1 || static_cast<std::size_t>(edge) > m_edgeChains.size()) return -1;
  auto const& chain = m_edgeChains[static_cast<std::size_t>(edge) - 1];
  if (chain.size() < 2) return -1;
  auto const at = [&](int node) { return m_model.NodeCoor(node); };
  auto const first = at(chain.front());
  double const total = Length(at(chain.back()) - first);
  if (total < kZeroLength) return -1;  // there is no place along it
  for (std::size_t i = 0; i + 1 < chain.size(); ++i) {
    int side = 0;
    bool const found = AnySide(m_model, sub, [&](int p, int q) {
      ++side;
      return p == chain[i] && q == chain[i + 1];
    });
    if (!found) continue;
    start = Length(at(chain[i]) - first) / total;
    end = Length(at(chain[i + 1]) - first) / total;
    return side;
  }
  return -1;
}

bool CDataMgr::MapEdgeLoading(int parent, int sub) const {
  return MapOfParent<EdgeLoads>(m_model, parent,
                                [&](auto& loads) { return MapEdgeLoading(loads, parent, sub); });
}

template <class Loads>
bool CDataMgr::MapEdgeLoading(Loads& loads, int parent, int sub) const {
  bool all = !loads.IsOnIndirect(parent);
  auto const numbers = loads.On(parent);
  bool const finite =
      numbers.empty() || (HasFiniteNodes(m_model, parent) && HasFiniteNodes(m_model, sub));
  for (int const n : numbers) {
    auto load = m_model.EdgeLoad(n);
    if (!finite || !HasFiniteValues(load, 2)) {
      all = false;
      continue;
    }
    double start = 0;
    double end = 0;
    int const edge = ElemIncludedOnEdge(sub, load.Edge(), start, end);
    if (edge < 0) continue;
    double const first = load.Value(0);
    double const rise = load.Value(1) - first;
    load.SetEdge(edge);
    load.SetValue(0, first + rise * start);
    load.SetValue(1, first + rise * end);
    if (HasFiniteValues(load, 2)) loads.AppendOn(sub, load);
  }
  return all;
}

void CDataMgr::UnMapEdgeLoading(int parent) const { TakeElementOff<EdgeLoads>(m_model, parent); }

}  // namespace Tarvex
