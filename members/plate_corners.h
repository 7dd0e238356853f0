// Corners of the plates that are converted.
#pragma once

#include <array>

#include "store/model/zel_data.h"
#include "store/record/element.h"
#include "store/record/node.h"

namespace Tarvex {

inline constexpr int kQuadCorners = 4;

/// Whether the first so many nodes of an element exist.
inline bool HasCorners(CZelData const& model, Data::CElement const& element, int corners) {
  for (int i = 0; i < corners; ++i)
    if (!model.NodeExist(element.Topo(i))) return false;
  return true;
}

/// Whether an element is one that can be cut from corner to corner: 4 or 8 nodes, the corners among
/// them in the model.
inline bool IsCuttable(CZelData const& model, Data::CElement const& element) {
  int const nodes = element.NumTopo();
  return element.Is2D() && (nodes == kQuadCorners || nodes == 2 * kQuadCorners) &&
         HasCorners(model, element, kQuadCorners);
}

/// Positions of the four corners.
using QuadPoints = std::array<Vec3<double>, kQuadCorners>;
inline QuadPoints CornerPoints(CZelData const& model, Data::CElement const& quad) {
  QuadPoints points;
  for (std::size_t i = 0; i < points.size(); ++i)
    points[i] = model.NodeCoor(quad.Topo(static_cast<int>(i)));
  return points;
}

}  // namespace Tarvex
