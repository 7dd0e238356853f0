#include "workbench/file/json_scan.h"

#include <algorithm>
#include <array>
#include <vector>

#include "store/text/utf8.h"
#include "workbench/file/json_number.h"
#include "workbench/file/json_string.h"

namespace Tarvex::Workbench {
namespace {

constexpr std::array<std::string_view, 3> kWords{"true", "false", "null"};
constexpr std::array<std::string_view, 6> kNotFinite{"NaN",       "nan", "Infinity",
                                                     "-Infinity", "inf", "-inf"};

bool IsBlank(char c) { return c == ' ' || c == '\n' || c == '\r' || c == '\t'; }
bool IsContinuation(char c) { return (static_cast<unsigned char>(c) & 0xC0) == 0x80; }

template <class Words>
bool Contains(Words const& words, std::string_view word) {
  return std::find(words.begin(), words.end(), word) != words.end();
}

/// One step of the way from the root to a value: a key, or a place in an array.
struct Step {
  std::string key;
  std::size_t index = 0;
  bool isKey = false;
};

void AppendStep(std::string& pointer, Step const& step) {
  pointer += '/';
  if (!step.isKey) {
    pointer += std::to_string(step.index);
    return;
  }
  for (char const c : step.key) {
    if (c == '~')
      pointer += "~0";
    else if (c == '/')
      pointer += "~1";
    else if (c >= 0 && c < ' ')
      AppendJsonCharacter(pointer, c);  // a pointer is part of a line
    else
      pointer += c;
  }
}

/// Goes through one text. Each step of the grammar answers false at the first fault.
class Scanner {
 public:
  Scanner(std::string_view json, std::size_t target) : m_json(json), m_target(target) {}

  JsonScan Scan() {
    SkipBlanks();
    if (Value()) {
      SkipBlanks();
      if (!AtEnd()) Fail(m_at, "text behind the end of the model");
    }
    return std::move(m_result);
  }

 private:
  bool AtEnd() const { return m_at >= m_json.size(); }
  char Here() const { return m_json[m_at]; }

  void SkipBlanks() {
    while (!AtEnd() && IsBlank(Here())) ++m_at;
  }

  std::string Pointer() const {
    std::string pointer;
    for (std::size_t i = 0; i < m_depth; ++i) AppendStep(pointer, m_path[i]);
    return pointer;
  }

  bool Fail(std::size_t offset, std::string text) {
    m_result.fault = JsonFault{offset, Pointer(), std::move(text)};
    return false;
  }
  bool FailAtEnd() { return Fail(m_json.size(), "the file ends early"); }
  bool Expected(std::string const& what) {
    if (AtEnd()) return FailAtEnd();
    return Fail(m_at, "expected " + what + ", found " + Quoted(WordAt(m_at)));
  }

  /// What stands at an offset up to the next blank or mark, or one mark.
  std::string_view WordAt(std::size_t at) const {
    auto const isMark = [](char c) {
      return EndsJsonWord(c) || c == '"' || c == '[' || c == '{' || c == ':';
    };
    auto end = at;
    while (end < m_json.size() && !isMark(m_json[end])) ++end;
    return m_json.substr(at, std::max<std::size_t>(end - at, 1));
  }

  void NotePlace() {
    if (m_at == m_target) m_result.pointer = Pointer();
  }

  bool Value() {
    NotePlace();
    if (AtEnd()) return FailAtEnd();
    switch (Here()) {
      case '{':
        return Container(&Scanner::Member, '}');
      case '[':
        return Container(&Scanner::Item, ']');
      case '"':
        return String(m_scratch);
      default:
        return Word();
    }
  }

  /// Steps into a container and through its members, which are separated by commas.
  bool Container(bool (Scanner::*member)(), char close) {
    if (m_depth == kDeepestNesting)
      return Fail(m_at, "nesting deeper than " + std::to_string(kDeepestNesting));
    ++m_at;
    SkipBlanks();
    if (!AtEnd() && Here() == close) return Advance();
    if (m_path.size() == m_depth) m_path.emplace_back();
    m_path[m_depth].index = 0;
    for (;; ++m_path[m_depth].index) {
      if (!(this->*member)()) return false;
      SkipBlanks();
      if (AtEnd()) return FailAtEnd();
      if (Here() == close) return Advance();
      if (Here() != ',') return Expected(std::string("\",\" or \"") + close + '"');
      ++m_at;
      SkipBlanks();
    }
  }

  bool Advance() {
    ++m_at;
    return true;
  }

  bool Item() {
    m_path[m_depth].isKey = false;
    return Inside(&Scanner::Value);
  }

  bool Member() {
    if (AtEnd() || Here() != '"') return Expected("a key");
    auto const begin = m_at;
    m_path[m_depth].isKey = true;
    if (!String(m_path[m_depth].key)) return false;
    if (begin == m_target) Inside(&Scanner::NotePointer);
    SkipBlanks();
    if (AtEnd() || Here() != ':') return Expected("\":\"");
    ++m_at;
    SkipBlanks();
    return Inside(&Scanner::Value);
  }

  bool NotePointer() {
    m_result.pointer = Pointer();
    return true;
  }

  /// A step of the grammar one level deeper; a fault in it is told with the pointer of that level.
  bool Inside(bool (Scanner::*step)()) {
    ++m_depth;
    bool const good = (this->*step)();
    --m_depth;
    return good;
  }

  bool String(std::string& text) {
    auto const read = ReadJsonString(m_json, m_at + 1, text);
    m_at = read.end;
    if (read.fault == nullptr) return true;
    return AtEnd() ? FailAtEnd() : Fail(m_at, read.fault);
  }

  bool Word() {
    auto const word = WordAt(m_at);
    bool const isWord =
        EndOfJsonNumber(word.data()) == word.data() + word.size() || Contains(kWords, word);
    // The last word of a text may be cut; only a text that is nothing but a word ends with one.
    bool const isLast = m_at + word.size() == m_json.size() && !EndsJsonWord(word[0]);
    if (isLast && !(isWord && m_depth == 0)) return FailAtEnd();
    if (!isWord) return NoValue(word);
    m_at += word.size();
    return true;
  }

  bool NoValue(std::string_view word) {
    if (Contains(kNotFinite, word)) return Fail(m_at, std::string(word) + " is not finite");
    return Expected("a value");
  }

  std::string_view m_json;
  std::size_t m_target;
  std::size_t m_at = 0;
  std::size_t m_depth = 0;
  std::vector<Step> m_path;
  std::string m_scratch;
  JsonScan m_result;
};

}  // namespace

JsonScan ScanJson(std::string_view json, std::size_t offset) {
  auto const invalid = Text::FindInvalidUtf8(json);
  auto scan = Scanner(json.substr(0, invalid.value_or(json.size())), offset).Scan();
  if (!invalid) return scan;
  // What stands before the bad byte is a text that ends early, unless it has a fault of its own.
  if (!scan.fault) scan.fault = JsonFault{*invalid, "", ""};
  if (scan.fault->offset >= *invalid) scan.fault->text = "invalid UTF-8";
  return scan;
}

TextPlace PlaceInText(std::string_view text, std::size_t offset) {
  auto const before = text.substr(0, offset);
  auto const line = before.rfind('\n') + 1;  // npos + 1 is 0
  auto const inLine = before.substr(line);
  auto const lines = std::count(before.begin(), before.end(), '\n');
  auto const columns =
      std::count_if(inLine.begin(), inLine.end(), [](char c) { return !IsContinuation(c); });
  return {static_cast<int>(lines) + 1, static_cast<int>(columns) + 1};
}

std::string Quoted(std::string_view utf8) {
  constexpr std::size_t kMost = 24;
  auto end = std::min(utf8.size(), kMost);
  while (end > 0 && end < utf8.size() && IsContinuation(utf8[end])) --end;
  std::string quoted;
  AppendJsonString(quoted, utf8.substr(0, end));
  if (end < utf8.size()) quoted.insert(quoted.size() - 1, "...");
  return quoted;
}

}  // namespace Tarvex::Workbench
