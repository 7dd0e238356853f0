// Mass properties of nodes.
#pragma once

#include "store/record/entity.h"

namespace Tarvex {

/// Symmetric tensor in space.
template <class T>
struct TensSym3 {
  T xx{};
  T yy{};
  T zz{};
  T xy{};
  T yz{};
  T zx{};

  friend bool operator==(TensSym3 const& a, TensSym3 const& b) { return Same(a, b); }
  static constexpr auto Fields() {
    using R = TensSym3;
    return MakeRows(Plain<R>("xx", &R::xx), Plain<R>("yy", &R::yy), Plain<R>("zz", &R::zz),
                    Plain<R>("xy", &R::xy), Plain<R>("yz", &R::yz), Plain<R>("zx", &R::zx));
  }
};

namespace Data {

/// A mass at a node.
class CMassProp : public NamedEntity {
 public:
  CMassProp() = default;
  /// @param factors of the mass in X, Y and Z.
  CMassProp(CString const& name, double mass, TensSym3<double> const& inertia,
            Vec3<double> const& factors)
      : NamedEntity(0, name), m_mass(mass), m_inertia(inertia), m_factors(factors) {}

  double Mass() const { return m_mass; }
  void SetMass(double mass) { m_mass = mass; }
  /// Moments of inertia about the node: mass by length squared.
  TensSym3<double> const& Inertia() const { return m_inertia; }
  void SetInertia(TensSym3<double> const& inertia) { m_inertia = inertia; }
  /// Part of the mass that acts in X, Y and Z.
  Vec3<double> const& Factors() const { return m_factors; }
  void SetFactors(Vec3<double> const& factors) { m_factors = factors; }

  /// The inertia of a mass without extent: none.
  static TensSym3<double> DefaultInertia() { return {}; }

  friend bool operator==(CMassProp const& a, CMassProp const& b) { return Same(a, b); }

  static constexpr auto Fields() {
    return JoinRows(NamedFields<CMassProp>(),
                    MakeRows(Plain<CMassProp>("mass", &CMassProp::m_mass),
                             Plain<CMassProp>("inertia", &CMassProp::m_inertia),
                             Plain<CMassProp>("factors", &CMassProp::m_factors)));
  }

 private:
  double m_mass = 0;
  TensSym3<double> m_inertia;
  Vec3<double> m_factors{1, 1, 1};
};

}  // namespace Data
}  // namespace Tarvex
