// Writes out the ranges of a list that a scheme tears apart.
#include "renumber/list_mapper.h"
#include "store/select/list_tokens.h"

namespace Tarvex {
namespace {

using Data::CEntList;

constexpr int kRangeWords = 3;    // a to b
constexpr int kSteppedWords = 5;  // a to b step s

bool HasRange(CEntList const& list) {
  auto const& words = list.Word();
  return std::find(words.begin(), words.end(), static_cast<int>(Data::kTo)) != words.end();
}

/// The text of a list that is put together word by word.
class TextOf {
 public:
  explicit TextOf(CEntList const& list) : m_list(list) {}

  /// Appends words as they are. A keyword keeps its distance from a prefix word before it, with
  /// which it might read as another word.
  void Words(int first, int count) {
    for (int i = first; i < first + count; ++i) {
      int const word = m_list.Word(i);
      bool const apart = i > 0 && word < 0 && word != Data::kHighest &&
                         CEntList::IsWordSuffixOptional(m_list.Word(i - 1));
      if (apart) m_text += L' ';
      ListWordText::Append(m_text, m_list, word, m_string);
    }
  }
  void Number(int number) { ListWordText::AppendNumber(m_text, number); }
  /// Gives the list the text; one that is no list leaves it as it was.
  void Put(CEntList& list) const {
    if (!m_text.empty()) list.SetString(m_text);
  }

 private:
  CEntList const& m_list;
  std::wstring m_text;
  int m_string = 0;
};

}  // namespace

CEntList ListMapper::Preconvert(CEntList list) {
  auto const kind = list.TypeOf();
  if (kind < SelNode || kind > SelMember || !HasRange(list)) return list;
  WriteOutStepped(list);
  WriteOutRanges(list);
  return list;
}

std::optional<NumberRange> ListMapper::RangeAt(CEntList const& list, int place,
                                               bool stepped) const {
  auto const& words = list.Word();
  int const behind = list.NumWord() - place;
  auto const word = [&](int i) { return words[static_cast<std::size_t>(place + i)]; };
  bool const hasStep = behind >= kSteppedWords && word(3) == Data::kStep;
  if (behind < kRangeWords || (stepped && !hasStep)) return std::nullopt;
  int const last = word(2) == Data::kHighest ? m_before.HighestEnt(list.TypeOf()) : word(2);
  NumberRange const range{word(0), last, hasStep ? word(4) : 1};
  bool const is = range.first > 0 && word(1) == Data::kTo && range.last > 0 && range.step > 0;
  return is ? std::optional(range) : std::nullopt;
}

void ListMapper::WriteOutStepped(CEntList& list) {
  auto const& runs = RunsOf(list.TypeOf());
  CEntList const old(list);
  TextOf text(old);
  for (int i = 0; i < old.NumWord();) {
    auto const range = RangeAt(old, i, true);
    if (!range) {
      text.Words(i++, 1);
      continue;
    }
    bool const keeps =
        range->first > range->last || (runs.AllExist(*range) && runs.MoveAlike(*range));
    if (keeps)
      text.Words(i, kSteppedWords);
    else
      runs.ForEachExisting(*range, [&](int k) { text.Number(k); });
    i += kSteppedWords;
  }
  text.Put(list);
}

namespace {

/// The range without the numbers at its ends that go. The first one moves up by whole steps, not
/// beyond the last nor the highest number of the kind; then the last one moves down to it.
NumberRange WithoutGoneEnds(NumberRange range, NumberRuns const& runs, int highest) {
  int const step = range.step;
  auto const steps = [&](int distance) { return std::max(1, (distance + step - 1) / step) * step; };
  int const top = std::min(range.last, highest);
  while (range.first < top && runs.IsGone(range.first)) {
    int const next = std::min(runs.NextKept(range.first).value_or(top), top);
    range.first += steps(next - range.first);
  }
  range.last = range.Aligned();
  while (range.last > range.first && range.last >= 1 && runs.IsGone(range.last)) {
    int const next = std::max(runs.PreviousKept(range.last).value_or(range.first), range.first);
    range.last -= steps(range.last - next);
  }
  return range;
}

}  // namespace

void ListMapper::WriteOutRanges(CEntList& list) {
  auto const& runs = RunsOf(list.TypeOf());
  int const highest = m_before.HighestEnt(list.TypeOf());
  CEntList const old(list);
  TextOf text(old);
  for (int i = 0; i < old.NumWord();) {
    auto const whole = RangeAt(old, i, false);
    if (!whole) {
      text.Words(i++, 1);
      continue;
    }
    bool const stepped = i + 3 < old.NumWord() - 1 && old.Word(i + 3) == Data::kStep;
    int const words = stepped ? kSteppedWords : kRangeWords;
    auto const range = WithoutGoneEnds(*whole, runs, highest);
    if (range.first <= range.last && !runs.MoveAlike(range))
      runs.ForEachExisting(range, [&](int k) { text.Number(k); });
    else
      text.Words(i, old.Word(i + 2) == old.Word(i) ? 1 : words);
    i += words;
  }
  text.Put(list);
}

}  // namespace Tarvex
