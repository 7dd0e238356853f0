// Properties that elements have while the form of a cable net or membrane is found.
#pragma once

#include "store/record/entity.h"

namespace Tarvex::Data {

/// The force of a line by its length.
class CForceDensity1D : public NamedEntity {
 public:
  CForceDensity1D() = default;
  explicit CForceDensity1D(CString const& name) : NamedEntity(0, name) {}

  double density = 0;  ///< force by length

  friend bool operator==(CForceDensity1D const& a, CForceDensity1D const& b) { return Same(a, b); }
  static constexpr auto Fields() {
    using R = CForceDensity1D;
    return JoinRows(NamedFields<R>(), MakeRows(Plain<R>("density", &R::density)));
  }
};

/// The force that a line keeps whatever its length.
class CSoapStress1D : public NamedEntity {
 public:
  CSoapStress1D() = default;
  explicit CSoapStress1D(CString const& name) : NamedEntity(0, name) {}

  double force = 0;

  friend bool operator==(CSoapStress1D const& a, CSoapStress1D const& b) { return Same(a, b); }
  static constexpr auto Fields() {
    using R = CSoapStress1D;
    return JoinRows(NamedFields<R>(), MakeRows(Plain<R>("force", &R::force)));
  }
};

/// The force densities of the edges of a 2D element in local x and y.
class CForceDensity2D : public NamedEntity {
 public:
  CForceDensity2D() = default;
  explicit CForceDensity2D(CString const& name) : NamedEntity(0, name) {}

  Vec2<double> density;  ///< force by length

  friend bool operator==(CForceDensity2D const& a, CForceDensity2D const& b) { return Same(a, b); }
  static constexpr auto Fields() {
    using R = CForceDensity2D;
    return JoinRows(NamedFields<R>(), MakeRows(Plain<R>("density", &R::density)));
  }
};

/// The stress that a membrane keeps whatever its shape, in local x and y.
class CSoapStress2D : public NamedEntity {
 public:
  CSoapStress2D() = default;
  explicit CSoapStress2D(CString const& name) : NamedEntity(0, name) {}

  Vec2<double> stress;  ///< force by width
  double shear = 0;     ///< force by width

  friend bool operator==(CSoapStress2D const& a, CSoapStress2D const& b) { return Same(a, b); }
  static constexpr auto Fields() {
    using R = CSoapStress2D;
    return JoinRows(NamedFields<R>(),
                    MakeRows(Plain<R>("stress", &R::stress), Plain<R>("shear", &R::shear)));
  }
};

}  // namespace Tarvex::Data
