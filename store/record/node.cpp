#include "store/record/node.h"

namespace Tarvex::Data {

boost::container::flat_set<int> const& CNode::AttachedEnt(SelType kind) const {
  static boost::container::flat_set<int> const kNone;
  if (m_use == nullptr) return kNone;
  if (kind == SelElement) return m_use->elements;
  return kind == SelMember ? m_use->members : kNone;
}

Vbool6 CNode::TotalNodalRestraint(int stage) const {
  auto total = m_restraint | m_ruledOut;
  if (m_hold == nullptr) return total;
  for (auto const& item : m_hold->items)
    if (item.inAllStages || item.stages.Contains(stage)) total = total | item.held;
  return total;
}

}  // namespace Tarvex::Data
