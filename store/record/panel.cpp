#include "store/record/panel.h"

#include "store/select/checked_access.h"

namespace Tarvex::Data {

int CPanel::EdgeNode(int edge, int end) const {
  int const start = CheckedAt(m_nodes, edge);
  if (end == 0) return start;
  if (end != 1) ThrowBadSubscript();
  return edge + 1 < NumEdge() ? CheckedAt(m_nodes, edge + 1) : m_nodes.front();
}

}  // namespace Tarvex::Data
