// Elements in space by their shape functions: from natural co-ordinates to points and back.
#pragma once

#include <vector>

#include "store/export.h"
#include "store/geometry/shape_functions.h"

namespace Tarvex::Util {

/// A line, surface or solid through the positions of its nodes.
///
///     CShape plate(SpaceType::Surface, corners);
///     Vec2<double> rs;
///     if (plate.FindRS(point, rs, 0.001)) ...  // point is plate.CoorAtRS(rs)
class TARVEX_STORE_EXPORT CShape {
 public:
  /// Any number of nodes is taken; one that no shape of the space has throws at CoorAt... and
  /// holds no point.
  CShape(SpaceType space, std::vector<Vec3<double>> nodes);

  /// The point at natural co-ordinates. Throws std::invalid_argument as ShapeKindOf for a wrong
  /// number of nodes, and for a shape of another space.
  Vec3<double> CoorAtR(double r) const;
  Vec3<double> CoorAtRS(Vec2<double> rs) const;
  Vec3<double> CoorAtRST(Vec3<double> const& rst) const;

  /// Whether the point belongs to the surface (FindRS) or solid (FindRST), and where it lies.
  /// @param tol how far the point may lie outside: of a surface, by this much in model length units
  /// over its edges and off it; of a solid, by this much in natural co-ordinates over its faces.
  /// Rounding of the co-ordinates is allowed for on top, so that 0 finds points of the boundary.
  /// @param rs natural co-ordinates, as they are and not moved into the element; for a surface
  /// those of the point of the surface below it. Untouched when the result is false.
  /// @return false for a point outside, a shape without area or volume, a shape of another space
  /// and co-ordinates that are not finite. Nothing is thrown.
  bool FindRS(Vec3<double> const& point, Vec2<double>& rs, double tol) const noexcept;
  bool FindRST(Vec3<double> const& point, Vec3<double>& rst, double tol) const noexcept;
  /// Whether natural co-ordinates belong to the surface, by the measure of FindRS: true of those
  /// that it finds with the same tolerance.
  bool HoldsRS(Vec2<double> rs, double tol) const noexcept;

  /// In the place of an index: the centre, which is the mean of the corners.
  static constexpr int kCentre = -1;

  /// Natural co-ordinates of a node (from 0), or of the centre. Throws std::invalid_argument as
  /// ShapeKindOf for a wrong number of nodes and std::out_of_range for another index.
  static Vec2<double> RS(int nodes, int index);
  /// As RS, of a solid. The index -10 - face is the centre of a face (from 0).
  static Vec3<double> RST(int nodes, int index);

 private:
  Vec3<double> At(SpaceType space, Vec3<double> const& natural) const;

  SpaceType m_space;
  std::vector<Vec3<double>> m_nodes;
};

}  // namespace Tarvex::Util
