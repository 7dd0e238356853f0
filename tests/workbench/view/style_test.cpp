#include "workbench/view/style.h"

#include <gtest/gtest.h>

#include <cmath>
#include <regex>
#include <set>

namespace Tarvex::StyleTest {
namespace {

using Workbench::Look;

/// The colour behind a word of a style, "" for none.
std::string ColourOf(Look look, std::string const& word) {
  std::string const css(Workbench::StyleOf(look).css);
  std::smatch found;
  return std::regex_search(css, found, std::regex(word + ":#([0-9a-f]+)")) ? found[1].str() : "";
}

/// Relative luminance of "rrggbb" or "rgb" by WCAG 2.1.
double Luminance(std::string const& hex) {
  auto const part = [&](std::size_t i) {
    auto const text = hex.size() == 3 ? std::string(2, hex[i]) : hex.substr(2 * i, 2);
    double const value = std::stoi(text, nullptr, 16) / 255.0;
    return value <= 0.03928 ? value / 12.92 : std::pow((value + 0.055) / 1.055, 2.4);
  };
  return 0.2126 * part(0) + 0.7152 * part(1) + 0.0722 * part(2);
}

double Contrast(std::string const& a, std::string const& b) {
  auto const [low, high] = std::minmax({Luminance(a), Luminance(b)});
  return (high + 0.05) / (low + 0.05);
}

TEST(Style, TheContrastFormulaHasItsKnownValues) {
  EXPECT_NEAR(Contrast("000", "ffffff"), 21, 1e-9);
  EXPECT_NEAR(Contrast("777777", "fff"), 4.48, 0.005);
}

TEST(Style, StrokesStandOutFromThePage) {
  int strokes = 0;
  for (auto const& row : Workbench::Styles()) {
    auto const colour = ColourOf(row.look, "stroke");
    if (colour.empty()) continue;
    ++strokes;
    EXPECT_GE(Contrast(colour, "ffffff"), 4.5) << row.name;
  }
  EXPECT_EQ(strokes, 15);
}

TEST(Style, TheTwoSidesAreToldApart) {
  EXPECT_GE(Contrast(ColourOf(Look::PlateFront, "fill"), ColourOf(Look::PlateBack, "fill")), 1.8);
  EXPECT_GE(Contrast(ColourOf(Look::PanelFront, "fill"), ColourOf(Look::PanelBack, "fill")), 1.8);
}

TEST(Style, LooksHaveNamesOfTheirOwnAndAllStandInTheSheet) {
  auto const sheet = Workbench::StyleSheet();
  std::set<std::string_view> names;
  for (auto const& row : Workbench::Styles()) {
    EXPECT_TRUE(names.insert(row.name).second) << row.name;
    EXPECT_NE(sheet.find("." + std::string(row.name) + "{"), std::string::npos) << row.name;
  }
}

}  // namespace
}  // namespace Tarvex::StyleTest
