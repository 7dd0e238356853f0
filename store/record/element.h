// Elements: the 1D, 2D and 3D finite elements of a model.
#pragma once

#include <array>
#include <span>
#include <vector>

#include "store/record/connection.h"
#include "store/record/element_shape.h"
#include "store/record/entity.h"
#include "store/record/offset.h"
#include "store/record/topology.h"

namespace Tarvex::Data {

/// An element. In a 2D element with more than four nodes the first half of the topology are the
/// corners and the second half the mid-side nodes. The topology may have another length than the
/// type asks for; all counts but the shape's own follow the topology then.
class TARVEX_STORE_EXPORT CElement : public NamedEntity {
 public:
  /// How a topology position is meant; 0 is the stored entry.
  enum EntBy : int { kByTopology = 0 };

  CElement() = default;
  /// An element with the topology length of its type, all 0.
  CElement(int group, ElementType type, int property);

  ElementType Type() const { return m_type; }
  /// Sets the type and takes the topology to its length: corners stay, new positions hold node 0
  /// and no release, positions that fall away lose theirs. From or to a type without a shape the
  /// topology stays as it is.
  void SetType(ElementType type);
  ElementShape const& Shape() const { return ShapeOf(m_type); }

  bool Is1D() const { return Shape().dimension == 1; }
  bool Is2D() const { return Shape().dimension == 2; }
  bool Is3D() const { return Shape().dimension == 3; }
  bool IsBeam() const { return m_type == ElementType::Beam; }
  bool IsQuad() const { return Is2D() && Shape().corners == 4; }
  /// True for a 1D element with a section.
  bool IsSection() const { return Shape().section; }
  /// True when any position has a release or a stiffness.
  bool IsConnect() const { return !m_connect.IsEmpty(); }
  bool IsOffset() const { return m_offset.IsOffset(); }
  /// A dummy element is kept out of the analysis.
  bool IsDummy() const { return m_dummy; }
  void SetIsDummy(bool dummy) { m_dummy = dummy; }

  int NumTopo() const { return static_cast<int>(m_topology.size()); }
  /// Number of edges of the shape; in 2D the number of corners.
  int NumEdge() const { return static_cast<int>(Shape().edges.size()); }
  /// Node at a position, 0 past the end.
  int Topo(int place) const;
  TopoVector const& Topo() const { return m_topology; }
  TopoVector const& Topology() const { return m_topology; }
  /// Throws std::out_of_range "invalid vector subscript" for a position past the end.
  void SetTopo(int place, int node);
  void SetTopo(std::span<int const> nodes) { m_topology.assign(nodes.begin(), nodes.end()); }
  void SetTopology(std::span<int const> nodes) { SetTopo(nodes); }
  /// Nodes of a face (from 0; see element_shape.h), empty for a face that the shape has not.
  std::vector<int> FaceTopo(int face) const;
  void FaceTopo(std::vector<int>& nodes, int face) const { nodes = FaceTopo(face); }

  int Group() const { return m_group; }
  void SetGroup(int group) { m_group = group; }
  int Property() const { return m_property; }
  void SetProperty(int property) { m_property = property; }

  /// Node that the local xy plane of a 1D element goes through, 0 for none.
  int OrientationNode() const { return m_orientationNode; }
  void SetOrientationNode(int node) { m_orientationNode = node; }
  /// Rotation of the local axes, degrees: about x in 1D, about z in 2D.
  double OrientationAngle() const { return m_orientationAngle; }
  void SetOrientationAngle(double degrees) { m_orientationAngle = degrees; }

  CElemConnect const& Connect(int place) const { return m_connect.At(place); }
  void SetConnect(int place, CElemConnect const& connect) { m_connect.Set(place, connect); }
  COffset const& Offset() const { return m_offset; }
  void SetOffset(COffset const& offset) { m_offset = offset; }

  /// Position of an end along the member that the element belongs to, as a fraction of its length.
  double LongPosition(bool start) const { return m_longPosition[start ? 0 : 1]; }
  void SetLongPosition(bool start, double fraction) { m_longPosition[start ? 0 : 1] = fraction; }

  Tarvex::Data::ParentMember const& ParentMember() const { return m_parentMember; }
  void SetParentMember(Tarvex::Data::ParentMember const& parent) { m_parentMember = parent; }

  friend bool operator==(CElement const& a, CElement const& b) { return Same(a, b); }

  static constexpr auto Fields() {
    return JoinRows(
        NamedFields<CElement>(),
        MakeRows(
            Required<CElement>("type", &CElement::m_type),
            Plain<CElement>("group", &CElement::m_group),
            Field<CElement, int>{"property", &CElement::m_property, false,
                                 [](CElement const& e) { return e.Shape().property; }},
            Reference<CElement, CModule::Node>("topology", &CElement::m_topology, true),
            Reference<CElement, CModule::Node>("orientationNode", &CElement::m_orientationNode),
            Plain<CElement>("orientationAngle", &CElement::m_orientationAngle),
            Plain<CElement>("offset", &CElement::m_offset),
            Plain<CElement>("connect", &CElement::m_connect),
            Plain<CElement>("longPosition", &CElement::m_longPosition),
            Plain<CElement>("dummy", &CElement::m_dummy),
            Plain<CElement>("parentMember", &CElement::m_parentMember)));
  }

 private:
  ElementType m_type = ElementType::None;
  int m_group = 1;
  int m_property = 0;  // none
  int m_orientationNode = 0;
  TopoVector m_topology;
  double m_orientationAngle = 0;
  COffset m_offset;
  ConnectList m_connect;
  std::array<double, 2> m_longPosition{0, 1};
  Tarvex::Data::ParentMember m_parentMember;
  bool m_dummy = false;
};

}  // namespace Tarvex::Data
