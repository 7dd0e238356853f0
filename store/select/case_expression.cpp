#include <charconv>

#include "store/select/case_expression.h"
#include "store/select/case_tokens.h"

namespace Tarvex::Data {
namespace {

using Kind = CasePart::Kind;

struct RefusedCases {
  CaseFault fault;
};

/// Takes words from a text, blanks between them passed over.
class CaseWords {
 public:
  explicit CaseWords(std::wstring_view text) : m_text(text) {}

  [[noreturn]] void Refuse(wchar_t const* reason) const {
    throw RefusedCases{{static_cast<int>(m_at), reason}};
  }
  void PassBlanks() {
    while (m_at < m_text.size() && (m_text[m_at] == L' ' || m_text[m_at] == L'\t')) ++m_at;
  }
  bool IsAtEnd() {
    PassBlanks();
    return m_at == m_text.size();
  }
  std::size_t At() const { return m_at; }
  void GoTo(std::size_t at) { m_at = at; }

  /// Takes a word where it comes next.
  bool Take(std::wstring_view word) {
    PassBlanks();
    if (!m_text.substr(m_at).starts_with(word)) return false;
    m_at += word.size();
    return true;
  }
  /// Takes a number without sign.
  std::optional<double> TakeNumber() {
    PassBlanks();
    if (m_at == m_text.size() || !(IsDigit(m_text[m_at]) || m_text[m_at] == L'.')) return {};
    std::string digits;
    for (auto const character : m_text.substr(m_at)) {
      if (!IsOfNumber(character, digits)) break;
      digits += static_cast<char>(character);
    }
    double value = 0;
    auto const read = std::from_chars(digits.data(), digits.data() + digits.size(), value);
    if (read.ec != std::errc()) Refuse(L"a number that is out of range");
    m_at += static_cast<std::size_t>(read.ptr - digits.data());
    return value;
  }
  /// Takes the digits of a case number, which stand directly behind the letter.
  int TakeCaseNumber() {
    long long number = 0;
    auto end = m_at;
    for (; end < m_text.size() && IsDigit(m_text[end]); ++end)
      if (number <= kHighestNumber) number = number * 10 + (m_text[end] - L'0');
    if (end == m_at) Refuse(L"expected a case number");
    if (number < 1 || number > kHighestNumber) Refuse(L"a case number is from 1 to 100000000");
    m_at = end;
    return static_cast<int>(number);
  }
  /// The letter of a case that comes next, taken; 0 for any other character.
  wchar_t TakeLetter() {
    PassBlanks();
    if (m_at == m_text.size()) return 0;
    auto const letter = m_text[m_at];
    if (letter != L'M' && CaseOfLetter(letter) == CaseOp::None) return 0;
    ++m_at;
    return letter;
  }

 private:
  static bool IsDigit(wchar_t character) { return character >= L'0' && character <= L'9'; }
  /// Whether a character goes on with a number: digits, a point, and an exponent with its sign.
  static bool IsOfNumber(wchar_t character, std::string const& before) {
    if (IsDigit(character) || character == L'.') return true;
    if (character == L'e' || character == L'E') return !before.empty();
    bool const sign = character == L'+' || character == L'-';
    return sign && !before.empty() && (before.back() == 'e' || before.back() == 'E');
  }

  std::wstring_view m_text;
  std::size_t m_at = 0;
};

/// Reads one description. Open parentheses stand on a stack of its own, so that their depth costs
/// no recursion.
class CaseReader {
 public:
  explicit CaseReader(std::wstring_view text) : m_words(text) {}

  CaseExpression Read() {
    if (m_words.IsAtEnd() || TakeNone()) {
      m_expression.whole = Add({});
      return std::move(m_expression);
    }
    m_frames.push_back({Opened::Whole, {1}, {}, {}, {}});
    while (!m_frames.empty()) ReadTerm();
    return std::move(m_expression);
  }

 private:
  enum class Opened { Whole, Parenthesis, Squares, PDelta };

  /// What stands in one parenthesis so far.
  struct Frame {
    Opened opened;
    std::vector<double> factors;  // of the parenthesis
    std::vector<int> arguments;   // of "SRSS(", before the last comma
    std::vector<int> either;      // before the last "or"
    std::vector<int> sum;         // since then
  };

  bool TakeNone() {
    auto const start = m_words.At();
    if (m_words.Take(L"none") && m_words.IsAtEnd()) return true;
    m_words.GoTo(start);
    return false;
  }

  int Add(CasePart part) {
    m_expression.parts.push_back(std::move(part));
    return static_cast<int>(m_expression.parts.size()) - 1;
  }
  /// Several parts as one of a kind; one part is itself.
  int Join(Kind kind, std::vector<int> parts) {
    if (parts.size() == 1) return parts.front();
    return Add({kind, {}, 0, {}, std::move(parts)});
  }
  int Scale(std::vector<double> factors, int part) {
    if (factors == std::vector{1.0}) return part;
    return Add({Kind::Scaled, {}, 0, std::move(factors), {part}});
  }

  /// Reads a term with its sign and factors, up to the operator behind it.
  void ReadTerm() {
    bool const minus = m_words.Take(L"-");
    if (!minus) m_words.Take(L"+");
    auto factors = ReadFactors();
    if (minus)
      for (auto& factor : factors) factor = -factor;
    if (m_words.Take(L"SRSS(")) return Open(Opened::Squares, std::move(factors));
    if (m_words.Take(L"(")) return Open(Opened::Parenthesis, std::move(factors));
    EndPart(std::move(factors), ReadCase());
  }
  void Open(Opened opened, std::vector<double> factors) {
    m_frames.push_back({opened, std::move(factors), {}, {}, {}});
  }

  /// "1.35", "(1.35 or 1)" or nothing, which is 1.
  std::vector<double> ReadFactors() {
    if (auto const number = m_words.TakeNumber()) return {*number};
    auto const start = m_words.At();
    std::vector<double> factors;
    if (!m_words.Take(L"(")) return {1};
    do {
      bool const minus = m_words.Take(L"-");
      if (!minus) m_words.Take(L"+");
      auto const number = m_words.TakeNumber();
      if (!number) {
        factors.clear();
        break;
      }
      factors.push_back(minus ? -*number : *number);
    } while (m_words.Take(L"or"));
    if (!factors.empty() && m_words.Take(L")")) return factors;
    m_words.GoTo(start);  // a parenthesis of cases
    return {1};
  }

  int ReadCase() {
    wchar_t const letter = m_words.TakeLetter();
    if (letter == 0) m_words.Refuse(L"expected a case");
    if (m_words.Take(kDeletedCase)) return Add({});
    int const number = m_words.TakeCaseNumber();
    if (letter == L'M') return Add({});
    SCaseRef const first(CaseOfLetter(letter), number);
    if (!m_words.Take(L"to ")) return Add({Kind::Case, first, number, {}, {}});
    auto const at = m_words.At();
    if (m_words.TakeLetter() != letter) {
      m_words.GoTo(at);
      m_words.Refuse(L"expected a case of the same kind");
    }
    int const last = m_words.TakeCaseNumber();
    if (last < number) m_words.Refuse(L"a range that ends before it begins");
    return Add({Kind::Range, first, last, {}, {}});
  }

  /// Goes on behind a part: closes parentheses as long as they end here, then takes an operator.
  void EndPart(std::vector<double> factors, int part) {
    for (;;) {
      if (m_words.Take(L"abs")) part = Add({Kind::NonLinear, {}, 0, {}, {part}});
      auto& frame = m_frames.back();
      frame.sum.push_back(Scale(std::move(factors), part));
      if (TakesAnother(frame)) return;
      auto const opened = frame.opened;
      bool const closes = opened == Opened::Whole ? EndsWhole() : m_words.Take(L")");
      if (!closes)
        m_words.Refuse(opened == Opened::Whole ? L"expected an operator" : L"expected )");
      part = Close(factors);
      if (opened == Opened::PDelta) {
        if (!m_words.IsAtEnd()) m_words.Refuse(L"text behind the end");
        m_expression.pDelta = part;
      }
      if (opened == Opened::Whole) return EndWhole(part);
      if (opened == Opened::PDelta) return m_frames.clear();
    }
  }
  /// Whether an operator asks for another term.
  bool TakesAnother(Frame& frame) {
    auto const at = m_words.At();
    if (m_words.Take(L"+") || m_words.Take(L"-")) {
      m_words.GoTo(at);  // the sign belongs to the term
      return true;
    }
    if (m_words.Take(L"or")) {
      EndSum(frame);
      return true;
    }
    if (frame.opened != Opened::Squares || !m_words.Take(L",")) return false;
    EndSum(frame);
    frame.arguments.push_back(Join(Kind::Either, std::move(frame.either)));
    frame.either.clear();
    return true;
  }
  void EndSum(Frame& frame) {
    frame.either.push_back(Join(Kind::Sum, std::move(frame.sum)));
    frame.sum.clear();
  }
  /// Closes the innermost parenthesis. @return what it is, @p factors what it is multiplied by
  int Close(std::vector<double>& factors) {
    auto frame = std::move(m_frames.back());
    m_frames.pop_back();
    EndSum(frame);
    factors = std::move(frame.factors);
    int const inside = Join(Kind::Either, std::move(frame.either));
    if (frame.opened != Opened::Squares) return inside;
    frame.arguments.push_back(inside);
    return Add({Kind::NonLinear, {}, 0, {}, std::move(frame.arguments)});
  }
  bool EndsWhole() {
    auto const at = m_words.At();
    bool const ends = m_words.IsAtEnd() || m_words.Take(L":");
    m_words.GoTo(at);
    return ends;
  }
  void EndWhole(int part) {
    m_expression.whole = part;
    if (!m_words.Take(L":")) return;
    if (!m_words.Take(L"P(")) m_words.Refuse(L"expected P(");
    auto const inside = m_words.At();
    if (m_words.Take(L"none") && m_words.Take(L")") && m_words.IsAtEnd()) {
      m_expression.pDelta = Add({});
      return;
    }
    m_words.GoTo(inside);
    Open(Opened::PDelta, {1});
  }

  CaseWords m_words;
  std::vector<Frame> m_frames;
  CaseExpression m_expression;
};

}  // namespace

std::optional<CaseExpression> ReadCases(CString const& text, CaseFault* fault) {
  try {
    return CaseReader(text).Read();
  } catch (RefusedCases const& refused) {
    if (fault != nullptr) *fault = refused.fault;
    return std::nullopt;
  }
}

}  // namespace Tarvex::Data
