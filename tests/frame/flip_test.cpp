#include <gtest/gtest.h>

#include "tarvex/orientation.h"
#include "tests/support/builders.h"
#include "tests/support/matchers.h"

namespace Tarvex {
namespace {

TEST(FlipElement, TwiceIsTheIdentityOnAQuadrilateral) {
  CZelData model;
  Testing::Grid(model, 1, 1);
  CZelData const before(model);
  EXPECT_TRUE(FlipElement(model, 1));
  EXPECT_EQ(model.Elem(1).Topo(0), 2);
  EXPECT_TRUE(FlipElement(model, 1));
  EXPECT_TRUE(Testing::IsUnchanged(model, before));
}

}  // namespace
}  // namespace Tarvex
