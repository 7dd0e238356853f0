// The text of JSON strings.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace Tarvex::Workbench {

/// What became of reading a JSON string.
struct JsonString {
  std::size_t end = 0;          ///< offset behind the closing quote, or of the fault
  char const* fault = nullptr;  ///< reason why it is no string, null for a good one
};

/// Reads a JSON string. Escapes of single halves of a surrogate pair and control characters that
/// are not escaped are faults; bytes of UTF-8 are passed on unchecked.
/// @param at offset behind the opening quote.
/// @param utf8 receives the text.
JsonString ReadJsonString(std::string_view json, std::size_t at, std::string& utf8);

/// Appends one byte of a text as it stands in a JSON string, escaped where it must be.
void AppendJsonCharacter(std::string& json, char c);
/// Appends a text as a JSON string with quotes. Only what must be escaped is.
void AppendJsonString(std::string& json, std::string_view utf8);

}  // namespace Tarvex::Workbench
