#include "workbench/view/style.h"

#include <array>

namespace Tarvex::Workbench {
namespace {

// Strokes and text have a contrast of 4.5 or more to white. The two sides of a plate differ in
// lightness as well as in hue, so that they are told apart without colours, too.
constexpr std::array kStyles{
    StyleRow{Look::Solid, "solid", "fill:#d9d9d9;stroke:#6b6b6b;stroke-width:.5", Stroke::Closed,
             "", "solid element, its outer faces"},
    StyleRow{Look::PlateFront, "front", "fill:#d6e8fa;stroke:#47617a;stroke-width:.5",
             Stroke::Closed, "", "2D element, front: its normal points to the viewer"},
    StyleRow{Look::PlateBack, "back", "fill:#f08c2e;stroke:#7a3e00;stroke-width:.5", Stroke::Closed,
             "", "2D element, back: its normal points away"},
    StyleRow{Look::PlateEdge, "edge", "fill:none;stroke:#47617a;stroke-width:.8", Stroke::Open, "",
             "2D element, seen edge on"},
    StyleRow{Look::PanelFront, "panel-front",
             "fill:#d5efd0;stroke:#3d6b35;stroke-width:.8;stroke-dasharray:5 2", Stroke::Closed, "",
             "load panel, front"},
    StyleRow{Look::PanelBack, "panel-back",
             "fill:#b77fc4;stroke:#4f1d5c;stroke-width:.8;stroke-dasharray:5 2", Stroke::Closed, "",
             "load panel, back"},
    StyleRow{Look::PanelEdge, "panel-edge",
             "fill:none;stroke:#3d6b35;stroke-width:.8;stroke-dasharray:5 2", Stroke::Open, "",
             "load panel, seen edge on"},
    StyleRow{Look::MemberOutline, "outline",
             "fill:none;stroke:#a23fc4;stroke-width:2.4;stroke-dasharray:6 3", Stroke::Open, "",
             "2D or 3D member, its outline"},
    StyleRow{Look::MemberBody, "body", "fill:none;stroke:#a23fc4;stroke-width:3.4", Stroke::Open,
             "", ""},
    StyleRow{Look::Member, "member", "fill:none;stroke:#a23fc4;stroke-width:3.4", Stroke::Arrow, "",
             "1D member; the arrow is at its second end"},
    StyleRow{Look::Line, "line", "fill:none;stroke:#101010;stroke-width:1.1", Stroke::Arrow, "",
             "1D element; the arrow is at its second end"},
    StyleRow{Look::LineToward, "toward", "fill:#101010;stroke:#101010;stroke-width:1", Stroke::Spot,
             "m-2-2h4v4h-4z", "1D element that runs to the viewer"},
    StyleRow{Look::LineAway, "away", "fill:#fff;stroke:#101010;stroke-width:1", Stroke::Spot,
             "m-2-2h4v4h-4z", "1D element that runs away from the viewer"},
    StyleRow{Look::Support, "support", "fill:#fff;stroke:#006b3c;stroke-width:1", Stroke::Spot,
             "l4 7h-8z", "support: some directions held"},
    StyleRow{Look::Fixed, "fixed", "fill:#006b3c;stroke:#006b3c;stroke-width:1", Stroke::Spot,
             "m-3.5-3.5h7v7h-7z", "support: all six directions held"},
    StyleRow{Look::Number, "number", "text-anchor:middle", Stroke::Text, "", ""},
    StyleRow{Look::NumberBeside, "beside", "text-anchor:start", Stroke::Text, "", ""},
};

constexpr bool InOrderOfLooks() {
  for (std::size_t i = 0; i < kStyles.size(); ++i)
    if (static_cast<std::size_t>(kStyles[i].look) != i) return false;
  return true;
}
static_assert(InOrderOfLooks());

}  // namespace

StyleRow const& StyleOf(Look look) { return kStyles.at(static_cast<std::size_t>(look)); }

std::span<StyleRow const> Styles() { return kStyles; }

std::string StyleSheet() {
  std::string sheet = "text{font-family:sans-serif;font-size:12px;fill:#101010}\n";
  for (auto const& row : kStyles) {
    (sheet += ".") += row.name;
    ((sheet += "{") += row.css) += "}\n";
  }
  sheet +=
      ".number text,.beside text{font-size:8px;fill:#00007a}\n"
      "path{stroke-linejoin:round;stroke-linecap:round}\n"
      ".level{fill:none;stroke:#8a5a00;stroke-width:.8;stroke-dasharray:12 3 2 3}\n"
      ".levels text{fill:#8a5a00;font-size:11px}\n"
      ".axes{fill:none;stroke:#101010}\n"
      ".title{font-size:16px;font-weight:bold}\n";
  return sheet;
}

}  // namespace Tarvex::Workbench
