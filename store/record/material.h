// Graded materials: strengths and stiffnesses as design codes and makers give them.
//
// Values are in model units. No tool looks into them: they are copied whole.
#pragma once

#include "store/record/entity.h"

namespace Tarvex::Data::Design {

/// The elastic behaviour of a material.
struct ElasticValues {
  double youngsModulus = 0;
  double poissonsRatio = 0;
  double density = 0;           ///< mass by volume
  double thermalExpansion = 0;  ///< strain by degree
  double dampingRatio = 0;      ///< part of critical damping

  friend bool operator==(ElasticValues const& a, ElasticValues const& b) { return Same(a, b); }
  static constexpr auto Fields() {
    using R = ElasticValues;
    return MakeRows(Plain<R>("youngsModulus", &R::youngsModulus),
                    Plain<R>("poissonsRatio", &R::poissonsRatio), Plain<R>("density", &R::density),
                    Plain<R>("thermalExpansion", &R::thermalExpansion),
                    Plain<R>("dampingRatio", &R::dampingRatio));
  }
};

/// Base of the grades: a name and the elastic values.
class GradeBase : public NamedEntity {
 public:
  ElasticValues elastic;

 protected:
  GradeBase() = default;
  explicit GradeBase(CString const& name) : NamedEntity(0, name) {}
  ~GradeBase() = default;
  GradeBase(GradeBase const&) = default;
  GradeBase(GradeBase&&) noexcept = default;
  GradeBase& operator=(GradeBase const&) = default;
  GradeBase& operator=(GradeBase&&) noexcept = default;

  template <class R>
  static constexpr auto GradeFields() {
    return JoinRows(NamedFields<R>(), MakeRows(Plain<R>("elastic", &R::elastic)));
  }
};

/// Structural steel.
class CMatSteel : public GradeBase {
 public:
  CMatSteel() = default;
  explicit CMatSteel(CString const& name) : GradeBase(name) {}

  double yieldStrength = 0;
  double ultimateStrength = 0;
  double ultimateStrain = 0;

  friend bool operator==(CMatSteel const& a, CMatSteel const& b) { return Same(a, b); }
  static constexpr auto Fields() {
    using R = CMatSteel;
    return JoinRows(GradeFields<R>(), MakeRows(Plain<R>("yieldStrength", &R::yieldStrength),
                                               Plain<R>("ultimateStrength", &R::ultimateStrength),
                                               Plain<R>("ultimateStrain", &R::ultimateStrain)));
  }
};

/// Concrete.
class CMatConc : public GradeBase {
 public:
  CMatConc() = default;
  explicit CMatConc(CString const& name) : GradeBase(name) {}

  double cylinderStrength = 0;  ///< characteristic, in compression
  double cubeStrength = 0;      ///< characteristic, in compression
  double tensileStrength = 0;   ///< mean
  double crushingStrain = 0;    ///< at the end of the descending branch
  bool lightweight = false;

  friend bool operator==(CMatConc const& a, CMatConc const& b) { return Same(a, b); }
  static constexpr auto Fields() {
    using R = CMatConc;
    return JoinRows(GradeFields<R>(), MakeRows(Plain<R>("cylinderStrength", &R::cylinderStrength),
                                               Plain<R>("cubeStrength", &R::cubeStrength),
                                               Plain<R>("tensileStrength", &R::tensileStrength),
                                               Plain<R>("crushingStrain", &R::crushingStrain),
                                               Plain<R>("lightweight", &R::lightweight)));
  }
};

/// Fibre-reinforced plastic.
class CMatFrp : public GradeBase {
 public:
  CMatFrp() = default;
  explicit CMatFrp(CString const& name) : GradeBase(name) {}

  double tensileStrength = 0;  ///< along the fibres
  double compressiveStrength = 0;
  double shearStrength = 0;
  double ruptureStrain = 0;

  friend bool operator==(CMatFrp const& a, CMatFrp const& b) { return Same(a, b); }
  static constexpr auto Fields() {
    using R = CMatFrp;
    return JoinRows(GradeFields<R>(),
                    MakeRows(Plain<R>("tensileStrength", &R::tensileStrength),
                             Plain<R>("compressiveStrength", &R::compressiveStrength),
                             Plain<R>("shearStrength", &R::shearStrength),
                             Plain<R>("ruptureStrain", &R::ruptureStrain)));
  }
};

/// Aluminium alloy.
class CMatAlum : public GradeBase {
 public:
  CMatAlum() = default;
  explicit CMatAlum(CString const& name) : GradeBase(name) {}

  double proofStrength = 0;  ///< at 0.2 per cent of strain
  double ultimateStrength = 0;
  double proofStrengthHaz = 0;  ///< in the zone that welding softens
  double ultimateStrengthHaz = 0;

  friend bool operator==(CMatAlum const& a, CMatAlum const& b) { return Same(a, b); }
  static constexpr auto Fields() {
    using R = CMatAlum;
    return JoinRows(GradeFields<R>(),
                    MakeRows(Plain<R>("proofStrength", &R::proofStrength),
                             Plain<R>("ultimateStrength", &R::ultimateStrength),
                             Plain<R>("proofStrengthHaz", &R::proofStrengthHaz),
                             Plain<R>("ultimateStrengthHaz", &R::ultimateStrengthHaz)));
  }
};

/// Timber, characteristic values.
class CMatTimber : public GradeBase {
 public:
  CMatTimber() = default;
  explicit CMatTimber(CString const& name) : GradeBase(name) {}

  double bendingStrength = 0;
  double tensionStrength = 0;      ///< along the grain
  double compressionStrength = 0;  ///< along the grain
  double bearingStrength = 0;      ///< compression across the grain
  double shearStrength = 0;
  double modulusAcrossGrain = 0;
  double shearModulus = 0;

  friend bool operator==(CMatTimber const& a, CMatTimber const& b) { return Same(a, b); }
  static constexpr auto Fields() {
    using R = CMatTimber;
    return JoinRows(GradeFields<R>(),
                    MakeRows(Plain<R>("bendingStrength", &R::bendingStrength),
                             Plain<R>("tensionStrength", &R::tensionStrength),
                             Plain<R>("compressionStrength", &R::compressionStrength),
                             Plain<R>("bearingStrength", &R::bearingStrength),
                             Plain<R>("shearStrength", &R::shearStrength),
                             Plain<R>("modulusAcrossGrain", &R::modulusAcrossGrain),
                             Plain<R>("shearModulus", &R::shearModulus)));
  }
};

/// Glass.
class CMatGlass : public GradeBase {
 public:
  CMatGlass() = default;
  explicit CMatGlass(CString const& name) : GradeBase(name) {}

  double bendingStrength = 0;  ///< characteristic
  double surfacePrestress = 0;

  friend bool operator==(CMatGlass const& a, CMatGlass const& b) { return Same(a, b); }
  static constexpr auto Fields() {
    using R = CMatGlass;
    return JoinRows(GradeFields<R>(), MakeRows(Plain<R>("bendingStrength", &R::bendingStrength),
                                               Plain<R>("surfacePrestress", &R::surfacePrestress)));
  }
};

/// Woven fabric; stiffness and strength are force by width.
class CMatFabric : public GradeBase {
 public:
  CMatFabric() = default;
  explicit CMatFabric(CString const& name) : GradeBase(name) {}

  double warpStiffness = 0;
  double weftStiffness = 0;
  double shearStiffness = 0;
  double warpStrength = 0;
  double weftStrength = 0;

  friend bool operator==(CMatFabric const& a, CMatFabric const& b) { return Same(a, b); }
  static constexpr auto Fields() {
    using R = CMatFabric;
    return JoinRows(GradeFields<R>(), MakeRows(Plain<R>("warpStiffness", &R::warpStiffness),
                                               Plain<R>("weftStiffness", &R::weftStiffness),
                                               Plain<R>("shearStiffness", &R::shearStiffness),
                                               Plain<R>("warpStrength", &R::warpStrength),
                                               Plain<R>("weftStrength", &R::weftStrength)));
  }
};

/// Reinforcing steel.
class CMatRebar : public GradeBase {
 public:
  CMatRebar() = default;
  explicit CMatRebar(CString const& name) : GradeBase(name) {}

  double yieldStrength = 0;
  double ultimateStrength = 0;
  double ultimateStrain = 0;

  friend bool operator==(CMatRebar const& a, CMatRebar const& b) { return Same(a, b); }
  static constexpr auto Fields() {
    using R = CMatRebar;
    return JoinRows(GradeFields<R>(), MakeRows(Plain<R>("yieldStrength", &R::yieldStrength),
                                               Plain<R>("ultimateStrength", &R::ultimateStrength),
                                               Plain<R>("ultimateStrain", &R::ultimateStrain)));
  }
};

}  // namespace Tarvex::Data::Design
