// Properties of plates, walls and load panels.
#pragma once

#include "store/export.h"
#include "store/record/entity.h"
#include "store/record/mat_design.h"

namespace Tarvex::Data {

/// How a 2D element carries. The numbers are part of files.
enum class PropertyType2d : int {
  Undefined = 0,
  PlaneStress = 1,
  PlaneStrain = 2,
  Axisymmetric = 3,
  Fabric = 4,
  Plate = 5,
  Shell = 6,
  CurvedShell = 7,  ///< on warped quadrilaterals, which must stay whole
  Torsion = 8,
  Wall = 9,
  LoadPanel = 10,  ///< takes loads to its edges and has no stiffness
};

/// The middle plane of an element against its nodes.
enum class Surface2d : int { Middle = 0, Top = 1, Bottom = 2 };

/// Factors of the thickness for what the element does.
struct EffectiveThickness {
  double bending = 1;
  double inPlane = 1;
  double volume = 1;  ///< for its weight

  friend bool operator==(EffectiveThickness const& a, EffectiveThickness const& b) {
    return Same(a, b);
  }
  static constexpr auto Fields() {
    using R = EffectiveThickness;
    return MakeRows(Plain<R>("bending", &R::bending), Plain<R>("inPlane", &R::inPlane),
                    Plain<R>("volume", &R::volume));
  }
};

/// A 2D property.
class TARVEX_STORE_EXPORT CProp2D : public NamedEntity, public HasMaterial {
 public:
  CProp2D() = default;
  /// @param materialAnalysis number of the analysis material, 0 and below for none. @param axis
  /// number of the axis, 0 for the global one. @param thickness in model length units.
  CProp2D(CString const& name, int materialAnalysis, MatDesign const& design, int axis,
          PropertyType2d type, Surface2d surface, double thickness,
          EffectiveThickness const& effective)
      : NamedEntity(0, name),
        HasMaterial(materialAnalysis, design),
        m_type(type),
        m_axis(axis),
        m_surface(surface),
        m_thickness(thickness),
        m_effective(effective) {}

  PropertyType2d Type() const { return m_type; }
  void SetType(PropertyType2d type) { m_type = type; }
  /// Number of the axis that local x follows, 0 for the global one.
  int Axis() const { return m_axis; }
  void SetAxis(int axis) { m_axis = axis; }
  /// Which surface of the plate its nodes are on.
  Surface2d ReferenceSurface() const { return m_surface; }
  void SetReferenceSurface(Surface2d surface) { m_surface = surface; }

  double Thickness() const { return m_thickness; }
  void SetThickness(double thickness) { m_thickness = thickness; }
  EffectiveThickness const& Effective() const { return m_effective; }
  void SetEffective(EffectiveThickness const& effective) { m_effective = effective; }
  /// The thickness that the weight is taken from.
  double VolumeThickness() const { return m_thickness * m_effective.volume; }
  /// Mass by area beside that of the material.
  double AdditionalMass() const { return m_additionalMass; }
  void SetAdditionalMass(double mass) { m_additionalMass = mass; }

  /// Takes the thickness from a text that is a finite number, with blanks around it or none.
  /// @return false, and the thickness stays, for any other text.
  bool SetFromDesc(CString const& description);

  friend bool operator==(CProp2D const& a, CProp2D const& b) { return Same(a, b); }

  static constexpr auto Fields() {
    using R = CProp2D;
    return JoinRows(
        NamedFields<R>(), MakeRows(Plain<R>("type", &R::m_type)), MaterialFields<R>(),
        MakeRows(Reference<R, CModule::Axis>("axis", &R::m_axis),
                 Plain<R>("surface", &R::m_surface), Plain<R>("thickness", &R::m_thickness),
                 Plain<R>("effective", &R::m_effective),
                 Plain<R>("additionalMass", &R::m_additionalMass)));
  }

 private:
  PropertyType2d m_type = PropertyType2d::Shell;
  int m_axis = 0;
  Surface2d m_surface = Surface2d::Middle;
  double m_thickness = 0;
  EffectiveThickness m_effective;
  double m_additionalMass = 0;
};

}  // namespace Tarvex::Data
