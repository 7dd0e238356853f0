// Straight edges in a plane.
#pragma once

#include "store/export.h"
#include "store/numeric/vec.h"

namespace Tarvex::Data {

/// A straight edge from one point of a plane to another.
class TARVEX_STORE_EXPORT CEdge {
 public:
  CEdge(Vec2<double> start, Vec2<double> end) : m_start(start), m_end(end) {}

  Vec2<double> Start() const { return m_start; }
  Vec2<double> End() const { return m_end; }
  double Length() const { return Tarvex::Length(m_end - m_start); }
  /// The point at a fraction of the length; exactly the end at 1.
  Vec2<double> Point(double fraction) const;

  /// Mode of Intersect: the crossing must lie within both edges, their ends included.
  static constexpr int kWithin = 1;

  /// The crossing with another edge.
  /// @param point the crossing; untouched when there is none.
  /// @param mode 1: the crossing must lie within both edges, or no more than 1e-10 behind their
  /// ends; any other number: that of the endless lines.
  /// @return false without a crossing, for parallel edges (also those that lie on one another) and
  /// for an edge shorter than 1e-10.
  bool Intersect(CEdge const& other, Vec2<double>& point, int mode) const;

  /// Distance of a point from the edge. @param fraction where on the edge it is nearest, 0 to 1.
  double Distance(Vec2<double> point, double& fraction) const;

 private:
  Vec2<double> m_start;
  Vec2<double> m_end;
};

}  // namespace Tarvex::Data
