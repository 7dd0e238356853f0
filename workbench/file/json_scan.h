// A strict scan of a whole JSON text: where it stops being JSON, and the names of places in it.
//
// The fast reader of model files tells that something is wrong, but not always where; this scan
// says it in the user's words. It runs on faulty files only.
#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>

namespace Tarvex::Workbench {

/// Containers may stand in each other to this depth.
inline constexpr std::size_t kDeepestNesting = 64;

/// A fault of a text as JSON.
struct JsonFault {
  std::size_t offset = 0;
  std::string pointer;  ///< JSON pointer to the value that holds the place
  std::string text;
};

/// What a scan found. Control characters of keys stand escaped in pointers.
struct JsonScan {
  std::optional<JsonFault> fault;  ///< the first one
  /// JSON pointer to the value, or to the value of the key, that begins at the asked offset.
  std::string pointer;
};

/// Scans a text, which a zero byte must follow in memory.
/// @param offset of a value or key that a pointer is wanted for.
JsonScan ScanJson(std::string_view json, std::size_t offset = std::string_view::npos);

/// Line and column from 1; columns count characters.
struct TextPlace {
  int line = 1;
  int column = 1;
};
TextPlace PlaceInText(std::string_view text, std::size_t offset);

/// A piece of a text in quotes for a message, cut to a few characters, with what can't be shown
/// escaped.
std::string Quoted(std::string_view utf8);

}  // namespace Tarvex::Workbench
