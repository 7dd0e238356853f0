// The nodes of an element, load panel or member, and where they stand.
#pragma once

#include <boost/container/small_vector.hpp>
#include <optional>

#include "store/model/zel_data.h"
#include "store/numeric/vec.h"
#include "store/record/topology.h"

namespace Tarvex {

using NodePoints = boost::container::small_vector<Vec3<double>, 8>;

/// The topology of an element or panel, the nodes of a member; empty for what does not exist.
Data::TopoVector NodesOf(CZelData const& model, SEntRef const& ref);

/// Where the first `count` of some nodes stand; empty when one of them does not exist.
NodePoints PointsOf(CZelData const& model, Data::TopoVector const& nodes, std::size_t count);

/// The two end nodes of an element or member: of an element its first two nodes, of a member its
/// first and last.
struct EndNodes {
  int first = 0;
  int last = 0;
  bool Has(int node) const { return node == first || node == last; }
};
/// Empty for a load panel, for what does not exist and for fewer than two nodes.
std::optional<EndNodes> EndNodesOf(CZelData const& model, SEntRef const& ref);

}  // namespace Tarvex
