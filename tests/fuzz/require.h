// What fuzzers ask of what they try.
#pragma once

#include <cstdio>
#include <cstdlib>

namespace Tarvex::Testing {

/// Ends the program when a rule does not hold: that is how a fuzzer learns of it.
inline void Require(bool holds, char const* rule) {
  if (holds) return;
  std::fprintf(stderr, "rule broken: %s\n", rule);
  std::abort();
}

}  // namespace Tarvex::Testing
