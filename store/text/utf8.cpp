#include "store/text/utf8.h"

#include <cstdint>

namespace Tarvex::Text {
namespace {

constexpr char32_t kReplacement = 0xFFFD;

struct Character {
  char32_t code;
  std::size_t size;  // bytes; 0 when the bytes are no character
};

/// The character that begins at the given offset; see table 3-7 of the Unicode standard for which
/// byte sequences are well formed.
Character Read(std::string_view utf8, std::size_t at) {
  auto const byte = [&](std::size_t i) { return static_cast<std::uint8_t>(utf8[at + i]); };
  auto const lead = byte(0);
  if (lead < 0x80) return {lead, 1};
  std::size_t const size = lead >= 0xF0 ? 4 : lead >= 0xE0 ? 3 : 2;
  if (lead < 0xC2 || lead > 0xF4 || at + size > utf8.size()) return {kReplacement, 0};
  char32_t code = lead & (0xFFu >> (size + 1));
  for (std::size_t i = 1; i < size; ++i) {
    if ((byte(i) & 0xC0) != 0x80) return {kReplacement, 0};
    code = (code << 6) | (byte(i) & 0x3Fu);
  }
  constexpr char32_t kLowest[] = {0, 0, 0x80, 0x800, 0x10000};
  bool const surrogate = code >= 0xD800 && code <= 0xDFFF;
  if (code < kLowest[size] || surrogate || code > 0x10FFFF) return {kReplacement, 0};
  return {code, size};
}

void Append(std::string& out, char32_t code) {
  auto const put = [&](char32_t bits) { out.push_back(static_cast<char>(bits)); };
  if (code < 0x80) return put(code);
  if (code < 0x800) {
    put(0xC0 | (code >> 6));
  } else {
    if (code < 0x10000) {
      put(0xE0 | (code >> 12));
    } else {
      put(0xF0 | (code >> 18));
      put(0x80 | ((code >> 12) & 0x3F));
    }
    put(0x80 | ((code >> 6) & 0x3F));
  }
  put(0x80 | (code & 0x3F));
}

}  // namespace

std::wstring DecodeUtf8(std::string_view utf8) {
  std::wstring text;
  text.reserve(utf8.size());
  for (std::size_t i = 0; i < utf8.size();) {
    auto const character = Read(utf8, i);
    text.push_back(static_cast<wchar_t>(character.code));
    i += character.size == 0 ? 1 : character.size;
  }
  return text;
}

std::string EncodeUtf8(std::wstring_view text) {
  std::string utf8;
  utf8.reserve(text.size());
  for (wchar_t const c : text) {
    auto const code = static_cast<char32_t>(c);
    bool const valid = code <= 0x10FFFF && (code < 0xD800 || code > 0xDFFF);
    Append(utf8, valid ? code : kReplacement);
  }
  return utf8;
}

std::optional<std::size_t> FindInvalidUtf8(std::string_view utf8) {
  for (std::size_t i = 0; i < utf8.size();) {
    auto const size = Read(utf8, i).size;
    if (size == 0) return i;
    i += size;
  }
  return std::nullopt;
}

}  // namespace Tarvex::Text
