#include "store/select/list_rewrite.h"

#include <algorithm>

#include "store/select/case_tokens.h"
#include "store/select/list_grammar.h"
#include "store/select/list_scan.h"

namespace Tarvex::Data {
namespace {

using Part = ListElement::Part;
using Item = ListElement::Item;

/// Fewer numbers in a row are written singly.
constexpr long long kShortestRun = 3;

/// Whether a word would take what follows it.
bool TakesNext(int word) {
  return word == kAnd || word == kNot || word == kSavedList || IsPrefixWord(word);
}

/// What an item is written as.
struct Written {
  std::vector<int> words;
  long long items = 0;

  void Add(std::initializer_list<int> item) {
    words.insert(words.end(), item);
    ++items;
  }
  /// Adds a, a + step and so on up to b.
  void AddRange(long long a, long long b, int step, bool toHighest) {
    if (a > b) return;
    long long const count = (b - a) / step + 1;
    if (count < kShortestRun && !toHighest) {
      for (; a <= b; a += step) Add({static_cast<int>(a)});
      return;
    }
    Add({static_cast<int>(a), kTo, toHighest ? static_cast<int>(kHighest) : static_cast<int>(b)});
    if (step != 1) words.insert(words.end(), {kStep, step});
  }
};

/// Puts the parts of a list together again.
class Writer {
 public:
  explicit Writer(ListTokens const& tokens) : m_tokens(tokens) {}

  void Copy(ListElement const& element) {
    auto const* const words = m_tokens.words.data();
    if (element.part == Part::Or && (m_words.empty() || m_words.back() == kOpen)) return;
    Put({words + element.begin, words + element.end});
    if (element.item == Item::Name) m_strings.push_back(m_tokens.strings[element.name]);
  }

  /// Writes an item in the place of an element.
  void Replace(ListElement const& element, Written const& written) {
    if (written.items == 0) return Drop(element);
    bool const grouped = (written.items > 1 || written.words.size() > 2) && IsOperand(element);
    if (grouped) m_words.push_back(kOpen);
    Put(written.words);
    if (grouped) m_words.push_back(kClose);
  }

  ListTokens Result() && {
    ListTokens result{std::move(m_words), std::move(m_strings)};
    return NamesNothing(result) ? ListTokens() : result;
  }

 private:
  bool IsBehind(int word) const { return !m_words.empty() && m_words.back() == word; }
  bool IsBeforeAnd(ListElement const& element) const {
    return element.end < m_tokens.words.size() && m_tokens.words[element.end] == kAnd;
  }
  bool IsOperand(ListElement const& element) const {
    return IsBehind(kAnd) || IsBehind(kNot) || IsBeforeAnd(element);
  }

  void Put(std::span<int const> words) {
    // A word that lost its number must not take the next one.
    bool const takes = IsNumberToken(words.front()) || words.front() == kHighest;
    if (takes && !m_words.empty() && (IsBehind(kSavedList) || IsPrefixWord(m_words.back())))
      m_words.push_back(kOr);
    m_words.insert(m_words.end(), words.begin(), words.end());
  }

  void Drop(ListElement const& element) {
    bool const stays = IsBehind(kAnd) || IsBeforeAnd(element);
    auto const before = m_words.size() < 2 ? static_cast<int>(kOpen) : m_words[m_words.size() - 2];
    bool const exposes = (IsBehind(kNot) || IsBehind(kOr)) && TakesNext(before);
    if (stays || (exposes && IsBehind(kNot)))
      m_words.push_back(kNone);
    else if ((IsBehind(kNot) || IsBehind(kOr)) && !exposes)
      m_words.pop_back();
  }

  ListTokens const& m_tokens;
  std::vector<int> m_words;
  std::vector<CString> m_strings;
};

/// Writes a list anew: rewrite(element, written) tells whether an item changes and into what.
/// @return whether any did; otherwise the tokens stay as they were.
template <class Rewrite>
bool RewriteItems(ListTokens& tokens, Rewrite&& rewrite) {
  Writer writer(tokens);
  ListScanner scanner(tokens);
  ListElement element;
  bool changed = false;
  while (scanner.Next(element)) {
    Written written;
    bool const item = element.part == Part::Item && rewrite(element, written);
    changed = changed || item;
    if (item)
      writer.Replace(element, written);
    else
      writer.Copy(element);
  }
  if (changed) tokens = std::move(writer).Result();
  return changed;
}

/// Counts the numbers that a list gains.
class Room {
 public:
  /// Whether so many more have room.
  bool Take(long long count) {
    m_left -= std::max(count, 0LL);
    return !IsOver();
  }
  bool IsOver() const { return m_left < 0; }

 private:
  long long m_left = kLongestWrittenOut;
};

/// RewriteItems with write(element, room, written); false when there is no room for all.
template <class Write>
bool WriteOut(ListTokens& tokens, Write&& write) {
  Room room;
  auto result = tokens;
  RewriteItems(result, [&](ListElement const& element, Written& written) {
    return !room.IsOver() && write(element, room, written);
  });
  if (room.IsOver()) return false;
  tokens = std::move(result);
  return true;
}

/// Whether numbers and ranges alone make up a list, with no operator but "or".
bool IsUnionOfNumbers(ListTokens const& tokens, SelType kind) {
  ListScanner scanner(tokens);
  ListElement element;
  while (scanner.Next(element)) {
    bool const own = element.item == Item::Word && IsOwnNumberWord(element.token, kind);
    bool const item = element.item == Item::Numbers || element.item == Item::Nothing || own;
    if (element.part == Part::And || element.part == Part::Not || !item) return false;
  }
  return true;
}

/// Adds a number to the numbers that "not" takes away at the end of a list.
void TakeAwayAtEnd(std::vector<int>& words, int number) {
  auto const count = words.size();
  if (count >= 2 && words[count - 2] == kNot && IsNumberToken(words[count - 1])) {
    words.insert(words.end() - 1, kOpen);
    words.insert(words.end(), {number, kClose});
    return;
  }
  auto const open = std::find(words.rbegin(), words.rend(), static_cast<int>(kOpen));
  bool const group = count >= 3 && words.back() == kClose && open + 1 != words.rend() &&
                     *(open + 1) == kNot && std::all_of(words.rbegin() + 1, open, IsNumberToken);
  if (group)
    words.insert(words.end() - 1, number);
  else
    words.insert(words.end(), {kNot, number});
}

using Numbers = std::map<int, std::vector<int>>;

bool IsIdentity(Numbers::value_type const& entry) {
  return entry.second.size() == 1 && entry.second.front() == entry.first;
}

/// Writes the new numbers of a key.
void AddNew(std::vector<int> const& numbers, int word, Written& written) {
  for (int const number : numbers) {
    if (number == 0) continue;
    if (word == 0)
      written.Add({number});
    else
      written.Add({word, number});
  }
}

/// Splits a range at the keys that it holds; false when it holds none.
bool SplitRange(ListElement const& element, Numbers const& numbers, int highest, Written& written) {
  auto const end = [&](int token) { return token == kHighest ? highest : token; };
  int const first = end(element.first);
  int const last = end(element.last);
  int const step = std::max(element.step, 1);
  bool const toHighest = element.last == kHighest && element.IsRange();
  long long next = first;
  bool split = false;
  for (auto key = numbers.lower_bound(first); key != numbers.end() && key->first <= last; ++key) {
    if ((key->first - first) % step != 0 || IsIdentity(*key)) continue;
    split = true;
    written.AddRange(next, static_cast<long long>(key->first) - step, step, false);
    AddNew(key->second, 0, written);
    next = static_cast<long long>(key->first) + step;
  }
  if (split) written.AddRange(next, last, step, toHighest);
  return split;
}

}  // namespace

bool NamesNothing(ListTokens const& tokens) {
  return std::all_of(tokens.words.begin(), tokens.words.end(), [](int word) {
    return word == kNone || word == kOr || word == kOpen || word == kClose;
  });
}

void AppendToList(ListTokens& tokens, int token) {
  if (NamesNothing(tokens)) tokens = {};
  auto& words = tokens.words;
  if (!words.empty() && TakesNext(words.back()) && token != kOr) words.push_back(kOr);
  words.push_back(token);
}

void RemoveFromList(ListTokens& tokens, SelType kind, int number, int highest) {
  if (IsUnionOfNumbers(tokens, kind))
    ReplaceInList(tokens, kind, {{number, {}}}, highest);
  else
    TakeAwayAtEnd(tokens.words, number);
}

bool ReplaceInList(ListTokens& tokens, SelType kind, Numbers const& numbers, int highest) {
  return RewriteItems(tokens, [&](ListElement const& element, Written& written) {
    if (element.item == Item::Numbers) return SplitRange(element, numbers, highest, written);
    if (element.item != Item::Word || !IsOwnNumberWord(element.token, kind)) return false;
    auto const key = numbers.find(element.first);
    if (key == numbers.end() || IsIdentity(*key)) return false;
    AddNew(key->second, element.token, written);
    return true;
  });
}

bool WriteOutRanges(ListTokens& tokens) {
  return WriteOut(tokens, [](ListElement const& element, Room& room, Written& written) {
    bool const open = element.first == kHighest || element.last == kHighest;
    if (!element.IsRange() || open) return false;
    long long number = element.first;
    if (!room.Take((element.last - number) / element.step + 1)) return false;
    for (; number <= element.last; number += element.step) written.Add({static_cast<int>(number)});
    return true;
  });
}

bool WriteOutWords(ListTokens& tokens,
                   std::function<std::optional<Intervals>(int, int)> const& expand) {
  return WriteOut(tokens, [&](ListElement const& element, Room& room, Written& written) {
    if (element.item != Item::Word) return false;
    auto const numbers = expand(element.token, element.first);
    if (!numbers) return false;
    for (auto const& run : numbers->Runs())
      if (!room.Take(run.last - run.first + 1)) return false;
    for (auto const& run : numbers->Runs())
      for (int number = run.first; number <= run.last; ++number) written.Add({number});
    return true;
  });
}

std::vector<int> CompactWords(Intervals const& numbers) {
  Written written;
  for (auto const& run : numbers.Runs()) written.AddRange(run.first, run.last, 1, false);
  return std::move(written.words);
}

}  // namespace Tarvex::Data
