// What tests ask of models.
#pragma once

#include <gtest/gtest.h>

#include "store/model/zel_data.h"

namespace Tarvex::Testing {

/// Whether a model is equal to a former state of it.
::testing::AssertionResult IsUnchanged(CZelData const& model, CZelData const& before);

}  // namespace Tarvex::Testing
