#include "store/record/spec.h"

#include <cmath>
#include <stdexcept>
#include <string>

namespace Tarvex::Data {
namespace {

/// The tolerance of a type, const or not as the record is; null for an unknown type.
template <class Tolerances>
auto* Find(Tolerances& tolerances, TolType type) {
  switch (type) {
    case TolType::PointInElement:
      return &tolerances.pointInElement;
    case TolType::Vertical:
      return &tolerances.vertical;
    case TolType::AxisAngle:
      return &tolerances.axisAngle;
    case TolType::Coincidence:
      return &tolerances.coincidence;
  }
  return static_cast<decltype(&tolerances.vertical)>(nullptr);
}

[[noreturn]] void Refuse(char const* what, int which) {
  throw std::invalid_argument(what + std::to_string(which));
}

}  // namespace

double CUnit::Conversion(int quantity) const {
  if (quantity == kLength) return m_length;
  return quantity == kAngle ? m_angle : 1.0;
}

void CUnit::SetConversion(int quantity, double factor) {
  if (!(factor > 0) || !std::isfinite(factor)) Refuse("unit factor of quantity ", quantity);
  if (quantity == kLength)
    m_length = factor;
  else if (quantity == kAngle)
    m_angle = factor;
  else
    Refuse("unknown quantity ", quantity);
}

double CSpec::GenTol(TolType type) const {
  auto const* value = Find(m_genTol, type);
  if (value == nullptr) Refuse("unknown tolerance ", static_cast<int>(type));
  return *value;
}

void CSpec::SetGenTol(TolType type, double value) {
  auto* target = Find(m_genTol, type);
  if (target == nullptr || !(value >= 0) || !std::isfinite(value))
    Refuse("bad value or type of tolerance ", static_cast<int>(type));
  *target = value;
}

Vbool6 CSpec::GlobalRestraint() const {
  switch (m_structType) {
    case StrType::Space:
      break;
    case StrType::PlaneXZ:
      return Vbool6(false, true, false, true, false, true);
    case StrType::GridXY:
      return Vbool6(true, true, false, false, false, true);
    case StrType::PlaneStress:
    case StrType::PlaneStrain:
    case StrType::AxiSymmetric:
      return Vbool6(false, false, true, true, true, true);
  }
  return Vbool6();
}

}  // namespace Tarvex::Data
