#include "tests/support/matchers.h"

namespace Tarvex::Testing {

::testing::AssertionResult IsUnchanged(CZelData const& model, CZelData const& before) {
  if (model == before) return ::testing::AssertionSuccess();
  return ::testing::AssertionFailure() << "the model differs from its former state";
}

}  // namespace Tarvex::Testing
