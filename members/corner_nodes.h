// The corners of the elements that a run goes through.
#pragma once

#include <vector>

#include "store/model/zel_data.h"
#include "store/record/node.h"

namespace Tarvex {

/// What sides ask of the node at a corner.
struct CornerNode {
  int number;
  Vec3<double> position;  // global, model length units
  int axis;
  Vbool6 restraint;
};

/// Corners in the order in which they are first met. Elements that follow one another share their
/// corners mostly, whatever the numbers of these: so they are met again where they are close by.
class CornerNodes {
 public:
  static constexpr int kNone = -1;

  /// Takes the nodes that a model has now; those that are added to it later are no corners.
  explicit CornerNodes(CZelData const& model) : m_model(model), m_highest(model.HighestNode()) {}

  /// The place of a node, counted from 0; kNone for one that is no corner.
  int PlaceOf(int number) {
    if (auto const* const known = m_places.Find(number)) return *known;
    if (number > m_highest) return kNone;
    auto const* const node = m_model.StoredNodes().Find(number);
    if (node == nullptr) return kNone;
    int const place = static_cast<int>(m_corners.size());
    m_corners.push_back({number, node->Position(), node->Axis(), node->Restraint()});
    m_places.Set(number, place);
    return place;
  }
  CornerNode const& operator[](int place) const {
    return m_corners[static_cast<std::size_t>(place)];
  }

 private:
  CZelData const& m_model;
  int m_highest;
  PagedTable<int> m_places;  // by number
  std::vector<CornerNode> m_corners;
};

}  // namespace Tarvex
