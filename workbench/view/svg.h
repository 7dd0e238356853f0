// Words of SVG.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "workbench/view/page.h"

namespace Tarvex::Workbench {

/// Text as XML takes it: markup escaped, and what XML can't hold replaced by U+FFFD.
std::string XmlText(std::string_view utf8);

/// A length in tenths as a number of the page: "12", "0.5", "-3.1".
std::string Tenths(int tenths);

/// The path through points: absolute to the first, relative from point to point.
std::string PathOf(std::vector<PagePoint> const& points, bool closed);

/// The path of the two strokes of an arrow head at the last of two or more points, empty for a line
/// without length. A short line has a short head.
std::string ArrowHead(std::vector<PagePoint> const& points);

}  // namespace Tarvex::Workbench
