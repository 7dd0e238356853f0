// From where a model is seen, and where its points are then.
#pragma once

#include <string_view>

#include "store/numeric/vec.h"

namespace Tarvex::Workbench {

/// The views of a picture.
enum class View {
  Iso,   ///< isometric: from +x, -y and +z
  Plan,  ///< from +z, with y up the page
  X,     ///< an elevation from +x: y to the right, z up
  Y,     ///< an elevation from -y: x to the right, z up
};

/// The directions of a view, global: to the right and up on the page, and away from the viewer.
/// A point p stands Dot(right, p) to the right of the origin and Dot(up, p) above it. In an
/// isometric view the three axes keep their length, so that right and up are longer than 1.
struct ViewRow {
  View view = View::Iso;
  std::string_view word;   ///< how the command line names it
  std::string_view title;  ///< how a caption names it
  Vec3<double> right;
  Vec3<double> up;
  Vec3<double> away;
};

ViewRow const& ViewOf(View view);
/// The view that "iso", "plan", "x" or "y" names; the isometric one for any other word.
View ViewNamed(std::string_view word);

/// Whether z is up the page and level planes are seen from the side.
inline bool IsElevation(View view) { return view == View::X || view == View::Y; }

/// A point as it is seen, in the unit of its co-ordinates.
struct SeenPoint {
  double right = 0;
  double up = 0;
  double depth = 0;  ///< the greater, the further away
};

SeenPoint Project(View view, Vec3<double> const& point);

}  // namespace Tarvex::Workbench
