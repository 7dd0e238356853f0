#include "store/record/other_props.h"

#include "store/select/checked_access.h"

namespace Tarvex::Data {

double CDamperProp::Damping(Direction direction) const {
  return CheckedAt(m_damping, direction - Direction::X);
}

void CDamperProp::SetDamping(Direction direction, double damping) {
  CheckedAt(m_damping, direction - Direction::X) = damping;
}

}  // namespace Tarvex::Data
