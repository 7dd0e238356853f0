#include "topology/entity_nodes.h"

#include "store/record/element.h"
#include "store/record/load_panel.h"
#include "store/record/member.h"
#include "store/record/node.h"

namespace Tarvex {

Data::TopoVector NodesOf(CZelData const& model, SEntRef const& ref) {
  if (ref.type == SelMember)
    return model.MemberExist(ref.num) ? model.Member(ref.num).Topo().Nodes() : Data::TopoVector();
  if (ref.type != SelElement) return {};
  if (model.ElemExist(ref.num)) {
    auto const& topology = model.Elem(ref.num).Topology();
    return {topology.begin(), topology.end()};
  }
  return model.LoadPanelExist(ref.num) ? model.LoadPanel(ref.num).Topology() : Data::TopoVector();
}

NodePoints PointsOf(CZelData const& model, Data::TopoVector const& nodes, std::size_t count) {
  NodePoints points;
  for (std::size_t i = 0; i < count; ++i) {
    if (!model.NodeExist(nodes[i])) return {};
    points.push_back(model.NodeCoor(nodes[i]));
  }
  return points;
}

std::optional<EndNodes> EndNodesOf(CZelData const& model, SEntRef const& ref) {
  if (ref.type == SelElement && !model.ElemExist(ref.num)) return std::nullopt;
  auto const nodes = NodesOf(model, ref);
  if (nodes.size() < 2) return std::nullopt;
  return EndNodes{nodes.front(), ref.type == SelMember ? nodes.back() : nodes[1]};
}

}  // namespace Tarvex
