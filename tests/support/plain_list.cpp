#include "tests/support/plain_list.h"

#include <algorithm>
#include <stdexcept>

namespace Tarvex::Testing {
namespace {

using Set = std::set<int>;
using Words = std::vector<std::wstring>;

bool IsDigit(wchar_t c) { return c >= L'0' && c <= L'9'; }
bool IsSmall(wchar_t c) { return c >= L'a' && c <= L'z'; }
bool IsCapital(wchar_t c) { return c >= L'A' && c <= L'Z'; }

/// Splits a text where the kind of its characters changes; a quoted name keeps its quotes.
Words Split(std::wstring const& text) {
  Words words;
  for (std::size_t at = 0; at < text.size();) {
    auto end = at + 1;
    auto const run = [&](bool (*is)(wchar_t)) {
      while (end < text.size() && is(text[end])) ++end;
    };
    if (text[at] == L'"')
      end = text.find(L'"', end) + 1;
    else if (IsDigit(text[at]))
      run(IsDigit);
    else if (IsSmall(text[at]))
      run(IsSmall);
    else if (IsCapital(text[at]))
      run(IsCapital);
    if (text[at] != L' ') words.push_back(text.substr(at, end - at));
    at = end;
  }
  return words;
}

Set Minus(Set const& a, Set const& b) {
  Set rest;
  std::set_difference(a.begin(), a.end(), b.begin(), b.end(), std::inserter(rest, rest.end()));
  return rest;
}

Set Common(Set const& a, Set const& b) {
  Set common;
  std::set_intersection(a.begin(), a.end(), b.begin(), b.end(),
                        std::inserter(common, common.end()));
  return common;
}

class Evaluator {
 public:
  Evaluator(Words words, PlainModel const& model) : m_words(std::move(words)), m_model(model) {}

  /// A list up to its end or the end of its parenthesis.
  Set List() {
    Set all;
    while (More() && !Is(L")")) {
      if (Take(L"or")) continue;
      if (Take(L"not"))
        all = Minus(all, Operand());
      else
        all.merge(Term());
    }
    return all;
  }
  bool More() const { return m_at < m_words.size(); }

 private:
  bool Is(std::wstring const& word) const { return More() && m_words[m_at] == word; }
  bool Take(std::wstring const& word) {
    bool const is = Is(word);
    if (is) ++m_at;
    return is;
  }

  /// Items joined by "and".
  Set Term() {
    auto set = Operand();
    while (Take(L"and")) set = Common(set, Operand());
    return set;
  }

  /// One item, nothing where there is none.
  Set Operand() {
    if (!More() || Is(L"and") || Is(L"or") || Is(L"not") || Is(L")")) return {};
    return Item();
  }

  Set Item() {
    if (Take(L"(")) {
      auto set = List();
      if (!Take(L")")) throw std::logic_error("an open parenthesis");
      return set;
    }
    if (Take(L"none")) return {};
    if (Take(L"all")) return m_model.existing;
    if (m_words[m_at][0] == L'"') {
      auto const quoted = m_words[m_at++];
      return m_model.named(quoted.substr(1, quoted.size() - 2));
    }
    return IsNumber() ? Range() : Word();
  }

  bool IsNumber() const { return More() && (IsDigit(m_words[m_at][0]) || m_words[m_at] == L"*"); }
  int Number() {
    auto const word = m_words.at(m_at++);
    return word == L"*" ? m_model.Highest() : std::stoi(word);
  }

  Set Range() {
    int const first = Number();
    int const last = Take(L"to") ? Number() : first;
    int const step = Take(L"step") ? Number() : 1;
    Set set;
    for (int number = first; number <= last; number += step)
      if (m_model.existing.contains(number)) set.insert(number);
    return set;
  }

  Set Word() {
    auto const word = m_words[m_at++];
    if (!IsNumber()) return {};
    int const first = Number();
    int const last = Take(L"to") ? Number() : first;
    Set set;
    for (int number = first; number <= last; ++number) {
      bool const own =
          (word == L"N" && m_model.kind == SelNode) || (word == L"E" && m_model.kind == SelElement);
      set.merge(own ? Common({number}, m_model.existing) : m_model.word(word, number));
    }
    return set;
  }

  Words m_words;
  PlainModel const& m_model;
  std::size_t m_at = 0;
};

/// Puts together a random text.
class Composer {
 public:
  Composer(Random& random, ListForm const& form) : m_random(random), m_form(form) {}

  std::wstring List(int items) {
    std::wstring text;
    for (; items > 0; --items) {
      if (m_form.operators && m_random.Percent(35)) text += Operator();
      if (m_form.gaps && m_random.Percent(8)) text += Operator();
      bool const group = m_form.operators && m_random.Percent(20);
      text += group ? L"(" + List(m_random.Int(0, items / 2)) + L")" : Item();
    }
    if (m_form.gaps && m_random.Percent(10)) text += Operator();
    return text;
  }

 private:
  std::wstring Operator() { return m_random.Of<std::wstring>({L" and ", L" or ", L" not "}); }

  std::wstring Item() {
    int const draw = m_random.Int(1, 100);
    if (draw <= 4) return L" all ";
    if (draw <= 8) return L" none ";
    if (draw <= 14 && !m_form.names.empty()) return L" \"" + m_random.Of(m_form.names) + L"\" ";
    if (draw <= 45 && !m_form.words.empty()) return Word();
    return m_form.ranges && draw <= 75 ? Range() : L" " + Number() + L" ";
  }

  std::wstring Number() { return std::to_wstring(m_random.Int(1, m_form.highest)); }

  std::wstring Range() {
    auto text = L" " + Number() + L" to ";
    text += m_random.Percent(20) ? L"*" : Number();
    if (m_random.Percent(30)) text += L" step " + std::to_wstring(m_random.Int(1, 5));
    return text + L" ";
  }

  std::wstring Word() {
    auto const word = L" " + m_random.Of(m_form.words);
    // What follows a word without its number must be none.
    if (m_form.gaps && m_random.Percent(10))
      return word + (m_form.operators ? Operator() : L" or ");
    auto text = word + (m_random.Percent(30) ? L" " : L"") + std::to_wstring(m_random.Int(0, 6));
    if (m_random.Percent(20)) text += L" to " + std::to_wstring(m_random.Int(0, 6));
    return text + L" ";
  }

  Random& m_random;
  ListForm const& m_form;
};

}  // namespace

std::set<int> PlainExpansion(std::wstring const& text, PlainModel const& model) {
  Evaluator evaluator(Split(text), model);
  auto set = evaluator.List();
  if (evaluator.More()) throw std::logic_error("not a list");
  return Common(set, model.existing);
}

Intervals RunsOf(std::set<int> const& numbers) {
  Intervals runs;
  for (int const number : numbers) runs.Append({number, number});
  return runs;
}

std::set<int> NumbersOf(Intervals const& runs) {
  std::set<int> numbers;
  for (auto const& run : runs.Runs())
    for (long long number = run.first; number <= run.last; ++number)
      numbers.insert(static_cast<int>(number));
  return numbers;
}

Intervals PlainResolver::Word(int token, int number) {
  return RunsOf(m_model.word(Data::WriteListTokens({{token}, {}}).Str(), number));
}

std::wstring RandomListText(Random& random, ListForm const& form, int items) {
  return Composer(random, form).List(items);
}

}  // namespace Tarvex::Testing
