#include "store/record/assembly.h"

#include "store/select/checked_access.h"

namespace Tarvex::Data {

void CAssembly::SetTopo(int place, int node) { CheckedAt(m_topology, place) = node; }

}  // namespace Tarvex::Data
