// Load panels: 2D entities that take load to what surrounds them and have no stiffness.
#pragma once

#include <span>

#include "store/record/entity.h"
#include "store/record/topology.h"

namespace Tarvex::Data {

/// A load panel: a polygon of nodes. It shares its numbers, and the kind SelElement, with elements;
/// all its nodes are corners.
class LoadPanel : public NamedEntity {
 public:
  LoadPanel() = default;

  int NumTopo() const { return static_cast<int>(m_topology.size()); }
  /// Node at a position, 0 past the end.
  int Topo(int place) const {
    auto const at = static_cast<std::size_t>(place);
    return at < m_topology.size() ? m_topology[at] : 0;
  }
  TopoVector const& Topology() const { return m_topology; }
  void SetTopology(std::span<int const> nodes) { m_topology.assign(nodes.begin(), nodes.end()); }

  int Group() const { return m_group; }
  void SetGroup(int group) { m_group = group; }
  int Property() const { return m_property; }
  void SetProperty(int property) { m_property = property; }
  bool IsDummy() const { return m_dummy; }
  void SetIsDummy(bool dummy) { m_dummy = dummy; }
  /// Rotation of the local axes about z, degrees.
  double OrientationAngle() const { return m_orientationAngle; }
  void SetOrientationAngle(double degrees) { m_orientationAngle = degrees; }
  Tarvex::Data::ParentMember const& ParentMember() const { return m_parentMember; }
  void SetParentMember(Tarvex::Data::ParentMember const& parent) { m_parentMember = parent; }

  friend bool operator==(LoadPanel const& a, LoadPanel const& b) { return Same(a, b); }

  static constexpr auto Fields() {
    return JoinRows(
        NamedFields<LoadPanel>(),
        MakeRows(Plain<LoadPanel>("group", &LoadPanel::m_group),
                 Reference<LoadPanel, CModule::Prop2D>("property", &LoadPanel::m_property),
                 Reference<LoadPanel, CModule::Node>("topology", &LoadPanel::m_topology, true),
                 Plain<LoadPanel>("orientationAngle", &LoadPanel::m_orientationAngle),
                 Plain<LoadPanel>("dummy", &LoadPanel::m_dummy),
                 Plain<LoadPanel>("parentMember", &LoadPanel::m_parentMember)));
  }

 private:
  int m_group = 1;
  int m_property = 0;  // none
  TopoVector m_topology;
  double m_orientationAngle = 0;
  Tarvex::Data::ParentMember m_parentMember;
  bool m_dummy = false;
};

}  // namespace Tarvex::Data
