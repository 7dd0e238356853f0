// Plates without their mid-side nodes.
#include "frame/rebuild_hold.h"
#include "store/record/element.h"
#include "tarvex/conversion.h"

namespace Tarvex {

CMod2DToLinear::CMod2DToLinear(CZelData& model) : OrderTool(model) {}
CMod2DToLinear::CMod2DToLinear(CMod2DToLinear const&) = default;
CMod2DToLinear::CMod2DToLinear(CMod2DToLinear&&) noexcept = default;
CMod2DToLinear::~CMod2DToLinear() = default;

bool CMod2DToLinear::Do() {
  RebuildHold const hold(m_model);
  std::vector<int> middles;
  for (int const n : m_set) {
    if (!m_model.ElemExist(n)) continue;
    auto const& element = m_model.Elem(n);
    if (element.Type() != ElementType::Tri6 && element.Type() != ElementType::Quad8) continue;
    auto const& shape = element.Shape();
    for (int place = shape.corners; place < shape.nodes; ++place)
      middles.push_back(element.Topo(place));
    m_model.SetElemType(n, shape.linear);
  }
  m_model.InitNodalUseElem();
  for (int const node : middles)
    if (m_model.NodeExist(node) && !m_model.NodeIsUsed(node)) m_model.BlankNode(node, 1);
  return true;
}

}  // namespace Tarvex
