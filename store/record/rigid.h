// Rigid constraints: nodes that follow a primary node.
#pragma once

#include <memory>

#include "store/record/constraint_base.h"
#include "store/record/link_type.h"

namespace Tarvex::Data {

/// A primary node, and nodes that follow it as a rigid link of a type would make them.
class CRigid : public CStagedEntity {
 public:
  CRigid() = default;
  CRigid(CString const& name, LinkType type, int primary, CEntList const& constrained,
         CEntList const& stages)
      : CStagedEntity(name, stages), m_type(type), m_primaryNode(primary) {
    m_constrainedNodes.Put(constrained);
  }

  LinkType TypeOf() const { return m_type; }
  void SetType(LinkType type) { m_type = type; }
  /// Whether the type is none of those with a name.
  bool IsCustom() const { return LinkTypes::IsCustom(m_type); }
  /// The directions of the constrained nodes that follow.
  Vbool6 ConstrainedDof() const { return LinkTypes::ConstrainedDof(m_type); }
  /// Whether translations alone follow.
  bool IsPin() const { return LinkTypes::IsPin(m_type); }

  int PrimaryNode() const { return m_primaryNode; }
  void SetPrimaryNode(int node) { m_primaryNode = node; }
  Storage<CEntList> const& ConstrainedNodes() const { return m_constrainedNodes; }
  /// Throws std::invalid_argument for a list of another kind than nodes that names something.
  void SetConstrainedNodes(CEntList const& nodes) { m_constrainedNodes.Put(nodes); }
  /// Number of the member that the constraint was made from, 0 for none.
  int ParentMember() const { return m_parentMember; }
  void SetParentMember(int member) { m_parentMember = member; }

  std::unique_ptr<CRigid> Clone() const { return std::make_unique<CRigid>(*this); }

  friend bool operator==(CRigid const& a, CRigid const& b) { return Same(a, b); }

  static constexpr auto Fields() {
    return JoinRows(
        NamedFields<CRigid>(),
        MakeRows(Plain<CRigid>("type", &CRigid::m_type),
                 Reference<CRigid, CModule::Node>("primaryNode", &CRigid::m_primaryNode),
                 Plain<CRigid>("constrainedNodes", &CRigid::m_constrainedNodes),
                 Reference<CRigid, CModule::Member>("parentMember", &CRigid::m_parentMember)),
        StageField<CRigid>());
  }

 private:
  LinkType m_type = LinkType::All;
  int m_primaryNode = 0;
  ListOf<SelNode> m_constrainedNodes;
  int m_parentMember = 0;
};

}  // namespace Tarvex::Data
