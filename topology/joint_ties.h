// Nodes that joints tie to one another.
#pragma once

#include <unordered_map>
#include <vector>

#include "store/model/zel_data.h"
#include "store/record/joint.h"

namespace Tarvex {

/// Whether a joint acts in a stage.
bool JointActsIn(CZelData const& model, Data::CJoint const& joint, int stage);

/// The node that a joint ties to another one, 0 when it does not hold that one.
int TiedBy(Data::CJoint const& joint, int node);

/// The ties of all joints that act in a stage.
class JointTies {
 public:
  JointTies(CZelData const& model, int stage);
  void Add(int a, int b);
  bool AreTied(int a, int b) const;

 private:
  std::unordered_map<int, std::vector<int>> m_tied;
};

}  // namespace Tarvex
