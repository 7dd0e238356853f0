#include "workbench/commands/selection.h"

#include <array>

#include "store/select/list_tokens.h"
#include "workbench/commands/errors.h"

namespace Tarvex::Workbench {
namespace {

using Data::ListToken;

struct KindWord {
  std::string_view word;
  SelType kind;
};
constexpr std::array kKindWords{KindWord{"node", SelNode}, KindWord{"element", SelElement},
                                KindWord{"member", SelMember}};

[[noreturn]] void Refuse(std::string const& why) { throw UsageError("--list: " + why); }

/// Evaluates the words of one list from left to right.
class Evaluator {
 public:
  Evaluator(CZelData const& model, SelType kind, std::vector<int> const& words)
      : m_model(model), m_words(words), m_set(kind), m_highest(model.HighestEnt(kind)) {}

  Util::CSet Run() {
    while (m_at < m_words.size()) Item();
    return std::move(m_set);
  }

 private:
  int Peek(std::size_t ahead = 0) const {
    auto const at = m_at + ahead;
    return at < m_words.size() ? m_words[at] : ListToken::kNone;
  }

  void Item() {
    int const word = m_words[m_at++];
    if (word == ListToken::kAll) return AddRange(1, m_highest, 1);
    if (word == ListToken::kNone) return;
    int const first = Number(word);
    if (Peek() != ListToken::kTo) return Add(first);
    ++m_at;
    if (m_at >= m_words.size()) Refuse("a range without its end");
    int const last = Number(m_words[m_at++]);
    int step = 1;
    if (Peek() == ListToken::kStep) {
      ++m_at;
      if (m_at >= m_words.size()) Refuse("a step without its number");
      step = Number(m_words[m_at++]);
      if (step < 1) Refuse("a step below 1");
    }
    AddRange(first, last, step);
  }

  int Number(int word) const {
    if (word == ListToken::kHighest) return m_highest;
    if (word < 0)
      Refuse("the word '" + Data::WriteListTokens({{word}, {}}).ToUtf8() +
             "' is not known here: use numbers, ranges and all");
    return word;
  }

  void Add(int n) {
    if (m_model.EntExist({m_set.TypeOf(), n})) m_set.AddTo(n);
  }

  void AddRange(int first, int last, int step) {
    for (long long n = first; n <= std::min(last, m_highest); n += step) Add(static_cast<int>(n));
  }

  CZelData const& m_model;
  std::vector<int> const& m_words;
  Util::CSet m_set;
  int m_highest;
  std::size_t m_at = 0;
};

}  // namespace

SelType KindOf(std::string_view word) {
  for (auto const& row : kKindWords)
    if (row.word == word) return row.kind;
  return SelNone;
}

Util::CSet Select(CZelData const& model, SelType kind, std::string const& listText) {
  Data::ListFault fault{};
  auto const tokens = Data::ReadListTokens(CString::FromUtf8(listText), &fault);
  if (!tokens)
    Refuse("character " + std::to_string(fault.position + 1) + ": " + fault.reason.ToUtf8());
  return Evaluator(model, kind, tokens->words).Run();
}

Util::CSet SelectByOptions(CZelData const& model, SelType kind, Arguments const& arguments,
                           CommandResult& result) {
  auto const& text = arguments.Text("--list");
  auto set = Select(model, kind, text);
  if (set.IsEmpty())
    result.warnings.push_back(
        {"empty-selection", "", 0, "'" + text + "' selects no " + SelTypeLabel(kind).ToUtf8()});
  return set;
}

}  // namespace Tarvex::Workbench
