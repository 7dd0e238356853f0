// Colours of messages on a terminal.
#pragma once

#include <string>
#include <vector>

namespace Tarvex::Workbench {

/// When messages are coloured.
enum class ColourMode { Auto, Always, Never };

enum class Colour { Red, Yellow };

/// The words of the modes, split by '|'.
inline constexpr char const* kColourWords = "auto|always|never";

/// What the words of a command line ask for with --color, whatever else is wrong with them; the
/// last one counts.
ColourMode ColourAskedFor(std::vector<std::string> const& words);

/// Whether messages are coloured. Of their own accord they are on a terminal, but for NO_COLOR with
/// a text and the terminal "dumb"; and anywhere with a CLICOLOR_FORCE that is not 0.
bool IsColoured(ColourMode mode, bool isTerminal);

/// The text in a colour, or as it is.
std::string InColour(std::string const& text, Colour colour, bool coloured);

}  // namespace Tarvex::Workbench
