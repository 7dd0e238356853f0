// Rigid constraints that gain the nodes between their own.
#pragma once

#include <map>
#include <unordered_map>
#include <vector>

#include "store/model/zel_data.h"
#include "store/select/set.h"

namespace Tarvex {

/// Enters nodes in the rigid constraints that hold both of two other nodes, as primary or
/// constrained one. What holds which of the nodes that exist is worked out once; the lists are
/// gathered and stored at the end, so that a large floor costs its nodes and not their square.
class RigidFollowers {
 public:
  explicit RigidFollowers(CZelData& model);

  /// Enters a node of the model in every constraint that holds both ends.
  void Join(int a, int b, int middle);
  /// Stores the lists that have gained nodes.
  void Store();

 private:
  CZelData& m_model;
  std::unordered_map<int, std::vector<int>> m_rigidsOf;  // ascending, by node
  std::map<int, Util::CSet> m_gained;  // whole lists of constraints that gain something
};

}  // namespace Tarvex
