#include "workbench/file/file_error.h"

namespace Tarvex::Workbench {

std::string PlacedText(FilePlace const& place, std::string const& text) {
  auto line = place.file;
  if (place.line > 0) line += ":" + std::to_string(place.line);
  if (place.line > 0 && place.column > 0) line += ":" + std::to_string(place.column);
  line += ": ";
  if (!place.pointer.empty()) line += place.pointer + ": ";
  return line + text;
}

FileError::FileError(FilePlace place, std::string const& text)
    : std::runtime_error(PlacedText(place, text)), m_place(std::move(place)), m_text(text) {}

}  // namespace Tarvex::Workbench
