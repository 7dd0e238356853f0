// What records reach that name each other by number.
#pragma once

#include <functional>
#include <set>
#include <vector>

#include "store/export.h"

namespace Tarvex {

/// The numbers that are reached from some.
struct Reached {
  std::vector<int> order;  ///< each behind those that it refers to, but for those that go round
  std::set<int> endless;   ///< those that reach themselves
};

/// Follows references from some numbers on, with those among the reached. Linear in all references,
/// and without recursion. @param referredBy the numbers that a number refers to
TARVEX_STORE_EXPORT Reached FollowReferences(std::function<std::vector<int>(int)> const& referredBy,
                                             std::vector<int> const& from);

}  // namespace Tarvex
