// Lines that loads act along. Internal to the store.
#pragma once

#include <optional>
#include <vector>

#include "store/model/zel_data.h"

namespace Tarvex::Calc {

/// The line of a 1D element or member: straight from end to end with its offsets, or through all
/// nodes of a member, or its arc.
class LoadLine {
 public:
  /// @return empty for anything that is no line, or lacks a node
  static std::optional<LoadLine> Of(CZelData const& model, SEntRef ref);
  /// A line through points. @param points two or more
  explicit LoadLine(std::vector<Vec3<double>> points);

  double Length() const { return m_ends.back(); }
  bool IsArc() const { return m_radius > 0; }
  /// Distances from the start at which straight pieces end; ascending, the last is the length.
  std::vector<double> const& PieceEnds() const { return m_ends; }
  /// The point at a distance from the start, and the unit vector along the line there.
  Vec3<double> At(double distance) const;
  Vec3<double> Along(double distance) const;

 private:
  static std::optional<LoadLine> OfArc(CZelData const& model, int member);
  std::size_t PieceOf(double distance) const;

  std::vector<Vec3<double>> m_points;
  std::vector<double> m_ends;
  // Of an arc: its centre, the unit vectors from there to the start and along the arc there.
  double m_radius = 0;
  Vec3<double> m_centre;
  Vec3<double> m_out;
  Vec3<double> m_along;
};

}  // namespace Tarvex::Calc
