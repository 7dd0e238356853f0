// Cases as the numbers of lists of cases.
//
// A list of cases holds one number for each case, which tells its kind and its own number: so
// ranges of cases are ranges of numbers, and lists of cases are expanded like all others. In texts
// such a number is a letter with the case's number: L1, A2, C3, T4.
#pragma once

#include "store/select/numbers.h"
#include "store/select/reference.h"

namespace Tarvex::Data {

/// Number of a case in a list of cases, above all record numbers; 0 for a case of no kind or of a
/// number that is not from 0 to 100000000. The permutation is no part of it.
TARVEX_STORE_EXPORT int CaseToken(SCaseRef const& ref);
/// The case of such a number; one of CaseOp::None for any other number.
TARVEX_STORE_EXPORT SCaseRef CaseOfToken(int token);

/// The kind of case that a letter stands for, CaseOp::None for another character.
TARVEX_STORE_EXPORT CaseOp CaseOfLetter(wchar_t letter);
/// The letter of a kind, 0 where it has none.
TARVEX_STORE_EXPORT wchar_t LetterOfCase(CaseOp kind);

/// Whether a token is a record number, 0 among them.
constexpr bool IsNumberToken(int token) { return token >= 0 && token <= kHighestNumber; }

}  // namespace Tarvex::Data
