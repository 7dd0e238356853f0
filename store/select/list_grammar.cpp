#include "store/select/list_grammar.h"

#include <algorithm>

#include "store/select/case_tokens.h"
#include "store/select/list_scan.h"

namespace Tarvex::Data {
namespace {

using Part = ListElement::Part;
using Item = ListElement::Item;

constexpr int kNodeWord = -13;
constexpr int kElementWord = -14;

bool Refuse(ListFault* fault, std::size_t word, CString const& reason) {
  if (fault != nullptr) *fault = {static_cast<int>(word), reason};
  return false;
}

/// Writes the elements of a list anew in the form that lists are kept in.
class Normalizer {
 public:
  explicit Normalizer(ListTokens const& tokens) : m_tokens(tokens), m_scanner(tokens) {}

  bool Run(ListFault* fault) {
    ListElement element;
    while (m_scanner.Next(element) && m_scanner.Fault() == nullptr) {
      if (!Take(element)) return Refuse(fault, element.begin, m_reason);
      m_before = element.part;
    }
    if (m_scanner.Fault() != nullptr)
      return Refuse(fault, m_scanner.FaultWord(), CString::FromUtf8(m_scanner.Fault()));
    if (!m_open.empty()) return Refuse(fault, m_open.back(), L"a parenthesis that is never closed");
    return true;
  }

  ListTokens Result() {
    ListTokens result{std::move(m_words), m_tokens.strings};
    result.strings.resize(static_cast<std::size_t>(
        std::count(result.words.begin(), result.words.end(), static_cast<int>(kString))));
    return result;
  }

 private:
  bool Fail(wchar_t const* reason) {
    m_reason = reason;
    return false;
  }

  bool Take(ListElement const& element) {
    if (element.part == Part::Open) m_open.push_back(element.begin);
    if (element.part == Part::Close) {
      if (m_open.empty()) return Fail(L"a parenthesis that was never opened");
      m_open.pop_back();
    }
    if (element.item == Item::Word && element.first != element.last) return WriteOut(element);
    if (!element.IsRange()) {
      Copy(element);
      return true;
    }
    AsOneItem(element, [&] { Copy(element); });
    return true;
  }

  void Copy(ListElement const& element) {
    // A word with a range of one number keeps the number alone.
    auto const end = element.item == Item::Word ? element.begin + 2 : element.end;
    auto const* const words = m_tokens.words.data();
    m_words.insert(m_words.end(), words + element.begin, words + end);
  }

  bool WriteOut(ListElement const& element) {
    if (element.first > element.last) {
      m_words.push_back(kNone);
      return true;
    }
    m_writtenOut += element.last - element.first;
    if (m_writtenOut > kMostWrittenOut)
      return Fail(L"a range behind a word that would write out more than 100000 numbers");
    AsOneItem(element, [&] {
      for (int number = element.first; number <= element.last; ++number)
        m_words.insert(m_words.end(), {element.token, number});
    });
    return true;
  }

  /// Puts several words in parentheses where an operator takes them as its one item.
  template <class Write>
  void AsOneItem(ListElement const& element, Write&& write) {
    auto const& words = m_tokens.words;
    bool const behind = element.end < words.size() && words[element.end] == kAnd;
    bool const operand = behind || m_before == Part::And || m_before == Part::Not;
    if (operand) m_words.push_back(kOpen);
    write();
    if (operand) m_words.push_back(kClose);
  }

  ListTokens const& m_tokens;
  ListScanner m_scanner;
  std::vector<int> m_words;
  std::vector<std::size_t> m_open;  // places of the parentheses that are open
  Part m_before = Part::Open;
  long long m_writtenOut = 0;
  CString m_reason;
};

/// Why an element has no place in a list of cases, empty when it has one.
CString FaultOfCases(ListElement const& element) {
  auto const isCase = [](int token) { return CaseOfToken(token).type != CaseOp::None; };
  if (element.item == Item::Numbers && !(isCase(element.first) && isCase(element.last)))
    return L"a number without the letter of its case";
  if (element.token != 0 && element.token != kSavedList)
    return L"a word that lists of cases do not know";
  return L"";
}

CString FaultOfNumbers(ListElement const& element, SelType kind) {
  bool const isCase =
      element.item == Item::Numbers && (CaseOfToken(element.first).type != CaseOp::None ||
                                        CaseOfToken(element.last).type != CaseOp::None);
  if (!isCase) return L"";
  auto const label = SelTypeLabel(kind);
  return label.IsEmpty() ? L"a case in a list of numbers" : L"a case in a list of " + label + L"s";
}

}  // namespace

bool NormalizeList(ListTokens& tokens, ListFault* fault) {
  Normalizer normalizer(tokens);
  if (!normalizer.Run(fault)) return false;
  tokens = normalizer.Result();
  return true;
}

std::optional<ListTokens> ReadList(std::wstring_view text, std::optional<SelType> kind,
                                   ListFault* fault) {
  std::vector<int> places;
  auto tokens = ReadListTokens(text, fault, &places);
  if (!tokens) return std::nullopt;
  ListFault found;
  if ((!kind || IsListOfKind(*tokens, *kind, &found)) && NormalizeList(*tokens, &found))
    return tokens;
  found.position = places[static_cast<std::size_t>(found.position)];
  if (fault != nullptr) *fault = found;
  return std::nullopt;
}

bool IsListOfKind(ListTokens const& tokens, SelType kind, ListFault* fault) {
  ListScanner scanner(tokens);
  ListElement element;
  while (scanner.Next(element)) {
    auto const reason = kind == SelCase ? FaultOfCases(element) : FaultOfNumbers(element, kind);
    if (!reason.IsEmpty()) return Refuse(fault, element.begin, reason);
  }
  return true;
}

bool IsPlainList(ListTokens const& tokens) {
  return std::all_of(tokens.words.begin(), tokens.words.end(), IsNumberToken);
}

bool IsOwnNumberWord(int token, SelType kind) {
  return (token == kNodeWord && kind == SelNode) || (token == kElementWord && kind == SelElement);
}

bool NeedsNoModel(ListTokens const& tokens, SelType kind) {
  ListScanner scanner(tokens);
  ListElement element;
  while (scanner.Next(element)) {
    bool const star = element.first == kHighest || element.last == kHighest;
    bool const word = element.item == Item::Word && !IsOwnNumberWord(element.token, kind);
    if (element.item == Item::All || element.item == Item::Name || star || word) return false;
  }
  return true;
}

}  // namespace Tarvex::Data
