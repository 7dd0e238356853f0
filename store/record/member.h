// Members: the designer's beams, slabs and solids, of which elements are the mesh.
#pragma once

#include <map>
#include <vector>

#include "store/record/connection.h"
#include "store/record/entity.h"
#include "store/record/kept_value.h"
#include "store/record/member_mesh.h"
#include "store/record/member_type.h"
#include "store/record/offset.h"
#include "store/record/topo_list.h"

namespace Tarvex {

class CZelData;

namespace Data {

class CAxis;

/// The elements that one replica of a member became.
struct MemberChildren {
  int replica = 0;
  std::vector<int> elements;  ///< elements and load panels, in the order in which they were added

  friend bool operator==(MemberChildren const&, MemberChildren const&) = default;
};

/// The children of a member by ascending replica; a replica without any is not in it.
using ChildLists = std::vector<MemberChildren>;

/// Appends a number to the list of a replica.
TARVEX_STORE_EXPORT void AppendChild(ChildLists& lists, int number, int replica);

/// A member. A generic one is 1D with two nodes or as an arc, 3D with strips of triangles and 2D
/// otherwise.
class TARVEX_STORE_EXPORT CMember : public NamedEntity {
 public:
  CMember() = default;
  CMember(int group, int property) : m_group(group), m_property(property) {}
  CMember(MembType const& type, int group, int property)
      : m_type(type), m_group(group), m_property(property) {}

  MembType Type() const { return m_type; }
  void SetType(MembType type) { m_type = type; }
  /// 1, 2 or 3.
  int Dimension() const;
  bool Is1D() const { return Dimension() == 1; }
  bool Is2D() const { return Dimension() == 2; }
  bool Is3D() const { return Dimension() == 3; }
  /// True for a 1D member whose elements have a section.
  bool IsSection() const { return Is1D() && ShapeOf(m_analysisType1D).section; }
  bool IsVoidCutter() const { return MembTypeOf(m_type).voidCutter; }
  bool IsOffset() const { return m_offset.IsOffset(); }
  /// The shape of a 1D member; a line for any other.
  MembGeom Geometry() const;
  /// A dummy member is kept out of the analysis.
  bool IsDummy() const { return m_dummy; }
  void SetIsDummy(bool dummy) { m_dummy = dummy; }
  /// Whether the edges of a 2D member are to be released from what stands around it.
  bool ReleaseEdges() const { return m_releaseEdges; }
  void SetReleaseEdges(bool release) { m_releaseEdges = release; }

  CTopoList const& Topo() const { return m_topology; }
  /// Number of nodes, and the node of a place (0 past the end); words of the topology left out.
  int NumTopo() const { return m_topology.NumTopo(); }
  int Topo(int place) const { return m_topology.Topo(place); }
  void SetTopo(CTopoList const& topology) { m_topology = topology; }
  /// @return false, and the topology stays, when the text does not parse
  /// (store/record/topo_list.h).
  bool SetTopo(CString const& text) { return m_topology.SetString(text); }

  int Group() const { return m_group; }
  void SetGroup(int group) { m_group = group; }
  int Property() const { return m_property; }
  void SetProperty(int property) { m_property = property; }
  /// The table of its property number, by the dimension and the type of its elements.
  CModule::ModuleId PropertyTable() const;

  /// Node that the local xy plane of a 1D member goes through, 0 for none; the centre of an arc
  /// that runs about it.
  int OrientationNode() const { return m_orientationNode; }
  void SetOrientationNode(int node) { m_orientationNode = node; }
  /// Rotation of the local axes, degrees: about x in 1D, about z in 2D.
  double OrientationAngle() const { return m_orientationAngle; }
  void SetOrientationAngle(double degrees) { m_orientationAngle = degrees; }
  COffset const& Offset() const { return m_offset; }
  void SetOffset(COffset const& offset) { m_offset = offset; }

  /// Release and restraint of an end, 0 or 1 (any other number counts as 1).
  CElemConnect const& EndRelease(int end) const { return m_endRelease[EndPlace(end)]; }
  void SetEndRelease(int end, CElemConnect const& release) {
    m_endRelease[EndPlace(end)] = release;
  }
  Vbool6 EndRestraint(int end) const { return m_endRestraint[EndPlace(end)]; }
  void SetEndRestraint(int end, Vbool6 restraint) { m_endRestraint[EndPlace(end)] = restraint; }

  Member::analysisTypes AnalysisTypes() const { return {m_analysisType1D, m_analysisOrder}; }
  void SetAnalysisType1D(ElementType type) { m_analysisType1D = type; }
  void SetAnalysisOrder(Member::AnalysisOrder order) { m_analysisOrder = order; }
  /// Whether an element or panel of a type may belong to the member: the dimensions agree.
  bool IsElementTypeValid(VariantElementType type) const;
  /// Whether it is what the member's analysis type asks for.
  bool DoesElementTypeMatchAnalysisType(VariantElementType type) const;

  /// Number of child elements in all replicas, and the one of a place from 0, by ascending replica;
  /// 0 past the end.
  int NumElem() const;
  int Elem(int place) const;
  bool HasElements() const { return !m_children.empty(); }
  /// Child elements and panels by replica; a replica without any is not in it.
  std::map<int, std::vector<int>> ChildElements() const;
  ChildLists const& Children() const { return m_children; }
  /// Lists a number as a child of a replica; one that is listed there stays where it is.
  void AddChildElement(int number, int replica);
  /// As AddChildElement, for a number that the replica is known not to list.
  void AppendChildElement(int number, int replica) { AppendChild(m_children, number, replica); }
  /// Takes a number off the children. @return whether it was one.
  bool RemoveChildElement(int number);
  void ClearChildElements() { m_children.clear(); }

  /// The mesh of the last meshing, empty for a member that was never meshed. It goes with copies
  /// that stay under the member's number, and is no part of equality or files. The arguments are
  /// false.
  ZEL::ReplicatedMesh AnalysisMesh(bool = false, bool = false) const;
  void SetAnalysisMesh(ZEL::ReplicatedMesh mesh) { m_mesh.Set(std::move(mesh)); }
  void ClearAnalysisMesh() { m_mesh.Clear(); }

  /// Centre of an arc, in global co-ordinates. @return false, and the centre stays, for a member
  /// that is no arc, whose nodes do not exist or lie on a line.
  bool ArcCentre(CZelData const& model, Vec3<double>& centre) const;
  /// The node at the centre of an arc: the nearest one within GenTol(Coincidence), else a new one
  /// under the next number; the given number for a member that is no arc.
  int GenerateOrientNode(CZelData& model, int orientationNode) const;
  /// The local axes with their origin: at the first node in 1D and 2D, the global axis in 3D.
  CAxis LocalAxis(CZelData const& model) const;

  friend bool operator==(CMember const& a, CMember const& b) { return Same(a, b); }

  static constexpr auto Fields() {
    return JoinRows(
        NamedFields<CMember>(),
        MakeRows(Plain<CMember>("type", &CMember::m_type),
                 Plain<CMember>("group", &CMember::m_group),
                 Field<CMember, int>{"property", &CMember::m_property, false,
                                     [](CMember const& m) { return m.PropertyTable(); }},
                 Reference<CMember, CModule::Node>("topology", &CMember::m_topology, true),
                 Reference<CMember, CModule::Node>("orientationNode", &CMember::m_orientationNode),
                 Plain<CMember>("orientationAngle", &CMember::m_orientationAngle),
                 Plain<CMember>("offset", &CMember::m_offset),
                 Plain<CMember>("endRelease", &CMember::m_endRelease),
                 Plain<CMember>("endRestraint", &CMember::m_endRestraint),
                 Plain<CMember>("analysisType1D", &CMember::m_analysisType1D),
                 Plain<CMember>("analysisOrder", &CMember::m_analysisOrder),
                 Plain<CMember>("dummy", &CMember::m_dummy),
                 Plain<CMember>("releaseEdges", &CMember::m_releaseEdges),
                 Reference<CMember, CModule::Elem>("children", &CMember::m_children)));
  }

 private:
  static std::size_t EndPlace(int end) { return end == 0 ? 0 : 1; }

  MembType m_type = MembType::Generic;
  int m_group = 1;
  int m_property = 0;  // none
  CTopoList m_topology;
  int m_orientationNode = 0;
  double m_orientationAngle = 0;
  COffset m_offset;
  std::array<CElemConnect, 2> m_endRelease;
  std::array<Vbool6, 2> m_endRestraint;
  ElementType m_analysisType1D = ElementType::Beam;
  Member::AnalysisOrder m_analysisOrder = Member::AnalysisOrder::Linear;
  bool m_dummy = false;
  bool m_releaseEdges = false;
  ChildLists m_children;
  KeptValue<ZEL::ReplicatedMesh> m_mesh;
};

}  // namespace Data
}  // namespace Tarvex
