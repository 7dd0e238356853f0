// Meshes of members, from which their elements are made.
#pragma once

#include <array>
#include <map>
#include <memory>
#include <set>
#include <tuple>
#include <vector>

#include "store/text/cstring.h"

namespace Mesh {

/// A vector; a node is one too, global and in model length units.
struct Vector3D {
  double x = 0;
  double y = 0;
  double z = 0;

  friend bool operator==(Vector3D const&, Vector3D const&) = default;
};
using Node = Vector3D;

/// An element of D dimensions on N vertices, which count from 0; their order is that of
/// store/record/element_shape.h.
template <int D, int N>
struct Element {
  std::array<unsigned int, static_cast<std::size_t>(N)> vertices{};
  int tag = 0;  ///< of the mesher; nothing reads it

  friend bool operator==(Element const&, Element const&) = default;
};

using Elements1D = std::vector<Element<1, 2>>;
/// Triangles, then quadrilaterals.
using Elements2D = std::tuple<std::vector<Element<2, 3>>, std::vector<Element<2, 4>>>;
/// Tetrahedra, pyramids, wedges, then bricks.
using Elements3D = std::tuple<std::vector<Element<3, 4>>, std::vector<Element<3, 5>>,
                              std::vector<Element<3, 6>>, std::vector<Element<3, 8>>>;

/// Vertices that follow a primary one as a rigid body.
struct RigidConstraint {
  std::set<unsigned int> constrained;
  unsigned int primary = 0;

  friend bool operator==(RigidConstraint const&, RigidConstraint const&) = default;
};

}  // namespace Mesh

namespace Tarvex {

/// The mesh of one replica of a member.
class MemberMesh {
 public:
  std::vector<Mesh::Node> const& Nodes() const { return nodes; }
  Mesh::Elements1D const& Elements1D() const { return elements1D; }
  Mesh::Elements2D const& Elements2D() const { return elements2D; }
  Mesh::Elements3D const& Elements3D() const { return elements3D; }
  /// Rings of vertices.
  std::vector<std::vector<int>> const& LoadPanels() const { return loadPanels; }
  std::vector<Mesh::RigidConstraint> const& RigidConstraints() const { return rigidConstraints; }
  /// Corners of the box around the nodes; zeros without nodes.
  Mesh::Vector3D MinExtent() const {
    return Extreme([](double a, double b) { return a < b; });
  }
  Mesh::Vector3D MaxExtent() const {
    return Extreme([](double a, double b) { return a > b; });
  }

  std::vector<Mesh::Node> nodes;
  Mesh::Elements1D elements1D;
  Mesh::Elements2D elements2D;
  Mesh::Elements3D elements3D;
  std::vector<std::vector<int>> loadPanels;
  std::vector<Mesh::RigidConstraint> rigidConstraints;

 private:
  template <class Better>
  Mesh::Vector3D Extreme(Better&& better) const {
    if (nodes.empty()) return {};
    auto best = nodes.front();
    for (auto const& node : nodes) {
      if (better(node.x, best.x)) best.x = node.x;
      if (better(node.y, best.y)) best.y = node.y;
      if (better(node.z, best.z)) best.z = node.z;
    }
    return best;
  }
};

namespace ZEL {

/// The meshes of all replicas of a member; none for a member that was never meshed.
class ReplicatedMesh {
 public:
  using ByReplica = std::map<unsigned int, std::shared_ptr<MemberMesh const>>;

  ReplicatedMesh() = default;
  ReplicatedMesh(ByReplica replicas, bool flipped)
      : m_replicas(std::move(replicas)), m_flipped(flipped) {}

  ByReplica const& Replicas() const { return m_replicas; }
  /// Whether elements run the other way about than the member does.
  bool IsFlipped() const { return m_flipped; }

 private:
  ByReplica m_replicas;
  bool m_flipped = false;
};

/// What went wrong while members were meshed: a member's number and why.
struct MeshErrors {
  std::map<int, CString> byMember;
};

}  // namespace ZEL
}  // namespace Tarvex
