#include "store/record/mat_anal.h"

#include "store/select/checked_access.h"

namespace Tarvex::Data {

double CMatAnal::*CMatAnal::Place(MatAnalValue which) {
  static constexpr std::array kPlaces{&CMatAnal::m_youngsModulus, &CMatAnal::m_poissonsRatio,
                                      &CMatAnal::m_density, &CMatAnal::m_thermalExpansion,
                                      &CMatAnal::m_dampingRatio};
  return CheckedAt(kPlaces, static_cast<int>(which));
}

}  // namespace Tarvex::Data
