#include "renumber/list_text_mapper.h"

#include <algorithm>

#include "store/select/list_tokens.h"

namespace Tarvex {

ListTextMapper::ListTextMapper(ListMapper& lists, Data::CEntList const& list,
                               ListMapper::Id propertyModule)
    : m_lists(lists),
      m_runs(lists.RunsOf(list.TypeOf())),
      m_list(list),
      m_propertyModule(propertyModule),
      m_module(EntModId(list.TypeOf())) {}

CString ListTextMapper::Run() {
  int const count = m_list.NumWord();
  for (int i = 0; i < count; ++i) {
    bool const keyword = Word(i) < 0 && Word(i) != Data::kHighest;
    if (i >= 1 && keyword && Data::CEntList::IsWordSuffixOptional(Word(i - 1))) m_text += L' ';
    bool written = AppendWord(i);
    if (written && m_text.ends_with(L"()")) {
      m_text.resize(m_text.size() - 2);
      written = false;
    }
    if (!written) TakeBack();
  }
  return m_text.empty() ? CString(L"none") : CString(m_text);
}

bool ListTextMapper::AppendWord(int place) {
  return Append(Word(place)) || AppendAtRangeEnd(place) || AppendAtRangeStart(place);
}

bool ListTextMapper::Append(int token) {
  return m_lists.AppendMapped(m_text, m_list, token, m_module, m_string, m_propertyModule);
}

int ListTextMapper::StepAt(int place) const {
  bool const is = Is(place, Data::kStep) && place + 1 < m_list.NumWord();
  return is ? std::max(Word(place + 1), 1) : 1;
}

/// The number that went ended a range: the next lower one of the range takes its place.
bool ListTextMapper::AppendAtRangeEnd(int place) {
  if (place < 2 || !Is(place - 1, Data::kTo)) return false;
  int const start = Word(place - 2);
  int const step = StepAt(place + 1);
  int number = Word(place) - 1;
  number -= (number - start) % step;
  while (m_runs.IsGone(number) && number > start) {
    int const kept = std::max(m_runs.PreviousKept(number).value_or(start), start);
    number -= std::max(1, (number - kept + step - 1) / step) * step;
  }
  return number > 0 && Append(number);
}

/// The number that went began a range: the next higher one of the range takes its place.
bool ListTextMapper::AppendAtRangeStart(int place) {
  if (!Is(place + 1, Data::kTo) || place + 2 >= m_list.NumWord()) return false;
  int const step = StepAt(place + 3);
  bool const toHighest = Word(place + 2) == Data::kHighest;
  int const end = toHighest ? m_lists.m_before.HighestEnt(m_list.TypeOf()) : Word(place + 2);
  int number = Word(place);
  while (m_runs.IsGone(number) && number < end) {
    int const kept = std::min(m_runs.NextKept(number).value_or(end), end);
    number += std::max(1, (kept - number + step - 1) / step) * step;
  }
  return Append(number);
}

/// Cuts from the end what has no sense without the number that went.
void ListTextMapper::TakeBack() {
  auto const last = m_text.find_last_not_of(L"XYZ");
  m_text.resize(last == std::wstring::npos ? 0 : last + 1);
  for (std::wstring_view const word : {L"to ", L"not "})
    if (m_text.ends_with(word)) m_text.resize(m_text.size() - word.size());
}

}  // namespace Tarvex
