#include "store/record/spring_prop.h"

#include "store/select/checked_access.h"

namespace Tarvex::Data {

double CSpringProp::Stiffness(Direction direction) const {
  return CheckedAt(m_stiffness, direction - Direction::X);
}

void CSpringProp::SetStiffness(Direction direction, double stiffness) {
  CheckedAt(m_stiffness, direction - Direction::X) = stiffness;
}

int CSpringProp::TableRef(Direction direction) const {
  return CheckedAt(m_tableRef, direction - Direction::X);
}

void CSpringProp::SetTableRef(Direction direction, int const& table) {
  CheckedAt(m_tableRef, direction - Direction::X) = table;
}

}  // namespace Tarvex::Data
