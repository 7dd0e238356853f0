// A file that can't be read or written, or is faulty.
#pragma once

#include <stdexcept>
#include <string>

namespace Tarvex::Workbench {

/// Place in a file; line and column count from 1, 0 where there is none.
struct FilePlace {
  std::string file;
  int line = 0;
  int column = 0;
  std::string pointer;  ///< JSON pointer to the value, empty where there is none
};

/// "FILE:LINE:COLUMN: /Elem/3/topology/0: text", with as much of the place as there is.
std::string PlacedText(FilePlace const& place, std::string const& text);

/// Ends a command with exit code 4. what() is the one line for the user: text with its place.
class FileError : public std::runtime_error {
 public:
  FileError(FilePlace place, std::string const& text);

  FilePlace const& Place() const { return m_place; }
  std::string const& Text() const { return m_text; }

 private:
  FilePlace m_place;
  std::string m_text;
};

}  // namespace Tarvex::Workbench
