#include "store/record/grid_surface.h"

#include "store/select/checked_access.h"

namespace Tarvex::Data {

int CGridSurface::_NumPanel() const {
  auto const panels = m_panels.Get();
  return panels == nullptr ? 0 : static_cast<int>(panels->size());
}

CPanel const& CGridSurface::Panel(int index) const {
  auto const panels = m_panels.Get();
  if (panels == nullptr) ThrowBadSubscript();
  return CheckedAt(*panels, index);
}

}  // namespace Tarvex::Data
