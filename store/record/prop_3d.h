// Properties of solids.
#pragma once

#include "store/record/entity.h"
#include "store/record/mat_design.h"

namespace Tarvex::Data {

/// A 3D property.
class CProp3D : public NamedEntity, public HasMaterial {
 public:
  /// What the solid stands for. The numbers are part of files.
  enum class PropType : int { Solid = 0, Soil = 1 };

  CProp3D() = default;
  CProp3D(CString const& name, int materialAnalysis, MatDesign const& design, int axis,
          PropType type)
      : NamedEntity(0, name), HasMaterial(materialAnalysis, design), m_type(type), m_axis(axis) {}

  PropType Type() const { return m_type; }
  void SetType(PropType type) { m_type = type; }
  /// Number of the axis of the material, 0 for the global one.
  int Axis() const { return m_axis; }
  void SetAxis(int axis) { m_axis = axis; }

  friend bool operator==(CProp3D const& a, CProp3D const& b) { return Same(a, b); }

  static constexpr auto Fields() {
    using R = CProp3D;
    return JoinRows(NamedFields<R>(), MakeRows(Plain<R>("type", &R::m_type)), MaterialFields<R>(),
                    MakeRows(Reference<R, CModule::Axis>("axis", &R::m_axis)));
  }

 private:
  PropType m_type = PropType::Solid;
  int m_axis = 0;
};

}  // namespace Tarvex::Data
