// What one run over coincident items keeps.
#pragma once

#include <optional>
#include <unordered_set>
#include <vector>

#include "store/model/zel_data.h"
#include "tarvex/coincidence.h"
#include "topology/joint_ties.h"
#include "topology/node_sweep.h"

namespace Tarvex {

/// Nothing moves during a run, and of constraints it only adds its own joints: so positions, ties
/// and what is constrained are gathered once, when first asked for.
class CReduceCoinc::Run {
 public:
  Run(CZelData& model, COrderSet const& order, double tolerance, int stage);

  /// Finds the neighbours of all listed nodes in one go along the list, before any is asked for.
  /// For runs in which it is known beforehand who is left in the set when a node is asked for.
  void FindAll(NodeSweep::Among among);
  /// The node nearest to one that is at a place of the list, 0 for none.
  int Nearest(int node, int place);
  /// Whether two nodes have nothing that a merge could carry over: no restraint, no property, no
  /// mesh size. It spares the look at most records.
  bool AreBare(int a, int b);
  /// Told when a node has taken over what another one had.
  void TookOver(int node);
  /// Whether a node is in a constraint of the stage.
  bool IsConstrained(int node);
  /// Stores a joint of two nodes in all directions, for the stage.
  void AddJoint(int primary, int constrained);

 private:
  JointTies& Ties();
  NodeSweep const& Sweep();

  CZelData& m_model;
  COrderSet const& m_order;
  double m_tolerance;
  int m_stage;
  std::optional<NodeSweep> m_sweep;
  std::vector<int> m_nearest;  // by place, where they were found in one go
  std::optional<JointTies> m_ties;
  std::optional<Util::CSet> m_bare;
  std::optional<CZelData> m_before;  // the run's own joints would make each question costly
  std::unordered_set<int> m_joined;  // nodes of the run's own joints
};

}  // namespace Tarvex
