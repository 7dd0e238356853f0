#include "store/select/list_tokens.h"

#include <algorithm>
#include <array>
#include <unordered_map>

#include "store/select/case_tokens.h"

namespace Tarvex::Data {
namespace {

// Words that were rendered by their number in lists of earlier work, read back as words.
constexpr std::array kWordsWrittenAsNumbers{-50, -53, -54, -57, -58};

bool IsBlank(wchar_t c) { return c == L' ' || c == L'\t' || c == L'\r' || c == L'\n'; }
bool IsDigit(wchar_t c) { return c >= L'0' && c <= L'9'; }

std::wstring_view Bare(std::wstring_view word) {
  return word.ends_with(L' ') ? word.substr(0, word.size() - 1) : word;
}

/// The words of lists by what a text or a token is searched for: a list that writes out its numbers
/// has a hundred thousand of them.
class WordIndex {
 public:
  WordIndex() {
    for (auto const& word : ListWords()) {
      m_byToken.emplace(word.token, &word);
      m_byLetter[Bare(word.text).front()].push_back(&word);
    }
    for (auto& [letter, words] : m_byLetter)
      std::stable_sort(words.begin(), words.end(), [](auto const* one, auto const* other) {
        return Bare(one->text).size() > Bare(other->text).size();
      });
  }

  static WordIndex const& Instance() {
    static WordIndex const kIndex;
    return kIndex;
  }

  /// The word of a token, null when it is none.
  ListWord const* OfToken(int token) const {
    auto const at = m_byToken.find(token);
    return at == m_byToken.end() ? nullptr : at->second;
  }

  /// The longest word that a text, which is not empty, begins with, null when it is none.
  ListWord const* AtBegin(std::wstring_view text) const {
    auto const at = m_byLetter.find(text.front());
    if (at == m_byLetter.end()) return nullptr;
    for (auto const* word : at->second)
      if (text.starts_with(Bare(word->text))) return word;
    return nullptr;
  }

 private:
  std::unordered_map<int, ListWord const*> m_byToken;
  std::unordered_map<wchar_t, std::vector<ListWord const*>> m_byLetter;  // the longest first
};

/// Reads one text from left to right.
class Reader {
 public:
  explicit Reader(std::wstring_view text) : m_text(text) {}

  std::optional<ListTokens> Read(ListFault* fault, std::vector<int>* places) {
    for (SkipBlanks(); m_at < m_text.size(); SkipBlanks()) {
      if (places != nullptr) places->push_back(static_cast<int>(m_at));
      if (ReadOne()) continue;
      if (fault != nullptr) *fault = {static_cast<int>(m_at), m_reason};
      return std::nullopt;
    }
    return std::move(m_tokens);
  }

 private:
  void SkipBlanks() {
    while (m_at < m_text.size() && IsBlank(m_text[m_at])) ++m_at;
  }

  bool ReadOne() {
    wchar_t const c = m_text[m_at];
    if (c == L'"') return ReadString();
    if (IsDigit(c) || c == L'-') return ReadNumber();
    bool const digitBehind = m_at + 1 < m_text.size() && IsDigit(m_text[m_at + 1]);
    if (digitBehind && CaseOfLetter(c) != CaseOp::None) return ReadCase();
    return ReadWord();
  }

  bool ReadString() {
    auto const end = m_text.find(L'"', m_at + 1);
    if (end == std::wstring_view::npos) return Fail(L"a quoted name without its end");
    m_tokens.words.push_back(kString);
    m_tokens.strings.emplace_back(m_text.substr(m_at + 1, end - m_at - 1));
    m_at = end + 1;
    return true;
  }

  /// The number of the digits from a place on, at most one above the highest; end goes behind them.
  long long Digits(std::size_t& end) const {
    long long value = 0;
    for (; end < m_text.size() && IsDigit(m_text[end]); ++end)
      value = std::min<long long>(value * 10 + (m_text[end] - L'0'), kHighestNumber + 1LL);
    return value;
  }

  bool ReadNumber() {
    bool const negative = m_text[m_at] == L'-';
    auto const first = m_at + (negative ? 1 : 0);
    auto end = first;
    auto const value = Digits(end);
    if (end == first) return Fail(L"a sign without a number");
    if (value > kHighestNumber) return Fail(L"a number above 100000000");
    auto const token = static_cast<int>(negative ? -value : value);
    if (negative && std::find(kWordsWrittenAsNumbers.begin(), kWordsWrittenAsNumbers.end(),
                              token) == kWordsWrittenAsNumbers.end())
      return Fail(L"a negative number");
    m_tokens.words.push_back(token);
    m_at = end;
    return true;
  }

  bool ReadCase() {
    auto end = m_at + 1;
    auto const value = Digits(end);
    if (value > kHighestNumber) return Fail(L"a number above 100000000");
    m_tokens.words.push_back(CaseToken({CaseOfLetter(m_text[m_at]), static_cast<int>(value)}));
    m_at = end;
    return true;
  }

  bool ReadWord() {
    auto const* const word = WordIndex::Instance().AtBegin(m_text.substr(m_at));
    if (word == nullptr) return Fail(L"an unknown word");
    m_tokens.words.push_back(word->token);
    m_at += Bare(word->text).size();
    return true;
  }

  bool Fail(wchar_t const* reason) {
    m_reason = reason;
    return false;
  }

  std::wstring_view m_text;
  std::size_t m_at = 0;
  ListTokens m_tokens;
  CString m_reason;
};

/// Text of a word that is no quoted name.
std::wstring TextOf(int token) {
  if (IsNumberToken(token)) return std::to_wstring(token);
  if (auto const ref = CaseOfToken(token); ref.type != CaseOp::None)
    return LetterOfCase(ref.type) + std::to_wstring(ref.num);
  auto const* word = WordIndex::Instance().OfToken(token);
  return word == nullptr ? std::wstring() : std::wstring(Bare(word->text));
}

bool NeedsBlank(int before, int token) {
  if (before == kOpen || token == kClose) return false;
  bool const takesNumber = before == kSavedList || IsPrefixWord(before);
  return !takesNumber || (token != kHighest && !IsNumberToken(token));
}

}  // namespace

std::vector<ListWord> const& ListWords() {
  static std::vector<ListWord> const kWords{
      {kTo, L"to "},      {kNot, L"not "}, {kStep, L"step "}, {kAll, L"all "}, {kNone, L"none "},
      {kHighest, L"* "},  {kAnd, L"and "}, {kOr, L"or "},     {kOpen, L"("},   {kClose, L")"},
      {kSavedList, L"#"}, {-13, L"N"},     {-14, L"E"},       {-15, L"P"},     {-16, L"PB"},
      {-17, L"PS"},       {-18, L"PM"},    {-19, L"PA"},      {-20, L"PL"},    {-21, L"PC"},
      {-22, L"PG"},       {-23, L"PV"},    {-24, L"G"},       {-27, L"DMR"},   {-28, L"DS"},
      {-29, L"DSR"},      {-30, L"DCB"},   {-31, L"DCS"},     {-32, L"PD"},    {-34, L"X"},
      {-35, L"Y"},        {-36, L"XY"},    {-37, L"Z"},       {-38, L"ZX"},    {-39, L"YZ"},
      {-50, L"M"},        {-51, L"MS"},    {-52, L"MC"},      {-53, L"MA"},    {-54, L"MG"},
      {-55, L"MP"},       {-57, L"MT"},    {-58, L"MF"},
  };
  return kWords;
}

bool IsListWord(int token) { return WordIndex::Instance().OfToken(token) != nullptr; }

bool IsPrefixWord(int token) {
  return (token <= -13 && token >= -39) || (token <= -50 && token >= -58);
}

std::optional<ListTokens> ReadListTokens(std::wstring_view text, ListFault* fault,
                                         std::vector<int>* places) {
  return Reader(text).Read(fault, places);
}

CString WriteListTokens(ListTokens const& tokens) {
  std::wstring text;
  std::size_t nextString = 0;
  int before = kOpen;
  for (int const token : tokens.words) {
    if (NeedsBlank(before, token)) text += L' ';
    if (token != kString) {
      text += TextOf(token);
    } else {
      auto const name = nextString < tokens.strings.size() ? tokens.strings[nextString] : CString();
      text += L'"' + name.Str() + L'"';
      ++nextString;
    }
    before = token;
  }
  return text;
}

}  // namespace Tarvex::Data
