// What is a list. What one selects is told in list_evaluation.h.
//
// A list is a sequence of items: numbers; ranges "a to b", with "step s" where wanted and "*" for
// the highest number; words with the one number behind them ("PB2", "#3"); quoted names; "all";
// "none"; and lists in parentheses. Side by side and "or" mean union, "and" means intersection and
// binds closer, "A not B" takes the one item B away from all that stands before it in the same
// parenthesis. What an operator or a word lacks is nothing: "PB2 and" selects nothing, "or 9" is 9.
#pragma once

#include <optional>

#include "store/select/list_tokens.h"
#include "store/select/reference.h"

namespace Tarvex::Data {

/// So many numbers may a list gain when ranges behind words are written out.
inline constexpr int kMostWrittenOut = 100000;

/// Checks the words of a list and brings them into the form that lists are kept in, in which they
/// print and read back alike:
///  - a range behind a word is written out: "PB1 to 3" is "PB1 PB2 PB3"; "*" and "step" are
///    refused there, and so is a list that would gain more than kMostWrittenOut numbers;
///  - a range that is an operand of "not", or of "and" on either side, stands in parentheses, and
///  so
///    do several words in its place: "all not (1 to 10)";
///  - there are as many strings as quoted names.
/// @param fault receives the place among the words and the reason of a refusal when it is given.
/// @return false, and the tokens as they were, for what is no list.
TARVEX_STORE_EXPORT bool NormalizeList(ListTokens& tokens, ListFault* fault = nullptr);

/// NormalizeList of the words of a text, with IsListOfKind where a kind is given; places in faults
/// are characters of the text, from 0.
TARVEX_STORE_EXPORT std::optional<ListTokens> ReadList(std::wstring_view text,
                                                       std::optional<SelType> kind,
                                                       ListFault* fault = nullptr);

/// Whether a list is one of a kind as far as its words go: lists of cases have cases in the place
/// of numbers and none of the words that take a number but "#".
/// @param fault receives place and reason, as in NormalizeList.
TARVEX_STORE_EXPORT bool IsListOfKind(ListTokens const& tokens, SelType kind,
                                      ListFault* fault = nullptr);

/// Whether a list consists of numbers alone, with nothing between them.
TARVEX_STORE_EXPORT bool IsPlainList(ListTokens const& tokens);

/// Whether a list can be expanded without a model: it has neither "all" nor "*" nor a word that
/// needs one.
TARVEX_STORE_EXPORT bool NeedsNoModel(ListTokens const& tokens, SelType kind);

/// Whether a word is the one whose number is a number of the list itself: N in lists of nodes, E in
/// lists of elements.
TARVEX_STORE_EXPORT bool IsOwnNumberWord(int token, SelType kind);

}  // namespace Tarvex::Data
