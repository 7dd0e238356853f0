#include "store/record/element.h"

#include "store/select/checked_access.h"

namespace Tarvex::Data {

CElement::CElement(int group, ElementType type, int property)
    : m_type(type), m_group(group), m_property(property) {
  m_topology.resize(static_cast<std::size_t>(Shape().nodes), 0);
}

void CElement::SetType(ElementType type) {
  auto const corners = std::min(Shape().corners, ShapeOf(type).corners);
  bool const sameCorners = Shape().corners == ShapeOf(type).corners;
  bool const shaped = Shape().dimension != 0 && ShapeOf(type).dimension != 0;
  m_type = type;
  if (!shaped) return;
  auto const count = static_cast<std::size_t>(Shape().nodes);
  // Mid-side nodes mean the same place only in a shape of the same corners.
  if (!sameCorners) {
    m_topology.resize(std::min(m_topology.size(), static_cast<std::size_t>(corners)));
    m_connect.Truncate(corners);
  }
  m_topology.resize(count, 0);
  m_connect.Truncate(Shape().nodes);
}

int CElement::Topo(int place) const {
  auto const at = static_cast<std::size_t>(place);
  return at < m_topology.size() ? m_topology[at] : 0;
}

void CElement::SetTopo(int place, int node) { CheckedAt(m_topology, place) = node; }

std::vector<int> CElement::FaceTopo(int face) const {
  std::vector<int> nodes;
  auto const& faces = Shape().faces;
  if (face < 0 || static_cast<std::size_t>(face) >= faces.size()) return nodes;
  for (auto const place : faces[static_cast<std::size_t>(face)])
    if (place >= 0) nodes.push_back(Topo(place));
  return nodes;
}

}  // namespace Tarvex::Data
