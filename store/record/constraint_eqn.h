// Constraint equations: a displacement that is a sum of others.
#pragma once

#include <vector>

#include "store/record/constraint_base.h"
#include "store/record/dof_value.h"
#include "store/select/checked_access.h"

namespace Tarvex::Data {

/// The displacement of the constrained node in a direction is the sum of the terms: displacements
/// of primary nodes, each times its factor.
class CConstraintEqn : public CStagedEntity {
 public:
  CConstraintEqn() = default;

  int ConstrainedNode() const { return m_constrainedNode; }
  void SetConstrainedNode(int node) { m_constrainedNode = node; }
  /// Direction of the constrained node.
  Direction Dir() const { return m_direction; }
  void SetDir(Direction direction) { m_direction = direction; }

  int NumTerm() const { return static_cast<int>(m_terms.size()); }
  /// Node, direction and factor of a term, from 0; std::out_of_range for one that there is not.
  int PrimaryNode(int term) const { return CheckedAt(m_terms, term).Node(); }
  Direction Dir(int term) const { return CheckedAt(m_terms, term).Dir(); }
  double Factor(int term) const { return CheckedAt(m_terms, term).Value(); }
  /// Replaces a term, from 0; -1 appends one. std::out_of_range for one that there is not.
  void SetRhsTerm(int term, Util::CDofValue const& value) {
    if (term == -1)
      m_terms.push_back(value);
    else
      CheckedAt(m_terms, term) = value;
  }
  void SetRhsTerm(int term, int node, Direction direction, double factor) {
    SetRhsTerm(term, Util::CDofValue(node, direction, factor));
  }
  std::vector<Util::CDofValue> const& Terms() const { return m_terms; }

  friend bool operator==(CConstraintEqn const& a, CConstraintEqn const& b) { return Same(a, b); }

  static constexpr auto Fields() {
    return JoinRows(NamedFields<CConstraintEqn>(),
                    MakeRows(Reference<CConstraintEqn, CModule::Node>(
                                 "constrainedNode", &CConstraintEqn::m_constrainedNode),
                             Plain<CConstraintEqn>("dir", &CConstraintEqn::m_direction),
                             Plain<CConstraintEqn>("terms", &CConstraintEqn::m_terms)),
                    StageField<CConstraintEqn>());
  }

 private:
  int m_constrainedNode = 0;
  Direction m_direction = Direction::X;
  std::vector<Util::CDofValue> m_terms;
};

}  // namespace Tarvex::Data
