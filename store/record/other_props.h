// Properties of dampers, cables, spacers and reinforced plates. No tool looks into them.
#pragma once

#include <array>

#include "store/export.h"
#include "store/numeric/direction.h"
#include "store/record/entity.h"

namespace Tarvex::Data {

/// A viscous damper.
class TARVEX_STORE_EXPORT CDamperProp : public NamedEntity {
 public:
  CDamperProp() = default;
  explicit CDamperProp(CString const& name) : NamedEntity(0, name) {}

  /// Force by velocity, or moment by angular velocity. Throws std::out_of_range for a direction
  /// that there is not.
  double Damping(Direction direction) const;
  void SetDamping(Direction direction, double damping);

  friend bool operator==(CDamperProp const& a, CDamperProp const& b) { return Same(a, b); }

  static constexpr auto Fields() {
    return JoinRows(NamedFields<CDamperProp>(),
                    MakeRows(Plain<CDamperProp>("damping", &CDamperProp::m_damping)));
  }

 private:
  std::array<double, 6> m_damping{};
};

/// A cable, whose force is the same along all elements of the property that follow each other.
class CCableProp : public NamedEntity {
 public:
  CCableProp() = default;
  explicit CCableProp(CString const& name) : NamedEntity(0, name) {}

  double stiffness = 0;         ///< force by strain
  double mass = 0;              ///< by length
  double thermalExpansion = 0;  ///< strain by degree
  double dampingRatio = 0;      ///< part of critical damping

  friend bool operator==(CCableProp const& a, CCableProp const& b) { return Same(a, b); }

  static constexpr auto Fields() {
    using R = CCableProp;
    return JoinRows(NamedFields<R>(),
                    MakeRows(Plain<R>("stiffness", &R::stiffness), Plain<R>("mass", &R::mass),
                             Plain<R>("thermalExpansion", &R::thermalExpansion),
                             Plain<R>("dampingRatio", &R::dampingRatio)));
  }
};

/// How the spacers of one line share out its length. The numbers are part of files.
enum class SpacerType : int { Geodesic = 0, Free = 1, Bar = 2 };

/// A spacer, which keeps nodes apart while a form is found.
class CSpacerProp : public NamedEntity {
 public:
  CSpacerProp() = default;
  explicit CSpacerProp(CString const& name) : NamedEntity(0, name) {}

  SpacerType type = SpacerType::Geodesic;
  double axialStiffness = 0;    ///< force by strain
  double torsionStiffness = 0;  ///< moment by twist
  double lengthRatio = 1;       ///< of the last spacer of a line to the first

  friend bool operator==(CSpacerProp const& a, CSpacerProp const& b) { return Same(a, b); }

  static constexpr auto Fields() {
    using R = CSpacerProp;
    return JoinRows(NamedFields<R>(), MakeRows(Plain<R>("type", &R::type),
                                               Plain<R>("axialStiffness", &R::axialStiffness),
                                               Plain<R>("torsionStiffness", &R::torsionStiffness),
                                               Plain<R>("lengthRatio", &R::lengthRatio)));
  }
};

/// The reinforcement of a plate: two layers at a right angle on each face.
class CRC2DProp : public NamedEntity {
 public:
  CRC2DProp() = default;
  explicit CRC2DProp(CString const& name) : NamedEntity(0, name) {}

  /// Concrete outside the outer layer, model length units.
  double coverTop = 0;
  double coverBottom = 0;
  /// Direction of the first layer from local x, degrees.
  double angle = 0;
  /// Area of the bars by width, in the first and the second layer.
  Vec2<double> barsTop;
  Vec2<double> barsBottom;

  friend bool operator==(CRC2DProp const& a, CRC2DProp const& b) { return Same(a, b); }

  static constexpr auto Fields() {
    using R = CRC2DProp;
    return JoinRows(
        NamedFields<R>(),
        MakeRows(Plain<R>("coverTop", &R::coverTop), Plain<R>("coverBottom", &R::coverBottom),
                 Plain<R>("angle", &R::angle), Plain<R>("barsTop", &R::barsTop),
                 Plain<R>("barsBottom", &R::barsBottom)));
  }
};

}  // namespace Tarvex::Data
