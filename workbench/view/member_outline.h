// The lines that draw a member.
#pragma once

#include <vector>

#include "store/model/zel_data.h"

namespace Tarvex::Workbench {

/// A line through points in space.
struct MemberLine {
  std::vector<Vec3<double>> points;
  std::vector<int> nodes;  ///< of its ends
  bool main = false;       ///< the line of a 1D member, which has a direction
};

/// The lines of a member, at its nodes: of a 1D member its line, an arc in chords of at most 7.5
/// degrees; of a 2D one the edges of its outline, holes and inner lines; of a 3D one the edges of
/// its triangles but for those within a plane. An arc in an outline is drawn by its nodes. Empty
/// when one of the nodes does not exist or there are too few.
std::vector<MemberLine> MemberLines(CZelData const& model, int number);

}  // namespace Tarvex::Workbench
