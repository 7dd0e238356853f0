// Materials as an analysis takes them.
#pragma once

#include <array>

#include "store/export.h"
#include "store/record/entity.h"

namespace Tarvex {

/// A value of an analysis material.
enum class MatAnalValue : int {
  YoungsModulus = 0,
  PoissonsRatio = 1,
  Density = 2,
  ThermalExpansion = 3,
  DampingRatio = 4,
};

namespace Data {

/// An analysis material; values in model units.
class TARVEX_STORE_EXPORT CMatAnal : public NamedEntity {
 public:
  CMatAnal() = default;
  /// @param kind of behaviour, as an analysis program names it: "MAT_ELAS_ISO" for a material that
  /// is elastic and alike in all directions. @param damping part of critical damping.
  CMatAnal(CString const& kind, CString const& name, double youngsModulus, double poissonsRatio,
           double density, double thermalExpansion, double dampingRatio)
      : NamedEntity(0, name),
        m_kind(kind),
        m_youngsModulus(youngsModulus),
        m_poissonsRatio(poissonsRatio),
        m_density(density),
        m_thermalExpansion(thermalExpansion),
        m_dampingRatio(dampingRatio) {}

  CString const& Kind() const { return m_kind; }
  void SetKind(CString const& kind) { m_kind = kind; }
  /// One of the values. Throws std::out_of_range for one that there is not.
  double Value(MatAnalValue which) const { return this->*Place(which); }
  void SetValue(MatAnalValue which, double value) { this->*Place(which) = value; }

  friend bool operator==(CMatAnal const& a, CMatAnal const& b) { return Same(a, b); }

  static constexpr auto Fields() {
    using R = CMatAnal;
    return JoinRows(
        NamedFields<R>(),
        MakeRows(Plain<R>("kind", &R::m_kind), Plain<R>("youngsModulus", &R::m_youngsModulus),
                 Plain<R>("poissonsRatio", &R::m_poissonsRatio), Plain<R>("density", &R::m_density),
                 Plain<R>("thermalExpansion", &R::m_thermalExpansion),
                 Plain<R>("dampingRatio", &R::m_dampingRatio)));
  }

 private:
  static double CMatAnal::*Place(MatAnalValue which);

  CString m_kind = L"MAT_ELAS_ISO";
  double m_youngsModulus = 0;
  double m_poissonsRatio = 0;
  double m_density = 0;
  double m_thermalExpansion = 0;
  double m_dampingRatio = 0;
};

}  // namespace Data
}  // namespace Tarvex
