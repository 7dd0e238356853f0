// The text of one list with new numbers.
#pragma once

#include <string>

#include "renumber/list_mapper.h"

namespace Tarvex {

/// Writes the words of one list of nodes, elements or members with the new numbers. A number that
/// goes takes with it what has no sense without it: the keyword of a co-ordinate, "not" before it,
/// parentheses around it. At the end of a range the next number of the range that stays takes its
/// place.
class ListTextMapper {
 public:
  ListTextMapper(ListMapper& lists, Data::CEntList const& list, ListMapper::Id propertyModule);

  /// The text; "none" where nothing is left. A range that ends on nothing may leave a text that is
  /// no list.
  CString Run();

 private:
  bool AppendWord(int place);
  bool AppendAtRangeEnd(int place);
  bool AppendAtRangeStart(int place);
  bool Append(int token);
  void TakeBack();
  int Word(int place) const { return m_list.Word()[static_cast<std::size_t>(place)]; }
  bool Is(int place, int token) const { return place < m_list.NumWord() && Word(place) == token; }
  /// The step that stands behind a place, 1 when none does.
  int StepAt(int place) const;

  ListMapper& m_lists;
  NumberRuns const& m_runs;
  Data::CEntList const& m_list;
  ListMapper::Id m_propertyModule;
  ListMapper::Id m_module;
  int m_string = 0;
  std::wstring m_text;
};

}  // namespace Tarvex
