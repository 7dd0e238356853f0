#include "workbench/cli/colour.h"

#include <cstdlib>
#include <string_view>

namespace Tarvex::Workbench {
namespace {

constexpr std::string_view kColourOption = "--color";

/// Text of an environment variable, empty where there is none.
std::string_view Environment(char const* name) {
  auto const* const text = std::getenv(name);
  return text == nullptr ? std::string_view() : std::string_view(text);
}

ColourMode ColourOfWord(std::string_view word, ColourMode otherwise) {
  if (word == "always") return ColourMode::Always;
  if (word == "never") return ColourMode::Never;
  return word == "auto" ? ColourMode::Auto : otherwise;
}

}  // namespace

ColourMode ColourAskedFor(std::vector<std::string> const& words) {
  auto mode = ColourMode::Auto;
  for (std::size_t i = 0; i < words.size() && words[i] != "--"; ++i) {
    std::string_view const word = words[i];
    if (!word.starts_with(kColourOption)) continue;
    auto const value = word.substr(kColourOption.size());
    if (value.starts_with('='))
      mode = ColourOfWord(value.substr(1), mode);
    else if (value.empty() && i + 1 < words.size())
      mode = ColourOfWord(words[i + 1], mode);
  }
  return mode;
}

bool IsColoured(ColourMode mode, bool isTerminal) {
  if (mode != ColourMode::Auto) return mode == ColourMode::Always;
  if (!Environment("NO_COLOR").empty()) return false;
  if (auto const force = Environment("CLICOLOR_FORCE"); !force.empty() && force != "0") return true;
  return isTerminal && Environment("TERM") != "dumb";
}

std::string InColour(std::string const& text, Colour colour, bool coloured) {
  if (!coloured) return text;
  return (colour == Colour::Red ? "\033[31m" : "\033[33m") + text + "\033[0m";
}

}  // namespace Tarvex::Workbench
