// Lists with some of their items written anew.
//
// What is not touched keeps its words and its place. Where an item that an operator takes becomes
// several, they stand in parentheses; where it becomes none, the operator goes with it, or "none"
// keeps the place where its going would change what the others mean. A list that names nothing any
// more becomes empty.
#pragma once

#include <functional>
#include <map>
#include <optional>
#include <vector>

#include "store/select/intervals.h"
#include "store/select/list_tokens.h"
#include "store/select/reference.h"

namespace Tarvex::Data {

/// So many numbers may a list gain when it is written out.
inline constexpr int kLongestWrittenOut = 10000000;

/// Whether a list has no word but "none", and what does not change that.
TARVEX_STORE_EXPORT bool NamesNothing(ListTokens const& tokens);

/// Appends a number or a keyword. What would take it as its operand or its number is ended with
/// "or" first, and a list that names nothing is replaced.
TARVEX_STORE_EXPORT void AppendToList(ListTokens& tokens, int token);

/// Takes one number out of what a list selects: where the list is a mere union of numbers out of
/// the items that hold it, otherwise by "not" at the end.
/// @param highest what "*" stands for.
TARVEX_STORE_EXPORT void RemoveFromList(ListTokens& tokens, SelType kind, int number, int highest);

/// Writes for each number that is a key its new numbers, in their order; 0 is none. A range that
/// holds such a number is split there. "all" and words that need a model are left alone.
/// @return whether anything changed.
TARVEX_STORE_EXPORT bool ReplaceInList(ListTokens& tokens, SelType kind,
                                       std::map<int, std::vector<int>> const& numbers, int highest);

/// Writes out the ranges without "*".
/// @return false, and the tokens as they were, when the list would gain more than
/// kLongestWrittenOut numbers.
TARVEX_STORE_EXPORT bool WriteOutRanges(ListTokens& tokens);

/// Writes the numbers that expand(token, number) gives in the place of each word with its number; a
/// word for which it gives nothing at all, not even an empty set, stays.
/// @return as WriteOutRanges.
TARVEX_STORE_EXPORT bool WriteOutWords(
    ListTokens& tokens,
    std::function<std::optional<Intervals>(int token, int number)> const& expand);

/// Words of a set: runs of three or more numbers as "a to b", all else singly.
TARVEX_STORE_EXPORT std::vector<int> CompactWords(Intervals const& numbers);

}  // namespace Tarvex::Data
