#include "store/record/node.h"

namespace Tarvex::Data {

boost::container::flat_set<int> const& CNode::AttachedEnt(SelType kind) const {
  static boost::container::flat_set<int> const kNone;
  if (m_use == nullptr) return kNone;
  if (kind == SelElement) return m_use->elements;
  return kind == SelMember ? m_use->members : kNone;
}

}  // namespace Tarvex::Data
