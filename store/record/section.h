// Sections: the properties of bars and beams.
#pragma once

#include <span>
#include <vector>

#include "store/export.h"
#include "store/record/entity.h"
#include "store/record/mat_design.h"
#include "store/record/section_geometry.h"

namespace Tarvex::Data {

/// One part of a section: a shape, where it lies and what it is made of.
class TARVEX_STORE_EXPORT CSecComp : public HasMaterial {
 public:
  using Prop = SectionProp;

  CSecComp() = default;
  CSecComp(CString const& description, int materialAnalysis, MatDesign const& design)
      : HasMaterial(materialAnalysis, design), m_geometry(description) {}

  CSecGeom const& Geometry() const { return m_geometry; }
  void SetGeometry(CSecGeom const& geometry) { m_geometry = geometry; }
  /// The shape and its dimensions as a text.
  CString const& Description() const { return m_geometry.Text(); }
  /// Takes any text; see CSecGeom.
  void SetDescription(CString const& description) { m_geometry = CSecGeom(description); }
  /// The kind of the shape, and one of its dimensions as CSecGeom has it.
  SectionShape Type() const { return m_geometry.Type(); }
  double Dimension(double position, Prop prop) const {
    return m_geometry.Dimension(position, prop);
  }

  /// Place (y, z) of the middle of the box around the shape from the origin of the section, model
  /// length units.
  Vec2<double> const& Offset() const { return m_offset; }
  void SetOffset(Vec2<double> const& offset) { m_offset = offset; }
  /// Turn of the shape about its own middle from y towards z, degrees.
  double Angle() const { return m_angle; }
  void SetAngle(double degrees) { m_angle = degrees; }

  /// Area and moments about the origin of the section, x being the section's y and y its z.
  Util::AreaMoments Moments(double position) const;
  /// Box from the origin of the section.
  CSecBox Box(double position) const;

  friend bool operator==(CSecComp const& a, CSecComp const& b) { return Same(a, b); }
  static constexpr auto Fields() {
    using R = CSecComp;
    return JoinRows(MakeRows(Plain<R>("description", &R::m_geometry)), MaterialFields<R>(),
                    MakeRows(Plain<R>("offset", &R::m_offset), Plain<R>("angle", &R::m_angle)));
  }

 private:
  CSecGeom m_geometry;
  Vec2<double> m_offset;
  double m_angle = 0;
};

/// What the limits of a section are measured from.
enum class SecRef : int {
  Origin = 0,     ///< the origin that components are placed from
  Reference = 1,  ///< the reference point
  Centroid = 2,   ///< the centroid of the area
  Middle = 3,     ///< the middle of the box around the section
};

/// What a section is to a beam, by geometry alone; model length units.
struct SectionProperties {
  double area = 0;
  Vec2<double> centroid;  ///< (y, z) from the origin of the section
  double iyy = 0;         ///< second moment about the y axis through the centroid
  double izz = 0;         ///< about the z axis
  double iyz = 0;         ///< product moment
};

/// The point of a section that elements run through; left is towards +y.
class CSecRefPoint {
 public:
  enum class Place : int {
    Centroid = 0,
    TopLeft = 1,
    TopCentre = 2,
    TopRight = 3,
    MiddleLeft = 4,
    MiddleRight = 5,
    BottomLeft = 6,
    BottomCentre = 7,
    BottomRight = 8,
  };

  CSecRefPoint() = default;
  explicit CSecRefPoint(Place place) : m_place(place) {}

  Place At() const { return m_place; }
  bool IsTop() const { return m_place >= Place::TopLeft && m_place <= Place::TopRight; }
  bool IsBottom() const { return m_place >= Place::BottomLeft; }
  bool IsLeft() const {
    return m_place == Place::TopLeft || m_place == Place::MiddleLeft ||
           m_place == Place::BottomLeft;
  }
  bool IsRight() const {
    return m_place == Place::TopRight || m_place == Place::MiddleRight ||
           m_place == Place::BottomRight;
  }

  friend bool operator==(CSecRefPoint, CSecRefPoint) = default;

 private:
  Place m_place = Place::Centroid;
};

/// The properties about the centroid from moments about the origin.
TARVEX_STORE_EXPORT SectionProperties PropertiesOf(Util::AreaMoments const& moments);

/// A section of one or more components. Components count from 0.
class TARVEX_STORE_EXPORT CSection : public NamedEntity {
 public:
  CSection() = default;
  CSection(CString const& name, std::vector<CSecComp> components)
      : NamedEntity(0, name), m_components(std::move(components)) {}

  int NumComponent() const { return static_cast<int>(m_components.size()); }
  /// Throws std::out_of_range for a component that there is not, as all that ask for one do.
  CSecComp const& Component(int index) const;
  /// Replaces a component, or appends one behind the last.
  void SetComponent(int index, CSecComp const& component);

  int MaterialAnalysis(int index) const { return Component(index).MaterialAnalysis(); }
  void SetMaterialAnalysis(int index, int material);
  int MaterialGrade(int index) const { return Component(index).MaterialGrade(); }
  void SetMaterialGrade(int index, int grade);
  MatType MaterialType(int index) const { return Component(index).MaterialType(); }
  MatDesign const& MaterialDesign(int index) const { return Component(index).MaterialDesign(); }

  /// The kind of the one component; none where there are none or several.
  SectionShape Shape() const;
  /// Limits at a place along the element, from 0 at end 1 to 1 at end 2; zeros without a shape.
  CSecBox EnclosingBox(double position, SecRef reference) const;
  void EnclosingBox(CSecBox& box, double position, SecRef reference) const {
    box = EnclosingBox(position, reference);
  }
  /// Area and second moments there, every component counting alike.
  SectionProperties Properties(double position) const;
  /// Area and moments about the origin, each component times a factor of its own (for unlike
  /// materials, say). @param factors one a component, those that are missing count as 1
  Util::AreaMoments Moments(double position, std::span<double const> factors = {}) const;

  CSecRefPoint RefPoint() const { return CSecRefPoint(m_refPoint); }
  void SetRefPoint(CSecRefPoint point) { m_refPoint = point.At(); }
  /// Mass by length beside that of the components.
  double AdditionalMass() const { return m_additionalMass; }
  void SetAdditionalMass(double mass) { m_additionalMass = mass; }

  friend bool operator==(CSection const& a, CSection const& b) { return Same(a, b); }

  static constexpr auto Fields() {
    return JoinRows(NamedFields<CSection>(),
                    MakeRows(Plain<CSection>("components", &CSection::m_components),
                             Plain<CSection>("refPoint", &CSection::m_refPoint),
                             Plain<CSection>("additionalMass", &CSection::m_additionalMass)));
  }

 private:
  CSecComp& Edit(int index);
  CSecBox Box(double position) const;
  Vec2<double> ReferenceIn(CSecBox const& box, double position) const;

  std::vector<CSecComp> m_components;
  CSecRefPoint::Place m_refPoint = CSecRefPoint::Place::Centroid;
  double m_additionalMass = 0;
};

}  // namespace Tarvex::Data
