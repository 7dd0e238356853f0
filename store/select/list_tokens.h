// The words of selection lists: text to tokens and back.
//
// A list is kept as whole numbers: 0 and above are numbers of records or cases (case_tokens.h),
// below 0 are keywords. This header knows words only; which sequences of words are a list is said
// in list_grammar.h.
#pragma once

#include <optional>
#include <string_view>
#include <vector>

#include "store/export.h"
#include "store/text/cstring.h"

namespace Tarvex::Data {

/// Keywords with a name of their own in code. The numbers are part of stored lists: never change
/// one. The prefix words (by property, material, group, co-ordinate) stand in ListWords().
enum ListToken : int {
  kTo = -1,
  kNot = -2,
  kStep = -3,
  kAll = -4,
  kNone = -5,
  kHighest = -6,  ///< "*", at the end of a range: the highest number of the kind
  kAnd = -7,
  kOr = -8,
  kOpen = -9,
  kClose = -10,
  kString = -11,  ///< a quoted name; the n-th one of a list is the n-th of its strings
  kSavedList = -12,
};

/// One keyword: its token and the text that it is written as, with the trailing blank that belongs
/// to it.
struct ListWord {
  int token;
  std::wstring_view text;
};

/// All keywords but the quoted string, by descending token.
TARVEX_STORE_EXPORT std::vector<ListWord> const& ListWords();

/// Whether a token is one of ListWords().
TARVEX_STORE_EXPORT bool IsListWord(int token);

/// True for a prefix word (-13 to -39 and -50 to -58), behind which a following keyword needs no
/// blank.
TARVEX_STORE_EXPORT bool IsPrefixWord(int token);

/// The words of one list.
struct ListTokens {
  std::vector<int> words;
  std::vector<CString> strings;  ///< texts of the kString words, in their order

  friend bool operator==(ListTokens const&, ListTokens const&) = default;
};

/// Place and reason of a text that is no sequence of list words.
struct ListFault {
  int position;  ///< character from 0
  CString reason;
};

/// Reads words: keywords by their longest match, so that no blank need stand behind a prefix word
/// or a parenthesis; whole numbers from 0 to 100000000; cases, which are such numbers directly
/// behind their letter; the negative numbers of the words M, MA, MG, MT and MF; names in double
/// quotes, where a quotation mark can't be part of the name.
/// @param fault receives the place and reason of a failure when it is given.
/// @param places receives the place of each word in the text when it is given.
/// @return empty when the text has anything else in it.
TARVEX_STORE_EXPORT std::optional<ListTokens> ReadListTokens(std::wstring_view text,
                                                             ListFault* fault = nullptr,
                                                             std::vector<int>* places = nullptr);

/// Text of the words: one blank between them and none at the end, but none inside a parenthesis at
/// its ends nor between a prefix word or "#" and its number.
TARVEX_STORE_EXPORT CString WriteListTokens(ListTokens const& tokens);

}  // namespace Tarvex::Data
