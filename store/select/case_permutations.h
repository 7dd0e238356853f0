// The linear combinations that a description stands for. Internal to the store.
//
// A description with alternatives stands for several: each way of taking one of them everywhere.
// They are counted, never listed; one is worked out from its index. In a sum the alternatives of
// the last part change fastest; "or" and "to" stand for those of their parts one behind the other,
// a factor with alternatives for all of its part by the first, then all by the second.
#pragma once

#include <limits>
#include <map>

#include "store/select/case_expression.h"

namespace Tarvex::Data {

/// Counts stop here.
inline constexpr int kMostPermutations = std::numeric_limits<int>::max();

/// A description with the number of alternatives of each part.
struct CountedCases {
  CaseExpression tree;
  std::vector<int> counts;

  int Total() const { return counts.empty() ? 0 : counts[static_cast<std::size_t>(tree.whole)]; }
};

/// What the cases of descriptions stand for.
class CaseMeaning {
 public:
  virtual ~CaseMeaning() = default;

  /// The description of a case that is one of others; null for a case that stands for itself.
  virtual CountedCases const* Description(SCaseRef const& ref) const = 0;
  /// The number of the next case above one, 0 for none; as far as a range reaches.
  virtual int Next(SCaseRef const& ref) const = 0;
  /// Whether each case stands for itself and no range has holes, so that nothing need be looked up.
  virtual bool IsAsWritten() const { return false; }
  /// The number of alternatives of one case.
  int Count(SCaseRef const& ref) const {
    auto const* description = Description(ref);
    return description == nullptr ? 1 : description->Total();
  }
};

/// Cases as they are written: each stands for itself, and ranges have no holes.
class CasesAsWritten : public CaseMeaning {
 public:
  CountedCases const* Description(SCaseRef const&) const override { return nullptr; }
  int Next(SCaseRef const& ref) const override { return ref.num + 1; }
  bool IsAsWritten() const override { return true; }
};

/// Counts the alternatives of a description; one that names no case at all has none.
TARVEX_STORE_EXPORT CountedCases CountCases(CaseExpression tree, CaseMeaning const& meaning);

/// The factors of the cases in one alternative. Absolute values and roots of squares have none.
/// @param part of the description: its whole or its P-delta suffix
/// @param index from 0; one that there is not gives no factors
TARVEX_STORE_EXPORT std::map<SCaseRef, double> CaseFactors(CountedCases const& cases, int part,
                                                           int index, CaseMeaning const& meaning);

/// The factor of one case in one alternative, 0 for a case that is not in it.
TARVEX_STORE_EXPORT double FactorOfCase(CountedCases const& cases, int part, int index,
                                        CaseMeaning const& meaning, SCaseRef const& ref);

}  // namespace Tarvex::Data
