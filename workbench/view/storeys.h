// The storeys of a model as levels.
#pragma once

#include <string>
#include <vector>

#include "store/model/zel_data.h"

namespace Tarvex::Workbench {

/// A level plane with a name.
struct Level {
  std::string name;
  double height = 0;  ///< global z
  Vec3<double> At(Vec3<double> const& under) const { return {under.x, under.y, height}; }
};

/// The storeys from the lowest, but for those that are not level. A storey without a name has that
/// of its number.
std::vector<Level> LevelsOf(CZelData const& model);

/// The height of a level to a thousandth of its unit: "3.125".
std::string HeightText(Level const& level);

}  // namespace Tarvex::Workbench
