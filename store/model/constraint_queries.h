// What constraints do to nodes, and whether anything uses a node.
//
// Queries do not throw: asked about something that does not exist they answer false.
#pragma once

#include "store/export.h"

namespace Tarvex {

class CZelData;
class ModelCore;
namespace Data {
class CRigid;
}  // namespace Data

/// Queries of a model about its constraints. Those by node look at a table of what names each node,
/// which the first of them builds and a change of a constraint, restraint, load or assembly makes
/// stale. What depends on elements and members may be as old as attachments are during a rebuild
/// hold.
class TARVEX_STORE_EXPORT ConstraintQueries {
 public:
  /// Whether a rigid constraint, a joint, a constraint equation or a tied interface that acts in a
  /// stage names a node, as primary or constrained. @param stage -1 for any.
  bool NodeIsInConstraint(int node, int stage) const;
  /// Whether a rigid constraint, stored or not, holds anything in a stage: it acts there, its type
  /// holds something, its primary node exists and so does one of its constrained nodes.
  /// @param stage 0 the model without stages, -1 any.
  bool RigidIsActive(Data::CRigid const& rigid, int stage) const;
  /// Whether anything uses a node: topology or orientation of an element, panel or member; a joint,
  /// rigid constraint, constraint equation or tied interface; a raft or pile interaction, an
  /// influence, an assembly; a restraint or load whose list names the node singly. "all", ranges
  /// and words in lists of restraints and loads do not count, and neither do saved lists and views.
  bool NodeIsUsed(int node) const;
  /// Builds what constraints, loads and assemblies name at once.
  void InitNodalUseRigid();

 protected:
  ConstraintQueries(ModelCore& core, CZelData const& model) : m_core(core), m_model(model) {}
  ~ConstraintQueries() = default;
  ConstraintQueries(ConstraintQueries const&) = delete;
  ConstraintQueries& operator=(ConstraintQueries const&) = delete;

 private:
  ModelCore& m_core;
  CZelData const& m_model;
};

}  // namespace Tarvex
