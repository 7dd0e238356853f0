// Numbers in texts.
#pragma once

#include "store/export.h"
#include "store/text/cstring.h"

namespace Tarvex {

/// Reads a whole number, with or without a sign, that is all of a text. @return false, and the
/// value as it was, for any other text and for a number that an int does not hold.
TARVEX_STORE_EXPORT bool StringTo(CString const& text, int& value);

/// A whole number.
TARVEX_STORE_EXPORT CString StringFrom(int value);
/// The shortest text that reads back as the same number.
TARVEX_STORE_EXPORT CString StringFrom(double value);

/// A word and a number behind a blank: "Analysis Case 5".
TARVEX_STORE_EXPORT CString MakeNumString(CString const& word, int number);

namespace Util {

/// A text with the number in the place of each '#'.
TARVEX_STORE_EXPORT CString ReplaceHash(CString const& text, int number);

/// The name of a column as spreadsheets have it: A for 1, Z for 26, AA for 27; empty below 1.
TARVEX_STORE_EXPORT CString ColString(int column);

}  // namespace Util
}  // namespace Tarvex
