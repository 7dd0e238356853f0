// Loads on solids, and loads that act on mass.
#pragma once

#include <array>

#include "store/numeric/vec.h"
#include "store/record/load_base.h"
#include "store/select/checked_access.h"

namespace Tarvex::Data {

/// A pressure on a face of a solid.
class CBodyFaceLoad : public CElementLoadBase {
 public:
  /// How the load is spread. The numbers are part of model files: never change one.
  enum class Load3D : int {
    Uniform = 1,    ///< Value(0) all over
    PerCorner = 2,  ///< a value a corner of the face
  };

  /// Axis of the direction, 0 for the global one.
  int Axis() const { return m_axis; }
  void SetAxis(int axis) { m_axis = axis; }
  Load3D TypeOf() const { return m_type; }
  void SetType(Load3D type) { m_type = type; }
  Direction GetDirection() const { return m_direction; }
  void SetDirection(Direction direction) { m_direction = direction; }
  /// The face, as element faces are numbered.
  int Face() const { return m_face; }
  void SetFace(int face) { m_face = face; }
  /// Model units; place 0 to 3, any other is std::out_of_range.
  double Value(int place) const { return CheckedAt(m_values, place); }
  void SetValue(int place, double value) { CheckedAt(m_values, place) = value; }

  friend bool operator==(CBodyFaceLoad const& a, CBodyFaceLoad const& b) { return Same(a, b); }

  static constexpr auto Fields() {
    return JoinRows(
        ElementLoadFields<CBodyFaceLoad>(),
        MakeRows(Plain<CBodyFaceLoad>("type", &CBodyFaceLoad::m_type),
                 Reference<CBodyFaceLoad, CModule::Axis>("axis", &CBodyFaceLoad::m_axis),
                 Plain<CBodyFaceLoad>("direction", &CBodyFaceLoad::m_direction),
                 Plain<CBodyFaceLoad>("face", &CBodyFaceLoad::m_face),
                 Plain<CBodyFaceLoad>("value", &CBodyFaceLoad::m_values)));
  }

 private:
  Load3D m_type = Load3D::Uniform;
  int m_axis = 0;
  Direction m_direction = Direction::Z;
  int m_face = 0;
  std::array<double, 4> m_values{};
};

/// A change of temperature of a solid.
class CBodyThermalLoad : public CElementLoadBase {
 public:
  /// The numbers are part of model files: never change one.
  enum class ThermalType : int {
    Uniform = 1,  ///< Value(0)
    PerNode = 8,  ///< a value a node
  };

  ThermalType TypeOf() const { return m_type; }
  void SetType(ThermalType type) { m_type = type; }
  /// Model temperature units; place 0 to 7, any other is std::out_of_range.
  double Value(int place) const { return CheckedAt(m_values, place); }
  void SetValue(int place, double value) { CheckedAt(m_values, place) = value; }

  friend bool operator==(CBodyThermalLoad const& a, CBodyThermalLoad const& b) {
    return Same(a, b);
  }

  static constexpr auto Fields() {
    return JoinRows(ElementLoadFields<CBodyThermalLoad>(),
                    MakeRows(Plain<CBodyThermalLoad>("type", &CBodyThermalLoad::m_type),
                             Plain<CBodyThermalLoad>("value", &CBodyThermalLoad::m_values)));
  }

 private:
  ThermalType m_type = ThermalType::Uniform;
  std::array<double, 8> m_values{};
};

/// An acceleration of the mass of entities and nodes.
class CGravityLoad : public CElementLoadBase {
 public:
  /// The nodes whose mass it acts on too; setting a list of another kind that names something is
  /// std::invalid_argument.
  Storage<CEntList> const& LoadedNodes() const { return m_nodes; }
  void SetLoadedNodes(CEntList const& nodes) { m_nodes.Put(nodes); }
  /// Multiples of gravity along the global axes; (0, 0, -1) is the weight.
  Vec3<double> const& Factor() const { return m_factor; }
  void SetFactor(Vec3<double> const& factor) { m_factor = factor; }

  friend bool operator==(CGravityLoad const& a, CGravityLoad const& b) { return Same(a, b); }

  static constexpr auto Fields() {
    return JoinRows(ElementLoadFields<CGravityLoad>(),
                    MakeRows(Plain<CGravityLoad>("loadedNodes", &CGravityLoad::m_nodes),
                             Plain<CGravityLoad>("factor", &CGravityLoad::m_factor)));
  }

 private:
  ListOf<SelNode> m_nodes;
  Vec3<double> m_factor{0, 0, -1};
};

}  // namespace Tarvex::Data
