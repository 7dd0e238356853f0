#include "store/text/cstring.h"

#include <algorithm>

#include "store/text/utf8.h"

namespace Tarvex {
namespace {

wchar_t Lower(wchar_t c) {
  return c >= L'A' && c <= L'Z' ? static_cast<wchar_t>(c - L'A' + L'a') : c;
}

std::size_t Clamp(int count, std::size_t size) {
  return count < 0 ? 0 : std::min(static_cast<std::size_t>(count), size);
}

}  // namespace

CString CString::FromUtf8(std::string_view utf8) { return Text::DecodeUtf8(utf8); }

std::string CString::ToUtf8() const { return Text::EncodeUtf8(m_text); }

int CString::Find(std::wstring_view sub, int start) const {
  auto const at = m_text.find(sub, start < 0 ? 0 : static_cast<std::size_t>(start));
  return at == std::wstring::npos ? -1 : static_cast<int>(at);
}

CString CString::Left(int count) const { return m_text.substr(0, Clamp(count, m_text.size())); }

CString CString::Mid(int first) const { return m_text.substr(Clamp(first, m_text.size())); }

CString CString::Mid(int first, int count) const {
  auto const from = Clamp(first, m_text.size());
  return m_text.substr(from, Clamp(count, m_text.size() - from));
}

CString CString::Right(int count) const {
  return m_text.substr(m_text.size() - Clamp(count, m_text.size()));
}

int CString::CompareNoCase(std::wstring_view other) const {
  auto const size = std::min(m_text.size(), other.size());
  for (std::size_t i = 0; i < size; ++i) {
    auto const a = Lower(m_text[i]);
    auto const b = Lower(other[i]);
    if (a != b) return a < b ? -1 : 1;
  }
  if (m_text.size() == other.size()) return 0;
  return m_text.size() < other.size() ? -1 : 1;
}

CString& CString::TrimRight(std::wstring_view characters) {
  auto const last = m_text.find_last_not_of(characters);
  m_text.erase(last == std::wstring::npos ? 0 : last + 1);
  return *this;
}

CString& CString::TrimLeft(std::wstring_view characters) {
  m_text.erase(0, std::min(m_text.find_first_not_of(characters), m_text.size()));
  return *this;
}

}  // namespace Tarvex
