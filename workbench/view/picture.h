// The picture of a model, as SVG.
#pragma once

#include <string>

#include "workbench/view/projection.h"
#include "workbench/view/scene.h"

namespace Tarvex::Workbench {

struct PictureRequest {
  View view = View::Iso;
  SceneRequest scene;
  std::string title;  ///< of the caption, UTF-8
  /// Caption of a picture without anything to draw.
  std::string nothing = "nothing to draw";
};

struct Picture {
  std::string svg;
  SceneCounts counts;
  int storeys = 0;
};

/// "12 elements (4 1D, 8 2D), 3 supports": what is shown, kinds of which there are none left out.
std::string CountsText(SceneCounts const& counts);

/// Draws a model: above all else a caption with what is shown, below it a legend of what occurs.
/// Storeys stand as level lines with their names in elevations and in the caption otherwise; of a
/// picture of everything all of them, else those within the heights that are shown. The same model
/// and request give the same bytes. The text is SVG 1.1 and refers to nothing outside itself.
Picture DrawPicture(CZelData const& model, PictureRequest const& request);

}  // namespace Tarvex::Workbench
