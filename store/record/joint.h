// Joints: two nodes that move together in some directions.
#pragma once

#include "store/numeric/vbool6.h"
#include "store/record/constraint_base.h"

namespace Tarvex::Data {

/// A constrained node whose motion in some directions is that of the primary node.
class CJoint : public CStagedEntity {
 public:
  CJoint() = default;
  CJoint(CString const& name, Vbool6 directions, int primary, int constrained,
         CEntList const& stages)
      : CStagedEntity(name, stages),
        m_direction(directions),
        m_primaryNode(primary),
        m_constrainedNode(constrained) {}

  /// The directions that are joined.
  Vbool6 GetDirection() const { return m_direction; }
  void SetDirection(Vbool6 directions) { m_direction = directions; }
  int PrimaryNode() const { return m_primaryNode; }
  void SetPrimaryNode(int node) { m_primaryNode = node; }
  int ConstrainedNode() const { return m_constrainedNode; }
  void SetConstrainedNode(int node) { m_constrainedNode = node; }

  friend bool operator==(CJoint const& a, CJoint const& b) { return Same(a, b); }

  static constexpr auto Fields() {
    return JoinRows(
        NamedFields<CJoint>(),
        MakeRows(Plain<CJoint>("direction", &CJoint::m_direction),
                 Reference<CJoint, CModule::Node>("primaryNode", &CJoint::m_primaryNode),
                 Reference<CJoint, CModule::Node>("constrainedNode", &CJoint::m_constrainedNode)),
        StageField<CJoint>());
  }

 private:
  Vbool6 m_direction;
  int m_primaryNode = 0;
  int m_constrainedNode = 0;
};

}  // namespace Tarvex::Data
