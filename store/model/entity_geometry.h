// Geometry of an entity of any kind, from the state of a model. Internal to the store.
//
// Nothing here throws: what does not exist has no topology, no points and the global frame.
#pragma once

#include <boost/container/small_vector.hpp>
#include <optional>
#include <span>

#include "store/model/model_core.h"
#include "store/model/query_types.h"
#include "store/numeric/dir_cos.h"
#include "store/select/reference.h"

namespace Tarvex::EntityGeometry {

/// The nodes of an entity: of a node itself, of an element or panel all, of a member those of its
/// topology without the words between them.
class Topology {
 public:
  Topology(ModelState const& state, SEntRef const& ref);
  Topology(Topology const&) = delete;
  Topology& operator=(Topology const&) = delete;

  std::span<int const> Nodes() const { return m_nodes; }
  int Count() const { return static_cast<int>(m_nodes.size()); }
  /// Node of a place, 0 past the end.
  int At(int place) const {
    auto const at = static_cast<std::size_t>(place);
    return at < m_nodes.size() ? m_nodes[at] : 0;
  }

 private:
  int m_single = 0;
  Data::TopoVector m_own;
  std::span<int const> m_nodes;
};

/// Positions of nodes, empty when one of them does not exist; up to eight cost no allocation.
class Points : public boost::container::small_vector<Vec3<double>, 8> {
 public:
  Points(ModelState const& state, std::span<int const> nodes);
  Points(Points const&) = delete;
  Points& operator=(Points const&) = delete;

  operator std::span<Vec3<double> const>() const { return {data(), size()}; }  // NOLINT: a view
};

/// Two vectors of the ends of a line.
using LineEnds = std::array<Vec3<double>, 2>;

std::optional<Vec3<double>> Position(ModelState const& state, int node);

/// 1 to 3; 0 for what does not exist, nodes and elements of a type without a shape.
int Dimension(ModelState const& state, SEntRef const& ref);

/// First and last node of a 1D entity; empty for any other, and where one of them does not exist.
std::optional<LineEnds> Ends(ModelState const& state, SEntRef const& ref);

/// Corners of a 2D element, all nodes of a panel, the outline of a 2D member.
Data::TopoVector Outline(ModelState const& state, SEntRef const& ref);

/// The local frame (store/model/entity_queries.h). @param shift displacements of the two ends of a
/// 1D entity.
Util::CDirCos Frame(ModelState const& state, SEntRef const& ref, LineEnds const& shift = {});
/// The same of a member that need not be stored.
Util::CDirCos FrameOf(ModelState const& state, Data::CMember const& member,
                      LineEnds const& shift = {});

/// Length of a 1D entity from node to node, along an arc where it is one; 0 for any other.
double LengthAtNodes(ModelState const& state, SEntRef const& ref);

/// The offset of an element or member; null for anything else.
Data::COffset const* Offset(ModelState const& state, SEntRef const& ref);

/// Centre of the arc of a member; empty where it is none or the arc has none.
std::optional<Vec3<double>> ArcCentre(ModelState const& state, Data::CMember const& member);

}  // namespace Tarvex::EntityGeometry
