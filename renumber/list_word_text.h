// The text of the tokens of lists, and the tables of the numbers behind them.
#pragma once

#include <string>

#include "store/record/ent_list.h"
#include "store/select/module_id.h"

namespace Tarvex {

/// One keyword of a list as the renumbering writes it.
struct ListWordRow {
  /// Where the number behind a keyword stands, beside a table.
  enum : int {
    kOwn = -100,       ///< in the table of the list's kind
    kProperty = -101,  ///< in the table of properties that the list's owner says
  };

  int token;
  std::wstring_view text;
  int next;               ///< a table, CModule::None for no table, kOwn or kProperty
  bool asNumber = false;  ///< whether it comes out as its number where nothing is mapped
};

/// The row of a keyword other than a quoted name, null for any other token.
ListWordRow const* FindListWord(int token);

namespace ListWordText {

/// Appends a number with a blank behind it.
void AppendNumber(std::wstring& text, int number);
/// Appends a quoted name with a blank behind it. @param string its place; goes on by one.
void AppendName(std::wstring& text, Data::CEntList const& list, int& string);
/// Appends a token as it is; MT, MG, MA, MF and M come out as their negative number.
void Append(std::wstring& text, Data::CEntList const& list, int token, int& string);

CString Number(int number);
CString AsItIs(Data::CEntList const& list, int token, int& string);

}  // namespace ListWordText
}  // namespace Tarvex
