// An element that is being refined.
#pragma once

#include <span>
#include <vector>

#include "store/geometry/shape.h"
#include "store/model/get_node_at.h"
#include "store/model/zel_data.h"
#include "store/record/element.h"
#include "store/text/cstring.h"

namespace Tarvex {

/// The element as it was, and new nodes and elements beside it. All places are given in natural
/// co-ordinates and mapped by the element's shape over its nodes.
class RefinedElement {
 public:
  /// Throws std::invalid_argument "invalid number of values for 2D element" (3D element) for an
  /// element whose topology is not that of its type, or whose type is not of the space or has
  /// another number of corners.
  RefinedElement(CZelData& model, int element, SpaceType space, int corners, CString const& sid)
      : m_model(model), m_old(model.Elem(element)), m_space(space), m_sid(sid) {
    auto const& shape = m_old.Shape();
    bool const fits = shape.dimension == static_cast<int>(space) && shape.corners == corners &&
                      m_old.NumTopo() == shape.nodes;
    m_natural = Util::ShapeKindOf(space, fits ? m_old.NumTopo() : 0).natural;
    for (int const node : m_old.Topology()) m_positions.push_back(model.NodeCoor(node));
  }

  Data::CElement const& Old() const { return m_old; }
  bool IsQuadratic() const { return m_old.NumTopo() > m_old.Shape().corners; }
  /// Natural co-ordinates of a topology position.
  Vec3<double> const& At(int place) const { return m_natural[static_cast<std::size_t>(place)]; }

  /// The node at natural co-ordinates, a new one when there is none within the tolerance.
  int NodeAt(Vec3<double> const& natural, double tolerance) const {
    return ZelUtil::GetNodeAt(m_model, Util::Interpolate(m_space, m_positions, natural), tolerance,
                              m_sid);
  }

  /// Stores a copy of the element with another type and topology under the next number.
  void AddPiece(ElementType type, std::span<int const> nodes) const {
    auto piece = m_old;
    piece.SetType(type);
    piece.SetTopo(nodes);
    m_model.SetElem(m_model.HighestElem() + 1, piece);
  }

 private:
  CZelData& m_model;
  Data::CElement const m_old;
  SpaceType m_space;
  CString m_sid;
  std::span<Vec3<double> const> m_natural;
  std::vector<Vec3<double>> m_positions;
};

/// The point that lies a share of the way from one to another.
inline Vec3<double> Between(Vec3<double> const& from, Vec3<double> const& to, double share) {
  return from + share * (to - from);
}

}  // namespace Tarvex
