// Nodes: the points of a model.
#pragma once

#include <boost/container/flat_set.hpp>
#include <boost/smart_ptr/intrusive_ptr.hpp>
#include <boost/smart_ptr/intrusive_ref_counter.hpp>

#include "store/export.h"
#include "store/numeric/vbool6.h"
#include "store/record/entity.h"
#include "store/select/intervals.h"
#include "store/select/reference.h"

namespace Tarvex::Data {

/// The entities that use a node by their topology, ascending. Copies of a node share it.
struct NodeUse : boost::intrusive_ref_counter<NodeUse> {
  boost::container::flat_set<int> elements;  ///< elements and load panels
  boost::container::flat_set<int> members;

  bool IsEmpty() const { return elements.empty() && members.empty(); }
};

/// What restraints of lists hold of a node, by stage. Copies of a node share it.
struct NodeHold : boost::intrusive_ref_counter<NodeHold> {
  struct Item {
    bool inAllStages;
    Intervals stages;  ///< that exist, and 0
    Vbool6 held;
  };
  std::vector<Item> items;
};

/// A node. What is attached to it and what holds it beside its own restraint is derived data that
/// the store keeps beside the record: storing a node neither reads nor changes it, and it is no
/// part of equality or files.
class TARVEX_STORE_EXPORT CNode : public NamedEntity {
 public:
  CNode() = default;
  CNode(Vec3<double> const& position, int axis, Vbool6 restraint)
      : m_position(position), m_axis(axis), m_restraint(restraint) {}

  /// Global co-ordinates, model length units.
  Vec3<double> const& Position() const { return m_position; }
  void SetPosition(Vec3<double> const& position) { m_position = position; }
  /// Axis that restraint and results refer to, 0 for the global one.
  int Axis() const { return m_axis; }
  void SetAxis(int axis) { m_axis = axis; }
  /// Directions that are held.
  Vbool6 Restraint() const { return m_restraint; }
  void SetRestraint(Vbool6 restraint) { m_restraint = restraint; }
  /// Directions that are held in a stage: its own, those of the restraints of lists that act there,
  /// and those that the kind of structure rules out. A node that stands in no model has its own
  /// alone. What lists hold may be as old as attachments are during a rebuild hold.
  Vbool6 TotalNodalRestraint(int stage) const;
  /// Property numbers, 0 for none.
  int SpringProperty() const { return m_springProperty; }
  void SetSpringProperty(int property) { m_springProperty = property; }
  int MassProperty() const { return m_massProperty; }
  void SetMassProperty(int property) { m_massProperty = property; }
  int DamperProperty() const { return m_damperProperty; }
  void SetDamperProperty(int property) { m_damperProperty = property; }
  /// Edge length that a mesh should have here, 0 for none wanted.
  double MeshSize() const { return m_meshSize; }
  void SetMeshSize(double size) { m_meshSize = size; }

  /// Numbers of the entities of a kind (elements with load panels, or members) whose topology holds
  /// the node; none for another kind and for a node that stands in no model. The reference is good
  /// until the next store of an entity or node: take a copy to go on with.
  boost::container::flat_set<int> const& AttachedEnt(SelType kind) const;
  int NumEntAttached(SelType kind) const { return static_cast<int>(AttachedEnt(kind).size()); }

  friend bool operator==(CNode const& a, CNode const& b) { return Same(a, b); }

  static constexpr auto Fields() {
    return JoinRows(
        NamedFields<CNode>(),
        MakeRows(Required<CNode>("position", &CNode::m_position),
                 Reference<CNode, CModule::Axis>("axis", &CNode::m_axis),
                 Plain<CNode>("restraint", &CNode::m_restraint),
                 Reference<CNode, CModule::SpringProp>("springProperty", &CNode::m_springProperty),
                 Reference<CNode, CModule::MassProp>("massProperty", &CNode::m_massProperty),
                 Reference<CNode, CModule::DamperProp>("damperProperty", &CNode::m_damperProperty),
                 Plain<CNode>("meshSize", &CNode::m_meshSize)));
  }

 private:
  friend struct NodeUseAccess;
  friend struct NodeHoldAccess;

  Vec3<double> m_position;
  double m_meshSize = 0;
  int m_axis = 0;
  int m_springProperty = 0;
  int m_massProperty = 0;
  int m_damperProperty = 0;
  Vbool6 m_restraint;
  Vbool6 m_ruledOut;  // by the kind of structure
  boost::intrusive_ptr<NodeUse> m_use;
  boost::intrusive_ptr<NodeHold> m_hold;
};

/// The store's own way to the attachments of a record.
struct NodeUseAccess {
  using Pointer = boost::intrusive_ptr<NodeUse>;
  static Pointer const& Get(CNode const& node) { return node.m_use; }
  static void Set(CNode& node, Pointer use) { node.m_use = std::move(use); }
};

/// The store's own way to what holds a node beside its own restraint.
struct NodeHoldAccess {
  using Pointer = boost::intrusive_ptr<NodeHold>;
  static Pointer const& Get(CNode const& node) { return node.m_hold; }
  static void Set(CNode& node, Pointer hold) { node.m_hold = std::move(hold); }
  static Vbool6 RuledOut(CNode const& node) { return node.m_ruledOut; }
  static void SetRuledOut(CNode& node, Vbool6 directions) { node.m_ruledOut = directions; }
};

}  // namespace Tarvex::Data
