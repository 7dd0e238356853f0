// Sections: the properties of bars and beams.
#pragma once

#include <vector>

#include "store/export.h"
#include "store/record/entity.h"
#include "store/record/mat_design.h"

namespace Tarvex::Data {

/// One part of a section: a shape and what it is made of.
class CSecComp : public HasMaterial {
 public:
  CSecComp() = default;
  CSecComp(CString const& description, int materialAnalysis, MatDesign const& design)
      : HasMaterial(materialAnalysis, design), m_description(description) {}

  /// The shape and its dimensions as a text.
  CString const& Description() const { return m_description; }
  void SetDescription(CString const& description) { m_description = description; }

  friend bool operator==(CSecComp const& a, CSecComp const& b) { return Same(a, b); }
  static constexpr auto Fields() {
    return JoinRows(MakeRows(Plain<CSecComp>("description", &CSecComp::m_description)),
                    MaterialFields<CSecComp>());
  }

 private:
  CString m_description;
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

  std::vector<CSecComp> m_components;
  CSecRefPoint::Place m_refPoint = CSecRefPoint::Place::Centroid;
  double m_additionalMass = 0;
};

}  // namespace Tarvex::Data
