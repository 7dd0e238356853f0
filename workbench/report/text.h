// Small text helpers of the reports.
#pragma once

#include <string>
#include <string_view>

namespace Tarvex::Workbench {

/// Shortest text that reads back the same number.
std::string NumberText(double value);

/// The text with blanks behind, or before, up to a width.
std::string Padded(std::string text, std::size_t width);
std::string PaddedLeft(std::string text, std::size_t width);

/// "1 element", "2 elements".
std::string Counted(std::size_t count, std::string_view noun);

}  // namespace Tarvex::Workbench
