/* Shapes of section components and the texts that describe them (docs/properties.md).

   A shape has dimensions in model length units; y is to the left, z up, and the origin at the
   middle of the box around the shape:

        z                   I, unequal-I: flanges above and below a web in the middle
        |                   channel: the web on the right, flanges to the left
     +--+--+  top           tee, tapered-tee: the flange above
     |  |  |                trapezoid: its two widths above and below
  y--+--o  |                tapered web: one thickness above, a second one below
     |     |                unequal-box: webs left and right, flanges above and below
     +-----+  bottom
 */
#pragma once

#include <array>
#include <optional>
#include <span>

#include "store/export.h"
#include "store/text/cstring.h"

namespace Tarvex::Data {

/// Kinds of shapes by number. Of a wider number the bits 0x140F tell the kind.
enum class SectionShape : int {
  None = 0,
  I = 1,
  Channel = 2,
  Tee = 3,
  Circle = 7,
  Tube = 8,
  Box = 9,
  Rectangle = 10,
  UnequalI = 11,  ///< flanges of their own widths and thicknesses
  Trapezoid = 12,
  TaperedI = 1024,    ///< an I whose web changes its thickness
  TaperedTee = 1027,  ///< a tee whose web does
  UnequalBox = 1033,  ///< a box of four thicknesses
};

/// Dimensions of shapes by number.
enum class SectionProp : int {
  Depth = 0,  ///< along z; of a round shape the diameter
  Width = 1,  ///< along y; above where the shape has two
  WebThickness = 2,
  TopFlangeThickness = 3,
  SecondWidth = 4,         ///< below
  SecondWebThickness = 5,  ///< below, or of the web on the right
  BottomFlangeThickness = 6,
  Radius = 7,  ///< of the root of a rolled shape, of the outer corners of a box
  InnerRadius = 8,
};

inline constexpr std::size_t kSectionProps = 9;
/// The dimensions of one shape, 0 where it has none.
using SectionDimensions = std::array<double, kSectionProps>;

/// What is the same for all components of a shape.
struct SectionShapeRow {
  SectionShape shape = SectionShape::None;
  std::wstring_view name;              ///< the first word of its description
  std::span<SectionProp const> props;  ///< the dimensions in the order of the description
  std::size_t needed = 0;              ///< how many of them a description has at least
};

/// The row of a shape; one without a name for a number that no shape has.
TARVEX_STORE_EXPORT SectionShapeRow const& SectionShapeOf(SectionShape shape);

/// A shape with its dimensions at both ends of an element, between which they change evenly.
struct SectionText {
  SectionShape shape = SectionShape::None;
  SectionDimensions start{};
  SectionDimensions end{};
};

/// Why a text describes no section.
struct SectionFault {
  int position = 0;  ///< of the character, from 0
  CString reason;
};

/// Reads a description: the name of a shape, perhaps a unit in parentheses (m, cm, mm; m is meant
/// without one), its dimensions, and, for a component that changes along an element, "to" and the
/// dimensions at the other end. The empty text is a component without a shape. @return empty for
/// any other text and for dimensions that no such shape can have; fault then tells why.
TARVEX_STORE_EXPORT std::optional<SectionText> ReadSection(CString const& text,
                                                           SectionFault* fault = nullptr);
/// The same in model length units with the shortest numbers: equal for equal components.
TARVEX_STORE_EXPORT CString WriteSection(SectionText const& section);

}  // namespace Tarvex::Data
