// How each mark of a picture is drawn: its class, its colours and what the legend says of it.
#pragma once

#include <span>
#include <string>
#include <string_view>

#include "workbench/view/page.h"

namespace Tarvex::Workbench {

/// How the path of a mark is made.
enum class Stroke {
  Closed,  ///< an area
  Open,    ///< a line
  Arrow,   ///< a line with an arrow head at its second end
  Spot,    ///< a symbol at a point
  Text,
};

struct StyleRow {
  Look look = Look::Line;
  std::string_view name;  ///< the class in the picture
  std::string_view css;
  Stroke stroke = Stroke::Open;
  std::string_view symbol;  ///< of a spot, a path relative to its point, in units of the page
  std::string_view legend;  ///< empty for what needs none
};

StyleRow const& StyleOf(Look look);
std::span<StyleRow const> Styles();

/// The style sheet of a picture.
std::string StyleSheet();

}  // namespace Tarvex::Workbench
