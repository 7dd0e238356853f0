#include "store/select/list_scan.h"

#include <array>

#include "store/select/case_tokens.h"

namespace Tarvex::Data {
namespace {

struct OperatorRow {
  int token;
  ListElement::Part part;
};

constexpr std::array kOperators{
    OperatorRow{kAnd, ListElement::Part::And}, OperatorRow{kOr, ListElement::Part::Or},
    OperatorRow{kNot, ListElement::Part::Not}, OperatorRow{kOpen, ListElement::Part::Open},
    OperatorRow{kClose, ListElement::Part::Close}};

/// The kind of the case that a range begins or ends with, none for a number and "*".
CaseOp CaseKind(int token) { return CaseOfToken(token).type; }

}  // namespace

bool ListScanner::Next(ListElement& element) {
  while (m_at < m_words.size()) {
    element = ListElement();
    element.begin = m_at;
    bool const taken = Operator(element) || Item(element);
    element.end = m_at;
    if (taken) return true;
  }
  return false;
}

void ListScanner::Fail(std::size_t ahead, char const* reason) {
  if (m_fault != nullptr) return;
  m_fault = reason;
  m_faultWord = m_at + ahead;
}

bool ListScanner::IsNumber(std::size_t ahead) const {
  return Has(ahead) && IsNumberToken(m_words[m_at + ahead]);
}

bool ListScanner::IsEnd(std::size_t ahead) const {
  return IsNumber(ahead) || Is(ahead, kHighest) ||
         (Has(ahead) && CaseKind(m_words[m_at + ahead]) != CaseOp::None);
}

bool ListScanner::Operator(ListElement& element) {
  for (auto const& row : kOperators) {
    if (row.token != m_words[m_at]) continue;
    element.part = row.part;
    ++m_at;
    return true;
  }
  return false;
}

bool ListScanner::Item(ListElement& element) {
  int const token = m_words[m_at];
  if (IsEnd(0)) {
    Numbers(element);
    return true;
  }
  if (token == kSavedList || (IsPrefixWord(token) && IsListWord(token))) {
    Word(element);
    return true;
  }
  if (token == kAll) element.item = ListElement::Item::All;
  if (token == kString) {
    element.item = ListElement::Item::Name;
    element.name = m_names++;
  }
  bool const known = token == kAll || token == kString || token == kNone;
  if (!known)
    Fail(0, token == kTo     ? "a range without its begin"
            : token == kStep ? "a step without its range"
                             : "an unknown word");
  ++m_at;
  return known;
}

void ListScanner::Numbers(ListElement& element) {
  element.item = ListElement::Item::Numbers;
  element.first = element.last = m_words[m_at++];
  if (!Is(0, kTo)) return;
  if (!IsEnd(1)) {
    Fail(0, "a range without its end");
    ++m_at;
    return;
  }
  element.last = m_words[m_at + 1];
  if (CaseKind(element.first) != CaseKind(element.last))
    Fail(1, "a range whose ends are not of one kind");
  m_at += 2;
  Step(element);
}

void ListScanner::Step(ListElement& element) {
  if (!Is(0, kStep)) return;
  if (!IsNumber(1)) {
    Fail(0, "a step without its number");
    ++m_at;
    return;
  }
  element.step = m_words[m_at + 1];
  if (element.step < 1) Fail(1, "a step below 1");
  m_at += 2;
}

void ListScanner::Word(ListElement& element) {
  element.token = m_words[m_at++];
  if (Is(0, kHighest)) Fail(0, "\"*\" behind a word that takes a number");
  if (!IsNumber(0)) return;
  element.item = ListElement::Item::Word;
  element.first = element.last = m_words[m_at++];
  if (!Is(0, kTo)) return;
  if (Is(1, kHighest)) Fail(1, "\"*\" as the end of a range behind a word");
  if (!IsNumber(1)) return Fail(0, "a range without its end");
  if (Is(2, kStep)) Fail(2, "a step in a range behind a word");
  element.last = m_words[m_at + 1];
  m_at += 2;
}

}  // namespace Tarvex::Data
