#include "store/model/load_queries.h"

#include <cmath>
#include <utility>
#include <vector>

#include "store/geometry/shape.h"
#include "store/model/list_expansion.h"
#include "store/model/zel_data.h"
#include "store/record/element.h"
#include "store/record/face_loads.h"
#include "store/record/member.h"
#include "store/record/spec.h"

namespace Tarvex {
namespace {

/// Natural co-ordinates that were worked out from a point may miss the edge by this much.
constexpr double kRounding = 1e-6;

/// Adds the children of a member that exist.
void AddChildren(CZelData const& model, int member, bool panels, Util::CSet& elements) {
  if (!model.MemberExist(member)) return;
  for (auto const& [replica, numbers] : model.Member(member).ChildElements())
    for (int const n : numbers)
      if (model.ElemExist(n) || (panels && model.LoadPanelExist(n))) elements.AddTo(n);
}

}  // namespace

bool LoadQueries::ValidatePointLoadPosition(Data::CFaceLoad const& load, int element) const {
  if (!m_model.ElemExist(element)) return false;
  auto const& plate = m_model.Elem(element);
  if (!plate.Is2D()) return false;
  auto const& at = load.Position();
  bool const inside =
      plate.IsQuad() ? std::abs(at.x) <= 1 + kRounding && std::abs(at.y) <= 1 + kRounding
                     : at.x >= -kRounding && at.y >= -kRounding && at.x + at.y <= 1 + kRounding;
  if (inside) return true;
  std::vector<Vec3<double>> nodes;
  for (int const node : plate.Topology()) {
    if (!m_model.NodeExist(node)) return false;
    nodes.push_back(m_model.NodeCoor(node));
  }
  Util::CShape const shape(SpaceType::Surface, std::move(nodes));
  return shape.HoldsRS({at.x, at.y}, m_model.Spec().GenTol(TolType::PointInElement));
}

Util::CSet LoadQueries::GetLoadedElements(Data::CLoadBase const& load, bool panels) const {
  auto const& list = load.LoadedEntities();
  Util::CSet elements(SelElement);
  if (list.TypeOf() == SelElement) return Util::MakeSet(list, m_model, panels);
  if (list.TypeOf() != SelMember) return elements;
  for (int const member : Util::MakeSet(list, m_model))
    AddChildren(m_model, member, panels, elements);
  return elements;
}

}  // namespace Tarvex
