// Faults of a model that its tables do not prevent.
#pragma once

#include <optional>
#include <string>
#include <vector>

#include "store/model/zel_data.h"

namespace Tarvex::Workbench {

/// One fault of a record.
struct Finding {
  std::string code;  ///< stable, such as "dangling-reference"
  std::string table;
  int number = 0;
  std::string field;
  int index = -1;            ///< place in a list, -1 for a field that is none
  std::optional<int> value;  ///< the number that is at fault
  std::string target;        ///< table that a reference points into, empty otherwise
  std::string reason = {};   ///< in words, where the code and the numbers do not tell it all

  friend bool operator==(Finding const&, Finding const&) = default;
};

/// All faults of a model, by code, table, number and field:
///   dangling-reference    a reference to a record that does not exist
///   repeated-node         a node that stands twice in a topology
///   wrong-topology-count  a topology without as many nodes as its shape has, 3 at least in a panel
///   dimension-not-finite  a number that is not finite
///   list-reaches-itself   a saved list that leads back to itself, and so selects nothing
///   self-constraint       a joint or equation of a node with itself, a rigid constraint that holds
///                         its primary node alone
///   description-not-readable    a text that is no description of cases or of a section; the value
///                               is the place of the fault in it, from 0, the reason counts from 1
///   deleted-case                a case that was deleted from a description; the index counts them
///   combination-reaches-itself  a combination that leads back to itself, and so has no factors
/// A reference from list to list by number is among the dangling references.
std::vector<Finding> FindFaults(CZelData const& model);

/// A finding for readers: "wrong-topology-count: Elem 7 topology: 4 nodes, type 7 has 3".
std::string FindingText(Finding const& finding);

}  // namespace Tarvex::Workbench
