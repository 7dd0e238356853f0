// Reads the pages of docs, whose examples and tables the tests hold to the program.
#pragma once

#include <algorithm>
#include <fstream>
#include <set>
#include <sstream>
#include <stdexcept>
#include <string>
#include <vector>

namespace Tarvex::Testing {

/// The whole of a file of the tree.
inline std::string ReadSource(std::string const& name) {
  std::ifstream file(std::string(TARVEX_SOURCE_DIR) + "/" + name);
  if (!file) throw std::runtime_error(name + " is not in the tree");
  return {std::istreambuf_iterator<char>(file), {}};
}

/// What stands between backticks in a text, in order.
inline std::vector<std::string> Quoted(std::string const& text) {
  std::vector<std::string> words;
  for (auto at = text.find('`'); at != std::string::npos;) {
    auto const end = text.find('`', at + 1);
    if (end == std::string::npos) break;
    words.push_back(text.substr(at + 1, end - at - 1));
    at = text.find('`', end + 1);
  }
  return words;
}

/// A text without the backticks around it.
inline std::string Bare(std::string const& cell) {
  return cell.starts_with('`') ? cell.substr(1, cell.size() - 2) : cell;
}

/// One page.
class Page {
 public:
  /// @param name within the tree, such as "docs/lists.md"
  explicit Page(std::string const& name) : m_text(ReadSource(name)) {
    std::istringstream text(m_text);
    for (std::string line; std::getline(text, line);) m_lines.push_back(line);
  }

  std::string const& Text() const { return m_text; }

  /// The first block of JSON.
  std::string Json() const {
    std::string text;
    for (auto line = Find("```json") + 1; *line != "```"; ++line) text += *line + "\n";
    return text;
  }

  /// The indented block whose first line begins with a text, without the indentation.
  std::string Block(std::string const& begin) const {
    constexpr char const* kIndent = "    ";
    auto line = std::find_if(m_lines.begin(), m_lines.end(), [&](std::string const& each) {
      return each.starts_with(kIndent + begin);
    });
    std::string text;
    for (; line != m_lines.end() && line->starts_with(kIndent); ++line)
      text += line->substr(std::string(kIndent).size()) + "\n";
    return text;
  }

  /// The cells of the rows of a table, blanks around them left out. @param which of the tables with
  /// that heading, from 0
  std::vector<std::vector<std::string>> Rows(std::string const& heading, int which = 0) const {
    std::vector<std::vector<std::string>> rows;
    for (auto line = Find(heading, which) + 2; line != m_lines.end() && line->starts_with("|");
         ++line) {
      auto& cells = rows.emplace_back();
      for (std::size_t at = 1; at < line->size();) {
        auto const end = line->find('|', at);
        cells.push_back(Trimmed(line->substr(at, end - at)));
        at = end + 1;
      }
    }
    return rows;
  }

 private:
  using Line = std::vector<std::string>::const_iterator;

  Line Find(std::string const& text, int which = 0) const {
    auto line = std::find(m_lines.begin(), m_lines.end(), text);
    for (; which > 0 && line != m_lines.end(); --which)
      line = std::find(line + 1, m_lines.end(), text);
    if (line == m_lines.end()) throw std::runtime_error("the page has no line " + text);
    return line;
  }

  static std::string Trimmed(std::string const& cell) {
    auto const first = cell.find_first_not_of(' ');
    if (first == std::string::npos) return {};
    return cell.substr(first, cell.find_last_not_of(' ') - first + 1);
  }

  std::string m_text;
  std::vector<std::string> m_lines;
};

}  // namespace Tarvex::Testing
