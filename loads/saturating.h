// Counts that stop at a highest one.
#pragma once

#include <algorithm>

#include "tarvex/combinations.h"

namespace Tarvex {

inline long long CappedCountSum(long long a, long long b) {
  return a > CombinationPlan::kMost - b ? CombinationPlan::kMost : a + b;
}

inline long long CappedCountProduct(long long a, long long b) {
  return b != 0 && a > CombinationPlan::kMost / b ? CombinationPlan::kMost : a * b;
}

}  // namespace Tarvex
