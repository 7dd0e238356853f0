// Descriptions of cases as trees. Internal to the store.
#pragma once

#include <optional>
#include <string_view>
#include <vector>

#include "store/export.h"
#include "store/select/reference.h"
#include "store/text/cstring.h"

namespace Tarvex::Data {

/// What stands behind the letter of a case that is gone.
inline constexpr std::wstring_view kDeletedCase = L"<deleted case>";

/// One part of a description. Parts name the parts that they are made of by their place among all.
struct CasePart {
  enum class Kind {
    Nothing,    ///< no case, a mode or a case that was deleted
    Case,       ///< one case
    Range,      ///< any of the cases from one to another
    Sum,        ///< all its parts together
    Either,     ///< any of its parts
    Scaled,     ///< its one part by any of some factors
    NonLinear,  ///< the absolute value of its part, or the root of the squares of its parts
  };

  Kind kind = Kind::Nothing;
  SCaseRef first;               ///< the case, or the first of a range
  int last = 0;                 ///< number of the last case of a range
  std::vector<double> factors;  ///< of a scaled part
  std::vector<int> parts;
};

/// A description. Each part stands behind those that it is made of.
struct CaseExpression {
  std::vector<CasePart> parts;
  int whole = 0;              ///< the part that is all but the P-delta suffix
  std::optional<int> pDelta;  ///< the part in the suffix
};

/// Place and reason of a text that is no description.
struct CaseFault {
  int position = 0;  ///< character from 0
  CString reason;
};

/// Reads a description (docs/descriptions.md has the grammar). @return nothing for a text that is
/// none; fault then tells why.
TARVEX_STORE_EXPORT std::optional<CaseExpression> ReadCases(CString const& text,
                                                            CaseFault* fault = nullptr);

}  // namespace Tarvex::Data
