#include "topology/joint_ties.h"

#include <algorithm>

#include "store/model/list_expansion.h"

namespace Tarvex {

bool JointActsIn(CZelData const& model, Data::CJoint const& joint, int stage) {
  auto const& stages = joint.Stage();
  return Util::IsItemIncluded(stages, {stages.TypeOf(), stage}, model, model.HighestAnalStage(),
                              false);
}

int TiedBy(Data::CJoint const& joint, int node) {
  if (joint.ConstrainedNode() == node) return joint.PrimaryNode();
  return joint.PrimaryNode() == node ? joint.ConstrainedNode() : 0;
}

JointTies::JointTies(CZelData const& model, int stage) {
  for (auto const& joint : model.Joint())
    if (JointActsIn(model, joint, stage)) Add(joint.PrimaryNode(), joint.ConstrainedNode());
}

void JointTies::Add(int a, int b) {
  if (a == 0 || b == 0) return;
  m_tied[a].push_back(b);
  m_tied[b].push_back(a);
}

bool JointTies::AreTied(int a, int b) const {
  if (m_tied.empty()) return false;
  auto const found = m_tied.find(a);
  return found != m_tied.end() && std::ranges::find(found->second, b) != found->second.end();
}

}  // namespace Tarvex
