#include "workbench/file/json_string.h"

#include <array>
#include <charconv>
#include <optional>

#include "store/text/utf8.h"

namespace Tarvex::Workbench {
namespace {

constexpr std::string_view kEnded = "the text ends inside a string";

/// Escapes of one letter: what stands behind the backslash, and what it means.
struct Escape {
  char letter;
  char meaning;
};
constexpr std::array<Escape, 8> kEscapes{{{'"', '"'},
                                          {'\\', '\\'},
                                          {'/', '/'},
                                          {'b', '\b'},
                                          {'f', '\f'},
                                          {'n', '\n'},
                                          {'r', '\r'},
                                          {'t', '\t'}}};

constexpr unsigned kHighFirst = 0xD800;
constexpr unsigned kLowFirst = 0xDC00;
constexpr unsigned kSurrogateEnd = 0xE000;

bool IsControl(char c) { return static_cast<unsigned char>(c) < 0x20; }
bool IsHigh(unsigned code) { return code >= kHighFirst && code < kLowFirst; }
bool IsLow(unsigned code) { return code >= kLowFirst && code < kSurrogateEnd; }

/// Reads one string from left to right.
class StringReader {
 public:
  StringReader(std::string_view json, std::size_t at, std::string& utf8)
      : m_json(json), m_at(at), m_utf8(utf8) {}

  JsonString Read() {
    m_utf8.clear();
    while (m_fault == nullptr && m_at < m_json.size() && m_json[m_at] != '"') ReadOne();
    if (m_fault == nullptr && m_at >= m_json.size()) m_fault = kEnded.data();
    return {m_fault == nullptr ? m_at + 1 : m_at, m_fault};
  }

 private:
  void ReadOne() {
    char const c = m_json[m_at];
    if (c == '\\') return ReadEscape();
    if (IsControl(c)) return Fail("a control character in a string must be escaped");
    m_utf8.push_back(c);
    ++m_at;
  }

  void ReadEscape() {
    if (m_at + 1 >= m_json.size()) return FailAtEnd();
    char const letter = m_json[m_at + 1];
    if (letter == 'u') return ReadCode();
    for (auto const& escape : kEscapes) {
      if (escape.letter != letter) continue;
      m_utf8.push_back(escape.meaning);
      m_at += 2;
      return;
    }
    Fail("an unknown escape in a string");
  }

  void ReadCode() {
    auto const first = Code(m_at);
    if (!first) return;
    unsigned code = *first;
    std::size_t size = 6;
    if (IsHigh(code)) {
      auto const rest = m_json.substr(m_at + size);
      if (rest.empty() || rest == "\\") return FailAtEnd();
      auto const second = rest.starts_with("\\u") ? Code(m_at + size) : std::optional(0u);
      if (!second) return;
      if (!IsLow(*second)) return Fail(kHalf);
      code = 0x10000 + ((code - kHighFirst) << 10) + (*second - kLowFirst);
      size += 6;
    } else if (IsLow(code)) {
      return Fail(kHalf);
    }
    auto const wide = static_cast<wchar_t>(code);
    m_utf8 += Text::EncodeUtf8({&wide, 1});
    m_at += size;
  }

  /// The four hexadecimal digits of an escape that begins at the given offset.
  std::optional<unsigned> Code(std::size_t at) {
    auto const digits = m_json.substr(at + 2, 4);
    unsigned code = 0;
    auto const* end = digits.data() + digits.size();
    // A sign is no digit, but from_chars of an unsigned number takes none anyway.
    auto const [stop, error] = std::from_chars(digits.data(), end, code, 16);
    if (error == std::errc() && stop == end && digits.size() == 4) return code;
    if (stop == end && at + 2 + digits.size() == m_json.size())
      FailAtEnd();
    else
      Fail("an escape \\u in a string needs four hexadecimal digits");
    return std::nullopt;
  }

  void Fail(char const* reason) { m_fault = reason; }
  void FailAtEnd() {
    m_at = m_json.size();
    m_fault = kEnded.data();
  }

  static constexpr char const* kHalf = "half of a surrogate pair in a string";

  std::string_view m_json;
  std::size_t m_at;
  std::string& m_utf8;
  char const* m_fault = nullptr;
};

void AppendEscape(std::string& json, char c) {
  constexpr std::string_view kDigits = "0123456789abcdef";
  if (c == '"' || c == '\\') {
    json += {'\\', c};
  } else if (c == '\n') {
    json += "\\n";
  } else if (c == '\t') {
    json += "\\t";
  } else {
    auto const code = static_cast<unsigned char>(c);
    json += "\\u00";
    json += {kDigits[code >> 4], kDigits[code & 15]};
  }
}

}  // namespace

JsonString ReadJsonString(std::string_view json, std::size_t at, std::string& utf8) {
  return StringReader(json, at, utf8).Read();
}

void AppendJsonCharacter(std::string& json, char c) {
  if (c == '"' || c == '\\' || IsControl(c))
    AppendEscape(json, c);
  else
    json += c;
}

void AppendJsonString(std::string& json, std::string_view utf8) {
  json += '"';
  for (char const c : utf8) AppendJsonCharacter(json, c);
  json += '"';
}

}  // namespace Tarvex::Workbench
