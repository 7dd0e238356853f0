// What a list selects.
//
// Cost: n words, with the runs of numbers that they stand for, cost O(n log n) but for a factor log
// n in unlucky nesting; no recursion.
#pragma once

#include "store/select/intervals.h"
#include "store/select/list_tokens.h"
#include "store/select/reference.h"

namespace Tarvex::Data {

/// What a list needs to know to be expanded.
class TARVEX_STORE_EXPORT ListResolver {
 public:
  virtual ~ListResolver();
  /// The number of "*".
  virtual int Highest() = 0;
  /// Numbers above it are of no interest.
  virtual int Limit() = 0;
  virtual Intervals All() = 0;
  /// What a prefix word or "#" with its number selects. The plain numbers of N in a list of nodes
  /// and of E in a list of elements are not asked for.
  virtual Intervals Word(int token, int number) = 0;
  /// What a quoted name selects.
  virtual Intervals Named(CString const& name) = 0;
};

/// The numbers that a list selects up to the limit, whether or not they exist; 0 may be one of
/// them.
TARVEX_STORE_EXPORT Intervals ExpandList(ListTokens const& tokens, SelType kind,
                                         ListResolver& resolver);

/// Whether a list names a number singly or in a range; "all" and words that need a model name none.
TARVEX_STORE_EXPORT bool ListNames(ListTokens const& tokens, SelType kind, int number, int highest);

/// The numbers of an expanded list in the order in which the text names them, each once. What "not"
/// takes away does not count as named.
TARVEX_STORE_EXPORT std::vector<int> ListOrder(ListTokens const& tokens, SelType kind,
                                               Intervals const& numbers, ListResolver& resolver);

}  // namespace Tarvex::Data
