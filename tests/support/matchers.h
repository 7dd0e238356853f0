// What tests ask of models.
#pragma once

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "store/model/zel_data.h"
#include "tests/support/print.h"

namespace Tarvex::Testing {

/// Whether a model is equal to a former state of it, to the bit. A failure names each record that
/// came, went or changed, by table, number and fields.
::testing::AssertionResult IsUnchanged(CZelData const& model, CZelData const& before);

/// The lines of a failure of IsUnchanged: "Elem 3: topology, offset", "Node 7: came", "Spec: unit".
/// In the order of the registry, numbers ascending; empty for equal models.
std::vector<std::string> Differences(CZelData const& model, CZelData const& before);

/// Whether the topology of an element or load panel is exactly these nodes.
::testing::AssertionResult References(CZelData const& model, int entity,
                                      std::vector<int> const& nodes);

/// Whether every node that a topology or an orientation names exists; 0 names none. A failure lists
/// all that do not.
::testing::AssertionResult NoDanglingReference(CZelData const& model);

/// Whether what is attached to each node is what topology says: the elements and load panels that
/// name it, each once. A failure lists the nodes of which it is not true.
::testing::AssertionResult AttachmentsFollowTopology(CZelData const& model);

/// Whether two vectors are the same within an absolute tolerance in each component.
::testing::AssertionResult IsNear(Vec3<double> const& actual, Vec3<double> const& expected,
                                  double tolerance = 1e-12);

/// Message of the std::out_of_range that a call throws; an empty text when it throws none. Any
/// other exception passes.
template <class Call>
std::string OutOfRangeText(Call&& call) {
  try {
    call();
  } catch (std::out_of_range const& fault) {
    return fault.what();
  }
  return {};
}

}  // namespace Tarvex::Testing
