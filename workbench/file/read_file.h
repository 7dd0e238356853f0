// Reads whole files.
#pragma once

#include <string>
#include <string_view>

namespace Tarvex::Workbench {

/// Path that stands for standard input or standard output.
inline constexpr std::string_view kStandardPath = "-";

/// The bytes of a file or, for "-", of standard input. Throws FileError with the reason.
/// @param spare bytes that the text can grow by without being moved.
std::string ReadWholeFile(std::string const& path, std::size_t spare = 0);

/// Text of an error number of the system, in English whatever the locale.
std::string SystemText(int number);

}  // namespace Tarvex::Workbench
